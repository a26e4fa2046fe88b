// example: records to begin with, as JSON.
#include "example.h"

#include "commands.h"
#include "nearest.h"
#include "octets.h"
#include "oneBearer.h"
#include "reconfigurationWithSync.h"
#include "recordPath.h"
#include "releases.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordJson.h"
#include "rtxType.h"
#include "schemaPath.h"
#include "secondaryCells.h"
#include "typicalCall.h"

#include <algorithm>
#include <memory>

namespace tool
{
namespace
{

struct Example
{
    std::string_view name;
    std::string_view words;
    void (*fill)(RrcCellGroupCfg_t&);
};

constexpr Example examples[] = {
    {"one-bearer", "a bearer with its logical channel, MAC and physical cell group", oneBearer},
    {"reconfiguration-with-sync", "the same with a handover", reconfigurationWithSync},
    {"typical-call", "a handover and the whole dedicated configuration of the special cell", typicalCall},
    {"secondary-cells", "a typical call with secondary cells", secondaryCells},
    {"releases", "the lists that release", releases},
};

const Example& exampleNamed(const std::string& name)
{
    std::vector<std::string_view> names;
    for (const Example& one : examples)
    {
        if (one.name == name)
        {
            return one;
        }
        names.push_back(one.name);
    }
    const auto close = text::nearest(name, names);
    throw Failure(Exit::Usage,
                  "there is no example '" + name + "'" +
                      (close ? "; did you mean " + std::string(*close) + "?" : "; 'cellgroupcfg example' lists them"));
}

std::string hexOf(const Example& one)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    one.fill(*record);
    std::vector<std::uint8_t> octets(maxMessageOctets);
    std::size_t length = 0;
    if (rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, nullptr, 0) != RRC_COMPOSE_OK)
    {
        throw Failure(Exit::Malformed, "the example '" + std::string(one.name) + "' cannot be composed");
    }
    return toHex(Octets(octets).first(length)) + "\n";
}

// A record with every member of a place, each with what may stand there. Around the place stands what a composition
// cannot do without.
class Scaffold
{
public:
    std::string text(const std::vector<RecordPlace>& trail)
    {
        open('{');
        if (trail.empty())
        {
            fields(*rrcRecordTypes[0], "");
        }
        else
        {
            around(trail, 0);
        }
        close('}');
        return text_ + "\n";
    }

private:
    void line()
    {
        text_ += comment_.empty() ? "" : " // " + comment_;
        comment_.clear();
        text_ += '\n' + std::string(2 * depth_, ' ');
    }

    void open(char bracket)
    {
        text_ += bracket;
        ++depth_;
        first_ = true;
    }

    void close(char bracket)
    {
        --depth_;
        line();
        text_ += bracket;
        first_ = false;
    }

    void item()
    {
        text_ += first_ ? "" : ",";
        first_ = false;
        line();
    }

    void name(const RrcRecordField& field)
    {
        item();
        text_ += '"' + std::string(field.name) + "\": ";
    }

    static bool isArray(const RrcRecordField& field)
    {
        return field.bound != 0 && field.kind != RRC_FIELD_OCTETS;
    }

    // A structure, union or array of them on the way to the place.
    void begin(const RrcRecordField& field)
    {
        if (isArray(field))
        {
            open('[');
            item();
        }
        open('{');
    }

    // An array that has always all of its entries gets the others.
    void end(const RecordPlace& place)
    {
        const RrcRecordField& field = *place.field;
        close('}');
        if (isArray(field))
        {
            for (unsigned i = 1; i < field.bound && field.count < 0; ++i)
            {
                item();
                entry(place);
            }
            close(']');
        }
    }

    // Goes to the end of the line.
    void comment(const RecordPlace& place)
    {
        const RrcRecordField& field = *place.field;
        std::string words = field.kind == RRC_FIELD_VALUE && field.choice >= 0 ? "" : valuesOf(place);
        if (isArray(field))
        {
            words = (field.count < 0 ? "always " : "at most ") + std::to_string(field.bound) +
                    (field.bound == 1 ? " entry" : " entries") + (words.empty() ? "" : ": ") + words;
        }
        if (*field.note != '\0' && field.kind == RRC_FIELD_VALUE)
        {
            words += (words.empty() ? "" : "; ") + std::string(field.note);
        }
        if ((field.flags & RRC_FIELD_NOT_SENT) != 0)
        {
            words += std::string(words.empty() ? "" : "; ") + "not sent";
        }
        comment_ += (comment_.empty() || words.empty() ? "" : "; ") + words;
    }

