#include "cellGroupCfg/physicalCellGroup.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::rising;

namespace
{

class physicalCellGroup : public test::ComposerTest
{
protected:
    PhysicalCellGroupConfig compose(RrcPhyCellGrpCfg_t cfg)
    {
        PhysicalCellGroupConfig element{};
        EXPECT_EQ(rrcComposePhysical_CellGroupCfg(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    void expectPhy(const RrcPhyCellGrpCfg_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        expectDecoded("PhysicalCellGroupConfig", asn1PE_PhysicalCellGroupConfig, compose(cfg), json);
    }
};

RrcPhyCellGrpCfg_t phyCfg(UINT16 bitMask)
{
    return {1, bitMask, 0, 0, 23, 0x1111, 0x2222, 0x3333, 0x4444, 0xFFFF, 0x5555, 226};
}

} // namespace

TEST_F(physicalCellGroup, Options)
{
    const std::string pucch = R"("harq-ACK-SpatialBundlingPUCCH":"true",)";
    const std::string pusch = R"("harq-ACK-SpatialBundlingPUSCH":"true",)";
    const std::string pMax = R"("p-NR-FR1":23,)";
    const std::string codebook = R"("pdsch-HARQ-ACK-Codebook":"dynamic")";
    const std::string tpcSrs = R"(,"tpc-SRS-RNTI":4369)";
    const std::string tpcPucch = R"(,"tpc-PUCCH-RNTI":8738)";
    const std::string tpcPusch = R"(,"tpc-PUSCH-RNTI":13107)";
    const std::string spCsi = R"(,"sp-CSI-RNTI":17476)";
    const std::string cs = R"(,"cs-RNTI":{"setup":65535})";
    expectPhy(phyCfg(0), "{" + codebook + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_HARQ_PUCCH_PRESENCE), "{" + pucch + codebook + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_HARQ_PUSCH_PRESENCE), "{" + pusch + codebook + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_NR_PMAX_PRESENCE), "{" + pMax + codebook + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_TPC_SRS_RNTI_PRESENCE), "{" + codebook + tpcSrs + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_TPC_PUCCH_RNTI_PRESENCE), "{" + codebook + tpcPucch + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_TPC_PUSCH_RNTI_PRESENCE), "{" + codebook + tpcPusch + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_SP_CSI_RNTI_PRESENCE), "{" + codebook + spCsi + "}");
    expectPhy(phyCfg(RRC_PHY_CGC_CS_RNTI_PRESENCE), "{" + codebook + cs + "}");
    expectPhy(phyCfg(0xFF), "{" + pucch + pusch + pMax + codebook + tpcSrs + tpcPucch + tpcPusch + spCsi + cs + "}");
    expectPhy(phyCfg(0xFC00), "{" + codebook + "}");
    RrcPhyCellGrpCfg_t cfg = phyCfg(0);
    cfg.pdschHarqAckCodeBook = 0;
    expectPhy(cfg, R"({"pdsch-HARQ-ACK-Codebook":"semiStatic"})");
}

TEST_F(physicalCellGroup, McsRntiAndUePowerAreInTheTreeAndNotSent)
{
    const PhysicalCellGroupConfig element =
        compose(phyCfg(RRC_PHY_CGC_MCS_CRNTI_PRESENCE | RRC_PHY_CGC_UE_PMAX_PRESENCE));
    EXPECT_EQ(element.m.mcs_C_RNTIPresent, 1U);
    EXPECT_EQ(element.mcs_C_RNTI, 0x5555);
    EXPECT_EQ(element.m.p_UE_FR1Present, 1U);
    EXPECT_EQ(element.p_UE_FR1, -30);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    expectDecoded("PhysicalCellGroupConfig", asn1PE_PhysicalCellGroupConfig, element,
                  R"({"pdsch-HARQ-ACK-Codebook":"dynamic"})");

    RrcPhyCellGrpCfg_t cfg = phyCfg(RRC_PHY_CGC_UE_PMAX_PRESENCE);
    cfg.pUeFR1Pmax = 100;
    expectPhy(cfg, R"({"pdsch-HARQ-ACK-Codebook":"dynamic"})");
}

