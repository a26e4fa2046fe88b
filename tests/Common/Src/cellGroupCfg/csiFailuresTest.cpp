// What the composers of the CSI measurement print and return when a composer fails that never does by itself.

#include <string>

#include "cellGroupCfg/codebook.h"
#include "cellGroupCfg/csiMeas.h"
#include "cellGroupCfg/csiReport.h"
#include "cellGroupCfg/csiResource.h"
#include "support/ComposerTest.h"
#include "support/Interposed.h"

using test::address;
using test::Failing;
using test::passOn;

INT32 rrcComposeNzpCsiRsResourceAdd(OSCTXT* c, NZP_CSI_RS_Resource* e, RrcNzpCsiRsResource_t* r)
{
    return passOn(rrcComposeNzpCsiRsResourceAdd, c, e, r);
}
INT32 rrcComposeNzpCsiRsResourceSetAdd(NZP_CSI_RS_ResourceSet* e, RrcNzpCsiRsResourceSet_t* r)
{
    return passOn(rrcComposeNzpCsiRsResourceSetAdd, e, r);
}
INT32 rrcComposecsi_IM_ResourceToAdd(OSCTXT* c, CSI_IM_Resource* e, RrcCsiImResource_t* r)
{
    return passOn(rrcComposecsi_IM_ResourceToAdd, c, e, r);
}
INT32 rrcComposecsi_IM_ResourceSetToAdd(CSI_IM_ResourceSet* e, RrcCsiImResourceSet_t* r)
{
    return passOn(rrcComposecsi_IM_ResourceSetToAdd, e, r);
}
INT32 rrcComposeCsiSsbResourceSetAddMod(CSI_SSB_ResourceSet* e, RrcCsiSsbResourceSet_t* r)
{
    return passOn(rrcComposeCsiSsbResourceSetAddMod, e, r);
}
INT32 rrcComposeCsi_ResourceConfigToAdd(OSCTXT* c, CSI_ResourceConfig* e, RrcCsiResourceCfg_t* r)
{
    return passOn(rrcComposeCsi_ResourceConfigToAdd, c, e, r);
}
INT32 rrcComposeCsi_ReportConfigToAdd(OSCTXT* c, CSI_ReportConfig* e, RrcCsiReportCfg_t* r)
{
    return passOn(rrcComposeCsi_ReportConfigToAdd, c, e, r);
}
INT32 rrcComposePUCCH_CSI_Resource(PUCCH_CSI_Resource* e, PucchCsiResource_t* r)
{
    return passOn(rrcComposePUCCH_CSI_Resource, e, r);
}
INT32 rrcComposeCodebookType1_subType(OSCTXT* c, CodebookConfig_codebookType_type1_subType* e, CodebookType1_Sub_t* r)
{
    return passOn(rrcComposeCodebookType1_subType, c, e, r);
}
INT32 rrcComposeType2_subType(OSCTXT* c, CodebookConfig_codebookType_type2_subType* e, Codebooktype2_Sub_t* r)
{
    return passOn(rrcComposeType2_subType, c, e, r);
}
INT32 rrcComposePortIndexFor8Ranks(OSCTXT* c, PortIndexFor8Ranks* e, RrcPortIndexFor8Ranks_t* r)
{
    return passOn(rrcComposePortIndexFor8Ranks, c, e, r);
}
INT32 rrcComposeCsi_AssociatedReportConfigInfo(OSCTXT* c, CSI_AssociatedReportConfigInfo* e,
                                               RrcCsiAssociatedReportCfgInfo_t* r)
{
    return passOn(rrcComposeCsi_AssociatedReportConfigInfo, c, e, r);
}
INT32 rrcComposeTriggerState(CSI_SemiPersistentOnPUSCH_TriggerState* e, UINT8* r)
{
    return passOn(rrcComposeTriggerState, e, r);
}

