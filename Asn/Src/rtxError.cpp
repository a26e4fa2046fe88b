#include "rtxTree.h"
#include "vos_lib.h"

#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace
{

// A line that grows in a buffer of fixed size; `length` counts what did not fit, too.
struct Line
{
    char* text;
    size_t size;
    size_t length;
};

Line emptyLine(char* text, size_t size)
{
    if (size != 0)
    {
        text[0] = '\0';
    }
    return {text, size, 0};
}

__attribute__((format(printf, 2, 3))) void append(Line& line, const char* format, ...)
{
    const size_t room = line.length < line.size ? line.size - line.length : 0;
    va_list args;
    va_start(args, format);
    const int length = std::vsnprintf(room != 0 ? line.text + line.length : nullptr, room, format, args);
    va_end(args);
    line.length += length > 0 ? static_cast<size_t>(length) : 0;
}

const char* plural(int64_t count)
{
    return count == 1 ? "" : "s";
}

void appendPath(Line& line, const RtxError& error)
{
    OSUINT32 depth = error.depth;
    if (depth > RTX_MAX_DEPTH)
    {
        append(line, ".."); // the next name brings a third one
        depth = RTX_MAX_DEPTH;
    }
    for (OSUINT32 i = depth; i-- != 0;)
    {
        const RtxPathStep& step = error.path[i];
        if (step.group != 0)
        {
            append(line, "%s[[%" PRIu32 "]]", line.length != 0 ? "." : "", step.index);
        }
        else if (step.name == nullptr)
        {
            append(line, "[%" PRIu32 "]", step.index);
        }
        else
        {
            append(line, "%s%s", line.length != 0 ? "." : "", step.name);
        }
    }
    append(line, "%s", line.length != 0 ? ": " : "");
}

void appendBounds(Line& line, const rtx::Reason& reason)
{
    append(line, "%" PRId64, reason.lower);
    if (reason.upper != reason.lower)
    {
        append(line, "..%" PRId64, reason.upper);
    }
}

void appendReason(Line& line, const rtx::Reason& reason)
{
    const int64_t value = reason.value;
    switch (reason.status)
    {
    case RTX_E_RANGE:
        append(line, "%" PRId64 " is not in %" PRId64 "..%" PRId64, value, reason.lower, reason.upper);
        break;
    case RTX_E_SIZE:
        append(line, "%" PRId64 " element%s, not ", value, plural(value));
        appendBounds(line, reason);
        break;
    case RTX_E_CHOICE:
        append(line, "tag %" PRId64 " is not in %" PRId64 "..%" PRId64, value, reason.lower, reason.upper);
        break;
    case RTX_E_BITS:
        append(line, "a bit string of %" PRId64 " bit%s, not %" PRId64, value, plural(value), reason.lower);
        break;
    case RTX_E_NULL:
        append(line, "a null pointer");
        break;
    case RTX_E_FOREIGN:
        append(line, "a pointer out of the context's heap");
        break;
    case RTX_E_LIST:
        append(line, "the list counts %" PRId64 " element%s and ends after %" PRId64, value, plural(value),
               reason.lower);
        break;
    case RTX_E_OVERFLOW:
        append(line, "the encoding does not fit into %" PRId64 " octet%s", value, plural(value));
        break;
    case RTX_E_NOBUFFER:
        append(line, "no buffer");
        break;
    case RTX_E_ALIGNED:
        append(line, "aligned PER is not available");
        break;
    case RTX_E_HEAP:
        append(line, "the heap is exhausted: %" PRId64 " octet%s asked for", value, value == 1 ? " was" : "s were");
        break;
    case RTX_E_END:
        append(line, "the input ends before %" PRId64 " more bit%s", value, plural(value));
        break;
    case RTX_E_PADDING:
        append(line, "a padding bit is set");
        break;
    case RTX_E_SURPLUS:
        append(line, "%" PRId64 " octet%s the encoding", value, value == 1 ? " follows" : "s follow");
        break;
    case RTX_E_LENGTH:
        append(line, "a length determinant 0x%02" PRIX64 " that PER does not allow", static_cast<uint64_t>(value));
        break;
    case RTX_E_EXTENSION:
        append(line, "an extension is announced and has no addition");
        break;
    case RTX_E_DEPTH:
        append(line, "the element tree is deeper than %d", RTX_MAX_DEPTH);
        break;
    default:
        append(line, "error %" PRId32, reason.status);
        break;
    }
}

} // namespace

int rtx::setError(OSCTXT& ctxt, RtxStatus status, int64_t value, int64_t lower, int64_t upper)
{
    RtxError& error = ctxt.error;
    if (error.status == RTX_OK)
    {
        error.status = status;
        error.depth = 0;
        error.value = value;
        error.lower = lower;
        error.upper = upper;
        error.hasOffset = 0;
    }
    return error.status;
}

static void push(RtxError& error, const RtxPathStep& step)
{
    if (error.depth < RTX_MAX_DEPTH)
    {
        error.path[error.depth++] = step;
    }
    else
    {
        error.depth = RTX_MAX_DEPTH + 1; // the outer steps are left out and said to be
    }
}

void rtx::pushName(OSCTXT& ctxt, const char* name)
{
    if (name != nullptr)
    {
        push(ctxt.error, {name, 0, 0});
    }
}

void rtx::pushIndex(OSCTXT& ctxt, uint32_t index)
{
    push(ctxt.error, {nullptr, index, 0});
}

void rtx::pushGroup(OSCTXT& ctxt, uint32_t number)
{
    push(ctxt.error, {nullptr, number, 1});
}

size_t rtx::formatReason(const Reason& reason, char* text, size_t size)
{
    Line line = emptyLine(text, size);
    appendReason(line, reason);
    return line.length;
}

size_t rtxErrFormat(const OSCTXT* pctxt, char* text, size_t size)
{
    Line line = emptyLine(text, size);
    const RtxError& error = pctxt->error;
    if (error.status != RTX_OK)
    {
        appendPath(line, error);
        appendReason(line, {static_cast<RtxStatus>(error.status), error.value, error.lower, error.upper});
        if (error.hasOffset != 0)
        {
            append(line, " (at bit %" PRIu64 ": octet %" PRIu64 ", bit %" PRIu64 ")", error.bitOffset,
                   error.bitOffset / 8, error.bitOffset % 8);
        }
    }
    return line.length;
}

void rtxErrPrint(const OSCTXT* pctxt)
{
    if (pctxt->error.status != RTX_OK)
    {
        VOS_Printf("%s\n", rtx::ErrorText(*pctxt).text);
    }
}

void rtxErrReset(OSCTXT* pctxt)
{
    pctxt->error.status = RTX_OK;
    pctxt->error.depth = 0;
}
