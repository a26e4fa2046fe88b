#include "cellGroupCfg/uplinkConfig.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"
#include "uplinkRecords.h"

using test::dedicatedJson;
using test::fillDedicated;
using test::HeapFault;
using test::masks;
using test::object;
using test::rising;

namespace
{

class uplinkConfig : public test::ComposerTest
{
protected:
    UplinkConfig compose(RrcUlCfg_t& record)
    {
        UplinkConfig element{};
        EXPECT_EQ(rrcComposeUplinkConfig(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

std::unique_ptr<RrcUlCfg_t> filledRecord(unsigned bitMask)
{
    auto record = std::make_unique<RrcUlCfg_t>();
    record->ulBwpAddMod[0].bwpId = 2;
    record->ulBwpId[0] = 3;
    record->bitMask = static_cast<UINT8>(bitMask);
    fillDedicated(record->initialUplinkBWP, 0x1F);
    record->firstActiveUlBwpId = 4;
    record->PuschServingCellCfg.bitMask = RRC_PUSCH_SERVING_CELL_CFG_X_OVER_HEAD_PRESECE;
    record->carrierSwitching.SwitchFromCarrier = 1;
    return record;
}

} // namespace

TEST_F(uplinkConfig, MembersNoneEachAloneAndAllInOrder)
{
    for (const unsigned mask : masks(6))
    {
        for (unsigned lists = 0; lists < 4; ++lists)
        {
            const auto record = filledRecord(mask);
            record->numUlBwpRel = lists & 1;
            record->numUlBwpAddMod = lists >> 1 & 1;
            expectDecoded("UplinkConfig", asn1PE_UplinkConfig, compose(*record),
                          object({mask & 1 ? "\"initialUplinkBWP\":" + dedicatedJson(0x1F) : "",
                                  lists & 1 ? R"("uplinkBWP-ToReleaseList":[3])" : "",
                                  lists & 2 ? R"("uplinkBWP-ToAddModList":[{"bwp-Id":2}])" : "",
                                  mask & 2 ? R"("firstActiveUplinkBWP-Id":4)" : "",
                                  mask & 4 ? R"("pusch-ServingCellConfig":{"setup":{"xOverhead":"xoh6"}})" : "",
                                  mask & 8 ? R"("carrierSwitching":{"setup":{"srs-SwitchFromCarrier":"nUL"}})" : ""}));
        }
    }
}

TEST_F(uplinkConfig, WithoutAnythingAskedForNoMemberIsPresent)
{
    const auto record = filledRecord(0);
    const UplinkConfig element = compose(*record);
    EXPECT_EQ(element.m.initialUplinkBWPPresent, 0U);
    EXPECT_EQ(element.m.uplinkBWP_ToReleaseListPresent, 0U);
    EXPECT_EQ(element.m.uplinkBWP_ToAddModListPresent, 0U);
    EXPECT_EQ(element.m.firstActiveUplinkBWP_IdPresent, 0U);
    EXPECT_EQ(element.m.pusch_ServingCellConfigPresent, 0U);
    EXPECT_EQ(element.m.carrierSwitchingPresent, 0U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    EXPECT_EQ(element.m.powerBoostPi2BPSKPresent, 0U);
    EXPECT_EQ(element.m.uplinkChannelBW_PerSCS_ListPresent, 0U);
}

TEST_F(uplinkConfig, PowerBoostIsMarkedAndNotSent)
{
    const auto record = filledRecord(RRC_UL_CFG_POWER_BOOST_PI_2BPSK);
    for (const OSBOOL left : {OSBOOL{0}, OSBOOL{1}})
    {
        UplinkConfig element{};
        element.powerBoostPi2BPSK = left;
        EXPECT_EQ(rrcComposeUplinkConfig(&context, &element, record.get()), VOS_OK);
        EXPECT_EQ(element.m.powerBoostPi2BPSKPresent, 1U);
        EXPECT_EQ(element.powerBoostPi2BPSK, left);
        EXPECT_EQ(element.m.uplinkChannelBW_PerSCS_ListPresent, 0U);
        EXPECT_EQ(element.m._v2ExtPresent, 0U);
        expectDecoded("UplinkConfig", asn1PE_UplinkConfig, element, "{}");
    }
}

TEST_F(uplinkConfig, ChannelBandwidthsAreMarkedEmptyAndNotSent)
{
    const auto record = filledRecord(RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST);
    const UplinkConfig element = compose(*record);
    EXPECT_EQ(element.m.uplinkChannelBW_PerSCS_ListPresent, 1U);
    EXPECT_EQ(element.uplinkChannelBW_PerSCS_List.count, 0U);
    EXPECT_EQ(element.m.powerBoostPi2BPSKPresent, 0U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    expectDecoded("UplinkConfig", asn1PE_UplinkConfig, element, "{}");
}

TEST_F(uplinkConfig, FailingInitialPartStopsTheRest)
{
    const auto record = filledRecord(0x3F);
    record->initialUplinkBWP.bitMask = RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE;
    record->numUlBwpRel = 1;
    UplinkConfig element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeUplinkConfig(&context, &element, record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBeamFailureRecovery_ConfigSetup", "pSetup") +
                             "rrcComposeBeamFailureRecovery_ConfigSetup Error\r\n"
                             "rrcComposeBWPbeamFailureRecovery_Config Error\r\nrrcComposeInitialUplinkBWP Error\r\n");
    EXPECT_EQ(element.m.initialUplinkBWPPresent, 1U);
    EXPECT_EQ(element.m.uplinkBWP_ToReleaseListPresent, 0U);
    EXPECT_EQ(element.m.powerBoostPi2BPSKPresent, 0U);
}

TEST_F(uplinkConfig, FailingListStopsTheRest)
{
    const auto record = filledRecord(0x3E);
    record->numUlBwpRel = 1;
    record->numUlBwpAddMod = 1;
    UplinkConfig element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeUplinkConfig(&context, &element, record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "pNode Or pItem is NULL\r\nrrcComposeuplinkBWP_ToAddModList Error\r\n");
    EXPECT_EQ(element.uplinkBWP_ToReleaseList.n, 1) << "the release list comes first";
    EXPECT_EQ(element.m.uplinkBWP_ToAddModListPresent, 1U);
    EXPECT_EQ(element.m.firstActiveUplinkBWP_IdPresent, 0U);
    EXPECT_EQ(element.m.uplinkChannelBW_PerSCS_ListPresent, 0U);
}

TEST_F(uplinkConfig, SetupsWithoutHeapAreLeftToTheEncoder)
{
    const char* const members[] = {"pusch-ServingCellConfig", "carrierSwitching"};
    for (unsigned i = 0; i < 2; ++i)
    {
        const auto record = filledRecord(4U << i);
        UplinkConfig element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposeUplinkConfig(&context, &element, record.get()), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_UplinkConfig, element),
                  std::string("UplinkConfig.") + members[i] + ": tag 0 is not in 1..2");
    }
}

TEST_F(uplinkConfig, HeapExhaustedAnywhere)
{
    const auto record = filledRecord(0x3F);
    record->numUlBwpRel = 4;
    record->numUlBwpAddMod = 4;
    for (RrcBwpUl_t& bwp : record->ulBwpAddMod)
    {
        bwp.bitMask = RRC_BWP_UL_COMMON_PRESENCE | RRC_BWP_UL_DEDICATED_PRESENCE;
        bwp.bwpCommon.bitMask = 7;
        bwp.bwpCommon.rachCfgComm = test::rachCommon();
        fillDedicated(bwp.bwpDedicated, 0x1F);
    }
    for (unsigned successes = 0;; ++successes)
    {
        UplinkConfig element{};
        bool struck = false;
        INT32 result = VOS_OK;
        {
            const HeapFault fault(successes);
            result = rrcComposeUplinkConfig(&context, &element, record.get());
            struck = HeapFault::struck();
        }
        const std::string lines = printed();
        EXPECT_EQ(result == VOS_OK, lines.empty()) << lines;
        const bool encoded = encode(asn1PE_UplinkConfig, element).find(' ') == std::string::npos;
        if (!struck)
        {
            EXPECT_EQ(result, VOS_OK);
            EXPECT_TRUE(encoded);
            EXPECT_EQ(successes, 5U + 4 * (1 + 3 + 5) + 2);
            break;
        }
        EXPECT_TRUE(result == VOS_ERROR || !encoded) << successes << ": something is missing";
    }
}

TEST_F(uplinkConfig, RecordOrder)
{
    using Cfg = RrcUlCfg_t;
    static_assert(rising({offsetof(Cfg, numUlBwpAddMod), offsetof(Cfg, ulBwpAddMod), offsetof(Cfg, numUlBwpRel),
                          offsetof(Cfg, ulBwpId), offsetof(Cfg, bitMask), offsetof(Cfg, initialUplinkBWP),
                          offsetof(Cfg, firstActiveUlBwpId), offsetof(Cfg, PuschServingCellCfg),
                          offsetof(Cfg, carrierSwitching)}));
}
