// What is known besides a message, from words.
#include "rrcSettings.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

extern "C" unsigned bandInC(void);

namespace
{

using ::testing::StartsWith;

struct Free
{
    void operator()(RrcSettings* settings) const
    {
        rrcSettingsFree(settings);
    }
};

class Settings
{
public:
    // The line that refuses it; empty: it is set.
    std::string set(const char* name, std::string_view value = "", const char* origin = nullptr)
    {
        std::array<char, 1024> error{};
        const int status =
            rrcSettingsSet(settings_.get(), name, value.data(), value.size(), origin, error.data(), error.size());
        EXPECT_EQ(status == 0, error[0] == '\0');
        return error.data();
    }

    // The line that refuses all of them; empty: they fit.
    std::string misfit()
    {
        std::array<char, 1024> error{};
        const RrcRuleContext* const known = rrcSettingsContext(settings_.get(), error.data(), error.size());
        EXPECT_EQ(known != nullptr, error[0] == '\0');
        return error.data();
    }

    const RrcRuleContext& known()
    {
        return *rrcSettingsContext(settings_.get(), nullptr, 0);
    }

    RrcSettings* get()
    {
        return settings_.get();
    }

private:
    std::unique_ptr<RrcSettings, Free> settings_{rrcSettingsNew()};
};

// Of one setting by itself.
std::string refusal(const char* name, std::string_view value)
{
    return Settings().set(name, value);
}

TEST(Settings, nothing_is_known_without_one)
{
    Settings settings;
    const RrcRuleContext& known = settings.known();
    EXPECT_EQ(known.extent, RRC_RULE_EXTENT_UNKNOWN);
    EXPECT_EQ(known.band, 0);
    EXPECT_EQ(known.numCarriersDl, 0);
    EXPECT_EQ(known.initialDownlinkBwp, nullptr);
    EXPECT_EQ(known.ssbPositionsInBurst, nullptr);
    EXPECT_EQ(known.tdd, nullptr);
    EXPECT_EQ(known.rachCommon, nullptr);
    EXPECT_EQ(known.bearers, nullptr);
    EXPECT_EQ(known.hasMeas, 0);
    EXPECT_EQ(known.capabilities, nullptr);
}

TEST(Settings, the_list_names_each_once_and_finds_it)
{
    std::set<std::string> names;
    for (OSUINT32 i = 0; i < rrcSettingCount(); ++i)
    {
        const RrcSetting* const setting = rrcSettingAt(i);
        EXPECT_TRUE(names.insert(setting->name).second) << setting->name;
        EXPECT_EQ(rrcSettingByName(setting->name), setting);
        EXPECT_NE(std::string_view(setting->group), "") << setting->name;
        EXPECT_NE(std::string_view(setting->description), "") << setting->name;
    }
    EXPECT_EQ(rrcSettingAt(rrcSettingCount()), nullptr);
    EXPECT_EQ(rrcSettingByName("bend"), nullptr);
    EXPECT_EQ(rrcSettingByName(nullptr), nullptr);
}

TEST(Settings, words_become_the_context)
{
    Settings settings;
    for (const auto& [name, value] : std::vector<std::pair<const char*, const char*>>{{"full", ""},
                                                                                      {"message", "sync"},
                                                                                      {"full-config", ""},
                                                                                      {"scg", ""},
                                                                                      {"band", "N78"},
                                                                                      {"fr", "1"},
                                                                                      {"tdd", ""},
                                                                                      {"nrdc", ""},
                                                                                      {"typeA-position", "3"},
                                                                                      {"coreset0", "15"}})
    {
        EXPECT_EQ(settings.set(name, value), "") << name;
    }
    const RrcRuleContext& known = settings.known();
    EXPECT_EQ(known.extent, RRC_RULE_EXTENT_FULL);
    EXPECT_EQ(known.message, RRC_RULE_MESSAGE_SYNC);
    EXPECT_EQ(known.fullConfig, 1);
    EXPECT_EQ(known.group, RRC_RULE_GROUP_SCG);
    EXPECT_EQ(known.band, 78);
    EXPECT_EQ(known.range, RRC_RULE_RANGE_FR1);
    EXPECT_EQ(known.duplex, RRC_RULE_DUPLEX_TDD);
    EXPECT_EQ(known.connectivity, RRC_RULE_CONNECTIVITY_NRDC);
    ASSERT_NE(known.typeAPosition, nullptr);
    EXPECT_EQ(*known.typeAPosition, ServingCellConfigCommon_dmrs_TypeA_Position_pos3);
    ASSERT_NE(known.coreset0, nullptr);
    EXPECT_EQ(*known.coreset0, 15);
    EXPECT_EQ(bandInC(), 78U);
}

TEST(Settings, carriers_serve_both_directions_until_the_uplink_has_its_own)
{
    Settings settings;
    EXPECT_EQ(settings.set("carrier", "30:0:273"), "");
    EXPECT_EQ(settings.set("carrier", "15:12:270"), "");
    ASSERT_EQ(settings.known().numCarriersUl, 2);
    EXPECT_EQ(settings.known().carriersUl[0].carrierBandwidth, 273);
    EXPECT_EQ(settings.known().carriersUl[1].offsetToCarrier, 12);
    EXPECT_EQ(settings.set("carrier-ul", "30:0:106"), "");
    EXPECT_EQ(settings.known().numCarriersDl, 2);
    ASSERT_EQ(settings.known().numCarriersUl, 1);
    EXPECT_EQ(settings.known().carriersUl[0].carrierBandwidth, 106);
    EXPECT_EQ(settings.known().carriersUl[0].subcarrierSpacing, SubcarrierSpacing_kHz30);
    EXPECT_EQ(settings.set("carrier", "30:1:24"), "carrier: a second carrier with the subcarrier spacing of '30:1:24'");
}

TEST(Settings, bandwidth_parts_bitmaps_and_patterns_are_read)
{
    Settings settings;
    EXPECT_EQ(settings.set("bwp0-dl", "1099:30"), "");
    EXPECT_EQ(settings.set("bwp0-ul", "37949:120"), "");
    EXPECT_EQ(settings.set("ssb-bitmap", "0xA1"), "");
    EXPECT_EQ(settings.set("tdd-pattern", "30:ms3:3:6:2:4+ms2:1:0:2:0"), "");
    const RrcRuleContext& known = settings.known();
    EXPECT_EQ(known.initialDownlinkBwp->locationAndBandwidth, 1099);
    EXPECT_EQ(known.initialUplinkBwp->subcarrierSpacing, SubcarrierSpacing_kHz120);
    EXPECT_EQ(known.ssbPositionsBits, 8);
    EXPECT_EQ(known.ssbPositionsInBurst[0], 0xA1);
    ASSERT_NE(known.tdd, nullptr);
    EXPECT_EQ(known.tdd->referenceSubcarrierSpacing, SubcarrierSpacing_kHz30);
    EXPECT_EQ(known.tdd->pattern1.m.dl_UL_TransmissionPeriodicity_v1530Present, 1U);
    EXPECT_EQ(known.tdd->pattern1.dl_UL_TransmissionPeriodicity_v1530,
              TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_v1530_ms3);
    EXPECT_EQ(known.tdd->pattern1.nrofDownlinkSymbols, 6);
    ASSERT_EQ(known.tdd->m.pattern2Present, 1U);
    EXPECT_EQ(known.tdd->pattern2.dl_UL_TransmissionPeriodicity, TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_ms2);
}

TEST(Settings, lists_are_read_item_by_item)
{
    Settings settings;
    EXPECT_EQ(settings.set("bearers", "srb1,drb1,drb32:dup"), "");
    EXPECT_EQ(settings.set("bearers", "srb2"), "");
    EXPECT_EQ(settings.set("other-cells", "3,31"), "");
    EXPECT_EQ(settings.set("meas-object", "1:633312:30:csirs=0,9"), "");
    const RrcRuleContext& known = settings.known();
    EXPECT_EQ(known.bearers->srbs, 6U);
    EXPECT_EQ(known.bearers->drbs, 0x80000001U);
    EXPECT_EQ(known.bearers->duplicated, 0x80000000U);
    EXPECT_EQ(*known.otherGroupCells, 0x80000008U);
    ASSERT_EQ(known.numMeasObjects, 1);
    EXPECT_EQ(known.measObjects[0].ssbFrequency, 633312U);
    EXPECT_EQ(known.measObjects[0].csiRsResources[0], 1);
    EXPECT_EQ(known.measObjects[0].csiRsResources[1], 2);

    Settings none;
    EXPECT_EQ(none.set("bearers", "none"), "");
    EXPECT_EQ(none.set("meas-object", "none"), "");
    EXPECT_EQ(none.known().bearers->drbs, 0U);
    EXPECT_EQ(none.known().hasMeas, 1);
    EXPECT_EQ(none.known().numMeasObjects, 0);
}

constexpr std::string_view rach =
    R"({"rach-ConfigGeneric":{"prach-ConfigurationIndex":160,"msg1-FDM":"one","msg1-FrequencyStart":0,)"
    R"("zeroCorrelationZoneConfig":12,"preambleReceivedTargetPower":-104,"preambleTransMax":"n10",)"
    R"("powerRampingStep":"dB4","ra-ResponseWindow":"sl20"},"ra-ContentionResolutionTimer":"sf64",)"
    R"("prach-RootSequenceIndex":{"l139":1},"restrictedSetConfig":"unrestrictedSet"})";

TEST(Settings, texts_are_read)
{
    Settings settings;
    EXPECT_EQ(settings.set("rach", rach), "");
    EXPECT_EQ(settings.set("capability",
                           R"({"sr-PeriodsSl5Sl10":"supported","supportedSRS-TxPortSwitch":["t1r2","t1r4-t2r4"]})"),
              "");
    const RrcRuleContext& known = settings.known();
    ASSERT_NE(known.rachCommon, nullptr);
    EXPECT_EQ(known.rachCommon->rach_ConfigGeneric.prach_ConfigurationIndex, 160);
    EXPECT_EQ(known.capabilities->features, static_cast<OSUINT32>(RRC_RULE_FEATURE_SR_PERIODS) |
                                                RRC_RULE_FEATURE_SRS_SWITCH_1T2R | RRC_RULE_FEATURE_SRS_SWITCH_1T4R |
                                                RRC_RULE_FEATURE_SRS_SWITCH_2T4R);
}

TEST(Settings, a_refusal_says_what_would_be_right)
{
    EXPECT_EQ(refusal("bend", "n78"), "there is no 'bend'; did you mean band?");
    EXPECT_EQ(refusal("band", "x"), "band: 'x' is no band, such as n78");
    EXPECT_THAT(refusal("band", "n999"), StartsWith("band: Release 15 has no band n999"));
    EXPECT_EQ(refusal("message", "setpu"),
              "message: the kind 'setpu' is none of setup, reconfig, sync, resume, reestab; did you mean setup?");
    EXPECT_EQ(refusal("carrier", "30:0"), "carrier: '30:0' is not SCS:offset:width, such as 30:0:273");
    EXPECT_EQ(refusal("carrier", "30:2200:1"), "carrier: the offset '2200' is not in 0..2199");
    EXPECT_EQ(refusal("bwp0-dl", "37950:30"), "bwp0-dl: locationAndBandwidth '37950' is not in 0..37949");
    EXPECT_EQ(refusal("coreset0", "-1"), "coreset0: the index '-1' is not in 0..15");
    EXPECT_THAT(refusal("ssb-bitmap", "101"), StartsWith("ssb-bitmap: '101' is no bitmap of 4, 8 or 64 bits"));
    EXPECT_THAT(refusal("tdd-pattern", "30:ms0p625:1:0:1:0"), StartsWith("tdd-pattern: the period 'ms0p625'"));
    EXPECT_EQ(refusal("other-cells", "32"), "other-cells: the ServCellIndex '32' is not in 0..31");
    EXPECT_THAT(refusal("bearers", "drb33"), StartsWith("bearers: 'drb33' is none of"));
    EXPECT_THAT(refusal("capability", "[]"), StartsWith("capability: an object"));
    EXPECT_THAT(refusal("capability", R"({"sr-PeriodSl5Sl10":"supported"})"),
                testing::EndsWith("; did you mean sr-PeriodsSl5Sl10?"));
    EXPECT_THAT(refusal("capability", "[{}]"), StartsWith("capability: an object"));
    for (const char* const value : {"1", "null", "{\"supported\":1}", "[[\"supported\"]]", "[\"supported\",{}]"})
    {
        const std::string text = std::string("{\"sr-PeriodsSl5Sl10\":") + value + "}";
        EXPECT_EQ(refusal("capability", text), "capability: sr-PeriodsSl5Sl10 is none of supported, notSupported")
            << text;
    }
    EXPECT_EQ(refusal("capability", R"({"sr-PeriodsSl5Sl10":1,"sr-PeriodsSl5Sl10":["supported",]})").substr(0, 22),
              "capability: parse erro");
    EXPECT_THAT(refusal("capability", "{"), StartsWith("capability: parse error at line 1, column 2"));
    EXPECT_EQ(refusal("capability", std::string_view("{}\0{}", 5)), "capability: a zero octet is no JSON");
    EXPECT_EQ(refusal("rach", "\n{}"),
              "rach: 2:1: RACH-ConfigCommon: mandatory member \"rach-ConfigGeneric\" is missing");
}

TEST(Settings, those_that_exclude_each_other_are_refused)
{
    Settings settings;
    EXPECT_EQ(settings.set("full"), "");
    EXPECT_EQ(settings.set("delta", "", "--delta"), "--delta: it excludes full");
    EXPECT_EQ(settings.set("band", "n78"), "");
    EXPECT_EQ(settings.set("band", "n77"), "band: it is said twice");
}

TEST(Settings, a_delta_may_have_its_previous_which_may_be_several)
{
    Settings settings;
    EXPECT_EQ(settings.set("previous", "any"), "");
    EXPECT_EQ(settings.set("previous"), "");
    EXPECT_EQ(settings.set("delta"), "");
    EXPECT_EQ(settings.known().previous, nullptr);
    EXPECT_EQ(settings.set("full"), "full: it excludes previous");
}

TEST(Settings, without_a_value_only_the_agreement_is_looked_at)
{
    Settings settings;
    EXPECT_EQ(rrcSettingsSet(settings.get(), "band", nullptr, 0, nullptr, nullptr, 0), 0);
    EXPECT_EQ(settings.known().band, 0);
    EXPECT_EQ(settings.set("band", "n78"), "band: it is said twice");
}

TEST(Settings, a_band_has_one_range_and_one_duplex_mode)
{
    for (const auto& [name, value] : std::vector<std::pair<const char*, const char*>>{{"fr", "2"}, {"fdd", ""}})
    {
        Settings settings;
        EXPECT_EQ(settings.set("band", "78"), "");
        EXPECT_EQ(settings.set(name, value, "here"), "");
        EXPECT_EQ(settings.misfit(), "here: band n78 is of FR1 and of TDD");
    }
}

TEST(Settings, a_refusal_is_one_line_whatever_the_value_holds)
{
    const std::string refused = Settings().set("band", "n\n8\t2\x7f");
    EXPECT_THAT(refused, ::testing::HasSubstr("n 8 2"));
    EXPECT_TRUE(std::none_of(refused.begin(), refused.end(), [](unsigned char c) { return c < ' ' || c == 0x7f; }));
}

TEST(Settings, what_is_missing_is_no_crash)
{
    EXPECT_EQ(rrcSettingsSet(nullptr, "band", "n78", 3, nullptr, nullptr, 0), -1);
    EXPECT_EQ(rrcSettingsSet(Settings().get(), nullptr, "n78", 3, nullptr, nullptr, 0), -1);
    EXPECT_EQ(rrcSettingsContext(nullptr, nullptr, 0), nullptr);
    rrcSettingsFree(nullptr);
    std::array<char, 8> error{};
    EXPECT_EQ(rrcSettingsSet(Settings().get(), "band", "x", 1, nullptr, error.data(), error.size()), -1);
    EXPECT_STREQ(error.data(), "band: '");
}

} // namespace
