#include <algorithm>
#include <memory>
#include <string>

#include "NR-RRC-Pdus.h"
#include "gnbCommon/duCompose.h"
#include "support/ComposerTest.h"

using test::HeapFault;

namespace
{

class bwpDownlinkCommon : public test::ComposerTest
{
protected:
    static std::unique_ptr<NrBwpDownLinkCommon_t> bwp(UINT16 bitmask)
    {
        auto record = cleared<NrBwpDownLinkCommon_t>();
        record->bitmask = bitmask;
        record->bwp = {37949, 1};
        return record;
    }

    // The PDCCH record of a bandwidth part that has nothing else, with these bits.
    static std::unique_ptr<NrBwpDownLinkCommon_t> pdcch(UINT8 bitmask)
    {
        auto record = bwp(NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE);
        record->pdcchCfgCommon.bitmask = bitmask;
        return record;
    }

    // A common search space with these bits.
    static std::unique_ptr<NrBwpDownLinkCommon_t> searchSpace(UINT8 bitmask)
    {
        auto record = pdcch(0);
        record->pdcchCfgCommon.numCommonSearchSpaces = 1;
        NrSearchSpace_t& space = record->pdcchCfgCommon.commonSearchSpace[0];
        space.bitmask = bitmask;
        space.searchSpaceId = 39;
        space.controlResourceSetId = 11;
        space.monitoringSlotPeriodicity = 1;
        space.duration = 2559;
        space.monitoringSymbolsWithinSlot = 0xE001;
        space.nrofCandidates = {7, 6, 5, 4, 3};
        space.searchSpaceType = 2;
        space.dciFormats = 1;
        return record;
    }

