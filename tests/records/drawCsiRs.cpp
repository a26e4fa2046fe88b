#include "records.h"

namespace records
{

void draw(Chance& chance, RrcCsiRsResourceMapping_t& record)
{
    rrcInit(&record);
    chance.alternative(record.presenceFreqDomain,
                       {RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE, RRC_CSI_RS_RESOURCE_MAPPING_ROW2_PRESENCE,
                        RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE, RRC_CSI_RS_RESOURCE_MAPPING_OTHER_PRESENCE});
    // All alternatives lie on the same storage, and the bits above their width do not matter.
    chance.bits(record.freqDomainAlloc.other, 32);
    chance.enumeration(record.nrofPorts, 7);
    chance.number(record.firstOFDMSymbolInTimeDomain, 0, 13);
    chance.enumeration(record.cdmType, 3);
    // The lowest bit counts, whatever is set above it.
    const unsigned lowest = chance.oneOf(4);
    const std::uint32_t above = chance.bitField(4) << (lowest + 1) & 0xF;
    record.presenceDensity = static_cast<UINT8>(1U << lowest | above);
    // Any mask when ranges are dropped.
    chance.number(record.presenceDensity, record.presenceDensity, record.presenceDensity);
    if (lowest == 0)
    {
        chance.enumeration(record.density.dots, 1);
    }
    else
    {
        chance.bits(record.density.dots, 8);
    }
    draw(chance, record.freqBand);
    chance.numberIf(record.bitMask, RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE, record.firstOFDMSymbolInTimeDomain2,
                    2, 12);
}

void draw(Chance& chance, RrcCsiResourcePeriodictyAndOffset_t& record)
{
    rrcInit(&record);
    // 40 slots are sent as 32, so the offset has to fit these.
    constexpr unsigned slots[] = {4, 5, 8, 10, 16, 20, 32, 32, 64, 80, 160, 320, 640};
    const unsigned period = chance.tag(record.slotsPeriod, 13);
    chance.number(record.offset, 0, slots[period] - 1);
    // Up to 160 slots only the low 8 bits are sent.
    if (period <= 10)
    {
        chance.above(record.offset, 8);
    }
}

void draw(Chance& chance, RrcCsiFreqOccupation_t& record)
{
    rrcInit(&record);
    chance.number(record.startingRb, 0, 274);
    chance.number(record.nrofRBs, 24, 276);
}

} // namespace records
