#include "cellGroupCfg/codebook.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"

using test::HeapFault;

namespace
{

class codebook : public test::ComposerTest
{
protected:
    CodebookConfig composed(RrcCodebookCfg_t record)
    {
        CodebookConfig element{};
        EXPECT_EQ(rrcComposeCodebookConfig(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    void expectCodebook(const RrcCodebookCfg_t& record, const std::string& type)
    {
        SCOPED_TRACE(type);
        expectDecoded("CodebookConfig", asn1PE_CodebookConfig, composed(record), R"({"codebookType":)" + type + "}");
    }

    void expectRefused(const RrcCodebookCfg_t& record, const std::string& line)
    {
        EXPECT_EQ(encode(asn1PE_CodebookConfig, composed(record)), "CodebookConfig.codebookType" + line);
    }
};

// The octets' first bits.
std::string bits(const UINT8* octets, unsigned count)
{
    std::string text;
    for (unsigned i = 0; i < count; ++i)
    {
        text += (octets[i / 8] & (0x80U >> (i % 8))) != 0 ? '1' : '0';
    }
    return text;
}

// The number's low bits, most significant first.
std::string bits(UINT64 number, unsigned count)
{
    std::string text;
    for (unsigned i = count; i-- > 0;)
    {
        text += (number >> i & 1) != 0 ? '1' : '0';
    }
    return text;
}

// Octets without a pattern that a shift or a swap would keep.
const UINT8 octets[32] = {0x91, 0x4E, 0xC3, 0x28, 0xF5, 0x7A, 0x0D, 0xB6, 0x53, 0xE8, 0x2F,
                          0x94, 0x61, 0xDC, 0x07, 0xAB, 0x35, 0xD2, 0x68, 0x9F, 0x1C, 0xE1,
                          0x46, 0xBD, 0x72, 0x89, 0xFE, 0x13, 0xA0, 0x57, 0xCC, 0x3B};
const UINT64 number = 0xF1E2D3C4B5A69788;
// How an x86-64 lays the number out.
const UINT8 numberOctets[8] = {0x88, 0x97, 0xA6, 0xB5, 0xC4, 0xD3, 0xE2, 0xF1};

template <std::size_t N>
void copyOctets(UINT8 (&member)[N])
{
    std::copy_n(octets, N, member);
}

// Type I, single panel

RrcCodebookCfg_t singlePanel()
{
    RrcCodebookCfg_t record{};
    record.Presence = RRC_CODE_BOOK_TYPE1_PRESENCE;
    CodeBookType1_t& type1 = record.CodeBookCfgType_u.codeBookType1;
    type1.CodebookMode = 2;
    type1.codebookType1_Sub.Presence = RRC_CODE_BOOK_TYPE_SINGLE_PANEL;
    type1.codebookType1_Sub.CodeBookTypePanel_u.singlePanel.typeI_SinglePanel_ri_Restriction = 0xC5;
    return record;
}

SinglePanel_nrOfAntennaPorts_t& antennaPorts(RrcCodebookCfg_t& record)
{
    return record.CodeBookCfgType_u.codeBookType1.codebookType1_Sub.CodeBookTypePanel_u.singlePanel
        .SinglePanel_nrOfAntennaPorts;
}

std::string singlePanelJson(const std::string& ports)
{
    return R"({"type1":{"subType":{"typeI-SinglePanel":{"nrOfAntennaPorts":)" + ports +
           R"(,"typeI-SinglePanel-ri-Restriction":"11000101"}},"codebookMode":2}})";
}

nrOfAntennaPorts_moreThanTwo& moreThanTwo(RrcCodebookCfg_t& record)
{
    antennaPorts(record).Presence = RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE;
    return antennaPorts(record).NrOfAntennaPorts_n.moreThanTwo;
}

TEST_F(codebook, TwoPorts)
{
    RrcCodebookCfg_t record = singlePanel();
    antennaPorts(record).Presence = RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE;
    antennaPorts(record).NrOfAntennaPorts_n.two.twoTX_CodebookSubsetRestrict = 0b101100;
    expectCodebook(record, singlePanelJson(R"({"two":{"twoTX-CodebookSubsetRestriction":"101100"}})"));
}

// What is above it does not look, whoever calls it does.
TEST_F(codebook, TwoPortsSucceed)
{
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_two two;
    nrOfAntennaPorts_two ports{};
    EXPECT_EQ(rrcComposenrOfAntennaPorts_two(&two, &ports), VOS_OK);
}

TEST_F(codebook, SinglePanelRestrictions)
{
    using Record = moreThanTwo_SinglePanel_n1_n2_u;
    const struct
    {
        UINT16 bit;
        void (*fill)(Record&);
        std::string name;
        std::string value;
    } cases[] = {
        {RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.two_one = 0xA6; }, "two-one",
         bits(0xA6, 8)},
        {RRC_TWO_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.two_two = number; }, "two-two",
         bits(numberOctets, 64)},
        {RRC_FOUR_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.four_one = 0x8C35; }, "four-one",
         bits(0x8C35, 16)},
        {RRC_THREE_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.three_two); }, "three-two",
         bits(octets, 96)},
        {RRC_SIX_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.six_one = 0xFF8C35A7; }, "six-one",
         bits(0x8C35A7, 24)},
        {RRC_FOUR_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.four_two); }, "four-two",
         bits(octets, 128)},
        {RRC_EIGHT_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.eight_one = 0x9F8C35A7; }, "eight-one",
         bits(0x9F8C35A7, 32)},
        {RRC_FOUR_THREE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.four_three); }, "four-three",
         bits(octets, 192)},
        {RRC_SIX_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.six_two); }, "six-two",
         bits(octets, 192)},
        {RRC_TWELVE_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.twelve_one = number; }, "twelve-one",
         bits(0xD3C4B5A69788, 48)},
        {RRC_FOUR_FOUR_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.four_four); }, "four-four",
         bits(octets, 256)},
        {RRC_EIGHT_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.eight_two); }, "eight-two",
         bits(octets, 256)},
        {RRC_SIXTEEN_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, [](Record& u) { u.sixteen_one = number; }, "sixteen-one",
         bits(numberOctets, 64)},
    };
    ASSERT_EQ(std::size(cases), 13U);
    for (const auto& [bit, fill, name, value] : cases)
    {
        RrcCodebookCfg_t record = singlePanel();
        nrOfAntennaPorts_moreThanTwo& ports = moreThanTwo(record);
        ports.bitMask = RRC_MORE_THAN_TWO_N1_N2_PRESENCE;
        fill(ports.MoreThanTwo_n1_n2_u);
        const std::string json = singlePanelJson(R"({"moreThanTwo":{"n1-n2":{")" + name +
                                                 R"(-TypeI-SinglePanel-Restriction":")" + value + R"("}}})");
        ports.N1_N2_Presence = bit;
        expectCodebook(record, json);
        // All lower bits and those above the table besides: the highest of the table wins.
        ports.N1_N2_Presence = static_cast<UINT16>(bit | (bit - 1) | 0xE000);
        expectCodebook(record, json);
    }
}

