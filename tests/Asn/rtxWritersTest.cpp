#include "NR-RRC-Pdus.h"
#include "randomTree.h"
#include "support/JsonText.h"
#include "treeTest.h"

#include <array>

// JER is X.697's, value notation X.680's; the rest is that of docs/asn1.md.
namespace
{

using namespace test;

// What the writers make of a tree. The notation goes without the assignment before it.
struct Texts
{
    std::string json;
    std::string notation;
    std::string flat;
};

class Writers : public testing::Test, protected Trees
{
protected:
    struct Written
    {
        int status;
        std::string text;
    };

    Written json(const Type& type, const void* value, RtxLayout layout = RTX_COMPACT) const
    {
        Written written;
        written.status = rtxToJson(context, &type, value, layout, collect, &written.text);
        return written;
    }

    Written notation(const Type& type, const void* value, RtxLayout layout = RTX_COMPACT) const
    {
        Written written;
        written.status = rtxToValueNotation(context, &type, value, layout, collect, &written.text);
        return written;
    }

    Written flat(const Type& type, const void* value) const
    {
        Written written;
        written.status = rtxToFlat(context, &type, value, collect, &written.text);
        return written;
    }

    // The same but for white space that is not in strings.
    static std::string dense(const std::string& text)
    {
        std::string result;
        bool inString = false;
        for (const char c : text)
        {
            inString = inString != (c == '"');
            if (inString || (c != ' ' && c != '\n'))
            {
                result += c;
            }
        }
        return result;
    }

    void expect(const Type& type, const void* value, const Texts& texts, int status = RTX_OK) const
    {
        const Written compact = json(type, value);
        EXPECT_EQ(texts.json + "\n", compact.text);
        EXPECT_EQ(status, compact.status);
        const Written indented = json(type, value, RTX_INDENTED);
        EXPECT_EQ(dense(compact.text), dense(indented.text));
        EXPECT_EQ(status, indented.status);
        EXPECT_TRUE(JsonText::isValid(compact.text)) << compact.text;
        EXPECT_TRUE(JsonText::isValid(indented.text)) << indented.text;

        const Written line = notation(type, value);
        EXPECT_EQ(std::string("value ") + type.name + " ::= " + texts.notation + "\n", line.text);
        EXPECT_EQ(status, line.status);
        const Written lines = notation(type, value, RTX_INDENTED);
        EXPECT_EQ(dense(line.text), dense(lines.text));
        EXPECT_EQ(status, lines.status);

        const Written leaves = flat(type, value);
        EXPECT_EQ(texts.flat, leaves.text);
        EXPECT_EQ(status, leaves.status);
    }

