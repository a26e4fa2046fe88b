#include "compose.h"
#include "gnbCommon/duCompose.h"

// SCS-SpecificCarrier
INT32 duComposeSCS_SpecificCarrier(OSCTXT* /*pAsnCxt*/, SCS_SpecificCarrier* pScsSpecificCarrier,
                                   SpecificCarrier_t* pSpecificCarrier)
{
    assign(pScsSpecificCarrier->offsetToCarrier, pSpecificCarrier->offsetToCarrier);
    assign(pScsSpecificCarrier->subcarrierSpacing, pSpecificCarrier->subcarrierSpacing);
    assign(pScsSpecificCarrier->carrierBandwidth, pSpecificCarrier->carrierBandwidth);
    return VOS_OK;
}
