#include <bit>
#include <cstring>

#include "byteOrder.h"
#include "records.h"

namespace records
{

namespace
{

void drawSlots(Chance& chance, csiReportPeriodAndOffset_t& record)
{
    constexpr int lastOffsets[] = {3, 4, 7, 9, 15, 19, 39, 79, 159, 255};
    const unsigned alternative = chance.tag(record.periodicity, 10);
    // The ends of each alternative have to occur.
    chance.number(record.offset, 0, lastOffsets[alternative], "CSI-ReportPeriodicityAndOffset",
                  lastOffsets[alternative]);
}

// periodic and semiPersistentOnPUCCH
template <typename Record>
void drawOnPucch(Chance& chance, Record& record)
{
    drawSlots(chance, record.reportSlotCfg);
    const unsigned resources = chance.count(record.pucchCsiResourceNum, 1, RRC_CSI_REPORT_CFG_MAX_NROF_BWPS, 10);
    for (unsigned i = 0; i < resources; ++i)
    {
        chance.number(record.pucchCsiResource[i].UlBwpId, 0, 4);
        chance.number(record.pucchCsiResource[i].PucchResourceId, 0, 127);
    }
}

void drawReportType(Chance& chance, RrcCsiReportCfg_t& record)
{
    switch (chance.alternative(record.cfgTypeBitMask, {RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE,
                                                       RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUCCH_PRESENCE,
                                                       RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUSCH_PRESENCE,
                                                       RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE}))
    {
    case 0:
        drawOnPucch(chance, record.ReportCfgType_n.periodic);
        break;
    case 1:
        drawOnPucch(chance, record.ReportCfgType_n.semiPersistentOnPucch);
        break;
    case 2:
    {
        SemiPersistentOnPuSch_t& report = record.ReportCfgType_n.semiPersistentOnPusch;
        chance.enumeration(report.reportSlotCfg, 6);
        const unsigned offsets =
            chance.count(report.reportSlotOffsetNum, 1, RRC_CSI_REPORT_CFG_MAX_NROF_ULALLOCATION, 6);
        chance.numbers(report.reportSlotOffset, offsets, 0, 32);
        chance.number(report.p0PuschAlphaSetId, 0, 29);
        break;
    }
    default:
    {
        Aperiodic_t& report = record.ReportCfgType_n.aperiodic;
        const unsigned offsets =
            chance.count(report.reportSlotOffsetNum, 1, RRC_CSI_REPORT_CFG_MAX_NROF_ULALLOCATION, 6);
        chance.numbers(report.reportSlotOffset, offsets, 0, 32);
        break;
    }
    }
}

void drawReportQuantity(Chance& chance, RrcCsiReportCfg_t& record)
{
    CriRiI1Cqi_t& content = record.ReportQuantity_n.criRiI1Cqi;
    if (chance.alternative(record.rptQuBitMask,
                           {RRC_CSI_REPORT_QUANTITY_NONE_PRESENCE, RRC_CSI_REPORT_QUANTITY_CRI_RI_PMI_CQI_PRESENCE,
                            RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_PRESENCE, RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_CQI_PRESENCE,
                            RRC_CSI_REPORT_QUANTITY_CRI_RI_CQI_PRESENCE, RRC_CSI_REPORT_QUANTITY_CRI_RSRP_PRESENCE,
                            RRC_CSI_REPORT_QUANTITY_SSB_INDEX_RSRP_PRESENCE,
                            RRC_CSI_REPORT_QUANTITY_CRI_RI_LI_PMI_CQI_PRESENCE}) == 3)
    {
        chance.enumerationIf(content.bitMask, RRC_CSI_REPORT_PUSCH_BUNDLE_SIZE_FOR_CSI_PRESENCE,
                             content.PdschBundleSizeForCsi, 1);
    }
    else
    {
        // The other quantities have no content.
        chance.bits(content.bitMask, 8);
        chance.bits(content.PdschBundleSizeForCsi, 8);
    }
}

void drawFrequency(Chance& chance, ReportFreqCfg_t& record)
{
    chance.enumerationIf(record.bitMask, RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE, record.CqiFormatInd, 1);
    chance.enumerationIf(record.bitMask, RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE, record.PmiFormatInd, 1);
    if (chance.flag(record.bitMask, RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE))
    {
        chance.alternative(
            record.csiRptBandBitMask,
            {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS3, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS4,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS5, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS6,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS7, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS8,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS9, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS10,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS11, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS12,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS13, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS14,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS15, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS16,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS17, RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS18,
             RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS19_V1530});
        // The bits above those of the band's alternative are not sent.
        UINT32 band;
        chance.bits(band, 32);
        const auto subbands = static_cast<unsigned>(std::bit_width(record.csiRptBandBitMask & 0x1FFFF)) + 2;
        // libstdc++ rotates by an int, libc++ 14 by an unsigned int: an octet is either.
        band = std::rotl(band, static_cast<UINT8>(rtx::bitFieldShift(sizeof band, subbands)));
        std::memcpy(&record.CsiReportingBand_n, &band, sizeof band);
    }
}

void drawBeams(Chance& chance, RrcgroupBasedBeamReport_t& record)
{
    if (chance.alternative(record.Presence, {RRC_BASED_BEAM_REPORT_ENABLED, RRC_BASED_BEAM_REPORT_DISABLED}) == 0)
    {
        // Not read.
        chance.bits(record.BeamReporting_n.enabled, 16);
    }
    else if (chance.flag(record.BeamReporting_n.Report_Disabled.bitMask,
                         RRC_BASED_BEAM_REPORT_DISABLED_NROF_REPORTED_RS_PRESENCE))
    {
        chance.enumeration(record.BeamReporting_n.Report_Disabled.NrofReportedRS, 3);
    }
}

// A rank with fewer entries than its array has is filled up with 0, whatever the array holds behind them.
template <std::size_t N>
void drawRank(Chance& chance, UINT8& count, UINT8 (&entries)[N], unsigned last, const char* file = __builtin_FILE(),
              int line = __builtin_LINE())
{
    chance.optionalCount(count, N, 3, file, line);
    chance.numbers(entries, count, 0, last, "entries of a rank", line);
    for (unsigned i = count; i < N; ++i)
    {
        chance.bits(entries[i], 8);
    }
}

void drawRanks(Chance& chance, portIndexFor8Ranks_portIndex8& record)
{
    chance.numberIf(record.bitMask, RRC_RANK1_8, record.rank1_8, 0, 7);
    drawRank(chance, record.numRank2_8, record.PortIndex2_8, 7);
    drawRank(chance, record.numRank3_8, record.PortIndex3_8, 7);
    drawRank(chance, record.numRank4_8, record.PortIndex4_8, 7);
    drawRank(chance, record.numRank5_8, record.PortIndex5_8, 7);
    drawRank(chance, record.numRank6_8, record.PortIndex6_8, 7);
    drawRank(chance, record.numRank7_8, record.PortIndex7_8, 7);
    drawRank(chance, record.numRank8_8, record.PortIndex8_8, 7);
}

void drawRanks(Chance& chance, portIndexFor8Ranks_portIndex4& record)
{
    chance.numberIf(record.bitMask, RRC_RANK1_4, record.rank1_4, 0, 3);
    drawRank(chance, record.numRank2_4, record.PortIndex2_4, 3);
    drawRank(chance, record.numRank3_4, record.PortIndex3_4, 3);
    drawRank(chance, record.numRank4_4, record.PortIndex4_4, 3);
}

void drawRanks(Chance& chance, portIndexFor8Ranks_portIndex2& record)
{
    chance.numberIf(record.bitMask, RRC_RANK1_2, record.rank1_2, 0, 1);
    drawRank(chance, record.numRank2_2, record.PortIndex2_2, 1);
}

void draw(Chance& chance, RrcPortIndexFor8Ranks_t& record)
{
    rrcInit(&record);
    switch (chance.alternative(record.Presence, {RRC_PORT_INDEX8_PRESENCE, RRC_PORT_INDEX4_PRESENCE,
                                                 RRC_PORT_INDEX2_PRESENCE, RRC_PORT_INDEX1_PRESENCE}))
    {
    case 0:
        drawRanks(chance, record.PortIndexFor8Ranks_n.portIndex8);
        break;
    case 1:
        drawRanks(chance, record.PortIndexFor8Ranks_n.portIndex4);
        break;
    case 2:
        drawRanks(chance, record.PortIndexFor8Ranks_n.portIndex2);
        break;
    default:
        // Not read.
        chance.bits(record.PortIndexFor8Ranks_n.portIndex1, 16);
        break;
    }
}

} // namespace

void draw(Chance& chance, RrcCsiReportCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.csiReportCfgId, 0, 47);
    chance.numberIf(record.bitMask, RRC_CSI_REPORT_CFG_CERV_CELL_IDX_PRESENCE, record.servCellIndex, 0, 31);
    chance.number(record.resourceCfgIdForChMeas, 0, 111);
    chance.numberIf(record.bitMask, RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE,
                    record.CsiImresourceCfgIdForInterference, 0, 111);
    chance.numberIf(record.bitMask, RRC_CSI_REPORT_CFG_NZP_CSI_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE,
                    record.nzpCsiRsresourceCfgIdForInterference, 0, 111);
    drawReportType(chance, record);
    drawReportQuantity(chance, record);
    chance.enumeration(record.subBandSize, 1);
    chance.enumeration(record.timeRestrictForChMeas, 1);
    chance.enumeration(record.timeRestrictForInterferenceMeas, 1);
    // Not read.
    chance.bits(record.CqisPerReportNum, 8);
    // Without its bit the report is refused.
    unsigned beams = 0;
    chance.number(beams, 1, 1);
    if ((beams & 1) != 0)
    {
        record.bitMask |= RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE;
        drawBeams(chance, record.groupBasedBeamReport);
    }
    chance.enumerationIf(record.bitMask, RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE, record.nrofCQIsPerRep, 1);
    chance.enumerationIf(record.bitMask, RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE, record.cqi_Table, 3);
    // Its extension group is never sent, so it may hold anything.
    chance.bitsIf(record.bitMask, RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE,
                  record.semimPersistentOnPuschv1530_t.ReportSlotConfig_v1530, 8);
    const auto frequency = [&]
    {
        if (chance.flag(record.bitMask, RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE))
        {
            drawFrequency(chance, record.reportFreqCfg);
        }
    };
    const auto codebook = [&]
    {
        if (chance.flag(record.bitMask, RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE))
        {
            draw(chance, record.codeBookCfg);
        }
    };
    const auto ports = [&]
    {
        if (chance.flag(record.bitMask, RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE))
        {
            RRCPortIndexFor8Ranks_t& indexes = record.RRCPortIndexFor8Ranks;
            rrcInit(&indexes);
            const unsigned entries = chance.count(indexes.numPortIndexFor8Ranks, 1, RRC_PORTINDEX8_RANKS_MAX, 8);
            for (unsigned i = 0; i < entries; ++i)
            {
                draw(chance, indexes.portIndexFor8Ranks[i]);
            }
        }
    };
    chance.inAnyOrder(frequency, codebook, ports);
}

} // namespace records
