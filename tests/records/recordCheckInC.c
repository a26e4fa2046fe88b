/* The headers in C11. */
#include "rrcRecordCheck.h"
#include "rrcRecordJson.h"
#include "rrcRecordToCpp.h"

/* The severity of the first finding; 0: there is none. */
static int first(void* arg, const RrcRecordFinding* finding)
{
    *(OSUINT8*)arg = finding->severity;
    return 1;
}

OSUINT8 firstSeverity(const RrcCellGroupCfg_t* record);

OSUINT8 firstSeverity(const RrcCellGroupCfg_t* record)
{
    OSUINT8 severity = 0;
    (void)rrcCheckCellGroupCfg(record, first, &severity);
    return severity;
}
