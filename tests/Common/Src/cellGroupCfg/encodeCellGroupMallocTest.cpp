// What happens when malloc fails: the careful calls never give less than the record's message, and with memory of the
// caller's they do not ask.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "oneBearer.h"
#include "records.h"
#include "releases.h"
#include "rrcCodec/rrcCompose.h"
#include "secondaryCells.h"
#include "vos_lib.h"

namespace
{

// The call of malloc that fails, and all behind it; the first is 1.
constexpr unsigned never = UINT_MAX;
unsigned failing = never;
unsigned calls = 0;

unsigned lines = 0; // printed about failures

using Octets = std::vector<UINT8>;

struct Result
{
    INT32 status = 0;
    Octets octets;
    char error[512] = {};
};

// Runs a call while malloc fails from its n-th call on.
template <typename Call>
Result whileFailing(unsigned n, Call call)
{
    Result result;
    Octets octets(8192);
    size_t length = 0;
    calls = 0;
    lines = 0;
    failing = n;
    result.status = call(octets, length, result);
    failing = never;
    octets.resize(length);
    result.octets = octets;
    return result;
}

Result entry(RrcCellGroupCfg_t& record, unsigned n = never)
{
    return whileFailing(n,
                        [&](Octets& octets, size_t& length, Result&)
                        {
                            Mbuf_t message = {0, octets.data()};
                            const INT32 status = rrcComposeCellGroupCfg(&record, &message);
                            length = message.bufLen;
                            return status;
                        });
}

Result encoded(const RrcCellGroupCfg_t& record, unsigned n)
{
    return whileFailing(n,
                        [&](Octets& octets, size_t& length, Result& result) {
                            return rrcEncodeCellGroupCfg(&record, octets.data(), octets.size(), &length, result.error,
                                                         sizeof result.error);
                        });
}

Result encodedInMemory(const RrcCellGroupCfg_t& record, Octets& memory)
{
    return whileFailing(1,
                        [&](Octets& octets, size_t& length, Result& result)
                        {
                            return rrcEncodeCellGroupCfgInMemory(&record, memory.data(), memory.size(), octets.data(),
                                                                 octets.size(), &length, result.error,
                                                                 sizeof result.error);
                        });
}

Result treeEncoded(const RrcCellGroupCfg_t& record, unsigned n)
{
    return whileFailing(n,
                        [&](Octets& octets, size_t& length, Result&)
                        {
                            OSCTXT context;
                            rtxInitContext(&context);
                            CellGroupConfig* tree;
                            INT32 status = rrcComposeCellGroupTree(&context, &record, &tree);
                            if (status == RRC_COMPOSE_OK)
                            {
                                pu_setBuffer(&context, octets.data(), octets.size(), 0);
                                status = asn1PE_CellGroupConfig(&context, tree);
                                length = pu_getMsgLen(&context);
                            }
                            rtFreeContext(&context);
                            return status;
                        });
}

// What takes the most memory for its octets, in records that were cleared as a whole.

// Each element that a downlink bandwidth part can have, as empty as it may be.
void fill(RrcBwpDlDedicated_t& bwp)
{
    bwp.bitMask =
        RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE;
    bwp.pdcchCfg.numSearchSpaceAddMod = 10;
    for (RrcSearchSpace_t& space : bwp.pdcchCfg.searchSpaceAddMod)
    {
        space.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
        space.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
    }
    bwp.pdschCfg.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC | RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC;
}

void fill(RrcBwpUlDedi_t& bwp)
{
    bwp.bitMask = RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE |
                  RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE | RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE;
    RrcPuschCfg_t& pusch = bwp.puschCfg;
    pusch.bitMask = RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE | RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE |
                    RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE;
    pusch.dmrsUlPuschTypeA.bitMask = RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE;
    pusch.dmrsUlPuschTypeB.bitMask = RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE;
    pusch.uciOnPusch.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
    pusch.uciOnPusch.presence =
        RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE | RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE;
}

void fill(RrcUlCfg_t& uplink)
{
    uplink.bitMask = RRC_UL_CFG_INIT_UL_BWP_PRESENCE | RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE;
    fill(uplink.initialUplinkBWP);
    uplink.numUlBwpAddMod = 4;
    for (RrcBwpUl_t& bwp : uplink.ulBwpAddMod)
    {
        bwp.bitMask = RRC_BWP_UL_DEDICATED_PRESENCE;
        fill(bwp.bwpDedicated);
    }
    RrcSrsCarrierSwitching_t& switching = uplink.carrierSwitching;
    switching.bitMask = RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE;
    switching.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE;
    switching.srsTpcPdcchGroup.typeA.num = 32;
    for (RrcSrsTpcPdcchCfg_t& group : switching.srsTpcPdcchGroup.typeA.cfg)
    {
        group.num = 4;
    }
}

void fill(RrcServingCellCfg_t& cell)
{
    cell.bitMask = RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE | RRC_SERVING_CELL_UL_CFG_PRESENCE |
                   RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE | RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
    fill(cell.initDlBwp);
    cell.numDlBwpAddMod = 4;
    for (RrcBwpDl_t& bwp : cell.dlBwp)
    {
        bwp.bitMask = RRC_BWP_DL_DEDICATED_PRESENCE;
        fill(bwp.bwpDedicated);
    }
    fill(cell.ulCfg);
    fill(cell.suppUlCfg);
    cell.csiMeasCfg.bitMask = RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
    cell.csiMeasCfg.aperiodicTriggerStateList.numState = 128;
    for (RrcCsiAperiodicTriggerState_t& state : cell.csiMeasCfg.aperiodicTriggerStateList.state)
    {
        state.numCfgInfo = 1;
        state.info[0].prsence = RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE;
        state.info[0].resourceForChannel.nzpCsiRs.resourceSet = 1;
    }
}

// Of all that a message can be filled with, combinations of one slot format each take the most: 288 octets for 25 bits.
void addCombinations(RrcServingCellCfg_t& cell, unsigned count)
{
    cell.bitMask |= RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE;
    cell.pdcchServingCellCfg.bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    RrcSlotFormatInd_t& indicator = cell.pdcchServingCellCfg.slotFormatInd;
    indicator.dciPayloadSize = 1;
    indicator.numSlotFormatCombAddMod = static_cast<UINT8>((count + 511) / 512);
    for (RrcSlotFormatCombPerCell_t& perCell : indicator.slotFormatCombAddMod)
    {
        const unsigned used = std::min(count, 512U);
        count -= used;
        perCell.numSlotFormatComb = static_cast<UINT16>(used);
        for (unsigned i = 0; i < used; ++i)
        {
            perCell.SlotFormatComb[i].numSlotFormat = 1;
        }
    }
}

// As many combinations as the message has room for.
unsigned addCombinationsUpTo8192Octets(RrcCellGroupCfg_t& record)
{
    unsigned least = 0;
    unsigned most = 16 * 512;
    while (least + 1 < most)
    {
        const unsigned count = (least + most) / 2;
        addCombinations(record.spCellCfg.spCellDedicated, count);
        (encoded(record, never).status == RRC_COMPOSE_OK ? least : most) = count;
    }
    addCombinations(record.spCellCfg.spCellDedicated, least);
    return least;
}

// Composed with RRC_COMPOSE_MEMORY_SIZE octets and no malloc: the message of the entry.
Octets expectEnoughMemory(RrcCellGroupCfg_t& record)
{
    static Octets memory(RRC_COMPOSE_MEMORY_SIZE);
    const Result expected = entry(record);
    const Result result = encodedInMemory(record, memory);
    EXPECT_EQ(expected.status, 0);
    EXPECT_EQ(result.status, RRC_COMPOSE_OK) << result.error;
    EXPECT_EQ(result.octets, expected.octets);
    EXPECT_EQ(calls, 0U) << "of malloc";
    return result.octets;
}

// The least memory with which a record is composed, to a KiB.
size_t memoryOf(const RrcCellGroupCfg_t& record)
{
    size_t least = 0;
    size_t enough = RRC_COMPOSE_MEMORY_SIZE;
    while (enough - least > 1024)
    {
        Octets memory((least + enough) / 2);
        (encodedInMemory(record, memory).status == RRC_COMPOSE_OK ? enough : least) = memory.size();
    }
    return enough;
}

void show(const char* what, size_t octets, size_t memory)
{
    std::printf("%s: %zu octets, of memory %zu\n", what, octets, memory);
}

} // namespace

