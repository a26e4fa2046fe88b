// explain: what the schema says of a place, from the descriptors alone; what a rule says, from the table of rules.
#include "commands.h"
#include "explainRecord.h"
#include "messageTypes.h"
#include "nearest.h"
#include "rows.h"
#include "rrcRecordType.h"
#include "ruleTable.h"
#include "schemaPath.h"
#include "style.h"
#include "version.h"

#include <algorithm>

namespace tool
{
namespace
{

std::string range(std::int64_t lower, std::int64_t upper)
{
    return lower == upper ? std::to_string(lower) : std::to_string(lower) + ".." + std::to_string(upper);
}

bool isNamed(const RtxType& type)
{
    const RtxPdu* const pdu = findType(type.name);
    return pdu != nullptr && pdu->type == &type;
}

std::string nameOrText(const RtxType& type);

// In X.680's words, without the members.
std::string typeText(const RtxType& type)
{
    switch (type.kind)
    {
    case rtx::Kind::Boolean:
        return "BOOLEAN";
    case rtx::Kind::Null:
        return "NULL";
    case rtx::Kind::Integer:
        return "INTEGER (" + range(type.lower, type.upper) + ")";
    case rtx::Kind::Enumerated:
        return "ENUMERATED";
    case rtx::Kind::BitStr32:
    case rtx::Kind::BitOctets:
        return "BIT STRING (SIZE (" + std::to_string(type.upper) + "))";
    case rtx::Kind::Sequence:
        return type.extensible ? "SEQUENCE, extensible" : "SEQUENCE";
    case rtx::Kind::Choice:
        return type.extensible ? "CHOICE, extensible" : "CHOICE";
    case rtx::Kind::Array:
    case rtx::Kind::List:
        break;
    }
    return "SEQUENCE (SIZE (" + range(type.lower, type.upper) + ")) OF " + nameOrText(type.element());
}

std::string nameOrText(const RtxType& type)
{
    return isNamed(type) ? type.name : typeText(type);
}

std::string fullText(const RtxType& type)
{
    return isNamed(type) ? std::string(type.name) + ", " + typeText(type) : typeText(type);
}

bool isOptional(const SchemaPlace& place)
{
    return place.owner != nullptr && place.owner->kind == rtx::Kind::Sequence &&
           place.owner->members[place.number].flag >= 0;
}

std::string presence(const SchemaPlace& place)
{
    if (place.owner == nullptr)
    {
        return "";
    }
    switch (place.owner->kind)
    {
    case rtx::Kind::Choice:
        return "one of " + std::to_string(place.owner->memberCount) + " alternatives";
    case rtx::Kind::Sequence:
        return isOptional(place) ? "OPTIONAL" : "mandatory";
    default:
        return "an element, " + range(place.owner->lower, place.owner->upper) + " of them";
    }
}

// "V15.3.0" of a name that ends in "-v1530", "Release 16" of one that ends in "-r16"; else empty.
std::string versionIn(std::string_view name)
{
    const auto digit = [](char c)
    {
        return c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'z' ? c - 'a' + 10 : -1;
    };
    const std::size_t dash = name.rfind('-');
    const std::string_view suffix = dash == std::string_view::npos ? "" : name.substr(dash + 1);
    const auto hasDigits = [&](std::size_t count)
    {
        return suffix.size() == count + 1 &&
               std::all_of(suffix.begin() + 1, suffix.end(), [&](char c) { return digit(c) >= 0; }) &&
               digit(suffix[1]) < 10 && digit(suffix[2]) < 10;
    };
    if (suffix.starts_with('v') && hasDigits(4))
    {
        return "V" + std::string(suffix.substr(1, 2)) + "." + std::to_string(digit(suffix[3])) + "." +
               std::to_string(digit(suffix[4]));
    }
    return suffix.starts_with('r') && hasDigits(2) ? "Release " + std::string(suffix.substr(1)) : "";
}

// What holds of a place holds of all below it: the innermost extension came last.
std::string since(const std::vector<SchemaPlace>& trail)
{
    for (auto place = trail.rbegin(); place != trail.rend(); ++place)
    {
        if (place->owner == nullptr || !hasMembers(*place->owner) || place->number < place->owner->rootCount)
        {
            continue;
        }
        const std::string from = versionIn(place->owner->names[place->number]);
        const std::string group = place->owner->kind == rtx::Kind::Sequence
                                      ? "[[" + std::to_string(additionOf(*place->owner, place->number)) + "]] of "
                                      : "an added alternative of ";
        return (from.empty() ? "added later" : from) + ", in extension " + group + std::prev(place.base(), 2)->path;
    }
    return std::string(release) + ", from the start";
}

class Explanation
{
public:
    Explanation(Session& session, const std::vector<SchemaPlace>& trail)
        : session_(session), trail_(trail), place_(trail.back())
    {
    }

