// Checks of the downlink bandwidth parts.
#include "rowChecks.h"

namespace recordCheck
{

namespace
{

void coresetNonInterleaved(const RrcControlResourceSet_t& r, Report& report)
{
    if ((r.presence & RRC_CCE_MAP_TYPE_INTERLEAVED) != 0)
    {
        notSent(report, rowRules::coresetNonInterleaved, r.presence, RRC_CCE_MAP_TYPE_NON_INTERLEAVED);
    }
}

void coresetOneValue(const RrcControlResourceSet_t& r, Report& report)
{
    oneValue(report, rowRules::coresetOneValue, (r.bitMask & RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE) != 0,
             r.enTciPresentInDci);
}

void coresetFrequencyUpperBits(const RrcControlResourceSet_t& r, Report& report)
{
    kept(report, rowRules::coresetFrequencyUpperBits, r.freqDomainResource, 45);
}

void searchSpacePeriod(const slotPeriodOffset_s& r, Report& report)
{
    between(report, rowRules::searchSpacePeriod, r.period, 1, 15);
}

void searchSpaceOffset(const slotPeriodOffset_s& r, Report& report)
{
    shortOffset(report, rowRules::searchSpaceOffset, r.period >= 2 && r.period <= 11, r.offset);
}

void searchSpaceTypeChoice(const RrcSearchSpace_t& r, Report& report)
{
    if ((r.bitMask & RRC_SEARCH_SPACE_TYPE_PRESENCE) != 0)
    {
        oneBit(report, rowRules::searchSpaceTypeChoice, r.presence, RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE);
    }
}

void searchSpaceDciFormat23Dummies(const dciFormat2_3_s& r, Report& report)
{
    notZero(report, rowRules::searchSpaceDciFormat23Dummies, r.dummy2);
    if ((r.presence & RRC_DCI2_3_DUMMY1_PRESENCE) != 0)
    {
        report.say(rowRules::searchSpaceDciFormat23Dummies, &r.presence);
    }
}

void preEmptionListCount(const RrcDlPreemption_t& r, Report& report)
{
    notEmpty(report, rowRules::preEmptionListCount, r.numServingCells);
}

void tpcSrsSulStartingBitField(const RrcSrsTpcCmdCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_SRS_TPC_STARTING_BIT_PRESENCE) != 0)
    {
        notZero(report, rowRules::tpcSrsSulStartingBitField, r.startBitSulFormat2_3);
    }
}

void tpcSrsSulStartingBit(const RrcSrsTpcCmdCfg_t& r, Report& report)
{
    notSent(report, rowRules::tpcSrsSulStartingBit, r.bitMask, RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE);
}

void prbBundlingChoice(const RrcPdschCfg_t& r, Report& report)
{
    oneBit(report, rowRules::prbBundlingChoice, r.prbBitmask, RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC);
}

void rateMatchGroupChoice(const RrcRateMatchPatternGroup_t& r, Report& report)
{
    oneBit(report, rowRules::rateMatchGroupChoice, r.presense, RRC_RATE_MATCH_PATTERN_GROUP_BWP_LEVEL_PRESENCE);
}

void csiRsMappingFrequencyChoice(const RrcCsiRsResourceMapping_t& r, Report& report)
{
    oneBit(report, rowRules::csiRsMappingFrequencyChoice, r.presenceFreqDomain,
           RRC_CSI_RS_RESOURCE_MAPPING_OTHER_PRESENCE);
}

void csiRsMappingDensityChoice(const RrcCsiRsResourceMapping_t& r, Report& report)
{
    oneBit(report, rowRules::csiRsMappingDensityChoice, r.presenceDensity,
           RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_SPARE_PRESENCE);
}

// Its offsets are slots32's, of which the low 8 bits are sent.
void csiRsPeriodSlots40(const RrcCsiResourcePeriodictyAndOffset_t& r, Report& report)
{
    if (r.slotsPeriod == 8)
    {
        report.say(rowRules::csiRsPeriodSlots40, (r.offset & 0xFF) > 31 ? RRC_RECORD_ERROR : RRC_RECORD_WARNING,
                   &r.slotsPeriod);
    }
}

