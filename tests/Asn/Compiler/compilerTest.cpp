#include "compiler.h"
#include "lexer.h"
#include "model.h"
#include "parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace
{

using asncomp::Diagnostics;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Messages = std::vector<std::string>;

// The diagnostics of a module with this body; its first line is line 1.
Messages messagesOf(const std::string& body)
{
    Diagnostics diagnostics("t");
    const auto files = asncomp::compile("t", "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n" + body + "\nEND\n",
                                        {{"all"}, {}, {}}, diagnostics);
    EXPECT_EQ(files.empty(), diagnostics.failed());
    return diagnostics.messages();
}

// The resolved model of a body without faults.
asncomp::Model modelOf(const std::string& body)
{
    Diagnostics diagnostics("t");
    const auto tokens = asncomp::tokenize("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n" + body + "\nEND\n", diagnostics);
    const auto module = asncomp::parse(tokens, diagnostics);
    auto model = asncomp::resolve(module, diagnostics);
    EXPECT_THAT(diagnostics.messages(), IsEmpty());
    return model;
}

std::string fileOf(const std::string& body, const std::string& name)
{
    Diagnostics diagnostics("t");
    for (const auto& file : asncomp::compile("t", "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n" + body + "\nEND\n",
                                             {{"all"}, {}, {}}, diagnostics))
    {
        if (file.name == name)
        {
            return file.text;
        }
    }
    ADD_FAILURE() << name << " does not come out";
    return "";
}

std::string headerOf(const std::string& body)
{
    return fileOf(body, "NR-RRC-Definitions.h");
}

std::string schemaText()
{
    std::ifstream file(SCHEMA, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What the subset has

TEST(Subset, IntegersTakeTheSmallestStorage)
{
    const std::string header = headerOf("A ::= INTEGER (0..255)\n"
                                        "B ::= INTEGER (0..256)\n"
                                        "C ::= INTEGER (1..65535)\n"
                                        "D ::= INTEGER (0..65536)\n"
                                        "E ::= INTEGER (-1..127)\n"
                                        "F ::= INTEGER (-128..0)\n"
                                        "G ::= INTEGER (-1..128)\n"
                                        "H ::= INTEGER (-32768..32767)\n"
                                        "I ::= INTEGER (-32769..0)\n"
                                        "J ::= INTEGER (7)\n"
                                        "K ::= INTEGER (-2147483648..2147483647)\n"
                                        "L ::= INTEGER (0..top)\n"
                                        "top INTEGER ::= 2147483647\n");
    for (const char* line :
         {"typedef OSUINT8 A; // 0..255\n", "typedef OSUINT16 B; // 0..256\n", "typedef OSUINT16 C; // 1..65535\n",
          "typedef OSUINT32 D; // 0..65536\n", "typedef OSINT8 E; // -1..127\n", "typedef OSINT8 F; // -128..0\n",
          "typedef OSINT16 G; // -1..128\n", "typedef OSINT16 H; // -32768..32767\n",
          "typedef OSINT32 I; // -32769..0\n", "typedef OSUINT8 J; // 7..7\n",
          "typedef OSINT32 K; // -2147483648..2147483647\n", "typedef OSUINT32 L; // 0..2147483647\n",
          "    top = 2147483647,\n"})
    {
        EXPECT_THAT(header, HasSubstr(line));
    }
}

TEST(Subset, BitStringsOfMoreThan32BitsAreBareOctets)
{
    const std::string header =
        headerOf("A ::= BIT STRING (SIZE (1))\n"
                 "B ::= BIT STRING (SIZE (32))\n"
                 "C ::= BIT STRING (SIZE (33))\n"
                 "D ::= SEQUENCE { short BIT STRING (SIZE (5)), long BIT STRING (SIZE (275)) }\n");
    EXPECT_THAT(header, HasSubstr("typedef ASN1BitStr32 A; // 1 bits\n"));
    EXPECT_THAT(header, HasSubstr("typedef ASN1BitStr32 B; // 32 bits\n"));
    EXPECT_THAT(header, HasSubstr("typedef OSOCTET C[5]; // 33 bits\n"));
    EXPECT_THAT(header, HasSubstr("    ASN1BitStr32 short_; // 5 bits\n"
                                  "    OSOCTET long_[35]; // 275 bits\n"));
}

TEST(Subset, EnumerationsHaveAConstantPerValue)
{
    EXPECT_THAT(headerOf("A-b ::= ENUMERATED { x1, y-2, default }\n"), HasSubstr("typedef OSUINT32 A_b;\n"
                                                                                 "enum\n"
                                                                                 "{\n"
                                                                                 "    A_b_x1 = 0,\n"
                                                                                 "    A_b_y_2 = 1,\n"
                                                                                 "    A_b_default = 2,\n"
                                                                                 "};\n"));
}

TEST(Subset, ASequenceHasAFlagPerOptionalMember)
{
    EXPECT_THAT(headerOf("A ::= SEQUENCE { a BOOLEAN, b-c INTEGER (0..7) OPTIONAL, -- Need R -- d NULL OPTIONAL, -- "
                         "Need R -- int B OPTIONAL -- Need R -- }\n"
                         "B ::= SEQUENCE { x ENUMERATED { one } }\n"),
                HasSubstr("struct A\n"
                          "{\n"
                          "    struct\n"
                          "    {\n"
                          "        unsigned b_cPresent : 1;\n"
                          "        unsigned dPresent : 1;\n"
                          "        unsigned int_Present : 1;\n"
                          "    } m;\n"
                          "    OSBOOL a;\n"
                          "    OSUINT8 b_c; // 0..7\n"
                          "    B int_;\n"
                          "};\n"));
}

TEST(Subset, GroupsAndLoneAdditionsHaveTheirFlagsInOrder)
{
    EXPECT_THAT(headerOf("A ::= SEQUENCE { a BOOLEAN OPTIONAL, -- Need R -- ...,\n"
                         "  [[ b BOOLEAN OPTIONAL, -- Need R -- c BOOLEAN OPTIONAL -- Need R -- ]],\n"
                         "  d BOOLEAN OPTIONAL, -- Need R --\n"
                         "  [[ e BOOLEAN, f BOOLEAN OPTIONAL -- Need R -- ]] }\n"),
                HasSubstr("        unsigned aPresent : 1;\n"
                          "        unsigned _v2ExtPresent : 1;\n"
                          "        unsigned bPresent : 1;\n"
                          "        unsigned cPresent : 1;\n"
                          "        unsigned dPresent : 1;\n"
                          "        unsigned _v3ExtPresent : 1;\n"
                          "        unsigned fPresent : 1;\n"
                          "    } m;\n"
                          "    OSBOOL a;\n"
                          "    OSBOOL b;\n"
                          "    OSBOOL c;\n"
                          "    OSBOOL d;\n"
                          "    OSBOOL e;\n"
                          "    OSBOOL f;\n"
                          "    OSRTDList extElem1;\n"
                          "};\n"));
}

TEST(Subset, AChoiceHoldsStructuresListsAndShortBitStringsByPointer)
{
    EXPECT_THAT(
        headerOf(
            "A ::= CHOICE { none NULL, i INTEGER (0..7), e E, s S, l SEQUENCE (SIZE (1..2)) OF S,\n"
            "  n SEQUENCE (SIZE (1..2)) OF E, b BIT STRING (SIZE (8)), o BIT STRING (SIZE (40)), t BOOLEAN, ... }\n"
            "E ::= ENUMERATED { x }\n"
            "S ::= SEQUENCE { x E }\n"),
        HasSubstr("    T_A_none = 1,\n"
                  "    T_A_i = 2,\n"
                  "    T_A_e = 3,\n"
                  "    T_A_s = 4,\n"
                  "    T_A_l = 5,\n"
                  "    T_A_n = 6,\n"
                  "    T_A_b = 7,\n"
                  "    T_A_o = 8,\n"
                  "    T_A_t = 9,\n"
                  "};\n"
                  "struct A\n"
                  "{\n"
                  "    OSUINT32 t;\n"
                  "    union\n"
                  "    {\n"
                  "        OSUINT8 i; // 0..7\n"
                  "        E e;\n"
                  "        S* s;\n"
                  "        A_l* l; // 1..2 nodes of S\n"
                  "        A_n* n;\n"
                  "        ASN1BitStr32* b; // 8 bits\n"
                  "        OSOCTET o[5]; // 40 bits\n"
                  "        OSBOOL t;\n"
                  "        ASN1OpenType* extElem1; // a tag above the last\n"
                  "    } u;\n"
                  "};\n"));
}

TEST(Subset, AChoiceOfNothingButNullHasNoUnion)
{
    EXPECT_THAT(headerOf("A ::= CHOICE { x NULL, y NULL }\n"), HasSubstr("struct A\n{\n    OSUINT32 t;\n};\n"));
}

TEST(Subset, ArraysHaveACountUnlessTheirSizeIsFixed)
{
    const std::string header = headerOf("A ::= SEQUENCE (SIZE (1..255)) OF INTEGER (0..7)\n"
                                        "B ::= SEQUENCE (SIZE (1..256)) OF INTEGER (-300..7)\n"
                                        "C ::= SEQUENCE (SIZE (3)) OF INTEGER (0..7)\n"
                                        "D ::= SEQUENCE (SIZE (0..most)) OF ENUMERATED { x, y }\n"
                                        "E ::= SEQUENCE (SIZE (1..2)) OF C\n"
                                        "most INTEGER ::= 4\n");
    EXPECT_THAT(header, HasSubstr("struct A\n{\n    OSUINT8 n; // 1..255\n    OSUINT8 elem[255]; // 0..7\n};\n"));
    EXPECT_THAT(header, HasSubstr("struct B\n{\n    OSUINT16 n; // 1..256\n    OSINT16 elem[256]; // -300..7\n};\n"));
    EXPECT_THAT(header, HasSubstr("struct C\n{\n    OSUINT8 elem[3]; // 0..7\n};\n"));
    EXPECT_THAT(header, HasSubstr("typedef OSUINT32 D_element;\n"));
    EXPECT_THAT(header, HasSubstr("struct D\n{\n    OSUINT8 n; // 0..4\n    D_element elem[4];\n};\n"));
    EXPECT_THAT(header, HasSubstr("typedef OSRTDList E; // 1..2 nodes of C\n"));
}

TEST(Subset, SetupReleaseIsAChoiceOfItsOwnForEachUse)
{
    const std::string header =
        headerOf("S { T } ::= CHOICE { release NULL, setup T }\n"
                 "A ::= SEQUENCE { x S { B } OPTIONAL, -- Need R -- y S { INTEGER (0..7) } OPTIONAL -- Need R -- }\n"
                 "B ::= SEQUENCE { z BOOLEAN }\n");
    EXPECT_THAT(header, HasSubstr("    T_A_x_release = 1,\n    T_A_x_setup = 2,\n"));
    EXPECT_THAT(header,
                HasSubstr("struct A_x\n{\n    OSUINT32 t;\n    union\n    {\n        B* setup;\n    } u;\n};\n"));
    EXPECT_THAT(header,
                HasSubstr("struct A_y\n{\n    OSUINT32 t;\n    union\n    {\n        OSUINT8 setup; // 0..7\n"));
}

TEST(Subset, SetupReleaseMayStandInItself)
{
    const std::string header = headerOf("S { T } ::= CHOICE { release NULL, setup T }\n"
                                        "A ::= SEQUENCE { x S { S { B } } }\n"
                                        "B ::= SEQUENCE { z BOOLEAN }\n");
    EXPECT_THAT(header, HasSubstr("struct A_x\n{\n    OSUINT32 t;\n    union\n    {\n        A_x_setup* setup;\n"));
    EXPECT_THAT(header, HasSubstr("struct A_x_setup\n{\n    OSUINT32 t;\n    union\n    {\n        B* setup;\n"));
}

TEST(Subset, AParameterMayBePassedOn)
{
    const std::string header = headerOf("S { T } ::= CHOICE { release NULL, setup T }\n"
                                        "P { T } ::= SEQUENCE { in S { T } }\n"
                                        "A ::= SEQUENCE { x P { B } }\n"
                                        "B ::= SEQUENCE { z BOOLEAN }\n");
    EXPECT_THAT(header, HasSubstr("struct A_x_in\n{\n    OSUINT32 t;\n    union\n    {\n        B* setup;\n"));
}

TEST(Subset, TypesMayBeUsedBeforeTheyAreAssigned)
{
    const auto model = modelOf("A ::= SEQUENCE { b B }\nB ::= SEQUENCE { c C }\nC ::= BOOLEAN\n");
    ASSERT_EQ(model.types.size(), 3U);
    EXPECT_EQ(model.types[0]->cName, "C");
    EXPECT_EQ(model.types[1]->cName, "B");
    EXPECT_EQ(model.types[2]->cName, "A");
    EXPECT_EQ(model.find("B"), model.types[1]);
    EXPECT_EQ(model.find("D"), nullptr);
}

TEST(Subset, RootMembersAndAdditionsAreTold)
{
    const auto model = modelOf("A ::= SEQUENCE { a NULL OPTIONAL, -- Need R -- b BOOLEAN, ..., [[ c BOOLEAN ]], d "
                               "BOOLEAN OPTIONAL -- Need R -- }\n");
    const asncomp::Type& type = *model.find("A");
    EXPECT_EQ(type.rootCount, 2U);
    ASSERT_EQ(type.members.size(), 4U);
    EXPECT_TRUE(type.extensible);
    EXPECT_FALSE(type.mayBeEmpty());
    ASSERT_EQ(type.additions.size(), 2U);
    EXPECT_EQ(type.additions[0].flagName, "_v2Ext");
    EXPECT_EQ(type.additions[0].flag, 1);
    EXPECT_EQ(type.additions[0].first, 2U);
    EXPECT_EQ(type.additions[0].count, 1U);
    EXPECT_EQ(type.additions[1].flag, -1);
    EXPECT_EQ(type.additions[1].first, 3U);
    EXPECT_EQ(type.members[3].flag, 2);
}

TEST(Subset, CommentsEndWithTheLineOrAtTheNextPairOfHyphens)
{
    EXPECT_THAT(messagesOf("-- A ::= OCTET STRING\n"
                           "B -- the name -- ::= -- -- BOOLEAN\n"
                           "C ::= INTEGER (0..--low--7)\n"
                           "--"),
                IsEmpty());
}

const char* const identified =
    "A ::= SEQUENCE {\n"
    "    add SEQUENCE (SIZE (1..4)) OF E OPTIONAL, -- Need N -- -- Identity id, released by rel\n"
    "    rel SEQUENCE (SIZE (1..4)) OF Id OPTIONAL, -- Need N -- ...,\n"
    "    [[ own SEQUENCE (SIZE (1..4)) OF Id OPTIONAL, -- Need R --\n"
    "       -- Identity Id\n"
    "       plain SEQUENCE (SIZE (1..4)) OF E OPTIONAL -- Need R -- ]],\n"
    "    last SEQUENCE (SIZE (1..4)) OF E OPTIONAL -- Need R -- -- Identity colour -- }\n"
    "E ::= SEQUENCE { first BOOLEAN, id Id, colour ENUMERATED { red, green } }\n"
    "Id ::= INTEGER (0..7)\n";

TEST(Subset, AListMayHaveAnIdentity)
{
    const asncomp::Model model = modelOf(identified);
    std::vector<int> identities;
    for (const asncomp::Member& member : model.find("A")->members)
    {
        identities.push_back(member.type->identity);
    }
    EXPECT_THAT(identities, ElementsAre(1, asncomp::noIdentity, asncomp::ownIdentity, asncomp::noIdentity, 2));
    const std::string tables = fileOf(identified, "NR-RRC-Tables.cpp");
    EXPECT_THAT(tables, HasSubstr(".bits = 2, .identity = 1}"));
    EXPECT_THAT(tables, HasSubstr(".bits = 2, .identity = rtx::ownIdentity}"));
    EXPECT_THAT(tables, HasSubstr(".bits = 2, .identity = 2}"));
}

// What identifies an element is no part of the encoding.
TEST(Subset, AnIdentityLeavesTypesAndEncoderAsTheyAre)
{
    std::string plain = identified;
    for (std::size_t at = plain.find("-- Id"); at != std::string::npos; at = plain.find("-- Id"))
    {
        plain.insert(at + 3, "An "); // an ordinary comment
    }
    for (const char* const file : {"NR-RRC-Definitions.h", "NR-RRC-Encoder.cpp"})
    {
        const std::string with = fileOf(identified, file);
        const std::string without = fileOf(plain, file);
        EXPECT_EQ(with.substr(with.find('\n')), without.substr(without.find('\n')));
    }
}

const char* const needy =
    "A ::= SEQUENCE {\n"
    "    a BOOLEAN OPTIONAL, -- Need M\n"
    "    b SEQUENCE { x BOOLEAN OPTIONAL -- Need S -- } OPTIONAL, -- Cond Here-Or-There (R, setup)\n"
    "    c ENUMERATED { p, q }, -- Change usage\n"
    "    d BOOLEAN,\n"
    "    f SEQUENCE (SIZE (1..4)) OF Id OPTIONAL,\n"
    "        -- Cond lower (N)\n"
    "        -- Identity Id, released by h\n"
    "    ...,\n"
    "    [[ g BOOLEAN OPTIONAL, -- Need N, switch\n"
    "       h SEQUENCE (SIZE (1..4)) OF Id OPTIONAL -- Need N\n"
    "    ]],\n"
    "    i S { Id } OPTIONAL,--Cond L139(M,mcg-release)--\n"
    "    j BOOLEAN OPTIONAL  -- Cond Other (fixed)\n"
    "}\n"
    "S { T } ::= CHOICE { release NULL, setup T }\n"
    "Id ::= INTEGER (0..7)\n";

TEST(Subset, AbsenceAndChangeAreToldOfEachMember)
{
    const std::string tables = fileOf(needy, "NR-RRC-Tables.cpp");
    EXPECT_THAT(tables,
                HasSubstr("constexpr rtx::Need needs_A[] = {\n"
                          "    {.absence = Absence::Keep},\n"
                          "    {.absence = Absence::Clear, .change = Change::Setup, .condition = \"Here-Or-There\"},\n"
                          "    {.change = Change::Usage},\n"
                          "    {},\n"
                          "    {.absence = Absence::Action, .list = ListRole::AddMod, .partner = 6, .condition = "
                          "\"lower\"},\n"
                          "    {.absence = Absence::Action, .change = Change::Switch},\n"
                          "    {.absence = Absence::Action, .list = ListRole::Release, .partner = 4},\n"
                          "    {.absence = Absence::Keep, .change = Change::McgRelease, .condition = \"L139\"},\n"
                          "    {.absence = Absence::Fixed, .condition = \"Other\"},\n"
                          "};\n"));
    EXPECT_THAT(tables, HasSubstr("constexpr rtx::Need needs_A_b[] = {\n    {.absence = Absence::Default},\n};\n"));
    EXPECT_THAT(tables, HasSubstr(", .needs = needs_A}"));
    EXPECT_THAT(tables, HasSubstr(".rootCount = 2, .setupRelease = true, .bits = 1}"));
}

// No other sequence has a table of needs, no other choice is one that releases what was set up.
TEST(Subset, WhatIsMandatoryAndFreeHasNoNeeds)
{
    const std::string tables = fileOf("A ::= SEQUENCE { x BOOLEAN, ..., [[ y BOOLEAN ]] }\n"
                                      "B ::= CHOICE { release NULL, setup BOOLEAN, ... }\n"
                                      "C ::= CHOICE { release BOOLEAN, setup BOOLEAN }\n"
                                      "D ::= CHOICE { setup BOOLEAN, release NULL }\n"
                                      "E ::= CHOICE { release NULL, setup BOOLEAN, more BOOLEAN }\n",
                                      "NR-RRC-Tables.cpp");
    EXPECT_THAT(tables, Not(HasSubstr("needs")));
    EXPECT_THAT(tables, Not(HasSubstr("setupRelease")));
}

TEST(Subset, ACommentThatOnlyBeginsLikeAnAnnotationIsNone)
{
    EXPECT_THAT(messagesOf("A ::= SEQUENCE { x BOOLEAN, -- Needs no code -- y BOOLEAN -- Changes, Conditions --\n"
                           "-- need R -- } -- the Need of a reader\n"),
                IsEmpty());
}

TEST(Subset, ASequenceMayBeNothingButAMarker)
{
    EXPECT_THAT(headerOf("A ::= SEQUENCE { ... }\n"), HasSubstr("struct A\n{\n    OSRTDList extElem1;\n};\n"));
}

TEST(Subset, TheNameOfACppOrCKeywordGetsATrail)
{
    const std::string header = headerOf(
        "A ::= SEQUENCE { int BOOLEAN, restrict BOOLEAN, static-cast BOOLEAN, alignof BOOLEAN, final BOOLEAN }\n");
    EXPECT_THAT(header,
                HasSubstr("    OSBOOL int_;\n    OSBOOL restrict_;\n    OSBOOL static_cast_;\n    OSBOOL alignof_;\n"
                          "    OSBOOL final;\n"));
}

TEST(Subset, MoreThan32FlagsRunOnInTheNextWord)
{
    std::string body = "A ::= SEQUENCE { ";
    for (int i = 0; i < 40; ++i)
    {
        body += (i == 0 ? "f" : ", -- Need R -- f") + std::to_string(i) + " BOOLEAN OPTIONAL";
    }
    const auto model = modelOf(body + " -- Need R -- }\n");
    EXPECT_EQ(model.find("A")->members[39].flag, 39);
}

TEST(Subset, EachFileNamesTheSchemaAndItsHash)
{
    const std::string body = "A ::= SEQUENCE { x BOOLEAN }\n";
    for (const char* name : {"NR-RRC-Definitions.h", "NR-RRC-Tables.h", "NR-RRC-Tables.cpp", "NR-RRC-Encoder.cpp"})
    {
        const std::string text = fileOf(body, name);
        EXPECT_EQ(text.find("// Generated by asncomp from t (hash "), 0U);
        EXPECT_NE(text.substr(0, 60), fileOf(body + " ", name).substr(0, 60)) << "another text has another hash";
        EXPECT_EQ(text, fileOf(body, name));
    }
}

TEST(Options, NoPduMeansNoFunctions)
{
    Diagnostics diagnostics("t");
    const auto files = asncomp::compile("t", "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN A ::= SEQUENCE { x BOOLEAN } END",
                                        {}, diagnostics);
    ASSERT_EQ(files.size(), 4U);
    EXPECT_THAT(files[0].text, Not(HasSubstr("asn1PE_")));
    EXPECT_THAT(files[0].text, HasSubstr("static inline void asn1Init_A(A* pvalue)"));
}

TEST(Options, APduHasAnEncoderADecoderAndAPrinter)
{
    const std::string header = headerOf("A-b ::= SEQUENCE { x BOOLEAN }\nB ::= BOOLEAN\nC ::= NULL\n");
    EXPECT_THAT(header, HasSubstr("int asn1PE_A_b(OSCTXT* pctxt, const A_b* pvalue);\n"));
    EXPECT_THAT(header, HasSubstr("int asn1PD_A_b(OSCTXT* pctxt, A_b* pvalue);\n"));
    EXPECT_THAT(header, HasSubstr("void asn1Print_A_b(const char* name, const A_b* pvalue);\n"));
    EXPECT_THAT(header, HasSubstr("int asn1PE_B(OSCTXT* pctxt, const B* pvalue);\n"));
    EXPECT_THAT(header, Not(HasSubstr("asn1PE_C"))) << "has no value";
}

// What they call is linked with the programs that call them alone.
TEST(Options, TheTypedCallsOfTheRuntimeAreInline)
{
    const std::string body = "A-b ::= SEQUENCE { x BOOLEAN }\n";
    const std::string header = headerOf(body);
    const std::string encoder = fileOf(body, "NR-RRC-Encoder.cpp");
    for (const char* const verb :
         {"ToJson", "ToValueNotation", "ToFlat", "Trace", "Check", "Compare", "Equal", "State", "Apply", "Diff"})
    {
        EXPECT_THAT(header, testing::ContainsRegex("static inline int[0-9_a-z]* asn1" + std::string(verb) +
                                                   "_A_b\\([^{]*\\) \\{ return rtx" + verb + "\\("));
        EXPECT_THAT(encoder, Not(HasSubstr(std::string("rtx") + verb)));
    }
}

TEST(Options, WhatIsNotUsualIsUnlikely)
{
    const std::string schema = R"(M DEFINITIONS AUTOMATIC TAGS ::= BEGIN
        A ::= SEQUENCE { x BOOLEAN OPTIONAL, -- Need R -- y BOOLEAN OPTIONAL, -- Need R -- ..., [[ z BOOLEAN OPTIONAL -- Need R -- ]], [[ w BOOLEAN OPTIONAL -- Need R -- ]] }
        B ::= CHOICE { x BOOLEAN, y BOOLEAN }
        C ::= SEQUENCE { ..., [[ x BOOLEAN OPTIONAL -- Need R -- ]] }
        D ::= SEQUENCE { ..., [[ x BOOLEAN ]] }
        END)";
    const auto encoder = [&](const std::vector<std::string>& usual)
    {
        Diagnostics diagnostics("t");
        const auto files = asncomp::compile("t", schema, {{"all"}, {}, {}, false, usual}, diagnostics);
        EXPECT_THAT(diagnostics.messages(), IsEmpty());
        return files.at(3).text;
    };
    const std::string some = encoder({"A.y", "A.z", "B.x"});
    EXPECT_THAT(some, HasSubstr("if (v->m.xPresent) [[unlikely]]\n"));
    EXPECT_THAT(some, HasSubstr("if (v->m.yPresent)\n"));
    EXPECT_THAT(some, HasSubstr("if (extended)\n")) << "A";
    EXPECT_THAT(some, HasSubstr("if (addition0 != 0)\n")) << "A";
    EXPECT_THAT(some, HasSubstr("if (addition1 != 0) [[unlikely]]\n"));
    EXPECT_THAT(some, HasSubstr("if (extended) [[unlikely]]\n")) << "C";
    EXPECT_THAT(some.substr(some.find("pe_D")), Not(HasSubstr("!= 0) [[unlikely]]"))) << "which the list cannot tell";
    EXPECT_THAT(some, HasSubstr("        case T_B_x:\n"));
    EXPECT_THAT(some, HasSubstr("        [[unlikely]] case T_B_y:\n"));
    EXPECT_THAT(encoder({}), Not(HasSubstr("Present) [[unlikely]]")));
    EXPECT_THAT(encoder({}), Not(HasSubstr("[[unlikely]] case")));
}

TEST(Options, AUsualMemberIsOneOfTheSchema)
{
    Diagnostics diagnostics("t");
    EXPECT_THAT(asncomp::compile(
                    "t",
                    "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need R -- } END",
                    {{"all"}, {}, {}, false, {"A.x", "A.y", "B.x"}}, diagnostics),
                IsEmpty());
    EXPECT_THAT(diagnostics.messages(),
                ElementsAre(HasSubstr("there is no member 'A.y'"), HasSubstr("there is no member 'B.x'")));
}

TEST(Options, ABaseGivesTheFunctionsAlone)
{
    Diagnostics diagnostics("t");
    const auto files = asncomp::compile(
        "t", "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN A ::= SEQUENCE { x BOOLEAN } B ::= SEQUENCE { a A } END",
        {{"all"}, {"A"}, "More"}, diagnostics);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].name, "More.h");
    EXPECT_EQ(files[1].name, "More.cpp");
    EXPECT_THAT(files[0].text, HasSubstr("asn1PE_B("));
    EXPECT_THAT(files[0].text, Not(HasSubstr("asn1PE_A(")));
    EXPECT_THAT(files[0].text, Not(HasSubstr("struct")));
}

