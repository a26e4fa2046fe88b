// Writing and reading lose nothing: a random tree, its JER and its flat lines, read again, have the same octets.
#include "NR-RRC-Pdus.h"
#include "readText.h"

#include <gtest/gtest.h>

#include <cstring>

#include "../Asn/randomTree.h"

namespace
{

#ifdef FEWER_VALUES
constexpr uint64_t cellGroups = 1000;
constexpr uint64_t ofEachType = 10;
#else
constexpr uint64_t cellGroups = 10000;
constexpr uint64_t ofEachType = 100;
#endif

void append(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

std::vector<OSOCTET> encode(const RtxPdu& pdu, OSCTXT& context, const void* value)
{
    static std::vector<OSOCTET> octets(1 << 20);
    EXPECT_EQ(pu_setBuffer(&context, octets.data(), octets.size(), 0), RTX_OK);
    EXPECT_EQ(pdu.encode(&context, value), RTX_OK);
    const auto length = static_cast<std::ptrdiff_t>(pu_getMsgLen(&context));
    return {octets.begin(), octets.begin() + length};
}

const RtxPdu& cellGroupConfig()
{
    return *std::find_if(std::begin(rtxPdus), std::end(rtxPdus),
                         [](const RtxPdu& pdu) { return std::strcmp(pdu.name, "CellGroupConfig") == 0; });
}

struct Tally
{
    uint64_t trees = 0;
    uint64_t octets = 0;
    uint64_t json = 0;
    uint64_t flat = 0;
};

void expectSame(const RtxPdu& pdu, test::Read* read, const std::string& text, const std::vector<OSOCTET>& octets)
{
    test::Tree tree(*pdu.type);
    const auto mistakes = tree.read(read, text);
    ASSERT_TRUE(mistakes.empty()) << testing::PrintToString(mistakes) << '\n' << text;
    ASSERT_EQ(encode(pdu, tree.ctxt, tree.value()), octets) << text;
}

void tryTree(const RtxPdu& pdu, uint64_t seed, Tally& tally)
{
    SCOPED_TRACE(std::string(pdu.name) + ", seed " + std::to_string(seed));
    OSCTXT context;
    ASSERT_EQ(rtxInitContext(&context), RTX_OK);
    const void* const value = test::RandomTree(context, seed).make(*pdu.type);
    const std::vector<OSOCTET> octets = encode(pdu, context, value);
    std::string json;
    EXPECT_EQ(rtxToJson(&context, pdu.type, value, seed % 2 == 0 ? RTX_COMPACT : RTX_INDENTED, append, &json), 0);
    std::string flat;
    EXPECT_EQ(rtxToFlat(&context, pdu.type, value, append, &flat), 0);
    rtFreeContext(&context);

    expectSame(pdu, asn1FromJson, json, octets);
    expectSame(pdu, asn1FromFlat, flat, octets);
    ++tally.trees;
    tally.octets += octets.size();
    tally.json += json.size();
    tally.flat += flat.size();
}

void print(const char* what, const Tally& tally)
{
    std::printf("%s: %llu trees of %llu octets, %llu of JER, %llu of flat lines\n", what,
                static_cast<unsigned long long>(tally.trees), static_cast<unsigned long long>(tally.octets),
                static_cast<unsigned long long>(tally.json), static_cast<unsigned long long>(tally.flat));
}

// docs/asn1.md shows it.
TEST(FromJson, MistakeInACellGroup)
{
    test::Tree tree(*cellGroupConfig().type);
    const test::Mistake mistake = {1, 19, "CellGroupConfig",
                                   "unknown member \"mac-CellGroupCfg\"; did you mean \"mac-CellGroupConfig\"?"};
    EXPECT_EQ(tree.read(asn1FromJson, R"({"cellGroupId":0, "mac-CellGroupCfg":{}})"), std::vector{mistake});
}

TEST(RoundTrip, CellGroupConfig)
{
    Tally tally;
    for (uint64_t seed = 0; seed < cellGroups && !HasFatalFailure(); ++seed)
    {
        tryTree(cellGroupConfig(), seed, tally);
    }
    print("CellGroupConfig", tally);
    EXPECT_EQ(tally.trees, cellGroups);
}

TEST(RoundTrip, EachNamedType)
{
    Tally tally;
    for (const RtxPdu& pdu : rtxPdus)
    {
        for (uint64_t seed = 0; seed < ofEachType && !HasFatalFailure(); ++seed)
        {
            tryTree(pdu, seed, tally);
        }
    }
    print("named types", tally);
    EXPECT_EQ(tally.trees, ofEachType * std::size(rtxPdus));
}

} // namespace