TEST_F(physicalCellGroup, CsRntiAndUePowerBits)
{
    const PhysicalCellGroupConfig element = compose(phyCfg(0x280));
    EXPECT_EQ(element.m.cs_RNTIPresent, 1U);
    EXPECT_EQ(element.cs_RNTI.t, static_cast<OSUINT32>(T_PhysicalCellGroupConfig_cs_RNTI_setup));
    EXPECT_EQ(element.cs_RNTI.u.setup, 0xFFFF);
    EXPECT_EQ(element.m.p_UE_FR1Present, 1U);
    EXPECT_EQ(element.m.mcs_C_RNTIPresent, 0U);
}

TEST_F(physicalCellGroup, NoExtensionGroupIsAnnounced)
{
    const PhysicalCellGroupConfig element = compose(phyCfg(0xFFFF));
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    EXPECT_EQ(element.m._v3ExtPresent, 0U);
    EXPECT_EQ(element.m.xScalePresent, 0U);
    EXPECT_EQ(element.m._v4ExtPresent, 0U);
    EXPECT_EQ(element.m.pdcch_BlindDetectionPresent, 0U);
}

TEST_F(physicalCellGroup, NegativePowerIsTwosComplement)
{
    for (const int power : {-30, -1, 0, 33})
    {
        RrcPhyCellGrpCfg_t cfg = phyCfg(RRC_PHY_CGC_NR_PMAX_PRESENCE);
        cfg.pNrFR1Pmax = static_cast<UINT8>(power);
        expectPhy(cfg, R"({"p-NR-FR1":)" + std::to_string(power) + R"(,"pdsch-HARQ-ACK-Codebook":"dynamic"})");
    }
    for (const int power : {-31, 34, -128, 127})
    {
        RrcPhyCellGrpCfg_t cfg = phyCfg(RRC_PHY_CGC_NR_PMAX_PRESENCE);
        cfg.pNrFR1Pmax = static_cast<UINT8>(power);
        EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, compose(cfg)),
                  "PhysicalCellGroupConfig.p-NR-FR1: " + std::to_string(power) + " is not in -30..33");
    }
}

TEST_F(physicalCellGroup, TrueIsZeroInSpatialBundling)
{
    RrcPhyCellGrpCfg_t cfg = phyCfg(RRC_PHY_CGC_HARQ_PUCCH_PRESENCE);
    cfg.harqAckBundlingPucch = 256;
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, compose(cfg)),
              "PhysicalCellGroupConfig.harq-ACK-SpatialBundlingPUCCH: 256 is not in 0..0");
    cfg = phyCfg(RRC_PHY_CGC_HARQ_PUSCH_PRESENCE);
    cfg.harqAckBundlingPusch = 1;
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, compose(cfg)),
              "PhysicalCellGroupConfig.harq-ACK-SpatialBundlingPUSCH: 1 is not in 0..0");
}

TEST_F(physicalCellGroup, NullGuards)
{
    PhysicalCellGroupConfig element{};
    EXPECT_EQ(rrcComposePhysical_CellGroupCfg(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePhysical_CellGroupCfg", "pPhysicalCellGroupConfig"));
    EXPECT_EQ(rrcComposePhysical_CellGroupCfg(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePhysical_CellGroupCfg", "pRrcPhyCellGrpCfg"));
}

// The order of the record's fields

static_assert(rising({offsetof(RrcPhyCellGrpCfg_t, pdschHarqAckCodeBook), offsetof(RrcPhyCellGrpCfg_t, bitMask),
                      offsetof(RrcPhyCellGrpCfg_t, harqAckBundlingPucch),
                      offsetof(RrcPhyCellGrpCfg_t, harqAckBundlingPusch), offsetof(RrcPhyCellGrpCfg_t, pNrFR1Pmax),
                      offsetof(RrcPhyCellGrpCfg_t, tpcSrsRnti), offsetof(RrcPhyCellGrpCfg_t, tpcPucchRnti),
                      offsetof(RrcPhyCellGrpCfg_t, tpcPuschRnti), offsetof(RrcPhyCellGrpCfg_t, spCsiRnti),
                      offsetof(RrcPhyCellGrpCfg_t, csRnti), offsetof(RrcPhyCellGrpCfg_t, mcsCRnti),
                      offsetof(RrcPhyCellGrpCfg_t, pUeFR1Pmax)}));
