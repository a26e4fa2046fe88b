/* The public headers in a program of C alone. */
#include "nrFormulas.h"
#include "rrcRules.h"

#include <string.h>

static int isBwp(void* arg, const RrcRule* rule)
{
    (void)arg;
    return strncmp(rule->id, "bwp-", 4) == 0;
}

/* The number of findings about an active bandwidth part that is not there, and 0 where a call is not as it should be.
 */
int64_t findingsInC(void);

int64_t findingsInC(void)
{
    OSCTXT context;
    CellGroupConfig element;
    RrcRuleContext known;
    NrSpan span;
    int64_t findings = 0;

    if (rtxInitContext(&context) != 0 || !nrRivDecode(1099, NR_LARGEST_CARRIER, &span) || span.size != 273)
    {
        return 0;
    }
    asn1Init_CellGroupConfig(&element);
    element.m.spCellConfigPresent = 1;
    element.spCellConfig.m.spCellConfigDedicatedPresent = 1;
    element.spCellConfig.spCellConfigDedicated.m.initialDownlinkBWPPresent = 1;
    element.spCellConfig.spCellConfigDedicated.m.firstActiveDownlinkBWP_IdPresent = 1;
    element.spCellConfig.spCellConfigDedicated.firstActiveDownlinkBWP_Id = 2;
    memset(&known, 0, sizeof known);
    known.extent = RRC_RULE_EXTENT_FULL;
    findings = rrcCheckSomeRules(&context, &element, &known, isBwp, NULL, NULL);
    rtFreeContext(&context);
    return findings;
}
