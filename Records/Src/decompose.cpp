// From an element tree back to the record: the description's ways, walked from the record's side.
#include "rrcDecompose.h"

#include <algorithm>
#include <bit>
#include <cinttypes>
#include <cstring>

#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "recordOps.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordType.h"
#include "rtxHeap.h"
#include "rtxLine.h"
#include "rtxTree.h"

namespace decompose
{
namespace
{

using rtx::Kind;
using rtx::Type;

// An alternative that a record names and that its composer cannot send (docs/behaviour.md).
struct Refused
{
    const Type* choice;
    unsigned alternative;
};

constexpr Refused refusedAlternatives[] = {
    {&nr_rrc::type_ServingCellConfigCommon_ssb_PositionsInBurst, 2}, // longBitmap: its tag is not written
    {&nr_rrc::type_CodebookConfig_codebookType_type1_subType, 1},    // typeI-MultiPanel: ri-Restriction of 8 bits
};

// A place in the element tree.
struct Place
{
    const Type* type;
    const void* value;     // null: an empty sequence
    bool optional = false; // an optional member lies on the way to it
    unsigned steps = 0;    // of the way that were taken: up to the entries of a list
};

// What became of a field or a choice.
enum class Said : uint8_t
{
    Absent, // the tree has no such thing
    Yes,
    No // the tree has it, and the record cannot say it
};

struct Answer
{
    Said said;
    bool optional; // a record may do without it
};

// The mask bits of a record that its fields ask for: one that is asked for and refused stays clear.
class Guards
{
public:
    Guards(const RrcRecordType& type, void* record) : type_(type), record_(static_cast<OSOCTET*>(record)) {}

    void add(Answer answer, INT16 guard)
    {
        if (answer.said == Said::Yes && guard >= 0)
        {
            const RrcRecordBit& bit = type_.bits[guard];
            add(type_.fields[bit.mask], bit.number);
        }
        else if (answer.said == Said::No)
        {
            refused_ |= guard < 0 ? 0 : UINT64{1} << guard;
            complete_ = complete_ && answer.optional;
        }
    }

    void add(const RrcRecordField& mask, unsigned number)
    {
        add(mask.offset + number / 8U, static_cast<UINT8>(1U << number % 8));
    }

    void add(UINT32 octet, UINT8 bit)
    {
        static_assert(std::endian::native == std::endian::little);
        record_[octet] = static_cast<OSOCTET>(record_[octet] | bit);
    }

    // False: the record does not say something that its element cannot do without.
    bool finish()
    {
        for (; refused_ != 0; refused_ &= refused_ - 1)
        {
            const RrcRecordBit& bit = type_.bits[std::countr_zero(refused_)];
            const RrcRecordField& mask = type_.fields[bit.mask];
            rrcRecordStore(&mask, record_, 0, rrcRecordBits(&mask, record_, 0) & ~(UINT64{1} << bit.number));
        }
        return complete_;
    }

private:
    const RrcRecordType& type_;
    OSOCTET* record_;
    UINT64 refused_ = 0;
    bool complete_ = true;
};

class Decomposer
{
public:
    explicit Decomposer(const OSCTXT& ctxt) : ctxt_(ctxt) {}

    // Fills a record from its element, which is null where it is absent or empty. False: the record cannot say it.
    bool fill(const RrcRecordType& type, const void* element, void* record) const
    {
        const RrcRecordOp* const first = clear(type, record);
        Guards guards(type, record);
        for (UINT32 i = 0; i < type.choiceCount; ++i)
        {
            guards.add(choose(type, i, element, record, guards), type.fields[type.choices[i].selector].guard);
        }
        const RrcRecordOp* const end = type.ops + type.opCount;
        for (const RrcRecordOp* op = first; op != end; ++op)
        {
            if (element == nullptr || (op->flag >= 0 && !rtx::hasFlag(element, op->flag)))
            {
                if (op->isReadAnyway)
                {
                    leaveOut(type.fields[op->index], record);
                }
                continue;
            }
            const UINT8 code = op->code;
            if (code >= RrcRecordOp::Field)
            {
                slow(type, *op, element, record, guards);
                continue;
            }
            const void* const content = static_cast<const OSOCTET*>(element) + op->from;
            OSOCTET* const to = static_cast<OSOCTET*>(record) + op->offset;
            const UINT32 guard = op->guard;
            const UINT8 guardMask = op->guardMask;
            const bool said = code == RrcRecordOp::Number   ? storeNumber(*op, content, to)
                              : code == RrcRecordOp::Record ? fill(*type.fields[op->index].record, content, to)
                                                            : list(type, *op, content, record);
            if (!said)
            {
                guards.add({Said::No, op->flag >= 0}, type.fields[op->index].guard);
            }
            else if (guardMask != 0)
            {
                guards.add(guard, guardMask);
            }
        }
        if (type.element == &nr_rrc::type_PUCCH_Config)
        {
            limitReleasedSets(*static_cast<RrcPucchCfg_t*>(record));
        }
        return guards.finish();
    }

private:
    [[gnu::noinline]] bool list(const RrcRecordType& type, const RrcRecordOp& op, const void* content,
                                void* record) const
    {
        const RrcRecordField& field = type.fields[op.index];
        const Place place = {type.element->members[field.way.steps[0]].type, content};
        UINT32 used = 0;
        forEntries(place, field.bound,
                   [&](const void* data) { used += fill(*field.record, data, placeOf(field, record, used)) ? 1 : 0; });
        storeCount(type.fields[field.count], used, record);
        return used != 0;
    }

