// Element trees of flat lines, for tests of what holds between their members.
#ifndef FLATTREES_H
#define FLATTREES_H

#include "asn1FromText.h"

#include "NR-RRC-Definitions.h"
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace test
{

class FlatTrees : public testing::Test
{
protected:
    FlatTrees()
    {
        rtxInitContext(&context_);
    }
    ~FlatTrees() override
    {
        rtFreeContext(&context_);
    }

    CellGroupConfig* tree()
    {
        return static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&context_, sizeof(CellGroupConfig)));
    }

    // A mistake in the lines, or a value out of its range, fails the test.
    CellGroupConfig* read(const std::vector<std::string>& lines)
    {
        std::string text;
        for (const std::string& line : lines)
        {
            text += line + "\n";
        }
        CellGroupConfig* const made = tree();
        const auto mistake = [](void*, const Asn1Mistake* found)
        {
            ADD_FAILURE() << found->path << ": " << found->words;
        };
        EXPECT_EQ(
            0, asn1FromFlat(&context_, asn1Type_CellGroupConfig(), made, text.data(), text.size(), mistake, nullptr));
        const auto finding = [](void*, const RtxError* found)
        {
            char line[500];
            rtxErrorFormat(found, line, sizeof line);
            ADD_FAILURE() << line;
            return 0;
        };
        EXPECT_EQ(0, asn1Check_CellGroupConfig(&context_, made, finding, nullptr));
        return made;
    }

    OSCTXT context_;
};

} // namespace test

#endif
