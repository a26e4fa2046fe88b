// The encoder: one function per constructed type, straight-line, neighbouring values of constant width joined into one
// put.
#include "emitter.h"

#include <algorithm>
#include <set>

namespace asncomp
{
namespace
{

constexpr unsigned maxPut = 56; // leaves the compiler room to keep a joined value in one register

std::string text(std::int64_t value)
{
    return std::to_string(value);
}

std::string quoted(const std::string& name)
{
    return "\"" + name + "\"";
}

// Lines of one function's body, with the pieces that wait to be joined into one put.
class Body
{
public:
    explicit Body(unsigned indent) : indent_(indent) {}

    void line(const std::string& content)
    {
        out_ += std::string(std::size_t{indent_} * 4, ' ') + content + "\n";
    }
    void open()
    {
        flush();
        openPlain();
    }
    void close()
    {
        flush();
        closePlain();
    }

    // Braces across which pieces stay together: what is inside returns.
    void openPlain()
    {
        line("{");
        ++indent_;
    }
    void closePlain()
    {
        --indent_;
        line("}");
    }

    // A value of `width` bits to put after the pieces before it.
    void piece(const std::string& expression, unsigned width)
    {
        if (width == 0)
        {
            return;
        }
        if (width_ + width > maxPut)
        {
            flush();
        }
        joined_ = width_ == 0 ? expression : "(" + joined_ + ") << " + std::to_string(width) + " | " + expression;
        width_ += width;
    }

    void flush()
    {
        if (width_ != 0)
        {
            line("b = e.put<" + std::to_string(width_) + ">(b, " + joined_ + ");");
        }
        width_ = 0;
        joined_.clear();
    }

    std::string take()
    {
        flush();
        return std::move(out_);
    }

private:
    unsigned indent_;
    std::string out_;
    std::string joined_;
    unsigned width_ = 0;
};

std::string wide(const std::string& expression)
{
    return "uint64_t{" + expression + "}";
}

// The check that refuses a value out of its range; none where the storage holds no other values.
std::string outside(const Type& type, const std::string& value)
{
    if (type.kind == Kind::Enumerated)
    {
        return value + " > " + text(type.upper) + "u";
    }
    const unsigned bits = type.width() * 8;
    const std::int64_t least = type.lower < 0 ? -(std::int64_t{1} << (bits - 1)) : 0;
    const std::int64_t most = type.lower < 0 ? (std::int64_t{1} << (bits - 1)) - 1 : (std::int64_t{1} << bits) - 1;
    std::string check;
    if (type.lower != least)
    {
        check = value + " < " + text(type.lower);
    }
    if (type.upper != most)
    {
        check += (check.empty() ? "" : " || ") + value + " > " + text(type.upper);
    }
    return check;
}

std::string offsetValue(const Type& type, const std::string& value)
{
    if (type.kind == Kind::Enumerated || type.lower == 0)
    {
        return wide(value);
    }
    if (type.lower < 0)
    {
        return "static_cast<uint64_t>(" + value + " + int64_t{" + text(-type.lower) + "})";
    }
    return "(" + wide(value) + " - " + text(type.lower) + ")";
}

class Emitter
{
public:
    Emitter(const Model& model, const Pdus& pdus) : model_(model), pdus_(pdus) {}

    std::string run()
    {
        for (const Type* type : pdus_.types)
        {
            need(*type);
        }
        std::string out;
        for (const Type* type : model_.types)
        {
            if (needed_.count(type) != 0)
            {
                out += "\n" + function(*type);
            }
        }
        return out;
    }

private:
    // Types the given one reaches, pointers included, come before it in the model's order, too.
    void need(const Type& type)
    {
        if (!needed_.insert(&type).second)
        {
            return;
        }
        for (const Member& member : type.members)
        {
            needBelow(*member.type);
        }
        if (type.element != nullptr)
        {
            needBelow(*type.element);
        }
    }

    // Within another type only a constructed one has a function.
    void needBelow(const Type& type)
    {
        if (type.constructed())
        {
            need(type);
        }
    }

    static std::string function(const Type& type)
    {
        Body body(1);
        switch (type.kind)
        {
        case Kind::Sequence:
            sequence(body, type);
            break;
        case Kind::Choice:
            choice(body, type);
            break;
        case Kind::Array:
            array(body, type);
            break;
        case Kind::List:
            list(body, type);
            break;
        default:
            value(body, type, "(*v)", "nullptr");
            break;
        }
        return "// " + type.asnName + "\nstatic Bits pe_" + type.cName + "(Encoder& e, Bits b, const " + type.cName +
               "* v)\n{\n" + body.take() + "    return b;\n}\n";
    }

