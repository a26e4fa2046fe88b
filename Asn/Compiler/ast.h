// The schema as written: what the parser builds and the resolver reads.
#pragma once

#include "diagnostics.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace asncomp::ast
{

// A number, or the name of a value constant.
struct Bound
{
    std::string name; // empty for a number
    std::int64_t value = 0;
    Location at;
};

enum class Kind
{
    Boolean,
    Null,
    Integer,
    Enumerated,
    BitString,
    Sequence,
    SequenceOf,
    Choice,
    Reference, // `name`, with `element` as the actual parameter where there is one
};

struct Type;

struct Name
{
    std::string name; // empty for none
    Location at;
};

// -- Identity <member>, released by <list>
struct Identity
{
    Name member;  // of the list's elements, or the type of the elements where each is its own identity
    Name release; // the list beside it that releases elements by their identity
};

// -- Need <code>[, <word>], -- Cond <condition> (<code>[, <word>]), -- Change <word>
struct Need
{
    Name annotation; // its first word
    Name condition;
    Name code;
    Name word;
};

struct Member
{
    std::string name;
    Location at;
    std::unique_ptr<Type> type;
    bool optional = false;
    Identity identity;
    Need need;
};

// One extension addition: a group in double brackets, or a lone member.
struct Addition
{
    bool group = false;
    Location at;
    std::vector<Member> members;
};

struct Type
{
    Kind kind = Kind::Null;
    Location at;
    Bound lower; // Integer: range; SequenceOf, BitString: size
    Bound upper;
    std::vector<Name> values;        // Enumerated
    std::vector<Member> members;     // Sequence, Choice
    std::vector<Addition> additions; // Sequence, Choice
    bool extensible = false;         // Sequence, Choice
    std::string name;                // Reference
    std::unique_ptr<Type> element;   // SequenceOf, Reference
};

struct TypeAssignment
{
    std::string name;
    std::string parameter; // empty where the type takes none
    Location at;
    std::unique_ptr<Type> type;
};

struct ValueAssignment
{
    std::string name;
    Location at;
    std::int64_t value = 0;
};

struct Module
{
    std::string name;
    std::vector<TypeAssignment> types;
    std::vector<ValueAssignment> values;
};

} // namespace asncomp::ast
