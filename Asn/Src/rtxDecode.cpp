// The decoder of unaligned PER (X.691): a walker over the type descriptors.
#include "rtxType.h"

#include <cstring>

namespace rtx
{
namespace
{

constexpr uint32_t largestInput = UINT32_MAX / 8; // octets, so that every bit offset has 32 bits
constexpr uint32_t fragmentUnit = 16 * 1024;      // octets

// Octets to read from bit `at` up to bit `end`.
struct Input
{
    const OSOCTET* data;
    uint32_t at;
    uint32_t end;
};

// An open type field as it lies in the input.
struct OpenField
{
    uint32_t start;   // of its first length determinant
    uint32_t content; // of its first octet
    uint32_t octets;
    bool fragmented;
};

// An unknown extension addition in a list; its octets follow in the same block.
struct UnknownAddition
{
    OSRTDListNode node;
    ASN1OpenType open;
};

void setFlag(void* structure, int flag)
{
    OSOCTET& octet = static_cast<OSOCTET*>(structure)[flag / 8];
    octet = static_cast<OSOCTET>(octet | 1U << (flag % 8));
}

bool hasFlag(const void* structure, int flag)
{
    return (static_cast<const OSOCTET*>(structure)[flag / 8] >> (flag % 8) & 1) != 0;
}

template <typename T>
T& at(void* structure, size_t offset)
{
    return *reinterpret_cast<T*>(static_cast<OSOCTET*>(structure) + offset);
}

void storePointer(void* to, void* p)
{
    std::memcpy(to, &p, sizeof p);
}

void storeInteger(void* to, unsigned width, int64_t value)
{
    switch (width)
    {
    case 1:
        at<OSUINT8>(to, 0) = static_cast<OSUINT8>(value);
        break;
    case 2:
        at<OSUINT16>(to, 0) = static_cast<OSUINT16>(value);
        break;
    default:
        at<OSUINT32>(to, 0) = static_cast<OSUINT32>(value);
        break;
    }
}

class Decoder
{
public:
    Decoder(OSCTXT& ctxt, const Input& input) : ctxt_(ctxt), in_(input) {}

    // 11.1: the encoding of a value, padded with zero bits to whole octets, at least one.
    int complete(const Type& type, void* to)
    {
        const uint32_t first = in_.at;
        const int status = value(type, to);
        return status != 0 ? status : finish(first);
    }

private:
    int fail(uint32_t offset, RtxStatus status, int64_t value = 0, int64_t lower = 0, int64_t upper = 0)
    {
        setError(ctxt_, status, value, lower, upper);
        ctxt_.error.hasOffset = 1;
        ctxt_.error.bitOffset = offset;
        return status;
    }

    int inMember(const char* name, int status)
    {
        if (status != 0)
        {
            pushName(ctxt_, name);
        }
        return status;
    }

    int inElement(uint32_t index, int status)
    {
        if (status != 0)
        {
            pushIndex(ctxt_, index);
        }
        return status;
    }

    // Cleared octets of the context's heap.
    int allocate(size_t size, void*& p)
    {
        p = rtxMemHeapAlloc(&ctxt_, size);
        if (p == nullptr)
        {
            return fail(in_.at, RTX_E_HEAP, static_cast<int64_t>(size));
        }
        std::memset(p, 0, size);
        return 0;
    }

    int need(uint32_t count)
    {
        return count <= in_.end - in_.at ? 0 : fail(in_.at, RTX_E_END, count);
    }

    // Up to 32 bits that are known to be there.
    uint32_t take(unsigned count)
    {
        const uint32_t stop = in_.at + count;
        const uint32_t lastOctet = stop / 8 + (stop % 8 != 0);
        uint64_t word = 0;
        for (uint32_t i = in_.at / 8; i < lastOctet; ++i)
        {
            word = word << 8 | in_.data[i];
        }
        in_.at = stop;
        return static_cast<uint32_t>(word >> ((8 - stop % 8) % 8) & ((uint64_t{1} << count) - 1));
    }

    int read(unsigned count, uint32_t& bits)
    {
        const int status = need(count);
        if (status == 0)
        {
            bits = take(count);
        }
        return status;
    }

    void takeOctets(OSOCTET* to, uint32_t count)
    {
        for (uint32_t i = 0; i < count; ++i)
        {
            to[i] = static_cast<OSOCTET>(take(8));
        }
    }

