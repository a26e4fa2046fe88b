// What values mean: each formula against a second computation, and the words of cases of the standards.
#include "../Rules/flatTrees.h"

#include "nrFormulas.h"
#include "rrcExplain.h"

#include <fstream>
#include <map>
#include <optional>

namespace
{

using Lines = std::vector<std::string>;

#define CELL "spCellConfig.spCellConfigDedicated."
#define DL CELL "downlinkBWP-ToAddModList[0]."
#define UL CELL "uplinkConfig.uplinkBWP-ToAddModList[0]."
#define COMMON "spCellConfig.reconfigurationWithSync.spCellConfigCommon."
#define PDCCH DL "bwp-Dedicated.pdcch-Config.setup."
#define PDSCH DL "bwp-Dedicated.pdsch-Config.setup."
#define PUCCH UL "bwp-Dedicated.pucch-Config.setup."
#define SRS UL "bwp-Dedicated.srs-Config.setup."

const Lines cell = {"cellGroupId = 0", CELL "tag-Id = 0"};
const Lines downlink = {DL "bwp-Id = 1", DL "bwp-Common.genericParameters.locationAndBandwidth = 1099",
                        DL "bwp-Common.genericParameters.subcarrierSpacing = kHz30"};
const Lines uplink = {UL "bwp-Id = 1", UL "bwp-Common.genericParameters.locationAndBandwidth = 1099",
                      UL "bwp-Common.genericParameters.subcarrierSpacing = kHz60"};

Lines operator+(Lines a, const Lines& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

struct Told
{
    std::string text;
    std::string formula;
    std::string clause;
    OSUINT32 inputs;
};

class Meanings : public test::FlatTrees
{
protected:
    std::map<std::string, Told> tell(const CellGroupConfig* tree, const RrcRuleContext& known = {})
    {
        std::map<std::string, Told> all;
        const auto sink = [](void* to, const RrcMeaning* meaning)
        {
            std::string path;
            for (const RrcRuleStep* step = meaning->path; step != meaning->path + meaning->depth; ++step)
            {
                path += step->name == nullptr ? "[" + std::to_string(step->index) + "]"
                        : path.empty()        ? step->name
                                              : "." + std::string(step->name);
            }
            char line[1000];
            (void)rrcMeaningFormat(meaning, line, sizeof line);
            (*static_cast<std::map<std::string, Told>*>(to))[path] = {line, meaning->formula, meaning->clause,
                                                                      meaning->inputs};
            return 0;
        };
        EXPECT_GE(rrcExplain(&context_, tree, &known, sink, &all), 0);
        return all;
    }

    std::map<std::string, Told> tell(const Lines& lines, const RrcRuleContext& known = {})
    {
        return tell(read(lines), known);
    }

    std::string textOf(const Lines& lines, const std::string& path, const RrcRuleContext& known = {})
    {
        const auto all = tell(lines, known);
        const auto found = all.find(path);
        return found == all.end() ? "nothing" : found->second.text;
    }

    // The words of one place.
    std::string textAt(const CellGroupConfig* tree, const void* value, const RtxType* type,
                       const RrcRuleContext& known = {})
    {
        std::string text;
        const auto sink = [](void* to, const RrcMeaning* meaning)
        {
            *static_cast<std::string*>(to) = meaning->text;
            return 0;
        };
        EXPECT_EQ(1, rrcExplainValue(&context_, tree, &known, value, type, sink, &text));
        return text;
    }

    // The first meaning of a path, to go on with other values at its place.
    std::pair<const void*, const RtxType*> place(const CellGroupConfig* tree, const std::string& end)
    {
        struct Search
        {
            std::string end;
            std::pair<const void*, const RtxType*> found;
        } search{end, {nullptr, nullptr}};
        const auto sink = [](void* to, const RrcMeaning* meaning)
        {
            auto& wanted = *static_cast<Search*>(to);
            char path[500];
            (void)rrcMeaningPathFormat(meaning, path, sizeof path);
            const bool is = std::string(path).ends_with(wanted.end);
            wanted.found = is ? std::pair(meaning->value, meaning->type) : wanted.found;
            return is ? 1 : 0;
        };
        (void)rrcExplain(&context_, tree, nullptr, sink, &search);
        EXPECT_NE(nullptr, search.found.first) << end;
        return search.found;
    }
};

// "PRBs 0..3 (4)", "PRB 5".
std::string span(const std::string& what, unsigned first, unsigned size)
{
    const std::string start = std::to_string(first);
    return size == 1
               ? what + " " + start
               : what + "s " + start + ".." + std::to_string(first + size - 1) + " (" + std::to_string(size) + ")";
}

// TS 38.214 5.1.2.2.2 from the side of the spans: which values there are, and what each stands for.
std::map<unsigned, std::pair<unsigned, unsigned>> allIndicators(unsigned n)
{
    std::map<unsigned, std::pair<unsigned, unsigned>> all;
    for (unsigned size = 1; size <= n; ++size)
    {
        for (unsigned start = 0; start + size <= n; ++start)
        {
            const unsigned value = size - 1 <= n / 2 ? n * (size - 1) + start : n * (n - size + 1) + n - 1 - start;
            EXPECT_TRUE(all.emplace(value, std::pair(start, size)).second) << value;
        }
    }
    return all;
}

TEST_F(Meanings, EveryResourceIndicationValue)
{
    const auto all = allIndicators(275);
    ASSERT_EQ(275U * 276U / 2, all.size());
    CellGroupConfig* const tree = read(cell + downlink);
    const auto [value, type] = place(tree, "locationAndBandwidth");
    ASSERT_NE(nullptr, value);
    auto& number = *const_cast<OSUINT16*>(static_cast<const OSUINT16*>(value));
    for (unsigned i = 0; i <= 37949; ++i)
    {
        number = static_cast<OSUINT16>(i);
        const auto found = all.find(i);
        const std::string text = textAt(tree, value, type);
        if (found == all.end())
        {
            ASSERT_EQ("no resource blocks: the value of no S and L", text) << i;
            continue;
        }
        const auto [start, size] = found->second;
        // 30 kHz: 0.36 MHz for each
        char mhz[20];
        (void)std::snprintf(mhz, sizeof mhz, "%g", 0.36 * size);
        ASSERT_EQ(span("PRB", start, size) + " from the carrier's first, " + mhz + " MHz", text) << i;
    }
}

TEST_F(Meanings, EveryStartAndLengthIndicator)
{
    const auto all = allIndicators(14);
    ASSERT_EQ(105U, all.size());
    CellGroupConfig* const tree =
        read(cell + downlink +
             Lines{PDSCH "resourceAllocation = resourceAllocationType1", PDSCH "rbg-Size = config1",
                   PDSCH "pdsch-TimeDomainAllocationList.setup[0].mappingType = typeA",
                   PDSCH "pdsch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 53",
                   PDSCH "prb-BundlingType.staticBundling = {}"});
    const auto [value, type] = place(tree, "startSymbolAndLength");
    ASSERT_NE(nullptr, value);
    auto& number = *const_cast<OSUINT8*>(static_cast<const OSUINT8*>(value));
    for (unsigned i = 0; i <= 127; ++i)
    {
        number = static_cast<OSUINT8>(i);
        const auto found = all.find(i);
        ASSERT_EQ(found == all.end() ? "no symbols: the value of no S and L of a slot"
                                     : span("symbol", found->second.first, found->second.second),
                  textAt(tree, value, type))
            << i;
    }
}

const Lines coreset = {PDCCH "controlResourceSetToAddModList[0].controlResourceSetId = 2",
                       PDCCH "controlResourceSetToAddModList[0].frequencyDomainResources = C00000000000",
                       PDCCH "controlResourceSetToAddModList[0].duration = 2",
                       PDCCH "controlResourceSetToAddModList[0].cce-REG-MappingType.nonInterleaved = null",
                       PDCCH "controlResourceSetToAddModList[0].precoderGranularity = sameAsREG-bundle"};

// TS 38.213 10.1 from the side of the common resource blocks: a group is 6 of them from a multiple of 6 on.
TEST_F(Meanings, CoresetsWhereverABandwidthPartBegins)
{
    CellGroupConfig* const tree = read(cell + downlink + coreset);
    const auto [value, type] = place(tree, "frequencyDomainResources");
    ASSERT_NE(nullptr, value);
    auto* const octets = const_cast<OSOCTET*>(static_cast<const OSOCTET*>(value));
    SCS_SpecificCarrier carrier{};
    carrier.subcarrierSpacing = SubcarrierSpacing_kHz30;
    carrier.carrierBandwidth = 273;
    RrcRuleContext known{};
    known.carriersDl = &carrier;
    known.numCarriersDl = 1;
    for (unsigned start = 0; start < 20; ++start)
    {
        carrier.offsetToCarrier = static_cast<OSUINT16>(start);
        for (unsigned bit = 0; bit < 45; ++bit)
        {
            std::fill(octets, octets + 6, OSOCTET{0});
            octets[bit / 8] = static_cast<OSOCTET>(0x80 >> bit % 8);
            unsigned group = 0;
            unsigned block = start;
            for (; block % 6 != 0; ++block)
            {
            }
            for (; group < bit; ++group)
            {
                block += 6;
            }
            const unsigned first = block - start;
            ASSERT_EQ("PRBs " + std::to_string(first) + ".." + std::to_string(first + 5) + " (6) of the bandwidth part",
                      textAt(tree, value, type, known))
                << start << " " << bit;
        }
    }
}

TEST_F(Meanings, WhatIsUnknownIsSaidToBe)
{
    const std::string path = PDCCH "controlResourceSetToAddModList[0].frequencyDomainResources";
    const auto told = tell(cell + downlink + coreset);
    EXPECT_EQ("groups 0, 1 of 6 PRBs (12); needs the bandwidth part's first common resource block", told.at(path).text);
    EXPECT_EQ(OSUINT32{RRC_RULE_INPUT_CARRIERS}, told.at(path).inputs);
    EXPECT_EQ("TS 38.213 10.1", told.at(path).clause);

    // A bandwidth part whose common part an earlier message has brought.
    const Lines space = {PDCCH "searchSpacesToAddModList[0].searchSpaceId = 2",
                         PDCCH "searchSpacesToAddModList[0].monitoringSlotPeriodicityAndOffset.sl10 = 3"};
    const std::string period = PDCCH "searchSpacesToAddModList[0].monitoringSlotPeriodicityAndOffset.sl10";
    const auto alone = tell(cell + Lines{DL "bwp-Id = 1"} + space);
    EXPECT_EQ("every 10 slots, from slot 3 on; needs the bandwidth part's spacing", alone.at(period).text);
    EXPECT_EQ(OSUINT32{RRC_RULE_INPUT_PREVIOUS}, alone.at(period).inputs);
    RrcRuleContext known{};
    known.previous = read(cell + downlink);
    EXPECT_EQ("every 10 slots (5 ms), from slot 3 on (1.5 ms)",
              tell(cell + Lines{DL "bwp-Id = 1"} + space, known).at(period).text);
}

TEST_F(Meanings, InitialBandwidthPartOfWhatIsKnown)
{
    BWP initial{};
    initial.locationAndBandwidth = 1099;
    initial.subcarrierSpacing = SubcarrierSpacing_kHz15;
    RrcRuleContext known{};
    const Lines space = {CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].searchSpaceId = 2",
                         CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0]."
                              "monitoringSlotPeriodicityAndOffset.sl1 = null"};
    const std::string path =
        CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].monitoringSlotPeriodicityAndOffset.sl1";
    EXPECT_EQ("every slot; needs the bandwidth part's spacing", textOf(cell + space, path));
    known.initialDownlinkBwp = &initial;
    EXPECT_EQ("every slot (1 ms)", textOf(cell + space, path, known));
}

