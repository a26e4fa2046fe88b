// RLC bearers.
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

// The bearer's name in a message for people: "SRB1", "DRB 4".
struct BearerName
{
    explicit BearerName(const Channel& channel)
    {
        (void)std::snprintf(text, sizeof text, *channel.isSrb ? "SRB%u" : "DRB %u", channel.bearerId);
    }

    char text[16];
};

// The places of the sequence number's length of both directions, those that the branch of the RLC has.
struct SnPlaces
{
    const SN_FieldLengthAM* am[2] = {};
    const SN_FieldLengthUM* um[2] = {};
    bool isPresent[2] = {};
};

SnPlaces snPlaces(const Tree& tree, const RLC_Config& rlc)
{
    SnPlaces places;
    const auto put = [&](auto* to, OSUINT32 index, const auto& direction)
    {
        to[index] = &direction.sn_FieldLength;
        places.isPresent[index] = direction.m.sn_FieldLengthPresent != 0;
    };
    if (const RLC_Config_am* const am = CHOSEN(tree, &rlc, RLC_Config, am))
    {
        put(places.am, 0, am->ul_AM_RLC);
        put(places.am, 1, am->dl_AM_RLC);
    }
    if (const auto* const both = CHOSEN(tree, &rlc, RLC_Config, um_Bi_Directional))
    {
        put(places.um, 0, both->ul_UM_RLC);
        put(places.um, 1, both->dl_UM_RLC);
    }
    if (const auto* const up = CHOSEN(tree, &rlc, RLC_Config, um_Uni_Directional_UL))
    {
        put(places.um, 0, up->ul_UM_RLC);
    }
    if (const auto* const down = CHOSEN(tree, &rlc, RLC_Config, um_Uni_Directional_DL))
    {
        put(places.um, 1, down->dl_UM_RLC);
    }
    return places;
}

// A full configuration gives SRBs their defaults (5.3.5.11): what the message says of their channels modifies these.
bool hasDefaults(const Check& check, const Channel& channel)
{
    constexpr OSUINT32 lastOfSrbs = 3;
    return check.model.known.fullConfig != 0 && channel.id <= lastOfSrbs;
}

// A new logical channel says which bearer it serves, that of a DRB how.
void rlcNewIncomplete(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_BearerConfig& bearer = *channel.bearer;
        const bool hasAll = bearer.m.servedRadioBearerPresent != 0 && bearer.m.rlc_ConfigPresent != 0 &&
                            bearer.m.mac_LogicalChannelConfigPresent != 0;
        if (hasAll || hasDefaults(check, channel) || !check.isNew(channel.novelty))
        {
            continue;
        }
        if (bearer.m.servedRadioBearerPresent == 0)
        {
            check.error(&bearer.servedRadioBearer).allowed("a new logical channel names the bearer that it serves");
        }
        else if (channel.isSrb && !*channel.isSrb)
        {
            if (bearer.m.rlc_ConfigPresent == 0)
            {
                check.error(&bearer.rlc_Config).allowed("a new channel of a DRB has it");
            }
            if (bearer.m.mac_LogicalChannelConfigPresent == 0)
            {
                check.error(&bearer.mac_LogicalChannelConfig).allowed("a new channel of a DRB has it");
            }
        }
    }
}

// What an existing channel serves is not said again.
void rlcRebind(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_BearerConfig* const sent = check.model.sent(*channel.bearer);
        if (sent == nullptr || sent->m.servedRadioBearerPresent == 0 || check.isNew(channel.novelty) ||
            channel.novelty == Novelty::Unknown)
        {
            continue;
        }
        check.error(&channel.bearer->servedRadioBearer)
            .allowed("logical channel %u exists and serves a bearer", channel.id);
    }
}

// SRB1, 2 and 3 are on the logical channels 1, 2 and 3, DRBs on others.
void rlcLcidRange(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        if (!check.decided(channel.isSrb))
        {
            continue;
        }
        const bool isRight = *channel.isSrb ? channel.id == channel.bearerId : channel.id >= 4;
        if (!isRight)
        {
            Report told = check.warning(&channel.bearer->logicalChannelIdentity);
            *channel.isSrb ? told.allowed("SRB%u is on logical channel %u", channel.bearerId, channel.bearerId)
                           : told.allowed("DRB %u is on a logical channel from 4 on", channel.bearerId);
        }
    }
}

