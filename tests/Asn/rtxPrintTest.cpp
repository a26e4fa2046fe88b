#include "support/CapturedOutput.h"
#include "treeTest.h"

#include <algorithm>
#include <string>

namespace
{

using namespace test;

class Print : public testing::Test, protected Trees
{
protected:
    std::string printed(const Type& type, const void* value) const
    {
        return printedBy(&ctxt, type, value);
    }

    static std::string printedBy(const OSCTXT* context, const Type& type, const void* value)
    {
        std::string text;
        rtx::print(context, type, "x", value, collect, &text);
        return text;
    }
};

TEST_F(Print, Boolean)
{
    OSBOOL value = 0;
    EXPECT_EQ("x false\n", printed(flagType, &value));
    value = 1;
    EXPECT_EQ("x true\n", printed(flagType, &value));
    value = 128;
    EXPECT_EQ("x true (128)\n", printed(flagType, &value));
}

TEST_F(Print, Null)
{
    const OSOCTET none = 0;
    EXPECT_EQ("x\n", printed(nothingType, &none));
}

TEST_F(Print, Integer)
{
    const OSINT8 level = -3;
    EXPECT_EQ("x -3\n", printed(levelType, &level));
    const OSUINT8 odd = 255;
    EXPECT_EQ("x 255 (not in 1..5)\n", printed(oddType, &odd));
    const OSINT8 low = -4;
    EXPECT_EQ("x -4 (not in -3..4)\n", printed(levelType, &low));
    const OSUINT16 wide = 65535;
    EXPECT_EQ("x 65535\n", printed(wideType, &wide));
    const OSINT16 bias = -400;
    EXPECT_EQ("x -400\n", printed(biasType, &bias));
    const OSINT32 whole = INT32_MIN;
    EXPECT_EQ("x -2147483648\n", printed(wholeType, &whole));
}

TEST_F(Print, Enumerated)
{
    OSUINT32 value = 2;
    EXPECT_EQ("x blue (2)\n", printed(colourType, &value));
    value = 3;
    EXPECT_EQ("x 3 (not in 0..2)\n", printed(colourType, &value));
    value = UINT32_MAX;
    EXPECT_EQ("x 4294967295 (not in 0..2)\n", printed(colourType, &value));
}

TEST_F(Print, BitString)
{
    ASN1BitStr32 map = {5, {0xB0, 0, 0, 0}};
    EXPECT_EQ("x '10110'B (5 bits)\n", printed(mapType, &map));
    map.numbits = 0;
    EXPECT_EQ("x ''B (0 bits, not 5)\n", printed(mapType, &map));
    map.numbits = 4'000'000'000;
    EXPECT_EQ("x '10110000000000000000000000000000'B (4000000000 bits, not 5)\n", printed(mapType, &map));

    const OSOCTET longMap[] = {0x81, 0, 0, 0, 0xFF, 0xA0};
    EXPECT_EQ("x '1000000100000000000000000000000011111111101'B (43 bits)\n", printed(longMapType, longMap));
}

TEST_F(Print, Sequence)
{
    Item value = {};
    value.id = 3;
    value.shade = 1;
    EXPECT_EQ("x\n  id 3\n", printed(itemType, &value));
    value.m.shadePresent = 1;
    EXPECT_EQ("x\n  id 3\n  shade green (1)\n", printed(itemType, &value));
}

TEST_F(Print, Array)
{
    Numbers numbers = {2, {5, 9, 0, 0, 0}};
    EXPECT_EQ("x: 2 elements\n  [0] 5\n  [1] 9 (not in 1..5)\n", printed(numbersType, &numbers));
    numbers.n = 1;
    EXPECT_EQ("x: 1 element\n  [0] 5\n", printed(numbersType, &numbers));
    numbers.n = 0;
    EXPECT_EQ("x: 0 elements, not 1..5\n", printed(numbersType, &numbers));
    numbers = {200, {1, 2, 3, 4, 5}};
    EXPECT_EQ("x: 200 elements, not 1..5; the first 5:\n  [0] 1\n  [1] 2\n  [2] 3\n  [3] 4\n  [4] 5\n",
              printed(numbersType, &numbers));

    const Pair pair = {{-1, 4}};
    EXPECT_EQ("x: 2 elements\n  [0] -1\n  [1] 4\n", printed(pairType, &pair));

    Many many = {};
    many.n = 65535;
    const std::string text = printed(manyType, &many);
    EXPECT_EQ(0U, text.find("x: 65535 elements, not 0..300; the first 300:\n  [0] false\n"));
    EXPECT_EQ(text.size() - 14, text.rfind("  [299] false\n"));
}

TEST_F(Print, List)
{
    OSRTDList list = {};
    EXPECT_EQ("x: 0 elements, not 1..3\n", printed(itemsType, &list));
    append(list, item(1));
    append(list, item(2));
    EXPECT_EQ("x: 2 elements\n  [0]\n    id 1\n  [1]\n    id 2\n", printed(itemsType, &list));
}

TEST_F(Print, ListThatEndsEarly)
{
    OSRTDList list = {};
    append(list, item(1));
    list.count = 3;
    EXPECT_EQ("x: 3 elements\n  [0]\n    id 1\n  the list counts 3 elements and ends after 1\n",
              printed(itemsType, &list));
    list = {1, nullptr, nullptr};
    EXPECT_EQ("x: 1 element\n  the list counts 1 element and ends after 0\n", printed(itemsType, &list));
}

TEST_F(Print, ListBeyondItsBound)
{
    OSRTDList list = {};
    for (OSUINT8 id = 1; id <= 5; ++id)
    {
        append(list, item(id));
    }
    EXPECT_EQ("x: 5 elements, not 1..3; the first 3:\n  [0]\n    id 1\n  [1]\n    id 2\n  [2]\n    id 3\n",
              printed(itemsType, &list));
    list.count = 2;
    EXPECT_EQ("x: 2 elements\n  [0]\n    id 1\n  [1]\n    id 2\n  the list goes on behind its last element\n",
              printed(itemsType, &list));
}

TEST_F(Print, ListThatFormsALoop)
{
    OSRTDList list = {};
    append(list, item(1));
    append(list, item(2));
    list.tail->next = list.head;
    list.count = 3;
    EXPECT_EQ("x: 3 elements\n  [0]\n    id 1\n  [1]\n    id 2\n  [2]\n    id 1\n"
              "  the list goes on behind its last element\n",
              printed(itemsType, &list));
    list.tail->next = list.tail;
    EXPECT_EQ("x: 3 elements\n  [0]\n    id 1\n  [1]\n    id 2\n  [2]: the list goes back to an earlier element\n",
              printed(itemsType, &list));
}

TEST_F(Print, ALoopWithoutBoundEnds)
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
    const std::string text = printed(open, &list);
    EXPECT_NE(std::string::npos, text.find(": the list goes back to an earlier element\n"));
    EXPECT_LT(std::count(text.begin(), text.end(), '\n'), 40);
}

