// The handover of reconfiguration_with_sync in a product with a distributed unit of its own: the unit composes
// carriers, initial bandwidth parts and TDD pattern from what it knows of the cell, not from the records. The program
// defines the four composers and does not link cellgroupcfg::du; one that defines only some of them links it for the
// others.

#include <memory>

#include "gnbCommon/duCompose.h"
#include "reconfigurationWithSync.h"
#include "showCellGroup.h"

namespace
{

// The unit's cell: 20 MHz, which the handover's records know nothing of.
constexpr UINT32 kHz30 = SubcarrierSpacing_kHz30;
constexpr UINT16 resourceBlocks = 51;
constexpr UINT16 locationAndBandwidth = 275 * (resourceBlocks - 1);

} // namespace

INT32 duComposeSCS_SpecificCarrier(OSCTXT* /*pAsnCxt*/, SCS_SpecificCarrier* pCarrier, SpecificCarrier_t* /*pRecord*/)
{
    pCarrier->offsetToCarrier = 0;
    pCarrier->subcarrierSpacing = kHz30;
    pCarrier->carrierBandwidth = resourceBlocks;
    return VOS_OK;
}

INT32 duComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwp, NrBwpDownLinkCommon_t* /*pRecord*/)
{
    pBwp->genericParameters.locationAndBandwidth = locationAndBandwidth;
    pBwp->genericParameters.subcarrierSpacing = kHz30;

    // What is not inline comes from the context's heap and is cleared by its initialiser.
    auto* const pPdcch = static_cast<PDCCH_ConfigCommon*>(rtxMemHeapAlloc(pAsnCxt, sizeof(PDCCH_ConfigCommon)));
    if (pPdcch == nullptr)
    {
        return VOS_ERROR;
    }
    asn1Init_PDCCH_ConfigCommon(pPdcch);
    pPdcch->m.controlResourceSetZeroPresent = 1;
    pPdcch->controlResourceSetZero = 2;
    pPdcch->m.searchSpaceZeroPresent = 1;
    pPdcch->searchSpaceZero = 4;
    pBwp->m.pdcch_ConfigCommonPresent = 1;
    pBwp->pdcch_ConfigCommon.t = T_BWP_DownlinkCommon_pdcch_ConfigCommon_setup;
    pBwp->pdcch_ConfigCommon.u.setup = pPdcch;
    return VOS_OK;
}

INT32 duComposeBWP_UplinkCommon(OSCTXT* /*pAsnCxt*/, BWP_UplinkCommon* pBwp, InitialUlBwp_t* /*pRecord*/)
{
    pBwp->genericParameters.locationAndBandwidth = locationAndBandwidth;
    pBwp->genericParameters.subcarrierSpacing = kHz30;
    return VOS_OK;
}

INT32 duComposeTDD_UL_DL_ConfigCommon(OSCTXT* /*pAsnCxt*/, TDD_UL_DL_ConfigCommon* pTdd, TddUlDlCfgCom_t* /*pRecord*/)
{
    pTdd->referenceSubcarrierSpacing = kHz30;
    pTdd->pattern1.dl_UL_TransmissionPeriodicity = TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_ms5;
    pTdd->pattern1.nrofDownlinkSlots = 7;
    pTdd->pattern1.nrofDownlinkSymbols = 6;
    pTdd->pattern1.nrofUplinkSlots = 2;
    pTdd->pattern1.nrofUplinkSymbols = 4;
    return VOS_OK;
}

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    reconfigurationWithSync(*record);
    return showCellGroup(*record);
}
