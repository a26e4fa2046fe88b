// The element as a whole: what holds wherever a type occurs.
#include "examplePaths.h"
#include "rules.h"
#include "walk.h"

#include <string_view>

namespace rules
{
namespace
{

// Every value of the message.
template <typename Each>
void forMessage(Check& check, const Each& each)
{
    forValues(check.tree.heap(), {*asn1Type_CellGroupConfig(), &check.model.message, nullptr, false}, each);
}

bool contains(const char* name, std::string_view part)
{
    return name != nullptr && std::string_view(name).find(part) != std::string_view::npos;
}

bool isReleaseList(const char* name)
{
    return contains(name, "ToRelease") || contains(name, "Torelease");
}

// What tells the elements of lists apart that are replaced as a whole, and so have no identity in the schema.
struct Key
{
    const char* type;
    const char* member;
};
constexpr Key keys[] = {{"SearchSpace", "searchSpaceId"},
                        {"P0-PUSCH-AlphaSet", "p0-PUSCH-AlphaSetId"},
                        {"P0-PUCCH", "p0-PUCCH-Id"},
                        {"PUCCH-PathlossReferenceRS", "pucch-PathlossReferenceRS-Id"},
                        {"SCS-SpecificCarrier", "subcarrierSpacing"},
                        {"INT-ConfigurationPerServingCell", "servingCellId"},
                        {"SlotFormatCombination", "slotFormatCombinationId"},
                        {"CFRA-SSB-Resource", "ssb"},
                        {"CFRA-CSIRS-Resource", "csi-RS"}};

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
        return isId && !contains(list.name, "qcl_info") ? Identity{&element, 0} : Identity{nullptr, 0};
    }
    if (list.identity >= 0)
    {
        const rtx::Member& member = element.members[list.identity];
        return {member.type, member.offset};
    }
    for (const Key& key : keys)
    {
        if (std::string_view(element.name) == key.type)
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

// Whether a list has an element with the id, among its first `most`.
bool hasId(const OSCTXT& heap, const RtxType& list, const void* at, int64_t id, OSUINT32 most = mostElements)
{
    const Identity identity = identityOf(list);
    bool has = false;
    forElements(heap, list, at,
                [&](const void* element)
                {
                    has = has || (most != 0 && idOf(identity, element) == id);
                    most -= most != 0 ? 1 : 0;
                });
    return has;
}

// Within a list an id occurs once.
void genDupId(Check& check)
{
    forMessage(check,
               [&](const Value& value)
               {
                   const bool isList = value.type.kind == rtx::Kind::Array || value.type.kind == rtx::Kind::List;
                   const Identity identity = isList ? identityOf(value.type) : Identity{nullptr, 0};
                   if (identity.type == nullptr)
                   {
                       return;
                   }
                   OSUINT32 index = 0;
                   forElements(check.tree.heap(), value.type, value.at,
                               [&](const void* element)
                               {
                                   const int64_t id = idOf(identity, element);
                                   if (hasId(check.tree.heap(), value.type, value.at, id, index++))
                                   {
                                       const bool isGone = isReleaseList(value.name);
                                       check
                                           .tell(isGone ? RRC_RULE_WARNING : RRC_RULE_ERROR, *identity.type,
                                                 identityAt(identity, element))
                                           .allowed("an earlier element of the list has it, too");
                                   }
                               });
               });
}

// The list that a release list takes elements from, in the same sequence; -1 where it is none.
int addedListOf(const RtxType& type, unsigned release)
{
    std::string_view name = type.names[release];
    const size_t at = std::min(name.find("ToRelease"), name.find("Torelease"));
    if (at == std::string_view::npos)
    {
        return -1;
    }
    name = name.substr(0, at);
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        const std::string_view other = type.names[i];
        if (other.starts_with(name) && other.substr(name.size()).starts_with("ToAdd"))
        {
            return static_cast<int>(i);
        }
    }
    return -1;
}

// Calls `each(release, added)` for the release lists that a sequence of the message has, with the numbers of the
// members.
template <typename Each>
void forReleases(const Value& value, const Each& each)
{
    if (value.type.kind != rtx::Kind::Sequence)
    {
        return;
    }
    for (unsigned i = 0; i < value.type.memberCount; ++i)
    {
        const int added = isSentMember(value.type, i, value.at) ? addedListOf(value.type, i) : -1;
        if (added >= 0)
        {
            each(i, static_cast<unsigned>(added));
        }
    }
}

// What is released and added in one message is new.
void genAddAndRelease(Check& check)
{
    const OSCTXT& heap = check.tree.heap();
    forMessage(check,
               [&](const Value& value)
               {
                   forReleases(value,
                               [&](unsigned release, unsigned added)
                               {
                                   if (!isSentMember(value.type, added, value.at))
                                   {
                                       return;
                                   }
                                   const rtx::Member& gone = value.type.members[release];
                                   const rtx::Member& list = value.type.members[added];
                                   const Identity identity = identityOf(*list.type);
                                   forElements(heap, *list.type, memberAt(list, value.at),
                                               [&](const void* element)
                                               {
                                                   const int64_t id = idOf(identity, element);
                                                   if (hasId(heap, *gone.type, memberAt(gone, value.at), id))
                                                   {
                                                       check
                                                           .tell(RRC_RULE_NOTICE, *identity.type,
                                                                 identityAt(identity, element))
                                                           .allowed("%s has it, too: the element is new, and nothing "
                                                                    "of the earlier one stays",
                                                                    value.type.names[release]);
                                                   }
                                               });
                               });
               });
}

// What is known of a member before the message: its place, null where it was not there.
const void* beforeOf(const RtxType& type, unsigned number, const void* before)
{
    return before != nullptr && isSentMember(type, number, before) ? memberAt(type.members[number], before) : nullptr;
}

bool isSetupRelease(const RtxType& type)
{
    return type.kind == rtx::Kind::Choice && type.memberCount == 2 && std::string_view(type.names[0]) == "release";
}

// What is released was configured.
void genReleaseUnknown(Check& check)
{
    const OSCTXT& heap = check.tree.heap();
    Model& model = check.model;
    Counterparts earlier;
    if (model.previous != nullptr)
    {
        earlier.build(model.memory, check.tree, *asn1Type_CellGroupConfig(), &model.message, model.previous, nullptr);
    }
    const auto tell = [&](const RtxType& type, const void* at)
    {
        if (!model.complete)
        {
            check.undecided(RRC_RULE_INPUT_PREVIOUS);
            return;
        }
        check.tell(model.isFull ? RRC_RULE_WARNING : RRC_RULE_NOTICE, type, at).allowed("it was not configured before");
    };
    const auto releaseIds = [&](const Value& value, const void* before)
    {
        forReleases(value,
                    [&](unsigned release, unsigned added)
                    {
                        const rtx::Member& list = value.type.members[release];
                        const rtx::Member& source = value.type.members[added];
                        const void* const there = beforeOf(value.type, added, before);
                        forElements(heap, *list.type, memberAt(list, value.at),
                                    [&](const void* id)
                                    {
                                        const RtxType& type = list.type->element();
                                        if (there == nullptr ||
                                            !hasId(heap, *source.type, there, rtx::loadNumber(type, id)))
                                        {
                                            tell(type, id);
                                        }
                                    });
                    });
    };
    forMessage(check,
               [&](const Value& value)
               {
                   if (value.type.kind != rtx::Kind::Sequence)
                   {
                       return;
                   }
                   const void* const before = earlier.before(value.at, value.type.size);
                   releaseIds(value, before);
                   for (unsigned i = 0; i < value.type.memberCount; ++i)
                   {
                       const rtx::Member& member = value.type.members[i];
                       if (!isSetupRelease(*member.type) || !isSentMember(value.type, i, value.at) ||
                           rtx::load<OSUINT32>(memberAt(member, value.at)) != releaseTag)
                       {
                           continue;
                       }
                       const void* const there = beforeOf(value.type, i, before);
                       if (there == nullptr || rtx::load<OSUINT32>(there) != setupTag)
                       {
                           tell(*member.type, memberAt(member, value.at));
                       }
                   }
               });
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

// No spare value is sent, and no dummy.
void genSpareValue(Check& check)
{
    forMessage(
        check,
        [&](const Value& value)
        {
            const bool isEnumerated = value.type.kind == rtx::Kind::Enumerated;
            const int64_t number = isEnumerated                           ? rtx::loadNumber(value.type, value.at)
                                   : value.type.kind == rtx::Kind::Choice ? rtx::load<OSUINT32>(value.at) - int64_t{1}
                                                                          : -1;
            const int64_t last = isEnumerated ? value.type.upper : int64_t{value.type.memberCount} - 1;
            if (number >= 0 && number <= last && std::string_view(value.type.names[number]).starts_with("spare"))
            {
                check.tell(value.isOptional ? RRC_RULE_WARNING : RRC_RULE_ERROR, value.type, value.at)
                    .allowed("a spare value means nothing to a UE: %s",
                             value.isOptional ? "it takes the member for absent" : "a member that it needs is missing");
            }
            if (value.isOptional && contains(value.name, "dummy"))
            {
                check.tell(RRC_RULE_NOTICE, value.type, value.at).allowed("a UE ignores it");
            }
        });
}

// Containers that do nothing without a member: all of theirs keep or replace something by themselves.
constexpr const char* containers[] = {"UplinkConfig",
                                      "BWP-DownlinkDedicated",
                                      "BWP-UplinkDedicated",
                                      "PDCCH-ServingCellConfig",
                                      "PDCCH-Config",
                                      "PUCCH-Config",
                                      "SRS-Config",
                                      "CSI-MeasConfig",
                                      "RadioLinkMonitoringConfig",
                                      "SchedulingRequestConfig",
                                      "TAG-Config",
                                      "TDD-UL-DL-ConfigDedicated",
                                      "SRS-CC-SetIndex"};

// A container that is present has a member.
void genEmptyContainer(Check& check)
{
    forMessage(check,
               [&](const Value& value)
               {
                   const auto is = [&](const char* name)
                   {
                       return std::string_view(value.type.name) == name;
                   };
                   // A new bandwidth part has bwp-Dedicated, be it empty.
                   if (value.type.kind != rtx::Kind::Sequence || contains(value.name, "bwp-Dedicated") ||
                       std::none_of(std::begin(containers), std::end(containers), is))
                   {
                       return;
                   }
                   for (unsigned i = 0; i < value.type.memberCount; ++i)
                   {
                       if (isSentMember(value.type, i, value.at))
                       {
                           return;
                       }
                   }
                   check.tell(RRC_RULE_WARNING, value.type, value.at)
                       .found("empty")
                       .allowed("it says nothing without a member");
               });
}

constexpr Rule table[] = {
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
     .run = genDupId},
    {.told = {.id = "gen-add-and-release",
              .severity = RRC_RULE_NOTICE,
              .statement = "An id that is released and added in one message is legal, and names a new element.",
              .advice = "Leave the id out of the release list if the element is to be modified.",
              .clause = "TS 38.331 A.3.9, 5.3.5.5",
              .given = "A delta.",
              .bad = "rlc-BearerToReleaseList[0] = 4",
              .good = "rlc-BearerToReleaseList[0] = 5",
              .since = "0.1.0"},
     .run = genAddAndRelease},
    {.told = {.id = "gen-release-unknown",
              .severity = RRC_RULE_WARNING,
              .statement = "What is released was configured before; where nothing was, there is nothing to release.",
              .advice = "Drop the release, or look for what was meant to be configured.",
              .clause = "TS 38.331 A.3.9, 5.3.5.11",
              .given = "",
              .bad = AT_MAC "drx-Config = absent\n" AT_MAC "drx-Config.release = null",
              .good = AT_MAC "drx-Config = absent",
              .since = "0.1.0"},
     .run = genReleaseUnknown},
    {.told = {.id = "gen-setup-content",
              .severity = RRC_RULE_ERROR,
              .statement = "The masterCellGroup of RRCSetup has the RLC bearer of SRB1, MAC and physical layer and the "
                           "dedicated configuration of the SpCell, and nothing else.",
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
     .run = genSpareValue},
    {.told = {.id = "gen-empty-container",
              .severity = RRC_RULE_WARNING,
              .statement = "A container whose members all are optional has at least one where it is present.",
              .advice = "Leave it out, or say what is to be configured.",
              .clause = "TS 38.331 6.1.2",
              .given = "",
              .bad = AT_CELL "tdd-UL-DL-ConfigurationDedicated = {}",
              .good = AT_CELL
              "tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList[0].slotIndex = 3\n" AT_CELL
              "tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList[0].symbols."
              "explicit.nrofDownlinkSymbols = 10",
              .since = "0.1.0"},
     .run = genEmptyContainer},
};

} // namespace

constinit const RuleGroup genRules = groupOf(table);

} // namespace rules
