#include "cellGroupCfg/csiMeas.h"

#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>

#include "NR-RRC-Pdus.h"
#include "csiRecords.h"
#include "support/ComposerTest.h"

using test::HeapFault;
using test::jsonArray;

namespace
{

using Counts = std::initializer_list<UINT8>;

const std::string noNode = "pNode Or pItem is NULL\r\n";

std::string number(unsigned i)
{
    return std::to_string(i);
}

// One of the fourteen lists: where its count lies, its bound, what its entries look like (filled by the fixture).
struct List
{
    std::string name;
    UINT8 RrcCsiMeasCfg_t::*count;
    UINT8 bound;
    std::string (*entry)(unsigned);
};

const List lists[] = {
    {"nzp-CSI-RS-ResourceToAddModList", &RrcCsiMeasCfg_t::numNzpCsiRsResourceAddMod, 192,
     [](unsigned i)
     {
         return test::nzpResourceJson(i);
     }},
    {"nzp-CSI-RS-ResourceToReleaseList", &RrcCsiMeasCfg_t::numNzpCsiRsResourceDel, 192,
     [](unsigned i)
     {
         return number(191 - i);
     }},
    {"nzp-CSI-RS-ResourceSetToAddModList", &RrcCsiMeasCfg_t::numNzpCsiRsResourceSetAddMod, 64,
     [](unsigned i)
     {
         return R"({"nzp-CSI-ResourceSetId":)" + number(i) + R"(,"nzp-CSI-RS-Resources":[)" + number(100 + i) + "]}";
     }},
    {"nzp-CSI-RS-ResourceSetToReleaseList", &RrcCsiMeasCfg_t::numNzpCsiRsResourceSetRel, 64,
     [](unsigned i)
     {
         return number(63 - i);
     }},
    {"csi-IM-ResourceToAddModList", &RrcCsiMeasCfg_t::numCsiImResourceAddMod, 32,
     [](unsigned i)
     {
         return R"({"csi-IM-ResourceId":)" + number(i) + "}";
     }},
    {"csi-IM-ResourceToReleaseList", &RrcCsiMeasCfg_t::numCsiImResourceRel, 32,
     [](unsigned i)
     {
         return number(31 - i);
     }},
    {"csi-IM-ResourceSetToAddModList", &RrcCsiMeasCfg_t::numCsiImResourceSetAddMod, 64,
     [](unsigned i)
     {
         return R"({"csi-IM-ResourceSetId":)" + number(i) + R"(,"csi-IM-Resources":[9]})";
     }},
    {"csi-IM-ResourceSetToReleaseList", &RrcCsiMeasCfg_t::numCsiImResourceSetRel, 64,
     [](unsigned i)
     {
         return number(63 - i);
     }},
    {"csi-SSB-ResourceSetToAddModList", &RrcCsiMeasCfg_t::numCsiSsbResourceSetAddMod, 64,
     [](unsigned i)
     {
         return R"({"csi-SSB-ResourceSetId":)" + number(i) + R"(,"csi-SSB-ResourceList":[63]})";
     }},
    {"csi-SSB-ResourceSetToReleaseList", &RrcCsiMeasCfg_t::numCsiSsbResourceSetRel, 64,
     [](unsigned i)
     {
         return number(63 - i);
     }},
    {"csi-ResourceConfigToAddModList", &RrcCsiMeasCfg_t::numCsiResourceCfgAddMod, 112,
     [](unsigned i)
     {
         return R"({"csi-ResourceConfigId":)" + number(i) +
                R"(,"csi-RS-ResourceSetList":{"csi-IM-ResourceSetList":[7]},"bwp-Id":1,"resourceType":"aperiodic"})";
     }},
    {"csi-ResourceConfigToReleaseList", &RrcCsiMeasCfg_t::numCsiResourceCfgRel, 112,
     [](unsigned i)
     {
         return number(111 - i);
     }},
    {"csi-ReportConfigToAddModList", &RrcCsiMeasCfg_t::numCsiReportCfgAddMod, 48,
     [](unsigned i)
     {
         return test::ReportJson{i}.text();
     }},
    {"csi-ReportConfigToReleaseList", &RrcCsiMeasCfg_t::numCsiReportCfgRel, 48,
     [](unsigned i)
     {
         return number(47 - i);
     }},
};

template <std::size_t N>
void fillDownwards(UINT8 (&ids)[N])
{
    for (std::size_t i = 0; i < N; ++i)
    {
        ids[i] = static_cast<UINT8>(N - 1 - i);
    }
}

class csiMeas : public test::ComposerTest
{
protected:
    // All arrays filled, all counts 0.
    csiMeas()
    {
        for (UINT8 i = 0; i < RRC_MAX_NROF_NZP_CSI_RS_RESOURCES; ++i)
        {
            record->NzpCsiRsResourceAddMod[i] = test::nzpResource(i);
        }
        for (UINT8 i = 0; i < 64; ++i)
        {
            record->NzpCsiRsResourceSetAddMod[i].nzpCsiResourceSetId = i;
            record->NzpCsiRsResourceSetAddMod[i].numNzpCsiRsRes = 1;
            record->NzpCsiRsResourceSetAddMod[i].numNzpCsiRsResources[0] = static_cast<UINT8>(100 + i);
            record->csiImResourceSetAddMod[i] = {i, 1, {9}};
            record->csiSsbResourceSet[i] = {i, 1, {63}};
        }
        for (UINT8 i = 0; i < RRC_MAX_NROF_CSI_IM_RESOURCES; ++i)
        {
            record->csiImResourceAddMod[i].csiImResourceId = i;
        }
        for (UINT8 i = 0; i < RRC_MAX_NROF_CSI_RESOURCE_CFGS; ++i)
        {
            record->csiResourceCfg[i] = {i, 1, 0, RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE, {}};
            record->csiResourceCfg[i].csiRsResourceSetList.csiImResourceSetList = {1, {7}};
        }
        for (UINT8 i = 0; i < RRC_MAX_NROF_CSI_REPORT_CFGS; ++i)
        {
            test::fillReport(record->csiReportCfg[i], i);
        }
        fillDownwards(record->nzpCsiRsResourceId);
        fillDownwards(record->nzpCsiRsResourceSetId);
        fillDownwards(record->csiImResourceId);
        fillDownwards(record->csiImResourceSetId);
        fillDownwards(record->csiSsbResourceSetId);
        fillDownwards(record->csiResourceCfgId);
        fillDownwards(record->csiReportCfgId);
    }

