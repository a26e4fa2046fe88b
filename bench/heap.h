// What the calling thread has asked of malloc. The program is linked with --wrap=malloc and --wrap=free.
#ifndef HEAP_H
#define HEAP_H

#include <cstddef>

namespace bench
{

struct Heap
{
    std::size_t calls = 0;
    std::size_t used = 0; // octets
    std::size_t peak = 0;
};
extern thread_local Heap heap;

} // namespace bench

#endif
