#include "NR-RRC-Pdus.h"
#include "NR-RRC-Tables.h"
#include "randomTree.h"
#include "rtxTestTypes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <memory>
#include <string>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

int collect(void* arg, const RtxDifference* difference)
{
    std::string line(rtxDifferenceFormat(difference, nullptr, 0) + 1, '\0');
    rtxDifferenceFormat(difference, line.data(), line.size());
    line.pop_back();
    static_cast<Lines*>(arg)->push_back(line);
    return 0;
}

// A context with the elements of one tree.
class Tree
{
public:
    Tree()
    {
        EXPECT_EQ(rtxInitContext(&context), RTX_OK);
    }
    ~Tree()
    {
        rtFreeContext(&context);
    }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    template <typename T>
    T* make()
    {
        void* const p = rtxMemHeapAlloc(&context, sizeof(T));
        EXPECT_NE(p, nullptr);
        return static_cast<T*>(std::memset(p, 0, sizeof(T)));
    }

    template <typename T>
    T* append(OSRTDList& list)
    {
        auto* const node = make<OSRTDListNode>();
        node->data = make<T>();
        rtxDListAppendNode(&list, node);
        return static_cast<T*>(node->data);
    }

    void appendAddition(OSRTDList& list, OSUINT32 index, const std::vector<OSOCTET>& octets)
    {
        auto* const open = append<ASN1OpenType>(list);
        open->index = index;
        open->numocts = static_cast<OSUINT32>(octets.size());
        open->data = static_cast<OSOCTET*>(rtxMemHeapAlloc(&context, octets.size()));
        std::copy(octets.begin(), octets.end(), open->data);
    }

    OSCTXT context;
};

class Compare : public testing::Test
{
protected:
    Lines differences(const rtx::Type& type, const void* x, const void* y)
    {
        Lines lines;
        const int64_t found = rtxCompare(&a.context, &b.context, &type, x, y, collect, &lines);
        EXPECT_EQ(found, static_cast<int64_t>(lines.size()));
        return lines;
    }

    Tree a;
    Tree b;
};

TEST_F(Compare, NumbersByTheirValue)
{
    const OSINT16 x = -400;
    OSINT16 y = -400;
    EXPECT_THAT(differences(test::biasType, &x, &y), IsEmpty());
    y = 400;
    EXPECT_THAT(differences(test::biasType, &x, &y), ElementsAre("Bias: -400 in a, 400 in b"));
    const OSUINT32 red = 0;
    const OSUINT32 none = 7;
    EXPECT_THAT(differences(test::colourType, &red, &none), ElementsAre("Colour: red in a, 7 in b"));
}

TEST_F(Compare, AnyNonzeroOctetIsTrue)
{
    const OSBOOL values[] = {0, 1, 255};
    EXPECT_THAT(differences(test::flagType, &values[1], &values[2]), IsEmpty());
    EXPECT_THAT(differences(test::flagType, &values[0], &values[2]), ElementsAre("Flag: false in a, true in b"));
}

TEST_F(Compare, BitStringsUpToTheirEnd)
{
    ASN1BitStr32 x = {5, {0xA8, 1, 2, 3}};
    ASN1BitStr32 y = {5, {0xAF, 4, 5, 6}};
    EXPECT_THAT(differences(test::mapType, &x, &y), IsEmpty());
    y.data[0] = 0xA0;
    EXPECT_THAT(differences(test::mapType, &x, &y), ElementsAre("Map: '10101'B in a, '10100'B in b"));
    y = x;
    y.numbits = 4;
    EXPECT_THAT(differences(test::mapType, &x, &y), ElementsAre("Map: '10101'B in a, '1010'B in b"));
    x.numbits = y.numbits = UINT32_MAX;
    EXPECT_THAT(differences(test::mapType, &x, &y), IsEmpty());

    OSOCTET longX[6] = {1, 2, 3, 4, 5, 0xE0};
    OSOCTET longY[6] = {1, 2, 3, 4, 5, 0xFF};
    EXPECT_THAT(differences(test::longMapType, longX, longY), IsEmpty());
    longY[5] = 0xC0;
    const std::string same = "0000000100000010000000110000010000000101";
    EXPECT_THAT(differences(test::longMapType, longX, longY),
                ElementsAre("LongMap: '" + same + "111'B in a, '" + same + "110'B in b"));
}

