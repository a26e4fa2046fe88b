#include "csiRecordLayout.h"

#include <gtest/gtest.h>

#include <cstring>

#include "byteOrder.h"
#include "support/RecordOrder.h"

using test::rising;

namespace
{

#define OFFSET(member) offsetof(Record, member)

TEST(csiRecordLayout, ResourceFieldsLieInOrder)
{
    {
        using Record = RrcNzpCsiRsResource_t;
        EXPECT_TRUE(rising({OFFSET(nzpCsiRsResourceId), OFFSET(resourceMapping), OFFSET(powerControlOffset),
                            OFFSET(scramblingId), OFFSET(bitMask), OFFSET(powerControlOffsetSS),
                            OFFSET(periodicityAndOffset), OFFSET(qclInfoPeriodicCsiRs)}));
    }
    {
        using Record = RrcNzpCsiRsResourceSet_t;
        EXPECT_TRUE(rising({OFFSET(nzpCsiResourceSetId), OFFSET(numNzpCsiRsRes), OFFSET(numNzpCsiRsResources),
                            OFFSET(bitMask), OFFSET(repetition), OFFSET(aperidicTriggeringOffset), OFFSET(trsInfo)}));
    }
    {
        using Record = RrcCsiImResource_t;
        EXPECT_TRUE(rising({OFFSET(csiImResourceId), OFFSET(bitMask), OFFSET(presence),
                            OFFSET(csiImResourceElementPattern), OFFSET(freqBand), OFFSET(periodicityAndOffset)}));
    }
    {
        using Record = pattern0_s;
        EXPECT_TRUE(rising({OFFSET(subCarrierLocationP0), OFFSET(symbolLocationP0)}));
    }
    {
        using Record = pattern1_s;
        EXPECT_TRUE(rising({OFFSET(subCarrierLocationP1), OFFSET(symbolLocationP1)}));
    }
    {
        using Record = RrcCsiImResourceSet_t;
        EXPECT_TRUE(rising({OFFSET(csiImResourceSetId), OFFSET(numCsiImResources), OFFSET(CsiImResourceId)}));
    }
    {
        using Record = RrcCsiSsbResourceSet_t;
        EXPECT_TRUE(rising({OFFSET(csiSsbResourceSetId), OFFSET(numSsbResourceSet), OFFSET(csiSsbIdx)}));
    }
    {
        using Record = RrcCsiResourceCfg_t;
        EXPECT_TRUE(rising({OFFSET(csiResourceCfgId), OFFSET(bwpId), OFFSET(resourceType), OFFSET(presence),
                            OFFSET(csiRsResourceSetList)}));
    }
    {
        using Record = nzpCsiRsResourceSetList_s;
        EXPECT_TRUE(rising({OFFSET(numNzpCsiRsResourceSet), OFFSET(nzpCsiRsResourceSetId), OFFSET(numCsiSsbResourceSet),
                            OFFSET(csiSsbResourceSetId)}));
    }
    {
        using Record = csiImResourceSetList_s;
        EXPECT_TRUE(rising({OFFSET(numCsiImResourceSet), OFFSET(csiImResourceSetId)}));
    }
}

TEST(csiRecordLayout, ReportFieldsLieInOrder)
{
    {
        using Record = RrcCsiReportCfg_t;
        EXPECT_TRUE(rising({OFFSET(csiReportCfgId),
                            OFFSET(bitMask),
                            OFFSET(servCellIndex),
                            OFFSET(resourceCfgIdForChMeas),
                            OFFSET(CsiImresourceCfgIdForInterference),
                            OFFSET(nzpCsiRsresourceCfgIdForInterference),
                            OFFSET(cfgTypeBitMask),
                            OFFSET(ReportCfgType_n),
                            OFFSET(rptQuBitMask),
                            OFFSET(ReportQuantity_n),
                            OFFSET(subBandSize),
                            OFFSET(reportFreqCfg),
                            OFFSET(timeRestrictForChMeas),
                            OFFSET(timeRestrictForInterferenceMeas),
                            OFFSET(CqisPerReportNum),
                            OFFSET(codeBookCfg),
                            OFFSET(nrofCQIsPerRep),
                            OFFSET(groupBasedBeamReport),
                            OFFSET(cqi_Table),
                            OFFSET(RRCPortIndexFor8Ranks),
                            OFFSET(semimPersistentOnPuschv1530_t)}));
    }
    {
        using Record = Periodic_t;
        EXPECT_TRUE(rising({OFFSET(reportSlotCfg), OFFSET(pucchCsiResourceNum), OFFSET(pucchCsiResource)}));
    }
    {
        using Record = SemiPersistentOnPucch_t;
        EXPECT_TRUE(rising({OFFSET(reportSlotCfg), OFFSET(pucchCsiResourceNum), OFFSET(pucchCsiResource)}));
    }
    {
        using Record = SemiPersistentOnPuSch_t;
        EXPECT_TRUE(rising(
            {OFFSET(reportSlotCfg), OFFSET(reportSlotOffsetNum), OFFSET(reportSlotOffset), OFFSET(p0PuschAlphaSetId)}));
    }
    {
        using Record = Aperiodic_t;
        EXPECT_TRUE(rising({OFFSET(reportSlotOffsetNum), OFFSET(reportSlotOffset)}));
    }
    {
        using Record = csiReportPeriodAndOffset_t;
        EXPECT_TRUE(rising({OFFSET(periodicity), OFFSET(offset)}));
    }
    {
        using Record = PucchCsiResource_t;
        EXPECT_TRUE(rising({OFFSET(UlBwpId), OFFSET(PucchResourceId)}));
    }
    {
        using Record = CriRiI1Cqi_t;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(PdschBundleSizeForCsi)}));
    }
    {
        using Record = ReportFreqCfg_t;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(CqiFormatInd), OFFSET(PmiFormatInd), OFFSET(csiRptBandBitMask),
                            OFFSET(CsiReportingBand_n)}));
    }
    {
        using Record = RrcgroupBasedBeamReport_t;
        EXPECT_TRUE(rising({OFFSET(Presence), OFFSET(BeamReporting_n)}));
    }
    {
        using Record = basedBeamReport_Disabled;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(NrofReportedRS)}));
    }
}

