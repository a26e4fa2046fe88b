// delta: the smallest message that takes a UE from what it has to what it shall have.
#include "commands.h"
#include "states.h"

#include <array>

namespace tool
{
namespace
{

struct Made
{
    int status; // of rtxDiff
    Encoding octets;
    std::vector<std::string> sent; // a line for each item
    std::vector<std::string> notices;
    std::string refusal;
};

Made makeDelta(Trees& trees, const void* prev, const void* next, unsigned flags)
{
    Made made{};
    const auto sink = [](void* to, const RtxDeltaItem* item)
    {
        Made& result = *static_cast<Made*>(to);
        if (item->kind == RTX_DELTA_REFUSED)
        {
            result.refusal = itemText(*item);
        }
        else
        {
            (item->kind == RTX_DELTA_NOTICE ? result.notices : result.sent).push_back(itemText(*item));
        }
    };
    const RtxDeltaOptions options{flags, &made};
    void* const delta = trees.room();
    made.status = rtxDiff(trees.context(), trees.type(), prev, next, &options, delta, sink);
    if (made.status == RTX_DELTA_TO_SEND || made.status == RTX_DELTA_MORE)
    {
        made.octets = trees.encoded(delta);
    }
    else if (made.status != RTX_DELTA_NOTHING && made.status != RTX_E_DELTA)
    {
        trees.fail();
    }
    return made;
}

// The option that would bring a change that is refused without it; empty when none does.
std::string remedy(Trees& trees, const void* prev, const void* next, unsigned flags)
{
    struct Option
    {
        unsigned flags;
        const char* text;
    };
    static constexpr std::array<Option, 5> options = {{
        {RTX_DELTA_RECREATE_BEARERS, "--recreate bearers"},
        {RTX_DELTA_RECREATE_SCELLS, "--recreate scells"},
        {RTX_DELTA_RECREATE_BWPS, "--recreate bwps"},
        {RTX_DELTA_TWO_STEPS, "--two-steps"},
        {RTX_DELTA_RECREATE_BEARERS | RTX_DELTA_RECREATE_SCELLS | RTX_DELTA_RECREATE_BWPS | RTX_DELTA_TWO_STEPS,
         "--recreate bearers,scells,bwps --two-steps"},
    }};
    for (const Option& option : options)
    {
        if (makeDelta(trees, prev, next, flags | option.flags).status >= 0)
        {
            return std::string("; ") + option.text + " brings it";
        }
    }
    return "";
}

const void* after(Trees& trees, const void* prev, const void* delta)
{
    void* const state = trees.room();
    if (rtxApply(trees.context(), trees.type(), prev, delta, state, nullptr, nullptr) != RTX_OK)
    {
        trees.fail("the delta made");
    }
    return state;
}

// Applying what is sent, as its octets say it, gives what is wanted.
void expectLaw(Trees& trees, const void* prev, const void* delta, const void* next)
{
    const int holds = rtxDeltaHolds(trees.context(), trees.type(), prev, delta, next);
    if (holds < 0)
    {
        trees.fail("the delta made");
    }
    if (holds == 0)
    {
        throw Failure(Exit::Findings, "the delta made does not give NEXT and is not shown: a fault of cellgroupcfg");
    }
}

// One message or two, none when there is nothing to send. The last one has been shown to give `next`. What is done once
// is done by the first.
std::vector<Made> makeAll(Trees& trees, const void* prev, const void* next, unsigned flags)
{
    std::vector<Made> all;
    for (const void* held = prev;;)
    {
        Made made = makeDelta(trees, held, next, flags);
        if (made.status == RTX_E_DELTA)
        {
            throw Failure(Exit::Findings, made.refusal + remedy(trees, held, next, flags));
        }
        const void* const delta = made.status == RTX_DELTA_NOTHING ? nullptr : trees.decoded(made.octets);
        const bool isLast = made.status != RTX_DELTA_MORE || !all.empty();
        if (isLast)
        {
            expectLaw(trees, held, delta, next);
        }
        if (delta != nullptr)
        {
            all.push_back(std::move(made));
        }
        if (isLast)
        {
            return all;
        }
        held = after(trees, held, delta);
        next = trees.state(next);
        flags &= ~(RTX_DELTA_SYNC | RTX_DELTA_SWITCH);
    }
}

} // namespace

void delta(Session& session, const std::string& prev, const std::string& next, const DeltaOptions& options)
{
    if (options.form == OctetsForm::Binary)
    {
        session.expectBinary();
    }
    const RtxPdu& pdu = *session.common().type;
    const std::optional<Encoding> held = heldBy(session, prev);
    const Given wanted = session.only(next);
    Message message(pdu, wanted);
    Trees trees(pdu);
    const std::vector<Made> all = makeAll(trees, trees.decoded(held), trees.decoded(message.encode()), options.flags);
    if (all.empty())
    {
        session.say("nothing to send");
        session.raise(Exit::Nothing);
        return;
    }
    if (options.form == OctetsForm::Binary && all.size() > 1)
    {
        throw Failure(Exit::Usage, "two messages have no end in binary; say --hex or --base64");
    }
    unsigned number = 0;
    for (const Made& made : all)
    {
        ++number;
        for (const std::string& line : made.notices)
        {
            session.say(line);
        }
        if (options.explain)
        {
            for (const std::string& line : made.sent)
            {
                session.put("# " + line + "\n");
            }
        }
        session.put(
            octetsIn(options.form, made.octets, all.size() == 1 ? "message" : "message" + std::to_string(number)));
    }
}

} // namespace tool
