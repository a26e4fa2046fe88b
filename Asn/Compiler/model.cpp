#include "model.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <limits>
#include <map>
#include <set>
#include <string_view>

namespace asncomp
{
namespace
{

// Of C11 and C++20, as far as an ASN.1 name can become one.
constexpr std::array keywords = std::to_array<std::string_view>({"alignas",
                                                                 "alignof",
                                                                 "and",
                                                                 "and_eq",
                                                                 "asm",
                                                                 "auto",
                                                                 "bitand",
                                                                 "bitor",
                                                                 "bool",
                                                                 "break",
                                                                 "case",
                                                                 "catch",
                                                                 "char",
                                                                 "char16_t",
                                                                 "char32_t",
                                                                 "char8_t",
                                                                 "class",
                                                                 "co_await",
                                                                 "co_return",
                                                                 "co_yield",
                                                                 "compl",
                                                                 "concept",
                                                                 "const",
                                                                 "const_cast",
                                                                 "consteval",
                                                                 "constexpr",
                                                                 "constinit",
                                                                 "continue",
                                                                 "decltype",
                                                                 "default",
                                                                 "delete",
                                                                 "do",
                                                                 "double",
                                                                 "dynamic_cast",
                                                                 "else",
                                                                 "enum",
                                                                 "explicit",
                                                                 "export",
                                                                 "extern",
                                                                 "false",
                                                                 "float",
                                                                 "for",
                                                                 "friend",
                                                                 "goto",
                                                                 "if",
                                                                 "inline",
                                                                 "int",
                                                                 "long",
                                                                 "mutable",
                                                                 "namespace",
                                                                 "new",
                                                                 "noexcept",
                                                                 "not",
                                                                 "not_eq",
                                                                 "nullptr",
                                                                 "operator",
                                                                 "or",
                                                                 "or_eq",
                                                                 "private",
                                                                 "protected",
                                                                 "public",
                                                                 "register",
                                                                 "reinterpret_cast",
                                                                 "requires",
                                                                 "restrict",
                                                                 "return",
                                                                 "short",
                                                                 "signed",
                                                                 "sizeof",
                                                                 "static",
                                                                 "static_assert",
                                                                 "static_cast",
                                                                 "struct",
                                                                 "switch",
                                                                 "template",
                                                                 "this",
                                                                 "thread_local",
                                                                 "throw",
                                                                 "true",
                                                                 "try",
                                                                 "typedef",
                                                                 "typeid",
                                                                 "typename",
                                                                 "union",
                                                                 "unsigned",
                                                                 "using",
                                                                 "virtual",
                                                                 "void",
                                                                 "volatile",
                                                                 "wchar_t",
                                                                 "while",
                                                                 "xor",
                                                                 "xor_eq"});

// What the runtime's header has taken.
constexpr std::array runtimeNames = std::to_array<std::string_view>({"ASN1BitStr32",
                                                                     "ASN1OpenType",
                                                                     "OSBOOL",
                                                                     "OSCTXT",
                                                                     "OSINT16",
                                                                     "OSINT32",
                                                                     "OSINT8",
                                                                     "OSOCTET",
                                                                     "OSRTDList",
                                                                     "OSRTDListNode",
                                                                     "OSUINT16",
                                                                     "OSUINT32",
                                                                     "OSUINT8",
                                                                     "RtxDecoded",
                                                                     "RtxDeltaItem",
                                                                     "RtxDeltaKind",
                                                                     "RtxDeltaOptions",
                                                                     "RtxDeltaReason",
                                                                     "RtxDeltaSink",
                                                                     "RtxDifference",
                                                                     "RtxDifferenceKind",
                                                                     "RtxDifferenceSink",
                                                                     "RtxDifferenceStep",
                                                                     "RtxError",
                                                                     "RtxField",
                                                                     "RtxFieldKind",
                                                                     "RtxFieldSink",
                                                                     "RtxFindingSink",
                                                                     "RtxFound",
                                                                     "RtxFoundSink",
                                                                     "RtxHeapBlock",
                                                                     "RtxLayout",
                                                                     "RtxNote",
                                                                     "RtxPathStep",
                                                                     "RtxPrintSink",
                                                                     "RtxProgress",
                                                                     "RtxStatus",
                                                                     "RtxType"});

std::string cIdentifier(std::string name)
{
    std::replace(name.begin(), name.end(), '-', '_');
    if (std::find(keywords.begin(), keywords.end(), name) != keywords.end())
    {
        name += '_';
    }
    return name;
}

struct Code
{
    std::string_view code;
    std::string_view absence; // enumerator of rtx::Absence
};
constexpr std::string_view fixedCode = "fixed";
constexpr std::array codes =
    std::to_array<Code>({{"M", "Keep"}, {"R", "Clear"}, {"S", "Default"}, {"N", "Action"}, {fixedCode, "Fixed"}});

// Members whose change a word can bind.
struct Holder
{
    std::string_view text;
    bool optional;
    bool (*fits)(const Member& member);
};

template <Kind kind>
bool isOf(const Member& member)
{
    return member.type->kind == kind;
}

constexpr Holder any = {"an OPTIONAL member", true,
                        [](const Member&)
                        {
                            return true;
                        }};
constexpr Holder sequence = {"an OPTIONAL SEQUENCE", true, isOf<Kind::Sequence>};
constexpr Holder choice = {"an OPTIONAL CHOICE", true, isOf<Kind::Choice>};
constexpr Holder setupRelease = {"an OPTIONAL CHOICE of 'release' and 'setup'", true,
                                 [](const Member& member)
                                 {
                                     return member.type->setupRelease();
                                 }};
constexpr Holder action = {"an OPTIONAL member of code N", true,
                           [](const Member& member)
                           {
                               return member.need.absence == "Action";
                           }};
constexpr Holder kept = {"an OPTIONAL member of code M", true,
                         [](const Member& member)
                         {
                             return member.need.absence == "Keep";
                         }};
constexpr Holder integer = {"a mandatory INTEGER", false, isOf<Kind::Integer>};
constexpr Holder enumeration = {"a mandatory ENUMERATED", false, isOf<Kind::Enumerated>};

struct Word
{
    std::string_view word;
    std::string_view change; // enumerator of rtx::Change
    const Holder& holder;
};
constexpr std::array conditionWords = std::to_array<Word>({{"setup", "Setup", any},
                                                           {"drb-setup", "DrbSetup", any},
                                                           {"mode", "Mode", choice},
                                                           {"creation", "Creation", kept},
                                                           {"creation-optional", "CreationOptional", kept},
                                                           {"switch", "Switch", action},
                                                           {"sync", "Sync", sequence},
                                                           {"reestablish", "Reestablish", kept},
                                                           {"kind", "Kind", kept},
                                                           {"fixed-kind", "FixedKind", kept},
                                                           {"usage", "Usage", enumeration},
                                                           {"pucch", "Pucch", setupRelease},
                                                           {"scell", "SCell", sequence},
                                                           {"inactive", "Inactive", setupRelease},
                                                           {"inactive-type2", "InactiveType2", setupRelease},
                                                           {"sul", "Sul", sequence},
                                                           {"mcg-release", "McgRelease", setupRelease},
                                                           {"identity", "Identity", integer}});

// Whether a list's name ends so; the schema writes both "ToReleaseList" and "ToreleaseList".
bool endsIn(std::string_view name, std::string_view end)
{
    return name.size() >= end.size() &&
           std::equal(end.begin(), end.end(), name.end() - end.size(),
                      [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

constexpr std::int64_t maxListCount = 65535;
constexpr std::int64_t maxBits = 65535;
constexpr unsigned maxNesting = 40;      // below the runtime's RTX_MAX_DEPTH
constexpr std::size_t maxFlags = 56;     // so that the decoder loads a bitmap with one word
constexpr std::size_t maxAdditions = 32; // so that their presence fits into one word
constexpr std::size_t maxIdentity = 128; // so that its index fits into an octet
constexpr std::size_t maxTypes = 20000;
constexpr std::size_t maxNameText = std::size_t{4} * 1024 * 1024; // octets, of all C names together

class Resolver
{
public:
    Resolver(const ast::Module& module, Diagnostics& diagnostics) : module_(module), diagnostics_(diagnostics) {}

    Model run()
    {
        model_.module = module_.name;
        constants();
        for (const ast::TypeAssignment& assignment : module_.types)
        {
            if (!assignments_.emplace(assignment.name, &assignment).second)
            {
                diagnostics_.error(assignment.at, "the type '" + assignment.name + "' is assigned twice");
            }
        }
        for (const ast::TypeAssignment& assignment : module_.types)
        {
            if (assignment.parameter.empty())
            {
                named(assignment, 0);
            }
        }
        return std::move(model_);
    }

private:
    struct Parameter
    {
        std::string name;
        const ast::Type* actual = nullptr;
        const Parameter* outer = nullptr; // what the actual parameter itself is read with
    };

    void constants()
    {
        for (const ast::ValueAssignment& assignment : module_.values)
        {
            if (!constants_.emplace(assignment.name, assignment.value).second)
            {
                diagnostics_.error(assignment.at, "the constant '" + assignment.name + "' is assigned twice");
            }
            if (assignment.value > std::numeric_limits<std::int32_t>::max() ||
                assignment.value < std::numeric_limits<std::int32_t>::min())
            {
                diagnostics_.error(assignment.at, "the constant '" + assignment.name + "' does not fit into 32 bits");
            }
            model_.constants.push_back({cName(assignment.name, assignment.at), assignment.value});
        }
    }

    // C names share one scope: two ASN.1 names that become the same C name are refused.
    std::string cName(const std::string& name, Location at)
    {
        std::string result = cIdentifier(name);
        if (tooLong_)
        {
            return result;
        }
        nameText_ += result.size();
        tooLong_ = nameText_ > maxNameText;
        if (tooLong_)
        {
            diagnostics_.error(at, "the C names become too long");
        }
        else if (!cNames_.insert(result).second)
        {
            diagnostics_.error(at, "the C name '" + result + "' would stand for two things");
        }
        return result;
    }

    std::int64_t value(const ast::Bound& bound)
    {
        if (bound.name.empty())
        {
            return bound.value;
        }
        const auto found = constants_.find(bound.name);
        if (found == constants_.end())
        {
            diagnostics_.error(bound.at, "the constant '" + bound.name + "' is not assigned");
            return 0;
        }
        return found->second;
    }

    void bounds(Type& type, const ast::Type& source, std::int64_t lowest, std::int64_t highest, const char* what)
    {
        type.lower = value(source.lower);
        type.upper = value(source.upper);
        if (type.lower > type.upper)
        {
            diagnostics_.error(source.lower.at, std::string("the ") + what + " is empty: " +
                                                    std::to_string(type.lower) + ".." + std::to_string(type.upper));
            type.upper = type.lower;
        }
        if (type.lower < lowest || type.upper > highest)
        {
            diagnostics_.error(source.lower.at, std::string("the ") + what + " is not within " +
                                                    std::to_string(lowest) + ".." + std::to_string(highest));
            type.lower = type.upper = std::max<std::int64_t>(lowest, 0);
        }
    }

    Type* named(const ast::TypeAssignment& assignment, unsigned nesting)
    {
        const auto known = named_.find(assignment.name);
        if (known != named_.end())
        {
            return known->second;
        }
        if (!open_.insert(assignment.name).second)
        {
            diagnostics_.error(assignment.at, "the type '" + assignment.name + "' contains itself");
            return nullptr;
        }
        Type* result = nullptr;
        if (assignment.type->kind == ast::Kind::Reference)
        {
            diagnostics_.error(assignment.type->at, "another name for a type is not supported");
        }
        else
        {
            result = build(*assignment.type, assignment.name, cName(assignment.name, assignment.at), nullptr, nesting);
        }
        if (result != nullptr)
        {
            result->named = true;
        }
        open_.erase(assignment.name);
        named_[assignment.name] = result;
        return result;
    }

    // Builds the type of a member, an element or an assignment; `name` is what it is called when it is new.
    Type* resolveType(const ast::Type& source, const std::string& name, const Parameter* parameter, unsigned nesting)
    {
        if (source.kind != ast::Kind::Reference)
        {
            return build(source, name, cName(name, source.at), parameter, nesting);
        }
        if (parameter != nullptr && parameter->name == source.name)
        {
            if (source.element != nullptr)
            {
                diagnostics_.error(source.at, "the type '" + source.name + "' takes no parameter");
                return nullptr;
            }
            return resolveType(*parameter->actual, name, parameter->outer, nesting);
        }
        const auto found = assignments_.find(source.name);
        if (found == assignments_.end())
        {
            diagnostics_.error(source.at, "the type '" + source.name + "' is not assigned");
            return nullptr;
        }
        const ast::TypeAssignment& assignment = *found->second;
        if (assignment.parameter.empty() != (source.element == nullptr))
        {
            diagnostics_.error(source.at, assignment.parameter.empty()
                                              ? "the type '" + source.name + "' takes no parameter"
                                              : "the type '" + source.name + "' wants a parameter");
            return nullptr;
        }
        if (source.element == nullptr)
        {
            return named(assignment, nesting);
        }
        const Parameter actual{assignment.parameter, source.element.get(), parameter};
        if (assignment.type->kind == ast::Kind::Reference)
        {
            diagnostics_.error(assignment.type->at, "another name for a type is not supported");
            return nullptr;
        }
        return build(*assignment.type, name, cName(name, source.at), &actual, nesting);
    }

    Type* build(const ast::Type& source, const std::string& asnName, const std::string& cName,
                const Parameter* parameter, unsigned nesting)
    {
        if (nesting > maxNesting)
        {
            diagnostics_.error(source.at, "types are nested too deeply");
            return nullptr;
        }
        if (tooLong_)
        {
            return nullptr; // reported
        }
        if (model_.store.size() >= maxTypes)
        {
            diagnostics_.error(source.at, "there are too many types");
            return nullptr;
        }
        Type& type = model_.store.emplace_back();
        type.asnName = asnName;
        type.cName = cName;
        type.at = source.at;
        switch (source.kind)
        {
        case ast::Kind::Boolean:
            type.kind = Kind::Boolean;
            break;
        case ast::Kind::Null:
            type.kind = Kind::Null;
            break;
        case ast::Kind::Integer:
            integer(type, source);
            break;
        case ast::Kind::Enumerated:
            enumerated(type, source);
            break;
        case ast::Kind::BitString:
            bitString(type, source);
            break;
        case ast::Kind::Sequence:
            sequence(type, source, parameter, nesting);
            break;
        case ast::Kind::Choice:
            choice(type, source, parameter, nesting);
            break;
        case ast::Kind::SequenceOf:
            sequenceOf(type, source, parameter, nesting);
            break;
        case ast::Kind::Reference:
            break; // resolved by the callers
        }
        if (type.depth > maxNesting)
        {
            diagnostics_.error(source.at, "types are nested too deeply");
            return nullptr;
        }
        model_.types.push_back(&type);
        return &type;
    }

    void integer(Type& type, const ast::Type& source)
    {
        type.kind = Kind::Integer;
        bounds(type, source, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max(),
               "range");
    }

    void enumerated(Type& type, const ast::Type& source)
    {
        type.kind = Kind::Enumerated;
        std::set<std::string> seen;
        for (const ast::Name& value : source.values)
        {
            if (!seen.insert(value.name).second)
            {
                diagnostics_.error(value.at, "the value '" + value.name + "' occurs twice");
            }
            cName(type.cName + "_" + value.name, value.at);
            type.values.push_back(value.name);
        }
        type.upper = static_cast<std::int64_t>(type.values.size()) - 1;
    }

    void bitString(Type& type, const ast::Type& source)
    {
        bounds(type, source, 1, maxBits, "size");
        if (type.lower != type.upper)
        {
            diagnostics_.error(source.at, "a BIT STRING of variable size is not supported");
        }
        constexpr std::int64_t shortest = 32;
        type.kind = type.upper <= shortest ? Kind::BitStr32 : Kind::BitOctets;
    }

    // `names` are the C names of the members before it.
    void member(Type& owner, const ast::Member& source, const Parameter* parameter, unsigned nesting,
                std::set<std::string>& names)
    {
        Member result;
        result.asnName = source.name;
        result.at = source.at;
        result.cName = cIdentifier(source.name);
        if (!names.insert(result.cName).second)
        {
            diagnostics_.error(source.at, "the name '" + source.name + "' occurs twice");
            return;
        }
        if (result.cName == "m" || result.cName == "extElem1")
        {
            diagnostics_.error(source.at, "the name '" + source.name + "' belongs to the generated structure");
        }
        result.type = resolveType(*source.type, owner.cName + "_" + result.cName, parameter, nesting + 1);
        if (result.type == nullptr)
        {
            return; // reported
        }
        owner.depth = std::max(owner.depth, result.type->depth + 1);
        if (owner.kind == Kind::Choice)
        {
            result.pointer = result.type->constructed() || result.type->kind == Kind::BitStr32;
        }
        else if (source.optional)
        {
            result.optional = true;
            result.flag = addFlag(owner, result.cName, source.at);
        }
        if (owner.kind == Kind::Sequence)
        {
            need(result, source);
        }
        if (!source.identity.member.name.empty())
        {
            identify(*result.type, source.identity.member);
        }
        if (result.type->kind == Kind::Null && owner.kind == Kind::Sequence && !source.optional)
        {
            diagnostics_.error(source.at, "a mandatory NULL member is not supported");
        }
        owner.members.push_back(result);
    }

    void need(Member& member, const ast::Member& source)
    {
        const ast::Need& need = source.need;
        member.need.condition = need.condition.name;
        if (source.optional && need.code.name.empty())
        {
            diagnostics_.error(source.at, "'" + source.name +
                                              "' is OPTIONAL: what its absence does is missing behind it, -- Need <M, "
                                              "R, S or N> or -- Cond <condition> (<M, R, S, N or fixed>)");
            return;
        }
        if (!source.optional && !need.code.name.empty())
        {
            diagnostics_.error(need.annotation.at, "'" + source.name + "' is not OPTIONAL: its absence does nothing");
            return;
        }
        if (!need.code.name.empty())
        {
            const auto code =
                std::find_if(codes.begin(), codes.end(), [&](const Code& c) { return c.code == need.code.name; });
            if (code == codes.end())
            {
                diagnostics_.error(need.code.at,
                                   "unknown need code '" + need.code.name + "': " + listOf(codes, &Code::code));
                return;
            }
            if (code->code == fixedCode && need.condition.name.empty())
            {
                diagnostics_.error(need.code.at, "what fixes the presence is missing: -- Cond <condition> (fixed)");
            }
            member.need.absence = code->absence;
        }
        if (!need.word.name.empty())
        {
            change(member, need.word);
        }
    }

    void change(Member& member, const ast::Name& source)
    {
        const auto word = std::find_if(conditionWords.begin(), conditionWords.end(),
                                       [&](const Word& w) { return w.word == source.name; });
        const auto refuse = [&](const std::string& reason)
        {
            diagnostics_.error(source.at, reason);
        };
        if (word == conditionWords.end())
        {
            refuse("unknown word '" + source.name + "': " + listOf(conditionWords, &Word::word));
        }
        else if (word->holder.optional != member.optional || !word->holder.fits(member))
        {
            refuse("'" + source.name + "' binds " + std::string(word->holder.text));
        }
        else
        {
            member.need.change = word->change;
        }
    }

    template <typename Table, typename Field>
    static std::string listOf(const Table& table, Field field)
    {
        std::string result;
        for (const auto& row : table)
        {
            result += result.empty() ? "" : ", ";
            result += row.*field;
        }
        return result + " are known";
    }

    // Sets what identifies the elements of a list. The parser has seen that the list is the member's own.
    void identify(Type& list, const ast::Name& source)
    {
        if (list.element == nullptr)
        {
            return; // reported
        }
        const Type& element = *list.element;
        if (list.kind == Kind::Array)
        {
            if (source.name != element.asnName)
            {
                diagnostics_.error(source.at,
                                   "the elements are of type '" + element.asnName + "', not '" + source.name + "'");
            }
            list.identity = ownIdentity;
            return;
        }
        const auto found = std::find_if(element.members.begin(), element.members.end(),
                                        [&](const Member& m) { return m.asnName == source.name; });
        if (element.kind != Kind::Sequence || found == element.members.end())
        {
            diagnostics_.error(source.at,
                               "the elements, of type '" + element.asnName + "', have no member '" + source.name + "'");
            return;
        }
        const auto index = static_cast<std::size_t>(found - element.members.begin());
        const bool number = found->type->kind == Kind::Integer || found->type->kind == Kind::Enumerated;
        if (!number || found->optional || index >= std::min(maxIdentity, element.rootCount))
        {
            diagnostics_.error(source.at, "the member '" + source.name +
                                              "' is no identity: that is a mandatory INTEGER "
                                              "or ENUMERATED among the first " +
                                              std::to_string(maxIdentity) + " members");
            return;
        }
        list.identity = static_cast<int>(index);
    }

    // Lists that add elements one by one have partners that release them by what identifies them.
    void pair(Type& owner, const std::vector<ast::Member>& members)
    {
        for (const ast::Member& m : members)
        {
            if (!m.identity.release.name.empty())
            {
                pair(owner, m.name, m.identity.release);
            }
            else if (endsIn(m.name, "ToAddModList") || endsIn(m.name, "ToAddList"))
            {
                diagnostics_.error(m.at, "the elements of '" + m.name +
                                             "' are added one by one: -- Identity <member>, released by <list> is "
                                             "missing behind it");
            }
        }
    }

    void pair(Type& owner, const std::string& name, const ast::Name& source)
    {
        Member* const list = find(owner, name);
        if (list == nullptr || list->type->identity == noIdentity)
        {
            return; // reported
        }
        const Type* const wanted =
            list->type->identity == ownIdentity
                ? list->type->element
                : list->type->element->members[static_cast<std::size_t>(list->type->identity)].type;
        Member* const release = find(owner, source.name);
        if (release == nullptr)
        {
            diagnostics_.error(source.at, "there is no member '" + source.name + "' beside '" + name + "'");
        }
        else if (release->type->element != wanted)
        {
            diagnostics_.error(source.at, "'" + source.name + "' is not a list of '" + wanted->asnName +
                                              "', which identifies the elements of '" + name + "'");
        }
        else if (release == list || !list->need.list.empty() || !release->need.list.empty())
        {
            diagnostics_.error(source.at, "'" + source.name + "' and '" + name +
                                              "' are no pair: one that only releases and one that only adds");
        }
        else
        {
            list->need.list = "AddMod";
            list->need.partner = static_cast<int>(release - owner.members.data());
            release->need.list = "Release";
            release->need.partner = static_cast<int>(list - owner.members.data());
        }
    }

    // What is added and released one by one is an action; each list that releases has its partner.
    void checkLists(const Type& owner)
    {
        for (const Member& m : owner.members)
        {
            if (!m.need.list.empty() && m.need.absence != "Action")
            {
                diagnostics_.error(m.at, "the elements of '" + m.asnName +
                                             "' are added or released one by one: it is OPTIONAL, of code N");
            }
            if (m.need.list.empty() && endsIn(m.asnName, "ToReleaseList"))
            {
                diagnostics_.error(m.at, "no list has elements that '" + m.asnName +
                                             "' releases: -- Identity <member>, released by " + m.asnName +
                                             " is missing behind it");
            }
        }
    }

    template <typename Owner>
    static auto find(Owner& owner, const std::string& member) -> decltype(owner.members.data())
    {
        const auto found = std::find_if(owner.members.begin(), owner.members.end(),
                                        [&](const Member& m) { return m.asnName == member; });
        return found == owner.members.end() ? nullptr : &*found;
    }

    int addFlag(Type& owner, const std::string& name, Location at)
    {
        if (owner.flags.size() == maxFlags)
        {
            diagnostics_.error(at, "there are too many optional members");
            return 0;
        }
        owner.flags.push_back(name);
        return static_cast<int>(owner.flags.size()) - 1;
    }

    void sequence(Type& type, const ast::Type& source, const Parameter* parameter, unsigned nesting)
    {
        type.kind = Kind::Sequence;
        type.extensible = source.extensible;
        std::set<std::string> names;
        for (const ast::Member& m : source.members)
        {
            member(type, m, parameter, nesting, names);
        }
        type.rootCount = type.members.size();
        if (source.additions.size() > maxAdditions)
        {
            diagnostics_.error(source.additions[maxAdditions].at, "there are too many extension additions");
        }
        unsigned version = 2;
        for (const ast::Addition& a : source.additions)
        {
            Addition addition;
            addition.first = type.members.size();
            if (a.group)
            {
                addition.flagName = "_v" + std::to_string(version++) + "Ext";
                addition.flag = addFlag(type, addition.flagName, a.at);
            }
            else if (!a.members.front().optional)
            {
                diagnostics_.error(a.at, "a lone extension addition has to be OPTIONAL");
            }
            for (const ast::Member& m : a.members)
            {
                member(type, m, parameter, nesting, names);
            }
            addition.count = type.members.size() - addition.first;
            type.additions.push_back(addition);
        }
        pair(type, source.members);
        for (const ast::Addition& a : source.additions)
        {
            pair(type, a.members);
        }
        checkLists(type);
        if (source.members.empty() && !source.extensible)
        {
            diagnostics_.error(source.at, "a SEQUENCE without members is not supported");
        }
    }

    void choice(Type& type, const ast::Type& source, const Parameter* parameter, unsigned nesting)
    {
        type.kind = Kind::Choice;
        type.extensible = source.extensible;
        std::set<std::string> names;
        for (const ast::Member& m : source.members)
        {
            member(type, m, parameter, nesting, names);
        }
        type.rootCount = type.members.size();
        for (const ast::Addition& a : source.additions)
        {
            member(type, a.members.front(), parameter, nesting, names);
        }
        if (source.members.empty())
        {
            diagnostics_.error(source.at, "a CHOICE without alternatives is not supported");
        }
        for (const Member& m : type.members)
        {
            cName("T_" + type.cName + "_" + m.cName, source.at);
        }
    }

    void sequenceOf(Type& type, const ast::Type& source, const Parameter* parameter, unsigned nesting)
    {
        type.kind = Kind::List;
        bounds(type, source, 0, maxListCount, "size");
        if (type.upper == 0)
        {
            diagnostics_.error(source.at, "a list that is always empty is not supported");
        }
        type.element = resolveType(*source.element, type.cName + "_element", parameter, nesting + 1);
        if (type.element == nullptr)
        {
            return; // reported
        }
        type.depth = type.element->depth + 1;
        if (type.element->kind == Kind::Integer || type.element->kind == Kind::Enumerated)
        {
            type.kind = Kind::Array;
        }
        if (type.element->kind == Kind::Null || type.element->kind == Kind::Boolean ||
            type.element->kind == Kind::BitStr32 || type.element->kind == Kind::BitOctets)
        {
            diagnostics_.error(source.at, "a list of this type is not supported");
        }
    }

    const ast::Module& module_;
    Diagnostics& diagnostics_;
    Model model_;
    std::map<std::string, std::int64_t> constants_;
    std::map<std::string, const ast::TypeAssignment*> assignments_;
    std::map<std::string, Type*> named_; // null for a type that was refused
    std::set<std::string> open_;         // being built
    std::set<std::string> cNames_{runtimeNames.begin(), runtimeNames.end()};
    std::size_t nameText_ = 0;
    bool tooLong_ = false;
};

} // namespace

unsigned bitsFor(std::int64_t range)
{
    unsigned bits = 0;
    for (; range > 0; range /= 2)
    {
        ++bits;
    }
    return bits;
}

unsigned Type::width() const
{
    const auto fits = [this](std::int64_t low, std::int64_t high)
    {
        return lower >= low && upper <= high;
    };
    if (kind == Kind::Array)
    {
        return upper <= 0xFF ? 1 : 2;
    }
    if (lower < 0)
    {
        return fits(-0x80, 0x7F) ? 1 : fits(-0x8000, 0x7FFF) ? 2 : 4;
    }
    return upper <= 0xFF ? 1 : upper <= 0xFFFF ? 2 : 4;
}

bool Type::mayBeEmpty() const
{
    return kind == Kind::Sequence &&
           std::all_of(members.begin(), members.begin() + static_cast<std::ptrdiff_t>(rootCount),
                       [](const Member& m) { return m.optional; });
}

bool Type::setupRelease() const
{
    return kind == Kind::Choice && !extensible && members.size() == 2 && members[0].asnName == "release" &&
           members[0].type->kind == Kind::Null && members[1].asnName == "setup";
}

const Type* Model::find(const std::string& asnName) const
{
    const auto found =
        std::find_if(types.begin(), types.end(), [&](const Type* t) { return t->named && t->asnName == asnName; });
    return found == types.end() ? nullptr : *found;
}

Model resolve(const ast::Module& module, Diagnostics& diagnostics)
{
    return Resolver(module, diagnostics).run();
}

} // namespace asncomp
