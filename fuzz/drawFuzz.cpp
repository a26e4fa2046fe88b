// Decodes an input and draws it, with what is known besides taken from its first octets and the slots from its length:
// no crash, the same picture each time, a picture that ends, and the heap as it was.
#include "context.h"

#include "rrcDraw.h"

using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto length = static_cast<unsigned>(size);
    const RrcDrawOptions options = {length * 40U % 10240U, length % 161U};
    const auto check = [&](OSCTXT& ctxt, const CellGroupConfig& tree, const RrcRuleContext& known)
    {
        const fuzz::HeapMark mark(ctxt);
        const std::string svg = draw::svg(ctxt, tree, &known, options);
        mark.expectGivenBack();
        const bool isRefused = svg.empty() && fuzz::isRefused(ctxt, known, ctxt.error.status);
        require(isRefused || svg.ends_with("</svg>\n"), "no picture");
        require(draw::svg(ctxt, tree, &known, options) == svg, "another picture the second time");
    };
    fuzz::withContext(data, size, check);
    return 0;
}
