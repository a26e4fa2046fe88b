#include "cellGroupCfg/servingCell.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "NR-RRC-Pdus.h"
#include "servingCellRecords.h"
#include "support/ComposerTest.h"
#include "support/Json.h"

using test::fillServingCell;
using test::HeapFault;
using test::masks;
using test::servingCellJson;
using testing::Each;
using testing::ElementsAreArray;

namespace
{

constexpr unsigned everything = 0xFFFF;
constexpr unsigned crossCarrier = RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE;
const std::string tddError =
    "rrcComposeSlotSpecificConfigurationsToAdd Error\r\nrrcComposeTDD_UL_DL_ConfigDedicated Error\r\n";
const std::string noTddNode = "pNode Or pTDD_UL_DL_SlotCfg is NULL\r\n" + tddError;
const std::string noBwpNode = "pNode Or pItem is NULL\r\nrrcComposedownlinkBWP_ToADDMod Error\r\n";

// The presence bits in the order in which the members are composed.
std::vector<unsigned> presence(const ServingCellConfig& element)
{
    const auto& m = element.m;
    return {m.tdd_UL_DL_ConfigurationDedicatedPresent,
            m.initialDownlinkBWPPresent,
            m.downlinkBWP_ToReleaseListPresent,
            m.downlinkBWP_ToAddModListPresent,
            m.firstActiveDownlinkBWP_IdPresent,
            m.bwp_InactivityTimerPresent,
            m.defaultDownlinkBWP_IdPresent,
            m.uplinkConfigPresent,
            m.supplementaryUplinkPresent,
            m.pdcch_ServingCellConfigPresent,
            m.pdsch_ServingCellConfigPresent,
            m.csi_MeasConfigPresent,
            m.sCellDeactivationTimerPresent,
            m.dummyPresent,
            m.pathlossReferenceLinkingPresent,
            m.servingCellMOPresent};
}

class servingCell : public test::ComposerTest
{
protected:
    // Into a cleared element.
    INT32 composed()
    {
        std::memset(element.get(), 0, sizeof *element);
        return rrcComposespCellConfigDedicated(&context, element.get(), cell.get());
    }

    void compose()
    {
        EXPECT_EQ(composed(), VOS_OK);
        EXPECT_EQ(printed(), "");
    }

    void expectCell(const std::string& json)
    {
        SCOPED_TRACE(json);
        compose();
        expectDecoded("ServingCellConfig", asn1PE_ServingCellConfig, *element, json);
    }

    std::string refused()
    {
        compose();
        return encode(asn1PE_ServingCellConfig, *element);
    }

    // No memory for the member, which is the `members`th of those composed and the first that needs any: it is
    // announced and nothing behind it is.
    void expectStop(unsigned members, const std::string& lines)
    {
        SCOPED_TRACE(lines);
        {
            const HeapFault fault(0);
            EXPECT_EQ(composed(), VOS_ERROR);
        }
        EXPECT_EQ(printed(), lines);
        std::vector<unsigned> expected(16);
        std::fill_n(expected.begin(), members, 1U);
        EXPECT_THAT(presence(*element), ElementsAreArray(expected));
        EXPECT_EQ(element->tag_Id, 0);
    }

    std::unique_ptr<RrcServingCellCfg_t> cell = cleared<RrcServingCellCfg_t>();
    std::unique_ptr<ServingCellConfig> element = cleared<ServingCellConfig>();
};

} // namespace

