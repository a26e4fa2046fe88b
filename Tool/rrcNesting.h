// The RRC message that a cell group is carried in (TS 38.331 V15.6.0, 6.2).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tool
{

enum class Nesting
{
    Bare,
    RrcReconfiguration, // DL-DCCH-Message: masterCellGroup, or secondaryCellGroup if its cellGroupId is not 0
    RrcSetup,           // DL-CCCH-Message: masterCellGroup beside the radio bearer SRB1
};

struct Pdu
{
    std::vector<std::uint8_t> octets; // a complete message, unaligned PER
    std::string_view dissector;       // the name of Wireshark's dissector for it
};

// The most octets that one length determinant counts (X.691 11.9.3.7). No encoder of cell groups writes as many.
inline constexpr std::size_t maxCellGroupOctets = 16383;

// The cell group's octets, whatever they are, in the message. Nothing when there are more than maxCellGroupOctets.
std::optional<Pdu> nestCellGroup(std::span<const std::uint8_t> cellGroup, Nesting nesting);

} // namespace tool
