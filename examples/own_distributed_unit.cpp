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

// The unit's cell: 20 MHz around the SS/PBCH blocks, which the handover's records know nothing of.
constexpr UINT32 kHz30 = SubcarrierSpacing_kHz30;
constexpr UINT16 fromPointA = 111;
constexpr UINT16 resourceBlocks = 51;
constexpr UINT16 locationAndBandwidth = 275 * (resourceBlocks - 1);

// What is not inline comes from the context's heap and is cleared by its initialiser.
template <typename T>
T* make(OSCTXT* pAsnCxt, void (*init)(T*))
{
    auto* const pElement = static_cast<T*>(rtxMemHeapAlloc(pAsnCxt, sizeof(T)));
    if (pElement != nullptr)
    {
        init(pElement);
    }
    return pElement;
}

} // namespace

INT32 duComposeSCS_SpecificCarrier(OSCTXT* /*pAsnCxt*/, SCS_SpecificCarrier* pCarrier, SpecificCarrier_t* /*pRecord*/)
{
    pCarrier->offsetToCarrier = fromPointA;
    pCarrier->subcarrierSpacing = kHz30;
    pCarrier->carrierBandwidth = resourceBlocks;
    return VOS_OK;
}

INT32 duComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwp, NrBwpDownLinkCommon_t* /*pRecord*/)
{
    pBwp->genericParameters.locationAndBandwidth = locationAndBandwidth;
    pBwp->genericParameters.subcarrierSpacing = kHz30;

    PDCCH_ConfigCommon* const pPdcch = make(pAsnCxt, asn1Init_PDCCH_ConfigCommon);
    if (pPdcch == nullptr)
    {
        return VOS_ERROR;
    }
    pPdcch->m.controlResourceSetZeroPresent = 1;
    pPdcch->controlResourceSetZero = 2;
    pPdcch->m.searchSpaceZeroPresent = 1;
    pPdcch->searchSpaceZero = 4;
    pPdcch->m.ra_SearchSpacePresent = 1;
    pPdcch->ra_SearchSpace = 0;
    pBwp->m.pdcch_ConfigCommonPresent = 1;
    pBwp->pdcch_ConfigCommon.t = T_BWP_DownlinkCommon_pdcch_ConfigCommon_setup;
    pBwp->pdcch_ConfigCommon.u.setup = pPdcch;
    return VOS_OK;
}

INT32 duComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBwp, InitialUlBwp_t* /*pRecord*/)
{
    pBwp->genericParameters.locationAndBandwidth = locationAndBandwidth;
    pBwp->genericParameters.subcarrierSpacing = kHz30;

    // Short preambles of format B4 in the last subframe, which is uplink.
    RACH_ConfigCommon* const pRach = make(pAsnCxt, asn1Init_RACH_ConfigCommon);
    if (pRach == nullptr)
    {
        return VOS_ERROR;
    }
    RACH_ConfigGeneric& generic = pRach->rach_ConfigGeneric;
    generic.prach_ConfigurationIndex = 159;
    generic.zeroCorrelationZoneConfig = 13;
    generic.preambleReceivedTargetPower = -104;
    generic.preambleTransMax = RACH_ConfigGeneric_preambleTransMax_n10;
    generic.powerRampingStep = RACH_ConfigGeneric_powerRampingStep_dB2;
    generic.ra_ResponseWindow = RACH_ConfigGeneric_ra_ResponseWindow_sl20;
    pRach->m.ssb_perRACH_OccasionAndCB_PreamblesPerSSBPresent = 1;
    pRach->ssb_perRACH_OccasionAndCB_PreamblesPerSSB.t =
        T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_one;
    pRach->ssb_perRACH_OccasionAndCB_PreamblesPerSSB.u.one =
        RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_one_n56;
    pRach->ra_ContentionResolutionTimer = RACH_ConfigCommon_ra_ContentionResolutionTimer_sf64;
    pRach->prach_RootSequenceIndex.t = T_RACH_ConfigCommon_prach_RootSequenceIndex_l139;
    pRach->prach_RootSequenceIndex.u.l139 = 1;
    pRach->m.msg1_SubcarrierSpacingPresent = 1;
    pRach->msg1_SubcarrierSpacing = kHz30;
    pBwp->m.rach_ConfigCommonPresent = 1;
    pBwp->rach_ConfigCommon.t = T_BWP_UplinkCommon_rach_ConfigCommon_setup;
    pBwp->rach_ConfigCommon.u.setup = pRach;
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
