// JSON to a record, by the description of the records.
#include "document.h"
#include "rrcRecordFromJson.h"
#include "rrcRecordType.h"
#include "rtxType.h"
#include "whileMemory.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <utility>
#include <vector>

namespace text
{
namespace
{

const char* const booleans[] = {"false", "true"};

// Names and the numbers that they stand for.
struct Names
{
    std::vector<const char*> names;
    std::vector<std::uint64_t> numbers;

    void add(const char* name, std::uint64_t number)
    {
        names.push_back(name);
        numbers.push_back(number);
    }
};

Names valuesOf(const RtxType* type)
{
    Names values;
    if (type != nullptr && type->kind == rtx::Kind::Enumerated)
    {
        for (std::uint32_t i = 0; i <= static_cast<std::uint32_t>(type->upper); ++i)
        {
            values.add(type->names[i], i);
        }
    }
    return values;
}

std::size_t octetsOf(const RrcRecordField& field)
{
    return std::size_t{field.size} * std::max<std::size_t>(field.bound, 1);
}

bool isArray(const RrcRecordField& field)
{
    return field.bound != 0 && field.kind != RRC_FIELD_OCTETS;
}

class RecordReader
{
public:
    explicit RecordReader(Document& document) : document_(document) {}

    void run(const RrcRecordType& type, void* record, const Node& root)
    {
        if (root.kind != Node::Kind::object)
        {
            document_.mistake(root, type.name, "expected an object, found " + found(root));
            return;
        }
        structure(type, static_cast<unsigned char*>(record), root);
    }

private:
    // A structure and what the text has for its fields.
    struct Structure
    {
        const RrcRecordType& type;
        unsigned char* record;
        const Node& object;
        const Node* nodes[RRC_RECORD_MAX_FIELDS] = {};
        RrcRecordGiven given = {};
        RrcRecordFollowing following = {};
    };

    struct Step
    {
        const char* name; // null of an entry
        std::uint32_t index;
    };

    // A step of the path for as long as it lives.
    class Within
    {
    public:
        Within(RecordReader& reader, const char* name, std::uint32_t index = 0) : steps_(reader.steps_)
        {
            steps_.push_back({name, index});
        }
        ~Within()
        {
            steps_.pop_back();
        }
        Within(const Within&) = delete;
        Within& operator=(const Within&) = delete;

    private:
        std::vector<Step>& steps_;
    };

    std::string path() const
    {
        std::string path;
        for (const Step& step : steps_)
        {
            path += step.name == nullptr ? '[' + std::to_string(step.index) + ']'
                                         : (path.empty() ? "" : ".") + std::string(step.name);
        }
        return path;
    }

    void mistake(const Node& node, std::string words)
    {
        document_.mistake(node, path(), std::move(words));
    }

    static std::string found(const Node& node)
    {
        return node.kind == Node::Kind::object  ? "an object"
               : node.kind == Node::Kind::array ? "an array"
                                                : describe({node.forms, node.text});
    }

    void wanted(const Node& node, const std::string& words)
    {
        mistake(node, "expected " + words + ", found " + found(node));
    }

    void structure(const RrcRecordType& type, unsigned char* record, const Node& object)
    {
        Structure all = {type, record, object};
        members(all);
        rrcRecordFollow(&type, &all.given, &all.following);
        for (std::uint32_t i = 0; i < type.fieldCount; ++i)
        {
            const bool isGiven = all.nodes[i] != nullptr;
            switch (type.fields[i].kind)
            {
            case RRC_FIELD_MASK:
                mask(all, i);
                break;
            case RRC_FIELD_COUNT:
                isGiven ? field(all, i) : count(all, i);
                break;
            case RRC_FIELD_ALTERNATIVE:
                alternative(all, i);
                break;
            default:
                break;
            }
        }
        for (std::uint32_t i = 0; i < type.fieldCount; ++i)
        {
            const UINT8 kind = type.fields[i].kind;
            const bool isDone = kind == RRC_FIELD_MASK || kind == RRC_FIELD_COUNT || kind == RRC_FIELD_ALTERNATIVE;
            if (!isDone && all.nodes[i] != nullptr)
            {
                field(all, i);
                tellUnread(all, i);
            }
        }
    }

