// Memory that is not there ends a reading, not the program.
#pragma once

#ifdef __cpp_exceptions
#include <exception>
#endif

namespace text
{

// What `read` returns; without memory, what `without` returns. A program without exceptions ends then, as it does
// wherever else its memory is at an end.
template <typename Read, typename Without>
int whileMemory(const Read& read, const Without& without)
{
#ifdef __cpp_exceptions
    try
    {
        return read();
    }
    catch (const std::exception&)
    {
        return without();
    }
#else
    static_cast<void>(without);
    return read();
#endif
}

} // namespace text