namespace
{

class csiFailures : public test::ComposerTest
{
};

TEST_F(csiFailures, AddModListsStopAtTheElement)
{
    const auto record = cleared<RrcCsiMeasCfg_t>();
    const struct
    {
        INT32 (*build)(OSCTXT*, OSRTDList*, RrcCsiMeasCfg_t*);
        UINT8 RrcCsiMeasCfg_t::*count;
        const void* failing;
        const char* line;
    } cases[] = {
        {rrcComposeNzp_CSI_RS_ResourceToAddMod, &RrcCsiMeasCfg_t::numNzpCsiRsResourceAddMod,
         address(rrcComposeNzpCsiRsResourceAdd), "rrcComposeNzpCsiRsResourceAdd is Error\r\n"},
        {rrcComposeNzp_CSI_RS_ResourceSetToAddMod, &RrcCsiMeasCfg_t::numNzpCsiRsResourceSetAddMod,
         address(rrcComposeNzpCsiRsResourceSetAdd), "rrcComposeNzpCsiRsResourceSetAdd is Error\r\n"},
        {rrcComposeCsi_IM_ResourceToAddMod, &RrcCsiMeasCfg_t::numCsiImResourceAddMod,
         address(rrcComposecsi_IM_ResourceToAdd), "rrcComposecsi_IM_ResourceToAdd is Error\r\n"},
        {rrcComposeCsi_IM_ResourceSetToAddMod, &RrcCsiMeasCfg_t::numCsiImResourceSetAddMod,
         address(rrcComposecsi_IM_ResourceSetToAdd), "rrcComposecsi_IM_ResourceSetToAdd is Error\r\n"},
        {rrcComposeCsi_SSB_ResourceSetToAddMod, &RrcCsiMeasCfg_t::numCsiSsbResourceSetAddMod,
         address(rrcComposeCsiSsbResourceSetAddMod), "rrcComposeCsiSsbResourceSetAddMod is Error\r\n"},
        {rrcComposeCsi_ResourceConfigToAddMod, &RrcCsiMeasCfg_t::numCsiResourceCfgAddMod,
         address(rrcComposeCsi_ResourceConfigToAdd), "rrcComposeCsi_ResourceConfigToAdd is Error\r\n"},
        {rrcComposeCsi_ReportConfigToAddMod, &RrcCsiMeasCfg_t::numCsiReportCfgAddMod,
         address(rrcComposeCsi_ReportConfigToAdd), "rrcComposeCsi_ReportConfigToAdd is Error\r\n"},
    };
    for (const auto& [build, count, failing, line] : cases)
    {
        SCOPED_TRACE(line);
        record.get()->*count = 2;
        {
            OSRTDList list{};
            EXPECT_EQ(build(&context, &list, record.get()), VOS_OK);
            EXPECT_EQ(printed(), "");
            EXPECT_EQ(list.count, 2U);
        }
        const Failing fault(failing);
        OSRTDList list{};
        EXPECT_EQ(build(&context, &list, record.get()), VOS_ERROR);
        EXPECT_EQ(printed(), line);
        EXPECT_EQ(list.count, 0U);
    }
}

TEST_F(csiFailures, PucchListsStopAtTheElement)
{
    Periodic_t periodic = {{1, 0}, 2, {}};
    SemiPersistentOnPucch_t semiPersistent = {{1, 0}, 2, {}};
    OSRTDList lists[2]{};
    const Failing fault(address(rrcComposePUCCH_CSI_Resource));
    EXPECT_EQ(rrcComposepucch_CSI_ResourceList(&context, &lists[0], &periodic), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposePUCCH_CSI_Resource is Error\r\n");
    EXPECT_EQ(rrcComposeSemiPerpucch_CSI_ResourceList(&context, &lists[1], &semiPersistent), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposePUCCH_CSI_Resource is Error\r\n");
    EXPECT_EQ(lists[0].count + lists[1].count, 0U);
    // The branches over them do not look.
    CSI_ReportConfig_reportConfigType_periodic branch{};
    EXPECT_EQ(rrcComposeReportConfigType_periodic(&context, &branch, &periodic), VOS_OK);
    CSI_ReportConfig_reportConfigType_semiPersistentOnPUCCH other{};
    EXPECT_EQ(rrcComposeSemiPersistentOnPUCCH(&context, &other, &semiPersistent), VOS_OK);
}

TEST_F(csiFailures, NonPmiPortIndicationStopsAtTheElement)
{
    const auto record = cleared<RRCPortIndexFor8Ranks_t>();
    record->numPortIndexFor8Ranks = 2;
    const Failing fault(address(rrcComposePortIndexFor8Ranks));
    OSRTDList list{};
    EXPECT_EQ(rrcComposeNon_PMI_PortIndicat(&context, &list, record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposePortIndexFor8Ranks is Error\r\n");
    EXPECT_EQ(list.count, 0U);
}

TEST_F(csiFailures, SubTypeStopsCodebookType1)
{
    RrcCodebookCfg_t record{};
    record.Presence = RRC_CODE_BOOK_TYPE1_PRESENCE;
    CodeBookType1_t& type1 = record.CodeBookCfgType_u.codeBookType1;
    type1.CodebookMode = 2;
    type1.codebookType1_Sub.Presence = RRC_CODE_BOOK_TYPE_SINGLE_PANEL;
    const Failing fault(address(rrcComposeCodebookType1_subType));
    CodebookConfig_codebookType_type1 element{};
    EXPECT_EQ(rrcComposeCodebookType1(&context, &element, &type1), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeCodebookType1_subType Error\r\n");
    EXPECT_EQ(element.codebookMode, 0);
    // The composer above does not look.
    CodebookConfig whole{};
    EXPECT_EQ(rrcComposeCodebookConfig(&context, &whole, &record), VOS_OK);
    EXPECT_EQ(printed(), "rrcComposeCodebookType1_subType Error\r\n");
}

TEST_F(csiFailures, SubTypeStopsCodebookType2)
{
    RrcCodebookCfg_t record{};
    record.Presence = RRC_CODE_BOOK_TYPE2_PRESENCE;
    CodeBookType2_t& type2 = record.CodeBookCfgType_u.codeBookType2;
    type2.bitMask = 0xFF;
    type2.numberOfBeams = 2;
    type2.codebookType2_Sub.Presence = RRC_TYPEII_PORTSELECTION;
    const Failing fault(address(rrcComposeType2_subType));
    CodebookConfig_codebookType_type2 element{};
    EXPECT_EQ(rrcComposeCodebookType2(&context, &element, &type2), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeType2_subType Error\r\n");
    EXPECT_EQ(element.numberOfBeams, 0U);
    CodebookConfig whole{};
    EXPECT_EQ(rrcComposeCodebookConfig(&context, &whole, &record), VOS_OK);
    EXPECT_EQ(printed(), "rrcComposeType2_subType Error\r\n");
    // Without its bit it is not called.
    type2.bitMask = 0xFE;
    EXPECT_EQ(rrcComposeCodebookType2(&context, &element, &type2), VOS_OK);
    EXPECT_EQ(element.numberOfBeams, 2U);
}

TEST_F(csiFailures, TriggerStateListsStopAtTheElement)
{
    const auto record = cleared<RrcCsiMeasCfg_t>();
    record->aperiodicTriggerStateList.numState = 2;
    record->aperiodicTriggerStateList.state[0].numCfgInfo = 1;
    record->aperiodicTriggerStateList.state[1].numCfgInfo = 1;
    record->semiPersistentOnPuschTriggerStateList.numTriggeState = 2;
    {
        const Failing fault(address(rrcComposeCsi_AssociatedReportConfigInfo));
        OSRTDList setup{};
        EXPECT_EQ(rrcComposeAperiodicTriggerStateSetup(&context, &setup, &record->aperiodicTriggerStateList),
                  VOS_ERROR);
        EXPECT_EQ(printed(), "rrcComposeCsi_AssociatedReportConfigInfo is Error\r\n"
                             "rrcComposeCsi_AperiodicTriggerState is Error\r\n");
        EXPECT_EQ(setup.count, 0U);
        CSI_AperiodicTriggerState state{};
        EXPECT_EQ(rrcComposeCsi_AperiodicTriggerState(&context, &state, &record->aperiodicTriggerStateList.state[0]),
                  VOS_ERROR);
        EXPECT_EQ(printed(), "rrcComposeCsi_AssociatedReportConfigInfo is Error\r\n");
    }
    const Failing fault(address(rrcComposeTriggerState));
    OSRTDList setup{};
    EXPECT_EQ(rrcComposeTriggerStateListsetup(&context, &setup, &record->semiPersistentOnPuschTriggerStateList),
              VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeTriggerState is Error\r\n");
    EXPECT_EQ(setup.count, 0U);
}

} // namespace
