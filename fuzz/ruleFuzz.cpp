// Decodes an input and checks it against all rules, with what is known besides taken from its first octets.
#include "ruleFindings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzz::withContext(data, size, fuzz::checkRules);
    return 0;
}
