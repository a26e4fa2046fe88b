// Making a delta: a walker over the type descriptors, what a UE holds and what it shall hold at once
// (TS 38.331 6.1.2, A.3.9). Both are states, so that lists stand in order of their identities and nothing is released.
#include "rtxDelta.h"
#include "rtxHeap.h"

#include <cstddef>

namespace rtx
{
namespace
{

enum class Outcome : uint8_t
{
    Same,
    Changed,
    Blocked // what is around it has to be released
};

// An entry of a list, or the SpCell: what is created as a whole.
struct Entry
{
    const Entry* outer;
    const Type* type;
    const void* value; // as it shall be
    bool fresh;        // created by this delta, or reconfigurationWithSync is sent to it
    bool inList;
    bool recreated; // where it has to be
};

bool anyFresh(const Entry* entry)
{
    for (; entry != nullptr; entry = entry->outer)
    {
        if (entry->fresh)
        {
            return true;
        }
    }
    return false;
}

// An item that waits until it is settled that the delta has it; as many steps of its path follow as it has.
struct Event
{
    static constexpr size_t headSize = offsetof(RtxDeltaItem, path);

    Event* next;
    alignas(RtxDeltaItem) OSOCTET head[headSize];

    static size_t stepsSize(const RtxDeltaItem& item)
    {
        return std::min<size_t>(item.depth, RTX_MAX_DEPTH) * sizeof item.path[0];
    }
};

// Why the walk could not go on, until something around takes it over.
struct Obstacle
{
    RtxDeltaItem item;
    RtxError error;
    bool final; // nothing around helps
};

class Differ
{
public:
    Differ(OSCTXT& ctxt, unsigned flags, RtxDeltaSink sink, void* arg)
        : ctxt_(ctxt), flags_(flags), sink_(sink), arg_(arg)
    {
    }

    // Both states with their actions.
    int run(const Type& type, const void* prev, const void* next, void* delta)
    {
        const DeltaPlace root{nullptr, {type.name, 0, 0, nullptr, 0}};
        root_ = {&type, prev, next};
        std::memset(delta, 0, type.size);
        const Entry all{nullptr, &type, next, prev == nullptr, false, false};
        const Outcome outcome = content(type, prev, next, delta, root, all);
        if (status_ == RTX_OK && outcome == Outcome::Blocked)
        {
            status_ = RTX_E_DELTA;
            ctxt_.error = obstacle_.error;
            if (sink_ != nullptr)
            {
                sink_(arg_, &obstacle_.item);
            }
        }
        if (status_ != RTX_OK || outcome != Outcome::Changed)
        {
            std::memset(delta, 0, type.size);
            return status_ != RTX_OK ? status_ : RTX_DELTA_NOTHING;
        }
        for (const Event* event = first_; event != nullptr; event = event->next)
        {
            RtxDeltaItem item;
            std::memcpy(&item, event->head, Event::headSize);
            std::memcpy(item.path, event + 1, Event::stepsSize(item));
            sink_(arg_, &item);
        }
        return more_ ? RTX_DELTA_MORE : RTX_DELTA_TO_SEND;
    }

private:
    // What there is to tell. It is forgotten again where it turns out that nothing is sent. What makes items is not for
    // the frames of the walk: an item is as large as all of those around it.

    void forget(Event** mark)
    {
        end_ = mark;
        *end_ = nullptr;
    }

    [[gnu::noinline]] void tell(RtxDeltaKind kind, RtxDeltaReason reason, const Need& need, const DeltaPlace& place,
                                RtxDeltaReason cause = {})
    {
        if (sink_ == nullptr || quiet_ != 0)
        {
            return;
        }
        RtxDeltaItem item = deltaItem(kind, reason, need, place);
        item.cause = cause;
        auto* const event = static_cast<Event*>(allocateFor(ctxt_, sizeof(Event) + Event::stepsSize(item)));
        if (event == nullptr)
        {
            status_ = RTX_E_HEAP;
            return;
        }
        std::memcpy(event->head, &item, Event::headSize);
        std::memcpy(event + 1, item.path, Event::stepsSize(item));
        *end_ = event;
        end_ = &event->next;
    }

