#include "cellGroupCfg/pdsch.h"

#include <cstddef>
#include <cstring>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::array;
using test::bits;
using test::HeapFault;
using test::masks;
using test::numbers;
using test::object;
using test::rising;

namespace
{

constexpr const char* noPeriod = "Have no CSI_ResourcePeriodicityAndOffset type\n";

// What VOS_MemZero was last asked for, while someone looks.
bool zeroed = false;
const void* zeroedAt = nullptr;

RrcDmrsDlCfg_t dmrs(unsigned mask)
{
    RrcDmrsDlCfg_t cfg{};
    cfg.bitMask = static_cast<UINT8>(mask);
    cfg.dmrsAdditionalPos = 2;
    cfg.scramblingID0 = 65535;
    cfg.scramblingID1 = 1;
    cfg.phaseTrackingRS = {RRC_PTRS_DL_CFG_EPRE_RATIO_PRESENCE, {}, {}, 3, 0};
    return cfg;
}

std::string dmrsJson(unsigned mask)
{
    return object({mask & 1 ? R"("dmrs-Type":"type2")" : "", mask & 2 ? R"("dmrs-AdditionalPosition":"pos3")" : "",
                   mask & 4 ? R"("maxLength":"len2")" : "", mask & 8 ? "\"scramblingID0\":65535" : "",
                   mask & 16 ? "\"scramblingID1\":1" : "",
                   mask & 32 ? R"("phaseTrackingRS":{"setup":{"epre-Ratio":3}})" : ""});
}

RrcTciState_t tciState(unsigned i)
{
    return {static_cast<UINT8>(127 - i), {2, RRC_QCI_INFO_SSB_IDX_PRESENCE, {63}, 0, 0, 0}, 0, {}};
}

std::string tciJson(unsigned i)
{
    return "{\"tci-StateId\":" + std::to_string(127 - i) +
           R"(,"qcl-Type1":{"referenceSignal":{"ssb":63},"qcl-Type":"typeC"}})";
}

RrcPdschTimeDomainResourceAlloc_t allocation(unsigned i)
{
    return {static_cast<UINT8>(i % 2), static_cast<UINT8>(127 - i), static_cast<UINT8>(i % 2), static_cast<UINT8>(i)};
}

std::string allocationJson(unsigned i)
{
    return object({i % 2 != 0 ? "\"k0\":" + std::to_string(i) : "",
                   i % 2 != 0 ? R"("mappingType":"typeB")" : R"("mappingType":"typeA")",
                   "\"startSymbolAndLength\":" + std::to_string(127 - i)});
}

RrcRateMatchPattern_t controlPattern(unsigned i)
{
    RrcRateMatchPattern_t cfg{};
    cfg.rateMatchPatternId = static_cast<UINT8>(3 - i);
    cfg.dummy = 1;
    cfg.Presence = RRC_PATTERN_TYPE_SETID;
    cfg.patternType.controlResourceSetId = static_cast<UINT8>(8 + i);
    return cfg;
}

std::string patternJson(unsigned i)
{
    return "{\"rateMatchPatternId\":" + std::to_string(3 - i) +
           ",\"patternType\":{\"controlResourceSet\":" + std::to_string(8 + i) + R"(},"dummy":"semiStatic"})";
}

// A pattern of bitmaps; octet i of the resource blocks in memory is i + 1, none where they fall on the tag behind.
RrcRateMatchPattern_t bitmapsPattern(UINT8 symbols)
{
    RrcRateMatchPattern_t cfg{};
    cfg.Presence = RRC_PATTERN_TYPE_BITMAPS;
    RrcBitMaps_t& bitmaps = cfg.patternType.bitmaps;
    UINT8 octets[40] = {};
    for (unsigned i = 0; i < 35; ++i)
    {
        octets[i] = static_cast<UINT8>(i + 1);
    }
    std::memcpy(bitmaps.resourceBlocks, octets, sizeof octets);
    bitmaps.symbolsInResourceBlockPresence = symbols;
    return cfg;
}

std::string blocksJson()
{
    std::string json;
    for (unsigned i = 0; i < 35; ++i)
    {
        const std::string octet = bits(i + 1, 8);
        json += octet.substr(1, 8);
    }
    return "\"resourceBlocks\":\"" + json.substr(0, 275) + "\"";
}

RrcRateMatchPatternGroup_t group(UINT8 count, UINT8 presense)
{
    RrcRateMatchPatternGroup_t cfg{count, presense, {}};
    for (unsigned i = 0; i < RRC_RATE_MATCH_PATTERN_GROUP_MAX; ++i)
    {
        cfg.rateMatchPatternGroup[i].cellLevel = static_cast<UINT8>(i % 4);
    }
    return cfg;
}

std::string groupJson(unsigned count, const std::string& level)
{
    return array(count, [&level](unsigned i) { return "{\"" + level + "\":" + std::to_string(i % 4) + "}"; });
}

RrcZpCsiRsResource_t zpResource(unsigned i)
{
    RrcZpCsiRsResource_t cfg{};
    cfg.zpCsiRsResourId = static_cast<UINT8>(31 - i);
    cfg.resourceMapping.presenceFreqDomain = RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE;
    cfg.resourceMapping.freqDomainAlloc.row4 = 5;
    cfg.resourceMapping.nrofPorts = 2;
    cfg.resourceMapping.firstOFDMSymbolInTimeDomain = 4;
    cfg.resourceMapping.cdmType = 1;
    cfg.resourceMapping.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE;
    cfg.resourceMapping.freqBand = {0, 24};
    cfg.bitMask = static_cast<UINT8>(i % 2);
    cfg.periodictityAndOffset = {13, 639};
    return cfg;
}

std::string zpResourceJson(unsigned i)
{
    return object({"\"zp-CSI-RS-ResourceId\":" + std::to_string(31 - i),
                   R"("resourceMapping":{"frequencyDomainAllocation":{"row4":"101"},"nrofPorts":"p4",)"
                   R"("firstOFDMSymbolInTimeDomain":4,"cdm-Type":"fd-CDM2","density":{"three":null},)"
                   R"("freqBand":{"startingRB":0,"nrofRBs":24}})",
                   i % 2 != 0 ? R"("periodicityAndOffset":{"slots640":639})" : ""});
}

RrcZpCsiRsResourceSet_t zpSet(unsigned i, unsigned count)
{
    RrcZpCsiRsResourceSet_t cfg{static_cast<UINT8>(15 - i), static_cast<UINT8>(count), {}};
    for (unsigned j = 0; j < RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_PER_SET; ++j)
    {
        cfg.zpCsiRsResourId[j] = static_cast<UINT8>(16 + j);
    }
    return cfg;
}

std::string zpSetJson(unsigned i, unsigned count)
{
    return "{\"zp-CSI-RS-ResourceSetId\":" + std::to_string(15 - i) +
           ",\"zp-CSI-RS-ResourceIdList\":" + numbers(count, 16) + "}";
}

class pdsch : public test::ComposerTest
{
protected:
    // Without lists and options.
    void fill()
    {
        *cfg = {};
        cfg->resourceAllocation = 2;
        cfg->rbgSize = 1;
        cfg->prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC;
        cfg->dataScramblingIDPdsch = 1023;
        cfg->dmrsDlPdschMappingTypeA = dmrs(1);
        cfg->dmrsDlPdschMappingTypeB = dmrs(4);
        cfg->vrbToPrbInterleaver = 1;
        cfg->pdschAggregationFactor = 2;
        cfg->rateMatchPatternGroup1 = group(2, RRC_RATE_MATCH_PATTERN_GROUP_CELL_LEVEL_PRESENCE);
        cfg->rateMatchPatternGroup2 = group(1, RRC_RATE_MATCH_PATTERN_GROUP_BWP_LEVEL_PRESENCE);
        cfg->mcsTable = 1;
        cfg->maxNrofCodeWordsScheduleByDCI = 1;
        cfg->pZpCsiRsResourceSet = zpSet(3, 2);
        for (unsigned i = 0; i < RRC_MAX_NROF_TCI_STATES; ++i)
        {
            cfg->tciStatesAddMod[i] = tciState(i);
            cfg->tciStateId[i] = static_cast<UINT8>(i);
        }
        cfg->pdschTimeDomainAllocList.num = 2;
        for (unsigned i = 0; i < RRC_MAX_NROF_DL_ALLOC; ++i)
        {
            cfg->pdschTimeDomainAllocList.alloc[i] = allocation(i);
        }
        for (unsigned i = 0; i < RRC_MAX_NROF_RATE_MATCH_PATTERNS; ++i)
        {
            cfg->rateMatchPattern[i] = controlPattern(i);
            cfg->rateMatchPatternId[i] = static_cast<UINT8>(i);
        }
        for (unsigned i = 0; i < RRC_MAX_NROF_ZP_CSI_RS_RESOURCE; ++i)
        {
            cfg->zpCsiRsResource[i] = zpResource(i);
            cfg->zpCsiRsResourceId[i] = static_cast<UINT8>(i);
        }
        for (unsigned i = 0; i < RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_SETS; ++i)
        {
            cfg->aperiodicZpCsiRsResourceSet[i] = zpSet(i, 1);
            cfg->zpCsiRsResourceSetId[i] = static_cast<UINT8>(i);
        }
    }

