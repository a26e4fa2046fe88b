#include "cellGroupCfg/csiReport.h"

#include <initializer_list>
#include <memory>
#include <string>

#include "NR-RRC-Pdus.h"
#include "csiRecords.h"
#include "support/ComposerTest.h"

using test::HeapFault;
using test::jsonArray;
using test::ReportJson;

namespace
{

using Counts = std::initializer_list<UINT8>;

const std::string noNode = "pNode Or pItem is NULL\r\n";

class csiReport : public test::ComposerTest
{
protected:
    csiReport()
    {
        test::fillReport(*record, 47);
    }

    // Composes `record` and has it decoded.
    void expectReport(const ReportJson& expected)
    {
        const std::string text = expected.text();
        SCOPED_TRACE(text);
        CSI_ReportConfig element{};
        EXPECT_EQ(rrcComposeCsi_ReportConfigToAdd(&context, &element, record.get()), VOS_OK);
        expectDecoded("CSI-ReportConfig", asn1PE_CSI_ReportConfig, element, text);
        EXPECT_EQ(printed(), "");
    }

    // Composes `record` and returns the encoder's error.
    std::string refusal()
    {
        CSI_ReportConfig element{};
        EXPECT_EQ(rrcComposeCsi_ReportConfigToAdd(&context, &element, record.get()), VOS_OK);
        return encode(asn1PE_CSI_ReportConfig, element);
    }

    void expectRefused(const std::string& line)
    {
        EXPECT_EQ(refusal(), "CSI-ReportConfig." + line);
    }