    [[gnu::noinline]] Outcome blocked(RtxDeltaReason reason, const Need& need, const DeltaPlace& place,
                                      bool final = false)
    {
        obstacle_.item = deltaItem(RTX_DELTA_REFUSED, reason, need, place);
        obstacle_.final = final;
        const RtxError before = ctxt_.error;
        rtxErrReset(&ctxt_);
        (void)setError(ctxt_, {RTX_E_DELTA, reason, 0, 0}, place);
        obstacle_.error = ctxt_.error;
        ctxt_.error = before;
        return Outcome::Blocked;
    }

    // The nearest place around an obstacle that could be released.
    void couldRelease(const DeltaPlace& place)
    {
        if (!obstacle_.final && obstacle_.item.ancestor == 0)
        {
            obstacle_.item.ancestor = depthOf(place);
        }
    }

    // What is held is null for nothing; of a sequence either may be null, which stands for the empty one.
    Outcome content(const Type& type, const void* prev, const void* next, void* delta, const DeltaPlace& place,
                    const Entry& entry)
    {
        if (status_ != RTX_OK)
        {
            return Outcome::Blocked;
        }
        if (type.plain && prev == nullptr)
        {
            std::memcpy(delta, next, type.size);
            return Outcome::Changed;
        }
        switch (type.kind)
        {
        case Kind::Sequence:
            return sequence(type, prev, next, delta, place, entry);
        case Kind::Choice:
            return choice(type, prev, next, delta, place, entry);
        default:
            std::memcpy(delta, next, type.size); // a list without identities is sent whole
            return prev != nullptr && equal(type, prev, next) ? Outcome::Same : Outcome::Changed;
        }
    }

    // A value, or a list without identities: what is inside it has no items of its own.
    static bool isSentWhole(const Type& type)
    {
        return type.kind != Kind::Sequence && type.kind != Kind::Choice;
    }

    // A member of the sequence that is walked.
    struct Slot
    {
        const Type& type;
        unsigned index;
        const Addition* addition;
        const void* prevParent;
        const void* nextParent;
        void* delta;

        const Need& need() const
        {
            return needOf(type, index);
        }
        const Type& inner() const
        {
            return *type.members[index].type;
        }
        const void* prev() const
        {
            return sent(type, index, addition, prevParent);
        }
        const void* next() const
        {
            return sent(type, index, addition, nextParent);
        }
        void* room() const
        {
            return at(delta, type.members[index]);
        }
        void* send() const
        {
            return setSent(type, index, addition, delta);
        }
    };

    Outcome sequence(const Type& type, const void* prev, const void* next, void* delta, const DeltaPlace& place,
                     const Entry& around)
    {
        // The SpCell is created as a whole, as an entry of a list is.
        Entry cell{&around, &type, next, prev == nullptr, false, false};
        const Entry& entry = type.needs != nullptr && memberWith(type, Change::Sync) != noMember ? cell : around;
        Event** const told = end_;
        const bool sulReleased = sulReleased_;
        Outcome sum = Outcome::Same;
        forMembers(type,
                   [&](unsigned i, const Addition* addition)
                   {
                       const Member& one = type.members[i];
                       if (sum != Outcome::Blocked && (mayBeIn(one, prev) || mayBeIn(one, next)))
                       {
                           const Slot slot{type, i, addition, prev, next, delta};
                           sum = std::max(sum, any(slot, memberAt(place, type.names[i]), entry, cell));
                       }
                   });
        if (sum != Outcome::Blocked)
        {
            sum = std::max(sum, unknownAdditions(type, prev, next, delta, memberAt(place, "extElem1")));
        }
        sulReleased_ = sulReleased;
        if (sum != Outcome::Changed)
        {
            forget(told);
        }
        return sum;
    }

    Outcome any(const Slot& slot, const DeltaPlace& place, const Entry& entry, Entry& cell)
    {
        if (slot.need().list == ListRole::AddMod) // a state has no release lists
        {
            return entries(slot, place, entry);
        }
        switch (slot.need().change)
        {
        case Change::Sync:
            return sync(slot, place, cell);
        case Change::Switch:
            return bwpSwitch(slot, place, entry);
        default:
            return member(slot, place, entry);
        }
    }

