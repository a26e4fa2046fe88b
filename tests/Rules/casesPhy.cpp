#include "ruleCases.h"

namespace test
{
namespace
{

Known in(RrcRuleGroup group)
{
    return [group](RrcRuleContext& known)
    {
        known.group = static_cast<OSUINT8>(group);
    };
}

Known with(RrcRuleConnectivity connectivity)
{
    return [connectivity](RrcRuleContext& known)
    {
        known.connectivity = static_cast<OSUINT8>(connectivity);
    };
}

} // namespace

void phyCases(CaseTable& table)
{
    table.rule("phy-cell-group-id")
        .bad("cellGroupId")
        .good()
        .silent(AS_SCG)
        .fires("cellGroupId", AS_SCG "spCellConfig.servCellIndex = absent")
        .with(in(RRC_RULE_GROUP_MCG))
        .saying("1, but the master cell group is 0")
        .fires("cellGroupId", AT_PHR "multiplePHR = true\nspCellConfig.servCellIndex = 1")
        .with(in(RRC_RULE_GROUP_SCG));

    table.rule("phy-rnti-range")
        .bad(AT_SYNC "newUE-Identity")
        .saying("65523 (0xFFF3), but the RNTIs of a UE are 0x0001..0xFFEF")
        .good()
        .fires(AT_SYNC "newUE-Identity", AT_SYNC "newUE-Identity = 0")
        .silent(AT_SYNC "newUE-Identity = 1")
        .fires(AT_SYNC "newUE-Identity", AT_SYNC "newUE-Identity = 65520")
        .as(RRC_RULE_WARNING)
        .fires(AT_SYNC "newUE-Identity", AT_SYNC "newUE-Identity = 65522")
        .as(RRC_RULE_WARNING)
        .fires(AT_PHY "cs-RNTI.setup", AT_PHY "cs-RNTI.setup = 65535");

    table.rule("phy-rnti-distinct")
        .bad(AT_PHY "mcs-C-RNTI")
        .saying("17921, but newUE-Identity is the same")
        .good()
        .fires(AT_PHY "cs-RNTI.setup", AT_PHY "cs-RNTI.setup = 500\n" AT_PHY "sp-CSI-RNTI = 500");

    table.rule("phy-sp-csi-rnti")
        .bad(AT_PHY "sp-CSI-RNTI")
        .saying("absent, but report 0 is semiPersistentOnPUSCH")
        .good()
        .fires(AT_PHY "sp-CSI-RNTI", table.rule("phy-sp-csi-rnti").example(&RrcRule::bad))
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires("physicalCellGroupConfig",
               table.rule("phy-sp-csi-rnti").example(&RrcRule::bad) + "\nphysicalCellGroupConfig = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("phy-cs-rnti")
        .bad(AT_PHY "cs-RNTI")
        .saying("absent, but bandwidth part 1 has sps-Config")
        .good()
        .fires(AT_PHY "cs-RNTI",
               table.rule("phy-cs-rnti").example(&RrcRule::bad) + "\n" AT_PHY "cs-RNTI.release = null")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("phy-tpc-rnti")
        .bad(AT_PDCCH "tpc-PUSCH")
        .saying("set up, but tpc-PUSCH-RNTI is absent")
        .good()
        .fires(AT_PDCCH "tpc-PUSCH",
               table.rule("phy-tpc-rnti").example(&RrcRule::bad) + "\n" AT_PHY "tpc-PUSCH-RNTI = 17932")
        .as(RRC_RULE_WARNING)
        .fires(AT_PHY "tpc-SRS-RNTI", AT_PHY "tpc-SRS-RNTI = 17933")
        .as(RRC_RULE_WARNING)
        .undecided(AT_PHY "tpc-SRS-RNTI = 17933")
        .with(inDelta)
        .fires(AT_PDCCH "tpc-PUSCH", table.rule("phy-tpc-rnti").example(&RrcRule::bad))
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("phy-bundling")
        .bad(AT_CELL "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission")
        .good()
        .fires(AT_PHY "harq-ACK-SpatialBundlingPUSCH", AT_PHY "harq-ACK-SpatialBundlingPUSCH = true")
        .as(RRC_RULE_WARNING)
        .undecided(AT_PHY "harq-ACK-SpatialBundlingPUSCH = true")
        .with(inDelta);

    table.rule("phy-power-fr")
        .bad(AT_PHY "p-UE-FR1")
        .good()
        .fires(AT_PHY "p-NR-FR1", AS_FR2 AT_PHY "p-NR-FR1 = 23")
        .as(RRC_RULE_WARNING)
        .fires(AT_COMMON_UL "frequencyInfoUL.p-Max", AS_FR2 AT_COMMON_UL "frequencyInfoUL.p-Max = 23")
        .as(RRC_RULE_WARNING)
        .silent(AT_COMMON_UL "frequencyInfoUL.p-Max = 23");

    table.rule("phy-dc-only")
        .bad(AT_PHY "xScale")
        .good()
        .fires(AT_PHY "xScale", AS_SCG AT_PHY "xScale = dB6")
        .with(with(RRC_RULE_CONNECTIVITY_NRDC))
        .undecided(AT_PHY "pdcch-BlindDetection.setup = 4")
        .fires(AT_PHY "pdcch-BlindDetection", AT_PHY "pdcch-BlindDetection.setup = 4")
        .with(with(RRC_RULE_CONNECTIVITY_SINGLE))
        .silent(AT_PHR "multiplePHR = true\n" AT_PHY "pdcch-BlindDetection.setup = 4")
        .with(with(RRC_RULE_CONNECTIVITY_NRDC));

    table.rule("phy-four-pathloss").bad(AT_SRS "srs-ResourceSetToAddModList[0].pathlossReferenceRS").good();
}

} // namespace test
