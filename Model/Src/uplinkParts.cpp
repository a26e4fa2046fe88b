#include "uplinkParts.h"

namespace rules
{
namespace
{

// A choice of periods: its alternatives hold the offset, from 320 slots on in two octets.
template <typename Choice, size_t N>
Recurrence slotsOf(const Choice* choice, const OSUINT16 (&periods)[N])
{
    if (choice == nullptr || choice->t - 1 >= N || periods[choice->t - 1] == 0)
    {
        return {};
    }
    constexpr OSUINT32 firstWide = 320;
    const OSUINT32 period = periods[choice->t - 1];
    OSUINT8 narrow = 0;
    OSUINT16 wide = 0;
    std::memcpy(&narrow, &choice->u, sizeof narrow);
    std::memcpy(&wide, &choice->u, sizeof wide);
    return {period, period == 1 ? 0U : period >= firstWide ? OSUINT32{wide} : OSUINT32{narrow}};
}

} // namespace

bool pucchShapeOf(const Tree& tree, const PUCCH_Resource& resource, PucchShape& shape)
{
    const PUCCH_Resource_format* const format = &resource.format;
    const auto take = [&](OSUINT32 number, const auto* of, OSUINT32 rbs)
    {
        shape = {number, &of->startingSymbolIndex, &of->nrofSymbols, rbs};
        return true;
    };
    if (const PUCCH_format0* const f0 = CHOSEN(tree, format, PUCCH_Resource_format, format0))
    {
        return take(0, f0, 1);
    }
    if (const PUCCH_format1* const f1 = CHOSEN(tree, format, PUCCH_Resource_format, format1))
    {
        return take(1, f1, 1);
    }
    if (const PUCCH_format2* const f2 = CHOSEN(tree, format, PUCCH_Resource_format, format2))
    {
        return take(2, f2, f2->nrofPRBs);
    }
    if (const PUCCH_format3* const f3 = CHOSEN(tree, format, PUCCH_Resource_format, format3))
    {
        return take(3, f3, f3->nrofPRBs);
    }
    if (const PUCCH_format4* const f4 = CHOSEN(tree, format, PUCCH_Resource_format, format4))
    {
        return take(4, f4, 1);
    }
    return false;
}

NrSpan pucchSymbolsOf(const Tree& tree, const PUCCH_Resource* resource)
{
    PucchShape shape{};
    const bool isRead = resource != nullptr && pucchShapeOf(tree, *resource, shape);
    return isRead ? NrSpan{*shape.start, *shape.symbols} : NrSpan{};
}

PucchFormats pucchFormatsOf(const Tree& tree, const PUCCH_Config& pucch)
{
    return {{nullptr, tree.setup(MEMBER(pucch, format1)), tree.setup(MEMBER(pucch, format2)),
             tree.setup(MEMBER(pucch, format3)), tree.setup(MEMBER(pucch, format4))}};
}

const PUCCH_FormatConfig* repeatingFormat(const Tree& tree, const Bwp& bwp, OSUINT32 format)
{
    return format == 2 || format >= pucchFormats ? nullptr : pucchFormatsOf(tree, *bwp.pucch).of[format];
}

bool hopsBetweenSlots(const Tree& tree, const Bwp& bwp, OSUINT32 format)
{
    const PUCCH_FormatConfig* const config = repeatingFormat(tree, bwp, format);
    return config != nullptr && config->m.interslotFrequencyHoppingPresent != 0 && config->m.nrofSlotsPresent != 0;
}

SrPeriod srPeriodOf(const SchedulingRequestResourceConfig_periodicityAndOffset& choice, const Bwp& bwp)
{
    static constexpr OSUINT32 slots[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640};
    constexpr OSUINT32 firstOfSlots = T_SchedulingRequestResourceConfig_periodicityAndOffset_sl1;
    if (choice.t == T_SchedulingRequestResourceConfig_periodicityAndOffset_sym2)
    {
        return {2, 0};
    }
    if (choice.t == T_SchedulingRequestResourceConfig_periodicityAndOffset_sym6or7)
    {
        return {bwp.symbolsPerSlot() / 2, 0};
    }
    return {0, choice.t >= firstOfSlots && choice.t - firstOfSlots < std::size(slots) ? slots[choice.t - firstOfSlots]
                                                                                      : 0};
}

Recurrence recurrenceOf(const SchedulingRequestResourceConfig_periodicityAndOffset& choice)
{
    static constexpr OSUINT16 periods[] = {0, 0, 1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640};
    return slotsOf(&choice, periods);
}

Recurrence recurrenceOf(const CSI_ReportPeriodicityAndOffset& choice)
{
    static constexpr OSUINT16 periods[] = {4, 5, 8, 10, 16, 20, 40, 80, 160, 320};
    return slotsOf(&choice, periods);
}

OSUINT32 portsOf(const SRS_Resource& resource)
{
    return resource.nrofSRS_Ports <= SRS_Resource_nrofSRS_Ports_ports4 ? 1U << resource.nrofSRS_Ports : 0;
}

Recurrence recurrenceOf(const Tree& tree, const SRS_Resource& resource)
{
    static constexpr OSUINT16 periods[] = {1, 2, 4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 160, 320, 640, 1280, 2560};
    const auto* const type = &resource.resourceType;
    const SRS_PeriodicityAndOffset* choice = nullptr;
    if (const auto* const some = CHOSEN(tree, type, SRS_Resource_resourceType, semi_persistent))
    {
        choice = &some->periodicityAndOffset_sp;
    }
    if (const auto* const some = CHOSEN(tree, type, SRS_Resource_resourceType, periodic))
    {
        choice = &some->periodicityAndOffset_p;
    }
    if (choice == nullptr || choice->t < T_SRS_PeriodicityAndOffset_sl1 ||
        choice->t > T_SRS_PeriodicityAndOffset_sl2560)
    {
        return {};
    }
    const OSUINT32 offset = choice->t == T_SRS_PeriodicityAndOffset_sl1    ? 0
                            : choice->t < T_SRS_PeriodicityAndOffset_sl320 ? choice->u.sl160
                                                                           : choice->u.sl2560;
    return {periods[choice->t - 1], offset};
}

OSUINT32 grantPeriod(const ConfiguredGrantConfig& grant)
{
    static constexpr OSUINT32 slots[] = {1,  2,   4,   5,   8,   10,  16,  20,   32,   40,   64,
                                         80, 128, 160, 256, 320, 512, 640, 1024, 1280, 2560, 5120};
    static constexpr OSUINT32 extendedSlots[] = {1,  2,  4,   5,   8,   10,  16,  20,  32,   40,
                                                 64, 80, 128, 160, 256, 320, 512, 640, 1280, 2560};
    const OSUINT32 value = grant.periodicity;
    if (value < ConfiguredGrantConfig_periodicity_sym1x14)
    {
        return value == ConfiguredGrantConfig_periodicity_sym2 ? 2 : 7;
    }
    if (value < ConfiguredGrantConfig_periodicity_sym6)
    {
        return slots[value - ConfiguredGrantConfig_periodicity_sym1x14] * NR_SYMBOLS;
    }
    if (value == ConfiguredGrantConfig_periodicity_sym6)
    {
        return 6;
    }
    return value <= ConfiguredGrantConfig_periodicity_sym2560x12
               ? extendedSlots[value - ConfiguredGrantConfig_periodicity_sym1x12] * NR_SYMBOLS_EXTENDED
               : 0;
}

List<PUCCH_CSI_Resource> csiResourcesOf(const Tree& tree, const CSI_ReportConfig& report)
{
    const CSI_ReportConfig_reportConfigType* const type = &report.reportConfigType;
    if (const auto* const periodic = CHOSEN(tree, type, CSI_ReportConfig_reportConfigType, periodic))
    {
        return tree.list<PUCCH_CSI_Resource>(&periodic->pucch_CSI_ResourceList);
    }
    const auto* const persistent = CHOSEN(tree, type, CSI_ReportConfig_reportConfigType, semiPersistentOnPUCCH);
    return tree.list<PUCCH_CSI_Resource>(persistent == nullptr ? nullptr : &persistent->pucch_CSI_ResourceList);
}

Bwp* pucchBwp(const Cell& cell, OSUINT32 id)
{
    for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
    {
        Bwp* const bwp = cell.bwp(direction, id);
        if (bwp != nullptr && bwp->pucch != nullptr)
        {
            return bwp;
        }
    }
    return nullptr;
}

const PDSCH_ServingCellConfig* servingConfig(const Tree& tree, const Cell& cell)
{
    return cell.dedicated == nullptr ? nullptr : tree.setup(MEMBER(*cell.dedicated, pdsch_ServingCellConfig));
}

Cell* pucchCellOf(Model& model, const Cell& cell)
{
    const PDSCH_ServingCellConfig* const serving = servingConfig(model.tree, cell);
    const ServCellIndex* const named = serving == nullptr ? nullptr : MEMBER(*serving, pucch_Cell);
    return named == nullptr ? model.spCell() : model.cell(*named);
}

Known<NrSpan> grantSymbols(const Model& model, const Bwp& bwp, OSUINT32 number)
{
    const Known<PuschRows> rows = puschRows(model, bwp);
    NrSpan symbols{};
    OSUINT32 k2 = 0;
    if (rows && rows->isDefault)
    {
        const int isThere =
            bwp.mu() ? nrPuschDefaultRow(*bwp.mu(), bwp.isExtended() ? 1 : 0, number, &k2, &symbols) : 0;
        return isThere != 0 ? Known<NrSpan>(symbols) : Known<NrSpan>::unless(0);
    }
    if (rows)
    {
        for (const PUSCH_TimeDomainResourceAllocation& row : rows->rows)
        {
            if (number-- == 0)
            {
                return nrSlivDecode(row.startSymbolAndLength, &symbols) != 0 ? Known<NrSpan>(symbols)
                                                                             : Known<NrSpan>::unless(0);
            }
        }
    }
    return Known<NrSpan>::unless(rows.inputs());
}

} // namespace rules