TEST_F(Print, ListWithForeignNodesOrData)
{
    OSRTDListNode node = {item(1), nullptr, nullptr};
    OSRTDList list = {1, &node, &node};
    EXPECT_EQ("x: 1 element\n  [0]: a pointer out of the context's heap\n", printed(itemsType, &list));

    list = {};
    append(list, nullptr);
    Item foreign = {};
    append(list, &foreign);
    append(list, item(4));
    EXPECT_EQ("x: 3 elements\n  [0]: a null pointer\n  [1]: a pointer out of the context's heap\n  [2]\n    id 4\n",
              printed(itemsType, &list));

    list.head->next = reinterpret_cast<OSRTDListNode*>(1);
    EXPECT_EQ("x: 3 elements\n  [0]: a null pointer\n  [1]: a pointer out of the context's heap\n",
              printed(itemsType, &list));
}

TEST_F(Print, APointerThatIsNotAlignedIsNotFollowed)
{
    auto* const octets = reinterpret_cast<OSOCTET*>(make<std::array<OSOCTET, 64>>());
    OSRTDList list = {1, reinterpret_cast<OSRTDListNode*>(octets + alignof(OSRTDListNode) / 2), nullptr};
    EXPECT_EQ("x: 1 element\n  [0]: a pointer out of the context's heap\n", printed(itemsType, &list));

    Pick pick = {};
    pick.t = 4;
    pick.u.map = reinterpret_cast<ASN1BitStr32*>(octets + 2);
    EXPECT_EQ("x\n  map: a pointer out of the context's heap\n", printed(pickType, &pick));
}

