// The programs of examples/: what they send is what a UE takes.
#include "flatTrees.h"
#include "rrcRules.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using Octets = std::vector<OSOCTET>;

std::string printedBy(const std::string& example)
{
    const std::string program = std::string(CELLGROUPCFG_EXAMPLES) + "/" + example;
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(program.c_str(), "r"), pclose);
    std::string text;
    char piece[4096];
    for (size_t got = 0; pipe != nullptr && (got = fread(piece, 1, sizeof piece, pipe.get())) != 0;)
    {
        text.append(piece, got);
    }
    return text;
}

// "2 octets:\n    5c 00\n" gives one.
std::vector<Octets> messagesOf(const std::string& example)
{
    std::vector<Octets> messages;
    std::istringstream text(printedBy(example));
    bool isMessage = false;
    for (std::string line; std::getline(text, line);)
    {
        if (line.ends_with(" octets:"))
        {
            messages.emplace_back();
        }
        else if (isMessage && line.starts_with("    "))
        {
            std::istringstream numbers(line);
            for (unsigned number = 0; numbers >> std::hex >> number;)
            {
                messages.back().push_back(static_cast<OSOCTET>(number));
            }
            continue;
        }
        isMessage = line.ends_with(" octets:");
    }
    EXPECT_FALSE(messages.empty()) << example;
    return messages;
}

// A warning that is right, and why it stays.
struct Stated
{
    std::string rule;
    std::string reason;
};

class Examples : public test::FlatTrees
{
protected:
    const CellGroupConfig* decode(Octets message)
    {
        CellGroupConfig* const made = tree();
        EXPECT_EQ(0, pu_setBuffer(&context_, message.data(), message.size(), 0));
        EXPECT_EQ(0, asn1PD_CellGroupConfig(&context_, made));
        return made;
    }

    std::string flat(const CellGroupConfig* of)
    {
        std::string text;
        const auto print = [](void* to, const char* piece)
        {
            *static_cast<std::string*>(to) += piece;
        };
        EXPECT_EQ(0, asn1ToFlat_CellGroupConfig(&context_, of, print, &text));
        return text;
    }

    // What the UE has after the message.
    const CellGroupConfig* after(const CellGroupConfig* previous, const CellGroupConfig* message)
    {
        CellGroupConfig* const made = tree();
        EXPECT_EQ(0, asn1Apply_CellGroupConfig(&context_, previous, message, made));
        return made;
    }

    struct Told
    {
        std::string rule;
        OSUINT8 severity;
        std::string line;
    };

    std::vector<Told> check(const CellGroupConfig* message, const RrcRuleContext& known)
    {
        std::vector<Told> told;
        const auto sink = [](void* to, const RrcRuleFinding* finding)
        {
            std::string line(rrcRuleFindingFormat(finding, nullptr, 0), '\0');
            (void)rrcRuleFindingFormat(finding, line.data(), line.size() + 1);
            static_cast<std::vector<Told>*>(to)->push_back({finding->rule, finding->severity, line});
            return 0;
        };
        EXPECT_LE(0, rrcCheckRules(&context_, message, &known, sink, &told));
        return told;
    }

    // No rule says more than a notice but for what is stated, and all of that is said.
    static void expectTaken(std::vector<Told> told, const std::vector<Stated>& stated = {})
    {
        std::erase_if(told, [](const Told& finding) { return finding.severity < RRC_RULE_WARNING; });
        for (const Stated& one : stated)
        {
            const std::size_t all = told.size();
            std::erase_if(told, [&](const Told& finding) { return finding.rule == one.rule; });
            EXPECT_LT(told.size(), all) << one.rule << " says nothing: " << one.reason;
        }
        for (const Told& finding : told)
        {
            ADD_FAILURE() << finding.line;
        }
    }

    static RrcRuleContext full()
    {
        RrcRuleContext known{};
        known.extent = RRC_RULE_EXTENT_FULL;
        return known;
    }
};

// "CellGroupConfig.cellGroupId = 0" without its first step.
std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        const std::string root = "CellGroupConfig.";
        lines.push_back(line.starts_with(root) ? line.substr(root.size()) : line);
    }
    return lines;
}

TEST_F(Examples, WholeConfigurations)
{
    expectTaken(check(decode(messagesOf("typical_call").front()), full()));
    expectTaken(check(decode(messagesOf("secondary_cells").front()), full()));
    expectTaken(check(decode(messagesOf("own_distributed_unit").front()), full()),
                {{"mac-sr-no-resource", "the message is all about the common configuration: a PUCCH is to follow"}});
    expectTaken(check(decode(messagesOf("amended_tree").front()), full()),
                {{"gen-release-unknown", "the example shows how DRX is released, which the UE had before"}});
}

