// The element as a whole: what holds wherever a type occurs.
#include "NR-RRC-Tables.h"
#include "examplePaths.h"
#include "rules.h"

#include <string_view>

namespace rules
{
namespace
{

bool hasPart(const char* name, std::string_view part)
{
    return name != nullptr && std::string_view(name).find(part) != std::string_view::npos;
}

// Without a look at what follows.
bool beginsWith(const char* name, std::string_view beginning)
{
    return name != nullptr && std::strncmp(name, beginning.data(), beginning.size()) == 0;
}

bool isReleaseList(const char* name)
{
    return hasPart(name, "ToRelease") || hasPart(name, "Torelease");
}

// What tells the elements of lists apart that are replaced as a whole, and so have no identity in the schema.
struct Key
{
    const RtxType* type;
    const char* member;
};
constexpr Key keys[] = {{&nr_rrc::type_SearchSpace, "searchSpaceId"},
                        {&nr_rrc::type_P0_PUSCH_AlphaSet, "p0-PUSCH-AlphaSetId"},
                        {&nr_rrc::type_P0_PUCCH, "p0-PUCCH-Id"},
                        {&nr_rrc::type_PUCCH_PathlossReferenceRS, "pucch-PathlossReferenceRS-Id"},
                        {&nr_rrc::type_SCS_SpecificCarrier, "subcarrierSpacing"},
                        {&nr_rrc::type_INT_ConfigurationPerServingCell, "servingCellId"},
                        {&nr_rrc::type_SlotFormatCombination, "slotFormatCombinationId"},
                        {&nr_rrc::type_CFRA_SSB_Resource, "ssb"},
                        {&nr_rrc::type_CFRA_CSIRS_Resource, "csi-RS"}};

// The place of what identifies an element of a list.
struct Identity
{
    const RtxType* type; // null where nothing does
    uint32_t offset;
};

Identity memberNamed(const RtxType& type, const char* name)
{
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        if (std::string_view(type.names[i]) == name)
        {
            return {type.members[i].type, type.members[i].offset};
        }
    }
    return {nullptr, 0};
}

// Of a list of numbers only those whose type is one of ids; the TCI states of a trigger may be the same.
Identity identityOf(const RtxType& list)
{
    const RtxType& element = list.element();
    if (element.kind == rtx::Kind::Integer)
    {
        const std::string_view name = element.name;
        const bool isId = name.ends_with("Id") || name.ends_with("Index") || name.ends_with("Identity");
        return isId && !hasPart(list.name, "qcl_info") ? Identity{&element, 0} : Identity{nullptr, 0};
    }
    if (list.identity >= 0)
    {
        const rtx::Member& member = element.members[list.identity];
        return {member.type, member.offset};
    }
    for (const Key& key : keys)
    {
        if (&element == key.type)
        {
            return memberNamed(element, key.member);
        }
    }
    return {nullptr, 0};
}

const void* identityAt(const Identity& identity, const void* element)
{
    return static_cast<const OSOCTET*>(element) + identity.offset;
}

int64_t idOf(const Identity& identity, const void* element)
{
    return rtx::loadNumber(*identity.type, identityAt(identity, element));
}

// Whether a list has an element with the id.
bool hasId(const OSCTXT& heap, const RtxType& list, const void* at, int64_t id)
{
    const Identity identity = identityOf(list);
    bool has = false;
    forElements(heap, list, at, [&](const void* element) { has = has || idOf(identity, element) == id; });
    return has;
}

// How many elements a list says to have.
OSUINT32 numberOf(const RtxType& type, const void* list)
{
    return type.kind == rtx::Kind::List ? rtx::load<OSRTDList>(list).count : rtx::countOf(type, list);
}

// Ids that have been met. The schema's are all small.
class MetIds
{
public:
    // Whether it was there already; false of an id that is too large to be remembered.
    bool add(int64_t id)
    {
        if (id < 0 || id >= most)
        {
            return false;
        }
        uint64_t& some = bits_[id / 64];
        const uint64_t bit = uint64_t{1} << id % 64;
        const bool was = (some & bit) != 0;
        some |= bit;
        return was;
    }

private:
    static constexpr int64_t most = 1024;

