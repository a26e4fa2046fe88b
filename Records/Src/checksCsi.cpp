// Checks of CSI measurement.
#include "rowChecks.h"

namespace recordCheck
{

namespace
{

void nzpCsiRsSetCount(const RrcNzpCsiRsResourceSet_t& r, Report& report)
{
    if (r.numNzpCsiRsRes > 64)
    {
        const UINT32 sent = r.numNzpCsiRsRes & 0xFFU;
        report.say(rowRules::nzpCsiRsSetCount, sent == 0 || sent > 64 ? RRC_RECORD_ERROR : RRC_RECORD_WARNING,
                   &r.numNzpCsiRsRes);
    }
}

void csiSsbSetCount(const nzpCsiRsResourceSetList_s& r, Report& report)
{
    if (r.numCsiSsbResourceSet > 1)
    {
        report.say(rowRules::csiSsbSetCount, &r.numCsiSsbResourceSet);
    }
}

void csiResourceConfigEmpty(const nzpCsiRsResourceSetList_s& r, Report& report)
{
    if (r.numNzpCsiRsResourceSet == 0 && r.numCsiSsbResourceSet == 0)
    {
        report.say(rowRules::csiResourceConfigEmpty, &r.numNzpCsiRsResourceSet);
    }
}

void csiResourceChoices(const RrcCsiResourceCfg_t& r, Report& report)
{
    oneBit(report, rowRules::csiResourceChoices, r.presence, RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE);
}

void csiImPatternChoice(const RrcCsiImResource_t& r, Report& report)
{
    if ((r.bitMask & RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE) != 0)
    {
        oneBit(report, rowRules::csiResourceChoices, r.presence, RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE);
    }
}

void csiResourceListCounts(const RrcCsiSsbResourceSet_t& r, Report& report)
{
    notEmpty(report, rowRules::csiResourceListCounts, r.numSsbResourceSet);
}

void csiImResourceCount(const RrcCsiImResourceSet_t& r, Report& report)
{
    notEmpty(report, rowRules::csiResourceListCounts, r.numCsiImResources);
}

void csiImResourceSetCount(const csiImResourceSetList_s& r, Report& report)
{
    notEmpty(report, rowRules::csiResourceListCounts, r.numCsiImResourceSet);
}

void trsInfoOneValue(const RrcNzpCsiRsResourceSet_t& r, Report& report)
{
    oneValue(report, rowRules::trsInfoOneValue, (r.bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE) != 0,
             r.trsInfo);
}

// A mandatory member without its bit.
template <typename Mask>
void mandatory(Report& report, const RrcRecordRule& rule, const Mask& mask, unsigned bit)
{
    if ((mask & bit) == 0)
    {
        report.say(rule, RRC_RECORD_ERROR, &mask);
    }
}

void csiReportGroupBased(const RrcCsiReportCfg_t& r, Report& report)
{
    mandatory(report, rowRules::csiReportGroupBased, r.bitMask, RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE);
}

void csiReportDummy(const RrcCsiReportCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE) != 0)
    {
        const bool isSent = r.nrofCQIsPerRep == 0 || r.nrofCQIsPerRep == 1;
        report.say(rowRules::csiReportDummy, isSent ? RRC_RECORD_NOTICE : RRC_RECORD_ERROR, &r.nrofCQIsPerRep);
    }
}

// What a union holds where the alternative has no content is not looked at: nobody has to clear it.
void csiReportNotRead(const RrcCsiReportCfg_t& r, Report& report)
{
    notZero(report, rowRules::csiReportNotRead, r.CqisPerReportNum);
}

void csiReportSubbandSize(const RrcCsiReportCfg_t& r, Report& report)
{
    atMost(report, rowRules::csiReportSubbandSize, true, r.subBandSize, 1);
}

void csiReportSemiPersistentV1530(const RrcCsiReportCfg_t& r, Report& report)
{
    notSent(report, rowRules::csiReportSemiPersistentV1530, r.bitMask,
            RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE);
}

