// Checks of the special cell, the secondary cells and what is common to all UEs of a cell.
#include "rowChecks.h"

namespace recordCheck
{

namespace
{

void rlmThresholdOneValue(const RrcSpCellCfg_t& r, Report& report)
{
    oneValue(report, rowRules::rlmThresholdOneValue, (r.bitMask & RRC_SPCELLCFG_THRESHOLD_PRESENCE) != 0,
             r.rlmInSyncOutSyncThreshold);
}

void smtcPeriod(const RrcSSBMTC_t& r, Report& report)
{
    between(report, rowRules::smtcPeriod, r.period, 1, 6);
}

void uplinkFrequencyNotSent(const RrcFreqInfoUl_t& r, Report& report)
{
    notSent(report, rowRules::uplinkFrequencyNotSent, r.bitMask,
            FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE | FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE |
                FREQ_INFO_UL_PMAX_PRESENCE | FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ);
}

void frequencyListCounts(const RrcFreqInfoDl_t& r, Report& report)
{
    notEmpty(report, rowRules::frequencyListCounts, r.multiBandNum);
    notEmpty(report, rowRules::frequencyListCounts, r.scsNum);
}

void uplinkCarrierCount(const RrcFreqInfoUl_t& r, Report& report)
{
    notEmpty(report, rowRules::frequencyListCounts, r.scsNum);
}

void timeAlignmentTimerCommon(const RrcUlCfgComm_t& r, Report& report)
{
    notZero(report, rowRules::timeAlignmentTimerCommon, r.timeAlignmentTimer);
}

bool hasSsbPositions(const RrcServingCellCfgCommon_t& r)
{
    return (r.bitMask & RRC_SSB_POSITION_IN_BURST) != 0;
}

void ssbLongBitmap(const RrcServingCellCfgCommon_t& r, Report& report)
{
    if (hasSsbPositions(r))
    {
        notSent(report, rowRules::ssbLongBitmap, r.ssbPosionBitMask, SSB_POSITION_LONG_BITMAP);
    }
}

// The long bitmap has a rule of its own.
void ssbPositionsChoice(const RrcServingCellCfgCommon_t& r, Report& report)
{
    if (hasSsbPositions(r) && (r.ssbPosionBitMask & SSB_POSITION_LONG_BITMAP) == 0)
    {
        oneBit(report, rowRules::servingCellCommonChoices, r.ssbPosionBitMask, SSB_POSITION_MEDIUM_BITMAP);
    }
}

void patternTypeChoice(const RrcRateMatchPattern_t& r, Report& report)
{
    oneBit(report, rowRules::servingCellCommonChoices, r.Presence, RRC_PATTERN_TYPE_SETID);
}

void patternPeriodicityChoice(const RrcBitMaps_t& r, Report& report)
{
    if ((r.bitMask & RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE) != 0)
    {
        oneBit(report, rowRules::servingCellCommonChoices, r.periodictyAndPatternPresence,
               RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE);
    }
}

void rateMatchSymbolsChoice(const RrcBitMaps_t& r, Report& report)
{
    oneBit(report, rowRules::rateMatchSymbolsChoice, r.symbolsInResourceBlockPresence,
           RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE);
}

void rateMatchTwoSlots(const RrcBitMaps_t& r, Report& report)
{
    if ((r.symbolsInResourceBlockPresence & RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE) != 0)
    {
        kept(report, rowRules::rateMatchTwoSlots, r.symbolsInResourceBlock.twoSLots, 16);
    }
}

// Of the n's bits as many as its name says.
template <typename Number>
void slots(const RrcBitMaps_t& r, Report& report, unsigned bit, const Number& pattern, unsigned count)
{
    if (chooses(r.periodictyAndPatternPresence, bit, RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE))
    {
        kept(report, rowRules::rateMatchUpperBits, pattern, count);
    }
}

void rateMatchUpperBits(const RrcBitMaps_t& r, Report& report)
{
    if (chooses(r.symbolsInResourceBlockPresence, RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE,
                RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE))
    {
        kept(report, rowRules::rateMatchUpperBits, r.symbolsInResourceBlock.oneSlot, 14);
    }
    if ((r.bitMask & RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE) != 0)
    {
        slots(r, report, RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE, r.periodictyAndPattern.n2, 2);
        slots(r, report, RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE, r.periodictyAndPattern.n4, 4);
        slots(r, report, RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE, r.periodictyAndPattern.n5, 5);
        slots(r, report, RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE, r.periodictyAndPattern.n10, 10);
        slots(r, report, RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE, r.periodictyAndPattern.n20, 20);
        slots(r, report, RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE, r.periodictyAndPattern.n40, 40);
    }
}

void rateMatchDummy(const RrcRateMatchPattern_t& r, Report& report)
{
    notZero(report, rowRules::rateMatchDummy, r.dummy);
}

void rachDedicatedChoice(const RrcReconfWithSync_t& r, Report& report)
{
    if ((r.bitMask & RRC_RACH_CFG_DEDI_PRESENCE) != 0)
    {
        oneBit(report, rowRules::rachDedicatedChoice, r.rachCfgBitMask, RRC_RACH_CFG_SUPPUPLINK_PRESENCE);
    }
}

void cfraBothResources(const RrcCfra_t& r, Report& report)
{
    if ((r.bitMask & RRC_SSB) != 0 && (r.bitMask & RRC_SCIS_RESOURCE) != 0)
    {
        report.say(rowRules::cfraBothResources, &r.bitMask);
    }
}

void cfraResourcesByDefault(const RrcCfra_t& r, Report& report)
{
    if ((r.bitMask & RRC_SSB) != 0)
    {
        return;
    }
    if (r.resources.scirs.numCsirsRecouces == 0)
    {
        report.say(rowRules::cfraResourcesByDefault, &r.resources.scirs.numCsirsRecouces);
    }
    else if ((r.bitMask & RRC_SCIS_RESOURCE) == 0)
    {
        report.say(rowRules::cfraResourcesByDefault, RRC_RECORD_WARNING, &r.bitMask);
    }
}

void cfraCsiRsOccasions(const RrcCsirsResource_t& r, Report& report)
{
    atMost(report, rowRules::cfraCsiRsOccasions, true, r.numRaOccasion, 64);
}

void cfraListCounts(const RrcSsb_t& r, Report& report)
{
    notEmpty(report, rowRules::cfraListCounts, r.numSsbResources);
}

void cfraOccasionCount(const RrcCsirsResource_t& r, Report& report)
{
    notEmpty(report, rowRules::cfraListCounts, r.numRaOccasion);
}

void scellAddModCount(const RrcCellGroupCfg_t& r, Report& report)
{
    if (r.sCellAddModNum > MAX_NROF_SCellS)
    {
        report.say(rowRules::scellAddModCount, &r.sCellAddModNum);
    }
}

void scellReleaseCount(const RrcCellGroupCfg_t& r, Report& report)
{
    atMost(report, rowRules::scellReleaseCount, true, r.sCellReleaseNum, MAX_NROF_SCellS);
}

void scellSmtc(const RrcScellCfg_t& r, Report& report)
{
    notSent(report, rowRules::scellSmtc, r.bitMask, RRC_SCELLADDMOD_SMTC_PRESENCE);
}

void crossCarrierScheduling(const RrcServingCellCfg_t& r, Report& report)
{
    notSent(report, rowRules::crossCarrierScheduling, r.bitMask, RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE);
}

void servingCellDummy(const RrcServingCellCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE) != 0)
    {
        report.say(rowRules::servingCellDummy, r.dummy == 0 ? RRC_RECORD_NOTICE : RRC_RECORD_ERROR, &r.dummy);
    }
}

