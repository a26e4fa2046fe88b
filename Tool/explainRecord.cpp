// explain: what the description says of a field of the record.
#include "explainRecord.h"
#include "recordPath.h"
#include "rows.h"
#include "rtxType.h"
#include "ruleTable.h"
#include "schemaPath.h"
#include "style.h"

#include <algorithm>

namespace tool
{
namespace
{

constexpr const char* kinds[] = {
    "number",
    "enumeration",
    "boolean",
    "bit string in a number",
    "bit string in octets",
    "mask",
    "count",
    "number of an alternative",
    "value of an alternative",
    "structure",
    "union",
    "not read",
};

// Of what a way of the record leads to.
std::string elementOf(const RrcRecordType& type, const RrcRecordWay& way)
{
    return std::string(type.path) + (*way.path == '\0' ? "" : ".") + way.path;
}

void heading(Session& session, const std::string& text)
{
    session.put(styled(text, Style::Bold, session.color()) + "\n");
}

void note(Session& session, const char* text)
{
    if (*text != '\0')
    {
        session.put(rows("note", text));
    }
}

// What becomes of a place that does not do what one would expect.
void behaviour(Session& session, const std::string& place)
{
    for (const RrcRecordRule* const rule : allRecordRules())
    {
        const char* const* const places = rule->places;
        for (unsigned i = 0; places != nullptr && places[i] != nullptr; ++i)
        {
            if (place == places[i])
            {
                session.put(rows("behaves", recordStatement(*rule) + "; " + rule->instead + " [" + rule->id + "]"));
            }
        }
    }
}

// What a structure has, as part of a path in the record.
void fields(Session& session, const RrcRecordType& type, const std::string& path)
{
    std::size_t column = 0;
    for (unsigned i = 0; i < type.fieldCount; ++i)
    {
        column = std::max(column, std::string_view(type.fields[i].name).size() + 2);
    }
    session.put(type.isUnion != 0 ? "  one of\n" : "  fields\n");
    for (unsigned i = 0; i < type.fieldCount; ++i)
    {
        const RecordPlace place = fieldPlace(type, path, i);
        const std::string name = place.field->name;
        const std::string values = valuesOf(place);
        const std::string text = place.field->record != nullptr ? place.field->record->name
                                 : values.empty()               ? kinds[place.field->kind]
                                                                : values;
        constexpr std::size_t most = 80;
        session.put("    " + name + std::string(column - name.size(), ' ') +
                    (text.size() > most ? text.substr(0, text.rfind(',', most)) + ", ..." : text) + "\n");
    }
}

void explainStructure(Session& session, const RrcRecordType& type)
{
    heading(session, type.name);
    session.put(row(type.isUnion != 0 ? "union" : "structure",
                    std::string(type.header) + ", " + std::to_string(type.size) + " octets"));
    session.put(row("holds", type.path));
    note(session, type.note);
    behaviour(session, type.name);
    fields(session, type, type.name);
}

// What a bit that chooses takes; empty: nothing.
std::string alternativeOf(const RrcRecordType& type, int bit)
{
    for (unsigned i = 0; i < type.choiceCount; ++i)
    {
        const RrcRecordChoice& choice = type.choices[i];
        const auto* const end = choice.options + choice.optionCount;
        const auto* const option =
            std::find_if(choice.options, end, [&](const RrcRecordOption& one) { return one.bit == bit; });
        if (option != end)
        {
            return std::string(choice.way.target->names[option->alternative]) + " of " + elementOf(type, choice.way);
        }
    }
    return "";
}

// The element that a bit sends and the fields that it guards.
std::string governedBy(const RrcRecordType& type, int bit)
{
    std::string all = type.bits[bit].way.path != nullptr ? type.bits[bit].way.path : "";
    for (unsigned i = 0; i < type.fieldCount; ++i)
    {
        if (type.fields[i].guard == bit)
        {
            all += (all.empty() ? "" : ", ") + std::string(type.fields[i].name);
        }
    }
    return all;
}

void explainBit(Session& session, const RrcRecordType& type, int index)
{
    static constexpr const char* roles[] = {"guards", "chooses", "sends", "is not sent", "is not read"};
    const RrcRecordBit& bit = type.bits[index];
    heading(session, bit.name);
    session.put(row("bit", std::to_string(bit.number) + " of " + type.name + "." + type.fields[bit.mask].name + ", " +
                               type.header));
    const std::string alternative = alternativeOf(type, index);
    session.put(row(roles[bit.role], alternative.empty() ? governedBy(type, index) : alternative));
    if (bit.otherwise != nullptr)
    {
        session.put(row("else", bit.otherwise));
    }
    if (bit.with >= 0)
    {
        session.put(row("looked at", std::string("with ") + type.bits[bit.with].name));
    }
    note(session, bit.note);
    behaviour(session, bit.name);
}

// Of all masks that have a bit of this name.
bool explainBits(Session& session, std::string_view name)
{
    bool found = false;
    for (unsigned i = 0; i < rrcRecordTypeCount; ++i)
    {
        const RrcRecordType& type = *rrcRecordTypes[i];
        for (int j = 0; j < int{type.bitCount}; ++j)
        {
            if (name == type.bits[j].name)
            {
                explainBit(session, type, j);
                found = true;
            }
        }
    }
    return found;
}

class FieldExplanation
{
public:
    FieldExplanation(Session& session, const RecordPlace& place)
        : session_(session), place_(place), field_(*place.field), owner_(*place.owner)
    {
    }