    // What is further away.
    [[gnu::noinline]] void slow(const RrcRecordType& type, const RrcRecordOp& op, const void* element, void* record,
                                Guards& guards) const
    {
        if (op.code != RrcRecordOp::Send)
        {
            guards.add(field(type, op.index, element, record), type.fields[op.index].guard);
            return;
        }
        Place place = {type.element, element};
        if (follow(type.bits[op.index].way, 0, place))
        {
            guards.add({Said::Yes, true}, static_cast<INT16>(op.index));
        }
    }

    static bool storeNumber(const RrcRecordOp& op, const void* from, void* to)
    {
        return storeNumber(rtx::loadInteger(from, op.fromSize, op.fromSigned != 0), op.size, op.isSigned != 0, to);
    }

    // Of the resource sets that are released the ids beyond the number of added sets go out as 0.
    static void limitReleasedSets(RrcPucchCfg_t& record)
    {
        const UINT8* const ids = record.resourceSetId;
        const UINT8* const sent = ids + std::min(record.numResourceSetAddMod, record.numResourceSetRel);
        const UINT8* const end = std::find_if(sent, ids + record.numResourceSetRel, [](UINT8 id) { return id != 0; });
        record.numResourceSetRel = static_cast<UINT8>(end - ids);
    }

    // Masks, counts and all that is sent without being switched on. Returns the first op that is none of these.
    static const RrcRecordOp* clear(const RrcRecordType& type, void* record)
    {
        const RrcRecordOp* op = type.ops;
        if (type.size <= records::smallRecord)
        {
            std::memset(record, 0, type.size);
            return op;
        }
        for (; op != type.ops + type.opCount && op->code == RrcRecordOp::Clear; ++op)
        {
            std::memset(static_cast<OSOCTET*>(record) + op->offset, 0, op->guard);
        }
        return op;
    }

    static void* placeOf(const RrcRecordField& field, void* record, UINT32 index)
    {
        return static_cast<unsigned char*>(record) + field.offset + size_t{index} * field.size;
    }

    // The way in the tree.

    // Goes on down a way, from its step `from` to the entries of a list or to its end. False: it is absent.
    bool follow(const RrcRecordWay& way, unsigned from, Place& place) const
    {
        for (; from < way.stepCount && way.steps[from] != RRC_STEP_ENTRY; ++from)
        {
            if (!(place.type->kind == Kind::Choice ? intoChosen(way.steps[from], place)
                                                   : intoMember(way.steps[from], place)))
            {
                return false;
            }
        }
        place.steps = from;
        return place.value != nullptr || place.type->kind == Kind::Sequence;
    }

    static bool intoMember(unsigned index, Place& place)
    {
        const Type& type = *place.type;
        const rtx::Member& member = type.members[index];
        place.optional = place.optional || member.flag >= 0;
        if (place.value == nullptr || !rtx::isPresent(member, place.value) || !inSentGroup(type, index, place.value))
        {
            return false;
        }
        place.value = rtx::at(place.value, member);
        place.type = member.type;
        return true;
    }

