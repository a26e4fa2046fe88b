// From trees back to records: what a record composes to comes back whole, and of any other tree everything that the
// record does not say is told.
#include "rrcDecompose.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "../Asn/randomTree.h"
#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "records.h"
#include "vos_lib.h"

namespace
{

unsigned printed = 0;

} // namespace

extern "C" OSINT32 firstUnsaid(OSCTXT* pAsnCxt, const CellGroupConfig* pCellGroupConfig, RrcCellGroupCfg_t* pRecord);

// Stands in place of the platform's.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    ++printed;
    return 0;
}

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using Octets = std::vector<OSOCTET>;
using Lines = std::vector<std::string>;

int collect(void* arg, const RrcUnsaid* unsaid)
{
    std::string line(rrcUnsaidFormat(unsaid, nullptr, 0) + 1, '\0');
    EXPECT_EQ(rrcUnsaidFormat(unsaid, line.data(), line.size()), line.size() - 1);
    line.pop_back();
    static_cast<Lines*>(arg)->push_back(line);
    return 0;
}

// What comes of a record: its octets, or the line that refuses it.
Octets composed(const RrcCellGroupCfg_t& record)
{
    Octets octets(65536);
    size_t length = 0;
    char error[512] = "";
    const INT32 status = rrcEncodeCellGroupCfg(&record, octets.data(), octets.size(), &length, error, sizeof error);
    octets.resize(length);
    if (status != RRC_COMPOSE_OK)
    {
        octets.assign(error, error + std::strlen(error));
    }
    return octets;
}

std::string text(const Octets& octets)
{
    return {octets.begin(), octets.end()};
}

class Decompose : public testing::Test
{
protected:
    Decompose() : record_(std::make_unique_for_overwrite<RrcCellGroupCfg_t>())
    {
        // Whatever its memory held must not matter.
        std::mt19937 dirt(7);
        auto* const memory = reinterpret_cast<std::uint32_t*>(record_.get());
        std::generate(memory, memory + sizeof *record_ / sizeof *memory, dirt);
        EXPECT_EQ(rtxInitContext(&context_), RTX_OK);
    }

    ~Decompose() override
    {
        rtFreeContext(&context_);
    }

    // An empty context for the next tree.
    CellGroupConfig* cleared()
    {
        rtFreeContext(&context_);
        EXPECT_EQ(rtxInitContext(&context_), RTX_OK);
        tree_ = {};
        return &tree_;
    }

    const CellGroupConfig* decoded(const Octets& octets)
    {
        cleared();
        EXPECT_EQ(pu_setBuffer(&context_, const_cast<OSOCTET*>(octets.data()), octets.size(), 0), RTX_OK);
        EXPECT_EQ(asn1PD_CellGroupConfig(&context_, &tree_), RTX_OK);
        return &tree_;
    }

    // The tree's octets, or the line that refuses it.
    Octets encoded()
    {
        Octets octets(65536);
        EXPECT_EQ(pu_setBuffer(&context_, octets.data(), octets.size(), 0), RTX_OK);
        if (asn1PE_CellGroupConfig(&context_, &tree_) == RTX_OK)
        {
            octets.resize(pu_getMsgLen(&context_));
            return octets;
        }
        const size_t length = rtxErrFormat(&context_, nullptr, 0);
        octets.resize(length + 1);
        (void)rtxErrFormat(&context_, reinterpret_cast<char*>(octets.data()), octets.size());
        octets.pop_back();
        return octets;
    }

    Lines unsaid()
    {
        Lines lines;
        printed = 0;
        const INT32 number = rrcDecomposeCellGroupCfg(&context_, &tree_, record_.get(), collect, &lines);
        EXPECT_EQ(number, static_cast<INT32>(lines.size()));
        EXPECT_EQ(printed, 0U);
        return lines;
    }

    OSCTXT context_;
    CellGroupConfig tree_;
    std::unique_ptr<RrcCellGroupCfg_t> record_;
};

