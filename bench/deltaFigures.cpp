// What a delta saves and what it costs, as the table of README.md.
#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCompose.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "grown.h"
#include "leastTime.h"
#include "secondaryCells.h"
#include "typicalCall.h"

namespace
{

constexpr int calls = 2000;

using Record = std::unique_ptr<RrcCellGroupCfg_t>;

[[noreturn]] void fail(const char* what)
{
    (void)std::fprintf(stderr, "deltaFigures: %s\n", what);
    std::abort();
}

Record copyOf(const Record& record)
{
    return std::make_unique<RrcCellGroupCfg_t>(*record);
}

template <typename Fill>
Record filled(Fill fill)
{
    auto record = std::make_unique<RrcCellGroupCfg_t>();
    fill(*record);
    return record;
}

// A context that lives on memory of its own, so that no call asks malloc.
class Context
{
public:
    Context()
    {
        rtxInitContext(&ctxt);
        rtxMemHeapSetMemory(&ctxt, memory_.data(), memory_.size());
    }
    ~Context()
    {
        rtFreeContext(&ctxt);
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    OSCTXT ctxt;

private:
    static inline std::vector<OSOCTET> memory_ = std::vector<OSOCTET>(std::size_t{4} << 20);
};

CellGroupConfig* composed(OSCTXT& ctxt, const Record& record)
{
    CellGroupConfig* tree = nullptr;
    if (rrcComposeCellGroupTree(&ctxt, record.get(), &tree) != 0)
    {
        fail("compose");
    }
    return tree;
}

std::size_t encoded(OSCTXT& ctxt, const CellGroupConfig& tree)
{
    OSOCTET buffer[8192];
    pu_setBuffer(&ctxt, buffer, sizeof buffer, 0);
    if (asn1PE_CellGroupConfig(&ctxt, &tree) != 0)
    {
        fail("encode");
    }
    return pu_getMsgLen(&ctxt);
}

void row(const char* what, const Record& prev, const Record& next)
{
    double compose = 0;
    double diff = 0;
    double apply = 0;
    std::size_t full = 0;
    std::size_t delta = 0;
    const auto least = [](double& sum, double time)
    {
        sum = sum == 0 || time < sum ? time : sum;
    };
    for (int i = 0; i < calls; ++i)
    {
        Context context;
        OSCTXT& ctxt = context.ctxt;
        CellGroupConfig* wanted = nullptr;
        least(compose, bench::leastTime(1,
                                        [&]
                                        {
                                            wanted = composed(ctxt, next);
                                            full = encoded(ctxt, *wanted);
                                        }));
        const CellGroupConfig* const held = composed(ctxt, prev);
        CellGroupConfig made;
        int result = 0;
        least(diff, bench::leastTime(
                        1, [&] { result = asn1Diff_CellGroupConfig(&ctxt, held, wanted, nullptr, &made, nullptr); }));
        if (result < 0)
        {
            fail("diff");
        }
        delta = result == RTX_DELTA_NOTHING ? 0 : encoded(ctxt, made);
        if (delta != 0)
        {
            CellGroupConfig after;
            least(apply, bench::leastTime(1, [&] { result = asn1Apply_CellGroupConfig(&ctxt, held, &made, &after); }));
            if (rtxDeltaHolds(&ctxt, asn1Type_CellGroupConfig(), held, &made, wanted) != 1)
            {
                fail("the delta does not bring the change");
            }
        }
    }
    std::printf("| %s | %zu | %zu | %.1f | %.1f | %.1f |\n", what, full, delta, compose / 1000, diff / 1000,
                apply / 1000);
}

} // namespace

int main()
{
    const Record call = filled(typicalCall);
    const Record cells = filled(secondaryCells);

    const Record bearer = copyOf(call);
    if (!bench::addCopy(bearer->rlcBearerAddModNum, bearer->rlcBearerCfg, &RrcRlcBearerCfg_t::lchId, 1, 4))
    {
        fail("no room for a bearer");
    }
    bearer->rlcBearerCfg[bearer->rlcBearerAddModNum - 1].rbId = 2;
    const Record report = copyOf(call);
    report->spCellCfg.spCellDedicated.csiMeasCfg.csiReportCfg[0].ReportCfgType_n.periodic.reportSlotCfg.offset = 19;
    const Record fewer = copyOf(cells);
    --fewer->sCellAddModNum;

    std::puts("| Change | Octets of all | Octets of the delta | compose and encode all, µs | `rtxDiff`, µs | "
              "`rtxApply`, µs |\n|---|---|---|---|---|---|");
    row("none, typical call", call, call);
    row("typical call, one RLC bearer added", call, bearer);
    row("typical call, one CSI report changed", call, report);
    row("three SCells, one released", cells, fewer);
    return 0;
}
