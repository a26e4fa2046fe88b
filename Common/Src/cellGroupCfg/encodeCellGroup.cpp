#include <cstdio>
#include <cstring>

#include "cellGroupCfg.h"
#include "failureLines.h"
#include "rrcCodec/rrcCompose.h"

namespace
{

constexpr std::size_t linesSize = 256; // a failing composer and its callers

// The caller's octets for a line; none where size is 0.
struct Text
{
    char* octets;
    std::size_t size;
};

// Shows that only the first octets of a line so long have found room.
void markCut(const Text& text, std::size_t length)
{
    if (length >= text.size && text.size > 3)
    {
        std::memset(text.octets + text.size - 4, '.', 3);
    }
}

// Writes the line and returns the status.
INT32 say(const Text& error, RrcComposeStatus_e status, const char* line)
{
    markCut(error, static_cast<std::size_t>(std::snprintf(error.octets, error.size, "%s", line)));
    return status;
}

INT32 composeWhole(OSCTXT* pAsnCxt, const RrcCellGroupCfg_t& record, CellGroupConfig** ppTree,
                   const FailureLines& lines)
{
    const INT32 result = composeTree(pAsnCxt, const_cast<RrcCellGroupCfg_t*>(&record), ppTree);
    if (rtxMemHeapFailed(pAsnCxt) != 0)
    {
        return RRC_COMPOSE_E_MEMORY;
    }
    // A line without a failure is that of a composer whose result nobody looks at.
    return result != VOS_OK || lines.any() ? RRC_COMPOSE_E_FAILED : RRC_COMPOSE_OK;
}

struct Call
{
    const RrcCellGroupCfg_t* pRecord;
    UINT8* buf;
    std::size_t capacity;
    std::size_t* pLength;
    Text error;
};

INT32 checkArguments(const Call& call)
{
    if (call.error.size != 0)
    {
        call.error.octets[0] = '\0';
    }
    if (call.pLength == nullptr)
    {
        return say(call.error, RRC_COMPOSE_E_ARGUMENT, "pLength is null");
    }
    *call.pLength = 0;
    if (call.pRecord == nullptr)
    {
        return say(call.error, RRC_COMPOSE_E_ARGUMENT, "pRrcCellGroupCfg is null");
    }
    if (call.buf == nullptr)
    {
        return say(call.error, RRC_COMPOSE_E_ARGUMENT, "buf is null");
    }
    if (!sCellsFit(*call.pRecord))
    {
        char line[sCellLineSize];
        writeSCellLine(line, *call.pRecord);
        return say(call.error, RRC_COMPOSE_E_ARGUMENT, line);
    }
    return RRC_COMPOSE_OK;
}

INT32 encode(OSCTXT* pAsnCxt, const Call& call)
{
    char text[linesSize];
    const FailureLines lines(text, sizeof text);
    CellGroupConfig* pTree;
    const INT32 composed = composeWhole(pAsnCxt, *call.pRecord, &pTree, lines);
    if (composed == RRC_COMPOSE_E_MEMORY)
    {
        char line[linesSize + 16];
        (void)std::snprintf(line, sizeof line, "out of memory: %s", text);
        return say(call.error, RRC_COMPOSE_E_MEMORY, lines.any() ? line : "out of memory");
    }
    if (composed != RRC_COMPOSE_OK)
    {
        return say(call.error, RRC_COMPOSE_E_FAILED, text);
    }
    (void)pu_setBuffer(pAsnCxt, call.buf, call.capacity, 0);
    const int encoded = asn1PE_CellGroupConfig(pAsnCxt, pTree);
    if (encoded != 0)
    {
        if (call.error.size != 0)
        {
            markCut(call.error, rtxErrFormat(pAsnCxt, call.error.octets, call.error.size));
        }
        return encoded == RTX_E_OVERFLOW ? RRC_COMPOSE_E_CAPACITY : RRC_COMPOSE_E_VALUE;
    }
    *call.pLength = pu_getMsgLen(pAsnCxt);
    return RRC_COMPOSE_OK;
}

// The heap takes the memory first; all else comes from malloc, or from nowhere.
INT32 encodeIn(void* memory, std::size_t memorySize, bool orMalloc, const Call& call)
{
    OSCTXT context;
    (void)rtxInitContext(&context); // refuses nothing but a null pointer
    const std::size_t room = rtxMemHeapSetMemory(&context, memory, memorySize);
    if (!orMalloc)
    {
        rtxMemHeapSetLimit(&context, room);
    }
    const INT32 status = encode(&context, call);
    rtFreeContext(&context);
    return status;
}

} // namespace

INT32 rrcComposeCellGroupTree(OSCTXT* pAsnCxt, const RrcCellGroupCfg_t* pRrcCellGroupCfg,
                              CellGroupConfig** ppCellGroupConfig)
{
    if (ppCellGroupConfig == nullptr)
    {
        return RRC_COMPOSE_E_ARGUMENT;
    }
    *ppCellGroupConfig = nullptr;
    if (pAsnCxt == nullptr || pRrcCellGroupCfg == nullptr || !sCellsFit(*pRrcCellGroupCfg))
    {
        return RRC_COMPOSE_E_ARGUMENT;
    }
    char text[linesSize];
    const FailureLines lines(text, sizeof text);
    CellGroupConfig* pTree;
    const INT32 status = composeWhole(pAsnCxt, *pRrcCellGroupCfg, &pTree, lines);
    if (status == RRC_COMPOSE_OK)
    {
        *ppCellGroupConfig = pTree;
    }
    return status;
}

INT32 rrcEncodeCellGroupCfg(const RrcCellGroupCfg_t* pRrcCellGroupCfg, UINT8* buf, size_t capacity, size_t* pLength,
                            char* error, size_t errorSize)
{
    const Call call = {pRrcCellGroupCfg, buf, capacity, pLength, {error, error == nullptr ? 0 : errorSize}};
    const INT32 status = checkArguments(call);
    if (status != RRC_COMPOSE_OK)
    {
        return status;
    }
    alignas(16) OSOCTET memory[stackMemory];
    return encodeIn(memory, sizeof memory, true, call);
}

INT32 rrcEncodeCellGroupCfgInMemory(const RrcCellGroupCfg_t* pRrcCellGroupCfg, void* memory, size_t memorySize,
                                    UINT8* buf, size_t capacity, size_t* pLength, char* error, size_t errorSize)
{
    const Call call = {pRrcCellGroupCfg, buf, capacity, pLength, {error, error == nullptr ? 0 : errorSize}};
    const INT32 status = checkArguments(call);
    if (status != RRC_COMPOSE_OK)
    {
        return status;
    }
    if (memory == nullptr)
    {
        return say(call.error, RRC_COMPOSE_E_ARGUMENT, "memory is null");
    }
    return encodeIn(memory, memorySize, false, call);
}