    static bool inSentGroup(const Type& type, unsigned index, const void* structure)
    {
        for (unsigned i = 0; index >= type.rootCount && i < type.additionCount; ++i)
        {
            const rtx::Addition& addition = type.additions[i];
            if (index - addition.first < addition.count)
            {
                return addition.flag < 0 || rtx::hasFlag(structure, addition.flag);
            }
        }
        return true;
    }

    bool intoChosen(unsigned index, Place& place) const
    {
        return place.value != nullptr && rtx::load<OSUINT32>(place.value) == index + 1 && intoAlternative(index, place);
    }

    // Of the choice at the place the alternative that is chosen. False: it cannot be read.
    bool intoAlternative(unsigned index, Place& place) const
    {
        const rtx::Member& member = place.type->members[index];
        place.type = member.type;
        place.value = rtx::at(place.value, member);
        if (member.step != rtx::Step::Pointer)
        {
            return true;
        }
        place.value = rtx::load<const void*>(place.value);
        return place.value == nullptr ? rtx::mayBeEmpty(*place.type)
                                      : rtx::refuse(&ctxt_, place.value, *place.type) == RTX_OK;
    }

    // Calls each(element) for the first `most` elements of a list or an array, as far as they can be followed.
    template <typename Each>
    void forEntries(const Place& place, UINT32 most, const Each& each) const
    {
        const Type& type = *place.type;
        if (type.kind == Kind::List)
        {
            const auto list = rtx::load<OSRTDList>(place.value);
            uint32_t reached = 0;
            const auto element = [&](uint32_t, const void* data)
            {
                if (rtx::refuse(&ctxt_, data, type.element()) == RTX_OK)
                {
                    each(data);
                }
            };
            (void)rtx::forNodes(&ctxt_, list, std::min(list.count, most), reached, element);
        }
        else if (type.kind == Kind::Array)
        {
            const UINT32 number = std::min({rtx::countOf(type, place.value), static_cast<UINT32>(type.upper), most});
            const auto* const first = static_cast<const OSOCTET*>(rtx::at(place.value, *type.members));
            for (UINT32 i = 0; i < number; ++i)
            {
                each(first + size_t{i} * type.element().size);
            }
        }
    }

    // Choices.

    // The option that goes out as what the choice at the place has chosen; null: a record has none.
    static const RrcRecordOption* optionOf(const RrcRecordChoice& choice, const Place& place)
    {
        const OSUINT32 tag = rtx::load<OSUINT32>(place.value);
        for (const Refused& refused : refusedAlternatives)
        {
            if (refused.choice == place.type && refused.alternative + 1 == tag)
            {
                return nullptr;
            }
        }
        if (tag - 1 < choice.optionCount && choice.options[tag - 1].alternative + 1U == tag &&
            choice.options[tag - 1].sentAs + 1U == tag)
        {
            return &choice.options[tag - 1]; // nearly always
        }
        const RrcRecordOption* found = nullptr;
        for (UINT32 i = 0; i < choice.optionCount; ++i)
        {
            const RrcRecordOption& option = choice.options[i];
            if (option.sentAs + 1U == tag && (found == nullptr || option.alternative == option.sentAs))
            {
                found = &option;
            }
        }
        return found;
    }

    // Makes a choice of the record and fills the fields that hold the alternative.
    [[gnu::noinline]] Answer choose(const RrcRecordType& type, UINT32 index, const void* element, void* record,
                                    Guards& guards) const
    {
        const RrcRecordChoice& choice = type.choices[index];
        Place place = {type.element, element};
        if (!follow(choice.way, 0, place))
        {
            return {Said::Absent, place.optional};
        }
        if (place.type->kind != Kind::Choice) // one choice for all entries of a list: that of the first
        {
            const void* first = nullptr;
            forEntries(place, 1, [&](const void* data) { first = data; });
            place = {&place.type->element(), first, place.optional};
        }
        const RrcRecordOption* const option = place.value == nullptr ? nullptr : optionOf(choice, place);
        if (option == nullptr || !intoAlternative(option->sentAs, place))
        {
            return {Said::No, place.optional};
        }
        const RrcRecordField& selector = type.fields[choice.selector];
        if (choice.byNumber != 0)
        {
            rrcRecordStore(&selector, record, 0, static_cast<UINT64>(option->number));
        }
        else if (option->number >= 0)
        {
            guards.add(selector, static_cast<unsigned>(option->number));
        }
        // The field that the option names is the first of those that hold the alternative.
        for (UINT32 i = option->field < 0 ? type.fieldCount : static_cast<UINT32>(option->field); i < type.fieldCount;
             ++i)
        {
            const RrcRecordField& field = type.fields[i];
            if (field.choice == static_cast<INT32>(index) && field.kind == RRC_FIELD_UNION && field.bound == 0)
            {
                guards.add(unionOf(field, option->member, place, record), field.guard);
            }
            else if (field.choice == static_cast<INT32>(index) &&
                     (field.alternative < 0 || field.alternative == option->sentAs))
            {
                guards.add(this->field(type, i, element, record, option->member, &place), field.guard);
            }
            if (field.alternative < 0)
            {
                break;
            }
        }
        return {Said::Yes, place.optional};
    }

