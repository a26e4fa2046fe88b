// A message as the nodes of its JER, in their order, each with the bits that it takes.
#pragma once

#include "NR-RRC-Definitions.h"
#include "fields.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace page
{

enum class NodeKind : std::uint8_t
{
    Leaf,
    Object,
    Array,
};

struct Node
{
    std::string name; // a member's; of an element its index: "[3]"
    NodeKind kind = NodeKind::Leaf;
    std::string literal;           // of a leaf, in JSON
    const RtxType* type = nullptr; // null of what is no value of the schema
    const void* value = nullptr;
    std::uint32_t parent = 0;
    std::uint32_t end = 0; // behind the last node below it
    bool isPlaced = false; // the decoder has come to it: it has bits, perhaps none
    Bits bits;
};

// Is freed whatever ends its owner, a constructor without memory, too.
struct OwnContext : OSCTXT
{
    OwnContext()
    {
        rtxInitContext(this);
    }
    ~OwnContext()
    {
        rtFreeContext(this);
    }
    OwnContext(const OwnContext&) = delete;
    OwnContext& operator=(const OwnContext&) = delete;
};

// Bits that are no node's.
struct Stretch
{
    Bits bits;
    const char* words; // "padding"
};

// One step of a path, from the outermost on.
struct Step
{
    std::string_view name; // empty: an element
    std::uint32_t index = 0;
};

class Tree
{
public:
    // Decodes the octets; what it points to lives as long as it does.
    explicit Tree(std::span<const std::uint8_t> octets);
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    OSCTXT& context() const
    {
        return context_;
    }
    const CellGroupConfig& value() const
    {
        return value_;
    }
    // Why the octets could not be decoded, or null.
    const RtxError* error() const
    {
        return error_.status == RTX_OK ? nullptr : &error_;
    }
    const RtxDecoded& decoded() const
    {
        return decoded_;
    }
    std::span<const std::uint8_t> octets() const
    {
        return {octets_.data(), size_};
    }
    // The first one is the whole; never empty.
    const std::vector<Node>& nodes() const
    {
        return nodes_;
    }
    const std::vector<Stretch>& stretches() const
    {
        return stretches_;
    }
    // Where and how the message is encoded in another way than this library would, in words; empty: nowhere.
    const std::string& note() const
    {
        return note_;
    }

    // The path of a node: "CellGroupConfig.rlc-BearerToAddModList[0]".
    std::string path(std::uint32_t node) const;
    // The node at the end of a path from the whole on, or the last one on the way; `steps` then keeps what is left.
    std::uint32_t find(std::span<const Step>& steps) const;
    // The node of a value; 0, the whole, of what has none.
    std::uint32_t find(const RtxType* type, const void* value) const;

private:
    void number();
    void place(const Fields& fields);
    void placeUnknown(const Fields::Field& field, std::uint32_t owner);
    void cover(std::uint32_t node, const Bits& bits);

    std::vector<std::uint8_t> octets_;
    std::size_t size_;
    mutable OwnContext context_;
    CellGroupConfig value_;
    RtxError error_;
    RtxDecoded decoded_;
    std::vector<Node> nodes_;
    std::vector<Stretch> stretches_;
    std::string note_;
    struct Address
    {
        const void* value;
        const RtxType* type;
        std::uint32_t node;

        bool operator<(const Address& other) const;
    };
    std::vector<Address> addresses_; // ascending
};

// The steps of paths that keep the innermost one first, without those of extension groups.
std::vector<Step> stepsOf(const RtxError& error);

} // namespace page
