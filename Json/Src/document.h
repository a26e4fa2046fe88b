// JSON texts as a tree of values that know their places: comments, and objects that begin with what a file has.
#pragma once

#include "mistakes.h"
#include "scalar.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace text
{

struct Source
{
    std::string file;
    std::string owned; // the text of an included file
    std::string_view text;
    Mistakes mistakes;
    Mistakes unread;
};

struct Node
{
    enum class Kind : std::uint8_t
    {
        scalar,
        object,
        array
    };

    Kind kind = Kind::scalar;
    std::uint8_t forms = 0;   // of a scalar
    std::uint16_t source = 0; // which of the document's
    std::uint32_t offset = 0; // in its text
    std::uint32_t named = 0;  // offset of a member's name
    std::uint32_t count = 0;  // of members or elements
    std::string_view name;    // of a member
    std::string_view text;    // of a scalar
    Node* first = nullptr;    // member or element
    Node* last = nullptr;
    Node* next = nullptr;

    bool isNull() const
    {
        return kind == Kind::scalar && forms == nullForm;
    }
};

class Document
{
public:
    Document(std::size_t mostValues, bool mayInclude);

    // Reads a text, includes what it names and merges it (RFC 7396). Null where there is nothing to go on with.
    const Node* read(std::string_view text, std::string file);

    void mistake(const Node& node, std::string path, std::string words);
    void mistakeOfName(const Node& member, std::string path, std::string words);

    // Of a member that no composition reads.
    void unread(const Node& member, std::string path, std::string words);

    // Nothing more is taken of this node's text.
    bool full(const Node& node) const
    {
        return sources_[node.source].mistakes.full();
    }

    std::deque<Source>& sources()
    {
        return sources_;
    }

private:
    friend class NodeBuilder;

    Node* load(std::string_view text, std::string file, std::string owned, unsigned depth);
    Node* include(const Node& at, const std::string& path, unsigned depth);
    void resolve(Node& node, std::string& path, unsigned depth);
    void merge(Node& base, Node& patch) const;

    Node* add(Node::Kind kind, std::uint16_t source, std::size_t offset);
    std::string_view keep(std::string_view text, std::uint16_t source, std::size_t offset);

    std::size_t mostValues_;
    bool mayInclude_;
    std::size_t octets_ = 0; // of all texts
    std::deque<Source> sources_;
    std::deque<Node> nodes_;
    std::deque<std::string> strings_; // that look otherwise in the text
};

} // namespace text