extern "C" void* __real_malloc(size_t size);
extern "C" void* __wrap_malloc(size_t size);

extern "C" void* __wrap_malloc(size_t size)
{
    ++calls;
    return calls >= failing ? nullptr : __real_malloc(size);
}

// Stands in place of the platform's. A period that no message knows has a notice, also where another alternative wins:
// that is no failure.
INT32 VOS_Printf(const char* format, ...)
{
    char line[200];
    va_list args;
    va_start(args, format);
    const INT32 length = std::vsnprintf(line, sizeof line, format, args);
    va_end(args);
    const bool notice = std::strncmp(line, "No ", 3) == 0 || std::strncmp(line, "Have no ", 8) == 0;
    lines += notice ? 0 : 1;
    return length;
}

// The same: a red line is asked for here, and left out.
BOOL vos_info_print_filter_is_filtered(INT32 /*level*/, const char* /*name*/)
{
    ++lines;
    return 1;
}

TEST(EncodeCellGroupMalloc, NeverAsksWithMemoryOfTheCallers)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    for (const auto example : {oneBearer, reconfigurationWithSync, typicalCall, secondaryCells, releases})
    {
        example(*record);
        expectEnoughMemory(*record);
    }
    records::Chance chance(records::Chance::Ranges::kept);
    size_t most = 0;
    for (unsigned seed = 1; seed <= 1000; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        most = std::max(most, expectEnoughMemory(*record).size());
    }
    EXPECT_GT(most, 5000U);
}