void csiRsPeriod(const RrcCsiResourcePeriodictyAndOffset_t& r, Report& report)
{
    between(report, rowRules::csiRsPeriod, r.slotsPeriod, 1, 13);
}

void csiRsOffset(const RrcCsiResourcePeriodictyAndOffset_t& r, Report& report)
{
    shortOffset(report, rowRules::csiRsOffset, r.slotsPeriod >= 1 && r.slotsPeriod <= 11, r.offset);
}

// The common part's list has a rule of its own.
void pdschListCounts(const RrcPdschCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE) != 0)
    {
        notEmpty(report, rowRules::pdschListCounts, r.pdschTimeDomainAllocList.num);
    }
}

void rateMatchGroupCount(const RrcRateMatchPatternGroup_t& r, Report& report)
{
    notEmpty(report, rowRules::pdschListCounts, r.numRateMatchPattern);
}

void zpCsiRsSetCount(const RrcZpCsiRsResourceSet_t& r, Report& report)
{
    notEmpty(report, rowRules::zpCsiRsSetCount, r.numzpCsiRsResourId);
}

void pdschOneValue(const RrcDmrsDlCfg_t& r, Report& report)
{
    oneValue(report, rowRules::pdschOneValue, (r.bitMask & RRC_DMRS_DL_CFG_TYPE_PRESENCE) != 0, r.dmrsType);
    oneValue(report, rowRules::pdschOneValue, (r.bitMask & RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE) != 0, r.maxLength);
}

void spsOneValue(const RrcSpsCfg_t& r, Report& report)
{
    oneValue(report, rowRules::pdschOneValue, (r.bitMask & RRC_SPS_CFG_MCS_TABLE_PRESENCE) != 0, r.mcsTable);
}

void rlmResourceChoice(const RrcRadioLinkMonitorRs_t& r, Report& report)
{
    oneBit(report, rowRules::rlmResourceChoice, r.presence, RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE);
}

void pdcchCommonFirstOccasion(const RrcPdcchCfgCommon_t& r, Report& report)
{
    notSent(report, rowRules::pdcchCommonFirstOccasion, r.bitMask,
            RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE);
}

void pdschCommonAllocations(const RrcPdschCfgCommon_t& r, Report& report)
{
    if ((r.bitMask & RRC_PDSCH_COMMON_PRESENCE) == 0)
    {
        report.say(rowRules::pdschCommonAllocations, RRC_RECORD_NOTICE, &r.bitMask);
    }
    else
    {
        notEmpty(report, rowRules::pdschCommonAllocations, r.pdschTimeDomainAllocList.num);
    }
}

void bwpCyclicPrefixOneValue(const RrcBwp_t& r, Report& report)
{
    oneValue(report, rowRules::bwpCyclicPrefixOneValue, (r.bitMask & RRC_BWP_CYCLEPREFIX_PRESENCE) != 0,
             r.cyclicPrefix);
}

constexpr RowCheck downlinkChecks[] = {
    row<coresetNonInterleaved>,
    row<coresetOneValue>,
    row<coresetFrequencyUpperBits>,
    row<searchSpacePeriod>,
    row<searchSpaceOffset>,
    row<searchSpaceTypeChoice>,
    row<searchSpaceDciFormat23Dummies>,
    row<preEmptionListCount>,
    row<tpcSrsSulStartingBitField>,
    row<tpcSrsSulStartingBit>,
    row<prbBundlingChoice>,
    row<rateMatchGroupChoice>,
    row<csiRsMappingFrequencyChoice>,
    row<csiRsMappingDensityChoice>,
    row<csiRsPeriodSlots40>,
    row<csiRsPeriod>,
    row<csiRsOffset>,
    row<pdschListCounts>,
    row<rateMatchGroupCount>,
    row<zpCsiRsSetCount>,
    row<pdschOneValue>,
    row<spsOneValue>,
    row<rlmResourceChoice>,
    row<pdcchCommonFirstOccasion>,
    row<pdschCommonAllocations>,
    row<bwpCyclicPrefixOneValue>,
};

} // namespace

const RowChecks checksOfDownlink = rowChecks(downlinkChecks);

} // namespace recordCheck