    // The option of a choice that is shown: the first one that has content.
    static const RrcRecordOption* shown(const RrcRecordType& type, unsigned choice)
    {
        const RrcRecordChoice& found = type.choices[choice];
        const auto* const end = found.options + found.optionCount;
        const auto* const option =
            std::find_if(found.options, end, [](const RrcRecordOption& one) { return one.field >= 0; });
        return option == end ? found.options : option;
    }

    static bool isShown(const RrcRecordType& type, const RrcRecordField& field)
    {
        if (field.kind == RRC_FIELD_UNREAD || field.kind == RRC_FIELD_COUNT)
        {
            return false;
        }
        if (field.choice < 0)
        {
            return true;
        }
        const RrcRecordOption* const option = shown(type, static_cast<unsigned>(field.choice));
        return field.alternative >= 0 ? option->sentAs == field.alternative : type.fields + option->field == &field;
    }

    void fields(const RrcRecordType& type, const std::string& path)
    {
        for (unsigned i = 0; i < type.fieldCount; ++i)
        {
            field(fieldPlace(type, path, i));
        }
    }

    void field(const RecordPlace& place)
    {
        const RrcRecordType& type = *place.owner;
        if (!isShown(type, *place.field))
        {
            return;
        }
        if (place.field->kind != RRC_FIELD_MASK)
        {
            name(*place.field);
            value(place);
            comment(place);
            return;
        }
        const auto mask = static_cast<unsigned>(place.field - type.fields);
        if (const std::string bits = moreBits(type, mask); !bits.empty())
        {
            name(*place.field);
            text_ += '[' + chosenBits(type, mask) + ']';
            comment_ = bits;
        }
    }

    // The fields of a structure on the way to a place: the one that leads there, and those that are needed beside it.
    void around(const std::vector<RecordPlace>& trail, std::size_t depth)
    {
        const RecordPlace& next = trail[depth];
        const RrcRecordType& type = *next.owner;
        for (unsigned i = 0; i < type.fieldCount; ++i)
        {
            const RecordPlace place = fieldPlace(type, depth == 0 ? "" : trail[depth - 1].path, i);
            const bool isInSame = next.field->choice >= 0 && place.field->choice == next.field->choice;
            if (place.field != next.field)
            {
                if (type.isUnion == 0 && !isInSame && isNeeded(type, i, next.field->guard))
                {
                    field(place);
                }
                continue;
            }
            name(*place.field);
            if (depth + 1 == trail.size())
            {
                value(place);
            }
            else
            {
                begin(*place.field);
                around(trail, depth + 1);
                end(place);
            }
            comment(place);
        }
    }

    // Whether a field, or one below it, has to be given where an element is sent, alone or with this bit of its record:
    // the encoder refuses what an empty record has there.
    static bool isNeeded(const RrcRecordType& type, unsigned index, int bit = -1)
    {
        const RrcRecordField& field = type.fields[index];
        constexpr unsigned isOptional = RRC_FIELD_NOT_SENT | RRC_FIELD_ELSE_ABSENT | RRC_FIELD_ELSE_DEFAULT;
        const bool isWithBit = bit >= 0 && field.guard == bit;
        if ((field.flags & isOptional) != 0 || !isShown(type, field))
        {
            return false;
        }
        for (unsigned i = 0; i < type.choiceCount; ++i)
        {
            const RrcRecordChoice& choice = type.choices[i];
            const bool isOf = choice.selector == index || field.choice == static_cast<int>(i);
            if (isOf && (isWithBit || isMandatory(type, choice.way)))
            {
                return true;
            }
        }
        const bool isAlways = (field.flags & RRC_FIELD_ALWAYS_SENT) != 0 && field.guard < 0;
        if (field.choice >= 0 || !(isWithBit || isAlways || isMandatory(type, field.way)))
        {
            return false;
        }
        if (field.count >= 0)
        {
            return leastEntries(type, field.way) != 0;
        }
        return field.record == nullptr ? field.lower > 0 || field.upper < 0 : needsAny(*field.record);
    }

