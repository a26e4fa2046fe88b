#include "cellGroupCfg/servingCellCommon.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Pdus.h"
#include "byteOrder.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::HeapFault;
using test::rising;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace
{

class servingCellCommon : public test::ComposerTest
{
protected:
    void expectCell(RrcServingCellCfgCommon_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<ServingCellConfigCommon>();
        EXPECT_EQ(rrcComposeServCellConfigCommon(&context, element.get(), &cfg), VOS_OK);
        expectDecoded("ServingCellConfigCommon", asn1PE_ServingCellConfigCommon, *element, json);
        EXPECT_EQ(printed(), "");
    }

    // The error line of the encoder.
    std::string refused(RrcServingCellCfgCommon_t& cfg)
    {
        const auto element = cleared<ServingCellConfigCommon>();
        EXPECT_EQ(rrcComposeServCellConfigCommon(&context, element.get(), &cfg), VOS_OK);
        EXPECT_EQ(printed(), "");
        return encode(asn1PE_ServingCellConfigCommon, *element);
    }

    void expectDownlink(RrcDlCfgComm_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<DownlinkConfigCommon>();
        EXPECT_EQ(rrcComposeDownlinkCfgCommon(&context, element.get(), &cfg), VOS_OK);
        expectDecoded("DownlinkConfigCommon", asn1PE_DownlinkConfigCommon, *element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectUplink(RrcUlCfgComm_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<UplinkConfigCommon>();
        EXPECT_EQ(rrcComposeUplinkCfgCommon(&context, element.get(), &cfg), VOS_OK);
        expectDecoded("UplinkConfigCommon", asn1PE_UplinkConfigCommon, *element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectPattern(RrcRateMatchPattern_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        RateMatchPattern element{};
        EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, &element, &cfg), VOS_OK);
        expectDecoded("RateMatchPattern", asn1PE_RateMatchPattern, element, json);
        EXPECT_EQ(printed(), "");
    }

    // The 64-bit bitmap and everything else of the SSB positions, from a record with these bits.
    static std::unique_ptr<RrcServingCellCfgCommon_t> ssbPositions(UINT8 bitMask, UINT64 bitmap)
    {
        auto cfg = cleared<RrcServingCellCfgCommon_t>();
        cfg->bitMask = RRC_SSB_POSITION_IN_BURST;
        cfg->ssbPosionBitMask = bitMask;
        // Bits that the string has not lie in the union, too.
        const unsigned width = (bitMask & SSB_POSITION_LONG_BITMAP) != 0     ? 64
                               : (bitMask & SSB_POSITION_MEDIUM_BITMAP) != 0 ? 8
                                                                             : 4;
        const auto shift = static_cast<UINT8>(rtx::bitFieldShift(sizeof bitmap, width)); // for libc++ 14, too
        cfg->RrcSsbPositionInBurst.longBitmap = std::rotl(bitmap, shift);
        return cfg;
    }
};

const std::string mandatory = R"("dmrs-TypeA-Position":"pos3","ss-PBCH-BlockPower":-5)";

SpecificCarrier_t carrier(UINT16 offset, UINT8 spacing, UINT16 bandwidth)
{
    return {offset, spacing, bandwidth};
}

std::string carrierJson(unsigned offset, const std::string& spacing, unsigned bandwidth)
{
    return R"({"offsetToCarrier":)" + std::to_string(offset) + R"(,"subcarrierSpacing":")" + spacing +
           R"(","carrierBandwidth":)" + std::to_string(bandwidth) + "}";
}

RrcFreqInfoDl_t freqInfoDl()
{
    RrcFreqInfoDl_t cfg{};
    cfg.bitMask = FREQ_INFO_DL_ABS_FREQ_SSB;
    cfg.absFreqSsb = 3279165;
    cfg.multiBandNum = 1;
    cfg.freqBandIndNr[0] = 1024;
    cfg.absFreqPointA = 620000;
    cfg.scsNum = 1;
    cfg.speCarrier[0] = carrier(2199, 1, 273);
    return cfg;
}

RrcFreqInfoUl_t freqInfoUl()
{
    RrcFreqInfoUl_t cfg{};
    cfg.multiBandNum = 2;
    cfg.freqBandIndNr[0] = 78;
    cfg.freqBandIndNr[1] = 77;
    cfg.absFreqPointA = 620000;
    cfg.scsNum = 1;
    cfg.speCarrier[0] = carrier(0, 0, 1);
    cfg.additionSpectrumEmission = 7;
    cfg.pMax = -30;
    cfg.freqShift7p5khz = 0;
    return cfg;
}

// The bits of `count` octets.
std::string bits(const OSOCTET* octets, unsigned count)
{
    std::string text;
    for (unsigned i = 0; i < count; ++i)
    {
        text += (octets[i / 8] >> (7 - i % 8) & 1) != 0 ? '1' : '0';
    }
    return text;
}

RrcRateMatchPattern_t bitmapPattern(UINT8 slots, UINT8 periodicities)
{
    RrcRateMatchPattern_t cfg{};
    cfg.rateMatchPatternId = 3;
    cfg.dummy = 1;
    cfg.Presence = RRC_PATTERN_TYPE_BITMAPS;
    RrcBitMaps_t& bitmaps = cfg.patternType.bitmaps;
    auto* const octets = reinterpret_cast<OSOCTET*>(bitmaps.resourceBlocks);
    for (unsigned i = 0; i < sizeof bitmaps.resourceBlocks; ++i)
    {
        octets[i] = static_cast<OSOCTET>(37 * i + 129);
    }
    octets[34] &= 0xE0; // bits 273 to 275
    bitmaps.symbolsInResourceBlockPresence = slots;
    bitmaps.symbolsInResourceBlock.twoSLots = 0xABCDEF;
    bitmaps.bitMask = periodicities != 0 ? RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE : 0;
    bitmaps.periodictyAndPatternPresence = periodicities;
    bitmaps.periodictyAndPattern.n40 = 0xF123456789ABCDE6;
    return cfg;
}

std::string patternJson(const RrcRateMatchPattern_t& cfg, const std::string& symbols, const std::string& periodicity)
{
    const auto* const octets = reinterpret_cast<const OSOCTET*>(cfg.patternType.bitmaps.resourceBlocks);
    return R"({"rateMatchPatternId":3,"patternType":{"bitmaps":{"resourceBlocks":")" + bits(octets, 275) +
           R"(","symbolsInResourceBlock":)" + symbols + periodicity + R"(}},"dummy":"semiStatic"})";
}

const std::string oneSlot = R"({"oneSlot":"00110111101111"})";                 // 0xABCDEF, its low 14 bits
const std::string twoSlots = R"({"twoSlots":"0000000000001100110111101111"})"; // 0xABCDEF, its low 16 bits

} // namespace

// Records

