// In what two messages differ, each difference with its nodes.
#pragma once

#include "nodes.h"

namespace page
{

struct Difference
{
    std::string path;  // with identities where elements are matched by them
    std::string words; // "ms45 in a, ms80 in b"
    struct Place
    {
        std::uint32_t node; // or what is around the place, where the message lacks it
        bool isThere;
    };
    Place a;
    Place b;
};

// Of two messages that were decoded. Nothing, when memory is exhausted.
std::vector<Difference> differencesOf(const Tree& a, const Tree& b);

} // namespace page
