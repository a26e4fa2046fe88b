// Decodes any input, traces it and writes in every notation what was read of it. What is accepted is checked, encoded,
// decoded and encoded again: both trees and both encodings are the same.
#include "decoded.h"

using fuzz::Decoded;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Decoded first(data, size);
    require(first.printedLength() != 0, "nothing is printed");
    first.write();
    first.trace();
    require((first.status() != RTX_OK) == (first.errorLength() != 0), "the error's line and the status disagree");
    const int64_t findings = first.findings();
    if (first.status() != RTX_OK)
    {
        return 0;
    }
    require(findings == 0, "what was decoded is refused");

    // An earlier release's bitmaps of extension additions are shorter than ours: the second encoding may be longer.
    const std::vector<OSOCTET> once = first.encode(2 * size + 64);
    Decoded second(once.data(), once.size());
    require(second.status() == RTX_OK, "what was encoded is not decoded");
    require(second.printedLength() == first.printedLength(), "the second tree is another one");
    require(first.differences(second) == 0, "the second tree differs");
    require(second.encode(once.size()) == once, "the second encoding is another one");
    return 0;
}
