#include "records.h"

namespace records
{

namespace
{

std::string rlf(const RrcRlfTimerConstants_t& record)
{
    Members members;
    members.add("t310", record.t310);
    members.add("n310", record.n310);
    members.add("n311", record.n311);
    members.add("t311-v1530", record.t311);
    return members.json();
}

} // namespace

// reportUplinkTxDirect is never sent.
std::string meant(const RrcCellGroupCfg_t& record)
{
    Members members;
    members.add("cellGroupId", record.cellGroupId);
    if (record.rlcBearerAddModNum != 0)
    {
        members.add("rlc-BearerToAddModList", list(record.rlcBearerAddModNum, record.rlcBearerCfg,
                                                   [&](const auto& entry) { return meant(entry); }));
    }
    if (record.rlcBearerReleaseNum != 0)
    {
        members.add("rlc-BearerToReleaseList", numbers(record.rlcBearerReleaseNum, record.lchIdRelease));
    }
    if (record.bitMask & RRC_CELLGROUPCFG_MAC_PRESENCE)
    {
        members.add("mac-CellGroupConfig", meant(record.macCellGrpCfg));
    }
    if (record.bitMask & RRC_CELLGROUPCFG_PHY_PRESENCE)
    {
        members.add("physicalCellGroupConfig", meant(record.phyCellGrpCfg));
    }
    if (record.bitMask & RRC_CELLGROUPCFG_SPCELL_PRESENCE)
    {
        members.add("spCellConfig", meant(record.spCellCfg));
    }
    if (record.sCellAddModNum != 0)
    {
        members.add("sCellToAddModList",
                    list(record.sCellAddModNum, record.sCellAddMod, [&](const auto& entry) { return meant(entry); }));
    }
    if (record.sCellReleaseNum != 0)
    {
        members.add("sCellToReleaseList", numbers(record.sCellReleaseNum, record.sCellIdx));
    }
    return members.json();
}

std::string meant(const RrcSpCellCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_SPCELLCFG_CELLIDX_PRESENCE, "servCellIndex", record.servCellIdx);
    if (record.bitMask & RRC_SPCELLCFG_RECFG_PRESENCE)
    {
        members.add("reconfigurationWithSync", meant(record.recfgWithSync));
    }
    if (record.bitMask & RRC_SPCELLCFG_RLFTIMER_PRESENCE)
    {
        members.add("rlf-TimersAndConstants", setup(rlf(record.rlfTimerConstants)));
    }
    members.addIf(record.bitMask & RRC_SPCELLCFG_THRESHOLD_PRESENCE, "rlmInSyncOutOfSyncThreshold",
                  record.rlmInSyncOutSyncThreshold);
    if (record.bitMask & RRC_SPCELLCFG_DEDICFG_PRESENCE)
    {
        members.add("spCellConfigDedicated", meant(record.spCellDedicated));
    }
    return members.json();
}

std::string meant(const RrcReconfWithSync_t& record)
{
    Members members;
    if (record.bitMask & RRC_SERVING_CELL_CFG_COMMON_PRESENCE)
    {
        members.add("spCellConfigCommon", meant(record.spCellConfigCommon));
    }
    members.add("newUE-Identity", record.newUEId);
    members.add("t304", record.t304);
    if (record.bitMask & RRC_RACH_CFG_DEDI_PRESENCE)
    {
        const bool supplementary = (record.rachCfgBitMask & RRC_RACH_CFG_SUPPUPLINK_PRESENCE) != 0;
        members.add("rach-ConfigDedicated",
                    choice(supplementary ? "supplementaryUplink" : "uplink", meant(record.choice.uplink)));
    }
    if (record.bitMask & RRC_SSBMTC_PRESENCE)
    {
        members.add("smtc", meant(record.smtc));
    }
    return members.json();
}

// smtc is never sent.
std::string meant(const RrcScellCfg_t& record)
{
    Members members;
    members.add("sCellIndex", record.scellIdx);
    if (record.bitMask & RRC_SCELLADDMOD_CELLCOMMON_PRESENCE)
    {
        members.add("sCellConfigCommon", meant(record.sCellCfgCommn));
    }
    if (record.bitMask & RRC_SCELLADDMOD_CELLDEDI_PRESENCE)
    {
        members.add("sCellConfigDedicated", meant(record.sCellCfgDedi));
    }
    return members.json();
}

std::string meant(const RrcServingCellCfg_t& record)
{
    const unsigned mask = record.bitMask;
    Members members;
    if (mask & RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE)
    {
        members.add("tdd-UL-DL-ConfigurationDedicated", meant(record.tddUlDlCfgDed));
    }
    if (mask & RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE)
    {
        members.add("initialDownlinkBWP", meant(record.initDlBwp));
    }
    if (record.numDlBwpRel != 0)
    {
        members.add("downlinkBWP-ToReleaseList", numbers(record.numDlBwpRel, record.dlBwpId));
    }
    if (record.numDlBwpAddMod != 0)
    {
        members.add("downlinkBWP-ToAddModList",
                    list(record.numDlBwpAddMod, record.dlBwp, [&](const auto& entry) { return meant(entry); }));
    }
    members.addIf(mask & RRC_SERVING_CELL_FIRST_ACTIVE_DL_BWP_PRESENCE, "firstActiveDownlinkBWP-Id",
                  record.firstActiveDlBwpId);
    members.addIf(mask & RRC_SERVING_CELL_BWP_INACTIVE_TIMER_PRESENCE, "bwp-InactivityTimer", record.bwpInactiveTimer);
    members.addIf(mask & RRC_SERVING_CELL_DEFAULT_DL_BWP_ID_PRESENCE, "defaultDownlinkBWP-Id", record.defaultDlBwpId);
    if (mask & RRC_SERVING_CELL_UL_CFG_PRESENCE)
    {
        members.add("uplinkConfig", meant(record.ulCfg));
    }
    if (mask & RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE)
    {
        members.add("supplementaryUplink", meant(record.suppUlCfg));
    }
    if (mask & RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE)
    {
        members.add("pdcch-ServingCellConfig", meant(record.pdcchServingCellCfg));
    }
    if (mask & RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE)
    {
        members.add("pdsch-ServingCellConfig", meant(record.pdschServingCellCfg));
    }
    if (mask & RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE)
    {
        members.add("csi-MeasConfig", meant(record.csiMeasCfg));
    }
    members.addIf(mask & RRC_SERVING_CELL_SCELL_DEACTIVE_TIMER_PRESENCE, "sCellDeactivationTimer",
                  record.sCellDeativationTimer);
    members.add("tag-Id", record.tagId);
    members.addIf(mask & RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE, "dummy", record.dummy);
    members.addIf(mask & RRC_SERVING_CELL_PATH_LOSS_REF_LINK_PRESENCE, "pathlossReferenceLinking",
                  record.pathLossRefLinking);
    members.addIf(mask & RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE, "servingCellMO", record.servingCellMo);
    return members.json();
}

} // namespace records