TEST_F(Compare, MembersThatOneHas)
{
    test::Item x{};
    test::Item y{};
    x.id = y.id = 2;
    x.shade = 1; // absent
    EXPECT_THAT(differences(test::itemType, &x, &y), IsEmpty());
    x.m.shadePresent = 1;
    EXPECT_THAT(differences(test::itemType, &x, &y), ElementsAre("Item.shade: only in a"));
    EXPECT_THAT(differences(test::itemType, &y, &x), ElementsAre("Item.shade: only in b"));
    y.m.shadePresent = 1;
    EXPECT_THAT(differences(test::itemType, &x, &y), ElementsAre("Item.shade: green in a, red in b"));
}

TEST_F(Compare, GroupsAsTheyAreSent)
{
    test::Box x{};
    test::Box y{};
    x.m.aPresent = 1; // not sent without its group
    y.m._v2ExtPresent = 1;
    EXPECT_THAT(differences(test::boxType, &x, &y), IsEmpty());
    x.m._v2ExtPresent = 1;
    x.m.lonePresent = 1;
    x.must = 4; // not sent
    y.m._v4ExtPresent = 1;
    EXPECT_THAT(differences(test::boxType, &x, &y),
                ElementsAre("Box.a: only in a", "Box.lone: only in a", "Box.must: only in b"));
}

TEST_F(Compare, ADifferenceHasItsParts)
{
    const auto keep = [](void* arg, const RtxDifference* difference)
    {
        *static_cast<RtxDifference*>(arg) = *difference;
        return 0;
    };
    test::Box x{};
    test::Box y{};
    x.m.pickPresent = y.m.pickPresent = 1;
    x.pick.t = y.pick.t = 2;
    y.pick.u.level = 3;
    RtxDifference difference{};
    ASSERT_EQ(rtxCompare(&a.context, nullptr, &test::boxType, &x, &y, keep, &difference), 1);
    EXPECT_EQ(difference.kind, RTX_D_VALUE);
    EXPECT_EQ(difference.type, &test::levelType);
    EXPECT_EQ(difference.a, &x.pick.u.level);
    EXPECT_EQ(difference.b, &y.pick.u.level);
    ASSERT_EQ(difference.depth, 3U);
    EXPECT_STREQ(difference.path[0].name, "level");
    EXPECT_STREQ(difference.path[1].name, "pick");
    EXPECT_STREQ(difference.path[2].name, "Box");
    y.m.pickPresent = 0;
    ASSERT_EQ(rtxCompare(&a.context, nullptr, &test::boxType, &x, &y, keep, &difference), 1);
    EXPECT_EQ(difference.kind, RTX_D_ONLY_A);
    EXPECT_EQ(difference.type, &test::pickType);
    EXPECT_EQ(difference.a, &x.pick);
    EXPECT_EQ(difference.b, nullptr);
}

TEST_F(Compare, AlternativesOfAChoice)
{
    test::Pick x{};
    test::Pick y{};
    EXPECT_THAT(differences(test::pickType, &x, &y), IsEmpty());
    x.t = 1;
    EXPECT_THAT(differences(test::pickType, &x, &y), ElementsAre("Pick: none in a, tag 0 in b"));
    y.t = 3;
    EXPECT_THAT(differences(test::pickType, &x, &y), ElementsAre("Pick: none in a, item in b"));
    x.t = 3;
    x.u.item = a.make<test::Item>();
    y.u.item = b.make<test::Item>();
    EXPECT_THAT(differences(test::pickType, &x, &y), IsEmpty());
    y.u.item->id = 5;
    EXPECT_THAT(differences(test::pickType, &x, &y), ElementsAre("Pick.item.id: 0 in a, 5 in b"));
    EXPECT_THAT(differences(test::pickType, &y, &x), ElementsAre("Pick.item: not compared, as it cannot be read"));
    y.u.item = nullptr;
    EXPECT_THAT(differences(test::pickType, &x, &y), ElementsAre("Pick.item: not compared, as it cannot be read"));
}

