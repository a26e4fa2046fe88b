// What a check of the rules costs beside composing and encoding the message, as the table of README.md.
#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRules.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "grown.h"
#include "heap.h"
#include "leastTime.h"
#include "oneBearer.h"
#include "releases.h"
#include "secondaryCells.h"
#include "typicalCall.h"

namespace
{

constexpr int calls = 3000;

[[noreturn]] void fail(const char* what)
{
    (void)std::fprintf(stderr, "ruleFigures: %s\n", what);
    std::abort();
}

// The octets of the context's newest block that are handed out.
size_t handedOut(const OSCTXT& ctxt, const std::vector<OSOCTET>& memory)
{
    return static_cast<size_t>(ctxt.heap.next - memory.data());
}

int64_t checked(OSCTXT& ctxt, const CellGroupConfig& tree, const RrcRuleContext& known)
{
    const int64_t findings = rrcCheckRules(&ctxt, &tree, &known, nullptr, nullptr);
    if (findings < 0)
    {
        fail("check");
    }
    return findings;
}

void row(const char* name, void (*example)(RrcCellGroupCfg_t&), std::size_t grownTo = 0)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    example(*record);
    std::vector<OSOCTET> octets(8192);
    Mbuf_t out = {0, octets.data()};
    const auto entry = [&]
    {
        if (rrcComposeCellGroupCfg(record.get(), &out) != 0)
        {
            fail("compose");
        }
    };
    for (entry(); out.bufLen < grownTo; entry())
    {
        if (!bench::grow(*record))
        {
            fail("the message cannot grow");
        }
    }

    std::vector<OSOCTET> memory(std::size_t{8} << 20);
    OSCTXT ctxt;
    rtxInitContext(&ctxt);
    rtxMemHeapSetMemory(&ctxt, memory.data(), memory.size());
    CellGroupConfig* tree = nullptr;
    if (rrcComposeCellGroupTree(&ctxt, record.get(), &tree) != 0)
    {
        fail("compose the tree");
    }
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    RrcRuleContext later{};
    later.previous = tree;

    const std::size_t before = handedOut(ctxt, memory);
    const std::size_t mallocs = bench::heap.calls;
    const int64_t findings = checked(ctxt, *tree, known);
    if (handedOut(ctxt, memory) != before || bench::heap.calls != mallocs)
    {
        fail("a check takes something and keeps it");
    }
    // The least heap with which it ends well.
    std::size_t least = 0;
    for (std::size_t step = std::size_t{1} << 22; step >= 16; step /= 2)
    {
        rtxMemHeapSetLimit(&ctxt, least + step);
        least += rrcCheckRules(&ctxt, tree, &known, nullptr, nullptr) == RTX_E_HEAP ? step : 0;
    }
    rtxMemHeapSetLimit(&ctxt, memory.size());

    const double composing = bench::leastTime(calls, entry);
    const double checking = bench::leastTime(calls, [&] { checked(ctxt, *tree, known); });
    const double applying = bench::leastTime(calls, [&] { checked(ctxt, *tree, later); });
    rtFreeContext(&ctxt);
    std::printf("| %s | %u | %.1f | %.1f | %.1f | %.1f | %.1f | %zu |\n", name, static_cast<unsigned>(out.bufLen),
                composing / 1000, checking / 1000, checking / composing, applying / 1000,
                static_cast<double>(least + 16) / 1024, static_cast<std::size_t>(findings));
}

} // namespace

int main()
{
    std::printf("%u rules.\n\n", rrcRuleCount());
    std::puts("| Message | Octets | `entry`, µs | check, µs | over `entry` | applied to itself and checked, µs | "
              "heap of the check, KiB | findings |\n|---|---|---|---|---|---|---|---|");
    row("`one_bearer`", oneBearer);
    row("`releases`", releases);
    row("`typical_call`", typicalCall);
    row("`secondary_cells`", secondaryCells);
    row("`grown_2500`", secondaryCells, 2500);
    row("`grown_8000`", secondaryCells, 8000);
    return 0;
}
