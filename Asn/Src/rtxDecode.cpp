#include "rtxDecoder.h"

namespace rtx
{
namespace
{

constexpr uint32_t largestInput = UINT32_MAX / 8; // octets, so that every bit offset has 32 bits

} // namespace

int decode(OSCTXT& ctxt, const Type& type, void* value)
{
    if (ctxt.buffer.data == nullptr)
    {
        return setError(ctxt, RTX_E_NOBUFFER);
    }
    rtxErrReset(&ctxt);
    int status = 0;
    if (value == nullptr)
    {
        status = setError(ctxt, RTX_E_NULL);
    }
    else if (ctxt.buffer.capacity > largestInput)
    {
        status = setError(ctxt, RTX_E_RANGE, static_cast<int64_t>(ctxt.buffer.capacity), 0, largestInput);
    }
    else
    {
        std::memset(value, 0, type.size);
        const Input whole(ctxt.buffer.data, static_cast<uint32_t>(ctxt.buffer.capacity * 8));
        Decoder<NoObserver>(ctxt).complete(whole, type, static_cast<OSOCTET*>(value), 0);
        status = ctxt.error.status;
    }
    if (status != 0)
    {
        pushName(ctxt, type.name);
    }
    return status;
}

} // namespace rtx