    const OSCTXT* context = &ctxt;
};

TEST_F(Writers, Boolean)
{
    OSBOOL value = 0;
    expect(flagType, &value, {"false", "FALSE", "Flag = false\n"});
    value = 1;
    expect(flagType, &value, {"true", "TRUE", "Flag = true\n"});
    value = 128; // the encoder takes it for TRUE, too
    expect(flagType, &value, {"true", "TRUE", "Flag = true\n"});
}

TEST_F(Writers, Null)
{
    const OSOCTET none = 0;
    expect(nothingType, &none, {"null", "NULL", "Nothing = null\n"});
}

TEST_F(Writers, Integer)
{
    const OSINT8 level = -3;
    expect(levelType, &level, {"-3", "-3", "Level = -3\n"});
    const OSUINT16 wide = 65535;
    expect(wideType, &wide, {"65535", "65535", "Wide = 65535\n"});
    const OSINT32 whole = INT32_MIN;
    expect(wholeType, &whole, {"-2147483648", "-2147483648", "Whole = -2147483648\n"});
    const OSUINT8 odd = 255;
    expect(oddType, &odd, {"255", "255 -- 255 is not in 1..5 --", "Odd = 255\n"}, RTX_E_RANGE);
    const OSINT8 low = -4;
    expect(levelType, &low, {"-4", "-4 -- -4 is not in -3..4 --", "Level = -4\n"}, RTX_E_RANGE);
}

TEST_F(Writers, Enumerated)
{
    OSUINT32 value = 2;
    expect(colourType, &value, {R"("blue")", "blue", "Colour = blue\n"});
    value = UINT32_MAX;
    expect(colourType, &value,
           {R"({"$invalid":"4294967295 is not in 0..2"})", "-- 4294967295 is not in 0..2 --",
            "Colour = $invalid: 4294967295 is not in 0..2\n"},
           RTX_E_RANGE);
    const OSUINT32 only = 0;
    expect(onlyType, &only, {R"("true")", "true", "Only = true\n"});
}

TEST_F(Writers, BitString)
{
    ASN1BitStr32 map = {5, {0xB7, 0xFF, 0xFF, 0xFF}}; // what is behind the five bits does not count
    expect(mapType, &map, {R"("B0")", "'10110'B", "Map = B0\n"});
    map.numbits = 0;
    expect(mapType, &map,
           {R"({"$invalid":"a bit string of 0 bits, not 5: ''B"})", "''B -- a bit string of 0 bits, not 5 --",
            "Map = $invalid: a bit string of 0 bits, not 5: ''B\n"},
           RTX_E_BITS);
    map.numbits = 4'000'000'000;
    const std::string all = "10110111111111111111111111111111";
    expect(mapType, &map,
           {R"({"$invalid":"a bit string of 4000000000 bits, not 5: ')" + all + "'B\"}",
            "'B7FFFFFF'H -- a bit string of 4000000000 bits, not 5 --",
            "Map = $invalid: a bit string of 4000000000 bits, not 5: '" + all + "'B\n"},
           RTX_E_BITS);

    const OSOCTET longMap[] = {0x81, 0, 0, 0, 0xFF, 0xBF};
    expect(longMapType, longMap,
           {R"("81000000FFA0")", "'1000000100000000000000000000000011111111101'B", "LongMap = 81000000FFA0\n"});
    const Type halves = {.name = "Halves", .kind = Kind::BitOctets, .size = 2, .lower = 12, .upper = 12};
    const OSOCTET half[] = {0x0A, 0x5F};
    expect(halves, half, {R"("0A50")", "'0A5'H", "Halves = 0A50\n"});
}

TEST_F(Writers, Sequence)
{
    Item value = {};
    value.id = 3;
    value.shade = 1;
    expect(itemType, &value, {R"({"id":3})", "{ id 3 }", "Item.id = 3\n"});
    value.m.shadePresent = 1;
    expect(itemType, &value,
           {R"({"id":3,"shade":"green"})", "{ id 3, shade green }", "Item.id = 3\nItem.shade = green\n"});
}

TEST_F(Writers, Array)
{
    Numbers numbers = {2, {5, 4, 0, 0, 0}};
    expect(numbersType, &numbers, {"[5,4]", "{ 5, 4 }", "Numbers[0] = 5\nNumbers[1] = 4\n"});
    numbers.n = 0;
    expect(numbersType, &numbers,
           {R"([{"$invalid":"0 elements, not 1..5"}])", "{ -- 0 elements, not 1..5 -- }",
            "Numbers = $invalid: 0 elements, not 1..5\n"},
           RTX_E_SIZE);
    numbers = {200, {1, 2, 3, 4, 5}};
    expect(numbersType, &numbers,
           {R"([{"$invalid":"200 elements, not 1..5"},1,2,3,4,5])", "{ -- 200 elements, not 1..5 -- 1, 2, 3, 4, 5 }",
            "Numbers = $invalid: 200 elements, not 1..5\nNumbers[0] = 1\nNumbers[1] = 2\nNumbers[2] = 3\n"
            "Numbers[3] = 4\nNumbers[4] = 5\n"},
           RTX_E_SIZE);
    const Pair pair = {{-1, 4}};
    expect(pairType, &pair, {"[-1,4]", "{ -1, 4 }", "Pair[0] = -1\nPair[1] = 4\n"});
    const Many many = {};
    expect(manyType, &many, {"[]", "{ }", "Many = []\n"});
}

TEST_F(Writers, List)
{
    OSRTDList list = {};
    append(list, item(1));
    append(list, item(2));
    expect(itemsType, &list,
           {R"([{"id":1},{"id":2}])", "{ { id 1 }, { id 2 } }", "Items[0].id = 1\nItems[1].id = 2\n"});
}

TEST_F(Writers, Choice)
{
    Three three = {};
    three.t = 1;
    expect(threeType, &three, {R"({"none":null})", "none : NULL", "Three.none = null\n"});
    three.t = 2;
    three.u.level = -2;
    expect(threeType, &three, {R"({"level":-2})", "level : -2", "Three.level = -2\n"});
    Pick pick = {};
    pick.t = 3;
    pick.u.item = item(2);
    expect(pickType, &pick, {R"({"item":{"id":2}})", "item : { id 2 }", "Pick.item.id = 2\n"});
    pick.t = 5;
    expect(pickType, &pick, {R"({"late":{"id":2}})", "late : { id 2 }", "Pick.late.id = 2\n"});

    const Member members[] = {member(threeType, 4)};
    const char* const names[] = {"outer"};
    const Type type = {.name = "Outer",
                       .kind = Kind::Choice,
                       .size = 4 + sizeof(Three),
                       .names = names,
                       .members = members,
                       .memberCount = 1,
                       .rootCount = 1};
    struct
    {
        OSUINT32 t;
        Three outer;
    } const outer = {1, three};
    expect(type, &outer, {R"({"outer":{"level":-2}})", "outer : level : -2", "Outer.outer.level = -2\n"});
}

TEST_F(Writers, WrongTags)
{
    Three three = {};
    for (const OSUINT32 tag : {0U, 4U, UINT32_MAX})
    {
        three.t = tag;
        const std::string wrong = "tag " + std::to_string(tag) + " is not in 1..3";
        expect(threeType, &three,
               {R"({"$invalid":")" + wrong + "\"}", "-- " + wrong + " --", "Three = $invalid: " + wrong + "\n"},
               RTX_E_CHOICE);
    }
}

TEST_F(Writers, UnknownAlternative)
{
    Pick pick = {};
    pick.t = 7; // four in the root, "late" is extension 0
    pick.u.extElem1 = open({0xAB, 0x00, 0x0C});
    expect(pickType, &pick,
           {R"({"$unknownAlternative":{"index":2,"octets":"AB000C"}})", "-- unknown alternative 2: AB000C --",
            "Pick.$unknownAlternative.index = 2\nPick.$unknownAlternative.octets = AB000C\n"});

    const auto expectNone = [&](const std::string& why)
    {
        const std::string wrong = "tag 7 is not in 1..5; unknown alternative: " + why;
        expect(pickType, &pick,
               {R"({"$invalid":")" + wrong + "\"}", "-- " + wrong + " --", "Pick = $invalid: " + wrong + "\n"},
               RTX_E_CHOICE);
    };
    pick.u.extElem1->data = nullptr;
    expectNone("absent");
    pick.u.extElem1->data = reinterpret_cast<OSOCTET*>(&pick);
    expectNone("a pointer out of the context's heap");
    pick.u.extElem1 = nullptr;
    expectNone("a null pointer");
    ASN1OpenType foreign = {};
    pick.u.extElem1 = &foreign;
    expectNone("a pointer out of the context's heap");
}

