#include "NR-RRC-Pdus.h"
#include "NR-RRC-Tables.h"
#include "randomTree.h"
#include "rtxTestTypes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

std::string lineOf(const RtxError& error)
{
    std::string line(rtxErrorFormat(&error, nullptr, 0) + 1, '\0');
    rtxErrorFormat(&error, line.data(), line.size());
    line.pop_back();
    return line;
}

int collect(void* arg, const RtxError* finding)
{
    static_cast<Lines*>(arg)->push_back(lineOf(*finding));
    return 0;
}

int endAtTheSecond(void* arg, const RtxError* finding)
{
    collect(arg, finding);
    return static_cast<Lines*>(arg)->size() == 2 ? 1 : 0;
}

class Check : public testing::Test
{
protected:
    Check()
    {
        EXPECT_EQ(rtxInitContext(&context), RTX_OK);
    }
    ~Check() override
    {
        rtFreeContext(&context);
    }

    void* cleared(size_t size)
    {
        void* const p = rtxMemHeapAlloc(&context, size);
        EXPECT_NE(p, nullptr);
        return std::memset(p, 0, size);
    }

    template <typename T>
    T* make()
    {
        return static_cast<T*>(cleared(sizeof(T)));
    }

    template <typename T>
    T* append(OSRTDList& list)
    {
        auto* const node = make<OSRTDListNode>();
        node->data = make<T>();
        rtxDListAppendNode(&list, node);
        return static_cast<T*>(node->data);
    }

    // The lines of all findings. The encoder refuses what has any, with the first line, and takes the rest.
    template <typename T>
    Lines findings(int (*encodeType)(OSCTXT*, const T*),
                   int64_t (*checkType)(const OSCTXT*, const T*, RtxFindingSink, void*), const T& value)
    {
        Lines lines;
        const int64_t found = checkType(&context, &value, collect, &lines);
        EXPECT_EQ(found, static_cast<int64_t>(lines.size()));
        std::vector<OSOCTET> octets(100'000);
        EXPECT_EQ(pu_setBuffer(&context, octets.data(), octets.size(), 0), RTX_OK);
        EXPECT_EQ(encodeType(&context, &value) == RTX_OK, lines.empty());
        EXPECT_EQ(lineOf(context.error), lines.empty() ? "" : lines.front());
        return lines;
    }

    Lines findings(const test::Type& type, const void* value)
    {
        Lines lines;
        const int64_t found = rtxCheck(&context, &type, value, collect, &lines);
        EXPECT_EQ(found, static_cast<int64_t>(lines.size()));
        return lines;
    }

    OSCTXT context;
};

#define FINDINGS(type, value) findings<type>(asn1PE_##type, asn1Check_##type, value)

TEST_F(Check, AValidTreeHasNoFinding)
{
    CellGroupConfig group{};
    EXPECT_THAT(FINDINGS(CellGroupConfig, group), IsEmpty());
}

TEST_F(Check, GoesOnBehindEachFinding)
{
    CellGroupConfig group{};
    group.cellGroupId = 4;
    group.m.rlc_BearerToAddModListPresent = 1;
    append<RLC_BearerConfig>(group.rlc_BearerToAddModList)->logicalChannelIdentity = 33;
    auto* const bearer = append<RLC_BearerConfig>(group.rlc_BearerToAddModList);
    bearer->logicalChannelIdentity = 4;
    bearer->m.servedRadioBearerPresent = 1;
    bearer->m.rlc_ConfigPresent = 1;
    bearer->rlc_Config.t = T_RLC_Config_um_Bi_Directional;
    group.m.rlc_BearerToReleaseListPresent = 1;
    group.m.mac_CellGroupConfigPresent = 1;
    group.mac_CellGroupConfig.m._v2ExtPresent = 1;
    group.mac_CellGroupConfig.m.dataInactivityTimerPresent = 1;
    group.mac_CellGroupConfig.dataInactivityTimer.t = T_MAC_CellGroupConfig_dataInactivityTimer_setup;
    group.mac_CellGroupConfig.dataInactivityTimer.u.setup = 99;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre("CellGroupConfig.cellGroupId: 4 is not in 0..3",
                            "CellGroupConfig.rlc-BearerToAddModList[0].logicalChannelIdentity: 33 is not in 1..32",
                            "CellGroupConfig.rlc-BearerToAddModList[1].servedRadioBearer: tag 0 is not in 1..2",
                            "CellGroupConfig.rlc-BearerToAddModList[1].rlc-Config.um-Bi-Directional: a null pointer",
                            "CellGroupConfig.rlc-BearerToReleaseList: 0 elements, not 1..32",
                            "CellGroupConfig.mac-CellGroupConfig.dataInactivityTimer.setup: 99 is not in 0..15"));
}

