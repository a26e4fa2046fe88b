// What is made of records that somebody writes by hand: what follows, what is merged, and every mistake with its place.
#include "rrcRecordFromJson.h"

#include "document.h"

#include <gmock/gmock.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class recordFromJson : public testing::Test
{
protected:
    recordFromJson() : folder_(testing::TempDir() + "recordFromJson")
    {
        std::filesystem::create_directories(folder_);
    }

    ~recordFromJson() override
    {
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
    }

    struct Told
    {
        std::vector<std::string> mistakes;
        std::vector<std::string> unread;
    };

    // The mistakes, each as FILE:LINE:COLUMN: PATH: WORDS.
    std::vector<std::string> read(const std::string& text, const char* file = nullptr)
    {
        return told(text, file).mistakes;
    }

    // What is told of fields that are not read, too.
    Told told(const std::string& text, const char* file = nullptr)
    {
        Told all;
        const auto sink = [](void* to, const RrcRecordMistake* found)
        {
            const Asn1Mistake& mistake = found->mistake;
            const std::string name = std::filesystem::path(found->file).filename().string();
            auto& [mistakes, unread] = *static_cast<Told*>(to);
            (found->isUnread != 0 ? unread : mistakes)
                .push_back((name.empty() ? name : name + ":") + std::to_string(mistake.line) + ":" +
                           std::to_string(mistake.column) + ": " + mistake.path + ": " + mistake.words);
        };
        const int count = rrcRecordFromJson(record_.get(), text.data(), text.size(), file, sink, &all);
        EXPECT_EQ(static_cast<std::size_t>(count), all.mistakes.size());
        return all;
    }

    std::string save(const std::string& name, const std::string& text)
    {
        const std::string path = folder_ + "/" + name;
        std::ofstream(path) << text;
        return path;
    }

    const std::string folder_;
    const std::unique_ptr<RrcCellGroupCfg_t> record_ = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
};

TEST_F(recordFromJson, masksCountsAndAlternativesFollow)
{
    std::memset(record_.get(), 0xA5, sizeof *record_);
    ASSERT_THAT(read(R"({
        "cellGroupId": 1,
        "rlcBearerCfg": [
            {"lchId": 4, "rbType": "drb-Identity", "rbId": 2,
             "rlcCfg": {"choice": {"amCfg": {"ulAmCfg": {"pollPdu": "infinity"}}}}},
            {"lchId": 5}
        ],
        "macCellGrpCfg": {"drxCfg": {"drxOnDurationTimer": {"milliSeconds": "ms10"},
                                     "drxLongCycleStartOffset": {"period": "ms320", "offset": 9}}}
    })"),
                IsEmpty());
    EXPECT_EQ(record_->cellGroupId, 1);
    EXPECT_EQ(record_->bitMask, RRC_CELLGROUPCFG_MAC_PRESENCE);
    EXPECT_EQ(record_->rlcBearerAddModNum, 2U);
    const RrcRlcBearerCfg_t& bearer = record_->rlcBearerCfg[0];
    EXPECT_EQ(bearer.bitMask, RRC_RLCBEARERCFG_RBTYPE_PRESENCE | RRC_RLCBEARERCFG_RLC_PRESENCE);
    EXPECT_EQ(bearer.rbType, 1);
    EXPECT_EQ(bearer.rbId, 2);
    EXPECT_EQ(bearer.rlcCfg.bitMask, RRC_RLCCFG_AM_PRESENCE);
    EXPECT_EQ(bearer.rlcCfg.choice.amCfg.ulAmCfg.pollPdu, 23);
    EXPECT_EQ(bearer.rlcCfg.choice.amCfg.dlAmCfg.tReassembly, 0);
    EXPECT_EQ(record_->rlcBearerCfg[1].bitMask, 0);
    EXPECT_EQ(record_->rlcBearerCfg[2].lchId, 0);
    const RrcDrxCfg_t& drx = record_->macCellGrpCfg.drxCfg;
    EXPECT_EQ(record_->macCellGrpCfg.bitMask, RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE);
    EXPECT_EQ(drx.bitMask, RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE);
    EXPECT_EQ(drx.drxOnDurationTimer.milliSeconds, 7);
    EXPECT_EQ(drx.drxLongCycleStartOffset.period, 12);
    EXPECT_EQ(drx.drxLongCycleStartOffset.offset, 9);
}

