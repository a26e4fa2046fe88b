// What is wrong with a record. The walk goes over what a composition reads, in the compact form of the description;
// what it stumbles over is looked at by that itself.
#include "rrcRecordCheck.h"

#include <algorithm>
#include <bit>
#include <cinttypes>
#include <cstring>

#include "checkOps.h"
#include "checkText.h"
#include "generalRules.h"
#include "recordChecks.h"
#include "rrcRecordType.h"
#include "rtxLine.h"
#include "rtxType.h"

namespace recordCheck
{
namespace
{

static_assert(sizeof(RrcCellGroupCfg_t) <= 1U << 24, "an offset has 24 bits");

using rtx::append;
using rtx::Kind;
using rtx::Line;
using rtx::Type;

// Of the sets that PUCCH-Config releases, those behind the number of sets that it adds go out as 0.
void pucchSetsReleased(const RrcPucchCfg_t& record, Report& report)
{
    for (UINT32 i = record.numResourceSetAddMod; i < std::size(record.resourceSetId); ++i)
    {
        report.notAsItStands(&record.resourceSetId[i]);
    }
}

constexpr RowCheck exceptions[] = {row<pucchSetsReleased>};
const RowChecks checksOfExceptions = rowChecks(exceptions);

constexpr const RowChecks* const allRowChecks[] = {&checksOfExceptions, &checksOfCellGroup, &checksOfServingCell,
                                                   &checksOfDownlink,   &checksOfUplink,    &checksOfCsi};

// The checks of each record by its number: those of one are a chain.
class Rows
{
public:
    Rows()
    {
        std::memset(first_, 0xFF, sizeof first_);
        for (const RowChecks* const checks : allRowChecks)
        {
            for (UINT32 i = 0; checks != nullptr && i < checks->count; ++i)
            {
                add(checks->checks[i]);
            }
        }
    }

    void run(UINT16 number, const void* record, Report& report) const
    {
        if (number == RRC_NO_RECORD_NUMBER)
        {
            return;
        }
        for (UINT16 i = first_[number]; i != none; i = rows_[i].next)
        {
            rows_[i].check->run(record, report);
        }
    }

private:
    static constexpr UINT16 none = 0xFFFF;
    static constexpr unsigned room = 512;

    void add(const RowCheck& check)
    {
        if (used_ < room) // a row that found no room would tell nothing, and its test fail
        {
            rows_[used_] = {&check, first_[check.number]};
            first_[check.number] = static_cast<UINT16>(used_++);
        }
    }

    struct Row
    {
        const RowCheck* check;
        UINT16 next;
    };
#define RECORD_COUNTED(type, number) true,
    static constexpr bool records[] = {RRC_RECORDS(RECORD_COUNTED)};
#undef RECORD_COUNTED

    Row rows_[room];
    UINT16 first_[sizeof records];
    unsigned used_ = 0;
};

// A finding's texts.
struct Texts
{
    char path[512];
    char element[1024];
    char found[512];
    char allowed[1024];
    char words[512];
    char advice[512];
};

class Walk;

// Whether a row says at least as much of a place as a general rule would.
class Probe final : public Report
{
public:
    // `ofBits`: the rule is one of a mask's bits, perhaps of one with a name, and not of the field.
    Probe(const Frame& frame, OSUINT8 severity, bool ofBits, const char* bit)
        : at_(ofBits ? nullptr : frame.place()),
          severity_(severity),
          bit_(bit),
          type_(frame.type.name),
          field_(frame.at().kind == RRC_FIELD_MASK ? nullptr : frame.at().name)
    {
    }

    bool taken() const
    {
        return taken_;
    }

private:
    void found(const RrcRecordRule& rule, OSUINT8 severity, const void* at) override
    {
        taken_ = taken_ || (severity >= severity_ && (at == at_ || names(rule)));
    }

    bool names(const RrcRecordRule& rule) const
    {
        for (const char* const* place = rule.places; place != nullptr && *place != nullptr; ++place)
        {
            if ((bit_ != nullptr && std::strcmp(*place, bit_) == 0) || isField(*place))
            {
                return true;
            }
        }
        return false;
    }

    void leftOut(const void* at) override
    {
        taken_ = taken_ || at == at_;
    }

    // "RrcRlcCfg_t.bitMask"
    bool isField(const char* place) const
    {
        const size_t length = std::strlen(type_);
        return field_ != nullptr && std::strncmp(place, type_, length) == 0 && place[length] == '.' &&
               std::strcmp(place + length + 1, field_) == 0;
    }

    const void* at_;
    OSUINT8 severity_;
    const char* bit_;
    const char* type_;
    const char* field_;
    bool taken_ = false;
};

class Walk final : public Report
{
public:
    Walk(RrcRecordSink sink, void* arg) : sink_(sink), arg_(arg) {}

    OSUINT32 run(const RrcRecordType& type, const void* record)
    {
        Frame frame = {type, record, nullptr};
        structure(frame);
        return count_;
    }

private:
    // --- the walk

