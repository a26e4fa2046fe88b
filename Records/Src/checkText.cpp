// A finding's words, as far as the record and the element give them.
#include "checkText.h"

#include <algorithm>
#include <bit>
#include <cinttypes>
#include <cstring>

#include "recordNumbers.h"

namespace recordCheck
{

using rtx::append;
using rtx::Kind;
using rtx::Line;
using rtx::Type;

const Type* alternativeOf(const RrcRecordChoice& choice, const RrcRecordOption* option)
{
    return option == nullptr ? nullptr : choice.way.target->members[option->sentAs].type;
}

const Type* contentOf(const Frame& frame)
{
    const INT16 choice = frame.at().choice;
    const Type* content = choice < 0 ? frame.content : alternativeOf(frame.type.choices[choice], frame.chosen[choice]);
    if (content != nullptr && (content->kind == Kind::Array || content->kind == Kind::List))
    {
        content = &content->element();
    }
    return content;
}

Listed listOf(const Type* element, const RrcRecordWay& way)
{
    Listed found = {nullptr, 0, element};
    for (UINT32 i = 0; i < way.stepCount && way.steps[i] != RRC_STEP_ENTRY; ++i)
    {
        found = {found.list, way.steps[i], found.list->members[way.steps[i]].type};
    }
    return found;
}

INT64 lastValue(const Type& type)
{
    INT64 last = type.upper;
    for (; last > 0 && std::strncmp(type.names[last], "spare", 5) == 0; --last)
    {
    }
    return last;
}

bool isNamed(const Type* type)
{
    return type != nullptr && type->kind == Kind::Enumerated;
}

INT64 nearest(INT64 value, INT64 lower, INT64 upper)
{
    return std::clamp(value, lower, upper);
}

void appendValue(Line& line, const Type* type, INT64 value)
{
    append(line, "%" PRId64, INT64{value});
    if (isNamed(type) && value >= 0 && value <= type->upper)
    {
        append(line, " %s", type->names[value]);
    }
}

void appendRange(Line& line, const Type* type, INT64 lower, INT64 upper)
{
    appendValue(line, type, lower);
    if (lower != upper)
    {
        append(line, isNamed(type) ? " .. " : "..");
        appendValue(line, type, upper);
    }
}

INT64 valueNamed(const Type& type, INT64 number)
{
    for (INT32 i = 0; i <= type.upper; ++i)
    {
        const char* digits = type.names[i];
        digits += std::strcspn(digits, "0123456789");
        INT64 found = 0;
        const char* end = digits;
        for (; *end >= '0' && *end <= '9'; ++end)
        {
            found = found * 10 + (*end - '0');
        }
        if (end != digits && *end == '\0' && found == number)
        {
            return i;
        }
    }
    return -1;
}

void appendBits(Line& line, UINT64 bits)
{
    append(line, std::has_single_bit(bits) ? "bit " : "bits ");
    const char* separator = "";
    while (bits != 0)
    {
        const int first = std::countr_zero(bits);
        const int count = std::countr_one(bits >> first);
        append(line, count == 1 ? "%s%d" : "%s%d..%d", separator, first, first + count - 1);
        separator = ", ";
        bits &= ~(records::lowBits(static_cast<unsigned>(count)) << first);
    }
}

void appendBitNames(Line& line, const RrcRecordType& type, const RrcRecordChoice& choice)
{
    const char* separator = "";
    for (UINT32 i = 0; i < choice.optionCount; ++i)
    {
        if (choice.options[i].bit >= 0)
        {
            append(line, "%s%s", separator, type.bits[choice.options[i].bit].name);
            separator = ", ";
        }
    }
}

void appendPath(Line& line, const Frame& frame)
{
    if (frame.outer != nullptr)
    {
        appendPath(line, *frame.outer);
        append(line, ".");
    }
    append(line, "%s", frame.at().name);
    if (frame.at().bound != 0 && frame.at().kind != RRC_FIELD_OCTETS)
    {
        append(line, "[%" PRIu32 "]", uint32_t{frame.entry});
    }
}

void appendStep(Line& line, const Type& type, UINT16 step)
{
    append(line, ".%s", type.names[step]);
}

void appendWay(Line& line, const Type* element, const RrcRecordWay& way, UINT32 entry, bool withEntry)
{
    for (UINT32 i = 0; i < way.stepCount; ++i)
    {
        if (way.steps[i] == RRC_STEP_ENTRY)
        {
            if (!withEntry)
            {
                return;
            }
            append(line, "[%" PRIu32 "]", uint32_t{entry});
            element = &element->element();
        }
        else
        {
            appendStep(line, *element, way.steps[i]);
            element = element->members[way.steps[i]].type;
        }
    }
}

void appendElement(Line& line, const Frame& frame)
{
    if (frame.outer == nullptr)
    {
        append(line, "CellGroupConfig");
        return;
    }
    appendElement(line, *frame.outer);
    appendWay(line, frame.outer->type.element, frame.outer->at().way, frame.outer->entry, true);
}

bool appendFieldElement(Line& line, const Frame& frame)
{
    const RrcRecordField& field = frame.at();
    const RrcRecordType& type = frame.type;
    if (field.kind == RRC_FIELD_VALUE)
    {
        appendElement(line, frame);
        if (field.choice >= 0)
        {
            const RrcRecordChoice& choice = type.choices[field.choice];
            appendWay(line, type.element, choice.way, 0, true);
            if (frame.chosen[field.choice] != nullptr)
            {
                appendStep(line, *choice.way.target, frame.chosen[field.choice]->sentAs);
            }
        }
        if (field.bound != 0)
        {
            append(line, "[%" PRIu32 "]", uint32_t{frame.entry});
        }
        return true;
    }
    if (field.kind == RRC_FIELD_COUNT)
    {
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            if (type.fields[i].count == static_cast<INT32>(frame.field) && type.fields[i].way.path != nullptr)
            {
                appendElement(line, frame);
                appendWay(line, type.element, type.fields[i].way, 0, false);
                return true;
            }
        }
        return false;
    }
    if (field.way.path == nullptr)
    {
        return false;
    }
    appendElement(line, frame);
    appendWay(line, type.element, field.way, frame.entry, true);
    return true;
}

} // namespace recordCheck
