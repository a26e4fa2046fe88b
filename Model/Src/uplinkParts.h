// What the elements of an uplink say: PUCCH, sounding, configured grants, and when they come back.
#ifndef MODEL_UPLINKPARTS_H
#define MODEL_UPLINKPARTS_H

#include "modelLists.h"

namespace rules
{

// The first and the number of symbols of a resource, and what else all formats have.
struct PucchShape
{
    OSUINT32 format; // 0..4
    const OSUINT8* start;
    const OSUINT8* symbols;
    OSUINT32 rbs;
};

// False where the format cannot be read.
bool pucchShapeOf(const Tree& tree, const PUCCH_Resource& resource, PucchShape& shape);
// The symbols of a resource; none where it is null or broken.
NrSpan pucchSymbolsOf(const Tree& tree, const PUCCH_Resource* resource);

constexpr OSUINT32 pucchFormats = 5;

struct PucchFormats
{
    const PUCCH_FormatConfig* of[pucchFormats]; // null where not set up; none of format 0
};

PucchFormats pucchFormatsOf(const Tree& tree, const PUCCH_Config& pucch);

// Of a format that can be repeated in further slots; null where that is not set up.
const PUCCH_FormatConfig* repeatingFormat(const Tree& tree, const Bwp& bwp, OSUINT32 format);
bool hopsBetweenSlots(const Tree& tree, const Bwp& bwp, OSUINT32 format);

// The alternatives of periodicityAndOffset: symbols below a slot, else slots.
struct SrPeriod
{
    OSUINT32 symbols;
    OSUINT32 slots;
};

SrPeriod srPeriodOf(const SchedulingRequestResourceConfig_periodicityAndOffset& choice, const Bwp& bwp);

// When they come back, in slots; period 0 where that is below a slot, or there is no value.
Recurrence recurrenceOf(const SchedulingRequestResourceConfig_periodicityAndOffset& choice);
Recurrence recurrenceOf(const CSI_ReportPeriodicityAndOffset& choice);
// Period 0 where the resource is aperiodic, or the tree broken.
Recurrence recurrenceOf(const Tree& tree, const SRS_Resource& resource);

// Antenna ports; 0 where the tree is broken.
OSUINT32 portsOf(const SRS_Resource& resource);

// The PUCCH-CSI-Resources of a report; none where it is not on PUCCH.
List<PUCCH_CSI_Resource> csiResourcesOf(const Tree& tree, const CSI_ReportConfig& report);

// The bandwidth part of an id that has a PUCCH, on either uplink.
Bwp* pucchBwp(const Cell& cell, OSUINT32 id);

const PDSCH_ServingCellConfig* servingConfig(const Tree& tree, const Cell& cell);

// The cell that carries the PUCCH of this one (pucch-Cell); null where it is not in the element.
Cell* pucchCellOf(Model& model, const Cell& cell);

// Of ConfiguredGrantConfig.periodicity, in symbols; 0 for a value that is none.
OSUINT32 grantPeriod(const ConfiguredGrantConfig& grant);

// The symbols of the row that a configured grant names, in the table in force.
Known<NrSpan> grantSymbols(const Model& model, const Bwp& bwp, OSUINT32 number);

} // namespace rules

#endif
