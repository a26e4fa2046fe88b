#include "rtxType.h"
#include "support/CapturedOutput.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace
{

class Error : public testing::Test
{
protected:
    Error()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }

    ~Error() override
    {
        rtFreeContext(&ctxt);
    }

    std::string line() const
    {
        char text[8192];
        const size_t length = rtxErrFormat(&ctxt, text, sizeof text);
        EXPECT_EQ(std::strlen(text), length);
        return text;
    }

    std::string lineOf(RtxStatus status, int64_t value = 0, int64_t lower = 0, int64_t upper = 0)
    {
        rtxErrReset(&ctxt);
        EXPECT_EQ(status, rtx::setError(ctxt, status, value, lower, upper));
        return line();
    }

    OSCTXT ctxt;
};

TEST_F(Error, NoneIsEmpty)
{
    char text[4] = "xyz";
    EXPECT_EQ(0U, rtxErrFormat(&ctxt, text, sizeof text));
    EXPECT_STREQ("", text);
    EXPECT_EQ(0U, rtxErrFormat(&ctxt, nullptr, 0));
}

TEST_F(Error, EachReasonInPlainWords)
{
    EXPECT_EQ("9 is not in 0..7", lineOf(RTX_E_RANGE, 9, 0, 7));
    EXPECT_EQ("-9 is not in -8..-1", lineOf(RTX_E_RANGE, -9, -8, -1));
    EXPECT_EQ("4294967295 is not in 0..0", lineOf(RTX_E_RANGE, 4294967295, 0, 0));
    EXPECT_EQ("33 elements, not 1..32", lineOf(RTX_E_SIZE, 33, 1, 32));
    EXPECT_EQ("1 element, not 2..4", lineOf(RTX_E_SIZE, 1, 2, 4));
    EXPECT_EQ("3 elements, not 4", lineOf(RTX_E_SIZE, 3, 4, 4));
    EXPECT_EQ("tag 0 is not in 1..4", lineOf(RTX_E_CHOICE, 0, 1, 4));
    EXPECT_EQ("a bit string of 28 bits, not 14", lineOf(RTX_E_BITS, 28, 14));
    EXPECT_EQ("a bit string of 1 bit, not 14", lineOf(RTX_E_BITS, 1, 14));
    EXPECT_EQ("a null pointer", lineOf(RTX_E_NULL));
    EXPECT_EQ("a pointer out of the context's heap", lineOf(RTX_E_FOREIGN));
    EXPECT_EQ("the list counts 3 elements and ends after 2", lineOf(RTX_E_LIST, 3, 2));
    EXPECT_EQ("the list counts 1 element and ends after 0", lineOf(RTX_E_LIST, 1, 0));
    EXPECT_EQ("the encoding does not fit into 8192 octets", lineOf(RTX_E_OVERFLOW, 8192));
    EXPECT_EQ("the encoding does not fit into 1 octet", lineOf(RTX_E_OVERFLOW, 1));
    EXPECT_EQ("no buffer", lineOf(RTX_E_NOBUFFER));
    EXPECT_EQ("aligned PER is not available", lineOf(RTX_E_ALIGNED));
    EXPECT_EQ("the heap is exhausted: 48 octets were asked for", lineOf(RTX_E_HEAP, 48));
    EXPECT_EQ("the heap is exhausted: 1 octet was asked for", lineOf(RTX_E_HEAP, 1));
    EXPECT_EQ("the input ends before 5 more bits", lineOf(RTX_E_END, 5));
    EXPECT_EQ("the input ends before 1 more bit", lineOf(RTX_E_END, 1));
    EXPECT_EQ("a padding bit is set", lineOf(RTX_E_PADDING));
    EXPECT_EQ("3 octets follow the encoding", lineOf(RTX_E_SURPLUS, 3));
    EXPECT_EQ("1 octet follows the encoding", lineOf(RTX_E_SURPLUS, 1));
    EXPECT_EQ("a length determinant 0xC5 that PER does not allow", lineOf(RTX_E_LENGTH, 0xC5));
    EXPECT_EQ("an extension is announced and has no addition", lineOf(RTX_E_EXTENSION));
    EXPECT_EQ("the element tree is deeper than 48", lineOf(RTX_E_DEPTH));
    EXPECT_EQ("error -31", lineOf(static_cast<RtxStatus>(-31)));
}

