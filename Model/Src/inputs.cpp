#include "rrcContext.h"

namespace
{

constexpr const char* inputNames[RRC_RULE_INPUTS] = {
    "the previous configuration, or that this one is complete",
    "the kind of the message",
    "which cell group it is",
    "the band",
    "the frequency range or the band",
    "the duplex mode or the band",
    "the carriers",
    "the initial downlink bandwidth part",
    "the initial uplink bandwidth part",
    "ssb-PositionsInBurst",
    "dmrs-TypeA-Position",
    "controlResourceSetZero",
    "tdd-UL-DL-ConfigurationCommon",
    "the cell-common configuration",
    "the radio bearers",
    "the measurement configuration",
    "the other cell group",
    "the UE's capabilities",
    "rach-ConfigCommon of the initial uplink bandwidth part",
};

} // namespace

const char* rrcRuleInputName(OSUINT32 input)
{
    for (OSUINT32 i = 0; i < RRC_RULE_INPUTS; ++i)
    {
        if (input == OSUINT32{1} << i)
        {
            return inputNames[i];
        }
    }
    return nullptr;
}
