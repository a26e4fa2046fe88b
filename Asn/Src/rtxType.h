// Descriptors of the generated types: what the decoder and the printer walk. The compiler emits one per type.
#ifndef RTXTYPE_H
#define RTXTYPE_H

#include "asn1Runtime.h"

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
    Choice,     // tag `t` at offset 0 (32 bits), union at `elements`
    Array,      // count of `width` octets at offset 0 (none where lower == upper), elements from `elements` on
    List        // OSRTDList of element
};

struct Type;

struct Member
{
    const char* name; // ASN.1 name
    const Type* type;
    uint32_t offset; // in the structure; 0 in a choice
    int16_t flag;    // bit number of its presence flag, -1 for a mandatory member
    bool pointer;    // choice: the union holds a pointer to the alternative
};

// An extension addition of a sequence: a group [[ ]] with its own flag, or a lone member (flag -1).
struct Addition
{
    int16_t flag;
    uint16_t first; // index of its first member
    uint16_t count;
};

struct Type
{
    const char* name; // ASN.1 name, or the C name of a type nested in another
    Kind kind;
    uint8_t width = 0;
    bool extensible = false;
    uint32_t size = 0; // octets of storage
    int32_t lower = 0; // of an integer's value, or of a list's count
    int32_t upper = 0;
    uint32_t elements = 0;              // Array: offset of elem; Choice: offset of u
    const Type* element = nullptr;      // Array, List
    const char* const* names = nullptr; // Enumerated
    const Member* members = nullptr;    // Sequence, Choice: root members first, then additions in order
    uint16_t memberCount = 0;
    uint16_t rootCount = 0;
    const Addition* additions = nullptr; // Sequence
    uint16_t additionCount = 0;
    uint32_t extElem = 0; // extensible Sequence: offset of extElem1
};

// Bits that hold a value of 0..range.
constexpr unsigned bitsFor(uint32_t range)
{
    unsigned bits = 0;
    for (; range != 0; range >>= 1)
    {
        ++bits;
    }
    return bits;
}

// A choice's tag for an alternative this release does not know: alternatives + 1 + its number among the unknown ones;
// its union holds a pointer to an ASN1OpenType.

// Records the first error of a context; the path is empty then.
int setError(OSCTXT& ctxt, RtxStatus status, int64_t value = 0, int64_t lower = 0, int64_t upper = 0);

// Adds the next outer step to the error's path.
void pushName(OSCTXT& ctxt, const char* name);
void pushIndex(OSCTXT& ctxt, uint32_t index);

int decode(OSCTXT& ctxt, const Type& type, void* value);
void print(const OSCTXT* ctxt, const Type& type, const char* title, const void* value, RtxPrintSink sink, void* arg);
// To standard output, following the pointers of the context that rtxPrintSetContext named.
void print(const Type& type, const char* title, const void* value);

} // namespace rtx

#endif
