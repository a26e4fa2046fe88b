// What a UE holds after messages that were written by hand, not by the engine: each member left out in each of its
// places, setups released, entries released, added and both at once, and what is no message at all.
#include "cases.h"
#include "deltaTest.h"

namespace
{

using namespace delta;

class Apply : public DeltaTest
{
protected:
    // Of a message to what lies around a place.
    void expectState(Heap& heap, const std::string& name, const Place& place, const CellGroupConfig* prev,
                     const CellGroupConfig* message, const CellGroupConfig* next, const std::vector<int>& notices = {})
    {
        const Applied applied = apply(heap, prev, prev != nullptr ? laterMessage(heap, place, message) : message);
        std::vector<int> told;
        for (const Item& item : applied.items)
        {
            EXPECT_EQ(item.kind, RTX_DELTA_NOTICE) << item.text;
            told.push_back(item.reason);
        }
        if (applied.status != RTX_OK || told != notices || heap.encode(applied.next) != heap.encode(next))
        {
            fail(name, "status " + std::to_string(applied.status) + ", " + std::to_string(told.size()) + " notices\n" +
                           flat(heap, applied.next) + "instead of\n" + flat(heap, next));
        }
    }

    void expectRefusal(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* message, int status,
                       const std::string& error)
    {
        const Applied applied = apply(heap, prev, message);
        char text[512];
        (void)rtxErrFormat(&heap.ctxt, text, sizeof text);
        EXPECT_EQ(applied.status, status) << text;
        EXPECT_EQ(text, error);
    }
};

// Whether the member stays in a UE that gets its sequence without it.
bool staysWithout(const Place& place)
{
    const Need& code = place.code();
    return !place.inPlainList() && (code.absence == Absence::Keep || code.absence == Absence::Mandatory ||
                                    code.list == ListRole::AddMod || isOneShot(code));
}

TEST_F(Apply, EachMemberLeftOut)
{
    std::map<std::string, unsigned> counts;
    forEachMember(
        [&](const Place& place)
        {
            Heap heap;
            const std::optional<Pair> pair = isEnough() ? std::nullopt : makePair(heap, place, Happening::Vanishes);
            if (!pair)
            {
                return;
            }
            const CellGroupConfig* const with = stateOf(heap, pair->prev);
            const CellGroupConfig* const without = stateOf(heap, pair->next);
            const bool stays = staysWithout(place);
            ++counts[stays ? "stays" : "goes"];
            expectState(heap, place.text() + " left out", place, pair->prev, pair->next, stays ? with : without);
            const bool entry = place.entryStep() >= 0; // which would be incomplete
            if (!entry)
            {
                expectState(heap, place.text() + " of nothing", place, nullptr, pair->next, without);
            }
            expectState(heap, place.text() + " added", place, pair->next, pair->prev, with);
            expectState(heap, place.text() + " repeated", place, pair->prev, pair->prev, with);
        });
    print(counts);
    EXPECT_GT(counts["stays"], 700U);
    EXPECT_GT(counts["goes"], 1800U);
}

TEST_F(Apply, EachSetupReleased)
{
    unsigned count = 0;
    forEachMember(
        [&](const Place& place)
        {
            Heap heap;
            const std::optional<Pair> pair = isEnough() || !isSetupRelease(place.type()) || place.inPlainList()
                                                 ? std::nullopt
                                                 : makePair(heap, place, Happening::Vanishes);
            if (!pair)
            {
                return;
            }
            ++count;
            CellGroupConfig* const message = copy(heap, pair->prev);
            const Spot spot = reach(heap, message, place);
            (void)choose(heap, place.type(), at(place.parent(), spot.parent, place.index()), 0);
            const CellGroupConfig* const without = stateOf(heap, pair->next);
            expectState(heap, place.text() + " released", place, pair->prev, message, without);
            expectState(heap, place.text() + " released, not held", place, pair->next, message, without,
                        {RTX_DELTA_NOT_HELD});
        });
    (void)std::printf("%u places\n", count);
    EXPECT_GT(count, 200U);
}

// A place's list of identities that are released.
void release(Heap& heap, const Place& place, CellGroupConfig* message, const std::vector<int64_t>& ids)
{
    const Spot spot = reach(heap, message, place);
    const auto partner = static_cast<unsigned>(place.code().partner);
    const Type& list = *place.parent().members[partner].type;
    std::vector<void*> elements;
    for (const int64_t id : ids)
    {
        elements.push_back(heap.allocate(list.element().size));
        setNumber(list.element(), elements.back(), id);
    }
    setElements(heap, list, put(place.parent(), spot.parent, partner), elements);
}

CellGroupConfig* withEntries(Heap& heap, const CellGroupConfig* tree, const Place& place,
                             const std::vector<int64_t>& ids, unsigned variant = 0)
{
    CellGroupConfig* const made = copy(heap, tree);
    setEntries(heap, place, made, ids, variant);
    return made;
}

TEST_F(Apply, EachListReleased)
{
    unsigned count = 0;
    forEachMember(
        [&](const Place& place)
        {
            if (isEnough() || place.code().list != ListRole::AddMod || place.inPlainList())
            {
                return;
            }
            ++count;
            Heap heap;
            const Type& list = place.type();
            const int64_t main = mainIdentity(list);
            const int64_t other = otherIdentity(list);
            CellGroupConfig* const none = heap.tree();
            (void)reach(heap, none, place);
            const CellGroupConfig* const both = withEntries(heap, none, place, {main, other});
            const std::string name = place.text();

            CellGroupConfig* message = copy(heap, none);
            release(heap, place, message, {other});
            expectState(heap, name + " one released", place, both, message, withEntries(heap, none, place, {main}));
            release(heap, place, message, {other, main});
            expectState(heap, name + " all released", place, both, message, none);
            expectState(heap, name + " released, not held", place, none, message, none,
                        {RTX_DELTA_NOT_HELD, RTX_DELTA_NOT_HELD});

            // Released and added again it is new: nothing of it stays.
            message = withEntries(heap, none, place, {main}, 1);
            release(heap, place, message, {main});
            CellGroupConfig* const next = withEntries(heap, none, place, {main, other});
            const Spot spot = reach(heap, next, place);
            void* const kept = at(place.parent(), spot.parent, place.index());
            setElements(heap, list, kept, {makeEntry(heap, list, main, 1), makeEntry(heap, list, other, 0)});
            expectState(heap, name + " released and added", place, both, message, stateOf(heap, next));
        });
    (void)std::printf("%u places\n", count);
    EXPECT_GT(count, 100U);
}

TEST_F(Apply, NoMessage)
{
    Heap heap;
    CellGroupConfig* const prev = heap.tree();
    CellGroupConfig* const message = heap.tree();
    message->cellGroupId = 1;
    expectRefusal(heap, prev, message, RTX_E_DELTA,
                  "CellGroupConfig.cellGroupId: no delta brings this: another cell group");
    message->cellGroupId = 4;
    expectRefusal(heap, prev, message, RTX_E_RANGE, "CellGroupConfig.cellGroupId: 4 is not in 0..3");
}

} // namespace