TEST(EncodeCellGroupMalloc, TheMemorySufficesForTheDensestMessages)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    record->bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->spCellCfg.bitMask = RRC_SPCELLCFG_DEDICFG_PRESENCE;
    EXPECT_GT(addCombinationsUpTo8192Octets(*record), 2600U);
    Octets message = expectEnoughMemory(*record);
    EXPECT_GT(message.size(), 8188U);
    show("slot formats", message.size(), memoryOf(*record));

    fill(record->spCellCfg.spCellDedicated);
    record->sCellAddModNum = 3;
    for (UINT8 i = 0; i < 3; ++i)
    {
        RrcScellCfg_t& sCell = record->sCellAddMod[i];
        sCell.scellIdx = static_cast<UINT8>(i + 1);
        sCell.bitMask = RRC_SCELLADDMOD_CELLDEDI_PRESENCE;
        fill(sCell.sCellCfgDedi);
    }
    EXPECT_GT(addCombinationsUpTo8192Octets(*record), 500U);
    message = expectEnoughMemory(*record);
    EXPECT_GT(message.size(), 8188U);
    show("slot formats and all that is denser", message.size(), memoryOf(*record));
}

// The n-th call of malloc fails, and all behind it, n = 1, 2, 3 ... until there is no such call.
TEST(EncodeCellGroupMalloc, AFailureIsNeverAShorterMessage)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    records::Chance chance(records::Chance::Ranges::kept);
    unsigned failures = 0;
    unsigned shorter = 0; // of the entry
    for (unsigned seed = 1; seed <= 1000; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        const Octets expected = entry(*record).octets;
        const unsigned asked = calls;
        for (unsigned n = 1; n <= asked; ++n)
        {
            ++failures;
            const Result result = encoded(*record, n);
            ASSERT_EQ(result.status, RRC_COMPOSE_E_MEMORY) << seed;
            ASSERT_TRUE(result.octets.empty());
            ASSERT_EQ(std::string(result.error).find("out of memory"), 0U);
            const unsigned printed = lines;

            // The entry says so on the console, and where its composers' results are looked at also as its result.
            const Result old = entry(*record, n);
            if (old.status == 0)
            {
                ASSERT_LT(old.octets.size(), expected.size());
                ASSERT_GT(lines, 0U) << seed;
                ASSERT_EQ(lines, printed) << seed;
                ++shorter;
            }
        }
        const Result result = encoded(*record, asked + 1);
        ASSERT_EQ(result.status, RRC_COMPOSE_OK) << seed;
        ASSERT_EQ(result.octets, expected);

        unsigned n = 1;
        for (; treeEncoded(*record, n).status != 0; ++n)
        {
            ASSERT_EQ(treeEncoded(*record, n).status, RRC_COMPOSE_E_MEMORY);
        }
        ASSERT_GT(n, 1U) << "it has no memory but malloc's";
        ASSERT_EQ(treeEncoded(*record, n).octets, expected);
    }
    std::printf("%u failures of malloc; the entry gave %u shortened messages\n", failures, shorter);
    EXPECT_GT(failures, 100U);
}