    static bool needsAny(const RrcRecordType& type)
    {
        for (unsigned i = 0; i < type.fieldCount; ++i)
        {
            if (isNeeded(type, i))
            {
                return true;
            }
        }
        return false;
    }

    // Whether a way leads to what the element always has.
    static bool isMandatory(const RrcRecordType& type, const RrcRecordWay& way)
    {
        const RtxType* at = type.element;
        for (unsigned i = 0; i < way.stepCount && way.steps[i] != RRC_STEP_ENTRY; ++i)
        {
            const rtx::Member& member = at->members[way.steps[i]];
            if (at->kind == rtx::Kind::Sequence && (member.flag >= 0 || way.steps[i] >= at->rootCount))
            {
                return false;
            }
            at = member.type;
        }
        return way.path != nullptr;
    }

    // Of the list that a way leads into.
    static std::int32_t leastEntries(const RrcRecordType& type, const RrcRecordWay& way)
    {
        const RtxType* at = type.element;
        for (unsigned i = 0; i < way.stepCount && way.steps[i] != RRC_STEP_ENTRY; ++i)
        {
            at = at->members[way.steps[i]].type;
        }
        return at->lower;
    }

    // Bits that follow from nothing.
    static std::string moreBits(const RrcRecordType& type, unsigned mask)
    {
        std::string text;
        for (unsigned i = 0; i < type.bitCount; ++i)
        {
            const RrcRecordBit& bit = type.bits[i];
            if (bit.mask == mask && (bit.role == RRC_BIT_SENDS || (bit.role == RRC_BIT_CHOOSES && !follows(type, i))))
            {
                text += (text.empty() ? "" : ", ") + ('"' + std::string(bit.name) + '"');
            }
        }
        return text;
    }

    // Those among them that choose what is shown.
    static std::string chosenBits(const RrcRecordType& type, unsigned mask)
    {
        std::string text;
        for (unsigned i = 0; i < type.choiceCount; ++i)
        {
            const int bit = shown(type, i)->bit;
            if (type.choices[i].selector == mask && bit >= 0 && !follows(type, static_cast<unsigned>(bit)))
            {
                text += (text.empty() ? "" : ", ") + ('"' + std::string(type.bits[bit].name) + '"');
            }
        }
        return text;
    }

    // Whether a bit chooses content that no other one does.
    static bool follows(const RrcRecordType& type, unsigned bit)
    {
        for (unsigned i = 0; i < type.choiceCount; ++i)
        {
            const RrcRecordChoice& choice = type.choices[i];
            const auto* const end = choice.options + choice.optionCount;
            const auto* const option = std::find_if(
                choice.options, end, [bit](const RrcRecordOption& one) { return one.bit == static_cast<int>(bit); });
            if (option == end)
            {
                continue;
            }
            const auto same = [option](const RrcRecordOption& one)
            {
                return one.field == option->field && one.member == option->member;
            };
            return option->field >= 0 && std::count_if(choice.options, end, same) == 1;
        }
        return false;
    }

    void value(const RecordPlace& place)
    {
        const RrcRecordField& field = *place.field;
        const unsigned fixed = isArray(field) && field.count < 0 ? field.bound : 1;
        if (!isArray(field))
        {
            entry(place);
            return;
        }
        open('[');
        for (unsigned i = 0; i < fixed; ++i)
        {
            if (field.record != nullptr)
            {
                item();
            }
            else
            {
                text_ += i == 0 ? "" : ", ";
            }
            entry(place);
        }
        if (field.record != nullptr)
        {
            close(']');
            return;
        }
        --depth_;
        first_ = false;
        text_ += ']';
    }

    void entry(const RecordPlace& place)
    {
        const RrcRecordField& field = *place.field;
        if (field.record == nullptr)
        {
            text_ += scalar(place);
        }
        else if (field.kind == RRC_FIELD_UNION)
        {
            alternative(place, *field.record);
        }
        else
        {
            open('{');
            fields(*field.record, place.path);
            close('}');
        }
    }

