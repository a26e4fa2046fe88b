// The resolved schema: every type has its bounds as numbers, its C name and its place in memory. The emitters only read
// it.
#pragma once

#include "ast.h"

#include <deque>

namespace asncomp
{

enum class Kind
{
    Boolean,
    Null,
    Integer,
    Enumerated,
    BitStr32,
    BitOctets,
    Sequence,
    Choice,
    Array, // SEQUENCE OF integers or enumerations
    List   // SEQUENCE OF anything else
};

struct Type;

// What the absence of an optional member does and what binds a change of it: the enumerators of rtx::Need's members,
// empty where they are the usual ones.
struct Need
{
    std::string absence;
    std::string change;
    std::string list;
    int partner = -1; // index of the list that releases the elements of this one, or the other way round
    std::string condition;

    bool usual() const
    {
        return absence.empty() && change.empty() && list.empty();
    }
};

struct Member
{
    std::string asnName;
    std::string cName;
    Location at;
    Type* type = nullptr;
    bool optional = false;
    bool pointer = false; // alternative of a choice held by pointer
    int flag = -1;        // number of its presence flag
    bool usual = true;    // optional member, alternative: carried by usual messages
    Need need;            // Sequence
};

struct Addition
{
    std::string flagName; // "_v2Ext" for a group, empty for a lone member
    int flag = -1;
    std::size_t first = 0; // index of its first member
    std::size_t count = 0;
};

constexpr int noIdentity = -1;
constexpr int ownIdentity = -2; // an element identifies itself

struct Type
{
    Kind kind = Kind::Null;
    std::string asnName; // as in the schema; a nested type has its C name
    std::string cName;
    bool named = false; // has an assignment of its own
    Location at;
    std::int64_t lower = 0; // value range, or range of the count; BitStr32, BitOctets: upper is the length
    std::int64_t upper = 0;
    std::vector<std::string> values; // Enumerated
    std::vector<Member> members;     // root members first
    std::size_t rootCount = 0;
    std::vector<Addition> additions;
    std::vector<std::string> flags; // in the order of their bits, without "Present"
    bool extensible = false;
    Type* element = nullptr;
    int identity = noIdentity; // Array, List: the index of the element's member that identifies it
    unsigned depth = 0;        // of the tree of types below it

    // Has a structure or a list of its own in memory.
    bool constructed() const
    {
        return kind >= Kind::Sequence;
    }
    // Can be a message of its own. NULL has no C type.
    bool canBePdu() const
    {
        return named && kind != Kind::Null;
    }
    // A list's count is not sent and not stored.
    bool fixedSize() const
    {
        return lower == upper;
    }
    // Octets of an integer's storage, or of an array's count.
    unsigned width() const;
    // Every member may be absent.
    bool mayBeEmpty() const;
    // Choice: of "release" and what "setup" sets.
    bool setupRelease() const;
};

struct Constant
{
    std::string cName;
    std::int64_t value = 0;
};

struct Model
{
    std::string module;
    std::vector<Constant> constants;
    std::deque<Type> store;
    std::vector<Type*> types; // every type once, in an order in which each comes after those that it holds by value

    const Type* find(const std::string& asnName) const;
};

// Bits that hold a value of 0..range.
unsigned bitsFor(std::int64_t range);

Model resolve(const ast::Module& module, Diagnostics& diagnostics);

} // namespace asncomp
