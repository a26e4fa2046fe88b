// Records whose memory held anything: initialised, they compose to what cleared ones compose to.

#include "rrcCodec/rrcInit.h"

#include <cstring>

#include "NR-RRC-Pdus.h"
#include "cellGroupCfg/compose.h"
#include "cellGroupCfg/csiMeas.h"
#include "cellGroupCfg/csiReport.h"
#include "cellGroupCfg/downlinkBwp.h"
#include "cellGroupCfg/pdcch.h"
#include "cellGroupCfg/pdsch.h"
#include "cellGroupCfg/pucch.h"
#include "cellGroupCfg/rachDedicated.h"
#include "cellGroupCfg/sCell.h"
#include "cellGroupCfg/servingCell.h"
#include "cellGroupCfg/servingCellCommon.h"
#include "cellGroupCfg/servingCellLevel.h"
#include "cellGroupCfg/spCell.h"
#include "cellGroupCfg/srs.h"
#include "cellGroupCfg/tddDedicated.h"
#include "cellGroupCfg/uplinkBwp.h"
#include "cellGroupCfg/uplinkConfig.h"
#include "oneBearer.h"
#include "releases.h"
#include "rrcInitInC.h"
#include "secondaryCells.h"
#include "support/ComposerTest.h"
#include "typicalCall.h"

namespace
{

constexpr int patterns[] = {0xA5, 0x5A, 0xFF, 0x01};

class rrcInitTest : public test::ComposerTest
{
protected:
    template <typename Record>
    static std::unique_ptr<Record> dirty(int pattern)
    {
        auto record = std::make_unique_for_overwrite<Record>();
        std::memset(static_cast<void*>(record.get()), pattern, sizeof *record);
        return record;
    }

    // The octets of a dirty record that its initialiser has not cleared; all others are 0.
    template <typename Record>
    static std::size_t leftAlone(int pattern)
    {
        const auto record = dirty<Record>(pattern);
        rrcInit(record.get());
        const auto* const octets = reinterpret_cast<const unsigned char*>(record.get());
        std::size_t left = 0;
        for (std::size_t i = 0; i < sizeof *record; ++i)
        {
            EXPECT_TRUE(octets[i] == 0 || octets[i] == pattern) << i;
            left += octets[i] == 0 ? 0U : 1U;
        }
        return left;
    }

    template <typename Element, typename Record>
    std::string outcome(INT32 (*composer)(OSCTXT*, Element*, Record*), int (*encodeType)(OSCTXT*, const Element*),
                        Record& record)
    {
        const auto element = cleared<Element>();
        const INT32 result = composer(&context, element.get(), &record);
        const std::string text = std::to_string(result) + printed() + encode(encodeType, *element);
        rtFreeContext(&context);
        return text;
    }

    template <typename Element, typename Record>
    void expectAsCleared(INT32 (*composer)(OSCTXT*, Element*, Record*), int (*encodeType)(OSCTXT*, const Element*))
    {
        const auto empty = cleared<Record>();
        const std::string expected = outcome(composer, encodeType, *empty);
        for (const int pattern : patterns)
        {
            const auto record = dirty<Record>(pattern);
            rrcInit(record.get());
            EXPECT_EQ(outcome(composer, encodeType, *record), expected) << pattern;
        }
        // Not megabytes: single fields, masks, counts and what is small.
        EXPECT_GE(leftAlone<Record>(0xA5), sizeof(Record) - 512);
    }

    // The octets that the entry makes of a record, as hex.
    std::string composed(RrcCellGroupCfg_t& record)
    {
        std::vector<UINT8> octets(8192);
        Mbuf_t message = {0, octets.data()};
        if (rrcComposeCellGroupCfg(&record, &message) != VOS_OK)
        {
            return printed();
        }
        return test::hexDigits(octets.data(), message.bufLen);
    }

    void expectAnyMemory(void (*fill)(RrcCellGroupCfg_t&))
    {
        const auto empty = cleared<RrcCellGroupCfg_t>();
        fill(*empty);
        const std::string expected = composed(*empty);
        EXPECT_EQ(expected.find_first_not_of("0123456789abcdef"), std::string::npos) << expected;
        for (const int pattern : patterns)
        {
            const auto record = dirty<RrcCellGroupCfg_t>(pattern);
            fill(*record);
            EXPECT_EQ(composed(*record), expected) << pattern;
        }
    }
};

} // namespace

TEST_F(rrcInitTest, CellGroupIsTheEmptyOne)
{
    for (const int pattern : patterns)
    {
        const auto record = dirty<RrcCellGroupCfg_t>(pattern);
        rrcInit(record.get());
        // No extension, seven members absent, cellGroupId 0: ten bits.
        EXPECT_EQ(composed(*record), "0000");
    }
    EXPECT_GE(leftAlone<RrcCellGroupCfg_t>(0xA5), sizeof(RrcCellGroupCfg_t) - 512);
}

