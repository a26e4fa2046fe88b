#include "pcapngWriter.h"

#include <utility>

namespace tool
{
namespace
{

using Octets = std::vector<std::uint8_t>;

void putLittleEndian(Octets& octets, std::uint64_t value, unsigned width)
{
    for (unsigned i = 0; i < width; ++i)
    {
        octets.push_back(static_cast<std::uint8_t>(value >> 8 * i));
    }
}

void put16(Octets& octets, std::size_t value)
{
    putLittleEndian(octets, value, 2);
}

void put32(Octets& octets, std::size_t value)
{
    putLittleEndian(octets, value, 4);
}

// All that pcapng and the exported PDU hold begins at a multiple of four octets.
constexpr std::size_t padded(std::size_t count)
{
    return (count + 3) / 4 * 4;
}

template <typename Range>
void putPadded(Octets& octets, const Range& range)
{
    octets.insert(octets.end(), range.begin(), range.end());
    octets.resize(octets.size() + padded(range.size()) - range.size());
}

void putBlock(Octets& file, std::uint32_t type, const Octets& body)
{
    const std::size_t length = body.size() + 12;
    put32(file, type);
    put32(file, length);
    file.insert(file.end(), body.begin(), body.end());
    put32(file, length);
}

void putSectionHeader(Octets& file)
{
    Octets body;
    put32(body, 0x1A2B3C4D); // byte-order magic
    put16(body, 1);          // version 1.0
    put16(body, 0);
    putLittleEndian(body, ~std::uint64_t{0}, 8); // the section's length is not told
    putBlock(file, 0x0A0D0D0A, body);
}

void putInterface(Octets& file)
{
    Octets body;
    put16(body, 252); // LINKTYPE_WIRESHARK_UPPER_PDU
    put16(body, 0);
    put32(body, 0); // packets are never cut
    putBlock(file, 1, body);
}

// The message behind the tags, in network byte order, that say who dissects it.
Octets exportedPdu(const Pdu& pdu)
{
    constexpr std::uint8_t dissectorName = 12;
    const auto nameLength = static_cast<std::uint8_t>(padded(pdu.dissector.size()));
    Octets octets{0, dissectorName, 0, nameLength};
    putPadded(octets, pdu.dissector);
    octets.insert(octets.end(), 4, 0); // end of tags
    octets.insert(octets.end(), pdu.octets.begin(), pdu.octets.end());
    return octets;
}

void putPacket(Octets& file, const Octets& packet, std::string_view comment)
{
    Octets body;
    put32(body, 0); // interface
    put32(body, 0); // time
    put32(body, 0);
    put32(body, packet.size());
    put32(body, packet.size());
    putPadded(body, packet);
    if (!comment.empty())
    {
        put16(body, 1); // opt_comment
        put16(body, comment.size());
        putPadded(body, comment);
        put32(body, 0); // opt_endofopt
    }
    putBlock(file, 6, body);
}

} // namespace

PcapngWriter::PcapngWriter()
{
    putSectionHeader(file_);
    putInterface(file_);
}

std::optional<std::string> PcapngWriter::add(std::span<const std::uint8_t> cellGroup, Nesting nesting,
                                             std::string_view comment)
{
    if (comment.size() > maxComment)
    {
        return "a comment of " + std::to_string(comment.size()) + " octets; at most " + std::to_string(maxComment) +
               " are possible";
    }
    const std::optional<Pdu> pdu = nestCellGroup(cellGroup, nesting);
    if (!pdu)
    {
        return "a cell group of " + std::to_string(cellGroup.size()) + " octets; at most " +
               std::to_string(maxCellGroupOctets) + " are possible";
    }
    putPacket(file_, exportedPdu(*pdu), comment);
    return std::nullopt;
}

std::vector<std::uint8_t> PcapngWriter::take()
{
    return std::exchange(file_, {});
}

} // namespace tool
