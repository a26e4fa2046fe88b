#include "trace.h"

#include "fields.h"
#include "message.h"
#include "rtxType.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tool
{
namespace
{

// More bits than these are shown as hex.
constexpr std::uint64_t mostBits = 64;
// That many of a field's bits are given as a number.
constexpr std::uint64_t mostGiven = 57;

class Table
{
public:
    Table(const RtxPdu& pdu, const std::vector<std::uint8_t>& octets) : pdu_(pdu), octets_(octets)
    {
        const std::size_t digits = std::to_string(octets.size() * 8).size();
        widths_ = {2 * digits + 2, std::max(digits + 1, std::string_view("octet").size()),
                   std::string_view("width").size(), 24};
        line({"bits", "octet", "width", "content"}, "path and meaning");
    }

    void add(const RtxField& field)
    {
        const std::string first = std::to_string(field.offset);
        line({field.width < 2 ? first : first + ".." + std::to_string(field.offset + field.width - 1),
              octetPlace(field.offset), std::to_string(field.width), content(field)},
             page::fieldPath(pdu_.name, field) + meaning(field) +
                 (field.note == RTX_NOTE_NONE ? ""
                                              : " (not canonical: " + std::string(page::noteWords(field.note)) + ")"));
        isExtended_ = field.kind == RTX_FIELD_EXTENSION && field.bits != 0;
    }

    std::string take()
    {
        return std::move(text_);
    }

private:
    // A long content does not widen its column.
    void line(const std::array<std::string, 4>& columns, const std::string& meaning)
    {
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            text_ += columns[i] + std::string(widths_[i] - std::min(widths_[i], columns[i].size()), ' ') + "  ";
        }
        text_ += meaning + "\n";
    }

    // Bits of what is announced and of values are given, as they may lie in two fragments; others are where they begin.
    bool bit(const RtxField& field, std::uint64_t i) const
    {
        const bool isGiven =
            field.kind == RTX_FIELD_VALUE || field.kind == RTX_FIELD_PRESENCE || field.kind == RTX_FIELD_ADDITIONS;
        if (isGiven && field.width <= mostGiven)
        {
            return (field.bits >> (field.width - 1 - i) & 1) != 0;
        }
        const std::uint64_t at = field.offset + i;
        return (octets_[at / 8] >> (7 - at % 8) & 1) != 0;
    }

    std::uint64_t number(const RtxField& field, std::uint64_t from = 0) const
    {
        std::uint64_t value = 0;
        for (std::uint64_t i = from; i < field.width; ++i)
        {
            value = value << 1 | (bit(field, i) ? 1U : 0U);
        }
        return value;
    }

    std::string content(const RtxField& field) const
    {
        if (field.width == 0)
        {
            return "-";
        }
        std::string text;
        if (field.width <= mostBits)
        {
            for (std::uint64_t i = 0; i < field.width; ++i)
            {
                text += bit(field, i) ? '1' : '0';
            }
            return text;
        }
        constexpr const char* digits = "0123456789ABCDEF";
        for (std::uint64_t i = 0; i < field.width; i += 4)
        {
            unsigned digit = 0;
            for (std::uint64_t k = i; k < i + 4; ++k)
            {
                digit = digit << 1 | (k < field.width && bit(field, k) ? 1U : 0U);
            }
            text += digits[digit];
        }
        return "0x" + text;
    }

    std::string announced(const RtxField& field) const
    {
        std::string text;
        for (OSUINT32 i = 0; i < field.width; ++i)
        {
            const char* const name = rtxFieldBitName(&field, i);
            text += bit(field, i) ? " +" : " -";
            text += name != nullptr                 ? name
                    : i < field.type->additionCount ? "[[" + std::to_string(i + 1) + "]]"
                                                    : "unknown";
        }
        return text;
    }

    // X.691 23.6 in the root, 11.6 for the alternatives added to it.
    std::string alternative(const RtxField& field) const
    {
        constexpr std::uint64_t small = 7; // bits
        const RtxType& type = *field.type;
        const std::uint64_t index = !isExtended_           ? number(field)
                                    : field.width == small ? type.rootCount + number(field, 1)
                                                           : type.rootCount + number(field, small + 2);
        return index < type.memberCount ? type.names[index] : "unknown";
    }

    // X.691 11.9
    std::string length(const RtxField& field) const
    {
        if (field.type != nullptr) // of a bitmap, behind the bit that says how it is written
        {
            constexpr std::uint64_t small = 7; // bits
            return counted(field.width == small ? number(field, 1) + 1 : unboundedLength(field, 1), "addition");
        }
        return counted(unboundedLength(field, 0), "octet");
    }

    std::uint64_t unboundedLength(const RtxField& field, std::uint64_t from) const
    {
        constexpr std::uint64_t fragment = 16384;
        const std::uint64_t value = number(field, from);
        const bool isLong = field.width - from == 16;
        return isLong ? value & 0x3FFF : value >= 0xC0 ? (value & 0x3F) * fragment : value;
    }

    std::string meaning(const RtxField& field) const
    {
        switch (field.kind)
        {
        case RTX_FIELD_EXTENSION:
            return field.bits != 0 ? ": extended" : ": not extended";
        case RTX_FIELD_PRESENCE:
        case RTX_FIELD_ADDITIONS:
            return ":" + announced(field);
        case RTX_FIELD_CHOICE:
            return ": alternative " + alternative(field);
        case RTX_FIELD_COUNT:
            return ": " + counted(field.bits, "element");
        case RTX_FIELD_LENGTH:
            return ": length of " + length(field);
        case RTX_FIELD_VALUE:
            return " = " + valueText(nullptr, *field.type, field.value);
        case RTX_FIELD_PADDING:
            return ": padding";
        case RTX_FIELD_UNKNOWN:
            return ": " + counted(field.width / 8, "octet") + " of what this release does not know";
        case RTX_FIELD_SURPLUS:
            return ": " + counted(field.width / 8, "octet") + " behind the message";
        default:
            return ": not read";
        }
    }

    const RtxPdu& pdu_;
    const std::vector<std::uint8_t>& octets_;
    std::array<std::size_t, 4> widths_ = {};
    std::string text_;
    bool isExtended_ = false; // the choice whose alternative follows
};

class FirstNote
{
public:
    explicit FirstNote(const RtxPdu& pdu) : pdu_(pdu) {}

    void add(const RtxField& field)
    {
        if (text_.empty())
        {
            text_ = page::noteText(pdu_.name, field);
        }
    }

    std::string take()
    {
        return std::move(text_);
    }

private:
    const RtxPdu& pdu_;
    std::string text_;
};

// Gives every field of the message to `observer.add`. Its error is the decoder's, which is told elsewhere.
template <typename Observer>
void trace(const RtxPdu& pdu, std::vector<std::uint8_t>& octets, Observer& observer)
{
    octets.reserve(1); // an empty message has an address, too
    std::vector<std::max_align_t> value(pdu.type->size / sizeof(std::max_align_t) + 1);
    OSCTXT context;
    rtxInitContext(&context);
    (void)pu_setBuffer(&context, octets.data(), octets.size(), 0);
    const auto sink = [](void* to, const RtxField* field)
    {
        static_cast<Observer*>(to)->add(*field);
    };
    (void)rtxTrace(&context, pdu.type, value.data(), 0, sink, &observer);
    rtFreeContext(&context);
}

} // namespace

std::string octetPlace(std::uint64_t bit)
{
    return std::to_string(bit / 8) + "." + std::to_string(bit % 8);
}

std::string traceText(const RtxPdu& pdu, std::vector<std::uint8_t> octets)
{
    Table table(pdu, octets);
    trace(pdu, octets, table);
    return table.take();
}

std::string noteText(const RtxPdu& pdu, std::vector<std::uint8_t> octets)
{
    FirstNote note(pdu);
    trace(pdu, octets, note);
    return note.take();
}

} // namespace tool
