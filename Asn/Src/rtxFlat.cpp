// Flat lines, `path = value`: what JER says, a line for each value, without quotes. What begins with '$' is no value.
#include "rtxWalk.h"

namespace rtx
{
namespace
{

class Flat
{
public:
    Flat(const Remarks& remarks, RtxPrintSink sink, void* arg) : out_(sink, arg), remarks_(remarks) {}

    void at(const Type& type, const void* value)
    {
        remarks_.at(type, value);
    }

    void stopped(const OSCTXT& ctxt, const Type& type)
    {
        begin(named(type.name));
        openLine(".$error");
        out_.put(ErrorText(ctxt).text);
        closeLine();
        end();
    }

    void begin(const RtxPathStep& step)
    {
        path_[depth_++] = step;
    }

    void end()
    {
        --depth_;
    }

    void boolean(OSBOOL value)
    {
        line(value != 0 ? "true" : "false");
    }

    void null()
    {
        line("null");
    }

    void integer(const Type&, int64_t value, const Reason&)
    {
        openLine();
        out_.format("%" PRId64, value);
        closeLine();
    }

    void enumerated(const Type& type, uint32_t value, const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            invalid(ReasonText(wrong).text);
            return;
        }
        line(type.names[value]);
    }

    void bits(const OSOCTET* data, uint32_t count, const Reason& wrong)
    {
        openLine();
        if (wrong.status == RTX_OK)
        {
            out_.octets(data, count);
        }
        else
        {
            openInvalid(ReasonText(wrong).text);
            out_.put(": '");
            out_.binary(data, count);
            out_.put("'B");
        }
        closeLine();
    }

    void open(const Type&)
    {
        empty_ = true;
    }

    void close(const Type&)
    {
        if (empty_)
        {
            line("{}");
        }
    }

    void openList(const Type&, uint32_t, const Reason& wrong)
    {
        empty_ = true;
        if (wrong.status != RTX_OK)
        {
            invalid(ReasonText(wrong).text);
        }
    }

    void closeList(const Type&)
    {
        if (empty_)
        {
            line("[]");
        }
    }

    void unknownAlternative(const Type& type, uint32_t tag, const Reason& wrong, const ASN1OpenType* open,
                            const char* refusal)
    {
        if (refusal == nullptr)
        {
            begin(named("$unknownAlternative"));
            octets(extensionIndex(type, tag), *open);
            end();
            return;
        }
        openLine();
        openInvalid(ReasonText(wrong).text);
        out_.put("; unknown alternative: ");
        out_.put(refusal);
        closeLine();
    }

    void invalid(const char* text)
    {
        openLine();
        openInvalid(text);
        closeLine();
    }

    void notRead(const char* name)
    {
        begin(named(name));
        line("$notRead");
        end();
    }

    void notReadElements(const char* text)
    {
        openLine(text);
        out_.put("$notRead");
        closeLine();
    }

    bool unsent(const RtxPathStep&)
    {
        return false;
    }

    void openUnknown(uint32_t)
    {
        begin(named("$unknownAdditions"));
        unknown_ = 0;
    }

    void closeUnknown()
    {
        end();
    }

    void unknown(const Type& type, uint32_t index, const ASN1OpenType& open)
    {
        begin(indexed(unknown_++));
        octets(type.additionCount + index, open);
        end();
    }

    void broken(const char* text)
    {
        invalid(text);
    }

    void remark(const char*) {}

    void finish() {}

private:
    // `element` stands behind the path.
    void openLine(const char* element = "")
    {
        for (unsigned i = 0; i < depth_; ++i)
        {
            if (i != 0 && path_[i].name != nullptr)
            {
                out_.put('.');
            }
            out_.put(path_[i]);
        }
        out_.put(element);
        out_.put(" = ");
    }

    void closeLine()
    {
        remarks_.endLine(out_);
        empty_ = false;
    }

    void line(const char* value)
    {
        openLine();
        out_.put(value);
        closeLine();
    }

    void openInvalid(const char* text)
    {
        out_.put("$invalid: ");
        out_.put(text);
    }

    void octets(uint32_t index, const ASN1OpenType& open)
    {
        openLine(".index");
        out_.format("%" PRIu32, index);
        closeLine();
        openLine(".octets");
        out_.octets(open);
        closeLine();
    }

    Output out_;
    Remarks remarks_;
    RtxPathStep path_[RTX_MAX_DEPTH + 4]; // an element that is too deep, unknown additions and the index of one
    unsigned depth_ = 0;
    uint32_t unknown_ = 0; // unknown additions of the sequence so far
    bool empty_ = true;    // no line since the last sequence, choice or list began
};

} // namespace
} // namespace rtx

int rtxToFlat(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxPrintSink sink, void* arg)
{
    return rtxToFlatWithRemarks(pctxt, type, value, nullptr, nullptr, sink, arg);
}

int rtxToFlatWithRemarks(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxRemark remark, void* remarkArg,
                         RtxPrintSink sink, void* arg)
{
    return rtx::write<rtx::Flat>(pctxt, type, value, sink, arg, rtx::Remarks(remark, remarkArg));
}
