// What an element of the state after a message was before it, and what the message itself says of it.
#ifndef RULES_COUNTERPARTS_H
#define RULES_COUNTERPARTS_H

#include "memory.h"
#include "rtxType.h"
#include "tree.h"

namespace rules
{

class Counterparts
{
public:
    // Of the trees of one type. Elements of lists are matched by their identity.
    void build(Memory& memory, const Tree& tree, const RtxType& type, const void* after, const void* before,
               const void* sent);

    // Null where there is none.
    template <typename T>
    const T* before(const T& element) const
    {
        const Entry* const entry = find(&element, sizeof element);
        return entry == nullptr ? nullptr : static_cast<const T*>(entry->before);
    }

    const void* before(const void* element, size_t size) const
    {
        const Entry* const entry = find(element, size);
        return entry == nullptr ? nullptr : entry->before;
    }

    template <typename T>
    const T* sent(const T& element) const
    {
        const Entry* const entry = find(&element, sizeof element);
        return entry == nullptr ? nullptr : static_cast<const T*>(entry->sent);
    }

private:
    struct Entry
    {
        const void* after;
        size_t size; // tells a structure from its first member
        const void* before;
        const void* sent;
    };

    const Entry* find(const void* element, size_t size) const;
    void match(const RtxType& type, const void* after, const void* before, const void* sent);
    void matchList(const RtxType& type, const OSRTDList& after, const void* before, const void* sent);

    Memory* memory_ = nullptr;
    const OSCTXT* heap_ = nullptr;
    Vector<Entry> entries_;
};

// The element of the list that has the same identity as `element`, the index-th where the schema names none; null where
// there is none. `found` gets its index.
const void* sameElement(const OSCTXT& heap, const RtxType& listType, const void* element, OSUINT32 index,
                        const OSRTDList& list, OSUINT32& found);

} // namespace rules

#endif
