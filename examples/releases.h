#ifndef RELEASES_H
#define RELEASES_H

#include <cstddef>

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcInit.h"

// The numbers from the first to the last are to be released.
template <typename Count, typename Id, std::size_t N>
void release(Count& count, Id (&ids)[N], unsigned first, unsigned last)
{
    count = 0;
    for (unsigned id = first; id <= last && count < N; ++id)
    {
        ids[count++] = static_cast<Id>(id);
    }
}

inline void releaseInPdcch(RrcPdcchCfg_t& pdcch)
{
    rrcInit(&pdcch);
    release(pdcch.numControlResourceSetRel, pdcch.controlResourceSetIdx, 3, 4);
    release(pdcch.numSearchSpaceRel, pdcch.searchSpaceId, 3, 5);
    // A control resource set that stays: its TCI states are released one by one.
    pdcch.numControlResourceSetAddMod = 1;
    RrcControlResourceSet_t& set = pdcch.controlResourceSetAddMod[0];
    rrcInit(&set);
    set.setIdx = 2;
    set.freqDomainResource = 0x1FFFFFFFFFFF;
    set.duration = 2;
    release(set.numTciStatesPdcchRel, set.tciStateRelId, 2, 3);
}

inline void releaseInPdsch(RrcPdschCfg_t& pdsch)
{
    rrcInit(&pdsch);
    // What a PDSCH-Config cannot do without.
    pdsch.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC;
    rrcInit(&pdsch.staticbundingtype);
    release(pdsch.numTciStatesRel, pdsch.tciStateId, 2, 3);
    release(pdsch.numRateMatchPatternRel, pdsch.rateMatchPatternId, 0, 1);
    release(pdsch.numZpCsiRsResouceRel, pdsch.zpCsiRsResourceId, 0, 2);
    release(pdsch.numZpCsiRsResourceSetRel, pdsch.zpCsiRsResourceSetId, 0, 1);
}

inline void releaseInPucch(RrcPucchCfg_t& pucch)
{
    rrcInit(&pucch);
    // Of the resource sets to release as many are copied as are added or modified: with the one that stays, one goes.
    pucch.numResourceSetAddMod = 1;
    rrcInit(&pucch.resourceSet[0]);
    pucch.resourceSet[0].numResourceList = 1;
    pucch.resourceSet[0].pucchResourceId[0] = 0;
    release(pucch.numResourceSetRel, pucch.resourceSetId, 1, 1);
    release(pucch.numResourceRel, pucch.pucchResouceId, 1, 7);
    release(pucch.numSchedReqResourceCfgRel, pucch.schedReqResourceId, 2, 3);
    release(pucch.numSpatialRelationInfoRel, pucch.spatialRelationInfoId, 1, 3);
}

inline void releaseInPusch(RrcPuschCfg_t& pusch)
{
    rrcInit(&pusch);
    pusch.bitMask = RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE;
    RrcPuschPowerControl_t& power = pusch.puschPowerContol;
    rrcInit(&power);
    release(power.numPathLossRefRsRel, power.pathLossRefRsRelId, 1, 2);
    release(power.numSriPuschMappingRel, power.sriPuschMappingId, 1, 2);
}

inline void releaseInSrs(RrcSrsCfg_t& srs)
{
    rrcInit(&srs);
    release(srs.numSrsResourceSetRel, srs.srsResourceSetId, 1, 2);
    release(srs.numSrsResourceRel, srs.srsResourceId, 1, 3);
}

inline void releaseInUplink(RrcUlCfg_t& uplink)
{
    rrcInit(&uplink);
    release(uplink.numUlBwpRel, uplink.ulBwpId, 2, 3);
    uplink.bitMask = RRC_UL_CFG_INIT_UL_BWP_PRESENCE;
    RrcBwpUlDedi_t& bwp = uplink.initialUplinkBWP;
    rrcInit(&bwp);
    bwp.bitMask =
        RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE;
    releaseInPucch(bwp.pucchCfg);
    releaseInPusch(bwp.puschCfg);
    releaseInSrs(bwp.srsCfg);
}

