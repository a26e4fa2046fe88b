// Physical layer of the cell group, RNTIs.
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"

namespace rules
{
namespace
{

// The master cell group has the identity 0, the secondary one 1.
void phyCellGroupId(Check& check)
{
    const CellGroupConfig& message = check.model.message;
    const OSUINT8 group = check.model.known.group;
    const bool isMcg = group == RRC_RULE_GROUP_MCG;
    if (message.cellGroupId > 1)
    {
        check.error(&message.cellGroupId).allowed("a UE has cell groups 0 and 1");
    }
    else if (group != RRC_RULE_GROUP_UNKNOWN && message.cellGroupId != (isMcg ? 0 : 1))
    {
        check.error(&message.cellGroupId)
            .allowed("the %s cell group is %u", isMcg ? "master" : "secondary", isMcg ? 0U : 1U);
    }
}

// Calls `each(name, rnti)` for every RNTI of the configuration. Bandwidth parts and cells repeat theirs.
template <typename Each>
void forRntis(Check& check, const Each& each)
{
    const auto look = [&](const char* name, const RNTI_Value* rnti)
    {
        if (rnti != nullptr)
        {
            each(name, *rnti);
        }
    };
    const SpCellConfig* const spCell = MEMBER(check.model.config, spCellConfig);
    if (const auto* const sync = spCell == nullptr ? nullptr : MEMBER(*spCell, reconfigurationWithSync))
    {
        look("newUE-Identity", &sync->newUE_Identity);
    }
    if (const PhysicalCellGroupConfig* const phy = check.model.phy())
    {
        look("tpc-SRS-RNTI", MEMBER(*phy, tpc_SRS_RNTI));
        look("tpc-PUCCH-RNTI", MEMBER(*phy, tpc_PUCCH_RNTI));
        look("tpc-PUSCH-RNTI", MEMBER(*phy, tpc_PUSCH_RNTI));
        look("sp-CSI-RNTI", MEMBER(*phy, sp_CSI_RNTI));
        look("cs-RNTI", check.tree.setup(MEMBER(*phy, cs_RNTI)));
        look("mcs-C-RNTI", ADDITION(*phy, 2, mcs_C_RNTI));
    }
    for (const Cell& cell : check.model.cells())
    {
        for (const Bwp& bwp : cell.downlink)
        {
            const DownlinkPreemption* const preemption =
                bwp.pdcch == nullptr ? nullptr : check.tree.setup(MEMBER(*bwp.pdcch, downlinkPreemption));
            look("int-RNTI", preemption == nullptr ? nullptr : &preemption->int_RNTI);
        }
        const PDCCH_ServingCellConfig* const pdcch =
            cell.dedicated == nullptr ? nullptr : check.tree.setup(MEMBER(*cell.dedicated, pdcch_ServingCellConfig));
        const SlotFormatIndicator* const indicator =
            pdcch == nullptr ? nullptr : check.tree.setup(MEMBER(*pdcch, slotFormatIndicator));
        look("sfi-RNTI", indicator == nullptr ? nullptr : &indicator->sfi_RNTI);
    }
}

// An RNTI is none of the reserved values.
void phyRntiRange(Check& check)
{
    constexpr OSUINT32 last = 0xFFEF;      // TS 38.321 table 7.1-1
    constexpr OSUINT32 laterLast = 0xFFF2; // later releases use what is up to here
    forRntis(check,
             [&](const char*, const RNTI_Value& rnti)
             {
                 if (rnti == 0 || rnti > last)
                 {
                     const bool isLater = rnti > last && rnti <= laterLast;
                     check.missing(true, &rnti, isLater ? RRC_RULE_WARNING : RRC_RULE_ERROR)
                         .found("%u (0x%04X)", rnti, rnti)
                         .allowed("the RNTIs of a UE are 0x0001..0xFFEF");
                 }
             });
}

// The RNTIs of a UE are different from each other.
void phyRntiDistinct(Check& check)
{
    struct Seen
    {
        const char* name;
        OSUINT32 value;
    };
    Vector<Seen> seen;
    forRntis(check,
             [&](const char* name, const RNTI_Value& rnti)
             {
                 for (const Seen& other : seen)
                 {
                     if (other.value == rnti && other.name != name)
                     {
                         check.warning(&rnti).allowed("%s is the same", other.name);
                         return;
                     }
                 }
                 seen.add(check.model.memory, {name, rnti});
             });
}

// An error in a whole configuration, at the RNTI that is not there or at the configuration of the physical layer.
template <typename T>
Report missingRnti(Check& check, const T PhysicalCellGroupConfig::*rnti)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    return phy == nullptr ? check.missing(check.model.complete, &check.model.config.physicalCellGroupConfig)
                          : check.missing(check.model.complete, &(phy->*rnti));
}

// Semi-persistent CSI reports on PUSCH are activated with an RNTI of their own.
void phySpCsiRnti(Check& check)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    if (phy != nullptr && phy->m.sp_CSI_RNTIPresent != 0)
    {
        return;
    }
    for (Cell& cell : check.model.cells())
    {
        for (const IdEntry<CSI_ReportConfig>& report : check.model.csi(cell).reports)
        {
            if (report.element->reportConfigType.t == T_CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH)
            {
                missingRnti(check, &PhysicalCellGroupConfig::sp_CSI_RNTI)
                    .found("absent")
                    .allowed("report %u is semiPersistentOnPUSCH", report.id);
                return;
            }
        }
    }
}

