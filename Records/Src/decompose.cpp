// From an element tree back to the record, and what the record does not say of it.
#include "rrcDecompose.h"

#include <algorithm>
#include <cinttypes>
#include <cstring>

#include "NR-RRC-Definitions.h"
#include "recordFill.h"
#include "rrcCodec/rrcCompose.h"
#include "rtxHeap.h"
#include "rtxLine.h"
#include "rtxTree.h"

namespace decompose
{
namespace
{

using rtx::Type;

bool isRelease(const Type* type, const void* choice)
{
    return type != nullptr && type->setupRelease && choice != nullptr && rtx::load<OSUINT32>(choice) == 1;
}

RrcUnsaidReason_e reasonOf(const RtxDifference& difference)
{
    switch (difference.kind)
    {
    case RTX_D_ONLY_A:
        return isRelease(difference.type, difference.a)                      ? RRC_UNSAID_RELEASE
               : difference.depth != 0 && difference.path[0].name == nullptr ? RRC_UNSAID_ENTRY
                                                                             : RRC_UNSAID_MEMBER;
    case RTX_D_ALTERNATIVE:
        return isRelease(difference.type, difference.a) ? RRC_UNSAID_RELEASE : RRC_UNSAID_MEMBER;
    case RTX_D_ONLY_B:
        return RRC_UNSAID_ADDED;
    case RTX_D_VALUE:
        return RRC_UNSAID_VALUE;
    case RTX_D_UNKNOWN:
        return RRC_UNSAID_LATER;
    default:
        return RRC_UNSAID_BROKEN;
    }
}

const char* wordsOf(OSINT32 reason)
{
    switch (reason)
    {
    case RRC_UNSAID_RELEASE:
        return "release, which no record says";
    case RRC_UNSAID_MEMBER:
        return "no record says it";
    case RRC_UNSAID_ENTRY:
        return "an entry that the record has no room for or cannot say";
    case RRC_UNSAID_VALUE:
        return "the record says another value";
    case RRC_UNSAID_ADDED:
        return "absent, and a record always says it";
    case RRC_UNSAID_LATER:
        return "of a later release";
    default:
        return "cannot be read";
    }
}

struct Teller
{
    RrcUnsaidSink sink;
    void* arg;
};

int tell(void* arg, const RtxDifference* difference)
{
    const auto& teller = *static_cast<const Teller*>(arg);
    const RrcUnsaid unsaid = {reasonOf(*difference), difference};
    return teller.sink(teller.arg, &unsaid);
}

// Whether both trees are sent as the same octets: the comparison, which says what is not, takes several times as long.
// What does not fit is not known to be the same.
bool encodeAlike(OSCTXT& ctxt, const CellGroupConfig& a, const CellGroupConfig& b)
{
    constexpr size_t capacity = 8192;
    auto* const octets = static_cast<OSOCTET*>(rtx::allocate(ctxt, 2 * capacity));
    size_t lengths[2] = {0, 0};
    for (unsigned i = 0; i < 2 && octets != nullptr; ++i)
    {
        OSCTXT encoder;
        (void)rtxInitContext(&encoder);
        encoder.heap = ctxt.heap; // only looked at, and the context keeps its buffer and its error
        (void)pu_setBuffer(&encoder, octets + i * capacity, capacity, 0);
        if (asn1PE_CellGroupConfig(&encoder, i == 0 ? &a : &b) != RTX_OK)
        {
            return false;
        }
        lengths[i] = pu_getMsgLen(&encoder);
    }
    return octets != nullptr && lengths[0] == lengths[1] && std::memcmp(octets, octets + capacity, lengths[0]) == 0;
}

} // namespace
} // namespace decompose

INT32 rrcDecomposeCellGroupCfg(OSCTXT* pAsnCxt, const CellGroupConfig* pCellGroupConfig,
                               RrcCellGroupCfg_t* pRrcCellGroupCfg, RrcUnsaidSink sink, void* arg)
{
    if (pAsnCxt == nullptr || pCellGroupConfig == nullptr || pRrcCellGroupCfg == nullptr)
    {
        return RRC_COMPOSE_E_ARGUMENT;
    }
    records::fillCellGroup(*pAsnCxt, *pCellGroupConfig, *pRrcCellGroupCfg);

    const rtx::HeapMark mark(*pAsnCxt);
    CellGroupConfig* pComposed = nullptr;
    const INT32 status = rrcComposeCellGroupTree(pAsnCxt, pRrcCellGroupCfg, &pComposed);
    if (status != RRC_COMPOSE_OK)
    {
        return status;
    }
    if (decompose::encodeAlike(*pAsnCxt, *pCellGroupConfig, *pComposed))
    {
        return 0;
    }
    decompose::Teller teller = {sink, arg};
    const int64_t told = asn1Compare_CellGroupConfig(pAsnCxt, nullptr, pCellGroupConfig, pComposed,
                                                     sink == nullptr ? nullptr : decompose::tell, &teller);
    return told < 0 ? INT32{RRC_COMPOSE_E_MEMORY} : static_cast<INT32>(std::min<int64_t>(told, INT32_MAX));
}

size_t rrcUnsaidFormat(const RrcUnsaid* unsaid, char* text, size_t size)
{
    rtx::Line line(text, size);
    const auto element = [&](const RtxDifferenceStep& step)
    {
        if (step.identity != nullptr)
        {
            rtx::append(line, "[%s %" PRId64 "]", step.identity, step.id);
        }
        else
        {
            rtx::append(line, "[%" PRIu32 "]", step.indexA != RTX_NO_INDEX ? step.indexA : step.indexB);
        }
    };
    rtx::appendPath(line, *unsaid->difference, element);
    rtx::append(line, ": %s", decompose::wordsOf(unsaid->reason));
    return line.length;
}
