#include "nodes.h"

#include "html.h"
#include "rtxWalk.h"
#include "whileMemory.h"

#include <algorithm>
#include <functional>

namespace page
{
namespace
{

std::string indexName(std::uint32_t index)
{
    return "[" + std::to_string(index) + "]";
}

// What a writer of the runtime puts out.
template <typename Put>
std::string textOf(const Put& put)
{
    struct
    {
        std::string text;
        text::Sinks sinks;
    } told;
    const auto sink = [](void* arg, const char* piece)
    {
        auto& to = *static_cast<decltype(told)*>(arg);
        (void)to.sinks.run(
            [&]
            {
                to.text += piece;
                return 0;
            });
    };
    rtx::Output out(sink, &told);
    put(out);
    out.put('\n'); // hands over what is left
    told.sinks.finish();
    told.text.pop_back();
    return std::move(told.text);
}

// A writer as that of JER, which makes nodes.
class NodeWriter
{
public:
    explicit NodeWriter(std::vector<Node>& nodes) : nodes_(nodes) {}

    void stopped(const OSCTXT& ctxt, const RtxType&)
    {
        error_ = rtx::ErrorText(ctxt).text;
    }

    void begin(const RtxPathStep& step)
    {
        enter(add(step.name != nullptr ? step.name : indexName(step.index)));
    }

    void end()
    {
        close();
    }

    void at(const RtxType& type, const void* value)
    {
        node().type = &type;
        node().value = value;
    }

    void boolean(OSBOOL value)
    {
        node().literal = value != 0 ? "true" : "false";
    }

    void null()
    {
        node().literal = "null";
    }

    void integer(const RtxType&, std::int64_t value, const rtx::Reason&)
    {
        node().literal = std::to_string(value);
    }

    void enumerated(const RtxType& type, std::uint32_t value, const rtx::Reason& wrong)
    {
        if (wrong.status != RTX_OK)
        {
            invalid(rtx::ReasonText(wrong).text);
            return;
        }
        node().literal = jsonString(type.names[value]);
    }

    void bits(const OSOCTET* data, std::uint32_t count, const rtx::Reason& wrong)
    {
        if (wrong.status == RTX_OK)
        {
            node().literal = jsonString(textOf([&](rtx::Output& out) { out.octets(data, count); }));
            return;
        }
        const std::string text = textOf(
            [&](rtx::Output& out)
            {
                out.put(rtx::ReasonText(wrong).text);
                out.put(": '");
                out.binary(data, count);
                out.put("'B");
            });
        invalid(text.c_str());
    }

    void open(const RtxType&)
    {
        openObject();
    }

    void close(const RtxType&) {}

    void openList(const RtxType&, std::uint32_t, const rtx::Reason& wrong)
    {
        node().kind = NodeKind::Array;
        if (wrong.status != RTX_OK)
        {
            broken(rtx::ReasonText(wrong).text);
        }
    }

    void closeList(const RtxType&) {}

    void unknownAlternative(const RtxType& type, std::uint32_t tag, const rtx::Reason& wrong, const ASN1OpenType* open,
                            const char* refusal)
    {
        if (refusal != nullptr)
        {
            invalid((std::string(rtx::ReasonText(wrong).text) + "; unknown alternative: " + refusal).c_str());
            return;
        }
        node().kind = NodeKind::Object;
        octets("$unknownAlternative", rtx::extensionIndex(type, tag), *open);
    }

    void invalid(const char* text)
    {
        node().kind = NodeKind::Object;
        leaf("$invalid", jsonString(text));
    }

    // All that was not read of a node stands in one array.
    void notRead(const char* name)
    {
        if (open_.empty())
        {
            begin(rtx::named("CellGroupConfig"));
            openObject();
            notRead(name);
            close();
            return;
        }
        if (!open_.back().isNotRead)
        {
            enter(add("$notRead", NodeKind::Array));
            open_.back().isNotRead = true;
        }
        leaf(element(), jsonString(name));
    }

    void notReadElements(const char* text)
    {
        enter(add(element(), NodeKind::Object));
        notRead(text);
        close();
    }

    bool unsent(const RtxPathStep&)
    {
        return false;
    }