// Configured scheduling is activated and retransmitted with an RNTI of its own.
void phyCsRnti(Check& check)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    const PhysicalCellGroupConfig_cs_RNTI* const rnti = phy == nullptr ? nullptr : MEMBER(*phy, cs_RNTI);
    if (check.tree.setup(rnti) != nullptr)
    {
        return;
    }
    for (const Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Downlink, Direction::Uplink, Direction::Supplementary})
        {
            for (const Bwp& bwp : cell.bwps(direction))
            {
                if (bwp.sps != nullptr || bwp.grant != nullptr)
                {
                    missingRnti(check, &PhysicalCellGroupConfig::cs_RNTI)
                        .found(rnti == nullptr ? "absent" : "release")
                        .allowed("bandwidth part %u has %s", bwp.id,
                                 bwp.sps != nullptr ? "sps-Config" : "configuredGrantConfig");
                    return;
                }
            }
        }
    }
}

// Power control of a group: the configuration of a bandwidth part, the RNTI and a search space come together.
struct TpcKind
{
    const char* name;
    const char* format;
    bool hasRnti;
};

bool monitors(const Tree& tree, const SearchSpace& space, bool is23)
{
    const SearchSpace_searchSpaceType* const type = MEMBER(space, searchSpaceType);
    const auto* const common = CHOSEN(tree, type, SearchSpace_searchSpaceType, common);
    return common != nullptr && (is23 ? common->m.dci_Format2_3Present != 0 : common->m.dci_Format2_2Present != 0);
}

