#include "records.h"

namespace records
{

namespace
{

void drawSsb(Chance& chance, RrcSsb_t& record)
{
    rrcInit(&record);
    const unsigned resources = chance.count(record.numSsbResources, 1, RRC_MAX_RA_SSB_RESOURCES, 13);
    for (unsigned i = 0; i < resources; ++i)
    {
        chance.number(record.ssbResource[i].ssbIdx, 0, 63);
        chance.number(record.ssbResource[i].raPreableIdx, 0, 63);
    }
    chance.number(record.raSsbOccasionMaskIdx, 0, 15);
}

void drawCsiRs(Chance& chance, RrcSsirs_t& record)
{
    rrcInit(&record);
    const unsigned resources = chance.count(record.numCsirsRecouces, 1, RRC_MAX_RA_CSIRS_RESOURCES, 29);
    for (unsigned i = 0; i < resources; ++i)
    {
        RrcCsirsResource_t& resource = record.csirsResource[i];
        rrcInit(&resource);
        chance.number(resource.csiRSIdx, 0, 95);
        // A message holds at most 64 of the 511.
        chance.numbers(resource.raOccasionIdx, chance.count(resource.numRaOccasion, 1, 64, 9), 0, 511);
        chance.number(resource.raPreambleIdx, 0, 63);
    }
    chance.number(record.rsrpThreshCsiRs, 0, 127);
}

void drawOccasions(Chance& chance, RrcOccasions_t& record)
{
    rrcInit(&record);
    draw(chance, record.rachCfgGen);
    chance.enumerationIf(record.bitMask, RRC_OCCASION_SSB_PER_RACH_PRESENCE, record.ssbPerRachOccasion, 7);
}

void drawCfra(Chance& chance, RrcCfra_t& record)
{
    rrcInit(&record);
    const auto occasions = [&]
    {
        if (chance.flag(record.bitMask, RRC_CFRA_OCCASIONS_PRESENCE))
        {
            drawOccasions(chance, record.occasions);
        }
    };
    const auto resources = [&]
    {
        // RRC_SSB decides alone, so each of the four states of both bits is one that composes.
        constexpr unsigned both[] = {0, RRC_SSB, RRC_SCIS_RESOURCE, RRC_SSB | RRC_SCIS_RESOURCE};
        record.bitMask = static_cast<UINT8>(record.bitMask | both[chance.oneOf(std::size(both))]);
        if (record.bitMask & RRC_SSB)
        {
            drawSsb(chance, record.resources.ssb);
        }
        else
        {
            drawCsiRs(chance, record.resources.scirs);
        }
    };
    chance.inAnyOrder(occasions, resources);
    chance.numberIf(record.bitMask, RRC_CFRA_PREAMBLE_PRESENCE, record.totalNumOfRaPreableV1530, 1, 63);
}

} // namespace

void draw(Chance& chance, RrcRachCfgDedi_t& record)
{
    rrcInit(&record);
    const auto contentionFree = [&]
    {
        if (chance.flag(record.bitMask, RRC_RACH_CFG_DEDI_CFRA_PRESENCE))
        {
            drawCfra(chance, record.cfra);
        }
    };
    const auto priority = [&]
    {
        if (chance.flag(record.bitMask, RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE))
        {
            draw(chance, record.raPrio);
        }
    };
    chance.inAnyOrder(contentionFree, priority);
}

void draw(Chance& chance, RrcRachCfgGeneric_t& record)
{
    rrcInit(&record);
    chance.number(record.prachCfgIdx, 0, 255);
    chance.enumeration(record.msg1Fdm, 3);
    chance.number(record.msg1FreqStart, 0, 274);
    chance.number(record.zeroCorrelationZoneCfg, 0, 15);
    chance.number(record.preambleRecTargetPower, -202, -60);
    chance.enumeration(record.preambleTransMax, 10);
    chance.enumeration(record.powerRampingStep, 3);
    chance.enumeration(record.raRspWindow, 7);
}

void draw(Chance& chance, RrcRaPrio_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.powerRampingStepHighPriority, 3);
    chance.enumerationIf(record.bitMask, RRC_RA_PRIO_SCALINGFACTOR_PRESENCE, record.scalingFactorBI, 3);
}

} // namespace records