TEST_F(Check, AFindingHasItsParts)
{
    const auto keep = [](void* arg, const RtxError* finding)
    {
        *static_cast<RtxError*>(arg) = *finding;
        return 0;
    };
    CellGroupConfig group{};
    group.m.rlc_BearerToReleaseListPresent = 1;
    group.rlc_BearerToReleaseList.n = 2;
    group.rlc_BearerToReleaseList.elem[0] = 1;
    group.rlc_BearerToReleaseList.elem[1] = 77;
    RtxError finding{};
    ASSERT_EQ(asn1Check_CellGroupConfig(&context, &group, keep, &finding), 1);
    EXPECT_EQ(finding.status, RTX_E_RANGE);
    EXPECT_EQ(finding.value, 77);
    EXPECT_EQ(finding.lower, 1);
    EXPECT_EQ(finding.upper, 32);
    EXPECT_EQ(finding.hasOffset, 0);
    ASSERT_EQ(finding.depth, 3U);
    EXPECT_EQ(finding.path[0].name, nullptr);
    EXPECT_EQ(finding.path[0].index, 1U);
    EXPECT_STREQ(finding.path[1].name, "rlc-BearerToReleaseList");
    EXPECT_STREQ(finding.path[2].name, "CellGroupConfig");
}

TEST_F(Check, EndsWhenTheSinkSaysSo)
{
    test::Numbers numbers{};
    numbers.n = 5;
    Lines lines;
    EXPECT_EQ(rtxCheck(&context, &test::numbersType, &numbers, endAtTheSecond, &lines), 2);
    EXPECT_THAT(lines, ElementsAre("Numbers[0]: 0 is not in 1..5", "Numbers[1]: 0 is not in 1..5"));
    EXPECT_EQ(rtxCheck(&context, &test::numbersType, &numbers, nullptr, nullptr), 5);
}

TEST_F(Check, WantsAContextATypeAndAValue)
{
    const test::Numbers numbers{};
    EXPECT_EQ(rtxCheck(nullptr, &test::numbersType, &numbers, nullptr, nullptr), RTX_E_NULL);
    EXPECT_EQ(rtxCheck(&context, nullptr, &numbers, nullptr, nullptr), RTX_E_NULL);
    EXPECT_THAT(findings(test::numbersType, nullptr), ElementsAre("Numbers: a null pointer"));
}

TEST_F(Check, LeavesTheContextsErrorAlone)
{
    rtx::setError(context, RTX_E_PADDING);
    const test::Numbers numbers{};
    EXPECT_EQ(rtxCheck(&context, &test::numbersType, &numbers, nullptr, nullptr), 1);
    EXPECT_EQ(context.error.status, RTX_E_PADDING);
}

TEST_F(Check, WhatIsNotSentIsNotChecked)
{
    MAC_CellGroupConfig mac{};
    mac.drx_Config.t = 9; // absent
    mac.m.dataInactivityTimerPresent = 1;
    EXPECT_THAT(FINDINGS(MAC_CellGroupConfig, mac), IsEmpty());
    mac.m._v2ExtPresent = 1;
    EXPECT_THAT(FINDINGS(MAC_CellGroupConfig, mac),
                ElementsAre("MAC-CellGroupConfig.dataInactivityTimer: tag 0 is not in 1..2"));
}

TEST_F(Check, ANullPointerStandsForTheEmptyElement)
{
    PDCCH_ConfigCommon empty{};
    BWP_DownlinkCommon bwp{};
    bwp.m.pdcch_ConfigCommonPresent = 1;
    bwp.pdcch_ConfigCommon.t = T_BWP_DownlinkCommon_pdcch_ConfigCommon_setup;
    EXPECT_THAT(FINDINGS(BWP_DownlinkCommon, bwp), IsEmpty());
    bwp.pdcch_ConfigCommon.u.setup = &empty;
    EXPECT_THAT(FINDINGS(BWP_DownlinkCommon, bwp),
                ElementsAre("BWP-DownlinkCommon.pdcch-ConfigCommon.setup: a pointer out of the context's heap"));
    bwp.pdcch_ConfigCommon.u.setup = make<PDCCH_ConfigCommon>();
    EXPECT_THAT(FINDINGS(BWP_DownlinkCommon, bwp), IsEmpty());
}