    void expectBwp(NrBwpDownLinkCommon_t& record, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<BWP_DownlinkCommon>();
        EXPECT_EQ(duComposeBWP_DownlinkCommon(&context, element.get(), &record), VOS_OK);
        expectDecoded("BWP-DownlinkCommon", asn1PE_BWP_DownlinkCommon, *element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectPdcch(NrBwpDownLinkCommon_t& record, const std::string& members);

    std::string refused(NrBwpDownLinkCommon_t& record)
    {
        const auto element = cleared<BWP_DownlinkCommon>();
        EXPECT_EQ(duComposeBWP_DownlinkCommon(&context, element.get(), &record), VOS_OK);
        return encode(asn1PE_BWP_DownlinkCommon, *element);
    }
};

const std::string parameters = R"({"genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz30"})";
const std::string pdcchPath = "BWP-DownlinkCommon.pdcch-ConfigCommon.setup.";

void bwpDownlinkCommon::expectPdcch(NrBwpDownLinkCommon_t& record, const std::string& members)
{
    expectBwp(record, parameters + R"(,"pdcch-ConfigCommon":{"setup":{)" + members + "}}}");
}

std::string coresetJson(const std::string& mapping, const std::string& options = "")
{
    return R"("commonControlResourceSet":{"controlResourceSetId":11,"frequencyDomainResources":"100000000000000000000000000000000000000000011",)"
           R"("duration":3,"cce-REG-MappingType":)" +
           mapping + R"(,"precoderGranularity":"allContiguousRBs")" + options + "}";
}

void fillCoreset(NrControlResourceSet_t& coreset)
{
    coreset.controlResourceSetId = 11;
    coreset.freqDomainResources = 0xFFFFF00000000003; // bits above the 45th are dropped
    coreset.duration = 3;
    coreset.cceRegMappingType = 2;
    coreset.regBundleSize = 2;
    coreset.interleaverSize = 1;
    coreset.shiftIndex = 274;
    coreset.precoderGranularity = 1;
    coreset.pdcchDmrsScramblingId = 65535;
}

} // namespace

TEST_F(bwpDownlinkCommon, MembersAloneAndAll)
{
    expectBwp(*bwp(0xFFF8), parameters + "}");
    expectBwp(
        *bwp(NR_BWP_DL_EXTENDED_CYCLIC_PREFIX),
        R"({"genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz30","cyclicPrefix":"extended"}})");
    expectBwp(*bwp(NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE), parameters + R"(,"pdcch-ConfigCommon":{"setup":{}}})");
    expectBwp(*bwp(NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE), parameters + R"(,"pdsch-ConfigCommon":{"setup":{}}})");
    expectBwp(*bwp(3), parameters + R"(,"pdcch-ConfigCommon":{"setup":{}},"pdsch-ConfigCommon":{"setup":{}}})");
}

TEST_F(bwpDownlinkCommon, PdcchMembersAloneAndAll)
{
    const struct
    {
        UINT8 bit;
        std::string json;
    } members[] = {
        {NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE, R"("controlResourceSetZero":15)"},
        {NR_PDCCH_COMMON_CORESET_PRESENCE, coresetJson(R"({"nonInterleaved":null})")},
        {NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE, R"("searchSpaceZero":14)"},
        {NR_PDCCH_COMMON_SEARCH_SPACE_SIB1_PRESENCE, R"("searchSpaceSIB1":39)"},
        {NR_PDCCH_COMMON_SEARCH_SPACE_OTHER_SI_PRESENCE, R"("searchSpaceOtherSystemInformation":38)"},
        {NR_PDCCH_COMMON_PAGING_SEARCH_SPACE_PRESENCE, R"("pagingSearchSpace":37)"},
        {NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE, R"("ra-SearchSpace":36)"},
        {NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE,
         R"("firstPDCCH-MonitoringOccasionOfPO":{"sCS15KHZoneT":[139]})"},
    };
    const auto record = pdcch(0);
    PdcchCfgCommon_t& cfg = record->pdcchCfgCommon;
    cfg.controlResourceSetZero = 15;
    fillCoreset(cfg.commonControlResourceSet);
    cfg.searchSpaceZero = 14;
    cfg.searchSpaceSib1 = 39;
    cfg.searchSpaceOtherSi = 38;
    cfg.pagingSearchSpace = 37;
    cfg.raSearchSpace = 36;
    cfg.firstPdcchMonitoringOccasion = {1, 1, {139}};
    std::string all;
    UINT8 bits = 0;
    for (const auto& member : members)
    {
        cfg.bitmask = member.bit;
        expectPdcch(*record, member.json);
        all += (all.empty() ? "" : ",") + member.json;
        bits |= member.bit;
    }
    EXPECT_EQ(bits, 0xFF);
    cfg.bitmask = bits;
    expectPdcch(*record, all);
}

TEST_F(bwpDownlinkCommon, ControlResourceSet)
{
    const auto record = pdcch(NR_PDCCH_COMMON_CORESET_PRESENCE);
    NrControlResourceSet_t& coreset = record->pdcchCfgCommon.commonControlResourceSet;
    fillCoreset(coreset);
    coreset.bitmask = 0xF8;
    expectPdcch(*record, coresetJson(R"({"nonInterleaved":null})"));
    coreset.bitmask = NR_CORESET_SHIFT_INDEX_PRESENCE;
    expectPdcch(*record, coresetJson(R"({"nonInterleaved":null})"));
    coreset.bitmask = NR_CORESET_TCI_PRESENT_IN_DCI;
    expectPdcch(*record, coresetJson(R"({"nonInterleaved":null})", R"(,"tci-PresentInDCI":"enabled")"));
    coreset.bitmask = NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE;
    expectPdcch(*record, coresetJson(R"({"nonInterleaved":null})", R"(,"pdcch-DMRS-ScramblingID":65535)"));

    coreset.cceRegMappingType = 1;
    coreset.bitmask = 0;
    expectPdcch(*record, coresetJson(R"({"interleaved":{"reg-BundleSize":"n6","interleaverSize":"n3"}})"));
    coreset.bitmask = 7;
    coreset.numTciStatesToAdd = 1;
    coreset.tciStatesToAdd[0] = 127;
    coreset.numTciStatesToRelease = 2;
    coreset.tciStatesToRelease[0] = 63;
    coreset.tciStatesToRelease[1] = 0;
    expectPdcch(*record,
                coresetJson(R"({"interleaved":{"reg-BundleSize":"n6","interleaverSize":"n3","shiftIndex":274}})",
                            R"(,"tci-StatesPDCCH-ToAddList":[127],"tci-StatesPDCCH-ToReleaseList":[63,0])"
                            R"(,"tci-PresentInDCI":"enabled","pdcch-DMRS-ScramblingID":65535)"));

    for (const unsigned unknown : {0U, 3U})
    {
        coreset.cceRegMappingType = static_cast<UINT8>(unknown);
        EXPECT_EQ(refused(*record), pdcchPath + "commonControlResourceSet.cce-REG-MappingType: tag " +
                                        std::to_string(unknown) + " is not in 1..2");
    }
}

TEST_F(bwpDownlinkCommon, TciStateCounts)
{
    const auto record = pdcch(NR_PDCCH_COMMON_CORESET_PRESENCE);
    NrControlResourceSet_t& coreset = record->pdcchCfgCommon.commonControlResourceSet;
    fillCoreset(coreset);
    std::string ids;
    for (UINT8 i = 0; i < 64; ++i)
    {
        coreset.tciStatesToAdd[i] = i;
        coreset.tciStatesToRelease[i] = i;
        ids += (i == 0 ? "" : ",") + std::to_string(i);
    }
    coreset.numTciStatesToAdd = 64;
    coreset.numTciStatesToRelease = 64;
    expectPdcch(*record,
                coresetJson(R"({"nonInterleaved":null})", R"(,"tci-StatesPDCCH-ToAddList":[)" + ids +
                                                              R"(],"tci-StatesPDCCH-ToReleaseList":[)" + ids + "]"));
    coreset.numTciStatesToRelease = 65;
    EXPECT_EQ(refused(*record),
              pdcchPath + "commonControlResourceSet.tci-StatesPDCCH-ToReleaseList: 65 elements, not 1..64");
    coreset.numTciStatesToAdd = 255;
    EXPECT_EQ(refused(*record),
              pdcchPath + "commonControlResourceSet.tci-StatesPDCCH-ToAddList: 255 elements, not 1..64");
}

TEST_F(bwpDownlinkCommon, SearchSpaceMembersAloneAndAll)
{
    const struct
    {
        UINT8 bit;
        std::string json;
    } members[] = {
        {NR_SEARCH_SPACE_CORESET_ID_PRESENCE, R"(,"controlResourceSetId":11)"},
        {NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE, R"(,"monitoringSlotPeriodicityAndOffset":{"sl1":null})"},
        {NR_SEARCH_SPACE_DURATION_PRESENCE, R"(,"duration":2559)"},
        {NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE, R"(,"monitoringSymbolsWithinSlot":"10000000000001")"},
        {NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE,
         R"(,"nrofCandidates":{"aggregationLevel1":"n8","aggregationLevel2":"n6","aggregationLevel4":"n5","aggregationLevel8":"n4","aggregationLevel16":"n3"})"},
        {NR_SEARCH_SPACE_TYPE_PRESENCE, R"(,"searchSpaceType":{"ue-Specific":{"dci-Formats":"formats0-1-And-1-1"}})"},
    };
    const auto json = [](const std::string& options)
    {
        return R"("commonSearchSpaceList":[{"searchSpaceId":39)" + options + "}]";
    };
    std::string all;
    expectPdcch(*searchSpace(0xC0), json(""));
    for (const auto& member : members)
    {
        expectPdcch(*searchSpace(member.bit), json(member.json));
        all += member.json;
    }
    expectPdcch(*searchSpace(0x3F), json(all));
}

TEST_F(bwpDownlinkCommon, MonitoringSlots)
{
    const unsigned periods[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640, 1280, 2560};
    const auto record = searchSpace(NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE);
    NrSearchSpace_t& space = record->pdcchCfgCommon.commonSearchSpace[0];
    const std::string path = pdcchPath + "commonSearchSpaceList[0].monitoringSlotPeriodicityAndOffset";
    UINT8 tag = 1;
    for (const unsigned period : periods)
    {
        space.monitoringSlotPeriodicity = tag++;
        space.monitoringSlotOffset = static_cast<UINT16>(period - 1);
        const std::string name = "sl" + std::to_string(period);
        expectPdcch(*record, R"("commonSearchSpaceList":[{"searchSpaceId":39,"monitoringSlotPeriodicityAndOffset":{")" +
                                 name + R"(":)" + (period == 1 ? "null" : std::to_string(period - 1)) + "}}]");
        if (period > 1)
        {
            space.monitoringSlotOffset = static_cast<UINT16>(period);
            EXPECT_EQ(refused(*record), path + "." + name + ": " + std::to_string(period) + " is not in 0.." +
                                            std::to_string(period - 1));
            // Members of eight bits: 256 must not become 0.
            space.monitoringSlotOffset = 0xFF00;
            EXPECT_EQ(refused(*record), path + "." + name + ": " + (period < 320 ? "255" : "65280") + " is not in 0.." +
                                            std::to_string(period - 1));
        }
    }
    for (const unsigned unknown : {0U, 16U})
    {
        space.monitoringSlotPeriodicity = static_cast<UINT8>(unknown);
        EXPECT_EQ(refused(*record), path + ": tag " + std::to_string(unknown) + " is not in 1..15");
    }
}

