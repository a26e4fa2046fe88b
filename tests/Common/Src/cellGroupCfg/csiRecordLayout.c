#include "csiRecordLayout.h"

#include <string.h>

size_t csiSizeInC(enum CsiRecord record)
{
    switch (record)
    {
    case CSI_NZP_RESOURCE:
        return sizeof(RrcNzpCsiRsResource_t);
    case CSI_NZP_RESOURCE_SET:
        return sizeof(RrcNzpCsiRsResourceSet_t);
    case CSI_IM_RESOURCE:
        return sizeof(RrcCsiImResource_t);
    case CSI_RESOURCE_CFG:
        return sizeof(RrcCsiResourceCfg_t);
    case CSI_REPORT_CFG_TYPE:
        return sizeof(union reportCfgType_u);
    case CSI_REPORT_FREQ_CFG:
        return sizeof(ReportFreqCfg_t);
    case CSI_TWO_PORTS:
        return sizeof(struct nrOfAntennaPorts_two);
    case CSI_MORE_PORTS:
        return sizeof(struct nrOfAntennaPorts_moreThanTwo);
    case CSI_SINGLE_PANEL:
        return sizeof(CodeBookTypeSinglePanel_t);
    case CSI_MULTI_PANEL:
        return sizeof(CodeBookTypeMultiPanel_t);
    case CSI_TYPE1:
        return sizeof(CodeBookType1_t);
    case CSI_TYPE_II:
        return sizeof(struct subType_typeII);
    case CSI_PORT_SELECTION:
        return sizeof(struct typeII_PortSelection);
    case CSI_TYPE2:
        return sizeof(CodeBookType2_t);
    case CSI_CODEBOOK:
        return sizeof(RrcCodebookCfg_t);
    case CSI_GROUP_REPORT:
        return sizeof(RrcgroupBasedBeamReport_t);
    case CSI_PORT_INDEX:
        return sizeof(RrcPortIndexFor8Ranks_t);
    case CSI_REPORT_CFG:
        return sizeof(RrcCsiReportCfg_t);
    case CSI_TRIGGER_STATE:
        return sizeof(RrcCsiAperiodicTriggerState_t);
    case CSI_MEAS_CFG:
        return sizeof(RrcCsiMeasCfg_t);
    }
    return 0;
}

void csiFillInC(struct CsiBitFields* pFields)
{
    memset(pFields, 0, sizeof *pFields);
    pFields->band.subbands19_v1530 = 0x5A5A5;
    pFields->two.twoTX_CodebookSubsetRestrict = 0x2D;
    pFields->more.typeI_SinglePanel_CodebookSubsetRestriction_i2 = 0xB00D;
    pFields->single.typeI_SinglePanel_ri_Restriction = 0xC3;
    pFields->multi.ri_Restriction = 0x96;
    pFields->typeII.TypeII_RI_Restriction = 2;
    pFields->selection.typeII_PortSelectionRI_Restriction = 1;
}
