// Reading an element tree that may be anything: pointers are followed only into the heap that the tree lies in, and
// every count is bounded.
#ifndef MODEL_TREE_H
#define MODEL_TREE_H

#include "NR-RRC-Definitions.h"
#include "rtxTree.h"

#include <iterator>
#include <span>

// A structure's optional member, null where it is absent.
#define MEMBER(structure, name) ((structure).m.name##Present ? &(structure).name : nullptr)

// A member of the structure's extension group `[[ ]]` that _v<number>ExtPresent announces, null where it is not sent.
#define ADDITION(structure, number, name)                                                                              \
    ((structure).m._v##number##ExtPresent != 0 ? MEMBER(structure, name) : nullptr)

// The alternative that the union of *choice holds by pointer, null where it is not chosen or cannot be followed.
#define CHOSEN(tree, choice, type, alternative)                                                                        \
    (rules::isChosen(choice, T_##type##_##alternative) ? (tree).follow((choice)->u.alternative) : nullptr)

namespace rules
{

// The setup alternative of every SetupRelease.
constexpr OSUINT32 setupTag = 2;
constexpr OSUINT32 releaseTag = 1;

constexpr OSUINT32 mostElements = maxNrofSlotFormatCombinationsPerSet; // of any list of the schema

template <typename Choice>
bool isChosen(const Choice* choice, OSUINT32 tag)
{
    return choice != nullptr && choice->t == tag;
}

// The elements of a list, those that cannot be followed left out.
template <typename T>
class List
{
public:
    class Iterator
    {
    public:
        Iterator() = default;
        Iterator(const OSCTXT* heap, const OSRTDListNode* node, OSUINT32 left) : heap_(heap), node_(node), left_(left)
        {
            skip();
        }

        const T& operator*() const
        {
            return *static_cast<const T*>(node_->data);
        }

        Iterator& operator++()
        {
            step();
            skip();
            return *this;
        }

        // Only against the end.
        bool operator!=(const Iterator&) const
        {
            return left_ != 0;
        }

    private:
        void step()
        {
            node_ = node_->next;
            --left_;
        }

        void skip()
        {
            for (; left_ != 0; step())
            {
                if (rtx::refuse(heap_, node_) != RTX_OK)
                {
                    left_ = 0;
                    return;
                }
                if (rtx::refuse(heap_, static_cast<const T*>(node_->data)) == RTX_OK)
                {
                    return;
                }
            }
        }

        const OSCTXT* heap_ = nullptr;
        const OSRTDListNode* node_ = nullptr;
        OSUINT32 left_ = 0;
    };

    List() = default;
    List(const OSCTXT& heap, const OSRTDList& list) : heap_(&heap), list_(&list) {}

    Iterator begin() const
    {
        return list_ == nullptr ? Iterator() : Iterator(heap_, list_->head, std::min(list_->count, mostElements));
    }

    Iterator end() const
    {
        return {};
    }

    bool empty() const
    {
        return !(begin() != end());
    }

    OSUINT32 size() const
    {
        OSUINT32 count = 0;
        for (Iterator i = begin(); i != end(); ++i)
        {
            ++count;
        }
        return count;
    }

private:
    const OSCTXT* heap_ = nullptr;
    const OSRTDList* list_ = nullptr;
};

// The heap that a tree lies in.
class Tree
{
public:
    explicit Tree(const OSCTXT& ctxt)
    {
        heap_.heap = ctxt.heap; // what is taken from it later is no part of the tree
    }

    // Null where the pointer cannot be followed.
    template <typename T>
    const T* follow(const T* p) const
    {
        return rtx::refuse(&heap_, p) == RTX_OK ? p : nullptr;
    }

    // What a SetupRelease sets up, null where it does not.
    template <typename SetupRelease>
    auto setup(const SetupRelease* choice) const
    {
        if constexpr (std::is_pointer_v<decltype(choice->u.setup)>)
        {
            using Element = std::remove_pointer_t<decltype(choice->u.setup)>;
            return choice != nullptr && choice->t == setupTag ? follow(static_cast<const Element*>(choice->u.setup))
                                                              : nullptr;
        }
        else
        {
            return choice != nullptr && choice->t == setupTag ? &choice->u.setup : nullptr;
        }
    }

    // The elements of a list, none where it is null.
    template <typename T>
    List<T> list(const OSRTDList* list) const
    {
        return list == nullptr ? List<T>() : List<T>(heap_, *list);
    }

    const OSCTXT& heap() const
    {
        return heap_;
    }

private:
    OSCTXT heap_{};
};

// What an enumeration's value stands for, in the order of its values; 0 of a value that stands for nothing.
template <typename T, size_t N>
T meaning(const T (&meanings)[N], OSUINT32 value)
{
    return value < N ? meanings[value] : T{};
}

template <typename SetupRelease>
bool isRelease(const SetupRelease* choice)
{
    return choice != nullptr && choice->t == releaseTag;
}

// The entries of an array, none where it is null.
template <typename Array>
auto entries(const Array* array)
{
    using Entry = std::remove_reference_t<decltype(array->elem[0])>;
    if (array == nullptr)
    {
        return std::span<const Entry>();
    }
    if constexpr (requires { array->n; })
    {
        return std::span<const Entry>(array->elem, std::min<size_t>(array->n, std::size(array->elem)));
    }
    else
    {
        return std::span<const Entry>(array->elem);
    }
}

// Whether two optional members, each null where it is absent, are the same.
template <typename T>
bool isSame(const T* a, const T* b)
{
    return a == nullptr || b == nullptr ? a == b : *a == *b;
}

template <typename Array>
bool isSameArray(const Array* a, const Array* b)
{
    const auto x = entries(a);
    const auto y = entries(b);
    return std::equal(x.begin(), x.end(), y.begin(), y.end());
}

// Whether bit `index`, the first is 0, of a bit string is set; false behind its end.
inline bool hasBit(const ASN1BitStr32& bits, OSUINT32 index)
{
    return index < rtx::bitCount(bits) && (bits.data[index / 8] >> (7 - index % 8) & 1) != 0;
}

inline bool hasBit(const OSOCTET* octets, OSUINT32 index)
{
    return (octets[index / 8] >> (7 - index % 8) & 1) != 0;
}

// A bit string as a number: its last bit is the least significant one.
inline OSUINT32 bitsAsNumber(const ASN1BitStr32& bits)
{
    OSUINT32 number = 0;
    for (OSUINT32 i = 0; i < rtx::bitCount(bits); ++i)
    {
        number = 2 * number + (hasBit(bits, i) ? 1 : 0);
    }
    return number;
}

// How many of the first `count` bits are set.
template <typename Bits>
OSUINT32 bitsSet(const Bits& bits, OSUINT32 count)
{
    OSUINT32 set = 0;
    for (OSUINT32 i = 0; i < count; ++i)
    {
        set += hasBit(bits, i) ? 1 : 0;
    }
    return set;
}

} // namespace rules

#endif
