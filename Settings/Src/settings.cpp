#include "rrcSettings.h"

#include "NR-RRC-Tables.h"
#include "asn1FromText.h"
#include "nearest.h"
#include "nrFormulas.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace settings
{
namespace
{

// What makes a setting impossible, as one line.
class Wrong : public std::runtime_error
{
public:
    explicit Wrong(const std::string& line) : std::runtime_error(line) {}
};

struct Context
{
    Context()
    {
        rtxInitContext(&own);
    }
    ~Context()
    {
        rtFreeContext(&own);
    }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    OSCTXT own;
};

// What an RrcRuleContext points to.
struct Known
{
    RrcRuleContext context{};
    std::vector<SCS_SpecificCarrier> carriersDl;
    std::vector<SCS_SpecificCarrier> carriersUl;
    std::optional<BWP> bwp0Dl;
    std::optional<BWP> bwp0Ul;
    std::array<OSOCTET, 8> ssb{};
    std::optional<OSUINT32> typeAPosition;
    std::optional<ControlResourceSetZero> coreset0;
    std::optional<TDD_UL_DL_ConfigCommon> tdd;
    std::optional<RACH_ConfigCommon> rach;
    Context rachTree;
    std::optional<RrcRuleCapabilities> capabilities;
    std::optional<RrcRuleBearers> bearers;
    std::vector<RrcRuleMeasObject> measObjects;
    std::optional<OSUINT32> otherCells;
};

struct Said
{
    const RrcSetting* setting;
    std::string value;
    std::string origin;
};

struct Row
{
    RrcSetting setting;
    void (*take)(Known& known, const Said& said); // throws Wrong; null: what the caller takes himself
};

using Words = std::vector<std::string_view>;

[[noreturn]] void refuse(const Said& said, const std::string& what)
{
    throw Wrong(said.origin + ": " + what);
}

std::string inQuotes(std::string_view text)
{
    constexpr std::size_t most = 60;
    return "'" + std::string(text.substr(0, most)) + (text.size() > most ? "...'" : "'");
}

Words split(std::string_view text, char separator)
{
    Words words;
    for (std::size_t begin = 0;;)
    {
        const std::size_t end = text.find(separator, begin);
        words.push_back(text.substr(begin, end - begin));
        if (end == std::string_view::npos)
        {
            return words;
        }
        begin = end + 1;
    }
}

// Of a value with so many parts.
Words parts(const Said& said, std::string_view text, std::size_t count, const char* layout)
{
    Words words = split(text, ':');
    if (words.size() != count)
    {
        refuse(said, inQuotes(text) + " is not " + layout);
    }
    return words;
}

std::optional<std::uint32_t> numberIn(std::string_view text)
{
    std::uint32_t value = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && rest == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

std::uint32_t number(const Said& said, const char* what, std::string_view text, std::uint32_t lower,
                     std::uint32_t upper)
{
    const auto value = numberIn(text);
    if (!value || *value < lower || *value > upper)
    {
        refuse(said, std::string(what) + " " + inQuotes(text) + " is not in " + std::to_string(lower) + ".." +
                         std::to_string(upper));
    }
    return *value;
}

// The index of the word among those that are possible.
template <std::size_t count>
OSUINT32 word(const Said& said, const char* what, std::string_view text,
              const std::array<std::string_view, count>& known)
{
    const auto* const found = std::find(known.begin(), known.end(), text);
    if (found == known.end())
    {
        std::string all;
        for (const std::string_view one : known)
        {
            all += (all.empty() ? "" : ", ") + std::string(one);
        }
        const auto close = text.empty() ? std::nullopt : text::nearest(text, known);
        refuse(said, std::string(what) + " " + inQuotes(text) + " is none of " + all +
                         (close && std::isalpha(static_cast<unsigned char>(text[0])) != 0
                              ? "; did you mean " + std::string(*close) + "?"
                              : ""));
    }
    return static_cast<OSUINT32>(found - known.begin());
}

constexpr std::array<std::string_view, 4> spacings = {"15", "30", "60", "120"};
constexpr std::array<std::string_view, 5> ssbSpacings = {"15", "30", "60", "120", "240"};

SubcarrierSpacing spacing(const Said& said, std::string_view text)
{
    return word(said, "the subcarrier spacing", text, spacings);
}

SCS_SpecificCarrier carrier(const Said& said)
{
    const Words words = parts(said, said.value, 3, "SCS:offset:width, such as 30:0:273");
    SCS_SpecificCarrier carrier{};
    carrier.subcarrierSpacing = spacing(said, words[0]);
    carrier.offsetToCarrier = static_cast<OSUINT16>(number(said, "the offset", words[1], 0, 2199));
    carrier.carrierBandwidth = static_cast<OSUINT16>(number(said, "the width", words[2], 1, NR_LARGEST_CARRIER));
    return carrier;
}

void addCarrier(const Said& said, std::vector<SCS_SpecificCarrier>& carriers)
{
    const SCS_SpecificCarrier added = carrier(said);
    const bool isKnown =
        std::any_of(carriers.begin(), carriers.end(),
                    [&](const SCS_SpecificCarrier& one) { return one.subcarrierSpacing == added.subcarrierSpacing; });
    if (isKnown)
    {
        refuse(said, "a second carrier with the subcarrier spacing of " + inQuotes(said.value));
    }
    carriers.push_back(added);
}

BWP bandwidthPart(const Said& said)
{
    const Words words = parts(said, said.value, 2, "RIV:SCS, such as 1099:30");
    BWP bwp{};
    bwp.locationAndBandwidth = static_cast<OSUINT16>(number(said, "locationAndBandwidth", words[0], 0, 37949));
    bwp.subcarrierSpacing = spacing(said, words[1]);
    return bwp;
}

// dl-UL-TransmissionPeriodicity: its values, then those of its extension, in units of nrFormulas.h.
constexpr std::array<std::string_view, 10> periods = {"ms0p5", "ms0p625", "ms1",  "ms1p25", "ms2",
                                                      "ms2p5", "ms5",     "ms10", "ms3",    "ms4"};
constexpr std::array<std::uint32_t, 10> eighths = {4, 5, 8, 10, 16, 20, 40, 80, 24, 32};
constexpr OSUINT32 firstOfExtension = 8;

// Of "period:DL slots:DL symbols:UL slots:UL symbols".
NrTddPattern tddPattern(const Said& said, const Words& words, TDD_UL_DL_Pattern& pattern, std::uint32_t mu)
{
    const OSUINT32 period = word(said, "the period", words[0], periods);
    const std::uint32_t slots = nrTddSlots(eighths[period], mu);
    if (nrTddPeriodAllowed(eighths[period], mu) == 0)
    {
        std::string right;
        for (std::uint32_t other = 0; other < spacings.size(); ++other)
        {
            right += nrTddPeriodAllowed(eighths[period], other) == 0 ? "" : " " + std::string(spacings[other]);
        }
        refuse(said, "the period " + inQuotes(words[0]) + " is none of a reference of " + std::string(spacings[mu]) +
                         " kHz, but of" + right);
    }
    NrTddPattern result{eighths[period], 0, 0, 0, 0};
    result.dlSlots = number(said, "the downlink slots", words[1], 0, slots);
    result.dlSymbols = number(said, "the downlink symbols", words[2], 0, NR_SYMBOLS - 1);
    result.ulSlots = number(said, "the uplink slots", words[3], 0, slots);
    result.ulSymbols = number(said, "the uplink symbols", words[4], 0, NR_SYMBOLS - 1);
    if (nrTddFits(&result, mu) == 0)
    {
        refuse(said, "the slots and symbols are more than the " + std::to_string(slots) + " slots of " +
                         std::string(words[0]));
    }
    pattern.dl_UL_TransmissionPeriodicity = period;
    if (period >= firstOfExtension)
    {
        // The value of the root is passed over.
        pattern.dl_UL_TransmissionPeriodicity = TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_ms5;
        pattern.m._v2ExtPresent = 1;
        pattern.m.dl_UL_TransmissionPeriodicity_v1530Present = 1;
        pattern.dl_UL_TransmissionPeriodicity_v1530 = period - firstOfExtension;
    }
    pattern.nrofDownlinkSlots = static_cast<OSUINT16>(result.dlSlots);
    pattern.nrofDownlinkSymbols = static_cast<OSUINT8>(result.dlSymbols);
    pattern.nrofUplinkSlots = static_cast<OSUINT16>(result.ulSlots);
    pattern.nrofUplinkSymbols = static_cast<OSUINT8>(result.ulSymbols);
    return result;
}

// A capability's name (TS 38.306), its values, and the features of each.
struct Capability
{
    std::string_view name;
    std::string_view value;
    OSUINT32 features;
};
constexpr auto capabilities = std::to_array<Capability>({
    {"pdcch-MonitoringAnyOccasions", "withoutDCI-Gap", RRC_RULE_FEATURE_MONITORING_ANY},
    {"pdcch-MonitoringAnyOccasions", "withDCI-Gap", RRC_RULE_FEATURE_MONITORING_ANY},
    {"pdcch-MonitoringAnyOccasionsWithSpanGap", "supported", RRC_RULE_FEATURE_MONITORING_ANY_GAP},
    {"pdcch-MonitoringSingleOccasion", "supported", RRC_RULE_FEATURE_MONITORING_SINGLE},
    {"sr-PeriodsSl5Sl10", "supported", RRC_RULE_FEATURE_SR_PERIODS},
    {"dl-64QAM-MCS-TableAlt", "supported", RRC_RULE_FEATURE_LOW_SE},
    {"ul-64QAM-MCS-TableAlt", "supported", RRC_RULE_FEATURE_LOW_SE},
    {"supportedSRS-TxPortSwitch", "t1r2", RRC_RULE_FEATURE_SRS_SWITCH_1T2R},
    {"supportedSRS-TxPortSwitch", "t1r4", RRC_RULE_FEATURE_SRS_SWITCH_1T4R},
    {"supportedSRS-TxPortSwitch", "t2r4", RRC_RULE_FEATURE_SRS_SWITCH_2T4R},
    {"supportedSRS-TxPortSwitch", "t1r4-t2r4", RRC_RULE_FEATURE_SRS_SWITCH_1T4R | RRC_RULE_FEATURE_SRS_SWITCH_2T4R},
    {"supportedSRS-TxPortSwitch", "t1r1", RRC_RULE_FEATURE_SRS_SWITCH_EQUAL},
    {"supportedSRS-TxPortSwitch", "t2r2", RRC_RULE_FEATURE_SRS_SWITCH_EQUAL},
    {"supportedSRS-TxPortSwitch", "t4r4", RRC_RULE_FEATURE_SRS_SWITCH_EQUAL},
});

constexpr std::string_view notSupported = "notSupported";

OSUINT32 featuresOf(const Said& said, const std::string& name, const std::optional<std::string>& value)
{
    Words names;
    Words values;
    for (const Capability& capability : capabilities)
    {
        names.push_back(capability.name);
        if (capability.name == name)
        {
            if (value == capability.value)
            {
                return capability.features;
            }
            values.push_back(capability.value);
        }
    }
    if (values.empty())
    {
        const auto close = text::nearest(name, names);
        refuse(said, "there is no capability " + inQuotes(name) + " that rules ask for" +
                         (close ? "; did you mean " + std::string(*close) + "?" : ""));
    }
    if (value == notSupported)
    {
        return 0;
    }
    std::string known;
    for (const std::string_view one : values)
    {
        known += std::string(one) + ", ";
    }
    refuse(said, name + " is none of " + known + std::string(notSupported));
}

// The names of a JSON object with their values, each one or a list; what is no string has no value. The parser's own
// objects need memory to go, and end the program where there is none.
class CapabilityEvents : public nlohmann::json_sax<nlohmann::json>
{
public:
    const std::map<std::string, std::vector<std::optional<std::string>>>& all() const
    {
        return all_;
    }
    bool isObject() const
    {
        return isObject_;
    }
    const std::string& wrong() const
    {
        return wrong_;
    }

    bool null() override
    {
        return take(std::nullopt);
    }
    bool boolean(bool /*value*/) override
    {
        return take(std::nullopt);
    }
    bool number_integer(number_integer_t /*value*/) override
    {
        return take(std::nullopt);
    }
    bool number_unsigned(number_unsigned_t /*value*/) override
    {
        return take(std::nullopt);
    }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override
    {
        return take(std::nullopt);
    }
    bool string(string_t& value) override
    {
        return take(value);
    }
    bool binary(binary_t& /*value*/) override // not in JSON
    {
        return false;
    }

    bool start_object(std::size_t /*elements*/) override
    {
        isObject_ = isObject_ || depth_ == 0;
        return open(false);
    }
    bool key(string_t& name) override
    {
        if (depth_ == 1)
        {
            values_ = &all_[name];
            values_->clear(); // of a name that comes twice the last one counts
        }
        return true;
    }
    bool end_object() override
    {
        return close();
    }
    bool start_array(std::size_t /*elements*/) override
    {
        return open(depth_ == 1);
    }
    bool end_array() override
    {
        return close();
    }

    // "[json.exception.parse_error.101] parse error at line 1, ..."
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const nlohmann::detail::exception& error) override
    {
        const std::string_view words = error.what();
        wrong_ = words.substr(words.find("] ") + 2);
        return false;
    }

private:
    bool open(bool isList)
    {
        if (!isList)
        {
            (void)take(std::nullopt);
        }
        isList_ = isList || (isList_ && depth_ != 0);
        ++depth_;
        return true;
    }

    bool close()
    {
        --depth_;
        isList_ = isList_ && depth_ > 1;
        return true;
    }

    bool take(std::optional<std::string> value)
    {
        if (isObject_ && (depth_ == 1 || (depth_ == 2 && isList_)))
        {
            values_->push_back(std::move(value));
        }
        return true;
    }

    std::map<std::string, std::vector<std::optional<std::string>>> all_;
    std::vector<std::optional<std::string>>* values_ = nullptr; // of the last name
    std::string wrong_;
    unsigned depth_ = 0;
    bool isObject_ = false; // the outermost value
    bool isList_ = false;   // the one at depth 1
};

constexpr std::string_view nothing = "none";

// Calls `each` for the items of a list with commas, with nothing for the word "none".
template <typename Each>
void forItems(const Said& said, const Each& each)
{
    if (said.value != nothing)
    {
        for (const std::string_view item : split(said.value, ','))
        {
            each(item);
        }
    }
}

void takeMessage(Known& known, const Said& said)
{
    static constexpr std::array<std::string_view, 5> kinds = {"setup", "reconfig", "sync", "resume", "reestab"};
    known.context.message = static_cast<OSUINT8>(RRC_RULE_MESSAGE_SETUP + word(said, "the kind", said.value, kinds));
}

void takeBand(Known& known, const Said& said)
{
    const std::string_view text = said.value;
    const bool hasLetter = text.starts_with('n') || text.starts_with('N');
    const auto number = numberIn(text.substr(hasLetter ? 1 : 0));
    if (!number)
    {
        refuse(said, inQuotes(text) + " is no band, such as n78");
    }
    if (nrBand(*number) == nullptr)
    {
        refuse(said, "Release 15 has no band n" + std::to_string(*number) +
                         "; of a later one --fr and --fdd or --tdd say what rules ask for");
    }
    known.context.band = static_cast<OSUINT16>(*number);
}

void takeRange(Known& known, const Said& said)
{
    static constexpr std::array<std::string_view, 2> ranges = {"1", "2"};
    known.context.range = static_cast<OSUINT8>(RRC_RULE_RANGE_FR1 + word(said, "the range", said.value, ranges));
}

void takeSsb(Known& known, const Said& said)
{
    std::string bits;
    const std::string_view text = said.value;
    const bool isHex = text.starts_with("0x");
    for (const char c : text.substr(isHex ? 2 : 0))
    {
        const auto digit = std::string_view("0123456789abcdef").find(static_cast<char>(std::tolower(c)));
        if (digit >= (isHex ? 16 : 2))
        {
            bits.clear();
            break;
        }
        for (unsigned bit = isHex ? 4 : 1; bit-- > 0;)
        {
            bits += (digit >> bit & 1) != 0 ? '1' : '0';
        }
    }
    if (bits.size() != 4 && bits.size() != 8 && bits.size() != 64)
    {
        refuse(said, inQuotes(text) + " is no bitmap of 4, 8 or 64 bits, such as 10000000 or 0x80");
    }
    for (std::size_t i = 0; i < bits.size(); ++i)
    {
        known.ssb[i / 8] = static_cast<OSOCTET>(known.ssb[i / 8] | (bits[i] == '1' ? 0x80U >> i % 8 : 0));
    }
    known.context.ssbPositionsInBurst = known.ssb.data();
    known.context.ssbPositionsBits = static_cast<OSUINT8>(bits.size());
}

void takePosition(Known& known, const Said& said)
{
    static constexpr std::array<std::string_view, 2> positions = {"2", "3"};
    known.context.typeAPosition = &known.typeAPosition.emplace(word(said, "the position", said.value, positions));
}

void takeCoreset0(Known& known, const Said& said)
{
    const auto index = static_cast<ControlResourceSetZero>(number(said, "the index", said.value, 0, 15));
    known.context.coreset0 = &known.coreset0.emplace(index);
}

void takeTdd(Known& known, const Said& said)
{
    constexpr const char* layout = "SCS:period:DL slots:DL symbols:UL slots:UL symbols, such as 30:ms5:7:6:2:4";
    constexpr const char* secondLayout = "period:DL slots:DL symbols:UL slots:UL symbols behind the '+'";
    TDD_UL_DL_ConfigCommon& tdd = known.tdd.emplace();
    const Words patterns = split(said.value, '+');
    Words words = parts(said, patterns[0], 6, layout);
    tdd.referenceSubcarrierSpacing = spacing(said, words[0]);
    words.erase(words.begin());
    const NrTddPattern first = tddPattern(said, words, tdd.pattern1, tdd.referenceSubcarrierSpacing);
    std::optional<NrTddPattern> second;
    if (patterns.size() > 1)
    {
        tdd.m.pattern2Present = 1;
        words = parts(said, patterns[1], 5, secondLayout);
        second = tddPattern(said, words, tdd.pattern2, tdd.referenceSubcarrierSpacing);
    }
    if (patterns.size() > 2 || nrTddFillsFrames(&first, second ? &*second : nullptr) == 0)
    {
        refuse(said,
               patterns.size() > 2 ? "there are at most two patterns" : "20 ms are no whole number of its periods");
    }
    known.context.tdd = &tdd;
}

// Of the mistakes of a text the first one, as a line.
void keepFirst(void* to, const Asn1Mistake* mistake)
{
    std::string& line = *static_cast<std::string*>(to);
    if (line.empty())
    {
        line = std::to_string(mistake->line) + ":" + std::to_string(mistake->column) + ": " + mistake->path +
               (*mistake->path == '\0' ? "" : ": ") + mistake->words;
    }
}

void takeRach(Known& known, const Said& said)
{
    RACH_ConfigCommon& rach = known.rach.emplace();
    std::string first;
    if (asn1FromJson(&known.rachTree.own, &nr_rrc::type_RACH_ConfigCommon, &rach, said.value.data(), said.value.size(),
                     keepFirst, &first) != 0)
    {
        refuse(said, first);
    }
    known.context.rachCommon = &rach;
}

void takeCapabilities(Known& known, const Said& said)
{
    RrcRuleCapabilities& all = known.capabilities.emplace();
    if (said.value.find('\0') != std::string::npos)
    {
        refuse(said, "a zero octet is no JSON"); // the parser takes it for the end
    }
    CapabilityEvents events;
    if (!nlohmann::json::sax_parse(said.value, &events, nlohmann::json::input_format_t::json, true, true))
    {
        refuse(said, events.wrong());
    }
    if (!events.isObject())
    {
        refuse(said, "an object with the names of capabilities is expected");
    }
    for (const auto& [name, values] : events.all())
    {
        for (const std::optional<std::string>& value : values)
        {
            all.features |= featuresOf(said, name, value);
        }
    }
    known.context.capabilities = &all;
}

void takeBearers(Known& known, const Said& said)
{
    RrcRuleBearers& bearers = known.bearers ? *known.bearers : known.bearers.emplace();
    known.context.bearers = &bearers;
    forItems(said,
             [&](std::string_view item)
             {
                 const bool isDuplicated = item.ends_with(":dup");
                 const std::string_view name = item.substr(0, item.size() - (isDuplicated ? 4 : 0));
                 const bool isSrb = name.starts_with("srb");
                 const auto id = numberIn(name.substr(std::min<std::size_t>(name.size(), 3)));
                 const bool isRight =
                     isSrb ? id && *id >= 1 && *id <= 3 : name.starts_with("drb") && id && *id >= 1 && *id <= 32;
                 if (!isRight)
                 {
                     refuse(said, inQuotes(item) + " is none of srb1 to srb3 and drb1 to drb32, with or without :dup");
                 }
                 (isSrb ? bearers.srbs : bearers.drbs) |= 1U << (*id - (isSrb ? 0 : 1));
                 if (isDuplicated)
                 {
                     (isSrb ? bearers.duplicatedSrbs : bearers.duplicated) |= 1U << (*id - (isSrb ? 0 : 1));
                 }
             });
}

void takeMeasObject(Known& known, const Said& said)
{
    known.context.hasMeas = 1;
    if (said.value == nothing)
    {
        return;
    }
    constexpr std::string_view csiRs = "csirs=";
    RrcRuleMeasObject object{};
    Words words = split(said.value, ':');
    if (words.back().starts_with(csiRs))
    {
        for (const std::string_view item : split(words.back().substr(csiRs.size()), ','))
        {
            const std::uint32_t index = number(said, "the CSI-RS-Index", item, 0, 95);
            object.csiRsResources[index / 8] = static_cast<OSUINT8>(object.csiRsResources[index / 8] | 1U << index % 8);
        }
        words.pop_back();
    }
    if (words.size() != 1 && words.size() != 3)
    {
        refuse(said, inQuotes(said.value) + " is not ID[:ARFCN:SCS][:csirs=0,1], such as 1:633312:30");
    }
    object.id = static_cast<OSUINT8>(number(said, "measObjectId", words[0], 1, 64));
    if (words.size() == 3)
    {
        object.hasSsb = 1;
        object.ssbFrequency = number(said, "ssbFrequency", words[1], 0, 3279165);
        object.ssbScs = word(said, "the subcarrier spacing", words[2], ssbSpacings);
    }
    const bool isKnown = std::any_of(known.measObjects.begin(), known.measObjects.end(),
                                     [&](const RrcRuleMeasObject& one) { return one.id == object.id; });
    if (isKnown)
    {
        refuse(said, "a second object " + std::to_string(object.id));
    }
    known.measObjects.push_back(object);
}

void takeOtherCells(Known& known, const Said& said)
{
    OSUINT32& cells = known.otherCells ? *known.otherCells : known.otherCells.emplace(0);
    known.context.otherGroupCells = &cells;
    forItems(said, [&](std::string_view item) { cells |= 1U << number(said, "the ServCellIndex", item, 0, 31); });
}

template <auto member, auto value>
void set(Known& known, const Said& /*setting*/)
{
    known.context.*member = value;
}

template <auto carriers>
void takeCarrier(Known& known, const Said& said)
{
    addCarrier(said, known.*carriers);
}

template <auto part>
void takeBwp0(Known& known, const Said& said)
{
    known.*part = bandwidthPart(said);
}

constexpr auto rows = std::to_array<Row>({
    {{"previous", "FILE", "extent", "What the UE has before, in order; the message is applied to it", 1}, nullptr},
    {{"full", "", "extent", "Nothing was configured before", 0}, set<&RrcRuleContext::extent, RRC_RULE_EXTENT_FULL>},
    {{"delta", "", "extent", "What was configured before stays, and is not known", 0},
     set<&RrcRuleContext::extent, RRC_RULE_EXTENT_DELTA>},
    {{"message", "KIND", "message", "The message around it: setup, reconfig, sync, resume or reestab", 0}, takeMessage},
    {{"full-config", "", "full-config", "The message has fullConfig", 0}, set<&RrcRuleContext::fullConfig, OSBOOL{1}>},
    {{"mcg", "", "group", "It is the masterCellGroup", 0}, set<&RrcRuleContext::group, RRC_RULE_GROUP_MCG>},
    {{"scg", "", "group", "It is the secondaryCellGroup", 0}, set<&RrcRuleContext::group, RRC_RULE_GROUP_SCG>},
    {{"band", "BAND", "band", "Of the SpCell: n78", 0}, takeBand},
    {{"fr", "RANGE", "fr", "Frequency range of the SpCell: 1 or 2", 0}, takeRange},
    {{"fdd", "", "duplex", "The SpCell has FDD", 0}, set<&RrcRuleContext::duplex, RRC_RULE_DUPLEX_FDD>},
    {{"tdd", "", "duplex", "The SpCell has TDD", 0}, set<&RrcRuleContext::duplex, RRC_RULE_DUPLEX_TDD>},
    {{"carrier", "CARRIER", "carrier", "Of the SpCell's downlink and uplink, SCS:offset:width: 30:0:273", 1},
     takeCarrier<&Known::carriersDl>},
    {{"carrier-ul", "CARRIER", "carrier-ul", "Of the uplink, where that differs", 1}, takeCarrier<&Known::carriersUl>},
    {{"bwp0-dl", "RIV:SCS", "bwp0-dl", "Initial downlink bandwidth part, its locationAndBandwidth: 1099:30", 0},
     takeBwp0<&Known::bwp0Dl>},
    {{"bwp0-ul", "RIV:SCS", "bwp0-ul", "Initial uplink bandwidth part", 0}, takeBwp0<&Known::bwp0Ul>},
    {{"ssb-bitmap", "BITS", "ssb-bitmap", "ssb-PositionsInBurst, 4, 8 or 64 bits: 10000000 or 0x80", 0}, takeSsb},
    {{"typeA-position", "POS", "typeA-position", "dmrs-TypeA-Position: 2 or 3", 0}, takePosition},
    {{"coreset0", "INDEX", "coreset0", "controlResourceSetZero: 0 to 15", 0}, takeCoreset0},
    {{"tdd-pattern", "PATTERN", "tdd-pattern", "SCS:period:DL slots:DL symbols:UL slots:UL symbols: 30:ms5:7:6:2:4", 0},
     takeTdd},
    {{"rach", "FILE", "rach", "RACH-ConfigCommon of the initial uplink bandwidth part", 0}, takeRach},
    {{"capability", "FILE", "capability", "JSON with capabilities of the UE; the manual has their names", 0},
     takeCapabilities},
    {{"bearers", "LIST", "bearers", "Radio bearers of the UE after the message: srb1,drb1,drb4:dup, or none", 1},
     takeBearers},
    {{"meas-object", "OBJECT", "meas-object",
      "measObjectNR of the UE, ID[:ARFCN:SCS][:csirs=0,1]: 1:633312:30, each of them, or none", 1},
     takeMeasObject},
    {{"endc", "", "connectivity", "There is an E-UTRA cell group, too", 0},
     set<&RrcRuleContext::connectivity, RRC_RULE_CONNECTIVITY_ENDC>},
    {{"nrdc", "", "connectivity", "There is another NR cell group, too", 0},
     set<&RrcRuleContext::connectivity, RRC_RULE_CONNECTIVITY_NRDC>},
    {{"none", "", "connectivity", "There is no other cell group", 0},
     set<&RrcRuleContext::connectivity, RRC_RULE_CONNECTIVITY_SINGLE>},
    {{"other-cells", "LIST", "other-cells", "ServCellIndex of the other cell group's cells: 3,5, or none", 1},
     takeOtherCells},
});

// Two settings that cannot both be true.
void expectAgreement(const std::vector<Said>& before, const Said& said)
{
    const RrcSetting& b = *said.setting;
    for (const Said& one : before)
    {
        const RrcSetting& a = *one.setting;
        const bool isDeltaOfPrevious = std::string_view(a.group) == "extent" && &a != &b &&
                                       std::string_view(a.name) != "full" && std::string_view(b.name) != "full";
        const bool isAllowed = (&a == &b && a.isRepeatable != 0) || isDeltaOfPrevious;
        if (std::string_view(a.group) == b.group && !isAllowed)
        {
            refuse(said, &a == &b ? "it is said twice" : "it excludes " + one.origin);
        }
    }
}

// A band has a frequency range and a duplex mode.
void compareBand(const Known& known, const std::vector<Said>& all)
{
    const NrBand* const band = nrBand(known.context.band);
    if (band == nullptr)
    {
        return;
    }
    const bool isTdd = band->duplex == NR_TDD;
    for (const Said& said : all)
    {
        const std::string_view name = said.setting->name;
        const bool isRight = name == "fr"    ? (known.context.range == RRC_RULE_RANGE_FR2) == (band->fr2 != 0)
                             : name == "fdd" ? !isTdd
                             : name == "tdd" ? isTdd
                                             : true;
        if (!isRight)
        {
            refuse(said, "band n" + std::to_string(band->number) + " is of FR" + (band->fr2 != 0 ? "2" : "1") +
                             " and of " + (isTdd ? "TDD" : "FDD"));
        }
    }
}

void write(std::string_view line, char* error, std::size_t size)
{
    if (size != 0)
    {
        const std::size_t length = std::min(line.size(), size - 1);
        // A value may hold anything: of what it quotes, too, one line is made.
        *std::transform(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(length), error,
                        [](unsigned char c) { return std::iscntrl(c) != 0 ? ' ' : static_cast<char>(c); }) = '\0';
    }
}

// Whether `action` succeeds; else what it throws is the error.
template <typename Action>
bool attempt(char* error, std::size_t size, const Action& action)
{
    try
    {
        action();
        return true;
    }
    catch (const Wrong& wrong)
    {
        write(wrong.what(), error, size);
    }
    catch (const std::exception&)
    {
        write("out of memory", error, size);
    }
    return false;
}

const Row* rowNamed(std::string_view name)
{
    const auto* const found =
        std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.setting.name == name; });
    return found == rows.end() ? nullptr : found;
}