void phyTpcRnti(Check& check)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    OSUINT32 used = 0; // bit i: a bandwidth part has the i-th configuration
    const TpcKind kinds[] = {
        {"tpc-PUSCH-RNTI", "2_2", phy != nullptr && phy->m.tpc_PUSCH_RNTIPresent != 0},
        {"tpc-PUCCH-RNTI", "2_2", phy != nullptr && phy->m.tpc_PUCCH_RNTIPresent != 0},
        {"tpc-SRS-RNTI", "2_3", phy != nullptr && phy->m.tpc_SRS_RNTIPresent != 0},
    };
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            if (bwp.pdcch == nullptr)
            {
                continue;
            }
            const Pdcch& pdcch = check.model.pdcch(bwp);
            const auto look = [&](OSUINT32 kind, const auto* setup)
            {
                if (check.tree.setup(setup) == nullptr)
                {
                    return;
                }
                used |= 1U << kind;
                if (!kinds[kind].hasRnti)
                {
                    check.missing(check.model.complete, setup)
                        .found("set up")
                        .allowed("%s is absent", kinds[kind].name);
                    return;
                }
                const bool isMonitored = std::any_of(pdcch.allSearchSpaces.begin(), pdcch.allSearchSpaces.end(),
                                                     [&](const SearchSpaceEntry& entry)
                                                     { return monitors(check.tree, *entry.element, kind == 2); });
                if (isMonitored)
                {
                    return;
                }
                if (!cell.complete || !pdcch.isCommonKnown)
                {
                    check.undecided(cell.complete ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
                    return;
                }
                check.warning(setup).found("set up").allowed(
                    "no search space of the bandwidth part is for DCI format %s", kinds[kind].format);
            };
            look(0, MEMBER(*bwp.pdcch, tpc_PUSCH));
            look(1, MEMBER(*bwp.pdcch, tpc_PUCCH));
            look(2, MEMBER(*bwp.pdcch, tpc_SRS));
        }
    }
    if (phy == nullptr)
    {
        return;
    }
    const RNTI_Value* const rntis[] = {MEMBER(*phy, tpc_PUSCH_RNTI), MEMBER(*phy, tpc_PUCCH_RNTI),
                                       MEMBER(*phy, tpc_SRS_RNTI)};
    for (OSUINT32 kind = 0; kind < std::size(rntis); ++kind)
    {
        if (rntis[kind] == nullptr || (used >> kind & 1) != 0)
        {
            continue;
        }
        if (!check.model.complete)
        {
            check.undecided(RRC_RULE_INPUT_PREVIOUS);
            continue;
        }
        check.warning(rntis[kind]).allowed("no bandwidth part has the configuration that goes with it");
    }
}

// HARQ-ACK of two codewords is bundled where there are two, and no code block groups.
void phyBundling(Check& check)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    const auto* const pucch = phy == nullptr ? nullptr : MEMBER(*phy, harq_ACK_SpatialBundlingPUCCH);
    const auto* const pusch = phy == nullptr ? nullptr : MEMBER(*phy, harq_ACK_SpatialBundlingPUSCH);
    const OSUINT32* const bundling = pucch != nullptr ? pucch : pusch;
    if (bundling == nullptr)
    {
        return;
    }
    bool hasTwo = false;
    for (const Cell& cell : check.model.cells())
    {
        const PDSCH_ServingCellConfig* const pdsch =
            cell.dedicated == nullptr ? nullptr : check.tree.setup(MEMBER(*cell.dedicated, pdsch_ServingCellConfig));
        if (pdsch != nullptr)
        {
            const auto* const groups = MEMBER(*pdsch, codeBlockGroupTransmission);
            const OSUINT8* const layers = ADDITION(*pdsch, 2, maxMIMO_Layers);
            hasTwo = hasTwo || (layers != nullptr && *layers > 4);
            if (check.tree.setup(groups) != nullptr)
            {
                check.error(groups).found("set up").allowed("the cell group bundles HARQ-ACK");
                return;
            }
        }
        for (const Bwp& bwp : cell.downlink)
        {
            const auto* const codewords =
                bwp.pdsch == nullptr ? nullptr : MEMBER(*bwp.pdsch, maxNrofCodeWordsScheduledByDCI);
            hasTwo = hasTwo || (codewords != nullptr && *codewords == PDSCH_Config_maxNrofCodeWordsScheduledByDCI_n2);
        }
    }
    if (hasTwo)
    {
        return;
    }
    if (!check.model.complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    check.warning(bundling).allowed("no cell has two codewords to bundle");
}

// Power limits of FR1 are for cells of FR1; the UE's own limit is the master cell group's.
void phyPowerFr(Check& check)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    bool hasFr1 = !check.model.complete;
    for (const Cell& cell : check.model.cells())
    {
        hasFr1 = hasFr1 || !cell.range || *cell.range == RRC_RULE_RANGE_FR1;
        if (!cell.range || *cell.range != RRC_RULE_RANGE_FR2)
        {
            continue;
        }
        for (const FrequencyInfoUL* const frequency : {cell.frequencyUl(), cell.frequencySul()})
        {
            const P_Max* const limit = frequency == nullptr ? nullptr : MEMBER(*frequency, p_Max);
            if (limit != nullptr)
            {
                check.warning(limit).allowed("a UE ignores it on a carrier of FR2");
            }
        }
    }
    if (phy == nullptr)
    {
        return;
    }
    const P_Max* const group = MEMBER(*phy, p_NR_FR1);
    const P_Max* const ue = ADDITION(*phy, 2, p_UE_FR1);
    if (ue != nullptr && check.model.isScg())
    {
        check.error(ue).allowed("only the master cell group has it");
    }
    else if (ue != nullptr && !hasFr1)
    {
        check.warning(ue).allowed("the cell group has no cell of FR1");
    }
    if (group != nullptr && !hasFr1)
    {
        check.warning(group).allowed("the cell group has no cell of FR1");
    }
}

