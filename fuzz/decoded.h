// What the fuzzers of element trees share.
#ifndef DECODED_H
#define DECODED_H

#include "NR-RRC-Definitions.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace fuzz
{

inline void require(bool condition, const char* what)
{
    if (!condition)
    {
        (void)std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

inline void countText(void* arg, const char* text)
{
    while (*text++ != '\0')
    {
        ++*static_cast<size_t*>(arg);
    }
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
    int status_;
};

} // namespace fuzz

#endif
