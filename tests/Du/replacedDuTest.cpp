// A product's own distributed unit: the composers are called once per element, and what they return is not looked at.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "cellGroupCfg/servingCellCommon.h"
#include "gnbCommon/duCompose.h"

namespace
{

struct Call
{
    std::string name;
    const void* context;
    const void* element;
    const void* record;
    bool operator==(const Call&) const = default;
};

std::vector<Call> calls;
INT32 result = VOS_OK;

INT32 note(const char* name, const void* context, const void* element, const void* record)
{
    calls.push_back({name, context, element, record});
    return result;
}

} // namespace

INT32 duComposeSCS_SpecificCarrier(OSCTXT* pAsnCxt, SCS_SpecificCarrier* pCarrier, SpecificCarrier_t* pRecord)
{
    return note("carrier", pAsnCxt, pCarrier, pRecord);
}

INT32 duComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwp, NrBwpDownLinkCommon_t* pRecord)
{
    return note("downlink", pAsnCxt, pBwp, pRecord);
}

INT32 duComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBwp, InitialUlBwp_t* pRecord)
{
    return note("uplink", pAsnCxt, pBwp, pRecord);
}

INT32 duComposeTDD_UL_DL_ConfigCommon(OSCTXT* pAsnCxt, TDD_UL_DL_ConfigCommon* pTdd, TddUlDlCfgCom_t* pRecord)
{
    return note("tdd", pAsnCxt, pTdd, pRecord);
}

TEST(replacedDu, EachComposerGetsItsElementAndItsRecord)
{
    for (const INT32 returned : {VOS_OK, VOS_ERROR, 17})
    {
        SCOPED_TRACE(returned);
        result = returned;
        calls.clear();
        OSCTXT context;
        rtxInitContext(&context);
        const auto record = std::make_unique<RrcServingCellCfgCommon_t>();
        record->bitMask =
            RRC_DOWNLINK_CFG_COMMON | RRC_UPLINK_CFG_COMMON | RRC_SUPP_UPLINK_CFG_COMMON | RRC_TDD_UL_DL_CFG_COMMON;
        record->dlCfgComm.bitMask = 3;
        record->dlCfgComm.freqInfoDl.scsNum = 2;
        record->ulCfgComm.bitMask = 3;
        record->ulCfgComm.freqInfoUl.scsNum = 1;
        record->suppUlCfg.bitMask = RRC_BWP_UPLINK_PRESENCE;
        const auto element = std::make_unique<ServingCellConfigCommon>();
        EXPECT_EQ(rrcComposeServCellConfigCommon(&context, element.get(), record.get()), VOS_OK);

        const auto& dlCarriers = element->downlinkConfigCommon.frequencyInfoDL.scs_SpecificCarrierList;
        const auto& ulCarriers = element->uplinkConfigCommon.frequencyInfoUL.scs_SpecificCarrierList;
        ASSERT_EQ(dlCarriers.count, 2U) << "appended whatever is returned";
        ASSERT_EQ(ulCarriers.count, 1U);
        const auto expected = std::vector<Call>{
            {"carrier", &context, dlCarriers.head->data, &record->dlCfgComm.freqInfoDl.speCarrier[0]},
            {"carrier", &context, dlCarriers.tail->data, &record->dlCfgComm.freqInfoDl.speCarrier[1]},
            {"downlink", &context, &element->downlinkConfigCommon.initialDownlinkBWP, &record->dlCfgComm.bwpDlCommon},
            {"carrier", &context, ulCarriers.head->data, &record->ulCfgComm.freqInfoUl.speCarrier[0]},
            {"uplink", &context, &element->uplinkConfigCommon.initialUplinkBWP, &record->ulCfgComm.bwpUplink},
            {"uplink", &context, &element->supplementaryUplinkConfig.initialUplinkBWP, &record->suppUlCfg.bwpUplink},
            {"tdd", &context, &element->tdd_UL_DL_ConfigurationCommon, &record->tddUlDlCfgComm},
        };
        EXPECT_EQ(calls == expected, true);
        rtFreeContext(&context);
    }
}