// What only dual connectivity has.
void phyDcOnly(Check& check)
{
    const PhysicalCellGroupConfig* const phy = check.model.phy();
    if (phy == nullptr)
    {
        return;
    }
    const OSUINT8 connectivity = check.model.known.connectivity;
    const auto* const scale = ADDITION(*phy, 3, xScale);
    if (scale != nullptr && !check.model.isScg())
    {
        check.error(scale).allowed("only a secondary cell group has it");
    }
    else if (scale != nullptr && connectivity != RRC_RULE_CONNECTIVITY_UNKNOWN &&
             connectivity != RRC_RULE_CONNECTIVITY_ENDC)
    {
        check.error(scale).allowed("it shares power with an E-UTRA cell group, and the UE has none");
    }
    const auto* const detection = ADDITION(*phy, 4, pdcch_BlindDetection);
    if (detection == nullptr || isRelease(detection))
    {
        return;
    }
    if (connectivity == RRC_RULE_CONNECTIVITY_UNKNOWN)
    {
        check.undecided(RRC_RULE_INPUT_CONNECTIVITY);
    }
    else if (connectivity != RRC_RULE_CONNECTIVITY_NRDC)
    {
        check.error(detection).allowed("it shares PDCCH decoding between two NR cell groups");
    }
}

// Of one cell at most four signals are references of path loss.
void phyFourPathloss(Check& check)
{
    constexpr size_t most = 4;
    struct Reference
    {
        bool isCsiRs;
        OSUINT32 id;
    };
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (Bwp& bwp : cell.bwps(direction))
            {
                Vector<Reference> seen;
                const auto count = [&](const auto& signal)
                {
                    if (signal.t != 1 && signal.t != 2) // ssb-Index, csi-RS-Index
                    {
                        return;
                    }
                    const bool isCsiRs = signal.t == 2;
                    const OSUINT32 id = isCsiRs ? OSUINT32{signal.u.csi_RS_Index} : OSUINT32{signal.u.ssb_Index};
                    const bool isSeen =
                        std::any_of(seen.begin(), seen.end(),
                                    [&](const Reference& other) { return other.isCsiRs == isCsiRs && other.id == id; });
                    if (isSeen)
                    {
                        return;
                    }
                    seen.add(check.model.memory, {isCsiRs, id});
                    if (seen.size() == most + 1)
                    {
                        check.warning(&signal)
                            .found("%s %u", isCsiRs ? "CSI-RS" : "SSB", id)
                            .allowed("the bandwidth part has four other references of path loss");
                    }
                };
                for (const IdEntry<PUSCH_PathlossReferenceRS>& entry : check.model.pusch(bwp).pathlossRs)
                {
                    count(entry.element->referenceSignal);
                }
                const PUCCH_PowerControl* const power =
                    bwp.pucch == nullptr ? nullptr : MEMBER(*bwp.pucch, pucch_PowerControl);
                for (const PUCCH_PathlossReferenceRS& reference : check.tree.list<PUCCH_PathlossReferenceRS>(
                         power == nullptr ? nullptr : MEMBER(*power, pathlossReferenceRSs)))
                {
                    count(reference.referenceSignal);
                }
                for (const IdEntry<SRS_ResourceSet>& entry : check.model.srs(bwp).sets)
                {
                    if (const auto* const signal = MEMBER(*entry.element, pathlossReferenceRS))
                    {
                        count(*signal);
                    }
                }
            }
        }
    }
}