// A UE that has all of a typical call but a bearer gets one, and is handed over with one.
TEST_F(Examples, ChangesOfACall)
{
    std::vector<std::string> lines = linesOf(flat(decode(messagesOf("typical_call").front())));
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("rlc-BearerToAddModList"); });
    RrcRuleContext known{};
    known.previous = read(lines);
    for (const char* const example : {"one_bearer", "reconfiguration_with_sync"})
    {
        SCOPED_TRACE(example);
        expectTaken(check(decode(messagesOf(example).front()), known));
    }
}

TEST_F(Examples, Deltas)
{
    const CellGroupConfig* state = decode(messagesOf("secondary_cells").front());
    for (const Octets& octets : messagesOf("cell_group_deltas"))
    {
        RrcRuleContext known{};
        known.previous = state;
        const CellGroupConfig* const message = decode(octets);
        expectTaken(check(message, known));
        state = after(state, message);
    }
}

// What `releases` takes away beside what the secondary cells' example has: the first element of each list that has none
// there, then more elements like the first one.
#define DL "spCellConfig.spCellConfigDedicated.downlinkBWP-ToAddModList[0].bwp-Dedicated."
#define UL "spCellConfig.spCellConfigDedicated.uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated."
#define COMMON "spCellConfig.reconfigurationWithSync.spCellConfigCommon."
#define CSI "spCellConfig.spCellConfigDedicated.csi-MeasConfig.setup."
#define SFI "spCellConfig.spCellConfigDedicated.pdcch-ServingCellConfig.setup.slotFormatIndicator.setup."

constexpr const char* firstElements = COMMON
    "rateMatchPatternToAddModList[0].rateMatchPatternId = 0\n" COMMON
    "rateMatchPatternToAddModList[0].patternType.controlResourceSet = 1\n" COMMON
    "rateMatchPatternToAddModList[0].subcarrierSpacing = kHz30\n" COMMON
    "rateMatchPatternToAddModList[0].dummy = dynamic\n" DL
    "pdcch-Config.setup.controlResourceSetToAddModList[0].tci-StatesPDCCH-ToAddList[1] = 3\n" DL
    "pdsch-Config.setup.rateMatchPatternToAddModList[0].rateMatchPatternId = 0\n" DL
    "pdsch-Config.setup.rateMatchPatternToAddModList[0].patternType.controlResourceSet = 2\n" DL
    "pdsch-Config.setup.rateMatchPatternToAddModList[0].dummy = dynamic\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].zp-CSI-RS-ResourceId = 0\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.frequencyDomainAllocation.row4 = 20\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.nrofPorts = p4\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.firstOFDMSymbolInTimeDomain = 12\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.cdm-Type = fd-CDM2\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.density.one = null\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.freqBand.startingRB = 0\n" DL
    "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0].resourceMapping.freqBand.nrofRBs = 276\n" DL
    "pdsch-Config.setup.aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceSetId = 1\n" DL
    "pdsch-Config.setup.aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceIdList[0] = 0\n" DL
    "radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList[0].radioLinkMonitoringRS-Id = 1\n" DL
    "radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList[0].purpose = rlf\n" DL
    "radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList[0].detectionResource.ssb-Index = 1\n" UL
    "pucch-Config.setup.spatialRelationInfoToAddModList[0].pucch-SpatialRelationInfoId = 1\n" UL
    "pucch-Config.setup.spatialRelationInfoToAddModList[0].referenceSignal.ssb-Index = 0\n" UL
    "pucch-Config.setup.spatialRelationInfoToAddModList[0].pucch-PathlossReferenceRS-Id = 0\n" UL
    "pucch-Config.setup.spatialRelationInfoToAddModList[0].p0-PUCCH-Id = 1\n" UL
    "pucch-Config.setup.spatialRelationInfoToAddModList[0].closedLoopIndex = i0\n" CSI
    "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceSetId = 0\n" CSI
    "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[0] = 0\n" SFI "sfi-RNTI = 18177\n" SFI
    "dci-PayloadSize = 4\n" SFI "slotFormatCombToAddModList[0].servingCellId = 0\n" SFI
    "slotFormatCombToAddModList[0].subcarrierSpacing = kHz30\n" SFI
    "slotFormatCombToAddModList[0].slotFormatCombinations[0].slotFormatCombinationId = 0\n" SFI
    "slotFormatCombToAddModList[0].slotFormatCombinations[0].slotFormats[0] = 28\n" SFI
    "slotFormatCombToAddModList[0].positionInDCI = 0\n";

struct More
{
    const char* list;
    const char* identity;
    unsigned from; // of the elements that are added
    unsigned to;
    unsigned like = 0; // the element that they are copies of
};