    void compose(CSI_MeasConfig& element)
    {
        EXPECT_EQ(rrcComposecsi_MeasConfigSetup(&context, &element, record.get()), VOS_OK);
    }

    void expectMeas(const std::string& json)
    {
        const auto element = cleared<CSI_MeasConfig>();
        compose(*element);
        EXPECT_EQ(printed(), "");
        expectDecoded("CSI-MeasConfig", asn1PE_CSI_MeasConfig, *element, json);
    }

    void expectRefused(const std::string& line)
    {
        const auto element = cleared<CSI_MeasConfig>();
        compose(*element);
        EXPECT_EQ(encode(asn1PE_CSI_MeasConfig, *element), "CSI-MeasConfig." + line);
    }

    std::unique_ptr<RrcCsiMeasCfg_t> record = cleared<RrcCsiMeasCfg_t>();
};

TEST_F(csiMeas, NothingGivenIsAnEmptySetup)
{
    const auto zero = cleared<RrcCsiMeasCfg_t>();
    ServingCellConfig_csi_MeasConfig choice{};
    EXPECT_EQ(rrcComposecsi_MeasConfig(&context, &choice, zero.get()), VOS_OK);
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(choice.t, unsigned{T_ServingCellConfig_csi_MeasConfig_setup});
    ASSERT_NE(choice.u.setup, nullptr);
    expectDecoded("CSI-MeasConfig", asn1PE_CSI_MeasConfig, *choice.u.setup, "{}");
}

TEST_F(csiMeas, EachListAlone)
{
    for (const List& list : lists)
    {
        SCOPED_TRACE(list.name);
        for (const UINT8 count : {UINT8{1}, list.bound})
        {
            record.get()->*list.count = count;
            expectMeas("{\"" + list.name + "\":" + jsonArray(count, list.entry) + "}");
        }
        for (const UINT8 count : {static_cast<UINT8>(list.bound + 1), UINT8{255}})
        {
            record.get()->*list.count = count;
            expectRefused(list.name + ": " + number(count) + " elements, not 1.." + number(list.bound));
        }
        record.get()->*list.count = 0;
    }
    expectMeas("{}");
}

TEST_F(csiMeas, AllMembersInOrder)
{
    std::string json;
    for (const List& list : lists)
    {
        record.get()->*list.count = 2;
        json += (json.empty() ? "{\"" : ",\"") + list.name + "\":" + jsonArray(2, list.entry);
    }
    record->bitMask = 0xFF;
    record->reportTriggerSize = 6;
    record->aperiodicTriggerStateList.numState = 1;
    record->aperiodicTriggerStateList.state[0].numCfgInfo = 1;
    record->aperiodicTriggerStateList.state[0].info[0].prsence =
        RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE;
    record->aperiodicTriggerStateList.state[0].info[0].resourceForChannel.csiSsbResourceSet = {1};
    record->semiPersistentOnPuschTriggerStateList = {1, {47}};
    expectMeas(json + R"(,"reportTriggerSize":6)"
                      R"(,"aperiodicTriggerStateList":{"setup":[{"associatedReportConfigInfoList":[)"
                      R"({"reportConfigId":0,"resourcesForChannel":{"csi-SSB-ResourceSet":1}}]}]})"
                      R"(,"semiPersistentOnPUSCH-TriggerStateList":{"setup":[{"associatedReportConfigInfo":47}]}})");
}

TEST_F(csiMeas, ReportTriggerSize)
{
    record->bitMask = RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE;
    expectMeas(R"({"reportTriggerSize":0})");
    record->reportTriggerSize = 7;
    expectRefused("reportTriggerSize: 7 is not in 0..6");
    record->bitMask = 0xF8;
    expectMeas("{}");
}

// The builders of the lists

using AddMod = INT32 (*)(OSCTXT*, OSRTDList*, RrcCsiMeasCfg_t*);

const struct
{
    AddMod build;
    UINT8 RrcCsiMeasCfg_t::*count;
    unsigned requests; // per entry
} builders[] = {
    {rrcComposeNzp_CSI_RS_ResourceToAddMod, &RrcCsiMeasCfg_t::numNzpCsiRsResourceAddMod, 2},
    {rrcComposeNzp_CSI_RS_ResourceSetToAddMod, &RrcCsiMeasCfg_t::numNzpCsiRsResourceSetAddMod, 1},
    {rrcComposeCsi_IM_ResourceToAddMod, &RrcCsiMeasCfg_t::numCsiImResourceAddMod, 1},
    {rrcComposeCsi_IM_ResourceSetToAddMod, &RrcCsiMeasCfg_t::numCsiImResourceSetAddMod, 1},
    {rrcComposeCsi_SSB_ResourceSetToAddMod, &RrcCsiMeasCfg_t::numCsiSsbResourceSetAddMod, 1},
    {rrcComposeCsi_ResourceConfigToAddMod, &RrcCsiMeasCfg_t::numCsiResourceCfgAddMod, 2},
    {rrcComposeCsi_ReportConfigToAddMod, &RrcCsiMeasCfg_t::numCsiReportCfgAddMod, 2},
};

TEST_F(csiMeas, AddModListsStopAtTheFirstNodeThatIsMissing)
{
    for (const auto& builder : builders)
    {
        SCOPED_TRACE(&builder - builders);
        record.get()->*builder.count = 3;
        for (unsigned successes = 0; successes <= 3 * builder.requests; ++successes)
        {
            OSRTDList list{};
            const HeapFault fault(successes);
            // An entry whose node was there is appended, whatever was missing inside of it.
            const unsigned nodes = (successes + builder.requests - 1) / builder.requests;
            const bool complete = nodes == 3;
            EXPECT_EQ(builder.build(&context, &list, record.get()), complete ? VOS_OK : VOS_ERROR);
            EXPECT_EQ(printed(), complete ? "" : noNode);
            EXPECT_EQ(list.count, nodes);
        }
        OSRTDList list{};
        record.get()->*builder.count = 0;
        EXPECT_EQ(builder.build(&context, &list, record.get()), VOS_OK);
        EXPECT_EQ(list.count, 0U);
    }
}

TEST_F(csiMeas, ReleaseListsOfNothing)
{
    const auto element = cleared<CSI_MeasConfig>();
    element->nzp_CSI_RS_ResourceToReleaseList.n = 1;
    element->nzp_CSI_RS_ResourceSetToReleaseList.n = 1;
    element->csi_IM_ResourceToReleaseList.n = 1;
    element->csi_IM_ResourceSetToReleaseList.n = 1;
    element->csi_SSB_ResourceSetToReleaseList.n = 1;
    element->csi_ResourceConfigToReleaseList.n = 1;
    element->csi_ReportConfigToReleaseList.n = 1;
    EXPECT_EQ(rrcComposeNzp_CSI_RS_ResourceToRel(&element->nzp_CSI_RS_ResourceToReleaseList, record.get()), VOS_OK);
    EXPECT_EQ(rrcComposeNzp_CSI_RS_ResourceSetToRel(&element->nzp_CSI_RS_ResourceSetToReleaseList, record.get()),
              VOS_OK);
    EXPECT_EQ(rrcComposeCsi_IM_ResourceToRel(&element->csi_IM_ResourceToReleaseList, record.get()), VOS_OK);
    EXPECT_EQ(rrcComposeCsi_IM_ResourceSetToRel(&element->csi_IM_ResourceSetToReleaseList, record.get()), VOS_OK);
    EXPECT_EQ(rrcComposeCsi_SSB_ResourceSetToRel(&element->csi_SSB_ResourceSetToReleaseList, record.get()), VOS_OK);
    EXPECT_EQ(rrcComposeCsi_ResourceConfigToRel(&element->csi_ResourceConfigToReleaseList, record.get()), VOS_OK);
    EXPECT_EQ(rrcComposeCsi_ReportConfigToRel(&element->csi_ReportConfigToReleaseList, record.get()), VOS_OK);
    EXPECT_EQ(element->nzp_CSI_RS_ResourceToReleaseList.n + element->nzp_CSI_RS_ResourceSetToReleaseList.n +
                  element->csi_IM_ResourceToReleaseList.n + element->csi_IM_ResourceSetToReleaseList.n +
                  element->csi_SSB_ResourceSetToReleaseList.n + element->csi_ResourceConfigToReleaseList.n +
                  element->csi_ReportConfigToReleaseList.n,
              0);
}

TEST_F(csiMeas, ListCutShortIsSentAsFarAsItWasBuilt)
{
    record->numNzpCsiRsResourceSetAddMod = 3;
    record->numNzpCsiRsResourceDel = 1;
    record->bitMask = RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE;
    const auto element = cleared<CSI_MeasConfig>();
    {
        const HeapFault fault(2);
        compose(*element);
    }
    EXPECT_EQ(printed(), noNode);
    expectDecoded("CSI-MeasConfig", asn1PE_CSI_MeasConfig, *element,
                  R"({"nzp-CSI-RS-ResourceToReleaseList":[191],"nzp-CSI-RS-ResourceSetToAddModList":)" +
                      jsonArray(2, lists[2].entry) + R"(,"reportTriggerSize":0})");
}

// Trigger states

RrcCsiAssociatedReportCfgInfo_t info(UINT8 presence)
{
    RrcCsiAssociatedReportCfgInfo_t record{};
    record.reportCfgId = 47;
    record.prsence = presence;
    return record;
}

std::string infoJson(const std::string& channel)
{
    return R"({"reportConfigId":47,"resourcesForChannel":{)" + channel + "}}";
}

TEST_F(csiMeas, AssociatedReports)
{
    const struct
    {
        UINT8 presence;
        nzpCsiRs_s nzp;
        std::string channel;
    } cases[] = {
        {1, {16, 0, {}}, R"("nzp-CSI-RS":{"resourceSet":16})"},
        {1, {1, 1, {127}}, R"("nzp-CSI-RS":{"resourceSet":1,"qcl-info":[127]})"},
        {1,
         {2, 16, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
         R"("nzp-CSI-RS":{"resourceSet":2,"qcl-info":[0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15]})"},
        // The first octet, read as the other record.
        {2, {1, 1, {127}}, R"("csi-SSB-ResourceSet":1)"},
        {0xFF, {1, 1, {127}}, R"("csi-SSB-ResourceSet":1)"},
    };
    for (const auto& [presence, nzp, channel] : cases)
    {
        RrcCsiAssociatedReportCfgInfo_t given = info(presence);
        given.resourceForChannel.nzpCsiRs = nzp;
        CSI_AssociatedReportConfigInfo element{};
        EXPECT_EQ(rrcComposeCsi_AssociatedReportConfigInfo(&context, &element, &given), VOS_OK);
        expectDecoded("CSI-AssociatedReportConfigInfo", asn1PE_CSI_AssociatedReportConfigInfo, element,
                      infoJson(channel));
        EXPECT_EQ(printed(), "");
    }
}

TEST_F(csiMeas, AssociatedReportsRefused)
{
    const std::string path = "CSI-AssociatedReportConfigInfo.resourcesForChannel";
    const struct
    {
        UINT8 presence;
        nzpCsiRs_s nzp;
        std::string line;
    } cases[] = {
        {0xFC, {1, 0, {}}, ": tag 0 is not in 1..2"},
        {1, {1, 17, {}}, ".nzp-CSI-RS.qcl-info: 17 elements, not 1..16"},
        {1, {1, 255, {}}, ".nzp-CSI-RS.qcl-info: 255 elements, not 1..16"},
        {1, {17, 0, {}}, ".nzp-CSI-RS.resourceSet: 17 is not in 1..16"},
        {2, {2, 0, {}}, ".csi-SSB-ResourceSet: 2 is not in 1..1"},
    };
    for (const auto& [presence, nzp, line] : cases)
    {
        RrcCsiAssociatedReportCfgInfo_t given = info(presence);
        given.resourceForChannel.nzpCsiRs = nzp;
        CSI_AssociatedReportConfigInfo element{};
        EXPECT_EQ(rrcComposeCsi_AssociatedReportConfigInfo(&context, &element, &given), VOS_OK);
        EXPECT_EQ(encode(asn1PE_CSI_AssociatedReportConfigInfo, element), path + line);
    }
    RrcCsiAssociatedReportCfgInfo_t given = info(1);
    CSI_AssociatedReportConfigInfo element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeCsi_AssociatedReportConfigInfo(&context, &element, &given), VOS_OK);
        EXPECT_TRUE(HeapFault::struck());
    }
    EXPECT_EQ(encode(asn1PE_CSI_AssociatedReportConfigInfo, element), path + ": tag 0 is not in 1..2");
}