// A semi-persistent report on PUSCH in the place of the first report.
#define SP_REPORT                                                                                                      \
    AT_CSI                                                                                                             \
    "csi-ReportConfigToAddModList[0].reportConfigType = absent\n" AT_CSI                                               \
    "csi-ReportConfigToAddModList[0].reportConfigType.semiPersistentOnPUSCH.reportSlotConfig = sl80\n" AT_CSI          \
    "csi-ReportConfigToAddModList[0].reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList[0] = 3\n" AT_CSI      \
    "csi-ReportConfigToAddModList[0].reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList[1] = 4\n" AT_CSI      \
    "csi-ReportConfigToAddModList[0].reportConfigType.semiPersistentOnPUSCH.p0alpha = 0\n" AT_CSI                      \
    "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo = 0"
#define SPS                                                                                                            \
    AT_DL "bwp-Dedicated.sps-Config.setup.periodicity = ms20\n" AT_DL                                                  \
          "bwp-Dedicated.sps-Config.setup.nrofHARQ-Processes = 2\n" AT_DL                                              \
          "bwp-Dedicated.sps-Config.setup.n1PUCCH-AN = 0"
#define TPC_PUSCH AT_PDCCH "tpc-PUSCH.setup.tpc-Index = 1"
#define BUNDLING AT_PHY "harq-ACK-SpatialBundlingPUCCH = true\n"
#define CODEWORDS                                                                                                      \
    AT_PDSCH "maxNrofCodeWordsScheduledByDCI = n2\n" AT_CELL "pdsch-ServingCellConfig.setup.maxMIMO-Layers = 8\n"
// An SSB and three CSI-RS.
#define PATHLOSS_AT(number) AT_PUSCH "pusch-PowerControl.pathlossReferenceRSToAddModList[" number "]."
#define PATHLOSS                                                                                                       \
    PATHLOSS_AT("1")                                                                                                   \
    "pusch-PathlossReferenceRS-Id = 1\n" PATHLOSS_AT("1") "referenceSignal.csi-RS-Index = 1\n" PATHLOSS_AT(            \
        "2") "pusch-PathlossReferenceRS-Id = 2\n" PATHLOSS_AT("2") "referenceSignal.csi-RS-Index = 2\n" PATHLOSS_AT("3") "pusch-PathlossReferenceRS-Id = 3\n" PATHLOSS_AT("3") "referenceSignal.csi-RS-Index = 3"

