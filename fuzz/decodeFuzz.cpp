// Decodes any input and writes in every notation what was read of it. What is accepted is encoded, decoded and encoded
// again: both encodings are the same.
#include "NR-RRC-Definitions.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "support/JsonText.h"

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

void countText(void* arg, const char* text)
{
    while (*text++ != '\0')
    {
        ++*static_cast<size_t*>(arg);
    }
}

void append(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

// A context with the tree that was decoded from some octets.
class Decoded
{
public:
    Decoded(const uint8_t* data, size_t size)
        : input_(std::make_unique<OSOCTET[]>(size)) // of its exact size, so that reading past it is found
    {
        std::copy_n(data, size, input_.get());
        require(rtxInitContext(&ctxt_) == RTX_OK, "no context");
        require(pu_setBuffer(&ctxt_, input_.get(), size, 0) == RTX_OK, "no buffer");
        status_ = asn1PD_CellGroupConfig(&ctxt_, &value_);
    }

    ~Decoded()
    {
        rtFreeContext(&ctxt_);
    }

    Decoded(const Decoded&) = delete;
    Decoded& operator=(const Decoded&) = delete;

    int status() const
    {
        return status_;
    }

    size_t errorLength() const
    {
        return rtxErrFormat(&ctxt_, nullptr, 0);
    }

    size_t printedLength() const
    {
        size_t length = 0;
        asn1PrintTo_CellGroupConfig(&ctxt_, "CELL GROUP", &value_, countText, &length);
        return length;
    }

    // Trees of which a part was read, too.
    void write() const
    {
        for (const RtxLayout layout : {RTX_COMPACT, RTX_INDENTED})
        {
            std::string json;
            const int status = asn1ToJson_CellGroupConfig(&ctxt_, &value_, layout, append, &json);
            require(status == status_, "JER has another status");
            require(test::JsonText::isValid(json), "JER is not JSON");
            size_t length = 0;
            require(asn1ToValueNotation_CellGroupConfig(&ctxt_, &value_, layout, countText, &length) == status_ &&
                        length != 0,
                    "the value notation has another status");
        }
        size_t length = 0;
        require(asn1ToFlat_CellGroupConfig(&ctxt_, &value_, countText, &length) == status_ && length != 0,
                "the flat lines have another status");
    }

    std::vector<OSOCTET> encode(size_t capacity)
    {
        std::vector<OSOCTET> octets(capacity);
        require(pu_setBuffer(&ctxt_, octets.data(), octets.size(), 0) == RTX_OK, "no buffer to encode to");
        const int status = asn1PE_CellGroupConfig(&ctxt_, &value_);
        if (status != RTX_OK)
        {
            rtxErrPrint(&ctxt_);
        }
        require(status == RTX_OK, "what was decoded is not encoded");
        octets.resize(pu_getMsgLen(&ctxt_));
        return octets;
    }

private:
    OSCTXT ctxt_;
    CellGroupConfig value_;
    std::unique_ptr<OSOCTET[]> input_;
    int status_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Decoded first(data, size);
    require(first.printedLength() != 0, "nothing is printed");
    first.write();
    require((first.status() != RTX_OK) == (first.errorLength() != 0), "the error's line and the status disagree");
    if (first.status() != RTX_OK)
    {
        return 0;
    }

    // An earlier release's bitmaps of extension additions are shorter than ours: the second encoding may be longer.
    const std::vector<OSOCTET> once = first.encode(2 * size + 64);
    Decoded second(once.data(), once.size());
    require(second.status() == RTX_OK, "what was encoded is not decoded");
    require(second.printedLength() == first.printedLength(), "the second tree is another one");
    require(second.encode(once.size()) == once, "the second encoding is another one");
    return 0;
}
