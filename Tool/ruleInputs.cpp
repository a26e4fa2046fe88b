#include "ruleInputs.h"

#include "nearest.h"
#include "nrFormulas.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <charconv>

namespace tool
{
namespace
{

using Words = std::vector<std::string_view>;

[[noreturn]] void refuse(const Setting& setting, const std::string& what)
{
    throw Failure(Exit::Usage, setting.origin + ": " + what);
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
Words parts(const Setting& setting, std::string_view text, std::size_t count, const char* layout)
{
    Words words = split(text, ':');
    if (words.size() != count)
    {
        refuse(setting, inQuotes(text) + " is not " + layout);
    }
    return words;
}

std::optional<std::uint32_t> numberIn(std::string_view text)
{
    std::uint32_t value = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && rest == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

std::uint32_t number(const Setting& setting, const char* what, std::string_view text, std::uint32_t lower,
                     std::uint32_t upper)
{
    const auto value = numberIn(text);
    if (!value || *value < lower || *value > upper)
    {
        refuse(setting, std::string(what) + " " + inQuotes(text) + " is not in " + std::to_string(lower) + ".." +
                            std::to_string(upper));
    }
    return *value;
}

// The index of the word among those that are possible.
template <std::size_t count>
OSUINT32 word(const Setting& setting, const char* what, std::string_view text,
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
        refuse(setting, std::string(what) + " " + inQuotes(text) + " is none of " + all +
                            (close && std::isalpha(static_cast<unsigned char>(text[0])) != 0
                                 ? "; did you mean " + std::string(*close) + "?"
                                 : ""));
    }
    return static_cast<OSUINT32>(found - known.begin());
}

constexpr std::array<std::string_view, 4> spacings = {"15", "30", "60", "120"};
constexpr std::array<std::string_view, 5> ssbSpacings = {"15", "30", "60", "120", "240"};

SubcarrierSpacing spacing(const Setting& setting, std::string_view text)
{
    return word(setting, "the subcarrier spacing", text, spacings);
}

SCS_SpecificCarrier carrier(const Setting& setting)
{
    const Words words = parts(setting, setting.value, 3, "SCS:offset:width, such as 30:0:273");
    SCS_SpecificCarrier carrier{};
    carrier.subcarrierSpacing = spacing(setting, words[0]);
    carrier.offsetToCarrier = static_cast<OSUINT16>(number(setting, "the offset", words[1], 0, 2199));
    carrier.carrierBandwidth = static_cast<OSUINT16>(number(setting, "the width", words[2], 1, NR_LARGEST_CARRIER));
    return carrier;
}

void addCarrier(const Setting& setting, std::vector<SCS_SpecificCarrier>& carriers)
{
    const SCS_SpecificCarrier added = carrier(setting);
    const bool isKnown =
        std::any_of(carriers.begin(), carriers.end(),
                    [&](const SCS_SpecificCarrier& one) { return one.subcarrierSpacing == added.subcarrierSpacing; });
    if (isKnown)
    {
        refuse(setting, "a second carrier with the subcarrier spacing of " + inQuotes(setting.value));
    }
    carriers.push_back(added);
}

BWP bandwidthPart(const Setting& setting)
{
    const Words words = parts(setting, setting.value, 2, "RIV:SCS, such as 1099:30");
    BWP bwp{};
    bwp.locationAndBandwidth = static_cast<OSUINT16>(number(setting, "locationAndBandwidth", words[0], 0, 37949));
    bwp.subcarrierSpacing = spacing(setting, words[1]);
    return bwp;
}

// dl-UL-TransmissionPeriodicity: its values, then those of its extension, in units of nrFormulas.h.
constexpr std::array<std::string_view, 10> periods = {"ms0p5", "ms0p625", "ms1",  "ms1p25", "ms2",
                                                      "ms2p5", "ms5",     "ms10", "ms3",    "ms4"};
constexpr std::array<std::uint32_t, 10> eighths = {4, 5, 8, 10, 16, 20, 40, 80, 24, 32};
constexpr OSUINT32 firstOfExtension = 8;

// Of "period:DL slots:DL symbols:UL slots:UL symbols".
NrTddPattern tddPattern(const Setting& setting, const Words& words, TDD_UL_DL_Pattern& pattern, std::uint32_t mu)
{
    const OSUINT32 period = word(setting, "the period", words[0], periods);
    const std::uint32_t slots = nrTddSlots(eighths[period], mu);
    if (nrTddPeriodAllowed(eighths[period], mu) == 0)
    {
        std::string right;
        for (std::uint32_t other = 0; other < spacings.size(); ++other)
        {
            right += nrTddPeriodAllowed(eighths[period], other) == 0 ? "" : " " + std::string(spacings[other]);
        }
        refuse(setting, "the period " + inQuotes(words[0]) + " is none of a reference of " + std::string(spacings[mu]) +
                            " kHz, but of" + right);
    }
    NrTddPattern result{eighths[period], 0, 0, 0, 0};
    result.dlSlots = number(setting, "the downlink slots", words[1], 0, slots);
    result.dlSymbols = number(setting, "the downlink symbols", words[2], 0, NR_SYMBOLS - 1);
    result.ulSlots = number(setting, "the uplink slots", words[3], 0, slots);
    result.ulSymbols = number(setting, "the uplink symbols", words[4], 0, NR_SYMBOLS - 1);
    if (nrTddFits(&result, mu) == 0)
    {
        refuse(setting, "the slots and symbols are more than the " + std::to_string(slots) + " slots of " +
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

OSUINT32 featuresOf(const Setting& setting, const std::string& name, const nlohmann::json& value)
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
    const std::string place = setting.value + ": ";
    if (values.empty())
    {
        const auto close = text::nearest(name, names);
        refuse(setting, place + "there is no capability " + inQuotes(name) + " that rules ask for" +
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
    refuse(setting, place + name + " is none of " + known + std::string(notSupported));
}

constexpr std::string_view nothing = "none";

// Calls `each` for the items of a list with commas, with nothing for the word "none".
template <typename Each>
void forItems(const Setting& setting, const Each& each)
{
    if (setting.value != nothing)
    {
        for (const std::string_view item : split(setting.value, ','))
        {
            each(item);
        }
    }
}

// The state that the messages before and this one lead to.
void takePrevious(KnownValues& known, Session& session, const Setting& setting)
{
    try
    {
        const RtxPdu& pdu = *session.common().type;
        const Given given = session.only(setting.value);
        const Encoding message = Message(pdu, given).encode();
        known.held = known.held ? stateAfter(session, known.held, message, given.place()) : stateAfter(pdu, message);
    }
    catch (const Failure& failure)
    {
        throw Failure(failure.status() == Exit::Findings ? Exit::Malformed : failure.status(),
                      setting.origin + ": " + failure.what());
    }
}

void takeMessage(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    static constexpr std::array<std::string_view, 5> kinds = {"setup", "reconfig", "sync", "resume", "reestab"};
    known.context.message =
        static_cast<OSUINT8>(RRC_RULE_MESSAGE_SETUP + word(setting, "the kind", setting.value, kinds));
}

void takeBand(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    const std::string_view text = setting.value;
    const bool hasLetter = text.starts_with('n') || text.starts_with('N');
    const auto number = numberIn(text.substr(hasLetter ? 1 : 0));
    if (!number)
    {
        refuse(setting, inQuotes(text) + " is no band, such as n78");
    }
    if (nrBand(*number) == nullptr)
    {
        refuse(setting, "Release 15 has no band n" + std::to_string(*number) +
                            "; of a later one --fr and --fdd or --tdd say what rules ask for");
    }
    known.context.band = static_cast<OSUINT16>(*number);
}

void takeRange(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    static constexpr std::array<std::string_view, 2> ranges = {"1", "2"};
    known.context.range = static_cast<OSUINT8>(RRC_RULE_RANGE_FR1 + word(setting, "the range", setting.value, ranges));
}

void takeSsb(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    std::string bits;
    const std::string_view text = setting.value;
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
        refuse(setting, inQuotes(text) + " is no bitmap of 4, 8 or 64 bits, such as 10000000 or 0x80");
    }
    for (std::size_t i = 0; i < bits.size(); ++i)
    {
        known.ssb[i / 8] = static_cast<OSOCTET>(known.ssb[i / 8] | (bits[i] == '1' ? 0x80U >> i % 8 : 0));
    }
    known.context.ssbPositionsInBurst = known.ssb.data();
    known.context.ssbPositionsBits = static_cast<OSUINT8>(bits.size());
}

void takePosition(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    static constexpr std::array<std::string_view, 2> positions = {"2", "3"};
    known.context.typeAPosition = &known.typeAPosition.emplace(word(setting, "the position", setting.value, positions));
}

void takeCoreset0(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    const auto index = static_cast<ControlResourceSetZero>(number(setting, "the index", setting.value, 0, 15));
    known.context.coreset0 = &known.coreset0.emplace(index);
}

void takeTdd(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    constexpr const char* layout = "SCS:period:DL slots:DL symbols:UL slots:UL symbols, such as 30:ms5:7:6:2:4";
    constexpr const char* secondLayout = "period:DL slots:DL symbols:UL slots:UL symbols behind the '+'";
    TDD_UL_DL_ConfigCommon& tdd = known.tdd.emplace();
    const Words patterns = split(setting.value, '+');
    Words words = parts(setting, patterns[0], 6, layout);
    tdd.referenceSubcarrierSpacing = spacing(setting, words[0]);
    words.erase(words.begin());
    const NrTddPattern first = tddPattern(setting, words, tdd.pattern1, tdd.referenceSubcarrierSpacing);
    std::optional<NrTddPattern> second;
    if (patterns.size() > 1)
    {
        tdd.m.pattern2Present = 1;
        words = parts(setting, patterns[1], 5, secondLayout);
        second = tddPattern(setting, words, tdd.pattern2, tdd.referenceSubcarrierSpacing);
    }
    if (patterns.size() > 2 || nrTddFillsFrames(&first, second ? &*second : nullptr) == 0)
    {
        refuse(setting,
               patterns.size() > 2 ? "there are at most two patterns" : "20 ms are no whole number of its periods");
    }
    known.context.tdd = &tdd;
}

void takeRach(KnownValues& known, Session& session, const Setting& setting)
{
    try
    {
        const Given& given = known.rachText.emplace(session.only(setting.value, std::nullopt));
        const Message& message = known.rach.emplace(typeNamed("RACH-ConfigCommon"), given);
        message.expectGood();
        known.context.rachCommon = static_cast<const RACH_ConfigCommon*>(message.value());
    }
    catch (const Failure& failure)
    {
        throw Failure(failure.status(), setting.origin + ": " + failure.what());
    }
}

void takeCapabilities(KnownValues& known, Session& session, const Setting& setting)
{
    constexpr std::size_t most = std::size_t{1} << 20;
    const std::string text = session.file(setting.value, most).raw;
    RrcRuleCapabilities& all = known.capabilities.emplace();
    try
    {
        const nlohmann::json json = nlohmann::json::parse(text, nullptr, true, true);
        if (!json.is_object())
        {
            refuse(setting, setting.value + ": an object with the names of capabilities is expected");
        }
        for (const auto& [name, value] : json.items())
        {
            for (const nlohmann::json& one : value.is_array() ? value : nlohmann::json::array({value}))
            {
                all.features |= featuresOf(setting, name, one);
            }
        }
    }
    catch (const nlohmann::json::exception& error)
    {
        const std::string_view words = error.what(); // "[json.exception.parse_error.101] parse error at line 1, ..."
        refuse(setting, setting.value + ": " + std::string(words.substr(words.find("] ") + 2)));
    }
    known.context.capabilities = &all;
}

void takeBearers(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    RrcRuleBearers& bearers = known.bearers ? *known.bearers : known.bearers.emplace();
    known.context.bearers = &bearers;
    forItems(setting,
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
                     refuse(setting,
                            inQuotes(item) + " is none of srb1 to srb3 and drb1 to drb32, with or without :dup");
                 }
                 (isSrb ? bearers.srbs : bearers.drbs) |= 1U << (*id - (isSrb ? 0 : 1));
                 if (isDuplicated)
                 {
                     (isSrb ? bearers.duplicatedSrbs : bearers.duplicated) |= 1U << (*id - (isSrb ? 0 : 1));
                 }
             });
}

void takeMeasObject(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    known.context.hasMeas = 1;
    if (setting.value == nothing)
    {
        return;
    }
    constexpr std::string_view csiRs = "csirs=";
    RrcRuleMeasObject object{};
    Words words = split(setting.value, ':');
    if (words.back().starts_with(csiRs))
    {
        for (const std::string_view item : split(words.back().substr(csiRs.size()), ','))
        {
            const std::uint32_t index = number(setting, "the CSI-RS-Index", item, 0, 95);
            object.csiRsResources[index / 8] = static_cast<OSUINT8>(object.csiRsResources[index / 8] | 1U << index % 8);
        }
        words.pop_back();
    }
    if (words.size() != 1 && words.size() != 3)
    {
        refuse(setting, inQuotes(setting.value) + " is not ID[:ARFCN:SCS][:csirs=0,1], such as 1:633312:30");
    }
    object.id = static_cast<OSUINT8>(number(setting, "measObjectId", words[0], 1, 64));
    if (words.size() == 3)
    {
        object.hasSsb = 1;
        object.ssbFrequency = number(setting, "ssbFrequency", words[1], 0, 3279165);
        object.ssbScs = word(setting, "the subcarrier spacing", words[2], ssbSpacings);
    }
    const bool isKnown = std::any_of(known.measObjects.begin(), known.measObjects.end(),
                                     [&](const RrcRuleMeasObject& one) { return one.id == object.id; });
    if (isKnown)
    {
        refuse(setting, "a second object " + std::to_string(object.id));
    }
    known.measObjects.push_back(object);
}

void takeOtherCells(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    OSUINT32& cells = known.otherCells ? *known.otherCells : known.otherCells.emplace(0);
    known.context.otherGroupCells = &cells;
    forItems(setting, [&](std::string_view item) { cells |= 1U << number(setting, "the ServCellIndex", item, 0, 31); });
}

template <auto member, auto value>
void set(KnownValues& known, Session& /*session*/, const Setting& /*setting*/)
{
    known.context.*member = value;
}

template <auto carriers>
void takeCarrier(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    addCarrier(setting, known.*carriers);
}

template <auto part>
void takeBwp0(KnownValues& known, Session& /*session*/, const Setting& setting)
{
    known.*part = bandwidthPart(setting);
}

using Context = RrcRuleContext;

constexpr auto options = std::to_array<InputOption>({
    {"previous", "FILE", true, "extent", "What the UE has before, in order; the message is applied to it",
     takePrevious},
    {"full", "", false, "extent", "Nothing was configured before", set<&Context::extent, RRC_RULE_EXTENT_FULL>},
    {"delta", "", false, "extent", "What was configured before stays, and is not known",
     set<&Context::extent, RRC_RULE_EXTENT_DELTA>},
    {"message", "KIND", false, "message", "The message around it: setup, reconfig, sync, resume or reestab",
     takeMessage},
    {"full-config", "", false, "full-config", "The message has fullConfig", set<&Context::fullConfig, OSBOOL{1}>},
    {"mcg", "", false, "group", "It is the masterCellGroup", set<&Context::group, RRC_RULE_GROUP_MCG>},
    {"scg", "", false, "group", "It is the secondaryCellGroup", set<&Context::group, RRC_RULE_GROUP_SCG>},
    {"band", "BAND", false, "band", "Of the SpCell: n78", takeBand},
    {"fr", "RANGE", false, "fr", "Frequency range of the SpCell: 1 or 2", takeRange},
    {"fdd", "", false, "duplex", "The SpCell has FDD", set<&Context::duplex, RRC_RULE_DUPLEX_FDD>},
    {"tdd", "", false, "duplex", "The SpCell has TDD", set<&Context::duplex, RRC_RULE_DUPLEX_TDD>},
    {"carrier", "CARRIER", true, "carrier", "Of the SpCell's downlink and uplink, SCS:offset:width: 30:0:273",
     takeCarrier<&KnownValues::carriersDl>},
    {"carrier-ul", "CARRIER", true, "carrier-ul", "Of the uplink, where that differs",
     takeCarrier<&KnownValues::carriersUl>},
    {"bwp0-dl", "RIV:SCS", false, "bwp0-dl", "Initial downlink bandwidth part, its locationAndBandwidth: 1099:30",
     takeBwp0<&KnownValues::bwp0Dl>},
    {"bwp0-ul", "RIV:SCS", false, "bwp0-ul", "Initial uplink bandwidth part", takeBwp0<&KnownValues::bwp0Ul>},
    {"ssb-bitmap", "BITS", false, "ssb-bitmap", "ssb-PositionsInBurst, 4, 8 or 64 bits: 10000000 or 0x80", takeSsb},
    {"typeA-position", "POS", false, "typeA-position", "dmrs-TypeA-Position: 2 or 3", takePosition},
    {"coreset0", "INDEX", false, "coreset0", "controlResourceSetZero: 0 to 15", takeCoreset0},
    {"tdd-pattern", "PATTERN", false, "tdd-pattern",
     "SCS:period:DL slots:DL symbols:UL slots:UL symbols: 30:ms5:7:6:2:4", takeTdd},
    {"rach", "FILE", false, "rach", "RACH-ConfigCommon of the initial uplink bandwidth part", takeRach},
    {"capability", "FILE", false, "capability", "JSON with capabilities of the UE; the manual has their names",
     takeCapabilities},
    {"bearers", "LIST", true, "bearers", "Radio bearers of the UE after the message: srb1,drb1,drb4:dup, or none",
     takeBearers},
    {"meas-object", "OBJECT", true, "meas-object",
     "measObjectNR of the UE, ID[:ARFCN:SCS][:csirs=0,1]: 1:633312:30, each of them, or none", takeMeasObject},
    {"endc", "", false, "connectivity", "There is an E-UTRA cell group, too",
     set<&Context::connectivity, RRC_RULE_CONNECTIVITY_ENDC>},
    {"nrdc", "", false, "connectivity", "There is another NR cell group, too",
     set<&Context::connectivity, RRC_RULE_CONNECTIVITY_NRDC>},
    {"none", "", false, "connectivity", "There is no other cell group",
     set<&Context::connectivity, RRC_RULE_CONNECTIVITY_SINGLE>},
    {"other-cells", "LIST", true, "other-cells", "ServCellIndex of the other cell group's cells: 3,5, or none",
     takeOtherCells},
});

// Two settings that cannot both be true.
void expectAgreement(const Settings& settings)
{
    for (std::size_t i = 0; i < settings.size(); ++i)
    {
        for (std::size_t j = 0; j < i; ++j)
        {
            const InputOption& a = *settings[j].option;
            const InputOption& b = *settings[i].option;
            const bool isDeltaOfPrevious = std::string_view(a.group) == "extent" && &a != &b &&
                                           std::string_view(a.name) != "full" && std::string_view(b.name) != "full";
            const bool isAllowed = (&a == &b && a.isRepeatable) || isDeltaOfPrevious;
            if (std::string_view(a.group) == b.group && !isAllowed)
            {
                refuse(settings[i], &a == &b ? "it is said twice" : "it excludes " + settings[j].origin);
            }
        }
    }
}

// A band has a frequency range and a duplex mode.
void compareBand(const KnownValues& known, const Settings& settings)
{
    const NrBand* const band = nrBand(known.context.band);
    if (band == nullptr)
    {
        return;
    }
    const bool isTdd = band->duplex == NR_TDD;
    for (const Setting& setting : settings)
    {
        const std::string_view name = setting.option->name;
        const bool isRight = name == "fr"    ? (known.context.range == RRC_RULE_RANGE_FR2) == (band->fr2 != 0)
                             : name == "fdd" ? !isTdd
                             : name == "tdd" ? isTdd
                                             : true;
        if (!isRight)
        {
            refuse(setting, "band n" + std::to_string(band->number) + " is of FR" + (band->fr2 != 0 ? "2" : "1") +
                                " and of " + (isTdd ? "TDD" : "FDD"));
        }
    }
}

} // namespace

std::span<const InputOption> inputOptions()
{
    return options;
}

std::vector<std::string> optionsOf(OSUINT32 inputs)
{
    static constexpr std::array<const char*, RRC_RULE_INPUTS> words = {
        "--previous or --full",
        "--message",
        "--mcg or --scg",
        "--band",
        "--fr or --band",
        "--fdd, --tdd or --band",
        "--carrier",
        "--bwp0-dl",
        "--bwp0-ul",
        "--ssb-bitmap",
        "--typeA-position",
        "--coreset0",
        "--tdd-pattern",
        "a message with the cell-common configuration",
        "--bearers",
        "--meas-object",
        "--endc, --nrdc or --none, with --other-cells",
        "--capability",
        "--rach",
    };
    std::vector<std::string> all;
    for (OSUINT32 i = 0; i < RRC_RULE_INPUTS; ++i)
    {
        if ((inputs >> i & 1) != 0)
        {
            all.emplace_back(words[i]);
        }
    }
    return all;
}

Settings merged(const Settings& first, const Settings& second)
{
    Settings all = first;
    for (const Setting& setting : second)
    {
        const bool isSaid = std::any_of(first.begin(), first.end(),
                                        [&](const Setting& one)
                                        { return std::string_view(one.option->group) == setting.option->group; });
        if (!isSaid)
        {
            all.push_back(setting);
        }
    }
    return all;
}

RuleInputs::RuleInputs(Session& session, const Settings& settings)
{
    expectAgreement(settings);
    for (const Setting& setting : settings)
    {
        setting.option->take(known_, session, setting);
    }
    compareBand(known_, settings);
    RrcRuleContext& context = known_.context;
    const std::vector<SCS_SpecificCarrier>& uplink = known_.carriersUl.empty() ? known_.carriersDl : known_.carriersUl;
    context.carriersDl = known_.carriersDl.data();
    context.numCarriersDl = static_cast<OSUINT8>(known_.carriersDl.size());
    context.carriersUl = uplink.data();
    context.numCarriersUl = static_cast<OSUINT8>(uplink.size());
    context.initialDownlinkBwp = known_.bwp0Dl ? &*known_.bwp0Dl : nullptr;
    context.initialUplinkBwp = known_.bwp0Ul ? &*known_.bwp0Ul : nullptr;
    context.measObjects = known_.measObjects.data();
    context.numMeasObjects = static_cast<OSUINT8>(known_.measObjects.size());
}

} // namespace tool
