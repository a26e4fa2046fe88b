#include "captureReader.h"
#include "pcapngWriter.h"
#include "support/Hex.h"

#include <gmock/gmock.h>

#include <cstring>
#include <memory>
#include <stdexcept>

namespace
{

using Octets = std::vector<std::uint8_t>;
using test::octetsOf;
using testing::StartsWith;
using tool::Nesting;

std::string hexOf(std::span<const std::uint8_t> octets)
{
    return test::hexDigits(octets.data(), octets.size());
}

// ---- RRC messages, put together by hand from the ASN.1 of TS 38.331 V15.6.0, 6.2.2 and 6.3.2

std::string nested(const Octets& cellGroup, Nesting nesting)
{
    const auto pdu = tool::nestCellGroup(cellGroup, nesting);
    return pdu ? std::string(pdu->dissector) + " " + hexOf(pdu->octets) : "refused";
}

TEST(RrcNesting, Bare)
{
    EXPECT_EQ(nested(octetsOf("0040"), Nesting::Bare), "nr-rrc.cellgroupconfig_msg 0040");
}

TEST(RrcNesting, ReconfigurationOfTheMasterCellGroup)
{
    // 0 0000 00 0, 00001, 10000000, length 00000010, 16 bits of the cell group, 3 of padding
    EXPECT_EQ(nested(octetsOf("0000"), Nesting::RrcReconfiguration), "nr-rrc.dl.dcch 000c00100000");
    EXPECT_EQ(nested(octetsOf("ff3f"), Nesting::RrcReconfiguration), "nr-rrc.dl.dcch 000c0017f9f8");
}

TEST(RrcNesting, ReconfigurationOfASecondaryCellGroup)
{
    // 0 0000 00 0, 01000, length 00000010, 16 bits of the cell group, 3 of padding
    EXPECT_EQ(nested(octetsOf("0040"), Nesting::RrcReconfiguration), "nr-rrc.dl.dcch 0040100200");
    EXPECT_EQ(nested(octetsOf("00c0"), Nesting::RrcReconfiguration), "nr-rrc.dl.dcch 0040100600");
}

TEST(RrcNesting, Setup)
{
    // 0 01 00 0 00, 0 10000 0 0 000 00, length 00000010, 16 bits of the cell group, 3 of padding
    EXPECT_EQ(nested(octetsOf("0000"), Nesting::RrcSetup), "nr-rrc.dl.ccch 204000100000");
    EXPECT_EQ(nested(octetsOf("ffff"), Nesting::RrcSetup), "nr-rrc.dl.ccch 20400017fff8");
}

TEST(RrcNesting, LengthsOfEachForm)
{
    EXPECT_EQ(nested({}, Nesting::RrcSetup), "nr-rrc.dl.ccch 20400000");
    EXPECT_EQ(nested({0xFF}, Nesting::RrcReconfiguration), "nr-rrc.dl.dcch 000c000ff8");

    const auto setup = [](std::size_t count)
    {
        return tool::nestCellGroup(Octets(count, 0xFF), Nesting::RrcSetup)->octets;
    };
    Octets expected = octetsOf("2040 03ff");
    expected.insert(expected.end(), 126, 0xFF);
    expected.push_back(0xF8);
    EXPECT_EQ(setup(127), expected);

    expected = octetsOf("2040 040407");
    expected.insert(expected.end(), 127, 0xFF);
    expected.push_back(0xF8);
    EXPECT_EQ(setup(128), expected);

    expected = octetsOf("2040 05ffff");
    expected.insert(expected.end(), 16382, 0xFF);
    expected.push_back(0xF8);
    EXPECT_EQ(setup(16383), expected);
}

TEST(RrcNesting, TooLong)
{
    EXPECT_EQ(tool::maxCellGroupOctets, 16383U);
    for (const Nesting nesting : {Nesting::Bare, Nesting::RrcReconfiguration, Nesting::RrcSetup})
    {
        EXPECT_TRUE(tool::nestCellGroup(Octets(16383), nesting));
        EXPECT_FALSE(tool::nestCellGroup(Octets(16384), nesting));
    }
}

// ---- the writer

const std::string emptyFile = "0a0d0d0a 1c000000 4d3c2b1a 01000000 ffffffffffffffff 1c000000"
                              "01000000 14000000 fc000000 00000000 14000000";

std::string asciiHex(std::string_view text)
{
    return test::hexDigits(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

TEST(PcapngWriter, NoPacket)
{
    EXPECT_EQ(hexOf(tool::PcapngWriter().file()), hexOf(octetsOf(emptyFile)));
}

TEST(PcapngWriter, PacketsOneByOne)
{
    const std::string first = "06000000 58000000 00000000 0000000000000000 26000000 26000000"
                              "000c001c" +
                              asciiHex("nr-rrc.cellgroupconfig_msg") +
                              "0000 00000000 0040 0000" //
                              "01000700" +
                              asciiHex("a.log:3") + "00 00000000 58000000";
    const std::string second = "06000000 3c000000 00000000 0000000000000000 1c000000 1c000000"
                               "000c0010" +
                               asciiHex("nr-rrc.dl.dcch") + "0000 00000000 000c0000 3c000000";
    tool::PcapngWriter writer;
    EXPECT_EQ(writer.add(octetsOf("0040"), Nesting::Bare, "a.log:3"), std::nullopt);
    EXPECT_EQ(hexOf(writer.take()), hexOf(octetsOf(emptyFile + first)));
    EXPECT_TRUE(writer.file().empty());
    EXPECT_EQ(writer.add({}, Nesting::RrcReconfiguration), std::nullopt);
    EXPECT_EQ(hexOf(writer.file()), hexOf(octetsOf(second)));
}

TEST(PcapngWriter, RefusesWhatDoesNotFit)
{
    tool::PcapngWriter writer;
    EXPECT_EQ(writer.add(Octets(16384), Nesting::Bare), "a cell group of 16384 octets; at most 16383 are possible");
    EXPECT_EQ(writer.add(Octets(2), Nesting::Bare, std::string(65536, 'c')),
              "a comment of 65536 octets; at most 65535 are possible");
    EXPECT_EQ(hexOf(writer.file()), hexOf(octetsOf(emptyFile)));
    EXPECT_EQ(writer.add(Octets(16383), Nesting::Bare, std::string(65535, 'c')), std::nullopt);
}

// ---- the reader

struct Read
{
    std::vector<std::string> packets; // "number time link-type length: octets"
    std::string error;

    bool operator==(const Read&) const = default;
};

void PrintTo(const Read& read, std::ostream* out)
{
    *out << testing::PrintToString(read.packets) << " " << read.error;
}

Read readAll(std::span<const std::uint8_t> begin, std::FILE* rest = nullptr)
{
    Read read;
    const auto error = tool::readCapture(
        begin, rest,
        [&](const tool::Packet& packet)
        {
            char text[100];
            (void)std::snprintf(text, sizeof text, "%ju %jd.%09u %d %zu: ", std::uintmax_t{packet.number},
                                std::intmax_t{packet.seconds}, packet.nanoseconds, packet.linkType, packet.length);
            read.packets.push_back(text + hexOf(packet.octets));
        });
    read.error = error.value_or("");
    return read;
}

// Fields of one byte order.
class File
{
public:
    explicit File(bool bigEndian) : bigEndian_(bigEndian) {}

    File& put(std::uint64_t value, unsigned width)
    {
        for (unsigned i = 0; i < width; ++i)
        {
            octets.push_back(static_cast<std::uint8_t>(value >> 8 * (bigEndian_ ? width - 1 - i : i)));
        }
        return *this;
    }

    File& put(const Octets& more)
    {
        octets.insert(octets.end(), more.begin(), more.end());
        return *this;
    }

    // pcap

    File& header(std::uint32_t magic, std::uint32_t snapshot, std::uint32_t linkType)
    {
        return put(magic, 4).put(2, 2).put(4, 2).put(0, 8).put(snapshot, 4).put(linkType, 4);
    }

    File& record(std::uint32_t seconds, std::uint32_t fraction, std::size_t length, const Octets& data)
    {
        return put(seconds, 4).put(fraction, 4).put(data.size(), 4).put(length, 4).put(data);
    }

    // pcapng

    File& block(std::uint32_t type, Octets body)
    {
        body.resize((body.size() + 3) / 4 * 4);
        return put(type, 4).put(body.size() + 12, 4).put(body).put(body.size() + 12, 4);
    }

    File& section()
    {
        return block(0x0A0D0D0A, File(bigEndian_).put(0x1A2B3C4D, 4).put(1, 2).put(0, 2).put(~0ULL, 8).octets);
    }

    File& interface(std::uint32_t linkType, const Octets& options = {})
    {
        return block(1, File(bigEndian_).put(linkType, 2).put(0, 2).put(0, 4).put(options).octets);
    }

    File& enhancedPacket(std::uint64_t time, std::size_t length, const Octets& data)
    {
        return block(6, File(bigEndian_)
                            .put(0, 4)
                            .put(time >> 32, 4)
                            .put(time & 0xFFFFFFFF, 4)
                            .put(data.size(), 4)
                            .put(length, 4)
                            .put(data)
                            .octets);
    }

    File& simplePacket(const Octets& data)
    {
        return block(3, File(bigEndian_).put(data.size(), 4).put(data).octets);
    }

    Octets octets;

private:
    bool bigEndian_;
};

constexpr std::uint32_t microseconds = 0xA1B2C3D4;
constexpr std::uint32_t nanoseconds = 0xA1B23C4D;

// Two packets, the second one cut.
Octets pcap(bool bigEndian, std::uint32_t magic)
{
    return File(bigEndian)
        .header(magic, 65535, 252)
        .record(1700000000, 123456, 3, octetsOf("00ff10"))
        .record(1700000001, 999999, 100, octetsOf("0d0a"))
        .octets;
}

// Blocks of all kinds, in two sections, with four packets.
Octets pcapng(bool bigEndian)
{
    const Octets inNanoseconds = File(bigEndian).put(9, 2).put(1, 2).put(octetsOf("09000000 00000000")).octets;
    return File(bigEndian)
        .section()
        .block(0x0BAD, octetsOf("0102030405"))
        .interface(252)
        .enhancedPacket(1700000000123456, 3, octetsOf("00ff10"))
        .block(4, octetsOf("00000000")) // names
        .simplePacket(octetsOf("0102030405"))
        .block(5, octetsOf("00000000 00000000 00000000")) // statistics
        .section()
        .interface(252, inNanoseconds)
        .enhancedPacket(1700000001987654321, 100, octetsOf("0d0a"))
        .enhancedPacket(0, 0, {})
        .octets;
}

TEST(CaptureReader, Pcap)
{
    for (const bool bigEndian : {false, true})
    {
        const Read inMicroseconds{{"1 1700000000.123456000 252 3: 00ff10", "2 1700000001.999999000 252 100: 0d0a"}, ""};
        EXPECT_EQ(readAll(pcap(bigEndian, microseconds)), inMicroseconds) << bigEndian;
        const Read inNanoseconds{{"1 1700000000.000123456 252 3: 00ff10", "2 1700000001.000999999 252 100: 0d0a"}, ""};
        EXPECT_EQ(readAll(pcap(bigEndian, nanoseconds)), inNanoseconds) << bigEndian;
    }
}

TEST(CaptureReader, Pcapng)
{
    const Read expected{{"1 1700000000.123456000 252 3: 00ff10", "2 0.000000000 252 5: 0102030405",
                         "3 1700000001.987654321 252 100: 0d0a", "4 0.000000000 252 0: "},
                        ""};
    for (const bool bigEndian : {false, true})
    {
        EXPECT_EQ(readAll(pcapng(bigEndian)), expected) << bigEndian;
    }
}

TEST(CaptureReader, NoPacket)
{
    EXPECT_EQ(readAll(File(true).header(microseconds, 65535, 1).octets), Read());
    EXPECT_EQ(readAll(tool::PcapngWriter().file()), Read());
}

TEST(CaptureReader, WhatTheWriterWrites)
{
    tool::PcapngWriter writer;
    ASSERT_EQ(writer.add(octetsOf("0040"), Nesting::Bare, "a comment"), std::nullopt);
    ASSERT_EQ(writer.add(octetsOf("0000"), Nesting::RrcSetup), std::nullopt);
    const Read expected{{"1 0.000000000 252 38: 000c001c" + asciiHex("nr-rrc.cellgroupconfig_msg") + "0000000000000040",
                         "2 0.000000000 252 30: 000c0010" + asciiHex("nr-rrc.dl.ccch") + "000000000000204000100000"},
                        ""};
    EXPECT_EQ(readAll(writer.file()), expected);
}

// A fraction of more than a second is carried, also a negative one: libpcap reads 32 bits as signed.
TEST(CaptureReader, TimesBeyondTheSecond)
{
    const Octets file = File(false)
                            .header(microseconds, 65535, 1)
                            .record(10, 1000000, 0, {})
                            .record(10, 0x7FFFFFFF, 0, {})
                            .record(10, 0xFFFFFFFF, 0, {})
                            .octets;
    EXPECT_EQ(readAll(file), (Read{{"1 11.000000000 1 0: ", "2 2157.483647000 1 0: ", "3 9.999999000 1 0: "}, ""}));
}

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream streamOf(std::span<const std::uint8_t> octets)
{
    Stream stream(std::tmpfile(), std::fclose);
    EXPECT_TRUE(stream);
    EXPECT_EQ(std::fwrite(octets.data(), 1, octets.size(), stream.get()), octets.size());
    std::rewind(stream.get());
    return stream;
}

// Wherever what was read already ends and the stream begins.
TEST(CaptureReader, StreamBehindTheBeginning)
{
    for (const Octets& file : {pcap(true, microseconds), pcapng(false)})
    {
        const Read expected = readAll(file);
        EXPECT_FALSE(expected.packets.empty());
        for (std::size_t i = 0; i <= file.size(); ++i)
        {
            const std::span<const std::uint8_t> octets = file;
            const Stream rest = streamOf(octets.subspan(i));
            ASSERT_EQ(readAll(octets.first(i), rest.get()), expected) << i;
            EXPECT_EQ(std::fseek(rest.get(), 0, SEEK_SET), 0) << "the stream is still open";
        }
    }
}

TEST(CaptureReader, StreamThatCannotBeRead)
{
    const Stream folder(std::fopen(".", "r"), std::fclose);
    ASSERT_TRUE(folder);
    EXPECT_THAT(readAll({}, folder.get()).error, testing::HasSubstr(std::strerror(EISDIR)));
    const Read read = readAll(pcap(false, microseconds), folder.get());
    EXPECT_EQ(read.packets.size(), 2U);
    EXPECT_THAT(read.error, testing::AllOf(StartsWith("packet 3: "), testing::HasSubstr(std::strerror(EISDIR))));
}

TEST(CaptureReader, VisitorThatThrows)
{
    unsigned count = 0;
    const auto visit = [&](const tool::Packet&)
    {
        ++count;
        throw std::runtime_error("enough");
    };
    EXPECT_THROW((void)tool::readCapture(pcapng(false), nullptr, visit), std::runtime_error);
    EXPECT_EQ(count, 1U);
}

// Every beginning of a file gives the packets that it holds whole, and an error unless it ends between two of them.
// `ends` says where it may end, the header first, and whether a packet does so there.
void expectAllBeginnings(const Octets& file, const std::vector<std::pair<std::size_t, bool>>& ends)
{
    const Read whole = readAll(file);
    ASSERT_EQ(whole.error, "");
    ASSERT_EQ(ends.back().first, file.size());
    for (std::size_t i = 0; i <= file.size(); ++i)
    {
        std::size_t count = 0;
        bool mayEnd = false;
        for (const auto& [end, isPacket] : ends)
        {
            count += isPacket && end <= i ? 1 : 0;
            mayEnd = mayEnd || end == i;
        }
        const Read read = readAll(std::span(file).first(i));
        const std::vector<std::string> packets(whole.packets.begin(),
                                               whole.packets.begin() + static_cast<std::ptrdiff_t>(count));
        EXPECT_EQ(read.packets, packets) << i;
        const std::string where =
            i < ends.front().first ? "header of the capture: " : "packet " + std::to_string(count + 1) + ": ";
        EXPECT_EQ(read.error.empty(), mayEnd) << i << ": " << read.error;
        EXPECT_THAT(read.error, StartsWith(mayEnd ? "" : where)) << i;
    }
}

TEST(CaptureReader, CutPcap)
{
    for (const bool bigEndian : {false, true})
    {
        expectAllBeginnings(pcap(bigEndian, microseconds), {{24, false}, {24 + 19, true}, {24 + 19 + 18, true}});
    }
}

TEST(CaptureReader, CutPcapng)
{
    // libpcap wants an interface before it takes a file.
    std::vector<std::pair<std::size_t, bool>> ends;
    std::size_t end = 28 + 20;
    ends.emplace_back(end += 20, false);      // interface
    ends.emplace_back(end += 32 + 4, true);   // packet 1
    ends.emplace_back(end += 16, false);      // names
    ends.emplace_back(end += 16 + 8, true);   // packet 2
    ends.emplace_back(end += 24, false);      // statistics
    ends.emplace_back(end += 28, false);      // section
    ends.emplace_back(end += 20 + 12, false); // interface
    ends.emplace_back(end += 32 + 4, true);   // packet 3
    ends.emplace_back(end += 32, true);       // packet 4
    for (const bool bigEndian : {false, true})
    {
        expectAllBeginnings(pcapng(bigEndian), ends);
    }
}

TEST(CaptureReader, NoCapture)
{
    for (const char* text : {"", "00", "0a0d0d0a", "d4c3b2a0 02000400 00000000 00000000 ffff0000 01000000",
                             "6e6f2063617074757265206174206 16c6c2c20627574206c6f6e6720656e6f756768"})
    {
        const Read read = readAll(octetsOf(text));
        EXPECT_TRUE(read.packets.empty()) << text;
        EXPECT_THAT(read.error, StartsWith("header of the capture: ")) << text;
        EXPECT_GT(read.error.size(), std::strlen("header of the capture: ")) << text;
    }
}

// What comes behind a packet that cannot be read is not guessed at.
TEST(CaptureReader, CorruptPacket)
{
    const auto second = [](File file)
    {
        const Read read = readAll(file.octets);
        EXPECT_EQ(read.packets, std::vector<std::string>{"1 0.000000005 1 1: aa"});
        return read.error;
    };
    const File begin = File(false).header(nanoseconds, 0x7FFFFFFF, 1).record(0, 5, 1, {0xAA});
    EXPECT_THAT(second(File(begin).record(0, 6, 1, Octets(262145))), StartsWith("packet 2: "));
    EXPECT_THAT(second(File(begin).put(0, 8).put(0xFFFFFFFF, 4).put(0xFFFFFFFF, 4).put(Octets(100))),
                StartsWith("packet 2: "));
    EXPECT_EQ(second(File(begin).put(Octets(5))),
              "packet 2: truncated dump file; tried to read 16 header bytes, only got 5");
}

TEST(CaptureReader, CorruptBlock)
{
    const File begin = File(false).section().interface(1).enhancedPacket(0, 1, {0xAA});
    const auto second = [](const File& file)
    {
        const Read read = readAll(file.octets);
        EXPECT_EQ(read.packets, std::vector<std::string>{"1 0.000000000 1 1: aa"});
        return read.error;
    };
    // A block of 2 GiB, one whose lengths differ, a packet longer than its block, of an interface that there is not,
    // and an interface of another link type.
    EXPECT_THAT(second(File(begin).put(6, 4).put(0x80000000, 4).put(Octets(100))), StartsWith("packet 2: "));
    EXPECT_THAT(second(File(begin).put(3, 4).put(16, 4).put(0, 4).put(20, 4)), StartsWith("packet 2: "));
    EXPECT_THAT(second(File(begin).block(3, octetsOf("ffffffff 00"))), StartsWith("packet 2: "));
    EXPECT_THAT(second(File(begin).block(6, octetsOf("01000000 00000000 00000000 00000000 00000000"))),
                StartsWith("packet 2: "));
    EXPECT_THAT(second(File(begin).interface(252)), StartsWith("packet 2: "));
    EXPECT_THAT(second(File(begin).put(File(true).section().octets)), StartsWith("packet 2: "));
}

// The most that a packet may have.
TEST(CaptureReader, LongestPacket)
{
    const Octets data(262144, 0x5A);
    for (const File& file : {File(false).header(microseconds, 262144, 252).record(0, 0, data.size(), data),
                             File(false).section().interface(252).enhancedPacket(0, data.size(), data)})
    {
        const Read read = readAll(file.octets);
        EXPECT_EQ(read, (Read{{"1 0.000000000 252 262144: " + hexOf(data)}, ""}));
    }
}

TEST(IsCapture, ByTheMagic)
{
    for (const bool bigEndian : {false, true})
    {
        EXPECT_TRUE(tool::isCapture(File(bigEndian).put(microseconds, 4).octets));
        EXPECT_TRUE(tool::isCapture(File(bigEndian).put(nanoseconds, 4).octets));
        EXPECT_TRUE(tool::isCapture(File(bigEndian).put(0xA1B2CD34, 4).octets));
        EXPECT_TRUE(tool::isCapture(File(bigEndian).put(0xA12B3C4D, 4).octets));
        EXPECT_TRUE(tool::isCapture(File(bigEndian).section().octets));
    }
    EXPECT_TRUE(tool::isCapture(pcap(false, microseconds)));
    EXPECT_TRUE(tool::isCapture(tool::PcapngWriter().file()));
    const Octets section = pcapng(true);
    EXPECT_TRUE(tool::isCapture(std::span(section).first(12)));
}

TEST(IsCapture, NothingElse)
{
    EXPECT_FALSE(tool::isCapture({}));
    for (const char* text : {"d4c3b2", "d4c3b2a0", "0a0d0d0a", "0a0d0d0a 1c000000", "0a0d0d0a 1c000000 4d3c2b",
                             "0a0d0d0a 1c000000 4d3c2b1b", "0d0a0d0a 1c000000 4d3c2b1a", "0040"})
    {
        EXPECT_FALSE(tool::isCapture(octetsOf(text))) << text;
    }
}

} // namespace