    int finish(uint32_t first)
    {
        const uint32_t used = in_.at - first;
        const uint32_t octets = used == 0 ? 1 : used / 8 + (used % 8 != 0);
        const uint32_t padding = octets * 8 - used;
        if (const int status = need(padding))
        {
            return status;
        }
        for (uint32_t i = 0; i < padding; ++i)
        {
            if (take(1) != 0)
            {
                return fail(in_.at - 1, RTX_E_PADDING);
            }
        }
        return in_.at == in_.end ? 0 : fail(in_.at, RTX_E_SURPLUS, (in_.end - in_.at) / 8);
    }

    // 11.9.3.5 to 11.9.3.8: a length without upper bound, or that of a fragment with more to follow.
    int length(uint32_t& count, bool& more)
    {
        const uint32_t start = in_.at;
        uint32_t first = 0;
        if (const int status = read(8, first))
        {
            return status;
        }
        more = false;
        count = first;
        if (first < 0x80)
        {
            return 0;
        }
        if (first < 0xC0)
        {
            uint32_t second = 0;
            if (const int status = read(8, second))
            {
                return status;
            }
            count = (first & 0x3F) << 8 | second;
            return count > 127 ? 0 : fail(start, RTX_E_LENGTH, first);
        }
        more = true;
        count = (first & 0x3F) * fragmentUnit;
        return first >= 0xC1 && first <= 0xC4 ? 0 : fail(start, RTX_E_LENGTH, first);
    }

    // 11.9.3.4: a normally small length.
    int smallLength(uint32_t& count)
    {
        uint32_t large = 0;
        if (const int status = read(1, large))
        {
            return status;
        }
        if (large == 0)
        {
            const int status = read(6, count);
            ++count;
            return status;
        }
        const uint32_t start = in_.at;
        bool more = false;
        if (const int status = length(count, more))
        {
            return status;
        }
        // A bitmap of 16K bits and more would be fragmented; no type has as many additions.
        if (count > 64 && !more)
        {
            return 0;
        }
        in_.at = start;
        return fail(start, RTX_E_LENGTH, take(8));
    }

    // 11.6: a normally small non-negative whole number.
    int smallNumber(uint32_t& number)
    {
        uint32_t large = 0;
        if (const int status = read(1, large))
        {
            return status;
        }
        if (large == 0)
        {
            return read(6, number);
        }
        const uint32_t start = in_.at; // 11.7, in the fewest octets
        uint32_t octets = 0;
        if (const int status = read(8, octets))
        {
            return status;
        }
        if (octets == 0 || octets > 3)
        {
            return fail(start, RTX_E_LENGTH, octets);
        }
        if (const int status = read(8 * octets, number))
        {
            return status;
        }
        const bool fewest = number >> (8 * (octets - 1)) != 0 && number > 63;
        return fewest ? 0 : fail(start, RTX_E_LENGTH, octets);
    }

    // 11.2: passes over an open type field.
    int passOpenField(OpenField& field)
    {
        field = {in_.at, 0, 0, false};
        uint32_t count = 4 * fragmentUnit;
        bool more = false;
        do
        {
            const uint32_t start = in_.at;
            const uint32_t before = count;
            if (const int status = length(count, more))
            {
                return status;
            }
            // A fragment is as large as it can be: only one of 64K has another one behind it.
            if (more && before < 4 * fragmentUnit)
            {
                return fail(start, RTX_E_LENGTH, 0xC0 + count / fragmentUnit);
            }
            if (const int status = need(count * 8))
            {
                return status;
            }
            if (start == field.start)
            {
                field.content = in_.at;
            }
            in_.at += count * 8;
            field.octets += count;
            field.fragmented = field.fragmented || more;
        } while (more);
        return field.octets != 0 ? 0 : fail(field.start, RTX_E_LENGTH, 0);
    }

    // The octets of a field that was passed over.
    void copyOpenField(const OpenField& field, OSOCTET* to)
    {
        const uint32_t behind = in_.at;
        in_.at = field.start;
        uint32_t count = 0;
        bool more = true;
        while (more)
        {
            (void)length(count, more);
            takeOctets(to, count);
            to += count;
        }
        in_.at = behind;
    }

