#include "records.h"

namespace records
{

namespace
{

void draw(Chance& chance, RrcRlfTimerConstants_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.t310, 8);
    chance.enumeration(record.n310, 7);
    chance.enumeration(record.n311, 7);
    chance.enumeration(record.t311, 6);
}

} // namespace

void draw(Chance& chance, RrcCellGroupCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.cellGroupId, 0, 3);
    const auto bearers = [&]
    {
        const unsigned added = chance.optionalCount(record.rlcBearerAddModNum, RRC_MAX_LC_ID, 12);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.rlcBearerCfg[i]);
        }
        chance.numbers(record.lchIdRelease, chance.optionalCount(record.rlcBearerReleaseNum, RRC_MAX_LC_ID, 5), 1, 32);
    };
    const auto mac = [&]
    {
        if (chance.flag(record.bitMask, RRC_CELLGROUPCFG_MAC_PRESENCE))
        {
            draw(chance, record.macCellGrpCfg);
        }
    };
    const auto phy = [&]
    {
        if (chance.flag(record.bitMask, RRC_CELLGROUPCFG_PHY_PRESENCE))
        {
            draw(chance, record.phyCellGrpCfg);
        }
    };
    const auto spCell = [&]
    {
        if (chance.flag(record.bitMask, RRC_CELLGROUPCFG_SPCELL_PRESENCE))
        {
            draw(chance, record.spCellCfg);
        }
    };
    const auto sCells = [&]
    {
        const unsigned added = chance.optionalCount(record.sCellAddModNum, MAX_NROF_SCellS, 400);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.sCellAddMod[i]);
        }
        chance.numbers(record.sCellIdx, chance.optionalCount(record.sCellReleaseNum, MAX_NROF_SCellS, 5), 1, 31);
    };
    chance.inAnyOrder(bearers, mac, phy, spCell, sCells);
    // Never sent, so it may hold anything.
    chance.bitsIf(record.bitMask, RRC_CELLGROUPCFG_REPORT_PRESENCE, record.reportUplinkTxDirect, 32);
}

void draw(Chance& chance, RrcSpCellCfg_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_SPCELLCFG_CELLIDX_PRESENCE, record.servCellIdx, 0, 31);
    const auto sync = [&]
    {
        if (chance.flag(record.bitMask, RRC_SPCELLCFG_RECFG_PRESENCE))
        {
            draw(chance, record.recfgWithSync);
        }
    };
    const auto dedicated = [&]
    {
        if (chance.flag(record.bitMask, RRC_SPCELLCFG_DEDICFG_PRESENCE))
        {
            draw(chance, record.spCellDedicated);
        }
    };
    chance.inAnyOrder(sync, dedicated);
    if (chance.flag(record.bitMask, RRC_SPCELLCFG_RLFTIMER_PRESENCE))
    {
        draw(chance, record.rlfTimerConstants);
    }
    chance.enumerationIf(record.bitMask, RRC_SPCELLCFG_THRESHOLD_PRESENCE, record.rlmInSyncOutSyncThreshold, 0);
}

void draw(Chance& chance, RrcReconfWithSync_t& record)
{
    rrcInit(&record);
    chance.number(record.newUEId, 0, 65535);
    chance.enumeration(record.t304, 7);
    const auto common = [&]
    {
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_CFG_COMMON_PRESENCE))
        {
            draw(chance, record.spCellConfigCommon);
        }
    };
    const auto rach = [&]
    {
        if (chance.flag(record.bitMask, RRC_RACH_CFG_DEDI_PRESENCE))
        {
            chance.alternative(record.rachCfgBitMask, {RRC_RACH_CFG_UPLINK_PRESENCE, RRC_RACH_CFG_SUPPUPLINK_PRESENCE});
            // Both alternatives lie on the same storage and are the same record.
            draw(chance, record.choice.uplink);
        }
    };
    chance.inAnyOrder(common, rach);
    if (chance.flag(record.bitMask, RRC_SSBMTC_PRESENCE))
    {
        draw(chance, record.smtc);
    }
}

void draw(Chance& chance, RrcScellCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.scellIdx, 1, 31);
    const auto common = [&]
    {
        if (chance.flag(record.bitMask, RRC_SCELLADDMOD_CELLCOMMON_PRESENCE))
        {
            draw(chance, record.sCellCfgCommn);
        }
    };
    const auto dedicated = [&]
    {
        if (chance.flag(record.bitMask, RRC_SCELLADDMOD_CELLDEDI_PRESENCE))
        {
            draw(chance, record.sCellCfgDedi);
        }
    };
    chance.inAnyOrder(common, dedicated);
    // Not looked at.
    chance.flag(record.bitMask, RRC_SCELLADDMOD_SMTC_PRESENCE);
}

void draw(Chance& chance, RrcServingCellCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.tagId, 0, 3);
    const auto downlink = [&]
    {
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE))
        {
            draw(chance, record.tddUlDlCfgDed);
        }
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE))
        {
            draw(chance, record.initDlBwp);
        }
    };
    const auto downlinkBwps = [&]
    {
        chance.numbers(record.dlBwpId, chance.optionalCount(record.numDlBwpRel, RRC_MAX_NROF_BWPS, 3), 0, 4);
        const unsigned added = chance.optionalCount(record.numDlBwpAddMod, RRC_MAX_NROF_BWPS, 300);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.dlBwp[i]);
        }
        chance.numberIf(record.bitMask, RRC_SERVING_CELL_FIRST_ACTIVE_DL_BWP_PRESENCE, record.firstActiveDlBwpId, 0, 4);
        chance.enumerationIf(record.bitMask, RRC_SERVING_CELL_BWP_INACTIVE_TIMER_PRESENCE, record.bwpInactiveTimer, 30);
        chance.numberIf(record.bitMask, RRC_SERVING_CELL_DEFAULT_DL_BWP_ID_PRESENCE, record.defaultDlBwpId, 0, 4);
    };
    const auto uplink = [&]
    {
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_UL_CFG_PRESENCE))
        {
            draw(chance, record.ulCfg);
        }
    };
    const auto supplementaryUplink = [&]
    {
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE))
        {
            draw(chance, record.suppUlCfg);
        }
    };
    const auto cellLevel = [&]
    {
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE))
        {
            draw(chance, record.pdcchServingCellCfg);
        }
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE))
        {
            draw(chance, record.pdschServingCellCfg);
        }
    };
    const auto csi = [&]
    {
        if (chance.flag(record.bitMask, RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE))
        {
            draw(chance, record.csiMeasCfg);
        }
    };
    chance.inAnyOrder(downlink, downlinkBwps, uplink, supplementaryUplink, cellLevel, csi);
    chance.enumerationIf(record.bitMask, RRC_SERVING_CELL_SCELL_DEACTIVE_TIMER_PRESENCE, record.sCellDeativationTimer,
                         15);
    // Not looked at.
    chance.flag(record.bitMask, RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE);
    chance.enumerationIf(record.bitMask, RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE, record.dummy, 0);
    chance.enumerationIf(record.bitMask, RRC_SERVING_CELL_PATH_LOSS_REF_LINK_PRESENCE, record.pathLossRefLinking, 1);
    chance.numberIf(record.bitMask, RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE, record.servingCellMo, 1, 64);
}

} // namespace records
