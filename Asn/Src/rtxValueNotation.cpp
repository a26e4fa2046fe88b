// The value notation of X.680. What it cannot say stands in comments.
#include "rtxLayout.h"
#include "rtxWalk.h"

namespace rtx
{
namespace
{

class ValueNotation
{
public:
    ValueNotation(RtxLayout layout, RtxPrintSink sink, void* arg) : out_(sink, arg), layout_(out_, layout, true) {}

    void stopped(const OSCTXT& ctxt, const Type&)
    {
        comment(ErrorText(ctxt).text);
        out_.put('\n');
    }

    void begin(const RtxPathStep& step)
    {
        if (root_)
        {
            assignment(step.name);
        }
        else if (inChoice_) // X.680 29.11
        {
            out_.put(step.name);
            out_.put(" : ");
        }
        else if (inUnknown_)
        {
            layout_.aside();
        }
        else
        {
            layout_.item();
            if (step.name != nullptr)
            {
                out_.put(step.name);
                out_.put(' ');
            }
        }
        inChoice_ = false;
    }

    void end() {}

    void boolean(OSBOOL value)
    {
        out_.put(value != 0 ? "TRUE" : "FALSE");
    }

    void null()
    {
        out_.put("NULL");
    }

    void integer(const Type&, int64_t value, const Reason& wrong)
    {
        out_.format("%" PRId64, value);
        explain(wrong);
    }

    void enumerated(const Type& type, uint32_t value, const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            invalid(ReasonText(wrong).text);
            return;
        }
        out_.put(type.names[value]);
    }

    void bits(const OSOCTET* data, uint32_t count, const Reason& wrong)
    {
        const bool hex = count % 4 == 0 && count != 0; // X.680 22.10: as many digits as there are groups of four bits
        out_.put('\'');
        if (hex)
        {
            out_.hex(data, count, count / 4);
        }
        else
        {
            out_.binary(data, count);
        }
        out_.put(hex ? "'H" : "'B");
        explain(wrong);
    }

    void open(const Type& type)
    {
        inChoice_ = type.kind == Kind::Choice;
        if (!inChoice_)
        {
            layout_.open('{');
        }
    }

    void close(const Type& type)
    {
        inChoice_ = false;
        if (type.kind != Kind::Choice)
        {
            layout_.close('}');
        }
    }

    void openList(const Type&, uint32_t, const Reason& wrong)
    {
        layout_.open('{');
        if (wrong.status != RTX_OK)
        {
            remark(ReasonText(wrong).text);
        }
    }

    void closeList(const Type&)
    {
        layout_.close('}');
    }

    void unknownAlternative(const Type& type, uint32_t tag, const Reason& wrong, const ASN1OpenType* open,
                            const char* refusal)
    {
        if (refusal == nullptr)
        {
            octets("alternative", extensionIndex(type, tag), *open);
            return;
        }
        openComment(ReasonText(wrong).text);
        out_.put("; unknown alternative: ");
        out_.put(refusal);
        closeComment();
    }

    void invalid(const char* text)
    {
        comment(text);
    }

    void notRead(const char* name)
    {
        if (root_)
        {
            assignment(name);
        }
        else if (!inChoice_)
        {
            layout_.aside();
        }
        openComment(name);
        out_.put(": not read");
        closeComment();
    }

    void notReadElements(const char* text)
    {
        notRead(text);
    }

    bool unsent(const RtxPathStep&)
    {
        return false;
    }

    void openUnknown(uint32_t)
    {
        inUnknown_ = true;
    }

    void closeUnknown()
    {
        inUnknown_ = false;
    }

    void unknown(const Type& type, uint32_t index, const ASN1OpenType& open)
    {
        layout_.aside();
        octets("addition", type.additionCount + index, open);
    }

    void broken(const char* text)
    {
        remark(text);
    }

    void remark(const char* text)
    {
        layout_.aside();
        comment(text);
    }

    void finish()
    {
        out_.put('\n');
    }

private:
    void assignment(const char* type)
    {
        root_ = false;
        out_.put("value ");
        out_.put(type);
        out_.put(" ::= ");
    }

    void openComment(const char* text)
    {
        out_.put("-- ");
        out_.put(text);
    }

    void closeComment()
    {
        out_.put(" --");
    }

    void comment(const char* text)
    {
        openComment(text);
        closeComment();
    }

    void explain(const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            out_.put(' ');
            comment(ReasonText(wrong).text);
        }
    }

    void octets(const char* what, uint32_t index, const ASN1OpenType& open)
    {
        openComment("unknown ");
        out_.put(what);
        out_.format(" %" PRIu32 ": ", index);
        out_.octets(open);
        closeComment();
    }

    Output out_;
    Layout layout_;
    bool root_ = true;      // comes next
    bool inChoice_ = false; // its alternative comes next
    bool inUnknown_ = false;
};

} // namespace
} // namespace rtx

int rtxToValueNotation(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxLayout layout, RtxPrintSink sink,
                       void* arg)
{
    return rtx::write<rtx::ValueNotation>(pctxt, type, value, sink, arg, layout);
}