    static void check(Body& body, const std::string& condition, const std::string& error)
    {
        if (condition.empty())
        {
            return;
        }
        body.line("if (" + condition + ") [[unlikely]]");
        body.openPlain();
        body.line("return " + error + ";");
        body.closePlain();
    }

    // The value at `at`; `name` is the expression of its name in paths, null for a whole message.
    static void value(Body& body, const Type& type, const std::string& at, const std::string& name)
    {
        switch (type.kind)
        {
        case Kind::Boolean:
            body.piece(wide(at + " != 0"), 1);
            break;
        case Kind::Null:
            break;
        case Kind::Integer:
        case Kind::Enumerated:
            check(body, outside(type, at),
                  "e.range(" + name + ", " + at + ", " + text(type.lower) + ", " + text(type.upper) + ")");
            body.piece(offsetValue(type, at), bitsFor(type.upper - type.lower));
            break;
        case Kind::BitStr32:
            check(body, at + ".numbits != " + text(type.upper),
                  "e.length(" + name + ", " + at + ".numbits, " + text(type.upper) + ")");
            body.piece(wide("e.bits<" + text(type.upper) + ">(" + at + ")"), static_cast<unsigned>(type.upper));
            break;
        case Kind::BitOctets:
            body.flush();
            body.line("b = e.octets<" + text(type.upper) + ">(b, " + at + ");");
            break;
        default:
            body.flush();
            element(body, type, "&" + at, name);
            break;
        }
    }

    // The constructed value at the address `at`.
    static void element(Body& body, const Type& type, const std::string& at, const std::string& name)
    {
        body.line("b = pe_" + type.cName + "(e, b, " + at + ");");
        check(body, "!e.ok(b)", "e.in(b, " + name + ")");
    }

    // Keeps the code of what usual messages do not carry out of their way.
    static std::string unusual(bool yes)
    {
        return yes ? " [[unlikely]]" : "";
    }

    static bool usual(const Type& type, const Addition& addition)
    {
        const auto first = type.members.begin() + static_cast<std::ptrdiff_t>(addition.first);
        return std::any_of(first, first + static_cast<std::ptrdiff_t>(addition.count),
                           [](const Member& member) { return member.usual; });
    }

    static void members(Body& body, const Type& type, std::size_t first, std::size_t count)
    {
        for (std::size_t i = first; i < first + count; ++i)
        {
            const Member& member = type.members[i];
            if (!member.optional)
            {
                value(body, *member.type, "v->" + member.cName, quoted(member.asnName));
                continue;
            }
            body.flush();
            body.line("if (v->m." + member.cName + "Present)" + unusual(!member.usual));
            body.open();
            value(body, *member.type, "v->" + member.cName, quoted(member.asnName));
            body.close();
        }
    }

    // The presence bits of optional members; their flags stand in the same order in `m`.
    static void presence(Body& body, const Type& type, std::size_t first, std::size_t count)
    {
        std::vector<const Member*> optional;
        for (std::size_t i = first; i < first + count; ++i)
        {
            if (type.members[i].optional)
            {
                optional.push_back(&type.members[i]);
            }
        }
        constexpr std::size_t few = 2;
        constexpr std::size_t most = 24;
        constexpr std::size_t wordBits = 32;
        for (std::size_t i = 0; i < optional.size();)
        {
            const auto flag = static_cast<std::size_t>(optional[i]->flag);
            const std::size_t run = std::min({optional.size() - i, most, wordBits - flag % wordBits});
            if (run <= few)
            {
                body.piece(wide("v->m." + optional[i]->cName + "Present"), 1);
                ++i;
                continue;
            }
            body.piece("e.flags<" + std::to_string(flag) + ", " + std::to_string(run) + ">(v->m)",
                       static_cast<unsigned>(run));
            i += run;
        }
    }

    // Whether an addition goes out: its own flag, and for a group one of its members'.
    static std::string goesOut(const Type& type, const Addition& addition)
    {
        std::string any;
        bool always = false;
        for (std::size_t i = addition.first; i < addition.first + addition.count; ++i)
        {
            any += (any.empty() ? "" : " | ") + ("v->m." + type.members[i].cName + "Present");
            always = always || !type.members[i].optional;
        }
        if (addition.flag < 0)
        {
            return any;
        }
        const std::string flag = "v->m." + addition.flagName + "Present";
        return always ? flag : flag + " & (" + any + ")";
    }

