// A message taken apart into what PER puts: the {value, width} pairs that the floor of the benchmark writes.
#ifndef FIELDS_H
#define FIELDS_H

#include <cstdint>
#include <cstring>
#include <vector>

#include "rtxType.h"

namespace bench
{

struct Field
{
    uint32_t value;
    uint32_t width; // 1..32 bits
};

class Fields
{
public:
    static std::vector<Field> of(const rtx::Type& type, const void* value)
    {
        Fields fields;
        fields.walk(type, static_cast<const uint8_t*>(value));
        return std::move(fields.out_);
    }

private:
    template <typename T>
    static T load(const uint8_t* p)
    {
        T value;
        std::memcpy(&value, p, sizeof value);
        return value;
    }

    static int64_t integer(const rtx::Type& type, const uint8_t* p)
    {
        const bool isSigned = type.kind == rtx::Kind::Integer && type.lower < 0;
        switch (type.width)
        {
        case 1:
            return isSigned ? load<int8_t>(p) : load<uint8_t>(p);
        case 2:
            return isSigned ? load<int16_t>(p) : load<uint16_t>(p);
        default:
            return isSigned ? load<int32_t>(p) : load<uint32_t>(p);
        }
    }

    void put(int64_t value, unsigned width)
    {
        if (width != 0)
        {
            out_.push_back({static_cast<uint32_t>(value), width});
        }
    }

    static bool flag(const uint8_t* p, int number)
    {
        return (p[number / 8] >> (number % 8) & 1) != 0;
    }

    void walk(const rtx::Type& type, const uint8_t* p)
    {
        const unsigned width = rtx::bitsFor(static_cast<uint32_t>(int64_t{type.upper} - type.lower));
        switch (type.kind)
        {
        case rtx::Kind::Boolean:
            put(*p != 0 ? 1 : 0, 1);
            break;
        case rtx::Kind::Null:
            break;
        case rtx::Kind::Integer:
            put(integer(type, p) - type.lower, width);
            break;
        case rtx::Kind::Enumerated:
            put(load<uint32_t>(p), width);
            break;
        case rtx::Kind::BitStr32:
            bits(p + offsetof(ASN1BitStr32, data), static_cast<unsigned>(type.upper));
            break;
        case rtx::Kind::BitOctets:
            bits(p, static_cast<unsigned>(type.upper));
            break;
        case rtx::Kind::Sequence:
            sequence(type, p);
            break;
        case rtx::Kind::Choice:
            choice(type, p);
            break;
        case rtx::Kind::Array:
            array(type, p, width);
            break;
        case rtx::Kind::List:
            put(load<OSRTDList>(p).count - static_cast<uint32_t>(type.lower), width);
            for (const OSRTDListNode* node = load<OSRTDList>(p).head; node != nullptr; node = node->next)
            {
                walk(type.element(), static_cast<const uint8_t*>(node->data));
            }
            break;
        }
    }

    void bits(const uint8_t* p, unsigned count)
    {
        for (unsigned i = 0; i < count; i += 8)
        {
            const unsigned width = count - i < 8 ? count - i : 8;
            put(p[i / 8] >> (8 - width), width);
        }
    }

    void array(const rtx::Type& type, const uint8_t* p, unsigned width)
    {
        const auto count =
            type.lower == type.upper ? static_cast<uint32_t>(type.upper) : static_cast<uint32_t>(integer(type, p));
        put(int64_t{count} - type.lower, width);
        for (uint32_t i = 0; i < count; ++i)
        {
            walk(type.element(), p + type.members->offset + i * type.element().size);
        }
    }

    void choice(const rtx::Type& type, const uint8_t* p)
    {
        const auto tag = load<uint32_t>(p);
        const rtx::Member& member = type.members[tag - 1];
        if (type.extensible)
        {
            put(0, 1); // the benchmark's messages choose root alternatives
        }
        put(tag - 1, rtx::bitsFor(type.rootCount - 1U));
        const uint8_t* const content = p + member.offset;
        walk(*member.type, member.step == rtx::Step::Pointer ? load<const uint8_t*>(content) : content);
    }

    bool sent(const rtx::Type& type, const rtx::Addition& addition, const uint8_t* p) const
    {
        bool any = false;
        for (unsigned i = addition.first; i < addition.first + addition.count; ++i)
        {
            any = any || type.members[i].flag < 0 || flag(p, type.members[i].flag);
        }
        return any && (addition.flag < 0 || flag(p, addition.flag));
    }

    void sequence(const rtx::Type& type, const uint8_t* p)
    {
        unsigned additions = 0;
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            additions += sent(type, type.additions[i], p) ? 1 : 0;
        }
        if (type.extensible)
        {
            put(additions != 0 ? 1 : 0, 1);
        }
        members(type, p, 0, type.rootCount);
        if (additions == 0)
        {
            return;
        }
        put(type.additionCount - 1, 7);
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            put(sent(type, type.additions[i], p) ? 1 : 0, 1);
        }
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            if (sent(type, type.additions[i], p))
            {
                openType(type, type.additions[i], p);
            }
        }
    }

    void members(const rtx::Type& type, const uint8_t* p, unsigned first, unsigned count)
    {
        for (unsigned i = first; i < first + count; ++i)
        {
            if (type.members[i].flag >= 0)
            {
                put(flag(p, type.members[i].flag) ? 1 : 0, 1);
            }
        }
        for (unsigned i = first; i < first + count; ++i)
        {
            if (type.members[i].flag < 0 || flag(p, type.members[i].flag))
            {
                walk(*type.members[i].type, p + type.members[i].offset);
            }
        }
    }

    void openType(const rtx::Type& type, const rtx::Addition& addition, const uint8_t* p)
    {
        Fields content;
        if (addition.flag >= 0)
        {
            content.members(type, p, addition.first, addition.count);
        }
        else
        {
            content.walk(*type.members[addition.first].type, p + type.members[addition.first].offset);
        }
        unsigned width = 0;
        for (const Field& field : content.out_)
        {
            width += field.width;
        }
        put((width + 7) / 8, 8); // the additions of the benchmark's messages are short
        out_.insert(out_.end(), content.out_.begin(), content.out_.end());
        put(0, (8 - width % 8) % 8);
    }

    std::vector<Field> out_;
};

} // namespace bench

#endif