TEST_F(recordFromJson, whatIsNotReadIsTold)
{
    const Told guarded = told(R"({"bitMask": 0, "macCellGrpCfg": {}, "cellGroupId": 1})");
    EXPECT_THAT(guarded.mistakes, IsEmpty());
    EXPECT_THAT(guarded.unread,
                ElementsAre("1:16: macCellGrpCfg: given, and not read: RRC_CELLGROUPCFG_MAC_PRESENCE is "
                            "clear in bitMask"));
    // Of two alternatives the mask lets the higher one win.
    const Told chosen = told(R"({"rlcBearerCfg": [{
        "rlcCfg": {"bitMask": ["RRC_RLCCFG_UM_BI_PRESENCE"], "choice": {"amCfg": {}}}}]})");
    EXPECT_THAT(chosen.mistakes, IsEmpty());
    EXPECT_THAT(chosen.unread, ElementsAre("2:62: rlcBearerCfg[0].rlcCfg.choice: given, and not read: bitMask chooses "
                                           "another alternative"));
    // As long as there are mistakes, these alone.
    const Told wrong = told(R"({"bitMask": 0, "macCellGrpCfg": {}, "cellGroupID": 1})");
    EXPECT_EQ(wrong.mistakes.size(), 1U);
    EXPECT_THAT(wrong.unread, IsEmpty());
}

TEST_F(recordFromJson, whatIsSaidWins)
{
    ASSERT_THAT(read(R"({
        "rlcBearerAddModNum": 40,
        "rlcBearerCfg": [{"bitMask": 0, "rlcCfg": {"bitMask": ["RRC_RLCCFG_UM_BI_PRESENCE", 64],
                                                   "choice": {"amCfg": {}}}}],
        "bitMask": 255
    })"),
                IsEmpty());
    EXPECT_EQ(record_->rlcBearerAddModNum, 40U);
    EXPECT_EQ(record_->rlcBearerCfg[0].bitMask, 0);
    EXPECT_EQ(record_->rlcBearerCfg[0].rlcCfg.bitMask, RRC_RLCCFG_UM_BI_PRESENCE | RRC_RLCCFG_AM_PRESENCE | 64);
    EXPECT_EQ(record_->bitMask, 255);
}

TEST_F(recordFromJson, valuesInTheirForms)
{
    ASSERT_THAT(read(R"(// bearers
{
    "rlcBearerCfg": [{"rbType": 1, "rbId": 3}], // by its number
    /* a signed number in an unsigned field, a boolean that is neither */
    "phyCellGrpCfg": {"pNrFR1Pmax": -30},
    "macCellGrpCfg": {"skipUpTxDynamic": 2, "phrCfg": {"multiplePHR": true, "phrPeriodTimer": 5}},
    "spCellCfg": {"recfgWithSync": {"spCellConfigCommon": {"dlCfgComm": {"bwpDlCommon": {"pdcchCfgCommon": {
        "commonControlResourceSet": {"freqDomainResources": "fffffffffff8", "regBundleSize": "n3"}}}}}}}
})"),
                IsEmpty());
    EXPECT_EQ(record_->rlcBearerCfg[0].rbType, 1);
    EXPECT_EQ(static_cast<signed char>(record_->phyCellGrpCfg.pNrFR1Pmax), -30);
    EXPECT_EQ(record_->macCellGrpCfg.skipUpTxDynamic, 2);
    EXPECT_EQ(record_->macCellGrpCfg.phrCfg.multiplePHR, 1);
    EXPECT_EQ(record_->macCellGrpCfg.phrCfg.phrPeriodTimer, 5);
    const NrControlResourceSet_t& coreset = record_->spCellCfg.recfgWithSync.spCellConfigCommon.dlCfgComm.bwpDlCommon
                                                .pdcchCfgCommon.commonControlResourceSet;
    EXPECT_EQ(coreset.freqDomainResources, (UINT64{1} << 45) - 1);
    EXPECT_EQ(coreset.cceRegMappingType, 1);
    EXPECT_EQ(coreset.regBundleSize, 1);
}

