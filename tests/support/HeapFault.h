#ifndef HEAPFAULT_H
#define HEAPFAULT_H

#include "asn1Runtime.h"

namespace test
{

// While it lives, the heap of every context of this thread refuses all requests after the first `successes`, or one.
// The test's executable is linked with --wrap=rtxMemHeapAlloc (cgc_composer_test does that).
class HeapFault
{
public:
    enum class Refused
    {
        All,
        One
    };

    explicit HeapFault(unsigned successes, Refused which = Refused::All);
    ~HeapFault();
    HeapFault(const HeapFault&) = delete;
    HeapFault& operator=(const HeapFault&) = delete;

    // Whether a request has been refused.
    static bool struck();
};

} // namespace test

#endif