    std::unique_ptr<RrcCsiReportCfg_t> record = cleared<RrcCsiReportCfg_t>();
    ReportJson json = {.id = 47};
};

// Members of the report

TEST_F(csiReport, Options)
{
    record->servCellIndex = 31;
    record->CsiImresourceCfgIdForInterference = 110;
    record->nzpCsiRsresourceCfgIdForInterference = 109;
    record->codeBookCfg.Presence = RRC_CODE_BOOK_TYPE1_PRESENCE;
    CodebookType1_Sub_t& sub = record->codeBookCfg.CodeBookCfgType_u.codeBookType1.codebookType1_Sub;
    sub.Presence = RRC_CODE_BOOK_TYPE_SINGLE_PANEL;
    sub.CodeBookTypePanel_u.singlePanel.SinglePanel_nrOfAntennaPorts.Presence = RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE;
    record->codeBookCfg.CodeBookCfgType_u.codeBookType1.CodebookMode = 1;
    record->nrofCQIsPerRep = 1;
    record->cqi_Table = 3;
    record->RRCPortIndexFor8Ranks.numPortIndexFor8Ranks = 1;
    record->RRCPortIndexFor8Ranks.portIndexFor8Ranks[0].Presence = RRC_PORT_INDEX1_PRESENCE;

    const std::string carrier = R"(,"carrier":31)";
    const std::string im = R"(,"csi-IM-ResourcesForInterference":110)";
    const std::string nzp = R"(,"nzp-CSI-RS-ResourcesForInterference":109)";
    const std::string frequency = R"(,"reportFreqConfiguration":{})";
    const std::string codebook =
        R"(,"codebookConfig":{"codebookType":{"type1":{"subType":{"typeI-SinglePanel":{"nrOfAntennaPorts":)"
        R"({"two":{"twoTX-CodebookSubsetRestriction":"000000"}},"typeI-SinglePanel-ri-Restriction":"00000000"}},)"
        R"("codebookMode":1}}})";
    const std::string dummy = R"(,"dummy":"n2")";
    const std::string table = R"(,"cqi-Table":"spare1")";
    const std::string ports = R"(,"non-PMI-PortIndication":[{"portIndex1":null}])";
    const struct
    {
        UINT16 bitMask;
        ReportJson json;
    } cases[] = {
        {0, {}},
        {RRC_CSI_REPORT_CFG_CERV_CELL_IDX_PRESENCE, {.carrier = carrier}},
        {RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE, {.interference = im}},
        {RRC_CSI_REPORT_CFG_NZP_CSI_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE, {.interference = nzp}},
        {RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE, {.frequency = frequency}},
        {RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE, {.codebook = codebook}},
        {RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE, {.codebook = dummy}},
        {RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE, {.table = table}},
        {RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE, {.ports = ports}},
        {RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE, {}},
        {0xFFFF,
         {.carrier = carrier,
          .interference = im + nzp,
          .frequency = frequency,
          .codebook = codebook + dummy,
          .table = table,
          .ports = ports}},
        {0xFC00, {}},
    };
    for (auto [bitMask, expected] : cases)
    {
        record->bitMask = static_cast<UINT16>(bitMask | RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE);
        expected.id = 47;
        expectReport(expected);
    }
}

TEST_F(csiReport, DummyWithoutTheGroupBasedReportLeavesTheLatterOpen)
{
    record->bitMask = RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE;
    record->nrofCQIsPerRep = 1;
    CSI_ReportConfig element{};
    EXPECT_EQ(rrcComposeCsi_ReportConfigToAdd(&context, &element, record.get()), VOS_OK);
    EXPECT_EQ(element.m.dummyPresent, 1U);
    EXPECT_EQ(element.dummy, unsigned{CSI_ReportConfig_dummy_n2});
    EXPECT_EQ(element.groupBasedBeamReporting.t, 0U);
    EXPECT_EQ(encode(asn1PE_CSI_ReportConfig, element),
              "CSI-ReportConfig.groupBasedBeamReporting: tag 0 is not in 1..2");
}

TEST_F(csiReport, GroupBasedReportHasNoPresenceBit)
{
    record->bitMask = RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE;
    CSI_ReportConfig element{};
    EXPECT_EQ(rrcComposeCsi_ReportConfigToAdd(&context, &element, record.get()), VOS_OK);
    EXPECT_EQ(element.groupBasedBeamReporting.t, unsigned{T_CSI_ReportConfig_groupBasedBeamReporting_enabled});
    const auto& m = element.m;
    EXPECT_FALSE(m.carrierPresent || m.csi_IM_ResourcesForInterferencePresent ||
                 m.nzp_CSI_RS_ResourcesForInterferencePresent || m.reportFreqConfigurationPresent ||
                 m.codebookConfigPresent || m.dummyPresent || m.cqi_TablePresent || m.non_PMI_PortIndicationPresent ||
                 m._v2ExtPresent || m.semiPersistentOnPUSCH_v1530Present);
}

TEST_F(csiReport, ExtensionAdditionIsComposedAndItsGroupNotMarked)
{
    record->bitMask |= RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE;
    record->semimPersistentOnPuschv1530_t.ReportSlotConfig_v1530 = 2;
    CSI_ReportConfig element{};
    EXPECT_EQ(rrcComposeCsi_ReportConfigToAdd(&context, &element, record.get()), VOS_OK);
    EXPECT_EQ(element.m.semiPersistentOnPUSCH_v1530Present, 1U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    EXPECT_EQ(element.semiPersistentOnPUSCH_v1530.reportSlotConfig_v1530, 2U);
    expectDecoded("CSI-ReportConfig", asn1PE_CSI_ReportConfig, element, json.text());
    // With its group marked it would be sent as it was composed.
    element.m._v2ExtPresent = 1;
    json.ports = R"(,"semiPersistentOnPUSCH-v1530":{"reportSlotConfig-v1530":"sl16"})";
    expectDecoded("CSI-ReportConfig", asn1PE_CSI_ReportConfig, element, json.text());
}

TEST_F(csiReport, EnumerationsOutOfRange)
{
    record->subBandSize = -1;
    expectRefused("subbandSize: 4294967295 is not in 0..1");
    record->subBandSize = 0;
    record->timeRestrictForInterferenceMeas = 2;
    expectRefused("timeRestrictionForInterferenceMeasurements: 2 is not in 0..1");
}

// Report type

std::string pucchList(unsigned size)
{
    return R"("pucch-CSI-ResourceList":)" + jsonArray(size,
                                                      [](unsigned i)
                                                      {
                                                          return R"({"uplinkBandwidthPartId":)" +
                                                                 std::to_string(4 - i) + R"(,"pucch-Resource":)" +
                                                                 std::to_string(127 - i) + "}";
                                                      });
}

const PucchCsiResource_t pucchResources[4] = {{4, 127}, {3, 126}, {2, 125}, {1, 124}};

TEST_F(csiReport, PucchReportTypes)
{
    const struct
    {
        UINT8 bit;
        std::string name;
    } types[] = {
        {RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE, "periodic"},
        {RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUCCH_PRESENCE, "semiPersistentOnPUCCH"},
    };
    for (const auto& [bit, name] : types)
    {
        // Both records look alike.
        record->cfgTypeBitMask = bit;
        Periodic_t& periodic = record->ReportCfgType_n.periodic;
        periodic.reportSlotCfg = {9, 159};
        std::copy(std::begin(pucchResources), std::end(pucchResources), periodic.pucchCsiResource);
        for (const UINT8 count : Counts{1, 4})
        {
            periodic.pucchCsiResourceNum = count;
            json.type = R"({")" + name + R"(":{"reportSlotConfig":{"slots160":159},)" + pucchList(count) + "}}";
            expectReport(json);
        }
        for (const UINT8 count : Counts{0, 5, 255})
        {
            periodic.pucchCsiResourceNum = count;
            expectRefused("reportConfigType." + name + ".pucch-CSI-ResourceList: " + std::to_string(count) +
                          " elements, not 1..4");
        }
    }
}

TEST_F(csiReport, PuschReportTypes)
{
    record->cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUSCH_PRESENCE;
    SemiPersistentOnPuSch_t& pusch = record->ReportCfgType_n.semiPersistentOnPusch;
    pusch = {6, 0, {}, 29};
    for (unsigned i = 0; i < 16; ++i)
    {
        pusch.reportSlotOffset[i] = static_cast<UINT8>(32 - i);
    }
    const auto offset = [](unsigned i)
    {
        return std::to_string(32 - i);
    };
    for (const UINT8 count : Counts{1, 16})
    {
        pusch.reportSlotOffsetNum = count;
        json.type = R"({"semiPersistentOnPUSCH":{"reportSlotConfig":"sl320","reportSlotOffsetList":)" +
                    jsonArray(count, offset) + R"(,"p0alpha":29}})";
        expectReport(json);
    }
    for (const UINT8 count : Counts{0, 17, 255})
    {
        pusch.reportSlotOffsetNum = count;
        expectRefused("reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList: " + std::to_string(count) +
                      " elements, not 1..16");
    }

    record->cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE;
    Aperiodic_t& aperiodic = record->ReportCfgType_n.aperiodic;
    for (unsigned i = 0; i < 16; ++i)
    {
        aperiodic.reportSlotOffset[i] = static_cast<UINT8>(32 - i);
    }
    for (const UINT8 count : Counts{1, 16})
    {
        aperiodic.reportSlotOffsetNum = count;
        json.type = R"({"aperiodic":{"reportSlotOffsetList":)" + jsonArray(count, offset) + "}}";
        expectReport(json);
    }
    for (const UINT8 count : Counts{0, 17, 255})
    {
        aperiodic.reportSlotOffsetNum = count;
        expectRefused("reportConfigType.aperiodic.reportSlotOffsetList: " + std::to_string(count) +
                      " elements, not 1..16");
    }
}

TEST_F(csiReport, HighestReportTypeWins)
{
    record->ReportCfgType_n.semiPersistentOnPusch = {1, 1, {9}, 3};
    record->cfgTypeBitMask = 0x7;
    json.type = R"({"semiPersistentOnPUSCH":{"reportSlotConfig":"sl10","reportSlotOffsetList":[9],"p0alpha":3}})";
    expectReport(json);
    // Read as the aperiodic record, the same octets are one offset of one slot.
    record->cfgTypeBitMask = 0xFF;
    json.type = R"({"aperiodic":{"reportSlotOffsetList":[1]}})";
    expectReport(json);
    record->cfgTypeBitMask = 0xF0;
    expectRefused("reportConfigType: tag 0 is not in 1..4");
}

TEST_F(csiReport, Periodicities)
{
    const struct
    {
        csiReportPeriodAndOffset_t record;
        std::string json;
    } cases[] = {
        {{1, 3}, R"({"slots4":3})"},    {{2, 4}, R"({"slots5":4})"},        {{3, 7}, R"({"slots8":7})"},
        {{4, 9}, R"({"slots10":9})"},   {{5, 15}, R"({"slots16":15})"},     {{6, 19}, R"({"slots20":19})"},
        {{7, 39}, R"({"slots40":39})"}, {{8, 79}, R"({"slots80":79})"},     {{9, 159}, R"({"slots160":159})"},
        {{10, 0}, R"({"slots320":0})"}, {{10, 200}, R"({"slots320":200})"}, {{10, 255}, R"({"slots320":255})"},
    };
    for (auto [period, expected] : cases)
    {
        CSI_ReportPeriodicityAndOffset element{};
        EXPECT_EQ(rrcComposeReportPeriodicityAndOffset(&element, &period), VOS_OK);
        expectDecoded("CSI-ReportPeriodicityAndOffset", asn1PE_CSI_ReportPeriodicityAndOffset, element, expected);
        EXPECT_EQ(printed(), "");
    }
    for (const UINT8 periodicity : Counts{0, 11, 255})
    {
        csiReportPeriodAndOffset_t period = {periodicity, 1};
        CSI_ReportPeriodicityAndOffset element{};
        EXPECT_EQ(rrcComposeReportPeriodicityAndOffset(&element, &period), VOS_OK);
        EXPECT_EQ(printed(), "No T_CSI_ReportPeriodicityAndOffset\n");
        EXPECT_EQ(encode(asn1PE_CSI_ReportPeriodicityAndOffset, element),
                  "CSI-ReportPeriodicityAndOffset: tag " + std::to_string(periodicity) + " is not in 1..10");
    }
}

TEST_F(csiReport, UnknownPeriodicityDoesNotStopTheReport)
{
    record->cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE;
    record->ReportCfgType_n.periodic = {{11, 0}, 1, {{0, 0}}};
    expectRefused("reportConfigType.periodic.reportSlotConfig: tag 11 is not in 1..10");
    EXPECT_EQ(printed(), "No T_CSI_ReportPeriodicityAndOffset\n");
}

TEST_F(csiReport, PucchListsStopAtTheFirstNodeThatIsMissing)
{
    Periodic_t periodic = {{1, 0}, 4, {}};
    SemiPersistentOnPucch_t semiPersistent = {{1, 0}, 4, {}};
    std::copy(std::begin(pucchResources), std::end(pucchResources), periodic.pucchCsiResource);
    std::copy(std::begin(pucchResources), std::end(pucchResources), semiPersistent.pucchCsiResource);
    for (unsigned successes = 0; successes <= 4; ++successes)
    {
        OSRTDList lists[2]{};
        INT32 results[2];
        {
            const HeapFault fault(successes);
            results[0] = rrcComposepucch_CSI_ResourceList(&context, &lists[0], &periodic);
        }
        {
            const HeapFault fault(successes);
            results[1] = rrcComposeSemiPerpucch_CSI_ResourceList(&context, &lists[1], &semiPersistent);
        }
        EXPECT_EQ(printed(), successes < 4 ? noNode + noNode : "");
        for (unsigned i = 0; i < 2; ++i)
        {
            EXPECT_EQ(results[i], successes < 4 ? VOS_ERROR : VOS_OK);
            ASSERT_EQ(lists[i].count, successes);
            for (unsigned k = 0; k < successes; ++k)
            {
                EXPECT_EQ(element<PUCCH_CSI_Resource>(lists[i], k).pucch_Resource, 127 - k);
            }
        }
    }
}

// Report quantity

TEST_F(csiReport, Quantities)
{
    const struct
    {
        UINT8 mask;
        UINT8 bundleMask;
        std::string json;
    } cases[] = {
        {RRC_CSI_REPORT_QUANTITY_NONE_PRESENCE, 0xFF, R"({"none":null})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RI_PMI_CQI_PRESENCE, 0xFF, R"({"cri-RI-PMI-CQI":null})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_PRESENCE, 0xFF, R"({"cri-RI-i1":null})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_CQI_PRESENCE, 0xFE, R"({"cri-RI-i1-CQI":{}})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_CQI_PRESENCE, 1, R"({"cri-RI-i1-CQI":{"pdsch-BundleSizeForCSI":"n4"}})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RI_CQI_PRESENCE, 0xFF, R"({"cri-RI-CQI":null})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RSRP_PRESENCE, 0xFF, R"({"cri-RSRP":null})"},
        {RRC_CSI_REPORT_QUANTITY_SSB_INDEX_RSRP_PRESENCE, 0xFF, R"({"ssb-Index-RSRP":null})"},
        {RRC_CSI_REPORT_QUANTITY_CRI_RI_LI_PMI_CQI_PRESENCE, 0xFF, R"({"cri-RI-LI-PMI-CQI":null})"},
        {0x09, 1, R"({"cri-RI-i1-CQI":{"pdsch-BundleSizeForCSI":"n4"}})"},
        {0x0F, 0, R"({"cri-RI-i1-CQI":{}})"},
        {0x18, 1, R"({"cri-RI-CQI":null})"},
        {0xFF, 1, R"({"cri-RI-LI-PMI-CQI":null})"},
    };
    for (const auto& [mask, bundleMask, expected] : cases)
    {
        record->rptQuBitMask = mask;
        record->ReportQuantity_n.criRiI1Cqi = {bundleMask, 1};
        json.quantity = expected;
        expectReport(json);
    }
    record->rptQuBitMask = 0;
    expectRefused("reportQuantity: tag 0 is not in 1..8");
}

TEST_F(csiReport, LosingQuantityIsStillAllocated)
{
    record->rptQuBitMask = 0x18;
    CSI_ReportConfig_reportQuantity element{};
    EXPECT_EQ(rrcComposeCSIreportQuantity(&context, &element, record.get()), VOS_OK);
    EXPECT_EQ(element.t, unsigned{T_CSI_ReportConfig_reportQuantity_cri_RI_CQI});
    EXPECT_NE(element.u.cri_RI_i1_CQI, nullptr);
}

TEST_F(csiReport, QuantityWithoutHeap)
{
    const struct
    {
        UINT8 mask;
        OSUINT32 tag;
    } cases[] = {{0x08, 0}, {0x0F, 0}, {0x18, 5}};
    for (const auto& [mask, tag] : cases)
    {
        record->rptQuBitMask = mask;
        CSI_ReportConfig_reportQuantity element{};
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeCSIreportQuantity(&context, &element, record.get()), VOS_OK);
        EXPECT_TRUE(HeapFault::struck());
        EXPECT_EQ(element.t, tag);
    }
}

// Frequency configuration

TEST_F(csiReport, FrequencyOptions)
{
    record->bitMask |= RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE;
    record->reportFreqCfg.CqiFormatInd = 1;
    record->reportFreqCfg.PmiFormatInd = 1;
    record->reportFreqCfg.csiRptBandBitMask = RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS3;
    record->reportFreqCfg.CsiReportingBand_n.subbands3 = 5;
    const std::string cqi = R"("cqi-FormatIndicator":"subbandCQI")";
    const std::string pmi = R"("pmi-FormatIndicator":"subbandPMI")";
    const std::string band = R"("csi-ReportingBand":{"subbands3":"101"})";
    const struct
    {
        UINT8 bitMask;
        std::string members;
    } cases[] = {
        {0, ""},
        {RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE, cqi},
        {RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE, pmi},
        {RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE, band},
        {0xFF, cqi + "," + pmi + "," + band},
        {0xF8, ""},
    };
    for (const auto& [bitMask, members] : cases)
    {
        record->reportFreqCfg.bitMask = bitMask;
        json.frequency = R"(,"reportFreqConfiguration":{)" + members + "}";
        expectReport(json);
    }
}

TEST_F(csiReport, ReportingBands)
{
    record->bitMask |= RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE;
    record->reportFreqCfg.bitMask = RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE;
    using Fill = void (*)(csiReportingBand_u&);
    const struct
    {
        UINT32 mask;
        Fill fill;
        std::string json;
    } cases[] = {
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS3, [](auto& u) { u.subbands3 = 0b110; }, R"("subbands3":"110")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS4, [](auto& u) { u.subbands4 = 0b1010; }, R"("subbands4":"1010")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS5, [](auto& u) { u.subbands5 = 0b10010; },
         R"("subbands5":"10010")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS6, [](auto& u) { u.subbands6 = 0b110001; },
         R"("subbands6":"110001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS7, [](auto& u) { u.subbands7 = 0b1010001; },
         R"("subbands7":"1010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS8, [](auto& u) { u.subbands8 = 0b10010001; },
         R"("subbands8":"10010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS9, [](auto& u) { u.subbands9 = 0b110010001; },
         R"("subbands9":"110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS10, [](auto& u) { u.subbands10 = 0b1010010001; },
         R"("subbands10":"1010010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS11, [](auto& u) { u.subbands11 = 0b10110010001; },
         R"("subbands11":"10110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS12, [](auto& u) { u.subbands12 = 0b100110010001; },
         R"("subbands12":"100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS13, [](auto& u) { u.subbands13 = 0b1100110010001; },
         R"("subbands13":"1100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS14, [](auto& u) { u.subbands14 = 0b10100110010001; },
         R"("subbands14":"10100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS15, [](auto& u) { u.subbands15 = 0b110100110010001; },
         R"("subbands15":"110100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS16, [](auto& u) { u.subbands16 = 0b1010100110010001; },
         R"("subbands16":"1010100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS17, [](auto& u) { u.subbands17 = 0b10010100110010001; },
         R"("subbands17":"10010100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS18, [](auto& u) { u.subbands18 = 0b101010100110010001; },
         R"("subbands18":"101010100110010001")"},
        {RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS19_V1530,
         [](auto& u) { u.subbands19_v1530 = 0b1101010100110010001; }, R"("subbands19-v1530":"1101010100110010001")"},
        // The highest bit wins, and reads what the union holds.
        {0x3, [](auto& u) { u.subbands4 = 0b1010; }, R"("subbands4":"1010")"},
        {0x1FFFF, [](auto& u) { u.subbands19_v1530 = 1; }, R"("subbands19-v1530":"0000000000000000001")"},
        // Bits above the table mean nothing.
        {0xFFFE0001, [](auto& u) { u.subbands3 = 0b011; }, R"("subbands3":"011")"},
    };
    for (const auto& [mask, fill, band] : cases)
    {
        record->reportFreqCfg.csiRptBandBitMask = mask;
        record->reportFreqCfg.CsiReportingBand_n = {};
        fill(record->reportFreqCfg.CsiReportingBand_n);
        json.frequency = R"(,"reportFreqConfiguration":{"csi-ReportingBand":{)" + band + "}}";
        expectReport(json);
    }
    record->reportFreqCfg.csiRptBandBitMask = 0xFFFE0000;
    expectRefused("reportFreqConfiguration.csi-ReportingBand: tag 0 is not in 1..17");
}