TEST_F(Meanings, SearchSpaces)
{
    const std::string at = PDCCH "searchSpacesToAddModList[0].";
    const auto told = tell(cell + downlink +
                           Lines{at + "searchSpaceId = 2", at + "monitoringSlotPeriodicityAndOffset.sl2560 = 2559",
                                 at + "duration = 2", at + "monitoringSymbolsWithinSlot = 8100"});
    EXPECT_EQ("every 2560 slots (1280 ms), from slot 2559 on (1279.5 ms)",
              told.at(at + "monitoringSlotPeriodicityAndOffset.sl2560").text);
    EXPECT_EQ("monitored in 2 slots of each period (1 ms)", told.at(at + "duration").text);
    EXPECT_EQ("the CORESET begins at symbols 0, 7", told.at(at + "monitoringSymbolsWithinSlot").text);
}

// TS 38.104 table 5.4.2.1-1, its ends and what lies beside them.
TEST_F(Meanings, Frequencies)
{
    const std::map<std::string, std::string> cases = {
        {"0", "0 MHz"},
        {"599999", "2999.995 MHz"},
        {"600000", "3000 MHz"},
        {"633312", "3499.68 MHz, in the downlink of n77, n78"},
        {"422000", "2110 MHz, in the downlink of n1, n66"},
        {"2016666", "24249.99 MHz"},
        {"2016667", "24250.08 MHz, in the downlink of n258"},
        {"3279165", "99999.96 MHz"},
    };
    for (const auto& [number, text] : cases)
    {
        EXPECT_EQ(
            text,
            textOf({"cellGroupId = 0", COMMON "downlinkConfigCommon.frequencyInfoDL.frequencyBandList[0] = 78",
                    COMMON "downlinkConfigCommon.frequencyInfoDL.absoluteFrequencyPointA = " + number,
                    COMMON "downlinkConfigCommon.frequencyInfoDL.scs-SpecificCarrierList[0].offsetToCarrier = 0",
                    COMMON "downlinkConfigCommon.frequencyInfoDL.scs-SpecificCarrierList[0].subcarrierSpacing = kHz30",
                    COMMON "downlinkConfigCommon.frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth = 273",
                    COMMON "dmrs-TypeA-Position = pos2", COMMON "ss-PBCH-BlockPower = 0",
                    "spCellConfig.reconfigurationWithSync.newUE-Identity = 1",
                    "spCellConfig.reconfigurationWithSync.t304 = ms50"},
                   COMMON "downlinkConfigCommon.frequencyInfoDL.absoluteFrequencyPointA"))
            << number;
    }
}