TEST_F(servingCell, NullGuards)
{
    EXPECT_EQ(rrcComposespCellConfigDedicated(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposespCellConfigDedicated", "pSpCellConfigDedicated"));
    EXPECT_EQ(rrcComposespCellConfigDedicated(&context, nullptr, cell.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposespCellConfigDedicated", "pSpCellConfigDedicated"));
    EXPECT_EQ(rrcComposespCellConfigDedicated(&context, element.get(), nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposespCellConfigDedicated", "pRrcSpCellDedicated"));
    EXPECT_THAT(presence(*element), Each(0U));
    EXPECT_EQ(element->tag_Id, 0);
}

TEST_F(servingCell, MembersNoneEachAloneAndAllInOrder)
{
    for (const unsigned mask : masks(15))
    {
        for (unsigned lists = 0; lists < 4; ++lists)
        {
            fillServingCell(*cell, mask, lists & 1, lists >> 1);
            expectCell(servingCellJson(mask, lists & 1, lists >> 1));
            std::vector<unsigned> expected{mask & 1, mask >> 1 & 1, lists & 1, lists >> 1};
            for (const unsigned bit : {2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U, 12U, 13U, 14U})
            {
                expected.push_back(mask >> bit & 1);
            }
            EXPECT_EQ(presence(*element), expected) << mask;
        }
    }
}

TEST_F(servingCell, WithoutAnythingAskedForOnlyTheTimingAdvanceGroupIsThere)
{
    fillServingCell(*cell, 0);
    compose();
    EXPECT_EQ(element->tag_Id, 3);
    element->tag_Id = 0;
    const auto none = cleared<ServingCellConfig>();
    EXPECT_EQ(std::memcmp(element.get(), none.get(), sizeof *none), 0);
}

TEST_F(servingCell, CrossCarrierSchedulingIsNotLookedAt)
{
    for (const unsigned mask : {0U, everything})
    {
        fillServingCell(*cell, mask & ~crossCarrier);
        compose();
        const std::string without = encode(asn1PE_ServingCellConfig, *element);
        const std::vector<unsigned> bits = presence(*element);
        cell->bitMask |= RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE;
        compose();
        EXPECT_EQ(encode(asn1PE_ServingCellConfig, *element), without);
        EXPECT_EQ(presence(*element), bits);
        EXPECT_EQ(element->m.crossCarrierSchedulingConfigPresent, 0U);
    }
    fillServingCell(*cell, 0);
    compose();
    const auto without = cleared<ServingCellConfig>();
    std::memcpy(without.get(), element.get(), sizeof *element);
    cell->bitMask = RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE;
    compose();
    EXPECT_EQ(std::memcmp(element.get(), without.get(), sizeof *element), 0);
}

TEST_F(servingCell, NeverSentWhateverIsAskedFor)
{
    fillServingCell(*cell, everything, 4, 4);
    compose();
    EXPECT_THAT(presence(*element), Each(1U));
    EXPECT_EQ(element->m.crossCarrierSchedulingConfigPresent, 0U);
    EXPECT_EQ(element->m._v2ExtPresent, 0U);
    EXPECT_EQ(element->m.lte_CRS_ToMatchAroundPresent, 0U);
    EXPECT_EQ(element->m.rateMatchPatternToAddModListPresent, 0U);
    EXPECT_EQ(element->m.rateMatchPatternToReleaseListPresent, 0U);
    EXPECT_EQ(element->m.downlinkChannelBW_PerSCS_ListPresent, 0U);
}

TEST_F(servingCell, ListsAtTheirLimits)
{
    for (const unsigned toRelease : {0U, 1U, 2U, 4U})
    {
        for (const unsigned toAdd : {0U, 1U, 2U, 4U})
        {
            fillServingCell(*cell, 0, toRelease, toAdd);
            expectCell(servingCellJson(0, toRelease, toAdd));
            EXPECT_EQ(element->m.initialDownlinkBWPPresent, 0U);
        }
    }
}

TEST_F(servingCell, CountsPastTheirBoundAreLeftToTheEncoder)
{
    for (const unsigned count : {5U, 255U})
    {
        const std::string size = ": " + std::to_string(count) + " elements, not 1..4";
        fillServingCell(*cell, 0, count, 0);
        EXPECT_EQ(refused(), "ServingCellConfig.downlinkBWP-ToReleaseList" + size);
        fillServingCell(*cell, 0, 0, count);
        EXPECT_EQ(refused(), "ServingCellConfig.downlinkBWP-ToAddModList" + size);
    }
}

TEST_F(servingCell, MembersTakeTheirOwnRecords)
{
    cell->bitMask = RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE | RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE |
                    RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE;
    cell->tddUlDlCfgDed.numSlotsAddMod = 2;
    cell->tddUlDlCfgDed.numSlotsRelease = 1;
    cell->tddUlDlCfgDed.slotIdx[0] = 319;
    cell->initDlBwp.bitMask = RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE;
    cell->initDlBwp.spsCfg = {0, 8, 0, 0, 0};
    cell->pdcchServingCellCfg.bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    cell->pdcchServingCellCfg.slotFormatInd.sfiRnti = 65535;
    cell->pdcchServingCellCfg.slotFormatInd.dciPayloadSize = 128;
    // The slots stand in the lists and are not announced.
    expectCell(R"({"tdd-UL-DL-ConfigurationDedicated":{},)"
               R"("initialDownlinkBWP":{"sps-Config":{"setup":{"periodicity":"ms10","nrofHARQ-Processes":8}}},)"
               R"("pdcch-ServingCellConfig":{"setup":{"slotFormatIndicator":)"
               R"({"setup":{"sfi-RNTI":65535,"dci-PayloadSize":128}}}},"tag-Id":0})");
    EXPECT_EQ(element->tdd_UL_DL_ConfigurationDedicated.slotSpecificConfigurationsToAddModList.count, 2U);
    EXPECT_EQ(element->tdd_UL_DL_ConfigurationDedicated.slotSpecificConfigurationsToreleaseList.n, 1U);
    EXPECT_EQ(element->tdd_UL_DL_ConfigurationDedicated.slotSpecificConfigurationsToreleaseList.elem[0], 319);
}

TEST_F(servingCell, ValuesAreCopiedAndLeftToTheEncoder)
{
    const struct
    {
        const char* member;
        unsigned lower;
        unsigned upper;
        void (*set)(RrcServingCellCfg_t& cell, unsigned value);
    } cases[] = {
        {"firstActiveDownlinkBWP-Id", 0, 4,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.firstActiveDlBwpId = static_cast<UINT8>(value);
         }},
        {"bwp-InactivityTimer", 0, 30,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.bwpInactiveTimer = static_cast<UINT8>(value);
         }},
        {"defaultDownlinkBWP-Id", 0, 4,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.defaultDlBwpId = static_cast<UINT8>(value);
         }},
        {"sCellDeactivationTimer", 0, 15,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.sCellDeativationTimer = static_cast<UINT8>(value);
         }},
        {"tag-Id", 0, 3,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.tagId = static_cast<UINT8>(value);
         }},
        {"dummy", 0, 0,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.dummy = static_cast<BOOL>(value);
         }},
        {"pathlossReferenceLinking", 0, 1,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.pathLossRefLinking = static_cast<UINT8>(value);
         }},
        {"servingCellMO", 1, 64,
         [](RrcServingCellCfg_t& c, unsigned value)
         {
             c.servingCellMo = static_cast<UINT8>(value);
         }},
    };
    for (const auto& [member, lower, upper, set] : cases)
    {
        const std::string bounds = " is not in " + std::to_string(lower) + ".." + std::to_string(upper);
        for (const unsigned value : {lower, upper})
        {
            fillServingCell(*cell, everything);
            set(*cell, value);
            EXPECT_EQ(refused().find(' '), std::string::npos) << member << ' ' << value;
        }
        for (const unsigned value : {lower - 1, upper + 1, 255U})
        {
            if (value <= 255)
            {
                fillServingCell(*cell, everything);
                set(*cell, value);
                EXPECT_EQ(refused(),
                          std::string("ServingCellConfig.") + member + ": " + std::to_string(value) + bounds);
            }
        }
    }
}

