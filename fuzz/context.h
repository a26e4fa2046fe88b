// What is known besides a message, taken from an input's first octets.
#ifndef CONTEXT_H
#define CONTEXT_H

#include "NR-RRC-Tables.h"
#include "rrcContext.h"
#include "rtxHeap.h"

#include <algorithm>
#include <memory>

#include "require.h"

namespace fuzz
{

// Takes the input from its front: numbers, 0 where it is at its end, and values of the schema.
class Octets
{
public:
    Octets(OSCTXT& ctxt, const uint8_t* data, size_t size)
        : ctxt_(ctxt), octets_(std::make_unique<OSOCTET[]>(size)), left_(size) // so that reading past it is found
    {
        std::copy_n(data, size, octets_.get());
        next_ = octets_.get();
    }

    bool isAtEnd() const
    {
        return left_ == 0;
    }

    unsigned number()
    {
        if (left_ == 0)
        {
            return 0;
        }
        --left_;
        return *next_++;
    }

    bool flag()
    {
        if (bits_ <= 1)
        {
            bits_ = 0x100U | number();
        }
        const bool set = (bits_ & 1U) != 0;
        bits_ >>= 1;
        return set;
    }

    // Null where no value of the type is in front.
    const void* value(const RtxType& type)
    {
        void* const made = rtxMemHeapAlloc(&ctxt_, type.size);
        require(made != nullptr, "no memory");
        require(pu_setBuffer(&ctxt_, next_, left_, 0) == RTX_OK, "no buffer");
        if (rtxDecode(&ctxt_, &type, made, RTX_DECODE_PREFIX) != RTX_OK)
        {
            return nullptr;
        }
        next_ += ctxt_.decoded.octets;
        left_ -= ctxt_.decoded.octets;
        return made;
    }

    template <typename T>
    const T* value(const RtxType& type)
    {
        return static_cast<const T*>(value(type));
    }

    const OSOCTET* raw(size_t count)
    {
        auto* const made = static_cast<OSOCTET*>(rtxMemHeapAlloc(&ctxt_, count));
        require(made != nullptr, "no memory");
        for (size_t i = 0; i < count; ++i)
        {
            made[i] = static_cast<OSOCTET>(number());
        }
        return made;
    }