TEST_F(Writers, ExtensionAdditions)
{
    Box box = {};
    box.m._v2ExtPresent = 1;
    box.m.aPresent = 1;
    box.m.lonePresent = 1;
    box.m._v4ExtPresent = 1;
    box.a = 1;
    box.lone = 7;
    box.must = 2;
    expect(boxType, &box,
           {R"({"level":0,"a":true,"lone":7,"must":2})", "{ level 0, a TRUE, lone 7, must 2 }",
            "Box.level = 0\nBox.a = true\nBox.lone = 7\nBox.must = 2\n"});
    box.m._v2ExtPresent = 0; // the member's bit alone is not sent
    expect(boxType, &box,
           {R"({"level":0,"lone":7,"must":2})", "{ level 0, lone 7, must 2 }",
            "Box.level = 0\nBox.lone = 7\nBox.must = 2\n"});
}

TEST_F(Writers, UnknownAdditions)
{
    Box box = {};
    append(box.extElem1, open({0xFF, 0x00}, 1)); // Box knows three
    append(box.extElem1, open({0x0A}, 2));
    expect(boxType, &box,
           {R"({"level":0,"$unknownAdditions":[{"index":4,"octets":"FF00"},{"index":5,"octets":"0A"}]})",
            "{ level 0 -- unknown addition 4: FF00 -- -- unknown addition 5: 0A -- }",
            "Box.level = 0\nBox.$unknownAdditions[0].index = 4\nBox.$unknownAdditions[0].octets = FF00\n"
            "Box.$unknownAdditions[1].index = 5\nBox.$unknownAdditions[1].octets = 0A\n"});
}

TEST_F(Writers, EachStructureCountsItsOwnUnknownAdditions)
{
    static constexpr Member element = member(boxType, 0);
    static constexpr Type boxesType = {.name = "Boxes",
                                       .kind = Kind::List,
                                       .size = sizeof(OSRTDList),
                                       .lower = 1,
                                       .upper = 2,
                                       .members = &element,
                                       .memberCount = 1,
                                       .rootCount = 1,
                                       .bits = 1};
    OSRTDList boxes = {};
    for (const OSOCTET content : {OSOCTET{0xA0}, OSOCTET{0xB0}})
    {
        auto* const box = make<Box>();
        append(box->extElem1, open({content}, 1));
        append(boxes, box);
    }
    expect(
        boxesType, &boxes,
        {R"([{"level":0,"$unknownAdditions":[{"index":4,"octets":"A0"}]},)"
         R"({"level":0,"$unknownAdditions":[{"index":4,"octets":"B0"}]}])",
         "{ { level 0 -- unknown addition 4: A0 -- }, { level 0 -- unknown addition 4: B0 -- } }",
         "Boxes[0].level = 0\nBoxes[0].$unknownAdditions[0].index = 4\nBoxes[0].$unknownAdditions[0].octets = A0\n"
         "Boxes[1].level = 0\nBoxes[1].$unknownAdditions[0].index = 4\nBoxes[1].$unknownAdditions[0].octets = B0\n"});
}

TEST_F(Writers, UnknownAdditionsOutOfOrder)
{
    Box box = {};
    append(box.extElem1, open({0xFF}, 2));
    append(box.extElem1, open({0x0A}, 2));
    expect(boxType, &box,
           {R"({"level":0,"$unknownAdditions":[{"index":5,"octets":"FF"},{"index":5,"octets":"0A"}]})",
            "{ level 0 -- unknown addition 5: FF -- -- unknown addition 5: 0A -- }",
            "Box.level = 0\nBox.$unknownAdditions[0].index = 5\nBox.$unknownAdditions[0].octets = FF\n"
            "Box.$unknownAdditions[1].index = 5\nBox.$unknownAdditions[1].octets = 0A\n"},
           RTX_E_EXTENSION);
}

TEST_F(Writers, UnknownAdditionsThatAreNone)
{
    Box box = {};
    append(box.extElem1, nullptr);
    append(box.extElem1, &box);
    append(box.extElem1, make<ASN1OpenType>());
    ASN1OpenType* const addition = open({0xFF, 0x00});
    addition->data = reinterpret_cast<OSOCTET*>(&box);
    append(box.extElem1, addition);
    const std::string foreign = "a pointer out of the context's heap";
    expect(
        boxType, &box,
        {R"({"level":0,"$unknownAdditions":[{"$invalid":"a null pointer"},{"$invalid":")" + foreign +
             R"("},{"$invalid":"a null pointer"},{"$invalid":")" + foreign + "\"}]}",
         "{ level 0 -- a null pointer -- -- " + foreign + " -- -- a null pointer -- -- " + foreign + " -- }",
         "Box.level = 0\nBox.$unknownAdditions[0] = $invalid: a null pointer\nBox.$unknownAdditions[1] = $invalid: " +
             foreign + "\nBox.$unknownAdditions[2] = $invalid: a null pointer\nBox.$unknownAdditions[3] = $invalid: " +
             foreign + "\n"},
        RTX_E_NULL);

    box.extElem1 = {};
    append(box.extElem1, open({1}));
    box.extElem1.tail->next = box.extElem1.head;
    box.extElem1.count = UINT32_MAX;
    EXPECT_EQ(RTX_E_LIST, json(boxType, &box).status);
    expect(boxType, &box,
           {R"({"level":0,"$unknownAdditions":[{"index":3,"octets":"01"},)"
            R"({"$invalid":"the list goes back to an earlier element"}]})",
            "{ level 0 -- unknown addition 3: 01 -- -- the list goes back to an earlier element -- }",
            "Box.level = 0\nBox.$unknownAdditions[0].index = 3\nBox.$unknownAdditions[0].octets = 01\n"
            "Box.$unknownAdditions[1] = $invalid: the list goes back to an earlier element\n"},
           RTX_E_LIST);

    box.extElem1 = {1, nullptr, nullptr};
    expect(boxType, &box,
           {R"({"level":0,"$unknownAdditions":[{"$invalid":"the list counts 1 element and ends after 0"}]})",
            "{ level 0 -- the list counts 1 element and ends after 0 -- }",
            "Box.level = 0\nBox.$unknownAdditions = $invalid: the list counts 1 element and ends after 0\n"},
           RTX_E_LIST);

    box.extElem1 = {};
    append(box.extElem1, open({}));
    box.extElem1.head->data = open({1});
    static_cast<ASN1OpenType*>(box.extElem1.head->data)->numocts = 0;
    expect(boxType, &box,
           {R"({"level":0,"$unknownAdditions":[{"index":3,"octets":""}]})", "{ level 0 -- unknown addition 3:  -- }",
            "Box.level = 0\nBox.$unknownAdditions[0].index = 3\nBox.$unknownAdditions[0].octets = \n"},
           RTX_E_EXTENSION);
}

