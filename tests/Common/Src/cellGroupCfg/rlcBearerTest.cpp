#include "cellGroupCfg/rlcBearer.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::HeapFault;
using test::rising;
using testing::Each;

namespace
{

class rlcBearer : public test::ComposerTest
{
protected:
    // Composes the RLC configuration and has it decoded.
    void expectRlc(RrcRlcCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        RLC_Config element{};
        EXPECT_EQ(rrcComposeRlc_Config(&context, &element, &cfg), VOS_OK);
        expectDecoded("RLC-Config", asn1PE_RLC_Config, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectLch(RrcLchCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        LogicalChannelConfig element{};
        EXPECT_EQ(rrcComposeLogChannel_Config(&context, &element, &cfg), VOS_OK);
        expectDecoded("LogicalChannelConfig", asn1PE_LogicalChannelConfig, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectBearer(RrcRlcBearerCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        RLC_BearerConfig element{};
        EXPECT_EQ(rrcComposeRlc_BearerCfg(&context, &element, &cfg), VOS_OK);
        expectDecoded("RLC-BearerConfig", asn1PE_RLC_BearerConfig, element, json);
        EXPECT_EQ(printed(), "");
    }

    // The list alone in a cell group.
    CellGroupConfig* cellGroup()
    {
        auto* const p = static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&context, sizeof(CellGroupConfig)));
        asn1Init_CellGroupConfig(p);
        return p;
    }
};

RrcRlcCfg_t amCfg(RrcRlcSnFeildLenAm_e ul, RrcRlcSnFeildLenAm_e dl)
{
    RrcRlcCfg_t cfg{};
    cfg.bitMask = RRC_RLCCFG_AM_PRESENCE;
    cfg.choice.amCfg = {{ul, 8, 1, 43, 7}, {dl, 6, 61}};
    return cfg;
}

RrcRlcCfg_t umBiCfg(RrcRlcSnFeildLenUm_e dl, RrcRlcSnFeildLenUm_e ul)
{
    RrcRlcCfg_t cfg{};
    cfg.bitMask = RRC_RLCCFG_UM_BI_PRESENCE;
    cfg.choice.umBiCfg = {{dl, 30}, {ul}};
    return cfg;
}

RrcRlcCfg_t umUlCfg(RrcRlcSnFeildLenUm_e ul)
{
    RrcRlcCfg_t cfg{};
    cfg.bitMask = RRC_RLCCFG_UM_UNI_UL_PRESENCE;
    cfg.choice.umUniUlCfg = {ul};
    return cfg;
}

RrcRlcCfg_t umDlCfg(RrcRlcSnFeildLenUm_e dl)
{
    RrcRlcCfg_t cfg{};
    cfg.bitMask = RRC_RLCCFG_UM_UNI_DL_PRESENCE;
    cfg.choice.umUniDlCfg = {dl, 1};
    return cfg;
}

constexpr auto noAmSize = static_cast<RrcRlcSnFeildLenAm_e>(2);
constexpr auto noUmSize = static_cast<RrcRlcSnFeildLenUm_e>(0xFFFFFFFF);

RrcLchCfg_t lchCfg(UINT8 bitMask)
{
    RrcLchCfg_t cfg{};
    cfg.bitMask = RRC_LCH_EXPLICIT_PRESENCE;
    RrcUlSpecificParaCfg_t& ul = cfg.ulSpecificParaCfg;
    ul.priority = 16;
    ul.priorityBitRate = 15;
    ul.bucketSizeDuration = 8;
    ul.allowedCellNum = 3;
    ul.cellIdx[0] = 31;
    ul.cellIdx[1] = 0;
    ul.cellIdx[2] = 7;
    ul.allowedSCSNum = 2;
    ul.subCarrierSpacing[0] = 1;
    ul.subCarrierSpacing[1] = 3;
    ul.bitMask = bitMask;
    ul.maxPuschDuration = 5;
    ul.configuredGrantType1Allowed = 0;
    ul.logicalChannelGroupId = 7;
    ul.schedReqId = 6;
    ul.logicalChannelSrMask = 0;
    ul.logcalChannelSrDealyTimerApplied = 1;
    ul.bitRateQueryProhibitTimer = 4;
    return cfg;
}

RrcRlcBearerCfg_t bearerCfg(UINT8 lchId, UINT8 bitMask)
{
    RrcRlcBearerCfg_t cfg{};
    cfg.lchId = lchId;
    cfg.bitMask = bitMask;
    cfg.rbType = RRC_DRB;
    cfg.rbId = 32;
    cfg.rlcCfg = umUlCfg(RRC_UM_SIZE12);
    return cfg;
}

} // namespace

// RLC configuration

TEST_F(rlcBearer, AcknowledgedMode)
{
    expectRlc(
        amCfg(RRC_AM_SIZE12, RRC_AM_SIZE18),
        R"({"am":{"ul-AM-RLC":{"sn-FieldLength":"size12","t-PollRetransmit":"ms45","pollPDU":"p8","pollByte":"infinity","maxRetxThreshold":"t32"},)"
        R"("dl-AM-RLC":{"sn-FieldLength":"size18","t-Reassembly":"ms30","t-StatusProhibit":"ms2400"}}})");
    expectRlc(
        amCfg(RRC_AM_SIZE18, noAmSize),
        R"({"am":{"ul-AM-RLC":{"sn-FieldLength":"size18","t-PollRetransmit":"ms45","pollPDU":"p8","pollByte":"infinity","maxRetxThreshold":"t32"},)"
        R"("dl-AM-RLC":{"t-Reassembly":"ms30","t-StatusProhibit":"ms2400"}}})");
    expectRlc(
        amCfg(noAmSize, RRC_AM_SIZE12),
        R"({"am":{"ul-AM-RLC":{"t-PollRetransmit":"ms45","pollPDU":"p8","pollByte":"infinity","maxRetxThreshold":"t32"},)"
        R"("dl-AM-RLC":{"sn-FieldLength":"size12","t-Reassembly":"ms30","t-StatusProhibit":"ms2400"}}})");
}

TEST_F(rlcBearer, UnacknowledgedModeBothDirections)
{
    expectRlc(
        umBiCfg(RRC_UM_SIZE6, RRC_UM_SIZE12),
        R"({"um-Bi-Directional":{"ul-UM-RLC":{"sn-FieldLength":"size12"},"dl-UM-RLC":{"sn-FieldLength":"size6","t-Reassembly":"ms200"}}})");
    expectRlc(umBiCfg(noUmSize, RRC_UM_SIZE6),
              R"({"um-Bi-Directional":{"ul-UM-RLC":{"sn-FieldLength":"size6"},"dl-UM-RLC":{"t-Reassembly":"ms200"}}})");
    expectRlc(
        umBiCfg(RRC_UM_SIZE12, noUmSize),
        R"({"um-Bi-Directional":{"ul-UM-RLC":{},"dl-UM-RLC":{"sn-FieldLength":"size12","t-Reassembly":"ms200"}}})");
}

TEST_F(rlcBearer, UnacknowledgedModeOneDirection)
{
    expectRlc(umUlCfg(RRC_UM_SIZE6), R"({"um-Uni-Directional-UL":{"ul-UM-RLC":{"sn-FieldLength":"size6"}}})");
    expectRlc(umUlCfg(RRC_UM_SIZE12), R"({"um-Uni-Directional-UL":{"ul-UM-RLC":{"sn-FieldLength":"size12"}}})");
    expectRlc(umUlCfg(noUmSize), R"({"um-Uni-Directional-UL":{"ul-UM-RLC":{}}})");
    expectRlc(umDlCfg(RRC_UM_SIZE6),
              R"({"um-Uni-Directional-DL":{"dl-UM-RLC":{"sn-FieldLength":"size6","t-Reassembly":"ms5"}}})");
    expectRlc(umDlCfg(RRC_UM_SIZE12),
              R"({"um-Uni-Directional-DL":{"dl-UM-RLC":{"sn-FieldLength":"size12","t-Reassembly":"ms5"}}})");
    expectRlc(umDlCfg(noUmSize), R"({"um-Uni-Directional-DL":{"dl-UM-RLC":{"t-Reassembly":"ms5"}}})");
}

TEST_F(rlcBearer, SequenceNumberLengthTwoIsAbsentAndZero)
{
    RrcRlcCfg_t cfg = amCfg(noAmSize, noAmSize);
    RLC_Config element{};
    ASSERT_EQ(rrcComposeRlc_Config(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.u.am->ul_AM_RLC.m.sn_FieldLengthPresent, 0U);
    EXPECT_EQ(element.u.am->ul_AM_RLC.sn_FieldLength, 0U);
    EXPECT_EQ(element.u.am->dl_AM_RLC.m.sn_FieldLengthPresent, 0U);
    EXPECT_EQ(element.u.am->dl_AM_RLC.sn_FieldLength, 0U);
}

TEST_F(rlcBearer, AmAndUmDownlinkBitsGiveTheDownlinkFromTheSameOctets)
{
    RrcRlcCfg_t cfg = umDlCfg(RRC_UM_SIZE12);
    cfg.bitMask = RRC_RLCCFG_AM_PRESENCE | RRC_RLCCFG_UM_UNI_DL_PRESENCE;
    expectRlc(cfg, R"({"um-Uni-Directional-DL":{"dl-UM-RLC":{"sn-FieldLength":"size12","t-Reassembly":"ms5"}}})");
}

TEST_F(rlcBearer, TheHighestModeBitWins)
{
    for (unsigned bitMask = 1; bitMask < 16; ++bitMask)
    {
        RrcRlcCfg_t cfg{};
        cfg.bitMask = static_cast<UINT8>(bitMask | 0xF0);
        RLC_Config element{};
        ASSERT_EQ(rrcComposeRlc_Config(&context, &element, &cfg), VOS_OK);
        const unsigned highest = bitMask >= 8 ? 4 : bitMask >= 4 ? 3 : bitMask >= 2 ? 2 : 1;
        EXPECT_EQ(element.t, highest) << bitMask;
        EXPECT_EQ(encode(asn1PE_RLC_Config, element).find("RLC-Config"), std::string::npos) << bitMask;
    }
}

TEST_F(rlcBearer, NoModeBitLeavesTheChoiceWithoutAlternative)
{
    RrcRlcCfg_t cfg = amCfg(RRC_AM_SIZE12, RRC_AM_SIZE12);
    cfg.bitMask = 0xF0;
    RLC_Config element{};
    EXPECT_EQ(rrcComposeRlc_Config(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.t, 0U);
    EXPECT_EQ(encode(asn1PE_RLC_Config, element), "RLC-Config: tag 0 is not in 1..4");
    EXPECT_EQ(printed(), "");
}

TEST_F(rlcBearer, RlcNullGuards)
{
    RrcRlcCfg_t cfg{};
    RLC_Config element{};
    EXPECT_EQ(rrcComposeRlc_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_Config", "pRlcCfg"));
    EXPECT_EQ(rrcComposeRlc_Config(&context, nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_Config", "pRlcCfg"));
    EXPECT_EQ(rrcComposeRlc_Config(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_Config", "PRrcRlcCfg"));

    RLC_Config_am am{};
    EXPECT_EQ(rrcConstructRLC_Config_am(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_am", "pRlc_Cfg_am"));
    EXPECT_EQ(rrcConstructRLC_Config_am(&am, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_am", "pRrcAmRlcCfg"));

    RLC_Config_um_Bi_Directional um{};
    EXPECT_EQ(rrcConstructRLC_Config_um(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_um", "pRlc_Cfg_um_Bi_Dirrectional"));
    EXPECT_EQ(rrcConstructRLC_Config_um(&um, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_um", "pRrcumBiCfg"));

    RLC_Config_um_Uni_Directional_UL ul{};
    EXPECT_EQ(rrcConstructRLC_Config_um_Uni_Direc_Ul(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_um_Uni_Direc_Ul", "pRlc_Cfg_um_Uni_Dirrectional_Ul"));
    EXPECT_EQ(rrcConstructRLC_Config_um_Uni_Direc_Ul(&ul, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_um_Uni_Direc_Ul", "pRrcUmUniUlCfg"));

    RLC_Config_um_Uni_Directional_DL dl{};
    EXPECT_EQ(rrcConstructRLC_Config_um_Uni_Direc_Dl(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_um_Uni_Direc_Dl", "pRlc_Cfg_um_Uni_Dirrectional_Dl"));
    EXPECT_EQ(rrcConstructRLC_Config_um_Uni_Direc_Dl(&dl, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_um_Uni_Direc_Dl", "pRrcumUniDlCfg"));
}

TEST_F(rlcBearer, AmWithoutHeapFails)
{
    RrcRlcCfg_t cfg = amCfg(RRC_AM_SIZE12, RRC_AM_SIZE12);
    RLC_Config element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeRlc_Config(&context, &element, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_am", "pRlc_Cfg_am") + "rrcConstructRLC_Config_am ERROR\r\n");
}

TEST_F(rlcBearer, UmWithoutHeapIsNotNoticedBeforeTheEncoder)
{
    const struct
    {
        RrcRlcCfg_t cfg;
        std::string line;
    } cases[] = {
        {umBiCfg(RRC_UM_SIZE6, RRC_UM_SIZE6), nullLine("rrcConstructRLC_Config_um", "pRlc_Cfg_um_Bi_Dirrectional")},
        {umUlCfg(RRC_UM_SIZE6), nullLine("rrcConstructRLC_Config_um_Uni_Direc_Ul", "pRlc_Cfg_um_Uni_Dirrectional_Ul")},
        {umDlCfg(RRC_UM_SIZE6), nullLine("rrcConstructRLC_Config_um_Uni_Direc_Dl", "pRlc_Cfg_um_Uni_Dirrectional_Dl")},
    };
    for (auto [cfg, line] : cases)
    {
        RLC_Config element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposeRlc_Config(&context, &element, &cfg), VOS_OK);
        }
        EXPECT_EQ(printed(), line);
        EXPECT_EQ(encode(asn1PE_RLC_Config, element), "RLC-Config: tag 0 is not in 1..4");
    }
}

// Logical channel configuration

TEST_F(rlcBearer, LogicalChannelWithoutExplicitBitIsEmpty)
{
    RrcLchCfg_t cfg = lchCfg(0xFF);
    cfg.bitMask = 0xFE;
    expectLch(cfg, "{}");
}

TEST_F(rlcBearer, LogicalChannelOptions)
{
    const std::string before =
        R"({"ul-SpecificParameters":{"priority":16,"prioritisedBitRate":"infinity","bucketSizeDuration":"ms1000")";
    const std::string masks = R"(,"logicalChannelSR-Mask":false,"logicalChannelSR-DelayTimerApplied":true)";
    const std::string cells = R"(,"allowedServingCells":[31,0,7])";
    const std::string spacings = R"(,"allowedSCS-List":["kHz30","kHz120"])";
    const std::string duration = R"(,"maxPUSCH-Duration":"ms0p5")";
    const std::string grant = R"(,"configuredGrantType1Allowed":"true")";
    const std::string group = R"(,"logicalChannelGroup":7)";
    const std::string request = R"(,"schedulingRequestID":6)";
    const std::string query = R"(,"bitRateQueryProhibitTimer":"s3")";
    const std::string end = "}}";
    expectLch(lchCfg(0), before + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE), before + cells + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE), before + spacings + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_PUSCH_CFG_PRESENCE), before + duration + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE), before + grant + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_LCG_CFG_PRESENCE), before + group + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_SR_CFG_PRESENCE), before + request + masks + end);
    expectLch(lchCfg(RRC_UL_SPECIFICPARA_BITRATE_QUERY_PROHIBIT_TIMER), before + masks + query + end);
    expectLch(lchCfg(0x7F), before + cells + spacings + duration + grant + group + request + masks + query + end);
    expectLch(lchCfg(0x80), before + masks + end);
}

TEST_F(rlcBearer, BooleansNarrowToEightBits)
{
    const std::string before =
        R"({"ul-SpecificParameters":{"priority":16,"prioritisedBitRate":"infinity","bucketSizeDuration":"ms1000",)";
    RrcLchCfg_t cfg = lchCfg(0);
    cfg.ulSpecificParaCfg.logicalChannelSrMask = 256;
    cfg.ulSpecificParaCfg.logcalChannelSrDealyTimerApplied = 2;
    expectLch(cfg, before + R"("logicalChannelSR-Mask":false,"logicalChannelSR-DelayTimerApplied":true}})");
    cfg.ulSpecificParaCfg.logicalChannelSrMask = -1;
    cfg.ulSpecificParaCfg.logcalChannelSrDealyTimerApplied = static_cast<BOOL>(0xFFFFFF00);
    expectLch(cfg, before + R"("logicalChannelSR-Mask":true,"logicalChannelSR-DelayTimerApplied":false}})");
}

TEST_F(rlcBearer, TrueIsZeroInConfiguredGrantType1Allowed)
{
    for (const BOOL value : {1, 256, -1})
    {
        RrcLchCfg_t cfg = lchCfg(RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE);
        cfg.ulSpecificParaCfg.configuredGrantType1Allowed = value;
        LogicalChannelConfig element{};
        EXPECT_EQ(rrcComposeLogChannel_Config(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_LogicalChannelConfig, element),
                  "LogicalChannelConfig.ul-SpecificParameters.configuredGrantType1Allowed: " +
                      std::to_string(static_cast<UINT32>(value)) + " is not in 0..0");
    }
}

TEST_F(rlcBearer, AllowedServingCellsCounts)
{
    std::vector<UINT8> cells(RRC_MAX_NROF_ALLOWED_SERVING_CELLS);
    std::iota(cells.begin(), cells.end(), UINT8{1});
    for (const unsigned count : {0U, 1U, 31U, 32U, 255U})
    {
        RrcLchCfg_t cfg = lchCfg(RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE);
        cfg.ulSpecificParaCfg.allowedCellNum = static_cast<UINT8>(count);
        std::copy(cells.begin(), cells.end(), cfg.ulSpecificParaCfg.cellIdx);
        LogicalChannelConfig element{};
        EXPECT_EQ(rrcComposeLogChannel_Config(&context, &element, &cfg), VOS_OK);
        const auto& list = element.ul_SpecificParameters.allowedServingCells;
        EXPECT_EQ(element.ul_SpecificParameters.m.allowedServingCellsPresent, 1U);
        EXPECT_EQ(list.n, count);
        const unsigned copied = std::min(count, 31U);
        EXPECT_TRUE(std::equal(cells.begin(), cells.begin() + copied, list.elem)) << count;
        EXPECT_THAT(std::vector<UINT8>(list.elem + copied, std::end(list.elem)), Each(0));
        EXPECT_EQ(element.ul_SpecificParameters.allowedSCS_List.n, 0U) << "behind the list";
        const std::string octets = encode(asn1PE_LogicalChannelConfig, element);
        if (count == 0 || count > 31)
        {
            EXPECT_EQ(octets, "LogicalChannelConfig.ul-SpecificParameters.allowedServingCells: " +
                                  std::to_string(count) + " elements, not 1..31");
        }
    }

    RrcUlSpecificParaCfg_t full = lchCfg(0).ulSpecificParaCfg;
    full.allowedCellNum = 31;
    std::copy(cells.begin(), cells.end(), full.cellIdx);
    LogicalChannelConfig_ul_SpecificParameters_allowedServingCells list{};
    EXPECT_EQ(rrcComposeAllowedServingCells(&list, &full), 0);
    EXPECT_THAT(list.elem, testing::ElementsAreArray(cells));
}

TEST_F(rlcBearer, AllowedScsListCounts)
{
    for (const unsigned count : {0U, 1U, 5U, 6U, 255U})
    {
        RrcLchCfg_t cfg = lchCfg(RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE);
        cfg.ulSpecificParaCfg.allowedSCSNum = static_cast<UINT8>(count);
        for (UINT8 i = 0; i < 5; ++i)
        {
            cfg.ulSpecificParaCfg.subCarrierSpacing[i] = static_cast<UINT8>(4 - i);
        }
        LogicalChannelConfig element{};
        EXPECT_EQ(rrcComposeLogChannel_Config(&context, &element, &cfg), VOS_OK);
        const auto& list = element.ul_SpecificParameters.allowedSCS_List;
        EXPECT_EQ(list.n, count);
        for (UINT8 i = 0; i < 5; ++i)
        {
            EXPECT_EQ(list.elem[i], i < count ? 4U - i : 0U) << count << ": " << unsigned{i};
        }
        EXPECT_EQ(element.ul_SpecificParameters.maxPUSCH_Duration, 0U) << "behind the list";
        const std::string octets = encode(asn1PE_LogicalChannelConfig, element);
        if (count == 0 || count > 5)
        {
            EXPECT_EQ(octets, "LogicalChannelConfig.ul-SpecificParameters.allowedSCS-List: " + std::to_string(count) +
                                  " elements, not 1..5");
        }
    }
    RrcLchCfg_t cfg = lchCfg(RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE);
    cfg.ulSpecificParaCfg.allowedSCSNum = 5;
    for (UINT8 i = 0; i < 5; ++i)
    {
        cfg.ulSpecificParaCfg.subCarrierSpacing[i] = i;
    }
    expectLch(
        cfg,
        R"({"ul-SpecificParameters":{"priority":16,"prioritisedBitRate":"infinity","bucketSizeDuration":"ms1000",)"
        R"("allowedSCS-List":["kHz15","kHz30","kHz60","kHz120","kHz240"],"logicalChannelSR-Mask":false,"logicalChannelSR-DelayTimerApplied":true}})");
}

TEST_F(rlcBearer, LogicalChannelNullGuards)
{
    RrcLchCfg_t cfg{};
    LogicalChannelConfig element{};
    EXPECT_EQ(rrcComposeLogChannel_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeLogChannel_Config", "pMac_LogicalChannelCfg"));
    EXPECT_EQ(rrcComposeLogChannel_Config(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeLogChannel_Config", "pRrcMacLchCfg"));
    EXPECT_EQ(rrcComposeUl_SpecificParam(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeUl_SpecificParam", "pUl_SpecificParameters"));
    EXPECT_EQ(rrcComposeUl_SpecificParam(&element.ul_SpecificParameters, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeUl_SpecificParam", "pRrcUlSpecificParaCfg"));
    EXPECT_EQ(rrcComposeLogChannel_Config(nullptr, &element, &cfg), VOS_OK) << "the context is not used";
    EXPECT_EQ(printed(), "");
}

// RLC bearers

TEST_F(rlcBearer, BearerOptions)
{
    const std::string id = R"({"logicalChannelIdentity":32)";
    const std::string served = R"(,"servedRadioBearer":{"drb-Identity":32})";
    const std::string reestablish = R"(,"reestablishRLC":"true")";
    const std::string rlc = R"(,"rlc-Config":{"um-Uni-Directional-UL":{"ul-UM-RLC":{"sn-FieldLength":"size12"}}})";
    const std::string lch = R"(,"mac-LogicalChannelConfig":{})";
    expectBearer(bearerCfg(32, 0), id + "}");
    expectBearer(bearerCfg(32, RRC_RLCBEARERCFG_RBTYPE_PRESENCE), id + served + "}");
    expectBearer(bearerCfg(32, RRC_RLCBEARERCFG_REESTABRLC_PRESENCE), id + reestablish + "}");
    expectBearer(bearerCfg(32, RRC_RLCBEARERCFG_RLC_PRESENCE), id + rlc + "}");
    expectBearer(bearerCfg(32, RRC_RLCBEARERCFG_LCH_PRESENCE), id + lch + "}");
    expectBearer(bearerCfg(32, 0x0F), id + served + reestablish + rlc + lch + "}");
    expectBearer(bearerCfg(32, 0xF0), id + "}");
}

TEST_F(rlcBearer, ServedRadioBearerKinds)
{
    RrcRlcBearerCfg_t cfg = bearerCfg(1, RRC_RLCBEARERCFG_RBTYPE_PRESENCE);
    cfg.rbType = RRC_SRB;
    cfg.rbId = 3;
    expectBearer(cfg, R"({"logicalChannelIdentity":1,"servedRadioBearer":{"srb-Identity":3}})");
    cfg.rbType = RRC_DRB;
    expectBearer(cfg, R"({"logicalChannelIdentity":1,"servedRadioBearer":{"drb-Identity":3}})");
}

TEST_F(rlcBearer, UnknownRadioBearerKindIsPresentWithTagZero)
{
    for (const UINT32 rbType : {2U, 0xFFFFFFFFU})
    {
        RrcRlcBearerCfg_t cfg = bearerCfg(1, RRC_RLCBEARERCFG_RBTYPE_PRESENCE);
        cfg.rbType = static_cast<RrcRbType_e>(rbType);
        RLC_BearerConfig element{};
        EXPECT_EQ(rrcComposeRlc_BearerCfg(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.m.servedRadioBearerPresent, 1U);
        EXPECT_EQ(element.servedRadioBearer.t, 0U);
        EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, element), "RLC-BearerConfig.servedRadioBearer: tag 0 is not in 1..2");
        EXPECT_EQ(printed(), "");
    }
}

TEST_F(rlcBearer, TrueIsZeroInReestablishRlc)
{
    RrcRlcBearerCfg_t cfg = bearerCfg(1, RRC_RLCBEARERCFG_REESTABRLC_PRESENCE);
    cfg.reestablRlc = 1;
    RLC_BearerConfig element{};
    EXPECT_EQ(rrcComposeRlc_BearerCfg(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, element), "RLC-BearerConfig.reestablishRLC: 1 is not in 0..0");
}

TEST_F(rlcBearer, BearerNullGuards)
{
    RLC_BearerConfig element{};
    RrcRlcBearerCfg_t cfg{};
    EXPECT_EQ(rrcComposeRlc_BearerCfg(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_BearerCfg", "pRlc_BearCfg"));
    EXPECT_EQ(rrcComposeRlc_BearerCfg(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_BearerCfg", "pRrcRlcBearCfg"));
    EXPECT_EQ(rrcComposeRlc_BearerCfgServedRadioBearer(nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_BearerCfgServedRadioBearer", "pRlc_BearCfg_ServeRadBear"));
    EXPECT_EQ(rrcComposeRlc_BearerToReleaseList(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlc_BearerToReleaseList", "pRlc_BearerToReleaseList"));
}

TEST_F(rlcBearer, ThreeBearersInArrayOrder)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->rlcBearerAddModNum = 3;
    record->rlcBearerCfg[0] = bearerCfg(9, 0);
    record->rlcBearerCfg[1] = bearerCfg(4, RRC_RLCBEARERCFG_RBTYPE_PRESENCE);
    record->rlcBearerCfg[2] = bearerCfg(32, 0);
    CellGroupConfig* const group = cellGroup();
    group->m.rlc_BearerToAddModListPresent = 1;
    EXPECT_EQ(rrcComposeRlc_BearerToAddModList(&context, &group->rlc_BearerToAddModList, record.get()), VOS_OK);
    expectDecoded(
        "CellGroupConfig", asn1PE_CellGroupConfig, *group,
        R"({"cellGroupId":0,"rlc-BearerToAddModList":[{"logicalChannelIdentity":9},)"
        R"({"logicalChannelIdentity":4,"servedRadioBearer":{"drb-Identity":32}},{"logicalChannelIdentity":32}]})");
    EXPECT_EQ(printed(), "");
}

TEST_F(rlcBearer, BearerListCounts)
{
    for (const unsigned count : {0U, 1U, 32U, 33U, 255U})
    {
        const auto record = cleared<RrcCellGroupCfg_t>();
        record->rlcBearerAddModNum = static_cast<UINT8>(count);
        for (UINT8 i = 0; i < 32; ++i)
        {
            record->rlcBearerCfg[i] = bearerCfg(static_cast<UINT8>(i + 1), 0);
        }
        CellGroupConfig* const group = cellGroup();
        group->m.rlc_BearerToAddModListPresent = 1;
        EXPECT_EQ(rrcComposeRlc_BearerToAddModList(&context, &group->rlc_BearerToAddModList, record.get()), VOS_OK);
        ASSERT_EQ(group->rlc_BearerToAddModList.count, count);
        // As many nodes as the record has entries: a wrong count costs no memory.
        unsigned nodes = 0;
        for (const OSRTDListNode* node = group->rlc_BearerToAddModList.head; node != nullptr; node = node->next)
        {
            EXPECT_EQ(static_cast<const RLC_BearerConfig*>(node->data)->logicalChannelIdentity, ++nodes);
        }
        EXPECT_EQ(nodes, std::min(count, 32U));
        const std::string octets = encode(asn1PE_CellGroupConfig, *group);
        if (count == 0 || count > 32)
        {
            EXPECT_EQ(octets,
                      "CellGroupConfig.rlc-BearerToAddModList: " + std::to_string(count) + " elements, not 1..32");
        }
        else
        {
            EXPECT_EQ(octets.find("CellGroupConfig"), std::string::npos) << octets;
        }
    }
}

TEST_F(rlcBearer, BearerListWithoutHeapForEachNode)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->rlcBearerAddModNum = 3;
    for (unsigned successes = 0;; ++successes)
    {
        CellGroupConfig_rlc_BearerToAddModList list{};
        const HeapFault fault(successes);
        const INT32 result = rrcComposeRlc_BearerToAddModList(&context, &list, record.get());
        EXPECT_EQ(list.count, successes);
        if (!HeapFault::struck())
        {
            EXPECT_EQ(result, VOS_OK);
            EXPECT_EQ(successes, 3U);
            break;
        }
        EXPECT_EQ(result, VOS_ERROR);
        EXPECT_EQ(printed(), "pNode Or pRlc_BearCfg is NULL\r\n");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(rlcBearer, BearerWhoseAmConstructorFailsStaysInTheList)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->rlcBearerAddModNum = 1;
    record->rlcBearerCfg[0] = bearerCfg(5, 0x0F);
    record->rlcBearerCfg[0].rlcCfg = amCfg(RRC_AM_SIZE12, RRC_AM_SIZE12);
    CellGroupConfig_rlc_BearerToAddModList list{};
    const HeapFault fault(1);
    EXPECT_EQ(rrcComposeRlc_BearerToAddModList(&context, &list, record.get()), VOS_OK);
    EXPECT_EQ(printed(), nullLine("rrcConstructRLC_Config_am", "pRlc_Cfg_am") + "rrcConstructRLC_Config_am ERROR\r\n");
    const auto& bearer = element<RLC_BearerConfig>(list, 0);
    EXPECT_EQ(bearer.logicalChannelIdentity, 5);
    EXPECT_EQ(bearer.m.rlc_ConfigPresent, 1U);
    EXPECT_EQ(bearer.m.mac_LogicalChannelConfigPresent, 1U);
}

TEST_F(rlcBearer, ReleaseListCounts)
{
    for (const unsigned count : {1U, 32U, 33U, 255U})
    {
        const auto record = cleared<RrcCellGroupCfg_t>();
        record->rlcBearerReleaseNum = static_cast<UINT8>(count);
        std::string ids;
        for (UINT8 i = 0; i < 32; ++i)
        {
            record->lchIdRelease[i] = static_cast<UINT8>(32 - i);
            ids += i < count ? (i != 0 ? "," : "") + std::to_string(32 - i) : "";
        }
        CellGroupConfig* const group = cellGroup();
        group->m.rlc_BearerToReleaseListPresent = 1;
        EXPECT_EQ(rrcComposeRlc_BearerToReleaseList(&group->rlc_BearerToReleaseList, record.get()), VOS_OK);
        EXPECT_EQ(group->rlc_BearerToReleaseList.n, count);
        EXPECT_EQ(group->mac_CellGroupConfig.drx_Config.t, 0U) << "behind the list";
        if (count <= 32)
        {
            expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *group,
                          R"({"cellGroupId":0,"rlc-BearerToReleaseList":[)" + ids + "]}");
        }
        else
        {
            EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
                      "CellGroupConfig.rlc-BearerToReleaseList: " + std::to_string(count) + " elements, not 1..32");
        }
    }
    EXPECT_EQ(printed(), "");
}

// The order of the records' fields

static_assert(rising({offsetof(RrcRlcCfg_t, bitMask), offsetof(RrcRlcCfg_t, choice)}));
static_assert(rising({offsetof(RrcAmRlcCfg_t, ulAmCfg), offsetof(RrcAmRlcCfg_t, dlAmCfg)}));
static_assert(rising({offsetof(RrcUlAmRlcCfg_t, snFeildLen), offsetof(RrcUlAmRlcCfg_t, tPollRetransmit),
                      offsetof(RrcUlAmRlcCfg_t, pollPdu), offsetof(RrcUlAmRlcCfg_t, pollByte),
                      offsetof(RrcUlAmRlcCfg_t, maxRetxThreash)}));
static_assert(rising({offsetof(RrcDlAmRlcCfg_t, snFeildLen), offsetof(RrcDlAmRlcCfg_t, tReassembly),
                      offsetof(RrcDlAmRlcCfg_t, tStatusProhibit)}));
static_assert(rising({offsetof(RrcUmBiRlcCfg_t, dlUmCfg), offsetof(RrcUmBiRlcCfg_t, ulUmCfg)}));
static_assert(rising({offsetof(RrcDlUmRlcCfg_t, snFeildLen), offsetof(RrcDlUmRlcCfg_t, tDlReassembly)}));
static_assert(rising(
    {offsetof(RrcUlSpecificParaCfg_t, priority), offsetof(RrcUlSpecificParaCfg_t, priorityBitRate),
     offsetof(RrcUlSpecificParaCfg_t, bucketSizeDuration), offsetof(RrcUlSpecificParaCfg_t, allowedCellNum),
     offsetof(RrcUlSpecificParaCfg_t, cellIdx), offsetof(RrcUlSpecificParaCfg_t, allowedSCSNum),
     offsetof(RrcUlSpecificParaCfg_t, subCarrierSpacing), offsetof(RrcUlSpecificParaCfg_t, bitMask),
     offsetof(RrcUlSpecificParaCfg_t, maxPuschDuration), offsetof(RrcUlSpecificParaCfg_t, configuredGrantType1Allowed),
     offsetof(RrcUlSpecificParaCfg_t, logicalChannelGroupId), offsetof(RrcUlSpecificParaCfg_t, schedReqId),
     offsetof(RrcUlSpecificParaCfg_t, logicalChannelSrMask),
     offsetof(RrcUlSpecificParaCfg_t, logcalChannelSrDealyTimerApplied),
     offsetof(RrcUlSpecificParaCfg_t, bitRateQueryProhibitTimer)}));
static_assert(rising({offsetof(RrcLchCfg_t, bitMask), offsetof(RrcLchCfg_t, ulSpecificParaCfg)}));
static_assert(rising({offsetof(RrcRlcBearerCfg_t, lchId), offsetof(RrcRlcBearerCfg_t, bitMask),
                      offsetof(RrcRlcBearerCfg_t, rbType), offsetof(RrcRlcBearerCfg_t, rbId),
                      offsetof(RrcRlcBearerCfg_t, reestablRlc), offsetof(RrcRlcBearerCfg_t, rlcCfg),
                      offsetof(RrcRlcBearerCfg_t, macLchCfg)}));