TEST_F(recordFromJson, mistakesHaveTheirPlaces)
{
    EXPECT_THAT(read("{\n  \"cellGroupID\": 1}"),
                ElementsAre("2:3: : RrcCellGroupCfg_t has no \"cellGroupID\"; did you mean \"cellGroupId\"?"));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{}, {\"lchId\": 256}]}"),
                ElementsAre("1:33: rlcBearerCfg[1].lchId: 256 is not in 0..255, which the field holds; "
                            "the standard has 1..32"));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"lchId\": -1}]}"),
                ElementsAre(HasSubstr("1:29: rlcBearerCfg[0].lchId: -1 is not in 0..255")));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"lchId\": 99999999999999999999}]}"),
                ElementsAre(HasSubstr("99999999999999999999 is not in 0..255")));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"lchId\": \"four\"}, {\"lchId\": 1.5}]}"),
                ElementsAre("1:29: rlcBearerCfg[0].lchId: expected an integer in 0..255, found the string \"four\"",
                            "1:48: rlcBearerCfg[1].lchId: expected an integer in 0..255, found the number 1.5"));
    EXPECT_THAT(read("{\"macCellGrpCfg\": {\"drxCfg\": {\"drxInactivityTimer\": \"ms101\"}}}"),
                ElementsAre("1:53: macCellGrpCfg.drxCfg.drxInactivityTimer: unknown value \"ms101\"; "
                            "did you mean \"ms10\"?"));
    EXPECT_THAT(read("{\"macCellGrpCfg\": []}"),
                ElementsAre("1:19: macCellGrpCfg: expected an object, found an array"));
    EXPECT_THAT(read("{\"lchIdRelease\": 3}"),
                ElementsAre("1:18: lchIdRelease: expected an array of at most 32 entries, found the number 3"));
    EXPECT_THAT(read("{\"sCellAddMod\": [{}, {}, {}, {}]}"),
                ElementsAre("1:30: sCellAddMod: there is room for 3 entries, not for 4"));
    EXPECT_THAT(read("{\"cellGroupId\": 1, \"cellGroupId\": 2}"), ElementsAre("1:20: cellGroupId: given twice"));
    EXPECT_THAT(read("{\"bitMask\": [\"RRC_CELLGROUPCFG_MAC_PRESENC\"]}"),
                ElementsAre("1:14: bitMask[0]: unknown bit \"RRC_CELLGROUPCFG_MAC_PRESENC\"; "
                            "did you mean \"RRC_CELLGROUPCFG_MAC_PRESENCE\"?"));
    EXPECT_THAT(read("{\"macCellGrpCfg\": {\"drxCfg\": {\"drxLongCycleStartOffset\": {\"offset\": 1}}}}"),
                ElementsAre("1:59: macCellGrpCfg.drxCfg.drxLongCycleStartOffset.offset: "
                            "it does not say which alternative it is of: \"period\" is missing"));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"rlcCfg\": {\"choice\": {\"amCfg\": {}, \"umBiCfg\": {}}}}]}"),
                ElementsAre(HasSubstr("1:55: rlcBearerCfg[0].rlcCfg.choice.umBiCfg: a second alternative")));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"rlcCfg\": {\"choice\": {}}}]}"),
                ElementsAre(HasSubstr("rlcBearerCfg[0].rlcCfg.choice: no alternative; there is \"amCfg\"")));
    EXPECT_THAT(read("{\"cellGroupId\": 1"), ElementsAre(HasSubstr("syntax error")));
    EXPECT_THAT(read("[]"), ElementsAre("1:1: RrcCellGroupCfg_t: expected an object, found an array"));
    EXPECT_THAT(read(""), testing::SizeIs(1));
    EXPECT_THAT(read(std::string(100, '[')), ElementsAre(HasSubstr("deeper than 64")));
}

