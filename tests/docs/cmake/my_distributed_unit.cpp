// A product's whole distributed unit: it leaves every element as it is.

#include "gnbCommon/duCompose.h"

INT32 duComposeSCS_SpecificCarrier(OSCTXT*, SCS_SpecificCarrier*, SpecificCarrier_t*)
{
    return VOS_OK;
}

INT32 duComposeBWP_DownlinkCommon(OSCTXT*, BWP_DownlinkCommon*, NrBwpDownLinkCommon_t*)
{
    return VOS_OK;
}

INT32 duComposeBWP_UplinkCommon(OSCTXT*, BWP_UplinkCommon*, InitialUlBwp_t*)
{
    return VOS_OK;
}

INT32 duComposeTDD_UL_DL_ConfigCommon(OSCTXT*, TDD_UL_DL_ConfigCommon*, TddUlDlCfgCom_t*)
{
    return VOS_OK;
}