void csiReportChoices(const RrcCsiReportCfg_t& r, Report& report)
{
    oneBit(report, rowRules::csiReportChoices, r.cfgTypeBitMask, RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE);
    oneBit(report, rowRules::csiReportChoices, r.rptQuBitMask, RRC_CSI_REPORT_QUANTITY_CRI_RI_LI_PMI_CQI_PRESENCE);
}

void csiReportingBandChoice(const ReportFreqCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE) != 0)
    {
        oneBit(report, rowRules::csiReportChoices, r.csiRptBandBitMask,
               RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS19_V1530);
    }
}

void groupBasedBeamReportChoice(const RrcgroupBasedBeamReport_t& r, Report& report)
{
    oneBit(report, rowRules::csiReportChoices, r.Presence, RRC_BASED_BEAM_REPORT_DISABLED);
}

void portIndexChoice(const RrcPortIndexFor8Ranks_t& r, Report& report)
{
    oneBit(report, rowRules::csiReportChoices, r.Presence, RRC_PORT_INDEX1_PRESENCE);
}

void csiReportPeriod(const csiReportPeriodAndOffset_t& r, Report& report)
{
    between(report, rowRules::csiReportPeriod, r.periodicity, 1, 10);
}

template <typename Record>
void csiReportListCounts(const Record& r, Report& report)
{
    notEmpty(report, rowRules::csiReportListCounts, r.pucchCsiResourceNum);
}

template <typename Record>
void csiReportOffsetCount(const Record& r, Report& report)
{
    notEmpty(report, rowRules::csiReportListCounts, r.reportSlotOffsetNum);
}

void portIndicesCount(const RRCPortIndexFor8Ranks_t& r, Report& report)
{
    notEmpty(report, rowRules::csiReportListCounts, r.numPortIndexFor8Ranks);
}

// A list of fixed size, of which the record has room for so many entries; surplus ones are dropped, and not refused.
template <typename Count>
void ofFixedSize(Report& report, const Count& count, unsigned size)
{
    if (count != 0 && count != size)
    {
        report.say(rowRules::portIndexListCounts, &count);
        report.notAsItStands(&count);
    }
}

void portIndexListCounts(const portIndexFor8Ranks_portIndex8& r, Report& report)
{
    ofFixedSize(report, r.numRank2_8, 2);
    ofFixedSize(report, r.numRank3_8, 3);
    ofFixedSize(report, r.numRank4_8, 4);
    ofFixedSize(report, r.numRank5_8, 5);
    ofFixedSize(report, r.numRank6_8, 6);
    ofFixedSize(report, r.numRank7_8, 7);
    ofFixedSize(report, r.numRank8_8, 8);
}

void portIndex4ListCounts(const portIndexFor8Ranks_portIndex4& r, Report& report)
{
    ofFixedSize(report, r.numRank2_4, 2);
    ofFixedSize(report, r.numRank3_4, 2);
    ofFixedSize(report, r.numRank4_4, 2);
}

void portIndex2ListCounts(const portIndexFor8Ranks_portIndex2& r, Report& report)
{
    ofFixedSize(report, r.numRank2_2, 2);
}

void portIndex4Entries(const portIndexFor8Ranks_portIndex4& r, Report& report)
{
    if (r.numRank3_4 != 0)
    {
        report.say(rowRules::portIndex4Entries, &r.PortIndex3_4);
    }
    if (r.numRank4_4 != 0)
    {
        report.say(rowRules::portIndex4Entries, &r.PortIndex4_4);
    }
}

void codebookChoices(const RrcCodebookCfg_t& r, Report& report)
{
    oneBit(report, rowRules::codebookChoices, r.Presence, RRC_CODE_BOOK_TYPE2_PRESENCE);
}

void codebookType1Choice(const CodebookType1_Sub_t& r, Report& report)
{
    oneBit(report, rowRules::codebookChoices, r.Presence, RRC_CODE_BOOK_TYPE_MULTI_PANEL);
}

