// Decodes an input and draws it, the slots taken from its first two octets: no crash, the same picture each time, a
// picture that ends, and the heap as it was.
#include "decoded.h"

#include "rrcDraw.h"

using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
    {
        return 0;
    }
    const draw::Options options = {data[0] * 40U, data[1]};
    fuzz::Decoded decoded(data + 2, size - 2);
    if (decoded.status() != RTX_OK)
    {
        return 0;
    }
    OSCTXT& ctxt = decoded.context();
    const OSOCTET* const next = ctxt.heap.next;
    const RtxHeapBlock* const block = ctxt.heap.blocks;
    const std::string svg = draw::svg(ctxt, decoded.value(), nullptr, options);
    require(ctxt.heap.blocks != block || ctxt.heap.next == next, "the heap is not given back");
    require(svg.ends_with("</svg>\n"), "no picture");
    require(draw::svg(ctxt, decoded.value(), nullptr, options) == svg, "another picture the second time");
    return 0;
}
