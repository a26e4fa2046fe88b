// Descriptors of the generated types: what the decoder and the printer walk. The compiler emits one per type.
#ifndef RTXTYPE_H
#define RTXTYPE_H

#include "asn1Runtime.h"
#include "rtxBits.h"

namespace rtx
{

enum class Kind : uint8_t
{
    Boolean,    // OSBOOL
    Null,       // no storage
    Integer,    // `width` octets, signed when lower < 0
    Enumerated, // 32 bits, lower = 0, upper = last value, names
    BitStr32,   // ASN1BitStr32 of exactly `upper` bits
    BitOctets,  // bare octets holding exactly `upper` bits
    Sequence,   // presence flags from the structure's first octet on, members at their offsets
    Choice,     // tag `t` at offset 0 (32 bits), union behind it
    Array,      // count of `width` octets at offset 0 (none where lower == upper), elements behind it
    List        // OSRTDList of element
};

using Type = ::RtxType;

// How the decoder stores what a member holds.
enum class Step : uint8_t
{
    None,   // no bits and no storage, or a value that a cleared structure holds already
    Value1, // a whole number of `bits` bits, stored in 1, 2 or 4 octets
    Value2,
    Value4,
    Only, // an integer's only value: no bits
    BitStr32,
    BitOctets,
    Sequence,
    Choice,
    Array,
    List,
    Pointer // an alternative of a choice that the union holds a pointer to
};

// A member of a sequence, an alternative of a choice or the element of a list or array, with what the decoder needs of
// its type: 24 octets, so that the types of a message stay in the cache.
struct Member
{
    const Type* type;
    uint32_t offset; // in the structure; in a choice that of the union, in an array that of its first element
    int16_t flag;    // bit number of its presence flag, -1 for a mandatory member
    Step step;
    uint8_t bits;  // Value1..Value4: on the wire
    int32_t lower; // Value1..Value4: the least value and how many follow it
    uint32_t range;
};

// An extension addition of a sequence: a group [[ ]] with its own flag, or a lone member (flag -1).
struct Addition
{
    int16_t flag;
    uint16_t first; // index of its first member
    uint16_t count;
};

// What the absence of an optional member does (TS 38.331 6.1.2).
enum class Absence : uint8_t
{
    Mandatory,
    Keep,    // Need M
    Clear,   // Need R
    Default, // Need S: cleared, a value or rule of the standard takes over
    Action,  // Need N
    Fixed    // presence follows from another field
};

// What else binds a change of it.
enum class Change : uint8_t
{
    Free,
    Setup,            // wanted when its entry is created, sent again with reconfigurationWithSync
    DrbSetup,         // as Setup, wanted of the bearer of a DRB
    Mode,             // as DrbSetup, and the alternative of the bearer stays
    Creation,         // wanted when its entry is created, and never sent again
    CreationOptional, // sent when its entry is created or never
    Switch,           // in an SCell as Creation, in the SpCell sent once
    Sync,             // sent once
    Reestablish,      // as Setup, changed with reestablishRLC and, of a DRB, with reconfigurationWithSync
    Kind,             // present or absent as long as its entry lives
    FixedKind,        // as Kind, also when the entry is released and added
    Usage,            // from codebook to nonCodebook or back in no way
    Pucch,            // set up or released only with its bandwidth part or SCell, or with reconfigurationWithSync
    SCell,            // as Setup, and whether the SCell has a PUCCH stays
    Inactive,         // only while no assignment is active, or with reconfigurationWithSync
    InactiveType2,    // the same of a grant of type 2
    Sul,              // its absence releases supplementaryUplink of the same cell too
    McgRelease,       // released only in the MCG
    Identity          // the same as long as the whole lives
};

enum class ListRole : uint8_t
{
    None,
    AddMod,
    Release
};

struct Need
{
    Absence absence = Absence::Mandatory;
    Change change = Change::Free;
    ListRole list = ListRole::None;
    int16_t partner = -1; // AddMod: index of the list that releases its elements; Release: of the one that adds them
    const char* condition = nullptr; // of a Cond
};

constexpr int8_t noIdentity = -1;
constexpr int8_t ownIdentity = -2; // an element identifies itself

} // namespace rtx

