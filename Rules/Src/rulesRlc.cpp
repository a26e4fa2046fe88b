// RLC bearers.
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

bool isSize12(const SN_FieldLengthAM* length)
{
    return length == nullptr || *length == SN_FieldLengthAM_size12;
}

// An SRB has a sequence number of 12 bits, in acknowledged mode.
void rlcSrbAmSn12(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const RLC_Config* const rlc = MEMBER(*channel.bearer, rlc_Config);
        if (rlc == nullptr || !check.decided(channel.isSrb) || !*channel.isSrb)
        {
            continue;
        }
        const RLC_Config_am* const am = CHOSEN(check.tree, rlc, RLC_Config, am);
        if (am == nullptr)
        {
            check.error(rlc).allowed("SRB%u uses am", channel.bearerId);
            continue;
        }
        const SN_FieldLengthAM* const lengths[] = {MEMBER(am->ul_AM_RLC, sn_FieldLength),
                                                   MEMBER(am->dl_AM_RLC, sn_FieldLength)};
        for (const SN_FieldLengthAM* const length : lengths)
        {
            if (!isSize12(length))
            {
                check.error(length).allowed("SRB%u has size12 in both directions", channel.bearerId);
            }
        }
    }
}

constexpr Rule table[] = {
    {.told = {.id = "rlc-srb-am-sn12",
              .severity = RRC_RULE_ERROR,
              .statement = "A signalling radio bearer uses acknowledged mode with sequence numbers of 12 bits in both "
                           "directions.",
              .advice = "Give the bearer am and size12.",
              .clause = "TS 38.331 RLC-Config, 9.2.1",
              .given = "",
              .bad = AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size18",
              .good = AT_SRB "rlc-Config.am.ul-AM-RLC.sn-FieldLength = size12",
              .since = "0.1.0"},
     .run = rlcSrbAmSn12},
};

} // namespace

constinit const RuleGroup rlcRules = groupOf(table);

} // namespace rules
