#include "expected.h"

#include <algorithm>

namespace delta
{

namespace
{

// What the walk knows of where it is.
struct Around
{
    Where where = {};
    bool added = false;        // the entry around it is new, or all is
    bool inList = false;       // in a list that is replaced as a whole
    bool inSync = false;       // in what is sent with reconfigurationWithSync outside entries: of the SpCell
    bool recreatable = false;  // an entry around it can be released and added again
    bool reestablished = true; // of a bearer: its RLC entity is re-established by next
};

// Problems of one kind of place, and how they can be cured.
struct Trouble
{
    Problem problem;
    bool curable; // where what is around it is released
};
using Troubles = std::vector<Trouble>;

bool isKind(const Need& code)
{
    return code.change == Change::Kind || code.change == Change::FixedKind;
}

bool isEntries(const Need& code)
{
    return code.list == ListRole::AddMod;
}

class Walk
{
public:
    Walk(Heap& heap, unsigned flags, Expected& expected) : heap_(heap), flags_(flags), expected_(expected) {}

    void run(const CellGroupConfig* prev, const CellGroupConfig* next)
    {
        expected_.wanted = stateOf(heap_, next);
        path_ = root().name;
        if (prev == nullptr)
        {
            Troubles troubles;
            create(root(), expected_.wanted, {.added = true}, troubles);
            expected_.sync =
                next->m.spCellConfigPresent != 0 && next->spCellConfig.m.reconfigurationWithSyncPresent != 0;
            conclude(troubles, true);
            return;
        }
        expected_.held = stateOf(heap_, prev);
        keepOneShots(heap_, root(), expected_.held, expected_.wanted);
        if (heap_.encode(stateOf(heap_, prev, true)) == heap_.encode(stateOf(heap_, next, true)) &&
            (flags_ & RTX_DELTA_SYNC) == 0)
        {
            return;
        }
        expected_.sync = isSyncSent(prev, next);
        bearers_ = &next->rlc_BearerToAddModList;
        mcg_ = next->cellGroupId == 0;
        Troubles troubles;
        compare(root(), expected_.held, expected_.wanted, {}, troubles);
        const bool same = heap_.encode(expected_.held) == heap_.encode(expected_.wanted);
        conclude(troubles, !same || expected_.sync || hasAction(root(), next));
    }

private:
    void conclude(const Troubles& troubles, bool anything)
    {
        for (const Trouble& trouble : troubles)
        {
            expected_.refused.push_back(trouble.problem);
        }
        expected_.outcome = !troubles.empty()          ? static_cast<int>(RTX_E_DELTA)
                            : !expected_.first.empty() ? RTX_DELTA_MORE
                            : anything                 ? RTX_DELTA_TO_SEND
                                                       : RTX_DELTA_NOTHING;
    }

    // An action outside reconfigurationWithSync, which does not ask for one by itself.
    static bool hasAction(const Type& type, const void* value)
    {
        switch (type.kind)
        {
        case Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                const Need& code = need(type, i);
                if (has(type, value, i) && code.change != Change::Sync && code.list != ListRole::Release &&
                    (isAction(code) || hasAction(*type.members[i].type, at(type, value, i))))
                {
                    return true;
                }
            }
            return false;
        case Kind::Choice:
            return alternative(value) < type.memberCount &&
                   hasAction(*type.members[alternative(value)].type, content(type, value));
        case Kind::List:
        {
            const auto all = elements(type, value);
            return std::any_of(all.begin(), all.end(),
                               [&](const void* element) { return hasAction(type.element(), element); });
        }
        default:
            return false;
        }
    }

    static const ReconfigurationWithSync* syncOf(const CellGroupConfig* tree)
    {
        return tree->m.spCellConfigPresent != 0 && tree->spCellConfig.m.reconfigurationWithSyncPresent != 0
                   ? &tree->spCellConfig.reconfigurationWithSync
                   : nullptr;
    }

    bool isSyncSent(const CellGroupConfig* prev, const CellGroupConfig* next)
    {
        const ReconfigurationWithSync* const before = syncOf(prev);
        const ReconfigurationWithSync* const after = syncOf(next);
        if (after == nullptr || before == nullptr || (flags_ & RTX_DELTA_SYNC) != 0)
        {
            return after != nullptr;
        }
        if (encodeSync(syncOf(expected_.held)) != encodeSync(syncOf(expected_.wanted)))
        {
            return true;
        }
        return before->m.rach_ConfigDedicatedPresent != 0 && after->m.rach_ConfigDedicatedPresent != 0 &&
               differ(before->rach_ConfigDedicated, after->rach_ConfigDedicated);
    }

