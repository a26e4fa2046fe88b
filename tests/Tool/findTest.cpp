// Cell groups hidden in other octets, at any bit, and in the RRC messages that carry them.
#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "rrcNesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "Asn/randomTree.h"

namespace
{

using Octets = std::vector<OSOCTET>;

constexpr unsigned count = 500;
constexpr OSUINT32 least = 20; // octets

// What is told of hidden cell groups and of what else was found.
struct Tally
{
    unsigned found = 0;
    unsigned covered = 0;     // by a longer candidate that is found in place of it
    unsigned falseFinds = 0;  // besides those
    std::size_t searched = 0; // octets
    std::vector<std::string> missed;

    void print(const char* where) const
    {
        std::printf("%s: %u found, %u covered by a longer false find, %u other false finds in %zu octets\n", where,
                    found, covered, falseFinds, searched);
    }
};

class FindHidden : public testing::Test
{
protected:
    // A cell group of at least `least` octets and at most as many as one length determinant counts.
    static Octets cellGroup(std::uint64_t seed)
    {
        for (;; seed += count)
        {
            OSCTXT context;
            EXPECT_EQ(RTX_OK, rtxInitContext(&context));
            Octets octets(2 * tool::maxCellGroupOctets);
            test::RandomTree tree(context, seed);
            const auto* const value = static_cast<CellGroupConfig*>(tree.make(nr_rrc::type_CellGroupConfig));
            pu_setBuffer(&context, octets.data(), octets.size(), 0);
            const bool encoded = asn1PE_CellGroupConfig(&context, value) == RTX_OK;
            octets.resize(encoded ? pu_getMsgLen(&context) : 0);
            rtFreeContext(&context);
            if (octets.size() >= least && octets.size() <= tool::maxCellGroupOctets)
            {
                return octets;
            }
        }
    }

    static std::vector<RtxFound> find(const Octets& octets)
    {
        OSCTXT context;
        EXPECT_EQ(RTX_OK, rtxInitContext(&context));
        std::vector<RtxFound> all;
        const auto take = [](void* arg, const RtxFound* found)
        {
            static_cast<std::vector<RtxFound>*>(arg)->push_back(*found);
        };
        const auto result =
            rtxFind(&context, &nr_rrc::type_CellGroupConfig, octets.data(), octets.size(), least, take, nullptr, &all);
        EXPECT_EQ(static_cast<std::int64_t>(all.size()), result);
        rtFreeContext(&context);
        return all;
    }

    // Looks for a cell group whose first bit is `contentBit`.
    static void look(const Octets& octets, std::uint64_t contentBit, std::size_t length, Tally& tally)
    {
        const RtxFound hidden{contentBit - (length < 128 ? 8 : 16), contentBit, static_cast<OSUINT32>(length)};
        const auto all = find(octets);
        tally.searched += octets.size();
        tally.falseFinds += static_cast<unsigned>(all.size());
        const auto isIt = [&](const RtxFound& other)
        {
            return other.bit == hidden.bit && other.contentBit == hidden.contentBit && other.octets == hidden.octets;
        };
        const auto covers = [&](const RtxFound& other)
        {
            return other.bit < end(hidden) && hidden.bit < end(other) && other.octets >= hidden.octets;
        };
        if (std::any_of(all.begin(), all.end(), isIt))
        {
            ++tally.found;
            --tally.falseFinds;
        }
        else if (std::any_of(all.begin(), all.end(), covers))
        {
            ++tally.covered;
            --tally.falseFinds;
        }
        else
        {
            tally.missed.push_back(std::to_string(length) + " octets at bit " + std::to_string(contentBit));
        }
    }

    static std::uint64_t end(const RtxFound& found)
    {
        return found.contentBit + std::uint64_t{found.octets} * 8;
    }

    // All that was hidden was found, or lies under something longer that decodes as well: rarely.
    static void conclude(const Tally& tally, const char* where)
    {
        tally.print(where);
        EXPECT_EQ(std::vector<std::string>(), tally.missed);
        EXPECT_EQ(count, tally.found + tally.covered);
        EXPECT_LE(tally.covered, count / 100);
    }

    static void nested(tool::Nesting nesting, const char* where)
    {
        Tally tally;
        for (unsigned i = 0; i < count; ++i)
        {
            const Octets message = cellGroup(i);
            const auto pdu = tool::nestCellGroup(message, nesting);
            ASSERT_TRUE(pdu);
            // What stands before the octet string in the message (TS 38.331, 6.2.2): that of RRCSetup with one SRB in
            // it, of RRCReconfiguration with the cell group in its v1530 extension or, of a secondary one, at once.
            const bool isSecondary = nesting == tool::Nesting::RrcReconfiguration && message[1] >> 6 != 0;
            const unsigned before = isSecondary ? 13 : 21;
            look(pdu->octets, before + (message.size() < 128 ? 8U : 16U), message.size(), tally);
        }
        conclude(tally, where);
    }
};

// Writes bits behind one another.
class Bits
{
public:
    void put(std::uint64_t value, unsigned width)
    {
        for (; width != 0; --width, ++size_)
        {
            if (size_ % 8 == 0)
            {
                octets_.push_back(0);
            }
            octets_.back() = static_cast<OSOCTET>(octets_.back() | (value >> (width - 1) & 1) << (7 - size_ % 8));
        }
    }

    std::uint64_t size() const
    {
        return size_;
    }

    const Octets& octets() const
    {
        return octets_;
    }

private:
    Octets octets_;
    std::uint64_t size_ = 0;
};

TEST_F(FindHidden, InRandomOctets)
{
    std::mt19937 random(12);
    Tally tally;
    for (unsigned i = 0; i < count; ++i)
    {
        const Octets message = cellGroup(i);
        Bits bits;
        for (auto left = random() % 2400; left != 0; --left)
        {
            bits.put(random() >> 31, 1);
        }
        if (message.size() < 128) // X.691 11.9.3.6, 11.9.3.7
        {
            bits.put(message.size(), 8);
        }
        else
        {
            bits.put(0x8000 | message.size(), 16);
        }
        const std::uint64_t content = bits.size();
        for (const OSOCTET octet : message)
        {
            bits.put(octet, 8);
        }
        for (auto left = random() % 2400; left != 0; --left)
        {
            bits.put(random() >> 31, 1);
        }
        look(bits.octets(), content, message.size(), tally);
    }
    conclude(tally, "in random octets");
}

TEST_F(FindHidden, InRrcReconfiguration)
{
    nested(tool::Nesting::RrcReconfiguration, "in RRCReconfiguration");
}

TEST_F(FindHidden, InRrcSetup)
{
    nested(tool::Nesting::RrcSetup, "in RRCSetup");
}

// How often random octets alone are taken for a cell group.
TEST_F(FindHidden, FalseFindsInRandomOctets)
{
    constexpr std::size_t megabyte = 1000000;
    std::mt19937 random(7);
    Octets octets(megabyte);
    std::generate(octets.begin(), octets.end(), [&] { return static_cast<OSOCTET>(random() >> 24); });
    const auto all = find(octets);
    std::printf("%zu false finds of at least %u octets in %zu random octets\n", all.size(), least, octets.size());
    EXPECT_LT(all.size(), 200U);
}

} // namespace