TEST(csiRecordLayout, CodebookFieldsLieInOrder)
{
    {
        using Record = RrcCodebookCfg_t;
        EXPECT_TRUE(rising({OFFSET(Presence), OFFSET(CodeBookCfgType_u)}));
    }
    {
        using Record = CodeBookType1_t;
        EXPECT_TRUE(rising({OFFSET(codebookType1_Sub), OFFSET(CodebookMode)}));
    }
    {
        using Record = CodebookType1_Sub_t;
        EXPECT_TRUE(rising({OFFSET(Presence), OFFSET(CodeBookTypePanel_u)}));
    }
    {
        using Record = CodeBookType2_t;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(codebookType2_Sub), OFFSET(phaseAlphabetSize),
                            OFFSET(subBandAmplitude), OFFSET(numberOfBeams)}));
    }
    {
        using Record = Codebooktype2_Sub_t;
        EXPECT_TRUE(rising({OFFSET(Presence), OFFSET(Type2_subType_u)}));
    }
    {
        using Record = SinglePanel_nrOfAntennaPorts_t;
        EXPECT_TRUE(rising({OFFSET(Presence), OFFSET(NrOfAntennaPorts_n)}));
    }
    {
        using Record = nrOfAntennaPorts_moreThanTwo;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(N1_N2_Presence), OFFSET(MoreThanTwo_n1_n2_u)}));
    }
    {
        using Record = CodeBookTypeMultiPanel_t;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(MultiPanel_Presence), OFFSET(MultiPanel_Restrict_u)}));
    }
    {
        using Record = subType_typeII;
        EXPECT_TRUE(rising({OFFSET(Restriction_Presence), OFFSET(SubsetRestriction_u)}));
    }
    {
        using Record = typeII_PortSelection;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(portSelectionSamplingSize)}));
    }
}

