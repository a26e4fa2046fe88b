// What a page shows of messages.
#include "differences.h"
#include "html.h"
#include "remarks.h"
#include "rrcDraw.h"
#include "rrcPage.h"
#include "whileMemory.h"

#include <algorithm>
#include <initializer_list>
#include <map>

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

// What a page of the largest message may take, in octets; with what cannot be shortened it stays below a megabyte.
constexpr std::size_t mostPlain = 350000;    // elements in plain HTML
constexpr std::size_t mostFindings = 120000; // texts of findings
constexpr std::size_t mostOctets = 940000;   // of all of it, besides style and script

// The elements as nested lists. An item is `name literal`, or `name` and the list of what it has; end tags that HTML
// does not ask for are left out, as a large message has tens of thousands of items. Lists for which there is no room
// are left to the script: it makes them of numbers, as the same items come again and again.
class TreeWriter
{
public:
    explicit TreeWriter(const Told& told) : told_(told), nodes_(told.tree.nodes())
    {
        choose();
        text_ = "<ul class=t>";
        item(0);
        text_ += "</ul>";
    }

    const std::string& text() const
    {
        return text_;
    }
    // The lists that the script makes, and the items that they are made of.
    std::string restJson() const
    {
        std::string heads;
        for (const std::string& head : heads_)
        {
            heads += (heads.empty() ? "" : ",") + jsonString(head);
        }
        return "\"heads\":[" + heads + "],\"rest\":[" + rest_ + "]";
    }
    std::size_t deferred() const
    {
        return deferred_;
    }
    std::size_t leftOut() const
    {
        return static_cast<std::size_t>(std::count(isShown_.begin(), isShown_.end(), false));
    }

private:
    // The findings that there is room for, the heaviest first.
    void choose()
    {
        const auto& all = told_.remarks.findings;
        isShown_.resize(all.size(), false);
        std::size_t room = mostFindings;
        for (const OSUINT8 severity : {RRC_RULE_ERROR, RRC_RULE_WARNING, RRC_RULE_NOTICE})
        {
            for (std::size_t i = 0; i < all.size(); ++i)
            {
                if (all[i].finding.severity == severity)
                {
                    const std::size_t size = findingText(all[i]).size();
                    isShown_[i] = size <= room;
                    room = isShown_[i] ? room - size : 0;
                }
            }
        }
    }

    void item(std::uint32_t number)
    {
        const Node& node = nodes_[number];
        text_ += "<li>" + head(number);
        if (node.kind == NodeKind::Leaf)
        {
            return;
        }
        const std::string list = node.kind == NodeKind::Array ? "ol" : "ul";
        if (text_.size() > mostPlain)
        {
            text_ += "<" + list + " data-rest=" + std::to_string(lists_++) + "></" + list + ">";
            rest_ += rest_.empty() ? "[" : ",[";
            isFirst_ = true;
            forChildren(number, [this](std::uint32_t below) { defer(below); });
            rest_ += "]";
            return;
        }
        text_ += "<" + list + ">";
        forChildren(number, [this](std::uint32_t below) { item(below); });
        text_ += "</" + list + ">";
    }

    template <typename Each>
    void forChildren(std::uint32_t number, const Each& each)
    {
        for (std::uint32_t below = number + 1; below < nodes_[number].end; below = nodes_[below].end)
        {
            each(below);
        }
    }

    // A leaf as the number of its item; of what has a list, that number less all there are, behind it 0 or 1 of an
    // array and how many items the list has.
    void defer(std::uint32_t number)
    {
        const Node& node = nodes_[number];
        ++deferred_;
        const auto [known, isNew] = headNumbers_.emplace(head(number), headNumbers_.size());
        if (isNew)
        {
            heads_.push_back(known->first);
        }
        const auto item = static_cast<std::int64_t>(known->second);
        if (node.kind == NodeKind::Leaf)
        {
            put(item);
            return;
        }
        put(-1 - item);
        put(node.kind == NodeKind::Array ? 1 : 0);
        std::int64_t count = 0;
        forChildren(number, [&](std::uint32_t) { ++count; });
        put(count);
        forChildren(number, [this](std::uint32_t below) { defer(below); });
    }

