// diff: in what two messages differ.
#include "commands.h"
#include "meanings.h"
#include "message.h"
#include "octets.h"
#include "states.h"
#include "style.h"

#include <nlohmann/json.hpp>

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

// Values inside a value that mean something: "path = value" and what that is.
using Remarked = std::vector<std::pair<std::string, std::string>>;

struct Difference
{
    OSINT32 kind; // RtxDifferenceKind
    std::string path;
    std::string a; // value notation, empty where there is none
    std::string b;
    std::string meaningA; // empty where there is none
    std::string meaningB;
    Remarked insideA; // of what is only in one of both
    Remarked insideB;
};

class Comparison
{
public:
    // Takes memory of the heap of `a` while it compares the values, which are those of the messages or their states.
    Comparison(Message& a, const void* valueA, Message& b, const void* valueB, const RuleInputs* explain) : a_(a), b_(b)
    {
        if (explain != nullptr)
        {
            meaningsA_ = Meanings(a, valueA, *explain);
            meaningsB_ = Meanings(b, valueB, *explain);
        }
        const auto sink = [](void* to, const RtxDifference* difference)
        {
            static_cast<Comparison*>(to)->add(*difference);
            return 0;
        };
        if (rtxCompare(&a.context(), &b.context(), a.pdu().type, valueA, valueB, sink, this) < 0)
        {
            throw Failure(Exit::Usage, "out of memory");
        }
    }

    const std::vector<Difference>& differences() const
    {
        return differences_;
    }

private:
    void add(const RtxDifference& difference)
    {
        const bool isOrder = difference.kind == RTX_D_ORDER;
        differences_.push_back({difference.kind, pathOf(difference),
                                isOrder ? "" : text(a_, difference.type, difference.a),
                                isOrder ? "" : text(b_, difference.type, difference.b),
                                isOrder ? "" : meaningsA_.of(difference.type, difference.a),
                                isOrder ? "" : meaningsB_.of(difference.type, difference.b),
                                isOrder ? Remarked() : inside(a_, meaningsA_, difference.type, difference.a),
                                isOrder ? Remarked() : inside(b_, meaningsB_, difference.type, difference.b)});
    }

    static Remarked inside(const Message& message, Meanings& meanings, const RtxType* type, const void* value)
    {
        if (value == nullptr || type == nullptr || !meanings.of(type, value).empty())
        {
            return {};
        }
        const std::string lines = written(
            [&](RtxPrintSink sink, void* arg)
            { (void)rtxToFlatWithRemarks(&message.context(), type, value, Meanings::remark, &meanings, sink, arg); });
        Remarked all;
        constexpr std::string_view mark = "  # ";
        for (std::size_t begin = 0; begin < lines.size(); begin = lines.find('\n', begin) + 1)
        {
            const std::string_view line = std::string_view(lines).substr(begin, lines.find('\n', begin) - begin);
            const std::size_t remark = line.find(mark);
            if (remark != std::string_view::npos)
            {
                const std::size_t path = line.find_first_of(".["); // behind the type's name
                all.emplace_back(line.substr(path, remark - path), line.substr(remark + mark.size()));
            }
        }
        return all;
    }

    static std::string pathOf(const RtxDifference& difference)
    {
        std::string line(rtxDifferenceFormat(&difference, nullptr, 0) + 1, '\0');
        (void)rtxDifferenceFormat(&difference, line.data(), line.size());
        return line.substr(0, line.find(": "));
    }

    static std::string text(const Message& message, const RtxType* type, const void* value)
    {
        if (value == nullptr)
        {
            return "";
        }
        if (type != nullptr)
        {
            return valueText(&message.context(), *type, value);
        }
        const auto& unknown = *static_cast<const ASN1OpenType*>(value);
        return "'" + toHex({unknown.data, unknown.numocts}, Case::Upper) + "'H";
    }

    const Message& a_;
    const Message& b_;
    Meanings meaningsA_;
    Meanings meaningsB_;
    std::vector<Difference> differences_;
};