    void openUnknown(std::uint32_t)
    {
        enter(add("$unknownAdditions", NodeKind::Array));
    }

    void closeUnknown()
    {
        close();
    }

    void unknown(const RtxType& type, std::uint32_t index, const ASN1OpenType& open)
    {
        octets(element(), type.additionCount + index, open);
    }

    void broken(const char* text)
    {
        enter(add(element(), NodeKind::Object));
        leaf("$invalid", jsonString(text));
        close();
    }

    void remark(const char*) {}

private:
    struct Open
    {
        std::uint32_t node;
        std::uint32_t children = 0;
        bool isNotRead = false; // it is the array of what was not read of the node around it
    };

    Node& node()
    {
        return nodes_[open_.back().node];
    }

    // A node below the present one.
    std::uint32_t add(std::string name, NodeKind kind = NodeKind::Leaf)
    {
        const auto number = static_cast<std::uint32_t>(nodes_.size());
        Node made;
        made.name = std::move(name);
        made.kind = kind;
        made.end = number + 1;
        if (!open_.empty())
        {
            made.parent = open_.back().node;
            ++open_.back().children;
        }
        nodes_.push_back(std::move(made));
        return number;
    }

    void enter(std::uint32_t number)
    {
        open_.push_back({number});
    }

    void leave()
    {
        node().end = static_cast<std::uint32_t>(nodes_.size());
        open_.pop_back();
    }

    void close()
    {
        if (open_.back().isNotRead)
        {
            leave();
        }
        leave();
    }

    void openObject()
    {
        node().kind = NodeKind::Object;
        if (!error_.empty())
        {
            leaf("$error", jsonString(error_));
            error_.clear();
        }
    }

    // The name of the next element of the present node.
    std::string element() const
    {
        return indexName(open_.back().children);
    }

    void leaf(std::string name, std::string literal)
    {
        nodes_[add(std::move(name))].literal = std::move(literal);
    }

    void octets(std::string name, std::uint32_t index, const ASN1OpenType& open)
    {
        const std::uint32_t number = add(std::move(name), NodeKind::Object);
        nodes_[number].value = &open;
        enter(number);
        leaf("index", std::to_string(index));
        leaf("octets", jsonString(textOf([&](rtx::Output& out) { out.octets(open); })));
        leave();
    }

