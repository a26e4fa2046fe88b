// The calls around deltas as a program meets them first: what they refuse, and what they say of the smallest trees.
// tests/delta has what deltas do.

#include "NR-RRC-Definitions.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <set>
#include <string>

namespace
{

class Delta : public testing::Test
{
protected:
    Delta()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
        a.m.physicalCellGroupConfigPresent = b.m.physicalCellGroupConfigPresent = 1;
        b.physicalCellGroupConfig.pdsch_HARQ_ACK_Codebook = 1;
    }
    ~Delta() override
    {
        rtFreeContext(&ctxt);
    }

    template <typename T>
    T* made()
    {
        return static_cast<T*>(rtxMemHeapAlloc(&ctxt, sizeof(T)));
    }

    ASN1OpenType* open(OSUINT32 index, OSOCTET content)
    {
        auto* const made = this->made<ASN1OpenType>();
        made->data = static_cast<OSOCTET*>(rtxMemHeapAlloc(&ctxt, 1));
        *made->data = content;
        made->numocts = 1;
        made->index = index;
        return made;
    }

    void append(OSRTDList& list, void* data)
    {
        auto* const node = made<OSRTDListNode>();
        node->data = data;
        rtxDListAppendNode(&list, node);
    }

    // A bearer of a release that is not known yet: another alternative of rlc-Config, and additions.
    RLC_BearerConfig* bearerOfTomorrow(CellGroupConfig& group, unsigned id, OSOCTET content)
    {
        auto* const bearer = made<RLC_BearerConfig>();
        bearer->logicalChannelIdentity = static_cast<LogicalChannelIdentity>(id);
        bearer->m.servedRadioBearerPresent = 1;
        bearer->servedRadioBearer.t = 2;
        bearer->servedRadioBearer.u.drb_Identity = 1;
        bearer->m.rlc_ConfigPresent = bearer->m.mac_LogicalChannelConfigPresent = 1;
        bearer->rlc_Config.t = 5;
        bearer->rlc_Config.u.extElem1 = open(0, content);
        group.m.rlc_BearerToAddModListPresent = 1;
        append(group.rlc_BearerToAddModList, bearer);
        return bearer;
    }

    // Whether rtxDiff's delta from a to b leads to b.
    void expectDelta(int status)
    {
        to = {};
        ASSERT_EQ(status, rtxDiff(&ctxt, type, &a, &b, nullptr, &to, nullptr));
        EXPECT_EQ(1, rtxDeltaHolds(&ctxt, type, &a, status == RTX_DELTA_NOTHING ? nullptr : &to, &b));
    }

    const RtxType* type = asn1Type_CellGroupConfig();
    CellGroupConfig a{};
    CellGroupConfig b{}; // differs in one member
    CellGroupConfig to{};
    OSCTXT ctxt;
};

