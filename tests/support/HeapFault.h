#ifndef HEAPFAULT_H
#define HEAPFAULT_H

#include "asn1Runtime.h"

namespace test
{

// While it lives, the heap of every context of this thread refuses all requests after the first `successes`.
// The test's executable is linked with --wrap=rtxMemHeapAlloc (cgc_composer_test does that).
class HeapFault
{
public:
    explicit HeapFault(unsigned successes);
    ~HeapFault();
    HeapFault(const HeapFault&) = delete;
    HeapFault& operator=(const HeapFault&) = delete;

    // Whether a request has been refused.
    static bool struck();
};

} // namespace test

#endif
