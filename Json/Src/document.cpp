#include "document.h"

#include "files.h"
#include "jsonEvents.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace text
{

namespace
{

constexpr unsigned mostDepth = 64;      // of objects and arrays
constexpr unsigned mostMembers = 250;   // of an object
constexpr unsigned mostIncludes = 8;    // of files in files
constexpr std::size_t mostFiles = 1000; // altogether
constexpr const char* includeName = "$include";

Node* memberNamed(const Node& object, std::string_view name)
{
    Node* node = object.first;
    while (node != nullptr && node->name != name)
    {
        node = node->next;
    }
    return node;
}

void append(Node& parent, Node& child)
{
    child.next = nullptr;
    (parent.first == nullptr ? parent.first : parent.last->next) = &child;
    parent.last = &child;
    ++parent.count;
}

// Takes out the members that `drop` says.
template <typename Drop>
void removeIf(Node& object, const Drop& drop)
{
    Node* next = std::exchange(object.first, nullptr);
    object.last = nullptr;
    object.count = 0;
    while (next != nullptr)
    {
        Node& child = *next;
        next = child.next;
        if (!drop(child))
        {
            append(object, child);
        }
    }
}

std::string pathOf(const std::string& path, const Node& member)
{
    return path.empty() ? std::string(member.name) : path + '.' + std::string(member.name);
}

} // namespace

// Takes the events of a JSON text.
class NodeBuilder
{
public:
    NodeBuilder(Document& document, std::uint16_t source) : document_(document), source_(source) {}

    Node* root() const
    {
        return root_;
    }

    void beginObject(std::size_t offset)
    {
        open(offset, Node::Kind::object);
    }

    void beginArray(std::size_t offset)
    {
        open(offset, Node::Kind::array);
    }

    void endObject()
    {
        open_.pop_back();
    }

    void endArray()
    {
        open_.pop_back();
    }

    void member(std::size_t offset, std::string_view name)
    {
        named_ = static_cast<std::uint32_t>(offset);
        name_ = document_.keep(name, source_, offset + 1);
    }

    void scalar(std::size_t offset, const Scalar& scalar)
    {
        Node* const node = add(offset, Node::Kind::scalar);
        if (node != nullptr)
        {
            const bool quoted = (scalar.forms & stringForm) != 0;
            node->forms = static_cast<std::uint8_t>(scalar.forms);
            node->text = document_.keep(scalar.text, source_, offset + (quoted ? 1 : 0));
        }
    }

    std::string path() const
    {
        std::string path;
        for (std::size_t i = 0; i + 1 < open_.size(); ++i)
        {
            extend(path, *open_[i], *open_[i]->last);
        }
        return path;
    }

private:
    static void extend(std::string& path, const Node& parent, const Node& child)
    {
        path = parent.kind == Node::Kind::object ? pathOf(path, child)
                                                 : path + '[' + std::to_string(parent.count - 1) + ']';
    }

    Mistakes& mistakes()
    {
        return document_.sources_[source_].mistakes;
    }

    void stop(std::size_t offset, std::string words)
    {
        mistakes().add(offset, path(), std::move(words));
        mistakes().stop();
    }

    void open(std::size_t offset, Node::Kind kind)
    {
        Node* const node = add(offset, kind);
        if (node == nullptr)
        {
            return;
        }
        if (open_.size() == mostDepth)
        {
            stop(offset, "deeper than " + std::to_string(mostDepth) + " objects and arrays");
            return;
        }
        open_.push_back(node);
    }

    Node* add(std::size_t offset, Node::Kind kind)
    {
        if (document_.nodes_.size() == document_.mostValues_)
        {
            stop(offset, "more than " + std::to_string(document_.mostValues_) + " values");
            return nullptr;
        }
        Node* const node = document_.add(kind, source_, offset);
        if (open_.empty())
        {
            root_ = node;
            return node;
        }
        Node& parent = *open_.back();
        if (parent.kind == Node::Kind::object)
        {
            if (parent.count == mostMembers)
            {
                stop(named_, "more than " + std::to_string(mostMembers) + " members");
                return nullptr;
            }
            node->name = name_;
            node->named = named_;
        }
        append(parent, *node);
        return node;
    }

    Document& document_;
    std::uint16_t source_;
    Node* root_ = nullptr;
    std::vector<Node*> open_;
    std::string_view name_; // of the member that comes next
    std::uint32_t named_ = 0;
};

Document::Document(std::size_t mostValues, bool mayInclude) : mostValues_(mostValues), mayInclude_(mayInclude) {}

const Node* Document::read(std::string_view text, std::string file)
{
    return load(text, std::move(file), {}, 0);
}

void Document::mistake(const Node& node, std::string path, std::string words)
{
    sources_[node.source].mistakes.add(node.offset, std::move(path), std::move(words));
}

void Document::mistakeOfName(const Node& member, std::string path, std::string words)
{
    sources_[member.source].mistakes.add(member.named, std::move(path), std::move(words));
}

void Document::unread(const Node& member, std::string path, std::string words)
{
    sources_[member.source].unread.add(member.named, std::move(path), std::move(words));
}

Node* Document::add(Node::Kind kind, std::uint16_t source, std::size_t offset)
{
    Node& node = nodes_.emplace_back();
    node.kind = kind;
    node.source = source;
    node.offset = static_cast<std::uint32_t>(offset);
    return &node;
}

// A piece of a source's text, or of a copy where escapes have been read.
std::string_view Document::keep(std::string_view text, std::uint16_t source, std::size_t offset)
{
    const std::string_view all = sources_[source].text;
    const std::string_view there = all.substr(std::min(offset, all.size()), text.size());
    if (there == text)
    {
        return there;
    }
    strings_.emplace_back(text);
    return strings_.back();
}

Node* Document::load(std::string_view text, std::string file, std::string owned, unsigned depth)
{
    Source& source = sources_.emplace_back();
    source.file = std::move(file);
    source.owned = std::move(owned);
    source.text = depth == 0 ? text : std::string_view(source.owned);
    octets_ += source.text.size();
    if (octets_ > ASN1_MAX_TEXT)
    {
        source.mistakes.add(0, "", "more than " + std::to_string(ASN1_MAX_TEXT) + " octets of text");
        return nullptr;
    }
    NodeBuilder builder(*this, static_cast<std::uint16_t>(sources_.size() - 1));
    JsonEvents(source.text, builder, source.mistakes).read();
    if (!source.mistakes.none() || builder.root() == nullptr)
    {
        return nullptr;
    }
    std::string path;
    resolve(*builder.root(), path, depth);
    return builder.root();
}

// Replaces the "$include" of all objects in a value by what it stands for.
void Document::resolve(Node& node, std::string& path, unsigned depth)
{
    const std::size_t length = path.size();
    std::uint32_t index = 0;
    for (Node* child = node.first; child != nullptr; child = child->next)
    {
        path = node.kind == Node::Kind::object ? pathOf(path, *child) : path + '[' + std::to_string(index++) + ']';
        resolve(*child, path, depth);
        path.resize(length);
    }
    const Node* const at = node.kind == Node::Kind::object ? memberNamed(node, includeName) : nullptr;
    if (at == nullptr)
    {
        return;
    }
    for (const Node* one = node.first; one != nullptr; one = one->next)
    {
        if (memberNamed(node, one->name) != one)
        {
            mistakeOfName(*one, pathOf(path, *one), "given twice");
        }
    }
    Node* const base = include(*at, path, depth);
    removeIf(node, [](const Node& member) { return member.name == includeName; });
    if (base != nullptr)
    {
        merge(*base, node);
        node.first = base->first;
        node.last = base->last;
        node.count = base->count;
    }
}

Node* Document::include(const Node& at, const std::string& path, unsigned depth)
{
    const auto refuse = [&](std::string words)
    {
        mistake(at, path, std::move(words));
        return nullptr;
    };
    if (at.kind != Node::Kind::scalar || (at.forms & stringForm) == 0)
    {
        return refuse("expected the name of a file");
    }
    if (!mayInclude_)
    {
        return refuse("no file is included here");
    }
    if (depth == mostIncludes || sources_.size() == mostFiles)
    {
        return refuse(depth == mostIncludes ? "files in files deeper than " + std::to_string(mostIncludes)
                                            : "more than " + std::to_string(mostFiles) + " files");
    }
    const std::string name = besideFile(sources_[at.source].file, at.text);
    std::string owned;
    std::string why;
    if (!readFile(name, owned, why))
    {
        return refuse("cannot read " + text::quoted(name) + why);
    }
    Node* const base = load({}, name, std::move(owned), depth + 1);
    if (base != nullptr && base->kind != Node::Kind::object)
    {
        return refuse(text::quoted(name) + " has no object");
    }
    return base;
}

// RFC 7396: a member that is null goes, an object is merged, all else is replaced.
void Document::merge(Node& base, Node& patch) const
{
    Node* next = patch.first;
    while (next != nullptr)
    {
        Node& member = *next;
        next = member.next;
        Node* const before = memberNamed(base, member.name);
        if (before != nullptr && before->kind == Node::Kind::object && member.kind == Node::Kind::object)
        {
            merge(*before, member);
            continue;
        }
        removeIf(base, [&](const Node& one) { return one.name == member.name; });
        if (!member.isNull())
        {
            append(base, member);
        }
    }
}

} // namespace text
