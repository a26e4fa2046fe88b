// What the composers of the dedicated serving cell and of the secondary cells call, and what they print and return when
// a composer fails that never does by itself.

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "cellGroupCfg/csiMeas.h"
#include "cellGroupCfg/downlinkBwp.h"
#include "cellGroupCfg/sCell.h"
#include "cellGroupCfg/servingCell.h"
#include "cellGroupCfg/servingCellCommon.h"
#include "cellGroupCfg/servingCellLevel.h"
#include "cellGroupCfg/spCell.h"
#include "cellGroupCfg/tddDedicated.h"
#include "cellGroupCfg/uplinkConfig.h"
#include "servingCellRecords.h"
#include "support/ComposerTest.h"
#include "support/Interposed.h"

using test::address;
using test::Failing;
using test::fillServingCell;
using test::passOn;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

struct Call
{
    const void* composer;
    const void* element;
    const void* record;

    bool operator==(const Call&) const = default;
};

// Of the doubles below, in their order.
std::vector<Call> calls;

template <typename... Parameters>
INT32 pass(INT32 (*composer)(OSCTXT*, Parameters...), OSCTXT* c, std::type_identity_t<Parameters>... arguments)
{
    calls.push_back({address(composer), arguments...});
    return passOn(composer, c, arguments...);
}

} // namespace

INT32 rrcComposeTDD_UL_DL_ConfigDedicated(OSCTXT* c, TDD_UL_DL_ConfigDedicated* e, RrcTddUlDlCfgDedi_t* r)
{
    return pass(rrcComposeTDD_UL_DL_ConfigDedicated, c, e, r);
}
INT32 rrcComposeBWP_DownlinkDedicated(OSCTXT* c, BWP_DownlinkDedicated* e, RrcBwpDlDedicated_t* r)
{
    return pass(rrcComposeBWP_DownlinkDedicated, c, e, r);
}
INT32 rrcComposedownlinkBWP_ToReleaseList(ServingCellConfig_downlinkBWP_ToReleaseList* e, RrcServingCellCfg_t* r)
{
    calls.push_back({address(rrcComposedownlinkBWP_ToReleaseList), e, r});
    return passOn(rrcComposedownlinkBWP_ToReleaseList, e, r);
}
INT32 rrcComposedownlinkBWP_ToADDMod(OSCTXT* c, ServingCellConfig_downlinkBWP_ToAddModList* e, RrcServingCellCfg_t* r)
{
    return pass(rrcComposedownlinkBWP_ToADDMod, c, e, r);
}
INT32 rrcComposeUplinkConfig(OSCTXT* c, UplinkConfig* e, RrcUlCfg_t* r)
{
    return pass(rrcComposeUplinkConfig, c, e, r);
}
INT32 rrcComposePdcch_ServingCellConfig(OSCTXT* c, ServingCellConfig_pdcch_ServingCellConfig* e,
                                        RrcPdcchServingCellCfg_t* r)
{
    return pass(rrcComposePdcch_ServingCellConfig, c, e, r);
}
INT32 rrcComposePdsch_ServingCellConfig(OSCTXT* c, ServingCellConfig_pdsch_ServingCellConfig* e,
                                        RrcPdschServingCellCfg_t* r)
{
    return pass(rrcComposePdsch_ServingCellConfig, c, e, r);
}
INT32 rrcComposecsi_MeasConfig(OSCTXT* c, ServingCellConfig_csi_MeasConfig* e, RrcCsiMeasCfg_t* r)
{
    return pass(rrcComposecsi_MeasConfig, c, e, r);
}
INT32 rrcComposeServCellConfigCommon(OSCTXT* c, ServingCellConfigCommon* e, RrcServingCellCfgCommon_t* r)
{
    return pass(rrcComposeServCellConfigCommon, c, e, r);
}
INT32 rrcComposespCellConfigDedicated(OSCTXT* c, ServingCellConfig* e, RrcServingCellCfg_t* r)
{
    return pass(rrcComposespCellConfigDedicated, c, e, r);
}
INT32 rrcCompose_sCellToAddModItem(OSCTXT* c, SCellConfig* e, RrcScellCfg_t* r)
{
    return pass(rrcCompose_sCellToAddModItem, c, e, r);
}

namespace
{

class servingCellFailures : public test::ComposerTest
{
protected:
    servingCellFailures()
    {
        calls.clear();
    }

    // The members that composers fill, in their order, and the bit or the count that asks for each.
    struct Member
    {
        Call call;
        std::string line;
        unsigned bit;
        UINT8* count;
        bool present;
    };

