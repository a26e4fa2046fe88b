/* Checks the rules of a cell group that names a bandwidth part which is not there, and of its repair. */
#include <stdio.h>
#include <string.h>

#include "nrFormulas.h"
#include "rrcRules.h"

static int check(int holds, const char* what)
{
    if (!holds)
    {
        fprintf(stderr, "wrong: %s\n", what);
    }
    return holds ? 0 : 1;
}

static int keep(void* arg, const RrcRuleFinding* finding)
{
    (void)rrcRuleFindingFormat(finding, (char*)arg, 200);
    return 0;
}

static int wantReference(void* arg, const RrcRule* rule)
{
    (void)arg;
    return strcmp(rule->id, "bwp-active-ref") == 0;
}

int main(void)
{
    int wrong = 0;
    char line[200] = "";
    OSCTXT context;
    CellGroupConfig element;
    RrcRuleContext known;
    NrSpan span;

    asn1Init_CellGroupConfig(&element);
    element.m.spCellConfigPresent = 1;
    element.spCellConfig.m.spCellConfigDedicatedPresent = 1;
    element.spCellConfig.spCellConfigDedicated.m.firstActiveDownlinkBWP_IdPresent = 1;
    element.spCellConfig.spCellConfigDedicated.firstActiveDownlinkBWP_Id = 2;
    memset(&known, 0, sizeof(known));
    known.extent = RRC_RULE_EXTENT_FULL;

    wrong += check(rtxInitContext(&context) == 0, "context");
    wrong += check(rrcCheckRules(&context, &element, &known, NULL, NULL) >= 1, "findings");
    wrong += check(rrcCheckSomeRules(&context, &element, &known, wantReference, keep, line) == 1, "one finding");
    puts(line);
    wrong += check(strstr(line, "firstActiveDownlinkBWP-Id: 2, but there is no downlink bandwidth part 2") != NULL,
                   "what is said");
    rtFreeContext(&context);

    wrong += check(rrcRuleById("bwp-active-ref") != NULL && rrcRuleCount() > 200, "table");
    wrong += check(nrRivDecode(1099, NR_LARGEST_CARRIER, &span) != 0 && span.size == 273, "formula");
    return wrong;
}
