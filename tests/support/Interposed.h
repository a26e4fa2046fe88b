// Test doubles of composers that never fail by themselves, for what their callers do if they did. The composers lie in
// the shared library cellgroupcfg_replaceable, where every call goes through the symbol table: the double that a
// test's program defines is found first, also by callers in the composer's own source file.
#ifndef INTERPOSED_H
#define INTERPOSED_H

#include <dlfcn.h>

#include <cstdlib>
#include <type_traits>

#include "vos_types.h"

namespace test
{

// While it lives, this composer fails without doing anything.
class Failing
{
public:
    explicit Failing(const void* composer)
    {
        failing() = composer;
        hasStruck() = false;
    }
    ~Failing()
    {
        failing() = nullptr;
    }
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;

    // Whether it has been called.
    static bool struck()
    {
        return hasStruck();
    }

    static bool strikes(const void* composer)
    {
        hasStruck() = hasStruck() || failing() == composer;
        return failing() == composer;
    }

private:
    static const void*& failing()
    {
        static const void* composer = nullptr;
        return composer;
    }

    static bool& hasStruck()
    {
        static bool struck = false;
        return struck;
    }
};

template <typename... Parameters>
const void* address(INT32 (*composer)(Parameters...))
{
    return reinterpret_cast<const void*>(composer);
}

// The whole body of a double: the real composer's work, or its failure.
template <typename... Parameters>
INT32 passOn(INT32 (*self)(Parameters...), std::type_identity_t<Parameters>... arguments)
{
    if (Failing::strikes(address(self)))
    {
        return VOS_ERROR;
    }
    Dl_info info;
    void* real = nullptr;
    if (dladdr(address(self), &info) != 0 && info.dli_sname != nullptr)
    {
        real = dlsym(RTLD_NEXT, info.dli_sname);
    }
    if (real == nullptr)
    {
        std::abort();
    }
    return reinterpret_cast<INT32 (*)(Parameters...)>(real)(arguments...);
}

} // namespace test

#endif