[[noreturn]] void refuseName(std::string_view name)
{
    Words names;
    for (const Row& row : rows)
    {
        names.emplace_back(row.setting.name);
    }
    const auto close = text::nearest(name, names);
    throw Wrong("there is no " + inQuotes(name) + (close ? "; did you mean " + std::string(*close) + "?" : ""));
}

} // namespace
} // namespace settings

using namespace settings;

struct RrcSettings
{
    Known known;
    std::vector<Said> said;
};

OSUINT32 rrcSettingCount(void)
{
    return static_cast<OSUINT32>(rows.size());
}

const RrcSetting* rrcSettingAt(OSUINT32 index)
{
    return index < rows.size() ? &rows[index].setting : nullptr;
}

const RrcSetting* rrcSettingByName(const char* name)
{
    const Row* const row = name == nullptr ? nullptr : rowNamed(name);
    return row == nullptr ? nullptr : &row->setting;
}

RrcSettings* rrcSettingsNew(void)
{
    return new (std::nothrow) RrcSettings;
}

void rrcSettingsFree(RrcSettings* settings)
{
    delete settings;
}

int rrcSettingsSet(RrcSettings* settings, const char* name, const char* value, size_t length, const char* origin,
                   char* error, size_t errorSize)
{
    const auto set = [&]
    {
        if (settings == nullptr || name == nullptr)
        {
            throw Wrong("settings and a name are expected");
        }
        const Row* const row = rowNamed(name);
        if (row == nullptr)
        {
            refuseName(name);
        }
        const Said said{&row->setting, value == nullptr ? "" : std::string(value, length),
                        origin == nullptr ? name : origin};
        expectAgreement(settings->said, said);
        settings->said.push_back(said);
        if (row->take != nullptr && value != nullptr)
        {
            row->take(settings->known, said);
        }
    };
    return attempt(error, errorSize, set) ? 0 : -1;
}

const RrcRuleContext* rrcSettingsContext(RrcSettings* settings, char* error, size_t errorSize)
{
    const auto fit = [&]
    {
        if (settings == nullptr)
        {
            throw Wrong("settings are expected");
        }
        compareBand(settings->known, settings->said);
    };
    if (!attempt(error, errorSize, fit))
    {
        return nullptr;
    }
    const Known& known = settings->known;
    RrcRuleContext& context = settings->known.context;
    const std::vector<SCS_SpecificCarrier>& uplink = known.carriersUl.empty() ? known.carriersDl : known.carriersUl;
    context.carriersDl = known.carriersDl.data();
    context.numCarriersDl = static_cast<OSUINT8>(known.carriersDl.size());
    context.carriersUl = uplink.data();
    context.numCarriersUl = static_cast<OSUINT8>(uplink.size());
    context.initialDownlinkBwp = known.bwp0Dl ? &*known.bwp0Dl : nullptr;
    context.initialUplinkBwp = known.bwp0Ul ? &*known.bwp0Ul : nullptr;
    context.measObjects = known.measObjects.data();
    context.numMeasObjects = static_cast<OSUINT8>(known.measObjects.size());
    return &context;
}
