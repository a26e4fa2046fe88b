// The description of the records against random ones: what it says is read is what a composition reads, and its ranges
// are those that are drawn.
#include "rrcRecordType.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "byteOrder.h"
#include "composed.h"
#include "records.h"
#include "rtxType.h"
#include "walk.h"

namespace
{

using Ranges = records::Chance::Ranges;
using records::composed;
using records::junk;
using records::walk;

const RrcRecordType& root()
{
    return *rrcRecordTypes[0];
}

bool isLeaf(const RrcRecordField& field)
{
    return field.record == nullptr;
}

class recordTypes : public testing::TestWithParam<Ranges>
{
};

// Copies of what the description says is read, into memory full of junk, compose to the same.
TEST_P(recordTypes, nothingElseIsRead)
{
    const auto record = junk(1);
    const auto copy = junk(2);
    records::Chance chance(GetParam());
    for (std::uint32_t seed = 1; seed <= records::shareOf(5000); ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        auto visit = [&](const RrcRecordType& type, UINT32 index, const void* place, UINT32 entries)
        {
            const RrcRecordField& field = type.fields[index];
            const auto offset = static_cast<const char*>(place) - reinterpret_cast<const char*>(record.get());
            for (UINT32 entry = 0; entry < entries && isLeaf(field); ++entry)
            {
                char* const to = reinterpret_cast<char*>(copy.get()) + offset;
                const void* const from = rrcRecordPlace(&field, place, entry);
                std::memcpy(to + (static_cast<const char*>(from) - static_cast<const char*>(place)), from, field.size);
            }
            return true;
        };
        walk(root(), record.get(), visit);
        ASSERT_EQ(composed(copy.get()), composed(record.get())) << "cell group " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(ranges, recordTypes, testing::Values(Ranges::kept, Ranges::dropped));

// A number as the encoder takes it: without the bits that its member has no room for.
INT64 taken(const RrcRecordField& field, const void* record, UINT32 entry)
{
    const INT64 number = rrcRecordNumber(&field, record, entry);
    const rtx::Type* const element = field.way.target;
    unsigned octets = 8;
    if (field.kind == RRC_FIELD_COUNT && field.bits != 0)
    {
        return number & ((INT64{1} << field.bits) - 1);
    }
    switch (field.kind)
    {
    case RRC_FIELD_NUMBER:
        octets = element->width;
        break;
    case RRC_FIELD_ENUMERATED:
        octets = 4;
        break;
    case RRC_FIELD_BOOLEAN:
        return (number & 0xFF) != 0;
    default:
        return number;
    }
    const unsigned above = 64 - 8 * octets;
    return element->lower < 0 ? static_cast<INT64>(static_cast<UINT64>(number) << above) >> above
                              : static_cast<INT64>(static_cast<UINT64>(number) << above >> above);
}

// What the random records cannot show.
constexpr std::string_view notDrawn[] = {
    "CodeBookTypeMultiPanel_t.",
    "MultiPanel_ng_n1_n2_u.", // refused whatever they hold
    "RrcTddUlDlSlotCfg_t.",
    "explicit_s.",                                          // not sent
    "semimPersistentOnPuschv1530.",                         // not sent
    "RrcServingCellCfgCommon_t.RrcSsbPositionInBurst.long", // refused
    "RrcPucchCfg_t.resourceSetId", // entries beyond the number of the list before are sent as 0, whatever they hold
};

bool isNotDrawn(const std::string& name)
{
    return std::any_of(std::begin(notDrawn), std::end(notDrawn),
                       [&name](std::string_view begin) { return name.compare(0, begin.size(), begin) == 0; });
}

struct Seen
{
    INT64 lower = INT64_MAX;
    INT64 upper = INT64_MIN;
    UINT64 bits = 0;
};

struct Leaf
{
    const RrcRecordType* type;
    const RrcRecordField* field;
    void* record;
    UINT32 entry;
};

// Another value in the range of a field, or another bit of a bit string.
UINT64 another(const Leaf& leaf, std::mt19937& engine)
{
    const RrcRecordField& field = *leaf.field;
    if (field.kind == RRC_FIELD_BITS)
    {
        return rrcRecordBits(&field, leaf.record, leaf.entry) ^ UINT64 { 1 } << engine() % field.bits;
    }
    if (field.kind == RRC_FIELD_OCTETS) // the last one may hold less than 8 bits, the first of which count
    {
        return rrcRecordBits(&field, leaf.record, leaf.entry) ^ UINT64 { 0x80 } << rtx::bitFieldShift(field.size, 8);
    }
    const INT64 before = taken(field, leaf.record, leaf.entry);
    INT64 number = before;
    while (number == before)
    {
        number = field.lower + static_cast<INT64>(engine() % static_cast<UINT64>(field.upper - field.lower + 1));
    }
    return static_cast<UINT64>(number);
}

// Whatever the description says is read and sent changes the octets.
TEST(recordTypes, allThatIsReadMatters)
{
    const auto record = junk(4);
    records::Chance chance(Ranges::kept);
    std::mt19937 engine(5);
    for (std::uint32_t seed = 1; seed <= 500; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        std::vector<Leaf> leaves;
        auto visit = [&](const RrcRecordType& type, UINT32 index, const void* place, UINT32 entries)
        {
            const RrcRecordField& field = type.fields[index];
            const std::string name = std::string(type.name) + "." + field.name;
            const bool value = field.kind <= RRC_FIELD_OCTETS &&
                               (field.kind >= RRC_FIELD_BITS || field.upper > field.lower) && !isNotDrawn(name);
            const bool sent = (field.flags & RRC_FIELD_NOT_SENT) == 0;
            for (UINT32 entry = 0; entry < entries && sent && value; ++entry)
            {
                leaves.push_back({&type, &field, const_cast<void*>(place), entry});
            }
            return sent;
        };
        walk(root(), record.get(), visit);
        std::shuffle(leaves.begin(), leaves.end(), engine);
        leaves.resize(std::min<std::size_t>(leaves.size(), 20));
        const std::string before = composed(record.get());
        for (const Leaf& leaf : leaves)
        {
            const UINT64 bits = rrcRecordBits(leaf.field, leaf.record, leaf.entry);
            rrcRecordStore(leaf.field, leaf.record, leaf.entry, another(leaf, engine));
            EXPECT_NE(composed(record.get()), before) << "cell group " << seed << ": " << leaf.type->name << "."
                                                      << leaf.field->name << "[" << leaf.entry << "]";
            rrcRecordStore(leaf.field, leaf.record, leaf.entry, bits);
        }
    }
}

// Whether the description's range is the whole of what is drawn, both ends of which occur.
TEST(recordTypes, rangesAreThoseDrawn)
{
    const auto record = junk(3);
    records::Chance chance(Ranges::kept);
    std::map<const RrcRecordField*, Seen> seen;
    for (std::uint32_t seed = 1; seed <= records::shareOf(10000); ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        auto visit = [&](const RrcRecordType& type, UINT32 index, const void* place, UINT32 entries)
        {
            const RrcRecordField& field = type.fields[index];
            const bool sent = (field.flags & RRC_FIELD_NOT_SENT) == 0; // what is not is filled with anything
            for (UINT32 entry = 0; entry < entries && sent && isLeaf(field); ++entry)
            {
                Seen& range = seen[&field];
                const INT64 number = taken(field, place, entry);
                range.lower = std::min(range.lower, number);
                range.upper = std::max(range.upper, number);
                range.bits |= static_cast<UINT64>(number);
            }
            return sent;
        };
        walk(root(), record.get(), visit);
    }
    ASSERT_EQ(chance.missing(), std::vector<std::string>{});
    unsigned fields = 0;
    for (UINT32 t = 0; t < rrcRecordTypeCount; ++t)
    {
        const RrcRecordType& type = *rrcRecordTypes[t];
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            const RrcRecordField& field = type.fields[i];
            const std::string name = std::string(type.name) + "." + field.name;
            if (!isLeaf(field) || field.kind == RRC_FIELD_UNREAD || (field.flags & RRC_FIELD_NOT_SENT) != 0 ||
                isNotDrawn(name))
            {
                continue;
            }
            const auto found = seen.find(&field);
            if (found == seen.end())
            {
                ADD_FAILURE() << name << " is never read";
                continue;
            }
            ++fields;
            const Seen& range = found->second;
            const rtx::Type* const element = field.way.target;
            switch (field.kind)
            {
            case RRC_FIELD_MASK:
                EXPECT_EQ(range.bits & ~static_cast<UINT64>(field.upper), 0U) << name;
                break;
            case RRC_FIELD_BITS:
            case RRC_FIELD_OCTETS:
            case RRC_FIELD_VALUE:
                break;
            case RRC_FIELD_ENUMERATED: // spare values are sent, too
                EXPECT_EQ(range.lower, 0) << name;
                EXPECT_EQ(range.upper, element->upper + (field.flags & RRC_FIELD_ELSE_ABSENT ? 1 : 0)) << name;
                break;
            default:
                EXPECT_EQ(range.lower, field.lower) << name;
                EXPECT_EQ(range.upper, field.upper) << name;
            }
        }
    }
    EXPECT_GT(fields, 900U);
}

// Where a way's steps lead from an element.
const rtx::Type* targetOf(const rtx::Type* element, const RrcRecordWay& way)
{
    for (UINT32 i = 0; i < way.stepCount && element != nullptr; ++i)
    {
        const UINT16 step = way.steps[i];
        if (step == RRC_STEP_ENTRY)
        {
            const bool isList = element->kind == rtx::Kind::Array || element->kind == rtx::Kind::List;
            element = isList ? &element->element() : nullptr;
        }
        else
        {
            element = step < element->memberCount ? element->members[step].type : nullptr;
        }
    }
    return element;
}

// The descriptors of the standard's types lie behind every path.
TEST(recordTypes, waysLeadToTheirTargets)
{
    unsigned ways = 0;
    for (UINT32 t = 0; t < rrcRecordTypeCount; ++t)
    {
        const RrcRecordType& type = *rrcRecordTypes[t];
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            const RrcRecordField& field = type.fields[i];
            if (field.way.path == nullptr)
            {
                EXPECT_TRUE(field.kind == RRC_FIELD_MASK || field.kind == RRC_FIELD_COUNT ||
                            field.kind == RRC_FIELD_VALUE || field.kind == RRC_FIELD_UNREAD)
                    << type.name << "." << field.name;
                continue;
            }
            ++ways;
            EXPECT_EQ(targetOf(type.element, field.way), field.way.target) << type.name << "." << field.name;
            if (field.record != nullptr)
            {
                EXPECT_EQ(field.record->element, field.way.target) << type.name << "." << field.name;
            }
        }
        for (UINT32 i = 0; i < type.choiceCount; ++i)
        {
            const RrcRecordChoice& choice = type.choices[i];
            EXPECT_EQ(targetOf(type.element, choice.way), choice.way.target) << type.name << ": " << choice.way.path;
            EXPECT_EQ(choice.way.target->kind, rtx::Kind::Choice) << type.name << ": " << choice.way.path;
            for (UINT32 o = 0; o < choice.optionCount; ++o)
            {
                EXPECT_LT(choice.options[o].alternative, choice.way.target->memberCount) << choice.way.path;
                EXPECT_LT(choice.options[o].sentAs, choice.way.target->memberCount) << choice.way.path;
            }
        }
    }
    EXPECT_GT(ways, 900U);
}

struct Numbered
{
    std::string_view name;
    UINT32 number;
};

#define NUMBERED(type, number) {#type, number},
constexpr Numbered numbered[] = {RRC_RECORDS(NUMBERED)};
#undef NUMBERED

const RrcRecordType* described(std::string_view name)
{
    if (name.compare(0, 7, "struct ") == 0)
    {
        name.remove_prefix(7);
    }
    const auto* const end = rrcRecordTypes + rrcRecordTypeCount;
    const auto* const found =
        std::find_if(rrcRecordTypes, end, [name](const RrcRecordType* type) { return type->name == name; });
    return found == end ? nullptr : *found;
}

// Every structure that has a name can be initialised: what it reads is 0, and the pattern is in all that lies behind
// its masks and counts, but not in these.
TEST(recordTypes, emptyOnesAreInitialised)
{
    for (const Numbered& one : numbered)
    {
        const RrcRecordType* const type = described(one.name);
        ASSERT_NE(type, nullptr) << one.name;
        std::vector<unsigned char> memory(type->size, 0xFF);
        auto visit = [](const RrcRecordType& inner, UINT32 index, const void* place, UINT32 entries)
        {
            const RrcRecordField& field = inner.fields[index];
            for (UINT32 entry = 0; entry < entries && isLeaf(field); ++entry)
            {
                EXPECT_EQ(rrcRecordBits(&field, place, entry), 0U) << inner.name << "." << field.name;
            }
            return true;
        };
        rrcInitRecord(memory.data(), one.number);
        walk(*type, memory.data(), visit);
        std::fill(memory.begin(), memory.end(), 0xFF);
        rrcInitRecordWithPattern(memory.data(), one.number);
        walk(*type, memory.data(), visit);
        for (UINT32 i = 0; i < type->fieldCount; ++i)
        {
            const RrcRecordField& field = type->fields[i];
            const bool byNumber = field.choice >= 0 && type->choices[field.choice].byNumber != 0;
            if (field.kind == RRC_FIELD_MASK || field.kind == RRC_FIELD_COUNT)
            {
                EXPECT_EQ(rrcRecordBits(&field, memory.data(), 0), 0U) << type->name << "." << field.name;
            }
            else if ((field.guard >= 0 || field.count >= 0 ||
                      (rrcRecordIsRead(type, memory.data(), i) == 0 && !byNumber)) &&
                     field.kind != RRC_FIELD_UNREAD && field.bitWidth == 0)
            {
                const auto* const begin = memory.data() + field.offset;
                EXPECT_TRUE(std::all_of(begin, begin + field.size, [](unsigned char octet) { return octet == 0xA5; }))
                    << type->name << "." << field.name;
            }
        }
    }
    EXPECT_GT(std::size(numbered), 200U);
}

} // namespace