// No alternative takes more than its bits: neither what lies behind the record's union goes out, nor is anything
// written behind the element's.
TEST_F(codebook, RestrictionsStayWithinTheirUnions)
{
    constexpr OSOCTET fill = 0x5A;
    struct
    {
        CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo_n1_n2 element;
        OSOCTET behind[64];
    } single;
    static_assert(offsetof(decltype(single), behind) == sizeof single.element);
    nrOfAntennaPorts_moreThanTwo ports;
    for (unsigned i = 0; i < 13; ++i)
    {
        std::memset(&ports, 0xFF, sizeof ports);
        std::memset(&single, fill, sizeof single);
        ports.N1_N2_Presence = static_cast<UINT16>(1U << i);
        ASSERT_EQ(rrcComposeMoreThanTwo_n1_n2(&context, &single.element, &ports), VOS_OK);
        EXPECT_EQ(std::count(std::begin(single.behind), std::end(single.behind), fill), 64) << i;
    }
    struct
    {
        CodebookConfig_codebookType_type2_subType_typeII_n1_n2_codebookSubsetRestriction element;
        OSOCTET behind[64];
    } subset;
    subType_typeII record;
    for (unsigned i = 0; i < 13; ++i)
    {
        std::memset(&record, 0xFF, sizeof record);
        std::memset(&subset, fill, sizeof subset);
        record.Restriction_Presence = static_cast<decltype(record.Restriction_Presence)>(1U << i);
        ASSERT_EQ(rrcComposeN1_n2_codebookSubsetRestrict(&context, &subset.element, &record), VOS_OK);
        EXPECT_EQ(std::count(std::begin(subset.behind), std::end(subset.behind), fill), 64) << i;
    }
}

