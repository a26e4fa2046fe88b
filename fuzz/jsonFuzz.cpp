// Reads any input as JER and as flat lines. What is accepted is encoded, and written and read again, which gives the
// same octets; what is not has mistakes, each with its place.
#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"

#include <string>
#include <vector>

#include "mistakes.h"

using fuzz::require;

namespace
{

struct Input
{
    fuzz::Mistakes places;
    int mistakes = 0;
};

void checkMistake(void* arg, const Asn1Mistake* mistake)
{
    auto& input = *static_cast<Input*>(arg);
    ++input.mistakes;
    input.places.expectInPlace(*mistake);
    require(std::strncmp(mistake->path, "CellGroupConfig", 15) == 0, "a path that does not begin at the root");
}

std::vector<OSOCTET> encode(OSCTXT& ctxt, const CellGroupConfig& value)
{
    static OSOCTET octets[1 << 20]; // no text of a fuzzer is as long
    require(pu_setBuffer(&ctxt, octets, sizeof octets, 0) == RTX_OK, "no buffer");
    const int status = asn1PE_CellGroupConfig(&ctxt, &value);
    if (status != RTX_OK)
    {
        rtxErrPrint(&ctxt);
    }
    require(status == RTX_OK, "what was read is not encoded");
    return {octets, octets + pu_getMsgLen(&ctxt)};
}

// A tree read from a text.
class Tree
{
public:
    Tree(decltype(asn1FromJson) read, const char* text, size_t length)
    {
        rtxInitContext(&ctxt);
        rtxMemHeapSetLimit(&ctxt, size_t{64} << 20);
        Input input{{text, length}};
        mistakes = read(&ctxt, &nr_rrc::type_CellGroupConfig, &value, text, length, checkMistake, &input);
        require(mistakes == input.mistakes && mistakes <= ASN1_MAX_MISTAKES, "mistakes are counted otherwise");
    }

    ~Tree()
    {
        rtFreeContext(&ctxt);
    }

    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    OSCTXT ctxt;
    CellGroupConfig value;
    int mistakes;
};

void append(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

void checkAgain(decltype(asn1FromJson) read, const std::string& text, const std::vector<OSOCTET>& octets)
{
    Tree tree(read, text.data(), text.size());
    require(tree.mistakes == 0, "what was written has mistakes");
    require(encode(tree.ctxt, tree.value) == octets, "what was written is another value");
}

void check(decltype(asn1FromJson) read, const char* text, size_t length)
{
    Tree tree(read, text, length);
    if (tree.mistakes != 0)
    {
        return;
    }
    const std::vector<OSOCTET> octets = encode(tree.ctxt, tree.value);
    const RtxType* const type = &nr_rrc::type_CellGroupConfig;
    std::string json;
    require(rtxToJson(&tree.ctxt, type, &tree.value, RTX_COMPACT, append, &json) == RTX_OK, "JER is not written");
    checkAgain(asn1FromJson, json, octets);
    std::string flat;
    require(rtxToFlat(&tree.ctxt, type, &tree.value, append, &flat) == RTX_OK, "flat lines are not written");
    checkAgain(asn1FromFlat, flat, octets);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::vector<char> text(data, data + size); // of its exact size, so that reading past it is found
    check(asn1FromJson, text.data(), text.size());
    check(asn1FromFlat, text.data(), text.size());
    return 0;
}
