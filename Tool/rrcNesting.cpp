#include "rrcNesting.h"

#include <utility>

namespace tool
{
namespace
{

class BitWriter
{
public:
    // The low `width` bits of the value, the most significant one first.
    void put(std::uint32_t value, unsigned width)
    {
        while (width != 0)
        {
            --width;
            if (free_ == 0)
            {
                octets_.push_back(0);
                free_ = 8;
            }
            --free_;
            octets_.back() = static_cast<std::uint8_t>(octets_.back() | (value >> width & 1) << free_);
        }
    }

    // X.691 11.9.3.6 to 11.9.3.8
    void putOctetString(std::span<const std::uint8_t> octets)
    {
        const auto length = static_cast<std::uint32_t>(octets.size());
        if (length < 128)
        {
            put(length, 8);
        }
        else
        {
            put(0b10, 2);
            put(length, 14);
        }
        for (const std::uint8_t octet : octets)
        {
            put(octet, 8);
        }
    }

    // Padded with zero bits to whole octets.
    std::vector<std::uint8_t> take()
    {
        return std::move(octets_);
    }

private:
    std::vector<std::uint8_t> octets_;
    unsigned free_ = 0; // bits of the last octet
};

// CellGroupConfig.cellGroupId, behind the extension bit and the bits of seven optional members.
unsigned cellGroupId(std::span<const std::uint8_t> cellGroup)
{
    return cellGroup.size() < 2 ? 0 : cellGroup[1] >> 6;
}

void putRrcReconfiguration(BitWriter& bits, std::span<const std::uint8_t> cellGroup)
{
    bits.put(0, 1); // DL-DCCH-MessageType: c1
    bits.put(0, 4); // c1: rrcReconfiguration
    bits.put(0, 2); // rrc-TransactionIdentifier
    bits.put(0, 1); // criticalExtensions: rrcReconfiguration
    if (cellGroupId(cellGroup) == 0)
    {
        bits.put(0b00001, 5);    // RRCReconfiguration-IEs: the last member, nonCriticalExtension
        bits.put(0b10000000, 8); // RRCReconfiguration-v1530-IEs: the first member, masterCellGroup
    }
    else
    {
        bits.put(0b01000, 5); // RRCReconfiguration-IEs: the second member, secondaryCellGroup
    }
    bits.putOctetString(cellGroup);
}

void putRrcSetup(BitWriter& bits, std::span<const std::uint8_t> cellGroup)
{
    bits.put(0, 1);       // DL-CCCH-MessageType: c1
    bits.put(1, 2);       // c1: rrcSetup
    bits.put(0, 2);       // rrc-TransactionIdentifier
    bits.put(0, 1);       // criticalExtensions: rrcSetup
    bits.put(0b00, 2);    // RRCSetup-IEs: no lateNonCriticalExtension, no nonCriticalExtension
    bits.put(0, 1);       // RadioBearerConfig: not extended
    bits.put(0b10000, 5); // its first member, srb-ToAddModList
    bits.put(0, 1);       // one element of at most two
    bits.put(0, 1);       // SRB-ToAddMod: not extended
    bits.put(0b000, 3);   // no reestablishPDCP, no discardOnPDCP, no pdcp-Config: the default configuration (9.2.1)
    bits.put(0, 2);       // srb-Identity 1, of 1..3
    bits.putOctetString(cellGroup);
}

} // namespace

std::optional<Pdu> nestCellGroup(std::span<const std::uint8_t> cellGroup, Nesting nesting)
{
    if (cellGroup.size() > maxCellGroupOctets)
    {
        return std::nullopt;
    }
    BitWriter bits;
    switch (nesting)
    {
    case Nesting::RrcReconfiguration:
        putRrcReconfiguration(bits, cellGroup);
        return Pdu{bits.take(), "nr-rrc.dl.dcch"};
    case Nesting::RrcSetup:
        putRrcSetup(bits, cellGroup);
        return Pdu{bits.take(), "nr-rrc.dl.ccch"};
    case Nesting::Bare:
        break;
    }
    return Pdu{{cellGroup.begin(), cellGroup.end()}, "nr-rrc.cellgroupconfig_msg"};
}

} // namespace tool
