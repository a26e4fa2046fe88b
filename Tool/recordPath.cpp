#include "recordPath.h"

#include "nearest.h"
#include "rtxType.h"
#include "schemaPath.h"

#include <algorithm>

namespace tool
{
namespace
{

const RrcRecordField* fieldOf(const RrcRecordType& type, std::string_view name)
{
    const auto* const end = type.fields + type.fieldCount;
    const auto* const found = std::find_if(type.fields, end, [name](const auto& field) { return name == field.name; });
    return found == end ? nullptr : found;
}

[[noreturn]] void noField(const RrcRecordType& type, std::string_view name)
{
    std::vector<std::string_view> names;
    std::string all;
    for (unsigned i = 0; i < type.fieldCount; ++i)
    {
        names.emplace_back(type.fields[i].name);
        all += (all.empty() ? "" : ", ") + std::string(names.back());
    }
    const std::string where = std::string(type.name) + " has no field '" + std::string(name) + "'";
    if (const auto close = text::nearest(name, names))
    {
        throw PathError(where + "; did you mean " + std::string(*close) + "?");
    }
    throw PathError(where + "; there are " + all);
}

void addNamed(std::vector<RecordPlace>& places, const RrcRecordType& type, const std::string& path,
              std::string_view name)
{
    for (unsigned i = 0; i < type.fieldCount; ++i)
    {
        const RecordPlace place = fieldPlace(type, path, i);
        if (name == place.field->name)
        {
            places.push_back(place);
        }
        if (place.field->record != nullptr)
        {
            addNamed(places, *place.field->record, place.path, name);
        }
    }
}

void add(std::string& text, std::int64_t number, const char* name, bool numbered)
{
    text += (text.empty() ? "" : ", ") + (numbered ? std::to_string(number) + ' ' : "") + name;
}

} // namespace

const RrcRecordType* recordNamed(std::string_view name)
{
    const auto* const end = rrcRecordTypes + rrcRecordTypeCount;
    const auto* const found =
        std::find_if(rrcRecordTypes, end, [name](const auto* type) { return name == type->name; });
    return found == end ? nullptr : *found;
}

RecordPlace fieldPlace(const RrcRecordType& owner, const std::string& path, unsigned number)
{
    const RrcRecordField& field = owner.fields[number];
    const bool isArray = field.bound != 0 && field.kind != RRC_FIELD_OCTETS;
    return {&owner, &field, path + (path.empty() ? "" : ".") + field.name + (isArray ? "[]" : "")};
}

std::vector<RecordPlace> findFields(std::string_view path)
{
    const std::vector<PathStep> steps = splitPath(path);
    const RrcRecordType* type = recordNamed(steps.front().name);
    const bool isNamed = type != nullptr;
    if (!isNamed)
    {
        type = rrcRecordTypes[0];
        if (fieldOf(*type, steps.front().name) == nullptr)
        {
            return {};
        }
    }
    std::vector<RecordPlace> trail;
    std::string at = isNamed && type != rrcRecordTypes[0] ? type->name : "";
    for (auto step = steps.begin() + (isNamed ? 1 : 0); step != steps.end(); ++step)
    {
        if (step->name.empty())
        {
            continue;
        }
        const RrcRecordField* const field = type == nullptr ? nullptr : fieldOf(*type, step->name);
        if (type == nullptr)
        {
            throw PathError(at + " is no structure");
        }
        if (field == nullptr)
        {
            noField(*type, step->name);
        }
        trail.push_back(fieldPlace(*type, at, static_cast<unsigned>(field - type->fields)));
        at = trail.back().path;
        type = field->record;
    }
    return trail;
}

std::vector<RecordPlace> fieldsNamed(std::string_view name)
{
    std::vector<RecordPlace> places;
    addNamed(places, *rrcRecordTypes[0], "", name);
    return places;
}

std::string valuesOf(const RecordPlace& place, bool numbered)
{
    const RrcRecordField& field = *place.field;
    std::string text;
    switch (field.kind)
    {
    case RRC_FIELD_NUMBER:
    case RRC_FIELD_COUNT:
        text = std::to_string(field.lower) + ".." + std::to_string(field.upper);
        break;
    case RRC_FIELD_ENUMERATED:
        for (INT64 i = 0; i <= field.upper; ++i)
        {
            add(text, i, field.way.target->names[i], numbered);
        }
        break;
    case RRC_FIELD_BOOLEAN:
        text = "true, false";
        break;
    case RRC_FIELD_BITS:
    case RRC_FIELD_OCTETS:
        text = std::to_string(field.bits) + " bits";
        break;
    case RRC_FIELD_ALTERNATIVE:
        if (const INT32 by = rrcRecordChoiceBy(place.owner, static_cast<UINT32>(place.field - place.owner->fields));
            by >= 0)
        {
            const RrcRecordChoice& choice = place.owner->choices[by];
            for (unsigned i = 0; i < choice.optionCount; ++i)
            {
                const RrcRecordOption& option = choice.options[i];
                add(text, option.number, choice.way.target->names[option.alternative], numbered);
            }
        }
        break;
    case RRC_FIELD_VALUE:
        text = "of the alternative";
        break;
    default:
        break;
    }
    return text + (field.unit != nullptr ? (text.empty() ? "in " : ", in ") + std::string(field.unit) : "");
}

} // namespace tool
