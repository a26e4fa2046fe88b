#include "cellGroupCfg/uplinkBwp.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"
#include "uplinkRecords.h"

using test::array;
using test::dedicatedJson;
using test::fillDedicated;
using test::HeapFault;
using test::masks;
using test::numbers;
using test::object;
using test::rachCommon;
using test::rachCommonJson;
using test::rachGeneric;
using test::rachGenericJson;
using test::rising;

namespace
{

const std::string noNode = "pNode Or pItem is NULL\r\n";

class uplinkBwp : public test::ComposerTest
{
protected:
    BeamFailureRecoveryConfig beamFailureRecovery(RrcBeamFailRecoveryCfg_t record)
    {
        BeamFailureRecoveryConfig element{};
        EXPECT_EQ(rrcComposeBeamFailureRecovery_ConfigSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    RACH_ConfigCommon rach(RrcRachCfgComm_t record)
    {
        RACH_ConfigCommon element{};
        EXPECT_EQ(rrcComposeRACH_Configsetup(&element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PUSCH_ConfigCommon pusch(RrcPuschCfgComm_t record)
    {
        PUSCH_ConfigCommon element{};
        EXPECT_EQ(rrcComposePusch_ConfigCommonsetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PUCCH_ConfigCommon pucch(RrcPucchCfgComm_t record)
    {
        PUCCH_ConfigCommon element{};
        EXPECT_EQ(rrcComposePucch_ConfigCommonsetup(&element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    // The choice for these bits of presence1 and this octet, without a line printed.
    RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB occasions(unsigned presence1, UINT8 octet)
    {
        RrcRachCfgComm_t record{};
        record.presence1 = static_cast<UINT8>(presence1);
        record.ssbPerRachOccasionAndCbPreamblesPerSsb.oneEighth = octet;
        RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB element{};
        EXPECT_EQ(rrcComposeRach_OccasionAndCB_PreamblesPerSSB(&element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

RrcBeamFailRecoveryCfg_t recoveryRecord(unsigned bitMask)
{
    return {static_cast<UINT16>(bitMask), 137, rachGeneric(), 127, 7, 15, 39, {3, 0, 0}, 6, 4};
}

RrcPuschTimeDomainResourceAllocList_t allocations(UINT8 count)
{
    RrcPuschTimeDomainResourceAllocList_t record{};
    record.numPuschTimeDomainResourceAllocList = count;
    for (UINT8 i = 0; i < 16; ++i)
    {
        record.item[i].startSymbolAndLen = i;
    }
    return record;
}

std::string allocationsJson(unsigned count)
{
    return array(count, [](unsigned i)
                 { return R"({"mappingType":"typeA","startSymbolAndLength":)" + std::to_string(i) + "}"; });
}

void fillCommon(RrcBwpUlComm_t& record, unsigned bitMask)
{
    record.genericParam = {37949, 4, RRC_BWP_CYCLEPREFIX_PRESENCE, 0};
    record.bitMask = static_cast<UINT8>(bitMask);
    record.rachCfgComm = rachCommon();
    record.puschCfgComm.bitMask = RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE;
    record.pucchCfgComm.pucchGroupHopping = 2;
}

const std::string genericJson =
    R"("genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz240","cyclicPrefix":"extended"})";

std::string commonJson(unsigned bitMask)
{
    return object({genericJson, bitMask & 1 ? "\"rach-ConfigCommon\":{\"setup\":" + rachCommonJson() + "}" : "",
                   bitMask & 2 ? R"("pusch-ConfigCommon":{"setup":{"p0-NominalWithGrant":0}})" : "",
                   bitMask & 4 ? R"("pucch-ConfigCommon":{"setup":{"pucch-GroupHopping":"disable"}})" : ""});
}

std::string bwpJson(unsigned id)
{
    return "{\"bwp-Id\":" + std::to_string(id) + "}";
}

} // namespace

// Dedicated part

TEST_F(uplinkBwp, DedicatedOptions)
{
    const auto record = cleared<RrcBwpUlDedi_t>();
    for (const unsigned mask : masks(5))
    {
        fillDedicated(*record, mask);
        BWP_UplinkDedicated element{};
        EXPECT_EQ(rrcComposeInitialUplinkBWP(&context, &element, record.get()), VOS_OK);
        EXPECT_EQ(printed(), "");
        expectDecoded("BWP-UplinkDedicated", asn1PE_BWP_UplinkDedicated, element, dedicatedJson(mask & 0x1F));
    }
}

TEST_F(uplinkBwp, DedicatedWithoutHeap)
{
    const char* const members[] = {"pucch-Config", "pusch-Config", "configuredGrantConfig", "srs-Config"};
    const auto record = cleared<RrcBwpUlDedi_t>();
    for (unsigned i = 0; i < 4; ++i)
    {
        fillDedicated(*record, 1U << i);
        BWP_UplinkDedicated element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposeInitialUplinkBWP(&context, &element, record.get()), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_BWP_UplinkDedicated, element),
                  std::string("BWP-UplinkDedicated.") + members[i] + ": tag 0 is not in 1..2");
    }
    fillDedicated(*record, RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE);
    BWP_UplinkDedicated element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeInitialUplinkBWP(&context, &element, record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pSetup") +
                             "rrcComposeBeamFailureRecovery_ConfigSetup Error\r\n"
                             "rrcComposeBWPbeamFailureRecovery_Config Error\r\n");
}

TEST_F(uplinkBwp, PuschWrapperIgnoresWhatIsMissing)
{
    RrcPuschCfg_t record{};
    record.bitMask = RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE;
    record.puschTimeDomainAllocList = allocations(2);
    BWP_UplinkDedicated_pusch_Config element{};
    {
        const HeapFault fault(3);
        EXPECT_EQ(rrcComposeBWPPusch_Config(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), noNode);
    ASSERT_EQ(element.t, static_cast<OSUINT32>(T_BWP_UplinkDedicated_pusch_Config_setup));
    expectDecoded("PUSCH-Config", asn1PE_PUSCH_Config, *element.u.setup,
                  R"({"resourceAllocation":"resourceAllocationType0","pusch-TimeDomainAllocationList":{"setup":)" +
                      allocationsJson(1) + "}}");
}

// Beam failure recovery

TEST_F(uplinkBwp, BeamFailureRecoveryOptions)
{
    for (const unsigned mask : masks(9))
    {
        expectDecoded("BeamFailureRecoveryConfig", asn1PE_BeamFailureRecoveryConfig,
                      beamFailureRecovery(recoveryRecord(mask)),
                      object({mask & 0x01 ? R"("rootSequenceIndex-BFR":137)" : "",
                              mask & 0x02 ? "\"rach-ConfigBFR\":" + rachGenericJson() : "",
                              mask & 0x04 ? R"("rsrp-ThresholdSSB":127)" : "",
                              mask & 0x08 ? R"("ssb-perRACH-Occasion":"sixteen")" : "",
                              mask & 0x10 ? R"("ra-ssb-OccasionMaskIndex":15)" : "",
                              mask & 0x20 ? R"("recoverySearchSpaceId":39)" : "",
                              mask & 0x40 ? R"("ra-Prioritization":{"powerRampingStepHighPriority":"dB6"})" : "",
                              mask & 0x80 ? R"("beamFailureRecoveryTimer":"ms150")" : ""}));
    }
}

TEST_F(uplinkBwp, Msg1SpacingIsInTheTreeAndNotSent)
{
    const BeamFailureRecoveryConfig element =
        beamFailureRecovery(recoveryRecord(RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE));
    EXPECT_EQ(element.m.msg1_SubcarrierSpacing_v1530Present, 1U);
    EXPECT_EQ(element.msg1_SubcarrierSpacing_v1530, 4U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    EXPECT_EQ(element.m.candidateBeamRSListPresent, 0U);
    expectDecoded("BeamFailureRecoveryConfig", asn1PE_BeamFailureRecoveryConfig, element, "{}");
}

TEST_F(uplinkBwp, BeamFailureRecoveryNullGuards)
{
    RrcBeamFailRecoveryCfg_t record{};
    BeamFailureRecoveryConfig element{};
    EXPECT_EQ(rrcComposeBeamFailureRecovery_ConfigSetup(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pSetup"));
    EXPECT_EQ(rrcComposeBeamFailureRecovery_ConfigSetup(&context, nullptr, &record), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pSetup"));
    EXPECT_EQ(rrcComposeBeamFailureRecovery_ConfigSetup(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pRrcCfg"));

    BWP_UplinkDedicated_beamFailureRecoveryConfig choice{};
    EXPECT_EQ(rrcComposeBWPbeamFailureRecovery_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pRrcCfg") +
                             "rrcComposeBeamFailureRecovery_ConfigSetup Error\r\n");
}

// RACH-ConfigCommon

TEST_F(uplinkBwp, RachOptions)
{
    for (const unsigned mask : masks(7))
    {
        RrcRachCfgComm_t record = rachCommon();
        record.bitMask = static_cast<UINT8>(mask);
        record.totalNumOfRaPreambles = 63;
        record.presence1 = RRC_RACH_CFG_COMMON_ONE_PRESENCE;
        record.ssbPerRachOccasionAndCbPreamblesPerSsb.one = 15;
        record.groupBCfgd = {9, 7, 64};
        record.rsrpThreshSsb = 127;
        record.rsrpThreshSsbSul = 126;
        record.msg1SubCarrierSpacing = 3;
        expectDecoded(
            "RACH-ConfigCommon", asn1PE_RACH_ConfigCommon, rach(record),
            object({"\"rach-ConfigGeneric\":" + rachGenericJson(),
                    mask & 0x01 ? R"("totalNumberOfRA-Preambles":63)" : "",
                    mask & 0x02 ? R"("ssb-perRACH-OccasionAndCB-PreamblesPerSSB":{"one":"n64"})" : "",
                    mask & 0x04 ? R"("groupBconfigured":{"ra-Msg3SizeGroupA":"b72",)"
                                  R"("messagePowerOffsetGroupB":"dB18","numberOfRA-PreamblesGroupA":64})"
                                : "",
                    R"("ra-ContentionResolutionTimer":"sf64")", mask & 0x08 ? R"("rsrp-ThresholdSSB":127)" : "",
                    mask & 0x10 ? R"("rsrp-ThresholdSSB-SUL":126)" : "", R"("prach-RootSequenceIndex":{"l839":837})",
                    mask & 0x20 ? R"("msg1-SubcarrierSpacing":"kHz120")" : "",
                    R"("restrictedSetConfig":"restrictedSetTypeB")",
                    mask & 0x40 ? R"("msg3-transformPrecoder":"enabled")" : ""}));
    }
}

TEST_F(uplinkBwp, OccasionsByTheirBits)
{
    const struct
    {
        unsigned presence1;
        OSUINT32 tag;
    } cases[] = {
        {0x00, 0}, {0x01, 3}, {0x02, 2}, {0x03, 3}, {0x04, 0}, {0x05, 3}, {0x06, 2}, {0x08, 4}, {0x0F, 4},
        {0x10, 5}, {0x1F, 5}, {0x20, 6}, {0x3F, 6}, {0x40, 7}, {0x7F, 7}, {0x80, 8}, {0x81, 8}, {0xFF, 8},
    };
    for (const auto& [presence1, tag] : cases)
    {
        const auto element = occasions(presence1, 4);
        EXPECT_EQ(element.t, tag) << presence1;
        if (tag >= 6)
        {
            EXPECT_EQ(element.u.sixteen, 4) << presence1;
        }
        else
        {
            EXPECT_EQ(element.u.one, tag == 0 ? 0U : 4U) << presence1;
        }
    }
}

TEST_F(uplinkBwp, OccasionsAsSent)
{
    const struct
    {
        unsigned presence1;
        UINT8 octet;
        const char* json;
    } cases[] = {
        {RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE, 14, R"({"oneHalf":"n60"})"},
        {RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE, 13, R"({"oneFourth":"n56"})"},
        {RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE | RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE, 0, R"({"oneHalf":"n4"})"},
        {RRC_RACH_CFG_COMMON_ONE_PRESENCE, 15, R"({"one":"n64"})"},
        {RRC_RACH_CFG_COMMON_TWO_PRESENCE, 7, R"({"two":"n32"})"},
        {RRC_RACH_CFG_COMMON_FOUR_PRESENCE, 16, R"({"four":16})"},
        {RRC_RACH_CFG_COMMON_EIGHT_PRESENCE, 8, R"({"eight":8})"},
        {RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE, 4, R"({"sixteen":4})"},
    };
    for (const auto& [presence1, octet, json] : cases)
    {
        RrcRachCfgComm_t record = rachCommon();
        record.bitMask = RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE;
        record.presence1 = static_cast<UINT8>(presence1);
        record.ssbPerRachOccasionAndCbPreamblesPerSsb.oneEighth = octet;
        expectDecoded("RACH-ConfigCommon", asn1PE_RACH_ConfigCommon, rach(record),
                      "{\"rach-ConfigGeneric\":" + rachGenericJson() +
                          ",\"ssb-perRACH-OccasionAndCB-PreamblesPerSSB\":" + json +
                          R"(,"ra-ContentionResolutionTimer":"sf64","prach-RootSequenceIndex":{"l839":837},)"
                          R"("restrictedSetConfig":"restrictedSetTypeB"})");
    }
}

TEST_F(uplinkBwp, OneHalfBitAloneIsLeftToTheEncoder)
{
    RrcRachCfgComm_t record = rachCommon();
    record.bitMask = RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE;
    record.presence1 = RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE;
    EXPECT_EQ(encode(asn1PE_RACH_ConfigCommon, rach(record)),
              "RACH-ConfigCommon.ssb-perRACH-OccasionAndCB-PreamblesPerSSB: tag 0 is not in 1..8");
}

TEST_F(uplinkBwp, RootSequenceIndices)
{
    for (unsigned presence = 0; presence < 4; ++presence)
    {
        RrcRachCfgComm_t record = rachCommon();
        record.presence = static_cast<UINT8>(0xFCU | presence);
        record.prachRootSeqIdx.l839 = 0;
        if (presence >= 2)
        {
            record.prachRootSeqIdx.l139 = 137;
        }
        const RACH_ConfigCommon element = rach(record);
        if (presence == 0)
        {
            EXPECT_EQ(encode(asn1PE_RACH_ConfigCommon, element),
                      "RACH-ConfigCommon.prach-RootSequenceIndex: tag 0 is not in 1..2");
            continue;
        }
        expectDecoded("RACH-ConfigCommon", asn1PE_RACH_ConfigCommon, element,
                      "{\"rach-ConfigGeneric\":" + rachGenericJson() +
                          R"(,"ra-ContentionResolutionTimer":"sf64","prach-RootSequenceIndex":)" +
                          (presence == 1 ? R"({"l839":0})" : R"({"l139":137})") +
                          R"(,"restrictedSetConfig":"restrictedSetTypeB"})");
    }
}

// PUSCH-ConfigCommon

TEST_F(uplinkBwp, PuschCommonOptions)
{
    for (const unsigned mask : masks(4))
    {
        expectDecoded(
            "PUSCH-ConfigCommon", asn1PE_PUSCH_ConfigCommon,
            pusch({static_cast<UINT8>(mask), 0, allocations(1), 6, 24}),
            object({mask & 1 ? R"("groupHoppingEnabledTransformPrecoding":"enabled")" : "",
                    mask & 2 ? "\"pusch-TimeDomainAllocationList\":" + allocationsJson(1) : "",
                    mask & 4 ? R"("msg3-DeltaPreamble":6)" : "", mask & 8 ? R"("p0-NominalWithGrant":24)" : ""}));
    }
}

TEST_F(uplinkBwp, PuschCommonAllocationCounts)
{
    for (const unsigned count : {0U, 16U, 17U, 255U})
    {
        const PUSCH_ConfigCommon element = pusch({RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE, 0,
                                                  allocations(static_cast<UINT8>(count)), 0, 0});
        if (count == 16)
        {
            expectDecoded("PUSCH-ConfigCommon", asn1PE_PUSCH_ConfigCommon, element,
                          "{\"pusch-TimeDomainAllocationList\":" + allocationsJson(16) + "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_PUSCH_ConfigCommon, element), "PUSCH-ConfigCommon.pusch-TimeDomainAllocationList: " +
                                                                  std::to_string(count) + " elements, not 1..16");
    }
}

TEST_F(uplinkBwp, Msg3DeltaIsTwosComplement)
{
    expectDecoded("PUSCH-ConfigCommon", asn1PE_PUSCH_ConfigCommon,
                  pusch({RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE, 0, {}, 0xFF, 0}),
                  R"({"msg3-DeltaPreamble":-1})");
    EXPECT_EQ(
        encode(asn1PE_PUSCH_ConfigCommon, pusch({RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE, 0, {}, 0xFE, 0})),
        "PUSCH-ConfigCommon.msg3-DeltaPreamble: -2 is not in -1..6");
    EXPECT_EQ(encode(asn1PE_PUSCH_ConfigCommon, pusch({RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE, 0, {}, 7, 0})),
              "PUSCH-ConfigCommon.msg3-DeltaPreamble: 7 is not in -1..6");
}

TEST_F(uplinkBwp, NominalPowerWithGrantIsUnsigned)
{
    const auto element = [this](UINT8 octet)
    {
        return pusch({RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE, 0, {}, 0, octet});
    };
    EXPECT_EQ(element(0xA6).p0_NominalWithGrant, 166);
    EXPECT_EQ(encode(asn1PE_PUSCH_ConfigCommon, element(0xA6)),
              "PUSCH-ConfigCommon.p0-NominalWithGrant: 166 is not in -202..24");
    EXPECT_EQ(encode(asn1PE_PUSCH_ConfigCommon, element(25)),
              "PUSCH-ConfigCommon.p0-NominalWithGrant: 25 is not in -202..24");
    expectDecoded("PUSCH-ConfigCommon", asn1PE_PUSCH_ConfigCommon, element(0), R"({"p0-NominalWithGrant":0})");
}

// PUCCH-ConfigCommon

TEST_F(uplinkBwp, PucchCommonOptions)
{
    for (const unsigned mask : masks(3))
    {
        expectDecoded("PUCCH-ConfigCommon", asn1PE_PUCCH_ConfigCommon,
                      pucch({1, static_cast<UINT8>(mask), 15, 1023, 24}),
                      object({mask & 1 ? R"("pucch-ResourceCommon":15)" : "", R"("pucch-GroupHopping":"enable")",
                              mask & 2 ? R"("hoppingId":1023)" : "", mask & 4 ? R"("p0-nominal":24)" : ""}));
    }
}

TEST_F(uplinkBwp, NominalPowerOfPucchIsSigned)
{
    for (const int power : {-90, -128, -1, 0})
    {
        expectDecoded("PUCCH-ConfigCommon", asn1PE_PUCCH_ConfigCommon,
                      pucch({0, RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE, 0, 0, static_cast<INT8>(power)}),
                      R"({"pucch-GroupHopping":"neither","p0-nominal":)" + std::to_string(power) + "}");
    }
    EXPECT_EQ(encode(asn1PE_PUCCH_ConfigCommon, pucch({0, RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE, 0, 0, 25})),
              "PUCCH-ConfigCommon.p0-nominal: 25 is not in -202..24");
}

// Common part

TEST_F(uplinkBwp, CommonOptions)
{
    for (const unsigned mask : masks(3))
    {
        RrcBwpUlComm_t record{};
        fillCommon(record, mask);
        BWP_UplinkCommon element{};
        EXPECT_EQ(rrcComposeBWP_UplinkCommon(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        expectDecoded("BWP-UplinkCommon", asn1PE_BWP_UplinkCommon, element, commonJson(mask));
    }
}

TEST_F(uplinkBwp, CommonWithoutHeap)
{
    RrcBwpUlComm_t record{};
    fillCommon(record, 7);
    BWP_UplinkCommon element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeBWP_UplinkCommon(&context, &element, &record), VOS_ERROR);
    }
    EXPECT_EQ(printed(), "pSetup malloc error\r\nrrcComposeBWPrach_ConfigCommon Error\r\n");
    EXPECT_EQ(element.m.pusch_ConfigCommonPresent, 0U) << "later members are left out";

    const char* const members[] = {"pusch-ConfigCommon", "pucch-ConfigCommon"};
    for (unsigned i = 0; i < 2; ++i)
    {
        fillCommon(record, 2U << i);
        element = {};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposeBWP_UplinkCommon(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_BWP_UplinkCommon, element),
                  std::string("BWP-UplinkCommon.") + members[i] + ": tag 0 is not in 1..2");
    }
}

TEST_F(uplinkBwp, PuschCommonWrapperIgnoresWhatIsMissing)
{
    RrcPuschCfgComm_t record{0x0F, 0, allocations(2), 0, 0};
    BWP_UplinkCommon_pusch_ConfigCommon element{};
    {
        const HeapFault fault(2);
        EXPECT_EQ(rrcComposeBWPpusch_ConfigCommon(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), noNode + "rrcComposePUSCH_TimeDomainResourceAllocationSetup Error\r\n");
    ASSERT_EQ(element.t, static_cast<OSUINT32>(T_BWP_UplinkCommon_pusch_ConfigCommon_setup));
    expectDecoded("PUSCH-ConfigCommon", asn1PE_PUSCH_ConfigCommon, *element.u.setup,
                  R"({"groupHoppingEnabledTransformPrecoding":"enabled","pusch-TimeDomainAllocationList":)" +
                      allocationsJson(1) + "}");
}

TEST_F(uplinkBwp, GenericParametersNotTakenAreLeftToTheEncoder)
{
    RrcBwpUlComm_t record{};
    fillCommon(record, 0);
    record.genericParam.locationAndBandwidth = 37950;
    BWP_UplinkCommon element{};
    EXPECT_EQ(rrcComposeBWP_UplinkCommon(&context, &element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_BWP_UplinkCommon, element),
              "BWP-UplinkCommon.genericParameters.locationAndBandwidth: 37950 is not in 0..37949");
}

// Bandwidth parts

TEST_F(uplinkBwp, BandwidthPartOptions)
{
    const auto record = cleared<RrcBwpUl_t>();
    record->bwpId = 4;
    fillCommon(record->bwpCommon, 7);
    fillDedicated(record->bwpDedicated, 0x1F);
    for (const unsigned mask : masks(2))
    {
        record->bitMask = static_cast<UINT8>(mask);
        BWP_Uplink element{};
        EXPECT_EQ(rrcComposeBWP_Uplink(&context, &element, record.get()), VOS_OK);
        EXPECT_EQ(printed(), "");
        expectDecoded("BWP-Uplink", asn1PE_BWP_Uplink, element,
                      object({R"("bwp-Id":4)", mask & 1 ? "\"bwp-Common\":" + commonJson(7) : "",
                              mask & 2 ? "\"bwp-Dedicated\":" + dedicatedJson(0x1F) : ""}));
    }
}

TEST_F(uplinkBwp, BandwidthPartsToAddOrModify)
{
    const auto record = cleared<RrcUlCfg_t>();
    for (UINT8 i = 0; i < 4; ++i)
    {
        record->ulBwpAddMod[i].bwpId = static_cast<UINT8>(i + 1);
    }
    for (const unsigned count : {0U, 1U, 4U, 5U, 255U})
    {
        record->numUlBwpAddMod = static_cast<UINT8>(count);
        UplinkConfig element{};
        element.m.uplinkBWP_ToAddModListPresent = 1;
        EXPECT_EQ(rrcComposeuplinkBWP_ToAddModList(&context, &element.uplinkBWP_ToAddModList, record.get()), VOS_OK);
        EXPECT_EQ(printed(), "");
        if (count == 1 || count == 4)
        {
            expectDecoded("UplinkConfig", asn1PE_UplinkConfig, element,
                          "{\"uplinkBWP-ToAddModList\":" + array(count, [](unsigned i) { return bwpJson(i + 1); }) +
                              "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_UplinkConfig, element),
                  "UplinkConfig.uplinkBWP-ToAddModList: " + std::to_string(count) + " elements, not 1..4");
    }
}

TEST_F(uplinkBwp, BandwidthPartsToRelease)
{
    const auto record = cleared<RrcUlCfg_t>();
    for (UINT8 i = 0; i < 4; ++i)
    {
        record->ulBwpId[i] = static_cast<UINT8>(i + 1);
    }
    for (const unsigned count : {0U, 1U, 4U, 5U, 255U})
    {
        record->numUlBwpRel = static_cast<UINT8>(count);
        UplinkConfig element{};
        element.m.uplinkBWP_ToReleaseListPresent = 1;
        EXPECT_EQ(rrcComposeuplinkBWP_ToReleaseList(&element.uplinkBWP_ToReleaseList, record.get()), VOS_OK);
        if (count == 1 || count == 4)
        {
            expectDecoded("UplinkConfig", asn1PE_UplinkConfig, element,
                          "{\"uplinkBWP-ToReleaseList\":" + numbers(count, 1) + "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_UplinkConfig, element),
                  "UplinkConfig.uplinkBWP-ToReleaseList: " + std::to_string(count) + " elements, not 1..4");
    }
}

TEST_F(uplinkBwp, BandwidthPartsWithoutHeap)
{
    const auto record = cleared<RrcUlCfg_t>();
    record->numUlBwpAddMod = 2;
    fillCommon(record->ulBwpAddMod[1].bwpCommon, RRC_BWP_UL_COMM_RACH_PRESENCE);
    fillDedicated(record->ulBwpAddMod[1].bwpDedicated, RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE);
    record->ulBwpAddMod[1].bitMask = RRC_BWP_UL_COMMON_PRESENCE | RRC_BWP_UL_DEDICATED_PRESENCE;
    // Two nodes, and behind the second its RACH configuration and its beam failure recovery.
    const std::string lines[] = {
        noNode,
        noNode,
        "pSetup malloc error\r\nrrcComposeBWPrach_ConfigCommon Error\r\nrrcComposeBWP_UplinkCommon Error\r\n"
        "rrcComposeBWP_Uplink is Error\r\n",
        nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pSetup") +
            "rrcComposeBeamFailureRecovery_ConfigSetup Error\r\nrrcComposeBWPbeamFailureRecovery_Config Error\r\n"
            "rrcComposeInitialUplinkBWP Error\r\nrrcComposeBWP_Uplink is Error\r\n",
        "",
    };
    for (unsigned successes = 0; successes < 5; ++successes)
    {
        OSRTDList list{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeuplinkBWP_ToAddModList(&context, &list, record.get()),
                      successes < 4 ? VOS_ERROR : VOS_OK);
        }
        EXPECT_EQ(printed(), lines[successes]);
        EXPECT_EQ(list.count, successes == 0   ? 0U
                              : successes == 4 ? 2U
                                               : 1U)
            << "a part that failed is not in the list";
    }
}

TEST_F(uplinkBwp, RecordOrder)
{
    using Recovery = RrcBeamFailRecoveryCfg_t;
    static_assert(rising({offsetof(Recovery, bitMask), offsetof(Recovery, rootSeqIdxBFR),
                          offsetof(Recovery, rachCfgBFR), offsetof(Recovery, rsrpThreshSSB),
                          offsetof(Recovery, ssbPerRachOccasion), offsetof(Recovery, raSsbOccasionMaskIdx),
                          offsetof(Recovery, recoverySearchSpaceId), offsetof(Recovery, raPrio),
                          offsetof(Recovery, beamFailRecoveryTimer), offsetof(Recovery, msg1SubCarrierSpacingV1530)}));
    using Dedicated = RrcBwpUlDedi_t;
    static_assert(rising({offsetof(Dedicated, bitMask), offsetof(Dedicated, pucchCfg), offsetof(Dedicated, puschCfg),
                          offsetof(Dedicated, cfgGrantCfg), offsetof(Dedicated, srsCfg),
                          offsetof(Dedicated, beamFailRecoveryCfg)}));
    using Rach = RrcRachCfgComm_t;
    static_assert(rising({offsetof(Rach, rachCfgGeneric), offsetof(Rach, raContentionResolutionTimer),
                          offsetof(Rach, presence), offsetof(Rach, prachRootSeqIdx), offsetof(Rach, restritedSetCfg),
                          offsetof(Rach, bitMask), offsetof(Rach, totalNumOfRaPreambles), offsetof(Rach, presence1),
                          offsetof(Rach, ssbPerRachOccasionAndCbPreamblesPerSsb), offsetof(Rach, groupBCfgd),
                          offsetof(Rach, rsrpThreshSsb), offsetof(Rach, rsrpThreshSsbSul),
                          offsetof(Rach, msg1SubCarrierSpacing), offsetof(Rach, msg3TransformPreCoder)}));
    static_assert(sizeof Rach::ssbPerRachOccasionAndCbPreamblesPerSsb == 1);
    using Group = struct groupBCfgd_s;
    static_assert(rising({offsetof(Group, raMsg3SizeGroupA), offsetof(Group, msgPowerOffsetGroupB),
                          offsetof(Group, numOfRaPreambleGroupA)}));
    using Pusch = RrcPuschCfgComm_t;
    static_assert(rising({offsetof(Pusch, bitMask), offsetof(Pusch, groupHoppingEnabledTransformPrecoding),
                          offsetof(Pusch, puschTimieDomainAllocList), offsetof(Pusch, msg3DeltaPreable),
                          offsetof(Pusch, p0NominalWithGrant)}));
    using Pucch = RrcPucchCfgComm_t;
    static_assert(rising({offsetof(Pucch, pucchGroupHopping), offsetof(Pucch, bitMask),
                          offsetof(Pucch, pucchResourceComm), offsetof(Pucch, hoppingId), offsetof(Pucch, p0Nominal)}));
    using Common = RrcBwpUlComm_t;
    static_assert(rising({offsetof(Common, genericParam), offsetof(Common, bitMask), offsetof(Common, rachCfgComm),
                          offsetof(Common, puschCfgComm), offsetof(Common, pucchCfgComm)}));
    using Bwp = RrcBwpUl_t;
    static_assert(
        rising({offsetof(Bwp, bwpId), offsetof(Bwp, bitMask), offsetof(Bwp, bwpCommon), offsetof(Bwp, bwpDedicated)}));
}
