// Every list whose entries are added, modified and released, and every choice, in each of their places.
#include "cases.h"
#include "deltaTest.h"

#include <algorithm>
#include <numeric>

namespace
{

using namespace delta;

using Ids = std::vector<int64_t>;

Ids idsOf(const Type& list, const void* value)
{
    Ids ids;
    if (value != nullptr)
    {
        for (const void* const element : elements(list, value))
        {
            ids.push_back(list.identity == rtx::noIdentity ? rtx::loadNumber(list.element(), element)
                                                           : identity(list, element));
        }
    }
    return ids;
}

// The list that releases a place's entries.
Place partnerOf(const Place& place)
{
    Place partner = place;
    partner.steps.back().index = static_cast<unsigned>(place.code().partner);
    return partner;
}

Ids idsFrom(int64_t first, size_t count)
{
    Ids ids(count);
    std::iota(ids.begin(), ids.end(), first);
    return ids;
}

std::string textOf(const Ids& ids)
{
    std::string text = "{";
    for (const int64_t id : ids)
    {
        text += " " + std::to_string(id);
    }
    return text + " }";
}

class Lists : public DeltaTest
{
protected:
    // The trees with what is around the place's list, and these entries.
    static CellGroupConfig* tree(Heap& heap, const Place& place, const Ids& ids)
    {
        CellGroupConfig* const made = heap.tree();
        (void)reach(heap, made, place);
        if (!ids.empty())
        {
            setEntries(heap, place, made, ids);
        }
        return made;
    }

    // A delta with just these entries released, and these added or modified.
    Result expectSent(Heap& heap, const Place& place, const char* what, const CellGroupConfig* prev,
                      const CellGroupConfig* next, const Ids& released, const Ids& sent, unsigned flags = 0)
    {
        const std::string name = place.text() + " " + what;
        const Result result = check(heap, name, prev, next, flags);
        ++counts[what];
        if (place.passes("SCellConfig", "sCellConfigCommon"))
        {
            return result; // which is sent once, with the SCell
        }
        if (result.status != RTX_DELTA_TO_SEND)
        {
            fail(name, "status " + std::to_string(result.status));
            return result;
        }
        const Place partner = partnerOf(place);
        const Ids foundReleased = idsOf(partner.type(), find(result.delta, partner));
        const Ids foundSent = idsOf(place.type(), find(result.delta, place));
        if (foundReleased != released || foundSent != sent)
        {
            fail(name, "releases " + textOf(foundReleased) + ", sends " + textOf(foundSent) + " instead of " +
                           textOf(released) + ", " + textOf(sent));
        }
        return result;
    }

    void expectNothing(Heap& heap, const Place& place, const char* what, const CellGroupConfig* prev,
                       const CellGroupConfig* next)
    {
        const Result result = check(heap, place.text() + " " + what, prev, next);
        ++counts[what];
        if (result.status != RTX_DELTA_NOTHING)
        {
            fail(place.text() + " " + what, "status " + std::to_string(result.status));
        }
    }

    static void* entryAt(Heap& heap, CellGroupConfig* tree, const Place& place, size_t index)
    {
        const Spot spot = reach(heap, tree, place);
        return elements(place.type(), at(place.parent(), spot.parent, place.index()))[index];
    }

    void modified(const Place& place)
    {
        Heap heap;
        const Type& list = place.type();
        const int64_t main = mainIdentity(list);
        const int64_t other = otherIdentity(list);
        const CellGroupConfig* const prev = tree(heap, place, {main, other});
        CellGroupConfig* const next = tree(heap, place, {main, other});
        void* const entry = entryAt(heap, next, place, 1);
        if (!varyEntry(heap, list, entry))
        {
            ++counts["identity alone"];
            return;
        }
        expectSent(heap, place, "modify", prev, next, {}, {other});
    }

    // What an entry does not take: here that something of a later release goes, which no code tells of.
    void releasedAndAdded(const Place& place)
    {
        Heap heap;
        const Type& list = place.type();
        if (!list.element().extensible)
        {
            ++counts["not extensible"];
            return;
        }
        const Ids both = {mainIdentity(list), otherIdentity(list)};
        CellGroupConfig* const prev = tree(heap, place, both);
        const CellGroupConfig* const next = tree(heap, place, both);
        addAddition(heap, list.element(), entryAt(heap, prev, place, 0), 0, 7);
        expectSent(heap, place, "release and add", prev, next, {both[0]}, {both[0]}, allEntries);
        const Result refused = check(heap, place.text() + " kept", prev, next, RTX_DELTA_RECREATE_NONE);
        EXPECT_EQ(refused.status, RTX_E_DELTA) << place.text();
    }

