// The fields of a message on the wire.
#pragma once

#include "asn1Runtime.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace page
{

// "CellGroupConfig.ext.[[1]].member" of a field in a message of the type `root`.
std::string fieldPath(std::string_view root, const RtxField& field);

// An RtxNote in words; empty of none.
std::string_view noteWords(unsigned note);

// "<path>: <words> (at bit 47: octet 5, bit 7)" of the note that a field has; empty without one.
std::string noteText(std::string_view root, const RtxField& field);

struct Bits
{
    std::uint64_t first = 0;
    std::uint64_t count = 0;
};

// All fields of a CellGroupConfig, each with the steps by which its path differs from that of the one before. Extension
// groups are no steps.
class Fields
{
public:
    struct Field
    {
        OSUINT8 kind; // RtxFieldKind
        Bits bits;
        const void* value;
        std::uint32_t kept;  // steps of the path before that are this one's, too
        std::uint32_t first; // of those that follow, in steps()
        std::uint32_t count;
    };

    void add(const RtxField& field);

    const std::vector<Field>& all() const
    {
        return fields_;
    }
    const RtxPathStep* steps() const
    {
        return steps_.data();
    }
    // noteText of the first one that has a note.
    const std::string& note() const
    {
        return note_;
    }

private:
    std::vector<Field> fields_;
    std::vector<RtxPathStep> steps_;
    std::vector<RtxPathStep> path_; // of the last field
    std::string note_;
};

} // namespace page
