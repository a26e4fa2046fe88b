#include "cellGroupCfg/downlinkBwp.h"

#include <cstddef>
#include <cstring>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::array;
using test::HeapFault;
using test::masks;
using test::numbers;
using test::object;
using test::rising;

namespace
{

void fillDedicated(RrcBwpDlDedicated_t& cfg, unsigned mask)
{
    cfg.bitMask = static_cast<UINT8>(mask);
    cfg.pdcchCfg.numSearchSpaceRel = 1;
    cfg.pdcchCfg.searchSpaceId[0] = 39;
    cfg.pdschCfg.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC;
    cfg.spsCfg = {0, 8, 0, 0, 0};
    cfg.radioLinkMonitorCfg.bitMask = RRC_RADIO_LINK_MONITOR_BEAM_FAIL_MAX_COUNT_PRESENCE;
}

std::string dedicatedJson(unsigned mask)
{
    return object({mask & 1 ? R"("pdcch-Config":{"setup":{"searchSpacesToReleaseList":[39]}})" : "",
                   mask & 2 ? R"("pdsch-Config":{"setup":{"resourceAllocation":"resourceAllocationType0",)"
                              R"("rbg-Size":"config1","prb-BundlingType":{"dynamicBundling":{}}}})"
                            : "",
                   mask & 4 ? R"("sps-Config":{"setup":{"periodicity":"ms10","nrofHARQ-Processes":8}})" : "",
                   mask & 8 ? R"("radioLinkMonitoringConfig":{"setup":{"beamFailureInstanceMaxCount":"n1"}})" : ""});
}

RrcSearchSpace_t searchSpace(unsigned i)
{
    RrcSearchSpace_t cfg{};
    cfg.searchSpaceId = static_cast<UINT8>(1 + i);
    cfg.bitMask = RRC_SEARCH_SPACE_DURATION_PRESENCE;
    cfg.duration = static_cast<UINT16>(2 + i);
    return cfg;
}

std::string spaceJson(unsigned i)
{
    return "{\"searchSpaceId\":" + std::to_string(1 + i) + ",\"duration\":" + std::to_string(2 + i) + "}";
}

void fillPdcchCommon(RrcPdcchCfgCommon_t& cfg, unsigned spaces, unsigned mask)
{
    cfg.numCommonSearchSpace = static_cast<UINT8>(spaces);
    for (unsigned i = 0; i < RRC_MAX_NUM_COMMON_SEARCH_SPACING; ++i)
    {
        cfg.commonSearchSpace[i] = searchSpace(i);
    }
    cfg.bitMask = static_cast<UINT8>(mask);
    cfg.controlResourceSetZero = 15;
    cfg.commonControlResourceSet.setIdx = 11;
    cfg.commonControlResourceSet.duration = 3;
    cfg.searchSpaceZero = 14;
    cfg.searchSpaceSIB1 = 39;
    cfg.searchSpaceOtherSi = 38;
    cfg.searchSpacePaing = 37;
    cfg.searchSpaceRa = 36;
}

std::string pdcchCommonJson(unsigned spaces, unsigned mask)
{
    return object(
        {mask & 1 ? "\"controlResourceSetZero\":15" : "",
         mask & 2 ? "\"commonControlResourceSet\":{\"controlResourceSetId\":11,\"frequencyDomainResources\":" +
                        test::bits(0, 45) +
                        R"(,"duration":3,"cce-REG-MappingType":{"nonInterleaved":null},)"
                        R"("precoderGranularity":"sameAsREG-bundle"})"
                  : "",
         mask & 4 ? "\"searchSpaceZero\":14" : "",
         spaces != 0 ? "\"commonSearchSpaceList\":" + array(spaces, spaceJson) : "",
         mask & 8 ? "\"searchSpaceSIB1\":39" : "", mask & 16 ? "\"searchSpaceOtherSystemInformation\":38" : "",
         mask & 32 ? "\"pagingSearchSpace\":37" : "", mask & 64 ? "\"ra-SearchSpace\":36" : ""});
}

void fillPdschCommon(RrcPdschCfgCommon_t& cfg, unsigned count, unsigned mask)
{
    cfg.bitMask = static_cast<UINT8>(mask);
    cfg.pdschTimeDomainAllocList.num = static_cast<UINT8>(count);
    for (unsigned i = 0; i < RRC_MAX_NROF_DL_ALLOC; ++i)
    {
        cfg.pdschTimeDomainAllocList.alloc[i] = {static_cast<UINT8>(i % 2), static_cast<UINT8>(100 + i),
                                                 RRC_PDSCH_TIMING_KO_PRESENCE, static_cast<UINT8>(32 - i)};
    }
}

std::string allocationJson(unsigned i)
{
    return "{\"k0\":" + std::to_string(32 - i) + ",\"mappingType\":\"" + (i % 2 != 0 ? "typeB" : "typeA") +
           "\",\"startSymbolAndLength\":" + std::to_string(100 + i) + "}";
}

const std::string genericJson = R"("genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz120"})";

class downlinkBwp : public test::ComposerTest
{
protected:
    // Two bandwidth parts of which the first has no content; the others have both parts.
    void fill(unsigned toAdd, unsigned toRelease)
    {
        cell->numDlBwpAddMod = static_cast<UINT8>(toAdd);
        cell->numDlBwpRel = static_cast<UINT8>(toRelease);
        for (unsigned i = 0; i < RRC_MAX_NROF_BWPS; ++i)
        {
            RrcBwpDl_t& bwp = cell->dlBwp[i];
            bwp.bwpId = static_cast<UINT8>(4 - i);
            bwp.bitMask = static_cast<UINT8>(i == 0 ? 0 : 3);
            bwp.bwpCommon.genericParam = {37949, 3, 0, 0};
            fillDedicated(bwp.bwpDedicated, RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE);
            cell->dlBwpId[i] = static_cast<UINT8>(1 + i);
        }
    }