TEST_F(codebook, MoreThanTwoOptions)
{
    RrcCodebookCfg_t record = singlePanel();
    nrOfAntennaPorts_moreThanTwo& ports = moreThanTwo(record);
    ports.N1_N2_Presence = RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
    ports.MoreThanTwo_n1_n2_u.two_one = 1;
    ports.typeI_SinglePanel_CodebookSubsetRestriction_i2 = 0xE001;
    ports.bitMask = 0xFF;
    expectCodebook(record,
                   singlePanelJson(R"({"moreThanTwo":{"n1-n2":{"two-one-TypeI-SinglePanel-Restriction":"00000001"},)"
                                   R"("typeI-SinglePanel-codebookSubsetRestriction-i2":"1110000000000001"}})"));

    const std::string open =
        ".type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2: tag 0 is not in 1..13";
    ports.bitMask = RRC_SINGLE_PANEL_CODEBOOK_SUBSET_RESTRICT_I2;
    expectRefused(record, open);
    ports.bitMask = RRC_MORE_THAN_TWO_N1_N2_PRESENCE;
    ports.N1_N2_Presence = 0xE000;
    expectRefused(record, open);
}

TEST_F(codebook, HighestNumberOfPortsWins)
{
    RrcCodebookCfg_t record = singlePanel();
    nrOfAntennaPorts_moreThanTwo& ports = moreThanTwo(record);
    ports = {RRC_MORE_THAN_TWO_N1_N2_PRESENCE, RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, {0xF0}, 0};
    antennaPorts(record).Presence = 0xFF;
    expectCodebook(
        record, singlePanelJson(R"({"moreThanTwo":{"n1-n2":{"two-one-TypeI-SinglePanel-Restriction":"11110000"}}})"));
    antennaPorts(record).Presence = 0xFC;
    expectRefused(record, ".type1.subType.typeI-SinglePanel.nrOfAntennaPorts: tag 0 is not in 1..2");
}

TEST_F(codebook, MoreThanTwoElementIsCleared)
{
    RrcCodebookCfg_t record = singlePanel();
    moreThanTwo(record).bitMask = 0;
    // What the heap held before must not show.
    void* const used = rtxMemHeapAlloc(&context, 1024);
    std::memset(used, 0xFF, 1024);
    rtFreeContext(&context);
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts element{};
    EXPECT_EQ(rrcComposeNrOfAntennaPorts(&context, &element, &antennaPorts(record)), VOS_OK);
    ASSERT_NE(element.u.moreThanTwo, nullptr);
    EXPECT_EQ(element.u.moreThanTwo->m.typeI_SinglePanel_codebookSubsetRestriction_i2Present, 0U);
    EXPECT_EQ(element.u.moreThanTwo->n1_n2.t, 0U);
}

TEST_F(codebook, CodebookModeOutOfRange)
{
    for (const UINT8 mode : {UINT8{0}, UINT8{3}})
    {
        RrcCodebookCfg_t record = singlePanel();
        antennaPorts(record).Presence = RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE;
        record.CodeBookCfgType_u.codeBookType1.CodebookMode = mode;
        expectRefused(record, ".type1.codebookMode: " + std::to_string(mode) + " is not in 1..2");
    }
}

// Type I, multi panel

RrcCodebookCfg_t multiPanel()
{
    RrcCodebookCfg_t record{};
    record.Presence = RRC_CODE_BOOK_TYPE1_PRESENCE;
    CodeBookType1_t& type1 = record.CodeBookCfgType_u.codeBookType1;
    type1.CodebookMode = 1;
    type1.codebookType1_Sub.Presence = RRC_CODE_BOOK_TYPE_MULTI_PANEL;
    CodeBookTypeMultiPanel_t& panel = type1.codebookType1_Sub.CodeBookTypePanel_u.multiPanel;
    panel.bitMask = RRC_MULTI_PANEL_RESTRICT | RRC_RI_RESTRICTION;
    panel.MultiPanel_Presence = RRC_TWO_TWO_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE;
    panel.ri_Restriction = 0x9A;
    return record;
}