TEST_F(bwpDownlinkCommon, CommonSearchSpaceType)
{
    const auto record = searchSpace(NR_SEARCH_SPACE_TYPE_PRESENCE);
    NrSearchSpace_t& space = record->pdcchCfgCommon.commonSearchSpace[0];
    space.searchSpaceType = 1;
    NrSearchSpaceCommon_t& common = space.common;
    common.nrofCandidatesSfi = {0xE0, 1, 0, 1, 0, 1};
    common.dciFormat23Dummy1 = 7;
    common.dciFormat23Dummy2 = 1;
    const auto json = [](const std::string& formats)
    {
        return R"("commonSearchSpaceList":[{"searchSpaceId":39,"searchSpaceType":{"common":{)" + formats + "}}}]";
    };
    const struct
    {
        UINT8 bits;
        std::string json;
    } cases[] = {
        {0, ""},
        {NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE, ""},
        {NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0, R"("dci-Format0-0-AndFormat1-0":{})"},
        {NR_SEARCH_SPACE_DCI_FORMAT2_0, R"("dci-Format2-0":{"nrofCandidates-SFI":{}})"},
        {NR_SEARCH_SPACE_DCI_FORMAT2_1, R"("dci-Format2-1":{})"},
        {NR_SEARCH_SPACE_DCI_FORMAT2_2, R"("dci-Format2-2":{})"},
        {NR_SEARCH_SPACE_DCI_FORMAT2_3, R"("dci-Format2-3":{"dummy2":"n2"})"},
        {NR_SEARCH_SPACE_DCI_FORMAT2_3 | NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE,
         R"("dci-Format2-3":{"dummy1":"sl20","dummy2":"n2"})"},
        {0xFF,
         R"("dci-Format0-0-AndFormat1-0":{},"dci-Format2-0":{"nrofCandidates-SFI":{}},"dci-Format2-1":{},"dci-Format2-2":{},)"
         R"("dci-Format2-3":{"dummy1":"sl20","dummy2":"n2"})"},
    };
    for (const auto& c : cases)
    {
        common.bitmask = c.bits;
        expectPdcch(*record, json(c.json));
    }

    common.bitmask = NR_SEARCH_SPACE_DCI_FORMAT2_0;
    const char* const levels[] = {R"("aggregationLevel1":"n2")", R"("aggregationLevel2":"n1")",
                                  R"("aggregationLevel4":"n2")", R"("aggregationLevel8":"n1")",
                                  R"("aggregationLevel16":"n2")"};
    std::string all;
    for (unsigned i = 0; i < 5; ++i)
    {
        common.nrofCandidatesSfi.bitmask = static_cast<UINT8>(1U << i);
        expectPdcch(*record, json(R"("dci-Format2-0":{"nrofCandidates-SFI":{)" + std::string(levels[i]) + "}}"));
        all += std::string(i == 0 ? "" : ",") + levels[i];
    }
    common.nrofCandidatesSfi.bitmask = 0xFF;
    expectPdcch(*record, json(R"("dci-Format2-0":{"nrofCandidates-SFI":{)" + all + "}}"));

    for (const unsigned unknown : {0U, 3U})
    {
        space.searchSpaceType = static_cast<UINT8>(unknown);
        EXPECT_EQ(refused(*record), pdcchPath + "commonSearchSpaceList[0].searchSpaceType: tag " +
                                        std::to_string(unknown) + " is not in 1..2");
    }
}