// Maybe ::= SEQUENCE { shade Colour OPTIONAL }, Hold ::= CHOICE { maybe Maybe, item Item }
TEST_F(Writers, EmptyElements)
{
    struct Maybe
    {
        struct
        {
            unsigned shadePresent : 1;
        } m;
        OSUINT32 shade;
    };
    const char* const maybeNames[] = {"shade"};
    const Member maybeMembers[] = {member(colourType, offsetof(Maybe, shade), 0)};
    const Type maybeType = {.name = "Maybe",
                            .kind = Kind::Sequence,
                            .size = sizeof(Maybe),
                            .names = maybeNames,
                            .members = maybeMembers,
                            .memberCount = 1,
                            .rootCount = 1,
                            .bits = 1};
    const Maybe empty = {};
    expect(maybeType, &empty, {"{}", "{ }", "Maybe = {}\n"});

    struct Hold
    {
        OSUINT32 t;
        const void* p;
    };
    const char* const names[] = {"maybe", "item"};
    const Member members[] = {member(maybeType, offsetof(Hold, p), -1, true),
                              member(itemType, offsetof(Hold, p), -1, true)};
    const Type type = {.name = "Hold",
                       .kind = Kind::Choice,
                       .size = sizeof(Hold),
                       .names = names,
                       .members = members,
                       .memberCount = 2,
                       .rootCount = 2,
                       .bits = 1};
    Hold hold = {1, make<Maybe>()};
    expect(type, &hold, {R"({"maybe":{}})", "maybe : { }", "Hold.maybe = {}\n"});
    hold.p = nullptr; // stands for the empty element
    expect(type, &hold, {R"({"maybe":{}})", "maybe : { }", "Hold.maybe = {}\n"});
    hold.p = &empty;
    const std::string foreign = "a pointer out of the context's heap";
    expect(type, &hold,
           {R"({"maybe":{"$invalid":")" + foreign + "\"}}", "maybe : -- " + foreign + " --",
            "Hold.maybe = $invalid: " + foreign + "\n"},
           RTX_E_FOREIGN);
    hold = {2, nullptr};
    expect(type, &hold,
           {R"({"item":{"$invalid":"a null pointer"}})", "item : -- a null pointer --",
            "Hold.item = $invalid: a null pointer\n"},
           RTX_E_NULL);
}

TEST_F(Writers, ListThatEndsEarly)
{
    OSRTDList list = {};
    append(list, item(1));
    list.count = 3;
    const std::string ends = "the list counts 3 elements and ends after 1";
    expect(itemsType, &list,
           {R"([{"id":1},{"$invalid":")" + ends + "\"}]", "{ { id 1 } -- " + ends + " -- }",
            "Items[0].id = 1\nItems = $invalid: " + ends + "\n"},
           RTX_E_LIST);
}

TEST_F(Writers, ListBeyondItsBound)
{
    OSRTDList list = {};
    for (OSUINT8 id = 1; id <= 5; ++id)
    {
        append(list, item(id));
    }
    expect(itemsType, &list,
           {R"([{"$invalid":"5 elements, not 1..3"},{"id":1},{"id":2},{"id":3}])",
            "{ -- 5 elements, not 1..3 -- { id 1 }, { id 2 }, { id 3 } }",
            "Items = $invalid: 5 elements, not 1..3\nItems[0].id = 1\nItems[1].id = 2\nItems[2].id = 3\n"},
           RTX_E_SIZE);
    list.count = 2; // the encoder sends two
    expect(itemsType, &list,
           {R"([{"id":1},{"id":2}])", "{ { id 1 }, { id 2 } -- the list goes on behind its last element -- }",
            "Items[0].id = 1\nItems[1].id = 2\n"});
}

TEST_F(Writers, ListThatFormsALoop)
{
    OSRTDList list = {};
    append(list, item(1));
    append(list, item(2));
    list.tail->next = list.tail;
    list.count = 3;
    const std::string loop = "the list goes back to an earlier element";
    expect(itemsType, &list,
           {R"([{"id":1},{"id":2},{"$invalid":")" + loop + "\"}]", "{ { id 1 }, { id 2 }, -- " + loop + " -- }",
            "Items[0].id = 1\nItems[1].id = 2\nItems[2] = $invalid: " + loop + "\n"},
           RTX_E_LIST);
}

TEST_F(Writers, ALoopWithoutBoundEnds)
{
    const Type open = {.name = "Open",
                       .kind = Kind::List,
                       .size = sizeof(OSRTDList),
                       .upper = INT32_MAX,
                       .members = &itemsElement,
                       .memberCount = 1,
                       .rootCount = 1,
                       .bits = 31};
    OSRTDList list = {};
    for (OSUINT8 id = 1; id <= 5; ++id)
    {
        append(list, item(id));
    }
    list.tail->next = list.head->next;
    list.count = 2'000'000'000;
    for (const Written& written : {json(open, &list), notation(open, &list), flat(open, &list)})
    {
        EXPECT_EQ(RTX_E_LIST, written.status);
        EXPECT_LT(written.text.size(), 600U);
    }
}

