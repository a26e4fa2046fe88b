// What a page shows of messages.
#include "differences.h"
#include "html.h"
#include "remarks.h"
#include "rrcDraw.h"
#include "rrcPage.h"

#include <algorithm>
#include <memory>

namespace page
{
namespace
{

// A message with all that is said of it.
struct Told
{
    const Shown& shown;
    Tree tree;
    RrcRuleContext known;
    std::string heldError; // why what the UE has before could not be read; empty when it could
    Remarks remarks;

    Told(const Shown& message, const RrcRuleContext* besides, std::span<const std::uint8_t> held)
        : shown(message), tree(message.octets), known()
    {
        if (besides != nullptr)
        {
            known = *besides;
        }
        known.previous = nullptr;
        if (tree.error() == nullptr && !held.empty())
        {
            known.previous = decodedHeld(held);
        }
        remarks = remarksOn(tree, known);
    }

private:
    const CellGroupConfig* decodedHeld(std::span<const std::uint8_t> held)
    {
        OSCTXT& context = tree.context();
        auto* const root = static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&context, sizeof(CellGroupConfig)));
        std::vector<std::uint8_t> octets(held.begin(), held.end());
        (void)pu_setBuffer(&context, octets.data(), octets.size(), 0);
        if (root == nullptr || rtxDecode(&context, asn1Type_CellGroupConfig(), root, 0) != RTX_OK)
        {
            heldError = errorText(context.error);
            rtxErrReset(&context);
            return nullptr;
        }
        return root;
    }
};

constexpr const char* severityClass(OSUINT8 severity)
{
    return severity == RRC_RULE_ERROR ? "e" : severity == RRC_RULE_WARNING ? "w" : "n";
}

// The elements as nested lists. An item is `name literal` or `name` and the list of what it has; end tags that HTML
// does not ask for are left out, as a large message has tens of thousands of items.
class TreeWriter
{
public:
    explicit TreeWriter(const Told& told) : told_(told), nodes_(told.tree.nodes()) {}

    std::string take()
    {
        text_ = "<ul class=t>";
        item(0);
        text_ += "</ul>";
        return std::move(text_);
    }

private:
    void item(std::uint32_t number)
    {
        const Node& node = nodes_[number];
        text_ += "<li>" + node.name;
        if (node.kind == NodeKind::Leaf)
        {
            text_ += " " + escaped(node.literal);
        }
        const std::string& meaning = told_.remarks.meanings[number];
        if (!meaning.empty())
        {
            text_ += "<i>" + escaped(meaning) + "</i>";
        }
        findings(number);
        if (node.kind == NodeKind::Leaf)
        {
            return;
        }
        const std::string list = node.kind == NodeKind::Array ? "ol" : "ul";
        text_ += "<" + list + ">";
        for (std::uint32_t below = number + 1; below < node.end; below = nodes_[below].end)
        {
            item(below);
        }
        text_ += "</" + list + ">";
    }

    void findings(std::uint32_t number)
    {
        const auto& all = told_.remarks.findings;
        for (; next_ < all.size() && all[next_].node == number; ++next_)
        {
            const MessageFinding& finding = all[next_].finding;
            text_ += "<p class=" + std::string(severityClass(finding.severity)) + " data-id=" + quoted(finding.id) +
                     " data-path=" + quoted(finding.path) + "><b>" + rrcRuleSeverityName(finding.severity) + "</b> " +
                     escaped(placed(finding, number)) + escaped(finding.message) + " <code>" + escaped(finding.id) +
                     "</code>";
            std::string more = finding.advice;
            const auto add = [&](const std::string& words)
            {
                more += (more.empty() || words.empty() ? "" : " ") + words;
            };
            add(finding.decidedBy != 0 ? "This could change with " + inputWords(finding.decidedBy) + "." : "");
            add(finding.clause);
            text_ += more.empty() ? "" : " <small>" + escaped(more) + "</small>";
        }
    }

    // Where a finding is meant, when that place is not the node: its path, shortened where the node leads to it.
    std::string placed(const MessageFinding& finding, std::uint32_t number) const
    {
        const bool isHere = finding.path.ends_with(nodes_[number].name) ||
                            (finding.path.ends_with(']') && nodes_[number].name.starts_with('['));
        return isHere ? "" : finding.path + ": ";
    }

    const Told& told_;
    const std::vector<Node>& nodes_;
    std::string text_;
    std::size_t next_ = 0; // finding
};

std::string bitsJson(const Tree& tree)
{
    std::string text;
    std::uint64_t last = 0;
    for (const Node& node : tree.nodes())
    {
        text += text.empty() ? "" : ",";
        if (!node.isPlaced)
        {
            text += "null";
            continue;
        }
        text +=
            std::to_string(static_cast<std::int64_t>(node.bits.first - last)) + "," + std::to_string(node.bits.count);
        last = node.bits.first;
    }
    return "[" + text + "]";
}

std::string hexOf(std::span<const std::uint8_t> octets)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * octets.size());
    for (const std::uint8_t octet : octets)
    {
        text += digits[octet >> 4];
        text += digits[octet & 15];
    }
    return text;
}

std::string messageJson(const Told& told)
{
    std::string stretches;
    for (const Stretch& stretch : told.tree.stretches())
    {
        stretches += (stretches.empty() ? "[" : ",[") + std::to_string(stretch.bits.first) + "," +
                     std::to_string(stretch.bits.count) + "," + jsonString(stretch.words) + "]";
    }
    return "{\"octets\":\"" + hexOf(told.tree.octets()) + "\",\"bits\":" + bitsJson(told.tree) + ",\"stretches\":[" +
           stretches + "]}";
}

