// Decodes the input, fills a record from the tree and composes that: where the record is said to hold the whole tree,
// its octets are the tree's, and in any case it composes.
#include "decoded.h"
#include "rrcDecompose.h"

using fuzz::require;

namespace
{

constexpr size_t capacity = 1U << 20; // an empty element may become a large one, with members that are always sent

int format(void* arg, const RrcUnsaid* unsaid)
{
    require(rrcUnsaidFormat(unsaid, nullptr, 0) != 0, "something is left out without a line");
    ++*static_cast<INT32*>(arg);
    return 0;
}

std::vector<OSOCTET> composed(const RrcCellGroupCfg_t& record)
{
    std::vector<OSOCTET> octets(capacity);
    size_t length = 0;
    char error[512];
    const INT32 status = rrcEncodeCellGroupCfg(&record, octets.data(), octets.size(), &length, error, sizeof error);
    if (status != RRC_COMPOSE_OK)
    {
        (void)std::fprintf(stderr, "%s\n", error);
    }
    require(status == RRC_COMPOSE_OK, "the record does not compose");
    octets.resize(length);
    return octets;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    OSCTXT ctxt;
    CellGroupConfig tree;
    const auto input = std::make_unique<OSOCTET[]>(size); // of its exact size, so that reading past it is found
    std::copy_n(data, size, input.get());
    require(rtxInitContext(&ctxt) == RTX_OK, "no context");
    require(pu_setBuffer(&ctxt, input.get(), size, 0) == RTX_OK, "no buffer");
    const bool whole = asn1PD_CellGroupConfig(&ctxt, &tree) == RTX_OK;
    INT32 told = 0;
    // What stopped halfway is no valid tree.
    const INT32 number = rrcDecomposeCellGroupCfg(&ctxt, &tree, record.get(), format, &told);
    require(number == told, "another number than was told");
    if (whole)
    {
        const std::vector<OSOCTET> octets = composed(*record);
        std::vector<OSOCTET> again(capacity);
        require(pu_setBuffer(&ctxt, again.data(), again.size(), 0) == RTX_OK, "no buffer to encode to");
        require(asn1PE_CellGroupConfig(&ctxt, &tree) == RTX_OK, "what was decoded is not encoded");
        again.resize(pu_getMsgLen(&ctxt));
        require((told == 0) == (octets == again), "the record and what was told disagree");
    }
    rtFreeContext(&ctxt);
    return 0;
}
