// Element trees by their descriptors: read, built, copied and changed as the tests of deltas want them. What is said
// here of codes and words is TS 38.331 6.1.2 and the annotations of the schema, written without a look at the engine.
#ifndef TREES_H
#define TREES_H

#include "NR-RRC-Definitions.h"
#include "rtxTree.h"

#include <cstdint>
#include <string>
#include <vector>

namespace delta
{

using rtx::Absence;
using rtx::Change;
using rtx::Kind;
using rtx::ListRole;
using rtx::Need;
using rtx::Type;

using Octets = std::vector<OSOCTET>;

// A context whose heap lives as long as it does.
class Heap
{
public:
    Heap();
    ~Heap();
    Heap(const Heap&) = delete;
    Heap& operator=(const Heap&) = delete;

    // Cleared octets.
    void* allocate(size_t size);
    CellGroupConfig* tree();
    Octets encode(const void* tree);
    // Null, and the reason on the console, where the octets are no CellGroupConfig.
    CellGroupConfig* decode(const Octets& octets);

    OSCTXT ctxt;
};

const Type& root();

// Of a sequence's member.
const Need& need(const Type& type, unsigned index);
// Whether it is there, with its extension group.
bool has(const Type& type, const void* sequence, unsigned index);
void* at(const Type& type, void* sequence, unsigned index);
const void* at(const Type& type, const void* sequence, unsigned index);
// Sets the flags of a member and its group; the member is cleared.
void* put(const Type& type, void* sequence, unsigned index);
// Takes a member away, and its group when it was the last one.
void drop(const Type& type, void* sequence, unsigned index);
// Whether it may be absent: it or the group that it stands in is optional.
bool isOptional(const Type& type, unsigned index);
unsigned indexOf(const Type& type, const char* member);
bool isNamed(const char* name, const char* other);

// The number of a choice's alternative from 0, memberCount and more for one that is not known.
unsigned alternative(const void* choice);
void* content(const Type& type, void* choice);
const void* content(const Type& type, const void* choice);
// A cleared alternative.
void* choose(Heap& heap, const Type& type, void* choice, unsigned index);

std::vector<void*> elements(const Type& type, const void* list);
void setElements(Heap& heap, const Type& type, void* list, const std::vector<void*>& elements);
// Of an integer or an enumeration.
void setNumber(const Type& type, void* value, int64_t number);
int64_t identity(const Type& list, const void* element);
void setIdentity(const Type& list, void* element, int64_t id);
// Of the identities that a list's elements may have.
int64_t firstIdentity(const Type& list);
int64_t lastIdentity(const Type& list);

std::vector<ASN1OpenType*> additions(const Type& type, const void* sequence);
void addAddition(Heap& heap, const Type& type, void* sequence, OSUINT32 index, OSOCTET octet);

// What is around a place of the tree.
struct Where
{
    bool entry = false; // an entry of a list of entries that are added and modified
    bool drb = false;   // that of the bearer of a DRB
    bool sCell = false; // that of an SCell
};

bool isBearer(const Type& type);
bool isDrb(const Type& bearer, const void* entry);
// Around what an entry of the list holds.
Where inEntry(const Type& list, const void* entry);
// Whether an entry that is new has to have this member.
bool isDemanded(const Need& need, const Where& where);
bool isSetupRelease(const Type& type);
// Kept as it was carried last.
bool isOneShot(const Need& need);
// Done once, of which nothing is held.
bool isAction(const Need& need);

// Gives a cleared value what it has to have: mandatory members, and those that the creation of an entry asks for.
// Variants 0 and 1 differ wherever there are two values.
void fill(Heap& heap, const Type& type, void* value, unsigned variant, const Where& where);
void* make(Heap& heap, const Type& type, unsigned variant, const Where& where);
// An entry of a list.
void* makeEntry(Heap& heap, const Type& list, int64_t id, unsigned variant);
// Adds what creation asks for wherever an entry of a tree lacks it.
void complete(Heap& heap, const Type& type, void* value, const Where& where);

void copyTo(Heap& heap, const Type& type, const void* from, void* to);
CellGroupConfig* copy(Heap& heap, const CellGroupConfig* tree);

// Changes a value to another one, where there is one, in the least way: not what identifies an entry, no word. Returns
// whether it did.
bool vary(Heap& heap, const Type& type, void* value, const Where& where, int identity = rtx::noIdentity);
bool varyEntry(Heap& heap, const Type& list, void* entry);

// What a UE without any configuration holds after the message; or that and the actions that the message asks for.
CellGroupConfig* stateOf(Heap& heap, const CellGroupConfig* tree, bool actions = false);
// Where `wanted` has no one-shot, those of `held`; both are states.
void keepOneShots(Heap& heap, const Type& type, const void* held, void* wanted);

} // namespace delta

#endif
