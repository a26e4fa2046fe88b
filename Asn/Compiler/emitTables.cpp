// The descriptors that the decoder and the printer walk.
#include "emitter.h"

#include <algorithm>

namespace asncomp
{
namespace
{

std::string kindName(Kind kind)
{
    switch (kind)
    {
    case Kind::Boolean:
        return "Boolean";
    case Kind::Null:
        return "Null";
    case Kind::Integer:
        return "Integer";
    case Kind::Enumerated:
        return "Enumerated";
    case Kind::BitStr32:
        return "BitStr32";
    case Kind::BitOctets:
        return "BitOctets";
    case Kind::Sequence:
        return "Sequence";
    case Kind::Choice:
        return "Choice";
    case Kind::Array:
        return "Array";
    case Kind::List:
        return "List";
    }
    return "";
}

std::string size(const Type& type)
{
    switch (type.kind)
    {
    case Kind::Boolean:
        return "1";
    case Kind::Null:
        return "0";
    case Kind::Integer:
        return std::to_string(type.width());
    case Kind::Enumerated:
        return "4";
    case Kind::BitStr32:
        return "sizeof(ASN1BitStr32)";
    case Kind::BitOctets:
        return std::to_string((type.upper + 7) / 8);
    default:
        return "sizeof(" + type.cName + ")";
    }
}

std::string align(const Type& type)
{
    switch (type.kind)
    {
    case Kind::Boolean:
    case Kind::Null:
    case Kind::BitOctets:
        return "1";
    case Kind::Integer:
    case Kind::Enumerated:
        return size(type);
    case Kind::BitStr32:
        return "alignof(ASN1BitStr32)";
    default:
        return "alignof(" + type.cName + ")";
    }
}

// The union of a choice has no storage where every alternative is NULL.
std::string unionOffset(const Type& choice)
{
    const bool stored =
        choice.extensible || std::any_of(choice.members.begin(), choice.members.end(),
                                         [](const Member& member) { return member.type->kind != Kind::Null; });
    return stored ? "offsetof(" + choice.cName + ", u)" : "0";
}

std::string memberTable(const Type& type)
{
    std::string out = "constexpr Member members_" + type.cName + "[] = {\n";
    const auto row = [&](const Type& of, const std::string& rest)
    {
        out += "    member(type_" + of.cName + ", " + rest + "),\n";
    };
    for (const Member& member : type.members)
    {
        if (type.kind == Kind::Choice)
        {
            row(*member.type, unionOffset(type) + (member.pointer ? ", -1, true" : ""));
        }
        else
        {
            row(*member.type,
                (member.type->kind != Kind::Null ? "offsetof(" + type.cName + ", " + member.cName + ")" : "0") +
                    (member.flag >= 0 ? ", " + std::to_string(member.flag) : ""));
        }
    }
    if (type.element != nullptr)
    {
        row(*type.element, type.kind == Kind::Array ? "offsetof(" + type.cName + ", elem)" : "0");
    }
    return out + "};\n";
}

std::string additionTable(const Type& type)
{
    std::string out = "constexpr Addition additions_" + type.cName + "[] = {";
    for (const Addition& addition : type.additions)
    {
        out += "{" + std::to_string(addition.flag) + ", " + std::to_string(addition.first) + ", " +
               std::to_string(addition.count) + "}, ";
    }
    return out + "};\n";
}

std::string needTable(const Type& type)
{
    std::string out = "constexpr rtx::Need needs_" + type.cName + "[] = {\n";
    for (const Member& member : type.members)
    {
        const Need& need = member.need;
        std::string row;
        const auto field = [&](const char* name, const std::string& value)
        {
            row += (row.empty() ? "." : ", .") + std::string(name) + " = " + value;
        };
        const auto enumerator = [&](const char* name, const char* of, const std::string& value)
        {
            if (!value.empty())
            {
                field(name, of + ("::" + value));
            }
        };
        enumerator("absence", "Absence", need.absence);
        enumerator("change", "Change", need.change);
        enumerator("list", "ListRole", need.list);
        if (need.partner >= 0)
        {
            field("partner", std::to_string(need.partner));
        }
        if (!need.condition.empty())
        {
            field("condition", "\"" + need.condition + "\"");
        }
        out += "    {" + row + "},\n";
    }
    return out + "};\n";
}

// The names of the values or of the members.
std::vector<std::string> namesOf(const Type& type)
{
    std::vector<std::string> names = type.values;
    for (const Member& member : type.members)
    {
        names.push_back(member.asnName);
    }
    return names;
}

std::string nameTable(const Type& type, const std::vector<std::string>& names)
{
    std::string out = "const char* const names_" + type.cName + "[] = {";
    for (const std::string& name : names)
    {
        out += "\"" + name + "\", ";
    }
    return out + "};\n";
}

// What a sequence, a choice, a list or an array puts before its content.
std::size_t bits(const Type& type)
{
    switch (type.kind)
    {
    case Kind::Sequence:
        return static_cast<std::size_t>(
            std::count_if(type.members.begin(), type.members.begin() + static_cast<std::ptrdiff_t>(type.rootCount),
                          [](const Member& member) { return member.optional; }));
    case Kind::Choice:
        return bitsFor(static_cast<std::int64_t>(type.rootCount) - 1);
    case Kind::Array:
    case Kind::List:
        return bitsFor(type.upper - type.lower);
    default:
        return 0;
    }
}

// Whether a delta takes values of the type as they are: nothing in them is released, done once, settled at a creation
// or modified by an identity.
bool isPlain(const Type& type)
{
    const bool byIdentity = type.identity != noIdentity;
    return !byIdentity && !type.setupRelease() && (type.element == nullptr || isPlain(*type.element)) &&
           std::all_of(type.members.begin(), type.members.end(),
                       [&](const Member& member)
                       {
                           return member.need.change.empty() && member.need.list.empty() &&
                                  member.need.absence != "Action" && !member.pointer && isPlain(*member.type);
                       });
}

std::string table(const Type& type)
{
    std::string before;
    std::string fields = ".name = \"" + type.asnName + "\", .kind = Kind::" + kindName(type.kind);
    const auto field = [&](const char* name, const std::string& value)
    {
        fields += std::string(", .") + name + " = " + value;
    };
    if (type.kind == Kind::Integer || (type.kind == Kind::Array && !type.fixedSize()))
    {
        field("width", std::to_string(type.width()));
    }
    if (type.extensible)
    {
        field("extensible", "true");
    }
    if (const std::string alignment = align(type); alignment != "1")
    {
        field("align", alignment);
    }
    field("size", size(type));
    field("lower", std::to_string(type.lower));
    field("upper", std::to_string(type.upper));
    if (const std::vector<std::string> names = namesOf(type); !names.empty())
    {
        before += nameTable(type, names);
        field("names", "names_" + type.cName);
    }
    if (!type.members.empty() || type.element != nullptr)
    {
        before += memberTable(type);
        field("members", "members_" + type.cName);
        field("memberCount", std::to_string(type.element != nullptr ? 1 : type.members.size()));
        field("rootCount", std::to_string(type.element != nullptr ? 1 : type.rootCount));
    }
    if (type.setupRelease())
    {
        field("setupRelease", "true");
    }
    if ((!type.members.empty() || type.element != nullptr) && isPlain(type))
    {
        field("plain", "true");
    }
    if (!type.additions.empty())
    {
        before += additionTable(type);
        field("additions", "additions_" + type.cName);
        field("additionCount", std::to_string(type.additions.size()));
    }
    if (const std::size_t count = bits(type); count != 0)
    {
        field("bits", std::to_string(count));
    }
    if (type.identity != noIdentity)
    {
        field("identity", type.identity == ownIdentity ? "rtx::ownIdentity" : std::to_string(type.identity));
    }
    if (type.extensible)
    {
        field("extElem", type.kind == Kind::Sequence ? "offsetof(" + type.cName + ", extElem1)" : unionOffset(type));
    }
    if (std::any_of(type.members.begin(), type.members.end(), [](const Member& m) { return !m.need.usual(); }))
    {
        before += needTable(type);
        field("needs", "needs_" + type.cName);
    }
    return "\n" + (before.empty() ? "" : "namespace\n{\n" + before + "} // namespace\n") + "constexpr Type type_" +
           type.cName + " = {" + fields + "};\n";
}

} // namespace

std::string emitTablesHeader(const Model& model, const Origin& origin)
{
    std::string out = generatedMark(origin) + "#pragma once\n\n#include \"rtxType.h\"\n\nnamespace nr_rrc\n{\n\n";
    for (const Type* type : model.types)
    {
        out += "extern const rtx::Type type_" + type->cName + ";\n";
    }
    return out + "\n} // namespace nr_rrc\n";
}

std::string emitTables(const Model& model, const Origin& origin, const std::string& typesHeader)
{
    std::string out = generatedMark(origin) + "#include \"NR-RRC-Tables.h\"\n#include \"" + typesHeader +
                      "\"\n\n#include <cstddef>\n\nnamespace nr_rrc\n{\n\n";
    for (const char* const name : {"Absence", "Addition", "Change", "Kind", "ListRole", "Member", "member", "Type"})
    {
        out += std::string("using rtx::") + name + ";\n";
    }
    for (const Type* type : model.types)
    {
        out += table(*type);
    }
    return out + "\n} // namespace nr_rrc\n";
}

} // namespace asncomp