TEST(csiRecordLayout, PortFieldsLieInOrder)
{
    {
        using Record = RRCPortIndexFor8Ranks_t;
        EXPECT_TRUE(rising({OFFSET(numPortIndexFor8Ranks), OFFSET(portIndexFor8Ranks)}));
    }
    {
        using Record = RrcPortIndexFor8Ranks_t;
        EXPECT_TRUE(rising({OFFSET(Presence), OFFSET(PortIndexFor8Ranks_n)}));
    }
    {
        using Record = portIndexFor8Ranks_portIndex8;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(rank1_8), OFFSET(numRank2_8), OFFSET(PortIndex2_8),
                            OFFSET(numRank3_8), OFFSET(PortIndex3_8), OFFSET(numRank4_8), OFFSET(PortIndex4_8),
                            OFFSET(numRank5_8), OFFSET(PortIndex5_8), OFFSET(numRank6_8), OFFSET(PortIndex6_8),
                            OFFSET(numRank7_8), OFFSET(PortIndex7_8), OFFSET(numRank8_8), OFFSET(PortIndex8_8)}));
    }
    {
        using Record = portIndexFor8Ranks_portIndex4;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(rank1_4), OFFSET(numRank2_4), OFFSET(PortIndex2_4),
                            OFFSET(numRank3_4), OFFSET(PortIndex3_4), OFFSET(numRank4_4), OFFSET(PortIndex4_4)}));
    }
    {
        using Record = portIndexFor8Ranks_portIndex2;
        EXPECT_TRUE(rising({OFFSET(bitMask), OFFSET(rank1_2), OFFSET(numRank2_2), OFFSET(PortIndex2_2)}));
    }
}

TEST(csiRecordLayout, MeasurementFieldsLieInOrder)
{
    {
        using Record = RrcCsiMeasCfg_t;
        EXPECT_TRUE(rising({OFFSET(numNzpCsiRsResourceAddMod),
                            OFFSET(NzpCsiRsResourceAddMod),
                            OFFSET(numNzpCsiRsResourceDel),
                            OFFSET(nzpCsiRsResourceId),
                            OFFSET(numNzpCsiRsResourceSetAddMod),
                            OFFSET(NzpCsiRsResourceSetAddMod),
                            OFFSET(numNzpCsiRsResourceSetRel),
                            OFFSET(nzpCsiRsResourceSetId),
                            OFFSET(numCsiImResourceAddMod),
                            OFFSET(csiImResourceAddMod),
                            OFFSET(numCsiImResourceRel),
                            OFFSET(csiImResourceId),
                            OFFSET(numCsiImResourceSetAddMod),
                            OFFSET(csiImResourceSetAddMod),
                            OFFSET(numCsiImResourceSetRel),
                            OFFSET(csiImResourceSetId),
                            OFFSET(numCsiSsbResourceSetAddMod),
                            OFFSET(csiSsbResourceSet),
                            OFFSET(numCsiSsbResourceSetRel),
                            OFFSET(csiSsbResourceSetId),
                            OFFSET(numCsiResourceCfgAddMod),
                            OFFSET(csiResourceCfg),
                            OFFSET(numCsiResourceCfgRel),
                            OFFSET(csiResourceCfgId),
                            OFFSET(numCsiReportCfgAddMod),
                            OFFSET(csiReportCfg),
                            OFFSET(numCsiReportCfgRel),
                            OFFSET(csiReportCfgId),
                            OFFSET(bitMask),
                            OFFSET(reportTriggerSize),
                            OFFSET(aperiodicTriggerStateList),
                            OFFSET(semiPersistentOnPuschTriggerStateList)}));
    }
    {
        using Record = RrcCsiAperiodicTriggerStateList_t;
        EXPECT_TRUE(rising({OFFSET(numState), OFFSET(state)}));
    }
    {
        using Record = RrcCsiAperiodicTriggerState_t;
        EXPECT_TRUE(rising({OFFSET(numCfgInfo), OFFSET(info)}));
    }
    {
        using Record = RrcCsiAssociatedReportCfgInfo_t;
        EXPECT_TRUE(rising({OFFSET(reportCfgId), OFFSET(prsence), OFFSET(resourceForChannel)}));
    }
    {
        using Record = nzpCsiRs_s;
        EXPECT_TRUE(rising({OFFSET(resourceSet), OFFSET(numQciInfo), OFFSET(qciInfo)}));
    }
    {
        using Record = RrcCsiSemiPersistentOnPuschTriggerStateList_t;
        EXPECT_TRUE(rising({OFFSET(numTriggeState), OFFSET(csiReportCfgId)}));
    }
}

#undef OFFSET

// 32-bit x86 aligns 64 bits to four octets.
struct Wide
{
    UINT8 first;
    UINT64 second;
};
constexpr bool isNatural = offsetof(Wide, second) == sizeof(UINT64);