std::string_view kindName(OSINT32 kind)
{
    switch (kind)
    {
    case RTX_D_ONLY_A:
        return "removed";
    case RTX_D_ONLY_B:
        return "added";
    case RTX_D_ORDER:
        return "order";
    case RTX_D_UNREADABLE:
        return "unreadable";
    default:
        return "changed";
    }
}

std::string line(const Difference& difference, bool color)
{
    const auto value = [](const std::string& text)
    {
        return text.empty() ? "" : " = " + text;
    };
    switch (difference.kind)
    {
    case RTX_D_ONLY_A:
        return styled("- " + difference.path + value(difference.a), Style::Red, color);
    case RTX_D_ONLY_B:
        return styled("+ " + difference.path + value(difference.b), Style::Green, color);
    case RTX_D_ORDER:
        return styled("~ " + difference.path + ": the elements stand in another order", Style::Yellow, color);
    case RTX_D_UNREADABLE:
        return styled("~ " + difference.path + ": cannot be compared", Style::Yellow, color);
    default:
        return styled("~ " + difference.path + ": ", Style::Yellow, color) +
               styled(difference.a.empty() ? "none" : difference.a, Style::Red, color) + " -> " +
               styled(difference.b.empty() ? "none" : difference.b, Style::Green, color);
    }
}

// What the values mean, behind the line.
std::string remarkOf(const Difference& difference)
{
    const std::string& a = difference.meaningA;
    const std::string& b = difference.meaningB;
    return a.empty() && b.empty() ? "" : "  # " + a + (a.empty() || b.empty() ? "" : " -> ") + b;
}

// And what the values inside a line's value mean.
std::string remarksInside(const Remarked& inside)
{
    std::string lines;
    for (const auto& [value, meaning] : inside)
    {
        lines += "    " + value + "  # " + meaning + "\n";
    }
    return lines;
}

Json jsonOf(const Remarked& inside)
{
    Json all = Json::array();
    for (const auto& [value, meaning] : inside)
    {
        const std::size_t equals = value.find(" = ");
        all.push_back({{"path", value.substr(0, equals)}, {"value", value.substr(equals + 3)}, {"meaning", meaning}});
    }
    return all;
}

std::string jsonOf(const std::vector<Difference>& differences)
{
    Json all = Json::array();
    for (const Difference& difference : differences)
    {
        Json one = {{"kind", kindName(difference.kind)}, {"path", difference.path}};
        if (!difference.a.empty())
        {
            one["a"] = difference.a;
        }
        if (!difference.b.empty())
        {
            one["b"] = difference.b;
        }
        if (!difference.meaningA.empty())
        {
            one["meaningOfA"] = difference.meaningA;
        }
        if (!difference.meaningB.empty())
        {
            one["meaningOfB"] = difference.meaningB;
        }
        if (!difference.insideA.empty())
        {
            one["meaningsInA"] = jsonOf(difference.insideA);
        }
        if (!difference.insideB.empty())
        {
            one["meaningsInB"] = jsonOf(difference.insideB);
        }
        all.push_back(std::move(one));
    }
    return Json{{"version", 1}, {"differences", std::move(all)}}.dump(2) + "\n";
}

} // namespace

void diff(Session& session, const std::string& a, const std::string& b, const DiffOptions& options)
{
    const auto inputs = explainInputs(session, options.explain);
    const Given givenA = session.only(a);
    const Given givenB = session.only(b);
    Message messageA(*session.common().type, givenA);
    Message messageB(*session.common().type, givenB);
    messageA.expectGood();
    messageB.expectGood();
    const Comparison comparison(messageA, options.state ? stateOf(messageA) : messageA.value(), messageB,
                                options.state ? stateOf(messageB) : messageB.value(), inputs.get());
    if (options.json)
    {
        session.put(jsonOf(comparison.differences()));
    }
    else
    {
        for (const Difference& difference : comparison.differences())
        {
            session.put(line(difference, session.color()) + remarkOf(difference) + "\n" +
                        remarksInside(difference.insideA) + remarksInside(difference.insideB));
        }
    }
    if (!comparison.differences().empty())
    {
        session.raise(Exit::Findings);
    }
}

} // namespace tool