TEST_F(Check, AListOfTheWrongLengthIsLookedIntoAsFarAsItMayGo)
{
    CellGroupConfig group{};
    group.m.rlc_BearerToAddModListPresent = 1;
    OSRTDList& list = group.rlc_BearerToAddModList;
    for (int i = 0; i < 33; ++i)
    {
        append<RLC_BearerConfig>(list)->logicalChannelIdentity = i == 31 || i == 32 ? 0 : 1;
    }
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre("CellGroupConfig.rlc-BearerToAddModList: 33 elements, not 1..32",
                            "CellGroupConfig.rlc-BearerToAddModList[31].logicalChannelIdentity: 0 is not in 1..32"));
    list.count = UINT32_MAX;
    list.tail->next = list.head;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre("CellGroupConfig.rlc-BearerToAddModList: 4294967295 elements, not 1..32",
                            "CellGroupConfig.rlc-BearerToAddModList[31].logicalChannelIdentity: 0 is not in 1..32"));
}

TEST_F(Check, AListIsFollowedUpToItsFirstBadNode)
{
    CellGroupConfig group{};
    group.m.rlc_BearerToAddModListPresent = 1;
    OSRTDList& list = group.rlc_BearerToAddModList;
    append<RLC_BearerConfig>(list)->logicalChannelIdentity = 1;
    append<RLC_BearerConfig>(list)->logicalChannelIdentity = 2;
    list.count = 3;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre("CellGroupConfig.rlc-BearerToAddModList: the list counts 3 elements and ends after 2"));
    OSRTDListNode foreign{};
    list.tail->next = &foreign;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre("CellGroupConfig.rlc-BearerToAddModList[2]: a pointer out of the context's heap"));
    list.head->data = nullptr;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre("CellGroupConfig.rlc-BearerToAddModList[0]: a null pointer",
                            "CellGroupConfig.rlc-BearerToAddModList[2]: a pointer out of the context's heap"));
    // A list that goes back into itself is sent, round by round.
    list.head->data = list.tail->data;
    list.tail->next = list.head;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group), IsEmpty());
}

TEST_F(Check, APointerIsFollowedWhereItsTypeMayStand)
{
    auto* const two = static_cast<OSOCTET*>(cleared(2 * sizeof(ASN1BitStr32)));
    test::Pick pick{};
    pick.t = 4;
    pick.u.map = reinterpret_cast<ASN1BitStr32*>(two + 4);
    pick.u.map->numbits = 5;
    EXPECT_THAT(findings(test::pickType, &pick), IsEmpty());
    pick.u.map = reinterpret_cast<ASN1BitStr32*>(two + 2);
    EXPECT_THAT(findings(test::pickType, &pick), ElementsAre("Pick.map: a pointer out of the context's heap"));
}

TEST_F(Check, UnknownAdditions)
{
    CellGroupConfig group{};
    OSRTDList& list = group.extElem1;
    auto* const first = append<ASN1OpenType>(list);
    auto* const second = append<ASN1OpenType>(list);
    const std::string path = "CellGroupConfig.extElem1";
    const std::string nothing = ": an extension is announced and has no addition";
    second->index = 3;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group), ElementsAre(path + "[0]" + nothing, path + "[1]" + nothing));
    OSOCTET octets[2] = {1, 2};
    first->numocts = second->numocts = 2;
    first->data = octets;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre(path + "[0]: a pointer out of the context's heap", path + "[1]: a null pointer"));
    first->data = static_cast<OSOCTET*>(cleared(2));
    second->data = static_cast<OSOCTET*>(cleared(2));
    EXPECT_THAT(FINDINGS(CellGroupConfig, group), IsEmpty());

    // A known addition is sent before their octets and after the places that they take.
    group.m._v2ExtPresent = 1;
    group.m.reportUplinkTxDirectCurrent_v1530Present = 1;
    group.reportUplinkTxDirectCurrent_v1530 = 1;
    const std::string known = "CellGroupConfig.reportUplinkTxDirectCurrent-v1530: 1 is not in 0..0";
    second->data = octets;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre(known, path + "[1]: a pointer out of the context's heap"));
    second->index = 0;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group), ElementsAre(path + "[1]" + nothing, known));
    second->index = 16382; // behind the one that is known
    EXPECT_THAT(FINDINGS(CellGroupConfig, group), ElementsAre(path + ": 16384 elements, not 0..16383", known));
    second->index = 16381;
    list.count = 3;
    EXPECT_THAT(FINDINGS(CellGroupConfig, group),
                ElementsAre(path + ": the list counts 3 elements and ends after 2", known,
                            path + "[1]: a pointer out of the context's heap"));
}

