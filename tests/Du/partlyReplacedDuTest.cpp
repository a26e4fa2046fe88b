// A product that defines one of the distributed unit's composers gets the others from the default library.
#include <gtest/gtest.h>

#include "gnbCommon/duCompose.h"

namespace
{

bool called = false;

} // namespace

INT32 duComposeBWP_UplinkCommon(OSCTXT* /*pAsnCxt*/, BWP_UplinkCommon* /*pBwp*/, InitialUlBwp_t* /*pRecord*/)
{
    called = true;
    return VOS_OK;
}

TEST(partlyReplacedDu, TheOthersAreTheDefaults)
{
    BWP_UplinkCommon uplink{};
    InitialUlBwp_t uplinkRecord{};
    uplinkRecord.bwp.locationAndBandwidth = 5;
    EXPECT_EQ(duComposeBWP_UplinkCommon(nullptr, &uplink, &uplinkRecord), VOS_OK);
    EXPECT_TRUE(called);
    EXPECT_EQ(uplink.genericParameters.locationAndBandwidth, 0);

    BWP_DownlinkCommon downlink{};
    NrBwpDownLinkCommon_t downlinkRecord{};
    downlinkRecord.bwp.locationAndBandwidth = 5;
    EXPECT_EQ(duComposeBWP_DownlinkCommon(nullptr, &downlink, &downlinkRecord), VOS_OK);
    EXPECT_EQ(downlink.genericParameters.locationAndBandwidth, 5);
}