TEST_F(servingCell, DummyHasTheWholeNumber)
{
    for (const BOOL value : {0, 1, 256, -1})
    {
        fillServingCell(*cell, RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE);
        cell->dummy = value;
        compose();
        EXPECT_EQ(element->dummy, static_cast<OSUINT32>(value));
    }
}

TEST_F(servingCell, FailingTddPatternStopsTheRest)
{
    fillServingCell(*cell, everything, 1, 1);
    cell->tddUlDlCfgDed.numSlotsAddMod = 1;
    expectStop(1, noTddNode);
}

TEST_F(servingCell, FailingInitialBandwidthPartStopsTheRest)
{
    fillServingCell(*cell, everything, 1, 1);
    cell->initDlBwp.bitMask = RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE | RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE;
    cell->initDlBwp.pdcchCfg.numSearchSpaceAddMod = 1;
    const std::string lines = "pNode Or pSearchSpace is NULL\r\nrrcComposeSearchSpacesToAddModList Error\r\n"
                              "rrcComposePdcch_ConfigSetup Error\r\nrrcComposePdcch_Config Error\r\n"
                              "rrcComposeBWP_DownlinkDedicated Error\r\n";
    {
        const HeapFault fault(1); // the setup of PDCCH
        EXPECT_EQ(composed(), VOS_ERROR);
    }
    EXPECT_EQ(printed(), lines);
    EXPECT_EQ(element->m.initialDownlinkBWPPresent, 1U);
    EXPECT_EQ(element->initialDownlinkBWP.m.radioLinkMonitoringConfigPresent, 0U);
    EXPECT_EQ(element->m.downlinkBWP_ToReleaseListPresent, 0U);
    EXPECT_EQ(element->downlinkBWP_ToReleaseList.n, 0);
    EXPECT_EQ(element->tag_Id, 0);
}

