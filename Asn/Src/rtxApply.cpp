// Applying a delta: a walker over the type descriptors, what is held and what is sent at once (TS 38.331 5.3.5.5,
// A.3.9).
#include "rtxDelta.h"

namespace rtx
{
namespace
{

class Applier
{
public:
    // A complete message leaves nothing behind of what it does not carry, save the one-shots of what was held.
    Applier(OSCTXT& ctxt, bool complete, bool actions, RtxDeltaSink sink, void* arg)
        : ctxt_(ctxt), complete_(complete), actions_(actions), sink_(sink), arg_(arg)
    {
    }

    // Whether reconfigurationWithSync is sent, where the message does not tell.
    void setSync(bool sent)
    {
        sync_ = sent;
    }

    // New entries may lack what their creation asks for.
    void takeIncomplete()
    {
        incomplete_ = true;
    }

    int run(const Type& type, const void* held, const void* message, void* result)
    {
        const DeltaPlace root{nullptr, {type.name, 0, 0, nullptr, 0}};
        std::memset(result, 0, type.size);
        content(type, held, message, result, root);
        return status_;
    }

private:
    // `held` is null for nothing; of a sequence either may be null, which stands for the empty one.
    void content(const Type& type, const void* held, const void* message, void* result, const DeltaPlace& place)
    {
        if (status_ != RTX_OK || (message == nullptr && type.kind != Kind::Sequence))
        {
            return;
        }
        if (type.plain && message != nullptr && (complete_ || held == nullptr))
        {
            std::memcpy(result, message, type.size);
            return;
        }
        switch (type.kind)
        {
        case Kind::Sequence:
            sequence(type, held, message, result, place);
            break;
        case Kind::Choice:
            choice(type, held, message, result, place);
            break;
        default:
            std::memcpy(result, message, type.size); // a list without identities is replaced whole
            break;
        }
    }

    void sequence(const Type& type, const void* held, const void* message, void* result, const DeltaPlace& place)
    {
        const bool sulReleased = sulReleased_;
        forMembers(type,
                   [&](unsigned i, const Addition* addition)
                   {
                       const ListRole role = needOf(type, i).list;
                       if (role != ListRole::AddMod && !mayBeIn(type.members[i], held) &&
                           !mayBeIn(type.members[i], message))
                       {
                           return;
                       }
                       switch (role)
                       {
                       case ListRole::Release:
                           break;
                       case ListRole::AddMod:
                           entries(type, i, addition, held, message, result, memberAt(place, type.names[i]));
                           break;
                       case ListRole::None:
                           member(type, i, addition, held, message, result, memberAt(place, type.names[i]));
                           break;
                       }
                   });
        sulReleased_ = sulReleased;
        unknownAdditions(type, held, message, result);
    }

    void member(const Type& type, unsigned i, const Addition* addition, const void* held, const void* message,
                void* result, const DeltaPlace& place)
    {
        const Need& need = needOf(type, i);
        const Type& inner = *type.members[i].type;
        const void* before = sent(type, i, addition, held);
        const void* const now = sent(type, i, addition, message);
        if (sulReleased_ && std::strcmp(type.names[i], supplementaryUplink) == 0)
        {
            before = nullptr;
        }
        if (now != nullptr && isCommon(need, inner))
        {
            sulReleased_ = releasesSul(inner, now);
        }
        if (now == nullptr)
        {
            if (before != nullptr && stays(need, addition))
            {
                void* const kept = std::memcpy(setSent(type, i, addition, result), before, inner.size);
                if (sulReleased_ && inner.kind == Kind::Sequence)
                {
                    leaveOut(inner, memberNamed(inner, supplementaryUplink), kept);
                }
            }
        }
        else if (isRelease(inner, now))
        {
            if (before == nullptr)
            {
                notHeld(need, place);
            }
        }
        else if (need.absence != Absence::Action || actions_ || isOneShot(need))
        {
            content(inner, before, now, setSent(type, i, addition, result), place);
        }
    }

    // Whether a member brings the common configuration of the cell whose dedicated one follows.
    bool isCommon(const Need& need, const Type& type) const
    {
        const bool sync = need.change == Change::Sync;
        return complete_ ? sync && sync_
                         : sync || (need.change == Change::Creation && memberWith(type, Change::Sul) != noMember);
    }

    // Whether what is absent stays as it is held. A member that is mandatory in an extension group has no code.
    bool stays(const Need& need, const Addition* addition) const
    {
        const bool kept = need.absence == Absence::Keep || (need.absence == Absence::Mandatory && addition != nullptr);
        return isOneShot(need) || (kept && !complete_);
    }

