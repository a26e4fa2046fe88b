#ifndef RRCINIT_H
#define RRCINIT_H

#include <string.h>

#include "cellgroupcfg_export.h"
#include "rrcCodec/rrcCodec.h"

/*
 * rrcInit(pRecord) makes any record of the cell group empty, whatever its memory held: masks and counts 0, and 0 in
 * each field that is sent without being switched on. It composes to what a record cleared whole composes to.
 *
 * It stays cheap however large the record is: records and arrays inside a record of more than 512 octets that a mask or
 * a count guards are left as they are when they take more than 64 octets. So each record is initialised by the one who
 * switches it on:
 *
 *     rrcInit(record);
 *     record->bitMask |= RRC_CELLGROUPCFG_SPCELL_PRESENCE;
 *     rrcInit(&record->spCellCfg);
 *     record->rlcBearerAddModNum = 1;
 *     rrcInit(&record->rlcBearerCfg[0]);
 *
 * pRecord is a pointer to one record, of any type of rrcCodec or gnbCommon, never null. The functions below are the
 * initialisers of the large ones; rrcInit takes them by the pointer's type and clears every other record whole.
 */

#ifdef __cplusplus
extern "C"
{
#endif

CELLGROUPCFG_API void rrcInitCellGroupCfg(RrcCellGroupCfg_t* pRrcCellGroupCfg);
CELLGROUPCFG_API void rrcInitSpCellCfg(RrcSpCellCfg_t* pRrcSpCellCfg);
CELLGROUPCFG_API void rrcInitReconfWithSync(RrcReconfWithSync_t* pRrcReconfWithSync);
CELLGROUPCFG_API void rrcInitRachCfgDedi(RrcRachCfgDedi_t* pRrcRachCfgDedi);
CELLGROUPCFG_API void rrcInitCfra(RrcCfra_t* pRrcCfra);
CELLGROUPCFG_API void rrcInitSsirs(RrcSsirs_t* pRrcSsirs);
CELLGROUPCFG_API void rrcInitCsirsResource(RrcCsirsResource_t* pRrcCsirsResource);
CELLGROUPCFG_API void rrcInitServingCellCfgCommon(RrcServingCellCfgCommon_t* pRrcServingCellCfgCommon);
CELLGROUPCFG_API void rrcInitScellCfg(RrcScellCfg_t* pRrcScellCfg);
CELLGROUPCFG_API void rrcInitServingCellCfg(RrcServingCellCfg_t* pRrcServingCellCfg);
CELLGROUPCFG_API void rrcInitTddUlDlCfgDedi(RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDedi);
CELLGROUPCFG_API void rrcInitBwpDl(RrcBwpDl_t* pRrcBwpDl);
CELLGROUPCFG_API void rrcInitBwpDlDedicated(RrcBwpDlDedicated_t* pRrcBwpDlDedicated);
CELLGROUPCFG_API void rrcInitPdcchCfg(RrcPdcchCfg_t* pRrcPdcchCfg);
CELLGROUPCFG_API void rrcInitPdschCfg(RrcPdschCfg_t* pRrcPdschCfg);
CELLGROUPCFG_API void rrcInitUlCfg(RrcUlCfg_t* pRrcUlCfg);
CELLGROUPCFG_API void rrcInitBwpUl(RrcBwpUl_t* pRrcBwpUl);
CELLGROUPCFG_API void rrcInitBwpUlDedi(RrcBwpUlDedi_t* pRrcBwpUlDedi);
CELLGROUPCFG_API void rrcInitPucchCfg(RrcPucchCfg_t* pRrcPucchCfg);
CELLGROUPCFG_API void rrcInitSrsCfg(RrcSrsCfg_t* pRrcSrsCfg);
CELLGROUPCFG_API void rrcInitPdcchServingCellCfg(RrcPdcchServingCellCfg_t* pRrcPdcchServingCellCfg);
CELLGROUPCFG_API void rrcInitSlotFormatInd(RrcSlotFormatInd_t* pRrcSlotFormatInd);
CELLGROUPCFG_API void rrcInitSlotFormatCombPerCell(RrcSlotFormatCombPerCell_t* pRrcSlotFormatCombPerCell);
CELLGROUPCFG_API void rrcInitCsiMeasCfg(RrcCsiMeasCfg_t* pRrcCsiMeasCfg);
CELLGROUPCFG_API void rrcInitCsiReportCfg(RrcCsiReportCfg_t* pRrcCsiReportCfg);
CELLGROUPCFG_API void rrcInitPortIndexFor8RanksList(RRCPortIndexFor8Ranks_t* pRRCPortIndexFor8Ranks);
CELLGROUPCFG_API void
rrcInitCsiAperiodicTriggerStateList(RrcCsiAperiodicTriggerStateList_t* pRrcCsiAperiodicTriggerStateList);

#ifdef __cplusplus
}
#endif

