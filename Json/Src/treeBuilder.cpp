#include "treeBuilder.h"
#include "rtxTree.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>

namespace text
{
namespace
{

using rtx::Addition;
using rtx::hasFlag;
using rtx::Kind;
using rtx::Member;
using rtx::Step;

constexpr const char* unknownAdditions = "$unknownAdditions";
constexpr const char* unknownAlternative = "$unknownAlternative";
constexpr std::int64_t lastAddition = 16382;       // X.691 11.9.3.4: a bitmap below 16K bits
constexpr std::int64_t lastAlternative = 0xFFFFFF; // X.691 11.6: what the decoder takes

// What this release does not know, described as the schema's types are: SEQUENCE { index, octets }.
constexpr RtxType indexType = {.name = "index", .kind = Kind::Integer, .width = 4, .size = 4};
constexpr RtxType octetsType = {.name = "octets", .kind = Kind::BitOctets, .size = sizeof(ASN1OpenType)};
const char* const openNames[] = {"index", "octets"};
constexpr Member openMembers[] = {
    rtx::member(indexType, offsetof(ASN1OpenType, index)),
    rtx::member(octetsType, 0),
};
constexpr RtxType openType = {.name = "unknown",
                              .kind = Kind::Sequence,
                              .size = sizeof(ASN1OpenType),
                              .names = openNames,
                              .members = openMembers,
                              .memberCount = 2,
                              .rootCount = 2};
constexpr Member openElement = rtx::member(openType, 0);
constexpr RtxType openListType = {.name = unknownAdditions,
                                  .kind = Kind::List,
                                  .size = sizeof(OSRTDList),
                                  .lower = 1,
                                  .upper = lastAddition + 1,
                                  .members = &openElement,
                                  .memberCount = 1,
                                  .rootCount = 1};

template <typename T>
void put(OSOCTET* to, T value)
{
    std::memcpy(to, &value, sizeof value);
}

void putInteger(OSOCTET* to, unsigned width, std::int64_t value)
{
    switch (width)
    {
    case 1:
        return put(to, static_cast<OSUINT8>(value));
    case 2:
        return put(to, static_cast<OSUINT16>(value));
    default:
        return put(to, static_cast<OSUINT32>(value));
    }
}

void setFlag(OSOCTET* structure, int flag)
{
    structure[flag / 8] = static_cast<OSOCTET>(structure[flag / 8] | 1U << rtx::flagShift(flag));
}

unsigned find(const RtxType& type, std::string_view name)
{
    const auto* const end = type.names + type.memberCount;
    const auto* const found = std::find(type.names, end, name);
    const bool unknown = type.extensible && name == (type.kind == Kind::Choice ? unknownAlternative : unknownAdditions);
    // What has no name in this release stands behind the members.
    return static_cast<unsigned>(found - type.names) + (found == end && !unknown ? 1 : 0);
}

const char* nameOf(const RtxType& type, unsigned member)
{
    return member < type.memberCount     ? type.names[member]
           : type.kind == Kind::Sequence ? unknownAdditions
                                         : unknownAlternative;
}

std::string namesOr(const char* few, const char* const* names, std::size_t count, const char* many)
{
    constexpr std::size_t most = 8;
    return count <= most ? few + oneOf(names, count) : many;
}

// Hexadecimal digits of a bit string: whole octets.
std::size_t digitsOf(const RtxType& type)
{
    return (static_cast<std::size_t>(type.upper) + 7) / 8 * 2;
}

std::string expected(const RtxType& type)
{
    if (&type == &indexType)
    {
        return "an integer";
    }
    if (&type == &octetsType)
    {
        return "a string of hexadecimal digits";
    }
    switch (type.kind)
    {
    case Kind::Boolean:
        return "true or false";
    case Kind::Null:
        return "null";
    case Kind::Integer:
        return (type.lower == type.upper ? "the integer " : "an integer in ") + range(type.lower, type.upper);
    case Kind::Enumerated:
        return namesOr("", type.names, static_cast<std::size_t>(type.upper) + 1, "a string, the name of a value");
    case Kind::BitStr32:
    case Kind::BitOctets:
        return "a string of " + std::to_string(digitsOf(type)) + " hexadecimal digits";
    case Kind::Sequence:
        return "an object";
    case Kind::Choice:
        return namesOr("an object with one member, ", type.names, type.memberCount, "an object with one member");
    case Kind::Array:
    case Kind::List:
        break;
    }
    return "an array of " + range(type.lower, type.upper) + " element" + (type.upper == 1 ? "" : "s");
}

unsigned takes(Kind kind)
{
    switch (kind)
    {
    case Kind::Boolean:
        return booleanForm;
    case Kind::Null:
        return nullForm;
    case Kind::Integer:
        return integerForm;
    case Kind::Enumerated:
        return nameForm;
    case Kind::BitStr32:
    case Kind::BitOctets:
        return stringForm;
    default:
        return 0;
    }
}

} // namespace

TreeBuilder::TreeBuilder(OSCTXT& ctxt, const RtxType& type, void* value, Mistakes& mistakes)
    : ctxt_(ctxt), type_(type), value_(static_cast<OSOCTET*>(value)), mistakes_(mistakes)
{
}

std::string TreeBuilder::path() const
{
    const bool within = !frames_.empty() && isObject(frames_.back()) && frames_.back().pending;
    return pathTo(frames_.size() - (frames_.empty() || within ? 0 : 1));
}

// The root's name and the steps that lead out of the outermost frames.
std::string TreeBuilder::pathTo(std::size_t depth) const
{
    std::string path = type_.name;
    for (std::size_t i = 0; i < depth; ++i)
    {
        const Frame& frame = frames_[i];
        if (isObject(frame))
        {
            path += '.';
            path += nameOf(*frame.type, frame.member);
        }
        else
        {
            path += '[' + std::to_string(frame.count - 1 + frame.gap) + ']';
        }
    }
    return path;
}

// About the place that the innermost frame has come to.
void TreeBuilder::mistake(std::size_t offset, std::string words)
{
    mistakes_.add(offset, pathTo(frames_.size()), std::move(words));
}

// About the innermost frame itself.
void TreeBuilder::mistakeOfFrame(std::size_t offset, std::string words)
{
    mistakes_.add(offset, pathTo(frames_.size() - 1), std::move(words));
}

OSOCTET* TreeBuilder::allocate(std::size_t octets, std::size_t offset)
{
    void* const p = rtxMemHeapAlloc(&ctxt_, octets);
    if (p == nullptr)
    {
        mistake(offset, "the context's heap is exhausted: " + plural(static_cast<std::int64_t>(octets), "octet") +
                            " asked for");
        mistakes_.stop();
    }
    return static_cast<OSOCTET*>(p);
}

void TreeBuilder::beginObject(std::size_t offset)
{
    begin(offset, true, "an object");
}

void TreeBuilder::beginArray(std::size_t offset)
{
    begin(offset, false, "an array");
}

void TreeBuilder::begin(std::size_t offset, bool object, const char* found)
{
    Place place{};
    if (skipped_ != 0 || !next(offset, place))
    {
        ++skipped_;
        return;
    }
    const Kind kind = place.type->kind;
    const bool fits =
        object ? kind == Kind::Sequence || kind == Kind::Choice : kind == Kind::Array || kind == Kind::List;
    if (!fits)
    {
        mistake(offset, "expected " + expected(*place.type) + ", found " + found);
        ++skipped_;
        return;
    }
    if (frames_.size() == RTX_MAX_DEPTH)
    {
        mistake(offset, "the element tree is deeper than " + std::to_string(RTX_MAX_DEPTH));
        ++skipped_;
        return;
    }
    frames_.push_back({place.type, place.to, offset, offset, 0, false, 0, 0, seen_.size()});
    seen_.resize(seen_.size() + (object ? place.type->memberCount + 1U : 0));
}

// Where a value that begins now belongs; false when it is passed over.
bool TreeBuilder::next(std::size_t offset, Place& place)
{
    if (mistakes_.full())
    {
        return false;
    }
    if (frames_.empty())
    {
        place = {&type_, value_};
        if (begun_)
        {
            mistake(offset, "given twice");
            return false;
        }
        begun_ = true;
        return true;
    }
    Frame& frame = frames_.back();
    frame.offset = offset;
    return isObject(frame) ? nextMember(frame, place) : nextElement(frame, place);
}

bool TreeBuilder::nextMember(Frame& frame, Place& place)
{
    const RtxType& type = *frame.type;
    if (!frame.pending)
    {
        return false;
    }
    frame.pending = false;
    if (frame.member == type.memberCount)
    {
        return unknownPlace(frame, place);
    }
    const Member& member = type.members[frame.member];
    place = {member.type, frame.to + member.offset};
    if (type.kind == Kind::Choice)
    {
        put(frame.to, static_cast<OSUINT32>(frame.member + 1));
        if (member.step == Step::Pointer)
        {
            OSOCTET* const storage = allocate(member.type->size, frame.offset);
            put(place.to, storage);
            place.to = storage;
        }
        return place.to != nullptr;
    }
    if (member.flag >= 0)
    {
        setFlag(frame.to, member.flag);
    }
    const auto* const end = type.additions + type.additionCount;
    const auto* const addition =
        std::find_if(type.additions, end,
                     [&](const Addition& a) { return frame.member - a.first < a.count && frame.member >= a.first; });
    if (addition != end && addition->flag >= 0)
    {
        setFlag(frame.to, addition->flag);
    }
    return true;
}

bool TreeBuilder::unknownPlace(Frame& frame, Place& place)
{
    OSOCTET* const to = frame.to + frame.type->extElem;
    place = {&openListType, to};
    if (frame.type->kind == Kind::Choice)
    {
        place = {&openType, allocate(sizeof(ASN1OpenType), frame.offset)};
        put(to, place.to);
    }
    return place.to != nullptr;
}

bool TreeBuilder::nextElement(Frame& frame, Place& place)
{
    const RtxType& type = *frame.type;
    const RtxType& element = type.element();
    ++frame.count;
    if (frame.count > static_cast<std::uint32_t>(type.upper))
    {
        if (frame.count == static_cast<std::uint32_t>(type.upper) + 1)
        {
            frame.begin = frame.offset; // the number of elements is said at their end, of the first one too many
        }
        return false;
    }
    if (type.kind == Kind::Array)
    {
        place = {&element, frame.to + type.members->offset + std::size_t{frame.count - 1} * element.size};
        return true;
    }
    auto* const node = reinterpret_cast<OSRTDListNode*>(allocate(sizeof(OSRTDListNode) + element.size, frame.offset));
    if (node == nullptr)
    {
        return false;
    }
    node->data = node + 1;
    rtxDListAppendNode(reinterpret_cast<OSRTDList*>(frame.to), node);
    place = {&element, static_cast<OSOCTET*>(node->data)};
    return true;
}

void TreeBuilder::member(std::size_t offset, std::string_view name)
{
    if (skipped_ != 0)
    {
        return;
    }
    Frame& frame = frames_.back();
    const RtxType& type = *frame.type;
    const unsigned index = find(type, name);
    const std::uint32_t before = frame.count++;
    frame.pending = false;
    if (index > type.memberCount)
    {
        const bool isRemark = name == "$error" || name == "$invalid" || name == "$notRead" || name == "$value";
        mistakeOfFrame(offset, isRemark ? "no whole value was written: " + quoted(name)
                                        : (type.kind == Kind::Choice ? "unknown alternative " : "unknown member ") +
                                              quoted(name) + suggestion(name, type.names, type.memberCount));
        return;
    }
    const unsigned first = frame.member;
    frame.member = index;
    if (seen_[frame.seen + index])
    {
        mistake(offset, "given twice");
    }
    else if (type.kind == Kind::Choice && before != 0 && seen_[frame.seen + first])
    {
        frame.member = first;
        mistakeOfFrame(offset, "a second alternative, " + quoted(name) + " beside " + quoted(nameOf(type, first)));
    }
    else
    {
        frame.pending = true;
    }
    seen_[frame.seen + index] = true;
}

void TreeBuilder::element(std::size_t offset, std::uint64_t index)
{
    if (skipped_ != 0)
    {
        return;
    }
    Frame& frame = frames_.back();
    const std::uint64_t next = frame.count + frame.gap;
    if (index != next)
    {
        const std::string at = '[' + std::to_string(index) + ']';
        mistakeOfFrame(offset, index < next
                                   ? at + " is given twice"
                                   : at + " without [" + std::to_string(next) + "]: elements are counted from 0");
        frame.gap = index - std::min<std::uint64_t>(index, frame.count);
    }
}

void TreeBuilder::endObject()
{
    end();
}

void TreeBuilder::endArray()
{
    end();
}

void TreeBuilder::end()
{
    if (skipped_ != 0)
    {
        --skipped_;
        return;
    }
    const Frame frame = frames_.back();
    switch (frame.type->kind)
    {
    case Kind::Sequence:
        endSequence(frame);
        break;
    case Kind::Choice:
        if (frame.count == 0)
        {
            mistakeOfFrame(frame.begin, "no alternative; expected " + expected(*frame.type));
        }
        break;
    default:
        endList(frame);
        break;
    }
    seen_.resize(frame.seen);
    frames_.pop_back();
}

void TreeBuilder::endSequence(const Frame& frame)
{
    const RtxType& type = *frame.type;
    requireMembers(frame, 0, type.rootCount);
    for (unsigned i = 0; i < type.additionCount; ++i)
    {
        const Addition& addition = type.additions[i];
        if (addition.flag >= 0 && hasFlag(frame.to, addition.flag))
        {
            requireMembers(frame, addition.first, addition.count);
        }
    }
    if (&type == &openType && seen_[frame.seen] && seen_[frame.seen + 1])
    {
        endUnknown(frame);
    }
}

void TreeBuilder::requireMembers(const Frame& frame, unsigned first, unsigned count)
{
    const RtxType& type = *frame.type;
    for (unsigned i = first; i < first + count; ++i)
    {
        if (type.members[i].flag < 0 && !seen_[frame.seen + i])
        {
            mistakeOfFrame(frame.begin, "mandatory member \"" + std::string(type.names[i]) + "\" is missing");
        }
    }
}

// An unknown alternative's number makes the tag. Those of additions ascend; in the tree they begin behind the known
// ones.
void TreeBuilder::endUnknown(const Frame& frame)
{
    auto& unknown = *reinterpret_cast<ASN1OpenType*>(frame.to);
    const Frame& owner = frames_[frames_.size() - 2];
    if (owner.type->kind == Kind::Choice)
    {
        put(owner.to, unknown.index + owner.type->rootCount + 1);
        return;
    }
    const unsigned known = frames_[frames_.size() - 3].type->additionCount;
    const OSRTDListNode* const node = reinterpret_cast<const OSRTDList*>(owner.to)->tail->prev;
    const auto* const before = node != nullptr ? static_cast<const ASN1OpenType*>(node->data) : nullptr;
    unknown.index -= known;
    if (before != nullptr && unknown.index <= before->index)
    {
        mistakeOfFrame(frame.begin, "index " + std::to_string(unknown.index + known) + " behind " +
                                        std::to_string(before->index + known) + ": they have to ascend");
    }
}

void TreeBuilder::endList(const Frame& frame)
{
    const RtxType& type = *frame.type;
    const auto most = static_cast<std::uint32_t>(type.upper);
    if (frame.count < static_cast<std::uint32_t>(type.lower) || frame.count > most)
    {
        mistakeOfFrame(frame.begin, plural(frame.count, "element") + ", not " + range(type.lower, type.upper));
    }
    else if (type.kind == Kind::Array && type.lower != type.upper)
    {
        putInteger(frame.to, type.width, frame.count);
    }
}

void TreeBuilder::scalar(std::size_t offset, const Scalar& scalar)
{
    Place place{};
    if (skipped_ != 0 || !next(offset, place))
    {
        return;
    }
    if ((scalar.forms & takes(place.type->kind)) != 0)
    {
        store(offset, place, scalar.text);
        return;
    }
    if (scalar.text.starts_with('$') && (scalar.forms & stringForm) != 0)
    {
        mistake(offset, "no whole value was written: " + quoted(scalar.text));
        return;
    }
    std::string words = "expected " + expected(*place.type) + ", found " + describe(scalar);
    if (scalar.forms == fractionForm && place.type->kind == Kind::Integer)
    {
        words += "; an integer has no point and no exponent";
    }
    if (scalar.forms == nullForm)
    {
        words += "; what is absent is left out";
    }
    mistake(offset, words);
}

void TreeBuilder::store(std::size_t offset, const Place& place, std::string_view text)
{
    switch (place.type->kind)
    {
    case Kind::Boolean:
        put<OSBOOL>(place.to, text == "true" ? 1 : 0);
        break;
    case Kind::Integer:
        integer(offset, place, text);
        break;
    case Kind::Enumerated:
        enumerated(offset, place, text);
        break;
    case Kind::BitStr32:
    case Kind::BitOctets:
        place.type == &octetsType ? octets(offset, place.to, text) : bits(offset, place, text);
        break;
    default: // NULL has no storage
        break;
    }
}

// The bounds of an unknown addition's or alternative's index: behind those that this release knows.
TreeBuilder::Bounds TreeBuilder::indexBounds() const
{
    const RtxType& owner = *frames_[frames_.size() - 2].type;
    if (owner.kind == Kind::Choice)
    {
        return {owner.memberCount - owner.rootCount, lastAlternative};
    }
    return {frames_[frames_.size() - 3].type->additionCount, lastAddition};
}

void TreeBuilder::integer(std::size_t offset, const Place& place, std::string_view text)
{
    const RtxType& type = *place.type;
    const Bounds bounds = &type == &indexType ? indexBounds() : Bounds{type.lower, type.upper};
    std::int64_t value = 0;
    const bool fits = std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc();
    if (!fits || value < bounds.lower || value > bounds.upper)
    {
        mistake(offset,
                shown(text) + " is not in " + std::to_string(bounds.lower) + ".." + std::to_string(bounds.upper));
        return;
    }
    putInteger(place.to, type.width, value);
}

void TreeBuilder::enumerated(std::size_t offset, const Place& place, std::string_view text)
{
    const RtxType& type = *place.type;
    const std::size_t count = static_cast<std::size_t>(type.upper) + 1;
    const auto* const found = std::find(type.names, type.names + count, text);
    if (found == type.names + count)
    {
        mistake(offset, "unknown value " + quoted(text) + suggestion(text, type.names, count));
        return;
    }
    put(place.to, static_cast<OSUINT32>(found - type.names));
}

bool TreeBuilder::areDigits(std::size_t offset, std::string_view text)
{
    const std::size_t other = text.find_first_not_of("0123456789abcdefABCDEF");
    if (other != std::string_view::npos)
    {
        mistake(offset, quoted(text) + " is not hexadecimal: " + quoted(text.substr(other, 1)));
    }
    return other == std::string_view::npos;
}

void TreeBuilder::bits(std::size_t offset, const Place& place, std::string_view text)
{
    const RtxType& type = *place.type;
    if (!areDigits(offset, text))
    {
        return;
    }
    if (text.size() != digitsOf(type))
    {
        mistake(offset, plural(type.upper, "bit") + " take " +
                            plural(static_cast<std::int64_t>(digitsOf(type)), "hexadecimal digit") + ", not " +
                            std::to_string(text.size()));
        return;
    }
    const bool small = type.kind == Kind::BitStr32;
    OSOCTET* const to = place.to + (small ? offsetof(ASN1BitStr32, data) : 0);
    putHexadecimal(to, text);
    const unsigned padding = static_cast<unsigned>(8 - type.upper % 8) % 8;
    if ((to[text.size() / 2 - 1] & ((1U << padding) - 1)) != 0)
    {
        mistake(offset, "the last " + plural(padding, "bit") + " of " + quoted(text) + " are padding and have to be 0");
    }
    if (small)
    {
        put(place.to, static_cast<OSUINT32>(type.upper));
    }
}

void TreeBuilder::octets(std::size_t offset, OSOCTET* to, std::string_view text)
{
    if (!areDigits(offset, text))
    {
        return;
    }
    if (text.empty() || text.size() % 2 != 0)
    {
        mistake(offset, "whole octets take an even number of hexadecimal digits, at least 2, not " +
                            std::to_string(text.size()));
        return;
    }
    OSOCTET* const data = allocate(text.size() / 2, offset);
    if (data != nullptr)
    {
        putHexadecimal(data, text);
        auto& open = *reinterpret_cast<ASN1OpenType*>(to);
        open.numocts = static_cast<OSUINT32>(text.size() / 2);
        open.data = data;
    }
}

} // namespace text
