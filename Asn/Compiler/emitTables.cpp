// The descriptors that the decoder and the printer walk.
#include "emitter.h"

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

bool hasStorage(const Type& choice)
{
    for (const Member& member : choice.members)
    {
        if (member.type->kind != Kind::Null)
        {
            return true;
        }
    }
    return choice.extensible;
}

std::string memberTable(const Type& type)
{
    std::string out = "const Member members_" + type.cName + "[] = {\n";
    for (const Member& member : type.members)
    {
        const bool stored = type.kind == Kind::Sequence && member.type->kind != Kind::Null;
        out += "    {\"" + member.asnName + "\", &type_" + member.type->cName + ", " +
               (stored ? "offsetof(" + type.cName + ", " + member.cName + ")" : std::string("0")) + ", " +
               std::to_string(member.flag) + ", " + (member.pointer ? "true" : "false") + "},\n";
    }
    return out + "};\n";
}

std::string additionTable(const Type& type)
{
    std::string out = "const Addition additions_" + type.cName + "[] = {";
    for (const Addition& addition : type.additions)
    {
        out += "{" + std::to_string(addition.flag) + ", " + std::to_string(addition.first) + ", " +
               std::to_string(addition.count) + "}, ";
    }
    return out + "};\n";
}

std::string nameTable(const Type& type)
{
    std::string out = "const char* const names_" + type.cName + "[] = {";
    for (const std::string& value : type.values)
    {
        out += "\"" + value + "\", ";
    }
    return out + "};\n";
}

std::string table(const Type& type)
{
    std::string before;
    std::string fields =
        ".name = \"" + type.asnName + "\", .kind = Kind::" + kindName(type.kind) + ", .width = " +
        std::to_string(type.kind == Kind::Integer || (type.kind == Kind::Array && !type.fixedSize()) ? type.width()
                                                                                                     : 0) +
        ", .extensible = " + (type.extensible ? "true" : "false") + ", .size = " + size(type) +
        ", .lower = " + std::to_string(type.lower) + ", .upper = " + std::to_string(type.upper);
    switch (type.kind)
    {
    case Kind::Array:
        fields += ", .elements = offsetof(" + type.cName + ", elem)";
        break;
    case Kind::Choice:
        fields += ", .elements = " + (hasStorage(type) ? "offsetof(" + type.cName + ", u)" : std::string("0"));
        break;
    default:
        fields += ", .elements = 0";
        break;
    }
    fields += ", .element = " + (type.element != nullptr ? "&type_" + type.element->cName : std::string("nullptr"));
    if (type.kind == Kind::Enumerated)
    {
        before += nameTable(type);
    }
    fields += ", .names = " + (type.kind == Kind::Enumerated ? "names_" + type.cName : std::string("nullptr"));
    if (!type.members.empty())
    {
        before += memberTable(type);
    }
    fields += ", .members = " + (type.members.empty() ? std::string("nullptr") : "members_" + type.cName) +
              ", .memberCount = " + std::to_string(type.members.size()) +
              ", .rootCount = " + std::to_string(type.rootCount);
    if (!type.additions.empty())
    {
        before += additionTable(type);
    }
    fields +=
        ", .additions = " + (type.additions.empty() ? std::string("nullptr") : "additions_" + type.cName) +
        ", .additionCount = " + std::to_string(type.additions.size()) + ", .extElem = " +
        (type.kind == Kind::Sequence && type.extensible ? "offsetof(" + type.cName + ", extElem1)" : std::string("0"));
    return "\n" + (before.empty() ? "" : "namespace\n{\n" + before + "} // namespace\n") + "const Type type_" +
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
                      "\"\n\n#include <cstddef>\n\nnamespace nr_rrc\n{\n\nusing rtx::Addition;\nusing "
                      "rtx::Kind;\nusing rtx::Member;\nusing "
                      "rtx::Type;\n";
    for (const Type* type : model.types)
    {
        out += table(*type);
    }
    return out + "\n} // namespace nr_rrc\n";
}

} // namespace asncomp