    // Fills the member of a union that holds the alternative.
    Answer unionOf(const RrcRecordField& field, INT32 member, const Place& content, void* record) const
    {
        const RrcRecordField& held = field.record->fields[member];
        void* const to = placeOf(field, record, 0);
        Place place = content;
        const bool said = follow(held.way, 1, place) && (held.bound != 0 && held.kind != RRC_FIELD_OCTETS
                                                             ? entries(*field.record, held, place, to, -1)
                                                             : entry(held, place, to, 0, -1, nullptr));
        return {said ? Said::Yes : Said::No, content.optional};
    }

    // Fields.

    // Fills a field from the record's element; where it holds an alternative, its member from the alternative's
    // content.
    Answer field(const RrcRecordType& type, UINT32 index, const void* element, void* record, INT32 member = -1,
                 const Place* content = nullptr) const
    {
        const RrcRecordField& field = type.fields[index];
        const bool sent = field.way.path != nullptr && (field.flags & RRC_FIELD_NOT_SENT) == 0;
        if (field.kind == RRC_FIELD_ALTERNATIVE || (field.kind != RRC_FIELD_VALUE && !sent))
        {
            return {Said::Absent, true};
        }
        Place place = {type.element, element};
        if (field.kind == RRC_FIELD_VALUE)
        {
            if (content == nullptr)
            {
                return {Said::Absent, true};
            }
            place = *content;
        }
        else if (!follow(field.way, 0, place))
        {
            leaveOut(field, record);
            return {Said::Absent, place.optional};
        }
        const bool said = field.bound != 0 && field.kind != RRC_FIELD_OCTETS
                              ? entries(type, field, place, record, member)
                              : entry(field, place, record, 0, member, content);
        return {said ? Said::Yes : Said::No, place.optional || (field.flags & RRC_FIELD_ALWAYS_SENT) != 0};
    }

    // What is read all the same must not stay as it was.
    [[gnu::noinline]] void leaveOut(const RrcRecordField& field, void* record) const
    {
        if ((field.flags & RRC_FIELD_ELSE_ABSENT) != 0)
        {
            rrcRecordStore(&field, record, 0, static_cast<UINT64>(field.upper) + 1);
        }
        else if (field.kind == RRC_FIELD_RECORD && field.bound == 0 && field.guard < 0 && field.choice < 0)
        {
            (void)fill(*field.record, nullptr, placeOf(field, record, 0));
        }
    }

    // Fills an array and its count. False: the record can say none of the entries.
    bool entries(const RrcRecordType& type, const RrcRecordField& field, const Place& list, void* record,
                 INT32 member) const
    {
        UINT32 used = 0;
        const auto each = [&](const void* data)
        {
            Place place = {&list.type->element(), data};
            const bool there = field.kind == RRC_FIELD_VALUE || follow(field.way, list.steps + 1, place);
            used += there && entry(field, place, record, used, member, nullptr) ? 1 : 0;
        };
        forEntries(list, field.bound, each);
        if (field.count >= 0)
        {
            storeCount(type.fields[field.count], used, record);
            return used != 0;
        }
        for (UINT32 i = used; i < field.bound; ++i)
        {
            if (field.kind == RRC_FIELD_RECORD)
            {
                (void)fill(*field.record, nullptr, placeOf(field, record, i));
            }
            else
            {
                rrcRecordStore(&field, record, i, 0);
            }
        }
        return true;
    }

    // Fills a field, or an entry of an array. False: the record cannot say it.
    bool entry(const RrcRecordField& field, const Place& place, void* record, UINT32 index, INT32 member,
               const Place* content) const
    {
        if (field.record == nullptr)
        {
            return store(field, place, record, index);
        }
        void* const to = placeOf(field, record, index);
        if (member < 0)
        {
            return fill(*field.record, place.value, to);
        }
        if (field.kind == RRC_FIELD_RECORD)
        {
            (void)clear(*field.record, to);
        }
        const auto which = static_cast<UINT32>(member);
        return this->field(*field.record, which, place.value, to, -1, content).said == Said::Yes;
    }