    void full(const Place& place)
    {
        Heap heap;
        const Type& list = place.type();
        const auto most = static_cast<size_t>(list.upper);
        const int64_t first = firstIdentity(list);
        const auto spare = std::min(static_cast<size_t>(lastIdentity(list) - first + 1) - most, most);
        const CellGroupConfig* const none = tree(heap, place, {});
        const CellGroupConfig* const all = tree(heap, place, idsFrom(first, most));
        expectSent(heap, place, "full", none, all, {}, idsFrom(first, most));
        expectSent(heap, place, "emptied", all, none, idsFrom(first, most), {});
        if (spare == 0)
        {
            ++counts["no room beside"];
            return;
        }
        // As many others: the released ones make room.
        const int64_t moved = first + static_cast<int64_t>(spare);
        const CellGroupConfig* const others = tree(heap, place, idsFrom(moved, most));
        expectSent(heap, place, "full of others", all, others, idsFrom(first, spare),
                   idsFrom(first + static_cast<int64_t>(most), spare));
        // One more is too much.
        const CellGroupConfig* const one = tree(heap, place, {first + static_cast<int64_t>(most)});
        const Applied applied = apply(heap, all, laterMessage(heap, place, one));
        char text[512];
        (void)rtxErrFormat(&heap.ctxt, text, sizeof text);
        EXPECT_EQ(applied.status, RTX_E_SIZE) << place.text();
        const size_t dots = 2;
        EXPECT_NE(std::string(text).find(std::to_string(most + 1) + " elements, not " + std::to_string(list.lower) +
                                         std::string(dots, '.') + std::to_string(most)),
                  std::string::npos)
            << text;
        ++counts["beyond"];
    }

    std::map<std::string, unsigned> counts;
};

TEST_F(Lists, OfEntries)
{
    unsigned places = 0;
    forEachMember(
        [&](const Place& place)
        {
            if (isEnough() || place.code().list != ListRole::AddMod || place.inPlainList())
            {
                return;
            }
            ++places;
            const Type& list = place.type();
            const int64_t main = mainIdentity(list);
            const int64_t other = otherIdentity(list);
            {
                Heap heap;
                const CellGroupConfig* const none = tree(heap, place, {});
                const CellGroupConfig* const one = tree(heap, place, {main});
                const CellGroupConfig* const both = tree(heap, place, {main, other});
                const CellGroupConfig* const turned = tree(heap, place, {other, main});
                expectSent(heap, place, "add the first", none, both, {}, {main, other});
                expectSent(heap, place, "add in another order", none, turned, {}, {main, other});
                expectSent(heap, place, "add one", one, both, {}, {other});
                expectSent(heap, place, "release one", both, one, {other}, {});
                expectSent(heap, place, "release all", turned, none, {main, other}, {});
                expectSent(heap, place, "one for another", one, tree(heap, place, {other}), {main}, {other});
                expectNothing(heap, place, "reorder", both, turned);
                expectNothing(heap, place, "stay", turned, turned);
            }
            modified(place);
            releasedAndAdded(place);
            full(place);
        });
    print(counts);
    (void)std::printf("%u places\n", places);
    EXPECT_EQ(counts["modify"] + counts["identity alone"], places);
    EXPECT_EQ(counts["release and add"] + counts["not extensible"], places);
    EXPECT_EQ(counts["full of others"] + counts["no room beside"], places);
    EXPECT_EQ(counts["beyond"], counts["full of others"]);
    for (const auto& [name, count] : counts)
    {
        EXPECT_NE(count, 0U) << name;
    }
    EXPECT_EQ(counts["identity alone"], 12U); // lists of TCI states, which have nothing else
}

class Choices : public DeltaTest
{
protected:
    static Place inside(const Place& choice, unsigned alternative)
    {
        Place place = choice;
        place.steps.push_back({&choice.type(), alternative});
        return place;
    }

    static CellGroupConfig* tree(Heap& heap, const Place& place)
    {
        CellGroupConfig* const made = heap.tree();
        Place beyond = place;
        beyond.steps.push_back({&place.type(), 0});
        (void)reach(heap, made, beyond);
        return made;
    }

    void expectAlternative(const Place& choice, unsigned before, unsigned after)
    {
        const Type& type = choice.type();
        for (const unsigned flags : allFlags)
        {
            Heap heap;
            const CellGroupConfig* const prev = tree(heap, inside(choice, before));
            CellGroupConfig* const next = copy(heap, prev);
            const Place place = inside(choice, after);
            const Spot spot = reach(heap, next, place);
            if (before != after)
            {
                fill(heap, place.type(), choose(heap, type, spot.parent, after), 0, spot.where);
            }
            else if (!vary(heap, place.type(), content(type, spot.parent), spot.where))
            {
                ++counts["one value"];
                return;
            }
            const Expected expected = expect(heap, prev, next, flags);
            const std::string name = place.text() + " for " + type.names[before];
            const Result result = check(heap, name, prev, next, flags, expected);
            if (result.status == RTX_DELTA_TO_SEND && find(result.delta, place) == nullptr)
            {
                fail(name, "is not sent");
            }
            ++counts[before == after ? "the same" : "another"];
            if (expected.outcome != RTX_E_DELTA && expected.recreated.empty() && expected.first.empty())
            {
                return;
            }
        }
    }

    std::map<std::string, unsigned> counts;
};

TEST_F(Choices, OfEveryPlace)
{
    unsigned places = 0;
    forEachChoice(
        [&](const Place& choice)
        {
            ++places;
            const unsigned count = choice.type().memberCount;
            for (unsigned i = 0; i < count && !isEnough(); ++i)
            {
                expectAlternative(choice, i, i);
                if (count > 1)
                {
                    expectAlternative(choice, i, (i + 1) % count);
                    expectAlternative(choice, i, (i + count / 2) % count);
                }
            }
        });
    print(counts);
    print(outcomes);
    (void)std::printf("%u places\n", places);
    EXPECT_GT(places, 200U);
    for (const char* const name : {"the same", "another", "one value"})
    {
        EXPECT_NE(counts[name], 0U) << name;
    }
    EXPECT_NE(outcomes["refused " + std::to_string(RTX_DELTA_MODE)], 0U);
    EXPECT_NE(outcomes["recreated"], 0U);
}

} // namespace