    void choice(const Type& type, const void* held, const void* message, void* result, const DeltaPlace& place)
    {
        const Member* const alternative = alternativeOf(type, message);
        if (alternative == nullptr) // unknown
        {
            std::memcpy(result, message, type.size);
            return;
        }
        std::memcpy(result, message, sizeof(OSUINT32));
        const bool same = held != nullptr && load<OSUINT32>(held) == load<OSUINT32>(message);
        const Type& inner = *alternative->type;
        void* to = at(result, *alternative);
        if (alternative->step == Step::Pointer)
        {
            void* const p = allocateFor(ctxt_, inner.size);
            if (p == nullptr)
            {
                status_ = RTX_E_HEAP;
                return;
            }
            std::memcpy(to, &p, sizeof p);
            to = p;
        }
        content(inner, same ? contentOf(*alternative, held) : nullptr, contentOf(*alternative, message), to,
                memberAt(place, type.names[alternative - type.members]));
    }

    // A list that is released, added to and modified by identities.
    void entries(const Type& type, unsigned i, const Addition* addition, const void* held, const void* message,
                 void* result, const DeltaPlace& place)
    {
        const Type& list = *type.members[i].type;
        const auto partner = static_cast<unsigned>(needOf(type, i).partner);
        const void* const before = sent(type, i, addition, held);
        const void* const now = sent(type, i, addition, message);
        const void* const gone = complete_ ? nullptr : sent(type, partner, additionOf(type, partner), message);
        if (now == nullptr && gone == nullptr)
        {
            if (before != nullptr && !complete_)
            {
                std::memcpy(setSent(type, i, addition, result), before, list.size);
            }
            return;
        }
        const ListElements old = sortedElements(ctxt_, list, before);
        const ListElements added = sortedElements(ctxt_, list, now);
        const ListElements released = sortedElements(ctxt_, *type.members[partner].type, gone);
        auto* const all =
            static_cast<ListElement*>(allocateFor(ctxt_, (size_t{old.count} + added.count + 1) * sizeof(ListElement)));
        if (ctxt_.error.status != RTX_OK)
        {
            status_ = ctxt_.error.status;
            return;
        }
        const uint32_t count =
            merge(list, {old, added, released}, all, place, memberAt(*place.outer, type.names[partner]));
        if (status_ == RTX_OK && count > static_cast<uint32_t>(list.upper))
        {
            status_ = setError(ctxt_, wrongSize(list, count), place);
        }
        if (status_ == RTX_OK && count != 0 && !writeList(ctxt_, list, all, count, setSent(type, i, addition, result)))
        {
            status_ = RTX_E_HEAP;
        }
    }

    struct Change3
    {
        ListElements old;
        ListElements added;
        ListElements released;
    };

    uint32_t merge(const Type& list, const Change3& change, ListElement* all, const DeltaPlace& place,
                   const DeltaPlace& releasePlace)
    {
        uint32_t count = 0;
        uint32_t held = 0;
        uint32_t added = 0;
        uint32_t released = 0;
        while ((held < change.old.count || added < change.added.count) && status_ == RTX_OK)
        {
            const bool fromOld = added == change.added.count ||
                                 (held < change.old.count && change.old.first[held].id <= change.added.first[added].id);
            const int64_t id = fromOld ? change.old.first[held].id : change.added.first[added].id;
            const void* data = fromOld ? change.old.first[held++].data : nullptr;
            bool taken = data != nullptr && !complete_;
            const bool gone = releasedUpTo(change.released, released, id, data != nullptr, releasePlace, list);
            if (gone)
            {
                data = nullptr;
                taken = false;
            }
            for (; added < change.added.count && change.added.first[added].id == id && status_ == RTX_OK; ++added)
            {
                const ListElement& entry = change.added.first[added];
                data = modified(list, data, entry, !taken,
                                {&place, {nullptr, RTX_NO_INDEX, entry.index, identityName(list), id}});
                taken = true;
            }
            if (taken)
            {
                all[count] = {id, data, count};
                ++count;
            }
        }
        (void)releasedUpTo(change.released, released, INT64_MAX, false, releasePlace, list);
        return count;
    }

    // Takes the released identities up to this one, with a notice for each that is not held. Returns whether this one
    // is among them.
    bool releasedUpTo(const ListElements& released, uint32_t& next, int64_t id, bool isHeld, const DeltaPlace& place,
                      const Type& list)
    {
        bool found = false;
        for (; next < released.count && released.first[next].id <= id; ++next)
        {
            const ListElement& one = released.first[next];
            const bool known = one.id == id && isHeld;
            if (!known)
            {
                notHeld({}, {&place, {nullptr, RTX_NO_INDEX, one.index, identityName(list), one.id}});
            }
            found = found || one.id == id;
        }
        return found;
    }

