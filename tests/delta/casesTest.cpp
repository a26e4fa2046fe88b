// Whatever may happen to a member of the tree, in each of its places: what is sent, what is refused, what is reached.
#include "cases.h"
#include "deltaTest.h"

#include <algorithm>
#include <cstdio>
#include <set>

namespace
{

using namespace delta;

// Whether all of what the step leads to is sent where it is sent: in a list without identities, in an action.
bool isWhole(const Step& step)
{
    return step.type->kind == Kind::Sequence ? isAction(need(*step.type, step.index))
                                             : step.type->kind == Kind::List && step.type->identity == rtx::noIdentity;
}

// Whether the member that a step leads to is sent again where its sequence is, by its code alone.
bool isSentAgain(const Step& step)
{
    if (step.type->kind != Kind::Sequence)
    {
        return true;
    }
    switch (need(*step.type, step.index).absence)
    {
    case Absence::Mandatory:
    case Absence::Clear:
    case Absence::Default:
    case Absence::Fixed:
        return true;
    case Absence::Keep:
    case Absence::Action:
        return false;
    }
    return false;
}

// Whether reconfigurationWithSync asks for the member of a step, if it is sent: in the SpCell outside entries.
bool isSentWithSync(const Place& place, const Step& step)
{
    if (step.type->kind != Kind::Sequence || place.entryStep() >= 0 || !place.passes("CellGroupConfig", "spCellConfig"))
    {
        return false;
    }
    const Change word = need(*step.type, step.index).change;
    return word == Change::Setup || word == Change::Creation || word == Change::CreationOptional ||
           word == Change::Switch;
}

// Whether a delta that is sent has the member.
bool isIn(const Place& place, Happening happening, const Expected& expected)
{
    if (happening == Happening::Appears || happening == Happening::Changes)
    {
        return true;
    }
    if (happening == Happening::Vanishes)
    {
        return isSetupRelease(place.type()) && !place.inPlainList() && !place.inAction() && expected.recreated.empty();
    }
    if (!expected.recreated.empty() && place.entryStep() >= 0)
    {
        return true;
    }
    if (isAction(place.code()) && !place.passes("SpCellConfig", "reconfigurationWithSync"))
    {
        return true;
    }
    size_t step = happening == Happening::Stays ? place.steps.size() - 1 : *fartherStep(place);
    if (std::any_of(place.steps.begin(), place.steps.begin() + static_cast<std::ptrdiff_t>(step), isWhole))
    {
        return true;
    }
    for (; step != place.steps.size(); ++step)
    {
        if (isWhole(place.steps[step]))
        {
            return true;
        }
        const bool withSync =
            expected.sync && std::any_of(place.steps.begin() + static_cast<std::ptrdiff_t>(step), place.steps.end(),
                                         [&](const Step& one) { return isSentWithSync(place, one); });
        if (!isSentAgain(place.steps[step]) && !withSync)
        {
            return false;
        }
    }
    return true;
}

std::string codeOf(const Need& code, bool optional)
{
    static const char* const names[] = {"-", "M", "R", "S", "N", "fixed"};
    return code.list == ListRole::AddMod                    ? "list"
           : isOneShot(code)                                ? "one-shot"
           : code.absence == Absence::Mandatory && optional ? "group"
                                                            : names[static_cast<size_t>(code.absence)];
}

class Cases : public DeltaTest
{
};

TEST_F(Cases, OfEveryMember)
{
    std::map<std::string, unsigned> counts;
    std::set<std::pair<const Type*, unsigned>> members;
    std::set<std::pair<const Type*, unsigned>> optionalMembers;
    unsigned places = 0;
    forEachMember(
        [&](const Place& place)
        {
            if (isEnough())
            {
                return;
            }
            ++places;
            const bool optional = isOptional(place.parent(), place.index());
            members.insert({&place.parent(), place.index()});
            if (optional && place.code().absence != Absence::Mandatory)
            {
                optionalMembers.insert({&place.parent(), place.index()});
            }
            if (place.code().list == ListRole::AddMod) // as its cases have it released, too
            {
                optionalMembers.insert({&place.parent(), static_cast<unsigned>(place.code().partner)});
            }
            for (const Happening happening : allHappenings)
            {
                for (const unsigned flags : allFlags)
                {
                    Heap heap;
                    const std::optional<Pair> pair = makePair(heap, place, happening);
                    if (!pair)
                    {
                        break;
                    }
                    const Expected expected = expect(heap, pair->prev, pair->next, flags);
                    const std::string name = place.text() + " " + nameOf(happening);
                    const Result result = check(heap, name, pair->prev, pair->next, flags, expected);
                    const bool in = find(result.delta, place) != nullptr;
                    if (result.status == RTX_DELTA_TO_SEND && in != isIn(place, happening, expected))
                    {
                        fail(name, std::string(in ? "is sent" : "is not sent") + " in\n" + flat(heap, result.delta));
                    }
                    if (flags == 0)
                    {
                        ++counts[codeOf(place.code(), optional) + " " + nameOf(happening)];
                        EXPECT_EQ(diff(heap, pair->prev, pair->prev, flags).status, RTX_DELTA_NOTHING) << name;
                    }
                    if (expected.outcome != RTX_E_DELTA && expected.recreated.empty() && expected.first.empty())
                    {
                        break; // the flags change nothing
                    }
                }
            }
        });
    print(counts);
    print(outcomes);
    (void)std::printf("%u places of %zu members\n", places, members.size());

    EXPECT_EQ(optionalMembers.size(), 472U); // as many as V15.6.0 has
    for (const char* const code : {"M", "R", "S", "N", "fixed", "group", "list", "one-shot"})
    {
        for (const Happening happening : allHappenings)
        {
            const bool entries = isNamed(code, "list") && happening == Happening::Changes; // a test of its own
            EXPECT_TRUE(entries || counts[std::string(code) + " " + nameOf(happening)] != 0)
                << code << " " << nameOf(happening);
        }
    }
    for (const char* const outcome : {"sent", "nothing", "recreated", "two messages"})
    {
        EXPECT_NE(outcomes[outcome], 0U) << outcome;
    }
    for (const int reason : {RTX_DELTA_KEPT, RTX_DELTA_AT_CREATION, RTX_DELTA_INCOMPLETE, RTX_DELTA_FIXED_KIND,
                             RTX_DELTA_REESTABLISH, RTX_DELTA_PUCCH, RTX_DELTA_PUCCH_CELL, RTX_DELTA_OTHER_IDENTITY})
    {
        EXPECT_NE(outcomes["refused " + std::to_string(reason)], 0U) << reason;
    }
}

} // namespace
