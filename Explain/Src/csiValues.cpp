// CSI-RS, CSI-IM and reports.
#include "teller.h"

namespace rules::explain
{
namespace
{

const char* cdmName(NrCdm cdm)
{
    static constexpr const char* names[] = {"no CDM", "FD-CDM2", "CDM4 (FD2, TD2)", "CDM8 (FD2, TD4)"};
    return names[cdm];
}

const char* densityName(const CSI_RS_ResourceMapping& mapping)
{
    if (mapping.density.t == NR_CSI_RS_HALF)
    {
        return mapping.density.u.dot5 == CSI_RS_ResourceMapping_density_dot5_evenPRBs ? "0.5 (even PRBs)"
                                                                                      : "0.5 (odd PRBs)";
    }
    return mapping.density.t == NR_CSI_RS_THREE ? "3" : "1";
}

// The bits as the first subcarriers of their CDM groups; they are counted from the last bit.
void appendSubcarriers(Teller& t, NrCsiRsBranch branch)
{
    const OSUINT32 step = branch == NR_CSI_RS_ROW4 ? 4 : branch == NR_CSI_RS_OTHER ? 2 : 1;
    OSUINT32 subcarriers[12];
    OSUINT32 count = 0;
    for (OSUINT32 i = 0; i < t.bits() && count < std::size(subcarriers); ++i)
    {
        if (t.isSet(t.bits() - 1 - i))
        {
            subcarriers[count++] = step * i;
        }
    }
    rtx::append(t.formula(), "k = ");
    appendRuns(t.formula(), {subcarriers, count});
    rtx::append(t.formula(), ": %u * the number of each bit that is set, the last bit is number 0", step);
}

void csiRsAllocation(Teller& t)
{
    if (t.scope.mapping == nullptr)
    {
        return;
    }
    const CSI_RS_ResourceMapping& mapping = *t.scope.mapping;
    const NrCsiRsRow* const row = csiRsRow(t.tree, mapping);
    if (row == nullptr)
    {
        rtx::append(t.text(), "no row of the table has these bits, ports, CDM type and density");
        return;
    }
    rtx::append(t.text(), "row %u: %u port%s, density %s, %s, ", row->row, row->ports, rtx::plural(row->ports),
                densityName(mapping), cdmName(row->cdm));
    appendSpan(t.text(), "symbol", {mapping.firstOFDMSymbolInTimeDomain, row->symbols});
    if (row->secondSymbols != 0 && mapping.m.firstOFDMSymbolInTimeDomain2Present != 0)
    {
        rtx::append(t.text(), " and ");
        appendSpan(t.text(), "symbol", {mapping.firstOFDMSymbolInTimeDomain2, row->secondSymbols});
    }
    appendSubcarriers(t, row->branch);
}

void occupation(Teller& t, const CSI_FrequencyOccupation& band)
{
    appendSpan(t.text(), "common resource block", {t.natural(), band.nrofRBs});
    if (t.scope.bwp == nullptr)
    {
        return;
    }
    if (const Known<NrSpan> left = csiBand(t.model, *t.scope.bwp, band);
        t.has(left, "the bandwidth part's first common resource block"))
    {
        rtx::append(t.text(), left->size == 0 ? ", none of them in the bandwidth part" : ", in the bandwidth part ");
        left->size == 0 ? void() : appendSpan(t.text(), "common resource block", *left);
    }
}

void symbols0(Teller& t)
{
    rtx::append(t.text(), "symbols %u, %u", t.natural(), t.natural() + 1);
}

void symbols1(Teller& t)
{
    rtx::append(t.text(), "symbol %u", t.natural());
}

void subcarriersFrom(Teller& t, OSUINT32 count)
{
    appendSpan(t.text(), "subcarrier", {namedNumber(t.type.names[t.natural()]).number, count});
}

void subcarriers0(Teller& t)
{
    subcarriersFrom(t, 2);
}

void subcarriers1(Teller& t)
{
    subcarriersFrom(t, 4);
}

void reportingBand(Teller& t)
{
    OSUINT32 numbers[32];
    OSUINT32 count = 0;
    for (OSUINT32 i = 0; i < t.bits() && count < std::size(numbers); ++i)
    {
        if (t.isSet(t.bits() - 1 - i))
        {
            numbers[count++] = i;
        }
    }
    rtx::append(t.text(), "subbands ");
    count == 0 ? rtx::append(t.text(), "none") : appendRuns(t.text(), {numbers, count});
    rtx::append(t.text(), " (%u of %u)", count, t.bits());
    rtx::append(t.formula(), "the last bit is the subband of the lowest frequency");
}

void subbandSize(Teller& t)
{
    const Known<NrSpan> rbs =
        t.scope.measured == nullptr ? Known<NrSpan>::unless(RRC_RULE_INPUT_PREVIOUS) : t.scope.measured->rbs();
    if (!t.has(rbs, "the bandwidth part that is measured"))
    {
        return;
    }
    const OSUINT32 size = nrSubbandSize(rbs->size, t.natural() == CSI_ReportConfig_subbandSize_value2);
    if (size == 0)
    {
        rtx::append(t.text(), "no subbands in a bandwidth part of %u PRBs", rbs->size);
        return;
    }
    rtx::append(t.text(), "%u PRBs a subband", size);
    rtx::append(t.formula(), "the row of a bandwidth part of %u PRBs", rbs->size);
}

void triggeringOffset(Teller& t)
{
    static constexpr OSUINT32 offsets[] = {0, 1, 2, 3, 4, 16, 24};
    const OSUINT32 offset = meaning(offsets, t.natural());
    rtx::append(t.text(), "%u slot%s behind the slot of the DCI", offset, rtx::plural(offset));
}

constexpr const char* csiIm = "TS 38.214 5.2.2.4";

constexpr Meaning csiRows[] = {
    MEANING_EACH(CSI_RS_ResourceMapping_frequencyDomainAllocation, "TS 38.211 7.4.1.5.3", csiRsAllocation),
    MEANING_OF(CSI_FrequencyOccupation, startingRB, "TS 38.214 5.2.2.3.1", occupation),
    MEANING_AT(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern0, symbolLocation_p0, csiIm, symbols0),
    MEANING_AT(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1, symbolLocation_p1, csiIm, symbols1),
    MEANING_AT(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern0, subcarrierLocation_p0, csiIm, subcarriers0),
    MEANING_AT(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1, subcarrierLocation_p1, csiIm, subcarriers1),
    MEANING_EACH(CSI_ReportConfig_reportFreqConfiguration_csi_ReportingBand, "TS 38.214 5.2.1.4", reportingBand),
    MEANING_EACH(CSI_ReportConfig_subbandSize, "TS 38.214 table 5.2.1.4-2", subbandSize),
    MEANING_AT(NZP_CSI_RS_ResourceSet, aperiodicTriggeringOffset, "TS 38.214 5.2.1.5.1", triggeringOffset),
};

} // namespace

const Meanings csiMeanings = meaningsOf(csiRows);

} // namespace rules::explain
