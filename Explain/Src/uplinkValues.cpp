// PUCCH resources and sounding.
#include "teller.h"

namespace rules::explain
{
namespace
{

// Resource blocks of a resource: formats 0, 1 and 4 have one.
OSUINT32 rbsOf(const Tree& tree, const PUCCH_Resource& resource)
{
    const auto* const choice = &resource.format;
    const auto* const two = CHOSEN(tree, choice, PUCCH_Resource_format, format2);
    const auto* const three = CHOSEN(tree, choice, PUCCH_Resource_format, format3);
    return two != nullptr ? two->nrofPRBs : three != nullptr ? three->nrofPRBs : 1;
}

void startingPrb(Teller& t, const PUCCH_Resource& resource)
{
    appendSpan(t.text(), "PRB", {t.natural(), rbsOf(t.tree, resource)});
    rtx::append(t.text(), " of the bandwidth part%s",
                resource.m.intraSlotFrequencyHoppingPresent != 0 ? ", before the hop" : "");
}

void secondHopPrb(Teller& t, const PUCCH_Resource& resource)
{
    if (resource.m.intraSlotFrequencyHoppingPresent == 0)
    {
        rtx::append(t.text(), "not used without intraSlotFrequencyHopping");
        return;
    }
    appendSpan(t.text(), "PRB", {t.natural(), rbsOf(t.tree, resource)});
    rtx::append(t.text(), " of the bandwidth part, behind the hop");
}

template <typename Format>
void pucchSymbols(Teller& t, const Format& format)
{
    appendSpan(t.text(), "symbol", {t.natural(), format.nrofSymbols});
    if (t.natural() + format.nrofSymbols > t.scope.symbols())
    {
        rtx::append(t.text(), ", beyond the slot's last");
    }
}

void shortPayload(Teller& t, OSUINT32 number)
{
    rtx::append(t.text(), "format %u on %u symbol%s: 1 or 2 bits", number, t.natural(), rtx::plural(t.number()));
}

void format0(Teller& t)
{
    shortPayload(t, 0);
}

void format1(Teller& t)
{
    shortPayload(t, 1);
}

// What the format's configuration says, where it is there.
const PUCCH_FormatConfig* formatConfig(const Teller& t, OSUINT32 number)
{
    const PUCCH_Config* const config = t.scope.bwp == nullptr ? nullptr : t.scope.bwp->pucch;
    if (config == nullptr)
    {
        return nullptr;
    }
    return number == 2   ? t.tree.setup(MEMBER(*config, format2))
           : number == 3 ? t.tree.setup(MEMBER(*config, format3))
                         : t.tree.setup(MEMBER(*config, format4));
}

// Formats 2 to 4: more than 2 bits; how many follows from the code rate. `occ` is 1 but for format 4.
void longPayload(Teller& t, OSUINT32 number, OSUINT32 rbs, OSUINT32 occ)
{
    rtx::append(t.text(), "format %u on %u symbol%s: more than 2 bits", number, t.natural(), rtx::plural(t.number()));
    const PUCCH_FormatConfig* const config = formatConfig(t, number);
    const OSUINT32 rate = config != nullptr && config->m.maxCodeRatePresent != 0 ? pucchRate(config->maxCodeRate) : 0;
    if (rate == 0)
    {
        t.needs("maxCodeRate of the format", config == nullptr ? OSUINT32{RRC_RULE_INPUT_PREVIOUS} : 0);
        return;
    }
    const bool isHopping = t.scope.pucch != nullptr && t.scope.pucch->m.intraSlotFrequencyHoppingPresent != 0;
    const OSUINT32 dmrs =
        number == 2 ? 0
                    : nrPucchDmrsSymbols(t.natural(), isHopping ? 1 : 0, config->m.additionalDMRSPresent != 0 ? 1 : 0);
    const OSUINT32 elements = nrPucchElements(number, rbs, t.natural(), dmrs, occ);
    const OSUINT32 qm = number != 2 && config->m.pi2BPSKPresent != 0 ? 1 : 2;
    rtx::append(t.text(), ", at most %u with their CRC", nrPucchBits(elements, qm, rate));
    rtx::append(t.formula(), "%u resource elements without DM-RS * %u bits * code rate ", elements, qm);
    appendDecimal(t.formula(), rate, 2);
}

void format2(Teller& t, const PUCCH_format2& format)
{
    longPayload(t, 2, format.nrofPRBs, 1);
}

void format3(Teller& t, const PUCCH_format3& format)
{
    longPayload(t, 3, format.nrofPRBs, 1);
}

void format4(Teller& t, const PUCCH_format4& format)
{
    longPayload(t, 4, 1, format.occ_Length == PUCCH_format4_occ_Length_n4 ? 4 : 2);
}

void timeDomainOcc(Teller& t, const PUCCH_format1& format)
{
    const bool isHopping = t.scope.pucch != nullptr && t.scope.pucch->m.intraSlotFrequencyHoppingPresent != 0;
    rtx::append(t.text(), "sequence %u of 0..%d", t.natural(),
                static_cast<int>(nrPucchF1Sequences(format.nrofSymbols, isHopping ? 1 : 0)) - 1);
}

void maxPayload(Teller& t)
{
    rtx::append(t.text(), "up to %u bits of UCI", t.natural() + 1);
}

void slotsToAck(Teller& t)
{
    rtx::append(t.text(), "HARQ-ACK %u slot%s behind the PDSCH's", t.natural(), rtx::plural(t.number()));
}

void cSrs(Teller& t)
{
    rtx::append(t.text(), "m_SRS for b-SRS 0..3: ");
    for (OSUINT32 b = 0; b < 4; ++b)
    {
        rtx::append(t.text(), "%s%u", b == 0 ? "" : ", ", nrSrsBandwidth(t.natural(), b));
    }
    rtx::append(t.text(), " PRBs");
    rtx::append(t.formula(), "row C_SRS = %u", t.natural());
}

void bSrs(Teller& t, const SRS_Resource_freqHopping& hopping)
{
    const OSUINT32 rbs = nrSrsBandwidth(hopping.c_SRS, t.natural());
    const OSUINT32 parts = nrSrsParts(hopping.c_SRS, t.natural());
    rtx::append(t.text(), "%u PRBs at a time", rbs);
    if (parts > 1)
    {
        rtx::append(t.text(), ", one of %u parts", parts);
    }
    rtx::append(t.formula(), "row C_SRS = %u, column B_SRS = %u", OSUINT32{hopping.c_SRS}, t.natural());
}

void bHop(Teller& t, const SRS_Resource_freqHopping& hopping)
{
    const bool hops = t.natural() < hopping.b_SRS;
    rtx::append(t.text(), hops ? "hops over %u PRBs" : "no hopping", nrSrsBandwidth(hopping.c_SRS, t.natural()));
    rtx::append(t.formula(), "hops where b-hop < b-SRS");
}

void srsPosition(Teller& t, const SRS_Resource& resource)
{
    const SRS_Resource_freqHopping& hopping = resource.freqHopping;
    const NrSpan span = nrSrsSpan(hopping.c_SRS, hopping.b_SRS, hopping.b_hop, t.natural());
    if (span.size != 0)
    {
        appendSpan(t.text(), "PRB", {resource.freqDomainShift + span.start, span.size});
        rtx::append(t.formula(), "%u from freqDomainShift on, by n_RRC = %u; freqDomainShift %u", span.start,
                    t.natural(), OSUINT32{resource.freqDomainShift});
    }
}

void srsSymbols(Teller& t, const SRS_Resource_resourceMapping& mapping)
{
    static constexpr OSUINT32 numbers[] = {1, 2, 4};
    const OSUINT32 size = meaning(numbers, mapping.nrofSymbols);
    const OSUINT32 slot = t.scope.symbols();
    if (size == 0 || size > t.natural() + 1)
    {
        return;
    }
    appendSpan(t.text(), "symbol", {slot - 1 - t.natural(), size});
    rtx::append(t.formula(), "l_0 = %u - 1 - %u", slot, t.natural());
}

constexpr const char* pucchResource = "TS 38.213 9.2.1, TS 38.331 PUCCH-Config";
constexpr const char* pucchPayload = "TS 38.211 table 6.3.2.1-1, TS 38.213 9.2.5.2";
constexpr const char* srsClause = "TS 38.211 6.4.1.4.3";

constexpr Meaning uplinkRows[] = {
    MEANING_OF(PUCCH_Resource, startingPRB, pucchResource, startingPrb),
    MEANING_OF(PUCCH_Resource, secondHopPRB, pucchResource, secondHopPrb),
    MEANING_OF(PUCCH_format0, startingSymbolIndex, pucchResource, pucchSymbols<PUCCH_format0>),
    MEANING_OF(PUCCH_format1, startingSymbolIndex, pucchResource, pucchSymbols<PUCCH_format1>),
    MEANING_OF(PUCCH_format2, startingSymbolIndex, pucchResource, pucchSymbols<PUCCH_format2>),
    MEANING_OF(PUCCH_format3, startingSymbolIndex, pucchResource, pucchSymbols<PUCCH_format3>),
    MEANING_OF(PUCCH_format4, startingSymbolIndex, pucchResource, pucchSymbols<PUCCH_format4>),
    MEANING_AT(PUCCH_format0, nrofSymbols, pucchPayload, format0),
    MEANING_AT(PUCCH_format1, nrofSymbols, pucchPayload, format1),
    MEANING_OF(PUCCH_format2, nrofSymbols, pucchPayload, format2),
    MEANING_OF(PUCCH_format3, nrofSymbols, pucchPayload, format3),
    MEANING_OF(PUCCH_format4, nrofSymbols, pucchPayload, format4),
    MEANING_OF(PUCCH_format1, timeDomainOCC, "TS 38.211 table 6.3.2.4.1-1", timeDomainOcc),
    MEANING_AT(PUCCH_ResourceSet, maxPayloadMinus1, "TS 38.213 9.2.1", maxPayload),
    MEANING_EACH(PUCCH_Config_dl_DataToUL_ACK, "TS 38.213 9.2.3", slotsToAck),
    MEANING_AT(SRS_Resource_freqHopping, c_SRS, srsClause, cSrs),
    MEANING_OF(SRS_Resource_freqHopping, b_SRS, srsClause, bSrs),
    MEANING_OF(SRS_Resource_freqHopping, b_hop, srsClause, bHop),
    MEANING_OF(SRS_Resource, freqDomainPosition, srsClause, srsPosition),
    MEANING_OF(SRS_Resource_resourceMapping, startPosition, "TS 38.211 6.4.1.4.1", srsSymbols),
};

} // namespace

const Meanings uplinkMeanings = meaningsOf(uplinkRows);

} // namespace rules::explain
