#include "rrcCodec/rrcInit.h"

#include <cstddef>
#include <cstring>

namespace
{

// Clears a record except for the members named, which a mask or a count guards.
template <typename Record, typename... Members>
void clearBut(Record* pRecord, Members Record::*... members)
{
    auto* const begin = reinterpret_cast<unsigned char*>(pRecord);
    unsigned char* clear = begin;
    const auto pass = [&clear](auto& member)
    {
        auto* const next = reinterpret_cast<unsigned char*>(&member);
        std::memset(clear, 0, static_cast<std::size_t>(next - clear));
        clear = next + sizeof member;
    };
    (pass(pRecord->*members), ...);
    std::memset(clear, 0, static_cast<std::size_t>(begin + sizeof(Record) - clear));
}

} // namespace

void rrcInitCellGroupCfg(RrcCellGroupCfg_t* pRrcCellGroupCfg)
{
    clearBut(pRrcCellGroupCfg, &RrcCellGroupCfg_t::rlcBearerCfg, &RrcCellGroupCfg_t::macCellGrpCfg,
             &RrcCellGroupCfg_t::spCellCfg, &RrcCellGroupCfg_t::sCellAddMod);
}

void rrcInitSpCellCfg(RrcSpCellCfg_t* pRrcSpCellCfg)
{
    clearBut(pRrcSpCellCfg, &RrcSpCellCfg_t::recfgWithSync, &RrcSpCellCfg_t::spCellDedicated);
}

void rrcInitReconfWithSync(RrcReconfWithSync_t* pRrcReconfWithSync)
{
    clearBut(pRrcReconfWithSync, &RrcReconfWithSync_t::choice, &RrcReconfWithSync_t::spCellConfigCommon);
}

void rrcInitRachCfgDedi(RrcRachCfgDedi_t* pRrcRachCfgDedi)
{
    clearBut(pRrcRachCfgDedi, &RrcRachCfgDedi_t::cfra);
}

void rrcInitCfra(RrcCfra_t* pRrcCfra)
{
    clearBut(pRrcCfra, &RrcCfra_t::resources);
    // Without RRC_SSB this alternative is read, RRC_SCIS_RESOURCE set or not.
    rrcInitSsirs(&pRrcCfra->resources.scirs);
}

void rrcInitSsirs(RrcSsirs_t* pRrcSsirs)
{
    clearBut(pRrcSsirs, &RrcSsirs_t::csirsResource);
}

void rrcInitCsirsResource(RrcCsirsResource_t* pRrcCsirsResource)
{
    clearBut(pRrcCsirsResource, &RrcCsirsResource_t::raOccasionIdx);
}

void rrcInitServingCellCfgCommon(RrcServingCellCfgCommon_t* pRrcServingCellCfgCommon)
{
    clearBut(pRrcServingCellCfgCommon, &RrcServingCellCfgCommon_t::dlCfgComm, &RrcServingCellCfgCommon_t::ulCfgComm,
             &RrcServingCellCfgCommon_t::suppUlCfg, &RrcServingCellCfgCommon_t::rateMatchPatternToAddMod);
}

void rrcInitScellCfg(RrcScellCfg_t* pRrcScellCfg)
{
    clearBut(pRrcScellCfg, &RrcScellCfg_t::sCellCfgCommn, &RrcScellCfg_t::sCellCfgDedi);
}

void rrcInitServingCellCfg(RrcServingCellCfg_t* pRrcServingCellCfg)
{
    clearBut(pRrcServingCellCfg, &RrcServingCellCfg_t::tddUlDlCfgDed, &RrcServingCellCfg_t::initDlBwp,
             &RrcServingCellCfg_t::dlBwp, &RrcServingCellCfg_t::ulCfg, &RrcServingCellCfg_t::suppUlCfg,
             &RrcServingCellCfg_t::pdcchServingCellCfg, &RrcServingCellCfg_t::csiMeasCfg);
}

void rrcInitTddUlDlCfgDedi(RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDedi)
{
    clearBut(pRrcTddUlDlCfgDedi, &RrcTddUlDlCfgDedi_t::slotCfgDedicated, &RrcTddUlDlCfgDedi_t::slotIdx);
}

void rrcInitBwpDl(RrcBwpDl_t* pRrcBwpDl)
{
    clearBut(pRrcBwpDl, &RrcBwpDl_t::bwpCommon, &RrcBwpDl_t::bwpDedicated);
}

void rrcInitBwpDlDedicated(RrcBwpDlDedicated_t* pRrcBwpDlDedicated)
{
    clearBut(pRrcBwpDlDedicated, &RrcBwpDlDedicated_t::pdcchCfg, &RrcBwpDlDedicated_t::pdschCfg);
}