// Everything that a valid record can hold occurs.
TEST_F(Decompose, whatRecordsComposeToComesBack)
{
    const auto drawn = std::make_unique<RrcCellGroupCfg_t>();
    records::Chance chance(records::Chance::Ranges::kept);
    for (std::uint32_t seed = 1; seed <= records::shareOf(10000); ++seed)
    {
        chance.start(seed);
        records::draw(chance, *drawn);
        const Octets octets = composed(*drawn);
        decoded(octets);
        ASSERT_THAT(unsaid(), IsEmpty()) << "cell group " << seed;
        ASSERT_EQ(composed(*record_), octets) << "cell group " << seed;
    }
    EXPECT_THAT(chance.missing(), IsEmpty());
}

// The tree as composed, which holds what is not sent, too.
TEST_F(Decompose, composedTreesComeBack)
{
    const auto drawn = std::make_unique<RrcCellGroupCfg_t>();
    records::Chance chance(records::Chance::Ranges::kept);
    for (std::uint32_t seed = 1; seed <= 1000; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *drawn);
        cleared();
        CellGroupConfig* tree = nullptr;
        ASSERT_EQ(rrcComposeCellGroupTree(&context_, drawn.get(), &tree), RRC_COMPOSE_OK);
        tree_ = *tree;
        ASSERT_THAT(unsaid(), IsEmpty()) << "cell group " << seed;
        ASSERT_EQ(composed(*record_), composed(*drawn)) << "cell group " << seed;
    }
}

// What a record cannot say, each with its line.
class Unsaid : public Decompose
{
protected:
    Unsaid()
    {
        cleared();
        tree_.m.mac_CellGroupConfigPresent = 1;
        tree_.m.spCellConfigPresent = 1;
    }

    template <typename Element>
    Element* made()
    {
        void* const p = rtxMemHeapAlloc(&context_, sizeof(Element));
        EXPECT_NE(p, nullptr);
        return static_cast<Element*>(p);
    }

    template <typename Element, typename List>
    Element* appended(List& list)
    {
        auto* const node = made<OSRTDListNode>();
        auto* const element = made<Element>();
        node->data = element;
        rtxDListAppendNode(&list, node);
        return element;
    }
};

TEST_F(Unsaid, release)
{
    tree_.mac_CellGroupConfig.m.drx_ConfigPresent = 1;
    tree_.mac_CellGroupConfig.drx_Config.t = 1;
    EXPECT_THAT(unsaid(), ElementsAre("CellGroupConfig.mac-CellGroupConfig.drx-Config: release, which no record says"));
    EXPECT_EQ(record_->macCellGrpCfg.bitMask, 0);
}

TEST_F(Unsaid, membersThatAreNeverSent)
{
    tree_.spCellConfig.m.spCellConfigDedicatedPresent = 1;
    tree_.spCellConfig.spCellConfigDedicated.m.crossCarrierSchedulingConfigPresent = 1;
    EXPECT_THAT(unsaid(),
                ElementsAre("CellGroupConfig.spCellConfig.spCellConfigDedicated.crossCarrierSchedulingConfig: "
                            "no record says it"));
}

// Of a choice that cannot be said the optional member around it is left out.
TEST_F(Unsaid, alternativesThatAreNeverSent)
{
    tree_.spCellConfig.m.reconfigurationWithSyncPresent = 1;
    auto& sync = tree_.spCellConfig.reconfigurationWithSync;
    sync.m.spCellConfigCommonPresent = 1;
    sync.spCellConfigCommon.m.ssb_PositionsInBurstPresent = 1;
    sync.spCellConfigCommon.ssb_PositionsInBurst.t = T_ServingCellConfigCommon_ssb_PositionsInBurst_longBitmap;
    EXPECT_THAT(unsaid(), ElementsAre("CellGroupConfig.spCellConfig.reconfigurationWithSync.spCellConfigCommon."
                                      "ssb-PositionsInBurst: no record says it"));
    EXPECT_EQ(record_->spCellCfg.recfgWithSync.spCellConfigCommon.bitMask, 0);
}

