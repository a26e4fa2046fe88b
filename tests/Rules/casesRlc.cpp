#include "ruleCases.h"

namespace test
{
namespace
{

void withoutDuplication(RrcRuleContext& known)
{
    static const RrcRuleBearers bearers = {1U << 1, 3, 0, 0};
    known.bearers = &bearers;
}

void withDuplication(RrcRuleContext& known)
{
    static const RrcRuleBearers bearers = {1U << 1, 3, 1, 0};
    known.bearers = &bearers;
}

void inFullConfig(RrcRuleContext& known)
{
    known = {};
    known.fullConfig = 1;
}

Known in(RrcRuleMessage message)
{
    return [message](RrcRuleContext& known)
    {
        known.extent = RRC_RULE_EXTENT_DELTA;
        known.message = static_cast<OSUINT8>(message);
    };
}

#define UM_DRB AT_DRB "rlc-Config = absent\n" AT_DRB "rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = "

// Gives the third channel an uplink.
#define UM_BOTH                                                                                                        \
    "\nrlc-BearerToAddModList[2].rlc-Config = absent\n"                                                                \
    "rlc-BearerToAddModList[2].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = size6\n"                    \
    "rlc-BearerToAddModList[2].mac-LogicalChannelConfig = absent\n" UPLINK("2") "priority = 8\n" UPLINK(               \
        "2") "prioritisedBitRate = infinity\n" UPLINK("2") "bucketSizeDuration = ms100\n" UPLINK("2") "logicalChannel" \
                                                                                                      "SR-Mask = "     \
                                                                                                      "false"          \
                                                                                                      "\n" UPLINK(     \
                                                                                                          "2") "logic" \
                                                                                                               "alCha" \
                                                                                                               "nnelS" \
                                                                                                               "R-"    \
                                                                                                               "Delay" \
                                                                                                               "Timer" \
                                                                                                               "Appli" \
                                                                                                               "ed = " \
                                                                                                               "false" \
                                                                                                               "\n"

// A modification of DRB 1's channel.
#define CHANNEL4 "rlc-BearerToAddModList[0].logicalChannelIdentity = 4\n"

#define UPLINK(channel) "rlc-BearerToAddModList[" channel "].mac-LogicalChannelConfig.ul-SpecificParameters."

// DRB 1's channel as it is added, with an uplink alone.
constexpr char newChannel4[] = R"(
    rlc-BearerToAddModList[0].logicalChannelIdentity = 4
    rlc-BearerToAddModList[0].servedRadioBearer.drb-Identity = 1
    rlc-BearerToAddModList[0].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = size6
    rlc-BearerToAddModList[0].mac-LogicalChannelConfig.ul-SpecificParameters.priority = 8
    rlc-BearerToAddModList[0].mac-LogicalChannelConfig.ul-SpecificParameters.prioritisedBitRate = infinity
    rlc-BearerToAddModList[0].mac-LogicalChannelConfig.ul-SpecificParameters.bucketSizeDuration = ms100
    rlc-BearerToAddModList[0].mac-LogicalChannelConfig.ul-SpecificParameters.logicalChannelSR-Mask = false
    rlc-BearerToAddModList[0].mac-LogicalChannelConfig.ul-SpecificParameters.logicalChannelSR-DelayTimerApplied = false
)";

} // namespace

