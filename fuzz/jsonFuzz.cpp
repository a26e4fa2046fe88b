// Reads any input as JER and as flat lines. What is accepted is encoded, decoded and encoded again; what is not has
// mistakes, each with its place.
#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "asn1FromText.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace
{

void require(bool condition, const char* what)
{
    if (!condition)
    {
        (void)std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

struct Input
{
    const char* text;
    size_t length;
    size_t last = 0; // offset of the last mistake
    int mistakes = 0;
};

void checkMistake(void* arg, const Asn1Mistake* mistake)
{
    auto& input = *static_cast<Input*>(arg);
    ++input.mistakes;
    require(mistake->offset >= input.last && mistake->offset <= input.length, "a mistake out of its place");
    input.last = mistake->offset;
    const auto lines = std::count(input.text, input.text + mistake->offset, '\n');
    require(mistake->line == static_cast<OSUINT32>(lines) + 1 && mistake->column >= 1 &&
                mistake->column <= mistake->offset + 1,
            "a mistake's line or column");
    require(std::strncmp(mistake->path, "CellGroupConfig", 15) == 0, "a path that does not begin at the root");
    const size_t length = std::strlen(mistake->words);
    require(length != 0 && length < 2000 && std::strchr(mistake->words, '\n') == nullptr, "the words of a mistake");
}

std::vector<OSOCTET> encode(OSCTXT& ctxt, const CellGroupConfig& value)
{
    std::vector<OSOCTET> octets(1 << 20);
    require(pu_setBuffer(&ctxt, octets.data(), octets.size(), 0) == RTX_OK, "no buffer");
    const int status = asn1PE_CellGroupConfig(&ctxt, &value);
    if (status != RTX_OK)
    {
        rtxErrPrint(&ctxt);
    }
    require(status == RTX_OK, "what was read is not encoded");
    octets.resize(pu_getMsgLen(&ctxt));
    return octets;
}

void check(decltype(asn1FromJson) read, const char* text, size_t length)
{
    OSCTXT ctxt;
    rtxInitContext(&ctxt);
    rtxMemHeapSetLimit(&ctxt, size_t{64} << 20);
    const auto value = std::make_unique<CellGroupConfig>();
    Input input{text, length};
    const int mistakes = read(&ctxt, &nr_rrc::type_CellGroupConfig, value.get(), text, length, checkMistake, &input);
    require(mistakes == input.mistakes && mistakes <= ASN1_MAX_MISTAKES, "mistakes are counted otherwise");
    if (mistakes == 0)
    {
        std::vector<OSOCTET> once = encode(ctxt, *value);
        require(pu_setBuffer(&ctxt, once.data(), once.size(), 0) == RTX_OK, "no buffer to decode from");
        require(asn1PD_CellGroupConfig(&ctxt, value.get()) == RTX_OK, "what was encoded is not decoded");
        require(encode(ctxt, *value) == once, "the second encoding is another one");
    }
    rtFreeContext(&ctxt);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::vector<char> text(data, data + size); // of its exact size, so that reading past it is found
    check(asn1FromJson, text.data(), text.size());
    check(asn1FromFlat, text.data(), text.size());
    return 0;
}