CodeBookTypeMultiPanel_t& panelOf(RrcCodebookCfg_t& record)
{
    return record.CodeBookCfgType_u.codeBookType1.codebookType1_Sub.CodeBookTypePanel_u.multiPanel;
}

TEST_F(codebook, MultiPanelIsRefusedForItsRankRestriction)
{
    RrcCodebookCfg_t record = multiPanel();
    expectRefused(record, ".type1.subType.typeI-MultiPanel.ri-Restriction: a bit string of 8 bits, not 4");
    panelOf(record).bitMask = RRC_MULTI_PANEL_RESTRICT;
    expectRefused(record, ".type1.subType.typeI-MultiPanel.ri-Restriction: a bit string of 0 bits, not 4");
    panelOf(record).bitMask = RRC_RI_RESTRICTION;
    expectRefused(record, ".type1.subType.typeI-MultiPanel.ng-n1-n2: tag 0 is not in 1..8");
}

TEST_F(codebook, MultiPanelRestrictions)
{
    using Record = MultiPanel_ng_n1_n2_u;
    const struct
    {
        UINT16 bit;
        void (*fill)(Record&);
        std::string name;
        std::string value;
    } cases[] = {
        {RRC_TWO_TWO_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.two_two_one = 0xA6; }, "two-two-one",
         bits(0xA6, 8)},
        {RRC_TWO_FOUR_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.two_four_one = 0x8C35; },
         "two-four-one", bits(0x8C35, 16)},
        {RRC_FOUR_TWO_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.four_two_one = 0x65; }, "four-two-one",
         bits(0x65, 8)},
        {RRC_TWO_TWO_TWO_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.two_two_two = number; }, "two-two-two",
         bits(numberOctets, 64)},
        {RRC_TWO_EIGHT_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.two_eight_one = 0x9F8C35A7; },
         "two-eight-one", bits(0x9F8C35A7, 32)},
        {RRC_FOUR_FOUR_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.four_four_one = 0x538C; },
         "four-four-one", bits(0x538C, 16)},
        {RRC_TWO_FOUR_TWO_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { copyOctets(u.two_four_two); },
         "two-four-two", bits(octets, 128)},
        {RRC_FOUR_TWO_TWO_TYPEI_MULTIPANEL_RESTRICT_PRESENCE, [](Record& u) { u.four_two_two = number; },
         "four-two-two", bits(numberOctets, 64)},
    };
    ASSERT_EQ(std::size(cases), 8U);
    for (const auto& [bit, fill, name, value] : cases)
    {
        RrcCodebookCfg_t record = multiPanel();
        fill(panelOf(record).MultiPanel_Restrict_u);
        // Alone; with all lower bits and those above the table.
        for (const UINT16 presence : {bit, static_cast<UINT16>(bit | (bit - 1) | 0xFF00)})
        {
            panelOf(record).MultiPanel_Presence = presence;
            CodebookConfig element = composed(record);
            // Only with the rank restriction cut to its 4 bits can such a message be sent.
            element.codebookType.u.type1->subType.u.typeI_MultiPanel->ri_Restriction.numbits = 4;
            expectDecoded("CodebookConfig", asn1PE_CodebookConfig, element,
                          R"({"codebookType":{"type1":{"subType":{"typeI-MultiPanel":{"ng-n1-n2":{")" + name +
                              R"(-TypeI-MultiPanel-Restriction":")" + value +
                              R"("},"ri-Restriction":"1001"}},"codebookMode":1}}})");
        }
    }
}

TEST_F(codebook, HighestPanelWins)
{
    RrcCodebookCfg_t record = multiPanel();
    CodebookType1_Sub_t& sub = record.CodeBookCfgType_u.codeBookType1.codebookType1_Sub;
    sub.Presence = 0xFF;
    expectRefused(record, ".type1.subType.typeI-MultiPanel.ri-Restriction: a bit string of 8 bits, not 4");
    sub.Presence = 0xFC;
    expectRefused(record, ".type1.subType: tag 0 is not in 1..2");
}

// Type II

