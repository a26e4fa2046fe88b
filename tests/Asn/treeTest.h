// A context in whose heap a test builds trees of any shape.
#ifndef TREETEST_H
#define TREETEST_H

#include "rtxTestTypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>

namespace test
{

// A sink that appends to a std::string.
inline void collect(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

class Trees
{
public:
    Trees()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }

    ~Trees()
    {
        rtFreeContext(&ctxt);
    }

    Trees(const Trees&) = delete;
    Trees& operator=(const Trees&) = delete;

    // A cleared T in the context's heap.
    template <typename T>
    T* make()
    {
        void* const p = rtxMemHeapAlloc(&ctxt, sizeof(T));
        EXPECT_NE(nullptr, p);
        return static_cast<T*>(p);
    }

    void append(OSRTDList& list, void* data)
    {
        auto* const node = make<OSRTDListNode>();
        node->data = data;
        rtxDListAppendNode(&list, node);
    }

    Item* item(OSUINT8 id)
    {
        auto* const value = make<Item>();
        value->id = id;
        return value;
    }

    ASN1OpenType* open(std::initializer_list<OSOCTET> octets, OSUINT32 index = 0)
    {
        auto* const value = make<ASN1OpenType>();
        value->index = index;
        value->numocts = static_cast<OSUINT32>(octets.size());
        value->data = static_cast<OSOCTET*>(rtxMemHeapAlloc(&ctxt, octets.size()));
        std::copy(octets.begin(), octets.end(), value->data);
        return value;
    }

    OSCTXT ctxt;
};

} // namespace test

#endif