// The length of sequence numbers is said when the bearer is set up, and later only at a re-establishment.
void rlcSnMissing(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_Config* const rlc = MEMBER(*channel.bearer, rlc_Config);
        if (rlc == nullptr)
        {
            continue;
        }
        const RLC_BearerConfig* const sent = check.model.sent(*channel.bearer);
        const RLC_Config* const sentRlc = sent == nullptr ? nullptr : MEMBER(*sent, rlc_Config);
        const SnPlaces places = snPlaces(check.tree, *rlc);
        const SnPlaces sentPlaces = sentRlc == nullptr ? SnPlaces() : snPlaces(check.tree, *sentRlc);
        const auto look = [&](const auto* length, OSUINT32 direction)
        {
            if (length == nullptr)
            {
                return;
            }
            if (!places.isPresent[direction])
            {
                if (!hasDefaults(check, channel) && check.isNew(channel.novelty))
                {
                    check.error(length).allowed("a bearer that is set up has it");
                }
            }
            else if (channel.novelty == Novelty::Old && sentPlaces.isPresent[direction] &&
                     sent->m.reestablishRLCPresent == 0)
            {
                check.error(length).allowed("an existing bearer has it only together with reestablishRLC");
            }
        };
        for (const OSUINT32 direction : {0U, 1U})
        {
            look(places.am[direction], direction);
            look(places.um[direction], direction);
        }
    }
}

// The mode of an existing bearer does not change, its sequence numbers only at a handover.
void rlcNoLiveChange(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_BearerConfig* const before = check.model.before(*channel.bearer);
        const RLC_Config* const rlc = MEMBER(*channel.bearer, rlc_Config);
        const RLC_Config* const earlier = before == nullptr ? nullptr : MEMBER(*before, rlc_Config);
        if (rlc != nullptr && channel.novelty == Novelty::Unknown)
        {
            check.undecided(RRC_RULE_INPUT_PREVIOUS);
        }
        if (rlc == nullptr || earlier == nullptr || channel.novelty != Novelty::Old)
        {
            continue;
        }
        if (rlc->t != earlier->t)
        {
            check.error(rlc).allowed("the bearer is of another mode: release it and add it");
            continue;
        }
        if (check.model.messageKind() == RRC_RULE_MESSAGE_SYNC)
        {
            continue;
        }
        const SnPlaces now = snPlaces(check.tree, *rlc);
        const SnPlaces then = snPlaces(check.tree, *earlier);
        const auto look = [&](const auto* length, const auto* old, bool isPresent)
        {
            if (isPresent && length != nullptr && old != nullptr && *length != *old)
            {
                check.error(length).allowed("it was another: it changes with reconfigurationWithSync alone");
            }
        };
        for (const OSUINT32 direction : {0U, 1U})
        {
            const bool isPresent = now.isPresent[direction] && then.isPresent[direction];
            look(now.am[direction], then.am[direction], isPresent);
            look(now.um[direction], then.um[direction], isPresent);
        }
    }
}

// A new channel of a DRB with an uplink has uplink parameters, one without has none.
void rlcUlParams(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_Config* const rlc = MEMBER(*channel.bearer, rlc_Config);
        const LogicalChannelConfig* const mac = MEMBER(*channel.bearer, mac_LogicalChannelConfig);
        if (rlc == nullptr || mac == nullptr || !check.decided(channel.isSrb) || *channel.isSrb)
        {
            continue;
        }
        const bool hasUplink = rlc->t != T_RLC_Config_um_Uni_Directional_DL;
        if (hasUplink && channel.uplink == nullptr && check.isNew(channel.novelty))
        {
            check.error(&mac->ul_SpecificParameters).allowed("a new channel of a DRB with an uplink has it");
        }
        else if (!hasUplink && channel.uplink != nullptr)
        {
            check.error(&mac->ul_SpecificParameters).allowed("the bearer has no uplink");
        }
    }
}

const LogicalChannelConfig_ul_SpecificParameters_allowedServingCells* allowedCells(const Channel& channel)
{
    return channel.uplink == nullptr ? nullptr : MEMBER(*channel.uplink, allowedServingCells);
}

bool servesSame(const Channel& a, const Channel& b)
{
    return a.isSrb && b.isSrb && *a.isSrb == *b.isSrb && a.bearerId == b.bearerId;
}

bool isDuplicated(const RrcRuleBearers& bearers, const Channel& channel)
{
    const OSUINT32 bit = *channel.isSrb ? channel.bearerId : channel.bearerId - 1;
    const OSUINT32 all = *channel.isSrb ? bearers.duplicatedSrbs : bearers.duplicated;
    return bit < 32 && (all >> bit & 1) != 0;
}