// Every channel number by adding the steps of the raster up.
TEST(Frequencies, OfAllChannelNumbers)
{
    uint32_t khz = 0;
    for (uint32_t number = 0; number <= 3279165; ++number)
    {
        khz = number == 2016667 ? 24250080 : khz;
        ASSERT_EQ(khz, nrArfcnKhz(number)) << number;
        khz += number < 600000 ? 5 : number < 2016667 ? 15 : 60;
    }
}

TEST_F(Meanings, AWholeCell)
{
    std::ifstream file("tests/Rules/wholeCell.flat");
    ASSERT_TRUE(file.good());
    Lines lines;
    for (std::string line; std::getline(file, line);)
    {
        lines.push_back(line);
    }
    const auto told = tell(lines);
    const std::map<std::string, std::string> texts = {
        {COMMON "physCellId", "group 14, sequence 0"},
        {COMMON "downlinkConfigCommon.frequencyInfoDL.absoluteFrequencySSB",
         "3499.68 MHz, in the downlink of n77, n78"},
        {COMMON "downlinkConfigCommon.frequencyInfoDL.frequencyBandList[0]", "n78, TDD, 3300..3800 MHz"},
        {COMMON "downlinkConfigCommon.frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth",
         "273 PRBs, 98.28 MHz: a channel of 100 MHz"},
        {COMMON "downlinkConfigCommon.initialDownlinkBWP.genericParameters.locationAndBandwidth",
         "PRBs 0..272 (273) from the carrier's first, 98.28 MHz, common resource blocks 0..272 (273)"},
        {COMMON "downlinkConfigCommon.initialDownlinkBWP.genericParameters.subcarrierSpacing", "30 kHz"},
        // TS 38.213 table 13-4, row 10.
        {COMMON "downlinkConfigCommon.initialDownlinkBWP.pdcch-ConfigCommon.setup.controlResourceSetZero",
         "48 PRBs, 1 symbol, multiplexing pattern 1, 12 PRBs below the SS/PBCH block's first"},
        {COMMON "downlinkConfigCommon.initialDownlinkBWP.pdcch-ConfigCommon.setup.commonControlResourceSet."
                "frequencyDomainResources",
         "PRBs 0..269 (270) of the bandwidth part"},
        {COMMON "downlinkConfigCommon.initialDownlinkBWP.pdsch-ConfigCommon.setup.pdsch-TimeDomainAllocationList[0]."
                "startSymbolAndLength",
         "symbols 2..13 (12)"},
        {COMMON "ssb-PositionsInBurst.mediumBitmap", "SS/PBCH blocks 0, 1 (2 of 8)"},
        {COMMON "ssb-periodicityServingCell", "20 ms"},
        {COMMON "n-TimingAdvanceOffset", "25600 Tc, 13.0208 us"},
        {COMMON "ss-PBCH-BlockPower", "-16 dBm"},
        {COMMON "tdd-UL-DL-ConfigurationCommon.pattern1.dl-UL-TransmissionPeriodicity",
         "2.5 ms, 5 slots of 30 kHz: DDDSU, slot 3 DDDDDDDDDDFFUU"},
        {COMMON "uplinkConfigCommon.initialUplinkBWP.rach-ConfigCommon.setup.rach-ConfigGeneric."
                "preambleReceivedTargetPower",
         "-104 dBm"},
        {COMMON "uplinkConfigCommon.initialUplinkBWP.rach-ConfigCommon.setup.rsrp-ThresholdSSB", "-137 dBm"},
        {COMMON "uplinkConfigCommon.initialUplinkBWP.pusch-ConfigCommon.setup.msg3-DeltaPreamble", "2 dB"},
        {"spCellConfig.reconfigurationWithSync.newUE-Identity", "0x4601"},
        {"spCellConfig.reconfigurationWithSync.t304", "1000 ms"},
        {"spCellConfig.reconfigurationWithSync.smtc.periodicityAndOffset.sf20", "every 20 ms, from subframe 0 on"},
        {"physicalCellGroupConfig.p-NR-FR1", "23 dBm"},
        {"mac-CellGroupConfig.drx-Config.setup.drx-onDurationTimer.milliSeconds", "10 ms"},
        {"mac-CellGroupConfig.drx-Config.setup.drx-RetransmissionTimerDL", "8 slots"},
        {"mac-CellGroupConfig.drx-Config.setup.drx-LongCycleStartOffset.ms320",
         "a cycle of 320 ms, from subframe 9 on"},
        {"mac-CellGroupConfig.drx-Config.setup.shortDRX.drx-ShortCycleTimer", "2 short cycles, 160 ms"},
        {"mac-CellGroupConfig.phr-Config.setup.phr-Tx-PowerFactorChange", "3 dB"},
        {"mac-CellGroupConfig.bsr-Config.retxBSR-Timer", "80 ms"},
    };
    for (const auto& [path, text] : texts)
    {
        const auto found = told.find(path);
        EXPECT_EQ(text, found == told.end() ? "nothing" : found->second.text) << path;
    }
    for (const auto& [path, one] : told)
    {
        EXPECT_FALSE(one.clause.empty()) << path;
    }
    EXPECT_EQ(told.end(), told.find(COMMON "dmrs-TypeA-Position"));
}