    Outcome member(const Slot& slot, const DeltaPlace& place, const Entry& entry)
    {
        const Need& need = slot.need();
        const void* const next = slot.next();
        if (need.absence == Absence::Action)
        {
            if (next != nullptr)
            {
                std::memcpy(slot.send(), next, slot.inner().size);
                tell(RTX_DELTA_SENT, RTX_DELTA_ACTION, need, place);
            }
            return next != nullptr ? Outcome::Changed : Outcome::Same;
        }
        const bool sul = sulReleased_ && std::strcmp(slot.type.names[slot.index], supplementaryUplink) == 0;
        const void* const prev = sul ? nullptr : slot.prev();
        if (prev == nullptr && next == nullptr)
        {
            return Outcome::Same;
        }
        if (isBound(slot, prev, next, place, entry))
        {
            return Outcome::Blocked;
        }
        return next == nullptr   ? gone(slot, place)
               : prev == nullptr ? added(slot, next, place, entry)
                                 : both(slot, prev, next, place, entry);
    }

    Outcome gone(const Slot& slot, const DeltaPlace& place)
    {
        const Need& need = slot.need();
        if (isCleared(need))
        {
            tell(RTX_DELTA_LEFT_OUT, RTX_DELTA_GONE, need, place);
            return Outcome::Changed;
        }
        if (!slot.inner().setupRelease)
        {
            return blocked(RTX_DELTA_KEPT, need, place);
        }
        release(slot);
        tell(RTX_DELTA_RELEASED, RTX_DELTA_GONE, need, place);
        return Outcome::Changed;
    }

    static bool isCleared(const Need& need)
    {
        return need.absence == Absence::Clear || need.absence == Absence::Default || need.absence == Absence::Fixed;
    }

    static void release(const Slot& slot)
    {
        void* const to = slot.send();
        std::memset(to, 0, slot.inner().size);
        const OSUINT32 tag = setupTag - 1;
        std::memcpy(to, &tag, sizeof tag);
    }

    Outcome added(const Slot& slot, const void* next, const DeltaPlace& place, const Entry& entry)
    {
        tell(RTX_DELTA_SENT, RTX_DELTA_ADDED, slot.need(), place);
        return whole(slot.inner(), next, slot.send(), place, entry);
    }

    // Sends all of a value, of which nothing is held.
    Outcome whole(const Type& type, const void* next, void* delta, const DeltaPlace& place, const Entry& entry)
    {
        ++quiet_;
        const Outcome outcome = content(type, nullptr, next, delta, place, entry);
        --quiet_;
        return outcome == Outcome::Blocked ? outcome : Outcome::Changed;
    }

    Outcome both(const Slot& slot, const void* prev, const void* next, const DeltaPlace& place, const Entry& entry)
    {
        const Need& need = slot.need();
        const Outcome outcome = content(slot.inner(), prev, next, slot.room(), place, entry);
        if (outcome == Outcome::Blocked)
        {
            return takenAway(slot, place, entry);
        }
        if (outcome == Outcome::Changed)
        {
            (void)slot.send();
            if (isSentWhole(slot.inner()))
            {
                tell(RTX_DELTA_SENT, RTX_DELTA_CHANGED, need, place);
            }
            if (mayBeActive(slot, prev, next) && !anyFresh(&entry) && !isSyncSent())
            {
                tell(RTX_DELTA_NOTICE, RTX_DELTA_ACTIVE, need, place);
            }
            return outcome;
        }
        if (need.absence != Absence::Keep)
        {
            (void)slot.send();
            const bool mandatory = need.absence == Absence::Mandatory;
            tell(RTX_DELTA_SENT, mandatory ? RTX_DELTA_MANDATORY : RTX_DELTA_STAYS, need, place);
            return Outcome::Same;
        }
        if (entry.fresh && (isSetup(need) || need.change == Change::CreationOptional))
        {
            (void)slot.send();
            tell(RTX_DELTA_SENT, RTX_DELTA_WITH_SYNC, need, place);
            return Outcome::Changed;
        }
        std::memset(slot.room(), 0, slot.inner().size);
        return Outcome::Same;
    }

