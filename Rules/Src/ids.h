// What a list that is added to, modified and released one by one holds after the message.
#ifndef RULES_IDS_H
#define RULES_IDS_H

#include "memory.h"

#include "asn1Runtime.h"

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

    Vector<Entry> all;
    Vector<OSUINT32> released; // as the message says
    bool complete = false;     // there are no others
};

} // namespace rules

#endif
