#ifndef RECORDORDER_H
#define RECORDORDER_H

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace test
{

// Whether the fields lie in the order given, none upon another.
constexpr bool rising(std::initializer_list<std::size_t> offsets)
{
    return std::adjacent_find(offsets.begin(), offsets.end(), [](auto a, auto b) { return a >= b; }) == offsets.end();
}

} // namespace test

#endif
