// A record as JSON. What follows from the members that are shown is not said again: the reader finds it the same way.
#include "rrcRecordJson.h"
#include "rrcRecordType.h"
#include "rtxLayout.h"

namespace
{

bool isScalar(const RrcRecordField& field)
{
    return field.record == nullptr;
}

// Masks, counts and numbers of alternatives, which mostly follow from the others.
bool isControl(const RrcRecordField& field)
{
    return field.kind == RRC_FIELD_MASK || field.kind == RRC_FIELD_COUNT || field.kind == RRC_FIELD_ALTERNATIVE;
}

// The name that a number has among the values of a type, else null.
const char* nameOf(const RtxType* type, UINT64 value)
{
    const bool named = type != nullptr && type->kind == rtx::Kind::Enumerated;
    return named && value <= static_cast<UINT64>(type->upper) ? type->names[value] : nullptr;
}

class Writer
{
public:
    Writer(RtxPrintSink sink, void* arg) : out_(sink, arg), layout_(out_, RTX_INDENTED, false) {}

    void run(const RrcRecordType& type, const void* record)
    {
        if (record == nullptr)
        {
            out_.put("null");
        }
        else
        {
            structure(type, record);
        }
        out_.put('\n');
    }

private:
    struct Place
    {
        const RrcRecordType& type;
        const void* record;
    };

    void structure(const RrcRecordType& type, const void* record)
    {
        const Place place = {type, record};
        RrcRecordGiven given;
        RrcRecordFollowing following;
        find(place, given, following);
        layout_.open('{');
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            if ((given.fields >> i & 1) == 0)
            {
                continue;
            }
            member(type.fields[i].name);
            if (type.fields[i].kind == RRC_FIELD_MASK)
            {
                mask(place, i, more(place, i, following));
            }
            else
            {
                field(place, i, rrcRecordEntries(&type, record, i), given.members[i]);
            }
        }
        layout_.close('}');
    }