TEST_F(bwpDownlinkCommon, SearchSpaceCounts)
{
    const auto record = searchSpace(0);
    PdcchCfgCommon_t& cfg = record->pdcchCfgCommon;
    for (UINT8 i = 0; i < 4; ++i)
    {
        cfg.commonSearchSpace[i].searchSpaceId = static_cast<UINT8>(30 + i);
    }
    cfg.numCommonSearchSpaces = 4;
    expectPdcch(
        *record,
        R"("commonSearchSpaceList":[{"searchSpaceId":30},{"searchSpaceId":31},{"searchSpaceId":32},{"searchSpaceId":33}])");
    for (const unsigned count : {5U, 255U})
    {
        cfg.numCommonSearchSpaces = static_cast<UINT8>(count);
        EXPECT_EQ(refused(*record),
                  pdcchPath + "commonSearchSpaceList: " + std::to_string(count) + " elements, not 1..4");
    }
}

TEST_F(bwpDownlinkCommon, FirstMonitoringOccasions)
{
    const struct
    {
        std::string name;
        UINT16 last;
    } zones[] = {
        {"sCS15KHZoneT", 139},
        {"sCS30KHZoneT-SCS15KHZhalfT", 279},
        {"sCS60KHZoneT-SCS30KHZhalfT-SCS15KHZquarterT", 559},
        {"sCS120KHZoneT-SCS60KHZhalfT-SCS30KHZquarterT-SCS15KHZoneEighthT", 1119},
        {"sCS120KHZhalfT-SCS60KHZquarterT-SCS30KHZoneEighthT-SCS15KHZoneSixteenthT", 2239},
        {"sCS120KHZquarterT-SCS60KHZoneEighthT-SCS30KHZoneSixteenthT", 4479},
        {"sCS120KHZoneEighthT-SCS60KHZoneSixteenthT", 8959},
        {"sCS120KHZoneSixteenthT", 17919},
    };
    const auto record = pdcch(NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE);
    NrFirstPdcchMonitoringOccasion_t& occasion = record->pdcchCfgCommon.firstPdcchMonitoringOccasion;
    const std::string path = pdcchPath + "firstPDCCH-MonitoringOccasionOfPO";
    UINT8 tag = 1;
    for (const auto& zone : zones)
    {
        occasion = {tag++, 4, {zone.last, 0, 1, 2}};
        expectPdcch(*record, R"("firstPDCCH-MonitoringOccasionOfPO":{")" + zone.name + R"(":[)" +
                                 std::to_string(zone.last) + ",0,1,2]}");
        for (const unsigned count : {0U, 5U, 255U})
        {
            occasion.numOccasions = static_cast<UINT8>(count);
            EXPECT_EQ(refused(*record), path + "." + zone.name + ": " + std::to_string(count) + " elements, not 1..4");
        }
        occasion.numOccasions = 1;
        // Members of eight bits: 65280 must not become 0.
        occasion.occasion[0] = 0xFF00;
        EXPECT_EQ(refused(*record), path + "." + zone.name + "[0]: " + (zone.last == 139 ? "255" : "65280") +
                                        " is not in 0.." + std::to_string(zone.last));
    }
    for (const unsigned unknown : {0U, 9U})
    {
        occasion.zone = static_cast<UINT8>(unknown);
        EXPECT_EQ(refused(*record), path + ": tag " + std::to_string(unknown) + " is not in 1..8");
    }
}

