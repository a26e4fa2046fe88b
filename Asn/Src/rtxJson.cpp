// JER, the JSON encoding rules of X.697. What JER cannot say stands in members whose names no ASN.1 name can be.
#include "rtxLayout.h"
#include "rtxWalk.h"

namespace rtx
{
namespace
{

class Json
{
public:
    Json(RtxLayout layout, RtxPrintSink sink, void* arg)
        : out_(sink, arg), layout_(out_, layout, false), colon_(layout == RTX_INDENTED ? ": " : ":")
    {
    }

    void stopped(const OSCTXT& ctxt, const Type& type)
    {
        error_ = &ctxt;
        isObject_ = type.kind == Kind::Sequence || type.kind == Kind::Choice;
    }

    void begin(const RtxPathStep& step)
    {
        if (root_)
        {
            root_ = false;
            wrapped_ = error_ != nullptr && !isObject_;
            if (wrapped_)
            {
                openObject();
                member("$value");
            }
        }
        else if (step.name != nullptr)
        {
            member(step.name);
        }
        else
        {
            layout_.item();
        }
    }

    void end() {}

    void boolean(OSBOOL value)
    {
        out_.put(value != 0 ? "true" : "false");
    }

    void null()
    {
        out_.put("null");
    }

    void integer(const Type&, int64_t value, const Reason&)
    {
        out_.format("%" PRId64, value);
    }

    void enumerated(const Type& type, uint32_t value, const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            invalid(ReasonText(wrong).text);
            return;
        }
        string(type.names[value]);
    }

    // X.697 24: of fixed size
    void bits(const OSOCTET* data, uint32_t count, const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            openInvalid(ReasonText(wrong).text);
            out_.put(": '");
            out_.binary(data, count);
            out_.put("'B");
            closeInvalid();
            return;
        }
        out_.put('"');
        out_.octets(data, count);
        out_.put('"');
    }

    void open(const Type&)
    {
        openObject();
    }

    void close(const Type&)
    {
        closeNotRead();
        layout_.close('}');
    }

    void openList(const Type&, uint32_t, const Reason& wrong)
    {
        layout_.open('[');
        if (wrong.status != RTX_OK)
        {
            broken(ReasonText(wrong).text);
        }
    }

    void closeList(const Type&)
    {
        layout_.close(']');
    }

    void unknownAlternative(const Type& type, uint32_t tag, const Reason& wrong, const ASN1OpenType* open,
                            const char* refusal)
    {
        if (refusal != nullptr)
        {
            openInvalid(ReasonText(wrong).text);
            out_.put("; unknown alternative: ");
            out_.put(refusal);
            closeInvalid();
            return;
        }
        openObject();
        member("$unknownAlternative");
        octets(extensionIndex(type, tag), *open);
        layout_.close('}');
    }

    void invalid(const char* text)
    {
        openInvalid(text);
        closeInvalid();
    }

    void notRead(const char* name)
    {
        if (root_)
        {
            root_ = false;
            wrapped_ = true;
            openObject();
        }
        if (!inNotRead_)
        {
            member("$notRead");
            layout_.open('[');
            inNotRead_ = true;
        }
        layout_.item();
        string(name);
    }

    void notReadElements(const char* text)
    {
        layout_.item();
        layout_.open('{');
        notRead(text);
        closeNotRead();
        layout_.close('}');
    }

    bool unsent(const RtxPathStep&)
    {
        return false;
    }

    void openUnknown(uint32_t)
    {
        member("$unknownAdditions");
        layout_.open('[');
    }

    void closeUnknown()
    {
        layout_.close(']');
    }

    void unknown(const Type& type, uint32_t index, const ASN1OpenType& open)
    {
        layout_.item();
        octets(type.additionCount + index, open);
    }

    void broken(const char* text)
    {
        layout_.item();
        invalid(text);
    }

    void remark(const char*) {}

    void finish()
    {
        closeNotRead();
        if (wrapped_)
        {
            layout_.close('}');
        }
        out_.put('\n');
    }

private:
    void openObject()
    {
        layout_.open('{');
        if (error_ != nullptr)
        {
            member("$error");
            string(ErrorText(*error_).text);
            error_ = nullptr;
        }
    }

    void member(const char* name)
    {
        layout_.item();
        string(name);
        out_.put(colon_);
    }

    void string(const char* text)
    {
        out_.put('"');
        characters(text);
        out_.put('"');
    }

    void characters(const char* text)
    {
        for (; *text != '\0'; ++text)
        {
            if (*text == '"' || *text == '\\')
            {
                out_.put('\\');
            }
            if (static_cast<unsigned char>(*text) < ' ')
            {
                out_.format("\\u%04x", unsigned{static_cast<unsigned char>(*text)});
            }
            else
            {
                out_.put(*text);
            }
        }
    }

    void openInvalid(const char* text)
    {
        openObject();
        member("$invalid");
        out_.put('"');
        characters(text);
    }

    void closeInvalid()
    {
        out_.put('"');
        layout_.close('}');
    }

    void octets(uint32_t index, const ASN1OpenType& open)
    {
        layout_.open('{');
        member("index");
        out_.format("%" PRIu32, index);
        member("octets");
        out_.put('"');
        out_.octets(open);
        out_.put('"');
        layout_.close('}');
    }

    void closeNotRead()
    {
        if (inNotRead_)
        {
            layout_.close(']');
            inNotRead_ = false;
        }
    }

    Output out_;
    Layout layout_;
    const char* colon_;
    const OSCTXT* error_ = nullptr; // to be told in the first object
    bool isObject_ = false;
    bool root_ = true; // comes next
    bool wrapped_ = false;
    bool inNotRead_ = false;
};

} // namespace
} // namespace rtx

int rtxToJson(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxLayout layout, RtxPrintSink sink,
              void* arg)
{
    return rtx::write<rtx::Json>(pctxt, type, value, sink, arg, layout);
}