TEST_F(csiReport, ReportingBandTakesTheBitsOfItsWidthOnly)
{
    record->bitMask |= RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE;
    record->reportFreqCfg.bitMask = RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE;
    record->reportFreqCfg.csiRptBandBitMask = RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS3;
    record->reportFreqCfg.CsiReportingBand_n.subbands19_v1530 = 0x7FFFA;
    json.frequency = R"(,"reportFreqConfiguration":{"csi-ReportingBand":{"subbands3":"010"}})";
    expectReport(json);
}

TEST_F(csiReport, ReportingBandWithoutHeapStaysOpen)
{
    record->reportFreqCfg.csiRptBandBitMask = 0x10001;
    for (unsigned successes = 0; successes < 2; ++successes)
    {
        CSI_ReportConfig_reportFreqConfiguration_csi_ReportingBand element{};
        const HeapFault fault(successes);
        EXPECT_EQ(rrcComposeCsi_ReportingBand(&context, &element, &record->reportFreqCfg), VOS_OK);
        EXPECT_TRUE(HeapFault::struck());
        EXPECT_EQ(element.t, 0U);
    }
}

// Group-based beam reporting

TEST_F(csiReport, GroupBasedBeamReport)
{
    const struct
    {
        UINT8 presence;
        UINT8 bitMask;
        std::string json;
    } cases[] = {
        {RRC_BASED_BEAM_REPORT_ENABLED, 1, R"({"enabled":null})"},
        {RRC_BASED_BEAM_REPORT_DISABLED, 0xFE, R"({"disabled":{}})"},
        {RRC_BASED_BEAM_REPORT_DISABLED, 1, R"({"disabled":{"nrofReportedRS":"n4"}})"},
        {0xFF, 1, R"({"disabled":{"nrofReportedRS":"n4"}})"},
    };
    for (const auto& [presence, bitMask, group] : cases)
    {
        record->groupBasedBeamReport.Presence = presence;
        record->groupBasedBeamReport.BeamReporting_n.Report_Disabled = {bitMask, 3};
        json.group = group;
        expectReport(json);
    }
    record->groupBasedBeamReport.Presence = 0xFC;
    expectRefused("groupBasedBeamReporting: tag 0 is not in 1..2");

    record->groupBasedBeamReport.Presence = 0x3;
    CSI_ReportConfig_groupBasedBeamReporting element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeGroupBasedBeamReport(&context, &element, &record->groupBasedBeamReport), VOS_OK);
    EXPECT_TRUE(HeapFault::struck());
    EXPECT_EQ(element.t, 0U);
}