    // The members with a count: tci add, tci release, patterns, patterns released, zp resources, released, sets,
    // released.
    void count(UINT8 tci, UINT8 tciRel, UINT8 patterns, UINT8 patternsRel, UINT8 zp, UINT8 zpRel, UINT8 sets,
               UINT8 setsRel)
    {
        cfg->numTciStatesAddMod = tci;
        cfg->numTciStatesRel = tciRel;
        cfg->numRateMatchPatternAddMod = patterns;
        cfg->numRateMatchPatternRel = patternsRel;
        cfg->numZpCsiRsResouceAddMod = zp;
        cfg->numZpCsiRsResouceRel = zpRel;
        cfg->numZpCsiRsResourceSetAddMod = sets;
        cfg->numZpCsiRsResourceSetRel = setsRel;
    }

    void expectPdsch(const std::string& json)
    {
        SCOPED_TRACE(json);
        BWP_DownlinkDedicated_pdsch_Config choice{};
        EXPECT_EQ(rrcComposePdsch_Config(&context, &choice, cfg.get()), VOS_OK);
        EXPECT_EQ(choice.t, static_cast<OSUINT32>(T_BWP_DownlinkDedicated_pdsch_Config_setup));
        expectDecoded("PDSCH-Config", asn1PE_PDSCH_Config, *choice.u.setup, json);
        EXPECT_EQ(printed(), "");
    }

    // The line that the encoder refuses the composed PDSCH-Config with.
    std::string refused()
    {
        auto element = cleared<PDSCH_Config>();
        EXPECT_EQ(rrcComposePdsch_ConfigSetup(&context, element.get(), cfg.get()), VOS_OK);
        return encode(asn1PE_PDSCH_Config, *element);
    }

    void expectPattern(RrcRateMatchPattern_t record, const std::string& json)
    {
        SCOPED_TRACE(json);
        RateMatchPattern element{};
        EXPECT_EQ(rrcComposeRateMatchPattern(&context, &element, &record), VOS_OK);
        expectDecoded("RateMatchPattern", asn1PE_RateMatchPattern, element, json);
        EXPECT_EQ(printed(), "");
    }

    std::unique_ptr<RrcPdschCfg_t> cfg = cleared<RrcPdschCfg_t>();
};

} // namespace

extern "C" void __real_VOS_MemZero(void* p, size_t size);
extern "C" void __wrap_VOS_MemZero(void* p, size_t size);

extern "C" void __wrap_VOS_MemZero(void* p, size_t size)
{
    zeroed = true;
    zeroedAt = p;
    __real_VOS_MemZero(p, size);
}