TEST_F(recordFromJson, masksAndAlternativesThatAreNone)
{
    EXPECT_THAT(read("{\"bitMask\": 4294967296}"), ElementsAre(HasSubstr("1:13: bitMask: 4294967296 is not in 0..")));
    EXPECT_THAT(read("{\"bitMask\": \"RRC_CELLGROUPCFG_MAC_PRESENCE\"}"),
                ElementsAre("1:13: bitMask: expected a list of bits or a number, found the string "
                            "\"RRC_CELLGROUPCFG_MAC_PRESENCE\""));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"rbType\": \"drb\"}]}"),
                ElementsAre(HasSubstr("1:30: rlcBearerCfg[0].rbType: unknown alternative \"drb\"")));
    EXPECT_THAT(read("{\"rlcBearerCfg\": [{\"rlcCfg\": {\"choice\": \"amCfg\"}}]}"),
                ElementsAre("1:41: rlcBearerCfg[0].rlcCfg.choice: expected an object with the alternative, found the "
                            "string \"amCfg\""));
    // What is one without content is {}.
    const std::string before = "{\"spCellCfg\": {\"spCellDedicated\": {\"csiMeasCfg\": {\"csiReportCfg\": [{"
                               "\"groupBasedBeamReport\": {\"BeamReporting_n\": {\"enabled\": ";
    const std::string after = "}}}]}}}}";
    EXPECT_THAT(read(before + "{}" + after), IsEmpty());
    const char* const path = "spCellCfg.spCellDedicated.csiMeasCfg.csiReportCfg[0].groupBasedBeamReport.BeamReporting_n"
                             ".enabled: expected {}, as it has no content, found ";
    EXPECT_THAT(read(before + "true" + after), ElementsAre(HasSubstr(path + std::string("true"))));
    EXPECT_THAT(read(before + "{\"a\": 1}" + after), ElementsAre(HasSubstr(path + std::string("an object"))));
}

TEST_F(recordFromJson, arraysThatAreSentAsAWhole)
{
    const auto density = [](const std::string& value)
    {
        return "{\"spCellCfg\": {\"spCellDedicated\": {\"initDlBwp\": {\"pdschCfg\": {\"dmrsDlPdschMappingTypeA\": {"
               "\"phaseTrackingRS\": {\"freqDensity\": " +
               value + "}}}}}}}";
    };
    EXPECT_THAT(read(density("[1, 2]")), IsEmpty());
    EXPECT_THAT(read(density("[1]")), ElementsAre(HasSubstr("freqDensity: expected 2 entries, found 1")));
    EXPECT_THAT(read(density("[1, 2, 3]")), ElementsAre(HasSubstr("freqDensity: expected 2 entries, found 3")));
    EXPECT_THAT(read(density("1")),
                ElementsAre(HasSubstr("freqDensity: expected an array of 2 entries, found the number 1")));
}

