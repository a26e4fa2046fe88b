// What a test fills records with, and what it expects of them. Both are written from the records' documentation and the
// schema alone and know nothing of the composers.
#ifndef RECORDS_H
#define RECORDS_H

#include <string>

#include "Chance.h"
#include "Meaning.h"

namespace records
{

// Fills a record, whatever its memory held, with all that its masks, counts and ranges allow and that composes.
// draw<Subject>.cpp has those of each subject, meant<Subject>.cpp what they mean.
// cellGroup
void draw(Chance& chance, RrcCellGroupCfg_t& record);
void draw(Chance& chance, RrcSpCellCfg_t& record);
void draw(Chance& chance, RrcReconfWithSync_t& record);
void draw(Chance& chance, RrcScellCfg_t& record);
void draw(Chance& chance, RrcServingCellCfg_t& record);

// rlc, mac, phy
void draw(Chance& chance, RrcRlcBearerCfg_t& record);
void draw(Chance& chance, RrcMacCellGrpCfg_t& record);
void draw(Chance& chance, RrcPhyCellGrpCfg_t& record);

// rach
void draw(Chance& chance, RrcRachCfgDedi_t& record);
void draw(Chance& chance, RrcRachCfgGeneric_t& record);
void draw(Chance& chance, RrcRaPrio_t& record);

// servingCellCommon
void draw(Chance& chance, RrcServingCellCfgCommon_t& record);
void draw(Chance& chance, RrcSSBMTC_t& record);
void draw(Chance& chance, RrcTddUlDlSlotCfg_t& record);
void draw(Chance& chance, RrcRateMatchPattern_t& record);

// distributedUnit
void draw(Chance& chance, SpecificCarrier_t& record);
void draw(Chance& chance, NrBwpDownLinkCommon_t& record);
void draw(Chance& chance, InitialUlBwp_t& record);
void draw(Chance& chance, TddUlDlCfgCom_t& record);

// downlink
void draw(Chance& chance, RrcTddUlDlCfgDedi_t& record);
void draw(Chance& chance, RrcBwpDl_t& record);
void draw(Chance& chance, RrcBwpDlDedicated_t& record);
void draw(Chance& chance, RrcBwp_t& record);

// pdcch
void draw(Chance& chance, RrcPdcchCfg_t& record);
void draw(Chance& chance, RrcControlResourceSet_t& record);
void draw(Chance& chance, RrcSearchSpace_t& record);

// pdsch
void draw(Chance& chance, RrcPdschCfg_t& record);
void draw(Chance& chance, RrcSpsCfg_t& record);
void draw(Chance& chance, RrcRlmCfg_t& record);
void draw(Chance& chance, RrcPdschTimeDomainResourceAllocList_t& record);

// csiRs
void draw(Chance& chance, RrcCsiRsResourceMapping_t& record);
void draw(Chance& chance, RrcCsiResourcePeriodictyAndOffset_t& record);
void draw(Chance& chance, RrcCsiFreqOccupation_t& record);

// uplink
void draw(Chance& chance, RrcUlCfg_t& record);
void draw(Chance& chance, RrcBwpUl_t& record);
void draw(Chance& chance, RrcBwpUlDedi_t& record);
void draw(Chance& chance, RrcBeamFailRecoveryCfg_t& record);

// pucch
void draw(Chance& chance, RrcPucchCfg_t& record);

// pusch
void draw(Chance& chance, RrcPuschCfg_t& record);
void draw(Chance& chance, RrcPuschTimeDomainResourceAllocList_t& record);
void draw(Chance& chance, RrcDmrsUlCfg_t& record);
void draw(Chance& chance, RrcCfgGrantCfg_t& record);

// srs
void draw(Chance& chance, RrcSrsCfg_t& record);

// servingCellLevel
void draw(Chance& chance, RrcPuschServingCellCfg_t& record);
void draw(Chance& chance, RrcSrsCarrierSwitching_t& record);
void draw(Chance& chance, RrcPdcchServingCellCfg_t& record);
void draw(Chance& chance, RrcPdschServingCellCfg_t& record);

// csiMeas
void draw(Chance& chance, RrcCsiMeasCfg_t& record);

// csiReport
void draw(Chance& chance, RrcCsiReportCfg_t& record);

// codebook
void draw(Chance& chance, RrcCodebookCfg_t& record);

// The JSON value that a record means; see Meaning.h.
// cellGroup
std::string meant(const RrcCellGroupCfg_t& record);
std::string meant(const RrcSpCellCfg_t& record);
std::string meant(const RrcReconfWithSync_t& record);
std::string meant(const RrcScellCfg_t& record);
std::string meant(const RrcServingCellCfg_t& record);

// rlc, mac, phy
std::string meant(const RrcRlcBearerCfg_t& record);
std::string meant(const RrcMacCellGrpCfg_t& record);
std::string meant(const RrcPhyCellGrpCfg_t& record);

// rach
std::string meant(const RrcRachCfgDedi_t& record);
std::string meant(const RrcRachCfgGeneric_t& record);
std::string meant(const RrcRaPrio_t& record);

// servingCellCommon
std::string meant(const RrcServingCellCfgCommon_t& record);
std::string meant(const RrcSSBMTC_t& record);
std::string meant(const RrcRateMatchPattern_t& record);

// distributedUnit
std::string meant(const SpecificCarrier_t& record);
std::string meant(const NrBwpDownLinkCommon_t& record);
std::string meant(const InitialUlBwp_t& record);
std::string meant(const TddUlDlCfgCom_t& record);

// downlink
std::string meant(const RrcTddUlDlCfgDedi_t& record);
std::string meant(const RrcBwpDl_t& record);
std::string meant(const RrcBwpDlDedicated_t& record);
std::string meant(const RrcBwp_t& record);

// pdcch
std::string meant(const RrcPdcchCfg_t& record);
std::string meant(const RrcControlResourceSet_t& record);
std::string meant(const RrcSearchSpace_t& record);

// pdsch
std::string meant(const RrcPdschCfg_t& record);
std::string meant(const RrcSpsCfg_t& record);
std::string meant(const RrcRlmCfg_t& record);
std::string meant(const RrcPdschTimeDomainResourceAllocList_t& record);

// csiRs
std::string meant(const RrcCsiRsResourceMapping_t& record);
std::string meant(const RrcCsiResourcePeriodictyAndOffset_t& record);
std::string meant(const RrcCsiFreqOccupation_t& record);

// uplink
std::string meant(const RrcUlCfg_t& record);
std::string meant(const RrcBwpUl_t& record);
std::string meant(const RrcBwpUlDedi_t& record);
std::string meant(const RrcBeamFailRecoveryCfg_t& record);

// pucch
std::string meant(const RrcPucchCfg_t& record);

// pusch
std::string meant(const RrcPuschCfg_t& record);
std::string meant(const RrcPuschTimeDomainResourceAllocList_t& record);
std::string meant(const RrcDmrsUlCfg_t& record);
std::string meant(const RrcCfgGrantCfg_t& record);

// srs
std::string meant(const RrcSrsCfg_t& record);

// servingCellLevel
std::string meant(const RrcPuschServingCellCfg_t& record);
std::string meant(const RrcSrsCarrierSwitching_t& record);
std::string meant(const RrcPdcchServingCellCfg_t& record);
std::string meant(const RrcPdschServingCellCfg_t& record);

// csiMeas
std::string meant(const RrcCsiMeasCfg_t& record);

// csiReport
std::string meant(const RrcCsiReportCfg_t& record);

// codebook
std::string meant(const RrcCodebookCfg_t& record);

} // namespace records

#endif