TEST(Options, TheTableHasTheTypesLeftOutToo)
{
    Diagnostics diagnostics("t");
    const auto files =
        asncomp::compile("t",
                         "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN A ::= SEQUENCE { x BOOLEAN } B ::= BOOLEAN "
                         "C ::= NULL D-e ::= SEQUENCE { a A } END",
                         {{"all"}, {"A"}, "More", true}, diagnostics);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_THAT(files[0].text, HasSubstr("extern const RtxPdu rtxPdus[3];\n"));
    EXPECT_THAT(files[0].text, Not(HasSubstr("asn1PE_A(")));
    for (const char* row : {"{\"A\", &nr_rrc::type_A, ", "{\"B\", &nr_rrc::type_B, ", "{\"D-e\", &nr_rrc::type_D_e, "})
    {
        EXPECT_THAT(files[1].text, HasSubstr(row));
    }
}

TEST(Options, RefusesAPduThatIsNoTypeWithAValue)
{
    for (const char* name : {"C", "B"})
    {
        Diagnostics diagnostics("t");
        const auto files = asncomp::compile(
            "t", "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN A ::= SEQUENCE { x B OPTIONAL -- Need R -- } B ::= NULL END",
            {{"A", name}, {}, {}, false}, diagnostics);
        EXPECT_THAT(files, IsEmpty());
        EXPECT_THAT(diagnostics.messages(),
                    ElementsAre("t:1:1: there is no type '" + std::string(name) + "' with a value"));
    }
}