void rrcInitPdcchCfg(RrcPdcchCfg_t* pRrcPdcchCfg)
{
    clearBut(pRrcPdcchCfg, &RrcPdcchCfg_t::controlResourceSetAddMod, &RrcPdcchCfg_t::searchSpaceAddMod,
             &RrcPdcchCfg_t::dlPreemption);
}

void rrcInitPdschCfg(RrcPdschCfg_t* pRrcPdschCfg)
{
    clearBut(pRrcPdschCfg, &RrcPdschCfg_t::tciStatesAddMod, &RrcPdschCfg_t::tciStateId,
             &RrcPdschCfg_t::pdschTimeDomainAllocList, &RrcPdschCfg_t::rateMatchPattern,
             &RrcPdschCfg_t::zpCsiRsResource, &RrcPdschCfg_t::aperiodicZpCsiRsResourceSet);
}

void rrcInitUlCfg(RrcUlCfg_t* pRrcUlCfg)
{
    clearBut(pRrcUlCfg, &RrcUlCfg_t::ulBwpAddMod, &RrcUlCfg_t::initialUplinkBWP, &RrcUlCfg_t::carrierSwitching);
}

void rrcInitBwpUl(RrcBwpUl_t* pRrcBwpUl)
{
    clearBut(pRrcBwpUl, &RrcBwpUl_t::bwpCommon, &RrcBwpUl_t::bwpDedicated);
}

void rrcInitBwpUlDedi(RrcBwpUlDedi_t* pRrcBwpUlDedi)
{
    clearBut(pRrcBwpUlDedi, &RrcBwpUlDedi_t::pucchCfg, &RrcBwpUlDedi_t::puschCfg, &RrcBwpUlDedi_t::cfgGrantCfg,
             &RrcBwpUlDedi_t::srsCfg);
}

void rrcInitPucchCfg(RrcPucchCfg_t* pRrcPucchCfg)
{
    clearBut(pRrcPucchCfg, &RrcPucchCfg_t::resourceSet, &RrcPucchCfg_t::resource, &RrcPucchCfg_t::pucchResouceId,
             &RrcPucchCfg_t::schedReqResource, &RrcPucchCfg_t::spatialRelationInfo);
}

void rrcInitSrsCfg(RrcSrsCfg_t* pRrcSrsCfg)
{
    clearBut(pRrcSrsCfg, &RrcSrsCfg_t::srsResourceSet, &RrcSrsCfg_t::srsResource);
}

void rrcInitPdcchServingCellCfg(RrcPdcchServingCellCfg_t* pRrcPdcchServingCellCfg)
{
    clearBut(pRrcPdcchServingCellCfg, &RrcPdcchServingCellCfg_t::slotFormatInd);
}

void rrcInitSlotFormatInd(RrcSlotFormatInd_t* pRrcSlotFormatInd)
{
    clearBut(pRrcSlotFormatInd, &RrcSlotFormatInd_t::slotFormatCombAddMod);
}

void rrcInitSlotFormatCombPerCell(RrcSlotFormatCombPerCell_t* pRrcSlotFormatCombPerCell)
{
    clearBut(pRrcSlotFormatCombPerCell, &RrcSlotFormatCombPerCell_t::SlotFormatComb);
}

void rrcInitCsiMeasCfg(RrcCsiMeasCfg_t* pRrcCsiMeasCfg)
{
    clearBut(pRrcCsiMeasCfg, &RrcCsiMeasCfg_t::NzpCsiRsResourceAddMod, &RrcCsiMeasCfg_t::nzpCsiRsResourceId,
             &RrcCsiMeasCfg_t::NzpCsiRsResourceSetAddMod, &RrcCsiMeasCfg_t::csiImResourceAddMod,
             &RrcCsiMeasCfg_t::csiImResourceSetAddMod, &RrcCsiMeasCfg_t::csiSsbResourceSet,
             &RrcCsiMeasCfg_t::csiResourceCfg, &RrcCsiMeasCfg_t::csiResourceCfgId, &RrcCsiMeasCfg_t::csiReportCfg,
             &RrcCsiMeasCfg_t::aperiodicTriggerStateList);
}

void rrcInitCsiReportCfg(RrcCsiReportCfg_t* pRrcCsiReportCfg)
{
    clearBut(pRrcCsiReportCfg, &RrcCsiReportCfg_t::codeBookCfg, &RrcCsiReportCfg_t::RRCPortIndexFor8Ranks);
}

void rrcInitPortIndexFor8RanksList(RRCPortIndexFor8Ranks_t* pRRCPortIndexFor8Ranks)
{
    clearBut(pRRCPortIndexFor8Ranks, &RRCPortIndexFor8Ranks_t::portIndexFor8Ranks);
}

void rrcInitCsiAperiodicTriggerStateList(RrcCsiAperiodicTriggerStateList_t* pRrcCsiAperiodicTriggerStateList)
{
    clearBut(pRrcCsiAperiodicTriggerStateList, &RrcCsiAperiodicTriggerStateList_t::state);
}