    static void sequence(Body& body, const Type& type)
    {
        std::string any;
        for (std::size_t i = 0; i < type.additions.size(); ++i)
        {
            const std::string name = "addition" + std::to_string(i);
            body.line("const unsigned " + name + " = " + goesOut(type, type.additions[i]) + ";");
            any += name + " != 0 || ";
        }
        if (type.extensible)
        {
            body.line("const bool extended = " + any + "v->extElem1.count != 0;");
            body.piece(wide("extended"), 1);
        }
        presence(body, type, 0, type.rootCount);
        members(body, type, 0, type.rootCount);
        body.flush();
        if (type.extensible)
        {
            additions(body, type);
        }
    }

    static void additions(Body& body, const Type& type)
    {
        std::string known = "0";
        for (std::size_t i = 0; i < type.additions.size(); ++i)
        {
            known = i == 0 ? "addition0" : "(" + known + ") << 1 | addition" + std::to_string(i);
        }
        const bool anyUsual = std::any_of(type.additions.begin(), type.additions.end(),
                                          [&](const Addition& addition) { return usual(type, addition); });
        body.line("if (extended)" + unusual(!anyUsual));
        body.open();
        body.line("b = e.extensionBitmap(b, " + known + ", " + std::to_string(type.additions.size()) +
                  ", v->extElem1);");
        check(body, "!e.ok(b)", "b");
        for (std::size_t i = 0; i < type.additions.size(); ++i)
        {
            const Addition& addition = type.additions[i];
            body.line("if (addition" + std::to_string(i) + " != 0)" + unusual(!usual(type, addition)));
            body.open();
            body.line("const uint64_t start = b.pos;");
            body.line("b = e.openType(b);");
            if (addition.flag >= 0)
            {
                presence(body, type, addition.first, addition.count);
                members(body, type, addition.first, addition.count);
            }
            else
            {
                value(body, *type.members[addition.first].type, "v->" + type.members[addition.first].cName,
                      quoted(type.members[addition.first].asnName));
            }
            body.flush();
            body.line("b = e.closeOpenType(b, start);");
            body.close();
        }
        body.line("b = e.unknownAdditions(b, v->extElem1);");
        body.close();
    }

    static void choice(Body& body, const Type& type)
    {
        const unsigned rootBits = bitsFor(static_cast<std::int64_t>(type.rootCount) - 1);
        body.line("switch (v->t)");
        body.openPlain();
        for (std::size_t i = 0; i < type.members.size(); ++i)
        {
            body.line((type.members[i].usual ? "case T_" : "[[unlikely]] case T_") + type.cName + "_" +
                      type.members[i].cName + ":");
            body.open();
            if (i < type.rootCount)
            {
                if (type.extensible)
                {
                    body.piece("uint64_t{0}", 1);
                }
                body.piece("uint64_t{" + std::to_string(i) + "}", rootBits);
                alternative(body, type.members[i]);
            }
            else
            {
                body.line("b = e.smallNumber(e.put<1>(b, 1), " + std::to_string(i - type.rootCount) + ");");
                body.line("const uint64_t start = b.pos;");
                body.line("b = e.openType(b);");
                alternative(body, type.members[i]);
                body.flush();
                body.line("b = e.closeOpenType(b, start);");
            }
            body.flush();
            body.line("break;");
            body.close();
        }
        const std::string count = std::to_string(type.members.size());
        body.line("[[unlikely]] default:");
        body.line(type.extensible ? "    return e.unknownAlternative(b, v->t, " + count + ", " +
                                        std::to_string(type.members.size() - type.rootCount) + ", v->u.extElem1);"
                                  : "    return e.choice(v->t, " + count + ");");
        body.closePlain();
    }

    static void alternative(Body& body, const Member& member)
    {
        const std::string at = "v->u." + member.cName;
        if (!member.pointer)
        {
            value(body, *member.type, at, quoted(member.asnName));
            return;
        }
        if (member.type->mayBeEmpty())
        {
            body.line("static const " + member.type->cName + " empty{};");
            body.line("const " + member.type->cName + "* const p = " + at + " == nullptr ? &empty : " + at + ";");
            check(body, "p != &empty && !e.reachable(p)", "e.pointer(" + quoted(member.asnName) + ", p)");
        }
        else
        {
            body.line("const auto* const p = " + at + ";");
            check(body, "!e.reachable(p)", "e.pointer(" + quoted(member.asnName) + ", p)");
        }
        if (member.type->constructed())
        {
            body.flush();
            element(body, *member.type, "p", quoted(member.asnName));
        }
        else
        {
            value(body, *member.type, "(*p)", quoted(member.asnName));
        }
    }