TEST_F(pdsch, OnlyMandatoryValuesLeaveTheBundlingChoiceEmpty)
{
    cfg->resourceAllocation = 1;
    cfg->rbgSize = 1;
    PDSCH_Config element{};
    EXPECT_EQ(rrcComposePdsch_ConfigSetup(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.resourceAllocation, 1U);
    EXPECT_EQ(element.rbg_Size, 1U);
    EXPECT_EQ(element.prb_BundlingType.t, 0U);
    PDSCH_Config none{};
    EXPECT_EQ(std::memcmp(&element.m, &none.m, sizeof element.m), 0);
    EXPECT_EQ(encode(asn1PE_PDSCH_Config, element), "PDSCH-Config.prb-BundlingType: tag 0 is not in 1..2");
    EXPECT_EQ(printed(), "");
}

TEST_F(pdsch, EachMemberAloneAllAndNone)
{
    for (const unsigned mask : masks(19))
    {
        fill();
        cfg->bitMask = static_cast<UINT16>(mask & 0x7FF);
        const auto one = [mask](unsigned bit)
        {
            return static_cast<UINT8>(mask >> bit & 1);
        };
        count(one(11), one(12), one(13), one(14), one(15), one(16), one(17), one(18));
        expectPdsch(
            object({mask & 1 ? "\"dataScramblingIdentityPDSCH\":1023" : "",
                    mask & 2 ? R"("dmrs-DownlinkForPDSCH-MappingTypeA":{"setup":{"dmrs-Type":"type2"}})" : "",
                    mask & 4 ? R"("dmrs-DownlinkForPDSCH-MappingTypeB":{"setup":{"maxLength":"len2"}})" : "",
                    one(11) ? "\"tci-StatesToAddModList\":" + array(1, tciJson) : "",
                    one(12) ? R"("tci-StatesToReleaseList":[0])" : "",
                    mask & 8 ? R"("vrb-ToPRB-Interleaver":"n4")" : "",
                    R"("resourceAllocation":"dynamicSwitch")",
                    mask & 16 ? "\"pdsch-TimeDomainAllocationList\":{\"setup\":" + array(2, allocationJson) + "}" : "",
                    mask & 32 ? R"("pdsch-AggregationFactor":"n8")" : "",
                    one(13) ? "\"rateMatchPatternToAddModList\":" + array(1, patternJson) : "",
                    one(14) ? R"("rateMatchPatternToReleaseList":[0])" : "",
                    mask & 64 ? "\"rateMatchPatternGroup1\":" + groupJson(2, "cellLevel") : "",
                    mask & 128 ? "\"rateMatchPatternGroup2\":" + groupJson(1, "bwpLevel") : "",
                    R"("rbg-Size":"config2")",
                    mask & 256 ? R"("mcs-Table":"qam64LowSE")" : "",
                    mask & 512 ? R"("maxNrofCodeWordsScheduledByDCI":"n2")" : "",
                    R"("prb-BundlingType":{"staticBundling":{}})",
                    one(15) ? "\"zp-CSI-RS-ResourceToAddModList\":" + array(1, zpResourceJson) : "",
                    one(16) ? R"("zp-CSI-RS-ResourceToReleaseList":[0])" : "",
                    one(17) ? "\"aperiodic-ZP-CSI-RS-ResourceSetsToAddModList\":[" + zpSetJson(0, 1) + "]" : "",
                    one(18) ? R"("aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList":[0])" : "",
                    mask & 1024 ? "\"p-ZP-CSI-RS-ResourceSet\":{\"setup\":" + zpSetJson(3, 2) + "}" : ""}));
    }
}

TEST_F(pdsch, BitsWithoutAMemberAreNotLookedAt)
{
    fill();
    cfg->bitMask = 0xF800;
    expectPdsch(
        R"({"resourceAllocation":"dynamicSwitch","rbg-Size":"config2","prb-BundlingType":{"staticBundling":{}}})");
}

TEST_F(pdsch, FullLists)
{
    fill();
    count(128, 128, 4, 4, 32, 32, 16, 16);
    cfg->bitMask = RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE | RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE |
                   RRC_PDSCH_CFG_RATE_PATTERN_GROUP2_PRESENCE | RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE;
    cfg->pdschTimeDomainAllocList.num = 16;
    cfg->rateMatchPatternGroup1.numRateMatchPattern = 8;
    cfg->rateMatchPatternGroup2.numRateMatchPattern = 8;
    cfg->pZpCsiRsResourceSet = zpSet(0, 16);
    expectPdsch(object(
        {"\"tci-StatesToAddModList\":" + array(128, tciJson), "\"tci-StatesToReleaseList\":" + numbers(128, 0),
         R"("resourceAllocation":"dynamicSwitch")",
         "\"pdsch-TimeDomainAllocationList\":{\"setup\":" + array(16, allocationJson) + "}",
         "\"rateMatchPatternToAddModList\":" + array(4, patternJson),
         "\"rateMatchPatternToReleaseList\":" + numbers(4, 0),
         "\"rateMatchPatternGroup1\":" + groupJson(8, "cellLevel"),
         "\"rateMatchPatternGroup2\":" + groupJson(8, "bwpLevel"), R"("rbg-Size":"config2")",
         R"("prb-BundlingType":{"staticBundling":{}})",
         "\"zp-CSI-RS-ResourceToAddModList\":" + array(32, zpResourceJson),
         "\"zp-CSI-RS-ResourceToReleaseList\":" + numbers(32, 0),
         "\"aperiodic-ZP-CSI-RS-ResourceSetsToAddModList\":" + array(16, [](unsigned i) { return zpSetJson(i, 1); }),
         "\"aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList\":" + numbers(16, 0),
         "\"p-ZP-CSI-RS-ResourceSet\":{\"setup\":" + zpSetJson(0, 16) + "}"}));
}

// The records' arrays are left where they end, the counts go on.
// What is above them does not look, whoever calls them does.
TEST_F(pdsch, ListsOfWhatIsReleasedSucceed)
{
    count(0, 2, 0, 2, 0, 2, 0, 2);
    const auto released = [&](auto list, auto composer)
    {
        EXPECT_EQ(composer(&list, cfg.get()), VOS_OK);
        return list.n;
    };
    EXPECT_EQ(released(PDSCH_Config_tci_StatesToReleaseList{}, rrcComposetci_StatesRelase), 2);
    EXPECT_EQ(released(PDSCH_Config_rateMatchPatternToReleaseList{}, rrcComposetci_RateMatchPatternRelease), 2);
    EXPECT_EQ(released(PDSCH_Config_zp_CSI_RS_ResourceToReleaseList{}, rrcComposezp_CSI_RS_ResourceReleaes), 2);
    EXPECT_EQ(
        released(PDSCH_Config_aperiodic_ZP_CSI_RS_ResourceSetsToReleaseList{}, rrcComposezp_CSI_RS_ResourceSetRelease),
        2);
}

TEST_F(pdsch, CountsPastTheirBoundAreLeftToTheEncoder)
{
    const struct
    {
        UINT8 RrcPdschCfg_t::*number;
        unsigned bound;
        const char* list;
    } cases[] = {
        {&RrcPdschCfg_t::numTciStatesAddMod, 128, "tci-StatesToAddModList"},
        {&RrcPdschCfg_t::numTciStatesRel, 128, "tci-StatesToReleaseList"},
        {&RrcPdschCfg_t::numRateMatchPatternAddMod, 4, "rateMatchPatternToAddModList"},
        {&RrcPdschCfg_t::numRateMatchPatternRel, 4, "rateMatchPatternToReleaseList"},
        {&RrcPdschCfg_t::numZpCsiRsResouceAddMod, 32, "zp-CSI-RS-ResourceToAddModList"},
        {&RrcPdschCfg_t::numZpCsiRsResouceRel, 32, "zp-CSI-RS-ResourceToReleaseList"},
        {&RrcPdschCfg_t::numZpCsiRsResourceSetAddMod, 16, "aperiodic-ZP-CSI-RS-ResourceSetsToAddModList"},
        {&RrcPdschCfg_t::numZpCsiRsResourceSetRel, 16, "aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList"},
    };
    for (const auto& [number, bound, list] : cases)
    {
        for (const unsigned past : {bound + 1, 200U, 255U})
        {
            fill();
            *cfg.*number = static_cast<UINT8>(past);
            EXPECT_EQ(refused(), "PDSCH-Config." + std::string(list) + ": " + std::to_string(past) +
                                     " elements, not 1.." + std::to_string(bound));
        }
    }
    for (const unsigned past : {17U, 255U})
    {
        const std::string size = ": " + std::to_string(past) + " elements, not 1..16";
        fill();
        cfg->bitMask = RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE;
        cfg->pdschTimeDomainAllocList.num = static_cast<UINT8>(past);
        EXPECT_EQ(refused(), "PDSCH-Config.pdsch-TimeDomainAllocationList.setup" + size);
        cfg->bitMask = RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE;
        cfg->pZpCsiRsResourceSet.numzpCsiRsResourId = static_cast<UINT8>(past);
        EXPECT_EQ(refused(), "PDSCH-Config.p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList" + size);
    }
    for (const unsigned past : {9U, 255U})
    {
        const std::string size = ": " + std::to_string(past) + " elements, not 1..8";
        fill();
        cfg->bitMask = RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE;
        cfg->rateMatchPatternGroup1.numRateMatchPattern = static_cast<UINT8>(past);
        EXPECT_EQ(refused(), "PDSCH-Config.rateMatchPatternGroup1" + size);
        cfg->bitMask = RRC_PDSCH_CFG_RATE_PATTERN_GROUP2_PRESENCE;
        cfg->rateMatchPatternGroup2.numRateMatchPattern = static_cast<UINT8>(past);
        EXPECT_EQ(refused(), "PDSCH-Config.rateMatchPatternGroup2" + size);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdsch, ListsOfNoElementsBehindABitAreLeftToTheEncoder)
{
    fill();
    cfg->bitMask = RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE;
    cfg->pdschTimeDomainAllocList.num = 0;
    EXPECT_EQ(refused(), "PDSCH-Config.pdsch-TimeDomainAllocationList.setup: 0 elements, not 1..16");
    cfg->bitMask = RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE;
    cfg->rateMatchPatternGroup1.numRateMatchPattern = 0;
    EXPECT_EQ(refused(), "PDSCH-Config.rateMatchPatternGroup1: 0 elements, not 1..8");
    cfg->bitMask = RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE;
    cfg->pZpCsiRsResourceSet.numzpCsiRsResourId = 0;
    EXPECT_EQ(refused(), "PDSCH-Config.p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList: 0 elements, not 1..16");
}

// A list that failed half-way stays as far as it was built, and the composition goes on and succeeds.
TEST_F(pdsch, HeapExhaustedAtEachRequest)
{
    fill();
    count(2, 1, 2, 1, 2, 1, 2, 1);
    cfg->bitMask = 0x7FF;
    cfg->dmrsDlPdschMappingTypeA = dmrs(63);
    cfg->dmrsDlPdschMappingTypeB = dmrs(63);
    cfg->rateMatchPattern[0] = bitmapsPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE);
    cfg->rateMatchPatternGroup2.numRateMatchPattern = 2;

    // Request 0 is the setup, 1 to 4 are the DMRS with their PTRS, 7 the list of allocations, 18 the bundling.
    const struct
    {
        unsigned firstNode;
        unsigned lastNode;
        const char* line;
    } lists[] = {
        {5, 6, "pNode Or pTCI_State is NULL\r\n"},
        {8, 9, "pNode Or pAllocationItem is NULL\r\n"},
        {10, 13, "pNode Or pRateMatchPattern is NULL\r\n"},  // the first with bitmaps and symbols
        {14, 15, "pNode Or pItem is NULL\r\n"},              // group 1
        {16, 17, "pNode Or pItem is NULL\r\n"},              // group 2
        {19, 21, "pNode Or pZp_CSI_RS_ResItem is NULL\r\n"}, // each with a bit string
        {23, 24, "pNode Or pZp_CSI_RS_ResSetItem is NULL\r\n"},
    };
    constexpr unsigned requests = 26;
    for (unsigned successes = 0; successes <= requests; ++successes)
    {
        SCOPED_TRACE(successes);
        std::string lines;
        for (const auto& list : lists)
        {
            // A list without its holder is not begun.
            const bool begun = successes != 0 && !(list.firstNode == 8 && successes < 8);
            lines += begun && successes <= list.lastNode ? list.line : "";
        }
        BWP_DownlinkDedicated element{};
        element.m.pdsch_ConfigPresent = 1;
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposePdsch_Config(&context, &element.pdsch_Config, cfg.get()), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), successes < requests);
        }
        EXPECT_EQ(printed(), lines);
        const std::string octets = encode(asn1PE_BWP_DownlinkDedicated, element);
        EXPECT_EQ(octets.find("BWP-DownlinkDedicated.pdsch-Config") == 0, successes < requests) << octets;
    }
}