    std::vector<Node>& nodes_;
    std::vector<Open> open_;
    std::string error_; // to be told in the first object
};

} // namespace

Tree::Tree(std::span<const std::uint8_t> octets)
    : octets_(octets.begin(), octets.end()), size_(octets.size()), value_(), error_(), decoded_()
{
    octets_.reserve(1); // an empty message has an address, too
    (void)pu_setBuffer(&context_, octets_.data(), size_, 0);
    struct
    {
        Fields fields;
        text::Sinks sinks;
    } traced;
    const auto sink = [](void* arg, const RtxField* field)
    {
        auto& to = *static_cast<decltype(traced)*>(arg);
        (void)to.sinks.run(
            [&]
            {
                to.fields.add(*field);
                return 0;
            });
    };
    (void)rtxTrace(&context_, asn1Type_CellGroupConfig(), &value_, 0, sink, &traced);
    traced.sinks.finish();
    const Fields& fields = traced.fields;
    error_ = context_.error;
    decoded_ = context_.decoded;
    NodeWriter writer(nodes_);
    (void)rtx::Walk(&context_, writer).run(*asn1Type_CellGroupConfig(), "CellGroupConfig", &value_);
    note_ = fields.note();
    rtxErrReset(&context_);
    number();
    place(fields);
}

bool Tree::Address::operator<(const Address& other) const
{
    return value != other.value ? std::less<>()(value, other.value) : std::less<>()(type, other.type);
}

void Tree::number()
{
    for (std::uint32_t i = 0; i < nodes_.size(); ++i)
    {
        if (nodes_[i].value != nullptr)
        {
            addresses_.push_back({nodes_[i].value, nodes_[i].type, i});
        }
    }
    std::sort(addresses_.begin(), addresses_.end());
}

void Tree::cover(std::uint32_t node, const Bits& bits)
{
    Node& covered = nodes_[node];
    if (!covered.isPlaced)
    {
        covered.isPlaced = true;
        covered.bits = bits;
        return;
    }
    const std::uint64_t end = std::max(covered.bits.first + covered.bits.count, bits.first + bits.count);
    covered.bits.count = end - covered.bits.first;
}

// Gives each node the bits of the fields at and below its path. Fields come in the order of the nodes.
void Tree::place(const Fields& fields)
{
    std::vector<std::uint32_t> next(nodes_.size(), 0); // of each node, where the search for a child goes on
    std::vector<std::uint32_t> open{0};                // the nodes of the present path; 0 for a step without one
    const auto child = [&](std::uint32_t parent, const RtxPathStep& step) -> std::uint32_t
    {
        const std::string name = step.name != nullptr ? step.name : indexName(step.index);
        for (std::uint32_t i = std::max(next[parent], parent + 1); i < nodes_[parent].end; i = nodes_[i].end)
        {
            if (nodes_[i].name == name)
            {
                next[parent] = i;
                return i;
            }
        }
        return 0;
    };
    for (const Fields::Field& field : fields.all())
    {
        const bool isWhole = field.kept + field.count == 0;
        if (field.kind == RTX_FIELD_SURPLUS || field.kind == RTX_FIELD_UNREAD ||
            (field.kind == RTX_FIELD_PADDING && isWhole))
        {
            stretches_.push_back({field.bits, field.kind == RTX_FIELD_SURPLUS  ? "behind the message"
                                              : field.kind == RTX_FIELD_UNREAD ? "not read"
                                                                               : "padding"});
            continue;
        }
        open.resize(field.kept + 1);
        for (const RtxPathStep& step : std::span(fields.steps() + field.first, field.count))
        {
            const bool isLost = open.back() == 0 && open.size() > 1;
            open.push_back(isLost ? 0 : child(open.back(), step));
        }
        cover(0, field.bits);
        for (const std::uint32_t node : open)
        {
            if (node != 0)
            {
                cover(node, field.bits);
            }
        }
        if (field.kind == RTX_FIELD_UNKNOWN)
        {
            placeUnknown(field, open.back());
        }
    }
}

// The octets of an unknown addition or alternative have a node below that of their path, an addition's in an array.
void Tree::placeUnknown(const Fields::Field& field, std::uint32_t owner)
{
    const std::uint32_t node = find(nullptr, field.value);
    if (node == 0)
    {
        return;
    }
    if (nodes_[node].parent != owner)
    {
        cover(nodes_[node].parent, field.bits);
    }
    cover(node, field.bits);
    cover(nodes_[node].end - 1, field.bits);
}

std::string Tree::path(std::uint32_t node) const
{
    if (node == 0)
    {
        return nodes_[0].name;
    }
    const std::string& name = nodes_[node].name;
    return path(nodes_[node].parent) + (name.starts_with('[') ? "" : ".") + name;
}

std::uint32_t Tree::find(std::span<const Step>& steps) const
{
    std::uint32_t at = 0;
    while (!steps.empty())
    {
        const Step& step = steps.front();
        const std::string name = step.name.empty() ? indexName(step.index) : std::string(step.name);
        std::uint32_t below = at + 1;
        while (below < nodes_[at].end && nodes_[below].name != name)
        {
            below = nodes_[below].end;
        }
        if (below >= nodes_[at].end)
        {
            return at;
        }
        at = below;
        steps = steps.subspan(1);
    }
    return at;
}

std::uint32_t Tree::find(const RtxType* type, const void* value) const
{
    const auto found = std::lower_bound(addresses_.begin(), addresses_.end(), Address{value, type, 0});
    return found != addresses_.end() && found->value == value && found->type == type ? found->node : 0;
}

std::vector<Step> stepsOf(const RtxError& error)
{
    std::vector<Step> steps;
    const bool isWhole = error.depth <= RTX_MAX_DEPTH;                              // else the outer steps are left out
    for (OSUINT32 i = isWhole && error.depth != 0 ? error.depth - 1 : 0; i-- != 0;) // the first one is the whole
    {
        const RtxPathStep& step = error.path[i];
        if (step.group == 0)
        {
            steps.push_back({step.name == nullptr ? std::string_view() : step.name, step.index});
        }
    }
    return steps;
}

} // namespace page