RrcCodebookCfg_t typeII()
{
    RrcCodebookCfg_t record{};
    record.Presence = RRC_CODE_BOOK_TYPE2_PRESENCE;
    CodeBookType2_t& type2 = record.CodeBookCfgType_u.codeBookType2;
    type2.bitMask = RRC_CODEBOOK_TYPE2_SUB;
    type2.codebookType2_Sub.Presence = RRC_SUB_TYPE_TYPEII;
    type2.codebookType2_Sub.Type2_subType_u.subType_typeII.TypeII_RI_Restriction = 0b10;
    return record;
}

subType_typeII& restrictionOf(RrcCodebookCfg_t& record)
{
    return record.CodeBookCfgType_u.codeBookType2.codebookType2_Sub.Type2_subType_u.subType_typeII;
}

std::string
type2Json(const std::string& subType,
          const std::string& behind = R"("phaseAlphabetSize":"n4","subbandAmplitude":false,"numberOfBeams":"two")")
{
    return R"({"type2":{"subType":)" + subType + "," + behind + "}}";
}

std::string typeIIJson(const std::string& restriction)
{
    return R"({"typeII":{"n1-n2-codebookSubsetRestriction":{)" + restriction + R"(},"typeII-RI-Restriction":"10"}})";
}

TEST_F(codebook, SubsetRestrictions)
{
    using Record = subsetRestriction_u;
    const struct
    {
        UINT16 bit;
        void (*fill)(Record&);
        std::string name;
        std::string value;
    } cases[] = {
        {RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE, [](Record& u) { u.two_one = 0x8C35; }, "two-one", bits(0x8C35, 16)},
        {RRC_SUB_SET_RESTRICT_TWO_TWO_PRESENCE, [](Record& u) { u.two_two = number; }, "two-two",
         bits(0x3C4B5A69788, 43)},
        {RRC_SUB_SET_RESTRICT_FOUR_ONE_PRESENCE, [](Record& u) { u.four_one = 0x9F8C35A7; }, "four-one",
         bits(0x9F8C35A7, 32)},
        {RRC_SUB_SET_RESTRICT_THREE_TWO_PRESENCE, [](Record& u) { u.three_two = number; }, "three-two",
         bits(0x1E2D3C4B5A69788, 59)},
        {RRC_SUB_SET_RESTRICT_SIX_ONE_PRESENCE, [](Record& u) { u.six_one = number; }, "six-one",
         bits(0xD3C4B5A69788, 48)},
        {RRC_SUB_SET_RESTRICT_FOUR_TWO_PRESENCE, [](Record& u) { copyOctets(u.four_two); }, "four-two",
         bits(octets, 75)},
        {RRC_SUB_SET_RESTRICT_EIGHT_ONE_PRESENCE, [](Record& u) { u.eight_one = number; }, "eight-one",
         bits(0xF1E2D3C4B5A69788, 64)},
        {RRC_SUB_SET_RESTRICT_FOUR_THREE_PRESENCE, [](Record& u) { copyOctets(u.four_three); }, "four-three",
         bits(octets, 107)},
        {RRC_SUB_SET_RESTRICT_SIX_TWO_PRESENCE, [](Record& u) { copyOctets(u.six_two); }, "six-two", bits(octets, 107)},
        {RRC_SUB_SET_RESTRICT_TWELVE_ONE_PRESENCE, [](Record& u) { copyOctets(u.twelve_one); }, "twelve-one",
         bits(octets, 96)},
        {RRC_SUB_SET_RESTRICT_FOUR_FOUR_PRESENCE, [](Record& u) { copyOctets(u.four_four); }, "four-four",
         bits(octets, 139)},
        {RRC_SUB_SET_RESTRICT_EIGHT_TWO_PRESENCE, [](Record& u) { copyOctets(u.eight_two); }, "eight-two",
         bits(octets, 139)},
        {RRC_SUB_SET_RESTRICT_SIXTEEN_ONE_PRESENCE, [](Record& u) { copyOctets(u.sixteen_one); }, "sixteen-one",
         bits(octets, 128)},
    };
    ASSERT_EQ(std::size(cases), 13U);
    for (const auto& [bit, fill, name, value] : cases)
    {
        RrcCodebookCfg_t record = typeII();
        fill(restrictionOf(record).SubsetRestriction_u);
        const std::string json = type2Json(typeIIJson("\"" + name + R"(":")" + value + "\""));
        restrictionOf(record).Restriction_Presence = static_cast<UINT16>(bit | RRC_TYPEII_RI_RESTRICTION_PRESENCE);
        expectCodebook(record, json);
        // With all lower bits and those above.
        restrictionOf(record).Restriction_Presence = static_cast<UINT16>(bit | (bit - 1) | 0xE000);
        expectCodebook(record, json);
    }
}