    std::vector<Member> members()
    {
        RrcServingCellCfg_t& r = *cell;
        ServingCellConfig& e = *element;
        return {
            {{address(rrcComposeTDD_UL_DL_ConfigDedicated), &e.tdd_UL_DL_ConfigurationDedicated, &r.tddUlDlCfgDed},
             "rrcComposeTDD_UL_DL_ConfigDedicated Error\r\n",
             RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE,
             nullptr,
             e.m.tdd_UL_DL_ConfigurationDedicatedPresent != 0},
            {{address(rrcComposeBWP_DownlinkDedicated), &e.initialDownlinkBWP, &r.initDlBwp},
             "rrcComposeBWP_DownlinkDedicated Error\r\n",
             RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE,
             nullptr,
             e.m.initialDownlinkBWPPresent != 0},
            {{address(rrcComposedownlinkBWP_ToReleaseList), &e.downlinkBWP_ToReleaseList, &r},
             "rrcComposedownlinkBWP_ToReleaseList Error\r\n",
             0,
             &r.numDlBwpRel,
             e.m.downlinkBWP_ToReleaseListPresent != 0},
            {{address(rrcComposedownlinkBWP_ToADDMod), &e.downlinkBWP_ToAddModList, &r},
             "rrcComposedownlinkBWP_ToADDMod Error\r\n",
             0,
             &r.numDlBwpAddMod,
             e.m.downlinkBWP_ToAddModListPresent != 0},
            {{address(rrcComposeUplinkConfig), &e.uplinkConfig, &r.ulCfg},
             "rrcComposeUplinkConfig Error\r\n",
             RRC_SERVING_CELL_UL_CFG_PRESENCE,
             nullptr,
             e.m.uplinkConfigPresent != 0},
            {{address(rrcComposeUplinkConfig), &e.supplementaryUplink, &r.suppUlCfg},
             "rrcComposeUplinkConfig Error\r\n",
             RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE,
             nullptr,
             e.m.supplementaryUplinkPresent != 0},
            {{address(rrcComposePdcch_ServingCellConfig), &e.pdcch_ServingCellConfig, &r.pdcchServingCellCfg},
             "rrcComposePdcch_ServingCellConfig Error\r\n",
             RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE,
             nullptr,
             e.m.pdcch_ServingCellConfigPresent != 0},
            {{address(rrcComposePdsch_ServingCellConfig), &e.pdsch_ServingCellConfig, &r.pdschServingCellCfg},
             "rrcComposePdsch_ServingCellConfig Error\r\n",
             RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE,
             nullptr,
             e.m.pdsch_ServingCellConfigPresent != 0},
            {{address(rrcComposecsi_MeasConfig), &e.csi_MeasConfig, &r.csiMeasCfg},
             "rrcComposecsi_MeasConfig Error\r\n",
             RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE,
             nullptr,
             e.m.csi_MeasConfigPresent != 0},
        };
    }

    // The composer of the element itself is called through its double, too.
    INT32 compose()
    {
        *element = {};
        const INT32 result = rrcComposespCellConfigDedicated(&context, element.get(), cell.get());
        EXPECT_EQ(calls.front(), (Call{address(rrcComposespCellConfigDedicated), element.get(), cell.get()}));
        calls.erase(calls.begin());
        return result;
    }

    std::unique_ptr<RrcServingCellCfg_t> cell = cleared<RrcServingCellCfg_t>();
    std::unique_ptr<ServingCellConfig> element = cleared<ServingCellConfig>();
    std::unique_ptr<RrcCellGroupCfg_t> record = cleared<RrcCellGroupCfg_t>();
};

} // namespace

TEST_F(servingCellFailures, MembersAreComposedInTheirOrder)
{
    fillServingCell(*cell, 0xFFFF, 1, 1);
    EXPECT_EQ(compose(), VOS_OK);
    EXPECT_EQ(printed(), "");
    std::vector<Call> expected;
    for (const Member& member : members())
    {
        EXPECT_TRUE(member.present);
        expected.push_back(member.call);
    }
    EXPECT_EQ(calls, expected);
}

