#include "parser.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace asncomp
{
namespace
{

constexpr unsigned maxTypeNesting = 40;

bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

// X.680 12.38: words that are never the name of a type. The subset uses these,
constexpr std::array used = std::to_array<std::string_view>(
    {"AUTOMATIC", "BEGIN", "BIT", "BOOLEAN", "CHOICE", "DEFAULT", "DEFINITIONS", "END", "ENUMERATED", "INTEGER", "NULL",
     "OF", "OPTIONAL", "SEQUENCE", "SIZE", "STRING", "TAGS"});
// and does without these.
constexpr std::array unsupported = std::to_array<std::string_view>({"ABSENT",
                                                                    "ABSTRACT-SYNTAX",
                                                                    "ALL",
                                                                    "ANY",
                                                                    "APPLICATION",
                                                                    "BMPString",
                                                                    "BY",
                                                                    "CHARACTER",
                                                                    "CLASS",
                                                                    "COMPONENT",
                                                                    "COMPONENTS",
                                                                    "CONSTRAINED",
                                                                    "CONTAINING",
                                                                    "DATE",
                                                                    "DATE-TIME",
                                                                    "DEFINED",
                                                                    "DURATION",
                                                                    "EMBEDDED",
                                                                    "ENCODED",
                                                                    "ENCODING-CONTROL",
                                                                    "EXCEPT",
                                                                    "EXPLICIT",
                                                                    "EXPORTS",
                                                                    "EXTENSIBILITY",
                                                                    "EXTERNAL",
                                                                    "FALSE",
                                                                    "FROM",
                                                                    "GeneralString",
                                                                    "GeneralizedTime",
                                                                    "GraphicString",
                                                                    "IA5String",
                                                                    "IDENTIFIER",
                                                                    "IMPLICIT",
                                                                    "IMPLIED",
                                                                    "IMPORTS",
                                                                    "INCLUDES",
                                                                    "INSTANCE",
                                                                    "INSTRUCTIONS",
                                                                    "INTERSECTION",
                                                                    "ISO646String",
                                                                    "MAX",
                                                                    "MIN",
                                                                    "MINUS-INFINITY",
                                                                    "NOT-A-NUMBER",
                                                                    "NumericString",
                                                                    "OBJECT",
                                                                    "OCTET",
                                                                    "OID-IRI",
                                                                    "ObjectDescriptor",
                                                                    "PATTERN",
                                                                    "PDV",
                                                                    "PLUS-INFINITY",
                                                                    "PRESENT",
                                                                    "PRIVATE",
                                                                    "PrintableString",
                                                                    "REAL",
                                                                    "RELATIVE-OID",
                                                                    "RELATIVE-OID-IRI",
                                                                    "SET",
                                                                    "SETTINGS",
                                                                    "SYNTAX",
                                                                    "T61String",
                                                                    "TIME",
                                                                    "TRUE",
                                                                    "TYPE-IDENTIFIER",
                                                                    "TeletexString",
                                                                    "UNION",
                                                                    "UNIQUE",
                                                                    "UNIVERSAL",
                                                                    "UTCTime",
                                                                    "UTF8String",
                                                                    "UniversalString",
                                                                    "VideotexString",
                                                                    "VisibleString",
                                                                    "WITH"});

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& words, std::string_view word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

// Thrown to abandon one assignment; the message is in the diagnostics by then.
struct Abandon
{
};

class Parser
{
public:
    Parser(const std::vector<Token>& tokens, Diagnostics& diagnostics) : tokens_(tokens), diagnostics_(diagnostics) {}

    ast::Module run()
    {
        try
        {
            head();
        }
        catch (const Abandon&)
        {
            return std::move(module_);
        }
        while (current().kind != TokenKind::End && !at("END"))
        {
            const std::size_t start = position_;
            try
            {
                assignment();
            }
            catch (const Abandon&)
            {
                recover(start);
            }
        }
        tail();
        return std::move(module_);
    }

private:
    const Token& current() const
    {
        return tokens_[position_];
    }
    const Token& ahead(std::size_t n) const
    {
        return tokens_[std::min(position_ + n, tokens_.size() - 1)];
    }
    bool at(std::string_view text) const
    {
        return current().kind != TokenKind::End && current().text == text;
    }

    void step()
    {
        if (current().kind != TokenKind::End)
        {
            ++position_;
        }
    }

    [[noreturn]] void refuse(Location where, const std::string& message)
    {
        diagnostics_.error(where, message);
        throw Abandon{};
    }

    [[noreturn]] void unexpected(const std::string& wanted)
    {
        refuse(current().at, wanted + " wanted, '" + current().text + "' found");
    }

    bool accept(std::string_view text)
    {
        const bool found = at(text);
        if (found)
        {
            step();
        }
        return found;
    }

    void expect(std::string_view text)
    {
        if (!accept(text))
        {
            unexpected("'" + std::string(text) + "'");
        }
    }

    std::string typeName()
    {
        if (current().kind != TokenKind::Word || !isUpper(current().text[0]) || contains(used, current().text))
        {
            unexpected("the name of a type");
        }
        if (contains(unsupported, current().text))
        {
            refuse(current().at, current().text + " is not supported");
        }
        std::string name = current().text;
        step();
        return name;
    }

    std::string valueName(const std::string& wanted)
    {
        if (current().kind != TokenKind::Word || isUpper(current().text[0]))
        {
            unexpected(wanted);
        }
        std::string name = current().text;
        step();
        return name;
    }

    void head()
    {
        module_.name = typeName();
        expect("DEFINITIONS");
        expect("AUTOMATIC");
        expect("TAGS");
        expect("::=");
        expect("BEGIN");
    }

    void tail()
    {
        if (!accept("END"))
        {
            diagnostics_.error(current().at, "'END' wanted, '" + current().text + "' found");
        }
        else if (current().kind != TokenKind::End)
        {
            diagnostics_.error(current().at, "'" + current().text + "' after the module's END");
        }
    }

    bool startsAssignment() const
    {
        return current().kind == TokenKind::Word && !contains(used, current().text) &&
               (ahead(1).text == "::=" || (ahead(1).text == "INTEGER" && ahead(2).text == "::=") ||
                (ahead(1).text == "{" && ahead(3).text == "}" && ahead(4).text == "::="));
    }

    void recover(std::size_t start)
    {
        if (position_ == start)
        {
            step();
        }
        while (current().kind != TokenKind::End && !at("END") && !startsAssignment())
        {
            step();
        }
    }

    void assignment()
    {
        if (current().kind == TokenKind::Word && !isUpper(current().text[0]))
        {
            valueAssignment();
            return;
        }
        ast::TypeAssignment result;
        result.at = current().at;
        result.name = typeName();
        if (accept("{"))
        {
            result.parameter = typeName();
            expect("}");
        }
        expect("::=");
        result.type = type(0);
        module_.types.push_back(std::move(result));
    }

    void valueAssignment()
    {
        ast::ValueAssignment result;
        result.at = current().at;
        result.name = valueName("the name of a constant");
        expect("INTEGER");
        expect("::=");
        if (current().kind != TokenKind::Number)
        {
            unexpected("a number");
        }
        result.value = current().value;
        step();
        module_.values.push_back(std::move(result));
    }

    ast::Bound bound()
    {
        ast::Bound result;
        result.at = current().at;
        if (current().kind == TokenKind::Number)
        {
            result.value = current().value;
            step();
        }
        else
        {
            result.name = valueName("a number or a constant");
        }
        return result;
    }

    void range(ast::Type& type)
    {
        type.lower = bound();
        type.upper = type.lower;
        if (accept(".."))
        {
            type.upper = bound();
        }
        if (at("..."))
        {
            refuse(current().at, "extensible constraints are not supported");
        }
    }

    void size(ast::Type& type)
    {
        expect("SIZE");
        expect("(");
        range(type);
        expect(")");
    }

    std::unique_ptr<ast::Type> type(unsigned nesting)
    {
        if (nesting > maxTypeNesting)
        {
            refuse(current().at, "types are nested too deeply");
        }
        auto result = std::make_unique<ast::Type>();
        result->at = current().at;
        if (accept("BOOLEAN"))
        {
            result->kind = ast::Kind::Boolean;
        }
        else if (accept("NULL"))
        {
            result->kind = ast::Kind::Null;
        }
        else if (accept("INTEGER"))
        {
            result->kind = ast::Kind::Integer;
            expect("(");
            range(*result);
            expect(")");
        }
        else if (accept("ENUMERATED"))
        {
            result->kind = ast::Kind::Enumerated;
            enumeration(*result);
        }
        else if (accept("BIT"))
        {
            result->kind = ast::Kind::BitString;
            expect("STRING");
            expect("(");
            size(*result);
            expect(")");
        }
        else if (accept("CHOICE"))
        {
            result->kind = ast::Kind::Choice;
            members(*result, nesting);
        }
        else if (accept("SEQUENCE"))
        {
            sequence(*result, nesting);
        }
        else
        {
            result->kind = ast::Kind::Reference;
            result->name = typeName();
            if (accept("{"))
            {
                result->element = type(nesting + 1);
                expect("}");
            }
        }
        if (at("("))
        {
            refuse(current().at, "a constraint is not supported here");
        }
        return result;
    }

    void sequence(ast::Type& result, unsigned nesting)
    {
        if (!accept("("))
        {
            result.kind = ast::Kind::Sequence;
            members(result, nesting);
            return;
        }
        result.kind = ast::Kind::SequenceOf;
        size(result);
        expect(")");
        expect("OF");
        result.element = type(nesting + 1);
    }

    void enumeration(ast::Type& result)
    {
        expect("{");
        do
        {
            if (at("..."))
            {
                refuse(current().at, "extensible enumerations are not supported");
            }
            const Location where = current().at;
            result.values.push_back({valueName("the name of an enumeration value"), where});
        } while (accept(","));
        expect("}");
    }

    ast::Member member(const ast::Type& owner, unsigned nesting)
    {
        ast::Member result;
        result.at = current().at;
        result.name = valueName("the name of a member");
        result.type = type(nesting + 1);
        if (at("OPTIONAL"))
        {
            if (owner.kind == ast::Kind::Choice)
            {
                refuse(current().at, "an alternative of a CHOICE is never OPTIONAL");
            }
            step();
            result.optional = true;
        }
        if (at("DEFAULT"))
        {
            refuse(current().at, "DEFAULT is not supported");
        }
        return result;
    }

    void members(ast::Type& result, unsigned nesting)
    {
        expect("{");
        if (accept("}"))
        {
            return;
        }
        ast::Member* annotated = nullptr; // what an annotation behind the next comma belongs to
        do
        {
            annotated = nullptr;
            if (at("...") && result.extensible)
            {
                refuse(current().at, "a second extension marker is not supported");
            }
            if (accept("..."))
            {
                result.extensible = true;
            }
            else if (!result.extensible)
            {
                result.members.push_back(member(result, nesting));
                annotated = &result.members.back();
            }
            else
            {
                result.additions.push_back(addition(result, nesting));
                annotated = result.additions.back().group ? nullptr : &result.additions.back().members.back();
            }
        } while (another(result, annotated));
        expect("}");
    }

    ast::Addition addition(const ast::Type& owner, unsigned nesting)
    {
        ast::Addition result;
        result.at = current().at;
        if (!accept("[["))
        {
            result.members.push_back(member(owner, nesting));
            return result;
        }
        if (owner.kind == ast::Kind::Choice)
        {
            refuse(result.at, "addition groups of a CHOICE are not supported");
        }
        result.group = true;
        do
        {
            result.members.push_back(member(owner, nesting));
        } while (another(owner, &result.members.back()));
        expect("]]");
        return result;
    }

    // Whether another member follows. A member's annotations stand behind the comma, as comments do.
    bool another(const ast::Type& owner, ast::Member* member)
    {
        const bool result = accept(",");
        while (at("--"))
        {
            if (member == nullptr || owner.kind != ast::Kind::Sequence)
            {
                refuse(current().at, "an annotation stands behind a member of a SEQUENCE");
            }
            step();
            annotation(*member);
            expect("--");
            if (!result && at(","))
            {
                refuse(current().at, "the comma stands before the annotation");
            }
        }
        return result;
    }

    void annotation(ast::Member& member)
    {
        const ast::Name first = word("an annotation");
        const ast::Name& before = first.name == "Identity" ? member.identity.member : member.need.annotation;
        if (!before.name.empty())
        {
            refuse(first.at, "'" + member.name + "' has an annotation of this kind already");
        }
        if (first.name == "Identity")
        {
            identity(member, first.at);
            return;
        }
        member.need.annotation = first;
        if (first.name == "Need")
        {
            code(member.need);
        }
        else if (first.name == "Cond")
        {
            member.need.condition = word("the name of a condition");
            expect("(");
            code(member.need);
            expect(")");
        }
        else
        {
            member.need.word = word("what binds a change");
        }
    }

    void identity(ast::Member& member, Location where)
    {
        if (member.type->kind != ast::Kind::SequenceOf)
        {
            refuse(where, "'" + member.name + "' is not a SEQUENCE OF: it has no elements to identify");
        }
        const Location at = current().at;
        member.identity.member = {isUpper(current().text[0]) ? typeName() : valueName("a name"), at};
        if (accept(","))
        {
            expect("released");
            expect("by");
            const Location list = current().at;
            member.identity.release = {valueName("the name of a list"), list};
        }
    }

    void code(ast::Need& need)
    {
        need.code = word("a need code");
        if (accept(","))
        {
            need.word = word("what binds a change");
        }
    }

    ast::Name word(const std::string& wanted)
    {
        if (current().kind != TokenKind::Word)
        {
            unexpected(wanted);
        }
        ast::Name result{current().text, current().at};
        step();
        return result;
    }

    const std::vector<Token>& tokens_;
    Diagnostics& diagnostics_;
    std::size_t position_ = 0;
    ast::Module module_;
};

} // namespace

ast::Module parse(const std::vector<Token>& tokens, Diagnostics& diagnostics)
{
    return Parser(tokens, diagnostics).run();
}

} // namespace asncomp