struct Pattern
{
    const char* period; // dl-UL-TransmissionPeriodicity
    unsigned eighths;   // of a millisecond
};

// TS 38.213 11.1 symbol by symbol: downlink from the start, uplink up to the end.
TEST_F(Meanings, EveryTddPattern)
{
    for (const Pattern& one : {Pattern{"ms0p5", 4}, Pattern{"ms1", 8}, Pattern{"ms2p5", 20}, Pattern{"ms5", 40}})
    {
        const unsigned slots = one.eighths * 2 / 8; // 30 kHz
        for (unsigned downlinkSymbols : {0U, 1U, 13U, 14U, 20U})
        {
            for (unsigned uplinkSymbols : {0U, 2U, 13U})
            {
                if (downlinkSymbols + uplinkSymbols > slots * 14)
                {
                    continue;
                }
                std::string symbols(std::size_t{slots} * 14, 'F');
                std::fill_n(symbols.begin(), downlinkSymbols, 'D');
                std::fill_n(symbols.rbegin(), uplinkSymbols, 'U');
                std::string letters;
                std::string mixed;
                for (unsigned slot = 0; slot < slots; ++slot)
                {
                    const std::string of = symbols.substr(std::size_t{slot} * 14, 14);
                    const bool isMixed = of.find_first_not_of(of[0]) != std::string::npos;
                    letters += isMixed ? 'S' : of[0];
                    mixed += isMixed ? ", slot " + std::to_string(slot) + " " + of : "";
                }
                const std::string at = COMMON "tdd-UL-DL-ConfigurationCommon.";
                const std::string text =
                    textOf({"cellGroupId = 0", at + "referenceSubcarrierSpacing = kHz30",
                            at + "pattern1.dl-UL-TransmissionPeriodicity = " + one.period,
                            at + "pattern1.nrofDownlinkSlots = " + std::to_string(downlinkSymbols / 14),
                            at + "pattern1.nrofDownlinkSymbols = " + std::to_string(downlinkSymbols % 14),
                            at + "pattern1.nrofUplinkSlots = 0",
                            at + "pattern1.nrofUplinkSymbols = " + std::to_string(uplinkSymbols),
                            COMMON "dmrs-TypeA-Position = pos2", COMMON "ss-PBCH-BlockPower = 0",
                            "spCellConfig.reconfigurationWithSync.newUE-Identity = 1",
                            "spCellConfig.reconfigurationWithSync.t304 = ms50"},
                           at + "pattern1.dl-UL-TransmissionPeriodicity");
                EXPECT_TRUE(text.ends_with("of 30 kHz: " + letters + mixed)) << text << "\n" << letters << mixed;
            }
        }
    }
}