    // Where bit `offset` of a field's assembled octets lies in the input.
    uint32_t offsetInInput(const OpenField& field, uint32_t offset)
    {
        const uint32_t behind = in_.at;
        in_.at = field.start;
        uint32_t count = 0;
        bool more = false;
        (void)length(count, more);
        while (more && offset >= count * 8)
        {
            offset -= count * 8;
            in_.at += count * 8;
            (void)length(count, more);
        }
        const uint32_t found = in_.at + offset;
        in_.at = behind;
        return found;
    }

    // 11.2: decodes an open type field whose content `decodeContent` reads.
    template <typename Content>
    int openType(const Content& decodeContent)
    {
        OpenField field;
        if (const int status = passOpenField(field))
        {
            return status;
        }
        Input content = {in_.data, field.content, field.content + field.octets * 8};
        if (field.fragmented)
        {
            void* octets = nullptr;
            if (const int status = allocate(field.octets, octets))
            {
                return status;
            }
            copyOpenField(field, static_cast<OSOCTET*>(octets));
            content = {static_cast<const OSOCTET*>(octets), 0, field.octets * 8};
        }

        const Input outer = in_;
        in_ = content;
        int status = decodeContent();
        if (status == 0)
        {
            status = finish(content.at);
        }
        in_ = outer;
        if (status != 0 && field.fragmented)
        {
            ctxt_.error.bitOffset = offsetInInput(field, static_cast<uint32_t>(ctxt_.error.bitOffset));
        }
        return status;
    }

    // 11.5: a constrained whole number, less its lower bound.
    int constrained(uint32_t range, uint32_t& offset)
    {
        return read(bitsFor(range), offset);
    }

    int value(const Type& type, void* to)
    {
        if (depth_ == RTX_MAX_DEPTH)
        {
            return fail(in_.at, RTX_E_DEPTH);
        }
        ++depth_;
        const int status = valueOfKind(type, to);
        --depth_;
        return status;
    }

    int valueOfKind(const Type& type, void* to)
    {
        switch (type.kind)
        {
        case Kind::Boolean:
            return boolean(to);
        case Kind::Null: // 18: no bits
            return 0;
        case Kind::Integer:
            return integer(type, to);
        case Kind::Enumerated:
            return enumerated(type, to);
        case Kind::BitStr32:
            at<ASN1BitStr32>(to, 0).numbits = static_cast<OSUINT32>(type.upper);
            return bitString(static_cast<uint32_t>(type.upper), at<ASN1BitStr32>(to, 0).data);
        case Kind::BitOctets:
            return bitString(static_cast<uint32_t>(type.upper), static_cast<OSOCTET*>(to));
        case Kind::Sequence:
            return sequence(type, to);
        case Kind::Choice:
            return choice(type, to);
        case Kind::Array:
            return array(type, to);
        case Kind::List:
            return list(type, at<OSRTDList>(to, 0));
        }
        return 0;
    }

    // 12
    int boolean(void* to)
    {
        uint32_t bit = 0;
        const int status = read(1, bit);
        at<OSBOOL>(to, 0) = static_cast<OSBOOL>(bit);
        return status;
    }

    // 13.2.2
    int integer(const Type& type, void* to)
    {
        const uint32_t start = in_.at;
        uint32_t offset = 0;
        if (const int status =
                constrained(static_cast<uint32_t>(type.upper) - static_cast<uint32_t>(type.lower), offset))
        {
            return status;
        }
        const int64_t number = int64_t{type.lower} + offset;
        if (number > type.upper)
        {
            return fail(start, RTX_E_RANGE, number, type.lower, type.upper);
        }
        storeInteger(to, type.width, number);
        return 0;
    }

    // 14.2
    int enumerated(const Type& type, void* to)
    {
        const uint32_t start = in_.at;
        const auto last = static_cast<uint32_t>(type.upper);
        uint32_t number = 0;
        if (const int status = constrained(last, number))
        {
            return status;
        }
        if (number > last)
        {
            return fail(start, RTX_E_RANGE, number, 0, last);
        }
        at<OSUINT32>(to, 0) = number;
        return 0;
    }

    // 16.9, 16.10: of fixed length
    int bitString(uint32_t bits, OSOCTET* to)
    {
        if (const int status = need(bits))
        {
            return status;
        }
        takeOctets(to, bits / 8);
        if (bits % 8 != 0)
        {
            to[bits / 8] = static_cast<OSOCTET>(take(bits % 8) << (8 - bits % 8));
        }
        return 0;
    }