    // A member whose change is blocked because something inside would be kept, or by an entry inside that may not be
    // released: where that is asked for, it goes with this delta and comes back with the next one.
    Outcome takenAway(const Slot& slot, const DeltaPlace& place, const Entry& entry)
    {
        const Need& need = slot.need();
        const bool leave = need.absence == Absence::Clear || need.absence == Absence::Default;
        const bool setup =
            slot.inner().setupRelease && need.change != Change::Pucch && (need.change != Change::McgRelease || isMcg());
        const bool helps =
            obstacle_.item.reason == RTX_DELTA_KEPT || (!obstacle_.final && obstacle_.item.ancestor != 0);
        if (status_ != RTX_OK || !helps || (!leave && !setup))
        {
            return Outcome::Blocked;
        }
        couldRelease(place);
        if ((flags_ & RTX_DELTA_TWO_STEPS) == 0 || isRecreated(&entry))
        {
            return Outcome::Blocked;
        }
        const auto cause = static_cast<RtxDeltaReason>(obstacle_.item.reason);
        std::memset(slot.room(), 0, slot.inner().size);
        if (whole(slot.inner(), slot.next(), slot.room(), place, entry) == Outcome::Blocked)
        {
            return Outcome::Blocked; // it would not come back
        }
        std::memset(slot.room(), 0, slot.inner().size);
        more_ = true;
        if (!leave)
        {
            release(slot);
        }
        tell(leave ? RTX_DELTA_LEFT_OUT : RTX_DELTA_RELEASED, RTX_DELTA_FIRST, need, place, cause);
        return Outcome::Changed;
    }

    // Whether something around is released and added again.
    static bool isRecreated(const Entry* entry)
    {
        for (; entry != nullptr; entry = entry->outer)
        {
            if (entry->recreated)
            {
                return true;
            }
        }
        return false;
    }

    bool isMcg() const
    {
        const unsigned i = memberWith(*root_.type, Change::Identity);
        return i == noMember || loadNumber(*root_.type->members[i].type, at(root_.next, root_.type->members[i])) == 0;
    }

    // Whether what the schema says of the member keeps it from changing so inside its entry.
    bool isBound(const Slot& slot, const void* prev, const void* next, const DeltaPlace& place, const Entry& entry)
    {
        const Need& need = slot.need();
        const bool comesOrGoes = prev == nullptr || next == nullptr;
        RtxDeltaReason reason{};
        bool final = false;
        switch (need.change)
        {
        case Change::Creation:
        case Change::CreationOptional:
            reason = !entry.fresh && next != nullptr && (prev == nullptr || !equal(slot.inner(), prev, next))
                         ? RTX_DELTA_AT_CREATION
                         : reason;
            break;
        case Change::Mode:
            reason =
                !entry.fresh && !comesOrGoes && load<OSUINT32>(prev) != load<OSUINT32>(next) ? RTX_DELTA_MODE : reason;
            break;
        case Change::Reestablish:
            reason = !entry.fresh && next != nullptr && (prev == nullptr || !equal(slot.inner(), prev, next)) &&
                             !isReestablished(entry)
                         ? RTX_DELTA_REESTABLISH
                         : reason;
            break;
        case Change::Kind:
        case Change::FixedKind:
            reason = !entry.fresh && comesOrGoes ? RTX_DELTA_FIXED_KIND : reason;
            final = need.change == Change::FixedKind;
            break;
        case Change::Usage:
            reason =
                !entry.fresh && !comesOrGoes && changesCodebook(slot.inner(), prev, next) ? RTX_DELTA_USAGE : reason;
            final = true;
            break;
        case Change::Pucch:
            reason = comesOrGoes && slot.prevParent != nullptr && !anyFresh(&entry) && !isSyncSent() ? RTX_DELTA_PUCCH
                                                                                                     : reason;
            break;
        case Change::McgRelease:
            reason = next == nullptr && !isMcg() ? RTX_DELTA_SCG : reason;
            final = true;
            break;
        default:
            break;
        }
        if (reason == RtxDeltaReason{})
        {
            return false;
        }
        (void)blocked(reason, need, place, final);
        return true;
    }

    // Whether the sequence number field of an RLC bearer may change.
    bool isReestablished(const Entry& entry) const
    {
        return rootMember(*entry.type, memberNamed(*entry.type, "reestablishRLC"), entry.value) != nullptr &&
               (!servesDrb(*entry.type, entry.value) || isSyncSent());
    }

    bool isSyncSent() const
    {
        const SyncMember prev = syncOf(*root_.type, root_.prev);
        const SyncMember next = syncOf(*root_.type, root_.next);
        return next.value != nullptr && isSyncSent(*next.type, prev.value, next.value);
    }

    // Actions are not held: they tell another reconfigurationWithSync only where both carry them.
    bool isSyncSent(const Type& type, const void* prev, const void* next) const
    {
        return (flags_ & RTX_DELTA_SYNC) != 0 || prev == nullptr || !equal(type, prev, next, true);
    }

    static bool changesCodebook(const Type& usage, const void* prev, const void* next)
    {
        const auto isCodebook = [&](const void* value)
        {
            const char* const name = usage.names[load<OSUINT32>(value)];
            return std::strcmp(name, "codebook") == 0 || std::strcmp(name, "nonCodebook") == 0;
        };
        return isCodebook(prev) && isCodebook(next) && !sameValue(usage, prev, next);
    }