    // By now all is known that decides it: a mask or an alternative that the text gives wins over what would follow.
    void tellUnread(const Structure& all, std::uint32_t index)
    {
        const RrcRecordField& field = all.type.fields[index];
        const bool isOther =
            field.kind == RRC_FIELD_UNION && rrcRecordMember(&all.type, all.record, index) != all.given.members[index];
        if (rrcRecordIsRead(&all.type, all.record, index) != 0 && !isOther)
        {
            return;
        }
        const Within within(*this, field.name);
        std::string words = "given, and not read";
        if (field.guard >= 0 && !isOther)
        {
            const RrcRecordBit& bit = all.type.bits[field.guard];
            words += ": " + std::string(bit.name) + " is clear in " + all.type.fields[bit.mask].name;
        }
        else if (field.choice >= 0)
        {
            words += ": " + std::string(all.type.fields[all.type.choices[field.choice].selector].name) +
                     " chooses another alternative";
        }
        document_.unread(*all.nodes[index], path(), std::move(words));
    }

    // What is null is not given.
    void members(Structure& all)
    {
        std::fill(std::begin(all.given.members), std::end(all.given.members), INT16{-1});
        for (const Node* node = all.object.first; node != nullptr; node = node->next)
        {
            std::uint32_t index = 0;
            if (!findField(all.type, *node, index) || node->isNull())
            {
                continue;
            }
            if (all.nodes[index] != nullptr)
            {
                mistakeOfMember(all.type, *node, index, "given twice");
                continue;
            }
            all.nodes[index] = node;
            all.given.fields |= UINT64{1} << index;
            const RrcRecordField& field = all.type.fields[index];
            if (field.kind == RRC_FIELD_UNION)
            {
                all.given.members[index] = unionMember(field, *node);
            }
        }
    }

    void mistakeOfMember(const RrcRecordType& type, const Node& node, std::uint32_t index, std::string words)
    {
        const Within within(*this, type.fields[index].name);
        document_.mistakeOfName(node, path(), std::move(words));
    }

    bool findField(const RrcRecordType& type, const Node& node, std::uint32_t& index)
    {
        const INT16 found = indexOf(type, node.name);
        if (found < 0)
        {
            const std::vector<const char*> names = namesOf(type);
            document_.mistakeOfName(node, path(),
                                    std::string(type.name) + " has no " + quoted(node.name) +
                                        suggestion(node.name, names.data(), names.size()));
        }
        index = static_cast<std::uint32_t>(found);
        return found >= 0;
    }

    static std::vector<const char*> namesOf(const RrcRecordType& type)
    {
        std::vector<const char*> names;
        std::transform(type.fields, type.fields + type.fieldCount, std::back_inserter(names),
                       [](const RrcRecordField& field) { return field.name; });
        return names;
    }

    // The first member of a union that is given, in an array by any entry; -1: none.
    static INT16 unionMember(const RrcRecordField& field, const Node& node)
    {
        const bool isList = node.kind == Node::Kind::array;
        for (const Node* one = isList ? node.first : &node; one != nullptr; one = isList ? one->next : nullptr)
        {
            for (const Node* member = one->first; member != nullptr; member = member->next)
            {
                const INT16 index = indexOf(*field.record, member->name);
                if (index >= 0 && !member->isNull())
                {
                    return index;
                }
            }
        }
        return -1;
    }

    static INT16 indexOf(const RrcRecordType& type, std::string_view name)
    {
        const auto* const end = type.fields + type.fieldCount;
        const auto* const found =
            std::find_if(type.fields, end, [name](const RrcRecordField& field) { return name == field.name; });
        return static_cast<INT16>(found == end ? -1 : found - type.fields);
    }

    void mask(const Structure& all, std::uint32_t index)
    {
        const RrcRecordField& field = all.type.fields[index];
        std::uint64_t bits = rrcRecordFollowingMask(&all.type, &all.following, index);
        if (const Node* const node = all.nodes[index])
        {
            const Within within(*this, field.name);
            if (node->kind == Node::Kind::array)
            {
                list(all.type, index, *node, bits);
            }
            else if (node->kind != Node::Kind::scalar || (node->forms & integerForm) == 0)
            {
                wanted(*node, "a list of bits or a number");
                return;
            }
            else if (!number(*node, field, bits))
            {
                return;
            }
        }
        rrcRecordStore(&field, all.record, 0, bits);
    }

    // Bits besides those that follow.
    void list(const RrcRecordType& type, std::uint32_t index, const Node& node, std::uint64_t& bits)
    {
        Names names;
        for (std::uint32_t i = 0; i < type.bitCount; ++i)
        {
            if (type.bits[i].mask == index)
            {
                names.add(type.bits[i].name, std::uint64_t{1} << type.bits[i].number);
            }
        }
        std::uint32_t entry = 0;
        for (const Node* one = node.first; one != nullptr; one = one->next)
        {
            const Within within(*this, nullptr, entry++);
            std::uint64_t more = 0;
            if (numberOrName(*one, type.fields[index], names, "bit", more))
            {
                bits |= more;
            }
        }
    }