// What is refused: a body from line 2 on and all messages that it gives

struct Refusal
{
    const char* name;
    std::string body;
    Messages messages;
};

void PrintTo(const Refusal& refusal, std::ostream* out)
{
    *out << refusal.name;
}

std::string nameOf(const testing::TestParamInfo<Refusal>& refusal)
{
    return refusal.param.name;
}

class Refused : public testing::TestWithParam<Refusal>
{
};

TEST_P(Refused, WithItsPlaceAndReason)
{
    EXPECT_EQ(messagesOf(GetParam().body), GetParam().messages);
}

std::string repeated(const std::string& text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
    {
        result += text;
    }
    return result;
}

const Refusal grammar[] = {
    {"IdentityOfNoList",
     "A ::= SEQUENCE { x BOOLEAN -- Identity x\n}",
     {"t:2:31: 'x' is not a SEQUENCE OF: it has no elements to identify"}},
    {"IdentityOfAnAlternative",
     "A ::= CHOICE { x SEQUENCE (SIZE (1..2)) OF B -- Identity y\n}",
     {"t:2:46: an annotation stands behind a member of a SEQUENCE"}},
    {"IdentityOfAType",
     "A ::= SEQUENCE (SIZE (1..2)) OF B -- Identity y",
     {"t:2:35: the name of a type wanted, '--' found"}},
    {"IdentityOfAGroup",
     "A ::= SEQUENCE { ..., [[ x SEQUENCE (SIZE (1..2)) OF B ]], -- Identity y\n}",
     {"t:2:60: an annotation stands behind a member of a SEQUENCE"}},
    {"IdentityWithoutAName",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity\n}",
     {"t:2:59: a name wanted, '--' found"}},
    {"IdentityWithMore",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity y z\n}",
     {"t:2:62: '--' wanted, 'z' found"}},
    {"IdentityReleasedOtherwise",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity y, freed by z\n}",
     {"t:2:63: 'released' wanted, 'freed' found"}},
    {"IdentityReleasedByAType",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity y, released by Z -- }",
     {"t:2:75: the name of a list wanted, 'Z' found"}},
    {"IdentityAtTheEnd",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity y",
     {"t:3:1: '}' wanted, 'END' found"}},
    {"IdentityTwice",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity B -- -- Identity B -- }",
     {"t:2:68: 'x' has an annotation of this kind already"}},
    {"NeedWithoutACode",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need -- }",
     {"t:2:45: a need code wanted, '--' found"}},
    {"NeedWithACondition",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need M (x) -- }",
     {"t:2:47: '--' wanted, '(' found"}},
    {"NeedWithoutAWord",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need M, -- }",
     {"t:2:48: what binds a change wanted, '--' found"}},
    {"NeedWithTwoWords",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need M, setup, kind -- }",
     {"t:2:53: '--' wanted, ',' found"}},
    {"NeedTwice",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL, -- Need M --\n-- Need R\n}",
     {"t:3:4: 'x' has an annotation of this kind already"}},
    {"NeedAndChange",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need M -- -- Change setup -- }",
     {"t:2:53: 'x' has an annotation of this kind already"}},
    {"NeedBeforeTheComma",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need M --, y BOOLEAN }",
     {"t:2:49: the comma stands before the annotation"}},
    {"NeedOfAnAlternative",
     "A ::= CHOICE { x BOOLEAN, -- Need M --\ny BOOLEAN }",
     {"t:2:27: an annotation stands behind a member of a SEQUENCE"}},
    {"NeedOfAMarker",
     "A ::= SEQUENCE { ..., -- Need M --\nx BOOLEAN OPTIONAL }",
     {"t:2:23: an annotation stands behind a member of a SEQUENCE"}},
    {"NeedOfAGroup",
     "A ::= SEQUENCE { ..., [[ x BOOLEAN OPTIONAL ]] -- Need M -- }",
     {"t:2:48: an annotation stands behind a member of a SEQUENCE"}},
    {"NeedOfNothing",
     "A ::= SEQUENCE { -- Need M --\nx BOOLEAN OPTIONAL }",
     {"t:2:18: the name of a member wanted, '--' found"}},
    {"NeedOfAType", "A ::= BOOLEAN -- Need M", {"t:2:15: the name of a type wanted, '--' found"}},
    {"CondWithoutAName",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Cond -- }",
     {"t:2:45: the name of a condition wanted, '--' found"}},
    {"CondWithoutACode", "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Cond X -- }", {"t:2:47: '(' wanted, '--' found"}},
    {"CondWithAnEmptyCode",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Cond X () -- }",
     {"t:2:48: a need code wanted, ')' found"}},
    {"CondWithAnOpenCode", "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Cond X (M -- }", {"t:2:50: ')' wanted, '--' found"}},
    {"CondWithAWordBehindIt",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Cond X (M), setup -- }",
     {"t:2:50: '--' wanted, ',' found"}},
    {"ChangeWithoutAWord",
     "A ::= SEQUENCE { x BOOLEAN -- Change -- }",
     {"t:2:38: what binds a change wanted, '--' found"}},
    {"ChangeWithTwoWords",
     "A ::= SEQUENCE { x BOOLEAN -- Change usage identity -- }",
     {"t:2:44: '--' wanted, 'identity' found"}},
    {"Default", "A ::= SEQUENCE {\n  x BOOLEAN DEFAULT TRUE\n}", {"t:3:13: DEFAULT is not supported"}},
    {"DefaultOfAnAlternative", "A ::= CHOICE { x BOOLEAN DEFAULT TRUE }", {"t:2:26: DEFAULT is not supported"}},
    {"OptionalAlternative",
     "A ::= CHOICE { x BOOLEAN OPTIONAL }",
     {"t:2:26: an alternative of a CHOICE is never OPTIONAL"}},
    {"OctetString", "A ::= OCTET STRING", {"t:2:7: OCTET is not supported"}},
    {"OctetStringMember", "A ::= SEQUENCE { x OCTET STRING (SIZE (3)) }", {"t:2:20: OCTET is not supported"}},
    {"CharacterString", "A ::= SEQUENCE { x UTF8String }", {"t:2:20: UTF8String is not supported"}},
    {"Set", "A ::= SET { x BOOLEAN }", {"t:2:7: SET is not supported"}},
    {"Real", "A ::= REAL", {"t:2:7: REAL is not supported"}},
    {"ObjectIdentifier", "A ::= OBJECT IDENTIFIER", {"t:2:7: OBJECT is not supported"}},
    {"Imports", "IMPORTS A FROM B;", {"t:2:17: the character ';' does not belong here"}},
    {"ImportsWithoutSemicolon", "IMPORTS A FROM B", {"t:2:1: IMPORTS is not supported"}},
    {"UnconstrainedInteger", "A ::= INTEGER\nB ::= BOOLEAN", {"t:3:1: '(' wanted, 'B' found"}},
    {"UnconstrainedIntegerMember", "A ::= SEQUENCE { x INTEGER }", {"t:2:28: '(' wanted, '}' found"}},
    {"NamedNumbers", "A ::= INTEGER { one(1) } (0..7)", {"t:2:15: '(' wanted, '{' found"}},
    {"OpenRange", "A ::= INTEGER (0..MAX)", {"t:2:19: a number or a constant wanted, 'MAX' found"}},
    {"ExtensibleRange", "A ::= INTEGER (0..7, ...)", {"t:2:20: ')' wanted, ',' found"}},
    {"ExtensibleSingleValue", "A ::= INTEGER (0...)", {"t:2:17: extensible constraints are not supported"}},
    {"TwoRanges", "A ::= INTEGER (0..7) (0..3)", {"t:2:22: a constraint is not supported here"}},
    {"ConstrainedReference",
     "A ::= SEQUENCE { x B (0..3) }\nB ::= INTEGER (0..7)",
     {"t:2:22: a constraint is not supported here"}},
    {"EmptyEnumeration", "A ::= ENUMERATED { }", {"t:2:20: the name of an enumeration value wanted, '}' found"}},
    {"ExtensibleEnumeration", "A ::= ENUMERATED { x, ... }", {"t:2:23: extensible enumerations are not supported"}},
    {"NumberedEnumeration", "A ::= ENUMERATED { x(3) }", {"t:2:21: '}' wanted, '(' found"}},
    {"UpperCaseEnumerationValue",
     "A ::= ENUMERATED { X }",
     {"t:2:20: the name of an enumeration value wanted, 'X' found"}},
    {"BitStringWithoutSize", "A ::= BIT STRING\nB ::= BOOLEAN", {"t:3:1: '(' wanted, 'B' found"}},
    {"NamedBits", "A ::= BIT STRING { x(0) } (SIZE (3))", {"t:2:18: '(' wanted, '{' found"}},
    {"BitWithoutString", "A ::= BIT (SIZE (3))", {"t:2:11: 'STRING' wanted, '(' found"}},
    {"BitStringWithAValueRange", "A ::= BIT STRING (0..3)", {"t:2:19: 'SIZE' wanted, '0' found"}},
    {"ListWithoutSize", "A ::= SEQUENCE OF BOOLEAN", {"t:2:16: '{' wanted, 'OF' found"}},
    {"ListWithSizeInTheOldPlace", "A ::= SEQUENCE SIZE (1..2) OF BOOLEAN", {"t:2:16: '{' wanted, 'SIZE' found"}},
    {"ListWithExtensibleSize",
     "A ::= SEQUENCE (SIZE (1...)) OF BOOLEAN",
     {"t:2:24: extensible constraints are not supported"}},
    {"ListWithoutOf", "A ::= SEQUENCE (SIZE (1..2)) BOOLEAN", {"t:2:30: 'OF' wanted, 'BOOLEAN' found"}},
    {"SecondMarker",
     "A ::= SEQUENCE { x BOOLEAN, ..., y BOOLEAN OPTIONAL, -- Need R -- ... }",
     {"t:2:67: a second extension marker is not supported"}},
    {"SecondMarkerAtOnce", "A ::= CHOICE { x NULL, ..., ... }", {"t:2:29: a second extension marker is not supported"}},
    {"GroupOfAChoice",
     "A ::= CHOICE { x NULL, ..., [[ y NULL ]] }",
     {"t:2:29: addition groups of a CHOICE are not supported"}},
    {"GroupBeforeTheMarker", "A ::= SEQUENCE { [[ x NULL ]] }", {"t:2:18: the name of a member wanted, '[[' found"}},
    {"GroupWithoutEnd", "A ::= SEQUENCE { ..., [[ x NULL OPTIONAL -- Need R -- }", {"t:2:55: ']]' wanted, '}' found"}},
    {"EmptyGroup", "A ::= SEQUENCE { ..., [[ ]] }", {"t:2:26: the name of a member wanted, ']]' found"}},
    {"NumberedGroup",
     "A ::= SEQUENCE { ..., [[ 2: x NULL OPTIONAL ]] }",
     {"t:2:27: the character ':' does not belong here"}},
    {"CommaBeforeTheBrace", "A ::= SEQUENCE { x BOOLEAN, }", {"t:2:29: the name of a member wanted, '}' found"}},
    {"MissingComma", "A ::= SEQUENCE { x BOOLEAN y BOOLEAN }", {"t:2:28: '}' wanted, 'y' found"}},
    {"UpperCaseMember", "A ::= SEQUENCE { X BOOLEAN }", {"t:2:18: the name of a member wanted, 'X' found"}},
    {"MemberWithoutType", "A ::= SEQUENCE { x, y BOOLEAN }", {"t:2:19: the name of a type wanted, ',' found"}},
    {"ComponentsOf", "A ::= SEQUENCE { COMPONENTS OF B }", {"t:2:18: the name of a member wanted, 'COMPONENTS' found"}},
    {"Tag",
     "A ::= [0] BOOLEAN",
     {"t:2:7: the character '[' does not belong here", "t:2:9: the character ']' does not belong here"}},
    {"LowerCaseType", "a ::= BOOLEAN", {"t:2:3: 'INTEGER' wanted, '::=' found"}},
    {"KeywordAsType", "SEQUENCE ::= BOOLEAN", {"t:2:1: the name of a type wanted, 'SEQUENCE' found"}},
    {"TypeWithoutAssignment", "A BOOLEAN", {"t:2:3: '::=' wanted, 'BOOLEAN' found"}},
    {"BooleanConstant", "a BOOLEAN ::= TRUE", {"t:2:3: 'INTEGER' wanted, 'BOOLEAN' found"}},
    {"ConstantOfAConstant", "a INTEGER ::= 3\nb INTEGER ::= a", {"t:3:15: a number wanted, 'a' found"}},
    {"LowerCaseParameter", "A { t } ::= BOOLEAN", {"t:2:5: the name of a type wanted, 't' found"}},
    {"TwoParameters", "A { T, U } ::= BOOLEAN", {"t:2:6: '}' wanted, ',' found"}},
    {"NumberAsAssignment", "32", {"t:2:1: the name of a type wanted, '32' found"}},
    {"TypesNestedTooDeeply",
     "A ::= " + repeated("SEQUENCE { x ", 41) + "BOOLEAN" + repeated(" }", 41),
     {"t:2:540: types are nested too deeply"}},
    {"ListsNestedTooDeeply",
     "A ::= " + repeated("SEQUENCE (SIZE (1)) OF ", 41) + "BOOLEAN",
     {"t:2:950: types are nested too deeply"}},
    {"ParametersNestedTooDeeply",
     "A ::= SEQUENCE { x " + repeated("S { ", 41) + "BOOLEAN" + repeated(" }", 41) + " }",
     {"t:2:180: types are nested too deeply"}},
};
INSTANTIATE_TEST_SUITE_P(Grammar, Refused, testing::ValuesIn(grammar), nameOf);