void antennaPortsChoice(const SinglePanel_nrOfAntennaPorts_t& r, Report& report)
{
    oneBit(report, rowRules::codebookChoices, r.Presence, RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE);
}

void singlePanelRestrictionChoice(const nrOfAntennaPorts_moreThanTwo& r, Report& report)
{
    if ((r.bitMask & RRC_MORE_THAN_TWO_N1_N2_PRESENCE) != 0)
    {
        oneBit(report, rowRules::codebookChoices, r.N1_N2_Presence,
               RRC_SIXTEEN_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE);
    }
}

void codebookType2Choice(const Codebooktype2_Sub_t& r, Report& report)
{
    oneBit(report, rowRules::codebookChoices, r.Presence, RRC_TYPEII_PORTSELECTION);
}

void subsetRestrictionChoice(const subType_typeII& r, Report& report)
{
    oneBit(report, rowRules::codebookChoices, r.Restriction_Presence, RRC_SUB_SET_RESTRICT_SIXTEEN_ONE_PRESENCE);
}

void codebookMultiPanel(const CodeBookTypeMultiPanel_t& r, Report& report)
{
    report.say(rowRules::codebookMultiPanel, &r.bitMask);
}

void codebookMandatoryBits(const nrOfAntennaPorts_moreThanTwo& r, Report& report)
{
    mandatory(report, rowRules::codebookMandatoryBits, r.bitMask, RRC_MORE_THAN_TWO_N1_N2_PRESENCE);
}

void codebookType2MandatoryBits(const CodeBookType2_t& r, Report& report)
{
    mandatory(report, rowRules::codebookMandatoryBits, r.bitMask, RRC_CODEBOOK_TYPE2_SUB);
}

void typeIIMandatoryBits(const subType_typeII& r, Report& report)
{
    mandatory(report, rowRules::codebookMandatoryBits, r.Restriction_Presence, RRC_TYPEII_RI_RESTRICTION_PRESENCE);
}

void codebookType2Defaults(const CodeBookType2_t& r, Report& report)
{
    constexpr unsigned all = RRC_PHASE_ALPHA_BET_SIZE | RRC_SUB_BAND_AMPLITUDE | RRC_NUM_BER_OFBEAMS;
    if ((r.bitMask & all) != all)
    {
        report.say(rowRules::codebookType2Defaults, &r.bitMask);
    }
}

void codebookType2UpperBits(const CodeBookType2_t& r, Report& report)
{
    if ((r.bitMask & RRC_PHASE_ALPHA_BET_SIZE) != 0)
    {
        kept(report, rowRules::codebookType2UpperBits, r.phaseAlphabetSize, 32);
    }
    boolean(report, rowRules::codebookType2UpperBits, (r.bitMask & RRC_SUB_BAND_AMPLITUDE) != 0, r.subBandAmplitude);
    if ((r.bitMask & RRC_NUM_BER_OFBEAMS) != 0)
    {
        kept(report, rowRules::codebookType2UpperBits, r.numberOfBeams, 32);
    }
}

template <typename Number>
void singlePanelRestriction(const nrOfAntennaPorts_moreThanTwo& r, Report& report, unsigned bit, const Number& bits,
                            unsigned count)
{
    if (chooses(r.N1_N2_Presence, bit, RRC_SIXTEEN_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE))
    {
        kept(report, rowRules::codebookUpperBits, bits, count);
    }
}

void codebookUpperBits(const nrOfAntennaPorts_moreThanTwo& r, Report& report)
{
    if ((r.bitMask & RRC_MORE_THAN_TWO_N1_N2_PRESENCE) != 0)
    {
        singlePanelRestriction(r, report, RRC_SIX_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
                               r.MoreThanTwo_n1_n2_u.six_one, 24);
        singlePanelRestriction(r, report, RRC_TWELVE_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
                               r.MoreThanTwo_n1_n2_u.twelve_one, 48);
    }
}