void tddDedicatedSlots(const RrcTddUlDlCfgDedi_t& r, Report& report)
{
    notZero(report, rowRules::tddDedicatedSlots, r.numSlotsAddMod);
    notZero(report, rowRules::tddDedicatedSlots, r.numSlotsRelease);
}

constexpr RowCheck servingCellChecks[] = {
    row<rlmThresholdOneValue>,
    row<smtcPeriod>,
    row<uplinkFrequencyNotSent>,
    row<frequencyListCounts>,
    row<uplinkCarrierCount>,
    row<timeAlignmentTimerCommon>,
    row<ssbLongBitmap>,
    row<ssbPositionsChoice>,
    row<patternTypeChoice>,
    row<patternPeriodicityChoice>,
    row<rateMatchSymbolsChoice>,
    row<rateMatchTwoSlots>,
    row<rateMatchUpperBits>,
    row<rateMatchDummy>,
    row<rachDedicatedChoice>,
    row<cfraBothResources>,
    row<cfraResourcesByDefault>,
    row<cfraCsiRsOccasions>,
    row<cfraListCounts>,
    row<cfraOccasionCount>,
    row<scellAddModCount>,
    row<scellReleaseCount>,
    row<scellSmtc>,
    row<crossCarrierScheduling>,
    row<servingCellDummy>,
    row<tddDedicatedSlots>,
};

} // namespace

const RowChecks checksOfServingCell = rowChecks(servingCellChecks);

} // namespace recordCheck