const Refusal characters[] = {
    {"Semicolon", "A ::= BOOLEAN;", {"t:2:14: the character ';' does not belong here"}},
    {"Underscore", "A_b ::= BOOLEAN", {"t:2:2: the character '_' does not belong here"}},
    {"LoneColon",
     "A : = BOOLEAN",
     {"t:2:3: the character ':' does not belong here", "t:2:5: the character '=' does not belong here"}},
    {"LoneHyphen", "A ::= - BOOLEAN", {"t:2:7: the character '-' does not belong here"}},
    {"LoneDot", "A ::= INTEGER (0.7)", {"t:2:17: the character '.' does not belong here"}},
    {"String",
     "a INTEGER ::= \"x\"",
     {"t:2:15: the character '\"' does not belong here", "t:2:17: the character '\"' does not belong here"}},
    {"Utf8",
     "\xC3\xA4 ::= BOOLEAN",
     {"t:2:1: the octet 195 does not belong here", "t:2:2: the octet 164 does not belong here"}},
    {"Nul", std::string("A ::= \0 BOOLEAN", 15), {"t:2:7: the octet 0 does not belong here"}},
    {"FormFeed", "A ::=\f BOOLEAN", {"t:2:6: the octet 12 does not belong here"}},
    {"Delete", "A ::=\x7F BOOLEAN", {"t:2:6: the octet 127 does not belong here"}},
    {"HyphenAtTheEnd", "A- ::= BOOLEAN", {"t:2:1: the name 'A-' ends in a hyphen"}},
    {"HugeNumber", "a INTEGER ::= 1000000000000", {"t:2:15: the number 1000000000000 is too large"}},
    {"HugeNegativeNumber", "A ::= INTEGER (-999999999999..0)", {"t:2:16: the number -999999999999 is too large"}},
    {"NumberBeyondAllTypes",
     "A ::= INTEGER (0..99999999999999999999999999)",
     {"t:2:19: the number 99999999999999999999999999 is too large"}},
    {"LongName", "A" + std::string(255, 'a') + " ::= BOOLEAN", {"t:2:1: the name is longer than 255 characters"}},
    {"ColumnsBehindTabsAndComments", "\t-- x --\t; A ::= BOOLEAN", {"t:2:10: the character ';' does not belong here"}},
};
INSTANTIATE_TEST_SUITE_P(Characters, Refused, testing::ValuesIn(characters), nameOf);