    void put(std::int64_t number)
    {
        rest_ += (isFirst_ ? "" : ",") + std::to_string(number);
        isFirst_ = false;
    }

    // What stands in an item before its list.
    std::string head(std::uint32_t number)
    {
        const Node& node = nodes_[number];
        std::string text = node.name;
        if (node.kind == NodeKind::Leaf)
        {
            text += " " + escaped(node.literal);
        }
        const bool isUnknown = node.name == "$unknownAdditions" || node.name == "$unknownAlternative";
        const std::string& meaning = isUnknown ? ofLaterRelease : told_.remarks.meanings[number];
        if (!meaning.empty())
        {
            text += "<i>" + escaped(meaning) + "</i>";
        }
        const auto& all = told_.remarks.findings;
        for (; next_ < all.size() && all[next_].node == number; ++next_)
        {
            text += isShown_[next_] ? findingText(all[next_]) : "";
        }
        return text;
    }

    std::string findingText(const Remarks::Finding& told) const
    {
        const MessageFinding& finding = told.finding;
        std::string more = finding.advice;
        const auto add = [&](const std::string& words)
        {
            more += (more.empty() || words.empty() ? "" : " ") + words;
        };
        add(finding.decidedBy != 0 ? "This could change with " + inputWords(finding.decidedBy) + "." : "");
        add(finding.clause);
        return "<p class=" + std::string(severityClass(finding.severity)) + " data-id=" + quoted(finding.id) +
               " data-path=" + quoted(finding.path) + "><b>" + rrcRuleSeverityName(finding.severity) + "</b> " +
               escaped(placed(finding, told.node)) + escaped(finding.message) + " <code>" + escaped(finding.id) +
               "</code>" + (more.empty() ? "" : " <small>" + escaped(more) + "</small>");
    }

    // Where a finding is meant, when that place is not the node: its path, shortened where the node leads to it.
    std::string placed(const MessageFinding& finding, std::uint32_t number) const
    {
        const bool isHere = finding.path.ends_with(nodes_[number].name) ||
                            (finding.path.ends_with(']') && nodes_[number].name.starts_with('['));
        return isHere ? "" : finding.path + ": ";
    }

    const std::string ofLaterRelease = "of a later release, not known to this one";
    const Told& told_;
    const std::vector<Node>& nodes_;
    std::string text_;
    std::vector<bool> isShown_; // of each finding
    std::size_t next_ = 0;      // finding
    std::string rest_;
    bool isFirst_ = false;  // number of a list in it
    std::size_t lists_ = 0; // that the script makes
    std::size_t deferred_ = 0;
    std::vector<std::string> heads_;
    std::map<std::string, std::size_t> headNumbers_;
};

