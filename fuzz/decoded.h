// What the fuzzers of element trees share.
#ifndef DECODED_H
#define DECODED_H

#include "NR-RRC-Definitions.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "require.h"
#include "support/JsonText.h"

namespace fuzz
{

inline void countText(void* arg, const char* text)
{
    while (*text++ != '\0')
    {
        ++*static_cast<size_t*>(arg);
    }
}

inline void append(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

// A context with the tree that was decoded from some octets.
class Decoded
{
public:
    Decoded(const uint8_t* data, size_t size)
        : input_(std::make_unique<OSOCTET[]>(size)), // of its exact size, so that reading past it is found
          size_(size)
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

    // The fields are the message, bit for bit.
    void trace() const
    {
        OSCTXT ctxt;
        CellGroupConfig value;
        require(rtxInitContext(&ctxt) == RTX_OK, "no context");
        require(pu_setBuffer(&ctxt, input_.get(), size_, 0) == RTX_OK, "no buffer");
        uint64_t next = 0;
        const auto follow = [](void* arg, const RtxField* field)
        {
            auto& end = *static_cast<uint64_t*>(arg);
            require(field->offset == end, "a field does not follow the one before");
            end += field->width;
        };
        require(asn1Trace_CellGroupConfig(&ctxt, &value, follow, &next) == status_, "the trace has another status");
        require(next == uint64_t{size_} * 8, "the fields are not the message");
        rtFreeContext(&ctxt);
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

    // How much keeps the tree from being sent.
    int64_t findings() const
    {
        return asn1Check_CellGroupConfig(&ctxt_, &value_, nullptr, nullptr);
    }

    int64_t differences(const Decoded& other)
    {
        return asn1Compare_CellGroupConfig(&ctxt_, &other.ctxt_, &value_, &other.value_, formatDifference, nullptr);
    }

private:
    static int formatDifference(void*, const RtxDifference* difference)
    {
        require(rtxDifferenceFormat(difference, nullptr, 0) != 0, "a difference without a line");
        return 0;
    }

    OSCTXT ctxt_;
    CellGroupConfig value_;
    std::unique_ptr<OSOCTET[]> input_;
    size_t size_;
    int status_;
};

} // namespace fuzz

#endif