    void structure(Frame& frame)
    {
        const RrcRecordType& type = frame.type;
        current_ = &frame;
        rows_.run(type.number, frame.record, *this);
        current_ = nullptr;
        for (UINT32 i = 0; i < type.choiceCount; ++i)
        {
            choose(frame, i);
        }
        const auto* const record = static_cast<const unsigned char*>(frame.record);
        const RrcRecordCheckOp* const ops = type.checks; // no call changes them, which the compiler does not see
        const UINT32 fields = ended_ ? 0 : type.fieldCount;
        for (UINT32 i = 0; i < fields; ++i)
        {
            const RrcRecordCheckOp& op = ops[i];
            if (op.isGuarded != 0 && (record[op.guard] >> op.guardBit & 1) == 0)
            {
                continue;
            }
            switch (op.code)
            {
            case RrcRecordCheckOp::Octet:
                if (record[op.offset] - static_cast<UINT64>(op.lower) > op.span)
                {
                    number(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Two:
                if (records::bitsAt(2, record + op.offset) - static_cast<UINT64>(op.lower) > op.span)
                {
                    number(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Number:
                if (!isInRange(op, record + op.offset))
                {
                    number(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Mask:
                if ((records::bitsAt(op.size, record + op.offset) & op.span) != 0)
                {
                    mask(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Count:
                if (!isInRange(op, record + op.offset))
                {
                    count(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Record:
                inner(at(frame, i), record + op.offset, nullptr);
                break;
            case RrcRecordCheckOp::Records:
                if (!isEmpty(type, op, record))
                {
                    entries(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Field:
                if (!isEmpty(type, op, record) && isChosen(frame, type.fields[i], i))
                {
                    field(at(frame, i));
                }
                break;
            case RrcRecordCheckOp::Doubtful:
                doubtful(at(frame, i));
                break;
            default:
                break;
            }
        }
    }

    // Whether an array has no entries, as most have.
    static bool isEmpty(const RrcRecordType& type, const RrcRecordCheckOp& op, const unsigned char* record)
    {
        return op.lower != RrcRecordCheckOp::noCount &&
               records::bitsAt(type.checks[op.lower].size, record + type.checks[op.lower].offset) == 0;
    }

    // Whether the record's choices leave a field.
    static bool isChosen(const Frame& frame, const RrcRecordField& field, UINT32 index)
    {
        if (field.choice < 0)
        {
            return true;
        }
        const RrcRecordOption* const option = frame.chosen[field.choice];
        return option != nullptr && (field.alternative < 0 ? option->field == static_cast<INT32>(index)
                                                           : option->sentAs == field.alternative);
    }

    // Entries that are read.
    static UINT32 entriesOf(const Frame& frame)
    {
        const RrcRecordField& field = frame.at();
        if (field.bound == 0)
        {
            return 1;
        }
        if (field.count < 0 || frame.type.fields[field.count].bits != 0)
        {
            return rrcRecordEntries(&frame.type, frame.record, frame.field);
        }
        const RrcRecordCheckOp& count = frame.type.checks[field.count];
        const UINT64 used = records::bitsAt(count.size, static_cast<const unsigned char*>(frame.record) + count.offset);
        return static_cast<UINT32>(std::min<UINT64>(used, field.bound));
    }

    void doubtful(Frame& frame)
    {
        if (rrcRecordIsRead(&frame.type, frame.record, frame.field) != 0)
        {
            this->field(frame);
        }
    }

    static Frame& at(Frame& frame, UINT32 field, UINT32 entry = 0)
    {
        frame.field = field;
        frame.entry = entry;
        return frame;
    }

    static UINT64 bitsAt(unsigned size, bool isSigned, const unsigned char* place)
    {
        const UINT64 bits = records::bitsAt(size, place);
        return isSigned ? records::signExtended(bits, size) : bits;
    }

    static bool isInRange(const RrcRecordCheckOp& op, const unsigned char* place)
    {
        return bitsAt(op.size, op.isSigned != 0, place) - static_cast<UINT64>(op.lower) <= op.span;
    }

    // The same by the description.
    static bool isInRange(const Frame& frame)
    {
        const RrcRecordField& field = frame.at();
        const auto* const place = static_cast<const unsigned char*>(frame.place());
        const UINT64 bits = bitsAt(field.size, records::isSignedNumber(field), place);
        return bits - static_cast<UINT64>(field.lower) <= records::spanOf(field);
    }

    void inner(Frame& frame, const void* record, const Type* content)
    {
        Frame next = {*frame.at().record, record, &frame, content};
        structure(next);
    }

    // The structures of an array.
    void entries(Frame& frame, const Type* content = nullptr)
    {
        const UINT32 count = entriesOf(frame);
        identities(frame, count);
        for (UINT32 i = 0; i < count && !ended_; ++i)
        {
            frame.entry = i;
            inner(frame, frame.place(), content);
        }
    }

    // Any field that is read, by the description alone.
    [[gnu::noinline]] void field(Frame& frame)
    {
        const RrcRecordType& type = frame.type;
        const RrcRecordField& field = frame.at();
        if ((field.flags & RRC_FIELD_NOT_SENT) != 0)
        {
            unsent(frame);
            return;
        }
        const RrcRecordOption* const option = field.choice < 0 ? nullptr : frame.chosen[field.choice];
        const Type* const content = field.choice < 0 ? nullptr : alternativeOf(type.choices[field.choice], option);
        switch (field.kind)
        {
        case RRC_FIELD_MASK:
            mask(frame);
            break;
        case RRC_FIELD_COUNT:
            if (!isInRange(frame))
            {
                count(frame);
            }
            break;
        case RRC_FIELD_OCTETS:
            octets(frame);
            break;
        case RRC_FIELD_RECORD:
            entries(frame, content);
            break;
        case RRC_FIELD_UNION:
            for (UINT32 i = 0, count = entriesOf(frame); i < count && !ended_; ++i)
            {
                member(frame, i, option, content);
            }
            break;
        case RRC_FIELD_UNREAD:
        case RRC_FIELD_ALTERNATIVE:
            break;
        default:
            numbers(frame);
            break;
        }
    }

    // The member of a union that the option names.
    void member(Frame& frame, UINT32 entry, const RrcRecordOption* option, const Type* content)
    {
        if (option != nullptr && option->field == static_cast<INT32>(frame.field) && option->member >= 0)
        {
            frame.entry = entry;
            Frame next = {*frame.at().record, frame.place(), &frame, content};
            field(at(next, static_cast<UINT32>(option->member)));
        }
    }

    void numbers(Frame& frame)
    {
        const UINT32 count = entriesOf(frame);
        identities(frame, count);
        const bool isValue = frame.at().kind == RRC_FIELD_VALUE;
        for (UINT32 i = 0; i < count && !ended_; ++i)
        {
            frame.entry = i;
            if (isValue || frame.at().bitWidth != 0 || !isInRange(frame))
            {
                number(frame);
            }
        }
    }

    // --- the rules

    // A number that is out of its range, or may be.
    [[gnu::noinline]] void number(Frame& frame)
    {
        const RrcRecordField& field = frame.at();
        const Type* const type = field.kind == RRC_FIELD_VALUE ? contentOf(frame) : field.way.target;
        if (field.kind == RRC_FIELD_BITS)
        {
            tooManyBits(frame);
        }
        else if (field.kind == RRC_FIELD_BOOLEAN)
        {
            truth(frame);
        }
        else if (type != nullptr && (type->kind == Kind::Integer || type->kind == Kind::Enumerated))
        {
            numberOf(frame, *type);
        }
    }

    // As the encoder gets it: what its member has no room for is dropped.
    static INT64 arrivalOf(const Type& type, INT64 number)
    {
        const unsigned above = 64 - 8U * (type.kind == Kind::Enumerated ? 4U : type.width);
        return type.lower < 0 ? static_cast<INT64>(static_cast<UINT64>(number) << above) >> above
                              : static_cast<INT64>(static_cast<UINT64>(number) << above >> above);
    }

    void numberOf(Frame& frame, const Type& type)
    {
        const INT64 number = rrcRecordNumber(&frame.at(), frame.record, frame.entry);
        const INT64 arrival = arrivalOf(type, number);
        if (arrival < type.lower || arrival > type.upper)
        {
            say(frame, generalRules::range, [&](Texts& texts) { rangeTexts(texts, frame, type, number, arrival); });
        }
        else if (arrival != number)
        {
            say(frame, generalRules::dropped, [&](Texts& texts) { droppedTexts(texts, frame, type, number, arrival); });
        }
        else if (isNamed(&type) && arrival > lastValue(type))
        {
            say(frame, generalRules::spare, [&](Texts& texts) { spareTexts(texts, type, arrival); });
        }
    }

    static INT64 upperOf(const Type& type)
    {
        return isNamed(&type) ? lastValue(type) : type.upper;
    }

    static void rangeTexts(Texts& texts, const Frame& frame, const Type& type, INT64 number, INT64 arrival)
    {
        const INT64 upper = upperOf(type);
        Line found(texts.found, sizeof texts.found);
        append(found, "%" PRId64, INT64{number});
        Line allowed(texts.allowed, sizeof texts.allowed);
        appendRange(allowed, &type, type.lower, upper);
        Line words(texts.words, sizeof texts.words);
        append(words, "is refused: ");
        if (arrival != number)
        {
            append(words, "as %" PRId64 " it is ", INT64{arrival});
        }
        append(words, "not in %s", texts.allowed);
        Line advice(texts.advice, sizeof texts.advice);
        const INT64 named = isNamed(&type) ? valueNamed(type, number) : -1;
        const INT64 instead = named >= 0 ? named : nearest(number, type.lower, upper);
        append(advice, "store ");
        appendStored(advice, frame.at(), type, instead);
        append(advice, named >= 0 ? ", whose name has the number" : ", the nearest that is allowed");
    }

    // The number that a field holds for a value: "15 ms100", "226 for -30".
    static void appendStored(Line& line, const RrcRecordField& field, const Type& type, INT64 value)
    {
        if ((field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0 && value < 0)
        {
            append(line, "%" PRId64 " for %" PRId64,
                   static_cast<INT64>(static_cast<UINT64>(value) & records::lowBits(8U * field.size)), INT64{value});
        }
        else
        {
            appendValue(line, &type, value);
        }
    }

    static void droppedTexts(Texts& texts, const Frame& frame, const Type& type, INT64 number, INT64 arrival)
    {
        Line found(texts.found, sizeof texts.found);
        append(found, "%" PRId64, INT64{number});
        Line allowed(texts.allowed, sizeof texts.allowed);
        appendRange(allowed, &type, type.lower, upperOf(type));
        Line words(texts.words, sizeof texts.words);
        append(words, "is sent as ");
        appendValue(words, &type, arrival);
        append(words, ": the low %u bits of it", type.kind == Kind::Enumerated ? 32U : 8U * type.width);
        Line advice(texts.advice, sizeof texts.advice);
        append(advice, "store ");
        appendStored(advice, frame.at(), type, nearest(number, type.lower, upperOf(type)));
        append(advice, ", the nearest that is allowed, or ");
        appendStored(advice, frame.at(), type, arrival);
        append(advice, " if that is meant");
    }

    static void spareTexts(Texts& texts, const Type& type, INT64 value)
    {
        Line found(texts.found, sizeof texts.found);
        appendValue(found, &type, value);
        Line allowed(texts.allowed, sizeof texts.allowed);
        appendRange(allowed, &type, type.lower, lastValue(type));
        Line words(texts.words, sizeof texts.words);
        append(words, "is sent, a spare value that means nothing");
        Line advice(texts.advice, sizeof texts.advice);
        append(advice, "store ");
        appendValue(advice, &type, lastValue(type));
        append(advice, " or less");
    }

    void truth(Frame& frame)
    {
        const UINT64 bits = rrcRecordBits(&frame.at(), frame.record, frame.entry);
        if (bits > 1)
        {
            const bool isTrue = (bits & 0xFF) != 0;
            say(
                frame, generalRules::boolean,
                [&](Texts& texts)
                {
                    Line found(texts.found, sizeof texts.found);
                    append(found, "%" PRIu64, UINT64{bits});
                    Line allowed(texts.allowed, sizeof texts.allowed);
                    append(allowed, "0..1");
                    Line words(texts.words, sizeof texts.words);
                    append(words, isTrue ? "is sent as true" : "is sent as false: its low 8 bits are 0");
                    Line advice(texts.advice, sizeof texts.advice);
                    append(advice, "store 1 for true, 0 for false");
                },
                isTrue ? RRC_RECORD_NOTICE : RRC_RECORD_WARNING);
        }
    }

    void tooManyBits(Frame& frame)
    {
        const RrcRecordField& field = frame.at();
        const UINT64 bits = rrcRecordBits(&field, frame.record, frame.entry);
        if ((bits & ~records::lowBits(field.bits)) == 0)
        {
            return;
        }
        say(frame, generalRules::dropped,
            [&](Texts& texts)
            {
                Line found(texts.found, sizeof texts.found);
                append(found, "0x%" PRIX64, UINT64{bits});
                Line allowed(texts.allowed, sizeof texts.allowed);
                append(allowed, "0x0..0x%" PRIX64, UINT64{records::lowBits(field.bits)});
                Line words(texts.words, sizeof texts.words);
                append(words, "is sent as 0x%" PRIX64 ": the low %u bits of it",
                       UINT64{bits & records::lowBits(field.bits)}, unsigned{field.bits});
                Line advice(texts.advice, sizeof texts.advice);
                append(advice, "store the first bit of the string in bit %u", field.bits - 1U);
            });
    }

    // Of octets the first bits are sent.
    void octets(Frame& frame)
    {
        const RrcRecordField& field = frame.at();
        const auto* const data = static_cast<const unsigned char*>(frame.place());
        const UINT32 all = field.size * std::max<UINT32>(field.bound, 1);
        const UINT32 whole = field.bits / 8U;
        UINT32 octet = whole;
        if (field.bits % 8 != 0)
        {
            octet += (data[whole] & (0xFFU >> field.bits % 8)) == 0 ? 1 : 0;
        }
        if (octet == whole + (field.bits % 8 != 0 ? 1U : 0U))
        {
            octet = static_cast<UINT32>(std::find_if(data + octet, data + all, [](unsigned char c) { return c != 0; }) -
                                        data);
        }
        if (octet == all)
        {
            return;
        }
        say(frame, generalRules::dropped,
            [&](Texts& texts)
            {
                Line found(texts.found, sizeof texts.found);
                append(found, "0x%02X in octet %" PRIu32, unsigned{data[octet]}, uint32_t{octet});
                Line allowed(texts.allowed, sizeof texts.allowed);
                append(allowed, "%u bits", unsigned{field.bits});
                Line words(texts.words, sizeof texts.words);
                append(words, "is not sent beyond the first %u bits", unsigned{field.bits});
                Line advice(texts.advice, sizeof texts.advice);
                append(advice, "fill the octets from the first one's most significant bit on, and leave the rest 0");
            });
    }

    // The bits of a mask that mean nothing, and those whose member is not sent.
    [[gnu::noinline]] void mask(Frame& frame)
    {
        const RrcRecordType& type = frame.type;
        const RrcRecordField& field = frame.at();
        const UINT64 bits = rrcRecordBits(&field, frame.record, 0);
        const UINT64 unknown = bits & ~static_cast<UINT64>(field.upper);
        if (unknown != 0)
        {
            say(frame, generalRules::bit,
                [&](Texts& texts)
                {
                    Line found(texts.found, sizeof texts.found);
                    appendBits(found, unknown);
                    Line allowed(texts.allowed, sizeof texts.allowed);
                    appendBits(allowed, static_cast<UINT64>(field.upper));
                    Line words(texts.words, sizeof texts.words);
                    append(words, "of 0x%" PRIX64 " switch%s nothing on: no field goes by %s", UINT64{bits},
                           std::has_single_bit(unknown) ? "es" : "", std::has_single_bit(unknown) ? "it" : "them");
                    Line advice(texts.advice, sizeof texts.advice);
                    append(advice, "clear %s; use the names of the header", texts.found);
                });
        }
        for (UINT32 i = 0; i < type.bitCount; ++i)
        {
            const RrcRecordBit& bit = type.bits[i];
            if (bit.mask != frame.field || (bits >> bit.number & 1) == 0)
            {
                continue;
            }
            if (bit.role == RRC_BIT_NOT_SENT)
            {
                unsentBit(frame, bit, nullptr);
            }
            else if (bit.with >= 0 && !isSet(frame, type.bits[bit.with]))
            {
                unsentBit(frame, bit, type.bits[bit.with].name);
            }
        }
    }

    static bool isSet(const Frame& frame, const RrcRecordBit& bit)
    {
        return (rrcRecordBits(&frame.type.fields[bit.mask], frame.record, 0) >> bit.number & 1) != 0;
    }

    void unsentBit(Frame& frame, const RrcRecordBit& bit, const char* with)
    {
        say(
            frame, generalRules::notSent,
            [&](Texts& texts)
            {
                Line found(texts.found, sizeof texts.found);
                append(found, "%s", bit.name);
                Line words(texts.words, sizeof texts.words);
                append(words, with != nullptr ? "has no effect without %s" : "has no effect: its member is never sent",
                       with);
                Line advice(texts.advice, sizeof texts.advice);
                append(advice, with != nullptr ? "set %s too, or clear the bit" : "leave the bit clear", with);
            },
            0, bit.name);
    }

    // What is switched on and never sent. Where the same bit switches on what is sent, and for a list, it counts only
    // when something is there.
    void unsent(Frame& frame)
    {
        const RrcRecordType& type = frame.type;
        const RrcRecordField& field = frame.at();
        const bool isList = field.bound != 0 && field.count >= 0;
        bool shared = false;
        for (UINT32 i = 0; i < type.fieldCount && field.guard >= 0; ++i)
        {
            shared =
                shared || (type.fields[i].guard == field.guard && (type.fields[i].flags & RRC_FIELD_NOT_SENT) == 0 &&
                           type.fields[i].kind != RRC_FIELD_COUNT);
        }
        const bool isThere = isList ? rrcRecordEntries(&type, frame.record, frame.field) != 0
                             : shared || field.guard < 0
                                 ? field.record == nullptr && rrcRecordBits(&field, frame.record, 0) != 0
                                 : true;
        if (!isThere)
        {
            return;
        }
        const char* const bit = field.guard < 0 ? nullptr : type.bits[field.guard].name;
        say(
            frame, generalRules::notSent,
            [&](Texts& texts)
            {
                Line found(texts.found, sizeof texts.found);
                if (isList)
                {
                    const UINT32 count = rrcRecordEntries(&type, frame.record, frame.field);
                    append(found, "%" PRIu32 " entr%s", uint32_t{count}, count == 1 ? "y" : "ies");
                }
                else if (field.record != nullptr)
                {
                    append(found, "%s", field.record->name);
                }
                else
                {
                    appendValue(found, field.way.target, rrcRecordNumber(&field, frame.record, 0));
                }
                Line words(texts.words, sizeof texts.words);
                append(words, "is never sent");
                Line advice(texts.advice, sizeof texts.advice);
                append(advice, bit != nullptr && !shared ? "leave %s clear" : "leave it out", bit);
            },
            0, bit);
    }

    // --- choices

    void choose(Frame& frame, UINT32 index)
    {
        const RrcRecordChoice& choice = frame.type.choices[index];
        const RrcRecordField& selector = frame.type.fields[choice.selector];
        const RrcRecordOption*& option = frame.chosen[index];
        const RrcRecordCheckOp& op = frame.type.checks[choice.selector];
        const bool isOff =
            op.isGuarded != 0 && (static_cast<const unsigned char*>(frame.record)[op.guard] >> op.guardBit & 1) == 0;
        if (!records::isPlainlyGuarded(selector, frame.type.fields, frame.type.bits))
        {
            option = rrcRecordChosen(&frame.type, frame.record, index);
        }
        else
        {
            option = isOff ? nullptr : records::optionBy(choice, rrcRecordBits(&selector, frame.record, 0));
        }
        if (option == nullptr && isSent(at(frame, choice.selector), choice))
        {
            notChosen(frame, choice);
        }
    }

    // Whether a choice is looked at, by its selector's guard or by that of what it chooses.
    static bool isSent(const Frame& frame, const RrcRecordChoice& choice)
    {
        const RrcRecordType& type = frame.type;
        bool sent = rrcRecordIsRead(&type, frame.record, frame.field) != 0;
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            const RrcRecordField& field = type.fields[i];
            sent = sent && (field.choice < 0 || &type.choices[field.choice] != &choice || field.guard < 0 ||
                            isSet(frame, type.bits[field.guard]));
        }
        return sent;
    }

    [[gnu::noinline]] void notChosen(Frame& frame, const RrcRecordChoice& choice)
    {
        const auto make = [&](Texts& texts)
        {
            Line found(texts.found, sizeof texts.found);
            Line allowed(texts.allowed, sizeof texts.allowed);
            Line words(texts.words, sizeof texts.words);
            Line advice(texts.advice, sizeof texts.advice);
            if (choice.byNumber != 0)
            {
                append(found, "%" PRIu64, UINT64{rrcRecordBits(&frame.at(), frame.record, 0)});
                appendOption(allowed, choice, choice.options[0]);
                append(allowed, " .. ");
                appendOption(allowed, choice, choice.options[choice.optionCount - 1]);
                append(words, "is refused: no alternative's number, not in %s", texts.allowed);
                append(advice, "store the number of an alternative");
            }
            else
            {
                append(found, "no bit");
                append(allowed, "one of ");
                appendBitNames(allowed, frame.type, choice);
                append(words, "is refused: %s has no alternative",
                       choice.way.path[0] != '\0' ? choice.way.path : frame.type.path);
                append(advice, "set the bit of one alternative");
            }
            if (frame.at().guard >= 0)
            {
                append(advice, ", or clear %s", frame.type.bits[frame.at().guard].name);
            }
        };
        say(frame, generalRules::alternative, make);
    }

    static void appendOption(Line& line, const RrcRecordChoice& choice, const RrcRecordOption& option)
    {
        append(line, "%d %s", int{option.number}, choice.way.target->names[option.alternative]);
    }

    // --- lists

    // A count that is out of range. Where further entries are left out, a row says so.
    [[gnu::noinline]] void count(Frame& frame)
    {
        const RrcRecordField& field = frame.at();
        const RrcRecordType& type = frame.type;
        const UINT64 number = rrcRecordBits(&field, frame.record, 0);
        const UINT64 arrival = field.bits == 0 ? number : number & records::lowBits(field.bits);
        const auto lower = static_cast<UINT64>(field.lower);
        const auto upper = static_cast<UINT64>(field.upper);
        const char* const bit = field.guard < 0 ? nullptr : type.bits[field.guard].name;
        const auto texts = [&](Texts& to)
        {
            Line found(to.found, sizeof to.found);
            append(found, "%" PRIu64, UINT64{number});
            Line allowed(to.allowed, sizeof to.allowed);
            append(allowed, "%" PRIu64 "..%" PRIu64, UINT64{lower}, UINT64{upper});
        };
        if (arrival > upper && ((field.flags & RRC_FIELD_REST_NOT_SENT) != 0 || isCountedUnsent(frame)))
        {
            return;
        }
        if (arrival > upper)
        {
            say(frame, generalRules::count,
                [&](Texts& to)
                {
                    texts(to);
                    Line words(to.words, sizeof to.words);
                    append(words, "is refused: not in %s", to.allowed);
                    Line advice(to.advice, sizeof to.advice);
                    append(advice, "give at most %" PRIu64 " entr%s", UINT64{upper}, upper == 1 ? "y" : "ies");
                });
        }
        else if (arrival < lower)
        {
            say(frame, generalRules::empty,
                [&](Texts& to)
                {
                    texts(to);
                    Line words(to.words, sizeof to.words);
                    append(words, "is refused: the list has at least %" PRIu64 " entr%s", UINT64{lower},
                           lower == 1 ? "y" : "ies");
                    Line advice(to.advice, sizeof to.advice);
                    append(advice, "give it an entry");
                    if (bit != nullptr)
                    {
                        append(advice, ", or clear %s", bit);
                    }
                });
        }
        else if (arrival != number)
        {
            say(frame, generalRules::dropped,
                [&](Texts& to)
                {
                    texts(to);
                    Line words(to.words, sizeof to.words);
                    append(words, "is sent as %" PRIu64 ": the low %u bits of it", UINT64{arrival},
                           unsigned{field.bits});
                    Line advice(to.advice, sizeof to.advice);
                    append(advice, "store %" PRIu64 " or less", UINT64{upper});
                });
        }
    }

    // Whether all that a count counts is never sent.
    static bool isCountedUnsent(const Frame& frame)
    {
        bool any = false;
        for (UINT32 i = 0; i < frame.type.fieldCount; ++i)
        {
            const RrcRecordField& field = frame.type.fields[i];
            if (field.count == static_cast<INT32>(frame.field))
            {
                any = true;
                if ((field.flags & RRC_FIELD_NOT_SENT) == 0)
                {
                    return false;
                }
            }
        }
        return any;
    }

    // Identities that occurred: those of the standard are small, and what is out of range is told elsewhere.
    class Identities
    {
    public:
        // False: it was there.
        bool add(UINT64 identity)
        {
            const bool was = has(identity);
            bits_[identity % room / 64] |= identity < room ? UINT64{1} << identity % 64 : 0;
            return !was;
        }
        bool has(UINT64 identity) const
        {
            return identity < room && (bits_[identity / 64] >> identity % 64 & 1) != 0;
        }

    private:
        static constexpr UINT64 room = 1024;
        UINT64 bits_[room / 64] = {};
    };

    // Where the entries of a list have their identity.
    struct Identity
    {
        const RrcRecordField* list;
        const RrcRecordField* field; // of the entries' record; null: the entry is it

        UINT64 of(const void* record, UINT32 entry) const
        {
            return field == nullptr ? rrcRecordBits(list, record, entry)
                                    : rrcRecordBits(field, rrcRecordPlace(list, record, entry), 0);
        }
    };

    // False: its entries have none, or the record does not hold it. The entries of a list that releases are identities.
    static bool identityOf(const RrcRecordField& list, const Type& type, bool isOwn, Identity& identity)
    {
        if (type.kind != Kind::List && type.kind != Kind::Array)
        {
            return false;
        }
        identity = {&list, nullptr};
        if (list.record == nullptr)
        {
            return isOwn || type.identity == rtx::ownIdentity;
        }
        for (UINT32 i = 0; i < list.record->fieldCount && type.identity >= 0; ++i)
        {
            const RrcRecordField& field = list.record->fields[i];
            if (field.way.stepCount == 1 && field.way.steps[0] == static_cast<UINT16>(type.identity))
            {
                identity.field = &field;
                return true;
            }
        }
        return false;
    }

    void identities(Frame& frame, UINT32 count)
    {
        const RrcRecordField& field = frame.at();
        const bool isAlone = count == 1 && field.record != nullptr; // what is released are numbers
        if (count == 0 || isAlone || field.way.stepCount < 2 ||
            field.way.steps[field.way.stepCount - 1] != RRC_STEP_ENTRY)
        {
            return;
        }
        const Listed listed = listOf(frame.type.element, field.way);
        const rtx::Need* const needs = listed.container == nullptr ? nullptr : listed.container->needs;
        const bool releases = needs != nullptr && needs[listed.member].list == rtx::ListRole::Release;
        Identity identity = {};
        if ((count > 1 || releases) && identityOf(field, *listed.list, releases, identity))
        {
            different(frame, identity, count);
            if (releases && needs[listed.member].partner >= 0)
            {
                added(frame, identity, count, static_cast<UINT16>(needs[listed.member].partner));
            }
        }
    }

    void different(Frame& frame, const Identity& identity, UINT32 count)
    {
        Identities seen;
        for (UINT32 i = 0; i < count && !ended_; ++i)
        {
            if (!seen.add(identity.of(frame.record, i)))
            {
                sameIdentity(frame, identity, i);
            }
        }
    }

    [[gnu::noinline]] void sameIdentity(Frame& frame, const Identity& identity, UINT32 entry)
    {
        const UINT64 id = identity.of(frame.record, entry);
        UINT32 other = 0;
        while (identity.of(frame.record, other) != id)
        {
            ++other;
        }
        sayIdentity(frame, identity, entry, generalRules::twice,
                    [&](Texts& texts)
                    {
                        Line words(texts.words, sizeof texts.words);
                        append(words, "is the identity of %s[%" PRIu32 "], too", frame.at().name, uint32_t{other});
                        Line advice(texts.advice, sizeof texts.advice);
                        append(advice, "%s", generalRules::twice.instead);
                    });
    }

    // Says a rule at the identity of an entry.
    template <typename Make>
    void sayIdentity(Frame& frame, const Identity& identity, UINT32 entry, const RrcRecordRule& rule, const Make& make)
    {
        const UINT64 id = identity.of(frame.record, entry);
        const auto all = [&](Texts& texts)
        {
            Line found(texts.found, sizeof texts.found);
            append(found, "%" PRIu64, UINT64{id});
            make(texts);
        };
        frame.entry = entry;
        if (identity.field == nullptr)
        {
            say(frame, rule, all);
            return;
        }
        Frame inside = {*identity.list->record, frame.place(), &frame};
        inside.field = static_cast<UINT32>(identity.field - identity.list->record->fields);
        say(inside, rule, all);
    }

    // Tells what another list of the same record adds and this one releases.
    [[gnu::noinline]] void added(Frame& frame, const Identity& identity, UINT32 count, UINT16 partner)
    {
        const RrcRecordType& type = frame.type;
        const RrcRecordWay& way = frame.at().way;
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            const RrcRecordField& other = type.fields[i];
            const bool isPartner = other.way.stepCount == way.stepCount &&
                                   other.way.steps[way.stepCount - 2] == partner &&
                                   std::equal(way.steps, way.steps + way.stepCount - 2, other.way.steps) &&
                                   other.way.steps[way.stepCount - 1] == RRC_STEP_ENTRY;
            Identity others = {};
            if (!isPartner || rrcRecordIsRead(&type, frame.record, i) == 0 ||
                !identityOf(other, *listOf(type.element, other.way).list, false, others))
            {
                continue;
            }
            Identities adds;
            for (UINT32 entry = rrcRecordEntries(&type, frame.record, i); entry-- != 0;)
            {
                (void)adds.add(others.of(frame.record, entry));
            }
            for (UINT32 entry = 0; entry < count && !ended_; ++entry)
            {
                if (adds.has(identity.of(frame.record, entry)))
                {
                    sayIdentity(frame, identity, entry, generalRules::released,
                                [&](Texts& texts)
                                {
                                    Line words(texts.words, sizeof texts.words);
                                    append(words, "is released, and %s adds it again", other.name);
                                    Line advice(texts.advice, sizeof texts.advice);
                                    append(advice, "%s", generalRules::released.instead);
                                });
                }
            }
        }
    }

    // --- telling

    // A general rule, where no row says as much.
    template <typename Make>
    [[gnu::noinline]] void say(const Frame& frame, const RrcRecordRule& rule, const Make& make, OSUINT8 severity = 0,
                               const char* bit = nullptr)
    {
        if (ended_)
        {
            return;
        }
        const bool ofBits = frame.at().kind == RRC_FIELD_MASK && (bit != nullptr || &rule == &generalRules::bit);
        Probe probe(frame, severity == 0 ? rule.severity : severity, ofBits, bit);
        for (const Frame* around = &frame; around != nullptr && !probe.taken(); around = around->outer)
        {
            rows_.run(around->type.number, around->record, probe);
        }
        if (!probe.taken())
        {
            tell(frame, rule, severity == 0 ? rule.severity : severity, make);
        }
    }

    template <typename Make>
    void tell(const Frame& frame, const RrcRecordRule& rule, OSUINT8 severity, const Make& make)
    {
        ++count_;
        if (sink_ == nullptr)
        {
            return;
        }
        Texts texts;
        texts.allowed[0] = '\0';
        Line path(texts.path, sizeof texts.path);
        appendPath(path, frame);
        Line element(texts.element, sizeof texts.element);
        if (!appendFieldElement(element, frame))
        {
            texts.element[0] = '\0';
        }
        make(texts);
        const RrcRecordFinding finding = {&rule,       severity,      texts.path,  texts.element,
                                          texts.found, texts.allowed, texts.words, texts.advice};
        ended_ = sink_(arg_, &finding) != 0;
    }

    // A row's finding, at an address in the record or in what lies in it.
    void found(const RrcRecordRule& rule, OSUINT8 severity, const void* where) override
    {
        if (ended_)
        {
            return;
        }
        if (sink_ == nullptr)
        {
            ++count_;
            return;
        }
        if (!tellRow(*current_, rule, severity, static_cast<const unsigned char*>(where)))
        {
            tellField(at(*current_, 0), rule, severity, static_cast<const unsigned char*>(where));
        }
    }

    // Tells it of the innermost field that the address lies in. False: it lies in none.
    bool tellRow(Frame& frame, const RrcRecordRule& rule, OSUINT8 severity, const unsigned char* where)
    {
        for (UINT32 i = 0; i < frame.type.fieldCount; ++i)
        {
            const RrcRecordField& field = at(frame, i).at();
            const auto* const begin = static_cast<const unsigned char*>(frame.place());
            const size_t octets = size_t{field.size} * std::max<UINT32>(field.bound, 1);
            if (where < begin || where >= begin + octets)
            {
                continue;
            }
            if (field.kind != RRC_FIELD_OCTETS)
            {
                frame.entry = static_cast<UINT32>(static_cast<size_t>(where - begin) / field.size);
            }
            tellField(frame, rule, severity, where);
            return true;
        }
        return false;
    }

    void tellField(Frame& frame, const RrcRecordRule& rule, OSUINT8 severity, const unsigned char* where)
    {
        const RrcRecordField& field = frame.at();
        for (UINT32 i = 0; i < frame.type.choiceCount; ++i)
        {
            frame.chosen[i] = rrcRecordChosen(&frame.type, frame.record, i);
        }
        const INT32 member =
            field.kind == RRC_FIELD_UNION ? rrcRecordMember(&frame.type, frame.record, frame.field) : -1;
        if (member >= 0)
        {
            Frame chosen = {*field.record, frame.place(), &frame};
            tellField(at(chosen, static_cast<UINT32>(member)), rule, severity, where);
            return;
        }
        if (field.kind == RRC_FIELD_RECORD)
        {
            Frame next = {*field.record, frame.place(), &frame};
            if (tellRow(next, rule, severity, where))
            {
                return;
            }
        }
        tell(frame, rule, severity, [&](Texts& texts) { rowTexts(texts, frame, rule); });
    }

    static void rowTexts(Texts& texts, const Frame& frame, const RrcRecordRule& rule)
    {
        const RrcRecordField& field = frame.at();
        Line found(texts.found, sizeof texts.found);
        if (field.kind == RRC_FIELD_MASK)
        {
            const UINT64 bits = rrcRecordBits(&field, frame.record, 0);
            append(found, "0x%" PRIX64, UINT64{bits});
        }
        else if (field.record == nullptr)
        {
            appendValue(found, field.way.target, rrcRecordNumber(&field, frame.record, frame.entry));
        }
        else
        {
            append(found, "what it holds");
        }
        Line words(texts.words, sizeof texts.words);
        append(words, "- %s", rule.goesOut);
        Line advice(texts.advice, sizeof texts.advice);
        append(advice, "%s", rule.instead);
    }

    RrcRecordSink sink_;
    void* arg_;
    Rows rows_;
    Frame* current_ = nullptr;
    OSUINT32 count_ = 0;
    bool ended_ = false;
};

const char* severityName(OSUINT8 severity)
{
    return severity == RRC_RECORD_ERROR ? "error" : severity == RRC_RECORD_WARNING ? "warning" : "notice";
}

} // namespace
} // namespace recordCheck

OSUINT32 rrcCheckCellGroupCfg(const RrcCellGroupCfg_t* pRrcCellGroupCfg, RrcRecordSink sink, void* arg)
{
    return pRrcCellGroupCfg == nullptr ? 0 : recordCheck::Walk(sink, arg).run(*rrcRecordTypes[0], pRrcCellGroupCfg);
}

size_t rrcRecordFindingFormat(const RrcRecordFinding* finding, char* text, size_t size)
{
    rtx::Line line(text, size);
    rtx::append(line, "%s: %s: %s %s (%s)", recordCheck::severityName(finding->severity), finding->path, finding->found,
                finding->words, finding->rule->id);
    return line.length;
}