// Two channels of one cell group serve the same bearer only as its duplicates, each on cells of its own.
void rlcBearerTwice(Check& check)
{
    const std::span<Channel> channels = check.model.channels();
    for (size_t i = 0; i < channels.size(); ++i)
    {
        const Channel& channel = channels[i];
        const auto earlier = std::find_if(channels.begin(), channels.begin() + static_cast<std::ptrdiff_t>(i),
                                          [&](const Channel& other) { return servesSame(other, channel); });
        if (earlier == channels.begin() + static_cast<std::ptrdiff_t>(i))
        {
            continue;
        }
        const BearerName name(channel);
        const RrcRuleBearers* const bearers = check.model.known.bearers;
        if (bearers == nullptr)
        {
            check.undecided(RRC_RULE_INPUT_BEARERS);
        }
        else if (!isDuplicated(*bearers, channel))
        {
            check.error(&channel.bearer->servedRadioBearer)
                .found("%s", name.text)
                .allowed("logical channel %u serves it, too, and the bearer has no duplication", earlier->id);
            continue;
        }
        const auto mine = entries(allowedCells(channel));
        const auto others = entries(allowedCells(*earlier));
        const bool isShared = std::find_first_of(mine.begin(), mine.end(), others.begin(), others.end()) != mine.end();
        if (mine.empty() || others.empty() || isShared)
        {
            check.warning(&channel.bearer->servedRadioBearer)
                .found("%s", name.text)
                .allowed("logical channel %u serves it, too: both need allowedServingCells without a cell in common",
                         earlier->id);
        }
    }
}

// SRB1 is not released, nor a channel of a bearer that stays.
void rlcReleaseSrb(Check& check)
{
    Model& model = check.model;
    for (const LogicalChannelIdentity& id : entries(MEMBER(model.message, rlc_BearerToReleaseList)))
    {
        if (model.bearers().find(id) != nullptr)
        {
            continue; // added again
        }
        if (id == 1 && !model.isScg())
        {
            check.warning(&id).allowed("SRB1 stays as long as the connection");
            continue;
        }
        if (model.previous == nullptr || model.known.bearers == nullptr)
        {
            check.undecided(model.previous == nullptr ? RRC_RULE_INPUT_PREVIOUS : RRC_RULE_INPUT_BEARERS);
            continue;
        }
        for (const RLC_BearerConfig& old :
             check.tree.list<RLC_BearerConfig>(MEMBER(*model.previous, rlc_BearerToAddModList)))
        {
            const auto* const served = MEMBER(old, servedRadioBearer);
            if (old.logicalChannelIdentity != id || served == nullptr)
            {
                continue;
            }
            const bool isSrb = served->t == T_RLC_BearerConfig_servedRadioBearer_srb_Identity;
            Channel gone{&old,   id, Novelty::Old, isSrb, isSrb ? served->u.srb_Identity : served->u.drb_Identity,
                         nullptr};
            const OSUINT32 bit = isSrb ? gone.bearerId : gone.bearerId - 1;
            const OSUINT32 configured = isSrb ? model.known.bearers->srbs : model.known.bearers->drbs;
            const std::span<Channel> channels = model.channels();
            const bool isReplaced = std::any_of(channels.begin(), channels.end(),
                                                [&](const Channel& channel) { return servesSame(channel, gone); });
            if (bit < 32 && (configured >> bit & 1) != 0 && !isReplaced)
            {
                check.warning(&id).allowed("%s stays configured and has no other channel", BearerName(gone).text);
            }
        }
    }
}

// A channel is re-established that existed; SRB2 and DRBs are when the connection comes back, SRB1 is not.
void rlcReestablishNew(Check& check)
{
    const OSUINT8 kind = check.model.messageKind();
    const bool isBack = (kind == RRC_RULE_MESSAGE_RESUME || kind == RRC_RULE_MESSAGE_REESTABLISHMENT) &&
                        check.model.known.fullConfig == 0;
    for (const Channel& channel : check.model.channels())
    {
        const RLC_BearerConfig& bearer = *channel.bearer;
        const RLC_BearerConfig* const sent = check.model.sent(bearer);
        const bool isSent = sent != nullptr && sent->m.reestablishRLCPresent != 0;
        if (isSent && check.isNew(channel.novelty))
        {
            check.warning(&bearer.reestablishRLC).allowed("the channel is new");
            continue;
        }
        if (!isBack || channel.novelty == Novelty::New)
        {
            continue;
        }
        const bool isSrb1 = channel.isSrb && *channel.isSrb && channel.bearerId == 1;
        if (isSrb1 && isSent)
        {
            check.warning(&bearer.reestablishRLC).allowed("SRB1 was re-established before this message");
        }
        else if (channel.isSrb && !isSrb1 && !isSent)
        {
            check.warning(&bearer.reestablishRLC)
                .found("absent")
                .allowed("%s goes on only with its RLC re-established", BearerName(channel).text);
        }
    }
}