TEST_F(recordFromJson, octetsAsTheyLieInMemory)
{
    const auto blocks = [](const std::string& value)
    {
        return "{\"spCellCfg\": {\"recfgWithSync\": {\"spCellConfigCommon\": {\"rateMatchPatternToAddMod\": [{"
               "\"patternType\": {\"bitmaps\": {\"resourceBlocks\": " +
               value + "}}}]}}}}";
    };
    const auto octet = [&](std::size_t i)
    {
        const auto& pattern = record_->spCellCfg.recfgWithSync.spCellConfigCommon.rateMatchPatternToAddMod[0];
        return reinterpret_cast<const unsigned char*>(pattern.patternType.bitmaps.resourceBlocks)[i];
    };
    // 275 bits, in whole octets, or the five words of the field.
    ASSERT_THAT(read(blocks('"' + std::string(68, '0') + "a5\"")), IsEmpty());
    EXPECT_EQ(octet(34), 0xA5);
    EXPECT_EQ(octet(35), 0);
    ASSERT_THAT(read(blocks('"' + std::string(78, '0') + "5A\"")), IsEmpty());
    EXPECT_EQ(octet(39), 0x5A);
    EXPECT_THAT(read(blocks("\"ff00\"")),
                ElementsAre(HasSubstr("resourceBlocks: 275 bits take 70 hexadecimal digits or, with all that the field "
                                      "holds, 80, not 4")));
    EXPECT_THAT(read(blocks("\"xy\"")), ElementsAre(HasSubstr("resourceBlocks: expected a string of 70 hexadecimal "
                                                              "digits, found the string \"xy\"")));
    EXPECT_THAT(read(blocks("[255]")),
                ElementsAre(HasSubstr("expected a string of 70 hexadecimal digits, found an array")));
}

// What no record needs is refused before it takes memory.
TEST_F(recordFromJson, textsHaveTheirLimits)
{
    const auto object = [](int members)
    {
        std::string text = "{";
        for (int i = 0; i < members; ++i)
        {
            text += (i == 0 ? "\"a\": null" : ",\n\"a\": null");
        }
        return text + "}";
    };
    EXPECT_THAT(read(object(250)), testing::Not(testing::Contains(HasSubstr("members"))));
    EXPECT_THAT(read(object(251)), ElementsAre("251:1: : more than 250 members"));

    EXPECT_THAT(read(std::string(ASN1_MAX_TEXT + 1, ' ')), ElementsAre("1:1: : more than 67108864 octets of text"));

    text::Document four(4, false);
    EXPECT_NE(nullptr, four.read("[1, {},\n3]", ""));
    EXPECT_TRUE(four.sources()[0].mistakes.none());
    text::Document three(3, false);
    EXPECT_EQ(nullptr, three.read("[1, {},\n3]", ""));
    std::vector<std::string> told;
    const auto sink = [](void* to, const Asn1Mistake* found)
    {
        static_cast<std::vector<std::string>*>(to)->push_back(std::to_string(found->line) + ":" +
                                                              std::to_string(found->column) + ": " + found->words);
    };
    EXPECT_EQ(1, three.sources()[0].mistakes.report("[1, {},\n3]", sink, &told));
    EXPECT_THAT(told, ElementsAre("2:1: more than 3 values"));
}

TEST_F(recordFromJson, placesBehindComments)
{
    EXPECT_THAT(read("{ // \"cellGroupId\": 7\n  /* \n */ \"cellGroupId\": 1// one\n, \"x\": 1}"),
                ElementsAre("4:3: : RrcCellGroupCfg_t has no \"x\""));
}

TEST_F(recordFromJson, bitStrings)
{
    const std::string before = "{\"spCellCfg\": {\"recfgWithSync\": {\"spCellConfigCommon\": {\"dlCfgComm\": "
                               "{\"bwpDlCommon\": {\"pdcchCfgCommon\": {\"commonControlResourceSet\": "
                               "{\"freqDomainResources\": ";
    const std::string after = "}}}}}}}}";
    EXPECT_THAT(read(before + "\"fff8\"" + after),
                ElementsAre(HasSubstr("freqDomainResources: 45 bits take 12 hexadecimal digits, not 4")));
    EXPECT_THAT(read(before + "\"fffffffffff9\"" + after),
                ElementsAre(HasSubstr("the last 3 bits of \"fffffffffff9\" are padding and have to be 0")));
    EXPECT_THAT(read(before + "\"ffffffffffgg\"" + after),
                ElementsAre(HasSubstr("expected a string of 12 hexadecimal digits, found the string")));
}

