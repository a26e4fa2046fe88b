// Records of the examples' kind for messages of any size.
#ifndef GROWN_H
#define GROWN_H

#include <cstddef>

#include "secondaryCells.h"

namespace bench
{

// Adds the next entry of a list as a copy of an earlier one, in turn of the first `of`, whose id becomes its place from
// `base` on. Returns whether there was room for it.
template <typename Count, typename Entry, std::size_t room, typename Id>
bool addCopy(Count& count, Entry (&entries)[room], Id Entry::*id, unsigned of, unsigned base)
{
    if (count < of || count == room)
    {
        return false;
    }
    entries[count] = entries[count % of];
    entries[count].*id = static_cast<Id>(base + count);
    ++count;
    return true;
}

// One more of each that a serving cell may have many of.
inline bool growCell(RrcServingCellCfg_t& cell)
{
    RrcCsiMeasCfg_t& csi = cell.csiMeasCfg;
    bool grown = addCopy(cell.numDlBwpAddMod, cell.dlBwp, &RrcBwpDl_t::bwpId, 1, workingBwp);
    if ((cell.bitMask & RRC_SERVING_CELL_UL_CFG_PRESENCE) != 0)
    {
        grown |= addCopy(cell.ulCfg.numUlBwpAddMod, cell.ulCfg.ulBwpAddMod, &RrcBwpUl_t::bwpId, 1, workingBwp);
    }
    grown |= addCopy(csi.numCsiReportCfgAddMod, csi.csiReportCfg, &RrcCsiReportCfg_t::csiReportCfgId, 2, 0);
    grown |= addCopy(csi.numNzpCsiRsResourceAddMod, csi.NzpCsiRsResourceAddMod,
                     &RrcNzpCsiRsResource_t::nzpCsiRsResourceId, 4, 0);
    grown |= addCopy(csi.numCsiResourceCfgAddMod, csi.csiResourceCfg, &RrcCsiResourceCfg_t::csiResourceCfgId, 5, 0);
    return grown;
}

// Makes the message of a record of oneBearer or secondaryCells a little longer. Returns whether that was possible.
inline bool grow(RrcCellGroupCfg_t& record)
{
    if ((record.bitMask & RRC_CELLGROUPCFG_SPCELL_PRESENCE) == 0)
    {
        return addCopy(record.rlcBearerAddModNum, record.rlcBearerCfg, &RrcRlcBearerCfg_t::lchId, 1, 4);
    }
    bool grown = growCell(record.spCellCfg.spCellDedicated);
    for (unsigned i = 0; i < record.sCellAddModNum; ++i)
    {
        grown |= growCell(record.sCellAddMod[i].sCellCfgDedi);
    }
    return grown;
}

} // namespace bench

#endif