// Port indices

class csiReportPorts : public test::ComposerTest
{
protected:
    void expectPorts(RrcPortIndexFor8Ranks_t record, const std::string& json)
    {
        SCOPED_TRACE(json);
        PortIndexFor8Ranks element{};
        EXPECT_EQ(rrcComposePortIndexFor8Ranks(&context, &element, &record), VOS_OK);
        expectDecoded("PortIndexFor8Ranks", asn1PE_PortIndexFor8Ranks, element, json);
        EXPECT_EQ(printed(), "");
    }
};

TEST_F(csiReportPorts, PortIndex8)
{
    const std::string ranks[] = {
        R"("rank1-8":7)",
        R"("rank2-8":[7,6])",
        R"("rank3-8":[7,6,5])",
        R"("rank4-8":[7,6,5,4])",
        R"("rank5-8":[7,6,5,4,3])",
        R"("rank6-8":[7,6,5,4,3,2])",
        R"("rank7-8":[7,6,5,4,3,2,1])",
        R"("rank8-8":[7,6,5,4,3,2,1,0])",
    };
    // Rank r is given when bit r - 1 of the case is set.
    for (const unsigned given : {0x00U, 0x01U, 0x02U, 0x04U, 0x08U, 0x10U, 0x20U, 0x40U, 0x80U, 0xFFU})
    {
        const auto count = [given](unsigned rank)
        {
            return static_cast<UINT8>((given & (1U << (rank - 1))) != 0 ? rank : 0);
        };
        RrcPortIndexFor8Ranks_t record{};
        record.Presence = RRC_PORT_INDEX8_PRESENCE;
        record.PortIndexFor8Ranks_n.portIndex8 = {
            static_cast<UINT8>(count(1) != 0 ? RRC_RANK1_8 : 0xFE),
            7,
            count(2),
            {7, 6},
            count(3),
            {7, 6, 5},
            count(4),
            {7, 6, 5, 4},
            count(5),
            {7, 6, 5, 4, 3},
            count(6),
            {7, 6, 5, 4, 3, 2},
            count(7),
            {7, 6, 5, 4, 3, 2, 1},
            count(8),
            {7, 6, 5, 4, 3, 2, 1, 0},
        };
        std::string members;
        for (unsigned rank = 1; rank <= 8; ++rank)
        {
            if (count(rank) != 0)
            {
                members += (members.empty() ? "" : ",") + ranks[rank - 1];
            }
        }
        expectPorts(record, R"({"portIndex8":{)" + members + "}}");
    }
}