    // Tells that something is released in vain; out of the walk's frames, which would be as large as an item each.
    [[gnu::noinline]] void notHeld(const Need& need, const DeltaPlace& place)
    {
        if (sink_ != nullptr)
        {
            const RtxDeltaItem item = deltaItem(RTX_DELTA_NOTICE, RTX_DELTA_NOT_HELD, need, place);
            sink_(arg_, &item);
        }
    }

    // What an entry of the message makes of the held one; null where that stops.
    const void* modified(const Type& list, const void* held, const ListElement& entry, bool isNew,
                         const DeltaPlace& place)
    {
        const Type& type = list.element();
        if (type.kind != Kind::Sequence)
        {
            return entry.data;
        }
        if (isNew && !complete_ && !incomplete_ && !isComplete(ctxt_, type, entry.data, place, sink_, arg_))
        {
            status_ = RTX_E_DELTA;
            return nullptr;
        }
        void* const result = allocateFor(ctxt_, type.size);
        if (result == nullptr)
        {
            status_ = RTX_E_HEAP;
            return nullptr;
        }
        content(type, held, entry.data, result, place);
        return result;
    }

    void unknownAdditions(const Type& type, const void* held, const void* message, void* result)
    {
        const OSRTDList before = complete_ ? OSRTDList{} : unknownOf(type, held);
        const OSRTDList now = unknownOf(type, message);
        if (before.count == 0 || now.count == 0)
        {
            if (before.count + now.count != 0)
            {
                const OSRTDList& only = now.count != 0 ? now : before;
                std::memcpy(static_cast<OSOCTET*>(result) + type.extElem, &only, sizeof only);
            }
            return;
        }
        auto* node =
            static_cast<OSRTDListNode*>(allocateFor(ctxt_, (size_t{before.count} + now.count) * sizeof(OSRTDListNode)));
        if (node == nullptr)
        {
            status_ = RTX_E_HEAP;
            return;
        }
        OSRTDList both{};
        UnknownCursor old(before);
        UnknownCursor fresh(now);
        while (!old.atEnd() || !fresh.atEnd())
        {
            const bool takeFresh = old.atEnd() || (!fresh.atEnd() && fresh.index() <= old.index());
            const bool replaces = takeFresh && !old.atEnd() && fresh.index() == old.index();
            node->data = takeFresh ? fresh.take() : old.take();
            if (replaces)
            {
                (void)old.take();
            }
            rtxDListAppendNode(&both, node++);
        }
        std::memcpy(static_cast<OSOCTET*>(result) + type.extElem, &both, sizeof both);
    }

    OSCTXT& ctxt_;
    bool complete_;
    bool actions_;
    bool sync_ = false;
    bool incomplete_ = false;
    RtxDeltaSink sink_;
    void* arg_;
    bool sulReleased_ = false;
    int status_ = RTX_OK;
};

} // namespace

int makeState(OSCTXT& ctxt, const Type& type, const void* value, void* state, const StateOptions& options)
{
    Applier applier(ctxt, true, options.actions, nullptr, nullptr);
    applier.setSync(options.sync);
    return applier.run(type, options.prev, value, state);
}

int apply(OSCTXT& ctxt, const Type& type, const void* prev, const void* delta, void* next, const ApplyOptions& options)
{
    rtxErrReset(&ctxt);
    const void* held = nullptr;
    if (prev != nullptr)
    {
        void* const state = allocateFor(ctxt, type.size);
        const int status = state == nullptr ? int{RTX_E_HEAP} : rtxState(&ctxt, &type, prev, state);
        if (status != RTX_OK)
        {
            return status;
        }
        held = state;
    }
    int status = checkTree(ctxt, type, delta);
    if (status == RTX_OK)
    {
        status = checkIdentity(ctxt, type, held, delta, options.sink, options.arg);
    }
    if (status == RTX_OK)
    {
        Applier applier(ctxt, false, false, options.sink, options.arg);
        if (options.incomplete)
        {
            applier.takeIncomplete();
        }
        status = applier.run(type, held, delta, next);
    }
    return status;
}

} // namespace rtx

int rtxState(OSCTXT* pctxt, const RtxType* type, const void* value, void* state)
{
    if (pctxt == nullptr || type == nullptr || value == nullptr || state == nullptr)
    {
        return RTX_E_NULL;
    }
    rtxErrReset(pctxt);
    if (const int status = rtx::checkTree(*pctxt, *type, value))
    {
        return status;
    }
    return rtx::makeState(*pctxt, *type, value, state, {});
}

int rtxApply(OSCTXT* pctxt, const RtxType* type, const void* prev, const void* delta, void* next, RtxDeltaSink sink,
             void* arg)
{
    if (pctxt == nullptr || type == nullptr || delta == nullptr || next == nullptr)
    {
        return RTX_E_NULL;
    }
    return rtx::apply(*pctxt, *type, prev, delta, next, {false, sink, arg});
}