constexpr Rule phyTable[] = {
    {.told = {.id = "phy-cell-group-id",
              .severity = RRC_RULE_ERROR,
              .statement = "The master cell group has cellGroupId 0, the secondary one 1.",
              .advice = "Use 0 or 1.",
              .clause = "TS 38.331 CellGroupId",
              .given = "",
              .bad = "cellGroupId = 2",
              .good = "cellGroupId = 0",
              .since = "0.1.0"},
     .run = phyCellGroupId},
    {.told = {.id = "phy-rnti-range",
              .severity = RRC_RULE_ERROR,
              .statement = "An RNTI lies in 0x0001..0xFFEF.",
              .advice = "Assign another RNTI.",
              .clause = "TS 38.321 table 7.1-1",
              .given = "",
              .bad = AT_SYNC "newUE-Identity = 65523",
              .good = AT_SYNC "newUE-Identity = 65519",
              .since = "0.1.0"},
     .run = phyRntiRange},
    {.told = {.id = "phy-rnti-distinct",
              .severity = RRC_RULE_WARNING,
              .statement = "The RNTIs of a UE are different from each other.",
              .advice = "Assign another RNTI.",
              .clause = "TS 38.321 7.1; TS 38.213 10.1",
              .given = "",
              .bad = AT_PHY "mcs-C-RNTI = 17921",
              .good = AT_PHY "mcs-C-RNTI = 17922",
              .since = "0.1.0"},
     .run = phyRntiDistinct},
    {.told = {.id = "phy-sp-csi-rnti",
              .severity = RRC_RULE_ERROR,
              .statement = "sp-CSI-RNTI is present where a CSI report is semiPersistentOnPUSCH.",
              .advice = "Configure sp-CSI-RNTI.",
              .clause = "TS 38.331 PhysicalCellGroupConfig",
              .given = "",
              .bad = SP_REPORT,
              .good = SP_REPORT "\n" AT_PHY "sp-CSI-RNTI = 17930",
              .since = "0.1.0"},
     .run = phySpCsiRnti},
    {.told = {.id = "phy-cs-rnti",
              .severity = RRC_RULE_ERROR,
              .statement = "cs-RNTI is set up where sps-Config or configuredGrantConfig is.",
              .advice = "Configure cs-RNTI.",
              .clause = "TS 38.331 PhysicalCellGroupConfig; TS 38.321 5.8",
              .given = "",
              .bad = SPS,
              .good = SPS "\n" AT_PHY "cs-RNTI.setup = 17931",
              .since = "0.1.0"},
     .run = phyCsRnti},
    {.told = {.id = "phy-tpc-rnti",
              .severity = RRC_RULE_ERROR,
              .statement = "tpc-PUSCH, tpc-PUCCH and tpc-SRS of a bandwidth part come together with the RNTI "
                           "of the same name and a search space for DCI format 2_2 or 2_3.",
              .advice = "Configure all three, or none.",
              .clause = "TS 38.331 PhysicalCellGroupConfig; TS 38.213 11.3, 11.4",
              .given = "",
              .bad = TPC_PUSCH,
              .good = TPC_PUSCH "\n" AT_PHY "tpc-PUSCH-RNTI = 17932\n" AT_PDCCH
                                "searchSpacesToAddModList[2].searchSpaceType.common.dci-Format2-2 = {}",
              .since = "0.1.0"},
     .run = phyTpcRnti},
    {.told = {.id = "phy-bundling",
              .severity = RRC_RULE_ERROR,
              .statement = "Spatial bundling of HARQ-ACK excludes code block groups, and needs a cell with "
                           "two codewords.",
              .advice = "Drop one of the two.",
              .clause = "TS 38.331 PhysicalCellGroupConfig",
              .given = "",
              .bad = BUNDLING CODEWORDS AT_CELL
              "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup.maxCodeBlockGroupsPerTransportBlock = "
              "n2\n" AT_CELL
              "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup.codeBlockGroupFlushIndicator = false",
              .good = BUNDLING CODEWORDS,
              .since = "0.1.0"},
     .run = phyBundling},
    {.told = {.id = "phy-power-fr",
              .severity = RRC_RULE_ERROR,
              .statement = "p-UE-FR1 is only in the master cell group, and power limits of FR1 are for cells of FR1.",
              .advice = "Leave the limit out.",
              .clause = "TS 38.331 PhysicalCellGroupConfig Cond MCG-Only, FrequencyInfoUL",
              .given = "",
              .bad = AS_SCG AT_PHY "p-UE-FR1 = 23",
              .good = AT_PHY "p-UE-FR1 = 23",
              .since = "0.1.0"},
     .run = phyPowerFr},
    {.told = {.id = "phy-dc-only",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "xScale is only in a secondary cell group beside an E-UTRA one, pdcch-BlindDetection only in "
                  "NR-DC.",
              .advice = "Leave it out.",
              .clause = "TS 38.331 PhysicalCellGroupConfig Cond SCG-Only",
              .given = "",
              .bad = AT_PHY "xScale = dB6",
              .good = AS_SCG AT_PHY "xScale = dB6",
              .since = "0.1.0"},
     .run = phyDcOnly},
    {.told = {.id = "phy-four-pathloss",
              .severity = RRC_RULE_WARNING,
              .statement =
                  "PUSCH, PUCCH and SRS of a serving cell have together at most four different reference signals "
                  "for path loss.",
              .advice = "Name one of the four again.",
              .clause = "TS 38.213 7",
              .given = "",
              .bad = PATHLOSS "\n" AT_SRS "srs-ResourceSetToAddModList[0].pathlossReferenceRS.ssb-Index = 1",
              .good = PATHLOSS,
              .since = "0.1.0"},
     .run = phyFourPathloss},
};

} // namespace

constinit const RuleGroup phyRules = groupOf(phyTable);

} // namespace rules