    void alternative(const RecordPlace& place, const RrcRecordType& type)
    {
        const RrcRecordOption* const option = shown(*place.owner, static_cast<unsigned>(place.field->choice));
        const auto number = static_cast<unsigned>(option->member);
        const RecordPlace member = fieldPlace(type, place.path, number);
        open('{');
        name(*member.field);
        value(member);
        comment(member);
        std::string others;
        for (unsigned i = 0; i < type.fieldCount; ++i)
        {
            others += i == number ? "" : (others.empty() ? "" : ", ") + std::string(type.fields[i].name);
        }
        close('}');
        comment_ = others.empty() ? "" : "or " + others;
    }

    static std::string scalar(const RecordPlace& place)
    {
        const RrcRecordField& field = *place.field;
        switch (field.kind)
        {
        case RRC_FIELD_NUMBER:
            return std::to_string(field.lower);
        case RRC_FIELD_ENUMERATED:
            return '"' + std::string(field.way.target->names[0]) + '"';
        case RRC_FIELD_BOOLEAN:
            return "false";
        case RRC_FIELD_BITS:
        case RRC_FIELD_OCTETS:
            return '"' + std::string((field.bits + 7U) / 8 * 2, '0') + '"';
        case RRC_FIELD_MASK:
            return '[' + chosenBits(*place.owner, static_cast<unsigned>(&field - place.owner->fields)) + ']';
        case RRC_FIELD_ALTERNATIVE:
            for (unsigned i = 0; i < place.owner->choiceCount; ++i)
            {
                const RrcRecordChoice& choice = place.owner->choices[i];
                if (place.owner->fields + choice.selector == &field)
                {
                    return '"' + std::string(choice.way.target->names[shown(*place.owner, i)->alternative]) + '"';
                }
            }
            return "0";
        default:
            return chosenValue(place);
        }
    }

    // Of the alternative shown.
    static std::string chosenValue(const RecordPlace& place)
    {
        if (place.field->choice < 0)
        {
            return "0";
        }
        const auto choice = static_cast<unsigned>(place.field->choice);
        const RtxType& target = *place.owner->choices[choice].way.target;
        const RtxType& type = *target.members[shown(*place.owner, choice)->alternative].type;
        return type.kind == rtx::Kind::Enumerated ? '"' + std::string(type.names[0]) + '"' : std::to_string(type.lower);
    }

    std::string text_;
    std::string comment_; // of the line that is written
    unsigned depth_ = 0;
    bool first_ = true;
};

} // namespace

void example(Session& session, const std::string& name)
{
    if (name.empty())
    {
        constexpr std::size_t column = 27;
        for (const Example& one : examples)
        {
            session.put(std::string(one.name) + std::string(column - one.name.size(), ' ') + std::string(one.words) +
                        "\n");
        }
        return;
    }
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    exampleNamed(name).fill(*record);
    session.put(written([&](RtxPrintSink sink, void* arg) { rrcRecordToJson(record.get(), sink, arg); }));
}

std::vector<playground::Example> pastedExamples()
{
    std::vector<playground::Example> all;
    for (const Example& one : examples)
    {
        all.push_back({std::string(one.words), hexOf(one), {}});
    }
    all.push_back({"two to compare: a typical call without and with secondary cells",
                   hexOf(exampleNamed("typical-call")), hexOf(exampleNamed("secondary-cells"))});
    return all;
}

void scaffold(Session& session, const std::string& path)
{
    try
    {
        std::vector<RecordPlace> trail = path.empty() ? std::vector<RecordPlace>() : findFields(path);
        if (trail.empty() && !path.empty())
        {
            const std::vector<RecordPlace> places = fieldsNamed(path);
            if (places.empty())
            {
                throw Failure(Exit::Usage, "the record has no field '" + path + "'");
            }
            trail = findFields(places.front().path);
        }
        session.put(Scaffold().text(trail));
    }
    catch (const PathError& error)
    {
        throw Failure(Exit::Usage, error.what());
    }
}

} // namespace tool
