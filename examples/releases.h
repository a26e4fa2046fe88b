#ifndef RELEASES_H
#define RELEASES_H

#include <cstddef>

#include "NR-RRC-Definitions.h"
#include "dedicatedUplink.h"
#include "reconfigurationWithSync.h"

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
    release(pdcch.numControlResourceSetRel, pdcch.controlResourceSetIdx, 4, 4);
    release(pdcch.numSearchSpaceRel, pdcch.searchSpaceId, 5, 6);
    // A control resource set that stays: its TCI states are released one by one.
    pdcch.numControlResourceSetAddMod = 1;
    RrcControlResourceSet_t& set = pdcch.controlResourceSetAddMod[0];
    rrcInit(&set);
    set.setIdx = firstControlResourceSet;
    set.freqDomainResource = 0x1FFFFFFFFFFF;
    set.duration = 2;
    release(set.numTciStatesPdcchRel, set.tciStateRelId, 3, 3);
}

inline void releaseInPdsch(RrcPdschCfg_t& pdsch)
{
    rrcInit(&pdsch);
    // What a PDSCH-Config cannot do without.
    pdsch.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC;
    rrcInit(&pdsch.staticbundingtype);
    release(pdsch.numTciStatesRel, pdsch.tciStateId, 3, 3);
    release(pdsch.numRateMatchPatternRel, pdsch.rateMatchPatternId, 0, 1);
    release(pdsch.numZpCsiRsResouceRel, pdsch.zpCsiRsResourceId, 0, 2);
    release(pdsch.numZpCsiRsResourceSetRel, pdsch.zpCsiRsResourceSetId, 1, 2);
}

inline void releaseInPucch(RrcPucchCfg_t& pucch)
{
    rrcInit(&pucch);
    // Of the resource sets to release as many are copied as are added or modified: with the one that stays, one goes.
    pucch.numResourceSetAddMod = 1;
    RrcPucchResourceSet_t& set = pucch.resourceSet[0];
    rrcInit(&set);
    set.numResourceList = 4;
    for (UINT8 i = 0; i < 4; ++i)
    {
        set.pucchResourceId[i] = i;
    }
    release(pucch.numResourceSetRel, pucch.resourceSetId, 1, 1);
    release(pucch.numResourceRel, pucch.pucchResouceId, 4, 6);
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
    uplink.bitMask = RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE;
    uplink.firstActiveUlBwpId = workingBwp;
    uplink.numUlBwpAddMod = 1;
    RrcBwpUl_t& bwp = uplink.ulBwpAddMod[0];
    rrcInit(&bwp);
    bwp.bwpId = workingBwp;
    bwp.bitMask = RRC_BWP_UL_DEDICATED_PRESENCE;
    rrcInit(&bwp.bwpDedicated);
    bwp.bwpDedicated.bitMask =
        RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE;
    releaseInPucch(bwp.bwpDedicated.pucchCfg);
    releaseInPusch(bwp.bwpDedicated.puschCfg);
    releaseInSrs(bwp.bwpDedicated.srsCfg);
}

inline void releaseInCsi(RrcCsiMeasCfg_t& csi)
{
    rrcInit(&csi);
    release(csi.numNzpCsiRsResourceDel, csi.nzpCsiRsResourceId, 0, 0);
    release(csi.numNzpCsiRsResourceSetRel, csi.nzpCsiRsResourceSetId, 0, 0);
    release(csi.numCsiImResourceRel, csi.csiImResourceId, 0, 1);
    release(csi.numCsiImResourceSetRel, csi.csiImResourceSetId, 0, 1);
    release(csi.numCsiSsbResourceSetRel, csi.csiSsbResourceSetId, 0, 1);
    release(csi.numCsiResourceCfgRel, csi.csiResourceCfgId, 0, 1);
    release(csi.numCsiReportCfgRel, csi.csiReportCfgId, 0, 0);
}

inline void releaseInCell(RrcServingCellCfg_t& cell)
{
    rrcInit(&cell);
    cell.tagId = 0;
    release(cell.numDlBwpRel, cell.dlBwpId, 2, 3);
    cell.bitMask = RRC_SERVING_CELL_FIRST_ACTIVE_DL_BWP_PRESENCE | RRC_SERVING_CELL_UL_CFG_PRESENCE |
                   RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE | RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
    cell.firstActiveDlBwpId = workingBwp;
    cell.numDlBwpAddMod = 1;
    RrcBwpDl_t& bwp = cell.dlBwp[0];
    rrcInit(&bwp);
    bwp.bwpId = workingBwp;
    bwp.bitMask = RRC_BWP_DL_DEDICATED_PRESENCE;
    rrcInit(&bwp.bwpDedicated);
    bwp.bwpDedicated.bitMask =
        RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE;
    releaseInPdcch(bwp.bwpDedicated.pdcchCfg);
    releaseInPdsch(bwp.bwpDedicated.pdschCfg);
    RrcRlmCfg_t& monitoring = bwp.bwpDedicated.radioLinkMonitorCfg;
    rrcInit(&monitoring);
    release(monitoring.numFailDetectResourceRel, monitoring.failDetectResourceId, 1, 2);
    releaseInUplink(cell.ulCfg);
    rrcInit(&cell.pdcchServingCellCfg);
    cell.pdcchServingCellCfg.bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    rrcInit(&cell.pdcchServingCellCfg.slotFormatInd);
    cell.pdcchServingCellCfg.slotFormatInd.sfiRnti = 0x4701;
    cell.pdcchServingCellCfg.slotFormatInd.dciPayloadSize = 4;
    release(cell.pdcchServingCellCfg.slotFormatInd.numSlotFormatCombRel,
            cell.pdcchServingCellCfg.slotFormatInd.servCellIdx, 1, 2);
    releaseInCsi(cell.csiMeasCfg);
}

// A handover that releases what a UE has beside a typical call: every list of something to release that reaches the UE;
// the release list of the dedicated TDD pattern never does.
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
    handoverCell(common);
    release(common.numRateMatchPatternRelease, common.rateMatchPatternId, 0, 1);
    releaseInCell(spCell.spCellDedicated);
}

#endif
