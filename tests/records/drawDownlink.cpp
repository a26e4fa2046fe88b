#include "records.h"

namespace records
{

namespace
{

void drawPdcchCommon(Chance& chance, RrcPdcchCfgCommon_t& record)
{
    const unsigned searchSpaces =
        chance.optionalCount(record.numCommonSearchSpace, RRC_MAX_NUM_COMMON_SEARCH_SPACING, 12);
    for (unsigned i = 0; i < searchSpaces; ++i)
    {
        draw(chance, record.commonSearchSpace[i]);
    }
    chance.numberIf(record.bitMask, RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_ZERO_PRESENCE,
                    record.controlResourceSetZero, 0, 15);
    if (chance.flag(record.bitMask, RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_PRESENCE))
    {
        draw(chance, record.commonControlResourceSet);
    }
    chance.numberIf(record.bitMask, RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_ZERO_PRESENCE, record.searchSpaceZero, 0, 15);
    chance.numberIf(record.bitMask, RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_SIB1_PRESENCE, record.searchSpaceSIB1, 0, 39);
    chance.numberIf(record.bitMask, RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_OTHER_SI_PRESENCE, record.searchSpaceOtherSi, 0,
                    39);
    chance.numberIf(record.bitMask, RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_PAGING_PRESENCE, record.searchSpacePaing, 0, 39);
    chance.numberIf(record.bitMask, RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_RA_PRESENCE, record.searchSpaceRa, 0, 39);
    // Nothing is sent for it.
    chance.flag(record.bitMask, RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE);
}

void drawCommon(Chance& chance, RrcBwpDlCommon_t& record)
{
    rrcInit(&record);
    draw(chance, record.genericParam);
    const auto pdcch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE))
        {
            drawPdcchCommon(chance, record.pdcchCfgCommon);
        }
    };
    const auto pdsch = [&]
    {
        if (!chance.flag(record.bitMask, RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE))
        {
            return;
        }
        if (chance.flag(record.pdschCfgCommon.bitMask, RRC_PDSCH_COMMON_PRESENCE))
        {
            draw(chance, record.pdschCfgCommon.pdschTimeDomainAllocList);
        }
        else
        {
            // Not looked at.
            chance.bits(record.pdschCfgCommon.pdschTimeDomainAllocList.num, 8);
        }
    };
    chance.inAnyOrder(pdcch, pdsch);
}

} // namespace

// None of it is sent, so the numbers of slots may be anything.
void draw(Chance& chance, RrcTddUlDlCfgDedi_t& record)
{
    rrcInit(&record);
    const unsigned added = chance.optionalCount(record.numSlotsAddMod, RRC_MAX_NROF_SLOTS, 16);
    for (unsigned i = 0; i < added; ++i)
    {
        draw(chance, record.slotCfgDedicated[i]);
    }
    const unsigned released = chance.optionalCount(record.numSlotsRelease, RRC_MAX_NROF_SLOTS, 16);
    for (unsigned i = 0; i < released; ++i)
    {
        chance.bits(record.slotIdx[i], 16);
    }
}

void draw(Chance& chance, RrcBwpDl_t& record)
{
    rrcInit(&record);
    chance.number(record.bwpId, 0, 4);
    const auto common = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_COMMON_PRESENCE))
        {
            drawCommon(chance, record.bwpCommon);
        }
    };
    const auto dedicated = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_DEDICATED_PRESENCE))
        {
            draw(chance, record.bwpDedicated);
        }
    };
    chance.inAnyOrder(common, dedicated);
}

void draw(Chance& chance, RrcBwpDlDedicated_t& record)
{
    rrcInit(&record);
    const auto pdcch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE))
        {
            draw(chance, record.pdcchCfg);
        }
    };
    const auto pdsch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE))
        {
            draw(chance, record.pdschCfg);
        }
    };
    const auto sps = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE))
        {
            draw(chance, record.spsCfg);
        }
    };
    const auto linkMonitoring = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE))
        {
            draw(chance, record.radioLinkMonitorCfg);
        }
    };
    chance.inAnyOrder(pdcch, pdsch, sps, linkMonitoring);
}

void draw(Chance& chance, RrcBwp_t& record)
{
    rrcInit(&record);
    chance.number(record.locationAndBandwidth, 0, 37949);
    chance.enumeration(record.subCarrierSpacing, 7);
    chance.enumerationIf(record.bitMask, RRC_BWP_CYCLEPREFIX_PRESENCE, record.cyclicPrefix, 0);
}

} // namespace records
