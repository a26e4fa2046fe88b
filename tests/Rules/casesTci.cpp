#include "ruleCases.h"

namespace test
{

void tciCases(CaseTable& table)
{
#define AT_RS(n) AT_CSI "nzp-CSI-RS-ResourceToAddModList[" n "]."
#define AT_TRIGGERS AT_CSI "aperiodicTriggerStateList.setup[0].associatedReportConfigInfoList[0]."
    table.rule("tci-ref")
        .bad(AT_STATE("2") "qcl-Type1.referenceSignal.csi-rs")
        .saying("6, but an NZP CSI-RS resource of that id is not configured: there is 0..5")
        .good()
        .fires(AT_STATE("2") "qcl-Type1.referenceSignal.csi-rs", AT_STATE("2") "qcl-Type1.referenceSignal.csi-rs = 6")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_STATE("2") "qcl-Type1.bwp-Id", AT_STATE("2") "qcl-Type1.bwp-Id = 2")
        .silent(AT_STATE("0") "qcl-Type1.bwp-Id = 2") // an ssb is of none
        .fires(AT_STATE("0") "qcl-Type1.cell", AT_STATE("0") "qcl-Type1.cell = 4")
        .silent(AT_STATE("0") "qcl-Type1.cell = 0")
        .silent(std::string(ADD_SCELL) + AT_STATE("0") "qcl-Type1.cell = 1")
        .fires(AT_RS("0") "qcl-InfoPeriodicCSI-RS", AT_RS("0") "qcl-InfoPeriodicCSI-RS = 4")
        .fires(AT_TRIGGERS "resourcesForChannel.nzp-CSI-RS.qcl-info[0]",
               AT_TRIGGERS "resourcesForChannel.nzp-CSI-RS.qcl-info[0] = 5")
        .fires(AT_RS("1") "qcl-InfoPeriodicCSI-RS", AT_RS("1") "qcl-InfoPeriodicCSI-RS = 2")
        .saying("through its sources NZP CSI-RS resource 1 is its own source")
        .fires(AT_RS("1") "qcl-InfoPeriodicCSI-RS",
               AT_RS("1") "qcl-InfoPeriodicCSI-RS = 3\n" AT_RS("2") "qcl-InfoPeriodicCSI-RS = 2");

    table.rule("tci-bwp-cond")
        .bad(AT_STATE("2") "qcl-Type1.bwp-Id")
        .good()
        .fires(AT_STATE("0") "qcl-Type1.bwp-Id", AT_STATE("0") "qcl-Type1.bwp-Id = 1")
        .as(RRC_RULE_WARNING);

    table.rule("tci-type-pair")
        .bad(AT_STATE("3") "qcl-Type2.qcl-Type")
        .good()
        .fires(AT_STATE("3") "qcl-Type2.qcl-Type",
               AT_STATE("3") "qcl-Type2.bwp-Id = 1\n" AT_STATE("3") "qcl-Type2.referenceSignal.csi-rs = 2\n" AT_STATE(
                   "3") "qcl-Type2.qcl-Type = typeB")
        .as(RRC_RULE_WARNING)
        .fires(AT_STATE("3") "qcl-Type2.qcl-Type",
               AT_STATE("3") "qcl-Type2.bwp-Id = 1\n" AT_STATE("3") "qcl-Type2.referenceSignal.csi-rs = 2\n" AT_STATE(
                   "3") "qcl-Type2.qcl-Type = typeD")
        .as(RRC_RULE_WARNING)
        .saying("in FR1")
        .silent(AS_FR2 AT_STATE("3") "qcl-Type2.bwp-Id = 1\n" AT_STATE(
            "3") "qcl-Type2.referenceSignal.csi-rs = 2\n" AT_STATE("3") "qcl-Type2.qcl-Type = typeD")
        .fires(AT_STATE("0") "qcl-Type1.qcl-Type",
               std::string(ADD_SCELL) + AT_STATE("0") "qcl-Type1.cell = 1\n" AT_STATE("0") "qcl-Type1.qcl-Type = typeA")
        .silent(std::string(ADD_SCELL) + AT_STATE("0") "qcl-Type1.cell = 1")
        .fires(AT_STATE("1") "qcl-Type1.qcl-Type", AT_STATE("1") "qcl-Type1.qcl-Type = typeD")
        .as(RRC_RULE_WARNING)
        .times(2);

    table.rule("tci-usage")
        .bad(AT_RS("0") "qcl-InfoPeriodicCSI-RS")
        .good()
        .fires(AT_RS("1") "qcl-InfoPeriodicCSI-RS",
               AT_RS("1") "qcl-InfoPeriodicCSI-RS = 1\n" AT_STATE("1") "qcl-Type1.qcl-Type = typeA")
        .saying("CSI-RS for tracking take typeC from an ssb")
        .fires(AT_CORESET "tci-StatesPDCCH-ToAddList[0]", AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 0")
        .as(RRC_RULE_NOTICE)
        .fires(AT_CORESET "tci-StatesPDCCH-ToAddList[0]",
               AT_STATE("3") "qcl-Type1.qcl-Type = typeC\n" AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 3")
        .silent(AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 3");
}

} // namespace test