TEST_F(servingCellCommon, RecordsLieInTheirOrder)
{
    using Dl = RrcFreqInfoDl_t;
    EXPECT_TRUE(rising({offsetof(Dl, bitMask), offsetof(Dl, absFreqSsb), offsetof(Dl, multiBandNum),
                        offsetof(Dl, freqBandIndNr), offsetof(Dl, absFreqPointA), offsetof(Dl, scsNum),
                        offsetof(Dl, speCarrier)}));
    using Ul = RrcFreqInfoUl_t;
    EXPECT_TRUE(rising({offsetof(Ul, bitMask), offsetof(Ul, multiBandNum), offsetof(Ul, freqBandIndNr),
                        offsetof(Ul, absFreqPointA), offsetof(Ul, scsNum), offsetof(Ul, speCarrier),
                        offsetof(Ul, additionSpectrumEmission), offsetof(Ul, pMax), offsetof(Ul, freqShift7p5khz)}));
    using DlCommon = RrcDlCfgComm_t;
    EXPECT_TRUE(rising({offsetof(DlCommon, bitMask), offsetof(DlCommon, freqInfoDl), offsetof(DlCommon, bwpDlCommon)}));
    using UlCommon = RrcUlCfgComm_t;
    EXPECT_TRUE(rising({offsetof(UlCommon, bitMask), offsetof(UlCommon, freqInfoUl), offsetof(UlCommon, bwpUplink),
                        offsetof(UlCommon, timeAlignmentTimer)}));
    using Bitmaps = RrcBitMaps_t;
    EXPECT_TRUE(rising({offsetof(Bitmaps, resourceBlocks), offsetof(Bitmaps, symbolsInResourceBlockPresence),
                        offsetof(Bitmaps, symbolsInResourceBlock), offsetof(Bitmaps, bitMask),
                        offsetof(Bitmaps, periodictyAndPatternPresence), offsetof(Bitmaps, periodictyAndPattern)}));
    using Pattern = RrcRateMatchPattern_t;
    EXPECT_TRUE(
        rising({offsetof(Pattern, rateMatchPatternId), offsetof(Pattern, dummy), offsetof(Pattern, Presence),
                offsetof(Pattern, patternType), offsetof(Pattern, bitMask), offsetof(Pattern, subCarrierSapcing)}));
    using Cell = RrcServingCellCfgCommon_t;
    EXPECT_TRUE(rising(
        {offsetof(Cell, dmrsTypeAPosition), offsetof(Cell, ssPbchBlockPower), offsetof(Cell, bitMask),
         offsetof(Cell, pci), offsetof(Cell, dlCfgComm), offsetof(Cell, ulCfgComm), offsetof(Cell, suppUlCfg),
         offsetof(Cell, nTimingAdvanceOffset), offsetof(Cell, ssbPosionBitMask), offsetof(Cell, RrcSsbPositionInBurst),
         offsetof(Cell, ssbPeriodicityServingCell), offsetof(Cell, numRateMatchPatternAddMod),
         offsetof(Cell, rateMatchPatternToAddMod), offsetof(Cell, numRateMatchPatternRelease),
         offsetof(Cell, rateMatchPatternId), offsetof(Cell, subCarrierSpacing), offsetof(Cell, tddUlDlCfgComm)}));
    EXPECT_EQ(sizeof(Cell{}.RrcSsbPositionInBurst), 8U);
    EXPECT_EQ(offsetof(Cell, RrcSsbPositionInBurst) % 8, 0U);
    EXPECT_EQ(sizeof(Cell{}.rateMatchPatternToAddMod) / sizeof(Pattern), 4U);
    EXPECT_EQ(sizeof(Cell{}.rateMatchPatternId), 4U);
    using Mtc = RrcSSBMTC_t;
    EXPECT_TRUE(rising({offsetof(Mtc, period), offsetof(Mtc, offset), offsetof(Mtc, duration)}));
    using Slot = RrcTddUlDlSlotCfg_t;
    EXPECT_TRUE(rising({offsetof(Slot, slotIdx), offsetof(Slot, presence), offsetof(Slot, explicit_t)}));
    EXPECT_TRUE(rising({offsetof(explicit_s, bitMask), offsetof(explicit_s, nrofDownlinkSymbols),
                        offsetof(explicit_s, nrofUplinkSymbols)}));
    using Carrier = SpecificCarrier_t;
    EXPECT_TRUE(rising({offsetof(Carrier, offsetToCarrier), offsetof(Carrier, subcarrierSpacing),
                        offsetof(Carrier, carrierBandwidth)}));
    using Bwp = NrBWP_t;
    EXPECT_TRUE(rising({offsetof(Bwp, locationAndBandwidth), offsetof(Bwp, subcarrierSpacing)}));
    using DlBwp = NrBwpDownLinkCommon_t;
    EXPECT_TRUE(rising({offsetof(DlBwp, bitmask), offsetof(DlBwp, bwp), offsetof(DlBwp, pdcchCfgCommon),
                        offsetof(DlBwp, pdschCfgCommon)}));
    using UlBwp = InitialUlBwp_t;
    EXPECT_TRUE(rising({offsetof(UlBwp, bitmask), offsetof(UlBwp, bwp), offsetof(UlBwp, rachCfgCommon),
                        offsetof(UlBwp, puschCfgCommon), offsetof(UlBwp, pucchCfgCommon)}));
}

// ServingCellConfigCommon

TEST_F(servingCellCommon, MandatoryMembersOnly)
{
    const auto cfg = cleared<RrcServingCellCfgCommon_t>();
    std::memset(cfg.get(), 0xFF, sizeof *cfg);
    cfg->dmrsTypeAPosition = 1;
    cfg->ssPbchBlockPower = 0xFB;
    cfg->bitMask = 0;
    cfg->numRateMatchPatternAddMod = 0;
    cfg->numRateMatchPatternRelease = 0;
    const auto element = cleared<ServingCellConfigCommon>();
    ASSERT_EQ(rrcComposeServCellConfigCommon(&context, element.get(), cfg.get()), VOS_OK);
    EXPECT_EQ(element->ss_PBCH_BlockPower, -5);
    expectCell(*cfg, "{" + mandatory + "}");
}

