#include "ruleCases.h"

namespace test
{
namespace
{

Known with(RrcRuleConnectivity connectivity)
{
    return [connectivity](RrcRuleContext& known)
    {
        known.connectivity = static_cast<OSUINT8>(connectivity);
    };
}

#define PHR AT_MAC "phr-Config.setup."
#define DRX AT_MAC "drx-Config.setup."
#define SR AT_MAC "schedulingRequestConfig."

} // namespace

void macCases(CaseTable& table)
{
    table.rule("mac-sr-ref")
        .bad(AT_DRB_UL "schedulingRequestID")
        .saying("1, but a scheduling request of that id is not configured: there is 0")
        .good()
        .fires(AT_PUCCH "schedulingRequestResourceToAddModList[0].schedulingRequestID",
               AT_PUCCH "schedulingRequestResourceToAddModList[0].schedulingRequestID = 3")
        .fires(AT_DRB_UL "schedulingRequestID", AT_DRB_UL "schedulingRequestID = 1")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_DRB_UL "schedulingRequestID",
               AT_DRB_UL "schedulingRequestID = 1\n" SR "schedulingRequestToReleaseList[0] = 1")
        .with(inDelta)
        .saying("a scheduling request 1 is released by this message");

    table.rule("mac-sr-no-resource")
        .bad(SR "schedulingRequestToAddModList[1].schedulingRequestId")
        .good()
        .undecided(table.rule("mac-sr-no-resource").example(&RrcRule::bad))
        .with(inDelta);

    table.rule("mac-sr-one-per-bwp")
        .bad(AT_PUCCH "schedulingRequestResourceToAddModList[1].schedulingRequestID")
        .good();