TEST_F(Unsaid, entriesWithoutRoom)
{
    tree_.m.sCellToAddModListPresent = 1;
    for (unsigned i = 1; i <= 4; ++i)
    {
        appended<SCellConfig>(tree_.sCellToAddModList)->sCellIndex = static_cast<OSUINT8>(i);
    }
    EXPECT_THAT(unsaid(),
                ElementsAre("CellGroupConfig.sCellToAddModList[sCellIndex 4]: an entry that the record has no "
                            "room for or cannot say"));
    EXPECT_EQ(record_->sCellAddModNum, 3);
}

TEST_F(Unsaid, whatIsAlwaysSent)
{
    tree_.spCellConfig.m.rlf_TimersAndConstantsPresent = 1;
    tree_.spCellConfig.rlf_TimersAndConstants.t = 2;
    tree_.spCellConfig.rlf_TimersAndConstants.u.setup = made<RLF_TimersAndConstants>();
    EXPECT_THAT(unsaid(),
                ElementsAre("CellGroupConfig.spCellConfig.rlf-TimersAndConstants.setup.t311-v1530: absent, and "
                            "a record always says it"));
}

TEST_F(Unsaid, laterReleases)
{
    auto* const open = appended<ASN1OpenType>(tree_.extElem1);
    open->numocts = 1;
    open->data = made<OSOCTET>();
    EXPECT_THAT(unsaid(), ElementsAre("CellGroupConfig.extElem1[0]: of a later release"));
}

TEST_F(Unsaid, brokenTrees)
{
    static RLF_TimersAndConstants elsewhere;
    tree_.spCellConfig.m.rlf_TimersAndConstantsPresent = 1;
    tree_.spCellConfig.rlf_TimersAndConstants.t = 2;
    tree_.spCellConfig.rlf_TimersAndConstants.u.setup = &elsewhere;
    const Lines lines = unsaid();
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(record_->spCellCfg.bitMask, 0);
}

TEST_F(Unsaid, sinkEndsIt)
{
    tree_.mac_CellGroupConfig.m.drx_ConfigPresent = 1;
    tree_.mac_CellGroupConfig.drx_Config.t = 1;
    tree_.mac_CellGroupConfig.m.phr_ConfigPresent = 1;
    tree_.mac_CellGroupConfig.phr_Config.t = 1;
    EXPECT_EQ(rrcDecomposeCellGroupCfg(&context_, &tree_, record_.get(), nullptr, nullptr), 2);
    unsigned calls = 0;
    const auto end = [](void* arg, const RrcUnsaid*)
    {
        ++*static_cast<unsigned*>(arg);
        return 1;
    };
    EXPECT_EQ(rrcDecomposeCellGroupCfg(&context_, &tree_, record_.get(), end, &calls), 1);
    EXPECT_EQ(calls, 1U);
}

TEST_F(Unsaid, calledFromC)
{
    EXPECT_EQ(firstUnsaid(&context_, &tree_, record_.get()), 0);
    tree_.mac_CellGroupConfig.m.drx_ConfigPresent = 1;
    tree_.mac_CellGroupConfig.drx_Config.t = 1;
    EXPECT_EQ(firstUnsaid(&context_, &tree_, record_.get()), RRC_UNSAID_RELEASE);
}

