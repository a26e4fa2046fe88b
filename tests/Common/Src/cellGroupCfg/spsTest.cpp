#include "cellGroupCfg/sps.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::HeapFault;
using test::masks;
using test::object;
using test::rising;

namespace
{

class sps : public test::ComposerTest
{
};

} // namespace

TEST_F(sps, Options)
{
    for (const unsigned mask : masks(2))
    {
        RrcSpsCfg_t cfg{9, 8, static_cast<UINT8>(mask), 127, 0};
        BWP_DownlinkDedicated_sps_Config choice{};
        EXPECT_EQ(rrcComposeSps_Config(&context, &choice, &cfg), VOS_OK);
        EXPECT_EQ(choice.t, static_cast<OSUINT32>(T_BWP_DownlinkDedicated_sps_Config_setup));
        expectDecoded("SPS-Config", asn1PE_SPS_Config, *choice.u.setup,
                      object({R"("periodicity":"ms640")", "\"nrofHARQ-Processes\":8",
                              mask & 1 ? "\"n1PUCCH-AN\":127" : "", mask & 2 ? R"("mcs-Table":"qam64LowSE")" : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(sps, ValuesPastTheirRangesAreLeftToTheEncoder)
{
    const struct
    {
        RrcSpsCfg_t cfg;
        const char* refused;
    } cases[] = {
        {{16, 1, 0, 0, 0}, "SPS-Config.periodicity: 16 is not in 0..15"},
        {{0, 0, 0, 0, 0}, "SPS-Config.nrofHARQ-Processes: 0 is not in 1..8"},
        {{0, 9, 0, 0, 0}, "SPS-Config.nrofHARQ-Processes: 9 is not in 1..8"},
        {{0, 1, 1, 128, 0}, "SPS-Config.n1PUCCH-AN: 128 is not in 0..127"},
        {{0, 1, 2, 0, 1}, "SPS-Config.mcs-Table: 1 is not in 0..0"},
    };
    for (auto [cfg, refused] : cases)
    {
        SPS_Config element{};
        EXPECT_EQ(rrcComposeSps_ConfigSetup(&element, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_SPS_Config, element), refused);
    }
}

TEST_F(sps, WithoutHeapIsLeftToTheEncoder)
{
    RrcSpsCfg_t cfg{};
    BWP_DownlinkDedicated element{};
    element.m.sps_ConfigPresent = 1;
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeSps_Config(&context, &element.sps_Config, &cfg), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_BWP_DownlinkDedicated, element), "BWP-DownlinkDedicated.sps-Config: tag 0 is not in 1..2");
}

TEST_F(sps, NullGuards)
{
    RrcSpsCfg_t cfg{};
    BWP_DownlinkDedicated_sps_Config choice{};
    EXPECT_EQ(rrcComposeSps_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSps_Config", "pSps_Config"));
    EXPECT_EQ(rrcComposeSps_Config(&context, nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSps_Config", "pSps_Config"));
    EXPECT_EQ(rrcComposeSps_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSps_Config", "pRrcSpsCfg"));
    EXPECT_EQ(choice.t, 0U);
}

TEST_F(sps, RecordOrder)
{
    using R = RrcSpsCfg_t;
    EXPECT_TRUE(rising({offsetof(R, periodicity), offsetof(R, nrofHardProcess), offsetof(R, bitMask),
                        offsetof(R, n1PucchAn), offsetof(R, mcsTable)}));
}