    void write()
    {
        heading(session_, place_.path);
        row("field", std::string(kinds[field_.kind]) + " of " + owner_.name + ", " + owner_.header);
        if (field_.record != nullptr)
        {
            row("structure", field_.record->name);
        }
        if (field_.way.path != nullptr && owner_.path != nullptr)
        {
            row("feeds", elementOf(owner_, field_.way));
        }
        if (field_.bound != 0 && field_.kind != RRC_FIELD_OCTETS)
        {
            row("entries",
                (field_.count < 0 ? "always " : "at most ") + std::to_string(field_.bound) +
                    (field_.count < 0 ? "" : std::string(", as many as ") + owner_.fields[field_.count].name));
        }
        if (const std::string values = valuesOf(place_, true); !values.empty())
        {
            session_.put(rows("values", values, ", "));
        }
        if (field_.guard >= 0)
        {
            const RrcRecordBit& bit = owner_.bits[field_.guard];
            row("read with", std::string(bit.name) + " in " + owner_.fields[bit.mask].name);
        }
        flags();
        bits();
        note(session_, field_.note);
        behaviour(session_, std::string(owner_.name) + "." + field_.name);
        if (field_.record != nullptr)
        {
            fields(session_, *field_.record, place_.path);
        }
    }

private:
    void row(std::string_view label, const std::string& text)
    {
        session_.put(tool::row(label, text));
    }

    void flags()
    {
        static constexpr struct
        {
            unsigned flag;
            const char* text;
        } all[] = {
            {RRC_FIELD_ALWAYS_SENT, "always, though it is optional"},
            {RRC_FIELD_NOT_SENT, "never"},
            {RRC_FIELD_ELSE_ABSENT, "with one of its values only"},
            {RRC_FIELD_ELSE_DEFAULT, "also without its bit, as a default"},
        };
        for (const auto& one : all)
        {
            if ((field_.flags & one.flag) != 0)
            {
                row("sent", one.text);
            }
        }
    }

    // Of a mask.
    void bits()
    {
        std::string_view label = "bits";
        for (unsigned i = 0; i < owner_.bitCount; ++i)
        {
            const RrcRecordBit& bit = owner_.bits[i];
            if (owner_.fields + bit.mask == &field_)
            {
                row(label, std::to_string(bit.number) + " " + bit.name);
                label = "";
            }
        }
    }

    Session& session_;
    const RecordPlace& place_;
    const RrcRecordField& field_;
    const RrcRecordType& owner_;
};

} // namespace

bool explainField(Session& session, const std::string& path)
{
    const bool isPath = path.find_first_of(".[") != std::string::npos;
    if (const RrcRecordType* const type = isPath ? nullptr : recordNamed(path))
    {
        explainStructure(session, *type);
        return true;
    }
    if (!isPath && explainBits(session, path))
    {
        return true;
    }
    const std::vector<RecordPlace> places = isPath ? std::vector<RecordPlace>() : fieldsNamed(path);
    if (places.size() > 1)
    {
        for (const RecordPlace& place : places)
        {
            session.put(place.path + "\n");
        }
        return true;
    }
    const std::vector<RecordPlace> trail = places.empty() ? findFields(path) : places;
    if (trail.empty())
    {
        return false;
    }
    FieldExplanation(session, trail.back()).write();
    return true;
}

} // namespace tool