TEST_F(csiMeas, LosingChannelIsStillAllocated)
{
    RrcCsiAssociatedReportCfgInfo_t given = info(0x3);
    CSI_AssociatedReportConfigInfo_resourcesForChannel element{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeResourcesForChannel(&context, &element, &given), VOS_OK);
    EXPECT_TRUE(HeapFault::struck());
    // The winner needs no heap.
    EXPECT_EQ(element.t, unsigned{T_CSI_AssociatedReportConfigInfo_resourcesForChannel_csi_SSB_ResourceSet});
}

class csiTriggerStates : public csiMeas
{
protected:
    csiTriggerStates()
    {
        for (auto& state : record->aperiodicTriggerStateList.state)
        {
            state.numCfgInfo = 1;
            for (UINT8 i = 0; i < 16; ++i)
            {
                state.info[i] = info(RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE);
                state.info[i].resourceForChannel.nzpCsiRs.resourceSet = static_cast<UINT8>(i + 1);
            }
        }
        for (UINT8 i = 0; i < 64; ++i)
        {
            record->semiPersistentOnPuschTriggerStateList.csiReportCfgId[i] = i % 48;
        }
    }

    static std::string statesJson(unsigned states, unsigned infos)
    {
        const std::string entries = jsonArray(
            infos, [](unsigned i) { return infoJson(R"("nzp-CSI-RS":{"resourceSet":)" + number(i + 1) + "}"); });
        return R"("aperiodicTriggerStateList":{"setup":)" +
               jsonArray(states,
                         [&entries](unsigned) { return R"({"associatedReportConfigInfoList":)" + entries + "}"; }) +
               "}";
    }
};