TEST_F(csiReportPorts, CountsOffTheRankOfPortIndex8)
{
    RrcPortIndexFor8Ranks_t record{};
    record.Presence = RRC_PORT_INDEX8_PRESENCE;
    portIndexFor8Ranks_portIndex8& ports = record.PortIndexFor8Ranks_n.portIndex8;
    // Too few: the rest is 0. Too many: the array's entries.
    ports.numRank3_8 = 1;
    ports.PortIndex3_8[0] = 7;
    ports.PortIndex3_8[1] = 6;
    ports.numRank2_8 = 255;
    ports.PortIndex2_8[0] = 5;
    ports.PortIndex2_8[1] = 4;
    ports.numRank8_8 = 255;
    expectPorts(record, R"({"portIndex8":{"rank2-8":[5,4],"rank3-8":[7,0,0],"rank8-8":[0,0,0,0,0,0,0,0]}})");
}

TEST_F(csiReportPorts, PortIndex4HasTwoEntriesPerRank)
{
    RrcPortIndexFor8Ranks_t record{};
    record.Presence = RRC_PORT_INDEX4_PRESENCE;
    portIndexFor8Ranks_portIndex4& ports = record.PortIndexFor8Ranks_n.portIndex4;
    expectPorts(record, R"({"portIndex4":{}})");
    ports = {RRC_RANK1_4, 3, 0, {3, 2}, 0, {3, 2}, 0, {3, 2}};
    expectPorts(record, R"({"portIndex4":{"rank1-4":3}})");
    ports = {0xFE, 3, 2, {3, 2}, 0, {3, 2}, 0, {3, 2}};
    expectPorts(record, R"({"portIndex4":{"rank2-4":[3,2]}})");
    ports = {0, 3, 0, {3, 2}, 2, {3, 2}, 0, {3, 2}};
    expectPorts(record, R"({"portIndex4":{"rank3-4":[3,2,0]}})");
    ports = {0, 3, 0, {3, 2}, 0, {3, 2}, 2, {3, 2}};
    expectPorts(record, R"({"portIndex4":{"rank4-4":[3,2,0,0]}})");
    ports = {1, 3, 255, {3, 2}, 3, {1, 2}, 4, {2, 1}};
    expectPorts(record, R"({"portIndex4":{"rank1-4":3,"rank2-4":[3,2],"rank3-4":[1,2,0],"rank4-4":[2,1,0,0]}})");
}

