// The records that the rows fill, from the cell group down to where several files of rows begin.
#ifndef PLACES_H
#define PLACES_H

#include "behaviour.h"

namespace behaviour
{

inline const Place<RrcCellGroupCfg_t> cellGroup{fresh<RrcCellGroupCfg_t>, "@"};

inline const auto spCell = within(cellGroup, R"({"cellGroupId":0,"spCellConfig":@})",
                                  [](auto& group)
                                  {
                                      group.bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
                                      return &fresh(group.spCellCfg);
                                  });

inline const auto sync = within(spCell, R"({"reconfigurationWithSync":@})",
                                [](auto& cell)
                                {
                                    cell.bitMask = RRC_SPCELLCFG_RECFG_PRESENCE;
                                    return &fresh(cell.recfgWithSync);
                                });

inline const auto common = within(sync, R"({"spCellConfigCommon":@,"newUE-Identity":0,"t304":"ms50"})",
                                  [](auto& with)
                                  {
                                      with.bitMask = RRC_SERVING_CELL_CFG_COMMON_PRESENCE;
                                      return &fresh(with.spCellConfigCommon);
                                  });

inline const auto dedicated = within(spCell, R"({"spCellConfigDedicated":@})",
                                     [](auto& cell)
                                     {
                                         cell.bitMask = RRC_SPCELLCFG_DEDICFG_PRESENCE;
                                         return &fresh(cell.spCellDedicated);
                                     });

// The dedicated part of the initial downlink bandwidth part.
inline const auto downlink = within(dedicated, R"({"initialDownlinkBWP":@,"tag-Id":0})",
                                    [](auto& cell)
                                    {
                                        cell.bitMask = RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE;
                                        return &fresh(cell.initDlBwp);
                                    });

// One further downlink bandwidth part.
inline const auto furtherDownlink = within(dedicated, R"({"downlinkBWP-ToAddModList":[@],"tag-Id":0})",
                                           [](auto& cell)
                                           {
                                               cell.numDlBwpAddMod = 1;
                                               return &fresh(cell.dlBwp[0]);
                                           });

inline const auto uplink = within(dedicated, R"({"uplinkConfig":@,"tag-Id":0})",
                                  [](auto& cell)
                                  {
                                      cell.bitMask = RRC_SERVING_CELL_UL_CFG_PRESENCE;
                                      return &fresh(cell.ulCfg);
                                  });

// The dedicated part of the initial uplink bandwidth part.
inline const auto initialUplink = within(uplink, R"({"initialUplinkBWP":@})",
                                         [](auto& config)
                                         {
                                             config.bitMask = RRC_UL_CFG_INIT_UL_BWP_PRESENCE;
                                             return &fresh(config.initialUplinkBWP);
                                         });

inline const auto pusch = within(initialUplink, R"({"pusch-Config":{"setup":@}})",
                                 [](auto& bwp)
                                 {
                                     bwp.bitMask = RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE;
                                     return &fresh(bwp.puschCfg);
                                 });

// Of the slot format indicator, one serving cell's combinations.
inline const auto slotFormats =
    within(dedicated,
           R"({"pdcch-ServingCellConfig":{"setup":{"slotFormatIndicator":{"setup":{"sfi-RNTI":0,"dci-PayloadSize":1,)"
           R"("slotFormatCombToAddModList":[@]}}}},"tag-Id":0})",
           [](auto& cell)
           {
               cell.bitMask = RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE;
               auto& pdcch = fresh(cell.pdcchServingCellCfg);
               pdcch.bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
               auto& indicator = fresh(pdcch.slotFormatInd);
               indicator.dciPayloadSize = 1;
               indicator.numSlotFormatCombAddMod = 1;
               return &fresh(indicator.slotFormatCombAddMod[0]);
           });

inline const auto csiMeas = within(dedicated, R"({"csi-MeasConfig":{"setup":@},"tag-Id":0})",
                                   [](auto& cell)
                                   {
                                       cell.bitMask = RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
                                       return &fresh(cell.csiMeasCfg);
                                   });

// A BIT STRING of this many bits, all 0.
inline std::string zeros(unsigned width)
{
    return '"' + std::string(width, '0') + '"';
}

// A valid mapping of CSI-RS, and its element.
inline void map(RrcCsiRsResourceMapping_t& mapping)
{
    mapping.presenceFreqDomain = RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE;
    mapping.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE;
    mapping.freqBand.nrofRBs = 24;
}

inline std::string mappingJson(const std::string& allocation = R"({"row1":"0000"})",
                               const std::string& density = R"({"one":null})")
{
    return R"({"frequencyDomainAllocation":)" + allocation +
           R"(,"nrofPorts":"p1","firstOFDMSymbolInTimeDomain":0,"cdm-Type":"noCDM","density":)" + density +
           R"(,"freqBand":{"startingRB":0,"nrofRBs":24}})";
}

} // namespace behaviour

#endif