TEST_F(Writers, ForeignNodesAndData)
{
    const std::string foreign = "a pointer out of the context's heap";
    OSRTDListNode node = {item(1), nullptr, nullptr};
    OSRTDList list = {1, &node, &node};
    expect(
        itemsType, &list,
        {R"([{"$invalid":")" + foreign + "\"}]", "{ -- " + foreign + " -- }", "Items[0] = $invalid: " + foreign + "\n"},
        RTX_E_FOREIGN);

    list = {};
    append(list, nullptr);
    Item other = {};
    append(list, &other);
    append(list, item(4));
    expect(itemsType, &list,
           {R"([{"$invalid":"a null pointer"},{"$invalid":")" + foreign + R"("},{"id":4}])",
            "{ -- a null pointer --, -- " + foreign + " --, { id 4 } }",
            "Items[0] = $invalid: a null pointer\nItems[1] = $invalid: " + foreign + "\nItems[2].id = 4\n"},
           RTX_E_NULL);

    auto* const octets = reinterpret_cast<OSOCTET*>(make<std::array<OSOCTET, 64>>());
    Pick pick = {};
    pick.t = 4;
    for (OSOCTET* const p : {octets + 2, octets + 60}) // not aligned; not all of it
    {
        pick.u.map = reinterpret_cast<ASN1BitStr32*>(p);
        expect(pickType, &pick,
               {R"({"map":{"$invalid":")" + foreign + "\"}}", "map : -- " + foreign + " --",
                "Pick.map = $invalid: " + foreign + "\n"},
               RTX_E_FOREIGN);
    }
}

TEST_F(Writers, WithoutContextNoPointerIsFollowed)
{
    const std::string why = "a pointer that is not followed, as no context is named";
    OSRTDList list = {};
    append(list, item(1));
    context = nullptr;
    expect(itemsType, &list,
           {R"([{"$invalid":")" + why + "\"}]", "{ -- " + why + " -- }", "Items[0] = $invalid: " + why + "\n"},
           RTX_E_FOREIGN);
    Pick pick = {};
    pick.t = 2;
    pick.u.level = 3;
    expect(pickType, &pick, {R"({"level":3})", "level : 3", "Pick.level = 3\n"});
}

TEST_F(Writers, NullArguments)
{
    expect(boxType, nullptr,
           {R"({"$invalid":"a null pointer"})", "-- a null pointer --", "Box = $invalid: a null pointer\n"},
           RTX_E_NULL);
    std::string text;
    const OSUINT8 odd = 2;
    EXPECT_EQ(RTX_E_NULL, rtxToJson(&ctxt, nullptr, &odd, RTX_COMPACT, collect, &text));
    EXPECT_EQ(RTX_E_NULL, rtxToValueNotation(&ctxt, nullptr, &odd, RTX_COMPACT, collect, &text));
    EXPECT_EQ(RTX_E_NULL, rtxToFlat(&ctxt, nullptr, &odd, collect, &text));
    EXPECT_EQ(RTX_E_NULL, rtxToJson(&ctxt, &oddType, &odd, RTX_COMPACT, nullptr, &text));
    EXPECT_EQ("", text);
}

TEST_F(Writers, DepthIsBounded)
{
    const OSBOOL flag = 1;
    const Nested deepest(RTX_MAX_DEPTH - 1);
    EXPECT_EQ(RTX_OK, json(deepest.type(), &flag).status);
    EXPECT_NE(std::string::npos, json(deepest.type(), &flag).text.find(R"({"in":true})"));
    const Nested deeper(RTX_MAX_DEPTH);
    for (const Written& written :
         {json(deeper.type(), &flag), notation(deeper.type(), &flag), flat(deeper.type(), &flag)})
    {
        EXPECT_EQ(RTX_E_DEPTH, written.status);
        EXPECT_NE(std::string::npos, written.text.find("deeper elements are left out"));
        EXPECT_EQ(std::string::npos, written.text.find("rue"));
    }
    EXPECT_TRUE(JsonText::isValid(json(deeper.type(), &flag).text));
}

TEST_F(Writers, TheFirstStatusIsReturned)
{
    OSRTDList list = {};
    append(list, item(9));
    append(list, nullptr);
    EXPECT_EQ(RTX_E_RANGE, json(itemsType, &list).status);
    list.count = 4;
    EXPECT_EQ(RTX_E_SIZE, json(itemsType, &list).status);
}

TEST_F(Writers, StringsAreEscaped)
{
    const char* const names[] = {"\"\\\n\x1f\x7f"};
    const Type type = {.name = "Odd", .kind = Kind::Enumerated, .size = 4, .upper = 0, .names = names};
    const OSUINT32 value = 0;
    const Written written = json(type, &value);
    EXPECT_EQ("\"\\\"\\\\\\u000a\\u001f\x7f\"\n", written.text);
    EXPECT_TRUE(JsonText::isValid(written.text));
}

TEST_F(Writers, Indented)
{
    Box box = {};
    box.m.pickPresent = 1;
    box.pick.t = 3;
    box.pick.u.item = item(2);
    box.m.lonePresent = 1;
    append(box.extElem1, open({0xAB}));
    EXPECT_EQ("{\n"
              "  \"level\": 0,\n"
              "  \"pick\": {\n"
              "    \"item\": {\n"
              "      \"id\": 2\n"
              "    }\n"
              "  },\n"
              "  \"lone\": 0,\n"
              "  \"$unknownAdditions\": [\n"
              "    {\n"
              "      \"index\": 3,\n"
              "      \"octets\": \"AB\"\n"
              "    }\n"
              "  ]\n"
              "}\n",
              json(boxType, &box, RTX_INDENTED).text);
    EXPECT_EQ("value Box ::= {\n"
              "  level 0,\n"
              "  pick item : {\n"
              "    id 2\n"
              "  },\n"
              "  lone 0\n"
              "  -- unknown addition 3: AB --\n"
              "}\n",
              notation(boxType, &box, RTX_INDENTED).text);
    const Many many = {};
    EXPECT_EQ("[]\n", json(manyType, &many, RTX_INDENTED).text);
    EXPECT_EQ("value Many ::= { }\n", notation(manyType, &many, RTX_INDENTED).text);
}

