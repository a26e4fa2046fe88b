/* The interface as a C program has it. */
#include "rrcMessageFindings.h"

/* How many findings the octets have. */
int findingsInC(const OSOCTET* octets, size_t count);

static int countOne(void* arg, const RrcMessageFinding* finding)
{
    *(int*)arg += finding->severity != RRC_RULE_UNDECIDED;
    return 0;
}

int findingsInC(const OSOCTET* octets, size_t count)
{
    int found = 0;
    (void)rrcMessageFindings(octets, count, NULL, NULL, 0, countOne, &found);
    return found;
}
