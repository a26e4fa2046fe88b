#ifndef REQUIRE_H
#define REQUIRE_H

#include <cstdio>
#include <cstdlib>

namespace fuzz
{

inline void require(bool condition, const char* what)
{
    if (!condition)
    {
        (void)std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

} // namespace fuzz

#endif
