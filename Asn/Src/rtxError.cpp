#include "rtxLine.h"
#include "rtxTree.h"
#include "vos_lib.h"

#include <cinttypes>
#include <cstring>

namespace
{

using rtx::append;
using rtx::Line;
using rtx::plural;

void appendPath(Line& line, const RtxError& error)
{
    rtx::appendPath(line, error,
                    [&](const RtxPathStep& step)
                    {
                        if (step.group != 0 && step.index == 0)
                        {
                            append(line, "%s[[...]]", line.length != 0 ? "." : "");
                        }
                        else if (step.group != 0)
                        {
                            append(line, "%s[[%" PRIu32 "]]", line.length != 0 ? "." : "", step.index);
                        }
                        else
                        {
                            append(line, "[%" PRIu32 "]", step.index);
                        }
                    });
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
    case RTX_E_DELTA:
        append(line, "no delta brings this: %s", rtx::deltaReasonText(static_cast<OSINT32>(value)));
        break;
    default:
        append(line, "error %" PRId32, reason.status);
        break;
    }
}

} // namespace

const char* rtx::deltaReasonText(OSINT32 reason)
{
    switch (reason)
    {
    case RTX_DELTA_CHANGED:
        return "changed";
    case RTX_DELTA_ADDED:
        return "added";
    case RTX_DELTA_GONE:
        return "gone";
    case RTX_DELTA_STAYS:
        return "beside a changed sibling";
    case RTX_DELTA_MANDATORY:
        return "mandatory beside a changed sibling";
    case RTX_DELTA_ACTION:
        return "done once, not stored";
    case RTX_DELTA_WITH_SYNC:
        return "asked for with reconfigurationWithSync";
    case RTX_DELTA_FORCED:
        return "an option asks for it";
    case RTX_DELTA_RECREATED:
        return "released and added again";
    case RTX_DELTA_FIRST:
        return "taken away first, brought back by the next delta";
    case RTX_DELTA_NOT_HELD:
        return "released and not held, no effect";
    case RTX_DELTA_ACTIVE:
        return "only while no assignment or grant of it is active, or with reconfigurationWithSync";
    case RTX_DELTA_KEPT:
        return "its absence would keep it";
    case RTX_DELTA_AT_CREATION:
        return "it is sent only when its entry is created";
    case RTX_DELTA_INCOMPLETE:
        return "the creation of its entry asks for it, and it is absent";
    case RTX_DELTA_FIXED_KIND:
        return "whether it is there is settled when its entry is created";
    case RTX_DELTA_MODE:
        return "its alternative is settled when its entry is created";
    case RTX_DELTA_REESTABLISH:
        return "it changes with reestablishRLC only, for a DRB with reconfigurationWithSync as well";
    case RTX_DELTA_USAGE:
        return "from codebook to nonCodebook and back is not supported";
    case RTX_DELTA_PUCCH:
        return "PUCCH comes and goes with its bandwidth part or cell, or with reconfigurationWithSync";
    case RTX_DELTA_PUCCH_CELL:
        return "an SCell has PUCCH or not as long as it is there";
    case RTX_DELTA_SCG:
        return "it is never released in a secondary cell group";
    case RTX_DELTA_OTHER_IDENTITY:
        return "another cell group";
    default:
        return "?";
    }
}

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

void rtx::pushName(OSCTXT& ctxt, const char* name)
{
    if (name != nullptr)
    {
        rtx::push(ctxt.error, named(name));
    }
}

void rtx::pushIndex(OSCTXT& ctxt, uint32_t index)
{
    rtx::push(ctxt.error, indexed(index));
}

void rtx::pushGroup(OSCTXT& ctxt, uint32_t number)
{
    rtx::push(ctxt.error, grouped(number));
}

size_t rtx::formatReason(const Reason& reason, char* text, size_t size)
{
    Line line(text, size);
    appendReason(line, reason);
    return line.length;
}

size_t rtxErrFormat(const OSCTXT* pctxt, char* text, size_t size)
{
    return rtxErrorFormat(&pctxt->error, text, size);
}

size_t rtxErrorFormat(const RtxError* finding, char* text, size_t size)
{
    Line line(text, size);
    const RtxError& error = *finding;
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