// Types that hold each other in a row, A0 the innermost.
std::string chain(int count, bool ascending)
{
    std::string body;
    for (int i = 0; i < count; ++i)
    {
        const int n = ascending ? i : count - 1 - i;
        body += "A" + std::to_string(n) + " ::= SEQUENCE { x " + (n == 0 ? "BOOLEAN" : "A" + std::to_string(n - 1)) +
                " }\n";
    }
    return body;
}

std::string many(const std::string& before, int count, const std::string& member, const std::string& after,
                 const std::string& annotation = "")
{
    std::string body = before;
    for (int i = 0; i < count; ++i)
    {
        body += (i == 0 ? "x" : "," + annotation + " x") + std::to_string(i) + member;
    }
    return body + annotation + after;
}

std::string noCodeOf(const std::string& member)
{
    return "'" + member +
           "' is OPTIONAL: what its absence does is missing behind it, -- Need <M, R, S or N> or -- Cond <condition> "
           "(<M, R, S, N or fixed>)";
}

std::string noIdentityOf(const std::string& list)
{
    return "t:2:18: the elements of '" + list +
           "' are added one by one: -- Identity <member>, released by <list> is missing behind it";
}

std::string unknownWord(const std::string& word)
{
    return "unknown word '" + word +
           "': setup, drb-setup, mode, creation, creation-optional, switch, sync, reestablish, kind, fixed-kind, "
           "usage, "
           "pucch, scell, inactive, inactive-type2, sul, mcg-release, identity are known";
}

// A sequence of members of this type, one a line from line 3 on, each bound by a word.
std::string words(const std::string& type, const std::string& before, const std::string& after, const Messages& all)
{
    std::string body = "A ::= SEQUENCE {\n";
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        const std::string name(1, static_cast<char>('a' + i));
        body += name + " " + type + (i + 1 < all.size() ? "," : " ") + " -- " + before + all[i] + after + "\n";
    }
    return body + "}";
}

