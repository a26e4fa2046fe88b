#include "ruleCases.h"

namespace test
{

void rlcCases(CaseTable& table)
{
    table.rule("rlc-srb-am-sn12")
        .bad(AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength")
        .saying("size18, but SRB1 has size12 in both directions")
        .good()
        .fires(AT_SRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength",
               AT_SRB "rlc-Config.am.dl-AM-RLC.sn-FieldLength = size18")
        .fires(AT_SRB "rlc-Config", AT_SRB "rlc-Config = absent\n" AT_SRB
                                           "rlc-Config.um-Bi-Directional.ul-UM-RLC.sn-FieldLength = size12\n" AT_SRB
                                           "rlc-Config.um-Bi-Directional.dl-UM-RLC.sn-FieldLength = size12\n" AT_SRB
                                           "rlc-Config.um-Bi-Directional.dl-UM-RLC.t-Reassembly = ms35")
        .silent(AT_DRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18")
        .undecided(AT_SRB "servedRadioBearer = absent\n" AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18")
        .with(inDelta);
}

} // namespace test
