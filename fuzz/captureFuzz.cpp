// Reads any input as a capture, in one piece and in two, whole and cut. What it holds is written as cell groups, and
// read back.
#include "captureReader.h"
#include "pcapngWriter.h"

#include <algorithm>
#include <memory>

#include "require.h"

using fuzz::require;

namespace
{

using Octets = std::vector<std::uint8_t>;

struct Read
{
    std::vector<Octets> packets;
    std::string error;

    bool operator==(const Read&) const = default;
};

Read read(std::span<const std::uint8_t> begin, std::FILE* rest)
{
    Read result;
    const auto error =
        tool::readCapture(begin, rest,
                          [&](const tool::Packet& packet)
                          {
                              result.packets.emplace_back(packet.octets.begin(), packet.octets.end());
                              require(packet.number == result.packets.size(), "packets are not counted");
                              require(packet.nanoseconds < 1'000'000'000, "more nanoseconds than a second has");
                          });
    require(!error || !error->empty(), "an error without words");
    result.error = error.value_or("");
    return result;
}

void checkError(const Read& result, std::span<const std::uint8_t> input)
{
    const bool inHeader = result.error.starts_with("header of the capture: ");
    require(inHeader || tool::isCapture(input), "what is no capture has been read");
    require(!inHeader || result.packets.empty(), "packets before the header");
    require(result.error.empty() || inHeader ||
                result.error.starts_with("packet " + std::to_string(result.packets.size() + 1) + ": "),
            "the error does not say which packet");
}

void checkInTwo(const Read& result, std::span<const std::uint8_t> input)
{
    Octets rest(input.begin() + static_cast<std::ptrdiff_t>(input.size() / 2), input.end());
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(fmemopen(rest.data(), rest.size(), "r"), std::fclose);
    require(stream != nullptr, "no stream");
    require(read(input.first(input.size() / 2), stream.get()) == result, "in two pieces it is another capture");
}

void checkCut(const Read& result, std::span<const std::uint8_t> input)
{
    const Read cut = read(input.first(input.size() * 3 / 4), nullptr);
    require(cut.packets.size() <= result.packets.size() &&
                std::equal(cut.packets.begin(), cut.packets.end(), result.packets.begin()),
            "a cut capture has other packets");
}

void checkWritten(const Read& result, tool::Nesting nesting)
{
    tool::PcapngWriter writer;
    std::size_t count = 0;
    for (const Octets& packet : result.packets)
    {
        const bool fits = packet.size() <= tool::maxCellGroupOctets;
        require(fits == !writer.add(packet, nesting, result.error), "a cell group is wrongly refused or taken");
        count += fits ? 1 : 0;
    }
    const Read again = read(writer.file(), nullptr);
    require(again.error.empty() && again.packets.size() == count, "what was written is not read");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::span<const std::uint8_t> input(data, size);
    const Read result = read(input, nullptr);
    std::size_t octets = 0;
    for (const Octets& packet : result.packets)
    {
        octets += packet.size();
    }
    require(octets <= size, "more octets than there are");

    checkError(result, input);
    checkInTwo(result, input);
    checkCut(result, input);
    for (const auto nesting : {tool::Nesting::Bare, tool::Nesting::RrcReconfiguration, tool::Nesting::RrcSetup})
    {
        checkWritten(result, nesting);
    }
    return 0;
}
