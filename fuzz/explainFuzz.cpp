// Decodes an input and tells what its values mean, with what is known besides taken from its first octets.
#include "meanings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzz::withContext(data, size, fuzz::checkMeanings);
    return 0;
}
