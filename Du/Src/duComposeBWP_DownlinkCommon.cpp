#include "duSetup.h"
#include "gnbCommon/duCompose.h"
#include "packBits.h"

#include <iterator>

namespace
{

// ControlResourceSet.cce-REG-MappingType
INT32 composeCceRegMapping(OSCTXT* pAsnCxt, ControlResourceSet_cce_REG_MappingType* pMapping,
                           const NrControlResourceSet_t* pNrCoreset)
{
    pMapping->t = pNrCoreset->cceRegMappingType;
    if (pMapping->t != T_ControlResourceSet_cce_REG_MappingType_interleaved)
    {
        return VOS_OK;
    }
    auto* const pInterleaved = compose::choose(pAsnCxt, pMapping, pMapping->t, pMapping->u.interleaved);
    if (pInterleaved == nullptr)
    {
        return VOS_ERROR;
    }
    assign(pInterleaved->reg_BundleSize, pNrCoreset->regBundleSize);
    assign(pInterleaved->interleaverSize, pNrCoreset->interleaverSize);
    COPY_IF(pNrCoreset->bitmask & NR_CORESET_SHIFT_INDEX_PRESENCE, pInterleaved, shiftIndex, pNrCoreset->shiftIndex);
    return VOS_OK;
}

// PDCCH-ConfigCommon.commonControlResourceSet
INT32 composeCoreset(OSCTXT* pAsnCxt, ControlResourceSet* pCoreset, const NrControlResourceSet_t* pNrCoreset)
{
    assign(pCoreset->controlResourceSetId, pNrCoreset->controlResourceSetId);
    packBits<45>(pCoreset->frequencyDomainResources, pNrCoreset->freqDomainResources);
    assign(pCoreset->duration, pNrCoreset->duration);
    const INT32 result = composeCceRegMapping(pAsnCxt, &pCoreset->cce_REG_MappingType, pNrCoreset);
    assign(pCoreset->precoderGranularity, pNrCoreset->precoderGranularity);
    if (pNrCoreset->numTciStatesToAdd != 0)
    {
        pCoreset->m.tci_StatesPDCCH_ToAddListPresent = 1;
        compose::array(&pCoreset->tci_StatesPDCCH_ToAddList, pNrCoreset->numTciStatesToAdd, pNrCoreset->tciStatesToAdd);
    }
    if (pNrCoreset->numTciStatesToRelease != 0)
    {
        pCoreset->m.tci_StatesPDCCH_ToReleaseListPresent = 1;
        compose::array(&pCoreset->tci_StatesPDCCH_ToReleaseList, pNrCoreset->numTciStatesToRelease,
                       pNrCoreset->tciStatesToRelease);
    }
    COPY_IF(pNrCoreset->bitmask & NR_CORESET_TCI_PRESENT_IN_DCI, pCoreset, tci_PresentInDCI, 0);
    COPY_IF(pNrCoreset->bitmask & NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE, pCoreset, pdcch_DMRS_ScramblingID,
            pNrCoreset->pdcchDmrsScramblingId);
    return result;
}

// SearchSpace.monitoringSlotPeriodicityAndOffset
void composeMonitoringSlot(SearchSpace_monitoringSlotPeriodicityAndOffset* pSlot, UINT8 tag, UINT16 offset)
{
    pSlot->t = tag;
    switch (tag)
    {
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl2:
        du::assignNarrow(pSlot->u.sl2, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl4:
        du::assignNarrow(pSlot->u.sl4, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl5:
        du::assignNarrow(pSlot->u.sl5, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl8:
        du::assignNarrow(pSlot->u.sl8, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl10:
        du::assignNarrow(pSlot->u.sl10, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl16:
        du::assignNarrow(pSlot->u.sl16, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl20:
        du::assignNarrow(pSlot->u.sl20, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl40:
        du::assignNarrow(pSlot->u.sl40, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl80:
        du::assignNarrow(pSlot->u.sl80, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl160:
        du::assignNarrow(pSlot->u.sl160, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl320:
        assign(pSlot->u.sl320, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl640:
        assign(pSlot->u.sl640, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl1280:
        assign(pSlot->u.sl1280, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl2560:
        assign(pSlot->u.sl2560, offset);
        break;
    default:
        break; // sl1 has no offset; anything else is refused by the encoder
    }
}

// SearchSpace.searchSpaceType.common
void composeCommonType(SearchSpace_searchSpaceType_common* pCommon, const NrSearchSpaceCommon_t* pNrCommon)
{
    pCommon->m.dci_Format0_0_AndFormat1_0Present = (pNrCommon->bitmask & NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0) != 0;
    if (pNrCommon->bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_0)
    {
        pCommon->m.dci_Format2_0Present = 1;
        auto* const pSfi = &pCommon->dci_Format2_0.nrofCandidates_SFI;
        const NrNrofCandidatesSfi_t& nrSfi = pNrCommon->nrofCandidatesSfi;
        COPY_IF(nrSfi.bitmask & NR_SFI_AGGREGATION_LEVEL1_PRESENCE, pSfi, aggregationLevel1, nrSfi.aggregationLevel1);
        COPY_IF(nrSfi.bitmask & NR_SFI_AGGREGATION_LEVEL2_PRESENCE, pSfi, aggregationLevel2, nrSfi.aggregationLevel2);
        COPY_IF(nrSfi.bitmask & NR_SFI_AGGREGATION_LEVEL4_PRESENCE, pSfi, aggregationLevel4, nrSfi.aggregationLevel4);
        COPY_IF(nrSfi.bitmask & NR_SFI_AGGREGATION_LEVEL8_PRESENCE, pSfi, aggregationLevel8, nrSfi.aggregationLevel8);
        COPY_IF(nrSfi.bitmask & NR_SFI_AGGREGATION_LEVEL16_PRESENCE, pSfi, aggregationLevel16,
                nrSfi.aggregationLevel16);
    }
    pCommon->m.dci_Format2_1Present = (pNrCommon->bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_1) != 0;
    pCommon->m.dci_Format2_2Present = (pNrCommon->bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_2) != 0;
    if (pNrCommon->bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_3)
    {
        pCommon->m.dci_Format2_3Present = 1;
        COPY_IF(pNrCommon->bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE, &pCommon->dci_Format2_3, dummy1,
                pNrCommon->dciFormat23Dummy1);
        assign(pCommon->dci_Format2_3.dummy2, pNrCommon->dciFormat23Dummy2);
    }
}

// SearchSpace.searchSpaceType
INT32 composeType(OSCTXT* pAsnCxt, SearchSpace_searchSpaceType* pType, const NrSearchSpace_t* pNrSearchSpace)
{
    pType->t = pNrSearchSpace->searchSpaceType;
    if (pType->t == T_SearchSpace_searchSpaceType_common)
    {
        auto* const pCommon = compose::choose(pAsnCxt, pType, pType->t, pType->u.common);
        if (pCommon == nullptr)
        {
            return VOS_ERROR;
        }
        composeCommonType(pCommon, &pNrSearchSpace->common);
    }
    else if (pType->t == T_SearchSpace_searchSpaceType_ue_Specific)
    {
        auto* const pUeSpecific = compose::choose(pAsnCxt, pType, pType->t, pType->u.ue_Specific);
        if (pUeSpecific == nullptr)
        {
            return VOS_ERROR;
        }
        assign(pUeSpecific->dci_Formats, pNrSearchSpace->dciFormats);
    }
    return VOS_OK;
}

// PDCCH-ConfigCommon.commonSearchSpaceList[]
INT32 composeSearchSpace(OSCTXT* pAsnCxt, SearchSpace* pSearchSpace, NrSearchSpace_t* pNrSearchSpace)
{
    assign(pSearchSpace->searchSpaceId, pNrSearchSpace->searchSpaceId);
    COPY_IF(pNrSearchSpace->bitmask & NR_SEARCH_SPACE_CORESET_ID_PRESENCE, pSearchSpace, controlResourceSetId,
            pNrSearchSpace->controlResourceSetId);
    if (pNrSearchSpace->bitmask & NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE)
    {
        pSearchSpace->m.monitoringSlotPeriodicityAndOffsetPresent = 1;
        composeMonitoringSlot(&pSearchSpace->monitoringSlotPeriodicityAndOffset,
                              pNrSearchSpace->monitoringSlotPeriodicity, pNrSearchSpace->monitoringSlotOffset);
    }
    COPY_IF(pNrSearchSpace->bitmask & NR_SEARCH_SPACE_DURATION_PRESENCE, pSearchSpace, duration,
            pNrSearchSpace->duration);
    if (pNrSearchSpace->bitmask & NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE)
    {
        pSearchSpace->m.monitoringSymbolsWithinSlotPresent = 1;
        (void)packBitStr32<14>(&pSearchSpace->monitoringSymbolsWithinSlot, pNrSearchSpace->monitoringSymbolsWithinSlot);
    }
    if (pNrSearchSpace->bitmask & NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE)
    {
        pSearchSpace->m.nrofCandidatesPresent = 1;
        assign(pSearchSpace->nrofCandidates.aggregationLevel1, pNrSearchSpace->nrofCandidates.aggregationLevel1);
        assign(pSearchSpace->nrofCandidates.aggregationLevel2, pNrSearchSpace->nrofCandidates.aggregationLevel2);
        assign(pSearchSpace->nrofCandidates.aggregationLevel4, pNrSearchSpace->nrofCandidates.aggregationLevel4);
        assign(pSearchSpace->nrofCandidates.aggregationLevel8, pNrSearchSpace->nrofCandidates.aggregationLevel8);
        assign(pSearchSpace->nrofCandidates.aggregationLevel16, pNrSearchSpace->nrofCandidates.aggregationLevel16);
    }
    if (pNrSearchSpace->bitmask & NR_SEARCH_SPACE_TYPE_PRESENCE)
    {
        pSearchSpace->m.searchSpaceTypePresent = 1;
        return composeType(pAsnCxt, &pSearchSpace->searchSpaceType, pNrSearchSpace);
    }
    return VOS_OK;
}

// One alternative of PDCCH-ConfigCommon.firstPDCCH-MonitoringOccasionOfPO: its count, and as many symbols as both
// arrays hold.
template <typename Choice, typename Zone>
INT32 composeZone(OSCTXT* pAsnCxt, Choice* pChoice, Zone*& pZone, const NrFirstPdcchMonitoringOccasion_t* pNrOccasion)
{
    if (compose::choose(pAsnCxt, pChoice, pNrOccasion->zone, pZone) == nullptr)
    {
        return VOS_ERROR;
    }
    static_assert(sizeof(Zone::elem) == NR_MAX_NUM_PO_PER_PF * sizeof *Zone::elem);
    pZone->n = pNrOccasion->numOccasions;
    const int used = std::min<int>(pZone->n, NR_MAX_NUM_PO_PER_PF);
    for (int i = 0; i < used; ++i)
    {
        du::assignNarrow(pZone->elem[i], pNrOccasion->occasion[i]);
    }
    return VOS_OK;
}

// PDCCH-ConfigCommon.firstPDCCH-MonitoringOccasionOfPO
INT32 composeFirstOccasion(OSCTXT* pAsnCxt, PDCCH_ConfigCommon_firstPDCCH_MonitoringOccasionOfPO* pOccasion,
                           const NrFirstPdcchMonitoringOccasion_t* pNrOccasion)
{
    switch (pNrOccasion->zone)
    {
    case 1:
        return composeZone(pAsnCxt, pOccasion, pOccasion->u.sCS15KHZoneT, pNrOccasion);
    case 2:
        return composeZone(pAsnCxt, pOccasion, pOccasion->u.sCS30KHZoneT_SCS15KHZhalfT, pNrOccasion);
    case 3:
        return composeZone(pAsnCxt, pOccasion, pOccasion->u.sCS60KHZoneT_SCS30KHZhalfT_SCS15KHZquarterT, pNrOccasion);
    case 4:
        return composeZone(pAsnCxt, pOccasion,
                           pOccasion->u.sCS120KHZoneT_SCS60KHZhalfT_SCS30KHZquarterT_SCS15KHZoneEighthT, pNrOccasion);
    case 5:
        return composeZone(pAsnCxt, pOccasion,
                           pOccasion->u.sCS120KHZhalfT_SCS60KHZquarterT_SCS30KHZoneEighthT_SCS15KHZoneSixteenthT,
                           pNrOccasion);
    case 6:
        return composeZone(pAsnCxt, pOccasion, pOccasion->u.sCS120KHZquarterT_SCS60KHZoneEighthT_SCS30KHZoneSixteenthT,
                           pNrOccasion);
    case 7:
        return composeZone(pAsnCxt, pOccasion, pOccasion->u.sCS120KHZoneEighthT_SCS60KHZoneSixteenthT, pNrOccasion);
    case 8:
        return composeZone(pAsnCxt, pOccasion, pOccasion->u.sCS120KHZoneSixteenthT, pNrOccasion);
    default:
        pOccasion->t = pNrOccasion->zone; // refused by the encoder
        return VOS_OK;
    }
}

// BWP-DownlinkCommon.pdcch-ConfigCommon.setup
INT32 composePdcch(OSCTXT* pAsnCxt, PDCCH_ConfigCommon* pPdcch, PdcchCfgCommon_t* pNrPdcch)
{
    INT32 result = VOS_OK;
    COPY_IF(pNrPdcch->bitmask & NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE, pPdcch, controlResourceSetZero,
            pNrPdcch->controlResourceSetZero);
    if (pNrPdcch->bitmask & NR_PDCCH_COMMON_CORESET_PRESENCE)
    {
        pPdcch->m.commonControlResourceSetPresent = 1;
        result |= composeCoreset(pAsnCxt, &pPdcch->commonControlResourceSet, &pNrPdcch->commonControlResourceSet);
    }
    COPY_IF(pNrPdcch->bitmask & NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE, pPdcch, searchSpaceZero,
            pNrPdcch->searchSpaceZero);
    if (pNrPdcch->numCommonSearchSpaces != 0)
    {
        pPdcch->m.commonSearchSpaceListPresent = 1;
        result |= compose::list<SearchSpace>(pAsnCxt, &pPdcch->commonSearchSpaceList, pNrPdcch->numCommonSearchSpaces,
                                             pNrPdcch->commonSearchSpace, composeSearchSpace,
                                             {"pNode Or pSearchSpace is NULL\r\n", "composeSearchSpace is Error\r\n"});
    }
    COPY_IF(pNrPdcch->bitmask & NR_PDCCH_COMMON_SEARCH_SPACE_SIB1_PRESENCE, pPdcch, searchSpaceSIB1,
            pNrPdcch->searchSpaceSib1);
    COPY_IF(pNrPdcch->bitmask & NR_PDCCH_COMMON_SEARCH_SPACE_OTHER_SI_PRESENCE, pPdcch,
            searchSpaceOtherSystemInformation, pNrPdcch->searchSpaceOtherSi);
    COPY_IF(pNrPdcch->bitmask & NR_PDCCH_COMMON_PAGING_SEARCH_SPACE_PRESENCE, pPdcch, pagingSearchSpace,
            pNrPdcch->pagingSearchSpace);
    COPY_IF(pNrPdcch->bitmask & NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE, pPdcch, ra_SearchSpace,
            pNrPdcch->raSearchSpace);
    if (pNrPdcch->bitmask & NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE)
    {
        pPdcch->m._v2ExtPresent = 1;
        pPdcch->m.firstPDCCH_MonitoringOccasionOfPOPresent = 1;
        result |= composeFirstOccasion(pAsnCxt, &pPdcch->firstPDCCH_MonitoringOccasionOfPO,
                                       &pNrPdcch->firstPdcchMonitoringOccasion);
    }
    return result;
}

// PDSCH-ConfigCommon.pdsch-TimeDomainAllocationList[]
INT32 composePdschAlloc(PDSCH_TimeDomainResourceAllocation* pAlloc, NrTimeDomainAlloc_t* pNrAlloc)
{
    COPY_IF(pNrAlloc->bitmask & NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE, pAlloc, k0, pNrAlloc->slotOffset);
    assign(pAlloc->mappingType, pNrAlloc->mappingType);
    assign(pAlloc->startSymbolAndLength, pNrAlloc->startSymbolAndLength);
    return VOS_OK;
}

// BWP-DownlinkCommon.pdsch-ConfigCommon.setup
INT32 composePdsch(OSCTXT* pAsnCxt, PDSCH_ConfigCommon* pPdsch, PdschCfgCommon_t* pNrPdsch)
{
    if (pNrPdsch->numTimeDomainAllocs == 0)
    {
        return VOS_OK;
    }
    pPdsch->m.pdsch_TimeDomainAllocationListPresent = 1;
    return compose::list<PDSCH_TimeDomainResourceAllocation>(
        pAsnCxt, &pPdsch->pdsch_TimeDomainAllocationList, pNrPdsch->numTimeDomainAllocs, pNrPdsch->timeDomainAlloc,
        composePdschAlloc, {"pNode Or pPdschTimeDomainAlloc is NULL\r\n", nullptr});
}

} // namespace

// BWP-DownlinkCommon
INT32 duComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwpDownlinkCommon,
                                  NrBwpDownLinkCommon_t* pNrBwpDownLinkCommon)
{
    INT32 result = VOS_OK;
    assign(pBwpDownlinkCommon->genericParameters.locationAndBandwidth, pNrBwpDownLinkCommon->bwp.locationAndBandwidth);
    assign(pBwpDownlinkCommon->genericParameters.subcarrierSpacing, pNrBwpDownLinkCommon->bwp.subcarrierSpacing);
    COPY_IF(pNrBwpDownLinkCommon->bitmask & NR_BWP_DL_EXTENDED_CYCLIC_PREFIX, &pBwpDownlinkCommon->genericParameters,
            cyclicPrefix, 0);
    if (pNrBwpDownLinkCommon->bitmask & NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE)
    {
        pBwpDownlinkCommon->m.pdcch_ConfigCommonPresent = 1;
        result |= du::setup(pAsnCxt, &pBwpDownlinkCommon->pdcch_ConfigCommon, &pNrBwpDownLinkCommon->pdcchCfgCommon,
                            composePdcch);
    }
    if (pNrBwpDownLinkCommon->bitmask & NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE)
    {
        pBwpDownlinkCommon->m.pdsch_ConfigCommonPresent = 1;
        result |= du::setup(pAsnCxt, &pBwpDownlinkCommon->pdsch_ConfigCommon, &pNrBwpDownLinkCommon->pdschCfgCommon,
                            composePdsch);
    }
    return result;
}