TEST_F(Error, ThePathStandsOutermostFirst)
{
    EXPECT_EQ(RTX_E_RANGE, rtx::setError(ctxt, RTX_E_RANGE, 9, 0, 7));
    rtx::pushName(ctxt, "t304");
    rtx::pushName(ctxt, "reconfigurationWithSync");
    rtx::pushName(ctxt, "spCellConfig");
    rtx::pushName(ctxt, "CellGroupConfig");
    EXPECT_EQ("CellGroupConfig.spCellConfig.reconfigurationWithSync.t304: 9 is not in 0..7", line());
}

TEST_F(Error, AnIndexStandsBehindItsList)
{
    EXPECT_EQ(RTX_E_NULL, rtx::setError(ctxt, RTX_E_NULL));
    rtx::pushIndex(ctxt, 0);
    rtx::pushIndex(ctxt, 12);
    rtx::pushName(ctxt, "am");
    rtx::pushIndex(ctxt, 3);
    rtx::pushName(ctxt, "rlc-BearerToAddModList");
    EXPECT_EQ("rlc-BearerToAddModList[3].am[12][0]: a null pointer", line());
}

TEST_F(Error, TheOffsetStandsLast)
{
    rtx::setError(ctxt, RTX_E_PADDING);
    ctxt.error.hasOffset = 1;
    ctxt.error.bitOffset = 123;
    rtx::pushName(ctxt, "x");
    EXPECT_EQ("x: a padding bit is set (at bit 123: octet 15, bit 3)", line());
}

TEST_F(Error, TheFirstOneStays)
{
    EXPECT_EQ(RTX_E_NULL, rtx::setError(ctxt, RTX_E_NULL));
    EXPECT_EQ(RTX_E_NULL, rtx::setError(ctxt, RTX_E_RANGE, 9, 0, 7));
    EXPECT_EQ("a null pointer", line());
}

TEST_F(Error, ResetForgetsErrorAndPath)
{
    rtx::setError(ctxt, RTX_E_PADDING);
    ctxt.error.hasOffset = 1;
    rtx::pushName(ctxt, "x");
    rtxErrReset(&ctxt);
    EXPECT_EQ("", line());
    rtx::setError(ctxt, RTX_E_NULL);
    EXPECT_EQ("a null pointer", line());
}

TEST_F(Error, AShortBufferGetsTheBeginningAndTheWholeLength)
{
    rtx::setError(ctxt, RTX_E_RANGE, 9, 0, 7);
    rtx::pushName(ctxt, "t304");
    const std::string whole = "t304: 9 is not in 0..7";
    for (size_t size = 1; size <= whole.size() + 1; ++size)
    {
        std::string text(size + 1, '#');
        EXPECT_EQ(whole.size(), rtxErrFormat(&ctxt, text.data(), size));
        EXPECT_EQ(whole.substr(0, size - 1), text.c_str());
        EXPECT_EQ('#', text[size]);
    }
    EXPECT_EQ(whole.size(), rtxErrFormat(&ctxt, nullptr, 0));
}

TEST_F(Error, APathThatIsTooLongLosesItsOuterStepsAndSaysSo)
{
    rtx::setError(ctxt, RTX_E_NULL);
    std::string expected = ": a null pointer";
    for (unsigned i = 0; i < RTX_MAX_DEPTH; ++i)
    {
        rtx::pushName(ctxt, "in");
        expected = (i + 1 < RTX_MAX_DEPTH ? ".in" : "in") + expected;
    }
    EXPECT_EQ(expected, line());
    rtx::pushName(ctxt, "out");
    EXPECT_EQ("..." + expected, line());
    rtx::pushIndex(ctxt, 1);
    EXPECT_EQ("..." + expected, line());
}

TEST_F(Error, PrintsOneLine)
{
    test::CapturedOutput output;
    rtxErrPrint(&ctxt);
    EXPECT_EQ("", output.take());
    rtx::setError(ctxt, RTX_E_RANGE, 9, 0, 7);
    rtx::pushName(ctxt, "100%s"); // a name is no format
    rtxErrPrint(&ctxt);
    EXPECT_EQ("100%s: 9 is not in 0..7\n", output.take());
}

TEST_F(Error, ALineOfAnyLengthIsPrintedWithItsCutShown)
{
    const std::string name(200, 'n');
    rtx::setError(ctxt, RTX_E_NULL);
    for (unsigned i = 0; i < RTX_MAX_DEPTH; ++i)
    {
        rtx::pushName(ctxt, name.c_str());
    }
    test::CapturedOutput output;
    rtxErrPrint(&ctxt);
    const std::string text = output.take();
    EXPECT_GT(text.size(), 1000U);
    EXPECT_EQ("n...\n", text.substr(text.size() - 5));
}

} // namespace