TEST_F(servingCellFailures, EachMemberAloneIsComposedAlone)
{
    for (const Member& member : members())
    {
        fillServingCell(*cell, member.bit);
        if (member.count != nullptr)
        {
            *member.count = 1;
        }
        EXPECT_EQ(compose(), VOS_OK);
        EXPECT_THAT(calls, ElementsAre(member.call));
        calls.clear();
    }
    fillServingCell(*cell, RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE);
    EXPECT_EQ(compose(), VOS_OK);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(servingCellFailures, EachMemberStopsTheRest)
{
    for (size_t failed = 0; failed < members().size(); ++failed)
    {
        const Member stopper = members()[failed];
        SCOPED_TRACE(stopper.line);
        // The uplink must be out of the way of the supplementary uplink, which has the same composer.
        const unsigned out = stopper.bit == RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE ? RRC_SERVING_CELL_UL_CFG_PRESENCE : 0;
        fillServingCell(*cell, 0xFFFFU & ~out, 1, 1);
        const Failing failing(stopper.call.composer);
        EXPECT_EQ(compose(), VOS_ERROR);
        EXPECT_EQ(printed(), stopper.line);
        std::vector<Call> expected;
        const std::vector<Member> all = members();
        for (size_t i = 0; i < all.size(); ++i)
        {
            const bool reached = i <= failed && (out == 0 || all[i].bit != out);
            EXPECT_EQ(all[i].present, reached) << all[i].line;
            if (reached)
            {
                expected.push_back(all[i].call);
            }
        }
        EXPECT_EQ(calls, expected);
        calls.clear();

        // The numbers behind the bandwidth parts and those behind CSI measurement.
        EXPECT_EQ(element->m.firstActiveDownlinkBWP_IdPresent, failed < 4 ? 0U : 1U);
        EXPECT_EQ(element->m.bwp_InactivityTimerPresent, failed < 4 ? 0U : 1U);
        EXPECT_EQ(element->m.defaultDownlinkBWP_IdPresent, failed < 4 ? 0U : 1U);
        EXPECT_EQ(element->m.sCellDeactivationTimerPresent, 0U);
        EXPECT_EQ(element->tag_Id, 0);
        EXPECT_EQ(element->m.dummyPresent, 0U);
        EXPECT_EQ(element->m.pathlossReferenceLinkingPresent, 0U);
        EXPECT_EQ(element->m.servingCellMOPresent, 0U);
    }
}

TEST_F(servingCellFailures, OfTheDedicatedCellStopTheSpecialCell)
{
    RrcSpCellCfg_t& spCell = record->spCellCfg;
    spCell.bitMask = RRC_SPCELLCFG_THRESHOLD_PRESENCE | RRC_SPCELLCFG_DEDICFG_PRESENCE;
    const auto special = cleared<SpCellConfig>();
    const Failing failing(address(rrcComposespCellConfigDedicated));
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, special.get(), &spCell), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposespCellConfigDedicated Error\r\n");
    EXPECT_THAT(calls, ElementsAre(Call{address(rrcComposespCellConfigDedicated), &special->spCellConfigDedicated,
                                        &spCell.spCellDedicated}));
    EXPECT_EQ(special->m.rlmInSyncOutOfSyncThresholdPresent, 1U);
    EXPECT_EQ(special->m.spCellConfigDedicatedPresent, 1U);
}

TEST_F(servingCellFailures, OfTheCommonPartStopTheSecondaryCellInOtherWords)
{
    RrcScellCfg_t& sCell = record->sCellAddMod[0];
    sCell.scellIdx = 31;
    sCell.bitMask = 7;
    const auto item = cleared<SCellConfig>();
    const Call self{address(rrcCompose_sCellToAddModItem), item.get(), &sCell};
    const Call common{address(rrcComposeServCellConfigCommon), &item->sCellConfigCommon, &sCell.sCellCfgCommn};
    const Failing failing(address(rrcComposeServCellConfigCommon));
    EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &sCell), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeSpCellConfigCommon Error\r\n");
    EXPECT_THAT(calls, ElementsAre(self, common));
    EXPECT_EQ(item->sCellIndex, 31);
    EXPECT_EQ(item->m.sCellConfigCommonPresent, 1U);
    EXPECT_EQ(item->m.sCellConfigDedicatedPresent, 0U);
}

TEST_F(servingCellFailures, OfTheDedicatedPartStopTheSecondaryCell)
{
    RrcScellCfg_t& sCell = record->sCellAddMod[0];
    sCell.bitMask = 7;
    const auto item = cleared<SCellConfig>();
    const Call self{address(rrcCompose_sCellToAddModItem), item.get(), &sCell};
    const Call common{address(rrcComposeServCellConfigCommon), &item->sCellConfigCommon, &sCell.sCellCfgCommn};
    const Call dedicated{address(rrcComposespCellConfigDedicated), &item->sCellConfigDedicated, &sCell.sCellCfgDedi};
    const Failing failing(address(rrcComposespCellConfigDedicated));
    EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &sCell), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposespCellConfigDedicated Error\r\n");
    EXPECT_THAT(calls, ElementsAre(self, common, dedicated));
    EXPECT_EQ(item->m.sCellConfigCommonPresent, 1U);
    EXPECT_EQ(item->m.sCellConfigDedicatedPresent, 1U);
}

TEST_F(servingCellFailures, OfASecondaryCellEndTheirList)
{
    const struct
    {
        const void* composer;
        const char* lines;
    } cases[] = {
        {address(rrcCompose_sCellToAddModItem), "rrcCompose_sCellToAddMod is Error\r\n"},
        {address(rrcComposeServCellConfigCommon),
         "rrcComposeSpCellConfigCommon Error\r\nrrcCompose_sCellToAddMod is Error\r\n"},
        {address(rrcComposespCellConfigDedicated),
         "rrcComposespCellConfigDedicated Error\r\nrrcCompose_sCellToAddMod is Error\r\n"},
    };
    record->sCellAddModNum = 3;
    record->sCellAddMod[1].bitMask = 3;
    for (const auto& [composer, lines] : cases)
    {
        CellGroupConfig_sCellToAddModList list{};
        const Failing failing(composer);
        EXPECT_EQ(rrcComposeCellGroupCfg_sCellToAddMod(&context, &list, record.get()), VOS_ERROR);
        EXPECT_EQ(printed(), lines);
        EXPECT_EQ(list.count, composer == address(rrcCompose_sCellToAddModItem) ? 0U : 1U)
            << "the cell before stays, the failed one is not appended";
    }
}
