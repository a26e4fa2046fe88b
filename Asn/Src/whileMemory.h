// Memory that is not there ends a call, not the program: for the libraries of hosts.
#pragma once

#ifdef __cpp_exceptions
#include <exception>
#include <new>
#endif

namespace text
{

// What `work` returns; without memory, what `without` returns. A program without exceptions ends then, as it does
// wherever else its memory is at an end.
template <typename Work, typename Without>
int whileMemory(const Work& work, const Without& without)
{
#ifdef __cpp_exceptions
    try
    {
        return work();
    }
    catch (const std::exception&)
    {
        return without();
    }
#else
    static_cast<void>(without);
    return work();
#endif
}

// Ends the work that whileMemory does.
inline void endWithoutMemory()
{
#ifdef __cpp_exceptions
    throw std::bad_alloc();
#endif
}

// For the sinks of a call that no exception may cross: once one has run out of memory, those behind it do nothing, and
// what called for them is told afterwards.
class Sinks
{
public:
    // What `work` returns; 1, which ends a walk, without memory.
    template <typename Work>
    int run(const Work& work)
    {
        const auto none = [this]
        {
            lost_ = true;
            return 1;
        };
        return lost_ ? 1 : whileMemory(work, none);
    }

    // Behind the call.
    void finish()
    {
        if (lost_)
        {
            lost_ = false;
            endWithoutMemory();
        }
    }

private:
    bool lost_ = false;
};

} // namespace text
