#include "captureReader.h"

#include <pcap/pcap.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <memory>

namespace tool
{
namespace
{

// What libpcap reads instead of a file: it closes the stream that it is given, while the caller's is not ours to close.
struct Source
{
    std::span<const std::uint8_t> begin;
    std::FILE* rest;
};

ssize_t readSource(void* cookie, char* buffer, std::size_t size)
{
    auto& source = *static_cast<Source*>(cookie);
    if (!source.begin.empty())
    {
        const std::size_t count = std::min(size, source.begin.size());
        std::memcpy(buffer, source.begin.data(), count);
        source.begin = source.begin.subspan(count);
        return static_cast<ssize_t>(count);
    }
    if (source.rest == nullptr)
    {
        return 0;
    }
    const std::size_t count = std::fread(buffer, 1, size, source.rest);
    return count == 0 && std::ferror(source.rest) != 0 ? -1 : static_cast<ssize_t>(count);
}

struct CloseCapture
{
    void operator()(pcap_t* capture) const
    {
        pcap_close(capture);
    }
};

using Capture = std::unique_ptr<pcap_t, CloseCapture>;

// Null when it is no capture, and then `error` says why.
Capture openCapture(Source& source, std::string& error)
{
    std::FILE* const stream = fopencookie(&source, "r", {readSource, nullptr, nullptr, nullptr});
    if (stream == nullptr)
    {
        error = std::strerror(errno);
        return nullptr;
    }
    std::array<char, PCAP_ERRBUF_SIZE> text{};
    Capture capture(pcap_fopen_offline_with_tstamp_precision(stream, PCAP_TSTAMP_PRECISION_NANO, text.data()));
    if (!capture)
    {
        error = text.data();
        (void)std::fclose(stream);
    }
    return capture;
}

// The precision asked for has nanoseconds in the field of microseconds. A file may hold any 32 bits there, which
// libpcap reads as signed.
Packet packetOf(std::uint64_t number, pcap_t* capture, const pcap_pkthdr& header, const unsigned char* octets)
{
    constexpr std::int64_t second = 1'000'000'000;
    std::int64_t seconds = header.ts.tv_sec + header.ts.tv_usec / second;
    std::int64_t nanoseconds = header.ts.tv_usec % second;
    if (nanoseconds < 0)
    {
        nanoseconds += second;
        --seconds;
    }
    return {number,
            seconds,
            static_cast<std::uint32_t>(nanoseconds),
            pcap_datalink(capture),
            header.len,
            {octets, header.caplen}};
}

bool beginsWith(std::span<const std::uint8_t> octets, std::array<std::uint8_t, 4> magic)
{
    return octets.size() >= magic.size() && std::equal(magic.begin(), magic.end(), octets.begin());
}

// The magic as either byte order writes it.
bool beginsWithEither(std::span<const std::uint8_t> octets, std::array<std::uint8_t, 4> magic)
{
    return beginsWith(octets, magic) || beginsWith(octets, {magic[3], magic[2], magic[1], magic[0]});
}

} // namespace

bool isCapture(std::span<const std::uint8_t> begin)
{
    if (beginsWith(begin, {0x0A, 0x0D, 0x0D, 0x0A}))
    {
        return begin.size() >= 12 && beginsWithEither(begin.subspan(8), {0x1A, 0x2B, 0x3C, 0x4D});
    }
    // Microseconds, nanoseconds, and two old forms that libpcap reads, too.
    constexpr std::array<std::array<std::uint8_t, 4>, 4> magics{
        {{0xA1, 0xB2, 0xC3, 0xD4}, {0xA1, 0xB2, 0x3C, 0x4D}, {0xA1, 0xB2, 0xCD, 0x34}, {0xA1, 0x2B, 0x3C, 0x4D}}};
    return std::any_of(magics.begin(), magics.end(), [&](auto magic) { return beginsWithEither(begin, magic); });
}

std::optional<std::string> readCapture(std::span<const std::uint8_t> begin, std::FILE* rest,
                                       const PacketVisitor& visitor)
{
    Source source{begin, rest};
    std::string error;
    const Capture capture = openCapture(source, error);
    if (!capture)
    {
        return "header of the capture: " + error;
    }
    for (std::uint64_t number = 1;; ++number)
    {
        pcap_pkthdr* header = nullptr;
        const unsigned char* octets = nullptr;
        const int status = pcap_next_ex(capture.get(), &header, &octets);
        if (status == PCAP_ERROR_BREAK) // the end of the file
        {
            return std::nullopt;
        }
        if (status != 1)
        {
            return "packet " + std::to_string(number) + ": " + pcap_geterr(capture.get());
        }
        visitor(packetOf(number, capture.get(), *header, octets));
    }
}

} // namespace tool