TEST_F(csiTriggerStates, AperiodicCounts)
{
    record->bitMask = RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
    RrcCsiAperiodicTriggerStateList_t& list = record->aperiodicTriggerStateList;
    for (const UINT8 infos : Counts{1, 16})
    {
        for (auto& state : list.state)
        {
            state.numCfgInfo = infos;
        }
        for (const UINT8 states : Counts{1, 128})
        {
            list.numState = states;
            expectMeas("{" + statesJson(states, infos) + "}");
        }
    }
    for (const UINT8 states : Counts{129, 255})
    {
        list.numState = states;
        expectRefused("aperiodicTriggerStateList.setup: " + number(states) + " elements, not 1..128");
    }
    list.numState = 2;
    for (const UINT8 infos : Counts{0, 17, 255})
    {
        list.state[1].numCfgInfo = infos;
        expectRefused("aperiodicTriggerStateList.setup[1].associatedReportConfigInfoList: " + number(infos) +
                      " elements, not 1..16");
    }
}

TEST_F(csiTriggerStates, SemiPersistentCounts)
{
    record->bitMask = RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE;
    RrcCsiSemiPersistentOnPuschTriggerStateList_t& list = record->semiPersistentOnPuschTriggerStateList;
    for (const UINT8 count : Counts{1, 64})
    {
        list.numTriggeState = count;
        expectMeas(
            R"({"semiPersistentOnPUSCH-TriggerStateList":{"setup":)" +
            jsonArray(count, [](unsigned i) { return R"({"associatedReportConfigInfo":)" + number(i % 48) + "}"; }) +
            "}}");
    }
    for (const UINT8 count : Counts{65, 255})
    {
        list.numTriggeState = count;
        expectRefused("semiPersistentOnPUSCH-TriggerStateList.setup: " + number(count) + " elements, not 1..64");
    }
}