TEST_F(Check, AnUnknownAlternativeHasItsOctets)
{
    test::Pick pick{};
    pick.t = 7;
    const char* const line = "Pick: tag 7 is not in 1..5";
    EXPECT_THAT(findings(test::pickType, &pick), ElementsAre(line));
    auto* const open = make<ASN1OpenType>();
    pick.u.extElem1 = open;
    EXPECT_THAT(findings(test::pickType, &pick), ElementsAre(line));
    open->data = make<OSOCTET>();
    EXPECT_THAT(findings(test::pickType, &pick), ElementsAre(line));
    open->numocts = 1;
    EXPECT_THAT(findings(test::pickType, &pick), IsEmpty());
    open->numocts = UINT32_MAX;
    EXPECT_THAT(findings(test::pickType, &pick), ElementsAre(line));
}

// Random trees

// What the encoder says of a tree: its error's line, empty when it takes it.
std::string refusal(OSCTXT& context, const RtxPdu& named, const void* value)
{
    static std::vector<OSOCTET> octets(1 << 20);
    EXPECT_EQ(pu_setBuffer(&context, octets.data(), octets.size(), 0), RTX_OK);
    (void)named.encode(&context, value);
    return lineOf(context.error);
}

struct Tally
{
    unsigned trees = 0;
    unsigned refused = 0;
    unsigned taken = 0; // in spite of what was done to them
    uint64_t findings = 0;
    std::map<std::string, unsigned> faults; // that alone had the tree refused
};

const RtxPdu& cellGroupConfig()
{
    return *std::find_if(std::begin(rtxPdus), std::end(rtxPdus),
                         [](const RtxPdu& pdu) { return std::strcmp(pdu.name, "CellGroupConfig") == 0; });
}

void tryTree(const RtxPdu& named, uint64_t seed, Tally& tally)
{
    SCOPED_TRACE(std::string(named.name) + ", seed " + std::to_string(seed));
    OSCTXT context;
    ASSERT_EQ(rtxInitContext(&context), RTX_OK);
    test::RandomTree random(context, seed);
    void* const value = random.make(*named.type);
    Lines lines;
    EXPECT_EQ(rtxCheck(&context, named.type, value, collect, &lines), 0);
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(refusal(context, named, value), "");

    const auto done = random.spoil(*named.type, value, 1 + static_cast<unsigned>(seed % 3));
    lines.clear();
    const int64_t found = rtxCheck(&context, named.type, value, collect, &lines);
    EXPECT_EQ(found, static_cast<int64_t>(lines.size()));
    EXPECT_EQ(refusal(context, named, value), lines.empty() ? "" : lines.front()) << testing::PrintToString(done);
    ++tally.trees;
    ++(lines.empty() ? tally.taken : tally.refused);
    tally.findings += lines.size();
    if (done.size() == 1 && !lines.empty())
    {
        ++tally.faults[done.front()];
    }
    rtFreeContext(&context);
}

void print(const char* what, const Tally& tally)
{
    std::printf("%s: %u trees, %u refused with %llu findings, %u taken; single faults:", what, tally.trees,
                tally.refused, static_cast<unsigned long long>(tally.findings), tally.taken);
    for (const auto& [fault, number] : tally.faults)
    {
        std::printf(" %s %u", fault.c_str(), number);
    }
    std::printf("\n");
}

TEST(RandomTrees, TheEncoderRefusesWhatHasAFindingAndSaysTheFirst)
{
    Tally tally;
    for (uint64_t seed = 0; seed < 3000; ++seed)
    {
        tryTree(cellGroupConfig(), seed, tally);
    }
    print("CellGroupConfig", tally);
    EXPECT_GT(tally.refused, tally.trees / 2);
    for (const char* const fault :
         {"above", "addition", "addition's index", "addition's node", "below", "bits", "count", "empty addition", "end",
          "loop", "node", "number of additions", "pointer", "tag", "unknown alternative"})
    {
        EXPECT_NE(tally.faults[fault], 0U) << fault;
    }
}

TEST(RandomTrees, OfEachNamedType)
{
    Tally tally;
    for (const RtxPdu& named : rtxPdus)
    {
        for (uint64_t seed = 0; seed < 60; ++seed)
        {
            tryTree(named, seed, tally);
        }
    }
    print("named types", tally);
    EXPECT_GT(tally.refused, tally.trees / 2);
}

} // namespace
