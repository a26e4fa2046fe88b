// What applying a delta and making one share. The trees have been checked: nothing in them needs to be distrusted.
#ifndef RTXDELTA_H
#define RTXDELTA_H

#include "rtxLine.h"
#include "rtxTree.h"

namespace rtx
{

// Where a walk stands: a step and the one around it.
struct DeltaPlace
{
    const DeltaPlace* outer;
    RtxDifferenceStep step;
};

inline DeltaPlace memberAt(const DeltaPlace& place, const char* name)
{
    return {&place, {name, 0, 0, nullptr, 0}};
}

// Steps from the outermost type to the place; the type itself is one.
inline OSUINT32 depthOf(const DeltaPlace& place)
{
    OSUINT32 depth = 0;
    for (const DeltaPlace* p = &place; p != nullptr; p = p->outer)
    {
        ++depth;
    }
    return depth;
}

inline const Need& needOf(const Type& type, unsigned index)
{
    static constexpr Need none{};
    return type.needs != nullptr ? type.needs[index] : none;
}

inline bool isOneShot(const Need& need)
{
    return need.change == Change::Switch || need.change == Change::Sync;
}

// Whether it is demanded when its entry is created: always, or only for a DRB.
inline bool isSetup(const Need& need)
{
    switch (need.change)
    {
    case Change::Setup:
    case Change::DrbSetup:
    case Change::Mode:
    case Change::Creation:
    case Change::Switch:
    case Change::Reestablish:
    case Change::SCell:
        return true;
    default:
        return false;
    }
}

// Calls each(index, addition) for the members of a sequence; the addition is null for those of the root.
template <typename Each>
void forMembers(const Type& type, const Each& each)
{
    for (unsigned i = 0; i < type.rootCount; ++i)
    {
        each(i, nullptr);
    }
    for (unsigned a = 0; a < type.additionCount; ++a)
    {
        for (unsigned i = type.additions[a].first; i < type.additions[a].first + unsigned{type.additions[a].count}; ++i)
        {
            each(i, type.additions + a);
        }
    }
}

inline void* at(void* structure, const Member& member)
{
    return static_cast<OSOCTET*>(structure) + member.offset;
}

// Whether a member's own flag does not rule it out.
inline bool mayBeIn(const Member& member, const void* structure)
{
    return structure != nullptr && isPresent(member, structure);
}

// A member that is sent, or null; so is each of no structure.
inline const void* sent(const Type& type, unsigned index, const Addition* addition, const void* structure)
{
    const Member& member = type.members[index];
    const bool present = mayBeIn(member, structure) && (addition == nullptr || isSent(type, *addition, structure));
    return present ? at(structure, member) : nullptr;
}

// The addition that a member belongs to, null for one of the root.
inline const Addition* additionOf(const Type& type, unsigned index)
{
    const Addition* const end = type.additions + type.additionCount;
    const Addition* const found =
        std::find_if(type.additions, end,
                     [=](const Addition& addition) { return index < unsigned{addition.first} + addition.count; });
    return index < type.rootCount || found == end ? nullptr : found;
}

constexpr unsigned noMember = ~0U;

// The first member that `is` so, as an index.
template <typename Is>
unsigned findMember(const Type& type, const Is& is)
{
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        if (is(i))
        {
            return i;
        }
    }
    return noMember;
}

inline unsigned memberNamed(const Type& type, const char* name)
{
    return findMember(type, [&](unsigned i) { return std::strcmp(type.names[i], name) == 0; });
}

inline unsigned memberWith(const Type& type, Change change)
{
    return findMember(type, [&](unsigned i) { return needOf(type, i).change == change; });
}

// That of the root with this index, where it is sent; null also for no member.
inline const void* rootMember(const Type& type, unsigned index, const void* structure)
{
    return index < type.rootCount ? sent(type, index, nullptr, structure) : nullptr;
}

inline void setFlag(void* structure, int flag)
{
    static_cast<OSOCTET*>(structure)[flag / 8] |= static_cast<OSOCTET>(1U << flagShift(flag));
}

inline void clearFlag(void* structure, int flag)
{
    static_cast<OSOCTET*>(structure)[flag / 8] &= static_cast<OSOCTET>(~(1U << flagShift(flag)));
}

inline void* setSent(const Type& type, unsigned index, const Addition* addition, void* structure)
{
    if (type.members[index].flag >= 0)
    {
        setFlag(structure, type.members[index].flag);
    }
    if (addition != nullptr && addition->flag >= 0)
    {
        setFlag(structure, addition->flag);
    }
    return at(structure, type.members[index]);
}

// Takes a root member away, where there is such a one.
inline void leaveOut(const Type& type, unsigned index, void* structure)
{
    if (index < type.rootCount && type.members[index].flag >= 0)
    {
        clearFlag(structure, type.members[index].flag);
    }
}

// The member that goes with its cell's common configuration, where that comes without one.
constexpr char supplementaryUplink[] = "supplementaryUplink";

// An alternative's content, also behind a pointer; null stands for the empty one.
inline const void* contentOf(const Member& alternative, const void* choice)
{
    const void* const p = at(choice, alternative);
    return alternative.step == Step::Pointer ? load<const void*>(p) : p;
}

constexpr uint32_t setupTag = 2; // of SetupRelease: release, setup

inline bool isRelease(const Type& type, const void* value)
{
    return type.setupRelease && value != nullptr && load<OSUINT32>(value) != setupTag;
}

inline const Member* alternativeOf(const Type& type, const void* choice)
{
    const auto tag = load<OSUINT32>(choice);
    return tag >= 1 && tag <= type.memberCount ? type.members + tag - 1 : nullptr;
}

