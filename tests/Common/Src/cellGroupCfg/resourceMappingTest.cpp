#include "cellGroupCfg/resourceMapping.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::bits;
using test::HeapFault;
using test::object;
using test::rising;

namespace
{

constexpr const char* noPeriod = "Have no CSI_ResourcePeriodicityAndOffset type\n";

RrcCsiRsResourceMapping_t mapping(unsigned freqDomain, unsigned density, UINT32 value)
{
    RrcCsiRsResourceMapping_t cfg{};
    cfg.presenceFreqDomain = static_cast<UINT8>(freqDomain);
    cfg.freqDomainAlloc.row1 = value;
    cfg.nrofPorts = 7;
    cfg.firstOFDMSymbolInTimeDomain = 13;
    cfg.cdmType = 3;
    cfg.presenceDensity = static_cast<UINT8>(density);
    cfg.density.dots = 1;
    cfg.freqBand = {274, 276};
    return cfg;
}

std::string mappingJson(const std::string& freqDomain, const std::string& density, const std::string& second = "")
{
    return object({"\"frequencyDomainAllocation\":{" + freqDomain + "}", R"("nrofPorts":"p32")",
                   "\"firstOFDMSymbolInTimeDomain\":13", second, R"("cdm-Type":"cdm8-FD2-TD4")",
                   "\"density\":{" + density + "}", R"("freqBand":{"startingRB":274,"nrofRBs":276})"});
}

class resourceMapping : public test::ComposerTest
{
protected:
    void expectMapping(RrcCsiRsResourceMapping_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        CSI_RS_ResourceMapping element{};
        EXPECT_EQ(rrcComposeResourceMapping(&context, &element, &cfg), VOS_OK);
        expectDecoded("CSI-RS-ResourceMapping", asn1PE_CSI_RS_ResourceMapping, element, json);
        EXPECT_EQ(printed(), "");
    }
};

const std::string one = R"("one":null)";

} // namespace

TEST_F(resourceMapping, FrequencyDomainIsThatOfTheHighestBit)
{
    const struct
    {
        const char* name;
        unsigned width;
    } rows[] = {{"row1", 4}, {"row2", 12}, {"row4", 3}, {"other", 6}};
    for (unsigned presence = 1; presence < 16; ++presence)
    {
        const auto& row = rows[presence >= 8 ? 3 : presence >= 4 ? 2 : presence >= 2 ? 1 : 0];
        for (const UINT32 value : {0U, 1U, 0xA5A5A5A5U, 0xFFFFFFFFU})
        {
            expectMapping(mapping(presence, RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE, value),
                          mappingJson("\"" + std::string(row.name) + "\":" + bits(value, row.width), one));
        }
    }
}

TEST_F(resourceMapping, WithoutFrequencyDomainBitTheChoiceIsLeftToTheEncoder)
{
    for (const unsigned presence : {0U, 0xF0U})
    {
        RrcCsiRsResourceMapping_t cfg = mapping(presence, RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE, 1);
        CSI_RS_ResourceMapping element{};
        EXPECT_EQ(rrcComposeResourceMapping(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_CSI_RS_ResourceMapping, element),
                  "CSI-RS-ResourceMapping.frequencyDomainAllocation: tag 0 is not in 1..4");
    }
}