struct RtxType
{
    const char* name; // ASN.1 name, or the C name of a type nested in another
    rtx::Kind kind;
    uint8_t width = 0; // octets of an integer, of an array's count
    bool extensible = false;
    uint8_t align = 1; // of the storage
    uint32_t size = 0; // octets of storage
    int32_t lower = 0; // of an integer's value, or of a list's count
    int32_t upper = 0;
    const char* const* names = nullptr; // of the members, of the values of an enumeration
    // Sequence, Choice: root members first, then additions in order; Array, List: the element.
    const rtx::Member* members = nullptr;
    uint16_t memberCount = 0;
    uint16_t rootCount = 0;
    bool setupRelease = false;                // Choice: SetupRelease { T }
    bool plain = false;                       // has members or elements, and a delta takes its values as they are
    const rtx::Addition* additions = nullptr; // Sequence
    uint16_t additionCount = 0;
    uint8_t bits = 0; // on the wire before the content: presence flags, index of the alternative, count of elements
    int8_t identity = rtx::noIdentity; // Array, List: index of the element's member that identifies it
    uint32_t extElem = 0;              // extensible: offset of extElem1, in a choice that of the union
    const rtx::Need* needs = nullptr;  // Sequence: of its members; null when all are mandatory and free

    // Of an array's or a list's elements.
    constexpr const RtxType& element() const
    {
        return *members->type;
    }
};

namespace rtx
{

constexpr Step stepOf(const Type& type)
{
    const bool only = type.lower == type.upper;
    switch (type.kind)
    {
    case Kind::Boolean:
        return Step::Value1;
    case Kind::Null:
        break;
    case Kind::Integer:
        return only ? Step::Only : type.width == 1 ? Step::Value1 : type.width == 2 ? Step::Value2 : Step::Value4;
    case Kind::Enumerated:
        return only ? Step::None : Step::Value4;
    case Kind::BitStr32:
        return Step::BitStr32;
    case Kind::BitOctets:
        return Step::BitOctets;
    case Kind::Sequence:
        return Step::Sequence;
    case Kind::Choice:
        return Step::Choice;
    case Kind::Array:
        return Step::Array;
    case Kind::List:
        return Step::List;
    }
    return Step::None;
}

// A member of the type at an offset; what the decoder needs besides follows from the type.
constexpr Member member(const Type& type, size_t offset, int flag = -1, bool pointer = false)
{
    const bool number = type.kind <= Kind::Enumerated;
    const uint32_t range =
        type.kind == Kind::Boolean ? 1 : static_cast<uint32_t>(type.upper) - static_cast<uint32_t>(type.lower);
    return {.type = &type,
            .offset = static_cast<uint32_t>(offset),
            .flag = static_cast<int16_t>(flag),
            .step = pointer ? Step::Pointer : stepOf(type),
            .bits = static_cast<uint8_t>(number ? bitsFor(range) : 0),
            .lower = number ? type.lower : 0,
            .range = number ? range : 0};
}

// A choice's tag for an alternative this release does not know: alternatives + 1 + its number among the unknown ones;
// its union holds a pointer to an ASN1OpenType.

// What is wrong with a value, as the members of RtxError say it.
struct Reason
{
    RtxStatus status = RTX_OK;
    int64_t value = 0;
    int64_t lower = 0;
    int64_t upper = 0;
};

// Writes a reason as text to text[0..size-1], always terminated. Returns the length of the whole text.
size_t formatReason(const Reason& reason, char* text, size_t size);

// The words of an RtxDeltaReason.
const char* deltaReasonText(OSINT32 reason);

// Records the first error of a context; the path is empty then.
int setError(OSCTXT& ctxt, RtxStatus status, int64_t value = 0, int64_t lower = 0, int64_t upper = 0);

// The kinds of a path's steps.
constexpr RtxPathStep named(const char* name)
{
    return {name, 0, 0};
}
constexpr RtxPathStep indexed(uint32_t index)
{
    return {nullptr, index, 0};
}
constexpr RtxPathStep grouped(uint32_t number)
{
    return {nullptr, number, 1};
}

// Adds the next outer step to the error's path. A null name, of what is no member, is no step.
void pushName(OSCTXT& ctxt, const char* name);
void pushIndex(OSCTXT& ctxt, uint32_t index);
void pushGroup(OSCTXT& ctxt, uint32_t number); // of an extension group, the first is 1; 0: which additions there are

void print(const OSCTXT* ctxt, const Type& type, const char* title, const void* value, RtxPrintSink sink, void* arg,
           RtxRemark remark = nullptr, void* remarkArg = nullptr);
// To standard output, following the pointers of the context that rtxPrintSetContext named.
void print(const Type& type, const char* title, const void* value);

} // namespace rtx

#endif
