// What the words of the schema say of a change, one by one, and what a UE without a configuration gets.
#include "cases.h"
#include "deltaTest.h"

#include <functional>

namespace
{

using namespace delta;

const Place& placeAt(const std::string& path)
{
    static const std::map<std::string, Place> places = []
    {
        std::map<std::string, Place> all;
        forEachMember([&](const Place& place) { all.emplace(place.text(), place); });
        return all;
    }();
    static const Place none;
    const auto found = places.find("CellGroupConfig." + path);
    EXPECT_NE(found, places.end()) << path;
    return found != places.end() ? found->second : none;
}

const std::string spCell = "spCellConfig.";
const std::string sync = spCell + "reconfigurationWithSync";
const std::string dedicated = spCell + "spCellConfigDedicated";
const std::string sCell = "sCellToAddModList[sCellIndex 2]";
const std::string bearer = "rlc-BearerToAddModList[logicalChannelIdentity 2]";

class Words : public DeltaTest
{
protected:
    // The member at a path, made with all that leads there.
    void* make(CellGroupConfig* tree, const std::string& path)
    {
        const Place& place = placeAt(path);
        Place beyond = place;
        beyond.steps.push_back({&place.type(), 0});
        return reach(heap, tree, beyond).parent;
    }

    CellGroupConfig* tree(const std::vector<std::string>& paths)
    {
        CellGroupConfig* const made = heap.tree();
        for (const std::string& path : paths)
        {
            (void)make(made, path);
        }
        return made;
    }

    CellGroupConfig* with(const CellGroupConfig* tree, const std::vector<std::string>& paths)
    {
        CellGroupConfig* const made = copy(heap, tree);
        for (const std::string& path : paths)
        {
            (void)make(made, path);
        }
        return made;
    }

    CellGroupConfig* without(const CellGroupConfig* tree, const std::string& path)
    {
        CellGroupConfig* const made = copy(heap, tree);
        const Place& place = placeAt(path);
        drop(place.parent(), reach(heap, made, place).parent, place.index());
        return made;
    }

    // With another number or enumerated value there.
    CellGroupConfig* numbered(const CellGroupConfig* tree, const std::string& path, int64_t number)
    {
        CellGroupConfig* const made = copy(heap, tree);
        setNumber(placeAt(path).type(), make(made, path), number);
        return made;
    }

    CellGroupConfig* chosen(const CellGroupConfig* tree, const std::string& path, const char* alternative)
    {
        CellGroupConfig* const made = copy(heap, tree);
        const Type& type = placeAt(path).type();
        const unsigned index = indexOf(type, alternative);
        void* const choice = make(made, path);
        fill(heap, *type.members[index].type, choose(heap, type, choice, index), 0, {.entry = true});
        return made;
    }

    bool has(const CellGroupConfig* tree, const std::string& path) const
    {
        return find(tree, placeAt(path)) != nullptr;
    }

    // `path` is empty or where it is refused.
    Result expectOutcome(const CellGroupConfig* prev, const CellGroupConfig* next, int outcome, unsigned flags = 0,
                         int reason = 0, const std::string& path = "")
    {
        const Result result = check(heap, "pair", prev, next, flags);
        EXPECT_EQ(result.status, outcome);
        EXPECT_EQ(result.status == RTX_E_DELTA && !result.items.empty() ? result.items.front().reason : 0, reason);
        if (reason != 0 && !result.items.empty())
        {
            EXPECT_EQ(result.items.front().path, "CellGroupConfig." + path);
        }
        return result;
    }

    static unsigned count(const Result& result, int kind, int reason)
    {
        return static_cast<unsigned>(std::count_if(result.items.begin(), result.items.end(),
                                                   [=](const Item& item)
                                                   { return item.kind == kind && item.reason == reason; }));
    }