TEST_F(bwpDownlinkCommon, PdschAllocations)
{
    const auto record = bwp(NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE);
    PdschCfgCommon_t& pdsch = record->pdschCfgCommon;
    pdsch.numTimeDomainAllocs = 2;
    pdsch.timeDomainAlloc[0] = {NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE, 32, 1, 127};
    pdsch.timeDomainAlloc[1] = {0xFE, 32, 0, 0};
    expectBwp(
        *record,
        parameters +
            R"(,"pdsch-ConfigCommon":{"setup":{"pdsch-TimeDomainAllocationList":[{"k0":32,"mappingType":"typeB","startSymbolAndLength":127},)"
            R"({"mappingType":"typeA","startSymbolAndLength":0}]}}})");
    std::string sixteen;
    for (UINT8 i = 0; i < 16; ++i)
    {
        pdsch.timeDomainAlloc[i] = {0, 0, 0, i};
        sixteen +=
            (i == 0 ? "" : ",") + (R"({"mappingType":"typeA","startSymbolAndLength":)" + std::to_string(i)) + "}";
    }
    pdsch.numTimeDomainAllocs = 16;
    expectBwp(*record,
              parameters + R"(,"pdsch-ConfigCommon":{"setup":{"pdsch-TimeDomainAllocationList":[)" + sixteen + "]}}}");
    for (const unsigned count : {17U, 255U})
    {
        pdsch.numTimeDomainAllocs = static_cast<UINT8>(count);
        EXPECT_EQ(refused(*record), "BWP-DownlinkCommon.pdsch-ConfigCommon.setup.pdsch-TimeDomainAllocationList: " +
                                        std::to_string(count) + " elements, not 1..16");
    }
}