// Sizes under natural alignment, the same in both languages and for both compilers.
TEST(csiRecordLayout, Sizes)
{
    const struct
    {
        CsiRecord record;
        size_t here;
        size_t size;
    } cases[] = {
        {CSI_NZP_RESOURCE, sizeof(RrcNzpCsiRsResource_t), 36},
        {CSI_NZP_RESOURCE_SET, sizeof(RrcNzpCsiRsResourceSet_t), 72},
        {CSI_IM_RESOURCE, sizeof(RrcCsiImResource_t), 14},
        {CSI_RESOURCE_CFG, sizeof(RrcCsiResourceCfg_t), 23},
        {CSI_REPORT_CFG_TYPE, sizeof(reportCfgType_u), 19},
        {CSI_REPORT_FREQ_CFG, sizeof(ReportFreqCfg_t), 12},
        {CSI_TWO_PORTS, sizeof(nrOfAntennaPorts_two), 1},
        {CSI_MORE_PORTS, sizeof(nrOfAntennaPorts_moreThanTwo), 48},
        {CSI_SINGLE_PANEL, sizeof(CodeBookTypeSinglePanel_t), 64},
        {CSI_MULTI_PANEL, sizeof(CodeBookTypeMultiPanel_t), 32},
        {CSI_TYPE1, sizeof(CodeBookType1_t), 80},
        {CSI_TYPE_II, sizeof(subType_typeII), 40},
        {CSI_PORT_SELECTION, sizeof(typeII_PortSelection), 3},
        {CSI_TYPE2, sizeof(CodeBookType2_t), 80},
        {CSI_CODEBOOK, sizeof(RrcCodebookCfg_t), 88},
        {CSI_GROUP_REPORT, sizeof(RrcgroupBasedBeamReport_t), 4},
        {CSI_PORT_INDEX, sizeof(RrcPortIndexFor8Ranks_t), 46},
        {CSI_REPORT_CFG, sizeof(RrcCsiReportCfg_t), 6048},
        {CSI_TRIGGER_STATE, sizeof(RrcCsiAperiodicTriggerState_t), 321},
        {CSI_MEAS_CFG, sizeof(RrcCsiMeasCfg_t), 351464},
    };
    for (const auto& [record, here, size] : cases)
    {
        EXPECT_EQ(csiSizeInC(record), here) << record;
        if (isNatural)
        {
            EXPECT_EQ(here, size) << record;
        }
    }
}

TEST(csiRecordLayout, BitFieldsFilledInCAreReadHere)
{
    CsiBitFields fields;
    csiFillInC(&fields);
    EXPECT_EQ(fields.band.subbands19_v1530, 0x5A5A5U);
    EXPECT_EQ(fields.two.twoTX_CodebookSubsetRestrict, 0x2DU);
    EXPECT_EQ(fields.more.typeI_SinglePanel_CodebookSubsetRestriction_i2, 0xB00DU);
    EXPECT_EQ(fields.single.typeI_SinglePanel_ri_Restriction, 0xC3U);
    EXPECT_EQ(fields.multi.ri_Restriction, 0x96U);
    EXPECT_EQ(fields.typeII.TypeII_RI_Restriction, 2U);
    EXPECT_EQ(fields.selection.typeII_PortSelectionRI_Restriction, 1U);

    // The octets are these alone: each field begins at the octet behind the field before it, and with its own first
    // bit.
    const auto field = [](const auto& record, size_t at, auto unit, unsigned width)
    {
        std::memcpy(&unit, reinterpret_cast<const UINT8*>(&record) + at, sizeof unit);
        return unit >> rtx::bitFieldShift(sizeof unit, width) & ((1U << width) - 1);
    };
    EXPECT_EQ(field(fields.band, 0, UINT32{}, 19), 0x5A5A5U);
    EXPECT_EQ(field(fields.two, 0, UINT8{}, 6), 0x2DU);
    EXPECT_EQ(field(fields.selection, 2, UINT8{}, 2), 1U);
    if (isNatural)
    {
        EXPECT_EQ(field(fields.more, 40, UINT16{}, 16), 0xB00DU);
        EXPECT_EQ(field(fields.single, 56, UINT8{}, 8), 0xC3U);
        EXPECT_EQ(field(fields.multi, 24, UINT8{}, 8), 0x96U);
        EXPECT_EQ(field(fields.typeII, 32, UINT8{}, 2), 2U);
    }
}

} // namespace
