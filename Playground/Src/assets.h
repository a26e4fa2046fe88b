// Files that are a part of the library.
#pragma once

#include <string_view>

// Defines a function that gives the content of a file.
#define EMBED(name, path)                                                                                              \
    __asm__(".pushsection .rodata\n.balign 1\n" #name "Begin:\n.incbin \"" path "\"\n" #name "End:\n.popsection\n");   \
    extern "C" const char name##Begin[] __attribute__((visibility("hidden")));                                         \
    extern "C" const char name##End[] __attribute__((visibility("hidden")));                                           \
    std::string_view name()                                                                                            \
    {                                                                                                                  \
        return {name##Begin, static_cast<std::size_t>(name##End - name##Begin)};                                       \
    }

namespace playground
{

// The program, compressed by gzip; empty where there is none.
std::string_view program();

} // namespace playground