void subsetRestriction(const subType_typeII& r, Report& report, unsigned bit, const UINT64& bits, unsigned count)
{
    if (chooses(r.Restriction_Presence, bit, RRC_SUB_SET_RESTRICT_SIXTEEN_ONE_PRESENCE))
    {
        kept(report, rowRules::codebookUpperBits, bits, count);
    }
}

void subsetRestrictionUpperBits(const subType_typeII& r, Report& report)
{
    subsetRestriction(r, report, RRC_SUB_SET_RESTRICT_TWO_TWO_PRESENCE, r.SubsetRestriction_u.two_two, 43);
    subsetRestriction(r, report, RRC_SUB_SET_RESTRICT_THREE_TWO_PRESENCE, r.SubsetRestriction_u.three_two, 59);
    subsetRestriction(r, report, RRC_SUB_SET_RESTRICT_SIX_ONE_PRESENCE, r.SubsetRestriction_u.six_one, 48);
}

void triggerListCounts(const RrcCsiAperiodicTriggerStateList_t& r, Report& report)
{
    notEmpty(report, rowRules::triggerListCounts, r.numState);
}

void semiPersistentTriggerCount(const RrcCsiSemiPersistentOnPuschTriggerStateList_t& r, Report& report)
{
    notEmpty(report, rowRules::triggerListCounts, r.numTriggeState);
}

void triggerReportCount(const RrcCsiAperiodicTriggerState_t& r, Report& report)
{
    notEmpty(report, rowRules::triggerReportCount, r.numCfgInfo);
}

void triggerResourceChoice(const RrcCsiAssociatedReportCfgInfo_t& r, Report& report)
{
    oneBit(report, rowRules::triggerResourceChoice, r.prsence, RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE);
}

constexpr RowCheck csiChecks[] = {
    row<nzpCsiRsSetCount>,
    row<csiSsbSetCount>,
    row<csiResourceConfigEmpty>,
    row<csiResourceChoices>,
    row<csiImPatternChoice>,
    row<csiResourceListCounts>,
    row<csiImResourceCount>,
    row<csiImResourceSetCount>,
    row<trsInfoOneValue>,
    row<csiReportGroupBased>,
    row<csiReportDummy>,
    row<csiReportNotRead>,
    row<csiReportSubbandSize>,
    row<csiReportSemiPersistentV1530>,
    row<csiReportChoices>,
    row<csiReportingBandChoice>,
    row<groupBasedBeamReportChoice>,
    row<portIndexChoice>,
    row<csiReportPeriod>,
    row<csiReportListCounts<Periodic_t>>,
    row<csiReportListCounts<SemiPersistentOnPucch_t>>,
    row<csiReportOffsetCount<SemiPersistentOnPuSch_t>>,
    row<csiReportOffsetCount<Aperiodic_t>>,
    row<portIndicesCount>,
    row<portIndexListCounts>,
    row<portIndex4ListCounts>,
    row<portIndex2ListCounts>,
    row<portIndex4Entries>,
    row<codebookChoices>,
    row<codebookType1Choice>,
    row<antennaPortsChoice>,
    row<singlePanelRestrictionChoice>,
    row<codebookType2Choice>,
    row<subsetRestrictionChoice>,
    row<codebookMultiPanel>,
    row<codebookMandatoryBits>,
    row<codebookType2MandatoryBits>,
    row<typeIIMandatoryBits>,
    row<codebookType2Defaults>,
    row<codebookType2UpperBits>,
    row<codebookUpperBits>,
    row<subsetRestrictionUpperBits>,
    row<triggerListCounts>,
    row<semiPersistentTriggerCount>,
    row<triggerReportCount>,
    row<triggerResourceChoice>,
};

} // namespace

const RowChecks checksOfCsi = rowChecks(csiChecks);

} // namespace recordCheck