    void count(const Structure& all, std::uint32_t index)
    {
        for (std::uint32_t i = 0; i < all.type.fieldCount; ++i)
        {
            if (all.type.fields[i].count == static_cast<INT32>(index) && all.nodes[i] != nullptr)
            {
                rrcRecordStore(&all.type.fields[index], all.record, 0, all.nodes[i]->count);
            }
        }
    }

    void alternative(const Structure& all, std::uint32_t index)
    {
        const RrcRecordField& field = all.type.fields[index];
        const INT32 number = rrcRecordChoiceBy(&all.type, index);
        if (number < 0)
        {
            return;
        }
        const RrcRecordChoice& choice = all.type.choices[number];
        std::uint64_t value = 0;
        if (const Node* const node = all.nodes[index])
        {
            const Within within(*this, field.name);
            Names names;
            for (unsigned i = 0; i < choice.optionCount; ++i)
            {
                names.add(choice.way.target->names[choice.options[i].alternative],
                          static_cast<std::uint64_t>(choice.options[i].number));
            }
            if (!numberOrName(*node, field, names, "alternative", value))
            {
                return;
            }
        }
        else if (all.following.options[number] >= 0)
        {
            value = static_cast<std::uint64_t>(choice.options[all.following.options[number]].number);
        }
        else
        {
            openChoice(all, number, field.name);
        }
        rrcRecordStore(&field, all.record, 0, value);
    }

    // Content of a choice that nothing chooses.
    void openChoice(const Structure& all, INT32 choice, const char* selector)
    {
        for (std::uint32_t i = 0; i < all.type.fieldCount; ++i)
        {
            if (all.nodes[i] != nullptr && all.type.fields[i].choice == choice)
            {
                mistakeOfMember(all.type, *all.nodes[i], i,
                                "it does not say which alternative it is of: " + quoted(selector) + " is missing");
                return;
            }
        }
    }

    void field(const Structure& all, std::uint32_t index)
    {
        const RrcRecordField& field = all.type.fields[index];
        const Node& node = *all.nodes[index];
        const Within within(*this, field.name);
        if (!isArray(field))
        {
            entry(all, index, 0, node, all.given.members[index]);
            return;
        }
        const std::string entries = std::to_string(field.bound) + (field.bound == 1 ? " entry" : " entries");
        if (node.kind != Node::Kind::array)
        {
            wanted(node, field.count < 0 ? "an array of " + entries : "an array of at most " + entries);
            return;
        }
        if (field.count < 0 && node.count != field.bound)
        {
            mistake(node, "expected " + entries + ", found " + std::to_string(node.count));
            return;
        }
        std::uint32_t number = 0;
        for (const Node* one = node.first; one != nullptr && !document_.full(*one); one = one->next)
        {
            if (number == field.bound)
            {
                mistake(*one, "there is room for " + entries + ", not for " + std::to_string(node.count));
                return;
            }
            const Within element(*this, nullptr, number);
            entry(all, index, number, *one, all.given.members[index]);
            ++number;
        }
    }

    void entry(const Structure& all, std::uint32_t index, std::uint32_t number, const Node& node, INT16 unionMember)
    {
        const RrcRecordField& field = all.type.fields[index];
        unsigned char* const place = all.record + field.offset + std::size_t{number} * field.size;
        const bool isObject = node.kind == Node::Kind::object;
        switch (field.kind)
        {
        case RRC_FIELD_RECORD:
            isObject ? structure(*field.record, place, node) : wanted(node, "an object");
            break;
        case RRC_FIELD_UNION:
            alternativeOf(*field.record, place, node, unionMember);
            break;
        case RRC_FIELD_OCTETS:
            octets(field, place, node);
            break;
        default:
            scalar(all, index, number, node);
            break;
        }
    }

