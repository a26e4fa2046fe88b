#include "finding.h"

#include "counterparts.h"

#include <algorithm>

namespace rules
{
namespace
{

bool before(const Finding& finding, const void* at, size_t size)
{
    return finding.at != at ? finding.at < at : finding.size < size;
}

// What lies at a place, in the words of the value notation where they are short.
void describe(rtx::Line& line, const RtxType& type, const void* value)
{
    const auto bits = [&](const auto& string, OSUINT32 count)
    {
        rtx::append(line, "'");
        for (OSUINT32 i = 0; i < count; ++i)
        {
            rtx::append(line, "%c", hasBit(string, i) ? '1' : '0');
        }
        rtx::append(line, "'B");
    };
    switch (type.kind)
    {
    case rtx::Kind::Boolean:
        rtx::append(line, "%s", rtx::load<OSBOOL>(value) != 0 ? "TRUE" : "FALSE");
        break;
    case rtx::Kind::Integer:
        rtx::append(line, "%" PRId64, rtx::loadNumber(type, value));
        break;
    case rtx::Kind::Enumerated:
    {
        const int64_t number = rtx::loadNumber(type, value);
        rtx::append(line, "%s", number <= type.upper ? type.names[number] : "no value");
        break;
    }
    case rtx::Kind::BitStr32:
    {
        const auto string = rtx::load<ASN1BitStr32>(value);
        bits(string, rtx::bitCount(string));
        break;
    }
    case rtx::Kind::BitOctets:
        bits(static_cast<const OSOCTET*>(value), static_cast<OSUINT32>(type.upper));
        break;
    case rtx::Kind::Choice:
    {
        const auto tag = rtx::load<OSUINT32>(value);
        rtx::append(line, "%s", rtx::wrongTag(type, tag).status == RTX_OK ? type.names[tag - 1] : "no alternative");
        break;
    }
    case rtx::Kind::Array:
    case rtx::Kind::List:
    {
        const OSUINT32 count =
            type.kind == rtx::Kind::List ? rtx::load<OSRTDList>(value).count : rtx::countOf(type, value);
        rtx::append(line, "%u element%s", count, rtx::plural(count));
        break;
    }
    case rtx::Kind::Null:
    case rtx::Kind::Sequence:
        rtx::append(line, "present");
        break;
    }
}

// A structure that is nothing but its first member is at the same place.
bool isWrapper(const RtxType& type)
{
    return type.kind == rtx::Kind::Sequence && type.memberCount == 1 && type.members[0].type->size == type.size;
}

} // namespace

int64_t Places::tell(Vector<Finding*>& findings, const CellGroupConfig& after, const CellGroupConfig& message)
{
    left_ = findings.size();
    open_ = {findings.begin(), left_};
    std::sort(open_.begin(), open_.end(),
              [](const Finding* a, const Finding* b)
              {
                  const bool isSame = a->at == b->at && a->size == b->size;
                  return isSame ? a->number < b->number : before(*a, b->at, b->size);
              });
    const RtxType& type = *asn1Type_CellGroupConfig();
    walk(type, &after, &message, nullptr);
    if (&message != &after)
    {
        walk(type, &message, &message, nullptr);
    }
    for (const Finding* finding : open_) // of what a broken list hides
    {
        if (!finding->told && !ended_)
        {
            tellOne(*finding, type, true, true, nullptr);
        }
    }
    return told_;
}

void Places::look(const RtxType& type, const void* value, bool present, bool inMessage, const Place* place)
{
    if (present && isWrapper(type))
    {
        return;
    }
    Finding** i =
        std::lower_bound(open_.data(), open_.data() + open_.size(), value,
                         [&](const Finding* finding, const void* at) { return before(*finding, at, type.size); });
    for (; i != open_.data() + open_.size() && (*i)->at == value && (*i)->size == type.size && !ended_; ++i)
    {
        if (!(*i)->told)
        {
            (*i)->told = true;
            --left_;
            tellOne(**i, type, present, inMessage, place);
        }
    }
}

// `sent` is the same place in the message, whose elements are counted; null where the message does not have it.
void Places::walk(const RtxType& type, const void* value, const void* sent, const Place* place)
{
    look(type, value, true, sent != nullptr, place);
    if (left_ == 0 || ended_)
    {
        return;
    }
    switch (type.kind)
    {
    case rtx::Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            member(type, i, value, sent, place);
        }
        break;
    case rtx::Kind::Choice:
        alternative(type, value, sent, place);
        break;
    case rtx::Kind::Array:
        array(type, value, sent != nullptr, place);
        break;
    case rtx::Kind::List:
        list(type, value, sent, place);
        break;
    default:
        break;
    }
}

