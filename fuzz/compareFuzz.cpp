// Decodes two inputs and compares the trees: there is no difference exactly when both are encoded alike, and as many
// the other way round. What stopped halfway is compared, too.
#include "decoded.h"

using fuzz::Decoded;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
    {
        return 0;
    }
    // The first two octets are the length of the first message.
    const size_t length = std::min<size_t>(data[0] * 256U + data[1], size - 2);
    Decoded a(data + 2, length);
    Decoded b(data + 2 + length, size - 2 - length);
    const int64_t differences = a.differences(b);
    require(differences >= 0, "the comparison fails");
    require(b.differences(a) == differences, "the other way round there are not as many differences");
    if (a.status() == RTX_OK && b.status() == RTX_OK)
    {
        const size_t capacity = 2 * size + 64;
        require((differences == 0) == (a.encode(capacity) == b.encode(capacity)), "trees and encodings disagree");
    }
    return 0;
}
