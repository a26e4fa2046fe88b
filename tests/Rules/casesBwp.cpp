#include "ruleCases.h"

namespace test
{

void bwpCases(CaseTable& table)
{
    table.rule("bwp-in-carrier")
        .bad(AT_DL "bwp-Common.genericParameters.locationAndBandwidth")
        .times(2)
        .saying("RB 0..273, but the carrier at 30 kHz has RB 0..272")
        .good();

    table.rule("bwp-active-ref")
        .bad(AT_CELL "firstActiveDownlinkBWP-Id")
        .good()
        .fires(AT_UPLINK "firstActiveUplinkBWP-Id", AT_UPLINK "firstActiveUplinkBWP-Id = 3")
        .silent(AT_CELL "firstActiveDownlinkBWP-Id = 0")
        .fires(AT_CELL "firstActiveDownlinkBWP-Id", AT_CELL "firstActiveDownlinkBWP-Id = 2")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);
}

} // namespace test
