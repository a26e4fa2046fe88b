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

#pragma GCC visibility push(default)

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

// The octets of one extension addition that this schema's release does not know. numocts counts octets; the octets lie
// in the context's heap. A list of them, extElem1, holds those present; index is the addition's place behind those that
// the schema knows, the first is 0, and ascends. It means nothing in an unknown alternative of a choice.
typedef struct ASN1OpenType
{
    OSUINT32 numocts;
    OSUINT32 index;
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
    RTX_E_DEPTH = -17,     // the element tree is deeper than RTX_MAX_DEPTH
    RTX_E_DELTA = -18      // no delta brings such a change; value is the RtxDeltaReason
} RtxStatus;

#define RTX_MAX_DEPTH 48

// One step of a path: a member's ASN.1 name, or (name null) the index of a list's element or, where group is set, the
// number of an extension group, the first is 1: "[[1]]"; 0 stands for the bitmap that tells which there are: "[[...]]".
typedef struct RtxPathStep
{
    const char* name;
    OSUINT32 index;
    OSBOOL group;
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

// Why encoding a decoded message again would not give the same octets.
typedef enum RtxNote
{
    RTX_NOTE_NONE = 0,            // it would
    RTX_NOTE_EMPTY_EXTENSION = 1, // an extension is announced and no addition is there
    RTX_NOTE_BITMAP = 2,          // the bitmap of the additions is shorter or longer than this release's
    RTX_NOTE_EMPTY_GROUP = 3,     // an extension group without any member
    RTX_NOTE_SURPLUS = 4          // zero octets behind the content of an open type
} RtxNote;

// What the last decoding of a context has found besides the value.
typedef struct RtxDecoded
{
    size_t octets;       // of the message, up to its last; 0 after an error
    OSUINT32 unknown;    // additions and alternatives that this release does not know
    OSUINT8 note;        // RtxNote: the first one
    uint64_t noteOffset; // its bit
} RtxDecoded;

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
    RtxDecoded decoded;
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

// Flags of rtxDecode and rtxTrace.
#define RTX_DECODE_PREFIX 1U // other octets may follow the message: decoded.octets tells how many are its own
#define RTX_DECODE_STRICT                                                                                              \
    2U // an announced extension without additions and octets behind an open type's content are errors

// Decodes the bound buffer into *value, a structure of the type, and clears it first. Whatever an error leaves in it
// may be read as far as the error's path. Returns 0 or an RtxStatus; the context's `decoded` tells more.
int rtxDecode(OSCTXT* pctxt, const RtxType* type, void* value, unsigned flags);

// What a field on the wire is.
typedef enum RtxFieldKind
{
    RTX_FIELD_EXTENSION, // X.691 19.1, 23.5: the extension bit of a sequence or a choice
    RTX_FIELD_PRESENCE,  // 19.2: one bit for each optional member of a sequence's root or of an extension group
    RTX_FIELD_ADDITIONS, // 19.8: one bit for each extension addition
    RTX_FIELD_CHOICE,    // 23.6, 23.8: the number of the alternative
    RTX_FIELD_COUNT,     // 20.5: how many elements there are
    RTX_FIELD_LENGTH,    // 11.9: of an open type or of the bitmap of the additions
    RTX_FIELD_VALUE,     // of a simple type
    RTX_FIELD_PADDING,   // up to a whole octet, and zero octets behind it
    RTX_FIELD_UNKNOWN,   // octets of an addition or an alternative that this release does not know
    RTX_FIELD_SURPLUS,   // octets behind the message
    RTX_FIELD_UNREAD     // what an error has left
} RtxFieldKind;

// A field as the decoder comes to it. Everything in it lives until the sink returns, the value until rtFreeContext.
typedef struct RtxField
{
    OSUINT8 kind;            // RtxFieldKind
    OSUINT8 note;            // RtxNote that was raised since the field before
    uint64_t offset;         // its first bit in the message
    uint64_t width;          // in bits, 0 for a value that takes none
    uint64_t bits;           // its first 57 bits at most, as a number
    const RtxType* type;     // of the value, or of the sequence, choice or list that the field belongs to; or null
    const void* value;       // of that type; UNKNOWN: its ASN1OpenType; or null
    OSUINT32 group;          // PRESENCE: 0 for the root, else the number of the extension group
    OSUINT32 depth;          // steps of the path
    const RtxPathStep* path; // outermost step first; the type decoded is not one of them
} RtxField;

typedef void (*RtxFieldSink)(void* arg, const RtxField* field);

// rtxDecode that gives every field to the sink, in the order of the wire; the widths of all fields are the message, bit
// for bit, also after an error.
int rtxTrace(OSCTXT* pctxt, const RtxType* type, void* value, unsigned flags, RtxFieldSink sink, void* arg);

// The ASN.1 name of what bit `bit` of a presence or additions field announces, the first is 0: a member's, null for an
// extension group, for an addition that this release does not know and for a bit that the field does not have.
const char* rtxFieldBitName(const RtxField* field, OSUINT32 bit);

// A message within other octets: a length determinant (X.691 11.9) and behind it exactly that many octets.
typedef struct RtxFound
{
    uint64_t bit;        // of the length determinant
    uint64_t contentBit; // of the message's first octet; both may lie within an octet
    OSUINT32 octets;     // of the message, 1..16383
} RtxFound;

typedef void (*RtxFoundSink)(void* arg, const RtxFound* found);
// Called now and then with how many of the octets have been searched.
typedef void (*RtxProgress)(void* arg, size_t octets);

// Looks at every bit of `octets` octets, at most 512 MiB, for messages of the type: an octet string of at least `least`
// octets that decodes completely, strictly and with zero padding. Of those that overlap the longest is taken, of equal
// ones the first. Gives them to the sink in the order in which they lie. The context's heap holds the candidates and
// one octet for each searched. Returns how many were found, or an RtxStatus. `progress` may be null.
int64_t rtxFind(OSCTXT* pctxt, const RtxType* type, const OSOCTET* data, size_t octets, OSUINT32 least,
                RtxFoundSink sink, RtxProgress progress, void* arg);

// Copies the octets that begin at any bit to `to`.
void rtxCopyBits(OSOCTET* to, const OSOCTET* data, uint64_t bit, size_t octets);
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
    OSUINT32 indexA; // of the element in a's list, of an unknown addition its own; RTX_NO_INDEX where a lacks it
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
// size. A list takes 24 octets of *pctxtA's heap for each element of either tree and gives them back, unless the heap
// had to grow for them. `sink` may be null. Returns the number of differences, 0 for what is encoded alike; RTX_E_NULL
// without context, type or tree, RTX_E_HEAP when the heap is exhausted: not everything has been compared then.
int64_t rtxCompare(OSCTXT* pctxtA, const OSCTXT* pctxtB, const RtxType* type, const void* a, const void* b,
                   RtxDifferenceSink sink, void* arg);

// Writes the difference as one line without line end to text[0..size-1], always terminated. Returns the length of the
// whole line. To be called in the sink.
size_t rtxDifferenceFormat(const RtxDifference* difference, char* text, size_t size);

// Deltas between configurations (TS 38.331 6.1.2, 6.1.3, A.3.9). The trees are those of a type, mostly CellGroupConfig;
// what they point to lies in *pctxt's heap, and what is made does, too. The roots may lie anywhere, a result's root is
// the caller's, is cleared first and must not be an argument's. A result shares with the arguments what it takes over.
// Trees that the encoder would not take are refused with its error; errors stay in the context. docs/delta.md has more.

// Returns 1 when both trees are sent as the same octets, 0 when not; or an RtxStatus.
int rtxEqual(const OSCTXT* pctxt, const RtxType* type, const void* a, const void* b);

// What an item of a delta says of a member.
typedef enum RtxDeltaKind
{
    RTX_DELTA_SENT = 1, // the delta has it
    RTX_DELTA_RELEASED, // an entry of a list or a setup is released
    RTX_DELTA_LEFT_OUT, // its absence releases it
    RTX_DELTA_NOTICE,   // the delta brings it, with a reason to take care; or it releases what is not held
    RTX_DELTA_REFUSED   // no delta brings it
} RtxDeltaKind;

// Why.
typedef enum RtxDeltaReason
{
    RTX_DELTA_CHANGED = 1, // another value
    RTX_DELTA_ADDED,       // prev lacks it
    RTX_DELTA_GONE,        // next lacks it
    RTX_DELTA_STAYS,       // sent unchanged, as its absence beside a changed sibling would clear it
    RTX_DELTA_MANDATORY,   // sent unchanged, as it is mandatory where a sibling has changed
    RTX_DELTA_ACTION,      // Need N: done once, not stored
    RTX_DELTA_WITH_SYNC,   // sent unchanged, as its condition asks for it with reconfigurationWithSync
    RTX_DELTA_FORCED,      // an option asks for it
    RTX_DELTA_RECREATED,   // the entry is released and added again
    RTX_DELTA_FIRST,       // taken away by this delta, brought back by the next one
    RTX_DELTA_NOT_HELD,    // released, and not held: no effect
    RTX_DELTA_ACTIVE,      // only while no assignment or grant of it is active, or with reconfigurationWithSync
    RTX_DELTA_KEPT,        // its absence would keep it
    RTX_DELTA_AT_CREATION, // it is sent only when its entry is created
    RTX_DELTA_INCOMPLETE,  // the creation of its entry asks for it, and it is absent
    RTX_DELTA_FIXED_KIND,  // whether it is there stays as it is
    RTX_DELTA_MODE,        // the alternative stays as it is
    RTX_DELTA_REESTABLISH, // it changes with reestablishRLC, for a DRB with reconfigurationWithSync as well
    RTX_DELTA_USAGE,       // from codebook to nonCodebook and back
    RTX_DELTA_PUCCH,       // set up and released only with its bandwidth part or cell, or with reconfigurationWithSync
    RTX_DELTA_PUCCH_CELL,  // an SCell becomes one with PUCCH, or one without
    RTX_DELTA_SCG,         // it is never released in a secondary cell group
    RTX_DELTA_OTHER_IDENTITY // another cell group
} RtxDeltaReason;

// A member or an entry and what becomes of it. The path is kept from the innermost step outwards, as in RtxDifference;
// indices count in lists that are ordered by identity.
typedef struct RtxDeltaItem
{
    OSINT32 kind;          // RtxDeltaKind
    OSINT32 reason;        // RtxDeltaReason
    OSINT32 cause;         // RECREATED, FIRST: the RtxDeltaReason that asks for it
    char need;             // 'M', 'R', 'S', 'N', '-' where a condition without one decides; 0 for what is not optional
    const char* condition; // its name, null for a plain need code
    OSUINT32 ancestor;     // REFUSED: how many of the outermost steps lead to what could be released first; 0: nothing
    OSUINT32 depth;        // steps used
    RtxDifferenceStep path[RTX_MAX_DEPTH];
} RtxDeltaItem;

// One call for each item, in the order of the tree; the item is gone after the call.
typedef void (*RtxDeltaSink)(void* arg, const RtxDeltaItem* item);

// Writes the item as one line without line end to text[0..size-1], always terminated. Returns the length of the whole
// line.
size_t rtxDeltaFormat(const RtxDeltaItem* item, char* text, size_t size);

// What a delta may do to bring a change that cannot be brought inside an entry of a list: release the entry and add it
// again in the same message. Without these flags that is done for every list but those of RLC bearers, SCells and
// bandwidth parts.
#define RTX_DELTA_RECREATE_BEARERS 1U
#define RTX_DELTA_RECREATE_SCELLS 2U
#define RTX_DELTA_RECREATE_BWPS 4U
#define RTX_DELTA_RECREATE_NONE 8U // of no list
#define RTX_DELTA_TWO_STEPS 16U    // where nothing else helps: release it now, bring it back with the next delta
#define RTX_DELTA_SYNC 32U         // send reconfigurationWithSync also when it is what prev carried
#define RTX_DELTA_SWITCH 64U       // and the SpCell's firstActiveDownlinkBWP-Id and firstActiveUplinkBWP-Id

typedef struct RtxDeltaOptions
{
    unsigned flags;
    void* arg; // is handed to the sink
} RtxDeltaOptions;

// What rtxDiff returns besides an RtxStatus.
#define RTX_DELTA_TO_SEND 0
#define RTX_DELTA_NOTHING 1 // nothing to send; the delta is cleared
#define RTX_DELTA_MORE 2    // send the delta, then what rtxDiff makes of the state after it and rtxState(next)

// What a UE that held nothing holds after a complete message: no release lists, no actions (Need N), lists ordered by
// identity. The one-shot members reconfigurationWithSync, firstActiveDownlinkBWP-Id and firstActiveUplinkBWP-Id stay,
// as a record of what was sent last.
int rtxState(OSCTXT* pctxt, const RtxType* type, const void* value, void* state);

// What a UE that held prev (null: nothing) holds after the delta. Refuses a list that would become longer than its
// type allows, a new entry that lacks what its creation needs, another cellGroupId: RTX_E_SIZE, RTX_E_DELTA. The sink,
// which may be null, is told of releases of what is not held and of the refusal.
int rtxApply(OSCTXT* pctxt, const RtxType* type, const void* prev, const void* delta, void* next, RtxDeltaSink sink,
             void* arg);

// The smallest delta that takes a UE from prev (null: nothing) to next: rtxApply(prev, delta) is rtxState(next), in
// which the one-shot members that next does not carry stay as prev carried them. Actions in next are sent, and are not
// compared with prev's; equal trees need nothing, whatever they carry. `options` and `sink` may be null. The sink gets
// the items of the delta, or the one that is refused. Returns one of the values above; RTX_E_DELTA with the path in the
// context's error where no delta does it, or another RtxStatus.
int rtxDiff(OSCTXT* pctxt, const RtxType* type, const void* prev, const void* next, const RtxDeltaOptions* options,
            void* delta, RtxDeltaSink sink);

// Whether the delta (null: nothing was sent) does what rtxDiff promises: returns 1 when it does, 0 when not; or an
// RtxStatus.
int rtxDeltaHolds(OSCTXT* pctxt, const RtxType* type, const void* prev, const void* delta, const void* next);

// Where printed lines go: called with each piece of text in order, terminated.
typedef void (*RtxPrintSink)(void* arg, const char* text);

typedef enum RtxLayout
{
    RTX_COMPACT = 0, // on one line
    RTX_INDENTED = 1 // a line for each value, two blanks for each level
} RtxLayout;

// Writers of element trees. `value` is a tree of `type`: the root is the caller's, everything that it points to has to
// lie in *pctxt's heap, which may be null where there is no pointer; other pointers are not followed and said to be
// there. When pctxt's error is that of the decoder which has filled this very tree, what was never read is shown as not
// read. The text ends with a line end.
// Returns 0; or the status of the first thing that is not a value of its type, or RTX_E_NULL for a null argument. Also
// then everything is written, what has no notation as a text that says so; docs/asn1.md has the forms.

// JER (X.697). The text is valid JSON whatever the tree holds.
int rtxToJson(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxLayout layout, RtxPrintSink sink,
              void* arg);

// The value notation of X.680.
int rtxToValueNotation(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxLayout layout, RtxPrintSink sink,
                       void* arg);

// Flat lines: `path = value`, one for each value without members or elements.
int rtxToFlat(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxPrintSink sink, void* arg);

// What is remarked on a value without members or elements, at its place in the tree: one line of text, which lives
// until the next call; null or empty: nothing.
typedef const char* (*RtxRemark)(void* arg, const RtxType* type, const void* value);

// Flat lines with what is remarked behind their values, as a comment: `path = value  # remark`.
int rtxToFlatWithRemarks(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxRemark remark, void* remarkArg,
                         RtxPrintSink sink, void* arg);

// Names the context whose trees asn1Print_<Type> prints on this thread: the printer follows no pointer that is not in
// this context's heap. Null ends it; so does rtFreeContext of that context on this thread.
void rtxPrintSetContext(const OSCTXT* pctxt);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