const Refusal meanings[] = {
    {"UnknownType", "A ::= SEQUENCE { x B }", {"t:2:20: the type 'B' is not assigned"}},
    {"UnknownTypeInAList", "A ::= SEQUENCE (SIZE (1..2)) OF B", {"t:2:33: the type 'B' is not assigned"}},
    {"UnknownConstant", "A ::= INTEGER (low..7)", {"t:2:16: the constant 'low' is not assigned"}},
    {"TypeAssignedTwice",
     "A ::= SEQUENCE { x BOOLEAN }\nA ::= SEQUENCE { x BOOLEAN }",
     {"t:3:1: the type 'A' is assigned twice"}},
    {"ConstantAssignedTwice",
     "a INTEGER ::= 1\na INTEGER ::= 1",
     {"t:3:1: the constant 'a' is assigned twice", "t:3:1: the C name 'a' would stand for two things"}},
    {"ConstantBeyond32Bits", "a INTEGER ::= 2147483648", {"t:2:1: the constant 'a' does not fit into 32 bits"}},
    {"ConstantBelow32Bits", "a INTEGER ::= -2147483649", {"t:2:1: the constant 'a' does not fit into 32 bits"}},
    {"OneCNameForTwoTypes",
     "A-b ::= SEQUENCE { x BOOLEAN }\nA ::= SEQUENCE { b SEQUENCE { x BOOLEAN } }",
     {"t:3:20: the C name 'A_b' would stand for two things", "t:3:33: the C name 'A_b_x' would stand for two things"}},
    {"OneCNameForTwoValues",
     "A ::= ENUMERATED { x }\nA-x ::= BOOLEAN",
     {"t:3:1: the C name 'A_x' would stand for two things"}},
    {"OneCNameForATypeAndATag",
     "A ::= CHOICE { x NULL }\nT-A-x ::= BOOLEAN",
     {"t:3:1: the C name 'T_A_x' would stand for two things"}},
    {"TheRuntimesOwnName", "OSRTDList ::= BOOLEAN", {"t:2:1: the C name 'OSRTDList' would stand for two things"}},
    {"MemberTwice",
     "A ::= SEQUENCE { x BOOLEAN, y NULL OPTIONAL, -- Need R -- x BOOLEAN }",
     {"t:2:59: the name 'x' occurs twice"}},
    {"MemberTwiceInAGroup",
     "A ::= SEQUENCE { x BOOLEAN, ..., [[ x BOOLEAN OPTIONAL -- Need R -- ]] }",
     {"t:2:37: the name 'x' occurs twice"}},
    {"AlternativeTwice", "A ::= CHOICE { x NULL, x NULL }", {"t:2:24: the name 'x' occurs twice"}},
    {"ValueTwice",
     "A ::= ENUMERATED { x, y, x }",
     {"t:2:26: the value 'x' occurs twice", "t:2:26: the C name 'A_x' would stand for two things"}},
    {"MemberWithTheNameOfTheFlags",
     "A ::= SEQUENCE { m BOOLEAN }",
     {"t:2:18: the name 'm' belongs to the generated structure"}},
    {"MemberWithTheNameOfTheUnknown",
     "A ::= CHOICE { extElem1 NULL, ... }",
     {"t:2:16: the name 'extElem1' belongs to the generated structure"}},
    {"EmptyRange", "A ::= INTEGER (7..6)", {"t:2:16: the range is empty: 7..6"}},
    {"RangeBeyond32Bits", "A ::= INTEGER (0..2147483648)", {"t:2:16: the range is not within -2147483648..2147483647"}},
    {"RangeBelow32Bits", "A ::= INTEGER (-2147483649..0)", {"t:2:16: the range is not within -2147483648..2147483647"}},
    {"EmptySize", "A ::= SEQUENCE (SIZE (3..2)) OF INTEGER (0..7)", {"t:2:23: the size is empty: 3..2"}},
    {"NegativeSize",
     "A ::= SEQUENCE (SIZE (-1..2)) OF INTEGER (0..7)",
     {"t:2:23: the size is not within 0..65535", "t:2:7: a list that is always empty is not supported"}},
    {"HugeSize",
     "A ::= SEQUENCE (SIZE (1..65536)) OF INTEGER (0..7)",
     {"t:2:23: the size is not within 0..65535", "t:2:7: a list that is always empty is not supported"}},
    {"AlwaysEmptyList",
     "A ::= SEQUENCE (SIZE (0)) OF INTEGER (0..7)",
     {"t:2:7: a list that is always empty is not supported"}},
    {"ListOfBooleans", "A ::= SEQUENCE (SIZE (2)) OF BOOLEAN", {"t:2:7: a list of this type is not supported"}},
    {"ListOfNulls", "A ::= SEQUENCE (SIZE (2)) OF NULL", {"t:2:7: a list of this type is not supported"}},
    {"ListOfBitStrings",
     "A ::= SEQUENCE (SIZE (2)) OF BIT STRING (SIZE (8))",
     {"t:2:7: a list of this type is not supported"}},
    {"ListOfLongBitStrings",
     "A ::= SEQUENCE (SIZE (2)) OF BIT STRING (SIZE (80))",
     {"t:2:7: a list of this type is not supported"}},
    {"VariableBitString", "A ::= BIT STRING (SIZE (1..8))", {"t:2:7: a BIT STRING of variable size is not supported"}},
    {"EmptyBitString", "A ::= BIT STRING (SIZE (0))", {"t:2:25: the size is not within 1..65535"}},
    {"HugeBitString", "A ::= BIT STRING (SIZE (65536))", {"t:2:25: the size is not within 1..65535"}},
    {"IdentityIsNoMember",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need R -- -- Identity y\n}\nB ::= SEQUENCE { z "
     "BOOLEAN }",
     {"t:2:82: the elements, of type 'B', have no member 'y'"}},
    {"IdentityOfNothing",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity y\n}",
     {"t:2:46: the type 'B' is not assigned"}},
    {"IdentityOfChoices",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity z\n}\nB ::= CHOICE { z INTEGER (0..7) }",
     {"t:2:60: the elements, of type 'B', have no member 'z'"}},
    {"IdentityIsOptional",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF SEQUENCE { z INTEGER (0..7) OPTIONAL -- Need R -- } -- Identity "
     "z\n}",
     {"t:2:110: the member 'z' is no identity: that is a mandatory INTEGER or ENUMERATED among the first 128 members"}},
    {"IdentityIsAnAddition",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF SEQUENCE { ..., [[ z INTEGER (0..7) ]] } -- Identity z\n}",
     {"t:2:99: the member 'z' is no identity: that is a mandatory INTEGER or ENUMERATED among the first 128 members"}},
    {"IdentityIsNoNumber",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF SEQUENCE { z BOOLEAN } -- Identity z\n}",
     {"t:2:81: the member 'z' is no identity: that is a mandatory INTEGER or ENUMERATED among the first 128 members"}},
    {"IdentityIsFarBehind",
     many("A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF SEQUENCE { ", 129, " INTEGER (0..7)", " } -- Identity x128\n}"),
     {"t:2:2669: the member 'x128' is no identity: that is a mandatory INTEGER or ENUMERATED among the first 128 "
      "members"}},
    {"IdentityOfAnotherType",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity C\n}\nB ::= INTEGER (0..7)",
     {"t:2:60: the elements are of type 'B', not 'C'"}},
    {"ReleasedByNothing",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B -- Identity B, released by y\n}\nB ::= INTEGER (0..7)",
     {"t:2:75: there is no member 'y' beside 'x'"}},
    {"ReleasedByAnotherType",
     "A ::= SEQUENCE { y SEQUENCE (SIZE (1..2)) OF C, x SEQUENCE (SIZE (1..2)) OF B -- Identity B, released by y\n}\n"
     "B ::= INTEGER (0..7)\nC ::= INTEGER (0..7)",
     {"t:2:106: 'y' is not a list of 'B', which identifies the elements of 'x'"}},
    {"ReleasedByNoList",
     "A ::= SEQUENCE { ..., y B OPTIONAL, -- Need R -- x SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need R -- -- Identity "
     "B, released by y\n}\n"
     "B ::= INTEGER (0..7)",
     {"t:2:129: 'y' is not a list of 'B', which identifies the elements of 'x'"}},
    {"ReleasedByItself",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N -- -- Identity B, released by x\n}\n"
     "B ::= INTEGER (0..7)",
     {"t:2:97: 'x' and 'x' are no pair: one that only releases and one that only adds"}},
    {"TwoReleasedByOne",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B OPTIONAL, -- Need N -- -- Identity B, released by y\n"
     "z SEQUENCE (SIZE (1..2)) OF B OPTIONAL, -- Need N -- -- Identity B, released by y\n"
     "y SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\nB ::= INTEGER (0..7)",
     {"t:3:81: 'y' and 'z' are no pair: one that only releases and one that only adds"}},
    {"ReleasedInARow",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B OPTIONAL, -- Need N -- -- Identity B, released by y\n"
     "y SEQUENCE (SIZE (1..2)) OF B OPTIONAL, -- Need N -- -- Identity B, released by z\n"
     "z SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\nB ::= INTEGER (0..7)",
     {"t:3:81: 'z' and 'y' are no pair: one that only releases and one that only adds"}},
    {"ReleasedAndKept",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B OPTIONAL, -- Need M -- -- Identity B, released by y\n"
     "y SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need R\n}\nB ::= INTEGER (0..7)",
     {"t:2:18: the elements of 'x' are added or released one by one: it is OPTIONAL, of code N",
      "t:3:1: the elements of 'y' are added or released one by one: it is OPTIONAL, of code N"}},
    {"ReleasedAndMandatory",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B, -- Identity B, released by y\n"
     "y SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\nB ::= INTEGER (0..7)",
     {"t:2:18: the elements of 'x' are added or released one by one: it is OPTIONAL, of code N"}},
    {"AddModListWithoutIdentity",
     "A ::= SEQUENCE { xToAddModList SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\nB ::= INTEGER (0..7)",
     {noIdentityOf("xToAddModList")}},
    {"AddModListWithoutPartner",
     "A ::= SEQUENCE { xToAddModList SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N -- -- Identity B\n}\n"
     "B ::= INTEGER (0..7)",
     {noIdentityOf("xToAddModList")}},
    {"AddListWithoutIdentity",
     "A ::= SEQUENCE { x-ToaddList SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\nB ::= INTEGER (0..7)",
     {noIdentityOf("x-ToaddList")}},
    {"AddModListInAGroup",
     "A ::= SEQUENCE { ..., [[\n                 toaddmodlist SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n]] }\n"
     "B ::= INTEGER (0..7)",
     {"t:3" + noIdentityOf("toaddmodlist").substr(3)}},
    {"AddModListThatIsALoneAddition",
     "A ::= SEQUENCE { ...,\n                 xToAddModList SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\n"
     "B ::= INTEGER (0..7)",
     {"t:3" + noIdentityOf("xToAddModList").substr(3)}},
    {"ReleaseListWithoutPartner",
     "A ::= SEQUENCE { xToreleaseList SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Need N\n}\nB ::= INTEGER (0..7)",
     {"t:2:18: no list has elements that 'xToreleaseList' releases: -- Identity <member>, released by xToreleaseList "
      "is missing behind it"}},
    {"OptionalWithoutACode", "A ::= SEQUENCE { x BOOLEAN OPTIONAL }", {"t:2:18: " + noCodeOf("x")}},
    {"OptionalWithACommentAlone",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- need R, of course --, y BOOLEAN OPTIONAL -- Needs nothing -- }",
     {"t:2:18: " + noCodeOf("x"), "t:2:62: " + noCodeOf("y")}},
    {"OptionalWithAnIdentityAlone",
     "A ::= SEQUENCE { x SEQUENCE (SIZE (1..2)) OF B OPTIONAL -- Identity B\n}\nB ::= INTEGER (0..7)",
     {"t:2:18: " + noCodeOf("x")}},
    {"OptionalWithAChangeAlone",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Change setup -- }",
     {"t:2:18: " + noCodeOf("x")}},
    {"OptionalAdditionsWithoutACode",
     "A ::= SEQUENCE { ..., x BOOLEAN OPTIONAL, [[ y BOOLEAN, z BOOLEAN OPTIONAL ]] }",
     {"t:2:23: " + noCodeOf("x"), "t:2:57: " + noCodeOf("z")}},
    {"NestedOptionalWithoutACode",
     "A ::= CHOICE { c SEQUENCE { s SEQUENCE { x BOOLEAN OPTIONAL } OPTIONAL -- Need R -- } }",
     {"t:2:42: " + noCodeOf("x")}},
    {"OptionalInAListWithoutACode",
     "A ::= SEQUENCE (SIZE (1..2)) OF SEQUENCE { x BOOLEAN OPTIONAL }",
     {"t:2:44: " + noCodeOf("x")}},
    {"CodeOfAMandatoryMember",
     "A ::= SEQUENCE { x BOOLEAN, -- Need M -- y BOOLEAN -- Cond X (R, setup) -- }",
     {"t:2:32: 'x' is not OPTIONAL: its absence does nothing",
      "t:2:55: 'y' is not OPTIONAL: its absence does nothing"}},
    {"UnknownCodes",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL, -- Need P -- y BOOLEAN OPTIONAL, -- Need m, setup --\n"
     "z BOOLEAN OPTIONAL -- Cond X (Fixed) -- }",
     {"t:2:46: unknown need code 'P': M, R, S, N, fixed are known",
      "t:2:79: unknown need code 'm': M, R, S, N, fixed are known",
      "t:3:31: unknown need code 'Fixed': M, R, S, N, fixed are known"}},
    {"FixedByNothing",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL -- Need fixed -- }",
     {"t:2:45: what fixes the presence is missing: -- Cond <condition> (fixed)"}},
    {"UnknownWord",
     "A ::= SEQUENCE { x BOOLEAN OPTIONAL, -- Need M, setpu -- y BOOLEAN -- Change Usage -- }",
     {"t:2:49: " + unknownWord("setpu"), "t:2:78: " + unknownWord("Usage")}},
    {"WordsThatDoNotBindABoolean",
     words("BOOLEAN OPTIONAL", "Cond X (M, ", ")",
           {"mode", "switch", "sync", "pucch", "scell", "inactive", "inactive-type2", "sul", "mcg-release", "usage",
            "identity"}),
     {"t:3:35: 'mode' binds an OPTIONAL CHOICE", "t:4:35: 'switch' binds an OPTIONAL member of code N",
      "t:5:35: 'sync' binds an OPTIONAL SEQUENCE", "t:6:35: 'pucch' binds an OPTIONAL CHOICE of 'release' and 'setup'",
      "t:7:35: 'scell' binds an OPTIONAL SEQUENCE",
      "t:8:35: 'inactive' binds an OPTIONAL CHOICE of 'release' and 'setup'",
      "t:9:35: 'inactive-type2' binds an OPTIONAL CHOICE of 'release' and 'setup'",
      "t:10:35: 'sul' binds an OPTIONAL SEQUENCE",
      "t:11:35: 'mcg-release' binds an OPTIONAL CHOICE of 'release' and 'setup'",
      "t:12:35: 'usage' binds a mandatory ENUMERATED", "t:13:35: 'identity' binds a mandatory INTEGER"}},
    {"WordsThatDoNotBindACodeR",
     words("BOOLEAN OPTIONAL", "Need R, ", "", {"creation", "creation-optional", "reestablish", "kind", "fixed-kind"}),
     {"t:3:32: 'creation' binds an OPTIONAL member of code M",
      "t:4:32: 'creation-optional' binds an OPTIONAL member of code M",
      "t:5:32: 'reestablish' binds an OPTIONAL member of code M", "t:6:32: 'kind' binds an OPTIONAL member of code M",
      "t:7:32: 'fixed-kind' binds an OPTIONAL member of code M"}},
    {"WordsThatDoNotBindAChoiceOfMore",
     words("CHOICE { release NULL, setup BOOLEAN, ... } OPTIONAL", "Need M, ", "", {"pucch"}),
     {"t:3:68: 'pucch' binds an OPTIONAL CHOICE of 'release' and 'setup'"}},
    {"WordsThatDoNotBindAMandatoryMember",
     words("BOOLEAN", "Change ", "", {"setup", "drb-setup", "kind", "usage", "identity"}),
     {"t:3:22: 'setup' binds an OPTIONAL member", "t:4:22: 'drb-setup' binds an OPTIONAL member",
      "t:5:22: 'kind' binds an OPTIONAL member of code M", "t:6:22: 'usage' binds a mandatory ENUMERATED",
      "t:7:22: 'identity' binds a mandatory INTEGER"}},
    {"EmptySequence", "A ::= SEQUENCE { }", {"t:2:7: a SEQUENCE without members is not supported"}},
    {"EmptyChoice", "A ::= CHOICE { }", {"t:2:7: a CHOICE without alternatives is not supported"}},
    {"ChoiceOfAdditionsAlone",
     "A ::= CHOICE { ..., x NULL }",
     {"t:2:7: a CHOICE without alternatives is not supported"}},
    {"MandatoryNull", "A ::= SEQUENCE { x NULL }", {"t:2:18: a mandatory NULL member is not supported"}},
    {"MandatoryLoneAddition",
     "A ::= SEQUENCE { ..., x BOOLEAN }",
     {"t:2:23: a lone extension addition has to be OPTIONAL"}},
    {"AnotherName", "A ::= B\nB ::= BOOLEAN", {"t:2:7: another name for a type is not supported"}},
    {"AnotherNameWithParameter",
     "S { T } ::= CHOICE { setup T }\nA ::= S { BOOLEAN }",
     {"t:3:7: another name for a type is not supported"}},
    {"ParameterisedOtherName",
     "S { T } ::= T\nA ::= SEQUENCE { x S { BOOLEAN } }",
     {"t:2:13: another name for a type is not supported"}},
    {"ParameterMissing",
     "S { T } ::= CHOICE { setup T }\nA ::= SEQUENCE { x S }",
     {"t:3:20: the type 'S' wants a parameter"}},
    {"ParameterTooMany",
     "B ::= BOOLEAN\nA ::= SEQUENCE { x B { BOOLEAN } }",
     {"t:3:20: the type 'B' takes no parameter"}},
    {"ParameterOfAParameter",
     "S { T } ::= SEQUENCE { x T { BOOLEAN } }\nA ::= SEQUENCE { x S { BOOLEAN } }",
     {"t:2:26: the type 'T' takes no parameter"}},
    {"ContainsItself", "A ::= SEQUENCE { x A OPTIONAL -- Need R -- }", {"t:2:1: the type 'A' contains itself"}},
    {"ContainsItselfInAList", "A ::= SEQUENCE (SIZE (1..2)) OF A", {"t:2:1: the type 'A' contains itself"}},
    {"ContainsItselfAroundACorner",
     "A ::= SEQUENCE { x B }\nB ::= CHOICE { none NULL, some A }",
     {"t:2:1: the type 'A' contains itself"}},
    {"ContainsItselfThroughAParameter",
     "S { T } ::= CHOICE { setup T }\nA ::= SEQUENCE { x S { A } }",
     {"t:3:1: the type 'A' contains itself"}},
    {"ContainsItselfForEver",
     "S { T } ::= SEQUENCE { x S { T } OPTIONAL -- Need R -- }\nA ::= SEQUENCE { x S { BOOLEAN } }",
     {"t:2:13: types are nested too deeply"}},
    {"ChainTooDeep", chain(41, true), {"t:42:9: types are nested too deeply"}},
    {"ChainTooDeepFromTheTop", chain(41, false), {"t:42:21: types are nested too deeply"}},
    {"TooManyFlags",
     many("A ::= SEQUENCE { ", 57, " NULL OPTIONAL", " }", " -- Need R --"),
     {"t:2:" + std::to_string(18 + 10 * 18 + 46 * 19 + 56 * 13) + ": there are too many optional members"}},
    {"TooManyAdditions",
     many("A ::= SEQUENCE { ..., ", 33, " NULL OPTIONAL", " }", " -- Need R --"),
     {"t:2:" + std::to_string(23 + 10 * 18 + 22 * 19 + 32 * 13) + ": there are too many extension additions"}},
};
INSTANTIATE_TEST_SUITE_P(Meanings, Refused, testing::ValuesIn(meanings), nameOf);

