// The path of a finding, step by step: "CellGroupConfig.list[1: identity 4].member".
#pragma once

#include "rtxType.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool
{

struct FindingStep
{
    std::string_view text; // a name, or what stands between the brackets of an element
    bool isElement;
};

// The text lives as long as the steps are used. Of what is no path whatever can be read.
std::vector<FindingStep> findingSteps(std::string_view path);

// The same path with nothing but indices in its brackets, as flat lines have it.
std::string plainPath(std::string_view path);

// The number of a sequence's member or a choice's alternative.
std::optional<std::uint32_t> memberNumber(const RtxType& type, std::string_view name);

// The numbers of the members and elements on the way: places sort by them as they stand in the tree. As far as the
// schema has the path.
std::vector<std::uint32_t> placeOrder(const RtxType& root, std::string_view path);

// Whether a pattern names the place or one around it. A step of the pattern may have '*' and '?'; "**" stands for any
// steps; what stands in brackets is an element's index or its identity, "[4]" or "[logicalChannelIdentity 4]"; without
// brackets any element is meant.
bool isNamedBy(std::string_view path, std::string_view pattern);

} // namespace tool