    void alternativeOf(const RrcRecordType& type, unsigned char* record, const Node& node, INT16 chosen)
    {
        if (node.kind != Node::Kind::object)
        {
            wanted(node, "an object with the alternative");
            return;
        }
        Structure all = {type, record, node};
        bool any = false;
        for (const Node* member = node.first; member != nullptr; member = member->next)
        {
            std::uint32_t index = 0;
            if (!findField(type, *member, index) || member->isNull())
            {
                continue;
            }
            if (any || static_cast<INT32>(index) != chosen)
            {
                mistakeOfMember(type, *member, index,
                                "a second alternative beside " + quoted(type.fields[chosen].name) +
                                    ": null takes out the one of an included record");
                continue;
            }
            any = true;
            all.nodes[index] = member;
            if (type.fields[index].kind != RRC_FIELD_UNREAD)
            {
                field(all, index);
            }
            else if (member->kind != Node::Kind::object || member->count != 0)
            {
                const Within within(*this, type.fields[index].name);
                wanted(*member, "{}, as it has no content");
            }
        }
        if (!any && chosen < 0 && node.count == 0)
        {
            const std::vector<const char*> names = namesOf(type);
            mistake(node, "no alternative" + suggestion("", names.data(), names.size()));
        }
    }

    void octets(const RrcRecordField& field, unsigned char* place, const Node& node)
    {
        const std::size_t octets = (field.bits + 7U) / 8;
        const std::size_t all = octetsOf(field);
        if (!isHexadecimal(node))
        {
            wanted(node, "a string of " + std::to_string(2 * octets) + " hexadecimal digits");
        }
        else if (node.text.size() != 2 * octets && node.text.size() != 2 * all)
        {
            mistake(node, digits(field.bits, octets) +
                              (all != octets ? " or, with all that the field holds, " + std::to_string(2 * all) : "") +
                              ", not " + std::to_string(node.text.size()));
        }
        else
        {
            putHexadecimal(place, node.text);
        }
    }

    static std::string digits(unsigned bits, std::size_t octets)
    {
        return plural(bits, "bit") + " take " + plural(static_cast<std::int64_t>(2 * octets), "hexadecimal digit");
    }

    static bool isHexadecimal(const Node& node)
    {
        return node.kind == Node::Kind::scalar && (node.forms & stringForm) != 0 &&
               node.text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
    }

    void scalar(const Structure& all, std::uint32_t index, std::uint32_t entry, const Node& node)
    {
        const RrcRecordField& field = all.type.fields[index];
        std::uint64_t bits = 0;
        bool isRead = false;
        switch (field.kind)
        {
        case RRC_FIELD_ENUMERATED:
            isRead = numberOrName(node, field, valuesOf(field.way.target), "value", bits);
            break;
        case RRC_FIELD_BOOLEAN:
            isRead = numberOrName(node, field, {{booleans[0], booleans[1]}, {0, 1}}, "value", bits);
            break;
        case RRC_FIELD_VALUE:
            isRead =
                numberOrName(node, field, valuesOf(rrcRecordValueType(&all.type, all.record, index)), "value", bits);
            break;
        case RRC_FIELD_BITS:
            isRead = bitString(node, field, bits);
            break;
        default:
            isRead = numberOrName(node, field, {}, "value", bits);
            break;
        }
        if (isRead)
        {
            rrcRecordStore(&field, all.record, entry, bits);
        }
    }

    bool bitString(const Node& node, const RrcRecordField& field, std::uint64_t& bits)
    {
        const std::size_t octets = (field.bits + 7U) / 8;
        if (node.kind == Node::Kind::scalar && (node.forms & integerForm) != 0)
        {
            return number(node, field, bits);
        }
        if (!isHexadecimal(node))
        {
            wanted(node, "a string of " + std::to_string(2 * octets) + " hexadecimal digits");
            return false;
        }
        if (node.text.size() != 2 * octets)
        {
            mistake(node, digits(field.bits, octets) + ", not " + std::to_string(node.text.size()));
            return false;
        }
        unsigned char data[8] = {};
        putHexadecimal(data, node.text);
        for (std::size_t i = 0; i < octets; ++i)
        {
            bits = bits << 8 | data[i];
        }
        const unsigned padding = static_cast<unsigned>(8 * octets) - field.bits;
        if ((bits & ((1U << padding) - 1)) != 0)
        {
            mistake(node, "the last " + plural(padding, "bit") + " of " + quoted(node.text) +
                              " are padding and have to be 0");
            return false;
        }
        bits >>= padding;
        return true;
    }

    bool numberOrName(const Node& node, const RrcRecordField& field, const Names& names, const char* noun,
                      std::uint64_t& bits)
    {
        if (node.kind == Node::Kind::scalar && (node.forms & integerForm) != 0)
        {
            return number(node, field, bits);
        }
        if (node.kind != Node::Kind::scalar || (node.forms & nameForm) == 0 || names.names.empty())
        {
            wanted(node, expected(field, names, noun));
            return false;
        }
        const auto found = std::find(names.names.begin(), names.names.end(), node.text);
        if (found == names.names.end())
        {
            mistake(node, std::string("unknown ") + noun + ' ' + quoted(node.text) +
                              suggestion(node.text, names.names.data(), names.names.size()));
            return false;
        }
        bits = names.numbers[static_cast<std::size_t>(found - names.names.begin())];
        return true;
    }