constexpr More more[] = {
    {"rlc-BearerToAddModList", "logicalChannelIdentity", 5, 7},
    {"mac-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList", "schedulingRequestId", 1, 2},
    {"mac-CellGroupConfig.tag-Config.tag-ToAddModList", "tag-Id", 1, 2},
    {COMMON "rateMatchPatternToAddModList", "rateMatchPatternId", 1, 1},
    {DL "pdcch-Config.setup.controlResourceSetToAddModList", "controlResourceSetId", 4, 4},
    {DL "pdcch-Config.setup.searchSpacesToAddModList", "searchSpaceId", 5, 7, 2},
    {DL "pdsch-Config.setup.rateMatchPatternToAddModList", "rateMatchPatternId", 1, 1},
    {DL "pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList", "zp-CSI-RS-ResourceId", 1, 2},
    {DL "pdsch-Config.setup.aperiodic-ZP-CSI-RS-ResourceSetsToAddModList", "zp-CSI-RS-ResourceSetId", 2, 2},
    {DL "radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList", "radioLinkMonitoringRS-Id", 2, 2},
    {UL "pucch-Config.setup.schedulingRequestResourceToAddModList", "schedulingRequestResourceId", 2, 3},
    {UL "pucch-Config.setup.spatialRelationInfoToAddModList", "pucch-SpatialRelationInfoId", 2, 3},
    {UL "pusch-Config.setup.pusch-PowerControl.pathlossReferenceRSToAddModList", "pusch-PathlossReferenceRS-Id", 1, 2},
    {UL "pusch-Config.setup.pusch-PowerControl.sri-PUSCH-MappingToAddModList", "sri-PUSCH-PowerControlId", 1, 2},
    {UL "srs-Config.setup.srs-ResourceSetToAddModList", "srs-ResourceSetId", 1, 2},
    {UL "srs-Config.setup.srs-ResourceToAddModList", "srs-ResourceId", 1, 3},
    {CSI "csi-IM-ResourceToAddModList", "csi-IM-ResourceId", 1, 1},
    {CSI "csi-IM-ResourceSetToAddModList", "csi-IM-ResourceSetId", 1, 1},
    {CSI "csi-SSB-ResourceSetToAddModList", "csi-SSB-ResourceSetId", 1, 1},
    {SFI "slotFormatCombToAddModList", "servingCellId", 1, 2},
    {"spCellConfig.spCellConfigDedicated.downlinkBWP-ToAddModList", "bwp-Id", 2, 3},
    {"spCellConfig.spCellConfigDedicated.uplinkConfig.uplinkBWP-ToAddModList", "bwp-Id", 2, 3},
};

void add(std::vector<std::string>& lines, const More& given)
{
    const std::string list = std::string(given.list) + "[";
    const std::string like = list + std::to_string(given.like) + "].";
    unsigned count = 0;
    std::vector<std::string> element;
    for (const std::string& line : lines)
    {
        if (line.starts_with(list))
        {
            count = std::max(count, 1 + static_cast<unsigned>(std::stoul(line.substr(list.size()))));
        }
        if (line.starts_with(like))
        {
            element.push_back(line.substr(like.size()));
        }
    }
    ASSERT_FALSE(element.empty()) << given.list;
    for (unsigned id = given.from; id <= given.to; ++id)
    {
        const std::string place = list + std::to_string(count++) + "].";
        for (const std::string& line : element)
        {
            const std::string identity = std::string(given.identity) + " = ";
            lines.push_back(place + (line.starts_with(identity) ? identity + std::to_string(id) : line));
        }
    }
}

TEST_F(Examples, Releases)
{
    std::vector<std::string> lines = linesOf(flat(decode(messagesOf("secondary_cells").front())) + firstElements);
    for (const More& one : more)
    {
        add(lines, one);
    }
    // The space that stays is for DCI format 2_0: there is no message that leaves the slot format indicator out.
    const std::string space = DL "pdcch-Config.setup.searchSpacesToAddModList[5].";
    std::erase_if(lines, [&](const std::string& line) { return line.starts_with(space + "searchSpaceType"); });
    lines.push_back(space + "searchSpaceType.common.dci-Format2-0.nrofCandidates-SFI.aggregationLevel4 = n1");

    RrcRuleContext known{};
    known.previous = read(lines);
    for (const Octets& octets : messagesOf("releases"))
    {
        const std::vector<Told> told = check(decode(octets), known);
        expectTaken(told);
        for (const Told& finding : told)
        {
            EXPECT_NE("gen-release-unknown", finding.rule) << finding.line;
        }
    }
}

} // namespace