TEST_F(Compare, ANullPointerIsTheEmptyElement)
{
    BWP_DownlinkCommon x{};
    x.m.pdcch_ConfigCommonPresent = 1;
    x.pdcch_ConfigCommon.t = T_BWP_DownlinkCommon_pdcch_ConfigCommon_setup;
    BWP_DownlinkCommon y = x;
    y.pdcch_ConfigCommon.u.setup = b.make<PDCCH_ConfigCommon>();
    EXPECT_THAT(differences(nr_rrc::type_BWP_DownlinkCommon, &x, &y), IsEmpty());
    y.pdcch_ConfigCommon.u.setup->m.searchSpaceZeroPresent = 1;
    b.appendAddition(y.pdcch_ConfigCommon.u.setup->extElem1, 0, {0xAB});
    EXPECT_THAT(differences(nr_rrc::type_BWP_DownlinkCommon, &x, &y),
                ElementsAre("BWP-DownlinkCommon.pdcch-ConfigCommon.setup.searchSpaceZero: only in b",
                            "BWP-DownlinkCommon.pdcch-ConfigCommon.setup.extElem1[0]: none in a, AB in b"));
}

TEST_F(Compare, UnknownAdditionsAndAlternatives)
{
    test::Box x{};
    test::Box y{};
    a.appendAddition(x.extElem1, 0, {1, 2});
    a.appendAddition(x.extElem1, 2, {3});
    a.appendAddition(x.extElem1, 5, {5, 5});
    b.appendAddition(y.extElem1, 0, {1, 2});
    b.appendAddition(y.extElem1, 1, {4});
    b.appendAddition(y.extElem1, 5, {5, 6});
    EXPECT_THAT(differences(test::boxType, &x, &y),
                ElementsAre("Box.extElem1[1]: none in a, 04 in b", "Box.extElem1[2]: 03 in a, none in b",
                            "Box.extElem1[5]: 0505 in a, 0506 in b"));

    test::Pick pick{};
    test::Pick other{};
    pick.t = other.t = 6;
    pick.u.extElem1 = a.make<ASN1OpenType>();
    other.u.extElem1 = b.make<ASN1OpenType>();
    pick.u.extElem1->data = a.make<OSOCTET>();
    other.u.extElem1->data = b.make<OSOCTET>();
    pick.u.extElem1->numocts = other.u.extElem1->numocts = 1;
    EXPECT_THAT(differences(test::pickType, &pick, &other), IsEmpty());
    *other.u.extElem1->data = 9;
    EXPECT_THAT(differences(test::pickType, &pick, &other), ElementsAre("Pick: 00 in a, 09 in b"));
    other.t = 7;
    EXPECT_THAT(differences(test::pickType, &pick, &other), ElementsAre("Pick: tag 6 in a, tag 7 in b"));
}

TEST_F(Compare, TreesThatShareTheirPartsDifferInTheRest)
{
    test::Box x{};
    x.m.pickPresent = 1;
    x.pick.t = 3;
    x.pick.u.item = a.make<test::Item>();
    test::Box y = x;
    y.level = 1;
    EXPECT_THAT(differences(test::boxType, &x, &y), ElementsAre("Box.level: 0 in a, 1 in b"));

    x.pick.t = 6;
    x.pick.u.extElem1 = a.make<ASN1OpenType>();
    y = x;
    y.level = 1;
    EXPECT_THAT(differences(test::boxType, &x, &y), ElementsAre("Box.level: 0 in a, 1 in b"));
}

TEST_F(Compare, ListsByTheIndex)
{
    test::Numbers x = {3, {1, 2, 3}};
    test::Numbers y = {2, {1, 3}};
    EXPECT_THAT(differences(test::numbersType, &x, &y),
                ElementsAre("Numbers[1]: 2 in a, 3 in b", "Numbers[2]: only in a"));
    EXPECT_THAT(differences(test::numbersType, &y, &x),
                ElementsAre("Numbers[1]: 3 in a, 2 in b", "Numbers[2]: only in b"));

    x.n = 1;
    y.n = 0;
    EXPECT_THAT(differences(test::numbersType, &x, &y), ElementsAre("Numbers[0]: only in a"));
    EXPECT_THAT(differences(test::numbersType, &y, &x), ElementsAre("Numbers[0]: only in b"));

    OSRTDList items{};
    OSRTDList others{};
    a.append<test::Item>(items)->id = 1;
    a.append<test::Item>(items)->id = 2;
    b.append<test::Item>(others)->id = 2;
    EXPECT_THAT(differences(test::itemsType, &items, &others),
                ElementsAre("Items[0].id: 1 in a, 2 in b", "Items[1]: only in a"));
}

// Cell groups whose bearers are matched by their logical channel, as 6.3.2 of TS 38.331 has them added and modified.
class CompareBearers : public Compare
{
protected:
    CompareBearers()
    {
        x.m.rlc_BearerToAddModListPresent = y.m.rlc_BearerToAddModListPresent = 1;
    }