    // Of numbers that may be anything.
    template <typename T>
    const T* raw()
    {
        return reinterpret_cast<const T*>(raw(sizeof(T)));
    }

private:
    OSCTXT& ctxt_;
    std::unique_ptr<OSOCTET[]> octets_;
    OSOCTET* next_;
    size_t left_;
    unsigned bits_ = 0;
};

// Which members there are comes first, then what they hold.
inline RrcRuleContext contextOf(Octets& octets)
{
    RrcRuleContext known{};
    const bool hasPrevious = octets.flag();
    const bool hasCarriersDl = octets.flag();
    const bool hasCarriersUl = octets.flag();
    const bool hasDownlink = octets.flag();
    const bool hasUplink = octets.flag();
    const bool hasBlocks = octets.flag();
    const bool hasTypeA = octets.flag();
    const bool hasCoreset0 = octets.flag();
    const bool hasTdd = octets.flag();
    const bool hasRach = octets.flag();
    const bool hasBearers = octets.flag();
    const bool hasMeas = octets.flag();
    const bool hasOthers = octets.flag();
    const bool hasCapabilities = octets.flag();
    const bool hasBand = octets.flag();
    known.fullConfig = octets.flag() ? 1 : 0;
    const unsigned kinds = octets.number();
    known.extent = static_cast<OSUINT8>(kinds % 4);
    known.message = static_cast<OSUINT8>(kinds / 4 % 8);
    known.group = static_cast<OSUINT8>(kinds / 32 % 4);
    const unsigned others = octets.number();
    known.connectivity = static_cast<OSUINT8>(others % 5);
    known.range = static_cast<OSUINT8>(others / 5 % 4);
    known.duplex = static_cast<OSUINT8>(others / 20 % 4);
    known.band = static_cast<OSUINT16>(hasBand ? octets.number() + 256 * octets.number() : 0);
    if (hasCarriersDl)
    {
        known.numCarriersDl = static_cast<OSUINT8>(octets.number() % (maxSCSs + 1));
        known.carriersDl = reinterpret_cast<const SCS_SpecificCarrier*>(
            octets.raw(known.numCarriersDl * sizeof(SCS_SpecificCarrier) + 1));
    }
    if (hasCarriersUl)
    {
        known.numCarriersUl = static_cast<OSUINT8>(octets.number() % (maxSCSs + 1));
        known.carriersUl = reinterpret_cast<const SCS_SpecificCarrier*>(
            octets.raw(known.numCarriersUl * sizeof(SCS_SpecificCarrier) + 1));
    }
    known.initialDownlinkBwp = hasDownlink ? octets.value<BWP>(nr_rrc::type_BWP) : nullptr;
    known.initialUplinkBwp = hasUplink ? octets.value<BWP>(nr_rrc::type_BWP) : nullptr;
    if (hasBlocks)
    {
        static constexpr OSUINT8 lengths[] = {4, 8, 64};
        known.ssbPositionsBits = lengths[octets.number() % std::size(lengths)];
        known.ssbPositionsInBurst = octets.raw((known.ssbPositionsBits + 7U) / 8);
    }
    known.typeAPosition = hasTypeA ? octets.raw<OSUINT32>() : nullptr;
    known.coreset0 = hasCoreset0 ? octets.raw<ControlResourceSetZero>() : nullptr;
    known.tdd = hasTdd ? octets.value<TDD_UL_DL_ConfigCommon>(nr_rrc::type_TDD_UL_DL_ConfigCommon) : nullptr;
    known.rachCommon = hasRach ? octets.value<RACH_ConfigCommon>(nr_rrc::type_RACH_ConfigCommon) : nullptr;
    known.bearers = hasBearers ? octets.raw<RrcRuleBearers>() : nullptr;
    if (hasMeas)
    {
        known.hasMeas = 1;
        known.numMeasObjects = static_cast<OSUINT8>(octets.number() % 4);
        known.measObjects = reinterpret_cast<const RrcRuleMeasObject*>(
            octets.raw(known.numMeasObjects * sizeof(RrcRuleMeasObject) + 1));
    }
    known.otherGroupCells = hasOthers ? octets.raw<OSUINT32>() : nullptr;
    known.capabilities = hasCapabilities ? octets.raw<RrcRuleCapabilities>() : nullptr;
    known.previous = hasPrevious ? octets.value<CellGroupConfig>(*asn1Type_CellGroupConfig()) : nullptr;
    return known;
}

// A context whose heap has to be as it was.
class HeapMark
{
public:
    explicit HeapMark(const OSCTXT& ctxt) : heap_(ctxt.heap), next_(heap_.next), block_(heap_.blocks) {}

    // A block that was added stays.
    void expectGivenBack() const
    {
        require(heap_.blocks != block_ || heap_.next == next_, "the heap is not given back");
    }

private:
    const decltype(OSCTXT::heap)& heap_;
    const OSOCTET* next_;
    const RtxHeapBlock* block_;
};

// The sum of all lines, which two runs have alike.
inline void addLine(uint64_t& sum, const char* line, size_t length)
{
    for (size_t i = 0; i < length; ++i)
    {
        sum = sum * 31 + static_cast<unsigned char>(line[i]);
    }
}

// What a call with `previous` may return without telling anything: what rtxApply says.
inline bool isRefused(const OSCTXT& ctxt, const RrcRuleContext& known, int64_t status)
{
    return known.previous != nullptr && status < 0 && status == ctxt.error.status && status != RTX_E_HEAP;
}

// Reads the context and the message behind it, which `check(ctxt, tree, known)` gets where it is one.
template <typename Check>
void withContext(const uint8_t* data, size_t size, const Check& check)
{
    OSCTXT ctxt;
    require(rtxInitContext(&ctxt) == RTX_OK, "no context");
    Octets octets(ctxt, data, size);
    const RrcRuleContext known = contextOf(octets);
    if (const auto* const tree = octets.value<CellGroupConfig>(*asn1Type_CellGroupConfig()))
    {
        check(ctxt, *tree, known);
    }
    rtFreeContext(&ctxt);
}

} // namespace fuzz

#endif
