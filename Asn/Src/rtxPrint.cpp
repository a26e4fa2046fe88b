// The printer.
#include "rtxWalk.h"
#include "vos_lib.h"

namespace rtx
{
namespace
{

class Printer
{
public:
    Printer(const Remarks& remarks, RtxPrintSink sink, void* arg) : out_(sink, arg), remarks_(remarks) {}

    void at(const Type& type, const void* value)
    {
        remarks_.at(type, value);
    }

    void stopped(const OSCTXT&, const Type&) {}

    void begin(const RtxPathStep& step)
    {
        indent();
        out_.put(step);
    }

    void end() {}

    void boolean(OSBOOL value)
    {
        out_.put(value != 0 ? " true" : " false");
        if (value > 1)
        {
            out_.format(" (%u)", unsigned{value});
        }
        remarks_.endLine(out_);
    }

    void null()
    {
        remarks_.endLine(out_);
    }

    void integer(const Type&, int64_t value, const Reason& wrong)
    {
        out_.format(" %" PRId64, value);
        notIn(wrong);
    }

    void enumerated(const Type& type, uint32_t value, const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            out_.format(" %" PRIu32, value);
            notIn(wrong);
            return;
        }
        out_.put(' ');
        out_.put(type.names[value]);
        out_.format(" (%" PRIu32 ")", value);
        remarks_.endLine(out_);
    }

    void bits(const OSOCTET* data, uint32_t count, const Reason& wrong)
    {
        out_.put(" '");
        out_.binary(data, count);
        out_.put("'B");
        if (wrong.status == RTX_OK)
        {
            out_.format(" (%" PRIu32 " bits)", count);
        }
        else
        {
            out_.format(" (%" PRId64 " bits, not %" PRId64 ")", wrong.value, wrong.lower);
        }
        remarks_.endLine(out_);
    }

    void open(const Type&)
    {
        out_.put('\n');
        ++depth_;
    }

    void close(const Type&)
    {
        --depth_;
    }

    void openList(const Type& type, uint32_t number, const Reason& wrong)
    {
        out_.format(": %" PRIu32 " element%s", number, number == 1 ? "" : "s");
        if (wrong.status != RTX_OK)
        {
            out_.format(", not %" PRId64 "..%" PRId64, wrong.lower, wrong.upper);
        }
        if (number > static_cast<uint32_t>(type.upper))
        {
            out_.format("; the first %" PRId32 ":", type.upper);
        }
        out_.put('\n');
        ++depth_;
    }

    void closeList(const Type&)
    {
        --depth_;
    }

    void unknownAlternative(const Type&, uint32_t, const Reason& wrong, const ASN1OpenType* open, const char* refusal)
    {
        invalid(ReasonText(wrong).text);
        ++depth_;
        begin(named("unknown alternative"));
        if (refusal != nullptr)
        {
            invalid(refusal);
        }
        else
        {
            octets(*open);
        }
        --depth_;
    }

    void invalid(const char* text)
    {
        out_.put(": ");
        out_.put(text);
        out_.put('\n');
    }

    void notRead(const char* name)
    {
        begin(named(name));
        invalid("not read");
    }

    void notReadElements(const char* text)
    {
        notRead(text);
    }

    bool unsent(const RtxPathStep& step)
    {
        begin(step);
        invalid("not sent, as its extension group is not");
        return true;
    }

    void openUnknown(uint32_t count)
    {
        indent();
        out_.format("extElem1: %" PRIu32 " unknown addition%s\n", count, count == 1 ? "" : "s");
        ++depth_;
    }

    void closeUnknown()
    {
        --depth_;
    }

    void unknown(const Type&, uint32_t index, const ASN1OpenType& open)
    {
        begin(indexed(index));
        octets(open);
    }

    void broken(const char* text)
    {
        remark(text);
    }

    void remark(const char* text)
    {
        indent();
        out_.put(text);
        out_.put('\n');
    }

private:
    void indent()
    {
        for (unsigned i = 0; i < depth_; ++i)
        {
            out_.put("  ");
        }
    }

    void notIn(const Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            out_.format(" (not in %" PRId64 "..%" PRId64 ")", wrong.lower, wrong.upper);
        }
        remarks_.endLine(out_);
    }

    void octets(const ASN1OpenType& open)
    {
        out_.format(": %" PRIu32 " octet%s ", open.numocts, open.numocts == 1 ? "" : "s");
        out_.octets(open);
        out_.put('\n');
    }

    Output out_;
    Remarks remarks_;
    unsigned depth_ = 0;
};

void toConsole(void*, const char* text)
{
    VOS_Printf("%s", text);
}

} // namespace

void print(const OSCTXT* ctxt, const Type& type, const char* title, const void* value, RtxPrintSink sink, void* arg,
           RtxRemark remark, void* remarkArg)
{
    Printer printer(Remarks(remark, remarkArg), sink, arg);
    (void)Walk(ctxt, printer).run(type, title != nullptr ? title : type.name, value);
}

void print(const Type& type, const char* title, const void* value)
{
    print(printContext(), type, title, value, toConsole, nullptr);
}

} // namespace rtx