TEST_F(bwpDownlinkCommon, NothingGoesOutCutShortWithoutHeap)
{
    const auto record = bwp(3);
    PdcchCfgCommon_t& pdcch = record->pdcchCfgCommon;
    pdcch.bitmask = 0xFF;
    fillCoreset(pdcch.commonControlResourceSet);
    pdcch.commonControlResourceSet.cceRegMappingType = 1;
    pdcch.numCommonSearchSpaces = 2;
    pdcch.commonSearchSpace[0].bitmask = NR_SEARCH_SPACE_TYPE_PRESENCE;
    pdcch.commonSearchSpace[0].searchSpaceType = 1;
    pdcch.commonSearchSpace[1] = pdcch.commonSearchSpace[0];
    pdcch.commonSearchSpace[1].searchSpaceType = 2;
    pdcch.firstPdcchMonitoringOccasion = {8, 1, {0}};
    record->pdschCfgCommon.numTimeDomainAllocs = 1;

    const std::string noNode = "pNode Or pSearchSpace is NULL\r\n";
    const std::string noType = "composeSearchSpace is Error\r\n";
    const struct
    {
        std::string printed;
        std::string refused;
    } cases[] = {
        {"", "pdcch-ConfigCommon"},     // its setup
        {noNode, "pdcch-ConfigCommon"}, // the interleaved mapping
        {noNode, "pdcch-ConfigCommon"}, // the first search space
        {noType, "pdcch-ConfigCommon"}, // its type
        {noNode, "pdcch-ConfigCommon"}, // the second search space
        {noType, "pdcch-ConfigCommon"}, // its type
        {"", "pdcch-ConfigCommon"},     // the monitoring occasions
        {"", "pdsch-ConfigCommon"},     // its setup
        {"pNode Or pPdschTimeDomainAlloc is NULL\r\n", "pdsch-ConfigCommon"},
    };
    unsigned successes = 0;
    for (const auto& c : cases)
    {
        SCOPED_TRACE(successes);
        const auto element = cleared<BWP_DownlinkCommon>();
        {
            const HeapFault fault(successes++);
            EXPECT_EQ(duComposeBWP_DownlinkCommon(&context, element.get(), record.get()), VOS_ERROR);
        }
        EXPECT_EQ(printed(), c.printed);
        EXPECT_EQ(encode(asn1PE_BWP_DownlinkCommon, *element),
                  "BWP-DownlinkCommon." + c.refused + ": tag 0 is not in 1..2");
    }
    const auto element = cleared<BWP_DownlinkCommon>();
    const HeapFault fault(successes);
    EXPECT_EQ(duComposeBWP_DownlinkCommon(&context, element.get(), record.get()), VOS_OK);
    EXPECT_FALSE(HeapFault::struck());
}