std::string countsOf(const Remarks& remarks)
{
    std::string text;
    for (const OSUINT8 severity : {RRC_RULE_ERROR, RRC_RULE_WARNING, RRC_RULE_NOTICE})
    {
        const auto count = std::count_if(remarks.findings.begin(), remarks.findings.end(),
                                         [&](const Remarks::Finding& one) { return one.finding.severity == severity; });
        if (count != 0)
        {
            text +=
                (text.empty() ? "" : ", ") + counted(static_cast<std::uint64_t>(count), rrcRuleSeverityName(severity));
        }
    }
    return text.empty() ? "no finding" : text;
}

std::string messageSection(const Told& told, const char* letter)
{
    const std::string id = std::string("m") + letter;
    std::string text = "<section class=m aria-labelledby=" + id + "><h2 id=" + id + ">";
    text += *letter == '\0' ? "" : "<b class=ab>" + std::string(letter) + "</b> ";
    text += escaped(told.shown.name.empty() ? "message" : told.shown.name) + "</h2><p class=about>";
    const std::string size = counted(told.tree.octets().size(), "octet");
    const std::string& note = told.shown.note;
    text += escaped(note) +
            (note.empty()                           ? size
             : note.find(size) == std::string::npos ? "; " + size
                                                    : "") +
            "; " + countsOf(told.remarks);
    text += told.tree.error() == nullptr ? "" : "; what stands behind the error was not read";
    text += told.remarks.refusal.empty() ? "" : "; rules and meanings: " + escaped(told.remarks.refusal);
    text += told.heldError.empty() ? "" : "; what the UE has before cannot be read: " + escaped(told.heldError);
    return text + "</p>" + TreeWriter(told).take() + "</section>";
}

std::string pictureSection(const Told& told, const char* letter)
{
    const std::string picture =
        told.tree.error() != nullptr ? "" : draw::svg(told.tree.context(), told.tree.value(), &told.known, {});
    rtxErrReset(&told.tree.context());
    if (picture.empty())
    {
        return "";
    }
    const std::string id = std::string("p") + letter;
    return "<section class=p aria-labelledby=" + id + "><h2 id=" + id + ">Radio resources" +
           (*letter == '\0' ? "" : std::string(" of ") + letter) + "</h2><div class=pic>" + picture +
           "</div></section>";
}

std::string undecidedSection(const Told& told, const char* letter)
{
    if (told.remarks.undecided.empty())
    {
        return "";
    }
    std::string text = "<details class=u><summary>" + (*letter == '\0' ? "" : std::string(letter) + ": ") +
                       counted(told.remarks.undecided.size(), "rule") + " undecided</summary><ul>";
    for (const Remarks::Undecided& one : told.remarks.undecided)
    {
        text += "<li><code>" + escaped(one.rule) + "</code> needs " + escaped(inputWords(one.decidedBy));
    }
    return text + "</ul></details>";
}

// Those that are told in words; the script steps through all of them.
constexpr std::size_t mostDifferences = 1000;

std::string differencesSection(const std::vector<Difference>& all)
{
    std::string text = "<details class=d open><summary>" + counted(all.size(), "difference") + "</summary><ol>";
    for (const Difference& one : std::span(all).first(std::min(all.size(), mostDifferences)))
    {
        text += "<li><code>" + escaped(one.path) + "</code> " + escaped(one.words);
    }
    text += "</ol>";
    if (all.size() > mostDifferences)
    {
        text += "<p>" + counted(all.size() - mostDifferences, "more difference") + ", all of them marked in the trees.";
    }
    return text + "</details>";
}

} // namespace

std::string content(std::span<const Shown> messages, const RrcRuleContext* known, std::span<const std::uint8_t> held)
{
    if (messages.empty())
    {
        return "";
    }
    const Told first(messages[0], known, held);
    std::string data = "{\"messages\":[" + messageJson(first);
    if (messages.size() == 1)
    {
        return "<div class=g>" + messageSection(first, "") + "</div>" + pictureSection(first, "") +
               undecidedSection(first, "") + "<script type=\"application/json\">" + data +
               "],\"differences\":null}</script>";
    }
    const Told second(messages[1], known, held);
    std::string text = "<div class=g>" + messageSection(first, "A") + messageSection(second, "B") + "</div>";
    data += "," + messageJson(second) + "],\"differences\":";
    if (first.tree.error() != nullptr || second.tree.error() != nullptr)
    {
        text += "<p class=d>The messages are not compared, as one of them was not read to its end.</p>";
        data += "null";
    }
    else
    {
        const std::vector<Difference> differences = differencesOf(first.tree, second.tree);
        text += differencesSection(differences);
        std::string list;
        for (const Difference& one : differences)
        {
            list += (list.empty() ? "[" : ",[") + std::to_string(one.a.node) + "," + std::to_string(one.b.node) + "," +
                    (one.a.isThere ? one.b.isThere ? "3" : "1" : "2") + "]";
        }
        data += "[" + list + "]";
    }
    return text + pictureSection(first, "A") + pictureSection(second, "B") + undecidedSection(first, "A") +
           undecidedSection(second, "B") + "<script type=\"application/json\">" + data + "}</script>";
}

} // namespace page