TEST_F(Print, APointerToTheHeapsLastOctetsIsNotFollowed)
{
    auto* const octets = reinterpret_cast<OSOCTET*>(make<std::array<OSOCTET, 16>>());
    Pick pick = {};
    pick.t = 4;
    pick.u.map = reinterpret_cast<ASN1BitStr32*>(octets + 8);
    EXPECT_NE(std::string::npos, printed(pickType, &pick).find("''B (0 bits, not 5)"));
    pick.u.map = reinterpret_cast<ASN1BitStr32*>(octets + 12);
    EXPECT_EQ("x\n  map: a pointer out of the context's heap\n", printed(pickType, &pick));
}

TEST_F(Print, Choice)
{
    Three three = {};
    EXPECT_EQ("x: tag 0 is not in 1..3\n", printed(threeType, &three));
    three.t = 1;
    EXPECT_EQ("x\n  none\n", printed(threeType, &three));
    three.t = 2;
    three.u.level = -2;
    EXPECT_EQ("x\n  level -2\n", printed(threeType, &three));
    three.t = 4;
    EXPECT_EQ("x: tag 4 is not in 1..3\n", printed(threeType, &three));
    three.t = UINT32_MAX;
    EXPECT_EQ("x: tag 4294967295 is not in 1..3\n", printed(threeType, &three));
}

TEST_F(Print, ChoiceByPointer)
{
    Pick pick = {};
    pick.t = 3;
    EXPECT_EQ("x\n  item: a null pointer\n", printed(pickType, &pick));
    Item foreign = {};
    pick.u.item = &foreign;
    EXPECT_EQ("x\n  item: a pointer out of the context's heap\n", printed(pickType, &pick));
    pick.u.item = item(2);
    EXPECT_EQ("x\n  item\n    id 2\n", printed(pickType, &pick));
    pick.t = 5;
    EXPECT_EQ("x\n  late\n    id 2\n", printed(pickType, &pick));
}

TEST_F(Print, UnknownAlternative)
{
    Pick pick = {};
    EXPECT_EQ("x: tag 0 is not in 1..5\n", printed(pickType, &pick));
    pick.t = 6;
    EXPECT_EQ("x: tag 6 is not in 1..5\n  unknown alternative: a null pointer\n", printed(pickType, &pick));
    ASN1OpenType foreign = {0, 0, nullptr};
    pick.u.extElem1 = &foreign;
    EXPECT_EQ("x: tag 6 is not in 1..5\n  unknown alternative: a pointer out of the context's heap\n",
              printed(pickType, &pick));
    auto* const open = make<ASN1OpenType>();
    pick.u.extElem1 = open;
    EXPECT_EQ("x: tag 6 is not in 1..5\n  unknown alternative: absent\n", printed(pickType, &pick));
    open->numocts = 3;
    open->data = reinterpret_cast<OSOCTET*>(make<std::array<OSOCTET, 3>>());
    open->data[0] = 0xAB;
    open->data[2] = 0x0C;
    EXPECT_EQ("x: tag 6 is not in 1..5\n  unknown alternative: 3 octets AB000C\n", printed(pickType, &pick));
    open->numocts = 1;
    EXPECT_EQ("x: tag 6 is not in 1..5\n  unknown alternative: 1 octet AB\n", printed(pickType, &pick));
    open->numocts = 17;
    EXPECT_EQ("x: tag 6 is not in 1..5\n  unknown alternative: a pointer out of the context's heap\n",
              printed(pickType, &pick));
}

TEST_F(Print, WhatFollowsAnUnknownAlternativeStandsBesideIt)
{
    Box box = {};
    box.m.pickPresent = 1;
    box.pick.t = 6;
    box.m.lonePresent = 1;
    box.lone = 7;
    EXPECT_EQ("x\n  level 0\n  pick: tag 6 is not in 1..5\n    unknown alternative: a null pointer\n  lone 7\n",
              printed(boxType, &box));
}

TEST_F(Print, ExtensionAdditions)
{
    Box box = {};
    box.a = 1;
    box.b = 4;
    box.lone = 7;
    box.must = 2;
    EXPECT_EQ("x\n  level 0\n", printed(boxType, &box));
    box.m._v2ExtPresent = 1;
    box.m.aPresent = 1;
    box.m.bPresent = 1;
    box.m.lonePresent = 1;
    box.m._v4ExtPresent = 1;
    EXPECT_EQ("x\n  level 0\n  a true\n  b 4\n  lone 7\n  must 2\n", printed(boxType, &box));
}

TEST_F(Print, AMemberOfAGroupThatIsNotSentIsShownAsSuch)
{
    Box box = {};
    box.m.bPresent = 1;
    box.b = 4;
    EXPECT_EQ("x\n  level 0\n  b: not sent, as its extension group is not\n  b 4\n", printed(boxType, &box));
}