    uint64_t bits_[most / 64] = {};
};

// Within a list an id occurs once.
void genDupId(Check& check, const Value& list)
{
    const Identity identity = numberOf(list.type, list.at) < 2 ? Identity{nullptr, 0} : identityOf(list.type);
    if (identity.type == nullptr)
    {
        return;
    }
    MetIds met;
    forElements(check.tree.heap(), list.type, list.at,
                [&](const void* element)
                {
                    if (met.add(idOf(identity, element)))
                    {
                        check
                            .tell(isReleaseList(list.name) ? RRC_RULE_WARNING : RRC_RULE_ERROR, *identity.type,
                                  identityAt(identity, element))
                            .allowed("an earlier element of the list has it, too");
                    }
                });
}

// The list that this one releases elements of, in the same sequence of the message; null where it releases none.
const rtx::Member* addedListOf(const Value& list)
{
    if (list.sequence == nullptr || list.sequence->type.needs == nullptr)
    {
        return nullptr;
    }
    const rtx::Need& need = list.sequence->type.needs[list.number];
    return need.list == rtx::ListRole::Release ? list.sequence->type.members + need.partner : nullptr;
}

// A member of a sequence; null where it is not sent.
const void* sentMember(const RtxType& type, const rtx::Member& member, const void* sequence)
{
    const auto number = static_cast<unsigned>(&member - type.members);
    return sequence != nullptr && isSentMember(type, number, sequence) ? memberAt(member, sequence) : nullptr;
}

// What is released and added in one message is new.
void genAddAndRelease(Check& check, const Value& released)
{
    const OSCTXT& heap = check.tree.heap();
    const rtx::Member* const added = addedListOf(released);
    const void* const list =
        added == nullptr ? nullptr : sentMember(released.sequence->type, *added, released.sequence->at);
    if (list == nullptr)
    {
        return;
    }
    const Identity identity = identityOf(*added->type);
    forElements(heap, *added->type, list,
                [&](const void* element)
                {
                    if (hasId(heap, released.type, released.at, idOf(identity, element)))
                    {
                        check.tell(RRC_RULE_NOTICE, *identity.type, identityAt(identity, element))
                            .allowed("%s has it, too: the element is new, and nothing of the earlier one stays",
                                     released.name);
                    }
                });
}

// What was at the place of a member, in the same sequence before the message; null where it was not there.
const void* beforeOf(Check& check, const Value& sequence, const rtx::Member& member)
{
    return sentMember(sequence.type, member, check.model.beforeSent(sequence.at, sequence.type.size));
}

void tellUnknown(Check& check, const RtxType& type, const void* at)
{
    if (!check.model.complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    check.tell(check.model.isFull ? RRC_RULE_WARNING : RRC_RULE_NOTICE, type, at)
        .allowed("it was not configured before");
}

// What is released was configured.
void genReleaseUnknown(Check& check, const Value& value)
{
    const OSCTXT& heap = check.tree.heap();
    if (const rtx::Member* const added = addedListOf(value))
    {
        const void* const there = beforeOf(check, *value.sequence, *added);
        forElements(heap, value.type, value.at,
                    [&](const void* id)
                    {
                        const RtxType& idType = value.type.element();
                        if (there == nullptr || !hasId(heap, *added->type, there, rtx::loadNumber(idType, id)))
                        {
                            tellUnknown(check, idType, id);
                        }
                    });
    }
    else if (value.type.setupRelease && rtx::load<OSUINT32>(value.at) == releaseTag && value.sequence != nullptr)
    {
        const void* const there = beforeOf(check, *value.sequence, value.sequence->type.members[value.number]);
        if (there == nullptr || rtx::load<OSUINT32>(there) != setupTag)
        {
            tellUnknown(check, value.type, value.at);
        }
    }
}

// RRCSetup brings SRB1 and what it needs.
void genSetupContent(Check& check)
{
    const CellGroupConfig& message = check.model.message;
    if (check.model.messageKind() == RRC_RULE_MESSAGE_UNKNOWN)
    {
        check.undecided(RRC_RULE_INPUT_MESSAGE);
    }
    if (check.model.messageKind() != RRC_RULE_MESSAGE_SETUP)
    {
        return;
    }
    for (const RLC_BearerConfig& bearer : check.tree.list<RLC_BearerConfig>(MEMBER(message, rlc_BearerToAddModList)))
    {
        if (bearer.logicalChannelIdentity != 1)
        {
            check.error(&bearer.logicalChannelIdentity).allowed("RRCSetup brings SRB1 alone, on logical channel 1");
        }
    }
    if (const auto* const list = MEMBER(message, rlc_BearerToReleaseList))
    {
        check.error(list).allowed("in RRCSetup there is no bearer to release");
    }
    if (const auto* const list = MEMBER(message, sCellToAddModList))
    {
        check.error(list).allowed("RRCSetup adds no SCell");
    }
    if (const auto* const list = MEMBER(message, sCellToReleaseList))
    {
        check.error(list).allowed("in RRCSetup there is no SCell to release");
    }
    const SpCellConfig* const spCell = MEMBER(message, spCellConfig);
    if (spCell == nullptr)
    {
        check.warning(&message.spCellConfig).allowed("RRCSetup is expected to configure the SpCell");
    }
    else if (const auto* const sync = MEMBER(*spCell, reconfigurationWithSync))
    {
        check.error(sync).allowed("RRCSetup changes no cell");
    }
}

bool isSpare(const RtxType& type, int64_t number, int64_t last)
{
    // Most names end the question with their first letter.
    return number >= 0 && number <= last && *type.names[number] == 's' && beginsWith(type.names[number], "spare");
}

// No spare value is sent, and no dummy.
void genSpareValue(Check& check, const Value& value)
{
    const bool isSpareValue =
        value.type.kind == rtx::Kind::Enumerated
            ? isSpare(value.type, rtx::loadNumber(value.type, value.at), value.type.upper)
            : isSpare(value.type, rtx::load<OSUINT32>(value.at) - int64_t{1}, int64_t{value.type.memberCount} - 1);
    if (isSpareValue)
    {
        check.tell(value.isOptional ? RRC_RULE_WARNING : RRC_RULE_ERROR, value.type, value.at)
            .allowed("a spare value means nothing to a UE: %s",
                     value.isOptional ? "it takes the member for absent" : "a member that it needs is missing");
    }
    if (value.isOptional && beginsWith(value.name, "dummy"))
    {
        check.tell(RRC_RULE_NOTICE, value.type, value.at).allowed("a UE ignores it");
    }
}

// Containers that do nothing without a member: all of theirs keep or replace something by themselves.
constexpr const RtxType* containers[] = {&nr_rrc::type_UplinkConfig,
                                         &nr_rrc::type_BWP_DownlinkDedicated,
                                         &nr_rrc::type_BWP_UplinkDedicated,
                                         &nr_rrc::type_PDCCH_ServingCellConfig,
                                         &nr_rrc::type_PDCCH_Config,
                                         &nr_rrc::type_PUCCH_Config,
                                         &nr_rrc::type_SRS_Config,
                                         &nr_rrc::type_CSI_MeasConfig,
                                         &nr_rrc::type_RadioLinkMonitoringConfig,
                                         &nr_rrc::type_SchedulingRequestConfig,
                                         &nr_rrc::type_TAG_Config,
                                         &nr_rrc::type_TDD_UL_DL_ConfigDedicated,
                                         &nr_rrc::type_SRS_CC_SetIndex};

// A container that is present has a member.
void genEmptyContainer(Check& check, const Value& sequence)
{
    for (unsigned i = 0; i < sequence.type.memberCount; ++i)
    {
        if (isSentMember(sequence.type, i, sequence.at))
        {
            return;
        }
    }
    // A new bandwidth part has bwp-Dedicated, be it empty.
    const bool isContainer =
        std::find(std::begin(containers), std::end(containers), &sequence.type) != std::end(containers);
    if (isContainer && !hasPart(sequence.name, "bwp-Dedicated"))
    {
        check.tell(RRC_RULE_WARNING, sequence.type, sequence.at)
            .found("empty")
            .allowed("it says nothing without a member");
    }
}

constexpr Rule genTable[] = {
    {.told = {.id = "gen-dup-id",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "An id occurs at most once in a list; twice in a list of what is released is only pointless.",
              .advice = "Drop the second element, or give it an id of its own.",
              .clause = "TS 38.331 A.3.9",
              .given = "",
              .bad = AT_PUCCH "resourceSetToAddModList[0].resourceList[1] = 0",
              .good = AT_PUCCH "resourceSetToAddModList[0].resourceList[1] = 1",
              .since = "0.1.0"},
     .visit = genDupId,
     .kinds = kindBits(rtx::Kind::Array, rtx::Kind::List)},
    {.told = {.id = "gen-add-and-release",
              .severity = RRC_RULE_NOTICE,
              .statement = "An id may be released and added in one message; it then names a new element.",
              .advice = "Leave the id out of the release list if the element is to be modified.",
              .clause = "TS 38.331 A.3.9, 5.3.5.5",
              .given = "A delta.",
              .bad = "rlc-BearerToReleaseList[0] = 4",
              .good = "rlc-BearerToReleaseList[0] = 5",
              .since = "0.1.0"},
     .visit = genAddAndRelease,
     .kinds = kindBit(rtx::Kind::Array)},
    {.told = {.id = "gen-release-unknown",
              .severity = RRC_RULE_WARNING,
              .statement = "What is released was configured before; where nothing was, there is nothing to release.",
              .advice = "Drop the release, or look for what was meant to be configured.",
              .clause = "TS 38.331 A.3.9, 5.3.5.11",
              .given = "",
              .bad = AT_MAC "drx-Config = absent\n" AT_MAC "drx-Config.release = null",
              .good = AT_MAC "drx-Config = absent",
              .since = "0.1.0"},
     .visit = genReleaseUnknown,
     .kinds = kindBits(rtx::Kind::Array, rtx::Kind::Choice)},
    {.told = {.id = "gen-setup-content",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The masterCellGroup of RRCSetup has the RLC bearer of SRB1, mac-CellGroupConfig, "
                  "physicalCellGroupConfig and spCellConfig without reconfigurationWithSync, and nothing else.",
              .advice = "Send the rest in an RRCReconfiguration.",
              .clause = "TS 38.331 RRCSetup masterCellGroup",
              .given = "RRCSetup.",
              .bad = AT_SYNC_ABSENT,
              .good = AT_SYNC_ABSENT "\nrlc-BearerToAddModList[1] = absent",
              .since = "0.1.0"},
     .run = genSetupContent},
    {.told = {.id = "gen-spare-value",
              .severity = RRC_RULE_ERROR,
              .statement = "No spare value and no dummy is sent.",
              .advice = "Send a value that the standard has given a meaning.",
              .clause = "TS 38.331 10.3, 10.4",
              .given = "",
              .bad = AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[0].sr-TransMax = spare3",
              .good = AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[0].sr-TransMax = n64",
              .since = "0.1.0"},
     .visit = genSpareValue,
     .kinds = kindBits(rtx::Kind::Enumerated, rtx::Kind::Choice)},
    {.told = {.id = "gen-empty-container",
              .severity = RRC_RULE_WARNING,
              .statement = "A container that has only optional members is sent with at least one of them.",
              .advice = "Leave it out, or say what is to be configured.",
              .clause = "TS 38.331 6.1.2",
              .given = "",
              .bad = AT_CELL "tdd-UL-DL-ConfigurationDedicated = {}",
              .good = AT_CELL
              "tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList[0].slotIndex = 3\n" AT_CELL
              "tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList[0].symbols."
              "explicit.nrofDownlinkSymbols = 10",
              .since = "0.1.0"},
     .visit = genEmptyContainer,
     .kinds = kindBit(rtx::Kind::Sequence)},
};

} // namespace

constinit const RuleGroup genRules = groupOf(genTable);

} // namespace rules
