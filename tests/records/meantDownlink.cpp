#include "records.h"

namespace records
{

namespace
{

// The extension with firstPDCCH-MonitoringOccasionOfPO is never sent.
std::string pdcchCommon(const RrcPdcchCfgCommon_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_ZERO_PRESENCE, "controlResourceSetZero",
                  record.controlResourceSetZero);
    if (record.bitMask & RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_PRESENCE)
    {
        members.add("commonControlResourceSet", meant(record.commonControlResourceSet));
    }
    members.addIf(record.bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_ZERO_PRESENCE, "searchSpaceZero",
                  record.searchSpaceZero);
    if (record.numCommonSearchSpace != 0)
    {
        members.add("commonSearchSpaceList", list(record.numCommonSearchSpace, record.commonSearchSpace,
                                                  [&](const auto& entry) { return meant(entry); }));
    }
    members.addIf(record.bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_SIB1_PRESENCE, "searchSpaceSIB1",
                  record.searchSpaceSIB1);
    members.addIf(record.bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_OTHER_SI_PRESENCE,
                  "searchSpaceOtherSystemInformation", record.searchSpaceOtherSi);
    members.addIf(record.bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_PAGING_PRESENCE, "pagingSearchSpace",
                  record.searchSpacePaing);
    members.addIf(record.bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_RA_PRESENCE, "ra-SearchSpace",
                  record.searchSpaceRa);
    return members.json();
}

std::string pdschCommon(const RrcPdschCfgCommon_t& record)
{
    Members members;
    if (record.bitMask & RRC_PDSCH_COMMON_PRESENCE)
    {
        members.add("pdsch-TimeDomainAllocationList", meant(record.pdschTimeDomainAllocList));
    }
    return members.json();
}

std::string common(const RrcBwpDlCommon_t& record)
{
    Members members;
    members.add("genericParameters", meant(record.genericParam));
    if (record.bitMask & RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE)
    {
        members.add("pdcch-ConfigCommon", setup(pdcchCommon(record.pdcchCfgCommon)));
    }
    if (record.bitMask & RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE)
    {
        members.add("pdsch-ConfigCommon", setup(pdschCommon(record.pdschCfgCommon)));
    }
    return members.json();
}

} // namespace

// Neither list is ever sent.
std::string meant(const RrcTddUlDlCfgDedi_t&)
{
    return Members().json();
}

std::string meant(const RrcBwpDl_t& record)
{
    Members members;
    members.add("bwp-Id", record.bwpId);
    if (record.bitMask & RRC_BWP_DL_COMMON_PRESENCE)
    {
        members.add("bwp-Common", common(record.bwpCommon));
    }
    if (record.bitMask & RRC_BWP_DL_DEDICATED_PRESENCE)
    {
        members.add("bwp-Dedicated", meant(record.bwpDedicated));
    }
    return members.json();
}

std::string meant(const RrcBwpDlDedicated_t& record)
{
    Members members;
    if (record.bitMask & RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE)
    {
        members.add("pdcch-Config", setup(meant(record.pdcchCfg)));
    }
    if (record.bitMask & RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE)
    {
        members.add("pdsch-Config", setup(meant(record.pdschCfg)));
    }
    if (record.bitMask & RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE)
    {
        members.add("sps-Config", setup(meant(record.spsCfg)));
    }
    if (record.bitMask & RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE)
    {
        members.add("radioLinkMonitoringConfig", setup(meant(record.radioLinkMonitorCfg)));
    }
    return members.json();
}

std::string meant(const RrcBwp_t& record)
{
    Members members;
    members.add("locationAndBandwidth", record.locationAndBandwidth);
    members.add("subcarrierSpacing", record.subCarrierSpacing);
    members.addIf(record.bitMask & RRC_BWP_CYCLEPREFIX_PRESENCE, "cyclicPrefix", record.cyclicPrefix);
    return members.json();
}

} // namespace records
