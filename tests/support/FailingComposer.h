// Test doubles of composers that never fail by themselves, for the lines that their callers would print if they did.
#ifndef FAILINGCOMPOSER_H
#define FAILINGCOMPOSER_H

#include <string>
#include <utility>

#include "vos_types.h"

namespace test
{

// While it lives, the composer with this mangled name fails without doing anything.
class FailingComposer
{
public:
    explicit FailingComposer(std::string mangledName)
    {
        name() = std::move(mangledName);
    }
    ~FailingComposer()
    {
        name().clear();
    }
    FailingComposer(const FailingComposer&) = delete;
    FailingComposer& operator=(const FailingComposer&) = delete;

    static bool is(const char* mangledName)
    {
        return name() == mangledName;
    }

private:
    static std::string& name()
    {
        static std::string failing;
        return failing;
    }
};

} // namespace test

// Defines the double of a composer with these parameters and arguments. The executable is linked with
// --wrap=<mangledName>; the composer has to lie in another source file than its caller.
#define FAILING_COMPOSER(mangledName, parameters, arguments)                                                           \
    extern "C" INT32 __real_##mangledName parameters;                                                                  \
    extern "C" INT32 __wrap_##mangledName parameters;                                                                  \
    extern "C" INT32 __wrap_##mangledName parameters                                                                   \
    {                                                                                                                  \
        return test::FailingComposer::is(#mangledName) ? VOS_ERROR : __real_##mangledName arguments;                   \
    }

#endif