TEST_F(Writers, LongTextsComeWhole)
{
    const std::string name(2000, 'n');
    const Type type = {.name = name.c_str(), .kind = Kind::Integer, .width = 1, .size = 1, .lower = 1, .upper = 5};
    const OSUINT8 odd = 2;
    expect(type, &odd, {"2", "2", name + " = 2\n"});
}

// Trees whose decoder gave up.
class PartialTree : public Writers
{
protected:
    // Decodes bits and expects the error that the writers tell.
    void decode(const Type& type, void* value, const std::string& octets, const std::string& error)
    {
        input_ = bits(octets);
        input_.reserve(1); // so that there is a buffer
        ASSERT_EQ(RTX_OK, pu_setBuffer(&ctxt, input_.data(), input_.size(), 0));
        status = rtxDecode(&ctxt, &type, value, 0);
        char text[400];
        rtxErrFormat(&ctxt, text, sizeof text);
        EXPECT_NE(RTX_OK, status);
        EXPECT_EQ(error, std::string(text).substr(0, error.size()));
        told = text;
    }

    // `texts` without the error.
    void expectPartial(const Type& type, const void* value, const std::string& printed, const Texts& texts) const
    {
        std::string print;
        rtx::print(&ctxt, type, nullptr, value, collect, &print);
        EXPECT_EQ(printed, print);
        const Written object = json(type, value);
        EXPECT_EQ("{\"$error\":\"" + told + "\"," + texts.json + "}\n", object.text);
        EXPECT_TRUE(JsonText::isValid(json(type, value, RTX_INDENTED).text));
        const Written line = notation(type, value);
        EXPECT_EQ("-- " + told + " --\nvalue " + type.name + " ::= " + texts.notation + "\n", line.text);
        const Written leaves = flat(type, value);
        EXPECT_EQ(type.name + (".$error = " + told) + "\n" + texts.flat, leaves.text);
        for (const Written& written : {object, line, leaves})
        {
            EXPECT_EQ(status, written.status);
        }
    }

    int status = RTX_OK;
    std::string told;

private:
    std::vector<OSOCTET> input_;
};

TEST_F(PartialTree, BehindAMember)
{
    Item value;
    decode(itemType, &value, "1 010 11", "Item.shade: 3 is not in 0..2"); // id 3, a shade that there is not
    expectPartial(
        itemType, &value, "Item\n  id 3\n  shade: not read\n",
        {R"("id":3,"$notRead":["shade"])", "{ id 3 -- shade: not read -- }", "Item.id = 3\nItem.shade = $notRead\n"});
    rtxErrReset(&ctxt);
    EXPECT_EQ(R"({"id":3,"shade":"red"})"
              "\n",
              json(itemType, &value).text)
        << "only the error tells";
}

TEST_F(PartialTree, NothingOfTheRoot)
{
    Item value;
    decode(itemType, &value, "", "Item: the input ends");
    expectPartial(itemType, &value, "Item: not read\n",
                  {R"("$notRead":["Item"])", "-- Item: not read --", "Item = $notRead\n"});
    OSUINT8 odd;
    decode(oddType, &odd, "111", "Odd: 8 is not in 1..5");
    expectPartial(oddType, &odd, "Odd: not read\n",
                  {R"("$notRead":["Odd"])", "-- Odd: not read --", "Odd = $notRead\n"});
}

TEST_F(PartialTree, AllOfIt)
{
    Item value;
    decode(itemType, &value, "1 010 01 01", "Item: a padding bit is set");
    expectPartial(itemType, &value, "Item\n  id 3\n  shade green (1)\n",
                  {R"("id":3,"shade":"green")", "{ id 3, shade green }", "Item.id = 3\nItem.shade = green\n"});
    OSUINT8 odd;
    decode(oddType, &odd, "010 00000 00000000", "Odd: 1 octet follows the encoding");
    expectPartial(oddType, &odd, "Odd 3\n", {R"("$value":3)", "3", "Odd = 3\n"});
}

TEST_F(PartialTree, InAList)
{
    OSRTDList list;
    // three items announced: id 1; id 5 and a shade that there is not
    decode(itemsType, &list, "10 0 000 1 100 11", "Items[1].shade: 3 is not in 0..2");
    expectPartial(itemsType, &list,
                  "Items: 2 elements\n  [0]\n    id 1\n  [1]\n    id 5\n    shade: not read\n  [2]: not read\n",
                  {R"("$value":[{"id":1},{"id":5,"$notRead":["shade"]},{"$notRead":["[2]"]}])",
                   "{ { id 1 }, { id 5 -- shade: not read -- } -- [2]: not read -- }",
                   "Items[0].id = 1\nItems[1].id = 5\nItems[1].shade = $notRead\nItems[2] = $notRead\n"});
}