TEST(Limits, WhatLiesJustWithinThemIsTaken)
{
    EXPECT_THAT(messagesOf(chain(40, true)), IsEmpty());
    EXPECT_THAT(messagesOf(chain(40, false)), IsEmpty());
    EXPECT_THAT(messagesOf("A ::= " + repeated("SEQUENCE { x ", 40) + "BOOLEAN" + repeated(" }", 40)), IsEmpty());
    EXPECT_THAT(messagesOf(many("A ::= SEQUENCE { ", 56, " NULL OPTIONAL", " }", " -- Need R --")), IsEmpty());
    EXPECT_THAT(messagesOf(many("A ::= SEQUENCE { ..., ", 32, " NULL OPTIONAL", " }", " -- Need R --")), IsEmpty());
    EXPECT_THAT(messagesOf("A" + std::string(254, 'a') + " ::= BOOLEAN"), IsEmpty());
    EXPECT_THAT(messagesOf("A ::= SEQUENCE (SIZE (0..65535)) OF INTEGER (0..7)"), IsEmpty());
}

// Input that would take the machine's stack, memory or time away if nothing stopped it

TEST(Limits, ALongRowOfTypesEndsInAMessage)
{
    EXPECT_THAT(messagesOf(chain(19000, false)), Not(IsEmpty()));
    EXPECT_THAT(messagesOf(chain(19000, true)), Not(IsEmpty()));
}