    static std::string bwpJson(unsigned i)
    {
        return object({"\"bwp-Id\":" + std::to_string(4 - i), i != 0 ? "\"bwp-Common\":{" + genericJson + "}" : "",
                       i != 0 ? "\"bwp-Dedicated\":" + dedicatedJson(4) : ""});
    }

    void expectLists(const std::string& json)
    {
        *element = {};
        if (cell->numDlBwpRel != 0)
        {
            element->m.downlinkBWP_ToReleaseListPresent = 1;
            EXPECT_EQ(rrcComposedownlinkBWP_ToReleaseList(&element->downlinkBWP_ToReleaseList, cell.get()), VOS_OK);
        }
        if (cell->numDlBwpAddMod != 0)
        {
            element->m.downlinkBWP_ToAddModListPresent = 1;
            EXPECT_EQ(rrcComposedownlinkBWP_ToADDMod(&context, &element->downlinkBWP_ToAddModList, cell.get()), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        if (!json.empty())
        {
            expectDecoded("ServingCellConfig", asn1PE_ServingCellConfig, *element, json);
        }
    }

    void expectPdcchCommon(RrcPdcchCfgCommon_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        BWP_DownlinkCommon_pdcch_ConfigCommon choice{};
        EXPECT_EQ(rrcComposePdcch_ConfigCommon(&context, &choice, &cfg), VOS_OK);
        EXPECT_EQ(choice.t, static_cast<OSUINT32>(T_BWP_DownlinkCommon_pdcch_ConfigCommon_setup));
        expectDecoded("PDCCH-ConfigCommon", asn1PE_PDCCH_ConfigCommon, *choice.u.setup, json);
        EXPECT_EQ(printed(), "");
    }

    std::unique_ptr<RrcServingCellCfg_t> cell = cleared<RrcServingCellCfg_t>();
    std::unique_ptr<ServingCellConfig> element = cleared<ServingCellConfig>();
    std::unique_ptr<RrcBwpDlDedicated_t> dedicated = cleared<RrcBwpDlDedicated_t>();
};

} // namespace

// Dedicated part

TEST_F(downlinkBwp, DedicatedOptions)
{
    for (const unsigned mask : masks(4))
    {
        fillDedicated(*dedicated, mask);
        BWP_DownlinkDedicated bwp{};
        EXPECT_EQ(rrcComposeBWP_DownlinkDedicated(&context, &bwp, dedicated.get()), VOS_OK);
        expectDecoded("BWP-DownlinkDedicated", asn1PE_BWP_DownlinkDedicated, bwp, dedicatedJson(mask));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(downlinkBwp, FailedPdcchStopsTheDedicatedPart)
{
    fillDedicated(*dedicated, 15);
    dedicated->pdcchCfg.numSearchSpaceAddMod = 1;
    const HeapFault fault(1);
    BWP_DownlinkDedicated bwp{};
    EXPECT_EQ(rrcComposeBWP_DownlinkDedicated(&context, &bwp, dedicated.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "pNode Or pSearchSpace is NULL\r\nrrcComposeSearchSpacesToAddModList Error\r\n"
                         "rrcComposePdcch_ConfigSetup Error\r\nrrcComposePdcch_Config Error\r\n");
    EXPECT_EQ(bwp.m.pdcch_ConfigPresent, 1U);
    EXPECT_EQ(bwp.m.pdsch_ConfigPresent, 0U);
    EXPECT_EQ(bwp.m.sps_ConfigPresent, 0U);
    EXPECT_EQ(bwp.m.radioLinkMonitoringConfigPresent, 0U);
}

TEST_F(downlinkBwp, DedicatedNullGuards)
{
    BWP_DownlinkDedicated bwp{};
    EXPECT_EQ(rrcComposeBWP_DownlinkDedicated(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBWP_DownlinkDedicated", "pInitialDownlinkBWP"));
    EXPECT_EQ(rrcComposeBWP_DownlinkDedicated(&context, nullptr, dedicated.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBWP_DownlinkDedicated", "pInitialDownlinkBWP"));
    EXPECT_EQ(rrcComposeBWP_DownlinkDedicated(&context, &bwp, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBWP_DownlinkDedicated", "pRrcInitDlBwp"));
}

// Lists

TEST_F(downlinkBwp, TwoPartsOfWhichTheFirstHasItsIdOnly)
{
    fill(2, 0);
    expectLists("{\"downlinkBWP-ToAddModList\":[{\"bwp-Id\":4}," + bwpJson(1) + "],\"tag-Id\":0}");
}

TEST_F(downlinkBwp, ListsAtTheirLimits)
{
    for (const unsigned count : {0U, 1U, 4U})
    {
        const std::string toAdd = count != 0 ? "\"downlinkBWP-ToAddModList\":" + array(count, bwpJson) : "";
        const std::string toRelease = count != 0 ? "\"downlinkBWP-ToReleaseList\":" + numbers(count, 1) : "";
        fill(count, 0);
        expectLists(object({toAdd, "\"tag-Id\":0"}));
        fill(0, count);
        expectLists(object({toRelease, "\"tag-Id\":0"}));
        fill(count, count);
        expectLists(object({toRelease, toAdd, "\"tag-Id\":0"}));
    }
}

TEST_F(downlinkBwp, CountsPastTheirBoundAreLeftToTheEncoder)
{
    for (const unsigned count : {5U, 255U})
    {
        const std::string size = ": " + std::to_string(count) + " elements, not 1..4";
        fill(count, 0);
        expectLists("");
        EXPECT_EQ(element->downlinkBWP_ToAddModList.count, count);
        EXPECT_EQ(encode(asn1PE_ServingCellConfig, *element), "ServingCellConfig.downlinkBWP-ToAddModList" + size);
        fill(0, count);
        expectLists("");
        EXPECT_EQ(element->downlinkBWP_ToReleaseList.n, count);
        EXPECT_EQ(encode(asn1PE_ServingCellConfig, *element), "ServingCellConfig.downlinkBWP-ToReleaseList" + size);
    }
}

TEST_F(downlinkBwp, CommonAndDedicatedPartByTheirBits)
{
    for (const unsigned mask : masks(2))
    {
        fill(1, 0);
        cell->dlBwp[1].bitMask = static_cast<UINT8>(mask);
        BWP_Downlink bwp{};
        EXPECT_EQ(rrcComposeDlBWP_ToAddItem(&context, &bwp, &cell->dlBwp[1]), VOS_OK);
        expectDecoded("BWP-Downlink", asn1PE_BWP_Downlink, bwp,
                      object({"\"bwp-Id\":3", mask & 1 ? "\"bwp-Common\":{" + genericJson + "}" : "",
                              mask & 2 ? "\"bwp-Dedicated\":" + dedicatedJson(4) : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(downlinkBwp, ListWithoutHeapForEachRequest)
{
    // Three nodes, the second and third with an SPS setup, which is not checked.
    fill(3, 0);
    for (unsigned successes = 0; successes <= 5; ++successes)
    {
        ServingCellConfig_downlinkBWP_ToAddModList list{};
        INT32 result = VOS_OK;
        {
            const HeapFault fault(successes);
            result = rrcComposedownlinkBWP_ToADDMod(&context, &list, cell.get());
            EXPECT_EQ(HeapFault::struck(), successes < 5);
        }
        EXPECT_EQ(result, successes < 4 ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), successes < 4 ? "pNode Or pItem is NULL\r\n" : "");
        EXPECT_EQ(list.count, successes < 2 ? successes : successes < 4 ? 2U : 3U);
    }
}

TEST_F(downlinkBwp, FailedDedicatedPartStopsTheList)
{
    fill(2, 0);
    cell->dlBwp[0].bitMask = RRC_BWP_DL_DEDICATED_PRESENCE;
    cell->dlBwp[0].bwpDedicated.bitMask = RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE;
    cell->dlBwp[0].bwpDedicated.pdcchCfg.numControlResourceSetAddMod = 1;
    ServingCellConfig_downlinkBWP_ToAddModList list{};
    const HeapFault fault(2); // the node and the PDCCH setup
    EXPECT_EQ(rrcComposedownlinkBWP_ToADDMod(&context, &list, cell.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "pNode Or pControlResourceSet is NULL\r\nrrcComposecontrolResourceSetToAddList Error\r\n"
                         "rrcComposePdcch_ConfigSetup Error\r\nrrcComposePdcch_Config Error\r\n"
                         "rrcComposeBWP_DownlinkDedicated Error\r\nrrcComposeDlBWP_ToAddItem is Error\r\n");
    EXPECT_EQ(list.count, 0U);
}

// Common part

TEST_F(downlinkBwp, CommonOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcBwpDlCommon_t cfg{};
        cfg.genericParam = {37949, 3, 0, 0};
        cfg.bitMask = static_cast<UINT8>(mask);
        fillPdcchCommon(cfg.pdcchCfgCommon, 0, RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_ZERO_PRESENCE);
        fillPdschCommon(cfg.pdschCfgCommon, 1, RRC_PDSCH_COMMON_PRESENCE);
        BWP_DownlinkCommon bwp{};
        EXPECT_EQ(rrcComposeBWP_DownlinkCommon(&context, &bwp, &cfg), VOS_OK);
        expectDecoded("BWP-DownlinkCommon", asn1PE_BWP_DownlinkCommon, bwp,
                      object({genericJson, mask & 1 ? R"("pdcch-ConfigCommon":{"setup":{"searchSpaceZero":14}})" : "",
                              mask & 2 ? "\"pdsch-ConfigCommon\":{\"setup\":{\"pdsch-TimeDomainAllocationList\":[" +
                                             allocationJson(0) + "]}}"
                                       : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(downlinkBwp, GenericParametersHaveTheirPrefixByItsBit)
{
    for (const unsigned mask : masks(1))
    {
        RrcBwp_t cfg{0, 4, static_cast<UINT8>(mask), 0};
        BWP bwp{};
        EXPECT_EQ(rrcComposeGenericParameters(&bwp, &cfg), VOS_OK);
        expectDecoded("BWP", asn1PE_BWP, bwp,
                      object({"\"locationAndBandwidth\":0", R"("subcarrierSpacing":"kHz240")",
                              mask & 1 ? R"("cyclicPrefix":"extended")" : ""}));
    }
    RrcBwp_t cfg{37950, 0, 0, 0};
    BWP bwp{};
    EXPECT_EQ(rrcComposeGenericParameters(&bwp, &cfg), VOS_OK);
    EXPECT_EQ(encode(asn1PE_BWP, bwp), "BWP.locationAndBandwidth: 37950 is not in 0..37949");
}

TEST_F(downlinkBwp, CommonNullGuards)
{
    RrcBwpDlCommon_t cfg{};
    BWP_DownlinkCommon bwp{};
    EXPECT_EQ(rrcComposeBWP_DownlinkCommon(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBWP_DownlinkCommon", "pBwp_Common"));
    EXPECT_EQ(rrcComposeBWP_DownlinkCommon(&context, nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBWP_DownlinkCommon", "pBwp_Common"));
    EXPECT_EQ(rrcComposeBWP_DownlinkCommon(&context, &bwp, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBWP_DownlinkCommon", "pRrcBwpCommon"));
    EXPECT_EQ(rrcComposePdcch_ConfigCommon(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdcch_ConfigCommon", "pPdcch_ConfigCommon"));
    EXPECT_EQ(rrcComposePdcch_ConfigCommon(&context, &bwp.pdcch_ConfigCommon, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdcch_ConfigCommon", "pRrcPdcchCfgCommon"));
    EXPECT_EQ(bwp.pdcch_ConfigCommon.t, 0U);
}

TEST_F(downlinkBwp, PdcchCommonOptions)
{
    for (const unsigned mask : masks(8))
    {
        for (const unsigned spaces : {0U, 1U})
        {
            RrcPdcchCfgCommon_t cfg{};
            fillPdcchCommon(cfg, spaces, mask);
            expectPdcchCommon(cfg, pdcchCommonJson(spaces, mask));
        }
    }
}

TEST_F(downlinkBwp, FirstMonitoringOccasionIsABitWithoutValue)
{
    RrcPdcchCfgCommon_t cfg{};
    cfg.bitMask = 0x80;
    PDCCH_ConfigCommon common{};
    EXPECT_EQ(rrcComposePDCCH_ConfigCommonSetup(&context, &common, &cfg), VOS_OK);
    EXPECT_EQ(common.m.firstPDCCH_MonitoringOccasionOfPOPresent, 1U);
    EXPECT_EQ(common.m._v2ExtPresent, 0U);
    EXPECT_EQ(common.firstPDCCH_MonitoringOccasionOfPO.t, 0U);
    common.m.firstPDCCH_MonitoringOccasionOfPOPresent = 0;
    PDCCH_ConfigCommon none{};
    EXPECT_EQ(std::memcmp(&common, &none, sizeof common), 0) << "nothing else is set";
    expectPdcchCommon(cfg, "{}");
}

TEST_F(downlinkBwp, CommonSearchSpacesAtTheirLimits)
{
    for (const unsigned count : {2U, 4U})
    {
        RrcPdcchCfgCommon_t cfg{};
        fillPdcchCommon(cfg, count, 0);
        expectPdcchCommon(cfg, pdcchCommonJson(count, 0));
    }
    for (const unsigned count : {5U, 255U})
    {
        RrcPdcchCfgCommon_t cfg{};
        fillPdcchCommon(cfg, count, 0);
        PDCCH_ConfigCommon common{};
        EXPECT_EQ(rrcComposePDCCH_ConfigCommonSetup(&context, &common, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_PDCCH_ConfigCommon, common),
                  "PDCCH-ConfigCommon.commonSearchSpaceList: " + std::to_string(count) + " elements, not 1..4");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(downlinkBwp, PdcchCommonWithoutHeapDoesNotReachTheBandwidthPart)
{
    RrcBwpDlCommon_t cfg{};
    cfg.bitMask = RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE;
    fillPdcchCommon(cfg.pdcchCfgCommon, 3, RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_SIB1_PRESENCE);
    for (unsigned successes = 0; successes <= 4; ++successes)
    {
        BWP_DownlinkCommon bwp{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeBWP_DownlinkCommon(&context, &bwp, &cfg), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), successes < 4);
        }
        const bool cut = successes == 1 || successes == 2 || successes == 3;
        EXPECT_EQ(printed(), cut ? "pNode Or pitem is NULL\r\nrrcComposeCommonSearchSpaceList Error\r\n" : "");
        if (successes == 0)
        {
            EXPECT_EQ(encode(asn1PE_BWP_DownlinkCommon, bwp),
                      "BWP-DownlinkCommon.pdcch-ConfigCommon: tag 0 is not in 1..2");
            continue;
        }
        EXPECT_EQ(bwp.pdcch_ConfigCommon.u.setup->commonSearchSpaceList.count, successes - 1);
        EXPECT_EQ(bwp.pdcch_ConfigCommon.u.setup->m.searchSpaceSIB1Present, cut ? 0U : 1U);
    }
}

TEST_F(downlinkBwp, PdschCommonWithoutItsBitHasNoList)
{
    RrcPdschCfgCommon_t cfg{};
    fillPdschCommon(cfg, 3, 0);
    BWP_DownlinkCommon_pdsch_ConfigCommon choice{};
    EXPECT_EQ(rrcComposePdsch_ConfigCommon(&context, &choice, &cfg), VOS_OK);
    EXPECT_EQ(choice.t, static_cast<OSUINT32>(T_BWP_DownlinkCommon_pdsch_ConfigCommon_setup));
    EXPECT_EQ(choice.u.setup->pdsch_TimeDomainAllocationList.count, 0U);
    expectDecoded("PDSCH-ConfigCommon", asn1PE_PDSCH_ConfigCommon, *choice.u.setup, "{}");
}

TEST_F(downlinkBwp, PdschCommonAllocationsAtTheirLimits)
{
    for (const unsigned count : {1U, 2U, 16U})
    {
        RrcPdschCfgCommon_t cfg{};
        fillPdschCommon(cfg, count, RRC_PDSCH_COMMON_PRESENCE);
        BWP_DownlinkCommon_pdsch_ConfigCommon choice{};
        EXPECT_EQ(rrcComposePdsch_ConfigCommon(&context, &choice, &cfg), VOS_OK);
        expectDecoded("PDSCH-ConfigCommon", asn1PE_PDSCH_ConfigCommon, *choice.u.setup,
                      "{\"pdsch-TimeDomainAllocationList\":" + array(count, allocationJson) + "}");
    }
    for (const unsigned count : {0U, 17U, 255U})
    {
        RrcPdschCfgCommon_t cfg{};
        fillPdschCommon(cfg, count, RRC_PDSCH_COMMON_PRESENCE);
        PDSCH_ConfigCommon common{};
        EXPECT_EQ(rrcComposePdsch_ConfigCommonSetup(&context, &common, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_PDSCH_ConfigCommon, common), "PDSCH-ConfigCommon.pdsch-TimeDomainAllocationList: " +
                                                                 std::to_string(count) + " elements, not 1..16");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(downlinkBwp, AllocationWithoutItsBitHasNoK0)
{
    for (const unsigned mask : masks(1))
    {
        RrcPdschTimeDomainResourceAlloc_t cfg{1, 127, static_cast<UINT8>(mask), 32};
        PDSCH_TimeDomainResourceAllocation allocation{};
        EXPECT_EQ(rrcComposePDSCH_TimeDomainResAlloc(&allocation, &cfg), VOS_OK);
        expectDecoded(
            "PDSCH-TimeDomainResourceAllocation", asn1PE_PDSCH_TimeDomainResourceAllocation, allocation,
            object({mask & 1 ? "\"k0\":32" : "", R"("mappingType":"typeB")", "\"startSymbolAndLength\":127"}));
    }
}

TEST_F(downlinkBwp, PdschCommonWithoutHeapDoesNotReachTheBandwidthPart)
{
    RrcBwpDlCommon_t cfg{};
    cfg.bitMask = RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE;
    fillPdschCommon(cfg.pdschCfgCommon, 2, RRC_PDSCH_COMMON_PRESENCE);
    for (unsigned successes = 0; successes <= 3; ++successes)
    {
        BWP_DownlinkCommon bwp{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeBWP_DownlinkCommon(&context, &bwp, &cfg), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), successes < 3);
        }
        EXPECT_EQ(printed(), successes == 1 || successes == 2
                                 ? "pNode Or pItem is NULL\r\nrrcComposepdsch_TimeDomainAllocationList Error\r\n"
                                 : "");
        if (successes == 0)
        {
            EXPECT_EQ(encode(asn1PE_BWP_DownlinkCommon, bwp),
                      "BWP-DownlinkCommon.pdsch-ConfigCommon: tag 0 is not in 1..2");
            continue;
        }
        EXPECT_EQ(bwp.pdsch_ConfigCommon.u.setup->pdsch_TimeDomainAllocationList.count, successes - 1);
    }
}

TEST_F(downlinkBwp, RecordOrder)
{
    EXPECT_TRUE(rising({offsetof(RrcBwpDl_t, bwpId), offsetof(RrcBwpDl_t, bitMask), offsetof(RrcBwpDl_t, bwpCommon),
                        offsetof(RrcBwpDl_t, bwpDedicated)}));
    {
        using R = RrcBwpDlDedicated_t;
        EXPECT_TRUE(rising({offsetof(R, bitMask), offsetof(R, pdcchCfg), offsetof(R, pdschCfg), offsetof(R, spsCfg),
                            offsetof(R, radioLinkMonitorCfg)}));
    }
    {
        using R = RrcBwpDlCommon_t;
        EXPECT_TRUE(rising({offsetof(R, genericParam), offsetof(R, bitMask), offsetof(R, pdcchCfgCommon),
                            offsetof(R, pdschCfgCommon)}));
    }
    {
        using R = RrcBwp_t;
        EXPECT_TRUE(rising({offsetof(R, locationAndBandwidth), offsetof(R, subCarrierSpacing), offsetof(R, bitMask),
                            offsetof(R, cyclicPrefix)}));
    }
    {
        using R = RrcPdcchCfgCommon_t;
        EXPECT_TRUE(rising({offsetof(R, numCommonSearchSpace), offsetof(R, commonSearchSpace), offsetof(R, bitMask),
                            offsetof(R, controlResourceSetZero), offsetof(R, commonControlResourceSet),
                            offsetof(R, searchSpaceZero), offsetof(R, searchSpaceSIB1), offsetof(R, searchSpaceOtherSi),
                            offsetof(R, searchSpacePaing), offsetof(R, searchSpaceRa)}));
    }
    EXPECT_TRUE(
        rising({offsetof(RrcPdschCfgCommon_t, bitMask), offsetof(RrcPdschCfgCommon_t, pdschTimeDomainAllocList)}));
    {
        using R = RrcServingCellCfg_t;
        EXPECT_TRUE(rising({offsetof(R, tagId),
                            offsetof(R, bitMask),
                            offsetof(R, tddUlDlCfgDed),
                            offsetof(R, initDlBwp),
                            offsetof(R, numDlBwpRel),
                            offsetof(R, dlBwpId),
                            offsetof(R, numDlBwpAddMod),
                            offsetof(R, dlBwp),
                            offsetof(R, firstActiveDlBwpId),
                            offsetof(R, bwpInactiveTimer),
                            offsetof(R, defaultDlBwpId),
                            offsetof(R, ulCfg),
                            offsetof(R, suppUlCfg),
                            offsetof(R, pdcchServingCellCfg),
                            offsetof(R, pdschServingCellCfg),
                            offsetof(R, csiMeasCfg),
                            offsetof(R, sCellDeativationTimer),
                            offsetof(R, dummy),
                            offsetof(R, pathLossRefLinking),
                            offsetof(R, servingCellMo)}));
    }
}
