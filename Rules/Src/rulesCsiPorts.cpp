// CSI: the ports of reports without a PMI.
#include "csi.h"
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

// The ports of one rank: given, and none of them twice.
struct Ranks
{
    OSUINT32 given;
    bool repeats;

    void add(const OSUINT8* ports, OSUINT32 count)
    {
        if (ports == nullptr)
        {
            return;
        }
        ++given;
        OSUINT32 seen = 0;
        for (OSUINT32 i = 0; i < count; ++i)
        {
            const OSUINT32 bit = 1U << (ports[i] & 7);
            repeats = repeats || (seen & bit) != 0;
            seen |= bit;
        }
    }
    template <typename Array>
    void addAll(const Array* array)
    {
        add(array == nullptr ? nullptr : array->elem, static_cast<OSUINT32>(entries(array).size()));
    }
};

// For how many ports an indication is, and its ranks; no ports where it is broken.
OSUINT32 ranksOf(const Tree& tree, const PortIndexFor8Ranks& ports, Ranks& ranks)
{
    const auto* const of = &ports;
    if (const auto* const eight = CHOSEN(tree, of, PortIndexFor8Ranks, portIndex8))
    {
        ranks.add(MEMBER(*eight, rank1_8), 1);
        ranks.addAll(MEMBER(*eight, rank2_8));
        ranks.addAll(MEMBER(*eight, rank3_8));
        ranks.addAll(MEMBER(*eight, rank4_8));
        ranks.addAll(MEMBER(*eight, rank5_8));
        ranks.addAll(MEMBER(*eight, rank6_8));
        ranks.addAll(MEMBER(*eight, rank7_8));
        ranks.addAll(MEMBER(*eight, rank8_8));
        return 8;
    }
    if (const auto* const four = CHOSEN(tree, of, PortIndexFor8Ranks, portIndex4))
    {
        ranks.add(MEMBER(*four, rank1_4), 1);
        ranks.addAll(MEMBER(*four, rank2_4));
        ranks.addAll(MEMBER(*four, rank3_4));
        ranks.addAll(MEMBER(*four, rank4_4));
        return 4;
    }
    if (const auto* const two = CHOSEN(tree, of, PortIndexFor8Ranks, portIndex2))
    {
        ranks.add(MEMBER(*two, rank1_2), 1);
        ranks.addAll(MEMBER(*two, rank2_2));
        return 2;
    }
    ranks.given = 1;
    return ports.t == T_PortIndexFor8Ranks_portIndex1 ? 1 : 0;
}

// An indication is of the ports of its resource.
void judgePortIndex(Check& check, const PortIndexFor8Ranks& indication, const NZP_CSI_RS_Resource& resource)
{
    Ranks ranks{};
    const OSUINT32 ports = ranksOf(check.tree, indication, ranks);
    const OSUINT32 has = portsOf(resource.resourceMapping);
    if (ports == 0)
    {
        return;
    }
    if (ports != has)
    {
        check.error(&indication)
            .found("portIndex%u", ports)
            .allowed("NZP-CSI-RS-Resource %u has %u port%s", resource.nzp_CSI_RS_ResourceId, has, has == 1 ? "" : "s");
    }
    else if (ranks.given == 0)
    {
        check.error(&indication).found("no rank").allowed("one at least is reported");
    }
    else if (ranks.repeats)
    {
        check.error(&indication).found("a port twice in a rank").allowed("each layer has a port of its own");
    }
}

// The ports are indicated of what is reported without a PMI, for each resource.
void csiPortIndication(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   const auto* const table = MEMBER(report, cqi_Table);
                   const Bwp* const bwp = bwpOf(view.carrier, view.channel);
                   if (table != nullptr && *table == CSI_ReportConfig_cqi_Table_table2 && bwp != nullptr &&
                       bwp->pdsch != nullptr && hasCqi(report.reportQuantity) &&
                       !(bwp->pdsch->m.mcs_TablePresent != 0 && bwp->pdsch->mcs_Table == PDSCH_Config_mcs_Table_qam256))
                   {
                       check.warning(table).allowed("the PDSCH has no qam256");
                   }
                   const auto* const list = MEMBER(report, non_PMI_PortIndication);
                   if (list == nullptr)
                   {
                       return;
                   }
                   if (report.reportQuantity.t != T_CSI_ReportConfig_reportQuantity_cri_RI_CQI)
                   {
                       check.warning(list).allowed("it is for cri-RI-CQI alone");
                       return;
                   }
                   size_t named = 0;
                   Vector<const NZP_CSI_RS_Resource*> resources;
                   forNzpSets(check, view.csi, view.channel,
                              [&](const NZP_CSI_RS_ResourceSet& set)
                              {
                                  named += sizeOf(set);
                                  forResources(*view.csi, set,
                                               [&](const NZP_CSI_RS_Resource& resource, const auto&)
                                               { resources.add(check.model.memory, &resource); });
                              });
                   const auto indications = check.tree.list<PortIndexFor8Ranks>(list);
                   if (named == 0 || resources.size() != named)
                   {
                       return;
                   }
                   if (indications.size() != named)
                   {
                       check.error(list).allowed("the channel has %zu resource%s", named, named == 1 ? "" : "s");
                       return;
                   }
                   size_t i = 0;
                   for (const PortIndexFor8Ranks& indication : indications)
                   {
                       judgePortIndex(check, indication, *resources[std::min(i++, named - 1)]);
                   }
               });
}

constexpr Rule csiPortsTable[] = {
    {.told = {.id = "csi-port-indication",
              .severity = RRC_RULE_ERROR,
              .statement = "non-PMI-PortIndication is for cri-RI-CQI, with an entry for each resource that has its "
                           "number of ports and each port once in a rank; table2 is for a PDSCH with qam256.",
              .advice = "Choose portIndexN for nrofPorts of the resource.",
              .clause = "TS 38.331 CSI-ReportConfig, PortIndexFor8Ranks",
              .given = "",
              .bad = AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-CQI = null\n" AT_REPORT
                               "reportFreqConfiguration.pmi-FormatIndicator = absent\n" AT_REPORT
                               "codebookConfig = absent\n" AT_REPORT "non-PMI-PortIndication[0].portIndex2.rank1-2 = 0",
              .good =
                  AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-CQI = null\n" AT_REPORT
                            "reportFreqConfiguration.pmi-FormatIndicator = absent\n" AT_REPORT
                            "codebookConfig = absent\n" AT_REPORT "non-PMI-PortIndication[0].portIndex4.rank1-4 = 0",
              .since = "0.1.0"},
     .run = csiPortIndication},
};

} // namespace

constinit const RuleGroup csiPortRules = groupOf(csiPortsTable);

} // namespace rules
