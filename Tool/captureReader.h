// Packets of a capture file, read with libpcap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace tool
{

struct Packet
{
    std::uint64_t number;                 // from 1
    std::int64_t seconds;                 // since 1970, UTC
    std::uint32_t nanoseconds;            // below 1,000,000,000
    int linkType;                         // libpcap's DLT_
    std::size_t length;                   // in octets; more than there are when the packet was cut as it was captured
    std::span<const std::uint8_t> octets; // valid until the visitor returns
};

using PacketVisitor = std::function<void(const Packet&)>;

// Whether a file that begins with these octets is a capture: pcap or pcapng of either byte order. Twelve octets are
// enough to know.
bool isCapture(std::span<const std::uint8_t> begin);

// Gives the visitor every packet of the capture that consists of `begin` and of what can still be read from `rest`,
// null for no more. `rest` stays open. What the visitor throws is passed on.
//
// Nothing, or why reading ended early, with the number of the packet that could not be read; all packets before it have
// been given. Beside what the format forbids, libpcap refuses
// - a packet of more than 262,144 octets (USBPcap 1 MiB, EBHSCR 8 MiB, D-Bus 128 MiB) and a pcapng block of more than
//   16 MiB (D-Bus 129 MiB): memory never exceeds what such a packet or block takes;
// - interfaces of different link types or snapshot lengths and sections of different byte orders in one pcapng file.
std::optional<std::string> readCapture(std::span<const std::uint8_t> begin, std::FILE* rest,
                                       const PacketVisitor& visitor);

} // namespace tool