TEST_F(codebook, MandatoryRestrictionsOfTypeII)
{
    RrcCodebookCfg_t record = typeII();
    restrictionOf(record).Restriction_Presence = RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE;
    expectRefused(record, ".type2.subType.typeII.typeII-RI-Restriction: a bit string of 0 bits, not 2");
    restrictionOf(record).Restriction_Presence = 0xE000;
    expectRefused(record, ".type2.subType.typeII.n1-n2-codebookSubsetRestriction: tag 0 is not in 1..13");
}

RrcCodebookCfg_t portSelection(UINT8 bitMask)
{
    RrcCodebookCfg_t record = typeII();
    Codebooktype2_Sub_t& sub = record.CodeBookCfgType_u.codeBookType2.codebookType2_Sub;
    sub.Presence = RRC_TYPEII_PORTSELECTION;
    sub.Type2_subType_u.typeII_PortSelection = {bitMask, 3, 0b01};
    return record;
}

const std::string samplingSize = R"("portSelectionSamplingSize":"n4",)";

std::string portSelectionJson(const std::string& sampling)
{
    return R"({"typeII-PortSelection":{)" + sampling + R"("typeII-PortSelectionRI-Restriction":"01"}})";
}

TEST_F(codebook, PortSelectionOptions)
{
    expectCodebook(portSelection(0xFE), type2Json(portSelectionJson("")));
    expectCodebook(portSelection(RRC_PORT_SELEXTION_SAMPLING_SIZE), type2Json(portSelectionJson(samplingSize)));
}

TEST_F(codebook, HighestSubTypeOfTypeIIWins)
{
    RrcCodebookCfg_t record = portSelection(RRC_PORT_SELEXTION_SAMPLING_SIZE);
    Codebooktype2_Sub_t& sub = record.CodeBookCfgType_u.codeBookType2.codebookType2_Sub;
    sub.Presence = 0xFF;
    expectCodebook(record, type2Json(portSelectionJson(samplingSize)));
    sub.Presence = 0xFC;
    expectRefused(record, ".type2.subType: tag 0 is not in 1..2");
}

TEST_F(codebook, MembersOfTypeII)
{
    const struct
    {
        UINT8 bitMask;
        UINT64 phase;
        UINT64 amplitude;
        UINT64 beams;
        std::string json;
    } cases[] = {
        {0x1, 1, 1, 2, R"("phaseAlphabetSize":"n4","subbandAmplitude":false,"numberOfBeams":"two")"},
        {0x1 | RRC_PHASE_ALPHA_BET_SIZE, 1, 1, 2,
         R"("phaseAlphabetSize":"n8","subbandAmplitude":false,"numberOfBeams":"two")"},
        {0x1 | RRC_SUB_BAND_AMPLITUDE, 1, 1, 2,
         R"("phaseAlphabetSize":"n4","subbandAmplitude":true,"numberOfBeams":"two")"},
        {0x1 | RRC_NUM_BER_OFBEAMS, 1, 1, 2,
         R"("phaseAlphabetSize":"n4","subbandAmplitude":false,"numberOfBeams":"four")"},
        {0xFF, 1, 1, 1, R"("phaseAlphabetSize":"n8","subbandAmplitude":true,"numberOfBeams":"three")"},
        // Enumerations take the low 32 bits, the BOOLEAN the low 8.
        {0xFF, 0x700000001, 0x100, 0xFFFFFFFF00000002,
         R"("phaseAlphabetSize":"n8","subbandAmplitude":false,"numberOfBeams":"four")"},
        {0xFF, 0x700000000, 0x180, 0x100000000,
         R"("phaseAlphabetSize":"n4","subbandAmplitude":true,"numberOfBeams":"two")"},
    };
    for (const auto& [bitMask, phase, amplitude, beams, json] : cases)
    {
        RrcCodebookCfg_t record = portSelection(0);
        CodeBookType2_t& type2 = record.CodeBookCfgType_u.codeBookType2;
        type2.bitMask = bitMask;
        type2.phaseAlphabetSize = phase;
        type2.subBandAmplitude = amplitude;
        type2.numberOfBeams = beams;
        expectCodebook(record, type2Json(portSelectionJson(""), json));
    }
    RrcCodebookCfg_t record = portSelection(0);
    record.CodeBookCfgType_u.codeBookType2.bitMask = 0xFE;
    expectRefused(record, ".type2.subType: tag 0 is not in 1..2");
}

