// Messages within other octets, at any bit: PER carries an inner message as an octet string without alignment.
#include "rtxDecoder.h"

#include <algorithm>

namespace rtx
{
namespace
{

constexpr uint32_t progressStep = 64 * 1024; // octets

// Candidates in the context's heap. What it grows out of stays there until the context is freed.
class Candidates
{
public:
    explicit Candidates(OSCTXT& ctxt) : ctxt_(ctxt) {}

    bool add(const RtxFound& found)
    {
        if (count_ == capacity_)
        {
            const size_t more = capacity_ == 0 ? 64 : capacity_ * 2;
            auto* const grown = static_cast<RtxFound*>(rtxMemHeapAlloc(&ctxt_, more * sizeof(RtxFound)));
            if (grown == nullptr)
            {
                return false;
            }
            std::copy_n(all_, count_, grown);
            all_ = grown;
            capacity_ = more;
        }
        all_[count_++] = found;
        return true;
    }

    RtxFound* begin() const
    {
        return all_;
    }
    RtxFound* end() const
    {
        return all_ + count_;
    }

private:
    OSCTXT& ctxt_;
    RtxFound* all_ = nullptr;
    size_t count_ = 0;
    size_t capacity_ = 0;
};

uint64_t behind(const RtxFound& found)
{
    return found.contentBit + uint64_t{found.octets} * 8;
}

bool isLonger(const RtxFound& a, const RtxFound& b)
{
    return a.octets != b.octets ? a.octets > b.octets : a.bit < b.bit;
}

// Which bits of the input are taken.
class Taken
{
public:
    explicit Taken(OSOCTET* cleared) : bits_(cleared) {}

    // Whether a candidate touches one taken before it: as those are at least as long, one of its ends does.
    bool touches(const RtxFound& found) const
    {
        return isSet(found.bit) || isSet(behind(found) - 1);
    }

    void take(const RtxFound& found)
    {
        for (uint64_t bit = found.bit; bit < behind(found); ++bit)
        {
            bits_[bit / 8] = static_cast<OSOCTET>(bits_[bit / 8] | 1U << bit % 8);
        }
    }

private:
    bool isSet(uint64_t bit) const
    {
        return (bits_[bit / 8] >> bit % 8 & 1) != 0;
    }

    OSOCTET* bits_;
};

class Search
{
public:
    Search(OSCTXT& ctxt, const Type& type, const OSOCTET* data, uint32_t octets, uint32_t least)
        : type_(type), whole_(data, octets * 8), least_(least), ctxt_(ctxt), found_(ctxt)
    {
    }

    const Candidates& candidates() const
    {
        return found_;
    }

    // Looks for messages whose first bit lies in an octet. False when the heap is exhausted.
    bool octet(uint32_t index)
    {
        for (uint32_t content = index * 8; content < index * 8 + 8; ++content)
        {
            const uint32_t shortOne = content >= 8 ? fitting(content, shortLength(content - 8)) : 0;
            const uint32_t longOne = content >= 16 ? fitting(content, longLength(content - 16)) : 0;
            const uint32_t longest = std::max(shortOne, longOne);
            if (longest == 0)
            {
                continue;
            }
            // Where the message ends does not depend on its length: one attempt does for both.
            const Input message(whole_.data, content + longest * 8);
            OSOCTET unused = 0;
            Decoder<Skimmer> decoder(ctxt_, RTX_DECODE_STRICT, skimmer_); // one that has failed is used up
            const uint64_t end = decoder.complete(message, type_, &unused, content);
            if ((end == content + uint64_t{shortOne} * 8 && !found_.add({content - 8, content, shortOne})) ||
                (end == content + uint64_t{longOne} * 8 && !found_.add({content - 16, content, longOne})))
            {
                return false;
            }
        }
        return true;
    }

private:
    // 11.9.3.6, 11.9.3.7: the length that a determinant gives, 0 where there is none. Longer ones come in fragments.
    uint32_t shortLength(uint32_t bit) const
    {
        const auto octets = static_cast<uint32_t>(top(window(whole_, bit), 8));
        return octets < 128 ? octets : 0;
    }
    uint32_t longLength(uint32_t bit) const
    {
        const auto bits = static_cast<uint32_t>(top(window(whole_, bit), 16));
        return bits >> 14 == 2 && (bits & 0x3FFF) >= 128 ? bits & 0x3FFF : 0;
    }

    // A length, or 0 where it is too small or too large.
    uint32_t fitting(uint32_t content, uint32_t octets) const
    {
        return octets >= least_ && uint64_t{content} + uint64_t{octets} * 8 <= whole_.end ? octets : 0;
    }

    const Type& type_;
    Input whole_;
    uint32_t least_;
    OSCTXT& ctxt_;
    Candidates found_;
    Skimmer skimmer_;
};

} // namespace
} // namespace rtx

int64_t rtxFind(OSCTXT* pctxt, const RtxType* type, const OSOCTET* data, size_t octets, OSUINT32 least,
                RtxFoundSink sink, RtxProgress progress, void* arg)
{
    using namespace rtx;
    if (pctxt == nullptr || (data == nullptr && octets != 0))
    {
        return RTX_E_NULL;
    }
    rtxErrReset(pctxt);
    if (octets > largestInput)
    {
        return setError(*pctxt, RTX_E_RANGE, static_cast<int64_t>(octets), 0, largestInput);
    }
    const auto exhausted = [&](size_t size)
    {
        return setError(*pctxt, RTX_E_HEAP, static_cast<int64_t>(size));
    };
    auto* const taken = static_cast<OSOCTET*>(rtxMemHeapAlloc(pctxt, octets));
    if (taken == nullptr)
    {
        return exhausted(octets);
    }
    Search search(*pctxt, *type, data, static_cast<uint32_t>(octets), std::max<OSUINT32>(least, 1));
    for (uint32_t i = 0; i < octets; ++i)
    {
        if (!search.octet(i))
        {
            return exhausted(sizeof(RtxFound));
        }
        if (progress != nullptr && (i + 1) % progressStep == 0)
        {
            progress(arg, i + 1);
        }
    }

    const Candidates& all = search.candidates();
    std::sort(all.begin(), all.end(), isLonger);
    Taken bits(taken);
    RtxFound* end = all.begin();
    for (const RtxFound& found : all)
    {
        if (!bits.touches(found))
        {
            bits.take(found);
            *end++ = found;
        }
    }
    std::sort(all.begin(), end, [](const RtxFound& a, const RtxFound& b) { return a.bit < b.bit; });
    std::for_each(all.begin(), end, [&](const RtxFound& found) { sink(arg, &found); });
    return end - all.begin();
}

void rtxCopyBits(OSOCTET* to, const OSOCTET* data, uint64_t bit, size_t octets)
{
    const auto shift = static_cast<unsigned>(bit % 8);
    data += bit / 8;
    for (size_t i = 0; i < octets; ++i)
    {
        to[i] = static_cast<OSOCTET>(shift == 0 ? data[i] : data[i] << shift | data[i + 1] >> (8 - shift));
    }
}