    // The number of elements; what is left to do is one loop.
    static void count(Body& body, const Type& type, const std::string& field)
    {
        const std::string wrong = "e.size(v->" + field + ", " + text(type.lower) + ", " + text(type.upper) + ")";
        if (type.fixedSize())
        {
            check(body, "v->" + field + " != " + text(type.upper), wrong);
            return;
        }
        const bool any = type.lower == 0;
        // What the count's storage cannot exceed needs no check.
        const bool full = type.kind == Kind::Array && (type.upper == 0xFF || type.upper == 0xFFFF);
        std::string condition = any ? "" : "v->" + field + " < " + text(type.lower) + "u";
        if (!full)
        {
            condition += (condition.empty() ? "" : " || ") + ("v->" + field + " > " + text(type.upper) + "u");
        }
        check(body, condition, wrong);
        body.piece(any ? wide("v->" + field) : "(uint64_t{v->" + field + "} - " + text(type.lower) + ")",
                   bitsFor(type.upper - type.lower));
        body.flush();
    }

    static void array(Body& body, const Type& type)
    {
        if (!type.fixedSize())
        {
            count(body, type, "n");
        }
        body.line("for (uint32_t i = 0; i < " + (type.fixedSize() ? text(type.upper) + "u" : std::string("v->n")) +
                  "; ++i)");
        body.open();
        const Type& element = *type.element;
        body.line("const auto value = v->elem[i];");
        check(body, outside(element, "value"),
              "e.rangeAt(i, value, " + text(element.lower) + ", " + text(element.upper) + ")");
        body.piece(offsetValue(element, "value"), bitsFor(element.upper - element.lower));
        body.close();
    }

    static void list(Body& body, const Type& type)
    {
        count(body, type, "count");
        body.line("const OSRTDListNode* node = v->head;");
        body.line("for (uint32_t i = 0; i < v->count; ++i, node = node->next)");
        body.open();
        body.line("const auto* const p = e.element<" + type.element->cName + ">(node);");
        check(body, "p == nullptr", "e.node(*v, i, node)");
        body.line("b = pe_" + type.element->cName + "(e, b, p);");
        check(body, "!e.ok(b)", "e.at(b, i)");
        body.close();
    }

    const Model& model_;
    const Pdus& pdus_;
    std::set<const Type*> needed_;
};

std::string pduTable(const Pdus& pdus)
{
    if (pdus.table.empty())
    {
        return "";
    }
    std::string out = "\nconst RtxPdu rtxPdus[" + std::to_string(pdus.table.size()) + "] = {\n";
    for (const Type* type : pdus.table)
    {
        const std::string& name = type->cName;
        out += "    {" + quoted(type->asnName) + ", &nr_rrc::type_" + name +
               ", [](OSCTXT* c, const void* v) { return asn1PE_" + name + "(c, static_cast<const " + name +
               "*>(v)); }},\n";
    }
    return out + "};\n";
}

} // namespace

std::string emitEncoder(const Model& model, const Origin& origin, const Pdus& pdus)
{
    std::string out =
        generatedMark(origin) + "#include \"" + pdus.header +
        "\"\n#include \"NR-RRC-Tables.h\"\n#include \"perEncoder.h\"\n\nusing rtx::Bits;\nusing rtx::Encoder;\n";
    out += Emitter(model, pdus).run();
    for (const Type* type : pdus.types)
    {
        const std::string& name = type->cName;
        const std::string table = "nr_rrc::type_" + name;
        out += "\nint asn1PE_" + name + "(OSCTXT* pctxt, const " + name +
               "* pvalue)\n{\n    return Encoder::run(pctxt, " + quoted(type->asnName) + ", pvalue, pe_" + name +
               ");\n}\n";
        out += "\nint asn1PD_" + name + "(OSCTXT* pctxt, " + name + "* pvalue)\n{\n    return rtxDecode(pctxt, &" +
               table + ", pvalue, 0);\n}\n";
        out += "\nvoid asn1Print_" + name + "(const char* name, const " + name + "* pvalue)\n{\n    rtx::print(" +
               table + ", name, pvalue);\n}\n";
        out += "\nvoid asn1PrintTo_" + name + "(const OSCTXT* pctxt, const char* name, const " + name +
               "* pvalue, RtxPrintSink sink, void* arg)\n{\n    rtx::print(pctxt, " + table +
               ", name, pvalue, sink, arg);\n}\n";
        out += "\nconst RtxType* asn1Type_" + name + "(void)\n{\n    return &" + table + ";\n}\n";
    }
    return out + pduTable(pdus);
}

} // namespace asncomp