inline void releaseInCsi(RrcCsiMeasCfg_t& csi)
{
    rrcInit(&csi);
    release(csi.numNzpCsiRsResourceDel, csi.nzpCsiRsResourceId, 1, 3);
    release(csi.numNzpCsiRsResourceSetRel, csi.nzpCsiRsResourceSetId, 1, 2);
    release(csi.numCsiImResourceRel, csi.csiImResourceId, 0, 1);
    release(csi.numCsiImResourceSetRel, csi.csiImResourceSetId, 0, 1);
    release(csi.numCsiSsbResourceSetRel, csi.csiSsbResourceSetId, 0, 1);
    release(csi.numCsiResourceCfgRel, csi.csiResourceCfgId, 1, 4);
    release(csi.numCsiReportCfgRel, csi.csiReportCfgId, 0, 1);
}

inline void releaseInCell(RrcServingCellCfg_t& cell)
{
    rrcInit(&cell);
    release(cell.numDlBwpRel, cell.dlBwpId, 2, 3);
    cell.bitMask = RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE | RRC_SERVING_CELL_UL_CFG_PRESENCE |
                   RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE | RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
    RrcBwpDlDedicated_t& bwp = cell.initDlBwp;
    rrcInit(&bwp);
    bwp.bitMask =
        RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE;
    releaseInPdcch(bwp.pdcchCfg);
    releaseInPdsch(bwp.pdschCfg);
    rrcInit(&bwp.radioLinkMonitorCfg);
    release(bwp.radioLinkMonitorCfg.numFailDetectResourceRel, bwp.radioLinkMonitorCfg.failDetectResourceId, 1, 2);
    releaseInUplink(cell.ulCfg);
    rrcInit(&cell.pdcchServingCellCfg);
    cell.pdcchServingCellCfg.bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    rrcInit(&cell.pdcchServingCellCfg.slotFormatInd);
    cell.pdcchServingCellCfg.slotFormatInd.dciPayloadSize = 1;
    release(cell.pdcchServingCellCfg.slotFormatInd.numSlotFormatCombRel,
            cell.pdcchServingCellCfg.slotFormatInd.servCellIdx, 1, 2);
    releaseInCsi(cell.csiMeasCfg);
}

// Every list of something to release that reaches the UE; the release list of the dedicated TDD pattern never does.
inline void releases(RrcCellGroupCfg_t& record)
{
    rrcInit(&record);
    release(record.rlcBearerReleaseNum, record.lchIdRelease, 5, 7);
    release(record.sCellReleaseNum, record.sCellIdx, 1, 3);

    record.bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE | RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    RrcMacCellGrpCfg_t& mac = record.macCellGrpCfg;
    rrcInit(&mac);
    mac.bitMask = RRC_MAC_CELL_GRP_CFG_SR_PRESENCE | RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE;
    rrcInit(&mac.srCfg);
    release(mac.srCfg.numSrRel, mac.srCfg.srId, 1, 2);
    rrcInit(&mac.tagCfg);
    release(mac.tagCfg.numTagRel, mac.tagCfg.tagId, 1, 2);

    RrcSpCellCfg_t& spCell = record.spCellCfg;
    rrcInit(&spCell);
    spCell.bitMask = RRC_SPCELLCFG_RECFG_PRESENCE | RRC_SPCELLCFG_DEDICFG_PRESENCE;
    rrcInit(&spCell.recfgWithSync);
    spCell.recfgWithSync.newUEId = 0x4601;
    spCell.recfgWithSync.t304 = ReconfigurationWithSync_t304_ms1000;
    spCell.recfgWithSync.bitMask = RRC_SERVING_CELL_CFG_COMMON_PRESENCE;
    RrcServingCellCfgCommon_t& common = spCell.recfgWithSync.spCellConfigCommon;
    rrcInit(&common);
    release(common.numRateMatchPatternRelease, common.rateMatchPatternId, 0, 1);
    releaseInCell(spCell.spCellDedicated);
}

#endif