    RLC_BearerConfig* bearer(Tree& tree, CellGroupConfig& group, OSUINT8 channel)
    {
        auto* const result = tree.append<RLC_BearerConfig>(group.rlc_BearerToAddModList);
        result->logicalChannelIdentity = channel;
        return result;
    }

    Lines lines()
    {
        Lines result;
        const int64_t found = asn1Compare_CellGroupConfig(&a.context, &b.context, &x, &y, collect, &result);
        EXPECT_EQ(found, static_cast<int64_t>(result.size()));
        return result;
    }

    CellGroupConfig x{};
    CellGroupConfig y{};
};

TEST_F(CompareBearers, ByTheirIdentity)
{
    bearer(a, x, 1);
    bearer(a, x, 4)->m.reestablishRLCPresent = 1;
    bearer(a, x, 5);
    bearer(b, y, 4);
    bearer(b, y, 5);
    bearer(b, y, 6);
    EXPECT_THAT(
        lines(),
        ElementsAre("CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 1]: only in a",
                    "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4].reestablishRLC: only in a",
                    "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 6]: only in b"));
}

TEST_F(CompareBearers, AnotherOrderIsADifferenceOfItsOwn)
{
    for (const OSUINT8 channel : std::initializer_list<OSUINT8>{3, 1, 2})
    {
        bearer(a, x, channel);
    }
    for (const OSUINT8 channel : std::initializer_list<OSUINT8>{7, 1, 2, 3})
    {
        bearer(b, y, channel);
    }
    EXPECT_THAT(lines(), ElementsAre("CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 7]: only in b",
                                     "CellGroupConfig.rlc-BearerToAddModList: the elements stand in another order"));
}

TEST_F(CompareBearers, StepsTellBothPlaces)
{
    const auto keep = [](void* arg, const RtxDifference* difference)
    {
        static_cast<std::vector<RtxDifference>*>(arg)->push_back(*difference);
        return 0;
    };
    bearer(a, x, 9);
    bearer(a, x, 4)->m.reestablishRLCPresent = 1;
    bearer(b, y, 4);
    std::vector<RtxDifference> found;
    ASSERT_EQ(asn1Compare_CellGroupConfig(&a.context, &b.context, &x, &y, keep, &found), 2);
    EXPECT_EQ(found[0].kind, RTX_D_ONLY_A);
    EXPECT_EQ(found[0].path[0].indexA, 0U);
    EXPECT_EQ(found[0].path[0].indexB, RTX_NO_INDEX);
    EXPECT_STREQ(found[0].path[0].identity, "logicalChannelIdentity");
    EXPECT_EQ(found[0].path[0].id, 9);
    EXPECT_EQ(found[1].path[1].indexA, 1U);
    EXPECT_EQ(found[1].path[1].indexB, 0U);
    EXPECT_EQ(found[1].path[1].id, 4);
}

TEST_F(CompareBearers, EqualIdentitiesInTheirOrder)
{
    bearer(a, x, 4);
    bearer(a, x, 4)->m.reestablishRLCPresent = 1;
    bearer(b, y, 4);
    bearer(b, y, 4)->m.reestablishRLCPresent = 1;
    EXPECT_THAT(lines(), IsEmpty());
    bearer(b, y, 4);
    EXPECT_THAT(lines(), ElementsAre("CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4]: only in b"));
    // The one that is equal is not the one that is matched.
    y.rlc_BearerToAddModList.head = y.rlc_BearerToAddModList.head->next;
    --y.rlc_BearerToAddModList.count;
    EXPECT_THAT(
        lines(),
        ElementsAre("CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4].reestablishRLC: only in b",
                    "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4].reestablishRLC: only in a"));
}

TEST_F(CompareBearers, NumbersThatIdentifyThemselves)
{
    ControlResourceSet set{};
    ControlResourceSet other{};
    set.m.tci_StatesPDCCH_ToAddListPresent = other.m.tci_StatesPDCCH_ToAddListPresent = 1;
    set.tci_StatesPDCCH_ToAddList = {3, {5, 6, 7}};
    other.tci_StatesPDCCH_ToAddList = {3, {7, 8, 5}};
    const std::string list = "ControlResourceSet.tci-StatesPDCCH-ToAddList";
    EXPECT_THAT(differences(nr_rrc::type_ControlResourceSet, &set, &other),
                ElementsAre(list + "[TCI-StateId 6]: only in a", list + "[TCI-StateId 8]: only in b",
                            list + ": the elements stand in another order"));
}