TEST_F(servingCell, FailingBandwidthPartsToAddStopTheRest)
{
    fillServingCell(*cell, everything, 1, 1);
    expectStop(4, noBwpNode);
    EXPECT_EQ(element->downlinkBWP_ToReleaseList.n, 1) << "the release list comes first";
}

TEST_F(servingCell, FailingUplinkStopsTheRestInTheSameWordsWhicheverItIs)
{
    const std::string lines = "pNode Or pItem is NULL\r\nrrcComposeuplinkBWP_ToAddModList Error\r\n"
                              "rrcComposeUplinkConfig Error\r\n";
    fillServingCell(*cell, everything, 1, 0);
    cell->ulCfg.numUlBwpAddMod = 1;
    {
        const HeapFault fault(0);
        EXPECT_EQ(composed(), VOS_ERROR);
    }
    EXPECT_EQ(printed(), lines);
    EXPECT_THAT(presence(*element), ElementsAreArray({1, 1, 1, 0, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(element->tag_Id, 0);

    cell->ulCfg.numUlBwpAddMod = 0;
    cell->suppUlCfg.numUlBwpAddMod = 1;
    {
        const HeapFault fault(0);
        EXPECT_EQ(composed(), VOS_ERROR);
    }
    EXPECT_EQ(printed(), lines);
    EXPECT_THAT(presence(*element), ElementsAreArray({1, 1, 1, 0, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(element->uplinkConfig.firstActiveUplinkBWP_Id, 3) << "what comes before stays";
    EXPECT_EQ(element->tag_Id, 0);
}

TEST_F(servingCell, HeapExhaustedAnywhere)
{
    fillServingCell(*cell, everything, 4, 2);
    cell->tddUlDlCfgDed.numSlotsAddMod = 1;
    cell->initDlBwp.bitMask = RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE;
    cell->initDlBwp.spsCfg.nrofHardProcess = 1;
    cell->ulCfg.bitMask |= RRC_UL_CFG_PUSCH_SERVING_CELL_CFG_PRESENCE;
    cell->suppUlCfg.bitMask |= RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE;
    const struct
    {
        std::string lines;   // of the composers, which then fail
        std::string refusal; // the encoder's, where no composer looks
    } cases[] = {
        {noTddNode, ""},
        // Without the setup of SPS, which nobody looks at, the next to fail is a list.
        {noBwpNode, ""},
        {noBwpNode, ""},
        {noBwpNode, ""},
        {"", "uplinkConfig.pusch-ServingCellConfig"},
        {"", "supplementaryUplink.carrierSwitching"},
        {"", "pdcch-ServingCellConfig"},
        {"", "pdsch-ServingCellConfig"},
        {"", "csi-MeasConfig"},
    };
    unsigned successes = 0;
    for (const auto& [lines, refusal] : cases)
    {
        {
            const HeapFault fault(successes);
            EXPECT_EQ(composed(), lines.empty() ? VOS_OK : VOS_ERROR);
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(printed(), lines);
        if (!lines.empty())
        {
            EXPECT_EQ(element->m.downlinkBWP_ToAddModListPresent, successes != 0 ? 1U : 0U);
            EXPECT_EQ(element->downlinkBWP_ToAddModList.count, successes == 3 ? 1U : 0U);
        }
        else
        {
            EXPECT_EQ(encode(asn1PE_ServingCellConfig, *element),
                      "ServingCellConfig." + refusal + ": tag 0 is not in 1..2");
        }
        ++successes;
    }
    const HeapFault fault(successes);
    compose();
    EXPECT_FALSE(HeapFault::struck());
    EXPECT_EQ(encode(asn1PE_ServingCellConfig, *element).find(' '), std::string::npos);
}

// The record

static_assert(std::is_same_v<decltype(RrcServingCellCfg_t::bitMask), UINT16>);
static_assert(std::is_same_v<decltype(RrcServingCellCfg_t::dummy), BOOL>);
static_assert(std::is_same_v<decltype(RrcServingCellCfg_t::dlBwpId), UINT8[4]>);
static_assert(std::is_same_v<decltype(RrcServingCellCfg_t::dlBwp), RrcBwpDl_t[4]>);
