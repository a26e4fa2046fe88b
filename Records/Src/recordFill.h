// What the functions are made of that fill a record from its element (recordFill.cpp).
#ifndef RECORDFILL_H
#define RECORDFILL_H

#include "NR-RRC-Definitions.h"
#include "byteOrder.h"
#include "rrcCodec/rrcCodec.h"
#include "rtxTree.h"
#include "vos_types.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace records
{

// Fills the record of a cell group. Nothing of the tree is taken for granted, and what the record cannot say is left
// out.
void fillCellGroup(const OSCTXT& ctxt, const CellGroupConfig& element, RrcCellGroupCfg_t& record);

// A mask's bits: one that is asked for and refused stays clear.
class Bits
{
public:
    void add(unsigned number)
    {
        given_ |= UINT64{1} << number;
    }

    bool add(unsigned number, bool said)
    {
        (said ? given_ : refused_) |= UINT64{1} << number;
        return said;
    }

    UINT64 bits() const
    {
        return given_ & ~refused_;
    }

private:
    UINT64 given_ = 0;
    UINT64 refused_ = 0;
};

// A sequence without any member.
template <typename T>
constexpr T none = {};

// The tree as far as it can be followed.
class Tree
{
public:
    explicit Tree(const OSCTXT& ctxt) : ctxt_(ctxt) {}

    // The same pointer; null: it is not followed.
    template <typename T>
    const T* follow(const T* p) const
    {
        return rtx::refuse(&ctxt_, p) == RTX_OK ? p : nullptr;
    }

    // The same where null stands for a sequence without any member.
    template <typename T>
    const T* followOrNone(const T* p) const
    {
        return p == nullptr ? &none<T> : follow(p);
    }

    // Calls fill(element) for the first `most` elements of a list, as far as they can be followed.
    template <typename T, typename Fill>
    void each(const OSRTDList& list, UINT32 most, const Fill& fill) const
    {
        uint32_t reached = 0;
        const auto element = [&](uint32_t, const void* data)
        {
            if (const T* const p = follow(static_cast<const T*>(data)); p != nullptr)
            {
                fill(*p);
            }
        };
        (void)rtx::forNodes(&ctxt_, list, std::min(list.count, most), reached, element);
    }

    // The first element of a list; null: there is none.
    template <typename T>
    const T* first(const OSRTDList& list) const
    {
        const T* found = nullptr;
        each<T>(list, 1, [&](const T& element) { found = &element; });
        return found;
    }

private:
    const OSCTXT& ctxt_;
};

// The same of an array.
template <typename T, size_t Size, typename Fill>
void each(const T (&elements)[Size], UINT32 count, UINT32 most, const Fill& fill)
{
    std::for_each(elements, elements + std::min(count, most), fill);
}

template <typename T, size_t Size>
const T* first(const T (&elements)[Size], UINT32 count)
{
    return count != 0 ? elements : nullptr;
}

// Of what may be an enumeration, of which C takes any number.
template <typename Field>
void assign(Field& to, UINT64 bits)
{
    std::memcpy(&to, rtx::lowOctets(bits, sizeof to), sizeof to);
}

template <typename Field, bool isEnumeration = std::is_enum_v<Field>>
struct Number
{
    using type = Field;
};

template <typename Field>
struct Number<Field, true>
{
    using type = std::underlying_type_t<Field>;
};

// Stores the low octets of a number. False: they are not all of it.
template <typename As, typename Field>
bool storeAs(Field& to, int64_t number)
{
    const auto low = static_cast<As>(number);
    std::memcpy(&to, &low, sizeof to);
    return static_cast<int64_t>(low) == number;
}

template <typename Field>
bool store(Field& to, int64_t number)
{
    return storeAs<typename Number<Field>::type>(to, number);
}

// The same as a two's complement.
template <typename Field>
bool storeSigned(Field& to, int64_t number)
{
    return storeAs<std::make_signed_t<typename Number<Field>::type>>(to, number);
}

// The low bits of a bit string as a number.
template <unsigned length, unsigned kept>
UINT64 bitsOf(const OSOCTET* octets)
{
    UINT64 number = 0;
    for (unsigned i = 0; i < (length + 7) / 8; ++i)
    {
        number = number << 8 | octets[i];
    }
    number >>= (8 - length % 8) % 8;
    return kept < 64 ? number & ((UINT64{1} << kept % 64) - 1) : number;
}

// A bit string in octets as they lie in memory, zero octets behind it.
template <unsigned length>
void storeOctets(void* to, size_t room, const OSOCTET* octets)
{
    const size_t used = std::min<size_t>((length + 7) / 8, room);
    std::memcpy(to, octets, used);
    std::memset(static_cast<OSOCTET*>(to) + used, 0, room - used);
}

// Of a bit field all the unit that it lies in.
template <typename Unit, unsigned width>
void storeAt(void* record, size_t offset, UINT64 bits)
{
    bits <<= rtx::bitFieldShift(sizeof(Unit), width);
    std::memcpy(static_cast<OSOCTET*>(record) + offset, rtx::lowOctets(bits, sizeof(Unit)), sizeof(Unit));
}

// From one field of a record to another one.
template <typename First, typename Last>
void clear(First& first, const Last& last)
{
    const auto* const end = reinterpret_cast<const OSOCTET*>(&last + 1);
    std::memset(&first, 0, static_cast<size_t>(end - reinterpret_cast<const OSOCTET*>(&first)));
}

// Of the resource sets that are released the ids beyond the number of added sets go out as 0.
inline void limitReleasedSets(RrcPucchCfg_t& record)
{
    const UINT8* const ids = record.resourceSetId;
    const UINT8* const sent = ids + std::min(record.numResourceSetAddMod, record.numResourceSetRel);
    const UINT8* const end = std::find_if(sent, ids + record.numResourceSetRel, [](UINT8 id) { return id != 0; });
    record.numResourceSetRel = static_cast<UINT8>(end - ids);
}

} // namespace records

#endif