// The whole

TEST_F(codebook, HighestTypeWins)
{
    RrcCodebookCfg_t record = portSelection(0);
    record.Presence = 0xFF;
    expectCodebook(record, type2Json(portSelectionJson("")));
    record.Presence = 0xFC;
    expectRefused(record, ": tag 0 is not in 1..2");
}

TEST_F(codebook, EachAllocationThatFailsLeavesItsChoiceOpen)
{
    RrcCodebookCfg_t two = singlePanel();
    antennaPorts(two).Presence = RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE;
    RrcCodebookCfg_t more = singlePanel();
    moreThanTwo(more) = {RRC_MORE_THAN_TWO_N1_N2_PRESENCE, RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, {1}, 0};
    const RrcCodebookCfg_t multi = multiPanel();
    RrcCodebookCfg_t restriction = typeII();
    restrictionOf(restriction).Restriction_Presence =
        RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE | RRC_TYPEII_RI_RESTRICTION_PRESENCE;
    const struct
    {
        RrcCodebookCfg_t record;
        unsigned successes;
        std::string line;
    } cases[] = {
        {two, 0, ": tag 0 is not in 1..2"},
        {two, 1, ".type1.subType: tag 0 is not in 1..2"},
        {two, 2, ".type1.subType.typeI-SinglePanel.nrOfAntennaPorts: tag 0 is not in 1..2"},
        {more, 2, ".type1.subType.typeI-SinglePanel.nrOfAntennaPorts: tag 0 is not in 1..2"},
        {more, 3, ".type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2: tag 0 is not in 1..13"},
        {multi, 1, ".type1.subType: tag 0 is not in 1..2"},
        {multi, 2, ".type1.subType.typeI-MultiPanel.ng-n1-n2: tag 0 is not in 1..8"},
        {restriction, 0, ": tag 0 is not in 1..2"},
        {restriction, 1, ".type2.subType: tag 0 is not in 1..2"},
        {restriction, 2, ".type2.subType.typeII.n1-n2-codebookSubsetRestriction: tag 0 is not in 1..13"},
        {portSelection(0), 1, ".type2.subType: tag 0 is not in 1..2"},
    };
    for (const auto& [record, successes, line] : cases)
    {
        CodebookConfig element{};
        {
            const HeapFault fault(successes);
            element = composed(record);
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(encode(asn1PE_CodebookConfig, element), "CodebookConfig.codebookType" + line);
    }
}

TEST_F(codebook, LosingAlternativeDoesNotSurviveTheWinnersFailure)
{
    // Both bits of every choice, and all requests from the n-th on refused.
    RrcCodebookCfg_t record = portSelection(RRC_PORT_SELEXTION_SAMPLING_SIZE);
    record.Presence = 0x3;
    Codebooktype2_Sub_t& sub = record.CodeBookCfgType_u.codeBookType2.codebookType2_Sub;
    sub.Presence = 0x3;
    bool struck = true;
    for (unsigned successes = 0; struck; ++successes)
    {
        ASSERT_LT(successes, 100U);
        CodebookConfig element{};
        {
            const HeapFault fault(successes);
            element = composed(record);
            struck = HeapFault::struck();
        }
        const std::string result = encode(asn1PE_CodebookConfig, element);
        if (struck)
        {
            EXPECT_NE(result.find(": tag 0 is not in 1.."), std::string::npos) << result;
        }
        else
        {
            expectCodebook(record, type2Json(portSelectionJson(samplingSize)));
        }
    }
}

} // namespace