    void write(bool tree)
    {
        const RtxType& type = *place_.type;
        session_.put(styled(place_.path, Style::Bold, session_.color()) + "\n");
        row("type", fullText(type));
        if (const std::string bits = bitsText(type); !bits.empty())
        {
            row("on the wire", bits);
        }
        if (type.kind == rtx::Kind::Enumerated)
        {
            values(type);
        }
        if (const std::string text = presence(place_); !text.empty())
        {
            row("presence", text);
        }
        row("since", since(trail_));
        if (tree)
        {
            below(place_, 1);
            return;
        }
        const RtxType& content = isList(type) ? type.element() : type;
        if (hasMembers(content))
        {
            members(isList(type) ? memberPlace(place_, 0) : place_);
        }
    }

private:
    void row(std::string_view label, const std::string& text)
    {
        session_.put(tool::row(label, text));
    }

    static std::string bitsText(const RtxType& type)
    {
        unsigned bits = 0;
        switch (type.kind)
        {
        case rtx::Kind::Boolean:
            bits = 1;
            break;
        case rtx::Kind::Integer:
        case rtx::Kind::Enumerated:
            bits = rtx::bitsFor(static_cast<std::uint32_t>(type.upper) - static_cast<std::uint32_t>(type.lower));
            break;
        case rtx::Kind::BitStr32:
        case rtx::Kind::BitOctets:
            bits = static_cast<unsigned>(type.upper);
            break;
        default:
            return "";
        }
        return std::to_string(bits) + (bits == 1 ? " bit" : " bits");
    }

    // "0 ms50, 1 ms100, ...", wrapped.
    void values(const RtxType& type)
    {
        std::string line;
        std::string_view label = "values";
        for (std::int32_t i = 0; i <= type.upper; ++i)
        {
            const std::string value = std::to_string(i) + " " + type.names[i] + (i == type.upper ? "" : ",");
            if (!line.empty() && line.size() + value.size() > rowWidth)
            {
                row(label, line);
                label = "";
                line.clear();
            }
            line += (line.empty() ? "" : " ") + value;
        }
        row(label, line);
    }

    static std::string mark(const SchemaPlace& place)
    {
        const unsigned addition = place.owner->kind == rtx::Kind::Sequence ? additionOf(*place.owner, place.number)
                                  : place.number >= place.owner->rootCount ? 1
                                                                           : 0;
        const std::string extension = addition == 0 ? ""
                                      : place.owner->kind == rtx::Kind::Sequence
                                          ? "  [[" + std::to_string(addition) + "]]"
                                          : "  added";
        return (isOptional(place) ? "  OPTIONAL" : "") + extension;
    }

    void line(const SchemaPlace& place, std::size_t depth, std::size_t column)
    {
        const std::string name = place.owner->names[place.number];
        session_.put(std::string(2 * depth, ' ') + name + std::string(column - name.size(), ' ') +
                     nameOrText(*place.type) + mark(place) + "\n");
    }

