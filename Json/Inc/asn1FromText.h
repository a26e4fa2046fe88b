// Texts to element trees: JER (X.697) and flat lines, for every type of the schema. Valid C11 and C++20.
//
// Both calls read a value of the type into `value`, storage of that type of the caller's, which they clear first. What
// the tree needs besides comes from the context's heap: rtxMemHeapSetLimit bounds it. They throw nothing and keep
// nothing. A text without a mistake gives a tree that the encoder takes; with mistakes the tree is of no use.
#ifndef ASN1FROMTEXT_H
#define ASN1FROMTEXT_H

#include "asn1Runtime.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// A text of more octets is refused.
#define ASN1_MAX_TEXT 0x4000000

// Reading goes on behind a mistake and stops at this many.
#define ASN1_MAX_MISTAKES 50

// A mistake in a text. Both strings are terminated and live until the callback returns; neither ends its line.
typedef struct Asn1Mistake
{
    size_t offset;     // of its first octet in the text
    OSUINT32 line;     // from 1
    OSUINT32 column;   // in characters from 1
    const char* path;  // as in the encoder's errors: CellGroupConfig.rlc-BearerToAddModList[0].logicalChannelIdentity
    const char* words; // what is wrong and, where there is one, the nearest that would be right
} Asn1Mistake;

// Called once for each mistake, in the order of the text. Must not throw. May be null.
typedef void (*Asn1MistakeSink)(void* arg, const Asn1Mistake* mistake);

// Reads JER. Members come in any order, hexadecimal digits of either case; the names true and false of an enumeration
// may stand without quotes; comments, // to the end of a line and /* */, are passed over. `$unknownAdditions` and
// `$unknownAlternative` hold what another release has sent: docs/asn1.md. Returns the number of mistakes.
int asn1FromJson(OSCTXT* pctxt, const RtxType* type, void* value, const char* text, size_t length, Asn1MistakeSink sink,
                 void* arg);

// Reads flat lines, `path = value`, in any order: docs/asn1.md. Returns the number of mistakes.
int asn1FromFlat(OSCTXT* pctxt, const RtxType* type, void* value, const char* text, size_t length, Asn1MistakeSink sink,
                 void* arg);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