    // Whether an assignment or a grant may be in use while its configuration changes.
    static bool mayBeActive(const Slot& slot, const void* prev, const void* next)
    {
        const auto isType2 = [&](const void* value)
        {
            const Member& setup = *alternativeOf(slot.inner(), value);
            return rootMember(*setup.type, memberNamed(*setup.type, "rrc-ConfiguredUplinkGrant"),
                              contentOf(setup, value)) == nullptr;
        };
        return slot.need().change == Change::Inactive ||
               (slot.need().change == Change::InactiveType2 && (isType2(prev) || isType2(next)));
    }

    Outcome sync(const Slot& slot, const DeltaPlace& place, Entry& cell)
    {
        const void* const prev = slot.prev();
        const void* const next = slot.next();
        if (next == nullptr || !isSyncSent(slot.inner(), prev, next))
        {
            return Outcome::Same;
        }
        cell.fresh = true;
        Outcome outcome = prev == nullptr ? added(slot, next, place, cell)
                                          : content(slot.inner(), prev, next, slot.send(), place, cell);
        if (outcome == Outcome::Same)
        {
            tell(RTX_DELTA_SENT, RTX_DELTA_FORCED, slot.need(), place);
            outcome = Outcome::Changed;
        }
        sulReleased_ = releasesSul(slot.inner(), slot.room());
        return outcome;
    }

    // The first active bandwidth part: of an SCell when it is created, of the SpCell whenever it shall be another one.
    Outcome bwpSwitch(const Slot& slot, const DeltaPlace& place, const Entry& entry)
    {
        const void* const prev = slot.prev();
        const void* const next = slot.next();
        const bool held = prev != nullptr && next != nullptr && sameValue(slot.inner(), prev, next);
        const bool forced = !entry.inList && (flags_ & RTX_DELTA_SWITCH) != 0;
        if (next == nullptr || (held && !entry.fresh && !forced))
        {
            return Outcome::Same;
        }
        if (entry.inList && !entry.fresh)
        {
            return blocked(RTX_DELTA_AT_CREATION, slot.need(), place);
        }
        std::memcpy(slot.send(), next, slot.inner().size);
        tell(RTX_DELTA_SENT,
             !held         ? prev != nullptr ? RTX_DELTA_CHANGED : RTX_DELTA_ADDED
             : entry.fresh ? RTX_DELTA_WITH_SYNC
                           : RTX_DELTA_FORCED,
             slot.need(), place);
        return Outcome::Changed;
    }

    Outcome choice(const Type& type, const void* prev, const void* next, void* delta, const DeltaPlace& place,
                   const Entry& entry)
    {
        const Member* const alternative = alternativeOf(type, next);
        const bool same = prev != nullptr && load<OSUINT32>(prev) == load<OSUINT32>(next);
        if (alternative == nullptr) // unknown
        {
            std::memcpy(delta, next, type.size);
            if (same && equal(type, prev, next))
            {
                return Outcome::Same;
            }
            tell(RTX_DELTA_SENT, RTX_DELTA_CHANGED, {}, place);
            return Outcome::Changed;
        }
        std::memcpy(delta, next, sizeof(OSUINT32));
        const Type& inner = *alternative->type;
        const DeltaPlace inside = memberAt(place, type.names[alternative - type.members]);
        void* to = at(delta, *alternative);
        if (alternative->step == Step::Pointer)
        {
            void* const p = allocateFor(ctxt_, inner.size);
            if (p == nullptr)
            {
                status_ = RTX_E_HEAP;
                return Outcome::Blocked;
            }
            std::memcpy(to, &p, sizeof p);
            to = p;
        }
        if (same)
        {
            const Outcome outcome =
                content(inner, contentOf(*alternative, prev), contentOf(*alternative, next), to, inside, entry);
            if (outcome == Outcome::Changed && isSentWhole(inner))
            {
                tell(RTX_DELTA_SENT, RTX_DELTA_CHANGED, {}, inside);
            }
            return outcome;
        }
        if (prev != nullptr)
        {
            tell(RTX_DELTA_SENT, RTX_DELTA_CHANGED, {}, place);
        }
        return whole(inner, contentOf(*alternative, next), to, inside, entry);
    }

