// What an element of the state after a message was before it, and what the message itself says of it.
#ifndef MODEL_COUNTERPARTS_H
#define MODEL_COUNTERPARTS_H

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

// Finds elements in a list of a tree that has been checked: at once where they are asked for in its order.
class Matching
{
public:
    // `list` may be null.
    Matching(const RtxType& type, const void* list)
        : type_(type), list_(list == nullptr ? OSRTDList{} : rtx::load<OSRTDList>(list)), node_(list_.head)
    {
    }

    // The element of the same identity as that one, or with its index where the schema names none; null where there is
    // none.
    const void* find(const void* element, OSUINT32 index)
    {
        const int64_t wanted = rtx::identityOf(type_, element, index);
        for (OSUINT32 left = list_.count; left != 0 && list_.head != nullptr; --left)
        {
            if (node_ == nullptr || index_ == list_.count)
            {
                node_ = list_.head;
                index_ = 0;
            }
            if (rtx::identityOf(type_, node_->data, index_) == wanted)
            {
                return node_->data;
            }
            node_ = node_->next;
            ++index_;
        }
        return nullptr;
    }

    // Of the element that was found last.
    OSUINT32 index() const
    {
        return index_;
    }

private:
    const RtxType& type_;
    OSRTDList list_;
    const OSRTDListNode* node_; // where the next search begins; null: at the head
    OSUINT32 index_ = 0;
};

} // namespace rules

#endif