TEST_F(Meanings, PucchResources)
{
    const std::string at = PUCCH "resourceToAddModList[0].";
    const auto ofFormat = [&](const Lines& more, const Lines& config = {})
    {
        return tell(cell + uplink + Lines{at + "pucch-ResourceId = 0", at + "startingPRB = 10"} + more + config);
    };
    auto told = ofFormat({at + "format.format0.initialCyclicShift = 0", at + "format.format0.nrofSymbols = 2",
                          at + "format.format0.startingSymbolIndex = 12"});
    EXPECT_EQ("PRB 10 of the bandwidth part", told.at(at + "startingPRB").text);
    EXPECT_EQ("format 0 on 2 symbols: 1 or 2 bits", told.at(at + "format.format0.nrofSymbols").text);
    EXPECT_EQ("symbols 12..13 (2)", told.at(at + "format.format0.startingSymbolIndex").text);

    // 4 resource blocks, 2 symbols: 4 * 8 * 2 = 64 elements, 128 bits, 32 at code rate 0.25.
    const Lines two = {at + "format.format2.nrofPRBs = 4", at + "format.format2.nrofSymbols = 2",
                       at + "format.format2.startingSymbolIndex = 0"};
    EXPECT_EQ(
        "format 2 on 2 symbols: more than 2 bits, at most 32 with their CRC",
        ofFormat(two, {PUCCH "format2.setup.maxCodeRate = zeroDot25"}).at(at + "format.format2.nrofSymbols").text);
    EXPECT_EQ("format 2 on 2 symbols: more than 2 bits; needs maxCodeRate of the format",
              ofFormat(two).at(at + "format.format2.nrofSymbols").text);
    EXPECT_EQ("PRBs 10..13 (4) of the bandwidth part", ofFormat(two).at(at + "startingPRB").text);

    // 14 symbols with additional DM-RS: 10 of data, 12 subcarriers: 120 elements, 120 bits, 96 at code rate 0.80.
    EXPECT_EQ("format 3 on 14 symbols: more than 2 bits, at most 96 with their CRC",
              ofFormat({at + "format.format3.nrofPRBs = 1", at + "format.format3.nrofSymbols = 14",
                        at + "format.format3.startingSymbolIndex = 0"},
                       {PUCCH "format3.setup.additionalDMRS = true", PUCCH "format3.setup.maxCodeRate = zeroDot80",
                        PUCCH "format3.setup.pi2BPSK = enabled"})
                  .at(at + "format.format3.nrofSymbols")
                  .text);
    // 4 symbols with hopping: 2 of DM-RS, 12 / 4 elements in each of 2: 12 bits, 5.4 at code rate 0.45.
    told = ofFormat({at + "intraSlotFrequencyHopping = enabled", at + "secondHopPRB = 200",
                     at + "format.format4.nrofSymbols = 4", at + "format.format4.occ-Length = n4",
                     at + "format.format4.occ-Index = n0", at + "format.format4.startingSymbolIndex = 10"},
                    {PUCCH "format4.setup.maxCodeRate = zeroDot45"});
    EXPECT_EQ("format 4 on 4 symbols: more than 2 bits, at most 5 with their CRC",
              told.at(at + "format.format4.nrofSymbols").text);
    EXPECT_EQ("PRB 200 of the bandwidth part, behind the hop", told.at(at + "secondHopPRB").text);
}

// TS 38.211 table 6.4.1.3.3.2-1, the positions themselves.
TEST(PucchDmrs, Symbols)
{
    using Positions = std::vector<unsigned>;
    struct Row
    {
        unsigned symbols;
        Positions fixed;
        Positions hopping;
        Positions additional;
        Positions additionalHopping;
    };
    const Row rows[] = {
        {4, {1}, {0, 2}, {1}, {0, 2}},
        {5, {0, 3}, {0, 3}, {0, 3}, {0, 3}},
        {6, {1, 4}, {1, 4}, {1, 4}, {1, 4}},
        {7, {1, 4}, {1, 4}, {1, 4}, {1, 4}},
        {8, {1, 5}, {1, 5}, {1, 5}, {1, 5}},
        {9, {1, 6}, {1, 6}, {1, 6}, {1, 6}},
        {10, {2, 7}, {2, 7}, {1, 3, 6, 8}, {1, 3, 6, 8}},
        {11, {2, 7}, {2, 7}, {1, 3, 6, 9}, {1, 3, 6, 9}},
        {12, {2, 8}, {2, 8}, {1, 4, 7, 10}, {1, 4, 7, 10}},
        {13, {2, 9}, {2, 9}, {1, 4, 7, 11}, {1, 4, 7, 11}},
        {14, {3, 10}, {3, 10}, {1, 5, 8, 12}, {1, 5, 8, 12}},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(row.fixed.size(), nrPucchDmrsSymbols(row.symbols, 0, 0)) << row.symbols;
        EXPECT_EQ(row.hopping.size(), nrPucchDmrsSymbols(row.symbols, 1, 0)) << row.symbols;
        EXPECT_EQ(row.additional.size(), nrPucchDmrsSymbols(row.symbols, 0, 1)) << row.symbols;
        EXPECT_EQ(row.additionalHopping.size(), nrPucchDmrsSymbols(row.symbols, 1, 1)) << row.symbols;
    }
    EXPECT_EQ(0U, nrPucchDmrsSymbols(3, 0, 0));
    EXPECT_EQ(0U, nrPucchDmrsSymbols(15, 0, 0));
    EXPECT_EQ(0U, nrPucchElements(1, 1, 14, 0, 1));
    EXPECT_EQ(0U, nrPucchElements(4, 1, 14, 2, 0));
}

TEST_F(Meanings, SchedulingRequests)
{
    const std::string at = PUCCH "schedulingRequestResourceToAddModList[0].";
    const Lines resource = {at + "schedulingRequestResourceId = 1", at + "schedulingRequestID = 0"};
    EXPECT_EQ("every 40 slots (10 ms), from slot 7 on (1.75 ms)",
              textOf(cell + uplink + resource + Lines{at + "periodicityAndOffset.sl40 = 7"},
                     at + "periodicityAndOffset.sl40"));
    EXPECT_EQ("every 7 symbols", textOf(cell + uplink + resource + Lines{at + "periodicityAndOffset.sym6or7 = null"},
                                        at + "periodicityAndOffset.sym6or7"));
    EXPECT_EQ("every 6 symbols",
              textOf(cell + uplink + Lines{UL "bwp-Common.genericParameters.cyclicPrefix = extended"} + resource +
                         Lines{at + "periodicityAndOffset.sym6or7 = null"},
                     at + "periodicityAndOffset.sym6or7"));
}