    // What a list's changes come to: what is released, and what is added or modified.
    struct Changes
    {
        ListElement* released;
        ListElement* sent;
        uint32_t releasedCount = 0;
        uint32_t sentCount = 0;
    };

    Outcome entries(const Slot& slot, const DeltaPlace& place, const Entry& around)
    {
        const Type& list = slot.inner();
        const ListElements old = sortedElements(ctxt_, list, slot.prev());
        const ListElements wanted = sortedElements(ctxt_, list, slot.next());
        const size_t most = size_t{old.count} + wanted.count;
        auto* const room = static_cast<ListElement*>(allocateFor(ctxt_, 2 * most * sizeof(ListElement)));
        if (ctxt_.error.status != RTX_OK)
        {
            status_ = ctxt_.error.status;
            return Outcome::Blocked;
        }
        Changes changes{room, room + most};
        uint32_t i = 0;
        uint32_t j = 0;
        for (;;)
        {
            const ListElement* const held = i < old.count ? old.first + i : nullptr;
            const ListElement* const next = j < wanted.count ? wanted.first + j : nullptr;
            if (held == nullptr && next == nullptr)
            {
                return write(slot, changes);
            }
            const bool takeHeld = next == nullptr || (held != nullptr && held->id <= next->id);
            const bool takeNext = held == nullptr || (next != nullptr && next->id <= held->id);
            const ListElement& one = takeHeld ? *held : *next;
            const DeltaPlace inner{&place,
                                   {nullptr, takeHeld ? held->index : RTX_NO_INDEX,
                                    takeNext ? next->index : RTX_NO_INDEX, identityName(list), one.id}};
            if (!element(slot, takeHeld ? held : nullptr, takeNext ? next : nullptr, inner, around, changes))
            {
                return Outcome::Blocked;
            }
            i += takeHeld ? 1 : 0;
            j += takeNext ? 1 : 0;
        }
    }

    Outcome write(const Slot& slot, const Changes& changes)
    {
        const auto partner = static_cast<unsigned>(slot.need().partner);
        const bool isReleased =
            changes.releasedCount == 0 ||
            writeList(ctxt_, *slot.type.members[partner].type, changes.released, changes.releasedCount,
                      setSent(slot.type, partner, additionOf(slot.type, partner), slot.delta));
        const bool isWritten = isReleased && (changes.sentCount == 0 || writeList(ctxt_, slot.inner(), changes.sent,
                                                                                  changes.sentCount, slot.send()));
        if (!isWritten)
        {
            status_ = RTX_E_HEAP;
        }
        return status_ != RTX_OK                                ? Outcome::Blocked
               : changes.releasedCount + changes.sentCount == 0 ? Outcome::Same
                                                                : Outcome::Changed;
    }

    // Returns false where the list's change is blocked.
    bool element(const Slot& slot, const ListElement* held, const ListElement* next, const DeltaPlace& place,
                 const Entry& around, Changes& changes)
    {
        const Type& list = slot.inner();
        const Type& type = list.element();
        if (next == nullptr)
        {
            take(list, *held, changes);
            tell(RTX_DELTA_RELEASED, RTX_DELTA_GONE, slot.need(), place);
            return true;
        }
        if (held == nullptr)
        {
            tell(RTX_DELTA_SENT, RTX_DELTA_ADDED, slot.need(), place);
            return create(type, *next, place, around, changes);
        }
        if (type.kind != Kind::Sequence) // the identity is all of it
        {
            return true;
        }
        const Entry entry{&around, &type, next->data, false, true, mayRecreate(type)};
        switch (modify(type, held->data, *next, place, entry, changes))
        {
        case Outcome::Same:
        case Outcome::Changed:
            return true;
        case Outcome::Blocked:
            break;
        }
        if (status_ != RTX_OK || obstacle_.final)
        {
            return false;
        }
        if (!mayRecreate(type))
        {
            couldRelease(place);
            return false;
        }
        take(list, *held, changes);
        tell(RTX_DELTA_SENT, RTX_DELTA_RECREATED, slot.need(), place,
             static_cast<RtxDeltaReason>(obstacle_.item.reason));
        return create(type, *next, place, around, changes);
    }

