/* How a C compiler lays out the records of CSI measurement. */
#ifndef CSIRECORDLAYOUT_H
#define CSIRECORDLAYOUT_H

#include <stddef.h>

#include "rrcCodec/rrcCsiMeas.h"

#ifdef __cplusplus
extern "C"
{
#endif

enum CsiRecord
{
    CSI_NZP_RESOURCE,
    CSI_NZP_RESOURCE_SET,
    CSI_IM_RESOURCE,
    CSI_RESOURCE_CFG,
    CSI_REPORT_CFG_TYPE,
    CSI_REPORT_FREQ_CFG,
    CSI_TWO_PORTS,
    CSI_MORE_PORTS,
    CSI_SINGLE_PANEL,
    CSI_MULTI_PANEL,
    CSI_TYPE1,
    CSI_TYPE_II,
    CSI_PORT_SELECTION,
    CSI_TYPE2,
    CSI_CODEBOOK,
    CSI_GROUP_REPORT,
    CSI_PORT_INDEX,
    CSI_REPORT_CFG,
    CSI_TRIGGER_STATE,
    CSI_MEAS_CFG
};

/* One record of every kind that has bit fields. */
struct CsiBitFields
{
    union csiReportingBand_u band;
    struct nrOfAntennaPorts_two two;
    struct nrOfAntennaPorts_moreThanTwo more;
    CodeBookTypeSinglePanel_t single;
    CodeBookTypeMultiPanel_t multi;
    struct subType_typeII typeII;
    struct typeII_PortSelection selection;
};

size_t csiSizeInC(enum CsiRecord record);

/* Clears everything and gives each bit field a value of its own. */
void csiFillInC(struct CsiBitFields* pFields);

#ifdef __cplusplus
}
#endif

#endif
