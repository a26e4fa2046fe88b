// A serving cell's dedicated record with every member that it can have, each as short as can be, and what the
// independent decoder reads of it.
#ifndef SERVINGCELLRECORDS_H
#define SERVINGCELLRECORDS_H

#include <string>

#include "rrcCodec/rrcServingCell.h"
#include "support/Json.h"

namespace test
{

// The counts of the bandwidth parts and bitMask say what is asked for. No member takes memory from the heap but the
// bandwidth parts to add (a node each) and the configurations of PDCCH, PDSCH and CSI measurement (a setup each).
inline void fillServingCell(RrcServingCellCfg_t& record, unsigned bitMask, unsigned toRelease = 0, unsigned toAdd = 0)
{
    record.tagId = 3;
    record.bitMask = static_cast<UINT16>(bitMask);
    record.numDlBwpRel = static_cast<UINT8>(toRelease);
    record.numDlBwpAddMod = static_cast<UINT8>(toAdd);
    for (unsigned i = 0; i < RRC_MAX_NROF_BWPS; ++i)
    {
        record.dlBwpId[i] = static_cast<UINT8>(4 - i);
        record.dlBwp[i].bwpId = static_cast<UINT8>(1 + i);
    }
    record.firstActiveDlBwpId = 1;
    record.bwpInactiveTimer = 20;
    record.defaultDlBwpId = 2;
    record.ulCfg.bitMask = RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE;
    record.ulCfg.firstActiveUlBwpId = 3;
    record.suppUlCfg.bitMask = RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE;
    record.suppUlCfg.firstActiveUlBwpId = 4;
    record.pdschServingCellCfg.bitMask = RRC_PDSCH_SERVING_CELL_CFG_PUCCH_CELL_PRESENCE;
    record.pdschServingCellCfg.cellIdx = 31;
    record.csiMeasCfg.bitMask = RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE;
    record.csiMeasCfg.reportTriggerSize = 6;
    record.sCellDeativationTimer = 13;
    record.dummy = 0;
    record.pathLossRefLinking = 1;
    record.servingCellMo = 64;
}

// Bit 11 means nothing.
inline std::string servingCellJson(unsigned bitMask, unsigned toRelease = 0, unsigned toAdd = 0)
{
    const auto released = [](unsigned i)
    {
        return std::to_string(4 - i);
    };
    const auto added = [](unsigned i)
    {
        return "{\"bwp-Id\":" + std::to_string(1 + i) + "}";
    };
    const auto member = [bitMask](unsigned bit, const char* json)
    {
        return std::string((bitMask >> bit & 1) != 0 ? json : "");
    };
    return object(
        {member(0, R"("tdd-UL-DL-ConfigurationDedicated":{})"), member(1, R"("initialDownlinkBWP":{})"),
         toRelease != 0 ? "\"downlinkBWP-ToReleaseList\":" + array(toRelease, released) : "",
         toAdd != 0 ? "\"downlinkBWP-ToAddModList\":" + array(toAdd, added) : "",
         member(2, R"("firstActiveDownlinkBWP-Id":1)"), member(3, R"("bwp-InactivityTimer":"ms2560")"),
         member(4, R"("defaultDownlinkBWP-Id":2)"), member(5, R"("uplinkConfig":{"firstActiveUplinkBWP-Id":3})"),
         member(6, R"("supplementaryUplink":{"firstActiveUplinkBWP-Id":4})"),
         member(7, R"("pdcch-ServingCellConfig":{"setup":{}})"),
         member(8, R"("pdsch-ServingCellConfig":{"setup":{"pucch-Cell":31}})"),
         member(9, R"("csi-MeasConfig":{"setup":{"reportTriggerSize":6}})"),
         member(10, R"("sCellDeactivationTimer":"ms1280")"), R"("tag-Id":3)", member(12, R"("dummy":"enabled")"),
         member(13, R"("pathlossReferenceLinking":"sCell")"), member(14, R"("servingCellMO":64)")});
}

} // namespace test

#endif