TEST_F(Unsaid, nullArguments)
{
    EXPECT_EQ(rrcDecomposeCellGroupCfg(nullptr, &tree_, record_.get(), nullptr, nullptr), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_EQ(rrcDecomposeCellGroupCfg(&context_, nullptr, record_.get(), nullptr, nullptr), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_EQ(rrcDecomposeCellGroupCfg(&context_, &tree_, nullptr, nullptr, nullptr), RRC_COMPOSE_E_ARGUMENT);
}

// The record is filled all the same.
TEST_F(Unsaid, exhaustedMemory)
{
    tree_.cellGroupId = 3;
    rtxMemHeapSetLimit(&context_, 0);
    EXPECT_EQ(rrcDecomposeCellGroupCfg(&context_, &tree_, record_.get(), nullptr, nullptr), RRC_COMPOSE_E_MEMORY);
    EXPECT_EQ(record_->cellGroupId, 3);
}

// What the call takes of the heap it gives back.
TEST_F(Unsaid, heapIsGivenBack)
{
    made<OSOCTET>();
    const OSOCTET* const next = context_.heap.next;
    EXPECT_THAT(unsaid(), IsEmpty());
    EXPECT_EQ(context_.heap.next, next);
}

struct Counts
{
    unsigned silent = 0;
    unsigned told = 0;
};

// Where nothing is told, the octets are the same, or the same line refuses both. Where something is, the record
// composes all the same.
class AnyTree : public Decompose
{
protected:
    void check(Counts& counts, bool valid = true)
    {
        const Lines lines = unsaid();
        const Octets octets = composed(*record_);
        if (lines.empty())
        {
            ++counts.silent;
            EXPECT_EQ(octets, encoded());
        }
        else
        {
            ++counts.told;
            EXPECT_TRUE(!valid || text(octets).compare(0, 15, "CellGroupConfig") != 0) << lines.front() << "\n"
                                                                                       << text(octets);
        }
    }

    // Random records, whose trees some change befalls.
    template <typename Befall>
    Counts checkTreesOfRecords(bool valid, const Befall& befall)
    {
        Counts counts;
        const auto drawn = std::make_unique<RrcCellGroupCfg_t>();
        records::Chance chance(records::Chance::Ranges::kept);
        for (std::uint32_t seed = 1; seed <= records::shareOf(2000) && !HasFailure(); ++seed)
        {
            SCOPED_TRACE(seed);
            chance.start(seed);
            records::draw(chance, *drawn);
            decoded(composed(*drawn));
            test::RandomTree random(context_, seed);
            befall(random);
            check(counts, valid);
        }
        return counts;
    }
};

TEST_F(AnyTree, nothingIsLeftOutInSilence)
{
    Counts counts;
    for (std::uint64_t seed = 1; seed <= records::shareOf(20000) && !HasFailure(); ++seed)
    {
        SCOPED_TRACE(seed);
        test::RandomTree::Options options;
        options.budget = static_cast<unsigned>(seed % 100 * (seed % 7));
        options.unknown = seed % 2 != 0;
        cleared();
        test::RandomTree(context_, seed, options).fill(nr_rrc::type_CellGroupConfig, &tree_);
        check(counts);
    }
    EXPECT_GT(counts.silent, records::shareOf(5000));
    EXPECT_GT(counts.told, records::shareOf(5000));
}

TEST_F(AnyTree, changedTreesOfRecords)
{
    const Counts counts = checkTreesOfRecords(
        true, [this](test::RandomTree& random)
        { random.change(nr_rrc::type_CellGroupConfig, &tree_, 1 + static_cast<unsigned>(random.below(3))); });
    EXPECT_GT(counts.silent, records::shareOf(200));
    EXPECT_GT(counts.told, records::shareOf(200));
}

// The sanitizers look on.
TEST_F(AnyTree, spoiltTreesOfRecords)
{
    const Counts counts = checkTreesOfRecords(
        false, [this](test::RandomTree& random)
        { random.spoil(nr_rrc::type_CellGroupConfig, &tree_, 1 + static_cast<unsigned>(random.below(3))); });
    EXPECT_GT(counts.silent, records::shareOf(200));
    EXPECT_GT(counts.told, records::shareOf(200));
}

} // namespace
