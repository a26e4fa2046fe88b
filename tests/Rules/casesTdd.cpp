#include "ruleCases.h"

namespace test
{

#define AT_PATTERN2 AT_TDD "pattern2."
#define A_PATTERN2(period)                                                                                             \
    AT_PATTERN2 "dl-UL-TransmissionPeriodicity = " period "\n" AT_PATTERN2 "nrofDownlinkSlots = 1\n" AT_PATTERN2       \
                "nrofDownlinkSymbols = 0\n" AT_PATTERN2 "nrofUplinkSlots = 0\n" AT_PATTERN2 "nrofUplinkSymbols = 0\n"

namespace
{

// A pattern of 5 ms: 7 slots and 6 symbols of downlink, 2 slots of uplink and these symbols.
std::string tenSlots(const char* symbols)
{
    return std::string(AT_TDD "pattern1.dl-UL-TransmissionPeriodicity = ms5\n" AT_TDD
                              "pattern1.nrofDownlinkSlots = 7\n" AT_TDD "pattern1.nrofDownlinkSymbols = 6\n" AT_TDD
                              "pattern1.nrofUplinkSlots = 2\n" AT_TDD "pattern1.nrofUplinkSymbols = ") +
           symbols;
}

// An SCell with this many symbols of downlink in the slot that ends in its only uplink, of 5 symbols, with PUSCH by the
// default table.
#define AT_SCELL_TDD AT_SCELL_COMMON "tdd-UL-DL-ConfigurationCommon.pattern1."
#define AT_SCELL_ROWS                                                                                                  \
    AT_SCELL_CELL                                                                                                      \
    "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pusch-Config.setup.pusch-TimeDomainAllocationList"
std::string beforeUplink(const char* count)
{
    return std::string(ADD_SCELL_WITH_UPLINK AT_SCELL_ROWS
                       " = absent\n" AT_SCELL_TDD "nrofDownlinkSlots = 4\n" AT_SCELL_TDD
                       "nrofUplinkSlots = 0\n" AT_SCELL_TDD "nrofUplinkSymbols = 5\n" AT_SCELL_TDD
                       "nrofDownlinkSymbols = ") +
           count;
}

} // namespace

#define AT_TYPE1 AT_GRANT "rrc-ConfiguredUplinkGrant."

void tddCases(CaseTable& table)
{
    const std::string typeOne = std::string(rrcRuleById("pusch-cg-type1")->good) + "\n";
    table.rule("tdd-period-scs")
        .bad(AT_TDD "pattern1.dl-UL-TransmissionPeriodicity")
        .saying("ms1p25, but 30 kHz as reference does not go with that period")
        .good();

    table.rule("tdd-slots-sum")
        .bad(AT_TDD "pattern1.nrofUplinkSymbols")
        .saying("10 downlink and 5 uplink symbols, but 1 of 5 slots are left for them, 14 symbols")
        .good()
        .fires(AT_TDD "pattern1.nrofUplinkSlots", AT_TDD "pattern1.nrofUplinkSlots = 3")
        .saying("3 downlink and 3 uplink slots, but the period has 5 slots")
        .fires(AT_TDD "pattern1.nrofUplinkSymbols", AT_TDD "pattern1.nrofUplinkSlots = 2")
        .saying("0 of 5 slots are left")
        .silent(AT_TDD "pattern1.nrofDownlinkSlots = 2\n" AT_TDD "pattern1.nrofDownlinkSymbols = 13\n" AT_TDD
                       "pattern1.nrofUplinkSymbols = 13")
        .fires(AT_TDD "pattern1",
               AT_TDD "pattern1.nrofDownlinkSlots = 5\n" AT_TDD "pattern1.nrofDownlinkSymbols = 0\n" AT_TDD
                      "pattern1.nrofUplinkSlots = 0\n" AT_TDD "pattern1.nrofUplinkSymbols = 0")
        .as(RRC_RULE_WARNING)
        .fires(AT_TDD "pattern1.nrofUplinkSymbols", tenSlots("10"))
        .saying("6 downlink and 10 uplink symbols, but 1 of 10 slots are left for them, 14 symbols")
        .silent(tenSlots("4"))
        .fires(AT_PATTERN2 "nrofUplinkSymbols",
               A_PATTERN2("ms2p5") AT_PATTERN2 "nrofUplinkSlots = 4\n" AT_PATTERN2 "nrofUplinkSymbols = 1");

    table.rule("tdd-period-20ms")
        .bad(AT_TDD "pattern1.dl-UL-TransmissionPeriodicity-v1530")
        .saying("3.000 ms in all")
        .good()
        .fires(AT_PATTERN2 "dl-UL-TransmissionPeriodicity", A_PATTERN2("ms5"))
        .saying("7.500 ms in all")
        .silent(A_PATTERN2("ms2p5"));

    table.rule("tdd-ref-scs")
        .bad(AT_TDD "referenceSubcarrierSpacing")
        .saying("kHz60, but downlink bandwidth part 0 has 30 kHz")
        .good()
        .fires(AT_TDD "referenceSubcarrierSpacing", AT_TDD "referenceSubcarrierSpacing = kHz120")
        .saying("in FR1 it is 15, 30 or 60 kHz");

    table.rule("tdd-cell-kind")
        .bad(AT_CELL "tdd-UL-DL-ConfigurationDedicated")
        .good()
        .fires(AT_COMMON "tdd-UL-DL-ConfigurationCommon",
               AT_COMMON_UL "frequencyInfoUL.frequencyBandList[0] = 78\n" AT_COMMON_UL
                            "frequencyInfoUL.absoluteFrequencyPointA = 630058")
        .with([](RrcRuleContext& known) { known.duplex = RRC_RULE_DUPLEX_FDD; })
        .undecided(AT_SYNC_ABSENT "\n" AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED
                                  "symbols.explicit.nrofDownlinkSymbols = 12")
        .with(inDelta);

    table.rule("tdd-dedicated")
        .bad(AT_TDD_DEDICATED "symbols")
        .saying("the common pattern has uplink in slot 3 where this has downlink")
        .good()
        .fires(AT_TDD_DEDICATED "slotIndex",
               AT_TDD_DEDICATED "slotIndex = 5\n" AT_TDD_DEDICATED "symbols.allDownlink = null")
        .saying("5, but the patterns have 5 slots at 30 kHz")
        .silent(AT_TDD_DEDICATED "slotIndex = 2\n" AT_TDD_DEDICATED "symbols.allDownlink = null")
        .fires(AT_TDD_DEDICATED "symbols",
               AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.allDownlink = null")
        .saying("the common pattern has uplink in slot 3 where this has downlink")
        .silent(AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.allDownlink = null\n" AT_TDD
                                 "pattern1.nrofUplinkSymbols = 0")
        .silent(AT_TDD_DEDICATED "slotIndex = 4\n" AT_TDD_DEDICATED "symbols.allUplink = null")
        .fires(AT_TDD_DEDICATED "symbols",
               AT_TDD_DEDICATED "slotIndex = 2\n" AT_TDD_DEDICATED "symbols.allUplink = null")
        .fires(AT_TDD_DEDICATED "symbols", AT_TDD_DEDICATED
               "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.explicit.nrofDownlinkSymbols = 10\n" AT_TDD_DEDICATED
               "symbols.explicit.nrofUplinkSymbols = 5")
        .saying("10 downlink and 5 uplink symbols")
        .fires(AT_TDD_DEDICATED "symbols", AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.explicit = {}")
        .undecided(AT_SYNC_ABSENT "\n" AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED
                                  "symbols.explicit.nrofDownlinkSymbols = 12")
        .with(inDelta);

#define AT_SR AT_PUCCH "schedulingRequestResourceToAddModList[0].periodicityAndOffset"
#define AT_RS0 AT_CSI "nzp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset"
    table.rule("tdd-direction")
        .bad(AT_SR)
        .saying("slot 5 of every 20, symbols 0..13, but 1 of 1 occasions meet downlink symbols")
        .good()
        .fires(AT_SR, AT_SR " = absent\n" AT_SR ".sl8 = 4")
        .as(RRC_RULE_NOTICE)
        .fires(AT_RS0, AT_RS0 ".slots80 = 4")
        .saying("meet uplink symbols")
        .fires(AT_CSI "csi-IM-ResourceToAddModList[0].periodicityAndOffset",
               AT_CSI "csi-IM-ResourceToAddModList[0].periodicityAndOffset.slots80 = 4")
        .fires(AT_CSI "csi-ReportConfigToAddModList[0].reportConfigType.periodic.reportSlotConfig",
               AT_CSI "csi-ReportConfigToAddModList[0].reportConfigType.periodic.reportSlotConfig.slots80 = 10")
        // The two last symbols of the fourth slot are uplink.
        .silent(AT_CSI "csi-ReportConfigToAddModList[0].reportConfigType.periodic.reportSlotConfig.slots80 = 8")
        .fires(AT_SRS "srs-ResourceToAddModList[0].resourceType.periodic.periodicityAndOffset-p",
               AT_SRS "srs-ResourceToAddModList[0].resourceType.periodic.periodicityAndOffset-p.sl40 = 10")
        .fires(AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset",
               AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset.sl20 = 4")
        .fires(AT_PUSCH "pusch-TimeDomainAllocationList.setup[0]",
               AT_TDD "pattern1.nrofDownlinkSlots = 3\n" AT_PUSCH "pusch-TimeDomainAllocationList.setup[0].k2 = 5")
        .saying("k2 5, symbols 0..13")
        .fires(AT_PDSCH "pdsch-TimeDomainAllocationList.setup[0]",
               AT_TDD "pattern1.nrofDownlinkSlots = 1\n" AT_TDD "pattern1.nrofDownlinkSymbols = 0\n" AT_TDD
                      "pattern1.nrofUplinkSlots = 4\n" AT_TDD "pattern1.nrofUplinkSymbols = 0\n" AT_PDSCH
                      "pdsch-TimeDomainAllocationList.setup[0].k0 = 1\n" AT_CSI
                      "nzp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset.slots80 = 0\n" AT_CSI
                      "nzp-CSI-RS-ResourceToAddModList[1].periodicityAndOffset.slots80 = 0\n" AT_CSI
                      "nzp-CSI-RS-ResourceToAddModList[2].periodicityAndOffset.slots80 = 0\n" AT_NZP_SET
                      "[1].nzp-CSI-RS-Resources[3] = absent\n" AT_NZP_SET
                      "[1].nzp-CSI-RS-Resources[2] = absent\n" AT_NZP "[5] = absent\n" AT_NZP "[4] = absent\n" AT_CSI
                      "csi-IM-ResourceToAddModList[0].periodicityAndOffset.slots80 = 0")
        // Slot 4 of every 5 is uplink, and the last two symbols of slot 3.
        .fires(AT_TYPE1 "timeDomainOffset", typeOne + AT_TYPE1 "timeDomainOffset = 8")
        .saying("slot 8 of every 10, symbols 0..13, but 1 of 1 occasions meet downlink symbols")
        .silent(typeOne)
        .fires(AT_TYPE1 "timeDomainOffset",
               typeOne + AT_GRANT "periodicity = sym8x14\n" AT_TYPE1 "timeDomainOffset = 4")
        .as(RRC_RULE_NOTICE)
        .saying("4 of 5 occasions")
        // Of the default table the first row has symbols 0..13, too, and row 4 the symbols 4..13.
        .silent(typeOne + AT_PUSCH "pusch-TimeDomainAllocationList = absent\n" AT_TYPE1 "timeDomainAllocation = 4")
        .fires(AT_TYPE1 "timeDomainOffset", typeOne + AT_PUSCH "pusch-TimeDomainAllocationList = absent\n" AT_TYPE1
                                                               "timeDomainAllocation = 4\n" AT_TYPE1
                                                               "timeDomainOffset = 8")
        .saying("slot 8 of every 10, symbols 4..13")
        .silent(typeOne + AT_GRANT "periodicity = sym2\n" AT_TYPE1 "timeDomainOffset = 8")
        .silent(AT_PUSCH "pusch-TimeDomainAllocationList = absent")
        // The shortest of its rows has the symbols 8..13, the first of them flexible or not.
        .silent(beforeUplink("8"))
        .fires(AT_SCELL_ROWS, beforeUplink("9"))
        .saying("absent, but no row of the default table leads from a downlink slot to uplink symbols")
        .fires(AT_COMMON "ssb-PositionsInBurst",
               AT_COMMON "ssb-PositionsInBurst = absent\n" AT_COMMON "ssb-PositionsInBurst.mediumBitmap = FF\n" AT_TDD
                         "pattern1.nrofUplinkSlots = 2\n" AT_TDD "pattern1.nrofDownlinkSymbols = 0\n" AT_TDD
                         "pattern1.nrofUplinkSymbols = 0")
        .saying("block 6 at symbol 44")
        // Reports go out on the SpCell, of whose slots nothing is known here.
        .silent(ADD_SCELL "spCellConfig = absent")
        .with(inDelta)
        .undecided(AT_SYNC_ABSENT)
        .with(inDelta);
}

} // namespace test
