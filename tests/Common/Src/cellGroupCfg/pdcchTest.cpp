#include "cellGroupCfg/pdcch.h"

#include <cstddef>
#include <string>
#include <vector>

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

constexpr const char* noPeriod = "No SearchSpace__monitoringSlotPeriodicityAndOffset_PR\n";

// Control resource set i, which setJson(i) tells: interleaved where i is odd.
RrcControlResourceSet_t controlResourceSet(unsigned i)
{
    RrcControlResourceSet_t cfg{};
    cfg.setIdx = static_cast<UINT8>(11 - i);
    cfg.freqDomainResource = 0x155555555555 >> i;
    cfg.duration = static_cast<UINT8>(1 + i % 3);
    cfg.presence = i % 2 != 0 ? RRC_CCE_MAP_TYPE_INTERLEAVED : RRC_CCE_MAP_TYPE_NON_INTERLEAVED;
    cfg.interLeaved = {2, 1, 0, 0};
    cfg.precoderGranularity = 1;
    return cfg;
}

std::string setJson(unsigned i)
{
    return object(
        {"\"controlResourceSetId\":" + std::to_string(11 - i),
         "\"frequencyDomainResources\":" + bits(0x155555555555 >> i, 45), "\"duration\":" + std::to_string(1 + i % 3),
         i % 2 != 0 ? R"("cce-REG-MappingType":{"interleaved":{"reg-BundleSize":"n6","interleaverSize":"n3"}})"
                    : R"("cce-REG-MappingType":{"nonInterleaved":null})",
         R"("precoderGranularity":"allContiguousRBs")"});
}

// Search space i, which spaceJson(i) tells: common where i is even.
RrcSearchSpace_t searchSpace(unsigned i)
{
    RrcSearchSpace_t cfg{};
    cfg.searchSpaceId = static_cast<UINT8>(39 - i);
    cfg.bitMask = RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE | RRC_SEARCH_SPACE_TYPE_PRESENCE;
    cfg.controlResourceSetId = static_cast<UINT8>(i);
    cfg.presence = i % 2 == 0 ? RRC_SEARCH_TYPE_COMMON_PRESENCE : RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;
    if (i % 2 == 0)
    {
        cfg.searchType.common.presence = RRC_SEARCH_TYPE_COMMON_DCI2_1_PRESENCE;
    }
    else
    {
        cfg.searchType.ueSpecific.dciFormats = 1;
    }
    return cfg;
}

std::string spaceJson(unsigned i)
{
    return object({"\"searchSpaceId\":" + std::to_string(39 - i), "\"controlResourceSetId\":" + std::to_string(i),
                   i % 2 == 0 ? R"("searchSpaceType":{"common":{"dci-Format2-1":{}}})"
                              : R"("searchSpaceType":{"ue-Specific":{"dci-Formats":"formats0-1-And-1-1"}})"});
}

class pdcch : public test::ComposerTest
{
protected:
    void fill(UINT8 sets, UINT8 setsRel, UINT8 spaces, UINT8 spacesRel, UINT8 bitMask)
    {
        *cfg = {};
        cfg->numControlResourceSetAddMod = sets;
        cfg->numControlResourceSetRel = setsRel;
        cfg->numSearchSpaceAddMod = spaces;
        cfg->numSearchSpaceRel = spacesRel;
        cfg->bitMask = bitMask;
        for (unsigned i = 0; i < RRC_MAX_NROF_CONTROL_RESOURCESETS; ++i)
        {
            cfg->controlResourceSetAddMod[i] = controlResourceSet(i);
            cfg->controlResourceSetIdx[i] = static_cast<UINT8>(9 + i);
        }
        for (unsigned i = 0; i < RRC_MAX_NROF_SEARCH_SPACES; ++i)
        {
            cfg->searchSpaceAddMod[i] = searchSpace(i);
            cfg->searchSpaceId[i] = static_cast<UINT8>(30 + i);
        }
        cfg->dlPreemption = {0xFFEE, 1, 126, 2, {{31, 125}, {0, 0}}};
        cfg->tpcPusch = {RRC_PUSCH_TPC_INDEX_PRESENCE, 15, 0, 0};
        cfg->tpcPucch = {RRC_PUCCH_TPC_SCELL_PRESENCE, 0, 1};
        cfg->tpcSrs = {RRC_SRS_TPC_FIELD_TYPE_PRESENCE, 0, 0, 1};
    }

    // What the optional members of fill() are told as.
    static std::string preemptionJson()
    {
        return R"("downlinkPreemption":{"setup":{"int-RNTI":65518,"timeFrequencySet":"set1","dci-PayloadSize":126,)"
               R"("int-ConfigurationPerServingCell":[{"servingCellId":31,"positionInDCI":125},)"
               R"({"servingCellId":0,"positionInDCI":0}]}})";
    }