void Places::member(const RtxType& type, unsigned number, const void* structure, const void* sent, const Place* place)
{
    const rtx::Member& member = type.members[number];
    const Place at{place, named(type.names[number])};
    const void* const value = static_cast<const OSOCTET*>(structure) + member.offset;
    if (!rtx::isPresent(member, structure))
    {
        look(*member.type, value, false, sent != nullptr, &at);
        return;
    }
    const void* const sentMember =
        sent != nullptr && rtx::isPresent(member, sent) ? static_cast<const OSOCTET*>(sent) + member.offset : nullptr;
    walk(*member.type, value, sentMember, &at);
}

void Places::alternative(const RtxType& type, const void* choice, const void* sent, const Place* place)
{
    const auto tag = rtx::load<OSUINT32>(choice);
    if (rtx::wrongTag(type, tag).status != RTX_OK)
    {
        return;
    }
    const rtx::Member& member = type.members[tag - 1];
    const Place at{place, named(type.names[tag - 1])};
    const auto content = [&](const void* of) -> const void*
    {
        if (of == nullptr || rtx::load<OSUINT32>(of) != tag)
        {
            return nullptr;
        }
        if (member.step != rtx::Step::Pointer)
        {
            return static_cast<const OSOCTET*>(of) + member.offset;
        }
        const auto* const p = rtx::load<const void*>(of, member.offset);
        return rtx::refuse(&tree_.heap(), p, *member.type) == RTX_OK ? p : nullptr;
    };
    if (const void* const value = content(choice))
    {
        walk(*member.type, value, content(sent), &at);
    }
}

void Places::list(const RtxType& type, const void* list, const void* sent, const Place* place)
{
    Matching inMessage(type, sent == list ? nullptr : sent);
    uint32_t reached = 0;
    const auto each = [&](uint32_t index, const void* data)
    {
        if (left_ == 0 || ended_ || rtx::refuse(&tree_.heap(), data, type.element()) != RTX_OK)
        {
            return;
        }
        OSUINT32 number = index;
        const void* sentElement = sent == list ? data : nullptr;
        if (sent != nullptr && sent != list)
        {
            sentElement = inMessage.find(data, index);
            number = sentElement == nullptr ? index : inMessage.index();
        }
        const Place at{place, elementStep(type, number, data)};
        walk(type.element(), data, sentElement, &at);
    };
    const auto nodes = rtx::load<OSRTDList>(list);
    (void)rtx::forNodes(&tree_.heap(), nodes, std::min(nodes.count, mostElements), reached, each);
}

void Places::array(const RtxType& type, const void* array, bool inMessage, const Place* place)
{
    const OSUINT32 number = std::min(rtx::countOf(type, array), static_cast<OSUINT32>(type.upper));
    const OSOCTET* const elements = static_cast<const OSOCTET*>(array) + type.members->offset;
    for (OSUINT32 i = 0; i < number; ++i)
    {
        const Place at{place, {nullptr, i, nullptr, 0}};
        look(type.element(), elements + size_t{i} * type.element().size, true, inMessage, &at);
    }
}

void Places::tellOne(const Finding& finding, const RtxType& type, bool present, bool inMessage, const Place* place)
{
    ++told_;
    const Path path(place);
    char text[320];
    rtx::Line line(text, sizeof text);
    present ? describe(line, type, finding.at) : rtx::append(line, "absent");
    RrcRuleFinding told{};
    told.rule = finding.rule->id;
    told.severity = finding.severity;
    told.decidedBy = finding.decidedBy;
    told.found = finding.found != nullptr ? finding.found : text;
    told.allowed = finding.allowed;
    told.advice = finding.advice != nullptr ? finding.advice : finding.rule->advice;
    told.clause = finding.rule->clause;
    told.value = finding.at;
    told.configuredBefore = inMessage ? 0 : 1;
    told.depth = path.depth;
    told.path = path.steps;
    ended_ = sink_(arg_, &told) != 0;
}

void Places::tellUndecided(const RrcRule& rule, OSUINT32 inputs)
{
    if (ended_)
    {
        return;
    }
    RrcRuleFinding told{};
    told.rule = rule.id;
    told.severity = RRC_RULE_UNDECIDED;
    told.decidedBy = inputs;
    told.found = "";
    told.allowed = "";
    told.advice = rule.statement;
    told.clause = rule.clause;
    ended_ = sink_(arg_, &told) != 0;
}

} // namespace rules
