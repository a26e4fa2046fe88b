// The ASN.1 runtime: the context with its heap, lists, bit strings, the PER buffer and the error trace.
// Valid C11 and C++20. A context belongs to one thread at a time; different contexts are independent.
#ifndef ASN1RUNTIME_H
#define ASN1RUNTIME_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C"
{
#endif

typedef uint8_t OSUINT8;
typedef uint16_t OSUINT16;
typedef uint32_t OSUINT32;
typedef int8_t OSINT8;
typedef int16_t OSINT16;
typedef int32_t OSINT32;
typedef uint8_t OSOCTET;
typedef uint8_t OSBOOL; // 0 is FALSE, anything else TRUE

// BIT STRING of at most 32 bits: numbits bits, the first one in the most significant bit of data[0].
typedef struct ASN1BitStr32
{
    OSUINT32 numbits;
    OSOCTET data[4];
} ASN1BitStr32;

// The octets of one extension addition that this schema's release does not know; data is null where the addition is
// absent. numocts counts octets; the octets lie in the context's heap.
typedef struct ASN1OpenType
{
    OSUINT32 numocts;
    OSOCTET* data;
} ASN1OpenType;

// Doubly linked list of elements. Nodes and elements lie in the context's heap; the list owns nothing.
typedef struct OSRTDListNode
{
    void* data;
    struct OSRTDListNode* next;
    struct OSRTDListNode* prev;
} OSRTDListNode;

typedef struct OSRTDList
{
    OSUINT32 count;
    OSRTDListNode* head;
    OSRTDListNode* tail;
} OSRTDList;

// Status of a runtime call: 0 or one of these.
typedef enum RtxStatus
{
    RTX_OK = 0,
    RTX_E_RANGE = -1,      // value is not in lower..upper
    RTX_E_SIZE = -2,       // value elements, not lower..upper
    RTX_E_CHOICE = -3,     // tag value is not in lower..upper
    RTX_E_BITS = -4,       // a bit string of value bits, not lower
    RTX_E_NULL = -5,       // a null pointer
    RTX_E_FOREIGN = -6,    // a pointer out of the context's heap
    RTX_E_LIST = -7,       // the list's count is value, its nodes end after lower
    RTX_E_OVERFLOW = -8,   // the encoding needs more than the buffer's value octets
    RTX_E_NOBUFFER = -9,   // no buffer is bound
    RTX_E_ALIGNED = -10,   // aligned PER was asked for
    RTX_E_HEAP = -11,      // the heap is exhausted: value octets were asked for
    RTX_E_END = -12,       // the input ends before value more bits
    RTX_E_PADDING = -13,   // a padding bit is set
    RTX_E_SURPLUS = -14,   // value octets follow the encoding
    RTX_E_LENGTH = -15,    // a length determinant that PER does not allow; value is its octet
    RTX_E_EXTENSION = -16, // an extension addition that is announced and missing or of no use
    RTX_E_DEPTH = -17      // the element tree is deeper than RTX_MAX_DEPTH
} RtxStatus;

#define RTX_MAX_DEPTH 48

// One step of a path: a member's ASN.1 name, or (name null) the index of a list's element.
typedef struct RtxPathStep
{
    const char* name;
    OSUINT32 index;
} RtxPathStep;

// An error: the first one of a context, or a finding of a check. The path is kept from the innermost step outwards.
typedef struct RtxError
{
    OSINT32 status; // RtxStatus
    OSUINT32 depth; // steps used
    int64_t value;
    int64_t lower;
    int64_t upper;
    uint64_t bitOffset; // where in the input the decoder stood
    OSBOOL hasOffset;
    RtxPathStep path[RTX_MAX_DEPTH];
} RtxError;

// A type of the schema, for the calls that serve them all. Made by the compiler; lives as long as the program.
typedef struct RtxType RtxType;

struct RtxHeapBlock;

// A context owns a heap and the binding of a PER buffer. Its fields are the runtime's own; initialise it with
// rtxInitContext and release it with rtFreeContext.
typedef struct OSCTXT
{
    struct
    {
        struct RtxHeapBlock* blocks; // newest first
        OSOCTET* next;               // cleared octets that can be handed out at once
        OSOCTET* end;                // where they end
        size_t left;                 // octets that the limit allows beyond them
        struct RtxHeapBlock* memory; // the caller's; becomes the first block
        OSBOOL failed;
    } heap;
    struct
    {
        OSOCTET* data;
        size_t capacity; // octets
        size_t msgLen;   // octets
    } buffer;
    RtxError error;
} OSCTXT;

// Makes *pctxt an empty context without a limit and without memory of the caller's. Allocates nothing. Returns 0, or
// RTX_E_NULL.
int rtxInitContext(OSCTXT* pctxt);

// Releases everything that was allocated from the context's heap and ends its limit. The context may be used again, the
// caller's memory with it; its error, message length and buffer stay. Null is left alone.
void rtFreeContext(OSCTXT* pctxt);

// Lets the heap take what it hands out from the `octets` octets at `memory`, of any alignment, before it asks malloc
// for more. The memory stays the caller's: the runtime never frees it, and it may go or serve another context after
// rtFreeContext of this one, which then is initialised anew or given other memory before its next request. Returns how
// many octets of it requests can have, somewhat less than `octets`, so that nothing is ever asked of malloc after
//     rtxMemHeapSetLimit(&ctxt, rtxMemHeapSetMemory(&ctxt, memory, octets));
// 0 when the memory is null or too small for a request, which leaves the context without any, and when the heap has
// handed out something already, which changes nothing.
size_t rtxMemHeapSetMemory(OSCTXT* pctxt, void* memory, size_t octets);

// Limits what the heap hands out from now on to `octets` (each request rounded up to 16) until the next call or
// rtFreeContext.
void rtxMemHeapSetLimit(OSCTXT* pctxt, size_t octets);

// Returns `size` octets, aligned to 16 and cleared, that live until rtFreeContext; null when memory or the limit is
// exhausted.
void* rtxMemHeapAlloc(OSCTXT* pctxt, size_t size);

// Nonzero when the heap has refused a request since rtxInitContext or rtFreeContext: what was built from it may be
// incomplete.
int rtxMemHeapFailed(const OSCTXT* pctxt);

// Nonzero when all `size` octets at `p` lie in memory that the context's heap has handed out.
int rtxMemHeapOwns(const OSCTXT* pctxt, const void* p, size_t size);

// Appends *pNode, which the caller owns and has given its data, at the tail of *pList.
void rtxDListAppendNode(OSRTDList* pList, OSRTDListNode* pNode);

// Binds the caller's buffer: the encoder writes at most `capacity` octets to it, the decoder reads exactly `capacity`
// octets from it. `aligned` must be 0. Returns 0 or RTX_E_NULL, RTX_E_ALIGNED; the encoder and the decoder refuse to
// run on a buffer that was refused here.
int pu_setBuffer(OSCTXT* pctxt, OSOCTET* buf, size_t capacity, OSBOOL aligned);

// Length in octets of the last message that was encoded without error.
size_t pu_getMsgLen(const OSCTXT* pctxt);

// Writes the context's error as one line without line end to text[0..size-1], always terminated. Returns the length of
// the whole line; empty without an error.
size_t rtxErrFormat(const OSCTXT* pctxt, char* text, size_t size);

// The same for an error by itself.
size_t rtxErrorFormat(const RtxError* error, char* text, size_t size);

// Prints the context's error as one line with VOS_Printf: path, value and the bound it breaks. Nothing without an
// error.
void rtxErrPrint(const OSCTXT* pctxt);

// Forgets the context's error.
void rtxErrReset(OSCTXT* pctxt);

// What a check of a tree finds, one call for each; nonzero ends the check. The finding is gone after the call.
typedef int (*RtxFindingSink)(void* arg, const RtxError* finding);

// Reports everything in a tree that keeps the encoder from sending it: values, counts and bit strings out of their
// bounds, choices without an alternative, pointers that do not lead into *pctxt's heap, lists that end early, unknown
// additions that cannot be sent. The first finding is the encoder's error, with the same line (rtxErrorFormat); without
// a finding the encoder takes the tree, given room. The root may lie anywhere. Time grows with the encoding's length,
// whatever the tree; no memory is taken. `sink` may be null. Returns the number of findings, or RTX_E_NULL without
// context or type.
int64_t rtxCheck(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxFindingSink sink, void* arg);

typedef enum RtxDifferenceKind
{
    RTX_D_VALUE = 1,   // another value; `type` is that of a number, an enumeration, a boolean or a bit string
    RTX_D_ONLY_A,      // a member or an element of a list that b lacks
    RTX_D_ONLY_B,      // one that a lacks
    RTX_D_ALTERNATIVE, // another alternative of a choice
    RTX_D_ORDER,       // the elements of a list that a and b have in common stand in another order
    RTX_D_UNKNOWN,     // unknown extension additions or alternatives: a and b are ASN1OpenType or null, `type` is null
    RTX_D_UNREADABLE   // an element that the encoder does not follow in a or b, or a list with too many: not compared
} RtxDifferenceKind;

#define RTX_NO_INDEX 0xFFFFFFFFu

// One step of the path to a difference: a member, or (name null) an element of a list.
typedef struct RtxDifferenceStep
{
    const char* name;
    OSUINT32 indexA; // of the element in a's list, RTX_NO_INDEX where a lacks it
    OSUINT32 indexB;
    const char* identity; // the ASN.1 name of what the elements were matched by, null where that was the index
    int64_t id;           // its value
} RtxDifferenceStep;

// A difference between two trees of a type. The path is kept from the innermost step outwards.
typedef struct RtxDifference
{
    OSINT32 kind;   // RtxDifferenceKind
    OSUINT32 depth; // steps used; RTX_MAX_DEPTH + 1 where outer ones are left out
    const RtxType* type;
    const void* a; // the value in tree a, of the type; null where a lacks it and where it is unreadable
    const void* b;
    RtxDifferenceStep path[RTX_MAX_DEPTH];
} RtxDifference;

// What a comparison finds, one call for each; nonzero ends the comparison. The difference is gone after the call.
typedef int (*RtxDifferenceSink)(void* arg, const RtxDifference* difference);

// Reports the differences between two trees of a type: a, whose elements lie in *pctxtA's heap, and b, whose elements
// lie in *pctxtB's, in the same heap where that is null. What the encoder does not send is no difference: members whose
// group is not sent, bits behind a bit string's end, which nonzero value stands for TRUE, a null pointer for an empty
// element. Elements of lists that are added and modified one by one are matched by the identity that the schema gives
// them, equal identities in their order; those of all other lists by their index. Time grows as n log n with the trees'
// size; lists take memory of *pctxtA's heap, at most 40 octets for each element of a list and of the lists around it,
// and give it back. `sink` may be null. Returns the number of differences; RTX_E_NULL without context, type or tree,
// RTX_E_HEAP when the heap is exhausted: not everything has been compared then.
int64_t rtxCompare(OSCTXT* pctxtA, const OSCTXT* pctxtB, const RtxType* type, const void* a, const void* b,
                   RtxDifferenceSink sink, void* arg);

// Writes the difference as one line without line end to text[0..size-1], always terminated. Returns the length of the
// whole line. To be called in the sink.
size_t rtxDifferenceFormat(const RtxDifference* difference, char* text, size_t size);

// Where printed lines go: called with each piece of text in order, terminated.
typedef void (*RtxPrintSink)(void* arg, const char* text);

// Names the context whose trees asn1Print_<Type> prints on this thread: the printer follows no pointer that is not in
// this context's heap. Null ends it; so does rtFreeContext of that context on this thread.
void rtxPrintSetContext(const OSCTXT* pctxt);

#ifdef __cplusplus
}
#endif

#endif