    void expectPdcch(const std::string& json)
    {
        SCOPED_TRACE(json);
        BWP_DownlinkDedicated_pdcch_Config choice{};
        EXPECT_EQ(rrcComposePdcch_Config(&context, &choice, cfg.get()), VOS_OK);
        EXPECT_EQ(choice.t, static_cast<OSUINT32>(T_BWP_DownlinkDedicated_pdcch_Config_setup));
        expectDecoded("PDCCH-Config", asn1PE_PDCCH_Config, *choice.u.setup, json);
        EXPECT_EQ(printed(), "");
    }

    void expectSet(RrcControlResourceSet_t record, const std::string& json)
    {
        SCOPED_TRACE(json);
        ControlResourceSet element{};
        EXPECT_EQ(rrcComposeControlResourceSet(&context, &element, &record), VOS_OK);
        expectDecoded("ControlResourceSet", asn1PE_ControlResourceSet, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectSpace(RrcSearchSpace_t record, const std::string& json)
    {
        SCOPED_TRACE(json);
        SearchSpace element{};
        EXPECT_EQ(rrcComposeSearchSpace(&context, &element, &record), VOS_OK);
        expectDecoded("SearchSpace", asn1PE_SearchSpace, element, json);
        EXPECT_EQ(printed(), "");
    }

    // The line that the encoder refuses the composed PDCCH-Config with.
    std::string refused()
    {
        auto element = cleared<PDCCH_Config>();
        EXPECT_EQ(rrcComposePdcch_ConfigSetup(&context, element.get(), cfg.get()), VOS_OK);
        EXPECT_EQ(printed(), "");
        return encode(asn1PE_PDCCH_Config, *element);
    }

    std::unique_ptr<RrcPdcchCfg_t> cfg = cleared<RrcPdcchCfg_t>();
};

} // namespace

TEST_F(pdcch, EachMemberAloneAllAndNone)
{
    for (const unsigned mask : masks(8))
    {
        fill(mask & 1 ? 2 : 0, mask & 2 ? 1 : 0, mask & 4 ? 2 : 0, mask & 8 ? 1 : 0, static_cast<UINT8>(mask >> 4));
        expectPdcch(object({mask & 1 ? "\"controlResourceSetToAddModList\":" + array(2, setJson) : "",
                            mask & 2 ? R"("controlResourceSetToReleaseList":[9])" : "",
                            mask & 4 ? "\"searchSpacesToAddModList\":" + array(2, spaceJson) : "",
                            mask & 8 ? R"("searchSpacesToReleaseList":[30])" : "", mask & 16 ? preemptionJson() : "",
                            mask & 32 ? R"("tpc-PUSCH":{"setup":{"tpc-Index":15}})" : "",
                            mask & 64 ? R"("tpc-PUCCH":{"setup":{"tpc-IndexPUCCH-SCell":1}})" : "",
                            mask & 128 ? R"("tpc-SRS":{"setup":{"fieldTypeFormat2-3":1}})" : ""}));
    }
}

TEST_F(pdcch, FullLists)
{
    fill(3, 3, 10, 10, 0);
    expectPdcch(object({"\"controlResourceSetToAddModList\":" + array(3, setJson),
                        "\"controlResourceSetToReleaseList\":" + numbers(3, 9),
                        "\"searchSpacesToAddModList\":" + array(10, spaceJson),
                        "\"searchSpacesToReleaseList\":" + numbers(10, 30)}));
}

TEST_F(pdcch, CountsPastTheirBoundAreLeftToTheEncoder)
{
    fill(4, 0, 0, 0, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.controlResourceSetToAddModList: 4 elements, not 1..3");
    fill(255, 0, 0, 0, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.controlResourceSetToAddModList: 255 elements, not 1..3");
    fill(0, 4, 0, 0, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.controlResourceSetToReleaseList: 4 elements, not 1..3");
    fill(0, 255, 0, 0, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.controlResourceSetToReleaseList: 255 elements, not 1..3");
    fill(0, 0, 11, 0, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.searchSpacesToAddModList: 11 elements, not 1..10");
    fill(0, 0, 255, 0, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.searchSpacesToAddModList: 255 elements, not 1..10");
    fill(0, 0, 0, 11, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.searchSpacesToReleaseList: 11 elements, not 1..10");
    fill(0, 0, 0, 255, 0);
    EXPECT_EQ(refused(), "PDCCH-Config.searchSpacesToReleaseList: 255 elements, not 1..10");
}

TEST_F(pdcch, HeapExhaustedAtEachRequest)
{
    const std::string setError = "rrcComposePdcch_ConfigSetup Error\r\n";
    const std::string noSet = "pNode Or pControlResourceSet is NULL\r\nrrcComposecontrolResourceSetToAddList Error\r\n";
    const std::string noSpace = "pNode Or pSearchSpace is NULL\r\nrrcComposeSearchSpacesToAddModList Error\r\n";
    const std::string noCell = "pNode Or pINT_ConfigurationPerServingCell is NULL\r\n"
                               "rrcComposeInt_ConfigurationPerServingCell is NULL\r\n"
                               "rrcComposeDownlinkPreemptionSetup is Error\r\nrrcComposeDownlinkPreemption Error\r\n";
    // The requests in their order. The heap stays exhausted, so what fails unchecked makes the next node fail too.
    struct
    {
        const char* request;
        std::string lines;
        std::string refused; // where the composition succeeds
    } const expected[] = {
        {"setup", "", "none"},
        {"first set", noSet, ""},
        {"second set", noSet, ""},
        {"interleaved", noSpace, ""},
        {"first search space", noSpace, ""},
        {"common", noSpace, ""},
        {"second search space", noSpace, ""},
        {"ue-Specific", "", "PDCCH-Config.searchSpacesToAddModList[1].searchSpaceType: tag 0 is not in 1..2"},
        {"pre-emption", "", "PDCCH-Config.downlinkPreemption: tag 0 is not in 1..2"},
        {"first cell", noCell, ""},
        {"second cell", noCell, ""},
        {"PUSCH", "", "PDCCH-Config.tpc-PUSCH: tag 0 is not in 1..2"},
        {"PUCCH", "", "PDCCH-Config.tpc-PUCCH: tag 0 is not in 1..2"},
        {"SRS", "", "PDCCH-Config.tpc-SRS: tag 0 is not in 1..2"},
    };
    fill(2, 1, 2, 1, 15);
    unsigned successes = 0;
    for (const auto& [request, lines, refused] : expected)
    {
        SCOPED_TRACE(request);
        BWP_DownlinkDedicated_pdcch_Config choice{};
        INT32 result = VOS_OK;
        {
            const HeapFault fault(successes);
            result = rrcComposePdcch_Config(&context, &choice, cfg.get());
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(printed(), lines.empty() ? "" : lines + setError);
        EXPECT_EQ(result, refused.empty() ? VOS_ERROR : VOS_OK);
        if (successes == 0)
        {
            EXPECT_EQ(choice.t, 0U);
        }
        else if (!refused.empty())
        {
            EXPECT_EQ(encode(asn1PE_PDCCH_Config, *choice.u.setup), refused);
        }
        ++successes;
    }
    const HeapFault fault(successes);
    BWP_DownlinkDedicated_pdcch_Config choice{};
    EXPECT_EQ(rrcComposePdcch_Config(&context, &choice, cfg.get()), VOS_OK);
    EXPECT_FALSE(HeapFault::struck());
}

TEST_F(pdcch, NullGuards)
{
    fill(0, 0, 0, 0, 0);
    BWP_DownlinkDedicated_pdcch_Config choice{};
    EXPECT_EQ(rrcComposePdcch_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdcch_Config", "pPdcch_Config"));
    EXPECT_EQ(rrcComposePdcch_Config(&context, nullptr, cfg.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdcch_Config", "pPdcch_Config"));
    EXPECT_EQ(rrcComposePdcch_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePdcch_Config", "pRrcPdcchCfg"));
    EXPECT_EQ(choice.t, 0U);

    PDCCH_Config element{};
    EXPECT_EQ(rrcComposeDownlinkPreemption(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDownlinkPreemption", "pDownlinkPreemption"));
    EXPECT_EQ(rrcComposeDownlinkPreemption(&context, &element.downlinkPreemption, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDownlinkPreemption", "pRrcDlPreemption"));
    EXPECT_EQ(rrcComposeTpc_PUSCH(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTpc_PUSCH", "pTpc_PUSCH"));
    EXPECT_EQ(rrcComposeTpc_PUSCH(&context, &element.tpc_PUSCH, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTpc_PUSCH", "pRrcTpcPusch"));
    EXPECT_EQ(rrcComposeTpc_PUCCH(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTpc_PUCCH", "pTpc_PUCCH"));
    EXPECT_EQ(rrcComposeTpc_PUCCH(&context, &element.tpc_PUCCH, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTpc_PUCCH", "pRrcTpcPucch"));
    EXPECT_EQ(rrcComposeTpc_SRS(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTpc_SRS", "pTpc_SRS"));
    EXPECT_EQ(rrcComposeTpc_SRS(&context, &element.tpc_SRS, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTpc_SRS", "pRrctpcSrs"));
    EXPECT_EQ(element.tpc_SRS.t, 0U);
}

// Control resource sets

TEST_F(pdcch, ControlResourceSetOptions)
{
    for (const unsigned mask : masks(4))
    {
        RrcControlResourceSet_t record = controlResourceSet(0);
        record.numTciStatesPdcchAdd = mask & 1 ? 2 : 0;
        record.tciStateAddId[0] = 127;
        record.tciStateAddId[1] = 0;
        record.numTciStatesPdcchRel = mask & 2 ? 1 : 0;
        record.tciStateRelId[0] = 5;
        record.bitMask = static_cast<UINT8>(mask >> 2);
        record.enTciPresentInDci = 0;
        record.pdcchDmrsScramblindId = 65535;
        std::string json = setJson(0);
        json.pop_back();
        json += mask & 1 ? R"(,"tci-StatesPDCCH-ToAddList":[127,0])" : "";
        json += mask & 2 ? R"(,"tci-StatesPDCCH-ToReleaseList":[5])" : "";
        json += mask & 4 ? R"(,"tci-PresentInDCI":"enabled")" : "";
        json += mask & 8 ? R"(,"pdcch-DMRS-ScramblingID":65535)" : "";
        expectSet(record, json + "}");
    }
}

TEST_F(pdcch, ControlResourceSetWithoutMappingBitIsNonInterleaved)
{
    for (const unsigned presence : {0U, 2U, 0xFEU})
    {
        RrcControlResourceSet_t record = controlResourceSet(0);
        record.presence = static_cast<UINT8>(presence);
        ControlResourceSet element{};
        EXPECT_EQ(rrcComposeControlResourceSet(&context, &element, &record), VOS_OK);
        EXPECT_EQ(element.cce_REG_MappingType.t, 2U);
        expectSet(record, setJson(0));
    }
}

TEST_F(pdcch, InterleavedWinsAndHasItsShiftIndexByItsBit)
{
    std::string json = setJson(1);
    RrcControlResourceSet_t record = controlResourceSet(1);
    record.presence = RRC_CCE_MAP_TYPE_INTERLEAVED | RRC_CCE_MAP_TYPE_NON_INTERLEAVED;
    record.interLeaved = {2, 1, 0xFE, 274};
    expectSet(record, json);
    record.interLeaved.bitMask = RRC_INTERLEACED_SHIFT_INDEX_PRESENCE;
    const std::string interleaver = R"("interleaverSize":"n3")";
    json.insert(json.find(interleaver) + interleaver.size(), R"(,"shiftIndex":274)");
    expectSet(record, json);
}

TEST_F(pdcch, FrequencyDomainResourcesKeepTheirLow45Bits)
{
    for (const UINT64 value : {UINT64{0}, UINT64{1}, UINT64{1} << 44, ~UINT64{0}})
    {
        RrcControlResourceSet_t record = controlResourceSet(0);
        record.freqDomainResource = value;
        std::string json = setJson(0);
        const std::string is = bits(0x155555555555, 45);
        expectSet(record, json.replace(json.find(is), is.size(), bits(value, 45)));
    }
}

TEST_F(pdcch, SixtyFourTciStates)
{
    RrcControlResourceSet_t record = controlResourceSet(0);
    record.numTciStatesPdcchAdd = 64;
    record.numTciStatesPdcchRel = 64;
    for (unsigned i = 0; i < 64; ++i)
    {
        record.tciStateAddId[i] = static_cast<UINT8>(i);
        record.tciStateRelId[i] = static_cast<UINT8>(64 + i);
    }
    std::string json = setJson(0);
    json.pop_back();
    expectSet(record, json + ",\"tci-StatesPDCCH-ToAddList\":" + numbers(64, 0) +
                          ",\"tci-StatesPDCCH-ToReleaseList\":" + numbers(64, 64) + "}");

    for (const unsigned count : {65U, 255U})
    {
        ControlResourceSet element{};
        record.numTciStatesPdcchRel = static_cast<UINT8>(count);
        EXPECT_EQ(rrcComposeControlResourceSet(&context, &element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_ControlResourceSet, element), "ControlResourceSet.tci-StatesPDCCH-ToReleaseList: " +
                                                                  std::to_string(count) + " elements, not 1..64");
        record.numTciStatesPdcchAdd = static_cast<UINT8>(count);
        EXPECT_EQ(rrcComposeControlResourceSet(&context, &element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_ControlResourceSet, element),
                  "ControlResourceSet.tci-StatesPDCCH-ToAddList: " + std::to_string(count) + " elements, not 1..64");
        record.numTciStatesPdcchAdd = 64;
    }
}

TEST_F(pdcch, TciPresentInDciGoesOnWithAll32Bits)
{
    for (const BOOL value : {1, -1, 0x100})
    {
        RrcControlResourceSet_t record = controlResourceSet(0);
        record.bitMask = RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE;
        record.enTciPresentInDci = value;
        ControlResourceSet element{};
        EXPECT_EQ(rrcComposeControlResourceSet(&context, &element, &record), VOS_OK);
        EXPECT_EQ(element.tci_PresentInDCI, static_cast<OSUINT32>(value));
        EXPECT_EQ(encode(asn1PE_ControlResourceSet, element),
                  "ControlResourceSet.tci-PresentInDCI: " + std::to_string(static_cast<OSUINT32>(value)) +
                      " is not in 0..0");
    }
}

TEST_F(pdcch, InterleavedWithoutHeapIsLeftToTheEncoder)
{
    RrcControlResourceSet_t record = controlResourceSet(1);
    ControlResourceSet element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeControlResourceSet(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_ControlResourceSet, element),
              "ControlResourceSet.cce-REG-MappingType: tag 0 is not in 1..2");
}

// Search spaces

TEST_F(pdcch, SearchSpaceOptions)
{
    for (const unsigned mask : masks(6))
    {
        RrcSearchSpace_t record{};
        record.searchSpaceId = 39;
        record.bitMask = static_cast<UINT8>(mask);
        record.controlResourceSetId = 11;
        record.monitoringSlotPeriodOffset = {9, 39};
        record.duration = 2559;
        record.monitoringSysmblosWithSlot = 0x2001;
        record.nrofCadidates = {7, 0, 1, 6, 2};
        record.presence = RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;
        record.searchType.ueSpecific.dciFormats = 0;
        expectSpace(
            record,
            object({"\"searchSpaceId\":39", mask & 1 ? "\"controlResourceSetId\":11" : "",
                    mask & 2 ? R"("monitoringSlotPeriodicityAndOffset":{"sl40":39})" : "",
                    mask & 4 ? "\"duration\":2559" : "",
                    mask & 8 ? "\"monitoringSymbolsWithinSlot\":" + bits(0x2001, 14) : "",
                    mask & 16 ? R"("nrofCandidates":{"aggregationLevel1":"n8","aggregationLevel2":"n0",)"
                                R"("aggregationLevel4":"n1","aggregationLevel8":"n6","aggregationLevel16":"n2"})"
                              : "",
                    mask & 32 ? R"("searchSpaceType":{"ue-Specific":{"dci-Formats":"formats0-0-And-1-0"}})" : ""}));
    }
}

TEST_F(pdcch, MonitoringSymbolsAreThe14BitString)
{
    for (const unsigned symbols : {0x2001U, 0U, 0x3FFFU, 0x1234U})
    {
        RrcSearchSpace_t record{};
        record.bitMask = RRC_SEARCH_SPACE_MON_SYMBOL_WITH_SLOT_PRESENCE;
        record.monitoringSysmblosWithSlot = symbols & 0x3FFF;
        SearchSpace element{};
        EXPECT_EQ(rrcComposeSearchSpace(&context, &element, &record), VOS_OK);
        EXPECT_EQ(element.monitoringSymbolsWithinSlot.numbits, 14U);
        expectSpace(record, "{\"searchSpaceId\":0,\"monitoringSymbolsWithinSlot\":" + bits(symbols, 14) + "}");
    }
}

TEST_F(pdcch, EveryMonitoringPeriodWithItsFirstAndLastOffset)
{
    const unsigned periods[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640, 1280, 2560};
    for (UINT8 tag = 1; tag <= 15; ++tag)
    {
        const unsigned period = periods[tag - 1];
        for (const unsigned offset : {0U, period - 1})
        {
            RrcSearchSpace_t record{};
            record.bitMask = RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE;
            record.monitoringSlotPeriodOffset = {tag, static_cast<UINT16>(offset)};
            expectSpace(record, R"({"searchSpaceId":0,"monitoringSlotPeriodicityAndOffset":{"sl)" +
                                    std::to_string(period) + "\":" + (tag == 1 ? "null" : std::to_string(offset)) +
                                    "}}");
        }
    }
}

TEST_F(pdcch, Period15WithOffset2000IsSl2560)
{
    struct slotPeriodOffset_s record = {15, 2000};
    SearchSpace_monitoringSlotPeriodicityAndOffset element{};
    EXPECT_EQ(rrcComposeMonitoringSlotPerAndOffset(&element, &record), VOS_OK);
    EXPECT_EQ(element.t, static_cast<OSUINT32>(T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl2560));
    EXPECT_EQ(element.u.sl2560, 2000);
    EXPECT_EQ(printed(), "");
}

TEST_F(pdcch, OffsetsOfPeriodsUpTo160AreCutToEightBits)
{
    for (UINT8 tag = 2; tag <= 15; ++tag)
    {
        struct slotPeriodOffset_s record = {tag, 258};
        SearchSpace_monitoringSlotPeriodicityAndOffset element{};
        EXPECT_EQ(rrcComposeMonitoringSlotPerAndOffset(&element, &record), VOS_OK);
        EXPECT_EQ(element.t, tag);
        EXPECT_EQ(tag <= 11 ? element.u.sl160 : element.u.sl2560, tag <= 11 ? 2 : 258) << unsigned{tag};
    }
}

TEST_F(pdcch, UnknownMonitoringPeriodPrintsKeepsItsTagAndSucceeds)
{
    for (const unsigned period : {16U, 0U, 255U})
    {
        RrcSearchSpace_t record{};
        record.bitMask = RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE | RRC_SEARCH_SPACE_DURATION_PRESENCE;
        record.monitoringSlotPeriodOffset = {static_cast<UINT8>(period), 3};
        record.duration = 2;
        SearchSpace element{};
        EXPECT_EQ(rrcComposeSearchSpace(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), noPeriod);
        EXPECT_EQ(element.monitoringSlotPeriodicityAndOffset.t, period);
        EXPECT_EQ(element.duration, 2) << "composition continues";
        EXPECT_EQ(encode(asn1PE_SearchSpace, element),
                  "SearchSpace.monitoringSlotPeriodicityAndOffset: tag " + std::to_string(period) + " is not in 1..15");
    }
}

TEST_F(pdcch, SearchSpaceTypes)
{
    RrcSearchSpace_t record{};
    record.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
    record.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
    expectSpace(record, R"({"searchSpaceId":0,"searchSpaceType":{"common":{}}})");
    record.presence = RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;
    record.searchType.ueSpecific.dciFormats = 1;
    expectSpace(record,
                R"({"searchSpaceId":0,"searchSpaceType":{"ue-Specific":{"dci-Formats":"formats0-1-And-1-1"}}})");

    record.presence = 0xFC;
    SearchSpace element{};
    EXPECT_EQ(rrcComposeSearchSpace(&context, &element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_SearchSpace, element), "SearchSpace.searchSpaceType: tag 0 is not in 1..2");
}

TEST_F(pdcch, SearchSpaceWithBothTypeBitsIsUeSpecific)
{
    RrcSearchSpace_t record{};
    record.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
    record.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE | RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;
    record.searchType.ueSpecific.dciFormats = 1;
    expectSpace(record,
                R"({"searchSpaceId":0,"searchSpaceType":{"ue-Specific":{"dci-Formats":"formats0-1-And-1-1"}}})");
}

TEST_F(pdcch, CommonSearchSpaceFormats)
{
    for (const unsigned mask : masks(5))
    {
        RrcSearchSpace_t record{};
        record.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
        record.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
        struct common_s& common = record.searchType.common;
        common.presence = static_cast<UINT8>(mask);
        common.dci0AndDci1.padding = 0xFF;
        common.dci2_1.padding = 0xFF;
        common.dci2_2.padding = 0xFF;
        common.dci2_3 = {0, 7, 1};
        expectSpace(record,
                    R"({"searchSpaceId":0,"searchSpaceType":{"common":)" +
                        object({mask & 1 ? R"("dci-Format0-0-AndFormat1-0":{})" : "",
                                mask & 2 ? R"("dci-Format2-0":{"nrofCandidates-SFI":{}})" : "",
                                mask & 4 ? R"("dci-Format2-1":{})" : "", mask & 8 ? R"("dci-Format2-2":{})" : "",
                                mask & 16 ? R"("dci-Format2-3":{"dummy2":"n2"})" : ""}) +
                        "}}");
    }
}

TEST_F(pdcch, Dci2_0Levels)
{
    for (const unsigned mask : masks(5))
    {
        struct dciFormat2_0_s record = {static_cast<UINT8>(mask), 1, 0, 1, 0, 1};
        SearchSpace_searchSpaceType_common element{};
        EXPECT_EQ(rrcComposeSearchSpaceTypeDci_Format2_0(&element.dci_Format2_0, &record), VOS_OK);
        SearchSpace space{};
        space.m.searchSpaceTypePresent = 1;
        space.searchSpaceType.t = T_SearchSpace_searchSpaceType_common;
        auto* const common = static_cast<SearchSpace_searchSpaceType_common*>(
            rtxMemHeapAlloc(&context, sizeof(SearchSpace_searchSpaceType_common)));
        *common = element;
        common->m.dci_Format2_0Present = 1;
        space.searchSpaceType.u.common = common;
        expectDecoded(
            "SearchSpace", asn1PE_SearchSpace, space,
            R"({"searchSpaceId":0,"searchSpaceType":{"common":{"dci-Format2-0":{"nrofCandidates-SFI":)" +
                object({mask & 1 ? R"("aggregationLevel1":"n2")" : "", mask & 2 ? R"("aggregationLevel2":"n1")" : "",
                        mask & 4 ? R"("aggregationLevel4":"n2")" : "", mask & 8 ? R"("aggregationLevel8":"n1")" : "",
                        mask & 16 ? R"("aggregationLevel16":"n2")" : ""}) +
                "}}}}");
    }
}

TEST_F(pdcch, Dci2_3AlwaysHasItsSecondDummy)
{
    RrcSearchSpace_t record{};
    record.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
    record.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
    record.searchType.common.presence = RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE;
    record.searchType.common.dci2_3 = {0xFE, 7, 1};
    expectSpace(record, R"({"searchSpaceId":0,"searchSpaceType":{"common":{"dci-Format2-3":{"dummy2":"n2"}}}})");
    record.searchType.common.dci2_3 = {RRC_DCI2_3_DUMMY1_PRESENCE, 7, 0};
    expectSpace(record, R"({"searchSpaceId":0,"searchSpaceType":{"common":)"
                        R"({"dci-Format2-3":{"dummy1":"sl20","dummy2":"n1"}}}})");
}

// Pre-emption

TEST_F(pdcch, PreemptionCells)
{
    RrcDlPreemption_t record{0, 0, 0, 1, {}};
    for (unsigned i = 0; i < 32; ++i)
    {
        record.intCfgPerServingCells[i] = {static_cast<UINT8>(31 - i), static_cast<UINT8>(125 - i)};
    }
    for (const unsigned count : {1U, 32U})
    {
        record.numServingCells = static_cast<UINT8>(count);
        DownlinkPreemption element{};
        EXPECT_EQ(rrcComposeDownlinkPreemptionSetup(&context, &element, &record), VOS_OK);
        const auto cell = [](unsigned i)
        {
            return "{\"servingCellId\":" + std::to_string(31 - i) + ",\"positionInDCI\":" + std::to_string(125 - i) +
                   "}";
        };
        expectDecoded("DownlinkPreemption", asn1PE_DownlinkPreemption, element,
                      R"({"int-RNTI":0,"timeFrequencySet":"set0","dci-PayloadSize":0,)"
                      R"("int-ConfigurationPerServingCell":)" +
                          array(count, cell) + "}");
    }
    for (const unsigned count : {33U, 255U})
    {
        record.numServingCells = static_cast<UINT8>(count);
        DownlinkPreemption element{};
        EXPECT_EQ(rrcComposeDownlinkPreemptionSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_DownlinkPreemption, element), "DownlinkPreemption.int-ConfigurationPerServingCell: " +
                                                                  std::to_string(count) + " elements, not 1..32");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdcch, PreemptionWithoutCellsHasAnEmptyList)
{
    fill(0, 0, 0, 0, RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE);
    cfg->dlPreemption.numServingCells = 0;
    PDCCH_Config element{};
    EXPECT_EQ(rrcComposePdcch_ConfigSetup(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.downlinkPreemption.t, 2U);
    EXPECT_EQ(element.downlinkPreemption.u.setup->int_ConfigurationPerServingCell.count, 0U);
    EXPECT_EQ(encode(asn1PE_PDCCH_Config, element),
              "PDCCH-Config.downlinkPreemption.setup.int-ConfigurationPerServingCell: 0 elements, not 1..32");
}

// Group TPC commands

TEST_F(pdcch, TpcPuschOptions)
{
    for (const unsigned mask : masks(3))
    {
        RrcPuschTpcCmdCfg_t record{static_cast<UINT8>(mask), 15, 1, 31};
        PDCCH_Config_tpc_PUSCH choice{};
        EXPECT_EQ(rrcComposeTpc_PUSCH(&context, &choice, &record), VOS_OK);
        EXPECT_EQ(choice.t, 2U);
        expectDecoded("PUSCH-TPC-CommandConfig", asn1PE_PUSCH_TPC_CommandConfig, *choice.u.setup,
                      object({mask & 1 ? "\"tpc-Index\":15" : "", mask & 2 ? "\"tpc-IndexSUL\":1" : "",
                              mask & 4 ? "\"targetCell\":31" : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdcch, TpcPucchOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcPucchTpcCmdCfg_t record{static_cast<UINT8>(mask), 1, 15};
        PDCCH_Config_tpc_PUCCH choice{};
        EXPECT_EQ(rrcComposeTpc_PUCCH(&context, &choice, &record), VOS_OK);
        EXPECT_EQ(choice.t, 2U);
        expectDecoded("PUCCH-TPC-CommandConfig", asn1PE_PUCCH_TPC_CommandConfig, *choice.u.setup,
                      object({mask & 1 ? "\"tpc-IndexPCell\":1" : "", mask & 2 ? "\"tpc-IndexPUCCH-SCell\":15" : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdcch, TpcSrsOptions)
{
    for (const unsigned mask : masks(3))
    {
        RrcSrsTpcCmdCfg_t record{static_cast<UINT8>(mask), 31, 30, 1};
        PDCCH_Config_tpc_SRS choice{};
        EXPECT_EQ(rrcComposeTpc_SRS(&context, &choice, &record), VOS_OK);
        EXPECT_EQ(choice.t, 2U);
        expectDecoded(
            "SRS-TPC-CommandConfig", asn1PE_SRS_TPC_CommandConfig, *choice.u.setup,
            object({mask & 1 ? "\"startingBitOfFormat2-3\":31" : "", mask & 2 ? "\"fieldTypeFormat2-3\":1" : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(pdcch, TpcSrsBit0CarriesBothStartingBitsAndItsSulBitNothing)
{
    RrcSrsTpcCmdCfg_t record{RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE, 31, 30, 1};
    SRS_TPC_CommandConfig element{};
    EXPECT_EQ(rrcComposeTpc_SRSSetup(&element, &record), VOS_OK);
    EXPECT_EQ(element.m.startingBitOfFormat2_3Present, 0U);
    EXPECT_EQ(element.m.fieldTypeFormat2_3Present, 0U);
    EXPECT_EQ(element.m.startingBitOfFormat2_3SUL_v1530Present, 0U);
    EXPECT_EQ(element.startingBitOfFormat2_3SUL_v1530, 0);

    record.bitMask = RRC_SRS_TPC_STARTING_BIT_PRESENCE;
    EXPECT_EQ(rrcComposeTpc_SRSSetup(&element, &record), VOS_OK);
    EXPECT_EQ(element.m.startingBitOfFormat2_3Present, 1U);
    EXPECT_EQ(element.startingBitOfFormat2_3, 31);
    EXPECT_EQ(element.m.startingBitOfFormat2_3SUL_v1530Present, 1U);
    EXPECT_EQ(element.startingBitOfFormat2_3SUL_v1530, 30);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    // The group is not flagged: the SUL field stays behind.
    expectDecoded("SRS-TPC-CommandConfig", asn1PE_SRS_TPC_CommandConfig, element, R"({"startingBitOfFormat2-3":31})");
}

TEST_F(pdcch, RecordOrder)
{
    {
        using R = RrcPdcchCfg_t;
        EXPECT_TRUE(
            rising({offsetof(R, numControlResourceSetAddMod), offsetof(R, controlResourceSetAddMod),
                    offsetof(R, numControlResourceSetRel), offsetof(R, controlResourceSetIdx),
                    offsetof(R, numSearchSpaceAddMod), offsetof(R, searchSpaceAddMod), offsetof(R, numSearchSpaceRel),
                    offsetof(R, searchSpaceId), offsetof(R, bitMask), offsetof(R, dlPreemption), offsetof(R, tpcPusch),
                    offsetof(R, tpcPucch), offsetof(R, tpcSrs)}));
    }
    {
        using R = RrcControlResourceSet_t;
        EXPECT_TRUE(
            rising({offsetof(R, setIdx), offsetof(R, freqDomainResource), offsetof(R, duration), offsetof(R, presence),
                    offsetof(R, interLeaved), offsetof(R, precoderGranularity), offsetof(R, numTciStatesPdcchAdd),
                    offsetof(R, tciStateAddId), offsetof(R, numTciStatesPdcchRel), offsetof(R, tciStateRelId),
                    offsetof(R, bitMask), offsetof(R, enTciPresentInDci), offsetof(R, pdcchDmrsScramblindId)}));
    }
    {
        using R = RrcInterleaved_t;
        EXPECT_TRUE(rising(
            {offsetof(R, regBundleSize), offsetof(R, interleaveSize), offsetof(R, bitMask), offsetof(R, shiftIdx)}));
    }
    {
        using R = RrcSearchSpace_t;
        EXPECT_TRUE(rising({offsetof(R, searchSpaceId), offsetof(R, bitMask), offsetof(R, controlResourceSetId),
                            offsetof(R, monitoringSlotPeriodOffset), offsetof(R, duration), offsetof(R, nrofCadidates),
                            offsetof(R, presence), offsetof(R, searchType)}));
        // The bit-field fills the two octets behind the duration.
        EXPECT_EQ(offsetof(R, nrofCadidates), offsetof(R, duration) + 4);
        EXPECT_TRUE(rising({offsetof(slotPeriodOffset_s, period), offsetof(slotPeriodOffset_s, offset)}));
        EXPECT_TRUE(rising({offsetof(nrofCadidate_s, aggrLev1), offsetof(nrofCadidate_s, aggrLev2),
                            offsetof(nrofCadidate_s, aggrLev4), offsetof(nrofCadidate_s, aggrLev8),
                            offsetof(nrofCadidate_s, aggrLev16)}));
    }
    {
        using R = common_s;
        EXPECT_TRUE(rising({offsetof(R, presence), offsetof(R, dci0AndDci1), offsetof(R, dci0AndDci2_0),
                            offsetof(R, dci2_1), offsetof(R, dci2_2), offsetof(R, dci2_3)}));
        EXPECT_TRUE(rising({offsetof(dciFormat2_0_s, presence), offsetof(dciFormat2_0_s, aggrLev1),
                            offsetof(dciFormat2_0_s, aggrLev2), offsetof(dciFormat2_0_s, aggrLev4),
                            offsetof(dciFormat2_0_s, aggrLev8), offsetof(dciFormat2_0_s, aggrLev16)}));
        EXPECT_TRUE(rising(
            {offsetof(dciFormat2_3_s, presence), offsetof(dciFormat2_3_s, dummy1), offsetof(dciFormat2_3_s, dummy2)}));
        EXPECT_EQ(offsetof(searchType_u, common), offsetof(searchType_u, ueSpecific));
    }
    {
        using R = RrcDlPreemption_t;
        EXPECT_TRUE(rising({offsetof(R, intRnti), offsetof(R, timeFreqSet), offsetof(R, dciPayloadSize),
                            offsetof(R, numServingCells), offsetof(R, intCfgPerServingCells)}));
        EXPECT_TRUE(
            rising({offsetof(IntCfgPerServingCell_s, serverCellIdx), offsetof(IntCfgPerServingCell_s, positionInDci)}));
    }
    EXPECT_TRUE(rising({offsetof(RrcPuschTpcCmdCfg_t, bitMask), offsetof(RrcPuschTpcCmdCfg_t, tpcIdx),
                        offsetof(RrcPuschTpcCmdCfg_t, tpcIdxSul), offsetof(RrcPuschTpcCmdCfg_t, targetCellIdx)}));
    EXPECT_TRUE(rising({offsetof(RrcPucchTpcCmdCfg_t, bitMask), offsetof(RrcPucchTpcCmdCfg_t, tpcPcellIdx),
                        offsetof(RrcPucchTpcCmdCfg_t, tpcScellIdx)}));
    EXPECT_TRUE(
        rising({offsetof(RrcSrsTpcCmdCfg_t, bitMask), offsetof(RrcSrsTpcCmdCfg_t, startBitFormat2_3),
                offsetof(RrcSrsTpcCmdCfg_t, startBitSulFormat2_3), offsetof(RrcSrsTpcCmdCfg_t, feildTypeFormat2_3)}));
}