TEST_F(csiTriggerStates, EmptyListsLeaveTheirChoicesOpen)
{
    record->bitMask = RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
    const auto element = cleared<CSI_MeasConfig>();
    compose(*element);
    EXPECT_EQ(element->m.aperiodicTriggerStateListPresent, 1U);
    EXPECT_EQ(element->aperiodicTriggerStateList.t, 0U);
    expectRefused("aperiodicTriggerStateList: tag 0 is not in 1..2");
    record->bitMask = RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE;
    compose(*element);
    EXPECT_EQ(element->m.semiPersistentOnPUSCH_TriggerStateListPresent, 1U);
    EXPECT_EQ(element->semiPersistentOnPUSCH_TriggerStateList.t, 0U);
    expectRefused("semiPersistentOnPUSCH-TriggerStateList: tag 0 is not in 1..2");
    EXPECT_EQ(printed(), "");
}

TEST_F(csiTriggerStates, AperiodicListWithoutHeap)
{
    RrcCsiAperiodicTriggerStateList_t& list = record->aperiodicTriggerStateList;
    list.numState = 2;
    // Per state its node, its entry's node and that one's channel.
    const struct
    {
        unsigned successes;
        INT32 result;
        std::string lines;
        unsigned nodes;
    } cases[] = {
        {0, VOS_ERROR, noNode, 0},
        {1, VOS_ERROR, noNode + "rrcComposeCsi_AperiodicTriggerState is Error\r\n", 0},
        {2, VOS_ERROR, noNode, 1},
        {3, VOS_ERROR, noNode, 1},
        {4, VOS_ERROR, noNode + "rrcComposeCsi_AperiodicTriggerState is Error\r\n", 1},
        {5, VOS_OK, "", 2},
        {6, VOS_OK, "", 2},
    };
    for (const auto& [successes, result, lines, nodes] : cases)
    {
        OSRTDList setup{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeAperiodicTriggerStateSetup(&context, &setup, &list), result) << successes;
            EXPECT_EQ(printed(), lines) << successes;
            EXPECT_EQ(setup.count, nodes) << successes;
        }
        // The same one level up, where nobody looks.
        CSI_MeasConfig_aperiodicTriggerStateList choice{};
        const HeapFault fault(successes + 1);
        EXPECT_EQ(rrcComposeAperiodicTriggerStateList(&context, &choice, &list), VOS_OK);
        EXPECT_EQ(printed(), lines) << successes;
        EXPECT_EQ(choice.t, unsigned{T_CSI_MeasConfig_aperiodicTriggerStateList_setup});
        EXPECT_EQ(choice.u.setup->count, nodes);
    }
    CSI_MeasConfig_aperiodicTriggerStateList choice{};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeAperiodicTriggerStateList(&context, &choice, &list), VOS_OK);
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(choice.t, 0U);
}

