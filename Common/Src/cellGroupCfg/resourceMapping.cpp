#include "resourceMapping.h"

#include "bitString.h"
#include "compose.h"

// CSI-RS-ResourceMapping
INT32 rrcComposeResourceMapping(OSCTXT* pAsnCxt, CSI_RS_ResourceMapping* pResourceMapping,
                                RrcCsiRsResourceMapping_t* pRrcResourceMapping)
{
    RETURN_IF_FAILED(
        rrcComposefrequencyDomainAllocation(pAsnCxt, &pResourceMapping->frequencyDomainAllocation, pRrcResourceMapping),
        "rrcComposefrequencyDomainAllocation is Error\r\n");
    assign(pResourceMapping->nrofPorts, pRrcResourceMapping->nrofPorts);
    assign(pResourceMapping->firstOFDMSymbolInTimeDomain, pRrcResourceMapping->firstOFDMSymbolInTimeDomain);
    COPY_IF(pRrcResourceMapping->bitMask & RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE, pResourceMapping,
            firstOFDMSymbolInTimeDomain2, pRrcResourceMapping->firstOFDMSymbolInTimeDomain2);
    assign(pResourceMapping->cdm_Type, pRrcResourceMapping->cdmType);
    // Of several density bits the lowest counts.
    if (pRrcResourceMapping->presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_DOT5_PRESENCE)
    {
        pResourceMapping->density.t = T_CSI_RS_ResourceMapping_density_dot5;
        assign(pResourceMapping->density.u.dot5, pRrcResourceMapping->density.dots);
    }
    else if (pRrcResourceMapping->presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE)
    {
        pResourceMapping->density.t = T_CSI_RS_ResourceMapping_density_one;
    }
    else if (pRrcResourceMapping->presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE)
    {
        pResourceMapping->density.t = T_CSI_RS_ResourceMapping_density_three;
    }
    else if (pRrcResourceMapping->presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_SPARE_PRESENCE)
    {
        pResourceMapping->density.t = T_CSI_RS_ResourceMapping_density_spare;
    }
    assign(pResourceMapping->freqBand.startingRB, pRrcResourceMapping->freqBand.startingRb);
    assign(pResourceMapping->freqBand.nrofRBs, pRrcResourceMapping->freqBand.nrofRBs);
    return VOS_OK;
}

// CSI-RS-ResourceMapping.frequencyDomainAllocation
INT32 rrcComposefrequencyDomainAllocation(OSCTXT* pAsnCxt,
                                          CSI_RS_ResourceMapping_frequencyDomainAllocation* pFrequencyDomainAllocation,
                                          RrcCsiRsResourceMapping_t* pRrcResourceMapping)
{
    if (pRrcResourceMapping->presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pFrequencyDomainAllocation,
                            T_CSI_RS_ResourceMapping_frequencyDomainAllocation_row1, pFrequencyDomainAllocation->u.row1,
                            uint32To4ASN1BitStr32, pRrcResourceMapping->freqDomainAlloc.row1);
    }
    if (pRrcResourceMapping->presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_ROW2_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pFrequencyDomainAllocation,
                            T_CSI_RS_ResourceMapping_frequencyDomainAllocation_row2, pFrequencyDomainAllocation->u.row2,
                            uint32To12ASN1BitStr32, pRrcResourceMapping->freqDomainAlloc.row2);
    }
    if (pRrcResourceMapping->presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pFrequencyDomainAllocation,
                            T_CSI_RS_ResourceMapping_frequencyDomainAllocation_row4, pFrequencyDomainAllocation->u.row4,
                            uint32To3ASN1BitStr32, pRrcResourceMapping->freqDomainAlloc.row4);
    }
    if (pRrcResourceMapping->presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_OTHER_PRESENCE)
    {
        compose::chooseBits(
            pAsnCxt, pFrequencyDomainAllocation, T_CSI_RS_ResourceMapping_frequencyDomainAllocation_other,
            pFrequencyDomainAllocation->u.other, uint32To6ASN1BitStr32, pRrcResourceMapping->freqDomainAlloc.other);
    }
    return VOS_OK;
}

// CSI-ResourcePeriodicityAndOffset
INT32 rrcComposeperiodicityAndOffset(CSI_ResourcePeriodicityAndOffset* pPeriodicityAndOffset,
                                     RrcCsiResourcePeriodictyAndOffset_t* pRrcPeriodictityAndOffset)
{
    auto& u = pPeriodicityAndOffset->u;
    const UINT16 offset = pRrcPeriodictityAndOffset->offset;

    // The tag is set whatever it is: the encoder refuses an unknown one.
    pPeriodicityAndOffset->t = pRrcPeriodictityAndOffset->slotsPeriod;
    switch (pRrcPeriodictityAndOffset->slotsPeriod)
    {
    case T_CSI_ResourcePeriodicityAndOffset_slots4:
        assign(u.slots4, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots5:
        assign(u.slots5, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots8:
        assign(u.slots8, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots10:
        assign(u.slots10, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots16:
        assign(u.slots16, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots20:
        assign(u.slots20, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots32:
    case T_CSI_ResourcePeriodicityAndOffset_slots40:
        // A period of 40 slots is sent as 32; the encoder refuses the offsets from 32 on.
        pPeriodicityAndOffset->t = T_CSI_ResourcePeriodicityAndOffset_slots32;
        assign(u.slots32, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots64:
        assign(u.slots64, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots80:
        assign(u.slots80, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots160:
        assign(u.slots160, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots320:
        assign(u.slots320, offset);
        break;
    case T_CSI_ResourcePeriodicityAndOffset_slots640:
        assign(u.slots640, offset);
        break;
    default:
        VOS_Printf("%s", "Have no CSI_ResourcePeriodicityAndOffset type\n");
        break;
    }
    return VOS_OK;
}