TEST_F(servingCellCommon, EachMemberAloneAndAll)
{
    const auto cfg = cleared<RrcServingCellCfgCommon_t>();
    cfg->dmrsTypeAPosition = 1;
    cfg->ssPbchBlockPower = 0xFB;
    cfg->pci = 1007;
    cfg->ulCfgComm.timeAlignmentTimer = 7;
    cfg->suppUlCfg.timeAlignmentTimer = 3;
    cfg->nTimingAdvanceOffset = 2;
    cfg->ssbPosionBitMask = SSB_POSITION_SHORT_BITMAP;
    cfg->RrcSsbPositionInBurst.shortBitmap = 0xB;
    cfg->ssbPeriodicityServingCell = 5;
    cfg->subCarrierSpacing = 1;
    cfg->tddUlDlCfgComm.referenceSubcarrierSpacing = 1;
    cfg->tddUlDlCfgComm.pattern1 = {0, 5, 3, 6, 1, 4, 0};

    const struct
    {
        UINT16 bit;
        std::string before; // where the member stands: before or behind dmrs-TypeA-Position
        std::string behind;
    } members[] = {
        {RRC_PHY_SCELL_Id, R"("physCellId":1007,)", ""},
        {RRC_DOWNLINK_CFG_COMMON, R"("downlinkConfigCommon":{},)", ""},
        {RRC_UPLINK_CFG_COMMON, R"("uplinkConfigCommon":{"dummy":"infinity"},)", ""},
        {RRC_SUPP_UPLINK_CFG_COMMON, R"("supplementaryUplinkConfig":{"dummy":"ms1920"},)", ""},
        {RRC_TIMING_ADVANCE_OFFSET, R"("n-TimingAdvanceOffset":"n39936",)", ""},
        {RRC_SSB_POSITION_IN_BURST, R"("ssb-PositionsInBurst":{"shortBitmap":"1011"},)", ""},
        {RRC_SSB_PERIOD_CITY_SERVING_CELL, R"("ssb-periodicityServingCell":"ms160",)", ""},
        {RRC_SUB_CARRIER_SPACING, "", R"("ssbSubcarrierSpacing":"kHz30",)"},
        {RRC_TDD_UL_DL_CFG_COMMON, "",
         R"("tdd-UL-DL-ConfigurationCommon":{"referenceSubcarrierSpacing":"kHz30","pattern1":{"dl-UL-TransmissionPeriodicity":"ms2p5",)"
         R"("nrofDownlinkSlots":3,"nrofDownlinkSymbols":6,"nrofUplinkSlots":1,"nrofUplinkSymbols":4}},)"},
    };
    std::string before;
    std::string behind;
    UINT16 bit = 1;
    for (const auto& member : members)
    {
        EXPECT_EQ(member.bit, bit);
        bit = static_cast<UINT16>(bit << 1);
        cfg->bitMask = member.bit;
        expectCell(*cfg, "{" + member.before + R"("dmrs-TypeA-Position":"pos3",)" + member.behind +
                             R"("ss-PBCH-BlockPower":-5})");
        before += member.before;
        behind += member.behind;
    }
    cfg->bitMask = 0x1FF;
    expectCell(*cfg, "{" + before + R"("dmrs-TypeA-Position":"pos3",)" + behind + R"("ss-PBCH-BlockPower":-5})");
    cfg->bitMask = 0xFE00;
    expectCell(*cfg, "{" + mandatory + "}");
}

TEST_F(servingCellCommon, BlockPowerIsASignedOctet)
{
    const auto cfg = cleared<RrcServingCellCfgCommon_t>();
    for (const int power : {-60, -1, 0, 50})
    {
        cfg->ssPbchBlockPower = static_cast<UINT8>(power);
        expectCell(*cfg, R"({"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":)" + std::to_string(power) + "}");
    }
    for (const int power : {-128, -61, 51, 127})
    {
        cfg->ssPbchBlockPower = static_cast<UINT8>(power);
        EXPECT_EQ(refused(*cfg),
                  "ServingCellConfigCommon.ss-PBCH-BlockPower: " + std::to_string(power) + " is not in -60..50");
    }
}