    static std::size_t column(const RtxType& type)
    {
        std::size_t longest = 0;
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            longest = std::max(longest, std::string_view(type.names[i]).size());
        }
        return longest + 2;
    }

    void members(const SchemaPlace& owner)
    {
        session_.put(owner.type->kind == rtx::Kind::Choice ? "  alternatives\n" : "  members\n");
        for (unsigned i = 0; i < owner.type->memberCount; ++i)
        {
            line(memberPlace(owner, i), 2, column(*owner.type));
        }
    }

    void below(const SchemaPlace& place, std::size_t depth)
    {
        SchemaPlace content = place;
        while (isList(*content.type))
        {
            content = memberPlace(content, 0);
        }
        for (unsigned i = 0; hasMembers(*content.type) && i < content.type->memberCount; ++i)
        {
            const SchemaPlace member = memberPlace(content, i);
            line(member, depth, column(*content.type));
            below(member, depth + 1);
        }
    }

    Session& session_;
    const std::vector<SchemaPlace>& trail_;
    const SchemaPlace& place_;
};

void listTypes(Session& session)
{
    std::vector<std::string> names;
    for (const RtxPdu& pdu : rtxPdus)
    {
        names.emplace_back(pdu.name);
    }
    std::sort(names.begin(), names.end());
    for (const std::string& name : names)
    {
        session.put(name + "\n");
    }
}

[[noreturn]] void nothingNamed(const std::string& name)
{
    std::vector<std::string_view> known = ruleIds();
    for (const RtxPdu& pdu : rtxPdus)
    {
        known.emplace_back(pdu.name);
        const RtxType& type = *pdu.type;
        if (hasMembers(type))
        {
            known.insert(known.end(), type.names, type.names + type.memberCount);
        }
    }
    for (unsigned i = 0; i < rrcRecordTypeCount; ++i)
    {
        const RrcRecordType& type = *rrcRecordTypes[i];
        known.emplace_back(type.name);
        for (unsigned j = 0; j < type.fieldCount; ++j)
        {
            known.emplace_back(type.fields[j].name);
        }
        for (unsigned j = 0; j < type.bitCount; ++j)
        {
            known.emplace_back(type.bits[j].name);
        }
    }
    const auto close = text::nearest(name, known);
    throw Failure(Exit::Usage, "there is no rule, type, member or field '" + name + "'" +
                                   (close ? "; did you mean " + std::string(*close) + "?" : ""));
}

// A single name that is no type may be a member's.
bool explainMember(Session& session, const std::string& name, bool tree)
{
    const std::vector<SchemaPlace> places = placesNamed(*typeNamed("CellGroupConfig").type, name);
    if (places.size() == 1)
    {
        Explanation(session, findPlaces(places[0].path)).write(tree);
        return true;
    }
    for (const SchemaPlace& place : places)
    {
        session.put(place.path + "\n");
    }
    return !places.empty();
}

} // namespace

void explain(Session& session, const std::string& name, bool tree)
{
    if (name.empty())
    {
        listTypes(session);
        return;
    }
    if (const RrcRule* const rule = rrcRuleById(name.c_str()))
    {
        session.put(ruleText(*rule, session.color()));
        return;
    }
    if (const RrcRecordRule* const rule = rrcRecordRuleById(name.c_str()))
    {
        session.put(recordRuleText(*rule, session.color()));
        return;
    }
    if (const IdWords words = wordsOf(name); !words.statement.empty())
    {
        session.put(idText(name, words, session.color()));
        return;
    }
    const std::string begin = name.substr(0, name.find_first_of(".["));
    const bool isWord = begin == name;
    try
    {
        if (findType(begin) != nullptr)
        {
            Explanation(session, findPlaces(name)).write(tree);
            return;
        }
        if (!(isWord && explainMember(session, name, tree)) && !explainField(session, name))
        {
            nothingNamed(begin);
        }
    }
    catch (const PathError& error)
    {
        throw Failure(Exit::Usage, error.what());
    }
}

} // namespace tool
