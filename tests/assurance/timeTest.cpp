// What messages made to be dear take at most: time and heap for each octet, and both grow as the message does.
#include "calls.h"
#include "memory.h"

#include "Asn/hostileTree.h"
#include "bench/leastTime.h"
#include "rrcRules.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace
{

using test::Octets;
using test::unknownAdditions;

// Secondary cells with all that takes the most heap for its bits.
Octets cells(size_t count, double price)
{
    OSCTXT context;
    rtxInitContext(&context);
    test::DearestTree dear(context, price);
    CellGroupConfig tree{};
    tree.m.sCellToAddModListPresent = 1;
    for (size_t i = 0; i < count; ++i)
    {
        auto* const cell = test::make<SCellConfig>(context);
        dear.fill(nr_rrc::type_SCellConfig, cell);
        cell->sCellIndex = static_cast<OSUINT8>(i + 1);
        test::append(context, tree.sCellToAddModList, cell);
    }
    Octets octets = test::encoded(context, tree, size_t{1} << 22);
    rtFreeContext(&context);
    return octets;
}

// Messages, each twice as long as the one before it.
struct Family
{
    const char* name;
    std::vector<Octets> messages;
};

std::vector<Family> families()
{
    std::vector<Family> all = {{"unknown additions of 1 octet", {}},
                               {"unknown additions of 17 octets", {}},
                               {"large secondary cells", {}},
                               {"dear secondary cells", {}}};
    for (const size_t factor : {1U, 2U, 4U, 8U})
    {
        all[0].messages.push_back(unknownAdditions(factor * 12 * 1024, 1).first);
        all[1].messages.push_back(unknownAdditions(factor * 12 * 1024, 17).first);
        all[2].messages.push_back(cells(factor, 8.0));
        all[3].messages.push_back(cells(factor * 3, 30.0));
    }
    return all;
}

// A decoded message.
struct Tree
{
    explicit Tree(const Octets& octets) : from(octets), again(octets.size() + 64)
    {
        rtxInitContext(&context);
        decode();
        EXPECT_EQ(decodeTo(other), RTX_OK);
    }
    ~Tree()
    {
        rtFreeContext(&context);
    }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    void decode()
    {
        rtFreeContext(&context);
        EXPECT_EQ(decodeTo(value), RTX_OK);
    }

    int decodeTo(CellGroupConfig& to)
    {
        (void)pu_setBuffer(&context, from.data(), from.size(), 0);
        return asn1PD_CellGroupConfig(&context, &to);
    }

    Octets from;
    Octets again;
    OSCTXT context;
    CellGroupConfig value;
    CellGroupConfig other; // the same once more
};

void drop(void*, const char*) {}

// Each in ns for an octet of the message, of an optimised build: some hundred times what it takes.
constexpr struct
{
    const char* name;
    void (*run)(Tree& tree);
    double most;
} works[] = {
    {"asn1PD", [](Tree& tree) { tree.decode(); }, 4000},
    {"asn1PE",
     [](Tree& tree)
     {
         (void)pu_setBuffer(&tree.context, tree.again.data(), tree.again.size(), 0);
         EXPECT_EQ(asn1PE_CellGroupConfig(&tree.context, &tree.value), RTX_OK);
     },
     4000},
    {"rtxCheck",
     [](Tree& tree)
     { EXPECT_GE(rtxCheck(&tree.context, asn1Type_CellGroupConfig(), &tree.value, nullptr, nullptr), 0); },
     4000},
    {"rtxEqual",
     [](Tree& tree) { EXPECT_EQ(rtxEqual(&tree.context, asn1Type_CellGroupConfig(), &tree.value, &tree.other), 1); },
     8000},
    {"rtxCompare",
     [](Tree& tree)
     {
         EXPECT_EQ(
             rtxCompare(&tree.context, nullptr, asn1Type_CellGroupConfig(), &tree.value, &tree.other, nullptr, nullptr),
             0);
     },
     8000},
    {"rtxToJson",
     [](Tree& tree)
     { (void)rtxToJson(&tree.context, asn1Type_CellGroupConfig(), &tree.value, RTX_COMPACT, drop, nullptr); },
     20000},
    {"rtxToFlat",
     [](Tree& tree) { (void)rtxToFlat(&tree.context, asn1Type_CellGroupConfig(), &tree.value, drop, nullptr); }, 40000},
    {"rrcCheckRules",
     [](Tree& tree) { EXPECT_GE(rrcCheckRules(&tree.context, &tree.value, nullptr, nullptr, nullptr), 0); }, 200000}};

double timeOf(void (*run)(Tree& tree), Tree& tree)
{
    return bench::leastTime(5, [&] { run(tree); });
}

TEST(Time, of_each_octet_is_bounded_and_grows_as_the_message)
{
    // Blocks stay with malloc: to have the kernel clear pages at each call is not the decoder's work.
    ASSERT_EQ(mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024), 1);
    ASSERT_EQ(mallopt(M_TRIM_THRESHOLD, 256 * 1024 * 1024), 1);
    const std::vector<Family> all = families();
    std::printf("| Call | message | octets | ns for each | twice as long |\n|---|---|--:|--:|--:|\n");
    for (const auto& work : works)
    {
        for (const Family& family : all)
        {
            std::vector<double> times;
            for (const Octets& octets : family.messages)
            {
                Tree tree(octets);
                times.push_back(timeOf(work.run, tree));
                EXPECT_LT(times.back() / static_cast<double>(octets.size()), work.most * TIME_FACTOR)
                    << work.name << ", " << family.name;
            }
            const size_t last = times.size() - 1;
            const double growth = std::cbrt(times[last] / times[0]); // of a message twice as long, on average
            EXPECT_LT(growth, 3) << work.name << ", " << family.name;
            std::printf("| `%s` | %s | %zu | %.1f | %.2f |\n", work.name, family.name, family.messages[last].size(),
                        times[last] / static_cast<double>(family.messages[last].size()), growth);
        }
    }
}

