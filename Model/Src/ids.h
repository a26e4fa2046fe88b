// What a list that is added to, modified and released one by one holds after the message.
#ifndef MODEL_IDS_H
#define MODEL_IDS_H

#include "memory.h"

#include "asn1Runtime.h"

#include <algorithm>

namespace rules
{

// Whether an element was configured before the message.
enum class Novelty : OSUINT8
{
    Old,
    New, // all that holds "at setup" holds of it
    Unknown
};

template <typename T>
struct IdEntry
{
    OSUINT32 id;
    const T* element;
    Novelty novelty;
};

// The entries by their ids, in their order.
template <typename T>
class Ids
{
public:
    using Entry = IdEntry<T>;

    // Of those with the same id the last: it overwrites the others.
    const Entry* find(OSUINT32 id) const
    {
        if (!places_.empty())
        {
            return id < places_.size() && places_[id] != 0 ? &all[places_[id] - 1U] : nullptr;
        }
        for (size_t i = all.size(); i-- != 0;)
        {
            if (all[i].id == id)
            {
                return &all[i];
            }
        }
        return nullptr;
    }

    const T* element(OSUINT32 id) const
    {
        const Entry* const entry = find(id);
        return entry == nullptr ? nullptr : entry->element;
    }

    // By this message and for good.
    bool isReleased(OSUINT32 id) const
    {
        for (const OSUINT32 gone : released)
        {
            if (gone == id)
            {
                return find(id) == nullptr;
            }
        }
        return false;
    }

    const Entry* begin() const
    {
        return all.begin();
    }
    const Entry* end() const
    {
        return all.end();
    }
    size_t size() const
    {
        return all.size();
    }
    bool empty() const
    {
        return all.empty();
    }

    // So that many elements are found fast; after the last of them is in `all`.
    void index(Memory& memory)
    {
        OSUINT32 largest = 0;
        for (const Entry& entry : all)
        {
            largest = std::max(largest, entry.id);
        }
        if (all.size() <= few || largest > largestIndexed)
        {
            for (size_t i = 0; i < all.size(); ++i)
            {
                repeats = repeats || find(all[i].id) != &all[i];
            }
            return;
        }
        for (OSUINT32 id = 0; id <= largest; ++id)
        {
            places_.add(memory, 0);
        }
        for (size_t i = 0; i < all.size() && !memory.failed(); ++i)
        {
            repeats = repeats || places_[all[i].id] != 0;
            places_[all[i].id] = static_cast<OSUINT16>(i + 1);
        }
    }

    Vector<Entry> all;
    Vector<OSUINT32> released; // as the message says
    bool complete = false;     // there are no others
    bool repeats = false;      // an id: what it does not have may have been meant by that (gen-dup-id)

private:
    static constexpr size_t few = 8;
    static constexpr OSUINT32 largestIndexed = 1023;

    Vector<OSUINT16> places_; // by the id: 1 + the index in `all`; empty: not indexed
};

} // namespace rules

#endif