    Outcome modify(const Type& type, const void* held, const ListElement& next, const DeltaPlace& place,
                   const Entry& entry, Changes& changes)
    {
        HeapMark mark(ctxt_);
        Event** const told = end_;
        const bool more = more_;
        void* const delta = allocateFor(ctxt_, type.size);
        if (delta == nullptr)
        {
            status_ = RTX_E_HEAP;
            return Outcome::Blocked;
        }
        Outcome outcome = content(type, held, next.data, delta, place, entry);
        if (outcome == Outcome::Changed && memberWith(type, Change::SCell) != noMember &&
            carriesPucch(type, held) != carriesPucch(type, next.data))
        {
            outcome = blocked(RTX_DELTA_PUCCH_CELL, {}, place);
            forget(told);
        }
        if (outcome == Outcome::Blocked)
        {
            more_ = more;
        }
        if (outcome == Outcome::Changed)
        {
            mark.keep();
            changes.sent[changes.sentCount++] = {next.id, delta, next.index};
        }
        return outcome;
    }

    // Releases an entry: its identity goes into the list.
    static void take(const Type& list, const ListElement& held, Changes& changes)
    {
        const void* const id =
            list.identity == ownIdentity ? held.data : at(held.data, list.element().members[list.identity]);
        changes.released[changes.releasedCount++] = {held.id, id, held.index};
    }

    bool create(const Type& type, const ListElement& next, const DeltaPlace& place, const Entry& around,
                Changes& changes)
    {
        if (status_ != RTX_OK) // what was to be told of it had no room
        {
            return false;
        }
        if (type.kind != Kind::Sequence)
        {
            changes.sent[changes.sentCount++] = next;
            return true;
        }
        if (!isComplete(ctxt_, type, next.data, place, sink_, arg_))
        {
            status_ = RTX_E_DELTA;
            return false;
        }
        void* const delta = allocateFor(ctxt_, type.size);
        if (delta == nullptr)
        {
            status_ = RTX_E_HEAP;
            return false;
        }
        const Entry entry{&around, &type, next.data, true, true, false};
        changes.sent[changes.sentCount++] = {next.id, delta, next.index};
        return whole(type, next.data, delta, place, entry) != Outcome::Blocked;
    }

    // The option that lets an entry be released and added again; 0 for one that needs none.
    static unsigned recreationFlag(const Type& type)
    {
        const auto is = [&](const char* name)
        {
            return std::strcmp(type.name, name) == 0;
        };
        return is("RLC-BearerConfig")                   ? RTX_DELTA_RECREATE_BEARERS
               : is("SCellConfig")                      ? RTX_DELTA_RECREATE_SCELLS
               : is("BWP-Downlink") || is("BWP-Uplink") ? RTX_DELTA_RECREATE_BWPS
                                                        : 0U;
    }

    bool mayRecreate(const Type& type) const
    {
        const unsigned flag = recreationFlag(type);
        return (flags_ & RTX_DELTA_RECREATE_NONE) == 0 && (flag == 0 || (flags_ & flag) != 0);
    }

    static bool carriesPucch(const Type& type, const void* value)
    {
        bool found = false;
        switch (type.kind)
        {
        case Kind::Sequence:
            forMembers(type,
                       [&](unsigned i, const Addition* addition)
                       {
                           const void* const inner = sent(type, i, addition, value);
                           found = found || (inner != nullptr && (needOf(type, i).change == Change::Pucch ||
                                                                  carriesPucch(*type.members[i].type, inner)));
                       });
            break;
        case Kind::Choice:
            if (const Member* const alternative = alternativeOf(type, value))
            {
                found = carriesPucch(*alternative->type, contentOf(*alternative, value));
            }
            break;
        case Kind::List:
            for (ElementCursor element(type, value); !found && !element.atEnd(); element.next())
            {
                found = carriesPucch(type.element(), element.data());
            }
            break;
        default:
            break;
        }
        return found;
    }

    // They are sent whenever the sequence is; what one that is not sent does is not known, so none can go.
    Outcome unknownAdditions(const Type& type, const void* prev, const void* next, void* delta, const DeltaPlace& place)
    {
        const OSRTDList before = unknownOf(type, prev);
        const OSRTDList after = unknownOf(type, next);
        if (before.count == 0 && after.count == 0)
        {
            return Outcome::Same;
        }
        bool same = before.count == after.count;
        UnknownCursor wanted(after);
        for (UnknownCursor held(before); !held.atEnd(); (void)held.take())
        {
            while (!wanted.atEnd() && wanted.index() < held.index())
            {
                (void)wanted.take();
            }
            if (wanted.atEnd() || wanted.index() != held.index())
            {
                return blocked(RTX_DELTA_KEPT, {}, {&place, {nullptr, held.index(), RTX_NO_INDEX, nullptr, 0}});
            }
            same = same && sameOctets(wanted.open(), held.open());
        }
        std::memcpy(static_cast<OSOCTET*>(delta) + type.extElem, &after, sizeof after);
        tell(RTX_DELTA_SENT, same ? RTX_DELTA_STAYS : RTX_DELTA_CHANGED, {}, place);
        return same ? Outcome::Same : Outcome::Changed;
    }