TEST_F(CompareBearers, EndsWhenTheSinkSaysSo)
{
    const auto end = [](void* arg, const RtxDifference*)
    {
        ++*static_cast<int*>(arg);
        return 1;
    };
    bearer(a, x, 1);
    bearer(b, y, 2);
    int calls = 0;
    EXPECT_EQ(asn1Compare_CellGroupConfig(&a.context, &b.context, &x, &y, end, &calls), 1);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(asn1Compare_CellGroupConfig(&a.context, &b.context, &x, &y, nullptr, nullptr), 2);

    // Members that one tree has, one behind the other.
    x.m.mac_CellGroupConfigPresent = x.m.physicalCellGroupConfigPresent = 1;
    EXPECT_EQ(asn1Compare_CellGroupConfig(&a.context, &b.context, &x, &y, end, &calls), 1);
    EXPECT_EQ(calls, 2);
}

TEST_F(CompareBearers, WantsTreesATypeAndMemory)
{
    EXPECT_EQ(rtxCompare(nullptr, &b.context, &test::flagType, &x, &y, nullptr, nullptr), RTX_E_NULL);
    EXPECT_EQ(rtxCompare(&a.context, &b.context, nullptr, &x, &y, nullptr, nullptr), RTX_E_NULL);
    EXPECT_EQ(rtxCompare(&a.context, &b.context, &test::flagType, nullptr, &y, nullptr, nullptr), RTX_E_NULL);
    EXPECT_EQ(rtxCompare(&a.context, &b.context, &test::flagType, &x, nullptr, nullptr, nullptr), RTX_E_NULL);
    bearer(a, x, 1);
    bearer(b, y, 1);
    rtxMemHeapSetLimit(&a.context, 0);
    EXPECT_EQ(asn1Compare_CellGroupConfig(&a.context, &b.context, &x, &y, nullptr, nullptr), RTX_E_HEAP);
}