// A caller that asks whether any composer has failed must not hear of these.
TEST_F(csiReportPorts, TheAlternativesSucceedAlone)
{
    RrcPortIndexFor8Ranks_t record{};
    PortIndexFor8Ranks_portIndex8 eight{};
    PortIndexFor8Ranks_portIndex4 four{};
    PortIndexFor8Ranks_portIndex2 two{};
    EXPECT_EQ(rrcComposePortIndex8(&eight, &record.PortIndexFor8Ranks_n.portIndex8), VOS_OK);
    EXPECT_EQ(rrcComposePortIndex4(&four, &record.PortIndexFor8Ranks_n.portIndex4), VOS_OK);
    EXPECT_EQ(rrcComposePortIndex2(&two, &record.PortIndexFor8Ranks_n.portIndex2), VOS_OK);
}

TEST_F(csiReportPorts, PortIndex2AndPortIndex1)
{
    RrcPortIndexFor8Ranks_t record{};
    record.Presence = RRC_PORT_INDEX2_PRESENCE;
    portIndexFor8Ranks_portIndex2& ports = record.PortIndexFor8Ranks_n.portIndex2;
    expectPorts(record, R"({"portIndex2":{}})");
    ports = {RRC_RANK1_2, 1, 0, {1, 0}};
    expectPorts(record, R"({"portIndex2":{"rank1-2":1}})");
    ports = {0xFE, 1, 2, {0, 1}};
    expectPorts(record, R"({"portIndex2":{"rank2-2":[0,1]}})");
    ports = {1, 1, 255, {0, 1}};
    expectPorts(record, R"({"portIndex2":{"rank1-2":1,"rank2-2":[0,1]}})");
    record.Presence = RRC_PORT_INDEX1_PRESENCE;
    expectPorts(record, R"({"portIndex1":null})");
}