TEST_F(PartialTree, AListOfWhichLittleIsThere)
{
    OSRTDList list;
    decode(itemsType, &list, "01 1 100 11", "Items[0].shade: 3 is not in 0..2");
    expectPartial(itemsType, &list, "Items: 1 element\n  [0]\n    id 5\n    shade: not read\n  [1..]: not read\n",
                  {R"("$value":[{"id":5,"$notRead":["shade"]},{"$notRead":["[1..]"]}])",
                   "{ { id 5 -- shade: not read -- } -- [1..]: not read -- }",
                   "Items[0].id = 5\nItems[0].shade = $notRead\nItems[1..] = $notRead\n"});
    // An element of which nothing was read.
    rtxMemHeapSetLimit(&ctxt, 0);
    decode(itemsType, &list, "01 1 100 11", "Items[0]: the heap is exhausted");
    expectPartial(itemsType, &list, "Items: 0 elements\n  [0..]: not read\n",
                  {R"("$value":[{"$notRead":["[0..]"]}])", "{ -- [0..]: not read -- }", "Items[0..] = $notRead\n"});
    // Nothing of the list itself.
    decode(itemsType, &list, "11", "Items: 4 elements, not 1..3");
    expectPartial(itemsType, &list, "Items: not read\n",
                  {R"("$notRead":["Items"])", "-- Items: not read --", "Items = $notRead\n"});
}

TEST_F(PartialTree, InAnArray)
{
    Numbers numbers;
    // five announced: 1, 2, and one that there is not
    decode(numbersType, &numbers, "100 000 001 111", "Numbers[2]: 8 is not in 1..5");
    expectPartial(numbersType, &numbers, "Numbers: 5 elements\n  [0] 1\n  [1] 2\n  [2..4]: not read\n",
                  {R"("$value":[1,2,{"$notRead":["[2..4]"]}])", "{ 1, 2 -- [2..4]: not read -- }",
                   "Numbers[0] = 1\nNumbers[1] = 2\nNumbers[2..4] = $notRead\n"});
    decode(numbersType, &numbers, "010 000 001 111", "Numbers[2]: 8 is not in 1..5");
    expectPartial(numbersType, &numbers, "Numbers: 3 elements\n  [0] 1\n  [1] 2\n  [2]: not read\n",
                  {R"("$value":[1,2,{"$notRead":["[2]"]}])", "{ 1, 2 -- [2]: not read -- }",
                   "Numbers[0] = 1\nNumbers[1] = 2\nNumbers[2] = $notRead\n"});
}

TEST_F(PartialTree, InAnAlternative)
{
    Box box;
    // level 1; pick: alternative 2, id 3 and a shade that there is not
    decode(boxType, &box, "0 1 100  0 10  1 010 11", "Box.pick.item.shade: 3 is not in 0..2");
    expectPartial(boxType, &box,
                  "Box\n  level 1\n  pick\n    item\n      id 3\n      shade: not read\n  ...: not read\n",
                  {R"("level":1,"pick":{"item":{"id":3,"$notRead":["shade"]}},"$notRead":["..."])",
                   "{ level 1, pick item : { id 3 -- shade: not read -- } -- ...: not read -- }",
                   "Box.level = 1\nBox.pick.item.id = 3\nBox.pick.item.shade = $notRead\nBox.... = $notRead\n"});
}

TEST_F(PartialTree, AnAlternativeOfWhichNothingIsThere)
{
    Box box;
    // "late", extension 0, of one octet that is not there
    decode(boxType, &box, "0 1 100  1 0 000000 00000001", "Box.pick.late: the input ends");
    EXPECT_EQ(0U, box.pick.t);
    expectPartial(boxType, &box, "Box\n  level 1\n  pick\n    late: not read\n  ...: not read\n",
                  {R"("level":1,"pick":{"$notRead":["late"]},"$notRead":["..."])",
                   "{ level 1, pick -- late: not read -- -- ...: not read -- }",
                   "Box.level = 1\nBox.pick.late = $notRead\nBox.... = $notRead\n"});
    // an unknown one
    decode(boxType, &box, "0 1 100  1 0 000101 00000001", "Box.pick: the input ends");
    expectPartial(boxType, &box, "Box\n  level 1\n  pick: not read\n  ...: not read\n",
                  {R"("level":1,"$notRead":["pick","..."])", "{ level 1 -- pick: not read -- -- ...: not read -- }",
                   "Box.level = 1\nBox.pick = $notRead\nBox.... = $notRead\n"});
    // there is no heap for what it points to
    rtxMemHeapSetLimit(&ctxt, 0);
    decode(boxType, &box, "0 1 100  0 10  1 010 01", "Box.pick.item: the heap is exhausted");
    expectPartial(boxType, &box, "Box\n  level 1\n  pick\n    item: not read\n  ...: not read\n",
                  {R"("level":1,"pick":{"$notRead":["item"]},"$notRead":["..."])",
                   "{ level 1, pick -- item: not read -- -- ...: not read -- }",
                   "Box.level = 1\nBox.pick.item = $notRead\nBox.... = $notRead\n"});
}

// Box with level 1 and a bitmap of three additions: the group of a and b, lone, the group of must.
const std::string threeAdditions = "1 0 100  0 000010 111";

TEST_F(PartialTree, InAnExtensionGroup)
{
    Box box;
    decode(boxType, &box, threeAdditions + "00000001 11 1 111 00", "Box.b: 8 is not in 1..5");
    expectPartial(boxType, &box, "Box\n  level 1\n  a true\n  b: not read\n  ...: not read\n",
                  {R"("level":1,"a":true,"$notRead":["b","..."])",
                   "{ level 1, a TRUE -- b: not read -- -- ...: not read -- }",
                   "Box.level = 1\nBox.a = true\nBox.b = $notRead\nBox.... = $notRead\n"});

    // all of the group was read, and an octet behind it is none of it
    decode(boxType, &box, threeAdditions + "00000010 10 1 00000 00000001", "Box.[[1]]: 1 octet follows");
    expectPartial(boxType, &box, "Box\n  level 1\n  a true\n  ...: not read\n",
                  {R"("level":1,"a":true,"$notRead":["..."])", "{ level 1, a TRUE -- ...: not read -- }",
                   "Box.level = 1\nBox.a = true\nBox.... = $notRead\n"});
}

