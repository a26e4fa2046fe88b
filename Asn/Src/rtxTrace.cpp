// The decoder watched: every field of a message, in the order of the wire.
#include "rtxDecoder.h"

namespace rtx
{
namespace
{

class Tracer
{
public:
    static constexpr bool active = true;
    static constexpr bool skims = false;

    Tracer(RtxFieldSink sink, void* arg) : sink_(sink), arg_(arg) {}

    void enter(const RtxPathStep& step)
    {
        if (depth_ < maxSteps)
        {
            path_[depth_] = step;
        }
        ++depth_;
    }

    void leave()
    {
        --depth_;
    }

    void note(RtxNote note)
    {
        note_ = static_cast<OSUINT8>(note);
    }

    void field(RtxFieldKind kind, uint64_t at, uint64_t width, uint64_t bits, const Type* type, const void* value,
               uint32_t group)
    {
        const uint64_t place = placeInMessage(at);
        lengthsUpTo(place);
        report(kind, place, width, bits, type, value, group);
    }

    template <typename Place>
    void enterFragments(const Place& place)
    {
        if (fragmented_ < maxSteps)
        {
            frames_[fragmented_] = {
                [](const void* arg, uint64_t offset) { return (*static_cast<const Place*>(arg))(offset); }, &place};
        }
        ++fragmented_;
        hasFragments_ = true;
    }

    void leaveFragments()
    {
        --fragmented_;
    }

    // The message ends at bit `end` of `size`, or the decoder has given up at an error.
    void finish(uint64_t end, uint64_t size, bool failed)
    {
        if (!failed)
        {
            lengthsUpTo(end);
        }
        if (next_ < size)
        {
            report(failed ? RTX_FIELD_UNREAD : RTX_FIELD_SURPLUS, next_, size - next_, 0, nullptr, nullptr, 0);
        }
    }

private:
    static constexpr unsigned maxSteps = 2 * RTX_MAX_DEPTH; // a group or extElem1 beside each level

    struct Frame
    {
        uint64_t (*place)(const void* arg, uint64_t offset);
        const void* arg;
    };

    // The lengths of further fragments have no field of their own: they are what lies between two others. That of a
    // fragment that begins within a value follows the value.
    void lengthsUpTo(uint64_t place)
    {
        if (hasFragments_ && next_ < place)
        {
            report(RTX_FIELD_LENGTH, next_, place - next_, 0, nullptr, nullptr, 0);
        }
    }

    uint64_t placeInMessage(uint64_t at) const
    {
        for (unsigned i = fragmented_; i-- != 0;)
        {
            at = frames_[i].place(frames_[i].arg, at);
        }
        return at;
    }

    void report(RtxFieldKind kind, uint64_t at, uint64_t width, uint64_t bits, const Type* type, const void* value,
                uint32_t group)
    {
        const RtxField field = {static_cast<OSUINT8>(kind),
                                note_,
                                at,
                                width,
                                bits,
                                type,
                                value,
                                group,
                                depth_ < maxSteps ? depth_ : maxSteps,
                                path_};
        note_ = RTX_NOTE_NONE;
        next_ = at + width;
        sink_(arg_, &field);
    }

    RtxFieldSink sink_;
    void* arg_;
    uint64_t next_ = 0; // behind the last field
    unsigned depth_ = 0;
    unsigned fragmented_ = 0; // open types in fragments around the present position
    bool hasFragments_ = false;
    OSUINT8 note_ = RTX_NOTE_NONE;
    RtxPathStep path_[maxSteps];
    Frame frames_[maxSteps];
};

} // namespace
} // namespace rtx

int rtxTrace(OSCTXT* pctxt, const RtxType* type, void* value, unsigned flags, RtxFieldSink sink, void* arg)
{
    if (pctxt == nullptr)
    {
        return RTX_E_NULL;
    }
    rtx::Tracer tracer(sink, arg);
    const int status = rtx::run(*pctxt, *type, value, flags, tracer);
    const uint64_t size = pctxt->buffer.data != nullptr ? uint64_t{pctxt->buffer.capacity} * 8 : 0;
    tracer.finish(uint64_t{pctxt->decoded.octets} * 8, size, status != RTX_OK);
    return status;
}

const char* rtxFieldBitName(const RtxField* field, OSUINT32 bit)
{
    const RtxType& type = *field->type;
    if (field->kind == RTX_FIELD_ADDITIONS)
    {
        const bool lone = bit < type.additionCount && type.additions[bit].flag < 0;
        return lone ? type.names[type.additions[bit].first] : nullptr;
    }
    const bool root = field->group == 0;
    unsigned i = root ? 0 : type.additions[field->group - 1].first;
    const unsigned end = root ? type.rootCount : i + type.additions[field->group - 1].count;
    for (; i < end; ++i)
    {
        if (type.members[i].flag >= 0 && bit-- == 0)
        {
            return type.names[i];
        }
    }
    return nullptr;
}