TEST_F(servingCellCommon, NullGuards)
{
    const auto element = cleared<ServingCellConfigCommon>();
    EXPECT_EQ(rrcComposeServCellConfigCommon(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeServCellConfigCommon", "pServCellConfigCommon"));
    EXPECT_EQ(rrcComposeServCellConfigCommon(&context, element.get(), nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeServCellConfigCommon", "pRrcServCellCfgComm"));

    RateMatchPattern pattern{};
    EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRateMatchPatternAdd", "pRateMatchPatItem"));
    EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, &pattern, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRateMatchPatternAdd", "pRrcRateMatchPat"));

    RateMatchPattern_patternType_bitmaps bitmaps{};
    EXPECT_EQ(rrcComposePatternType_bitmaps(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePatternType_bitmaps", "pBitmaps"));
    EXPECT_EQ(rrcComposePatternType_bitmaps(&context, &bitmaps, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePatternType_bitmaps", "pRrcBitmaps"));

    SSB_MTC smtc{};
    EXPECT_EQ(rrcComposeSSB_MTC(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSSB_MTC", "pSmtc"));
    EXPECT_EQ(rrcComposeSSB_MTC(&smtc, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSSB_MTC", "pRrcSmtc"));

    TDD_UL_DL_SlotConfig slot{};
    EXPECT_EQ(rrcComposeTddUlDlCfg(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTddUlDlCfg", "pTDD_UL_DL_SlotCfg"));
    EXPECT_EQ(rrcComposeTddUlDlCfg(&context, &slot, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTddUlDlCfg", "pRrcTddUlDlCfg"));
}

// Downlink

TEST_F(servingCellCommon, DownlinkMembers)
{
    const auto cfg = cleared<RrcDlCfgComm_t>();
    cfg->freqInfoDl = freqInfoDl();
    cfg->bwpDlCommon.bwp = {37949, 3};
    const std::string frequency =
        R"("frequencyInfoDL":{"absoluteFrequencySSB":3279165,"frequencyBandList":[1024],"absoluteFrequencyPointA":620000,"scs-SpecificCarrierList":[)" +
        carrierJson(2199, "kHz30", 273) + "]}";
    const std::string bwp =
        R"("initialDownlinkBWP":{"genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz120"}})";
    cfg->bitMask = 0xFC;
    expectDownlink(*cfg, "{}");
    cfg->bitMask = RRC_DLCFGCOMM_FREQ_DL_PRESENCE;
    expectDownlink(*cfg, "{" + frequency + "}");
    cfg->bitMask = RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE;
    expectDownlink(*cfg, "{" + bwp + "}");
    cfg->bitMask = 3;
    expectDownlink(*cfg, "{" + frequency + "," + bwp + "}");
}

TEST_F(servingCellCommon, DownlinkFrequencyWithoutSsb)
{
    RrcFreqInfoDl_t cfg = freqInfoDl();
    cfg.bitMask = 0xFE;
    FrequencyInfoDL element{};
    EXPECT_EQ(rrcComposeFreqInfoDl(&context, &element, &cfg), VOS_OK);
    expectDecoded("FrequencyInfoDL", asn1PE_FrequencyInfoDL, element,
                  R"({"frequencyBandList":[1024],"absoluteFrequencyPointA":620000,"scs-SpecificCarrierList":[)" +
                      carrierJson(2199, "kHz30", 273) + "]}");
}

TEST_F(servingCellCommon, DownlinkBandCounts)
{
    for (const unsigned count : {0U, 1U, 8U, 9U, 255U})
    {
        RrcFreqInfoDl_t cfg = freqInfoDl();
        cfg.multiBandNum = static_cast<UINT8>(count);
        std::string bands;
        for (UINT16 i = 0; i < 8; ++i)
        {
            cfg.freqBandIndNr[i] = static_cast<UINT16>(i + 257);
            bands += (i == 0 ? "" : ",") + std::to_string(i + 257);
        }
        FrequencyInfoDL element{};
        EXPECT_EQ(rrcComposeFreqInfoDl(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.frequencyBandList.n, count);
        EXPECT_EQ(element.absoluteFrequencyPointA, 620000U) << "behind the list";
        if (count == 0 || count > 8)
        {
            EXPECT_EQ(encode(asn1PE_FrequencyInfoDL, element),
                      "FrequencyInfoDL.frequencyBandList: " + std::to_string(count) + " elements, not 1..8");
        }
        else
        {
            expectDecoded("FrequencyInfoDL", asn1PE_FrequencyInfoDL, element,
                          R"({"absoluteFrequencySSB":3279165,"frequencyBandList":[)" + (count == 1 ? "257" : bands) +
                              R"(],"absoluteFrequencyPointA":620000,"scs-SpecificCarrierList":[)" +
                              carrierJson(2199, "kHz30", 273) + "]}");
        }
    }
}

TEST_F(servingCellCommon, DownlinkCarrierCounts)
{
    for (const unsigned count : {0U, 1U, 5U, 6U, 255U})
    {
        RrcFreqInfoDl_t cfg = freqInfoDl();
        cfg.scsNum = static_cast<UINT8>(count);
        std::string carriers;
        for (UINT16 i = 0; i < 5; ++i)
        {
            cfg.speCarrier[i] = carrier(i, static_cast<UINT8>(i % 4), static_cast<UINT16>(i + 100));
            const char* const spacings[] = {"kHz15", "kHz30", "kHz60", "kHz120"};
            if (i < count)
            {
                carriers += (i == 0 ? "" : ",") + carrierJson(i, spacings[i % 4], i + 100);
            }
        }
        FrequencyInfoDL element{};
        EXPECT_EQ(rrcComposeFreqInfoDl(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.scs_SpecificCarrierList.count, count);
        if (count == 0 || count > 5)
        {
            EXPECT_EQ(encode(asn1PE_FrequencyInfoDL, element),
                      "FrequencyInfoDL.scs-SpecificCarrierList: " + std::to_string(count) + " elements, not 1..5");
        }
        else
        {
            expectDecoded(
                "FrequencyInfoDL", asn1PE_FrequencyInfoDL, element,
                R"({"absoluteFrequencySSB":3279165,"frequencyBandList":[1024],"absoluteFrequencyPointA":620000,"scs-SpecificCarrierList":[)" +
                    carriers + "]}");
        }
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(servingCellCommon, DownlinkCarrierListWithoutHeap)
{
    RrcFreqInfoDl_t cfg = freqInfoDl();
    cfg.scsNum = 3;
    cfg.speCarrier[1] = carrier(1, 0, 100);
    for (unsigned n = 0; n < 3; ++n)
    {
        FrequencyInfoDL_scs_SpecificCarrierList list{};
        FrequencyInfoDL element{};
        {
            const HeapFault fault(n);
            EXPECT_EQ(rrcComposeRrcFreqInfoDL_ScsSpecificCarrierList(&context, &list, &cfg), VOS_ERROR);
            EXPECT_EQ(printed(), "pNode Or pScsSpecificCarrierItem is NULL\r\n");
        }
        EXPECT_EQ(list.count, n);
        {
            const HeapFault fault(n);
            EXPECT_EQ(rrcComposeFreqInfoDl(&context, &element, &cfg), VOS_OK);
            EXPECT_EQ(printed(), "pNode Or pScsSpecificCarrierItem is NULL\r\n");
        }
        EXPECT_EQ(element.scs_SpecificCarrierList.count, n);
        if (n == 2)
        {
            EXPECT_EQ(this->element<SCS_SpecificCarrier>(list, 0).carrierBandwidth, 273);
            EXPECT_EQ(this->element<SCS_SpecificCarrier>(list, 1).carrierBandwidth, 100);
        }
    }
}

// Uplink

TEST_F(servingCellCommon, UplinkMembers)
{
    const auto cfg = cleared<RrcUlCfgComm_t>();
    cfg->freqInfoUl = freqInfoUl();
    cfg->bwpUplink.bwp = {1099, 1};
    cfg->timeAlignmentTimer = 1;
    const std::string frequency = R"("frequencyInfoUL":{"frequencyBandList":[78,77],"scs-SpecificCarrierList":[)" +
                                  carrierJson(0, "kHz15", 1) + "]},";
    const std::string bwp =
        R"("initialUplinkBWP":{"genericParameters":{"locationAndBandwidth":1099,"subcarrierSpacing":"kHz30"}},)";
    cfg->bitMask = 0xFC;
    expectUplink(*cfg, R"({"dummy":"ms750"})");
    cfg->bitMask = RRC_FREQ_INFO_UL_PRESENCE;
    expectUplink(*cfg, "{" + frequency + R"("dummy":"ms750"})");
    cfg->bitMask = RRC_BWP_UPLINK_PRESENCE;
    expectUplink(*cfg, "{" + bwp + R"("dummy":"ms750"})");
    cfg->bitMask = 3;
    expectUplink(*cfg, "{" + frequency + bwp + R"("dummy":"ms750"})");
}

TEST_F(servingCellCommon, UplinkFrequencyNeverAnnouncesItsFourValues)
{
    RrcFreqInfoUl_t cfg = freqInfoUl();
    cfg.multiBandNum = 0;
    cfg.bitMask = FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE | FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE |
                  FREQ_INFO_UL_PMAX_PRESENCE | FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ;
    cfg.freqShift7p5khz = 9;
    FrequencyInfoUL element{};
    EXPECT_EQ(rrcComposeFreqInfoUL(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.m.frequencyBandListPresent, 0U);
    EXPECT_EQ(element.m.absoluteFrequencyPointAPresent, 0U);
    EXPECT_EQ(element.m.additionalSpectrumEmissionPresent, 0U);
    EXPECT_EQ(element.m.p_MaxPresent, 0U);
    EXPECT_EQ(element.m.frequencyShift7p5khzPresent, 0U);
    EXPECT_EQ(element.absoluteFrequencyPointA, 620000U);
    EXPECT_EQ(element.additionalSpectrumEmission, 7);
    EXPECT_EQ(element.p_Max, -30);
    EXPECT_EQ(element.frequencyShift7p5khz, 9U);
    expectDecoded("FrequencyInfoUL", asn1PE_FrequencyInfoUL, element,
                  R"({"scs-SpecificCarrierList":[)" + carrierJson(0, "kHz15", 1) + "]}");
}

TEST_F(servingCellCommon, UplinkFrequencyCopiesOnlyWhatIsGiven)
{
    RrcFreqInfoUl_t cfg = freqInfoUl();
    for (unsigned bit = 0; bit < 8; ++bit)
    {
        cfg.bitMask = static_cast<UINT8>(1U << bit);
        cfg.freqShift7p5khz = 9;
        FrequencyInfoUL element{};
        EXPECT_EQ(rrcComposeFreqInfoUL(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.absoluteFrequencyPointA, bit == 0 ? 620000U : 0U);
        EXPECT_EQ(element.additionalSpectrumEmission, bit == 1 ? 7 : 0);
        EXPECT_EQ(element.p_Max, bit == 2 ? -30 : 0);
        EXPECT_EQ(element.frequencyShift7p5khz, bit == 3 ? 9U : 0U);
        EXPECT_EQ(element.m.frequencyBandListPresent, 1U);
    }
}

TEST_F(servingCellCommon, UplinkCounts)
{
    for (const unsigned count : {1U, 8U, 9U, 255U})
    {
        RrcFreqInfoUl_t cfg = freqInfoUl();
        cfg.multiBandNum = static_cast<UINT8>(count);
        std::fill(std::begin(cfg.freqBandIndNr), std::end(cfg.freqBandIndNr), UINT16{5});
        FrequencyInfoUL element{};
        EXPECT_EQ(rrcComposeFreqInfoUL(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.frequencyBandList.n, count);
        EXPECT_EQ(element.absoluteFrequencyPointA, 0U) << "behind the list";
        if (count > 8)
        {
            EXPECT_EQ(encode(asn1PE_FrequencyInfoUL, element),
                      "FrequencyInfoUL.frequencyBandList: " + std::to_string(count) + " elements, not 1..8");
        }
        else
        {
            expectDecoded("FrequencyInfoUL", asn1PE_FrequencyInfoUL, element,
                          R"({"frequencyBandList":[)" + std::string(count == 1 ? "5" : "5,5,5,5,5,5,5,5") +
                              R"(],"scs-SpecificCarrierList":[)" + carrierJson(0, "kHz15", 1) + "]}");
        }
    }
    for (const unsigned count : {0U, 5U, 6U, 255U})
    {
        RrcFreqInfoUl_t cfg = freqInfoUl();
        cfg.scsNum = static_cast<UINT8>(count);
        std::fill(std::begin(cfg.speCarrier), std::end(cfg.speCarrier), carrier(0, 0, 1));
        FrequencyInfoUL element{};
        EXPECT_EQ(rrcComposeFreqInfoUL(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.scs_SpecificCarrierList.count, count);
        const std::string octets = encode(asn1PE_FrequencyInfoUL, element);
        const std::string line =
            "FrequencyInfoUL.scs-SpecificCarrierList: " + std::to_string(count) + " elements, not 1..5";
        EXPECT_EQ(octets == line, count != 5) << octets;
    }
}

TEST_F(servingCellCommon, UplinkCarrierListWithoutHeap)
{
    RrcFreqInfoUl_t cfg = freqInfoUl();
    cfg.scsNum = 3;
    for (unsigned n = 0; n < 3; ++n)
    {
        FrequencyInfoUL_scs_SpecificCarrierList list{};
        FrequencyInfoUL element{};
        {
            const HeapFault fault(n);
            EXPECT_EQ(rrcComposeRrcFreqInfoUL_ScsSpecificCarrierList(&context, &list, &cfg), VOS_ERROR);
            EXPECT_EQ(printed(), "pNode Or pScsSpecificCarrierItem is NULL\r\n");
        }
        EXPECT_EQ(list.count, n);
        {
            const HeapFault fault(n);
            EXPECT_EQ(rrcComposeFreqInfoUL(&context, &element, &cfg), VOS_OK);
            EXPECT_EQ(printed(), "pNode Or pScsSpecificCarrierItem is NULL\r\n");
        }
        EXPECT_EQ(element.scs_SpecificCarrierList.count, n);
    }
}

// SSB positions

TEST_F(servingCellCommon, ShortAndMediumSsbBitmap)
{
    ServingCellConfigCommon_ssb_PositionsInBurst element{};
    auto cfg = ssbPositions(SSB_POSITION_SHORT_BITMAP, 0xFB);
    EXPECT_EQ(rrcComposeSsbPositionInBurst(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.t, 1U);
    EXPECT_EQ(element.u.shortBitmap->numbits, 4U);
    EXPECT_EQ(element.u.shortBitmap->data[0], 0xB0);
    expectCell(
        *cfg, R"({"ssb-PositionsInBurst":{"shortBitmap":"1011"},"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})");

    cfg = ssbPositions(SSB_POSITION_MEDIUM_BITMAP, 0x81);
    EXPECT_EQ(rrcComposeSsbPositionInBurst(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.t, 2U);
    EXPECT_EQ(element.u.mediumBitmap->numbits, 8U);
    EXPECT_EQ(element.u.mediumBitmap->data[0], 0x81);
    expectCell(
        *cfg,
        R"({"ssb-PositionsInBurst":{"mediumBitmap":"10000001"},"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})");

    cfg = ssbPositions(SSB_POSITION_SHORT_BITMAP | SSB_POSITION_MEDIUM_BITMAP, 0x81);
    expectCell(
        *cfg,
        R"({"ssb-PositionsInBurst":{"mediumBitmap":"10000001"},"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})");
}

TEST_F(servingCellCommon, NoSsbBitmapLeavesTheChoice)
{
    ServingCellConfigCommon_ssb_PositionsInBurst element{};
    const auto cfg = ssbPositions(0xF8, 0x81);
    EXPECT_EQ(rrcComposeSsbPositionInBurst(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.t, 0U);
    EXPECT_THAT(element.u.longBitmap, Each(0));
    EXPECT_EQ(refused(*cfg), "ServingCellConfigCommon.ssb-PositionsInBurst: tag 0 is not in 1..3");
}

TEST_F(servingCellCommon, LongSsbBitmapLeavesTheTag)
{
    for (const OSUINT32 tag : {0U, 1U, 2U, 3U, 7U})
    {
        ServingCellConfigCommon_ssb_PositionsInBurst element{};
        element.t = tag;
        const auto cfg = ssbPositions(SSB_POSITION_LONG_BITMAP, 0x0123456789ABCDEF);
        EXPECT_EQ(rrcComposeSsbPositionInBurst(&context, &element, cfg.get()), VOS_OK);
        EXPECT_EQ(element.t, tag);
        EXPECT_THAT(element.u.longBitmap, ElementsAre(0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF));
    }
    EXPECT_EQ(refused(*ssbPositions(SSB_POSITION_LONG_BITMAP, 0x0123456789ABCDEF)),
              "ServingCellConfigCommon.ssb-PositionsInBurst: tag 0 is not in 1..3");
}

TEST_F(servingCellCommon, LongSsbBitmapOverwritesThePointerAndIsNotFollowed)
{
    const struct
    {
        UINT8 bitMask;
        OSUINT32 tag;
        std::string name;
    } cases[] = {
        {SSB_POSITION_SHORT_BITMAP | SSB_POSITION_LONG_BITMAP, 1, "shortBitmap"},
        {SSB_POSITION_MEDIUM_BITMAP | SSB_POSITION_LONG_BITMAP, 2, "mediumBitmap"},
        {7, 2, "mediumBitmap"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.name);
        // A pointer of 32 bits has the first half of it.
        for (const UINT64 bitmap : {UINT64{0x0123456789ABCDEF}, UINT64{0x100000001}, ~UINT64{0}})
        {
            ServingCellConfigCommon_ssb_PositionsInBurst element{};
            const auto cfg = ssbPositions(c.bitMask, bitmap);
            EXPECT_EQ(rrcComposeSsbPositionInBurst(&context, &element, cfg.get()), VOS_OK);
            EXPECT_EQ(element.t, c.tag);
            for (unsigned i = 0; i < 8; ++i)
            {
                EXPECT_EQ(element.u.longBitmap[i], static_cast<OSOCTET>(bitmap >> (56 - 8 * i)));
            }
            EXPECT_EQ(refused(*cfg), "ServingCellConfigCommon.ssb-PositionsInBurst." + c.name +
                                         ": a pointer out of the context's heap");
        }
        // No SSB at all is a null pointer.
        EXPECT_EQ(refused(*ssbPositions(c.bitMask, 0)),
                  "ServingCellConfigCommon.ssb-PositionsInBurst." + c.name + ": a null pointer");
    }
}

TEST_F(servingCellCommon, SsbBitmapWithoutHeap)
{
    const struct
    {
        UINT8 bitMask;
        unsigned successes;
        OSUINT32 tag;
        std::string name;
    } cases[] = {
        {SSB_POSITION_SHORT_BITMAP, 0, 1, "shortBitmap"},
        {SSB_POSITION_MEDIUM_BITMAP, 0, 2, "mediumBitmap"},
        {SSB_POSITION_SHORT_BITMAP | SSB_POSITION_MEDIUM_BITMAP, 1, 2, "mediumBitmap"},
    };
    for (const auto& c : cases)
    {
        const std::string line = nullLine("rrcComposeSsbPositionInBurst", "pSsb_PositionsInBurst->u." + c.name);
        const auto cfg = ssbPositions(c.bitMask, 0x81);
        ServingCellConfigCommon_ssb_PositionsInBurst element{};
        {
            const HeapFault fault(c.successes);
            EXPECT_EQ(rrcComposeSsbPositionInBurst(&context, &element, cfg.get()), VOS_ERROR);
            EXPECT_EQ(printed(), line);
        }
        EXPECT_EQ(element.t, c.tag);

        // The cell is still reported as composed; the encoder refuses it.
        const auto cell = cleared<ServingCellConfigCommon>();
        {
            const HeapFault fault(c.successes);
            EXPECT_EQ(rrcComposeServCellConfigCommon(&context, cell.get(), cfg.get()), VOS_OK);
            EXPECT_EQ(printed(), line);
        }
        EXPECT_EQ(encode(asn1PE_ServingCellConfigCommon, *cell),
                  "ServingCellConfigCommon.ssb-PositionsInBurst." + c.name + ": a null pointer");
    }
}

// Rate-match patterns

TEST_F(servingCellCommon, PatternOfAControlResourceSet)
{
    RrcRateMatchPattern_t cfg{};
    cfg.rateMatchPatternId = 2;
    cfg.Presence = RRC_PATTERN_TYPE_SETID;
    cfg.patternType.controlResourceSetId = 11;
    cfg.bitMask = 0xFE;
    cfg.subCarrierSapcing = 2;
    expectPattern(cfg, R"({"rateMatchPatternId":2,"patternType":{"controlResourceSet":11},"dummy":"dynamic"})");
    cfg.bitMask = RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE;
    cfg.dummy = 1;
    expectPattern(
        cfg,
        R"({"rateMatchPatternId":2,"patternType":{"controlResourceSet":11},"subcarrierSpacing":"kHz60","dummy":"semiStatic"})");
}

TEST_F(servingCellCommon, BothPatternTypesGiveTheControlResourceSet)
{
    RrcRateMatchPattern_t cfg = bitmapPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE, 0);
    cfg.Presence = RRC_PATTERN_TYPE_BITMAPS | RRC_PATTERN_TYPE_SETID;
    cfg.patternType.controlResourceSetId = 5;
    RateMatchPattern_patternType element{};
    EXPECT_EQ(rrcComposeRateMatchPatternType(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.t, 2U);
    EXPECT_EQ(element.u.controlResourceSet, 5);
    expectPattern(cfg, R"({"rateMatchPatternId":3,"patternType":{"controlResourceSet":5},"dummy":"semiStatic"})");
}

TEST_F(servingCellCommon, NoPatternTypeLeavesTheChoice)
{
    RrcRateMatchPattern_t cfg = bitmapPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE, 0);
    cfg.Presence = 0xFC;
    RateMatchPattern element{};
    EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(encode(asn1PE_RateMatchPattern, element), "RateMatchPattern.patternType: tag 0 is not in 1..2");
}

TEST_F(servingCellCommon, SymbolsInResourceBlock)
{
    for (const auto& [slots, symbols] :
         {std::pair{UINT8{RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE}, oneSlot},
          std::pair{UINT8{RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE}, twoSlots}, std::pair{UINT8{3}, twoSlots}})
    {
        const RrcRateMatchPattern_t cfg = bitmapPattern(slots, 0);
        expectPattern(cfg, patternJson(cfg, symbols, ""));
    }
}

TEST_F(servingCellCommon, TwoSlotsPassOnSixteenBits)
{
    RrcBitMaps_t cfg = bitmapPattern(RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE, 0).patternType.bitmaps;
    RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock element{};
    EXPECT_EQ(rrcComposePatternTypeResourceBlock(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.t, 2U);
    EXPECT_EQ(element.u.twoSlots->numbits, 28U);
    EXPECT_THAT(element.u.twoSlots->data, ElementsAre(0x00, 0x0C, 0xDE, 0xF0)); // 0xCDEF
}

TEST_F(servingCellCommon, PeriodicityAndPattern)
{
    // The low bits of 0x6789ABCDE6 and what stands above them in the record.
    const struct
    {
        UINT8 bit;
        OSUINT32 tag;
        std::string json;
    } cases[] = {
        {RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE, 1, R"({"n2":"10"})"},
        {RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE, 2, R"({"n4":"0110"})"},
        {RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE, 3, R"({"n5":"00110"})"},
        {RRC_BITMAPS_PERIODICTY_PATTERN_N8_PRESENCE, 4, R"({"n8":"11100110"})"},
        {RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE, 5, R"({"n10":"0111100110"})"},
        {RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE, 6, R"({"n20":"10111100110111100110"})"},
        {RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE, 7, R"({"n40":"0110011110001001101010111100110111100110"})"},
    };
    unsigned lower = 0;
    for (const auto& c : cases)
    {
        EXPECT_EQ(c.bit, lower + 1);
        for (const unsigned also : {0U, lower, lower & 1U}) // alone, with all lower bits, with N2
        {
            const RrcRateMatchPattern_t cfg =
                bitmapPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE, static_cast<UINT8>(c.bit | also));
            expectPattern(cfg, patternJson(cfg, oneSlot, R"(,"periodicityAndPattern":)" + c.json));
            RrcBitMaps_t bitmaps = cfg.patternType.bitmaps;
            RateMatchPattern_patternType_bitmaps_periodicityAndPattern element{};
            EXPECT_EQ(rrcComposePeriodicityAndPattern(&context, &element, &bitmaps), VOS_OK);
            EXPECT_EQ(element.t, c.tag);
        }
        lower |= c.bit;
    }

    RrcRateMatchPattern_t none = bitmapPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE, 0x80);
    RateMatchPattern element{};
    EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, &element, &none), VOS_OK);
    EXPECT_EQ(encode(asn1PE_RateMatchPattern, element),
              "RateMatchPattern.patternType.bitmaps.periodicityAndPattern: tag 0 is not in 1..7");

    RrcRateMatchPattern_t unguarded = bitmapPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE, 1);
    unguarded.patternType.bitmaps.bitMask = 0xFE;
    expectPattern(unguarded, patternJson(unguarded, oneSlot, ""));
}

TEST_F(servingCellCommon, SurplusResourceBlockOctetsBecomeTheTag)
{
    RrcRateMatchPattern_t cfg = bitmapPattern(0, RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE);
    auto* const octets = reinterpret_cast<OSOCTET*>(cfg.patternType.bitmaps.resourceBlocks);
    for (const OSUINT32 tag : {0x12345678U, 0U, 1U, 2U})
    {
        const OSUINT32 lowFirst = rtx::lowFirst(tag);
        std::memcpy(octets + 36, &lowFirst, sizeof lowFirst);
        RateMatchPattern_patternType_bitmaps element{};
        std::memset(&element.symbolsInResourceBlock.u, 0, sizeof element.symbolsInResourceBlock.u);
        EXPECT_EQ(rrcComposePatternType_bitmaps(&context, &element, &cfg.patternType.bitmaps), VOS_OK);
        EXPECT_THAT(element.resourceBlocks, ElementsAreArray(octets, 35));
        EXPECT_EQ(element.symbolsInResourceBlock.t, tag);
        EXPECT_EQ(element.symbolsInResourceBlock.u.oneSlot, nullptr) << "nothing else changes";
        EXPECT_EQ(element.m.periodicityAndPatternPresent, 1U);

        RateMatchPattern pattern{};
        EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, &pattern, &cfg), VOS_OK);
        const std::string path = "RateMatchPattern.patternType.bitmaps.symbolsInResourceBlock";
        EXPECT_EQ(encode(asn1PE_RateMatchPattern, pattern),
                  tag == 1   ? path + ".oneSlot: a null pointer"
                  : tag == 2 ? path + ".twoSlots: a null pointer"
                             : path + ": tag " + std::to_string(tag) + " is not in 1..2");
    }
}

TEST_F(servingCellCommon, RateMatchPatternCounts)
{
    const auto cfg = cleared<RrcServingCellCfgCommon_t>();
    std::string patterns;
    for (UINT8 i = 0; i < 4; ++i)
    {
        RrcRateMatchPattern_t& pattern = cfg->rateMatchPatternToAddMod[i];
        pattern.rateMatchPatternId = static_cast<UINT8>(3 - i);
        pattern.Presence = RRC_PATTERN_TYPE_SETID;
        pattern.patternType.controlResourceSetId = i;
    }
    for (const unsigned count : {1U, 4U, 5U, 255U})
    {
        cfg->numRateMatchPatternAddMod = static_cast<UINT8>(count);
        std::string json;
        for (unsigned i = 0; i < count; ++i)
        {
            json += std::string(i == 0 ? "" : ",") + R"({"rateMatchPatternId":)" + std::to_string(3 - i) +
                    R"(,"patternType":{"controlResourceSet":)" + std::to_string(i) + R"(},"dummy":"dynamic"})";
        }
        if (count > 4)
        {
            EXPECT_EQ(refused(*cfg), "ServingCellConfigCommon.rateMatchPatternToAddModList: " + std::to_string(count) +
                                         " elements, not 1..4");
        }
        else
        {
            expectCell(*cfg, R"({"dmrs-TypeA-Position":"pos2","rateMatchPatternToAddModList":[)" + json +
                                 R"(],"ss-PBCH-BlockPower":0})");
        }
    }
}

TEST_F(servingCellCommon, RateMatchPatternReleaseCounts)
{
    const auto cfg = cleared<RrcServingCellCfgCommon_t>();
    const UINT8 ids[4] = {1, 2, 3, 0};
    std::copy(std::begin(ids), std::end(ids), cfg->rateMatchPatternId);
    const struct
    {
        UINT8 count;
        std::string ids;
    } cases[] = {{1, "1"}, {3, "1,2,3"}, {4, "1,2,3,0"}};
    for (const auto& c : cases)
    {
        cfg->numRateMatchPatternRelease = c.count;
        expectCell(*cfg, R"({"dmrs-TypeA-Position":"pos2","rateMatchPatternToReleaseList":[)" + c.ids +
                             R"(],"ss-PBCH-BlockPower":0})");
    }
    for (const unsigned count : {5U, 255U})
    {
        cfg->numRateMatchPatternRelease = static_cast<UINT8>(count);
        ServingCellConfigCommon_rateMatchPatternToReleaseList list{};
        EXPECT_EQ(rrcComposerateMatchPatternRelease(&list, cfg.get()), VOS_OK);
        EXPECT_EQ(list.n, count);
        EXPECT_THAT(list.elem, ElementsAreArray(ids));
        EXPECT_EQ(refused(*cfg), "ServingCellConfigCommon.rateMatchPatternToReleaseList: " + std::to_string(count) +
                                     " elements, not 1..4");
    }
}

TEST_F(servingCellCommon, RateMatchListWithoutHeap)
{
    const auto cfg = cleared<RrcServingCellCfgCommon_t>();
    cfg->numRateMatchPatternAddMod = 2;
    cfg->rateMatchPatternToAddMod[0].Presence = RRC_PATTERN_TYPE_SETID;
    cfg->rateMatchPatternToAddMod[1].Presence = RRC_PATTERN_TYPE_SETID;
    // Per pattern the node and the bitmaps that are allocated in any case.
    for (const auto& [successes, nodes] : {std::pair{0U, 0U}, std::pair{2U, 1U}})
    {
        ServingCellConfigCommon_rateMatchPatternToAddModList list{};
        const auto element = cleared<ServingCellConfigCommon>();
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposerateMatchPatternToAddMod(&context, &list, cfg.get()), VOS_ERROR);
            EXPECT_EQ(printed(), "pNode Or pRateMatchPatItem is NULL\r\n");
        }
        EXPECT_EQ(list.count, nodes);
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeServCellConfigCommon(&context, element.get(), cfg.get()), VOS_OK);
            EXPECT_EQ(printed(), "pNode Or pRateMatchPatItem is NULL\r\n");
        }
        EXPECT_EQ(element->rateMatchPatternToAddModList.count, nodes);
        EXPECT_EQ(element->m.rateMatchPatternToAddModListPresent, 1U);
    }
    for (const unsigned successes : {1U, 3U})
    {
        ServingCellConfigCommon_rateMatchPatternToAddModList list{};
        const HeapFault fault(successes);
        EXPECT_EQ(rrcComposerateMatchPatternToAddMod(&context, &list, cfg.get()), successes == 1 ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), successes == 1 ? "pNode Or pRateMatchPatItem is NULL\r\n" : "");
        EXPECT_EQ(list.count, successes == 1 ? 1U : 2U) << "unused bitmaps are not missed";
    }
}

TEST_F(servingCellCommon, PatternWithoutHeapIsRefusedByTheEncoder)
{
    RrcRateMatchPattern_t cfg = bitmapPattern(3, 0x3F);
    const std::string bitmaps = "RateMatchPattern.patternType";
    const std::string symbols = bitmaps + ".bitmaps.symbolsInResourceBlock: tag 0 is not in 1..2";
    const std::string periodicity = bitmaps + ".bitmaps.periodicityAndPattern: tag 0 is not in 1..7";
    for (unsigned n = 0; n <= 9; ++n)
    {
        SCOPED_TRACE(n);
        RateMatchPattern element{};
        {
            const HeapFault fault(n);
            EXPECT_EQ(rrcComposeRateMatchPatternAdd(&context, &element, &cfg), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), n < 9);
        }
        EXPECT_EQ(printed(), n == 0 ? nullLine("rrcComposePatternType_bitmaps", "pBitmaps") : "");
        const std::string line = encode(asn1PE_RateMatchPattern, element);
        if (n == 0)
        {
            EXPECT_EQ(line, bitmaps + ": tag 0 is not in 1..2");
        }
        else if (n < 9)
        {
            // Both slots, then n2 to n20: the last one fails as the first one that failed.
            EXPECT_EQ(line, n < 3 ? symbols : periodicity);
        }
        else
        {
            EXPECT_EQ(line.find(' '), std::string::npos) << line;
        }
    }
}

TEST_F(servingCellCommon, N40NeedsNoHeap)
{
    RrcBitMaps_t cfg =
        bitmapPattern(0, RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE | RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE)
            .patternType.bitmaps;
    RateMatchPattern_patternType_bitmaps_periodicityAndPattern element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposePeriodicityAndPattern(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.t, 7U);
    EXPECT_THAT(element.u.n40, ElementsAre(0x67, 0x89, 0xAB, 0xCD, 0xE6));
}

// SSB measurement timing

TEST_F(servingCellCommon, SsbMeasurementTiming)
{
    const struct
    {
        UINT8 offset;
        std::string json;
    } cases[] = {
        {4, R"({"sf5":4})"},    {9, R"({"sf10":9})"},   {19, R"({"sf20":19})"},
        {39, R"({"sf40":39})"}, {79, R"({"sf80":79})"}, {159, R"({"sf160":159})"},
    };
    const char* const durations[] = {"sf1", "sf2", "sf3", "sf4", "sf5"};
    UINT8 period = 1;
    for (const auto& c : cases)
    {
        for (UINT8 duration = 0; duration < 5; ++duration)
        {
            RrcSSBMTC_t cfg{period, c.offset, duration};
            SSB_MTC element{};
            EXPECT_EQ(rrcComposeSSB_MTC(&element, &cfg), VOS_OK);
            expectDecoded("SSB-MTC", asn1PE_SSB_MTC, element,
                          R"({"periodicityAndOffset":)" + c.json + R"(,"duration":")" + durations[duration] + R"("})");
        }
        RrcSSBMTC_t late{period, static_cast<UINT8>(c.offset + 1), 0};
        SSB_MTC element{};
        EXPECT_EQ(rrcComposeSSB_MTC(&element, &late), VOS_OK);
        EXPECT_THAT(encode(asn1PE_SSB_MTC, element), testing::EndsWith(": " + std::to_string(c.offset + 1) +
                                                                       " is not in 0.." + std::to_string(c.offset)));
        ++period;
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(servingCellCommon, UnknownPeriodStaysInTheElement)
{
    for (const UINT8 period : {UINT8{0}, UINT8{7}, UINT8{255}})
    {
        RrcSSBMTC_t cfg{period, 3, 2};
        SSB_MTC element{};
        EXPECT_EQ(rrcComposeSSB_MTC(&element, &cfg), VOS_OK);
        EXPECT_EQ(printed(), "No SSB_MTC__periodicityAndOffset_PR\n");
        EXPECT_EQ(element.periodicityAndOffset.t, period);
        EXPECT_EQ(element.periodicityAndOffset.u.sf5, 0);
        EXPECT_EQ(element.duration, 2U);
        EXPECT_EQ(encode(asn1PE_SSB_MTC, element),
                  "SSB-MTC.periodicityAndOffset: tag " + std::to_string(period) + " is not in 1..6");
    }
}

// TDD slots

TEST_F(servingCellCommon, ExplicitSlotSymbols)
{
    const struct
    {
        UINT8 bitMask;
        std::string json;
    } cases[] = {
        {0xFC, "{}"},
        {RRC_SLOTCFG_SYM_EXPLICIT_DL_PRESENCE, R"({"nrofDownlinkSymbols":13})"},
        {RRC_SLOTCFG_SYM_EXPLICIT_UL_PRESENCE, R"({"nrofUplinkSymbols":1})"},
        {3, R"({"nrofDownlinkSymbols":13,"nrofUplinkSymbols":1})"},
    };
    for (const auto& c : cases)
    {
        for (const UINT8 presence : {UINT8{RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE}, UINT8{0xFF}})
        {
            RrcTddUlDlSlotCfg_t cfg{319, presence, {c.bitMask, 13, 1}};
            TDD_UL_DL_SlotConfig element{};
            EXPECT_EQ(rrcComposeTddUlDlCfg(&context, &element, &cfg), VOS_OK);
            expectDecoded("TDD-UL-DL-SlotConfig", asn1PE_TDD_UL_DL_SlotConfig, element,
                          R"({"slotIndex":319,"symbols":{"explicit":)" + c.json + "}}");
        }
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(servingCellCommon, WholeSlotsAreNotComposed)
{
    for (const UINT8 presence : {UINT8{RRC_SLOTCFG_SYM_ALLDL_PRESENCE}, UINT8{RRC_SLOTCFG_SYM_ALLUL_PRESENCE}, UINT8{3},
                                 UINT8{0}, UINT8{0xF8}})
    {
        RrcTddUlDlSlotCfg_t cfg{17, presence, {3, 13, 1}};
        TDD_UL_DL_SlotConfig element{};
        EXPECT_EQ(rrcComposeTddUlDlCfg(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.slotIndex, 17);
        EXPECT_EQ(element.symbols.t, 0U);
        EXPECT_EQ(element.symbols.u.explicit_, nullptr);
        EXPECT_EQ(encode(asn1PE_TDD_UL_DL_SlotConfig, element), "TDD-UL-DL-SlotConfig.symbols: tag 0 is not in 1..3");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(servingCellCommon, SlotWithoutHeapIsRefusedByTheEncoder)
{
    RrcTddUlDlSlotCfg_t cfg{17, RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE, {3, 13, 1}};
    TDD_UL_DL_SlotConfig element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeTddUlDlCfg(&context, &element, &cfg), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_TDD_UL_DL_SlotConfig, element), "TDD-UL-DL-SlotConfig.symbols: tag 0 is not in 1..3");
}