bool isSize12(const SN_FieldLengthAM* length)
{
    return length == nullptr || *length == SN_FieldLengthAM_size12;
}

// An SRB has a sequence number of 12 bits, in acknowledged mode.
void rlcSrbAmSn12(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_Config* const rlc = MEMBER(*channel.bearer, rlc_Config);
        if (rlc == nullptr || !check.decided(channel.isSrb) || !*channel.isSrb)
        {
            continue;
        }
        const RLC_Config_am* const am = CHOSEN(check.tree, rlc, RLC_Config, am);
        if (am == nullptr)
        {
            check.error(rlc).allowed("SRB%u uses am", channel.bearerId);
            continue;
        }
        const SN_FieldLengthAM* const lengths[] = {MEMBER(am->ul_AM_RLC, sn_FieldLength),
                                                   MEMBER(am->dl_AM_RLC, sn_FieldLength)};
        for (const SN_FieldLengthAM* const length : lengths)
        {
            if (!isSize12(length))
            {
                check.error(length).allowed("SRB%u has size12 in both directions", channel.bearerId);
            }
        }
    }
}

// A modification of logical channel 4.
#define UM_CHANNEL_4                                                                                                   \
    "rlc-BearerToAddModList[0].logicalChannelIdentity = 4\n"                                                           \
    "rlc-BearerToAddModList[0].reestablishRLC = true\n"                                                                \
    "rlc-BearerToAddModList[0].rlc-Config.um-Uni-Directional-UL.ul-UM-RLC.sn-FieldLength = "

// A third channel, with all that one of a DRB has.
#define TWO_CHANNELS                                                                                                   \
    "rlc-BearerToAddModList[2].logicalChannelIdentity = 5\n"                                                           \
    "rlc-BearerToAddModList[2].rlc-Config.um-Uni-Directional-DL.dl-UM-RLC.sn-FieldLength = size12\n"                   \
    "rlc-BearerToAddModList[2].rlc-Config.um-Uni-Directional-DL.dl-UM-RLC.t-Reassembly = ms35\n"                       \
    "rlc-BearerToAddModList[2].mac-LogicalChannelConfig = {}\n"