// One line per large record.
// clang-format off
#ifdef __cplusplus
inline void rrcInit(RrcCellGroupCfg_t* pRecord) { rrcInitCellGroupCfg(pRecord); }
inline void rrcInit(RrcSpCellCfg_t* pRecord) { rrcInitSpCellCfg(pRecord); }
inline void rrcInit(RrcReconfWithSync_t* pRecord) { rrcInitReconfWithSync(pRecord); }
inline void rrcInit(RrcRachCfgDedi_t* pRecord) { rrcInitRachCfgDedi(pRecord); }
inline void rrcInit(RrcCfra_t* pRecord) { rrcInitCfra(pRecord); }
inline void rrcInit(RrcSsirs_t* pRecord) { rrcInitSsirs(pRecord); }
inline void rrcInit(RrcCsirsResource_t* pRecord) { rrcInitCsirsResource(pRecord); }
inline void rrcInit(RrcServingCellCfgCommon_t* pRecord) { rrcInitServingCellCfgCommon(pRecord); }
inline void rrcInit(RrcScellCfg_t* pRecord) { rrcInitScellCfg(pRecord); }
inline void rrcInit(RrcServingCellCfg_t* pRecord) { rrcInitServingCellCfg(pRecord); }
inline void rrcInit(RrcTddUlDlCfgDedi_t* pRecord) { rrcInitTddUlDlCfgDedi(pRecord); }
inline void rrcInit(RrcBwpDl_t* pRecord) { rrcInitBwpDl(pRecord); }
inline void rrcInit(RrcBwpDlDedicated_t* pRecord) { rrcInitBwpDlDedicated(pRecord); }
inline void rrcInit(RrcPdcchCfg_t* pRecord) { rrcInitPdcchCfg(pRecord); }
inline void rrcInit(RrcPdschCfg_t* pRecord) { rrcInitPdschCfg(pRecord); }
inline void rrcInit(RrcUlCfg_t* pRecord) { rrcInitUlCfg(pRecord); }
inline void rrcInit(RrcBwpUl_t* pRecord) { rrcInitBwpUl(pRecord); }
inline void rrcInit(RrcBwpUlDedi_t* pRecord) { rrcInitBwpUlDedi(pRecord); }
inline void rrcInit(RrcPucchCfg_t* pRecord) { rrcInitPucchCfg(pRecord); }
inline void rrcInit(RrcSrsCfg_t* pRecord) { rrcInitSrsCfg(pRecord); }
inline void rrcInit(RrcPdcchServingCellCfg_t* pRecord) { rrcInitPdcchServingCellCfg(pRecord); }
inline void rrcInit(RrcSlotFormatInd_t* pRecord) { rrcInitSlotFormatInd(pRecord); }
inline void rrcInit(RrcSlotFormatCombPerCell_t* pRecord) { rrcInitSlotFormatCombPerCell(pRecord); }
inline void rrcInit(RrcCsiMeasCfg_t* pRecord) { rrcInitCsiMeasCfg(pRecord); }
inline void rrcInit(RrcCsiReportCfg_t* pRecord) { rrcInitCsiReportCfg(pRecord); }
inline void rrcInit(RRCPortIndexFor8Ranks_t* pRecord) { rrcInitPortIndexFor8RanksList(pRecord); }
inline void rrcInit(RrcCsiAperiodicTriggerStateList_t* pRecord) { rrcInitCsiAperiodicTriggerStateList(pRecord); }
// clang-format on
template <typename Record>
void rrcInit(Record* pRecord)
{
    static_assert(sizeof(Record) <= 512, "a large record has an initialiser of its own");
    memset(pRecord, 0, sizeof(Record));
}
// clang-format off
#else
#define rrcInit(pRecord) \
    _Generic(*(pRecord), \
        RrcCellGroupCfg_t: rrcInitCellGroupCfg((RrcCellGroupCfg_t*)(void*)(pRecord)), \
        RrcSpCellCfg_t: rrcInitSpCellCfg((RrcSpCellCfg_t*)(void*)(pRecord)), \
        RrcReconfWithSync_t: rrcInitReconfWithSync((RrcReconfWithSync_t*)(void*)(pRecord)), \
        RrcRachCfgDedi_t: rrcInitRachCfgDedi((RrcRachCfgDedi_t*)(void*)(pRecord)), \
        RrcCfra_t: rrcInitCfra((RrcCfra_t*)(void*)(pRecord)), \
        RrcSsirs_t: rrcInitSsirs((RrcSsirs_t*)(void*)(pRecord)), \
        RrcCsirsResource_t: rrcInitCsirsResource((RrcCsirsResource_t*)(void*)(pRecord)), \
        RrcServingCellCfgCommon_t: rrcInitServingCellCfgCommon((RrcServingCellCfgCommon_t*)(void*)(pRecord)), \
        RrcScellCfg_t: rrcInitScellCfg((RrcScellCfg_t*)(void*)(pRecord)), \
        RrcServingCellCfg_t: rrcInitServingCellCfg((RrcServingCellCfg_t*)(void*)(pRecord)), \
        RrcTddUlDlCfgDedi_t: rrcInitTddUlDlCfgDedi((RrcTddUlDlCfgDedi_t*)(void*)(pRecord)), \
        RrcBwpDl_t: rrcInitBwpDl((RrcBwpDl_t*)(void*)(pRecord)), \
        RrcBwpDlDedicated_t: rrcInitBwpDlDedicated((RrcBwpDlDedicated_t*)(void*)(pRecord)), \
        RrcPdcchCfg_t: rrcInitPdcchCfg((RrcPdcchCfg_t*)(void*)(pRecord)), \
        RrcPdschCfg_t: rrcInitPdschCfg((RrcPdschCfg_t*)(void*)(pRecord)), \
        RrcUlCfg_t: rrcInitUlCfg((RrcUlCfg_t*)(void*)(pRecord)), \
        RrcBwpUl_t: rrcInitBwpUl((RrcBwpUl_t*)(void*)(pRecord)), \
        RrcBwpUlDedi_t: rrcInitBwpUlDedi((RrcBwpUlDedi_t*)(void*)(pRecord)), \
        RrcPucchCfg_t: rrcInitPucchCfg((RrcPucchCfg_t*)(void*)(pRecord)), \
        RrcSrsCfg_t: rrcInitSrsCfg((RrcSrsCfg_t*)(void*)(pRecord)), \
        RrcPdcchServingCellCfg_t: rrcInitPdcchServingCellCfg((RrcPdcchServingCellCfg_t*)(void*)(pRecord)), \
        RrcSlotFormatInd_t: rrcInitSlotFormatInd((RrcSlotFormatInd_t*)(void*)(pRecord)), \
        RrcSlotFormatCombPerCell_t: rrcInitSlotFormatCombPerCell((RrcSlotFormatCombPerCell_t*)(void*)(pRecord)), \
        RrcCsiMeasCfg_t: rrcInitCsiMeasCfg((RrcCsiMeasCfg_t*)(void*)(pRecord)), \
        RrcCsiReportCfg_t: rrcInitCsiReportCfg((RrcCsiReportCfg_t*)(void*)(pRecord)), \
        RRCPortIndexFor8Ranks_t: rrcInitPortIndexFor8RanksList((RRCPortIndexFor8Ranks_t*)(void*)(pRecord)), \
        RrcCsiAperiodicTriggerStateList_t: rrcInitCsiAperiodicTriggerStateList((RrcCsiAperiodicTriggerStateList_t*)(void*)(pRecord)), \
        default: (void)memset((pRecord), 0, sizeof *(pRecord)))
#endif
// clang-format on

#endif