TEST_F(csiReportPorts, HighestBitWins)
{
    RrcPortIndexFor8Ranks_t record{};
    record.PortIndexFor8Ranks_n.portIndex4 = {1, 1, 2, {1, 0}, 0, {}, 0, {}};
    record.Presence = 0x3;
    expectPorts(record, R"({"portIndex4":{"rank1-4":1,"rank2-4":[1,0]}})");
    record.Presence = 0x7;
    expectPorts(record, R"({"portIndex2":{"rank1-2":1,"rank2-2":[1,0]}})");
    record.Presence = 0xFF;
    expectPorts(record, R"({"portIndex1":null})");
    record.Presence = 0xF0;
    PortIndexFor8Ranks element{};
    EXPECT_EQ(rrcComposePortIndexFor8Ranks(&context, &element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_PortIndexFor8Ranks, element), "PortIndexFor8Ranks: tag 0 is not in 1..4");
}

TEST_F(csiReportPorts, WithoutHeapStaysOpen)
{
    for (const UINT8 presence : Counts{1, 2, 4, 7})
    {
        for (unsigned successes = 0; successes < (presence == 7 ? 3U : 1U); ++successes)
        {
            RrcPortIndexFor8Ranks_t record{};
            record.Presence = presence;
            PortIndexFor8Ranks element{};
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposePortIndexFor8Ranks(&context, &element, &record), VOS_OK);
            EXPECT_TRUE(HeapFault::struck());
            EXPECT_EQ(element.t, 0U);
        }
    }
}