    static std::string expected(const RrcRecordField& field, const Names& names, const char* noun)
    {
        constexpr std::size_t few = 8;
        return names.names.empty()         ? "an integer in " + boundsOf(field)
               : names.names.size() <= few ? oneOf(names.names.data(), names.names.size()) + " or a number"
                                           : std::string("the name of a ") + noun + " or a number";
    }

    static unsigned widthOf(const RrcRecordField& field)
    {
        return field.bitWidth != 0 ? field.bitWidth : 8 * field.size;
    }

    // What the field can hold.
    static std::int64_t leastOf(const RrcRecordField& field)
    {
        const bool isNegativeToo = field.isSigned != 0 || (field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0;
        return isNegativeToo ? -(std::int64_t{1} << (widthOf(field) - 1)) : 0;
    }

    static std::uint64_t mostOf(const RrcRecordField& field)
    {
        const unsigned bits = widthOf(field) - (field.isSigned != 0 && field.kind == RRC_FIELD_NUMBER ? 1 : 0);
        return ~std::uint64_t{0} >> (64 - bits);
    }

    static std::string boundsOf(const RrcRecordField& field)
    {
        return std::to_string(leastOf(field)) + ".." + std::to_string(mostOf(field));
    }

    bool number(const Node& node, const RrcRecordField& field, std::uint64_t& bits)
    {
        const char* const begin = node.text.data();
        const char* const end = begin + node.text.size();
        std::int64_t negative = 0;
        std::uint64_t value = 0;
        bool fits = false;
        if (node.text.starts_with('-'))
        {
            fits = std::from_chars(begin, end, negative).ec == std::errc() && negative >= leastOf(field);
            value = static_cast<std::uint64_t>(negative);
        }
        else
        {
            fits = std::from_chars(begin, end, value).ec == std::errc() && value <= mostOf(field);
        }
        if (!fits)
        {
            const bool isRange = field.kind == RRC_FIELD_NUMBER;
            mistake(node, shown(node.text) + " is not in " + boundsOf(field) + ", which the field holds" +
                              (isRange ? "; the standard has " + range(field.lower, field.upper) : ""));
            return false;
        }
        bits = value;
        return true;
    }

    Document& document_;
    std::vector<Step> steps_; // that lead to a value
};

int report(std::deque<Source>& sources, Mistakes Source::*kind, OSBOOL isUnread, RrcRecordMistakeSink sink, void* arg)
{
    int number = 0;
    for (Source& source : sources)
    {
        const auto one = [&](const Asn1Mistake& mistake)
        {
            const RrcRecordMistake whole = {source.file.c_str(), mistake, isUnread};
            if (sink != nullptr)
            {
                sink(arg, &whole);
            }
        };
        const auto each = [](void* to, const Asn1Mistake* mistake)
        {
            (*static_cast<decltype(one)*>(to))(*mistake);
        };
        number += (source.*kind).report(source.text, each, const_cast<void*>(static_cast<const void*>(&one)));
    }
    return number;
}

} // namespace
} // namespace text

int rrcRecordFromJson(RrcCellGroupCfg_t* record, const char* text, size_t length, const char* file,
                      RrcRecordMistakeSink sink, void* arg)
{
    const auto readAll = [&]
    {
        std::memset(record, 0, sizeof *record);
        text::Document document(RRC_RECORD_MAX_VALUES, file != nullptr);
        const text::Node* const root = document.read({text, length}, file != nullptr ? file : "");
        if (root != nullptr)
        {
            text::RecordReader(document).run(*rrcRecordTypes[0], record, *root);
        }
        const int mistakes = text::report(document.sources(), &text::Source::mistakes, 0, sink, arg);
        if (mistakes == 0)
        {
            (void)text::report(document.sources(), &text::Source::unread, 1, sink, arg);
        }
        return mistakes;
    };
    const auto withoutMemory = [&]
    {
        const RrcRecordMistake mistake = {
            file != nullptr ? file : "", {0, 1, 1, "", "there is no memory to read the text"}, 0};
        if (sink != nullptr)
        {
            sink(arg, &mistake);
        }
        return 1;
    };
    return text::whileMemory(readAll, withoutMemory);
}