TEST_F(CompareBearers, GivesItsMemoryBack)
{
    for (OSUINT8 channel = 1; channel <= 32; ++channel)
    {
        bearer(a, x, channel);
        bearer(b, y, channel);
    }
    const OSOCTET* const before = a.context.heap.next;
    EXPECT_THAT(lines(), IsEmpty());
    EXPECT_EQ(a.context.heap.next, before);
    rtxMemHeapSetLimit(&a.context, 64 * 24);
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(CompareBearers, AListThatCannotBeReadIsSaidToBe)
{
    const std::string line = "CellGroupConfig.rlc-BearerToAddModList: not compared, as it cannot be read";
    bearer(a, x, 1);
    bearer(b, y, 1);
    y.rlc_BearerToAddModList.count = 2;
    EXPECT_THAT(lines(), ElementsAre(line)); // it ends early
    y.rlc_BearerToAddModList.count = UINT32_MAX;
    y.rlc_BearerToAddModList.tail->next = y.rlc_BearerToAddModList.head;
    EXPECT_THAT(lines(), ElementsAre(line)); // it is too long
    y.rlc_BearerToAddModList = x.rlc_BearerToAddModList;
    EXPECT_THAT(lines(), ElementsAre(line)); // its nodes are foreign
    y.rlc_BearerToAddModList = {};
    bearer(b, y, 1);
    y.rlc_BearerToAddModList.head->data = x.rlc_BearerToAddModList.head->data;
    EXPECT_THAT(lines(), ElementsAre(line)); // its element is foreign
    test::Numbers numbers = {1, {1}};
    test::Numbers many = {200, {1}};
    EXPECT_THAT(differences(test::numbersType, &numbers, &many),
                ElementsAre("Numbers: not compared, as it cannot be read"));
    test::Box box{};
    test::Box other{};
    other.extElem1.count = 0x4000;
    EXPECT_THAT(differences(test::boxType, &box, &other),
                ElementsAre("Box.extElem1: not compared, as it cannot be read"));
    other.extElem1.count = 1;
    EXPECT_THAT(differences(test::boxType, &box, &other),
                ElementsAre("Box.extElem1: not compared, as it cannot be read"));
}

TEST_F(CompareBearers, ATreeIsTheSameAsItselfWhateverItIs)
{
    bearer(a, x, 1);
    x.rlc_BearerToAddModList.count = 7;
    EXPECT_EQ(asn1Compare_CellGroupConfig(&a.context, nullptr, &x, &x, nullptr, nullptr), 0);
}

// Random trees

std::vector<OSOCTET> encoded(OSCTXT& context, const RtxPdu& named, const void* value)
{
    std::vector<OSOCTET> octets(1 << 17);
    EXPECT_EQ(pu_setBuffer(&context, octets.data(), octets.size(), 0), RTX_OK);
    EXPECT_EQ(named.encode(&context, value), RTX_OK);
    octets.resize(pu_getMsgLen(&context));
    return octets;
}

struct Tally
{
    unsigned trees = 0;
    unsigned equal = 0;
    uint64_t differences = 0;
    std::map<std::string, unsigned> changes;
};

// A tree and what is decoded from it are equal; after a change they are equal exactly when their encodings are, which
// are canonical. The other way round there are as many differences. Spoilt trees end, with something to report.
const RtxPdu& cellGroupConfig()
{
    return *std::find_if(std::begin(rtxPdus), std::end(rtxPdus),
                         [](const RtxPdu& pdu) { return std::strcmp(pdu.name, "CellGroupConfig") == 0; });
}

void tryTree(const RtxPdu& named, uint64_t seed, Tally& tally)
{
    SCOPED_TRACE(std::string(named.name) + ", seed " + std::to_string(seed));
    Tree a;
    Tree b;
    test::RandomTree::Options options;
    options.sameIdentity = seed % 4 == 0;
    test::RandomTree random(a.context, seed, options);
    const void* const x = random.make(*named.type);
    std::vector<OSOCTET> octets = encoded(a.context, named, x);

    test::RandomTree changes(b.context, seed + 1, options);
    const auto y = std::make_unique<OSOCTET[]>(named.type->size);
    ASSERT_EQ(pu_setBuffer(&b.context, octets.data(), octets.size(), 0), RTX_OK);
    ASSERT_EQ(rtxDecode(&b.context, named.type, y.get(), 0), RTX_OK);
    Lines lines;
    EXPECT_EQ(rtxCompare(&a.context, &b.context, named.type, x, y.get(), collect, &lines), 0) << lines.front();

    const auto done = changes.change(*named.type, y.get(), 1 + static_cast<unsigned>(seed % 2));
    const int64_t found = rtxCompare(&a.context, &b.context, named.type, x, y.get(), collect, &lines);
    EXPECT_EQ(found == 0, encoded(b.context, named, y.get()) == octets) << testing::PrintToString(done);
    EXPECT_EQ(rtxCompare(&b.context, &a.context, named.type, y.get(), x, nullptr, nullptr), found);
    for (const std::string& line : lines)
    {
        EXPECT_EQ(line.find("not compared"), std::string::npos) << line;
    }
    ++tally.trees;
    tally.equal += found == 0 ? 1 : 0;
    tally.differences += static_cast<uint64_t>(found);
    if (done.size() == 1 && found != 0)
    {
        ++tally.changes[done.front()];
    }

    (void)changes.spoil(*named.type, y.get(), 3);
    const int64_t spoilt = rtxCompare(&a.context, &b.context, named.type, x, y.get(), nullptr, nullptr);
    EXPECT_GE(spoilt, 0);
    EXPECT_EQ(rtxCompare(&b.context, &a.context, named.type, y.get(), x, nullptr, nullptr), spoilt);
}

void print(const char* what, const Tally& tally)
{
    std::printf("%s: %u pairs, %u equal, %llu differences; single changes:", what, tally.trees, tally.equal,
                static_cast<unsigned long long>(tally.differences));
    for (const auto& [change, number] : tally.changes)
    {
        std::printf(" %s %u", change.c_str(), number);
    }
    std::printf("\n");
}

TEST(RandomPairs, AreEqualWhenTheirEncodingsAre)
{
    Tally tally;
    for (uint64_t seed = 0; seed < 3000; ++seed)
    {
        tryTree(cellGroupConfig(), seed, tally);
    }
    print("CellGroupConfig", tally);
    for (const char* const change :
         {"absent", "alternative", "append", "array", "group", "order", "present", "remove", "unknown", "value"})
    {
        EXPECT_NE(tally.changes[change], 0U) << change;
    }
}

TEST(RandomPairs, OfEachNamedType)
{
    Tally tally;
    for (const RtxPdu& named : rtxPdus)
    {
        for (uint64_t seed = 0; seed < 40; ++seed)
        {
            tryTree(named, seed, tally);
        }
    }
    print("named types", tally);
    EXPECT_GT(tally.differences, tally.trees / 2);
}

} // namespace
