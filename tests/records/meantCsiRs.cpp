#include "records.h"

namespace records
{

namespace
{

// The highest bit counts.
std::string frequencyDomain(const RrcCsiRsResourceMapping_t& record)
{
    if (record.presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_OTHER_PRESENCE)
    {
        return choice("other", bits(record.freqDomainAlloc.other, 6));
    }
    if (record.presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE)
    {
        return choice("row4", bits(record.freqDomainAlloc.row4, 3));
    }
    if (record.presenceFreqDomain & RRC_CSI_RS_RESOURCE_MAPPING_ROW2_PRESENCE)
    {
        return choice("row2", bits(record.freqDomainAlloc.row2, 12));
    }
    return choice("row1", bits(record.freqDomainAlloc.row1, 4));
}

// The lowest bit counts.
std::string density(const RrcCsiRsResourceMapping_t& record)
{
    if (record.presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_DOT5_PRESENCE)
    {
        return choice("dot5", record.density.dots);
    }
    if (record.presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE)
    {
        return choice("one", null());
    }
    if (record.presenceDensity & RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE)
    {
        return choice("three", null());
    }
    return choice("spare", null());
}

} // namespace

std::string meant(const RrcCsiRsResourceMapping_t& record)
{
    Members members;
    members.add("frequencyDomainAllocation", frequencyDomain(record));
    members.add("nrofPorts", record.nrofPorts);
    members.add("firstOFDMSymbolInTimeDomain", record.firstOFDMSymbolInTimeDomain);
    members.addIf(record.bitMask & RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE, "firstOFDMSymbolInTimeDomain2",
                  record.firstOFDMSymbolInTimeDomain2);
    members.add("cdm-Type", record.cdmType);
    members.add("density", density(record));
    members.add("freqBand", meant(record.freqBand));
    return members.json();
}

// 40 slots are sent as 32. Up to 160 slots the offset is cut to 8 bits.
std::string meant(const RrcCsiResourcePeriodictyAndOffset_t& record)
{
    switch (record.slotsPeriod)
    {
    case 1:
        return choice("slots4", record.offset & 0xFF);
    case 2:
        return choice("slots5", record.offset & 0xFF);
    case 3:
        return choice("slots8", record.offset & 0xFF);
    case 4:
        return choice("slots10", record.offset & 0xFF);
    case 5:
        return choice("slots16", record.offset & 0xFF);
    case 6:
        return choice("slots20", record.offset & 0xFF);
    case 7:
    case 8:
        return choice("slots32", record.offset & 0xFF);
    case 9:
        return choice("slots64", record.offset & 0xFF);
    case 10:
        return choice("slots80", record.offset & 0xFF);
    case 11:
        return choice("slots160", record.offset & 0xFF);
    case 12:
        return choice("slots320", record.offset);
    default:
        return choice("slots640", record.offset);
    }
}

std::string meant(const RrcCsiFreqOccupation_t& record)
{
    Members members;
    members.add("startingRB", record.startingRb);
    members.add("nrofRBs", record.nrofRBs);
    return members.json();
}

} // namespace records
