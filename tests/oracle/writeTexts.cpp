// Decodes each line "<Type> <hex>" of standard input and writes the tree in every notation: "<JER>\t<value notation>",
// or "error <line>". What JER and flat lines say is read back, and has to give the same octets.
#include "NR-RRC-Pdus.h"
#include "asn1FromText.h"
#include "rtxType.h"

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "support/Hex.h"

namespace
{

using Octets = std::vector<OSOCTET>;

void append(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

void appendMistake(void* arg, const Asn1Mistake* mistake)
{
    *static_cast<std::string*>(arg) += std::string(" ") + mistake->path + ": " + mistake->words;
}

// A value of any type with its context.
class Value
{
public:
    explicit Value(const RtxPdu& pdu) : pdu_(pdu), storage_(pdu.type->size / sizeof(std::max_align_t) + 1)
    {
        rtxInitContext(&context_);
    }

    ~Value()
    {
        rtFreeContext(&context_);
    }

    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;

    bool decode(Octets& octets)
    {
        pu_setBuffer(&context_, octets.data(), octets.size(), 0);
        return rtxDecode(&context_, pdu_.type, storage_.data(), 0) == 0;
    }

    // The mistakes in a text, empty without any.
    template <typename Reader>
    std::string read(Reader reader, const std::string& text)
    {
        std::string mistakes;
        (void)reader(&context_, pdu_.type, storage_.data(), text.data(), text.size(), appendMistake, &mistakes);
        return mistakes;
    }

    std::string encode(size_t capacity)
    {
        Octets octets(capacity);
        pu_setBuffer(&context_, octets.data(), octets.size(), 0);
        return pdu_.encode(&context_, storage_.data()) == 0 ? test::hexDigits(octets.data(), pu_getMsgLen(&context_))
                                                            : error();
    }

    template <typename Writer, typename... Layout>
    bool write(Writer writer, std::string& text, Layout... layout) const
    {
        return writer(&context_, pdu_.type, storage_.data(), layout..., append, &text) == 0;
    }

    std::string error() const
    {
        char line[512];
        rtxErrFormat(&context_, line, sizeof line);
        return line;
    }

private:
    const RtxPdu& pdu_;
    std::vector<std::max_align_t> storage_;
    OSCTXT context_;
};

// What is wrong when a text is read back, empty when nothing is.
template <typename Reader>
std::string readBack(const RtxPdu& pdu, Reader reader, const std::string& text, const std::string& octets)
{
    Value value(pdu);
    const std::string mistakes = value.read(reader, text);
    if (!mistakes.empty())
    {
        return mistakes + " in " + text;
    }
    const std::string again = value.encode(octets.size() / 2);
    return again == octets ? "" : " " + again + " of " + text;
}

std::string write(const RtxPdu& pdu, Octets octets)
{
    Value value(pdu);
    if (!value.decode(octets))
    {
        return "error " + value.error();
    }
    std::string json;
    std::string indented;
    std::string notation;
    std::string flat;
    if (!value.write(rtxToJson, json, RTX_COMPACT) || !value.write(rtxToJson, indented, RTX_INDENTED) ||
        !value.write(rtxToValueNotation, notation, RTX_COMPACT) || !value.write(rtxToFlat, flat))
    {
        return "error not a value";
    }
    const std::string hex = test::hexDigits(octets.data(), octets.size());
    std::string wrong;
    for (const std::string& text : {json, indented})
    {
        wrong += readBack(pdu, asn1FromJson, text, hex);
    }
    wrong += readBack(pdu, asn1FromFlat, flat, hex);
    std::replace(wrong.begin(), wrong.end(), '\n', '|');
    json.pop_back();
    notation.pop_back();
    return wrong.empty() ? json + "\t" + notation : "error read back:" + wrong;
}

} // namespace

int main()
{
    std::string type;
    std::string hex;
    while (std::cin >> type >> hex)
    {
        const auto* const found =
            std::find_if(std::begin(rtxPdus), std::end(rtxPdus), [&](const RtxPdu& pdu) { return type == pdu.name; });
        std::cout << (found != std::end(rtxPdus) ? write(*found, test::octetsOf(hex)) : "error not a type") << '\n';
    }
    return 0;
}
