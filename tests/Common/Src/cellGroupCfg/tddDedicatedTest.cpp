#include "cellGroupCfg/tddDedicated.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::array;
using test::HeapFault;
using test::numbers;
using test::object;
using test::rising;

namespace
{

constexpr const char* noNode = "pNode Or pTDD_UL_DL_SlotCfg is NULL\r\n";
constexpr const char* addError = "rrcComposeSlotSpecificConfigurationsToAdd Error\r\n";

class tddDedicated : public test::ComposerTest
{
protected:
    void compose(UINT16 toAdd, UINT16 toRelease)
    {
        cfg->numSlotsAddMod = toAdd;
        cfg->numSlotsRelease = toRelease;
        for (unsigned i = 0; i < RRC_MAX_NROF_SLOTS; ++i)
        {
            cfg->slotCfgDedicated[i] = {
                static_cast<UINT16>(319 - i),
                RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE,
                {static_cast<UINT8>(i % 4), static_cast<UINT8>(1 + i % 13), static_cast<UINT8>(13 - i % 13)}};
            cfg->slotIdx[i] = static_cast<UINT16>(i);
        }
        *element = {};
        EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, element.get(), cfg.get()), VOS_OK);
    }

    // The slots that compose() makes.
    static std::string slot(unsigned i)
    {
        const std::string downlink = i % 2 != 0 ? "\"nrofDownlinkSymbols\":" + std::to_string(1 + i % 13) : "";
        const std::string uplink = i % 4 >= 2 ? "\"nrofUplinkSymbols\":" + std::to_string(13 - i % 13) : "";
        return "{\"slotIndex\":" + std::to_string(319 - i) +
               ",\"symbols\":{\"explicit\":" + object({downlink, uplink}) + "}}";
    }

    // What stands in the lists, told by setting the bits that the composer leaves clear.
    void expectLists(const std::string& json)
    {
        element->m.slotSpecificConfigurationsToAddModListPresent = cfg->numSlotsAddMod != 0;
        element->m.slotSpecificConfigurationsToreleaseListPresent = cfg->numSlotsRelease != 0;
        expectDecoded("TDD-UL-DL-ConfigDedicated", asn1PE_TDD_UL_DL_ConfigDedicated, *element, json);
    }

    std::unique_ptr<RrcTddUlDlCfgDedi_t> cfg = cleared<RrcTddUlDlCfgDedi_t>();
    std::unique_ptr<TDD_UL_DL_ConfigDedicated> element = cleared<TDD_UL_DL_ConfigDedicated>();
};

} // namespace

TEST_F(tddDedicated, TwoSlotsToAddAndOneToReleaseFillBothListsWithoutPresenceBits)
{
    compose(2, 1);
    EXPECT_EQ(element->m.slotSpecificConfigurationsToAddModListPresent, 0U);
    EXPECT_EQ(element->m.slotSpecificConfigurationsToreleaseListPresent, 0U);
    EXPECT_EQ(element->slotSpecificConfigurationsToAddModList.count, 2U);
    EXPECT_EQ(element->slotSpecificConfigurationsToreleaseList.n, 1U);
    expectDecoded("TDD-UL-DL-ConfigDedicated", asn1PE_TDD_UL_DL_ConfigDedicated, *element, "{}");
    expectLists("{\"slotSpecificConfigurationsToAddModList\":[" + slot(0) + "," + slot(1) +
                "],\"slotSpecificConfigurationsToreleaseList\":[0]}");
    EXPECT_EQ(printed(), "");
}