TEST_F(Print, UnknownAdditions)
{
    Box box = {};
    auto* const empty = make<ASN1OpenType>();
    auto* const present = make<ASN1OpenType>();
    present->numocts = 2;
    present->data = reinterpret_cast<OSOCTET*>(make<std::array<OSOCTET, 2>>());
    present->data[0] = 0xFF;
    present->index = 3;
    append(box.extElem1, empty);
    append(box.extElem1, present);
    EXPECT_EQ("x\n  level 0\n  extElem1: 2 unknown additions\n    [0]: a null pointer\n    [3]: 2 octets FF00\n",
              printed(boxType, &box));

    box.extElem1.tail->next = box.extElem1.head;
    box.extElem1.count = UINT32_MAX;
    const std::string text = printed(boxType, &box);
    EXPECT_NE(std::string::npos, text.find(": the list goes back to an earlier element\n"));
    EXPECT_LT(text.size(), 400U);

    box.extElem1 = {};
    append(box.extElem1, nullptr);
    append(box.extElem1, &box);
    EXPECT_EQ("x\n  level 0\n  extElem1: 2 unknown additions\n    [0]: a null pointer\n"
              "    [1]: a pointer out of the context's heap\n",
              printed(boxType, &box));
}

TEST_F(Print, WithoutContextNoPointerIsFollowed)
{
    const std::string reason = "a pointer that is not followed, as no context is named\n";
    OSRTDList list = {};
    append(list, item(1));
    EXPECT_EQ("x: 1 element\n  [0]: " + reason, printedBy(nullptr, itemsType, &list));
    Pick pick = {};
    pick.t = 3;
    pick.u.item = item(1);
    EXPECT_EQ("x\n  item: " + reason, printedBy(nullptr, pickType, &pick));
    pick.t = 9;
    EXPECT_EQ("x: tag 9 is not in 1..5\n  unknown alternative: " + reason, printedBy(nullptr, pickType, &pick));
    pick.t = 2;
    pick.u.level = 3;
    EXPECT_EQ("x\n  level 3\n", printedBy(nullptr, pickType, &pick)) << "what is inline needs none";
}

TEST_F(Print, ANullTreeAndANullTitle)
{
    EXPECT_EQ("x: a null pointer\n", printed(boxType, nullptr));
    std::string text;
    const OSUINT8 odd = 2;
    rtx::print(&ctxt, oddType, nullptr, &odd, collect, &text);
    EXPECT_EQ("Odd 2\n", text);
    text.clear();
    rtx::print(&ctxt, oddType, nullptr, nullptr, collect, &text);
    EXPECT_EQ("Odd: a null pointer\n", text);
}

TEST_F(Print, DepthIsBounded)
{
    const OSBOOL flag = 1;
    const std::string deepest = printed(Nested(RTX_MAX_DEPTH - 1).type(), &flag);
    EXPECT_NE(std::string::npos, deepest.find("  in true\n"));
    const std::string text = printed(Nested(RTX_MAX_DEPTH).type(), &flag);
    EXPECT_EQ(std::string::npos, text.find("true"));
    EXPECT_NE(std::string::npos, text.find("  in: deeper elements are left out\n"));
}

TEST_F(Print, LongTextsComeWhole)
{
    const std::string name(2000, 'n');
    const Type type = {.name = name.c_str(), .kind = Kind::Integer, .width = 1, .size = 1, .lower = 1, .upper = 5};
    std::string text;
    const OSUINT8 odd = 2;
    rtx::print(&ctxt, type, nullptr, &odd, collect, &text);
    EXPECT_EQ(name + " 2\n", text);
}

TEST_F(Print, ToTheConsoleWithTheThreadsContext)
{
    Pick pick = {};
    pick.t = 3;
    pick.u.item = item(2);
    test::CapturedOutput output;
    rtx::print(pickType, "100%s", &pick);
    EXPECT_EQ("100%s\n  item: a pointer that is not followed, as no context is named\n", output.take());
    rtxPrintSetContext(&ctxt);
    rtx::print(pickType, "PICK", &pick);
    EXPECT_EQ("PICK\n  item\n    id 2\n", output.take());
    rtFreeContext(&ctxt);
    rtx::print(pickType, "PICK", &pick);
    EXPECT_EQ("PICK\n  item: a pointer that is not followed, as no context is named\n", output.take());
}

} // namespace
