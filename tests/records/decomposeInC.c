/* The header in C11. */
#include "rrcDecompose.h"

/* The reason of the first that a record cannot say; 0: it says all. */
static int first(void* arg, const RrcUnsaid* unsaid)
{
    *(OSINT32*)arg = unsaid->reason;
    return 1;
}

OSINT32 firstUnsaid(OSCTXT* pAsnCxt, const struct CellGroupConfig* pCellGroupConfig, RrcCellGroupCfg_t* pRecord);

OSINT32 firstUnsaid(OSCTXT* pAsnCxt, const struct CellGroupConfig* pCellGroupConfig, RrcCellGroupCfg_t* pRecord)
{
    OSINT32 reason = 0;
    const INT32 status = rrcDecomposeCellGroupCfg(pAsnCxt, pCellGroupConfig, pRecord, first, &reason);
    return status < 0 ? status : reason;
}