    table.rule("mac-sr-delay")
        .bad(AT_DRB_UL "logicalChannelSR-DelayTimerApplied")
        .good()
        .fires(AT_DRB_UL "logicalChannelSR-DelayTimerApplied",
               AT_DRB_UL "logicalChannelSR-DelayTimerApplied = true\n" AT_MAC "bsr-Config = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("mac-srb-pbr")
        .bad(AT_SRB_UL "prioritisedBitRate")
        .good()
        .silent(AT_DRB_UL "prioritisedBitRate = kBps8")
        .undecided(AT_SRB_UL "prioritisedBitRate = kBps8\n" AT_SRB "servedRadioBearer = absent")
        .with(inDelta);

    table.rule("mac-no-lcg").bad(AT_DRB_UL "logicalChannelGroup").good();

    table.rule("mac-allowed-cells")
        .bad(AT_DRB_UL "allowedServingCells[0]")
        .saying("1, but the cell group has no such cell")
        .good()
        .fires(AT_DRB_UL "allowedServingCells[0]", ADD_SCELL AT_DRB_UL "allowedServingCells[0] = 1")
        .saying("1, but the cell has no uplink")
        .silent(ADD_SCELL_WITH_UPLINK AT_DRB_UL "allowedServingCells[0] = 1")
        .fires(AT_DRB_UL "allowedServingCells[0]", AT_DRB_UL "allowedServingCells[0] = 1")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("mac-allowed-scs")
        .bad(AT_DRB_UL "allowedSCS-List[1]")
        .saying("kHz120, but cells of FR1 have 15, 30 and 60 kHz")
        .good()
        .fires(AT_DRB_UL "allowedSCS-List[1]",
               AT_DRB_UL "allowedSCS-List[0] = kHz30\n" AT_DRB_UL "allowedSCS-List[1] = kHz240")
        .fires(AT_DRB_UL "allowedSCS-List", AT_DRB_UL "allowedSCS-List[0] = kHz60")
        .as(RRC_RULE_WARNING)
        // 30 kHz: the shortest PUSCH of the list has so many symbols.
        .fires(AT_DRB_UL "maxPUSCH-Duration", AT_DRB_UL "maxPUSCH-Duration = ms0p02")
        .as(RRC_RULE_WARNING)
        .silent(AT_DRB_UL "maxPUSCH-Duration = ms0p5")
        .undecided(AT_DRB_UL "allowedSCS-List[0] = kHz60")
        .with(inDelta);

    table.rule("mac-tag-ref")
        .bad(AT_CELL "tag-Id")
        .saying("1, but the SpCell is in timing advance group 0")
        .good()
        .fires(AT_SCELL_CELL "tag-Id", ADD_SCELL AT_SCELL_CELL "tag-Id = 1")
        .saying("1, but a timing advance group of that id is not configured: there is 0")
        .silent(ADD_SCELL AT_SCELL_CELL "tag-Id = 1\n" AT_MAC "tag-Config.tag-ToAddModList[1].tag-Id = 1\n" AT_MAC
                                        "tag-Config.tag-ToAddModList[1].timeAlignmentTimer = infinity")
        .fires(AT_CELL "tag-Id", AT_MAC "tag-Config = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        // The PCell has a timer of SIB1, the PSCell has none.
        .fires(AT_CELL "tag-Id", AT_MAC "tag-Config = absent")
        .as(RRC_RULE_WARNING)
        .fires(AT_CELL "tag-Id", AS_SCG AT_MAC "tag-Config = absent")
        .fires(AT_CELL "tag-Id", AT_MAC "tag-Config = absent\n" AT_MAC "tag-Config.tag-ToReleaseList[0] = 0")
        .saying("a timing advance group 0 is released by this message");

#define CYCLES(longCycle, shortCycle)                                                                                  \
    DRX "drx-LongCycleStartOffset = absent\n" DRX "drx-LongCycleStartOffset." longCycle " = 0\n" DRX                   \
        "shortDRX.drx-ShortCycle = " shortCycle
    table.rule("mac-drx")
        .bad(DRX "shortDRX.drx-ShortCycle")
        .saying("ms20, but the long cycle of 70 ms is no multiple of it: 10 ms are left")
        .good()
        .fires(DRX "shortDRX.drx-ShortCycle", CYCLES("ms40", "ms40"))
        .as(RRC_RULE_WARNING)
        .saying("ms40, but the long cycle has 40 ms, too")
        .fires(DRX "drx-onDurationTimer", CYCLES("ms40", "ms20") "\n" DRX "drx-onDurationTimer.milliSeconds = ms30")
        .as(RRC_RULE_WARNING)
        .silent(CYCLES("ms40", "ms20") "\n" DRX "drx-onDurationTimer.milliSeconds = ms20")
        .silent(CYCLES("ms40", "ms2") "\n" DRX "drx-onDurationTimer = absent\n" DRX
                                      "drx-onDurationTimer.subMilliSeconds = 31")
        .silent(DRX "shortDRX = absent");

    table.rule("mac-csi-mask")
        .bad(AT_MAC "csi-Mask")
        .good()
        .fires(AT_MAC "csi-Mask", AT_MAC "csi-Mask = true\n" AT_MAC "drx-Config = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .silent(AT_MAC "csi-Mask = false\n" AT_MAC "drx-Config = absent");

    table.rule("mac-phr")
        .bad(PHR "multiplePHR")
        .with(with(RRC_RULE_CONNECTIVITY_ENDC))
        .saying("FALSE, but the UE has another cell group")
        .good()
        .with(with(RRC_RULE_CONNECTIVITY_ENDC))
        .fires(PHR "multiplePHR", PHR "multiplePHR = true")
        .as(RRC_RULE_WARNING)
        .fires(PHR "multiplePHR", PHR "multiplePHR = true")
        .with(with(RRC_RULE_CONNECTIVITY_SINGLE))
        .undecided(PHR "multiplePHR = true")
        .with(inDelta)
        .silent(PHR "multiplePHR = false")
        .fires(PHR "multiplePHR", ADD_SCELL_WITH_UPLINK PHR "multiplePHR = false")
        .saying("FALSE, but the cell group has 2 uplinks")
        .silent(ADD_SCELL_WITH_UPLINK)
        .silent(ADD_SCELL_WITH_UPLINK AT_SCELL_CELL "uplinkConfig = absent\n" PHR "multiplePHR = false")
        .fires(PHR "multiplePHR", AS_SCG PHR "multiplePHR = false")
        .as(RRC_RULE_WARNING)
        .fires(PHR "phr-Type2OtherCell", PHR "phr-Type2OtherCell = true")
        .with(with(RRC_RULE_CONNECTIVITY_SINGLE))
        .undecided(PHR "phr-Type2OtherCell = true")
        .silent(PHR "multiplePHR = true\n" PHR "phr-Type2OtherCell = true")
        .with(with(RRC_RULE_CONNECTIVITY_ENDC));

    table.rule("mac-mcg-only")
        .bad(AT_MAC "dataInactivityTimer")
        .good()
        .silent(AT_MAC "dataInactivityTimer.setup = s10");
}

} // namespace test