TEST_F(Meanings, Sounding)
{
    const std::string at = SRS "srs-ResourceToAddModList[0].";
    const auto told = tell(
        cell + uplink +
        Lines{at + "srs-ResourceId = 0", at + "nrofSRS-Ports = port1", at + "transmissionComb.n2.combOffset-n2 = 0",
              at + "transmissionComb.n2.cyclicShift-n2 = 0", at + "resourceMapping.startPosition = 3",
              at + "resourceMapping.nrofSymbols = n2", at + "resourceMapping.repetitionFactor = n1",
              at + "freqDomainPosition = 34", at + "freqDomainShift = 1", at + "freqHopping.c-SRS = 61",
              at + "freqHopping.b-SRS = 1", at + "freqHopping.b-hop = 3", at + "groupOrSequenceHopping = neither",
              at + "resourceType.periodic.periodicityAndOffset-p.sl80 = 5", at + "sequenceId = 0"});
    // TS 38.211 table 6.4.1.4.3-1, row 61: 272, 136 in 2, 68 in 2, 4 in 17. n_RRC = 34: 4 * 34 = 136, the second half.
    EXPECT_EQ("m_SRS for b-SRS 0..3: 272, 136, 68, 4 PRBs", told.at(at + "freqHopping.c-SRS").text);
    EXPECT_EQ("136 PRBs at a time, one of 2 parts", told.at(at + "freqHopping.b-SRS").text);
    EXPECT_EQ("no hopping", told.at(at + "freqHopping.b-hop").text);
    EXPECT_EQ("PRBs 137..272 (136)", told.at(at + "freqDomainPosition").text);
    EXPECT_EQ("symbols 10..11 (2)", told.at(at + "resourceMapping.startPosition").text);
    EXPECT_EQ("every 80 slots (20 ms), from slot 5 on (1.25 ms)",
              told.at(at + "resourceType.periodic.periodicityAndOffset-p.sl80").text);
}

#define CSI CELL "csi-MeasConfig.setup."

Lines csiResource(const std::string& allocation, const std::string& ports, const std::string& cdm,
                  const std::string& density)
{
    const std::string at = CSI "nzp-CSI-RS-ResourceToAddModList[0].";
    return {at + "nzp-CSI-RS-ResourceId = 3",
            at + "resourceMapping.frequencyDomainAllocation." + allocation,
            at + "resourceMapping.nrofPorts = " + ports,
            at + "resourceMapping.firstOFDMSymbolInTimeDomain = 5",
            at + "resourceMapping.firstOFDMSymbolInTimeDomain2 = 9",
            at + "resourceMapping.cdm-Type = " + cdm,
            at + "resourceMapping.density." + density,
            at + "resourceMapping.freqBand.startingRB = 0",
            at + "resourceMapping.freqBand.nrofRBs = 276",
            at + "powerControlOffset = -8",
            at + "powerControlOffsetSS = db-3",
            at + "scramblingID = 0",
            at + "periodicityAndOffset.slots40 = 12"};
}

// TS 38.211 table 7.4.1.5.3-1.
TEST_F(Meanings, CsiReferenceSignals)
{
    const std::string at = CSI "nzp-CSI-RS-ResourceToAddModList[0].";
    auto told = tell(cell + downlink + csiResource("row1 = 80", "p1", "noCDM", "three = null"));
    const std::string mapping = at + "resourceMapping.frequencyDomainAllocation.";
    EXPECT_EQ("row 1: 1 port, density 3, no CDM, symbol 5", told.at(mapping + "row1").text);
    EXPECT_TRUE(told.at(mapping + "row1").formula.starts_with("k = 3:")) << told.at(mapping + "row1").formula;
    EXPECT_EQ("-8 dB", told.at(at + "powerControlOffset").text);
    EXPECT_EQ("-3 dB", told.at(at + "powerControlOffsetSS").text);
    // No CSI-ResourceConfig says which bandwidth part.
    EXPECT_EQ("every 40 slots, from slot 12 on; needs the bandwidth part's spacing",
              told.at(at + "periodicityAndOffset.slots40").text);

    told = tell(cell + downlink + csiResource("row4 = 80", "p4", "fd-CDM2", "one = null"));
    EXPECT_EQ("row 4: 4 ports, density 1, FD-CDM2, symbol 5", told.at(mapping + "row4").text);
    told = tell(cell + downlink + csiResource("other = F0", "p32", "cdm4-FD2-TD2", "dot5 = oddPRBs"));
    EXPECT_EQ("row 17: 32 ports, density 0.5 (odd PRBs), CDM4 (FD2, TD2), symbols 5..6 (2) and symbols 9..10 (2)",
              told.at(mapping + "other").text);
    told = tell(cell + downlink + csiResource("other = F0", "p24", "cdm4-FD2-TD2", "one = null"));
    EXPECT_EQ("no row of the table has these bits, ports, CDM type and density", told.at(mapping + "other").text);

    const Lines use = {CSI "nzp-CSI-RS-ResourceSetToAddModList[0].nzp-CSI-ResourceSetId = 0",
                       CSI "nzp-CSI-RS-ResourceSetToAddModList[0].nzp-CSI-RS-Resources[0] = 3",
                       CSI "csi-ResourceConfigToAddModList[0].csi-ResourceConfigId = 0",
                       CSI "csi-ResourceConfigToAddModList[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB."
                           "nzp-CSI-RS-ResourceSetList[0] = 0",
                       CSI "csi-ResourceConfigToAddModList[0].bwp-Id = 1",
                       CSI "csi-ResourceConfigToAddModList[0].resourceType = periodic"};
    told = tell(cell + downlink + csiResource("row4 = 80", "p4", "fd-CDM2", "one = null") + use);
    EXPECT_EQ("every 40 slots (20 ms), from slot 12 on (6 ms)", told.at(at + "periodicityAndOffset.slots40").text);
}