TEST_F(resourceMapping, DensityIsThatOfTheLowestBit)
{
    const std::string densities[] = {R"("dot5":"oddPRBs")", one, R"("three":null)", R"("spare":null)"};
    for (unsigned presence = 1; presence < 16; ++presence)
    {
        const unsigned lowest = presence & 1 ? 0 : presence & 2 ? 1 : presence & 4 ? 2 : 3;
        expectMapping(mapping(RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE, presence, 5),
                      mappingJson(R"("row1":"0101")", densities[lowest]));
    }
    RrcCsiRsResourceMapping_t cfg = mapping(RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE, 0xF0, 5);
    CSI_RS_ResourceMapping element{};
    EXPECT_EQ(rrcComposeResourceMapping(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(encode(asn1PE_CSI_RS_ResourceMapping, element), "CSI-RS-ResourceMapping.density: tag 0 is not in 1..4");
}

TEST_F(resourceMapping, SecondTimeDomainSymbolByItsBit)
{
    RrcCsiRsResourceMapping_t cfg =
        mapping(RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE, RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE, 5);
    cfg.firstOFDMSymbolInTimeDomain2 = 12;
    cfg.bitMask = 0xFE;
    expectMapping(cfg, mappingJson(R"("row1":"0101")", one));
    cfg.bitMask = RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE;
    expectMapping(cfg, mappingJson(R"("row1":"0101")", one, "\"firstOFDMSymbolInTimeDomain2\":12"));
}

TEST_F(resourceMapping, BitStringsWithoutHeapAreLeftToTheEncoder)
{
    // Four bit strings, of which the last one counts.
    for (unsigned successes = 0; successes <= 4; ++successes)
    {
        RrcCsiRsResourceMapping_t cfg = mapping(15, RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE, 5);
        CSI_RS_ResourceMapping element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeResourceMapping(&context, &element, &cfg), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), successes < 4);
        }
        EXPECT_EQ(element.cdm_Type, 3U) << "composition continues";
        if (successes < 4)
        {
            EXPECT_EQ(encode(asn1PE_CSI_RS_ResourceMapping, element),
                      "CSI-RS-ResourceMapping.frequencyDomainAllocation: tag 0 is not in 1..4");
        }
        else
        {
            expectDecoded("CSI-RS-ResourceMapping", asn1PE_CSI_RS_ResourceMapping, element,
                          mappingJson(R"("other":"000101")", one));
        }
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(resourceMapping, EveryPeriodWithItsFirstAndLastOffset)
{
    const unsigned periods[] = {4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 160, 320, 640};
    for (UINT8 tag = 1; tag <= 13; ++tag)
    {
        // 40 slots are sent as 32.
        const unsigned period = tag == 8 ? 32 : periods[tag - 1];
        for (const unsigned offset : {0U, period - 1})
        {
            RrcCsiResourcePeriodictyAndOffset_t cfg{tag, static_cast<UINT16>(offset)};
            CSI_ResourcePeriodicityAndOffset element{};
            EXPECT_EQ(rrcComposeperiodicityAndOffset(&element, &cfg), VOS_OK);
            expectDecoded("CSI-ResourcePeriodicityAndOffset", asn1PE_CSI_ResourcePeriodicityAndOffset, element,
                          "{\"slots" + std::to_string(period) + "\":" + std::to_string(offset) + "}");
        }
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(resourceMapping, FortySlotsWithAnOffsetFrom32OnAreRefusedByTheEncoder)
{
    for (const unsigned offset : {32U, 39U})
    {
        RrcCsiResourcePeriodictyAndOffset_t cfg{8, static_cast<UINT16>(offset)};
        CSI_ResourcePeriodicityAndOffset element{};
        EXPECT_EQ(rrcComposeperiodicityAndOffset(&element, &cfg), VOS_OK);
        EXPECT_EQ(element.t, static_cast<OSUINT32>(T_CSI_ResourcePeriodicityAndOffset_slots32));
        EXPECT_EQ(encode(asn1PE_CSI_ResourcePeriodicityAndOffset, element),
                  "CSI-ResourcePeriodicityAndOffset.slots32: " + std::to_string(offset) + " is not in 0..31");
    }
}

TEST_F(resourceMapping, OffsetsOfPeriodsUpTo160AreCutToEightBits)
{
    for (UINT8 tag = 1; tag <= 13; ++tag)
    {
        RrcCsiResourcePeriodictyAndOffset_t cfg{tag, 0x103};
        CSI_ResourcePeriodicityAndOffset element{};
        EXPECT_EQ(rrcComposeperiodicityAndOffset(&element, &cfg), VOS_OK);
        EXPECT_EQ(element.t, tag == 8 ? 7U : tag);
        EXPECT_EQ(tag < 12 ? element.u.slots160 : element.u.slots640, tag < 12 ? 3 : 0x103) << unsigned{tag};
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(resourceMapping, UnknownPeriodPrintsKeepsItsTagAndSucceeds)
{
    for (const unsigned period : {0U, 14U, 255U})
    {
        RrcCsiResourcePeriodictyAndOffset_t cfg{static_cast<UINT8>(period), 0};
        CSI_ResourcePeriodicityAndOffset element{};
        EXPECT_EQ(rrcComposeperiodicityAndOffset(&element, &cfg), VOS_OK);
        EXPECT_EQ(printed(), noPeriod);
        EXPECT_EQ(element.t, period);
        EXPECT_EQ(encode(asn1PE_CSI_ResourcePeriodicityAndOffset, element),
                  "CSI-ResourcePeriodicityAndOffset: tag " + std::to_string(period) + " is not in 1..13");
    }
}

TEST_F(resourceMapping, RecordOrder)
{
    using R = RrcCsiRsResourceMapping_t;
    EXPECT_TRUE(rising({offsetof(R, presenceFreqDomain), offsetof(R, freqDomainAlloc), offsetof(R, nrofPorts),
                        offsetof(R, firstOFDMSymbolInTimeDomain), offsetof(R, cdmType), offsetof(R, presenceDensity),
                        offsetof(R, density), offsetof(R, freqBand), offsetof(R, bitMask),
                        offsetof(R, firstOFDMSymbolInTimeDomain2)}));
    EXPECT_EQ(sizeof R::freqDomainAlloc, 4U);
    EXPECT_EQ(sizeof R::density, 1U);
    EXPECT_EQ(offsetof(R, freqDomainAlloc.row1), offsetof(R, freqDomainAlloc.other));
    EXPECT_TRUE(rising({offsetof(RrcCsiFreqOccupation_t, startingRb), offsetof(RrcCsiFreqOccupation_t, nrofRBs)}));
    using P = RrcCsiResourcePeriodictyAndOffset_t;
    EXPECT_TRUE(rising({offsetof(P, slotsPeriod), offsetof(P, offset)}));
}