    // What is shown: first what has a value of its own, then what does not follow from it. What is guarded itself comes
    // before what guards it.
    static void find(const Place& place, RrcRecordGiven& given, RrcRecordFollowing& following)
    {
        const RrcRecordType& type = place.type;
        given.fields = 0;
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            const RrcRecordField& field = type.fields[i];
            given.members[i] = -1;
            if (!isControl(field) && rrcRecordIsRead(&type, place.record, i) != 0 &&
                (field.guard >= 0 || rrcRecordEntries(&type, place.record, i) != 0))
            {
                given.fields |= UINT64{1} << i;
                if (field.kind == RRC_FIELD_UNION)
                {
                    given.members[i] = static_cast<INT16>(rrcRecordMember(&type, place.record, i));
                }
            }
        }
        rrcRecordFollow(&type, &given, &following);
        for (const bool guarded : {true, false})
        {
            for (UINT32 i = 0; i < type.fieldCount; ++i)
            {
                const RrcRecordField& field = type.fields[i];
                if (isControl(field) && (field.guard >= 0) == guarded && isNews(place, i, given, following))
                {
                    given.fields |= UINT64{1} << i;
                    rrcRecordFollow(&type, &given, &following);
                }
            }
        }
    }

    // Bits that are set and do not follow.
    static UINT64 more(const Place& place, UINT32 mask, const RrcRecordFollowing& following)
    {
        const UINT64 bits = rrcRecordBits(&place.type.fields[mask], place.record, 0);
        return bits & ~rrcRecordFollowingMask(&place.type, &following, mask);
    }

    static bool isNews(const Place& place, UINT32 index, const RrcRecordGiven& given,
                       const RrcRecordFollowing& following)
    {
        const RrcRecordType& type = place.type;
        if (rrcRecordIsRead(&type, place.record, index) == 0)
        {
            return false;
        }
        const RrcRecordField& field = type.fields[index];
        if (field.kind == RRC_FIELD_MASK)
        {
            return more(place, index, following) != 0;
        }
        const UINT64 value = rrcRecordBits(&field, place.record, 0);
        if (field.kind == RRC_FIELD_COUNT)
        {
            return value != shownEntries(place, index, given);
        }
        const INT32 choice = rrcRecordChoiceBy(&type, index);
        const INT32 option = choice < 0 ? choice : following.options[choice];
        return option < 0 || value != static_cast<UINT64>(type.choices[choice].options[option].number);
    }

    static UINT64 shownEntries(const Place& place, UINT32 count, const RrcRecordGiven& given)
    {
        for (UINT32 i = 0; i < place.type.fieldCount; ++i)
        {
            if (place.type.fields[i].count == static_cast<INT32>(count) && (given.fields >> i & 1) != 0)
            {
                return rrcRecordEntries(&place.type, place.record, i);
            }
        }
        return 0;
    }

    void member(const char* name)
    {
        layout_.item();
        string(name);
        out_.put(": ");
    }

    void string(const char* text)
    {
        out_.put('"');
        out_.put(text);
        out_.put('"');
    }

    void field(const Place& place, UINT32 index, UINT32 entries, INT32 unionMember)
    {
        const RrcRecordField& field = place.type.fields[index];
        if (field.kind == RRC_FIELD_OCTETS)
        {
            octets(field, place.record);
        }
        else if (field.bound == 0)
        {
            entry(place, index, 0, unionMember);
        }
        else if (isScalar(field))
        {
            out_.put('[');
            for (UINT32 i = 0; i < entries; ++i)
            {
                out_.put(i == 0 ? "" : ", ");
                entry(place, index, i, unionMember);
            }
            out_.put(']');
        }
        else
        {
            layout_.open('[');
            for (UINT32 i = 0; i < entries; ++i)
            {
                layout_.item();
                entry(place, index, i, unionMember);
            }
            layout_.close(']');
        }
    }

    void entry(const Place& place, UINT32 index, UINT32 number, INT32 unionMember)
    {
        const RrcRecordField& field = place.type.fields[index];
        const void* const at = rrcRecordPlace(&field, place.record, number);
        if (field.kind == RRC_FIELD_RECORD)
        {
            structure(*field.record, at);
        }
        else if (field.kind == RRC_FIELD_UNION)
        {
            alternative(*field.record, at, unionMember);
        }
        else
        {
            value(place, index, number);
        }
    }

    void alternative(const RrcRecordType& type, const void* record, INT32 index)
    {
        layout_.open('{');
        if (index >= 0)
        {
            const auto which = static_cast<UINT32>(index);
            member(type.fields[which].name);
            if (type.fields[which].kind == RRC_FIELD_UNREAD)
            {
                out_.put("{}");
            }
            else
            {
                field({type, record}, which, rrcRecordEntries(&type, record, which), -1);
            }
        }
        layout_.close('}');
    }

    void value(const Place& place, UINT32 index, UINT32 entry)
    {
        const RrcRecordField& field = place.type.fields[index];
        const UINT64 bits = rrcRecordBits(&field, place.record, entry);
        switch (field.kind)
        {
        case RRC_FIELD_NUMBER:
            out_.format("%" PRId64, INT64{rrcRecordNumber(&field, place.record, entry)});
            break;
        case RRC_FIELD_ENUMERATED:
            nameOrNumber(nameOf(field.way.target, bits), bits);
            break;
        case RRC_FIELD_BOOLEAN:
            bits <= 1 ? out_.put(bits != 0 ? "true" : "false") : number(bits);
            break;
        case RRC_FIELD_BITS:
            bitString(field, bits);
            break;
        case RRC_FIELD_VALUE:
            nameOrNumber(nameOf(rrcRecordValueType(&place.type, place.record, index), bits), bits);
            break;
        case RRC_FIELD_ALTERNATIVE:
            nameOrNumber(alternativeName(place, index), bits);
            break;
        default:
            number(bits);
            break;
        }
    }

    void number(UINT64 value)
    {
        out_.format("%" PRIu64, uint64_t{value});
    }

    void nameOrNumber(const char* name, UINT64 value)
    {
        name != nullptr ? string(name) : number(value);
    }

    static const char* alternativeName(const Place& place, UINT32 selector)
    {
        const INT32 choice = rrcRecordChoiceBy(&place.type, selector);
        const RrcRecordOption* const option =
            choice < 0 ? nullptr : rrcRecordChosen(&place.type, place.record, static_cast<UINT32>(choice));
        return option == nullptr ? nullptr : place.type.choices[choice].way.target->names[option->alternative];
    }

    // Left aligned in whole octets, as JER has it; a number where more is set than is sent.
    void bitString(const RrcRecordField& field, UINT64 bits)
    {
        if (field.bits < 64 && bits >> field.bits != 0)
        {
            number(bits);
            return;
        }
        const unsigned count = (field.bits + 7U) / 8; // at most 8
        const UINT64 aligned = bits << (8 * count - field.bits);
        out_.put('"');
        out_.format("%0*" PRIX64, static_cast<int>(2 * count), uint64_t{aligned});
        out_.put('"');
    }

    // The octets that hold the bits; all that there are where the others are not 0.
    void octets(const RrcRecordField& field, const void* record)
    {
        const auto* const data = static_cast<const OSOCTET*>(rrcRecordPlace(&field, record, 0));
        const UINT32 all = field.size * (field.bound == 0 ? 1U : field.bound);
        const UINT32 bits = (field.bits + 7U) / 8;
        const bool more = std::any_of(data + bits, data + all, [](OSOCTET octet) { return octet != 0; });
        out_.put('"');
        for (UINT32 i = 0; i < (more ? all : bits); ++i)
        {
            out_.format("%02X", unsigned{data[i]});
        }
        out_.put('"');
    }

    void mask(const Place& place, UINT32 index, UINT64 bits)
    {
        const RrcRecordType& type = place.type;
        const char* between = "";
        out_.put('[');
        for (UINT32 i = 0; i < type.bitCount; ++i)
        {
            const RrcRecordBit& bit = type.bits[i];
            if (bit.mask == index && (bits >> bit.number & 1) != 0)
            {
                out_.put(between);
                string(bit.name);
                bits &= ~(UINT64{1} << bit.number);
                between = ", ";
            }
        }
        if (bits != 0) // have no names
        {
            out_.put(between);
            number(bits);
        }
        out_.put(']');
    }

    rtx::Output out_;
    rtx::Layout layout_;
};

} // namespace

void rrcRecordToJson(const RrcCellGroupCfg_t* record, RtxPrintSink sink, void* arg)
{
    Writer(sink, arg).run(*rrcRecordTypes[0], record);
}