// Goes over the elements of a list or an array.
class ElementCursor
{
public:
    ElementCursor(const Type& type, const void* list)
        : size_(type.element().size),
          left_(elementCount(type, list)),
          inArray_(static_cast<const OSOCTET*>(list) + type.members->offset),
          node_(type.kind == Kind::List ? load<OSRTDList>(list).head : nullptr)
    {
    }

    bool atEnd() const
    {
        return left_ == 0;
    }
    const void* data() const
    {
        return node_ != nullptr ? node_->data : inArray_;
    }
    void next()
    {
        --left_;
        inArray_ += size_;
        node_ = node_ != nullptr ? node_->next : nullptr;
    }

private:
    size_t size_;
    uint32_t left_;
    const OSOCTET* inArray_;
    const OSRTDListNode* node_;
};

inline void storeCount(const Type& type, void* array, uint32_t count)
{
    if (type.lower != type.upper)
    {
        const auto narrow = static_cast<OSUINT8>(count);
        const auto wide = static_cast<OSUINT16>(count);
        std::memcpy(array, type.width == 1 ? static_cast<const void*>(&narrow) : &wide, type.width);
    }
}

inline bool sameOctets(const ASN1OpenType& a, const ASN1OpenType& b)
{
    return a.numocts == b.numocts && std::memcmp(a.data, b.data, a.numocts) == 0;
}

// The unknown additions of a sequence; none of no structure.
inline OSRTDList unknownOf(const Type& type, const void* structure)
{
    return structure == nullptr || !type.extensible ? OSRTDList{} : load<OSRTDList>(structure, type.extElem);
}

inline const ASN1OpenType* openOf(const OSRTDListNode* node)
{
    return node == nullptr ? nullptr : static_cast<const ASN1OpenType*>(node->data);
}

// Goes over unknown additions in the order of their indices.
class UnknownCursor
{
public:
    explicit UnknownCursor(const OSRTDList& list) : node_(list.head), left_(list.count) {}

    bool atEnd() const
    {
        return left_ == 0;
    }
    uint32_t index() const
    {
        return openOf(node_)->index;
    }
    const ASN1OpenType& open() const
    {
        return *openOf(node_);
    }
    void* take()
    {
        void* const data = node_->data;
        node_ = node_->next;
        --left_;
        return data;
    }

private:
    const OSRTDListNode* node_;
    uint32_t left_;
};

// rtxMemHeapAlloc that makes exhaustion the context's error.
void* allocateFor(OSCTXT& ctxt, size_t octets);

// Takes an item over from a walk: kind, reason, what the schema says of the member, and its place.
RtxDeltaItem deltaItem(RtxDeltaKind kind, RtxDeltaReason reason, const Need& need, const DeltaPlace& place);

// Sets the context's error at a place. Returns its status.
int setError(OSCTXT& ctxt, const Reason& reason, const DeltaPlace& place);

// Tells the sink of what is refused and makes it the context's error. Returns RTX_E_DELTA.
int refuse(OSCTXT& ctxt, const RtxDeltaItem& item, const DeltaPlace& place, RtxDeltaSink sink, void* arg);

// Whether an entry says that it serves a DRB.
bool servesDrb(const Type& bearer, const void* entry);

// Whether an entry carries what its creation asks for; what is missing first is refused: told to the sink, and the
// context's error.
bool isComplete(OSCTXT& ctxt, const Type& type, const void* entry, const DeltaPlace& place, RtxDeltaSink sink,
                void* arg);

// Whether two trees are sent as the same octets. With `lone` set, actions that only one of them carries do not count.
bool equal(const Type& type, const void* a, const void* b, bool lone = false);

// The reconfigurationWithSync that a tree carries, or null, and its type.
struct SyncMember
{
    const Type* type;
    const void* value;
};
SyncMember syncOf(const Type& type, const void* value);

// Whether a ServingCellConfigCommon, or that of a reconfigurationWithSync, is without supplementary uplink: the
// dedicated configuration of one is released then, too.
bool releasesSul(const Type& type, const void* value);

// The first error of a tree that keeps the encoder from sending it, as the context's error: its status.
int checkTree(OSCTXT& ctxt, const Type& type, const void* value);

// Whether both trees, of which `held` may be null, are of one cell group; refuses them when not.
int checkIdentity(OSCTXT& ctxt, const Type& type, const void* held, const void* value, RtxDeltaSink sink, void* arg);

// An element of a list and its identity.
struct ListElement
{
    int64_t id;
    const void* data;
    uint32_t index;
};

// A list's elements ordered by identity, those of equal identities in their order.
struct ListElements
{
    ListElement* first;
    uint32_t count;
};

// Those of no list are none. Null with a count when the heap is exhausted.
ListElements sortedElements(OSCTXT& ctxt, const Type& type, const void* list);

// Makes a list of `type` of the elements. Returns whether there was room on the heap.
bool writeList(OSCTXT& ctxt, const Type& type, const ListElement* elements, uint32_t count, void* list);

// What a complete message leaves behind on top of nothing; the one-shots that it does not carry are those of `prev`,
// a state, or absent. Actions are kept where asked for.
struct StateOptions
{
    const void* prev = nullptr;
    bool actions = false;
    bool sync = false; // reconfigurationWithSync was sent from prev to here
};
int makeState(OSCTXT& ctxt, const Type& type, const void* value, void* state, const StateOptions& options);

// rtxApply, for who has to judge also a message with entries that lack what their creation asks for.
struct ApplyOptions
{
    bool incomplete = false; // such entries are taken as they are
    RtxDeltaSink sink = nullptr;
    void* arg = nullptr;
};
int apply(OSCTXT& ctxt, const Type& type, const void* prev, const void* delta, void* next, const ApplyOptions& options);

} // namespace rtx

#endif