TEST_F(tddDedicated, ListsAtTheirLimits)
{
    for (const unsigned count : {0U, 1U, 320U})
    {
        const std::string toAdd = count == 0 ? "" : "\"slotSpecificConfigurationsToAddModList\":" + array(count, slot);
        const std::string toRelease =
            count == 0 ? "" : "\"slotSpecificConfigurationsToreleaseList\":" + numbers(count, 0);
        compose(static_cast<UINT16>(count), 0);
        expectDecoded("TDD-UL-DL-ConfigDedicated", asn1PE_TDD_UL_DL_ConfigDedicated, *element, "{}");
        expectLists(object({toAdd}));
        compose(0, static_cast<UINT16>(count));
        expectDecoded("TDD-UL-DL-ConfigDedicated", asn1PE_TDD_UL_DL_ConfigDedicated, *element, "{}");
        expectLists(object({toRelease}));
        compose(static_cast<UINT16>(count), static_cast<UINT16>(count));
        expectLists(object({toAdd, toRelease}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(tddDedicated, CountsPastTheArraysGoOnAndOnlyTheirPresenceBitWouldBeRefused)
{
    for (const unsigned count : {321U, 65535U})
    {
        compose(static_cast<UINT16>(count), static_cast<UINT16>(count));
        EXPECT_EQ(element->slotSpecificConfigurationsToAddModList.count, count);
        EXPECT_EQ(element->slotSpecificConfigurationsToreleaseList.n, count);
        expectDecoded("TDD-UL-DL-ConfigDedicated", asn1PE_TDD_UL_DL_ConfigDedicated, *element, "{}");
        element->m.slotSpecificConfigurationsToreleaseListPresent = 1;
        EXPECT_EQ(encode(asn1PE_TDD_UL_DL_ConfigDedicated, *element),
                  "TDD-UL-DL-ConfigDedicated.slotSpecificConfigurationsToreleaseList: " + std::to_string(count) +
                      " elements, not 1..320");
        element->m.slotSpecificConfigurationsToAddModListPresent = 1;
        EXPECT_EQ(encode(asn1PE_TDD_UL_DL_ConfigDedicated, *element),
                  "TDD-UL-DL-ConfigDedicated.slotSpecificConfigurationsToAddModList: " + std::to_string(count) +
                      " elements, not 1..320");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(tddDedicated, HeapExhaustedAtEachRequest)
{
    compose(3, 1);
    // A node and its explicit symbols, which are not checked, per slot.
    for (unsigned successes = 0; successes <= 6; ++successes)
    {
        *element = {};
        INT32 result = VOS_OK;
        bool struck = false;
        {
            const HeapFault fault(successes);
            result = rrcComposeTDD_UL_DL_ConfigDedicated(&context, element.get(), cfg.get());
            struck = HeapFault::struck();
        }
        const bool noThirdNode = successes <= 4;
        EXPECT_EQ(struck, successes < 6);
        EXPECT_EQ(result, noThirdNode ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), noThirdNode ? std::string(noNode) + addError : "");
        EXPECT_EQ(element->slotSpecificConfigurationsToAddModList.count, (successes + 1) / 2);
        EXPECT_EQ(element->slotSpecificConfigurationsToreleaseList.n, noThirdNode ? 0U : 1U);
    }
}

TEST_F(tddDedicated, SlotWithoutExplicitSymbolsIsLeftToTheEncoder)
{
    compose(2, 0);
    cfg->slotCfgDedicated[1].presence = RRC_SLOTCFG_SYM_ALLDL_PRESENCE;
    *element = {};
    EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, element.get(), cfg.get()), VOS_OK);
    element->m.slotSpecificConfigurationsToAddModListPresent = 1;
    EXPECT_EQ(encode(asn1PE_TDD_UL_DL_ConfigDedicated, *element),
              "TDD-UL-DL-ConfigDedicated.slotSpecificConfigurationsToAddModList[1].symbols: tag 0 is not in 1..3");
}

TEST_F(tddDedicated, NullGuards)
{
    EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTDD_UL_DL_ConfigDedicated", "pTdd_UL_DL_ConfigurationDedicated"));
    EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, nullptr, cfg.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTDD_UL_DL_ConfigDedicated", "pTdd_UL_DL_ConfigurationDedicated"));
    EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, element.get(), nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTDD_UL_DL_ConfigDedicated", "pRrcTddUlDlCfgDed"));
}

TEST_F(tddDedicated, RecordOrder)
{
    using R = RrcTddUlDlCfgDedi_t;
    EXPECT_TRUE(rising({offsetof(R, numSlotsAddMod), offsetof(R, slotCfgDedicated), offsetof(R, numSlotsRelease),
                        offsetof(R, slotIdx)}));
    EXPECT_EQ(sizeof R::slotCfgDedicated / sizeof *R::slotCfgDedicated, 320U);
    EXPECT_EQ(sizeof R::slotIdx, 640U);
}