TEST_F(Delta, NullArgumentsAreRefused)
{
    EXPECT_EQ(RTX_E_NULL, rtxEqual(nullptr, type, &a, &b));
    EXPECT_EQ(RTX_E_NULL, rtxEqual(&ctxt, nullptr, &a, &b));
    EXPECT_EQ(RTX_E_NULL, rtxEqual(&ctxt, type, nullptr, &b));
    EXPECT_EQ(RTX_E_NULL, rtxEqual(&ctxt, type, &a, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxState(nullptr, type, &a, &to));
    EXPECT_EQ(RTX_E_NULL, rtxState(&ctxt, nullptr, &a, &to));
    EXPECT_EQ(RTX_E_NULL, rtxState(&ctxt, type, nullptr, &to));
    EXPECT_EQ(RTX_E_NULL, rtxState(&ctxt, type, &a, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxApply(nullptr, type, &a, &b, &to, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxApply(&ctxt, nullptr, &a, &b, &to, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxApply(&ctxt, type, &a, nullptr, &to, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxApply(&ctxt, type, &a, &b, nullptr, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxDiff(nullptr, type, &a, &b, nullptr, &to, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxDiff(&ctxt, nullptr, &a, &b, nullptr, &to, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxDiff(&ctxt, type, &a, nullptr, nullptr, &to, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxDiff(&ctxt, type, &a, &b, nullptr, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxDeltaHolds(nullptr, type, &a, &b, &b));
    EXPECT_EQ(RTX_E_NULL, rtxDeltaHolds(&ctxt, nullptr, &a, &b, &b));
    EXPECT_EQ(RTX_E_NULL, rtxDeltaHolds(&ctxt, type, &a, &b, nullptr));
}

TEST_F(Delta, TreesAreEqualWhenTheirOctetsAre)
{
    EXPECT_EQ(0, rtxEqual(&ctxt, type, &a, &b));
    b.physicalCellGroupConfig = a.physicalCellGroupConfig;
    EXPECT_EQ(1, rtxEqual(&ctxt, type, &a, &b));
    b.m.physicalCellGroupConfigPresent = 0;
    EXPECT_EQ(0, rtxEqual(&ctxt, type, &a, &b));
    b.cellGroupId = 4; // of 0..3
    EXPECT_EQ(RTX_E_RANGE, rtxEqual(&ctxt, type, &a, &b));
    EXPECT_EQ(RTX_E_RANGE, rtxEqual(&ctxt, type, &b, &a));
}

TEST_F(Delta, ADeltaHoldsWhenItLeadsToWhatIsWanted)
{
    EXPECT_EQ(1, rtxDeltaHolds(&ctxt, type, nullptr, &b, &b));
    EXPECT_EQ(1, rtxDeltaHolds(&ctxt, type, &a, &b, &b));
    EXPECT_EQ(0, rtxDeltaHolds(&ctxt, type, &a, &b, &a));
    EXPECT_EQ(1, rtxDeltaHolds(&ctxt, type, &a, nullptr, &a)) << "nothing was sent, nothing had to be";
    EXPECT_EQ(0, rtxDeltaHolds(&ctxt, type, &a, nullptr, &b));
    ASSERT_EQ(RTX_DELTA_TO_SEND, rtxDiff(&ctxt, type, &a, &b, nullptr, &to, nullptr));
    EXPECT_EQ(1, rtxDeltaHolds(&ctxt, type, &a, &to, &b));
    b.cellGroupId = 4;
    EXPECT_EQ(RTX_E_RANGE, rtxDeltaHolds(&ctxt, type, &a, nullptr, &b));
    EXPECT_EQ(RTX_E_RANGE, rtxDeltaHolds(&ctxt, type, &b, nullptr, &a));
    EXPECT_EQ(RTX_E_RANGE, rtxDeltaHolds(&ctxt, type, &a, &b, &a));
}

TEST_F(Delta, WrongTreesAreRefusedWithTheirMember)
{
    a.cellGroupId = 4;
    char text[128];
    EXPECT_EQ(RTX_E_RANGE, rtxState(&ctxt, type, &a, &to));
    (void)rtxErrFormat(&ctxt, text, sizeof text);
    EXPECT_STREQ("CellGroupConfig.cellGroupId: 4 is not in 0..3", text);
    EXPECT_EQ(RTX_E_RANGE, rtxApply(&ctxt, type, &a, &b, &to, nullptr, nullptr));
    (void)rtxErrFormat(&ctxt, text, sizeof text);
    EXPECT_STREQ("CellGroupConfig.cellGroupId: 4 is not in 0..3", text);
}

TEST_F(Delta, AnExhaustedHeapIsAnError)
{
    rtxMemHeapSetLimit(&ctxt, 0);
    EXPECT_EQ(RTX_E_HEAP, rtxApply(&ctxt, type, &a, &b, &to, nullptr, nullptr));
    EXPECT_EQ(RTX_E_HEAP, rtxDeltaHolds(&ctxt, type, &a, &b, &b));
    EXPECT_EQ(RTX_E_HEAP, rtxDiff(&ctxt, type, &a, &b, nullptr, &to, nullptr));
}

TEST_F(Delta, AlternativesOfTomorrowAreComparedByTheirOctets)
{
    b.physicalCellGroupConfig = a.physicalCellGroupConfig;
    bearerOfTomorrow(a, 4, 0x11);
    RLC_BearerConfig* const next = bearerOfTomorrow(b, 4, 0x11);
    EXPECT_EQ(1, rtxEqual(&ctxt, type, &a, &b));
    expectDelta(RTX_DELTA_NOTHING);
    *next->rlc_Config.u.extElem1->data = 0x12;
    EXPECT_EQ(0, rtxEqual(&ctxt, type, &a, &b));
    expectDelta(RTX_DELTA_TO_SEND);
    const auto* const sent = static_cast<const RLC_BearerConfig*>(to.rlc_BearerToAddModList.head->data);
    ASSERT_EQ(5U, sent->rlc_Config.t);
    EXPECT_EQ(0x12, *sent->rlc_Config.u.extElem1->data);
}

TEST_F(Delta, AdditionsOfTomorrowStayUntilTheyAreSentAgain)
{
    RLC_BearerConfig* const held = bearerOfTomorrow(a, 4, 0x11);
    RLC_BearerConfig* const next = bearerOfTomorrow(b, 4, 0x11);
    append(held->extElem1, open(0, 0xA0));
    append(held->extElem1, open(2, 0xA2));
    append(next->extElem1, open(1, 0xB1));
    append(next->extElem1, open(2, 0xB2));
    append(next->extElem1, open(5, 0xB5));
    ASSERT_EQ(RTX_OK, rtxApply(&ctxt, type, &a, &b, &to, nullptr, nullptr));
    const auto* const after = static_cast<const RLC_BearerConfig*>(to.rlc_BearerToAddModList.head->data);
    std::string told;
    for (const OSRTDListNode* node = after->extElem1.head; node != nullptr; node = node->next)
    {
        const auto* const one = static_cast<const ASN1OpenType*>(node->data);
        told += std::to_string(one->index) + ":" + std::to_string(*one->data) + " ";
    }
    EXPECT_EQ("0:160 1:177 2:178 5:181 ", told);
    EXPECT_EQ(4U, after->extElem1.count);
}

// Each request for memory fails in turn: an error that says so, and neither a crash nor half a delta taken for one.
TEST_F(Delta, WhereverTheHeapEndsItIsAnError)
{
    for (unsigned id = 1; id <= 6; ++id)
    {
        CellGroupConfig* const only = id % 3 == 0 ? &a : &b;
        append(bearerOfTomorrow(*only, id, 0x11)->extElem1, open(1, 0xA0));
        if (id % 3 == 2)
        {
            append(bearerOfTomorrow(a, id, 0x22)->extElem1, open(1, 0xA1));
        }
    }
    const auto failing = [&](const auto& call)
    {
        unsigned failures = 0;
        for (size_t limit = 0;; limit += 16)
        {
            rtxMemHeapSetLimit(&ctxt, limit);
            to = {};
            const int status = call();
            rtxMemHeapSetLimit(&ctxt, 1'000'000);
            if (status != RTX_E_HEAP)
            {
                EXPECT_GE(status, 0);
                return failures;
            }
            EXPECT_EQ(RTX_E_HEAP, ctxt.error.status);
            ++failures;
        }
    };
    EXPECT_GT(failing([&] { return rtxState(&ctxt, type, &a, &to); }), 20U);
    EXPECT_GT(failing([&] { return rtxApply(&ctxt, type, &a, &b, &to, nullptr, nullptr); }), 50U);
    EXPECT_GT(failing([&] { return rtxDiff(&ctxt, type, &a, &b, nullptr, &to, nullptr); }), 50U);
    EXPECT_EQ(1, rtxDeltaHolds(&ctxt, type, &a, &to, &b));
    EXPECT_GT(failing([&] { return rtxDeltaHolds(&ctxt, type, &a, &to, &b); }), 50U);
}

// A refusal ends the walk: what would come behind it asks for no memory that could be missing.
TEST_F(Delta, NothingBehindARefusalNeedsMemory)
{
    bearerOfTomorrow(b, 4, 0x11)->m.servedRadioBearerPresent = 0;
    bearerOfTomorrow(b, 4, 0x11);
    unsigned failures = 0;
    int status = RTX_E_HEAP;
    for (size_t limit = 0; status == RTX_E_HEAP; limit += 16, ++failures)
    {
        rtxMemHeapSetLimit(&ctxt, limit);
        status = rtxApply(&ctxt, type, &a, &b, &to, nullptr, nullptr);
        EXPECT_EQ(status, ctxt.error.status);
    }
    EXPECT_EQ(RTX_E_DELTA, status);
    EXPECT_GT(failures, 5U);
}

TEST_F(Delta, AReasonThatNobodyKnowsIsSaidToBeSo)
{
    RtxDeltaItem item{};
    item.kind = RTX_DELTA_SENT;
    item.reason = 9999;
    char text[128];
    const size_t length = rtxDeltaFormat(&item, text, sizeof text);
    EXPECT_EQ(std::string(text).size(), length);
    EXPECT_NE(std::string::npos, std::string(text).find('?')) << text;
}

TEST_F(Delta, EachReasonHasWordsOfItsOwn)
{
    std::set<std::string> lines;
    for (OSINT32 reason = 1; reason <= RTX_DELTA_OTHER_IDENTITY; ++reason)
    {
        RtxDeltaItem item{};
        item.kind = RTX_DELTA_SENT;
        item.reason = reason;
        char text[256];
        (void)rtxDeltaFormat(&item, text, sizeof text);
        EXPECT_EQ(nullptr, std::strchr(text, '?')) << reason;
        EXPECT_TRUE(lines.insert(text).second) << text;
    }
}

TEST_F(Delta, WhatIsSentSaysWhy)
{
    const auto words = [](OSINT32 reason)
    {
        RtxDeltaItem item{};
        item.kind = RTX_DELTA_SENT;
        item.reason = reason;
        char text[256];
        (void)rtxDeltaFormat(&item, text, sizeof text);
        const std::string line = text;
        return line.substr(line.find(": ") + 2);
    };
    EXPECT_EQ("sent: changed", words(RTX_DELTA_CHANGED));
    EXPECT_EQ("sent: added", words(RTX_DELTA_ADDED));
    EXPECT_EQ("sent: gone", words(RTX_DELTA_GONE));
    EXPECT_EQ("sent: released and added again", words(RTX_DELTA_RECREATED));
    EXPECT_EQ("sent unchanged: an option asks for it", words(RTX_DELTA_FORCED));
}

} // namespace
