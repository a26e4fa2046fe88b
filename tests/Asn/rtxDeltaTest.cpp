// The calls around deltas as a program meets them first: what they refuse, and what they say of the smallest trees.
// tests/delta has what deltas do.

#include "NR-RRC-Definitions.h"

#include <gtest/gtest.h>

#include <array>
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

} // namespace