// Flat lines with their meanings are read as without.
TEST_F(Meanings, AreRemarksBehindFlatLines)
{
    const CellGroupConfig* const tree = read(cell + downlink);
    using Remarks = std::map<std::pair<const void*, const RtxType*>, std::string>;
    Remarks meanings;
    const auto keep = [](void* to, const RrcMeaning* meaning)
    {
        (*static_cast<Remarks*>(to))[{meaning->value, meaning->type}] = meaning->text;
        return 0;
    };
    ASSERT_EQ(2, rrcExplain(&context_, tree, nullptr, keep, &meanings));
    const auto remark = [](void* arg, const RtxType* type, const void* value) -> const char*
    {
        const auto& all = *static_cast<const Remarks*>(arg);
        const auto found = all.find({value, type});
        return found == all.end() ? nullptr : found->second.c_str();
    };
    std::string text;
    const auto print = [](void* to, const char* piece)
    {
        *static_cast<std::string*>(to) += piece;
    };
    EXPECT_EQ(0, rtxToFlatWithRemarks(&context_, asn1Type_CellGroupConfig(), tree, remark, &meanings, print, &text));
    const std::string at = "CellGroupConfig." DL;
    EXPECT_EQ("CellGroupConfig.cellGroupId = 0\n" + at + "bwp-Id = 1\n" + at +
                  "bwp-Common.genericParameters.locationAndBandwidth = 1099  # PRBs 0..272 (273) from the carrier's "
                  "first, 98.28 MHz\n" +
                  at +
                  "bwp-Common.genericParameters.subcarrierSpacing = kHz30  # 30 kHz\nCellGroupConfig." CELL
                  "tag-Id = 0\n",
              text);
    CellGroupConfig* const again = this->tree();
    EXPECT_EQ(0,
              asn1FromFlat(&context_, asn1Type_CellGroupConfig(), again, text.data(), text.size(), nullptr, nullptr));
    EXPECT_EQ(1, rtxEqual(&context_, asn1Type_CellGroupConfig(), tree, again));
}

#define GRANT UL "bwp-Dedicated.configuredGrantConfig.setup."

TEST_F(Meanings, ConfiguredGrants)
{
    const auto ofPeriod = [&](const std::string& period)
    {
        return tell(cell + uplink +
                    Lines{GRANT "cg-DMRS-Configuration = {}", GRANT "resourceAllocation = resourceAllocationType1",
                          GRANT "powerControlLoopToUse = n0", GRANT "p0-PUSCH-Alpha = 0",
                          GRANT "nrofHARQ-Processes = 1", GRANT "repK = n1", GRANT "periodicity = " + period,
                          GRANT "configuredGrantTimer = 3"});
    };
    auto told = ofPeriod("sym10x14");
    EXPECT_EQ("every 10 slots of 14 symbols (2.5 ms)", told.at(GRANT "periodicity").text);
    EXPECT_EQ("3 periods, 30 slots (7.5 ms)", told.at(GRANT "configuredGrantTimer").text);
    told = ofPeriod("sym7");
    EXPECT_EQ("every 7 symbols", told.at(GRANT "periodicity").text);
    EXPECT_EQ("3 periods, 21 symbols", told.at(GRANT "configuredGrantTimer").text);
}

// Of a period that the schema does not have, the timer's length is not made up.
TEST_F(Meanings, TimerOfNoPeriod)
{
    const CellGroupConfig* const tree =
        read(cell + uplink +
             Lines{GRANT "cg-DMRS-Configuration = {}", GRANT "resourceAllocation = resourceAllocationType1",
                   GRANT "powerControlLoopToUse = n0", GRANT "p0-PUSCH-Alpha = 0", GRANT "nrofHARQ-Processes = 1",
                   GRANT "repK = n1", GRANT "periodicity = sym2", GRANT "configuredGrantTimer = 3"});
    const void* const period = place(tree, "periodicity").first;
    ASSERT_NE(nullptr, period);
    *static_cast<OSUINT32*>(const_cast<void*>(period)) = 1000;
    const auto told = tell(tree);
    EXPECT_FALSE(told.contains(GRANT "periodicity"));
    EXPECT_EQ("3 periods", told.at(GRANT "configuredGrantTimer").text);
}

// TS 38.214 6.1.2.3: what a DCI would say, in the last bits of 18.
TEST_F(Meanings, BlocksOfAGrant)
{
    // 106 PRBs from common resource block 0 on: 275 * 105 + 0.
    SCS_SpecificCarrier carrier{};
    carrier.subcarrierSpacing = SubcarrierSpacing_kHz30;
    carrier.carrierBandwidth = 106;
    RrcRuleContext known{};
    known.carriersUl = &carrier;
    known.numCarriersUl = 1;
    const auto ofGrant = [&](const std::string& kind, const std::string& bits, const std::string& riv)
    {
        return tell(cell + Lines{UL "bwp-Id = 1", UL "bwp-Common.genericParameters.locationAndBandwidth = " + riv,
                                 UL "bwp-Common.genericParameters.subcarrierSpacing = kHz30",
                                 GRANT "cg-DMRS-Configuration = {}", GRANT "resourceAllocation = " + kind,
                                 GRANT "powerControlLoopToUse = n0", GRANT "p0-PUSCH-Alpha = 0",
                                 GRANT "nrofHARQ-Processes = 1", GRANT "repK = n1", GRANT "periodicity = sym10x14",
                                 GRANT "rrc-ConfiguredUplinkGrant.timeDomainOffset = 0",
                                 GRANT "rrc-ConfiguredUplinkGrant.antennaPort = 0",
                                 GRANT "rrc-ConfiguredUplinkGrant.precodingAndNumberOfLayers = 0",
                                 GRANT "rrc-ConfiguredUplinkGrant.mcsAndTBS = 0",
                                 GRANT "rrc-ConfiguredUplinkGrant.pathlossReferenceIndex = 0",
                                 GRANT "rrc-ConfiguredUplinkGrant.timeDomainAllocation = 3",
                                 GRANT "rrc-ConfiguredUplinkGrant.frequencyDomainAllocation = " + bits},
                    known);
    };
    const std::string at = GRANT "rrc-ConfiguredUplinkGrant.";
    // 3 PRBs from 5 on: 106 * 2 + 5 = 217 = 0xD9, behind ten bits of 18 that are clear.
    auto told = ofGrant("resourceAllocationType1", "003640", "28875");
    EXPECT_EQ("PRBs 5..7 (3) of the bandwidth part", told.at(at + "frequencyDomainAllocation").text);
    EXPECT_EQ("row 4 of the PUSCH time-domain allocations", told.at(at + "timeDomainAllocation").text);
    // Configuration 1 of 106 PRBs: groups of 8, 14 of them; the first and the last two.
    told = ofGrant("resourceAllocationType0", "0800C0", "28875");
    EXPECT_EQ("resource block groups 0, 12, 13 of 14, 8 PRBs each", told.at(at + "frequencyDomainAllocation").text);
}