// Of each node in their order the number of its bits where they begin behind the first bit of the list before, or
// behind the last bit of the leaf; else that distance as well: [distance, number]. null of a node without a place.
std::string bitsJson(const Tree& tree)
{
    std::string text;
    std::uint64_t next = 0;
    for (const Node& node : tree.nodes())
    {
        text += text.empty() ? "" : ",";
        if (!node.isPlaced)
        {
            text += "null";
            continue;
        }
        const auto distance = static_cast<std::int64_t>(node.bits.first - next);
        const std::string count = std::to_string(node.bits.count);
        text += distance == 0 ? count : "[" + std::to_string(distance) + "," + count + "]";
        next = node.bits.first + (node.kind == NodeKind::Leaf ? node.bits.count : 0);
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

std::string messageJson(const Told& told, const TreeWriter& tree)
{
    std::string stretches;
    for (const Stretch& stretch : told.tree.stretches())
    {
        stretches += (stretches.empty() ? "[" : ",[") + std::to_string(stretch.bits.first) + "," +
                     std::to_string(stretch.bits.count) + "," + jsonString(stretch.words) + "]";
    }
    return "{\"octets\":\"" + hexOf(told.tree.octets()) + "\",\"bits\":" + bitsJson(told.tree) + ",\"stretches\":[" +
           stretches + "]," + tree.restJson() + "}";
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

std::string messageSection(const Told& told, const TreeWriter& tree, const char* letter)
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
    text += tree.leftOut() == 0
                ? ""
                : "; there is no room for " + counted(tree.leftOut(), "finding") + ", which cellgroupcfg check tells";
    text += tree.deferred() == 0 ? "" : "; " + counted(tree.deferred(), "element") + " can be seen with script only";
    return text + "</p>" + tree.text() + "</section>";
}

// `room`: for it, in octets.
std::string pictureSection(const Told& told, const char* letter, std::size_t room)
{
    const std::string picture =
        told.tree.error() != nullptr ? "" : draw::svg(told.tree.context(), told.tree.value(), &told.known, {});
    rtxErrReset(&told.tree.context());
    if (picture.empty())
    {
        return "";
    }
    const std::string id = std::string("p") + letter;
    const std::string shown = picture.size() <= room
                                  ? picture
                                  : "<p>The picture takes " + std::to_string(picture.size() / 1000) +
                                        " kB, for which there is no room: cellgroupcfg draw makes it.</p>";
    return "<section class=p aria-labelledby=" + id + "><h2 id=" + id + ">Radio resources" +
           (*letter == '\0' ? "" : std::string(" of ") + letter) + "</h2><div class=pic>" + shown + "</div></section>";
}

std::string undecidedSection(const Told& told, const char* letter)
{
    if (told.remarks.undecided.empty())
    {
        return "";
    }
    std::string text = "<details class=u aria-label=\"Undecided rules\"><summary>" +
                       (*letter == '\0' ? "" : std::string(letter) + ": ") +
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
    std::string text =
        "<details class=d aria-label=Differences open><summary>" + counted(all.size(), "difference") + "</summary><ol>";
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

std::string differencesJson(const std::vector<Difference>& all)
{
    std::string list;
    for (const Difference& one : all)
    {
        list += (list.empty() ? "[" : ",[") + std::to_string(one.a.node) + "," + std::to_string(one.b.node) + "," +
                (one.a.isThere ? one.b.isThere ? "3" : "1" : "2") + "]";
    }
    return "[" + list + "]";
}

// With what comes behind the trees.
std::string finished(std::string text, const std::string& data,
                     std::initializer_list<std::pair<const Told*, const char*>> all)
{
    std::string undecided;
    for (const auto& [told, letter] : all)
    {
        undecided += undecidedSection(*told, letter);
    }
    const std::size_t most = all.size() * mostOctets;
    for (const auto& [told, letter] : all)
    {
        const std::size_t size = text.size() + undecided.size() + data.size();
        text += pictureSection(*told, letter, most - std::min(most, size));
    }
    for (const auto& [told, letter] : all)
    {
        if (rtxMemHeapFailed(&told->tree.context()) != 0) // something would be left out in silence
        {
            text::endWithoutMemory();
        }
    }
    return text + undecided + "<script type=\"application/json\">" + data + "</script>";
}

} // namespace

std::string content(std::span<const Shown> messages, const RrcRuleContext* known, std::span<const std::uint8_t> held)
{
    if (messages.empty())
    {
        return "";
    }
    const bool isTwo = messages.size() > 1;
    const Told first(messages[0], known, held);
    const TreeWriter firstTree(first);
    std::string text = "<div class=g>" + messageSection(first, firstTree, isTwo ? "A" : "");
    std::string data = "{\"messages\":[" + messageJson(first, firstTree);
    if (!isTwo)
    {
        return finished(text + "</div>", data + "],\"differences\":null}", {{&first, ""}});
    }
    const Told second(messages[1], known, held);
    const TreeWriter secondTree(second);
    text += messageSection(second, secondTree, "B") + "</div>";
    data += "," + messageJson(second, secondTree) + "],\"differences\":";
    if (first.tree.error() != nullptr || second.tree.error() != nullptr)
    {
        text += "<p class=d>The messages are not compared, as one of them was not read to its end.</p>";
        data += "null";
    }
    else
    {
        const std::vector<Difference> differences = differencesOf(first.tree, second.tree);
        text += differencesSection(differences);
        data += differencesJson(differences);
    }
    return finished(text, data + "}", {{&first, "A"}, {&second, "B"}});
}

} // namespace page