TEST_F(recordFromJson, includesAreMerged)
{
    (void)save("base.json", R"({"cellGroupId": 3,
        "rlcBearerCfg": [{"lchId": 1}, {"lchId": 2}],
        "macCellGrpCfg": {"drxCfg": {"drxSlotOffset": 5, "drxInactivityTimer": "ms2"}, "skipUpTxDynamic": true},
        "phyCellGrpCfg": {"pNrFR1Pmax": 20}})");
    (void)save("bearer.json", R"({"lchId": 7, "reestablRlc": "true"})");
    const std::string file = save("test.json", "");
    ASSERT_THAT(read(R"({"$include": "base.json",
        "macCellGrpCfg": {"drxCfg": {"drxInactivityTimer": "ms3"}}, // one member
        "phyCellGrpCfg": null,
        "rlcBearerCfg": [{"$include": "bearer.json", "lchId": 8}]})",
                     file.c_str()),
                IsEmpty());
    EXPECT_EQ(record_->cellGroupId, 3);
    EXPECT_EQ(record_->bitMask, RRC_CELLGROUPCFG_MAC_PRESENCE);
    EXPECT_EQ(record_->macCellGrpCfg.drxCfg.drxSlotOffset, 5);
    EXPECT_EQ(record_->macCellGrpCfg.drxCfg.drxInactivityTimer, 3);
    EXPECT_EQ(record_->macCellGrpCfg.skipUpTxDynamic, 1);
    EXPECT_EQ(record_->rlcBearerAddModNum, 1U);
    EXPECT_EQ(record_->rlcBearerCfg[0].lchId, 8);
    EXPECT_EQ(record_->rlcBearerCfg[0].bitMask, RRC_RLCBEARERCFG_REESTABRLC_PRESENCE);
}

TEST_F(recordFromJson, mistakesInIncludedFiles)
{
    const std::string file = save("test.json", "");
    EXPECT_THAT(read(R"({"$include": "base.json"})"), ElementsAre("1:14: : no file is included here"));
    EXPECT_THAT(read(R"({"$include": "none.json"})", file.c_str()),
                ElementsAre(HasSubstr("test.json:1:14: : cannot read ")));
    (void)save("base.json", "{\"macCellGrpCfg\": {\n\"drxCfg\": {\"drxSlotOffset\": 500}}}");
    EXPECT_THAT(read(R"({"$include": "base.json"})", file.c_str()),
                ElementsAre(HasSubstr("base.json:2:29: macCellGrpCfg.drxCfg.drxSlotOffset: 500 is not in 0..255")));
    (void)save("base.json", "[]");
    EXPECT_THAT(read(R"({"$include": "base.json"})", file.c_str()), ElementsAre(HasSubstr("has no object")));
    (void)save("base.json", R"({"$include": "base.json"})");
    EXPECT_THAT(read(R"({"$include": "base.json"})", file.c_str()),
                ElementsAre(HasSubstr("base.json:1:14: : files in files deeper than 8")));
    (void)save("base.json", R"({"macCellGrpCfg": {}, "a": )");
    EXPECT_THAT(read(R"({"$include": "base.json"})", file.c_str()), ElementsAre(HasSubstr("base.json:1:")));
    EXPECT_THAT(read(R"({"$include": 1})", file.c_str()), ElementsAre("test.json:1:14: : expected the name of a file"));
    EXPECT_THAT(read(R"({"$include": "none.json", "cellGroupId": 1, "cellGroupId": 2})", file.c_str()),
                testing::Contains("test.json:1:45: cellGroupId: given twice"));
}

// Files that name each other over and over come to an end.
TEST_F(recordFromJson, includesEnd)
{
    std::string text = "{";
    for (int i = 0; i < 200; ++i)
    {
        text += (i == 0 ? "\"" : ",\"") + std::to_string(i) + "\": {\"$include\": \"base.json\"}";
    }
    const std::string file = save("base.json", text + "}");
    EXPECT_FALSE(read(R"({"$include": "base.json"})", file.c_str()).empty());
}

} // namespace