// TS 38.214 table 5.2.1.4-2, of the bandwidth part that is measured.
TEST_F(Meanings, Subbands)
{
    const std::string report = CSI "csi-ReportConfigToAddModList[0].";
    const auto ofSize = [&](const std::string& riv, const std::string& value)
    {
        return textOf(cell + Lines{DL "bwp-Id = 1", DL "bwp-Common.genericParameters.locationAndBandwidth = " + riv,
                                   DL "bwp-Common.genericParameters.subcarrierSpacing = kHz30",
                                   CSI "csi-ResourceConfigToAddModList[0].csi-ResourceConfigId = 0",
                                   CSI "csi-ResourceConfigToAddModList[0].csi-RS-ResourceSetList.csi-IM-ResourceSetList"
                                       "[0] = 0",
                                   CSI "csi-ResourceConfigToAddModList[0].bwp-Id = 1",
                                   CSI "csi-ResourceConfigToAddModList[0].resourceType = periodic",
                                   report + "reportConfigId = 0", report + "resourcesForChannelMeasurement = 0",
                                   report + "reportConfigType.aperiodic.reportSlotOffsetList[0] = 0",
                                   report + "reportQuantity.none = null",
                                   report + "timeRestrictionForChannelMeasurements = notConfigured",
                                   report + "timeRestrictionForInterferenceMeasurements = notConfigured",
                                   report + "groupBasedBeamReporting.disabled = {}", report + "subbandSize = " + value},
                      report + "subbandSize");
    };
    const auto riv = [](unsigned size)
    {
        return std::to_string(size - 1 <= 137 ? 275 * (size - 1) : 275 * (276 - size) + 274);
    };
    const struct
    {
        unsigned from, to, sizes[2];
    } rows[] = {{24, 72, {4, 8}}, {73, 144, {8, 16}}, {145, 275, {16, 32}}};
    for (const auto& row : rows)
    {
        for (const unsigned size : {row.from, row.to})
        {
            EXPECT_EQ(std::to_string(row.sizes[0]) + " PRBs a subband", ofSize(riv(size), "value1"));
            EXPECT_EQ(std::to_string(row.sizes[1]) + " PRBs a subband", ofSize(riv(size), "value2"));
        }
    }
    EXPECT_EQ("no subbands in a bandwidth part of 23 PRBs", ofSize(riv(23), "value1"));
}

// TS 36.331: bits for subframes 1, 2, 3, 6, 7, 8 in FDD, for 3, 4, 7, 8, 9 in TDD.
TEST_F(Meanings, MbsfnSubframes)
{
    const std::string at = CELL "lte-CRS-ToMatchAround.setup.mbsfn-SubframeConfigList[0].";
    const Lines crs = {CELL "lte-CRS-ToMatchAround.setup.carrierFreqDL = 100",
                       CELL "lte-CRS-ToMatchAround.setup.carrierBandwidthDL = n50",
                       CELL "lte-CRS-ToMatchAround.setup.nrofCRS-Ports = n2",
                       CELL "lte-CRS-ToMatchAround.setup.v-Shift = n0",
                       at + "radioframeAllocationPeriod = n8",
                       at + "radioframeAllocationOffset = 3"};
    auto told = tell(cell + crs + Lines{at + "subframeAllocation1.oneFrame = E4"});
    EXPECT_EQ("every 8 radio frames, from frame 3 on", told.at(at + "radioframeAllocationPeriod").text);
    EXPECT_EQ("FDD: subframes 1..3, 8; TDD: subframes 3, 4, 7", told.at(at + "subframeAllocation1.oneFrame").text);
    told = tell(cell + crs + Lines{at + "subframeAllocation1.fourFrames = 800001"});
    EXPECT_EQ("FDD: subframes 1 | none | none | 8; TDD: subframes 3 | none | none | none",
              told.at(at + "subframeAllocation1.fourFrames").text);
}

// What stands in another cell's message is read with that cell's spacing.
TEST_F(Meanings, SecondaryCells)
{
    const std::string at = "sCellToAddModList[0].";
    const std::string bwp = at + "sCellConfigDedicated.downlinkBWP-ToAddModList[0].";
    const std::string space = bwp + "bwp-Dedicated.pdcch-Config.setup.searchSpacesToAddModList[0].";
    EXPECT_EQ("every 8 slots (1 ms), from slot 1 on (0.125 ms)",
              textOf(cell + downlink +
                         Lines{at + "sCellIndex = 5", at + "sCellConfigDedicated.tag-Id = 0", bwp + "bwp-Id = 1",
                               bwp + "bwp-Common.genericParameters.locationAndBandwidth = 1099",
                               bwp + "bwp-Common.genericParameters.subcarrierSpacing = kHz120",
                               space + "searchSpaceId = 2", space + "monitoringSlotPeriodicityAndOffset.sl8 = 1"},
                     space + "monitoringSlotPeriodicityAndOffset.sl8"));
}

} // namespace