    // Stores a value. False: the field has no room for it.
    static bool store(const RrcRecordField& field, const Place& place, void* record, UINT32 index)
    {
        const Type& type = *place.type;
        switch (type.kind)
        {
        case Kind::Boolean:
            rrcRecordStore(&field, record, index, rtx::load<OSBOOL>(place.value) != 0 ? 1 : 0);
            return true;
        case Kind::Integer:
        case Kind::Enumerated:
        {
            const bool isSigned = field.isSigned != 0 || (field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0;
            return storeNumber(rtx::loadNumber(type, place.value), field.size, isSigned, placeOf(field, record, index));
        }
        case Kind::BitStr32:
        case Kind::BitOctets:
            storeBits(field, type, place.value, record, index);
            return true;
        default:
            return false;
        }
    }

    // The low octets of a number. False: they are not all of it.
    static bool storeNumber(int64_t number, UINT32 size, bool isSigned, void* to)
    {
        switch (size)
        {
        case 1:
            return storeAs<UINT8, INT8>(number, isSigned, to);
        case 2:
            return storeAs<UINT16, INT16>(number, isSigned, to);
        case 4:
            return storeAs<UINT32, INT32>(number, isSigned, to);
        default:
            return storeAs<UINT64, INT64>(number, isSigned, to);
        }
    }

    static void storeCount(const RrcRecordField& count, UINT32 number, void* record)
    {
        (void)storeNumber(number, count.size, false, placeOf(count, record, 0));
    }

    template <typename Unsigned, typename Signed>
    static bool storeAs(int64_t number, bool isSigned, void* to)
    {
        const auto low = static_cast<Unsigned>(number);
        std::memcpy(to, &low, sizeof low);
        return isSigned ? static_cast<Signed>(low) == number : static_cast<UINT64>(low) == static_cast<UINT64>(number);
    }

    static void storeBits(const RrcRecordField& field, const Type& type, const void* value, void* record, UINT32 index)
    {
        const size_t in = type.kind == Kind::BitStr32 ? offsetof(ASN1BitStr32, data) : 0;
        const auto* const octets = static_cast<const OSOCTET*>(value) + in;
        const auto bits = static_cast<unsigned>(type.upper);
        if (field.kind == RRC_FIELD_OCTETS)
        {
            const size_t room = size_t{field.size} * std::max<size_t>(field.bound, 1);
            const size_t used = std::min<size_t>((bits + 7) / 8, room);
            auto* const to = static_cast<OSOCTET*>(placeOf(field, record, 0));
            std::memcpy(to, octets, used);
            std::memset(to + used, 0, room - used);
            return;
        }
        UINT64 number = 0;
        for (unsigned i = 0; i < (bits + 7) / 8; ++i)
        {
            number = number << 8 | octets[i];
        }
        number >>= (8 - bits % 8) % 8;
        std::memset(placeOf(field, record, index), 0, field.bitWidth != 0 ? field.size : 0);
        rrcRecordStore(&field, record, index, field.bits < 64 ? number & ((UINT64{1} << field.bits) - 1) : number);
    }

    const OSCTXT& ctxt_;
};

bool isRelease(const Type* type, const void* choice)
{
    return type != nullptr && type->setupRelease && choice != nullptr && rtx::load<OSUINT32>(choice) == 1;
}

RrcUnsaidReason_e reasonOf(const RtxDifference& difference)
{
    switch (difference.kind)
    {
    case RTX_D_ONLY_A:
        return isRelease(difference.type, difference.a)                      ? RRC_UNSAID_RELEASE
               : difference.depth != 0 && difference.path[0].name == nullptr ? RRC_UNSAID_ENTRY
                                                                             : RRC_UNSAID_MEMBER;
    case RTX_D_ALTERNATIVE:
        return isRelease(difference.type, difference.a) ? RRC_UNSAID_RELEASE : RRC_UNSAID_MEMBER;
    case RTX_D_ONLY_B:
        return RRC_UNSAID_ADDED;
    case RTX_D_VALUE:
        return RRC_UNSAID_VALUE;
    case RTX_D_UNKNOWN:
        return RRC_UNSAID_LATER;
    default:
        return RRC_UNSAID_BROKEN;
    }
}

const char* wordsOf(OSINT32 reason)
{
    switch (reason)
    {
    case RRC_UNSAID_RELEASE:
        return "release, which no record says";
    case RRC_UNSAID_MEMBER:
        return "no record says it";
    case RRC_UNSAID_ENTRY:
        return "an entry that the record has no room for or cannot say";
    case RRC_UNSAID_VALUE:
        return "the record says another value";
    case RRC_UNSAID_ADDED:
        return "absent, and a record always says it";
    case RRC_UNSAID_LATER:
        return "of a later release";
    default:
        return "cannot be read";
    }
}

struct Teller
{
    RrcUnsaidSink sink;
    void* arg;
};

int tell(void* arg, const RtxDifference* difference)
{
    const auto& teller = *static_cast<const Teller*>(arg);
    const RrcUnsaid unsaid = {reasonOf(*difference), difference};
    return teller.sink(teller.arg, &unsaid);
}

// Whether both trees are sent as the same octets: the comparison, which says what is not, takes several times as long.
// What does not fit is not known to be the same.
bool encodeAlike(OSCTXT& ctxt, const CellGroupConfig& a, const CellGroupConfig& b)
{
    constexpr size_t capacity = 8192;
    auto* const octets = static_cast<OSOCTET*>(rtx::allocate(ctxt, 2 * capacity));
    size_t lengths[2] = {0, 0};
    for (unsigned i = 0; i < 2 && octets != nullptr; ++i)
    {
        OSCTXT encoder;
        (void)rtxInitContext(&encoder);
        encoder.heap = ctxt.heap; // only looked at, and the context keeps its buffer and its error
        (void)pu_setBuffer(&encoder, octets + i * capacity, capacity, 0);
        if (asn1PE_CellGroupConfig(&encoder, i == 0 ? &a : &b) != RTX_OK)
        {
            return false;
        }
        lengths[i] = pu_getMsgLen(&encoder);
    }
    return octets != nullptr && lengths[0] == lengths[1] && std::memcmp(octets, octets + capacity, lengths[0]) == 0;
}

} // namespace
} // namespace decompose

INT32 rrcDecomposeCellGroupCfg(OSCTXT* pAsnCxt, const CellGroupConfig* pCellGroupConfig,
                               RrcCellGroupCfg_t* pRrcCellGroupCfg, RrcUnsaidSink sink, void* arg)
{
    if (pAsnCxt == nullptr || pCellGroupConfig == nullptr || pRrcCellGroupCfg == nullptr)
    {
        return RRC_COMPOSE_E_ARGUMENT;
    }
    (void)decompose::Decomposer(*pAsnCxt).fill(*rrcRecordTypes[0], pCellGroupConfig, pRrcCellGroupCfg);

    const rtx::HeapMark mark(*pAsnCxt);
    CellGroupConfig* pComposed = nullptr;
    const INT32 status = rrcComposeCellGroupTree(pAsnCxt, pRrcCellGroupCfg, &pComposed);
    if (status != RRC_COMPOSE_OK)
    {
        return status;
    }
    if (decompose::encodeAlike(*pAsnCxt, *pCellGroupConfig, *pComposed))
    {
        return 0;
    }
    decompose::Teller teller = {sink, arg};
    const int64_t told = asn1Compare_CellGroupConfig(pAsnCxt, nullptr, pCellGroupConfig, pComposed,
                                                     sink == nullptr ? nullptr : decompose::tell, &teller);
    return told < 0 ? INT32{RRC_COMPOSE_E_MEMORY} : static_cast<INT32>(std::min<int64_t>(told, INT32_MAX));
}

size_t rrcUnsaidFormat(const RrcUnsaid* unsaid, char* text, size_t size)
{
    rtx::Line line(text, size);
    const auto element = [&](const RtxDifferenceStep& step)
    {
        if (step.identity != nullptr)
        {
            rtx::append(line, "[%s %" PRId64 "]", step.identity, step.id);
        }
        else
        {
            rtx::append(line, "[%" PRIu32 "]", step.indexA != RTX_NO_INDEX ? step.indexA : step.indexB);
        }
    };
    rtx::appendPath(line, *unsaid->difference, element);
    rtx::append(line, ": %s", decompose::wordsOf(unsaid->reason));
    return line.length;
}