    // 19
    int sequence(const Type& type, void* to)
    {
        uint32_t extended = 0;
        if (const int status = read(type.extensible ? 1 : 0, extended))
        {
            return status;
        }
        if (const int status = members(type, 0, type.rootCount, to))
        {
            return status;
        }
        return extended != 0 ? additions(type, to) : 0;
    }

    // 19.2, 19.4: the presence bits of the optional ones among `count` members, then those present.
    int members(const Type& type, unsigned first, unsigned count, void* to)
    {
        for (unsigned i = first; i < first + count; ++i)
        {
            if (type.members[i].flag >= 0)
            {
                uint32_t present = 0;
                if (const int status = read(1, present))
                {
                    return status;
                }
                if (present != 0)
                {
                    setFlag(to, type.members[i].flag);
                }
            }
        }
        for (unsigned i = first; i < first + count; ++i)
        {
            const Member& member = type.members[i];
            if (member.flag < 0 || hasFlag(to, member.flag))
            {
                if (const int status = inMember(member.name, value(*member.type, &at<OSOCTET>(to, member.offset))))
                {
                    return status;
                }
            }
        }
        return 0;
    }

    // 19.7 to 19.9
    int additions(const Type& type, void* to)
    {
        uint32_t count = 0;
        if (const int status = smallLength(count))
        {
            return status;
        }
        if (const int status = need(count))
        {
            return status;
        }
        Input bitmap = {in_.data, in_.at, in_.at + count};
        uint32_t announced = 0; // bits up to the last one set
        for (uint32_t i = 0; i < count; ++i)
        {
            if (take(1) != 0)
            {
                announced = i + 1;
            }
        }
        if (announced == 0)
        {
            return fail(bitmap.at, RTX_E_EXTENSION);
        }

        for (uint32_t i = 0; i < announced; ++i)
        {
            const bool present = (bitmap.data[bitmap.at / 8] >> (7 - bitmap.at % 8) & 1) != 0;
            ++bitmap.at;
            if (i >= type.additionCount)
            {
                const uint32_t index = i - type.additionCount;
                const int status = unknownAddition(present, at<OSRTDList>(to, type.extElem));
                if (status != 0)
                {
                    return inMember("extElem1", inElement(index, status));
                }
            }
            else if (present)
            {
                if (const int status = addition(type, type.additions[i], to))
                {
                    return status;
                }
            }
        }
        return 0;
    }

    int addition(const Type& type, const Addition& addition, void* to)
    {
        if (addition.flag < 0)
        {
            const Member& member = type.members[addition.first];
            setFlag(to, member.flag);
            const auto content = [&]
            {
                return value(*member.type, &at<OSOCTET>(to, member.offset));
            };
            return inMember(member.name, openType(content));
        }
        if (const int status = openType([&] { return members(type, addition.first, addition.count, to); }))
        {
            return status;
        }
        // A group without any member is taken and not sent again.
        for (unsigned i = addition.first; i < addition.first + addition.count; ++i)
        {
            const int flag = type.members[i].flag;
            if (flag < 0 || hasFlag(to, flag))
            {
                setFlag(to, addition.flag);
            }
        }
        return 0;
    }

    int unknownAddition(bool present, OSRTDList& list)
    {
        OpenField field = {0, 0, 0, false};
        if (present)
        {
            if (const int status = passOpenField(field))
            {
                return status;
            }
        }
        void* block = nullptr;
        if (const int status = allocate(sizeof(UnknownAddition) + field.octets, block))
        {
            return status;
        }
        auto* const unknown = static_cast<UnknownAddition*>(block);
        unknown->node.data = &unknown->open;
        if (present)
        {
            unknown->open.data = reinterpret_cast<OSOCTET*>(unknown + 1);
            unknown->open.numocts = field.octets;
            copyOpenField(field, unknown->open.data);
        }
        rtxDListAppendNode(&list, &unknown->node);
        return 0;
    }

