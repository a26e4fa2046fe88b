#include "recordRules.h"

#include <cstring>

#include "generalRules.h"

namespace rowRules
{

namespace
{

constexpr const char* theCellGroup = "The cell group, and what holds everywhere (`RrcCellGroupCfg_t`)";
constexpr const char* rlcBearers = "RLC bearers (`RrcRlcBearerCfg_t`)";
constexpr const char* mac = "MAC (`RrcMacCellGrpCfg_t`)";
constexpr const char* physicalCellGroup = "Physical cell group (`RrcPhyCellGrpCfg_t`)";
constexpr const char* specialCell = "Special cell (`RrcSpCellCfg_t`)";
constexpr const char* servingCellCommon =
    "Serving cell common, of the special cell and of SCells (`RrcServingCellCfgCommon_t`)";
constexpr const char* dedicatedRandomAccess = "Dedicated random access (`RrcRachCfgDedi_t`)";
constexpr const char* sCells = "SCells (`RrcScellCfg_t`)";
constexpr const char* dedicatedServingCell =
    "Dedicated serving cell, of the special cell and of SCells (`RrcServingCellCfg_t`)";
constexpr const char* dedicatedTddPattern = "Dedicated TDD pattern (`RrcTddUlDlCfgDedi_t`)";
constexpr const char* pdcch = "PDCCH (`RrcPdcchCfg_t`)";
constexpr const char* pdsch = "PDSCH, SPS and radio link monitoring (`RrcPdschCfg_t`, `RrcSpsCfg_t`, `RrcRlmCfg_t`)";
constexpr const char* furtherDownlinkBwps = "Further downlink bandwidth parts (`RrcBwpDl_t`)";
constexpr const char* uplink = "Uplink, normal and supplementary (`RrcUlCfg_t`)";
constexpr const char* pucch = "PUCCH (`RrcPucchCfg_t`)";
constexpr const char* pusch = "PUSCH and configured grant (`RrcPuschCfg_t`, `RrcCfgGrantCfg_t`)";
constexpr const char* srs = "SRS (`RrcSrsCfg_t`)";
constexpr const char* furtherUplinkBwps =
    "Beam failure recovery and further uplink bandwidth parts (`RrcBeamFailRecoveryCfg_t`, `RrcBwpUl_t`)";
constexpr const char* servingCellLevel = "Serving cell level (`RrcPuschServingCellCfg_t`, `RrcSrsCarrierSwitching_t`, "
                                         "`RrcPdcchServingCellCfg_t`, `RrcPdschServingCellCfg_t`)";
constexpr const char* csiResources = "CSI resources (`RrcNzpCsiRsResource_t`, `RrcNzpCsiRsResourceSet_t`, "
                                     "`RrcCsiImResource_t`, `RrcCsiSsbResourceSet_t`, `RrcCsiResourceCfg_t`)";
constexpr const char* csiReports = "CSI reports (`RrcCsiReportCfg_t`)";
constexpr const char* codebooks = "Codebooks (`RrcCodebookCfg_t`)";
constexpr const char* csiMeasurement = "CSI measurement and trigger states (`RrcCsiMeasCfg_t`)";

// Null where a row names nothing.
constexpr const char* const* named(const char* const* places)
{
    return places[0] == nullptr ? nullptr : places;
}

#define RECORD_ROW(variable, id, severity, region, field, goesOut, instead, ...)                                       \
    constexpr const char* const variable##Places[] = {__VA_ARGS__ __VA_OPT__(, ) nullptr};
#include "recordRows.h"
#undef RECORD_ROW

} // namespace

#define RECORD_ROW(variable, id, severity, region, field, goesOut, instead, ...)                                       \
    const RrcRecordRule variable = {id, region, field, goesOut, instead, named(variable##Places), severity};
#include "recordRows.h"
#undef RECORD_ROW

} // namespace rowRules

const RrcRecordRule* const rrcRecordRules[] = {
#define RECORD_GENERAL_RULE(variable) &generalRules::variable,
    RECORD_GENERAL_RULES(RECORD_GENERAL_RULE)
#undef RECORD_GENERAL_RULE
#define RECORD_ROW(variable, ...) &rowRules::variable,
#include "recordRows.h"
#undef RECORD_ROW
};

const OSUINT32 rrcRecordRuleCount = sizeof rrcRecordRules / sizeof *rrcRecordRules;

const RrcRecordRule* rrcRecordRuleById(const char* id)
{
    for (const RrcRecordRule* const rule : rrcRecordRules)
    {
        if (id != nullptr && std::strcmp(rule->id, id) == 0)
        {
            return rule;
        }
    }
    return nullptr;
}