    Heap heap;
};

TEST_F(Words, SyncIsSentWhenItIsAnother)
{
    const CellGroupConfig* const none = tree({spCell + "rlmInSyncOutOfSyncThreshold"});
    const CellGroupConfig* const one = with(none, {sync});
    const CellGroupConfig* const two = numbered(one, sync + ".newUE-Identity", 17);
    EXPECT_TRUE(has(expectOutcome(none, one, RTX_DELTA_TO_SEND).delta, sync));
    expectOutcome(one, none, RTX_DELTA_NOTHING);
    expectOutcome(one, one, RTX_DELTA_NOTHING);
    EXPECT_TRUE(has(expectOutcome(one, two, RTX_DELTA_TO_SEND).delta, sync));
    const CellGroupConfig* const other = without(one, spCell + "rlmInSyncOutOfSyncThreshold");
    EXPECT_FALSE(has(expectOutcome(one, other, RTX_DELTA_TO_SEND).delta, sync));
    EXPECT_TRUE(has(expectOutcome(one, other, RTX_DELTA_TO_SEND, RTX_DELTA_SYNC).delta, sync));
}

TEST_F(Words, ForcedSync)
{
    const CellGroupConfig* const one = tree({sync});
    const Result forced = diff(heap, one, one, RTX_DELTA_SYNC);
    EXPECT_EQ(forced.status, RTX_DELTA_TO_SEND);
    EXPECT_TRUE(has(forced.delta, sync));
    EXPECT_EQ(heap.encode(apply(heap, one, forced.delta).next), heap.encode(one));
    EXPECT_EQ(diff(heap, one, tree({dedicated}), RTX_DELTA_SYNC).status, RTX_DELTA_TO_SEND);
}

TEST_F(Words, ActionsOfSync)
{
    const std::string rach = sync + ".rach-ConfigDedicated";
    const CellGroupConfig* const without = tree({sync});
    const CellGroupConfig* const one = with(without, {rach});
    const CellGroupConfig* const two = with(one, {rach + ".uplink.cfra"});
    expectOutcome(without, one, RTX_DELTA_NOTHING);
    expectOutcome(one, without, RTX_DELTA_NOTHING);
    EXPECT_TRUE(has(expectOutcome(one, two, RTX_DELTA_TO_SEND).delta, rach + ".uplink.cfra"));
    // A state has none of it, whatever was sent.
    expectOutcome(stateOf(heap, one), two, RTX_DELTA_NOTHING);
    EXPECT_TRUE(has(expectOutcome(without, numbered(one, sync + ".newUE-Identity", 3), RTX_DELTA_TO_SEND).delta, rach));
}

TEST_F(Words, SwitchOfTheSpCell)
{
    for (const std::string path : {".firstActiveDownlinkBWP-Id", ".uplinkConfig.firstActiveUplinkBWP-Id",
                                   ".supplementaryUplink.firstActiveUplinkBWP-Id"})
    {
        const std::string id = dedicated + path;
        const CellGroupConfig* const one = numbered(tree({id}), id, 1);
        const CellGroupConfig* const none = without(one, id);
        const CellGroupConfig* const two = numbered(one, id, 2);
        EXPECT_TRUE(has(expectOutcome(none, one, RTX_DELTA_TO_SEND).delta, id));
        expectOutcome(one, none, RTX_DELTA_NOTHING);
        EXPECT_TRUE(has(expectOutcome(one, two, RTX_DELTA_TO_SEND).delta, id));
        const std::string tag = dedicated + ".tag-Id";
        EXPECT_FALSE(has(expectOutcome(one, numbered(one, tag, 3), RTX_DELTA_TO_SEND).delta, id));
        EXPECT_TRUE(has(expectOutcome(one, numbered(one, tag, 3), RTX_DELTA_TO_SEND, RTX_DELTA_SWITCH).delta, id));
        // With reconfigurationWithSync it is sent again.
        EXPECT_TRUE(has(expectOutcome(one, with(one, {sync}), RTX_DELTA_TO_SEND).delta, id));
    }
}

TEST_F(Words, SwitchOfAnSCell)
{
    for (const std::string path : {".firstActiveDownlinkBWP-Id", ".uplinkConfig.firstActiveUplinkBWP-Id",
                                   ".supplementaryUplink.firstActiveUplinkBWP-Id"})
    {
        const std::string id = sCell + ".sCellConfigDedicated" + path;
        const CellGroupConfig* const one = numbered(tree({id}), id, 1);
        const CellGroupConfig* const two = numbered(one, id, 2);
        expectOutcome(one, two, RTX_E_DELTA, 0, RTX_DELTA_AT_CREATION, id);
        const Result recreated = expectOutcome(one, two, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_SCELLS);
        EXPECT_EQ(count(recreated, RTX_DELTA_SENT, RTX_DELTA_RECREATED), 1U);
        expectOutcome(one, without(one, id), RTX_DELTA_NOTHING);
        expectOutcome(without(one, id), one, RTX_E_DELTA, 0, RTX_DELTA_AT_CREATION, id);
        expectOutcome(tree({dedicated}), without(one, id), RTX_E_DELTA, 0, RTX_DELTA_KEPT, dedicated.substr(0, 12));
    }
}

TEST_F(Words, SwitchIsWantedOfANewSCell)
{
    const std::string in = sCell + ".sCellConfigDedicated";
    const CellGroupConfig* const none = heap.tree();
    const CellGroupConfig* const one = tree({in + ".uplinkConfig", in + ".supplementaryUplink"});
    expectOutcome(none, one, RTX_DELTA_TO_SEND);
    for (const std::string path : {".firstActiveDownlinkBWP-Id", ".uplinkConfig.firstActiveUplinkBWP-Id",
                                   ".supplementaryUplink.firstActiveUplinkBWP-Id"})
    {
        expectOutcome(none, without(one, in + path), RTX_E_DELTA, 0, RTX_DELTA_INCOMPLETE, in + path);
    }
    expectOutcome(none, tree({in}), RTX_DELTA_TO_SEND); // no uplink, no uplink's bandwidth part
}

TEST_F(Words, CreationAndSetup)
{
    const std::vector<std::string> wanted = {
        sCell + ".sCellConfigCommon",
        sCell + ".sCellConfigDedicated",
        sCell + ".sCellConfigCommon.physCellId",
        sCell + ".sCellConfigCommon.downlinkConfigCommon",
        sCell + ".sCellConfigCommon.downlinkConfigCommon.frequencyInfoDL",
        sCell + ".sCellConfigCommon.downlinkConfigCommon.initialDownlinkBWP",
        bearer + ".servedRadioBearer",
        bearer + ".rlc-Config",
        bearer + ".rlc-Config.am.ul-AM-RLC.sn-FieldLength",
        bearer + ".mac-LogicalChannelConfig",
        dedicated + ".downlinkBWP-ToAddModList[bwp-Id 1].bwp-Common",
        dedicated + ".downlinkBWP-ToAddModList[bwp-Id 1].bwp-Dedicated",
    };
    const CellGroupConfig* const all = tree(wanted);
    expectOutcome(tree({dedicated}), all, RTX_DELTA_TO_SEND);
    for (const std::string& path : wanted)
    {
        // Of no bearer whose kind is not told more is asked.
        const CellGroupConfig* const less = without(all, path);
        expectOutcome(tree({dedicated}), less, RTX_E_DELTA, 0, RTX_DELTA_INCOMPLETE, path);
        expectOutcome(nullptr, less, RTX_E_DELTA, 0, RTX_DELTA_INCOMPLETE, path);
        Heap other;
        const Applied applied = apply(heap, tree({dedicated}), less);
        EXPECT_EQ(applied.status, RTX_E_DELTA) << path;
        EXPECT_EQ(applied.items.size(), 1U);
    }
}

TEST_F(Words, WithSync)
{
    const std::string common = sync + ".spCellConfigCommon.";
    const std::vector<std::string> again = {
        common + "physCellId",
        common + "downlinkConfigCommon.frequencyInfoDL",
        common + "downlinkConfigCommon.initialDownlinkBWP",
        common + "uplinkConfigCommon.frequencyInfoUL",
        common + "uplinkConfigCommon.initialUplinkBWP",
        common + "ssbSubcarrierSpacing",
        dedicated + ".firstActiveDownlinkBWP-Id",
        dedicated + ".uplinkConfig.firstActiveUplinkBWP-Id",
        dedicated + ".pdsch-ServingCellConfig.setup.pucch-Cell",
    };
    const std::vector<std::string> kept = {
        common + "lte-CRS-ToMatchAround", common + "rateMatchPatternToAddModList", dedicated + ".servingCellMO",
        dedicated + ".csi-MeasConfig",    dedicated + ".downlinkBWP-ToAddModList", sCell + ".sCellConfigDedicated",
    };
    const CellGroupConfig* const one = with(tree(again), kept);
    const CellGroupConfig* const two = numbered(one, sync + ".newUE-Identity", 9);
    const Result result = expectOutcome(one, two, RTX_DELTA_TO_SEND);
    for (const std::string& path : again)
    {
        EXPECT_TRUE(has(result.delta, path)) << path;
    }
    for (const std::string& path : kept)
    {
        EXPECT_FALSE(has(result.delta, path)) << path;
    }
    // What is fixed without it changes with it.
    for (const std::string& path : again)
    {
        CellGroupConfig* const other = copy(heap, two);
        ASSERT_TRUE(vary(heap, placeAt(path).type(), make(other, path), {}));
        expectOutcome(one, other, RTX_DELTA_TO_SEND);
    }
}

TEST_F(Words, Kind)
{
    const std::string csi = dedicated + ".csi-MeasConfig.setup.";
    const std::string zp = dedicated + ".initialDownlinkBWP.pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList"
                                       "[zp-CSI-RS-ResourceId 1].periodicityAndOffset";
    for (const std::string& path :
         {csi + "nzp-CSI-RS-ResourceToAddModList[nzp-CSI-RS-ResourceId 1].periodicityAndOffset",
          csi + "csi-IM-ResourceToAddModList[csi-IM-ResourceId 1].periodicityAndOffset", zp})
    {
        const CellGroupConfig* const periodic = tree({path});
        const CellGroupConfig* const aperiodic = without(periodic, path);
        expectOutcome(periodic, chosen(periodic, path, "slots20"), RTX_DELTA_TO_SEND);
        for (const auto& [prev, next] : {std::pair(periodic, aperiodic), std::pair(aperiodic, periodic)})
        {
            expectOutcome(prev, next, RTX_E_DELTA, RTX_DELTA_RECREATE_NONE, RTX_DELTA_FIXED_KIND, path);
            path == zp ? expectOutcome(prev, next, RTX_E_DELTA, RTX_DELTA_TWO_STEPS, RTX_DELTA_FIXED_KIND, path)
                       : expectOutcome(prev, next, RTX_DELTA_TO_SEND);
        }
    }
}

TEST_F(Words, Usage)
{
    const std::string path = dedicated + ".uplinkConfig.initialUplinkBWP.srs-Config.setup.srs-ResourceSetToAddModList"
                                         "[srs-ResourceSetId 1].usage";
    constexpr int64_t codebook = 1;
    constexpr int64_t nonCodebook = 2;
    for (int64_t before = 0; before < 4; ++before)
    {
        for (int64_t after = 0; after < 4; ++after)
        {
            const CellGroupConfig* const prev = numbered(tree({path}), path, before);
            const CellGroupConfig* const next = numbered(tree({path}), path, after);
            const bool swapped =
                (before == codebook && after == nonCodebook) || (before == nonCodebook && after == codebook);
            swapped           ? expectOutcome(prev, next, RTX_E_DELTA, 0, RTX_DELTA_USAGE, path)
            : before == after ? expectOutcome(prev, next, RTX_DELTA_NOTHING)
                              : expectOutcome(prev, next, RTX_DELTA_TO_SEND);
        }
    }
}

TEST_F(Words, PucchOfTheSpCell)
{
    const std::string path = dedicated + ".uplinkConfig.initialUplinkBWP.pucch-Config";
    const CellGroupConfig* const one = tree({path});
    const CellGroupConfig* const none = without(one, path);
    expectOutcome(one, none, RTX_E_DELTA, allEntries | RTX_DELTA_TWO_STEPS, RTX_DELTA_PUCCH, path);
    expectOutcome(none, one, RTX_E_DELTA, allEntries | RTX_DELTA_TWO_STEPS, RTX_DELTA_PUCCH, path);
    expectOutcome(none, with(one, {sync}), RTX_DELTA_TO_SEND);
    expectOutcome(one, with(none, {sync}), RTX_DELTA_TO_SEND);
    expectOutcome(one, with(one, {path + ".setup.format1"}), RTX_DELTA_TO_SEND);
    expectOutcome(nullptr, one, RTX_DELTA_TO_SEND);
    expectOutcome(tree({dedicated}), one, RTX_DELTA_TO_SEND); // with its bandwidth part

    const std::string part = dedicated + ".uplinkConfig.uplinkBWP-ToAddModList[bwp-Id 1]";
    const std::string inPart = part + ".bwp-Dedicated.pucch-Config";
    const CellGroupConfig* const with1 = tree({inPart});
    expectOutcome(with1, without(with1, inPart), RTX_E_DELTA, 0, RTX_DELTA_PUCCH, inPart);
    expectOutcome(without(with1, inPart), with1, RTX_E_DELTA, RTX_DELTA_TWO_STEPS, RTX_DELTA_PUCCH, inPart);
    expectOutcome(without(with1, inPart), with1, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_BWPS);
    expectOutcome(tree({dedicated + ".uplinkConfig"}), with1, RTX_DELTA_TO_SEND);
}

TEST_F(Words, PucchOfAnSCell)
{
    const std::string in = sCell + ".sCellConfigDedicated.";
    const std::string initial = in + "uplinkConfig.initialUplinkBWP.pucch-Config";
    const std::string sul = in + "supplementaryUplink.initialUplinkBWP.pucch-Config";
    const CellGroupConfig* const both = tree({initial, sul});
    const CellGroupConfig* const onUplink = without(both, sul);
    const CellGroupConfig* const onSul = without(both, initial);
    const CellGroupConfig* const none = without(onUplink, initial);
    // It moves with reconfigurationWithSync, or with the SCell.
    expectOutcome(onUplink, onSul, RTX_E_DELTA, 0, RTX_DELTA_PUCCH, initial);
    expectOutcome(onUplink, onSul, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_SCELLS);
    expectOutcome(onUplink, with(onSul, {sync}), RTX_DELTA_TO_SEND);
    // That the SCell has one at all stays, also with it.
    expectOutcome(onUplink, with(none, {sync}), RTX_E_DELTA, 0, RTX_DELTA_PUCCH_CELL, sCell);
    expectOutcome(none, with(onUplink, {sync}), RTX_E_DELTA, 0, RTX_DELTA_PUCCH_CELL, sCell);
    expectOutcome(none, onUplink, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_SCELLS);
    // A new bandwidth part may have one where the SCell has one.
    const std::string part = in + "uplinkConfig.uplinkBWP-ToAddModList[bwp-Id 1].bwp-Dedicated.pucch-Config";
    expectOutcome(onUplink, with(onUplink, {part}), RTX_DELTA_TO_SEND);
    expectOutcome(none, with(none, {part}), RTX_E_DELTA, 0, RTX_DELTA_PUCCH_CELL, sCell);
}

TEST_F(Words, Reestablish)
{
    const std::string length = bearer + ".rlc-Config.am.ul-AM-RLC.sn-FieldLength";
    const CellGroupConfig* const drb = tree({length, sync});
    const CellGroupConfig* const srb = chosen(drb, bearer + ".servedRadioBearer", "srb-Identity");
    for (const auto& [prev, isDrb] : {std::pair(drb, true), std::pair(srb, false)})
    {
        const CellGroupConfig* const next = numbered(prev, length, 1);
        const CellGroupConfig* const reestablished = with(next, {bearer + ".reestablishRLC"});
        const CellGroupConfig* const synced = numbered(next, sync + ".newUE-Identity", 5);
        const CellGroupConfig* const all = numbered(reestablished, sync + ".newUE-Identity", 5);
        expectOutcome(prev, next, RTX_E_DELTA, 0, RTX_DELTA_REESTABLISH, length);
        expectOutcome(prev, synced, RTX_E_DELTA, 0, RTX_DELTA_REESTABLISH, length);
        isDrb ? expectOutcome(prev, reestablished, RTX_E_DELTA, 0, RTX_DELTA_REESTABLISH, length)
              : expectOutcome(prev, reestablished, RTX_DELTA_TO_SEND);
        expectOutcome(prev, all, RTX_DELTA_TO_SEND);
        expectOutcome(prev, next, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_BEARERS);
    }
}

TEST_F(Words, BearersOfSrbsAndDrbs)
{
    const CellGroupConfig* const drb = tree({bearer + ".servedRadioBearer"});
    const CellGroupConfig* const srb = chosen(drb, bearer + ".servedRadioBearer", "srb-Identity");
    for (const std::string& path : {bearer + ".rlc-Config", bearer + ".mac-LogicalChannelConfig"})
    {
        expectOutcome(heap.tree(), without(srb, path), RTX_DELTA_TO_SEND);
        expectOutcome(heap.tree(), without(drb, path), RTX_E_DELTA, 0, RTX_DELTA_INCOMPLETE, path);
        expectOutcome(srb, without(srb, path), RTX_E_DELTA, 0, RTX_DELTA_KEPT, path);
        expectOutcome(srb, without(srb, path), RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_BEARERS);
    }
    expectOutcome(srb, drb, RTX_E_DELTA, 0, RTX_DELTA_AT_CREATION, bearer + ".servedRadioBearer");
    expectOutcome(srb, drb, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_BEARERS);

    const std::string mode = bearer + ".rlc-Config";
    const CellGroupConfig* const um = chosen(drb, mode, "um-Bi-Directional");
    expectOutcome(drb, um, RTX_E_DELTA, 0, RTX_DELTA_MODE, mode);
    expectOutcome(drb, um, RTX_DELTA_TO_SEND, RTX_DELTA_RECREATE_BEARERS);
    CellGroupConfig* const timer = copy(heap, drb);
    (void)vary(heap, placeAt(mode).type(), make(timer, mode), {});
    expectOutcome(drb, timer, RTX_DELTA_TO_SEND);
}

TEST_F(Words, SupplementaryUplink)
{
    const std::string sul = dedicated + ".supplementaryUplink";
    const std::string common = sync + ".spCellConfigCommon";
    const CellGroupConfig* const with1 =
        tree({sul + ".initialUplinkBWP.srs-Config", common + ".physCellId", common + ".supplementaryUplinkConfig"});
    const CellGroupConfig* const none = without(with1, sul);
    const CellGroupConfig* const ended = without(with1, common + ".supplementaryUplinkConfig");
    // It is kept, unless the common part comes without one.
    expectOutcome(with1, none, RTX_E_DELTA, 0, RTX_DELTA_KEPT, sul);
    expectOutcome(with1, numbered(none, sync + ".newUE-Identity", 2), RTX_E_DELTA, 0, RTX_DELTA_KEPT, sul);
    EXPECT_FALSE(has(expectOutcome(with1, without(ended, sul), RTX_DELTA_TO_SEND).delta, sul));
    // What then shall stay has to be sent whole.
    EXPECT_TRUE(has(expectOutcome(with1, ended, RTX_DELTA_TO_SEND).delta, sul + ".initialUplinkBWP.srs-Config"));
    const CellGroupConfig* const again = numbered(ended, sync + ".newUE-Identity", 2);
    EXPECT_TRUE(has(expectOutcome(ended, again, RTX_DELTA_TO_SEND).delta, sul + ".initialUplinkBWP.srs-Config"));
    // Where the common part has one, what stays is not sent.
    const CellGroupConfig* const synced = numbered(with1, sync + ".newUE-Identity", 2);
    EXPECT_FALSE(has(expectOutcome(with1, synced, RTX_DELTA_TO_SEND).delta, sul));
}

TEST_F(Words, RadioLinkFailureTimers)
{
    const std::string timers = spCell + "rlf-TimersAndConstants";
    const std::string group = timers + ".setup.t311-v1530";
    for (const int64_t id : {0, 1, 3})
    {
        const CellGroupConfig* const one = numbered(tree({group}), "cellGroupId", id);
        const CellGroupConfig* const none = without(one, timers);
        id == 0 ? expectOutcome(one, none, RTX_DELTA_TO_SEND)
                : expectOutcome(one, none, RTX_E_DELTA, RTX_DELTA_TWO_STEPS, RTX_DELTA_SCG, timers);
        expectOutcome(none, one, RTX_DELTA_TO_SEND);
        const CellGroupConfig* const without311 = without(one, group);
        expectOutcome(one, without311, RTX_E_DELTA, 0, RTX_DELTA_KEPT, group);
        id == 0 ? expectOutcome(one, without311, RTX_DELTA_MORE, RTX_DELTA_TWO_STEPS)
                : expectOutcome(one, without311, RTX_E_DELTA, RTX_DELTA_TWO_STEPS, RTX_DELTA_KEPT, group);
        expectOutcome(one, numbered(one, "cellGroupId", 2), RTX_E_DELTA, 0, RTX_DELTA_OTHER_IDENTITY, "cellGroupId");
    }
}

TEST_F(Words, InactiveAssignmentsAndGrants)
{
    const std::string sps = dedicated + ".initialDownlinkBWP.sps-Config";
    const std::string grant = dedicated + ".uplinkConfig.initialUplinkBWP.configuredGrantConfig";
    const std::string type1 = grant + ".setup.rrc-ConfiguredUplinkGrant";
    struct
    {
        std::vector<std::string> paths;
        std::string member;
        unsigned notices;
    } const cases[] = {{{sps}, sps, 1}, {{grant}, grant, 1}, {{type1}, grant, 0}};
    for (const auto& each : cases)
    {
        const CellGroupConfig* const one = tree(each.paths);
        CellGroupConfig* const two = copy(heap, one);
        ASSERT_TRUE(vary(heap, placeAt(each.member).type(), make(two, each.member), {}));
        const auto notices = [&](const CellGroupConfig* prev, const CellGroupConfig* next)
        {
            return count(expectOutcome(prev, next, RTX_DELTA_TO_SEND), RTX_DELTA_NOTICE, RTX_DELTA_ACTIVE);
        };
        EXPECT_EQ(notices(one, two), each.notices) << each.member;
        EXPECT_EQ(notices(one, with(two, {sync})), 0U);
        EXPECT_EQ(notices(one, without(one, each.member)), 0U); // it may be released at any time
        EXPECT_EQ(notices(without(one, each.member), one), 0U);
    }
}

TEST_F(Words, Actions)
{
    const std::string reestablish = bearer + ".reestablishRLC";
    const std::string report = "reportUplinkTxDirectCurrent-v1530";
    for (const std::string& path : {reestablish, report})
    {
        const CellGroupConfig* const one = tree({path});
        const CellGroupConfig* const none = without(one, path);
        const Result result = expectOutcome(none, one, RTX_DELTA_TO_SEND);
        EXPECT_TRUE(has(result.delta, path));
        EXPECT_EQ(count(result, RTX_DELTA_SENT, RTX_DELTA_ACTION), 1U);
        expectOutcome(one, none, RTX_DELTA_NOTHING);
        expectOutcome(one, one, RTX_DELTA_NOTHING); // equal trees
        const CellGroupConfig* const more = with(one, {"mac-CellGroupConfig"});
        EXPECT_TRUE(has(expectOutcome(one, more, RTX_DELTA_TO_SEND).delta, path)); // done once more
        EXPECT_FALSE(has(apply(heap, none, result.delta).next, path));
    }
}

TEST_F(Words, UnknownAdditions)
{
    // In a sequence that stays, and in an entry that can be released and added again.
    const auto physical = [&](CellGroupConfig* tree)
    {
        return make(tree, "physicalCellGroupConfig");
    };
    const Type& type = placeAt("physicalCellGroupConfig").type();
    const CellGroupConfig* const none = tree({"physicalCellGroupConfig"});
    CellGroupConfig* const one = copy(heap, none);
    addAddition(heap, type, physical(one), 0, 1);
    CellGroupConfig* const two = copy(heap, one);
    addAddition(heap, type, physical(two), 2, 1);
    CellGroupConfig* const other = copy(heap, none);
    addAddition(heap, type, physical(other), 0, 2);
    const std::string path = "physicalCellGroupConfig.extElem1";
    expectOutcome(none, one, RTX_DELTA_TO_SEND);
    expectOutcome(one, other, RTX_DELTA_TO_SEND);
    expectOutcome(one, one, RTX_DELTA_NOTHING);
    expectOutcome(one, two, RTX_DELTA_TO_SEND);
    expectOutcome(two, one, RTX_E_DELTA, RTX_DELTA_TWO_STEPS, RTX_DELTA_KEPT, path + "[2]");
    expectOutcome(one, none, RTX_E_DELTA, 0, RTX_DELTA_KEPT, path + "[0]");
    const CellGroupConfig* const beside = numbered(one, "physicalCellGroupConfig.pdsch-HARQ-ACK-Codebook", 1);
    const Result sent = expectOutcome(one, beside, RTX_DELTA_TO_SEND);
    EXPECT_EQ(additions(type, find(sent.delta, placeAt("physicalCellGroupConfig"))).size(), 1U);
}

TEST_F(Words, TwoMessages)
{
    struct
    {
        std::string member; // kept by its absence
        std::string first;  // what goes first
        bool released;      // or left out
    } const cases[] = {
        {dedicated + ".initialDownlinkBWP.sps-Config.setup.n1PUCCH-AN", dedicated + ".initialDownlinkBWP.sps-Config",
         true},
        {dedicated + ".csi-MeasConfig.setup.reportTriggerSize", dedicated + ".csi-MeasConfig", true},
        {spCell + "rlf-TimersAndConstants.setup.t311-v1530", spCell + "rlf-TimersAndConstants", true},
        {dedicated + ".uplinkConfig.initialUplinkBWP.pusch-Config.setup.pusch-PowerControl.p0-AlphaSets",
         dedicated + ".uplinkConfig.initialUplinkBWP.pusch-Config", true},
    };
    for (const auto& each : cases)
    {
        const CellGroupConfig* const one = tree({each.member});
        const CellGroupConfig* const none = without(one, each.member);
        expectOutcome(one, none, RTX_E_DELTA, 0, RTX_DELTA_KEPT, each.member);
        EXPECT_EQ(diff(heap, one, none, 0).items.front().ancestor, "CellGroupConfig." + each.first);
        const Result result = expectOutcome(one, none, RTX_DELTA_MORE, RTX_DELTA_TWO_STEPS);
        EXPECT_EQ(count(result, RTX_DELTA_RELEASED, RTX_DELTA_FIRST), 1U);
        EXPECT_FALSE(has(apply(heap, one, result.delta).next, each.first));
    }
}

TEST_F(Words, OfNothing)
{
    const CellGroupConfig* const message =
        tree({dedicated + ".uplinkConfig.initialUplinkBWP.pucch-Config", sync + ".spCellConfigCommon.physCellId",
              sync + ".rach-ConfigDedicated", bearer + ".reestablishRLC", sCell + ".sCellConfigDedicated",
              dedicated + ".pdsch-ServingCellConfig.setup.pucch-Cell", dedicated + ".firstActiveDownlinkBWP-Id"});
    const Result result = expectOutcome(nullptr, message, RTX_DELTA_TO_SEND);
    EXPECT_EQ(heap.encode(result.delta), heap.encode(message)); // it is complete and in order
    expectOutcome(nullptr, heap.tree(), RTX_DELTA_TO_SEND);
}

} // namespace