    // 23
    int choice(const Type& type, void* to)
    {
        const uint32_t start = in_.at;
        uint32_t extended = 0;
        if (const int status = read(type.extensible ? 1 : 0, extended))
        {
            return status;
        }
        if (extended == 0) // 23.7
        {
            uint32_t index = 0;
            if (const int status = constrained(type.rootCount - 1U, index))
            {
                return status;
            }
            if (index >= type.rootCount)
            {
                return fail(start, RTX_E_CHOICE, int64_t{index} + 1, 1, type.rootCount);
            }
            return inMember(type.members[index].name, alternative(type, index, to));
        }

        uint32_t index = 0; // 23.8
        if (const int status = smallNumber(index))
        {
            return status;
        }
        index += type.rootCount;
        if (index < type.memberCount)
        {
            const auto content = [&]
            {
                return alternative(type, index, to);
            };
            return inMember(type.members[index].name, openType(content));
        }
        OpenField field;
        void* block = nullptr;
        if (const int status = passOpenField(field))
        {
            return status;
        }
        if (const int status = allocate(sizeof(ASN1OpenType) + field.octets, block))
        {
            return status;
        }
        auto* const open = static_cast<ASN1OpenType*>(block);
        open->data = reinterpret_cast<OSOCTET*>(open + 1);
        open->numocts = field.octets;
        copyOpenField(field, open->data);
        storePointer(&at<OSOCTET>(to, type.elements), open);
        at<OSUINT32>(to, 0) = index + 1;
        return 0;
    }

    int alternative(const Type& type, uint32_t index, void* to)
    {
        const Member& member = type.members[index];
        void* storage = &at<OSOCTET>(to, type.elements);
        if (member.pointer)
        {
            if (const int status = allocate(member.type->size, storage))
            {
                return status;
            }
            storePointer(&at<OSOCTET>(to, type.elements), storage);
        }
        at<OSUINT32>(to, 0) = index + 1;
        return value(*member.type, storage);
    }

    // 20.5, 20.6: the number of elements
    int count(const Type& type, uint32_t& number)
    {
        const uint32_t start = in_.at;
        const auto lower = static_cast<uint32_t>(type.lower);
        const auto upper = static_cast<uint32_t>(type.upper);
        if (const int status = constrained(upper - lower, number))
        {
            return status;
        }
        number += lower;
        return number <= upper ? 0 : fail(start, RTX_E_SIZE, number, lower, upper);
    }

    int array(const Type& type, void* to)
    {
        uint32_t number = 0;
        if (const int status = count(type, number))
        {
            return status;
        }
        if (type.lower != type.upper)
        {
            storeInteger(to, type.width, number);
        }
        for (uint32_t i = 0; i < number; ++i)
        {
            void* const element = &at<OSOCTET>(to, type.elements + size_t{i} * type.element->size);
            if (const int status = inElement(i, value(*type.element, element)))
            {
                return status;
            }
        }
        return 0;
    }

    int list(const Type& type, OSRTDList& to)
    {
        uint32_t number = 0;
        if (const int status = count(type, number))
        {
            return status;
        }
        for (uint32_t i = 0; i < number; ++i)
        {
            if (const int status = inElement(i, appendElement(*type.element, to)))
            {
                return status;
            }
        }
        return 0;
    }

    int appendElement(const Type& type, OSRTDList& to)
    {
        void* block = nullptr;
        if (const int status = allocate(sizeof(OSRTDListNode) + type.size, block))
        {
            return status;
        }
        auto* const node = static_cast<OSRTDListNode*>(block);
        node->data = node + 1;
        rtxDListAppendNode(&to, node);
        return value(type, node->data);
    }

    OSCTXT& ctxt_;
    Input in_;
    unsigned depth_ = 0;
};

} // namespace

int decode(OSCTXT& ctxt, const Type& type, void* value)
{
    if (ctxt.buffer.data == nullptr)
    {
        return setError(ctxt, RTX_E_NOBUFFER);
    }
    rtxErrReset(&ctxt);
    int status = 0;
    if (value == nullptr)
    {
        status = setError(ctxt, RTX_E_NULL);
    }
    else if (ctxt.buffer.capacity > largestInput)
    {
        status = setError(ctxt, RTX_E_RANGE, static_cast<int64_t>(ctxt.buffer.capacity), 0, largestInput);
    }
    else
    {
        std::memset(value, 0, type.size);
        const Input whole = {ctxt.buffer.data, 0, static_cast<uint32_t>(ctxt.buffer.capacity * 8)};
        status = Decoder(ctxt, whole).complete(type, value);
    }
    if (status != 0)
    {
        pushName(ctxt, type.name);
    }
    return status;
}

} // namespace rtx