TEST(Limits, TypesThatDoubleWithEachStepEndInAMessage)
{
    const auto messages =
        messagesOf("S { T } ::= SEQUENCE { x S { T } OPTIONAL, -- Need R -- y S { T } OPTIONAL -- Need R -- }\n"
                   "A ::= SEQUENCE { x S { BOOLEAN } }\n");
    EXPECT_THAT(messages, testing::Contains("t:2:13: types are nested too deeply"));
    EXPECT_LE(messages.size(), 51U);
}

TEST(Limits, TooManyTypesEndInAMessage)
{
    std::string body = "S { T } ::= " + many("SEQUENCE { ", 200, " SEQUENCE { a T }", " }\n");
    body += many("A ::= SEQUENCE { ", 200, " S { BOOLEAN }", " }\n");
    EXPECT_THAT(messagesOf(body), testing::Contains(HasSubstr("there are too many types")));
}

TEST(Limits, NamesThatGrowWithEachUseEndInAMessage)
{
    const std::string name(250, 'v');
    std::string values = name + "0";
    for (int i = 1; i < 1000; ++i)
    {
        values += ", " + name + std::to_string(i);
    }
    const std::string body = "S { T } ::= SEQUENCE { x T, e ENUMERATED { " + values + " } }\n" +
                             many("A ::= SEQUENCE { ", 1000, " S { BOOLEAN }", " }\n");
    EXPECT_THAT(messagesOf(body), testing::Contains(HasSubstr("the C names become too long")));
}

TEST(Limits, ManyMembersAreNoMatter)
{
    EXPECT_THAT(messagesOf(many("A ::= SEQUENCE { ", 19000, " BOOLEAN", " }")), IsEmpty());
}

TEST(Limits, MoreThan50MessagesAreSaidToBeThere)
{
    std::string body;
    for (int i = 0; i < 60; ++i)
    {
        body += "A" + std::to_string(i) + " ::= SEQUENCE { x B }\n";
    }
    const auto messages = messagesOf(body);
    ASSERT_EQ(messages.size(), 51U);
    EXPECT_EQ(messages[0], "t:2:21: the type 'B' is not assigned");
    EXPECT_EQ(messages[49], "t:51:22: the type 'B' is not assigned");
    EXPECT_EQ(messages[50], "t: there are more errors");
}

// Several faults in one run

TEST(Diagnosis, GoesOnAfterEachFault)
{
    EXPECT_THAT(messagesOf("A ::= OCTET STRING\n"
                           "B ::= SEQUENCE { x BOOLEAN DEFAULT TRUE, y C }\n"
                           "C { T } ::= CHOICE { a T OPTIONAL }\n"
                           "low INTEGER ::= high\n"
                           "D ::= ENUMERATED { x, ... }\n"
                           "E ::= SEQUENCE { good BOOLEAN }\n"),
                ElementsAre("t:2:7: OCTET is not supported", "t:3:28: DEFAULT is not supported",
                            "t:4:26: an alternative of a CHOICE is never OPTIONAL",
                            "t:5:17: a number wanted, 'high' found",
                            "t:6:23: extensible enumerations are not supported"));
    EXPECT_THAT(messagesOf("A ::= SEQUENCE { x Nowhere, y INTEGER (3..2), z BIT STRING (SIZE (1..2)) }\n"
                           "B ::= SEQUENCE { z NULL, z BOOLEAN }\n"),
                ElementsAre("t:2:20: the type 'Nowhere' is not assigned", "t:2:40: the range is empty: 3..2",
                            "t:2:49: a BIT STRING of variable size is not supported",
                            "t:3:18: a mandatory NULL member is not supported", "t:3:26: the name 'z' occurs twice"));
}

Messages wholeMessages(const std::string& text)
{
    Diagnostics diagnostics("t");
    EXPECT_THAT(asncomp::compile("t", text, {{"all"}, {}, {}}, diagnostics), IsEmpty());
    return diagnostics.messages();
}

TEST(Diagnosis, TheModulesFrameIsWanted)
{
    EXPECT_THAT(wholeMessages(""), ElementsAre("t:1:1: the name of a type wanted, 'end of file' found"));
    EXPECT_THAT(wholeMessages("m"), ElementsAre("t:1:1: the name of a type wanted, 'm' found"));
    EXPECT_THAT(wholeMessages("M { 1 } DEFINITIONS"), ElementsAre("t:1:3: 'DEFINITIONS' wanted, '{' found"));
    EXPECT_THAT(wholeMessages("M DEFINITIONS EXPLICIT TAGS ::= BEGIN END"),
                ElementsAre("t:1:15: 'AUTOMATIC' wanted, 'EXPLICIT' found"));
    EXPECT_THAT(wholeMessages("M DEFINITIONS AUTOMATIC TAGS EXTENSIBILITY IMPLIED ::= BEGIN END"),
                ElementsAre("t:1:30: '::=' wanted, 'EXTENSIBILITY' found"));
    EXPECT_THAT(wholeMessages("M DEFINITIONS AUTOMATIC TAGS ::=\nA ::= BOOLEAN"),
                ElementsAre("t:2:1: 'BEGIN' wanted, 'A' found"));
    EXPECT_THAT(wholeMessages("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\nA ::= BOOLEAN\n"),
                ElementsAre("t:3:1: 'END' wanted, 'end of file' found"));
    EXPECT_THAT(wholeMessages("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\nA ::= BOOLEAN\nEND\nEND"),
                ElementsAre("t:4:1: 'END' after the module's END"));
    EXPECT_THAT(
        wholeMessages("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\nA ::= SEQUENCE { x BOOLEAN -- OPTIONAL }\nEND\n"),
        ElementsAre("t:3:1: '}' wanted, 'END' found"));
}

// Whatever the input, the compiler ends, with files or with messages.
void expectEnds(const std::string& text)
{
    Diagnostics diagnostics("t");
    const auto files = asncomp::compile("t", text, {{"all"}, {}, {}}, diagnostics);
    ASSERT_EQ(files.empty(), diagnostics.failed());
}

TEST(Robustness, TheSchemaItselfIsTaken)
{
    Diagnostics diagnostics("t");
    EXPECT_EQ(asncomp::compile("t", schemaText(), {{"CellGroupConfig"}, {}, {}}, diagnostics).size(), 4U);
    EXPECT_THAT(diagnostics.messages(), IsEmpty());
}

TEST(Robustness, NoTruncationOfTheSchemaIsTaken)
{
    const std::string schema = schemaText();
    const std::size_t last = schema.rfind("END"); // what follows it may be missing
    ASSERT_NE(last, std::string::npos);
    for (std::size_t size = 0; size < last + 3; size += 397)
    {
        Diagnostics diagnostics("t");
        ASSERT_TRUE(asncomp::compile("t", schema.substr(0, size), {{"CellGroupConfig"}, {}, {}}, diagnostics).empty());
        ASSERT_TRUE(diagnostics.failed()) << size;
    }
}

const std::string replacements = "(){}[]-.,:=A a0\n\"\xFF" + std::string(1, '\0');

TEST(Robustness, MutationsOfTheSchemaEnd)
{
    const std::string schema = schemaText();
    std::mt19937 random(20);
    for (int run = 0; run < 30; ++run)
    {
        std::string text = schema;
        text[random() % text.size()] = replacements[random() % replacements.size()];
        expectEnds(text);
    }
}

TEST(Robustness, MutationsOfASmallModuleEnd)
{
    const std::string module =
        "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
        "S { T } ::= CHOICE { release NULL, setup T }\n"
        "A ::= SEQUENCE { x S { B } OPTIONAL, -- Need R -- ..., [[ y SEQUENCE (SIZE (1..max)) OF B OPTIONAL -- Need N "
        "-- ]],\n"
        "z SEQUENCE (SIZE (1..9)) OF B OPTIONAL -- Cond X (N) -- -- Identity B, released by y -- }\n"
        "B ::= INTEGER (-1..max) max INTEGER ::= 7 END";
    for (std::size_t i = 0; i < module.size(); ++i)
    {
        expectEnds(module.substr(0, i));
        expectEnds(module.substr(0, i) + module.substr(i + 1));
        for (const char replacement : replacements)
        {
            std::string text = module;
            text[i] = replacement;
            expectEnds(text);
        }
    }
}

} // namespace
