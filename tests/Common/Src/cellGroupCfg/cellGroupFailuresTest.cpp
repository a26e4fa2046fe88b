// What the entry point and the composers of bearers and MAC print and return when a composer fails that never does by
// itself.

#include <memory>
#include <string>
#include <vector>

#include "cellGroupCfg/macCellGroup.h"
#include "cellGroupCfg/physicalCellGroup.h"
#include "cellGroupCfg/rlcBearer.h"
#include "cellGroupCfg/sCell.h"
#include "cellGroupCfg/spCell.h"
#include "oneBearer.h"
#include "rrcCodec/rrcCodec.h"
#include "rrcCodec/rrcCompose.h"
#include "support/ComposerTest.h"
#include "support/Interposed.h"

extern "C" void __real_rtFreeContext(OSCTXT* pctxt);
extern "C" void __wrap_rtFreeContext(OSCTXT* pctxt);

using test::address;
using test::Failing;
using test::passOn;
using testing::Each;

namespace
{

unsigned freedContexts = 0;
unsigned releasedCells = 0; // calls of the last composer of the cell group

class cellGroupFailures : public test::ComposerTest
{
};

} // namespace

void __wrap_rtFreeContext(OSCTXT* pctxt)
{
    ++freedContexts;
    __real_rtFreeContext(pctxt);
}

INT32 rrcComposeRlc_BearerCfg(OSCTXT* c, RLC_BearerConfig* e, RrcRlcBearerCfg_t* r)
{
    return passOn(rrcComposeRlc_BearerCfg, c, e, r);
}
INT32 rrcComposeRlc_BearerToReleaseList(CellGroupConfig_rlc_BearerToReleaseList* e, RrcCellGroupCfg_t* r)
{
    return passOn(rrcComposeRlc_BearerToReleaseList, e, r);
}
INT32 rrcComposeMac_CellGroupCfg(OSCTXT* c, MAC_CellGroupConfig* e, RrcMacCellGrpCfg_t* r)
{
    return passOn(rrcComposeMac_CellGroupCfg, c, e, r);
}
INT32 rrcComposeDrx_LongCycleStartOff(DRX_Config_drx_LongCycleStartOffset* e, RrcLongCycleStartOffset_t* r)
{
    return passOn(rrcComposeDrx_LongCycleStartOff, e, r);
}
INT32 rrcComposeTagCfg_ToAdd(TAG* e, RrcTag_t* r)
{
    return passOn(rrcComposeTagCfg_ToAdd, e, r);
}
INT32 rrcComposePhysical_CellGroupCfg(OSCTXT* c, PhysicalCellGroupConfig* e, RrcPhyCellGrpCfg_t* r)
{
    return passOn(rrcComposePhysical_CellGroupCfg, c, e, r);
}
INT32 rrcComposeSP_CellGroupCfg(OSCTXT* c, SpCellConfig* e, RrcSpCellCfg_t* r)
{
    return passOn(rrcComposeSP_CellGroupCfg, c, e, r);
}
INT32 rrcComposeCellGroupCfg_sCellToAddMod(OSCTXT* c, CellGroupConfig_sCellToAddModList* e, RrcCellGroupCfg_t* r)
{
    return passOn(rrcComposeCellGroupCfg_sCellToAddMod, c, e, r);
}
INT32 rrcComposeCellGroupCfg_sCellToRel(CellGroupConfig_sCellToReleaseList* e, RrcCellGroupCfg_t* r)
{
    ++releasedCells;
    return passOn(rrcComposeCellGroupCfg_sCellToRel, e, r);
}

TEST_F(cellGroupFailures, EachMemberEndsTheCall)
{
    constexpr UINT32 noLength = 0xDEADBEEF;
    constexpr UINT8 guard = 0xA5;
    const auto record = cleared<RrcCellGroupCfg_t>();
    oneBearer(*record);
    record->rlcBearerReleaseNum = 2;
    record->bitMask |= RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->sCellAddModNum = 1;
    record->sCellReleaseNum = 1;
    const struct
    {
        const void* composer;
        std::string line;
    } cases[] = {
        {address(rrcComposeRlc_BearerToReleaseList), "rrcComposeRlc_BearerToReleaseList Error\r\n"},
        {address(rrcComposeMac_CellGroupCfg), "rrcComposeMac_CellGroupCfg Error\r\n"},
        {address(rrcComposePhysical_CellGroupCfg), "rrcComposePhysical_CellGroupCfg Error\r\n"},
        {address(rrcComposeSP_CellGroupCfg), "rrcComposeSP_CellGroupCfg Error\r\n"},
        {address(rrcComposeCellGroupCfg_sCellToAddMod), "rrcComposeCellGroupCfg_sCellToAddMod Error\r\n"},
        {address(rrcComposeCellGroupCfg_sCellToRel), "rrcComposeCellGroupCfg_sCellToRel Error\r\n"},
    };
    for (const auto& [composer, line] : cases)
    {
        std::vector<UINT8> octets(8192 + 64, guard);
        Mbuf_t message = {noLength, octets.data()};
        freedContexts = 0;
        releasedCells = 0;
        const Failing failing(composer);
        EXPECT_EQ(rrcComposeCellGroupCfg(record.get(), &message), VOS_ERROR);
        EXPECT_EQ(printed(), line);
        EXPECT_EQ(freedContexts, 1U) << line;
        EXPECT_EQ(message.bufLen, noLength) << line;
        EXPECT_EQ(message.buf, octets.data()) << line;
        EXPECT_THAT(octets, Each(guard)) << line;
        EXPECT_EQ(releasedCells, composer == address(rrcComposeCellGroupCfg_sCellToRel) ? 1U : 0U) << line;
    }
}