    // Actions again: one that only one of them has does not count.
    bool differ(const ReconfigurationWithSync_rach_ConfigDedicated& a,
                const ReconfigurationWithSync_rach_ConfigDedicated& b)
    {
        const bool lone =
            a.t == b.t && a.u.uplink->m.ra_PrioritizationPresent != b.u.uplink->m.ra_PrioritizationPresent;
        return encodeRach(a, lone) != encodeRach(b, lone);
    }

    Octets encodeRach(const ReconfigurationWithSync_rach_ConfigDedicated& rach, bool withoutPrioritization)
    {
        ReconfigurationWithSync sync;
        asn1Init_ReconfigurationWithSync(&sync);
        sync.m.rach_ConfigDedicatedPresent = 1;
        sync.rach_ConfigDedicated = rach;
        if (withoutPrioritization)
        {
            auto* const uplink = static_cast<RACH_ConfigDedicated*>(heap_.allocate(sizeof(RACH_ConfigDedicated)));
            *uplink = *rach.u.uplink;
            uplink->m.ra_PrioritizationPresent = 0;
            sync.rach_ConfigDedicated.u.uplink = uplink;
        }
        return encodeSync(&sync);
    }

    Octets encodeSync(const ReconfigurationWithSync* sync)
    {
        CellGroupConfig tree;
        asn1Init_CellGroupConfig(&tree);
        tree.m.spCellConfigPresent = 1;
        tree.spCellConfig.m.reconfigurationWithSyncPresent = 1;
        tree.spCellConfig.reconfigurationWithSync = *sync;
        return heap_.encode(&tree);
    }

    // Whether two values are sent alike.
    bool equal(const Type& type, const void* a, const void* b) const
    {
        return rtxCompare(&heap_.ctxt, nullptr, &type, a, b, nullptr, nullptr) == 0;
    }

    void report(Troubles& troubles, int reason, bool curable = true)
    {
        troubles.push_back({{path_, reason}, curable});
    }

    template <typename Run>
    void inside(const std::string& step, const Run& run)
    {
        const size_t length = path_.size();
        path_ += step;
        run();
        path_.resize(length);
    }

    // All of it is new.
    void create(const Type& type, const void* value, const Around& around, Troubles& troubles)
    {
        switch (type.kind)
        {
        case Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                inside(std::string(".") + type.names[i],
                       [&]
                       {
                           const Need& code = need(type, i);
                           if (has(type, value, i))
                           {
                               Around inner = around;
                               inner.inSync = inner.inSync || (code.change == Change::Sync);
                               createMember(type, i, value, inner, troubles);
                           }
                           else if (around.added && isDemanded(code, around.where))
                           {
                               report(troubles, RTX_DELTA_INCOMPLETE, false);
                           }
                       });
            }
            break;
        case Kind::Choice:
            if (const unsigned index = alternative(value); index < type.memberCount)
            {
                inside(std::string(".") + type.names[index],
                       [&] { create(*type.members[index].type, content(type, value), around, troubles); });
            }
            break;
        case Kind::List:
        {
            unsigned number = 0;
            for (const void* const element : elements(type, value))
            {
                Around inner = around;
                inner.inList = true;
                inside("[" + std::to_string(number++) + "]", [&] { create(type.element(), element, inner, troubles); });
            }
            break;
        }
        default:
            break;
        }
    }

    void createMember(const Type& type, unsigned index, const void* value, const Around& around, Troubles& troubles)
    {
        const Need& code = need(type, index);
        const Type& member = *type.members[index].type;
        if (isForbidden(code, around))
        {
            report(troubles, code.change == Change::Reestablish ? RTX_DELTA_REESTABLISH : RTX_DELTA_AT_CREATION);
            return;
        }
        if (isEntries(code) && member.kind == Kind::List)
        {
            for (const void* const entry : elements(member, at(type, value, index)))
            {
                createEntry(member, entry, troubles);
            }
            return;
        }
        create(member, at(type, value, index), around, troubles);
    }

