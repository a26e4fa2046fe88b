// What the calling thread asks of malloc and of operator new, and what fails of it. The program is linked with
// --wrap=malloc and --wrap=free.
#ifndef MEMORY_H
#define MEMORY_H

#include <cstddef>

namespace assurance
{

struct Memory
{
    std::size_t asked = 0; // requests
    std::size_t live = 0;  // blocks
    std::size_t used = 0;  // octets
    std::size_t peak = 0;

    std::size_t failing = 0; // the number of the request that fails, 0: none
    bool failingOn = false;  // and all behind it
    bool hasFailed = false;
};
extern thread_local Memory memory;

} // namespace assurance

#endif