TEST_F(pdsch, ListCutShortIsSentAsFarAsItWasBuilt)
{
    fill();
    count(3, 0, 0, 0, 0, 0, 0, 0);
    PDSCH_Config element{};
    {
        const HeapFault fault(2);
        EXPECT_EQ(rrcComposetci_StatesToAddMod(&context, &element.tci_StatesToAddModList, cfg.get()), VOS_ERROR);
    }
    EXPECT_EQ(printed(), "pNode Or pTCI_State is NULL\r\n");
    EXPECT_EQ(element.tci_StatesToAddModList.count, 2U);
    element.m.tci_StatesToAddModListPresent = 1;
    (void)rrcComposePrb_BundlingType(&context, &element.prb_BundlingType, cfg.get());
    expectDecoded("PDSCH-Config", asn1PE_PDSCH_Config, element,
                  "{\"tci-StatesToAddModList\":" + array(2, tciJson) +
                      R"(,"resourceAllocation":"resourceAllocationType0","rbg-Size":"config1",)"
                      R"("prb-BundlingType":{"staticBundling":{}}})");
}

TEST_F(pdsch, NullGuards)
{
    BWP_DownlinkDedicated_pdsch_Config choice{};
    EXPECT_EQ(rrcComposePdsch_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdsch_Config", "pPdsch_Config"));
    EXPECT_EQ(rrcComposePdsch_Config(&context, nullptr, cfg.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdsch_Config", "pPdsch_Config"));
    EXPECT_EQ(rrcComposePdsch_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdsch_Config", "pRrcdschCfg"));
    EXPECT_EQ(choice.t, 0U);

    auto element = cleared<PDSCH_Config>();
    DMRS_DownlinkConfig dmrsElement{};
    EXPECT_EQ(rrcComposeTypeSetup(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTypeSetup", "pSetup"));
    EXPECT_EQ(rrcComposeTypeSetup(&context, &dmrsElement, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTypeSetup", "pRrcTypeA"));
    EXPECT_EQ(rrcComposePhaseTrackingRS(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePhaseTrackingRS", "pPhaseTrackingRS"));
    EXPECT_EQ(rrcComposePhaseTrackingRS(&context, &dmrsElement.phaseTrackingRS, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePhaseTrackingRS", "pRrcPhaseTrackingRS"));
    PDSCH_TimeDomainResourceAllocationList list{};
    EXPECT_EQ(rrcComposeAllocationListSetup(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeAllocationListSetup", "pSetup"));
    EXPECT_EQ(rrcComposeAllocationListSetup(&context, &list, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeAllocationListSetup", "pRrcPdschTimeDomainAllocList"));
    EXPECT_EQ(rrcComposetci_RateMatchPatternGroup(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposetci_RateMatchPatternGroup", "pRateMatchPatternGroup1"));
    EXPECT_EQ(rrcComposetci_RateMatchPatternGroup(&context, &element->rateMatchPatternGroup2, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposetci_RateMatchPatternGroup", "pRrcGroup1"));
    EXPECT_EQ(rrcComposePZP_CSI_RS_ResourceSetPresent(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePZP_CSI_RS_ResourceSetPresent", "pP_ZP_CSI_RS_ResourceSet"));
    EXPECT_EQ(rrcComposePZP_CSI_RS_ResourceSetPresent(&context, &element->p_ZP_CSI_RS_ResourceSet, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePZP_CSI_RS_ResourceSetPresent", "pRrcPZpCsiRsResourceSet"));
}

// The wrappers without guards of their own pass the guards of the setup on; the allocations' wrapper does not.
TEST_F(pdsch, SetupsRefusingTheirRecord)
{
    PDSCH_Config element{};
    RrcDmrsDlCfg_t* const noDmrs = nullptr;
    EXPECT_EQ(
        rrcComposeDmrs_DownlinkForPDSCH_MappingTypeA(&context, &element.dmrs_DownlinkForPDSCH_MappingTypeA, noDmrs),
        VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTypeSetup", "pRrcTypeA") + "rrcComposeTypeSetup Error\r\n");
    EXPECT_EQ(
        rrcComposeDmrs_DownlinkForPDSCH_MappingTypeB(&context, &element.dmrs_DownlinkForPDSCH_MappingTypeB, noDmrs),
        VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTypeSetup", "pRrcTypeA") + "rrcComposeTypeSetup Error\r\n");
    EXPECT_EQ(rrcComposePdsch_TimeDomainAllocationList(&context, &element.pdsch_TimeDomainAllocationList, nullptr),
              VOS_OK);
    EXPECT_EQ(printed(), nullLine("rrcComposeAllocationListSetup", "pRrcPdschTimeDomainAllocList"));
}

// DMRS and PTRS

TEST_F(pdsch, DmrsOptionsOfBothMappingTypes)
{
    for (const unsigned mask : masks(6))
    {
        RrcDmrsDlCfg_t record = dmrs(mask);
        PDSCH_Config element{};
        EXPECT_EQ(rrcComposeDmrs_DownlinkForPDSCH_MappingTypeA(&context, &element.dmrs_DownlinkForPDSCH_MappingTypeA,
                                                               &record),
                  VOS_OK);
        EXPECT_EQ(rrcComposeDmrs_DownlinkForPDSCH_MappingTypeB(&context, &element.dmrs_DownlinkForPDSCH_MappingTypeB,
                                                               &record),
                  VOS_OK);
        EXPECT_EQ(element.dmrs_DownlinkForPDSCH_MappingTypeA.t, 2U);
        EXPECT_EQ(element.dmrs_DownlinkForPDSCH_MappingTypeB.t, 2U);
        expectDecoded("DMRS-DownlinkConfig", asn1PE_DMRS_DownlinkConfig,
                      *element.dmrs_DownlinkForPDSCH_MappingTypeA.u.setup, dmrsJson(mask));
        expectDecoded("DMRS-DownlinkConfig", asn1PE_DMRS_DownlinkConfig,
                      *element.dmrs_DownlinkForPDSCH_MappingTypeB.u.setup, dmrsJson(mask));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdsch, PtrsOptions)
{
    for (const unsigned mask : masks(4))
    {
        RrcPtrsDlCfg_t record{static_cast<UINT8>(mask), {276, 1}, {29, 0, 7}, 0, 2};
        DMRS_DownlinkConfig_phaseTrackingRS choice{};
        EXPECT_EQ(rrcComposePhaseTrackingRS(&context, &choice, &record), VOS_OK);
        EXPECT_EQ(choice.t, 2U);
        expectDecoded(
            "PTRS-DownlinkConfig", asn1PE_PTRS_DownlinkConfig, *choice.u.setup,
            object({mask & 1 ? "\"frequencyDensity\":[276,1]" : "", mask & 2 ? "\"timeDensity\":[29,0,7]" : "",
                    mask & 4 ? "\"epre-Ratio\":0" : "", mask & 8 ? R"("resourceElementOffset":"offset11")" : ""}));
    }
    EXPECT_EQ(printed(), "");
}

// TCI states

TEST_F(pdsch, QclOptions)
{
    for (const unsigned mask : masks(2))
    {
        for (const unsigned presence : {0U, 1U, 0xFEU})
        {
            RrcQclInfo_t record{3, static_cast<UINT8>(presence), {42}, static_cast<UINT8>(mask), 31, 4};
            QCL_Info element{};
            EXPECT_EQ(rrcComposeQcl_Type(&element, &record), VOS_OK);
            expectDecoded(
                "QCL-Info", asn1PE_QCL_Info, element,
                object({mask & 1 ? "\"cell\":31" : "", mask & 2 ? "\"bwp-Id\":4" : "",
                        presence == 1 ? R"("referenceSignal":{"ssb":42})" : R"("referenceSignal":{"csi-rs":42})",
                        R"("qcl-Type":"typeD")"}));
        }
    }
}

TEST_F(pdsch, TciStateHasItsSecondTypeByItsBit)
{
    const std::string first = R"("qcl-Type1":{"referenceSignal":{"ssb":63},"qcl-Type":"typeC"})";
    const std::string second = R"("qcl-Type2":{"cell":1,"referenceSignal":{"csi-rs":191},"qcl-Type":"typeB"})";
    for (const unsigned mask : {0U, 1U, 0xFEU})
    {
        RrcTciState_t record = tciState(0);
        record.bitMask = static_cast<UINT8>(mask);
        record.qclType2 = {1, 0, {191}, RRC_QCI_INFO_CELL_PRESENCE, 1, 4};
        TCI_State element{};
        EXPECT_EQ(rrcComposetci_StatesToAddItem(&element, &record), VOS_OK);
        expectDecoded("TCI-State", asn1PE_TCI_State, element,
                      object({"\"tci-StateId\":127", first, mask == 1 ? second : ""}));
    }
}

// Rate matching

TEST_F(pdsch, PatternWithBothTypesIsTheControlResourceSet)
{
    RrcRateMatchPattern_t record = controlPattern(0);
    record.Presence = RRC_PATTERN_TYPE_BITMAPS | RRC_PATTERN_TYPE_SETID;
    expectPattern(record, patternJson(0));
}

TEST_F(pdsch, PatternWithoutTypeIsLeftToTheEncoder)
{
    RrcRateMatchPattern_t record = controlPattern(0);
    record.Presence = 0xFC;
    RateMatchPattern element{};
    EXPECT_EQ(rrcComposeRateMatchPattern(&context, &element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_RateMatchPattern, element), "RateMatchPattern.patternType: tag 0 is not in 1..2");
}

TEST_F(pdsch, PatternHasItsSpacingByItsBit)
{
    RrcRateMatchPattern_t record = controlPattern(1);
    record.subCarrierSapcing = 4;
    record.bitMask = 0xFE;
    expectPattern(record, patternJson(1));
    record.bitMask = RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE;
    expectPattern(record, R"({"rateMatchPatternId":2,"patternType":{"controlResourceSet":9},)"
                          R"("subcarrierSpacing":"kHz240","dummy":"semiStatic"})");
}

TEST_F(pdsch, BitmapsOfOneSlot)
{
    RrcRateMatchPattern_t record = bitmapsPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE);
    record.patternType.bitmaps.symbolsInResourceBlock.oneSlot = 0xE001;
    expectPattern(record, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":{)" + blocksJson() +
                              ",\"symbolsInResourceBlock\":{\"oneSlot\":" + bits(0xE001, 14) +
                              R"(}}},"dummy":"dynamic"})");
}

TEST_F(pdsch, BitmapsOfTwoSlotsKeepTheLow16Bits)
{
    RrcRateMatchPattern_t record = bitmapsPattern(RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE);
    record.patternType.bitmaps.symbolsInResourceBlock.twoSLots = 0xABCDEF;
    expectPattern(record, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":{)" + blocksJson() +
                              ",\"symbolsInResourceBlock\":{\"twoSlots\":" + bits(0xCDEF, 28) +
                              R"(}}},"dummy":"dynamic"})");
}

TEST_F(pdsch, BitmapsWithBothSlotsAreThoseOfTwo)
{
    RrcRateMatchPattern_t record =
        bitmapsPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE | RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE);
    record.patternType.bitmaps.symbolsInResourceBlock.twoSLots = 0x1234;
    expectPattern(record, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":{)" + blocksJson() +
                              ",\"symbolsInResourceBlock\":{\"twoSlots\":" + bits(0x1234, 28) +
                              R"(}}},"dummy":"dynamic"})");
}

TEST_F(pdsch, TwoSlotsClearTheHolderOfTheOne)
{
    RrcBitMaps_t record{};
    record.symbolsInResourceBlock.twoSLots = 0xFFFF;
    RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock element{};

    record.symbolsInResourceBlockPresence = RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE;
    EXPECT_EQ(rrcComposeSymbolsInResourceBlock(&context, &element, &record), VOS_OK);
    EXPECT_EQ(element.u.oneSlot->numbits, 14U);

    zeroed = false;
    record.symbolsInResourceBlockPresence |= RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
    EXPECT_EQ(rrcComposeSymbolsInResourceBlock(&context, &element, &record), VOS_OK);
    EXPECT_TRUE(zeroed);
    ASSERT_NE(zeroedAt, nullptr);
    EXPECT_NE(zeroedAt, element.u.twoSlots) << "the one slot, not the two";
    EXPECT_EQ(static_cast<const ASN1BitStr32*>(zeroedAt)->numbits, 0U);
    EXPECT_EQ(element.u.twoSlots->numbits, 28U);

    zeroed = false;
    record.symbolsInResourceBlockPresence = RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
    EXPECT_EQ(rrcComposeSymbolsInResourceBlock(&context, &element, &record), VOS_OK);
    EXPECT_TRUE(zeroed);
    EXPECT_EQ(zeroedAt, nullptr) << "no one slot, so nothing";
    EXPECT_EQ(element.t, 2U);
    EXPECT_EQ(element.u.twoSlots->numbits, 28U);
    EXPECT_EQ(element.u.twoSlots->data[3], 0xF0);
}

TEST_F(pdsch, SurplusResourceBlocksFallOnTheSlotsTag)
{
    // Octets 36 to 39 of the 40 lie where the tag of the choice behind the 35 does.
    RrcBitMaps_t record{};
    UINT8 octets[40] = {};
    octets[34] = 0xE0;
    octets[35] = 0xFF;
    octets[36] = 7;
    std::memcpy(record.resourceBlocks, octets, sizeof octets);
    RateMatchPattern_patternType_bitmaps element{};
    EXPECT_EQ(rrcComposeBitmaps(&context, &element, &record), VOS_OK);
    EXPECT_EQ(element.resourceBlocks[34], 0xE0);
    EXPECT_EQ(element.symbolsInResourceBlock.t, 7U);
    EXPECT_EQ(element.symbolsInResourceBlock.u.oneSlot, nullptr);

    // A slot writes the tag anew.
    record.symbolsInResourceBlockPresence = RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE;
    EXPECT_EQ(rrcComposeBitmaps(&context, &element, &record), VOS_OK);
    EXPECT_EQ(element.symbolsInResourceBlock.t, 1U);

    RrcRateMatchPattern_t pattern{};
    pattern.Presence = RRC_PATTERN_TYPE_BITMAPS;
    for (const unsigned tag : {7U, 1U, 0U})
    {
        octets[36] = static_cast<UINT8>(tag);
        std::memcpy(pattern.patternType.bitmaps.resourceBlocks, octets, sizeof octets);
        RateMatchPattern whole{};
        EXPECT_EQ(rrcComposeRateMatchPattern(&context, &whole, &pattern), VOS_OK);
        EXPECT_EQ(encode(asn1PE_RateMatchPattern, whole),
                  "RateMatchPattern.patternType.bitmaps.symbolsInResourceBlock" +
                      (tag == 1 ? ".oneSlot: a null pointer" : ": tag " + std::to_string(tag) + " is not in 1..2"));
    }
}

TEST_F(pdsch, BitmapsHaveTheirPatternByItsBit)
{
    const std::string slots = ",\"symbolsInResourceBlock\":{\"oneSlot\":" + bits(0, 14) + "}";
    RrcRateMatchPattern_t record = bitmapsPattern(RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE);
    RrcBitMaps_t& bitmaps = record.patternType.bitmaps;
    bitmaps.periodictyAndPatternPresence = RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE;
    bitmaps.periodictyAndPattern.n10 = 0x201;
    bitmaps.bitMask = 0xFE;
    expectPattern(record, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":{)" + blocksJson() + slots +
                              R"(}},"dummy":"dynamic"})");
    bitmaps.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
    expectPattern(record, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":{)" + blocksJson() + slots +
                              R"(,"periodicityAndPattern":{"n10":"1000000001"}}},"dummy":"dynamic"})");
}

TEST_F(pdsch, BitmapsWithoutHeapAreLeftToTheEncoder)
{
    const char* const refusedAt[] = {"", ".bitmaps.symbolsInResourceBlock", ".bitmaps.periodicityAndPattern"};
    const char* const tags[] = {"1..2", "1..2", "1..7"};
    RrcRateMatchPattern_t record = bitmapsPattern(RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE);
    record.patternType.bitmaps.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
    record.patternType.bitmaps.periodictyAndPatternPresence = RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE;
    for (unsigned successes = 0; successes < 3; ++successes)
    {
        RateMatchPattern element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeRateMatchPattern(&context, &element, &record), VOS_OK);
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(encode(asn1PE_RateMatchPattern, element), std::string("RateMatchPattern.patternType") +
                                                                refusedAt[successes] + ": tag 0 is not in " +
                                                                tags[successes]);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdsch, OneLevelForAllPatternsOfAGroup)
{
    const struct
    {
        UINT8 presense;
        const char* level;
    } cases[] = {{1, "cellLevel"}, {2, "bwpLevel"}, {3, "bwpLevel"}};
    for (const auto& [presense, level] : cases)
    {
        RrcRateMatchPatternGroup_t record = group(5, presense);
        RateMatchPatternGroup list{};
        EXPECT_EQ(rrcComposetci_RateMatchPatternGroup(&context, &list, &record), VOS_OK);
        expectDecoded("RateMatchPatternGroup", asn1PE_RateMatchPatternGroup, list, groupJson(5, level));
    }
    RrcRateMatchPatternGroup_t record = group(1, 0xFC);
    RateMatchPatternGroup list{};
    EXPECT_EQ(rrcComposetci_RateMatchPatternGroup(&context, &list, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_RateMatchPatternGroup, list), "RateMatchPatternGroup[0]: tag 0 is not in 1..2");
    EXPECT_EQ(printed(), "");
}

// PRB bundling

TEST_F(pdsch, Bundling)
{
    const std::string head = R"({"resourceAllocation":"dynamicSwitch","rbg-Size":"config2","prb-BundlingType":)";
    for (const unsigned mask : masks(1))
    {
        fill();
        cfg->staticbundingtype = {static_cast<UINT8>(mask), 1};
        expectPdsch(head + "{\"staticBundling\":" + object({mask & 1 ? R"("bundleSize":"wideband")" : ""}) + "}}");
    }
    for (const unsigned mask : masks(2))
    {
        for (const unsigned type : {2U, 3U})
        {
            fill();
            cfg->prbBitmask = static_cast<UINT8>(type);
            cfg->staticbundingtype = {1, 1};
            cfg->dynamicbundingtype = {static_cast<UINT8>(mask), 3, 1};
            expectPdsch(head + "{\"dynamicBundling\":" +
                        object({mask & 1 ? R"("bundleSizeSet1":"n4-wideband")" : "",
                                mask & 2 ? R"("bundleSizeSet2":"wideband")" : ""}) +
                        "}}");
        }
    }
}

TEST_F(pdsch, BundlingWithoutHeapIsLeftToTheEncoder)
{
    fill();
    for (const unsigned type : {1U, 2U})
    {
        cfg->prbBitmask = static_cast<UINT8>(type);
        PDSCH_Config element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposePdsch_ConfigSetup(&context, &element, cfg.get()), VOS_OK);
        }
        EXPECT_EQ(encode(asn1PE_PDSCH_Config, element), "PDSCH-Config.prb-BundlingType: tag 0 is not in 1..2");
    }
    EXPECT_EQ(printed(), "");
}

// Zero-power CSI-RS

TEST_F(pdsch, ZpResourceWith40SlotsGoesOutAs32)
{
    for (const unsigned offset : {31U, 0x11FU})
    {
        RrcZpCsiRsResource_t record = zpResource(1);
        record.periodictityAndOffset = {8, static_cast<UINT16>(offset)};
        ZP_CSI_RS_Resource element{};
        EXPECT_EQ(rrcComposeZP_CSI_RS_Resource(&context, &element, &record), VOS_OK);
        std::string json = zpResourceJson(1);
        json.replace(json.find(R"("slots640":639)"), 14, "\"slots32\":31");
        expectDecoded("ZP-CSI-RS-Resource", asn1PE_ZP_CSI_RS_Resource, element, json);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdsch, ZpResourceWithAnUnknownPeriodPrintsAndKeepsTheTag)
{
    for (const unsigned period : {0U, 14U})
    {
        RrcZpCsiRsResource_t record = zpResource(1);
        record.periodictityAndOffset.slotsPeriod = static_cast<UINT8>(period);
        ZP_CSI_RS_Resource element{};
        EXPECT_EQ(rrcComposeZP_CSI_RS_Resource(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), noPeriod);
        EXPECT_EQ(element.periodicityAndOffset.t, period);
        EXPECT_EQ(encode(asn1PE_ZP_CSI_RS_Resource, element),
                  "ZP-CSI-RS-Resource.periodicityAndOffset: tag " + std::to_string(period) + " is not in 1..13");
    }
}

TEST_F(pdsch, RecordOrder)
{
    {
        using R = RrcPdschCfg_t;
        EXPECT_TRUE(rising({offsetof(R, resourceAllocation),
                            offsetof(R, rbgSize),
                            offsetof(R, prbBitmask),
                            offsetof(R, staticbundingtype),
                            offsetof(R, dynamicbundingtype),
                            offsetof(R, bitMask),
                            offsetof(R, dataScramblingIDPdsch),
                            offsetof(R, dmrsDlPdschMappingTypeA),
                            offsetof(R, dmrsDlPdschMappingTypeB),
                            offsetof(R, numTciStatesAddMod),
                            offsetof(R, tciStatesAddMod),
                            offsetof(R, numTciStatesRel),
                            offsetof(R, tciStateId),
                            offsetof(R, vrbToPrbInterleaver),
                            offsetof(R, pdschTimeDomainAllocList),
                            offsetof(R, pdschAggregationFactor),
                            offsetof(R, numRateMatchPatternAddMod),
                            offsetof(R, rateMatchPattern),
                            offsetof(R, numRateMatchPatternRel),
                            offsetof(R, rateMatchPatternId),
                            offsetof(R, rateMatchPatternGroup1),
                            offsetof(R, rateMatchPatternGroup2),
                            offsetof(R, mcsTable),
                            offsetof(R, maxNrofCodeWordsScheduleByDCI),
                            offsetof(R, numZpCsiRsResouceAddMod),
                            offsetof(R, zpCsiRsResource),
                            offsetof(R, numZpCsiRsResouceRel),
                            offsetof(R, zpCsiRsResourceId),
                            offsetof(R, numZpCsiRsResourceSetAddMod),
                            offsetof(R, aperiodicZpCsiRsResourceSet),
                            offsetof(R, numZpCsiRsResourceSetRel),
                            offsetof(R, zpCsiRsResourceSetId),
                            offsetof(R, pZpCsiRsResourceSet)}));
    }
    {
        using R = RrcDmrsDlCfg_t;
        EXPECT_TRUE(
            rising({offsetof(R, bitMask), offsetof(R, dmrsType), offsetof(R, dmrsAdditionalPos), offsetof(R, maxLength),
                    offsetof(R, scramblingID0), offsetof(R, scramblingID1), offsetof(R, phaseTrackingRS)}));
    }
    {
        using R = RrcPtrsDlCfg_t;
        EXPECT_TRUE(rising({offsetof(R, bitMask), offsetof(R, freqDensity), offsetof(R, timeDensity),
                            offsetof(R, epreRatio), offsetof(R, resourceElementOffset)}));
    }
    {
        using R = RrcTciState_t;
        EXPECT_TRUE(
            rising({offsetof(R, tciStateId), offsetof(R, qclType1), offsetof(R, bitMask), offsetof(R, qclType2)}));
    }
    {
        using R = RrcQclInfo_t;
        EXPECT_TRUE(rising({offsetof(R, qclType), offsetof(R, Presence), offsetof(R, refSignal), offsetof(R, bitMask),
                            offsetof(R, cellIdx), offsetof(R, bwpId)}));
        EXPECT_EQ(sizeof(R), 6U);
    }
    {
        using R = RrcPdschTimeDomainResourceAlloc_t;
        EXPECT_TRUE(
            rising({offsetof(R, mappingType), offsetof(R, startSymAdnLen), offsetof(R, bitMask), offsetof(R, k0)}));
        using L = RrcPdschTimeDomainResourceAllocList_t;
        EXPECT_TRUE(rising({offsetof(L, num), offsetof(L, alloc)}));
    }
    {
        using R = RrcRateMatchPatternGroup_t;
        EXPECT_TRUE(
            rising({offsetof(R, numRateMatchPattern), offsetof(R, presense), offsetof(R, rateMatchPatternGroup)}));
        EXPECT_EQ(sizeof R::rateMatchPatternGroup, 8U);
    }
    {
        using R = RrcZpCsiRsResource_t;
        EXPECT_TRUE(rising({offsetof(R, zpCsiRsResourId), offsetof(R, resourceMapping), offsetof(R, bitMask),
                            offsetof(R, periodictityAndOffset)}));
        using S = RrcZpCsiRsResourceSet_t;
        EXPECT_TRUE(
            rising({offsetof(S, zpCsiRsResourceSetId), offsetof(S, numzpCsiRsResourId), offsetof(S, zpCsiRsResourId)}));
    }
    EXPECT_TRUE(rising({offsetof(staticBundingType, bitMask), offsetof(staticBundingType, bundleSize)}));
    EXPECT_TRUE(rising({offsetof(dynamicBundingType, bitMask), offsetof(dynamicBundingType, bundleSizeSet1),
                        offsetof(dynamicBundingType, bundleSIzeSet2)}));
}