TEST_F(PartialTree, AnExtensionGroupOfWhichNothingIsThere)
{
    Box box;
    decode(boxType, &box, threeAdditions + "00000010 11 1 111 00", "Box.[[1]]: the input ends");
    expectPartial(
        boxType, &box, "Box\n  level 1\n  ...: not read\n",
        {R"("level":1,"$notRead":["..."])", "{ level 1 -- ...: not read -- }", "Box.level = 1\nBox.... = $notRead\n"});
    decode(boxType, &box, "1 0 100  0 000010 001  00000010 000 00000", "Box.[[3]]: the input ends");
    expectPartial(boxType, &box, "Box\n  level 1\n  must: not read\n  ...: not read\n",
                  {R"("level":1,"$notRead":["must","..."])", "{ level 1 -- must: not read -- -- ...: not read -- }",
                   "Box.level = 1\nBox.must = $notRead\nBox.... = $notRead\n"});
}

TEST_F(PartialTree, InALoneAddition)
{
    Box box;
    decode(boxType, &box, "1 0 100  0 000010 010  00000001 00000000", "Box.lone: the input ends");
    expectPartial(boxType, &box, "Box\n  level 1\n  lone: not read\n  ...: not read\n",
                  {R"("level":1,"$notRead":["lone","..."])", "{ level 1 -- lone: not read -- -- ...: not read -- }",
                   "Box.level = 1\nBox.lone = $notRead\nBox.... = $notRead\n"});
}

// Wides ::= SEQUENCE { ..., [[ v Wide OPTIONAL, w Wide OPTIONAL ]] }
TEST_F(PartialTree, AnExtensionGroupThatEndsTooEarly)
{
    struct Wides
    {
        struct
        {
            unsigned _v2ExtPresent : 1;
            unsigned vPresent : 1;
            unsigned wPresent : 1;
        } m;
        OSUINT16 v;
        OSUINT16 w;
        OSRTDList extElem1;
    };
    const char* const names[] = {"v", "w"};
    const Member members[] = {member(wideType, offsetof(Wides, v), 1), member(wideType, offsetof(Wides, w), 2)};
    const Addition group = {0, 0, 2};
    const Type type = {.name = "Wides",
                       .kind = Kind::Sequence,
                       .extensible = true,
                       .size = sizeof(Wides),
                       .names = names,
                       .members = members,
                       .memberCount = 2,
                       .additions = &group,
                       .additionCount = 1,
                       .extElem = offsetof(Wides, extElem1)};
    Wides wides;
    decode(type, &wides, "1 0 000000 1  00000011  11 0000000000000101 000000", "Wides.[[1]].w: the input ends");
    expectPartial(type, &wides, "Wides\n  v 5\n  w: not read\n  ...: not read\n",
                  {R"("v":5,"$notRead":["w","..."])", "{ v 5 -- w: not read -- -- ...: not read -- }",
                   "Wides.v = 5\nWides.w = $notRead\nWides.... = $notRead\n"});
}

TEST_F(PartialTree, InAnUnknownAddition)
{
    Box box;
    decode(boxType, &box, "1 0 100  0 000101 000101  00000001 10101011  00000010 00000000",
           "Box.extElem1[2]: the input ends");
    expectPartial(boxType, &box,
                  "Box\n  level 1\n  extElem1: 1 unknown addition\n    [0]: 1 octet AB\n  ...: not read\n",
                  {R"("level":1,"$unknownAdditions":[{"index":3,"octets":"AB"}],"$notRead":["..."])",
                   "{ level 1 -- unknown addition 3: AB -- -- ...: not read -- }",
                   "Box.level = 1\nBox.$unknownAdditions[0].index = 3\nBox.$unknownAdditions[0].octets = AB\n"
                   "Box.... = $notRead\n"});
}

TEST_F(PartialTree, OfAnotherTypeIsNone)
{
    Item value;
    decode(itemType, &value, "1 010 11", "Item.shade: 3 is not in 0..2");
    Three three = {};
    three.t = 1;
    expect(threeType, &three, {R"({"none":null})", "none : NULL", "Three.none = null\n"});
}

// Trees of every type, valid and spoilt: JSON stays JSON, and the writers refuse what the encoder refuses.
TEST_F(Writers, RandomTrees)
{
    unsigned refused = 0;
    unsigned trees = 0;
    for (const RtxPdu& pdu : rtxPdus)
    {
        for (uint64_t seed = 0; seed < 40; ++seed)
        {
            SCOPED_TRACE(std::string(pdu.name) + ", seed " + std::to_string(seed));
            rtFreeContext(&ctxt);
            RandomTree random(ctxt, seed);
            void* const value = random.make(*pdu.type);
            const Written valid = json(*pdu.type, value);
            EXPECT_EQ(RTX_OK, valid.status) << valid.text;
            const auto done = random.spoil(*pdu.type, value, 1 + static_cast<unsigned>(seed % 3));
            const Written compact = json(*pdu.type, value);
            EXPECT_TRUE(JsonText::isValid(compact.text)) << compact.text;
            EXPECT_TRUE(JsonText::isValid(json(*pdu.type, value, RTX_INDENTED).text));
            EXPECT_EQ(compact.status, notation(*pdu.type, value).status);
            EXPECT_EQ(compact.status, flat(*pdu.type, value).status);
            const bool taken = rtxCheck(&ctxt, pdu.type, value, nullptr, nullptr) == 0;
            // The encoder takes a list that is a loop, as far as it counts.
            EXPECT_TRUE(taken == (compact.status == RTX_OK) || (taken && compact.status == RTX_E_LIST))
                << testing::PrintToString(done) << compact.text;
            refused += taken ? 0 : 1;
            ++trees;
        }
    }
    EXPECT_GT(refused, trees / 2);
}

} // namespace