constexpr Rule rlcTable[] = {
    {.told = {.id = "rlc-new-incomplete",
              .severity = RRC_RULE_ERROR,
              .statement = "A new logical channel has servedRadioBearer, that of a DRB also rlc-Config and "
                           "mac-LogicalChannelConfig.",
              .advice = "Add the member, or modify a channel that exists.",
              .clause = "TS 38.331 RLC-BearerConfig Cond LCH-Setup, LCH-SetupOnly",
              .given = "",
              .bad = AT_DRB "servedRadioBearer = absent",
              .good = AT_DRB "servedRadioBearer.drb-Identity = 1",
              .since = "0.1.0"},
     .run = rlcNewIncomplete},
    {.told = {.id = "rlc-rebind",
              .severity = RRC_RULE_ERROR,
              .statement = "servedRadioBearer is absent for a logical channel that exists.",
              .advice = "Leave servedRadioBearer out; release the channel and add it to have it serve "
                        "another bearer.",
              .clause = "TS 38.331 RLC-BearerConfig Cond LCH-SetupOnly, 5.3.5.5.4",
              .given = "Logical channel 4 was configured for DRB 1.",
              .bad = "rlc-BearerToAddModList[0].logicalChannelIdentity = "
                     "4\nrlc-BearerToAddModList[0].servedRadioBearer.drb-Identity = 2",
              .good = "rlc-BearerToAddModList[0].logicalChannelIdentity = 4",
              .since = "0.1.0"},
     .run = rlcRebind},
    {.told = {.id = "rlc-srb-am-sn12",
              .severity = RRC_RULE_ERROR,
              .statement = "A signalling radio bearer uses acknowledged mode with sequence numbers of 12 "
                           "bits in both directions.",
              .advice = "Give the bearer am and size12.",
              .clause = "TS 38.331 RLC-Config, 9.2.1",
              .given = "",
              .bad = AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18",
              .good = AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size12",
              .since = "0.1.0"},
     .run = rlcSrbAmSn12},
    {.told = {.id = "rlc-lcid-range",
              .severity = RRC_RULE_WARNING,
              .statement = "SRB1, SRB2 and SRB3 are on the logical channels 1, 2 and 3, DRBs on channels "
                           "from 4 on.",
              .advice = "Use the bearer's own logical channel.",
              .clause = "TS 38.331 9.2.1",
              .given = "",
              .bad = AT_DRB "logicalChannelIdentity = 3",
              .good = AT_DRB "logicalChannelIdentity = 4",
              .since = "0.1.0"},
     .run = rlcLcidRange},
    {.told = {.id = "rlc-sn-missing",
              .severity = RRC_RULE_ERROR,
              .statement = "sn-FieldLength is present when a bearer is set up, and later only together with "
                           "reestablishRLC.",
              .advice = "Say the length at setup; leave it out in a modification.",
              .clause = "TS 38.331 RLC-Config Cond Reestab",
              .given = "",
              .bad = AT_DRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength = absent",
              .good = AT_DRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength = size12",
              .since = "0.1.0"},
     .run = rlcSnMissing},
    {.told = {.id = "rlc-no-live-change",
              .severity = RRC_RULE_ERROR,
              .statement = "The mode of an existing bearer stays, and its sn-FieldLength changes only with "
                           "reconfigurationWithSync.",
              .advice = "Release the bearer and add it, or use a full configuration.",
              .clause = "TS 38.331 RLC-BearerConfig rlc-Config, RLC-Config sn-FieldLength",
              .given = "Logical channel 4 was configured with um-Uni-Directional-UL and size6.",
              .bad = UM_CHANNEL_4 "size12",
              .good = UM_CHANNEL_4 "size6",
              .since = "0.1.0"},
     .run = rlcNoLiveChange},
    {.told = {.id = "rlc-ul-params",
              .severity = RRC_RULE_ERROR,
              .statement = "ul-SpecificParameters is present for a new channel of a DRB with an uplink, and "
                           "absent for one without.",
              .advice = "Give the channel its priority and the rest.",
              .clause = "TS 38.331 LogicalChannelConfig Cond UL",
              .given = "",
              .bad = AT_DRB "mac-LogicalChannelConfig = absent\n" AT_DRB "mac-LogicalChannelConfig = {}",
              .good = AT_DRB "mac-LogicalChannelConfig.ul-SpecificParameters.priority = 8",
              .since = "0.1.0"},
     .run = rlcUlParams},
    {.told = {.id = "rlc-bearer-twice",
              .severity = RRC_RULE_ERROR,
              .statement = "Two channels of a cell group serve one bearer only with PDCP duplication, and "
                           "then on cells of their own.",
              .advice = "Drop one channel, or configure duplication and allowedServingCells.",
              .clause = "TS 38.331 RLC-BearerConfig, LogicalChannelConfig allowedServingCells",
              .given = "DRB 1 has no duplication.",
              .bad = TWO_CHANNELS "rlc-BearerToAddModList[2].servedRadioBearer.drb-Identity = 1",
              .good = TWO_CHANNELS "rlc-BearerToAddModList[2].servedRadioBearer.drb-Identity = 2",
              .since = "0.1.0"},
     .run = rlcBearerTwice},
    {.told = {.id = "rlc-release-srb",
              .severity = RRC_RULE_WARNING,
              .statement = "SRB1 is not released, nor the only channel of a bearer that stays configured.",
              .advice = "Release the bearer in radioBearerConfig, too, or add another channel.",
              .clause = "TS 38.331 5.3.5.5.3, 5.3.5.6",
              .given = "A delta of the master cell group.",
              .bad = "rlc-BearerToReleaseList[0] = 1\nrlc-BearerToAddModList[0] = absent",
              .good = "rlc-BearerToReleaseList[0] = 1",
              .since = "0.1.0"},
     .run = rlcReleaseSrb},
    {.told = {.id = "rlc-reestablish-new",
              .severity = RRC_RULE_WARNING,
              .statement =
                  "reestablishRLC is sent for channels that exist; at resume and after a re-establishment for SRB2 "
                  "and DRBs, not for SRB1.",
              .advice = "Leave it out for a new channel.",
              .clause = "TS 38.331 RLC-BearerConfig reestablishRLC",
              .given = "",
              .bad = AT_DRB "reestablishRLC = true",
              .good = AT_DRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18",
              .since = "0.1.0"},
     .run = rlcReestablishNew},
};

} // namespace

constinit const RuleGroup rlcRules = groupOf(rlcTable);

} // namespace rules