TEST_F(cellGroupFailures, BearerEndsTheList)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->rlcBearerAddModNum = 2;
    CellGroupConfig_rlc_BearerToAddModList list{};
    const Failing failing(address(rrcComposeRlc_BearerCfg));
    EXPECT_EQ(rrcComposeRlc_BearerToAddModList(&context, &list, record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeRlc_BearerCfg is Error\r\n");
    EXPECT_EQ(list.count, 0U) << "the node is not appended";
}

TEST_F(cellGroupFailures, LongCycleEndsTheDrxAndNotTheMacCellGroup)
{
    RrcMacCellGrpCfg_t mac{};
    mac.bitMask = RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE | RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE;
    mac.drxCfg.bitMask = RRC_DRX_CFG_SHORT_DRX_PRESENCE;
    mac.drxCfg.drxRetransTimerUl = 2;
    mac.drxCfg.drxLongCycleStartOffset = {10, 159};
    mac.drxCfg.drxSlotOffset = 31;
    DRX_Config element{};
    const Failing failing(address(rrcComposeDrx_LongCycleStartOff));
    EXPECT_EQ(rrcComposeDrx_ConfigSetup(&context, &element, &mac.drxCfg), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeDrx_LongCycleStartOff Error\r\n");
    EXPECT_EQ(element.drx_RetransmissionTimerUL, 2U) << "what comes before is written";
    EXPECT_EQ(element.m.shortDRXPresent, 0U);
    EXPECT_EQ(element.drx_SlotOffset, 0);

    MAC_CellGroupConfig macElement{};
    EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &macElement, &mac), VOS_OK);
    EXPECT_EQ(printed(), "rrcComposeDrx_LongCycleStartOff Error\r\n");
    EXPECT_EQ(macElement.m.drx_ConfigPresent, 1U);
    EXPECT_EQ(macElement.drx_Config.t, 2U);
    EXPECT_EQ(macElement.m.phr_ConfigPresent, 1U);
}

TEST_F(cellGroupFailures, TimingAdvanceGroupEndsTheList)
{
    RrcTagCfg_t cfg{};
    cfg.numTagAddMod = 2;
    TAG_Config element{};
    const Failing failing(address(rrcComposeTagCfg_ToAdd));
    EXPECT_EQ(rrcComposeTagToAddModList(&context, &element.tag_ToAddModList, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeTagCfg_ToAdd is Error\r\n");
    EXPECT_EQ(element.tag_ToAddModList.count, 0U) << "the node is not appended";
    EXPECT_EQ(rrcComposeTag_Config(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(printed(), "rrcComposeTagCfg_ToAdd is Error\r\n");
    EXPECT_EQ(element.m.tag_ToAddModListPresent, 1U);
}

// What the entry does not look at the careful calls do.
TEST_F(cellGroupFailures, IgnoredFailuresAreRefusedByTheCarefulCalls)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    oneBearer(*record);
    std::vector<UINT8> octets(8192);
    Mbuf_t message = {0, octets.data()};
    size_t length = 1;
    char error[200];
    CellGroupConfig* tree = nullptr;

    const Failing failing(address(rrcComposeTagCfg_ToAdd));
    EXPECT_EQ(rrcComposeCellGroupCfg(record.get(), &message), VOS_ERROR) << "the list is empty";
    EXPECT_THAT(printed(), testing::StartsWith("rrcComposeTagCfg_ToAdd is Error\r\nrrcComposeCellGroupCfg Error\r\n"));
    EXPECT_EQ(rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, error, sizeof error),
              RRC_COMPOSE_E_FAILED);
    EXPECT_STREQ(error, "rrcComposeTagCfg_ToAdd is Error");
    EXPECT_EQ(length, 0U);
    EXPECT_EQ(rrcComposeCellGroupTree(&context, record.get(), &tree), RRC_COMPOSE_E_FAILED);
    EXPECT_EQ(tree, nullptr);
    EXPECT_EQ(printed(), "rrcComposeTagCfg_ToAdd is Error\r\nrrcComposeTagCfg_ToAdd is Error\r\n");
}

TEST_F(cellGroupFailures, FailuresAreToldWithTheirCallers)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    oneBearer(*record);
    std::vector<UINT8> octets(8192);
    size_t length = 1;
    char error[200];
    const Failing failing(address(rrcComposeRlc_BearerCfg));
    EXPECT_EQ(rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, error, sizeof error),
              RRC_COMPOSE_E_FAILED);
    EXPECT_STREQ(error, "rrcComposeRlc_BearerCfg is Error, rrcComposeRlc_BearerToAddModList Error");
    EXPECT_EQ(printed(), "rrcComposeRlc_BearerCfg is Error\r\nrrcComposeRlc_BearerToAddModList Error\r\n");
}