void rlcCases(CaseTable& table)
{
    table.rule("rlc-new-incomplete")
        .bad(AT_DRB "servedRadioBearer")
        .saying("absent, but a new logical channel names")
        .good()
        .fires(AT_DRB "rlc-Config", AT_DRB "rlc-Config = absent")
        .fires(AT_DRB "mac-LogicalChannelConfig", AT_DRB "mac-LogicalChannelConfig = absent")
        // An SRB has defaults.
        .silent(AT_SRB "rlc-Config = absent\n" AT_SRB "mac-LogicalChannelConfig = absent")
        // That a full configuration gives back.
        .silent(AT_SRB "servedRadioBearer = absent")
        .with(inFullConfig)
        .fires(AT_SRB "servedRadioBearer", AT_SRB "servedRadioBearer = absent")
        .fires(AT_DRB "servedRadioBearer", AT_DRB "servedRadioBearer = absent")
        .with(inFullConfig)
        .undecided(AT_DRB "rlc-Config = absent")
        .with(inDelta)
        .silent(CHANNEL4)
        .after("")
        .fires("rlc-BearerToAddModList[0].servedRadioBearer", CHANNEL4 "rlc-BearerToReleaseList[0] = 4")
        .after("");

    table.rule("rlc-rebind")
        .bad("rlc-BearerToAddModList[0].servedRadioBearer")
        .after("")
        .good()
        .after("")
        .fires("rlc-BearerToAddModList[0].servedRadioBearer",
               CHANNEL4 "rlc-BearerToAddModList[0].servedRadioBearer.drb-Identity = 1")
        .after("")
        .silent(std::string(newChannel4) + "rlc-BearerToReleaseList[0] = 4")
        .after("")
        .undecided("")
        .with(inDelta);

    table.rule("rlc-srb-am-sn12")
        .bad(AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength")
        .saying("size18, but SRB1 has size12 in both directions")
        .good()
        .fires(AT_SRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength",
               AT_SRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength = size18")
        .fires(AT_SRB "rlc-Config", AT_SRB "rlc-Config = absent\n" AT_SRB
                                           "rlc-Config.um-Bi-Directional.ul-UM-RLC.sn-FieldLength = size12\n" AT_SRB
                                           "rlc-Config.um-Bi-Directional.dl-UM-RLC.sn-FieldLength = size12\n" AT_SRB
                                           "rlc-Config.um-Bi-Directional.dl-UM-RLC.t-Reassembly = ms35")
        .silent(AT_DRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18")
        .undecided(AT_SRB "servedRadioBearer = absent\n" AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18")
        .with(inDelta);

    table.rule("rlc-lcid-range")
        .bad(AT_DRB "logicalChannelIdentity")
        .saying("3, but DRB 1 is on a logical channel from 4 on")
        .good()
        .fires(AT_SRB "logicalChannelIdentity", AT_SRB "logicalChannelIdentity = 2")
        .saying("2, but SRB1 is on logical channel 1")
        .silent(AT_DRB "logicalChannelIdentity = 32");

    table.rule("rlc-sn-missing")
        .bad(AT_DRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength")
        .good()
        .fires(AT_DRB "rlc-Config.um-Bi-Directional.ul-UM-RLC.sn-FieldLength",
               AT_DRB "rlc-Config = absent\n" AT_DRB "rlc-Config.um-Bi-Directional.ul-UM-RLC = {}\n" AT_DRB
                      "rlc-Config.um-Bi-Directional.dl-UM-RLC.sn-FieldLength = size6\n" AT_DRB
                      "rlc-Config.um-Bi-Directional.dl-UM-RLC.t-Reassembly = ms35")
        .undecided(AT_DRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength = absent")
        .with(inDelta)
        .silent(AT_SRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength = absent")
        .with(inFullConfig)
        .fires("rlc-BearerToAddModList[0].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength",
               CHANNEL4 "rlc-BearerToAddModList[0].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = size6")
        .after(AT_DRB "rlc-Config = absent\n" AT_DRB
                      "rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = size6")
        .silent(CHANNEL4 "rlc-BearerToAddModList[0].reestablishRLC = true\n"
                         "rlc-BearerToAddModList[0].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = size6")
        .after(AT_DRB "rlc-Config = absent\n" AT_DRB
                      "rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = size6");

    table.rule("rlc-no-live-change")
        .bad("rlc-BearerToAddModList[0].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength")
        .after(UM_DRB "size6")
        .saying("size12, but it was another")
        .good()
        .after(UM_DRB "size6")
        .silent(table.rule("rlc-no-live-change").example(&RrcRule::bad) +
                "\n" AT_SYNC "newUE-Identity = 17921\n" AT_SYNC "t304 = ms1000")
        .after(UM_DRB "size6")
        .with([](RrcRuleContext& known) { known.message = RRC_RULE_MESSAGE_SYNC; })
        .fires("rlc-BearerToAddModList[0].rlc-Config", table.rule("rlc-no-live-change").example(&RrcRule::bad))
        .after("")
        .undecided("")
        .with(inDelta);

    table.rule("rlc-ul-params")
        .bad(AT_DRB "mac-LogicalChannelConfig.ul-SpecificParameters")
        .good()
        .fires("rlc-BearerToAddModList[1].mac-LogicalChannelConfig.ul-SpecificParameters",
               AT_DRB "rlc-Config = absent\n" AT_DRB
                      "rlc-Config.um-Uni-Directional-DL.dl-UM-RLC.sn-FieldLength = size12\n" AT_DRB
                      "rlc-Config.um-Uni-Directional-DL.dl-UM-RLC.t-Reassembly = ms35")
        .saying("present, but the bearer has no uplink")
        .silent(AT_SRB "mac-LogicalChannelConfig = absent\n" AT_SRB "mac-LogicalChannelConfig = {}")
        .undecided(AT_DRB "mac-LogicalChannelConfig = absent\n" AT_DRB "mac-LogicalChannelConfig = {}")
        .with(inDelta);

    Cases twice = table.rule("rlc-bearer-twice");
    const std::string both = twice.example(&RrcRule::bad);
    twice.bad("rlc-BearerToAddModList[2].servedRadioBearer")
        .with(withoutDuplication)
        .saying("DRB 1, but logical channel 4 serves it, too")
        .good()
        .with(withoutDuplication)
        .fires("rlc-BearerToAddModList[2].servedRadioBearer", both)
        .with(withDuplication)
        .as(RRC_RULE_WARNING)
        .fires("rlc-BearerToAddModList[2].servedRadioBearer",
               both + UM_BOTH UPLINK("1") "allowedServingCells[0] = 0\n" UPLINK("2") "allowedServingCells[0] = 0")
        .with(withDuplication)
        .as(RRC_RULE_WARNING)
        .undecided(ADD_SCELL_WITH_UPLINK + both +
                   UM_BOTH UPLINK("1") "allowedServingCells[0] = 0\n" UPLINK("2") "allowedServingCells[0] = 1")
        .silent(ADD_SCELL_WITH_UPLINK + both +
                UM_BOTH UPLINK("1") "allowedServingCells[0] = 0\n" UPLINK("2") "allowedServingCells[0] = 1")
        .with(withDuplication);

    table.rule("rlc-release-srb")
        .bad("rlc-BearerToReleaseList[0]")
        .with(inDelta)
        .good()
        .with(inDelta)
        // A split SRB1 leaves the secondary cell group.
        .silent(AS_SCG "rlc-BearerToReleaseList[0] = 1\nrlc-BearerToAddModList[0] = absent")
        .with(inDelta)
        .undecided("rlc-BearerToReleaseList[0] = 7")
        .with(inDelta)
        .fires("rlc-BearerToReleaseList[0]", "rlc-BearerToReleaseList[0] = 4")
        .after("")
        .with(withoutDuplication)
        .saying("4, but DRB 1 stays configured")
        .silent("rlc-BearerToReleaseList[0] = 4")
        .after("")
        .with(
            [](RrcRuleContext& known)
            {
                static const RrcRuleBearers bearers = {1U << 1, 0, 0, 0};
                known.bearers = &bearers;
            });

    table.rule("rlc-reestablish-new")
        .bad(AT_DRB "reestablishRLC")
        .good()
        .undecided(AT_DRB "reestablishRLC = true")
        .with(inDelta)
        .fires(AT_SRB "reestablishRLC",
               AT_SYNC_ABSENT "\n" AT_SRB "reestablishRLC = true\n" AT_DRB "reestablishRLC = true")
        .with(in(RRC_RULE_MESSAGE_REESTABLISHMENT))
        .saying("true, but SRB1")
        .fires(AT_DRB "reestablishRLC", AT_SYNC_ABSENT)
        .with(in(RRC_RULE_MESSAGE_RESUME))
        .saying("absent, but DRB 1 goes on only with its RLC re-established")
        .undecided(AT_SYNC_ABSENT "\n" AT_DRB "reestablishRLC = true")
        .with(in(RRC_RULE_MESSAGE_RESUME));
}

} // namespace test
