// What the two readers make of texts: the trees, and every mistake with its place.
#include "readText.h"

#include <gmock/gmock.h>

#include <cstring>

#include "../Asn/rtxTestTypes.h"

namespace
{

using test::Mistake;
using test::Tree;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

template <typename T>
const T& as(Tree& tree)
{
    return *static_cast<const T*>(tree.value());
}

template <typename T>
const T& elementAt(const OSRTDList& list, unsigned index)
{
    const OSRTDListNode* node = list.head;
    for (; index != 0; --index)
    {
        node = node->next;
    }
    return *static_cast<const T*>(node->data);
}

std::string octetsOf(const ASN1OpenType& open)
{
    return {reinterpret_cast<const char*>(open.data), open.numocts};
}

// A text for one of the readers.
struct Text
{
    test::Read* read;
    const char* text;
};

void expectBox(Tree& tree)
{
    const auto& box = as<test::Box>(tree);
    EXPECT_EQ(box.level, -3);
    EXPECT_TRUE(box.m.pickPresent);
    EXPECT_EQ(box.pick.t, 4U);
    ASSERT_NE(box.pick.u.map, nullptr);
    EXPECT_TRUE(rtxMemHeapOwns(&tree.ctxt, box.pick.u.map, sizeof *box.pick.u.map));
    EXPECT_EQ(box.pick.u.map->numbits, 5U);
    EXPECT_EQ(box.pick.u.map->data[0], 0xA8);
    EXPECT_TRUE(box.m._v2ExtPresent);
    EXPECT_FALSE(box.m.aPresent);
    EXPECT_TRUE(box.m.bPresent);
    EXPECT_EQ(box.b, 5);
    EXPECT_TRUE(box.m.lonePresent);
    EXPECT_EQ(box.lone, 65535);
    EXPECT_FALSE(box.m._v4ExtPresent);
    EXPECT_EQ(box.extElem1.count, 0U);
}

TEST(FromJson, BoxWithMembersInAnyOrder)
{
    Tree tree(test::boxType);
    EXPECT_THAT(tree.read(asn1FromJson, R"({"lone":65535,"b":5,"level":-3,"pick":{"map":"a8"}})"), IsEmpty());
    expectBox(tree);
}

TEST(FromFlat, BoxWithLinesInAnyOrder)
{
    Tree tree(test::boxType);
    EXPECT_THAT(tree.read(asn1FromFlat, "# a box\r\nBox.lone = 65535\n\n  b=5 # five\nlevel\t=\t-3\nBox.pick.map = A8"),
                IsEmpty());
    expectBox(tree);
}

TEST(FromJson, EscapesAndByteOrderMark)
{
    Tree tree(test::boxType);
    EXPECT_THAT(tree.read(asn1FromJson, "\xEF\xBB\xBF{\"l\\u0065vel\":4,\"p\\u0069ck\":{\"item\":{\"id\":1,"
                                        "\"shade\":\"gr\\u0065en\"}}}"),
                IsEmpty());
    const auto& box = as<test::Box>(tree);
    EXPECT_EQ(box.level, 4);
    ASSERT_EQ(box.pick.t, 3U);
    EXPECT_TRUE(box.pick.u.item->m.shadePresent);
    EXPECT_EQ(box.pick.u.item->shade, 1U);
}

TEST(FromJson, CommentsArePassedOver)
{
    Tree tree(test::boxType);
    EXPECT_THAT(tree.read(asn1FromJson, "// a box, \"level\": 4\n{/*{*/\"lone\"/**/:/* 1 */65535/*,*/,\"b\":5// five\n"
                                        ",\"level\"://\r-3,\"pick\":{\"map\":\"a8\"}/* \n */}//"),
                IsEmpty());
    expectBox(tree);
}

TEST(FromText, GroupOfMandatoryMembers)
{
    Tree tree(test::boxType);
    EXPECT_THAT(tree.read(asn1FromJson, R"({"level":0,"must":2})"), IsEmpty());
    EXPECT_TRUE(as<test::Box>(tree).m._v4ExtPresent);
    EXPECT_EQ(as<test::Box>(tree).must, 2);
}

TEST(FromText, Alternatives)
{
    const struct
    {
        test::Read* read;
        const char* text;
        OSUINT32 tag;
    } rows[] = {
        {asn1FromJson, R"({"none":null})", 1},     {asn1FromJson, R"({"level":-1})", 2},
        {asn1FromJson, R"({"late":{"id":3}})", 5}, {asn1FromFlat, "none = null", 1},
        {asn1FromFlat, "Pick.level = -1", 2},      {asn1FromFlat, "Pick.late.id = 3", 5},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        Tree tree(test::pickType);
        EXPECT_THAT(tree.read(row.read, row.text), IsEmpty());
        EXPECT_EQ(as<test::Pick>(tree).t, row.tag);
    }
}

TEST(FromText, ListsAndArrays)
{
    for (const auto& [read, text] : {Text{asn1FromJson, R"([{"id":5},{"shade":"blue","id":1}])"},
                                     Text{asn1FromFlat, "[1].id = 1\n[0].id = 5\n[1].shade = blue\n"}})
    {
        Tree tree(test::itemsType);
        EXPECT_THAT(tree.read(read, text), IsEmpty());
        const auto& list = as<OSRTDList>(tree);
        ASSERT_EQ(list.count, 2U);
        EXPECT_EQ(elementAt<test::Item>(list, 0).id, 5);
        EXPECT_FALSE(elementAt<test::Item>(list, 0).m.shadePresent);
        EXPECT_EQ(elementAt<test::Item>(list, 1).id, 1);
        EXPECT_EQ(elementAt<test::Item>(list, 1).shade, 2U);
        EXPECT_EQ(list.tail->prev, list.head);
    }

    Tree numbers(test::numbersType);
    EXPECT_THAT(numbers.read(asn1FromJson, "[1, 5 ,3]"), IsEmpty());
    EXPECT_EQ(as<test::Numbers>(numbers).n, 3);
    EXPECT_EQ(as<test::Numbers>(numbers).elem[1], 5);

    Tree pair(test::pairType);
    EXPECT_THAT(pair.read(asn1FromFlat, "Pair[1] = 4\nPair[0] = -3"), IsEmpty());
    EXPECT_EQ(as<test::Pair>(pair).elem[0], -3);
    EXPECT_EQ(as<test::Pair>(pair).elem[1], 4);

    Tree many(test::manyType);
    EXPECT_THAT(many.read(asn1FromFlat, "Many = []"), IsEmpty());
    EXPECT_EQ(as<test::Many>(many).n, 0);
}

TEST(FromText, RootsThatAreValues)
{
    Tree flag(test::flagType);
    EXPECT_THAT(flag.read(asn1FromJson, " true "), IsEmpty());
    EXPECT_EQ(as<OSBOOL>(flag), 1);
    Tree bias(test::biasType);
    EXPECT_THAT(bias.read(asn1FromJson, "-400"), IsEmpty());
    EXPECT_EQ(as<OSINT16>(bias), -400);
    Tree whole(test::wholeType);
    EXPECT_THAT(whole.read(asn1FromFlat, "Whole = -2147483648"), IsEmpty());
    EXPECT_EQ(as<OSINT32>(whole), INT32_MIN);
    Tree nothing(test::nothingType);
    EXPECT_THAT(nothing.read(asn1FromJson, "null"), IsEmpty());

    Tree map(test::longMapType);
    EXPECT_THAT(map.read(asn1FromJson, R"("0123456789E0")"), IsEmpty());
    EXPECT_EQ(std::memcmp(map.value(), "\x01\x23\x45\x67\x89\xE0", 6), 0);
}

// A value true of an enumeration is a string in JER; other writers leave the quotes out.
TEST(FromText, EnumerationOfTrue)
{
    for (const auto& [read, text] :
         {Text{asn1FromJson, "\"true\""}, Text{asn1FromJson, "true"}, Text{asn1FromFlat, "Only = true"}})
    {
        Tree tree(test::onlyType);
        EXPECT_THAT(tree.read(read, text), IsEmpty());
        EXPECT_EQ(as<OSUINT32>(tree), 0U);
    }
}

TEST(FromText, EmptyElements)
{
    Tree trace(test::traceType);
    EXPECT_THAT(trace.read(asn1FromJson, "{}"), IsEmpty());
    EXPECT_THAT(trace.read(asn1FromFlat, "Trace = {}"), IsEmpty());
    EXPECT_THAT(trace.read(asn1FromFlat, "# nothing\n"), IsEmpty());
    EXPECT_FALSE(as<test::Trace>(trace).m.samplesPresent);
}

TEST(FromText, UnknownAdditions)
{
    const char* const flat = "level = 0\n"
                             "$unknownAdditions[0].index = 3\n"
                             "$unknownAdditions[0].octets = 0aFF\n"
                             "$unknownAdditions[1].index = 5\n"
                             "$unknownAdditions[1].octets = 00\n";
    const char* const json =
        R"({"level":0,"$unknownAdditions":[{"index":3,"octets":"0aFF"},{"octets":"00","index":5}]})";
    for (const auto& [read, text] : {Text{asn1FromJson, json}, Text{asn1FromFlat, flat}})
    {
        Tree tree(test::boxType);
        EXPECT_THAT(tree.read(read, text), IsEmpty());
        const auto& list = as<test::Box>(tree).extElem1;
        ASSERT_EQ(list.count, 2U); // Box has three additions: 3 is the first it does not know
        EXPECT_EQ(octetsOf(elementAt<ASN1OpenType>(list, 0)), "\x0A\xFF");
        EXPECT_EQ(elementAt<ASN1OpenType>(list, 0).index, 0U);
        EXPECT_EQ(octetsOf(elementAt<ASN1OpenType>(list, 1)), std::string(1, '\0'));
        EXPECT_EQ(elementAt<ASN1OpenType>(list, 1).index, 2U);
    }
}

TEST(FromText, UnknownAlternative)
{
    Tree tree(test::pickType);
    EXPECT_THAT(tree.read(asn1FromJson, R"({"$unknownAlternative":{"index":2,"octets":"80"}})"), IsEmpty());
    EXPECT_EQ(as<test::Pick>(tree).t, 7U); // four root alternatives, late is extension 0
    EXPECT_EQ(octetsOf(*as<test::Pick>(tree).u.extElem1), "\x80");
}

struct Row
{
    const rtx::Type& type;
    const char* text;
    Mistake mistake;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.text;
}

class JsonMistake : public testing::TestWithParam<Row>
{
};

TEST_P(JsonMistake, IsReported)
{
    Tree tree(GetParam().type);
    EXPECT_THAT(tree.read(asn1FromJson, GetParam().text), ElementsAre(GetParam().mistake)) << GetParam().text;
}

const Row jsonRows[] = {
    // names
    {test::boxType, "{\"level\":0,\n \"pick_\":{}}", {2, 2, "Box", "unknown member \"pick_\"; did you mean \"pick\"?"}},
    {test::boxType, R"({"level":0,"LEVEL":0})", {1, 12, "Box", "unknown member \"LEVEL\"; did you mean \"level\"?"}},
    {test::itemType,
     R"({"id":1,"colour":"red"})",
     {1, 9, "Item", "unknown member \"colour\"; there is \"id\" or \"shade\""}},
    {test::itemType, R"({"id":1,"id":2})", {1, 9, "Item.id", "given twice"}},
    {test::itemType, R"({"id":1/*,"id":3*/,/**/"id":2})", {1, 24, "Item.id", "given twice"}},
    {test::itemType, "{\"id\":1, // \"id\":3\n\"id\":2}", {2, 1, "Item.id", "given twice"}},
    {test::itemType, R"({"shade":"red"})", {1, 1, "Item", "mandatory member \"id\" is missing"}},
    {test::itemsType, "[{\"id\":1},\n  {\"shade\":\"red\"}]", {2, 3, "Items[1]", "mandatory member \"id\" is missing"}},
    // types
    {test::boxType, R"({"level":"0"})", {1, 10, "Box.level", "expected an integer in -3..4, found the string \"0\""}},
    {test::boxType, R"({"level":[1,{"a":2}]})", {1, 10, "Box.level", "expected an integer in -3..4, found an array"}},
    {test::boxType,
     R"({"level":null})",
     {1, 10, "Box.level", "expected an integer in -3..4, found null; what is absent is left out"}},
    {test::boxType, R"({"level":0, "a":1})", {1, 17, "Box.a", "expected true or false, found the number 1"}},
    {test::nothingType, "false", {1, 1, "Nothing", "expected null, found false"}},
    {test::colourType, "3", {1, 1, "Colour", "expected \"red\", \"green\" or \"blue\", found the number 3"}},
    {test::mapType, "31", {1, 1, "Map", "expected a string of 2 hexadecimal digits, found the number 31"}},
    {test::itemType, "[]", {1, 1, "Item", "expected an object, found an array"}},
    {test::threeType,
     "\"none\"",
     {1, 1, "Three", "expected an object with one member, \"none\", \"level\" or \"wide\", found the string \"none\""}},
    {test::itemsType, "{}", {1, 1, "Items", "expected an array of 1..3 elements, found an object"}},
    {test::pairType, "4", {1, 1, "Pair", "expected an array of 2 elements, found the number 4"}},
    // numbers
    {test::levelType, "5", {1, 1, "Level", "5 is not in -3..4"}},
    {test::levelType, "-4", {1, 1, "Level", "-4 is not in -3..4"}},
    {test::wholeType, "2147483648", {1, 1, "Whole", "2147483648 is not in -2147483648..2147483647"}},
    {test::levelType, "-99999999999999999999", {1, 1, "Level", "-99999999999999999999 is not in -3..4"}},
    {test::levelType, "18446744073709551616", {1, 1, "Level", "18446744073709551616 is not in -3..4"}},
    {test::levelType,
     "1.0",
     {1, 1, "Level", "expected an integer in -3..4, found the number 1.0; an integer has no point and no exponent"}},
    {test::levelType,
     "1e0",
     {1, 1, "Level", "expected an integer in -3..4, found the number 1e0; an integer has no point and no exponent"}},
    {test::numbersType, "[1, 2,\n\t9 ]", {2, 2, "Numbers[2]", "9 is not in 1..5"}},
    // enumerations and bit strings
    {test::colourType, "\"gren\"", {1, 1, "Colour", "unknown value \"gren\"; did you mean \"green\"?"}},
    {test::colourType,
     "\"purple\"",
     {1, 1, "Colour", "unknown value \"purple\"; there is \"red\", \"green\" or \"blue\""}},
    {test::mapType, "\"A\"", {1, 1, "Map", "5 bits take 2 hexadecimal digits, not 1"}},
    {test::mapType, "\"A800\"", {1, 1, "Map", "5 bits take 2 hexadecimal digits, not 4"}},
    {test::mapType, "\"\"", {1, 1, "Map", "5 bits take 2 hexadecimal digits, not 0"}},
    {test::mapType, "\"AG\"", {1, 1, "Map", "\"AG\" is not hexadecimal: \"G\""}},
    {test::mapType, "\"AC\"", {1, 1, "Map", "the last 3 bits of \"AC\" are padding and have to be 0"}},
    {test::longMapType,
     "\"0123456789E1\"",
     {1, 1, "LongMap", "the last 5 bits of \"0123456789E1\" are padding and have to be 0"}},
    // choices
    {test::threeType,
     "{}",
     {1, 1, "Three", "no alternative; expected an object with one member, \"none\", \"level\" or \"wide\""}},
    {test::threeType, R"({"level":1, "wide":2})", {1, 13, "Three", "a second alternative, \"wide\" beside \"level\""}},
    {test::threeType, R"({"level":1, "level":2})", {1, 13, "Three.level", "given twice"}},
    {test::threeType, R"({"levle":1})", {1, 2, "Three", "unknown alternative \"levle\"; did you mean \"level\"?"}},
    {test::pickType, R"({"item":{"id":9}})", {1, 15, "Pick.item.id", "9 is not in 1..5"}},
    // lists
    {test::itemsType, "[]", {1, 1, "Items", "0 elements, not 1..3"}},
    {test::itemsType,
     R"([{"id":1},{"id":1},{"id":1},)"
     "\n"
     R"({"id":77},{"id":1}])",
     {2, 1, "Items", "5 elements, not 1..3"}},
    {test::pairType, "[1]", {1, 1, "Pair", "1 element, not 2"}},
    {test::numbersType, "[1,1,1,1,1,1]", {1, 12, "Numbers", "6 elements, not 1..5"}},
    // what this release does not know
    {test::boxType,
     R"({"level":0,"$unknownAdditions":[{"index":2,"octets":"00"}]})",
     {1, 42, "Box.$unknownAdditions[0].index", "2 is not in 3..16382"}},
    {test::boxType,
     R"({"level":0,"$unknownAdditions":[{"index":4,"octets":"00"},{"index":4,"octets":"00"}]})",
     {1, 59, "Box.$unknownAdditions[1]", "index 4 behind 4: they have to ascend"}},
    {test::boxType,
     R"({"level":0,"$unknownAdditions":[{"index":4}]})",
     {1, 33, "Box.$unknownAdditions[0]", "mandatory member \"octets\" is missing"}},
    {test::boxType,
     R"({"level":0,"$unknownAdditions":[{"index":4,"octets":"000"}]})",
     {1, 53, "Box.$unknownAdditions[0].octets",
      "whole octets take an even number of hexadecimal digits, at least 2, not 3"}},
    {test::boxType,
     R"({"level":0,"$unknownAdditions":[{"index":4,"octets":""}]})",
     {1, 53, "Box.$unknownAdditions[0].octets",
      "whole octets take an even number of hexadecimal digits, at least 2, not 0"}},
    {test::boxType,
     R"({"level":0,"$unknownAdditions":[]})",
     {1, 32, "Box.$unknownAdditions", "0 elements, not 1..16383"}},
    {test::itemType,
     R"({"id":1,"$unknownAdditions":[]})",
     {1, 9, "Item", "unknown member \"$unknownAdditions\"; there is \"id\" or \"shade\""}},
    {test::pickType,
     R"({"$unknownAlternative":{"index":0,"octets":"00"}})",
     {1, 33, "Pick.$unknownAlternative.index", "0 is not in 1..16777215"}},
    {test::pickType,
     R"({"$unknownAlternative":{"index":true,"octets":"00"}})",
     {1, 33, "Pick.$unknownAlternative.index", "expected an integer, found true"}},
    {test::pickType,
     R"({"$unknownAlternative":{"index":1,"octets":true}})",
     {1, 44, "Pick.$unknownAlternative.octets", "expected a string of hexadecimal digits, found true"}},
    {test::pickType,
     R"({"none":null,"$unknownAlternative":{"index":1,"octets":"00"}})",
     {1, 14, "Pick", "a second alternative, \"$unknownAlternative\" beside \"none\""}},
    {test::itemType, R"({"id":1,"$notRead":["shade"]})", {1, 9, "Item", "no whole value was written: \"$notRead\""}},
    // no JSON
    {test::itemType,
     "",
     {1, 1, "Item", "syntax error while parsing value - unexpected end of input; expected '[', '{', or a literal"}},
    {test::itemType,
     "{\"id\":1,\n}",
     {2, 1, "Item", "syntax error while parsing object key - unexpected '}'; expected string literal"}},
    {test::itemType,
     "{\"id\":}",
     {1, 7, "Item.id", "syntax error while parsing value - unexpected '}'; expected '[', '{', or a literal"}},
    {test::itemType,
     "{\"id\":1} x",
     {1, 10, "Item", "syntax error while parsing value - invalid literal; last read: '1} x'; expected end of input"}},
    {test::itemType,
     "{\"id\":1,\"sh\xFF",
     {1, 12, "Item",
      R"(syntax error while parsing object key - invalid string: ill-formed UTF-8 byte; last read: '"sh\xFF'; expected string literal)"}},
    {test::itemType,
     "{\"id\":1} /* x",
     {1, 14, "Item",
      "syntax error while parsing value - invalid comment; missing closing '*/'; last read: '1} /* x'; expected end of "
      "input"}},
    {test::levelType, "1e999", {1, 5, "Level", "number overflow parsing '1e999'"}},
};

INSTANTIATE_TEST_SUITE_P(All, JsonMistake, testing::ValuesIn(jsonRows));

class FlatMistake : public testing::TestWithParam<Row>
{
};

TEST_P(FlatMistake, IsReported)
{
    Tree tree(GetParam().type);
    EXPECT_THAT(tree.read(asn1FromFlat, GetParam().text), ElementsAre(GetParam().mistake)) << GetParam().text;
}

const Row flatRows[] = {
    {test::boxType, "level = 0\nBox.pik.level = 1", {2, 5, "Box", "unknown member \"pik\"; did you mean \"pick\"?"}},
    {test::boxType, "level = 5 # too much", {1, 9, "Box.level", "5 is not in -3..4"}},
    {test::boxType, "level = 0\nlevel = 1", {2, 1, "Box.level", "given twice"}},
    {test::boxType, "level = 0\nlevel.x = 1", {2, 1, "Box.level", "given twice"}},
    {test::boxType, "level[0] = 0", {1, 1, "Box.level", "expected an integer in -3..4, found an array"}},
    {test::boxType, "# only a remark", {1, 1, "Box", "mandatory member \"level\" is missing"}},
    {test::boxType, "level", {1, 1, "Box", "expected a line \"path = value\", found \"level\""}},
    {test::boxType, " = 5", {1, 2, "Box", "expected a line \"path = value\", found \"= 5\""}},
    {test::boxType, "level =", {1, 1, "Box", "expected a line \"path = value\", found \"level =\""}},
    {test::boxType, "pick..none = null", {1, 6, "Box", "not a path: \"pick..none\""}},
    {test::itemsType, "[0.id = 1", {1, 1, "Items", "not a path: \"[0.id\""}},
    {test::itemsType, "[x].id = 1", {1, 1, "Items", "not a path: \"[x].id\""}},
    {test::itemsType,
     "Items[0].id = 1\nItems[2].id = 1",
     {2, 6, "Items", "[2] without [1]: elements are counted from 0"}},
    {test::numbersType, "Numbers[0] = 1\nNumbers[0] = 2", {2, 8, "Numbers", "[0] is given twice"}},
    {test::itemsType, "Items[0].id = 9", {1, 15, "Items[0].id", "9 is not in 1..5"}},
    {test::pickType, "level = 1\nnone = null", {2, 1, "Pick", "a second alternative, \"none\" beside \"level\""}},
    {test::flagType, "Flag = $notRead", {1, 8, "Flag", "no whole value was written: \"$notRead\""}},
    {test::flagType, "Flag = true\nFlag = true", {2, 8, "Flag", "given twice"}},
    {test::colourType, "Colour = gren", {1, 10, "Colour", "unknown value \"gren\"; did you mean \"green\"?"}},
};

INSTANTIATE_TEST_SUITE_P(All, FlatMistake, testing::ValuesIn(flatRows));

TEST(FromText, AllMistakesAtOnceInTheirOrder)
{
    Tree tree(test::boxType);
    EXPECT_THAT(
        tree.read(asn1FromJson, R"({"lvel":1,
 "pick":{"item":{"shade":"pink","id":0}},
 "lone":-1)"),
        ElementsAre(
            Mistake{1, 2, "Box", "unknown member \"lvel\"; did you mean \"level\"?"},
            Mistake{2, 26, "Box.pick.item.shade", "unknown value \"pink\"; there is \"red\", \"green\" or \"blue\""},
            Mistake{2, 38, "Box.pick.item.id", "0 is not in 1..5"}, Mistake{3, 9, "Box.lone", "-1 is not in 0..65535"},
            Mistake{3, 11, "Box", "syntax error while parsing object - unexpected end of input; expected '}'"}));
}

TEST(FromText, StopsAtTheMostMistakes)
{
    std::string text = "[6";
    for (unsigned i = 1; i < 300; ++i)
    {
        text += ",\n6";
    }
    Tree tree(test::manyType);
    EXPECT_THAT(tree.read(asn1FromJson, text + "]"), SizeIs(ASN1_MAX_MISTAKES));
    EXPECT_EQ(asn1FromJson(&tree.ctxt, &test::manyType, tree.value(), text.data(), text.size(), nullptr, nullptr),
              ASN1_MAX_MISTAKES);
}

TEST(FromText, ColumnsCountCharacters)
{
    Tree tree(test::itemType);
    EXPECT_THAT(
        tree.read(asn1FromJson, "{\"\xC3\xA4\xE2\x82\xAC\":1, \"id\":6}"),
        ElementsAre(Mistake{1, 2, "Item", "unknown member \"\\xC3\\xA4\\xE2\\x82\\xAC\"; there is \"id\" or \"shade\""},
                    Mistake{1, 15, "Item.id", "6 is not in 1..5"}));
}

// Nothing of the input is repeated without bound, and nothing on several lines.
TEST(FromText, LongNamesAreCut)
{
    Tree tree(test::itemType);
    const std::string name(100000, 'x');
    EXPECT_THAT(tree.read(asn1FromJson, "{\"id\":1,\"" + name + "\":0}"),
                ElementsAre(Mistake{1, 9, "Item",
                                    "unknown member \"" + name.substr(0, 60) + "...\"; there is \"id\" or \"shade\""}));
    EXPECT_THAT(tree.read(asn1FromJson, "{\"id\":1,\"a\\nb\":0}"),
                ElementsAre(Mistake{1, 9, "Item", "unknown member \"a\\x0Ab\"; there is \"id\" or \"shade\""}));
}

TEST(FromText, DeepTexts)
{
    const std::string deep(1000000, '[');
    Tree items(test::itemsType);
    EXPECT_THAT(items.read(asn1FromJson, deep), SizeIs(2)); // not an item, and an end too early
    EXPECT_THAT(items.read(asn1FromFlat, "a" + std::string(200000, '.') + "=1"), SizeIs(1));

    std::string path = "in";
    for (unsigned i = 1; i < 100; ++i)
    {
        path += ".in";
    }
    const test::Nested nested(100);
    Tree tree(nested.type());
    EXPECT_THAT(tree.read(asn1FromFlat, path + " = true"), SizeIs(1));

    std::string json = "true";
    std::string at = "Nest";
    for (unsigned i = 0; i < 100; ++i)
    {
        json = "{\"in\":" + json + "}";
        at += i < RTX_MAX_DEPTH ? ".in" : "";
    }
    EXPECT_THAT(tree.read(asn1FromJson, json),
                ElementsAre(Mistake{1, 6 * RTX_MAX_DEPTH + 1, at, "the element tree is deeper than 48"}));
}

TEST(FromText, TooLongATextIsRefused)
{
    const std::string text(ASN1_MAX_TEXT + 1, ' ');
    const Mistake mistake{1, 1, "Item", "a text of 67108865 octets; at most 67108864 are read"};
    Tree tree(test::itemType);
    EXPECT_THAT(tree.read(asn1FromJson, text), ElementsAre(mistake));
    EXPECT_THAT(tree.read(asn1FromFlat, text), ElementsAre(mistake));
}

TEST(FromText, HeapExhausted)
{
    Tree tree(test::itemsType);
    rtxMemHeapSetLimit(&tree.ctxt, 0);
    EXPECT_THAT(tree.read(asn1FromJson, "[{\"id\":1},\n{\"id\":9}]"),
                ElementsAre(Mistake{1, 2, "Items[0]",
                                    "the context's heap is exhausted: " + std::to_string(sizeof(OSRTDListNode) + 12) +
                                        " octets asked for"}));
    EXPECT_TRUE(rtxMemHeapFailed(&tree.ctxt));

    Tree pick(test::pickType);
    rtxMemHeapSetLimit(&pick.ctxt, 0);
    EXPECT_THAT(pick.read(asn1FromJson, R"({"map":"A8"})"), SizeIs(1));
    EXPECT_THAT(pick.read(asn1FromJson, R"({"$unknownAlternative":{"index":1,"octets":"00"}})"), SizeIs(1));
}

} // namespace