TEST_F(csiReport, NonPmiPortIndicationCounts)
{
    record->bitMask |= RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE;
    RRCPortIndexFor8Ranks_t& ports = record->RRCPortIndexFor8Ranks;
    for (unsigned i = 0; i < RRC_PORTINDEX8_RANKS_MAX; ++i)
    {
        ports.portIndexFor8Ranks[i].Presence = RRC_PORT_INDEX8_PRESENCE;
        ports.portIndexFor8Ranks[i].PortIndexFor8Ranks_n.portIndex8.bitMask = RRC_RANK1_8;
        ports.portIndexFor8Ranks[i].PortIndexFor8Ranks_n.portIndex8.rank1_8 = static_cast<UINT8>(i % 8);
    }
    for (const UINT8 count : Counts{1, 128})
    {
        ports.numPortIndexFor8Ranks = count;
        json.ports =
            R"(,"non-PMI-PortIndication":)" +
            jsonArray(count, [](unsigned i) { return R"({"portIndex8":{"rank1-8":)" + std::to_string(i % 8) + "}}"; });
        expectReport(json);
    }
    for (const UINT8 count : Counts{0, 129, 255})
    {
        ports.numPortIndexFor8Ranks = count;
        expectRefused("non-PMI-PortIndication: " + std::to_string(count) + " elements, not 1..128");
    }
}

TEST_F(csiReport, NonPmiPortIndicationStopsAtTheFirstNodeThatIsMissing)
{
    RRCPortIndexFor8Ranks_t& ports = record->RRCPortIndexFor8Ranks;
    ports.numPortIndexFor8Ranks = 3;
    for (auto& entry : ports.portIndexFor8Ranks)
    {
        entry.Presence = RRC_PORT_INDEX1_PRESENCE;
    }
    for (unsigned successes = 0; successes <= 3; ++successes)
    {
        OSRTDList list{};
        const HeapFault fault(successes);
        EXPECT_EQ(rrcComposeNon_PMI_PortIndicat(&context, &list, &ports), successes < 3 ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), successes < 3 ? noNode : "");
        EXPECT_EQ(list.count, successes);
    }
}

// A whole report with the n-th request refused

TEST_F(csiReport, HeapExhaustionNeverFailsTheReport)
{
    record->bitMask = 0x3FF;
    record->cfgTypeBitMask = 0x7;
    record->ReportCfgType_n.periodic = {{1, 0}, 2, {}};
    record->rptQuBitMask = RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_CQI_PRESENCE;
    record->reportFreqCfg.bitMask = RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE;
    record->reportFreqCfg.csiRptBandBitMask = 0x1FFFF;
    record->codeBookCfg.Presence = 0x3;
    CodeBookType2_t& type2 = record->codeBookCfg.CodeBookCfgType_u.codeBookType2;
    type2.bitMask = 0xF;
    type2.codebookType2_Sub.Presence = 0x3;
    record->groupBasedBeamReport.Presence = RRC_BASED_BEAM_REPORT_DISABLED;
    record->RRCPortIndexFor8Ranks.numPortIndexFor8Ranks = 2;
    record->RRCPortIndexFor8Ranks.portIndexFor8Ranks[0].Presence = 0x7;
    record->RRCPortIndexFor8Ranks.portIndexFor8Ranks[1].Presence = 0x1;

    bool struck = true;
    unsigned lines = 0;
    for (unsigned successes = 0; struck; ++successes)
    {
        ASSERT_LT(successes, 100U);
        CSI_ReportConfig element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeCsi_ReportConfigToAdd(&context, &element, record.get()), VOS_OK);
            struck = HeapFault::struck();
        }
        const std::string text = printed();
        EXPECT_EQ(text.size() % noNode.size(), 0U) << text;
        for (size_t at = 0; at < text.size(); at += noNode.size())
        {
            EXPECT_EQ(text.substr(at, noNode.size()), noNode);
            ++lines;
        }
        (void)encode(asn1PE_CSI_ReportConfig, element);
    }
    EXPECT_GT(lines, 0U);
}

} // namespace