    struct Root
    {
        const Type* type;
        const void* prev;
        const void* next;
    };

    OSCTXT& ctxt_;
    unsigned flags_;
    RtxDeltaSink sink_;
    void* arg_;
    Root root_{};
    Event* first_ = nullptr;
    Event** end_ = &first_;
    unsigned quiet_ = 0;
    Obstacle obstacle_{};
    bool sulReleased_ = false;
    bool more_ = false;
    int status_ = RTX_OK;
};

// A state with its actions, in the context's heap; null of nothing, and when the context has an error.
int normalise(OSCTXT& ctxt, const Type& type, const void* value, const void*& state)
{
    state = nullptr;
    if (value == nullptr)
    {
        return RTX_OK;
    }
    if (const int status = checkTree(ctxt, type, value))
    {
        return status;
    }
    void* const made = allocateFor(ctxt, type.size);
    if (made == nullptr)
    {
        return RTX_E_HEAP;
    }
    state = made;
    return makeState(ctxt, type, value, made, {nullptr, true, false});
}

} // namespace
} // namespace rtx

int rtxDiff(OSCTXT* pctxt, const RtxType* type, const void* prev, const void* next, const RtxDeltaOptions* options,
            void* delta, RtxDeltaSink sink)
{
    if (pctxt == nullptr || type == nullptr || next == nullptr || delta == nullptr)
    {
        return RTX_E_NULL;
    }
    rtxErrReset(pctxt);
    const RtxDeltaOptions none{0, nullptr};
    const RtxDeltaOptions& chosen = options != nullptr ? *options : none;
    const void* held = nullptr;
    const void* wanted = nullptr;
    int status = rtx::normalise(*pctxt, *type, prev, held);
    if (status == RTX_OK)
    {
        status = rtx::normalise(*pctxt, *type, next, wanted);
    }
    if (status == RTX_OK)
    {
        status = rtx::checkIdentity(*pctxt, *type, held, wanted, sink, chosen.arg);
    }
    const bool forced = (chosen.flags & (RTX_DELTA_SYNC | RTX_DELTA_SWITCH)) != 0;
    if (status != RTX_OK || (held != nullptr && !forced && rtx::equal(*type, held, wanted)))
    {
        std::memset(delta, 0, type->size);
        return status != RTX_OK ? status : RTX_DELTA_NOTHING;
    }
    return rtx::Differ(*pctxt, chosen.flags, sink, chosen.arg).run(*type, held, wanted, delta);
}

int rtxDeltaHolds(OSCTXT* pctxt, const RtxType* type, const void* prev, const void* delta, const void* next)
{
    if (pctxt == nullptr || type == nullptr || next == nullptr)
    {
        return RTX_E_NULL;
    }
    rtxErrReset(pctxt);
    void* const trees = rtx::allocateFor(*pctxt, 3 * size_t{rtx::rounded(type->size)});
    if (trees == nullptr)
    {
        return RTX_E_HEAP;
    }
    void* const held = trees;
    void* const after = static_cast<OSOCTET*>(trees) + rtx::rounded(type->size);
    void* const expected = static_cast<OSOCTET*>(after) + rtx::rounded(type->size);
    int status = prev != nullptr ? rtxState(pctxt, type, prev, held) : int{RTX_OK};
    if (status == RTX_OK && delta != nullptr)
    {
        status = rtxApply(pctxt, type, prev, delta, after, nullptr, nullptr);
    }
    if (status == RTX_OK)
    {
        status = rtx::checkTree(*pctxt, *type, next);
    }
    const rtx::StateOptions options{prev != nullptr ? held : nullptr, false,
                                    delta != nullptr && rtx::syncOf(*type, delta).value != nullptr};
    if (status == RTX_OK)
    {
        status = rtx::makeState(*pctxt, *type, next, expected, options);
    }
    return status != RTX_OK ? status : rtx::equal(*type, delta != nullptr ? after : held, expected) ? 1 : 0;
}