    // Whether a member that is not held may not be sent now.
    bool isForbidden(const Need& code, const Around& around) const
    {
        if (around.added || around.inList)
        {
            return false;
        }
        switch (code.change)
        {
        case Change::Creation:
        case Change::CreationOptional:
            return !around.inSync;
        case Change::Switch:
            return around.where.sCell;
        case Change::Reestablish:
            return !mayChangeLength(around);
        default:
            return false;
        }
    }

    // sn-FieldLength of a bearer.
    bool mayChangeLength(const Around& around) const
    {
        return around.reestablished && (!around.where.drb || expected_.sync);
    }

    std::string entryStep(const Type& list, const void* entry) const
    {
        return std::string("[") + rtx::identityName(list) + " " + std::to_string(identity(list, entry)) + "]";
    }

    void createEntry(const Type& list, const void* entry, Troubles& troubles)
    {
        inside(entryStep(list, entry),
               [&] { create(list.element(), entry, {.where = inEntry(list, entry), .added = true}, troubles); });
    }

    void compare(const Type& type, const void* held, const void* wanted, const Around& around, Troubles& troubles)
    {
        switch (type.kind)
        {
        case Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                inside(std::string(".") + type.names[i], [&] { member(type, i, held, wanted, around, troubles); });
            }
            for (const ASN1OpenType* const open : additions(type, held))
            {
                const auto all = additions(type, wanted);
                if (std::none_of(all.begin(), all.end(),
                                 [&](const ASN1OpenType* other) { return other->index == open->index; }))
                {
                    inside(".extElem1[" + std::to_string(open->index) + "]", [&] { report(troubles, RTX_DELTA_KEPT); });
                }
            }
            break;
        case Kind::Choice:
        {
            const unsigned index = alternative(wanted);
            if (index >= type.memberCount)
            {
                break;
            }
            inside(std::string(".") + type.names[index],
                   [&]
                   {
                       const Type& inner = *type.members[index].type;
                       alternative(held) == index
                           ? compare(inner, content(type, held), content(type, wanted), around, troubles)
                           : create(inner, content(type, wanted), around, troubles);
                   });
            break;
        }
        case Kind::List:
            if (!equal(type, held, wanted))
            {
                create(type, wanted, around, troubles);
            }
            break;
        default:
            break;
        }
    }

    void member(const Type& type, unsigned index, const void* held, const void* wanted, const Around& outer,
                Troubles& troubles)
    {
        const Need& code = need(type, index);
        const Type& kind = *type.members[index].type;
        const bool before = has(type, held, index) && !isSulReleased(type, index, outer);
        const bool after = has(type, wanted, index);
        Around around = outer;
        if (isNamed(kind.name, "SpCellConfig"))
        {
            around.inSync = expected_.sync;
            around.added = !before; // it is created as a whole
        }
        if (isEntries(code))
        {
            if (before && after && kind.kind == Kind::List)
            {
                entries(kind, at(type, held, index), at(type, wanted, index), around, troubles);
            }
            else if (after)
            {
                createMember(type, index, wanted, around, troubles);
            }
            return;
        }
        if (!before && !after)
        {
            return;
        }
        Troubles found;
        if (before && !after)
        {
            gone(type, index, found);
        }
        else if (!before)
        {
            appears(type, index, wanted, around, found);
        }
        else if (!equal(kind, at(type, held, index), at(type, wanted, index)))
        {
            changes(type, index, at(type, held, index), at(type, wanted, index), around, found);
        }
        if (before && after)
        {
            inTwo(type, index, at(type, wanted, index), around, found);
        }
        troubles.insert(troubles.end(), found.begin(), found.end());
    }

    void gone(const Type& type, unsigned index, Troubles& found)
    {
        const Need& code = need(type, index);
        const bool released = isSetupRelease(*type.members[index].type);
        if (isKind(code))
        {
            report(found, RTX_DELTA_FIXED_KIND, code.change == Change::Kind);
        }
        else if (released && code.change == Change::McgRelease && !mcg_)
        {
            report(found, RTX_DELTA_SCG, false);
        }
        else if (released && code.change == Change::Pucch && !expected_.sync)
        {
            report(found, RTX_DELTA_PUCCH);
        }
        else if (!released && (code.absence == Absence::Keep || code.absence == Absence::Mandatory))
        {
            report(found, RTX_DELTA_KEPT);
        }
    }

    // supplementaryUplink goes with a common configuration of the SpCell that is sent and has none.
    bool isSulReleased(const Type& type, unsigned index, const Around& around) const
    {
        if (!expected_.sync || around.where.entry || !isNamed(type.names[index], "supplementaryUplink") ||
            !isNamed(type.name, "ServingCellConfig"))
        {
            return false;
        }
        const ReconfigurationWithSync* const sync = syncOf(expected_.wanted);
        return sync->m.spCellConfigCommonPresent != 0 &&
               sync->spCellConfigCommon.m.supplementaryUplinkConfigPresent == 0 && isCommonSent(*sync);
    }

    bool isCommonSent(const ReconfigurationWithSync& sync) const
    {
        const ReconfigurationWithSync* const before = syncOf(expected_.held);
        const Type& type = *asn1Type_CellGroupConfig()->members[indexOf(root(), "spCellConfig")].type;
        const Type& syncType = *type.members[indexOf(type, "reconfigurationWithSync")].type;
        const Type& common = *syncType.members[indexOf(syncType, "spCellConfigCommon")].type;
        return before == nullptr || before->m.spCellConfigCommonPresent == 0 ||
               !equal(common, &before->spCellConfigCommon, &sync.spCellConfigCommon) ||
               isSentWithSync(common, &sync.spCellConfigCommon);
    }

    // Whether it has something that is sent with reconfigurationWithSync, changed or not.
    static bool isSentWithSync(const Type& type, const void* value)
    {
        for (unsigned i = 0; type.kind == Kind::Sequence && i < type.memberCount; ++i)
        {
            const Change word = need(type, i).change;
            if (has(type, value, i) &&
                (word == Change::Setup || word == Change::Creation || word == Change::CreationOptional ||
                 isSentWithSync(*type.members[i].type, at(type, value, i))))
            {
                return true;
            }
        }
        return false;
    }

    void appears(const Type& type, unsigned index, const void* wanted, const Around& around, Troubles& found)
    {
        const Need& code = need(type, index);
        if (isKind(code))
        {
            report(found, RTX_DELTA_FIXED_KIND, code.change == Change::Kind);
        }
        else if (code.change == Change::Pucch && !expected_.sync)
        {
            report(found, RTX_DELTA_PUCCH);
        }
        else
        {
            createMember(type, index, wanted, around, found);
        }
    }

    void changes(const Type& type, unsigned index, const void* held, const void* wanted, const Around& around,
                 Troubles& found)
    {
        const Need& code = need(type, index);
        const Type& kind = *type.members[index].type;
        if (isForbidden(code, around))
        {
            report(found, code.change == Change::Reestablish ? RTX_DELTA_REESTABLISH : RTX_DELTA_AT_CREATION);
        }
        else if (code.change == Change::Identity)
        {
            report(found, RTX_DELTA_OTHER_IDENTITY, false);
        }
        else if (code.change == Change::Mode && alternative(held) != alternative(wanted))
        {
            report(found, RTX_DELTA_MODE);
        }
        else if (code.change == Change::Usage && isCodebook(kind, held) && isCodebook(kind, wanted))
        {
            report(found, RTX_DELTA_USAGE, false);
        }
        else
        {
            if (!expected_.sync &&
                (code.change == Change::Inactive || (code.change == Change::InactiveType2 && isType2(kind, held))))
            {
                expected_.active.push_back(path_);
            }
            compare(kind, held, wanted, around, found);
        }
    }

    static bool isCodebook(const Type& type, const void* value)
    {
        const char* const name = type.names[rtx::loadNumber(type, value)];
        return isNamed(name, "codebook") || isNamed(name, "nonCodebook");
    }

    static bool isType2(const Type& setupRelease, const void* value)
    {
        const Type& type = *setupRelease.members[alternative(value)].type;
        return !has(type, content(setupRelease, value), indexOf(type, "rrc-ConfiguredUplinkGrant"));
    }

    // Whether a PUCCH is set up anywhere in it.
    static bool hasPucch(const Type& type, const void* value)
    {
        if (type.kind == Kind::Sequence)
        {
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                if (has(type, value, i) &&
                    (need(type, i).change == Change::Pucch || hasPucch(*type.members[i].type, at(type, value, i))))
                {
                    return true;
                }
            }
        }
        else if (type.kind == Kind::List)
        {
            const auto all = elements(type, value);
            return std::any_of(all.begin(), all.end(),
                               [&](const void* element) { return hasPucch(type.element(), element); });
        }
        return false;
    }

    // What remains is brought by taking this member away first, where that can be done.
    void inTwo(const Type& type, unsigned index, const void* wanted, const Around& around, Troubles& found)
    {
        const Need& code = need(type, index);
        const Type& kind = *type.members[index].type;
        const bool leaves = isSetupRelease(kind) || code.absence == Absence::Clear ||
                            code.absence == Absence::Default || code.absence == Absence::Fixed;
        const bool bound =
            (code.change == Change::Pucch && !expected_.sync) || (code.change == Change::McgRelease && !mcg_);
        const auto helped = [&](const Trouble& trouble)
        {
            return trouble.curable && !around.recreatable;
        };
        if ((flags_ & RTX_DELTA_TWO_STEPS) == 0 || !leaves || bound || std::none_of(found.begin(), found.end(), helped))
        {
            return;
        }
        Troubles after;
        create(kind, wanted, around, after); // it has to come back
        for (const Trouble& trouble : found)
        {
            if (!helped(trouble))
            {
                after.push_back(trouble);
            }
            else if (after.empty())
            {
                expected_.first.push_back(trouble.problem);
            }
        }
        found = after;
    }

    void entries(const Type& list, const void* held, const void* wanted, const Around& around, Troubles& troubles)
    {
        const auto before = elements(list, held);
        for (const void* const entry : elements(list, wanted))
        {
            const auto found =
                std::find_if(before.begin(), before.end(),
                             [&](const void* other) { return identity(list, other) == identity(list, entry); });
            if (found == before.end())
            {
                createEntry(list, entry, troubles);
            }
            else
            {
                inside(entryStep(list, entry), [&] { modify(list, *found, entry, around, troubles); });
            }
        }
    }

    void modify(const Type& list, const void* held, const void* wanted, const Around& around, Troubles& troubles)
    {
        Troubles incomplete;
        create(list.element(), wanted, {.where = inEntry(list, wanted), .added = true}, incomplete);
        const bool allowed = isRecreated(list);
        const bool recreatable = allowed && incomplete.empty();
        Around inner;
        inner.where = inEntry(list, wanted);
        inner.recreatable = around.recreatable || allowed;
        inner.reestablished = !isBearer(list.element()) || isReestablished(identity(list, wanted));
        Troubles found;
        compare(list.element(), held, wanted, inner, found);
        if (inner.where.sCell && hasPucch(list.element(), held) != hasPucch(list.element(), wanted))
        {
            report(found, RTX_DELTA_PUCCH_CELL);
        }
        for (const Trouble& trouble : found)
        {
            if (!allowed || !trouble.curable)
            {
                troubles.push_back(trouble);
            }
            else if (recreatable)
            {
                expected_.recreated.push_back(trouble.problem);
            }
            else
            {
                troubles.insert(troubles.end(), incomplete.begin(), incomplete.end());
            }
        }
    }

    bool isReestablished(int64_t id) const
    {
        for (const OSRTDListNode* node = bearers_->head; node != nullptr; node = node->next)
        {
            const auto& bearer = *static_cast<const RLC_BearerConfig*>(node->data);
            if (bearer.logicalChannelIdentity == id)
            {
                return bearer.m.reestablishRLCPresent != 0;
            }
        }
        return false;
    }

    bool isRecreated(const Type& list) const
    {
        const char* const entry = list.element().name;
        if ((flags_ & RTX_DELTA_RECREATE_NONE) != 0)
        {
            return false;
        }
        if (isBearer(list.element()))
        {
            return (flags_ & RTX_DELTA_RECREATE_BEARERS) != 0;
        }
        if (isNamed(entry, "SCellConfig"))
        {
            return (flags_ & RTX_DELTA_RECREATE_SCELLS) != 0;
        }
        if (isNamed(entry, "BWP-Downlink") || isNamed(entry, "BWP-Uplink"))
        {
            return (flags_ & RTX_DELTA_RECREATE_BWPS) != 0;
        }
        return true;
    }

    Heap& heap_;
    unsigned flags_;
    Expected& expected_;
    const OSRTDList* bearers_ = nullptr;
    bool mcg_ = true;
    std::string path_;
};

} // namespace

Expected expect(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags)
{
    Expected expected;
    Walk(heap, flags, expected).run(prev, next);
    return expected;
}

} // namespace delta