TEST_F(csiTriggerStates, SemiPersistentListWithoutHeap)
{
    RrcCsiSemiPersistentOnPuschTriggerStateList_t& list = record->semiPersistentOnPuschTriggerStateList;
    list.numTriggeState = 2;
    for (unsigned successes = 0; successes <= 2; ++successes)
    {
        OSRTDList setup{};
        const HeapFault fault(successes);
        EXPECT_EQ(rrcComposeTriggerStateListsetup(&context, &setup, &list), successes < 2 ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), successes < 2 ? noNode : "");
        EXPECT_EQ(setup.count, successes);
    }
    for (unsigned successes = 0; successes <= 3; ++successes)
    {
        CSI_MeasConfig_semiPersistentOnPUSCH_TriggerStateList choice{};
        const HeapFault fault(successes);
        EXPECT_EQ(rrcComposeTriggerStateList(&context, &choice, &list), VOS_OK);
        EXPECT_EQ(printed(), successes == 1 || successes == 2 ? noNode : "");
        EXPECT_EQ(choice.t, successes == 0 ? 0U : 2U);
    }
}

TEST_F(csiTriggerStates, HeapExhaustionNeverFailsTheMeasurement)
{
    for (const List& list : lists)
    {
        record.get()->*list.count = 2;
    }
    record->bitMask = 0x7;
    record->aperiodicTriggerStateList.numState = 2;
    record->semiPersistentOnPuschTriggerStateList.numTriggeState = 2;
    const std::string stateFails = "rrcComposeCsi_AperiodicTriggerState is Error\r\n";
    bool struck = true;
    for (unsigned successes = 0; struck; ++successes)
    {
        ASSERT_LT(successes, 100U);
        ServingCellConfig_csi_MeasConfig choice{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposecsi_MeasConfig(&context, &choice, record.get()), VOS_OK);
            struck = HeapFault::struck();
        }
        std::string text = printed();
        while (text.starts_with(noNode) || text.starts_with(stateFails))
        {
            text.erase(0, text.find('\n') + 1);
        }
        EXPECT_EQ(text, "");
        EXPECT_EQ(choice.t, successes == 0 ? 0U : 2U);
        if (choice.t != 0)
        {
            (void)encode(asn1PE_CSI_MeasConfig, *choice.u.setup);
        }
    }
}

} // namespace