TEST_F(rrcInitTest, LargeRecordsComposeAsClearedOnes)
{
    expectAsCleared(rrcComposeSP_CellGroupCfg, asn1PE_SpCellConfig);
    expectAsCleared(rrcComposeReconfigurationWithSync, asn1PE_ReconfigurationWithSync);
    expectAsCleared(rrcComposeRach_ConfigDedicated_uplink, asn1PE_RACH_ConfigDedicated);
    expectAsCleared(rrcComposeCfra, asn1PE_CFRA);
    expectAsCleared(rrcComposeServCellConfigCommon, asn1PE_ServingCellConfigCommon);
    expectAsCleared(rrcCompose_sCellToAddModItem, asn1PE_SCellConfig);
    expectAsCleared(rrcComposespCellConfigDedicated, asn1PE_ServingCellConfig);
    expectAsCleared(rrcComposeTDD_UL_DL_ConfigDedicated, asn1PE_TDD_UL_DL_ConfigDedicated);
    expectAsCleared(rrcComposeDlBWP_ToAddItem, asn1PE_BWP_Downlink);
    expectAsCleared(rrcComposeBWP_DownlinkDedicated, asn1PE_BWP_DownlinkDedicated);
    expectAsCleared(rrcComposePdcch_ConfigSetup, asn1PE_PDCCH_Config);
    expectAsCleared(rrcComposePdsch_ConfigSetup, asn1PE_PDSCH_Config);
    expectAsCleared(rrcComposeUplinkConfig, asn1PE_UplinkConfig);
    expectAsCleared(rrcComposeBWP_Uplink, asn1PE_BWP_Uplink);
    expectAsCleared(rrcComposeInitialUplinkBWP, asn1PE_BWP_UplinkDedicated);
    expectAsCleared(rrcComposePucch_Configsetup, asn1PE_PUCCH_Config);
    expectAsCleared(rrcComposeSRS_ConfigSetup, asn1PE_SRS_Config);
    expectAsCleared(rrcComposePdcch_ServingCellCfgSetup, asn1PE_PDCCH_ServingCellConfig);
    expectAsCleared(rrcComposeSlotFormatIndSetup, asn1PE_SlotFormatIndicator);
    expectAsCleared(rrcComposeslotFormatComb, asn1PE_SlotFormatCombinationsPerCell);
    expectAsCleared(rrcComposecsi_MeasConfigSetup, asn1PE_CSI_MeasConfig);
    expectAsCleared(rrcComposeCsi_ReportConfigToAdd, asn1PE_CSI_ReportConfig);
}

// Their elements have no name, so that they cannot be encoded alone.
TEST_F(rrcInitTest, LargeRecordsBehindAMaskOrACountAreEmpty)
{
    for (const int pattern : patterns)
    {
        const auto resources = dirty<RrcSsirs_t>(pattern);
        rrcInit(resources.get());
        EXPECT_EQ(resources->numCsirsRecouces, 0);
        EXPECT_EQ(resources->rsrpThreshCsiRs, 0);
        const auto resource = dirty<RrcCsirsResource_t>(pattern);
        rrcInit(resource.get());
        EXPECT_EQ(resource->csiRSIdx, 0);
        EXPECT_EQ(resource->numRaOccasion, 0);
        EXPECT_EQ(resource->raPreambleIdx, 0);
        const auto ports = dirty<RRCPortIndexFor8Ranks_t>(pattern);
        rrcInit(ports.get());
        EXPECT_EQ(ports->numPortIndexFor8Ranks, 0);
        const auto states = dirty<RrcCsiAperiodicTriggerStateList_t>(pattern);
        rrcInit(states.get());
        EXPECT_EQ(states->numState, 0);
    }
}

TEST_F(rrcInitTest, SmallRecordsAreCleared)
{
    EXPECT_EQ(leftAlone<RrcRlcBearerCfg_t>(0xFF), 0U);
    EXPECT_EQ(leftAlone<RrcMacCellGrpCfg_t>(0xFF), 0U);
    EXPECT_EQ(leftAlone<RrcRateMatchPattern_t>(0xFF), 0U);
    EXPECT_EQ(leftAlone<NrBwpDownLinkCommon_t>(0xFF), 0U);
    EXPECT_EQ(leftAlone<RrcPuschCfg_t>(0xFF), 0U);
    EXPECT_EQ(leftAlone<RrcTag_t>(0xFF), 0U);
}

TEST_F(rrcInitTest, ExamplesTakeAnyMemory)
{
    expectAnyMemory(oneBearer);
    expectAnyMemory(reconfigurationWithSync);
    expectAnyMemory(typicalCall);
    expectAnyMemory(secondaryCells);
    expectAnyMemory(releases);
}

TEST_F(rrcInitTest, ServesCPrograms)
{
    expectAnyMemory([](RrcCellGroupCfg_t& record) { initInC(&record); });
    const auto inC = dirty<RrcCellGroupCfg_t>(0xA5);
    initInC(inC.get());
    const auto inCpp = dirty<RrcCellGroupCfg_t>(0xA5);
    rrcInit(inCpp.get());
    inCpp->bitMask = RRC_CELLGROUPCFG_PHY_PRESENCE | RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    rrcInit(&inCpp->phyCellGrpCfg);
    rrcInit(&inCpp->spCellCfg);
    inCpp->spCellCfg.bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE;
    rrcInit(&inCpp->spCellCfg.rlfTimerConstants);
    EXPECT_EQ(std::memcmp(inC.get(), inCpp.get(), sizeof *inC), 0);
}
