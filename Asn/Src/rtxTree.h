// What every walker over an element tree needs: loads, pointers that are followed only into the context's heap, lists
// that may be anything, text for a sink. Nothing in a tree is taken for granted.
#ifndef RTXTREE_H
#define RTXTREE_H

#include "rtxHeap.h"
#include "rtxType.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace rtx
{

inline bool hasFlag(const void* structure, int flag)
{
    return (static_cast<const OSOCTET*>(structure)[flag / 8] >> (flag % 8) & 1) != 0;
}

template <typename T>
T load(const void* from, size_t offset = 0)
{
    T value;
    std::memcpy(&value, static_cast<const OSOCTET*>(from) + offset, sizeof value);
    return value;
}

inline int64_t loadInteger(const void* from, unsigned width, bool isSigned)
{
    switch (width)
    {
    case 1:
        return isSigned ? int64_t{load<OSINT8>(from)} : load<OSUINT8>(from);
    case 2:
        return isSigned ? int64_t{load<OSINT16>(from)} : load<OSUINT16>(from);
    default:
        return isSigned ? int64_t{load<OSINT32>(from)} : load<OSUINT32>(from);
    }
}

// Why a pointer to `size` octets of a type's storage is not followed: RTX_E_NULL, RTX_E_FOREIGN; RTX_OK when it is.
// Without a context none is.
inline RtxStatus refuse(const OSCTXT* ctxt, const void* p, size_t size)
{
    if (p == nullptr)
    {
        return RTX_E_NULL;
    }
    // A type's alignment divides its size.
    const size_t divisor = size & (~size + 1);
    const size_t alignment = divisor < alignof(void*) ? divisor : alignof(void*);
    const bool aligned = alignment == 0 || reinterpret_cast<uintptr_t>(p) % alignment == 0;
    return ctxt != nullptr && aligned && owns(*ctxt, p, size) ? RTX_OK : RTX_E_FOREIGN;
}

// The same for the octets of an open type, which need no alignment. RTX_E_NULL where it is absent.
inline RtxStatus refuse(const OSCTXT* ctxt, const ASN1OpenType& open)
{
    if (open.data == nullptr)
    {
        return RTX_E_NULL;
    }
    return ctxt != nullptr && owns(*ctxt, open.data, open.numocts) ? RTX_OK : RTX_E_FOREIGN;
}

// How the walk over a list ended.
enum class ListEnd : uint8_t
{
    Asked,   // after as many nodes as were asked for
    Early,   // the nodes end before
    Foreign, // the next node is not followed
    Loop,    // the next node was seen before
    GoesOn   // after all that the list counts, and there are more
};

// Calls `each(index, data)` for the first `number` nodes, as far as they can be followed. `reached` is the number of
// calls.
template <typename Each>
ListEnd forNodes(const OSCTXT* ctxt, const OSRTDList& list, uint32_t number, uint32_t& reached, const Each& each)
{
    const OSRTDListNode* node = list.head;
    const OSRTDListNode* mark = nullptr; // an earlier node: the list is a loop when it comes again
    for (reached = 0; reached < number; ++reached)
    {
        if (node == nullptr)
        {
            return ListEnd::Early;
        }
        if (node == mark)
        {
            return ListEnd::Loop;
        }
        if (refuse(ctxt, node, sizeof *node) != RTX_OK)
        {
            return ListEnd::Foreign;
        }
        if ((reached & (reached - 1)) == 0) // moves on at each power of 2, so that it gets into any loop
        {
            mark = node;
        }
        each(reached, node->data);
        node = node->next;
    }
    return node != nullptr && number == list.count ? ListEnd::GoesOn : ListEnd::Asked;
}

// Collects pieces of text for a sink: a line, or what fits.
class Output
{
public:
    Output(RtxPrintSink sink, void* arg) : sink_(sink), arg_(arg) {}

    void put(const char* text)
    {
        for (; *text != '\0'; ++text)
        {
            put(*text);
        }
    }

    void put(char c)
    {
        text_[length_++] = c;
        if (c == '\n' || length_ == sizeof text_ - 1)
        {
            text_[length_] = '\0';
            length_ = 0;
            sink_(arg_, text_);
        }
    }

    // For numbers and fixed words only: what is longer than `piece` would be cut.
    __attribute__((format(printf, 2, 3))) void format(const char* format, ...)
    {
        char piece[160];
        va_list args;
        va_start(args, format);
        (void)std::vsnprintf(piece, sizeof piece, format, args);
        va_end(args);
        put(piece);
    }

private:
    RtxPrintSink sink_;
    void* arg_;
    char text_[512];
    size_t length_ = 0;
};

} // namespace rtx

#endif