// The longest time and the most heap of a call on any of the inputs.
class CostStage : public assurance::Stage
{
public:
    void run(OSCTXT* /*context*/, const std::function<void()>& call) override
    {
        const size_t before = assurance::memory.used;
        assurance::memory.peak = before;
        time = std::max(time, bench::leastTime(1, call));
        heap = std::max(heap, assurance::memory.peak - before);
    }

    double time = 0; // ns
    size_t heap = 0; // octets
};

TEST(Record, takes_bounded_time_and_heap)
{
    constexpr double mostTime = 50e6; // ns
    constexpr size_t mostHeap = 16 << 20;
    const std::vector<assurance::Input> inputs = assurance::inputs(RECORDS);
    std::printf("| Call | longest, us | most heap, octets |\n|---|--:|--:|\n");
    for (const assurance::Call& call : assurance::calls())
    {
        CostStage cost;
        for (const assurance::Input& input : inputs)
        {
            (void)resultOf(call, input); // what is bound at the first call
            (void)resultOf(call, input, cost);
        }
        std::printf("| `%s` | %.1f | %zu |\n", call.name, cost.time / 1000, cost.heap);
        EXPECT_LT(cost.time, mostTime * TIME_FACTOR) << call.name;
        EXPECT_LT(cost.heap, mostHeap) << call.name;
    }
}

// The context's blocks, from malloc.
TEST(Heap, of_each_octet_is_bounded_and_grows_as_the_message)
{
    constexpr double mostForAnOctet = 2000; // of long messages; a short one of empty cells takes more for each
    constexpr size_t ofAnyMessage = 1 << 20;
    std::printf("| Message | octets | heap | for each octet |\n|---|--:|--:|--:|\n");
    for (const Family& family : families())
    {
        for (const Octets& octets : family.messages)
        {
            const size_t before = assurance::memory.used;
            assurance::memory.peak = before;
            size_t handedOut = 0;
            {
                Octets from = octets;
                assurance::memory.peak = assurance::memory.used;
                const size_t own = assurance::memory.used;
                OSCTXT context;
                CellGroupConfig value;
                rtxInitContext(&context);
                (void)pu_setBuffer(&context, from.data(), from.size(), 0);
                EXPECT_EQ(asn1PD_CellGroupConfig(&context, &value), RTX_OK);
                handedOut = test::handedOut(context);
                const size_t taken = assurance::memory.peak - own;
                EXPECT_GE(taken, handedOut);
                EXPECT_LE(taken, 4 * handedOut + 128 * 1024) << family.name; // each block twice as large as the last
                rtFreeContext(&context);
            }
            EXPECT_EQ(assurance::memory.used, before) << family.name;
            const double each = static_cast<double>(handedOut) / static_cast<double>(octets.size());
            EXPECT_TRUE(each < mostForAnOctet || handedOut < ofAnyMessage) << family.name << ": " << each;
            std::printf("| %s | %zu | %zu | %.1f |\n", family.name, octets.size(), handedOut, each);
        }
    }
}

} // namespace
