// A record as the statements that fill it: all that a composition reads of it, by the description.
#include "rrcRecordToCpp.h"

#include <cinttypes>
#include <cstring>

#include "rrcRecordType.h"
#include "rtxTree.h"

namespace statements
{
namespace
{

// Where the walk stands: a field and the one around it.
struct Place
{
    const Place* outer;
    const RrcRecordField* field;
    UINT32 index;
};

class Writer
{
public:
    Writer(const char* name, RtxPrintSink sink, void* arg) : name_(name), out_(sink, arg) {}

    void record(const RrcRecordType& type, const void* record, const Place* place)
    {
        if (place == nullptr)
        {
            out_.put("rrcInit(&");
            out_.put(name_);
            out_.put(");\n");
        }
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            if (rrcRecordIsRead(&type, record, i) != 0)
            {
                field(type, i, record, rrcRecordMember(&type, record, i), place);
            }
        }
    }

private:
    void field(const RrcRecordType& type, UINT32 index, const void* record, INT32 member, const Place* outer)
    {
        const RrcRecordField& field = type.fields[index];
        const UINT32 entries = rrcRecordEntries(&type, record, index);
        for (UINT32 i = 0; i < entries; ++i)
        {
            const Place place = {outer, &field, i};
            const void* const held = rrcRecordPlace(&field, record, i);
            if (field.kind == RRC_FIELD_RECORD && member < 0)
            {
                this->record(*field.record, held, &place);
            }
            else if (field.record == nullptr)
            {
                value(type, index, record, place);
            }
            else if (member >= 0 && field.record->fields[member].kind != RRC_FIELD_UNREAD)
            {
                this->field(*field.record, static_cast<UINT32>(member), held, -1, &place);
            }
        }
    }

    void value(const RrcRecordType& type, UINT32 index, const void* record, const Place& place)
    {
        const RrcRecordField& field = *place.field;
        path(place);
        out_.put(" = ");
        if (field.kind == RRC_FIELD_MASK)
        {
            mask(type, index, rrcRecordBits(&field, record, 0));
        }
        else
        {
            const bool cast = mayBeEnum(field);
            out_.put(cast ? "static_cast<decltype(" : "");
            if (cast)
            {
                path(place);
                out_.put(")>(");
            }
            if (!constant(field, rrcRecordBits(&field, record, place.index)))
            {
                number(field, record, place.index);
            }
            out_.put(cast ? ")" : "");
        }
        out_.put(";\n");
    }

    // Of the type of an enumeration of the headers, which takes no number.
    static bool mayBeEnum(const RrcRecordField& field)
    {
        const bool hasNames = field.kind == RRC_FIELD_ALTERNATIVE || (field.flags & RRC_FIELD_ELSE_ABSENT) != 0;
        return hasNames && field.size == sizeof(RrcRbType_e);
    }

    void path(const Place& place)
    {
        if (place.outer != nullptr)
        {
            path(*place.outer);
        }
        else
        {
            out_.put(name_);
        }
        out_.put(".");
        out_.put(place.field->name);
        if (place.field->bound != 0)
        {
            out_.format("[%" PRIu32 "]", place.index);
        }
    }

    // The names of the bits; what has none as a number.
    void mask(const RrcRecordType& type, UINT32 index, UINT64 bits)
    {
        const char* between = "";
        for (UINT32 i = 0; i < type.bitCount; ++i)
        {
            const RrcRecordBit& bit = type.bits[i];
            if (bit.mask == index && (bits >> bit.number & 1) != 0)
            {
                out_.put(between);
                out_.put(bit.name);
                between = " | ";
                bits &= ~(UINT64{1} << bit.number);
            }
        }
        if (bits != 0 || *between == '\0')
        {
            out_.put(between);
            out_.format("%" PRIu64, bits);
        }
    }

    // The generated constant of an enumeration's value: its type's name and its own. False: the number has none.
    bool constant(const RrcRecordField& field, UINT64 number)
    {
        const rtx::Type* const type = field.way.target;
        if (field.kind != RRC_FIELD_ENUMERATED || number > static_cast<UINT64>(field.upper) || field.upper == 0)
        {
            return false;
        }
        identifier(type->name);
        out_.put("_");
        identifier(type->names[number]);
        return true;
    }

    void identifier(const char* name)
    {
        for (; *name != '\0'; ++name)
        {
            out_.put(*name == '-' ? '_' : *name);
        }
    }

    void number(const RrcRecordField& field, const void* record, UINT32 index)
    {
        const UINT64 bits = rrcRecordBits(&field, record, index);
        const bool isBits = field.kind == RRC_FIELD_BITS || field.kind == RRC_FIELD_OCTETS;
        if (field.isSigned != 0)
        {
            const INT64 value = rrcRecordNumber(&field, record, index);
            out_.format(value == INT32_MIN ? "INT32_MIN" : "%" PRId64, value);
        }
        else
        {
            out_.format(isBits ? "0x%" PRIX64 "%s" : "%" PRIu64 "%s", bits, bits > UINT32_MAX ? "U" : "");
        }
    }

    const char* name_;
    rtx::Output out_;
};

} // namespace
} // namespace statements

void rrcRecordToCpp(const RrcCellGroupCfg_t* pRrcCellGroupCfg, const char* name, RtxPrintSink sink, void* arg)
{
    statements::Writer(name, sink, arg).record(*rrcRecordTypes[0], pRrcCellGroupCfg, nullptr);
}
