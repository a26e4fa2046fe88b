// Messages as a pcapng file that Wireshark shows without any setting.
#pragma once

#include "rrcNesting.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tool
{

// One section with one interface, whose packets are exported PDUs. All times are 0: the same messages give the same
// file.
class PcapngWriter
{
public:
    // The most octets of a packet's comment.
    static constexpr std::size_t maxComment = 65535;

    PcapngWriter();

    // Adds a packet with the cell group's octets, whatever they are, nested as told. Wireshark shows the comment,
    // UTF-8, with the packet; an empty one is left out. Nothing, or why no packet was added.
    std::optional<std::string> add(std::span<const std::uint8_t> cellGroup, Nesting nesting,
                                   std::string_view comment = {});

    // The file so far, a complete one at any time.
    const std::vector<std::uint8_t>& file() const
    {
        return file_;
    }

    // The same, handed over: what follows is put behind it. For a file that is written piece by piece.
    std::vector<std::uint8_t> take();

private:
    std::vector<std::uint8_t> file_;
};

} // namespace tool
