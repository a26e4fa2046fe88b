// The check of a record against what becomes of it: random records of both kinds, and such as no one ever filled.
#include "rrcRecordCheck.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "NR-RRC-Definitions.h"
#include "composed.h"
#include "records.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcCodec/rrcInit.h"
#include "rrcDecompose.h"
#include "rrcRecordJson.h"
#include "typicalCall.h"
#include "walk.h"

extern "C" OSUINT8 firstSeverity(const RrcCellGroupCfg_t* record);

namespace
{

using Ranges = records::Chance::Ranges;

struct Found
{
    std::vector<std::string> lines;
    std::vector<std::string> errorElements;
    unsigned errors = 0;
};

int collect(void* arg, const RrcRecordFinding* finding)
{
    auto& found = *static_cast<Found*>(arg);
    char line[2048];
    EXPECT_LT(rrcRecordFindingFormat(finding, line, sizeof line), sizeof line);
    found.lines.emplace_back(line);
    if (finding->severity == RRC_RECORD_ERROR)
    {
        ++found.errors;
        found.errorElements.emplace_back(finding->element);
    }
    return 0;
}

class laws : public testing::TestWithParam<Ranges>
{
};

// What has no error is encoded, what has one is refused.
TEST_P(laws, errorsAreRefusals)
{
    const auto record = records::junk(1);
    std::vector<UINT8> octets(8192);
    records::Chance chance(GetParam());
    unsigned refused = 0;
    for (std::uint32_t seed = 1; seed <= records::shareOf(10000); ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        Found found;
        const OSUINT32 count = rrcCheckCellGroupCfg(record.get(), collect, &found);
        ASSERT_EQ(count, found.lines.size());
        ASSERT_EQ(rrcCheckCellGroupCfg(record.get(), nullptr, nullptr), count);
        size_t length = 0;
        char error[512] = "";
        const int status =
            rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, error, sizeof error);
        refused += status == RRC_COMPOSE_OK ? 0 : 1;
        std::string all;
        for (const std::string& line : found.lines)
        {
            all += line.compare(0, 5, "error") == 0 ? line + "\n" : "";
        }
        EXPECT_EQ(status == RRC_COMPOSE_OK, found.errors == 0) << "cell group " << seed << ": " << error << "\n" << all;
    }
    EXPECT_EQ(refused > records::shareOf(3000), GetParam() == Ranges::dropped) << refused;
    EXPECT_LT(refused, records::shareOf(7000));
}

// Without the one bit that says what is so without it.
std::string json(const RrcCellGroupCfg_t& record)
{
    std::string text;
    rrcRecordToJson(
        &record, [](void* arg, const char* part) { *static_cast<std::string*>(arg) += part; }, &text);
    const std::string csirs = "\"bitMask\": [\"RRC_SCIS_RESOURCE\"],";
    for (size_t at = text.find(csirs); at != std::string::npos; at = text.find(csirs))
    {
        const size_t line = text.rfind('\n', at);
        text.erase(line, at + csirs.size() - line);
    }
    return text;
}

// Ends at what is not sent as it stands. Another number than 1 for true is no warning, and comes back as 1.
int isSentOtherwise(void* arg, const RrcRecordFinding* finding)
{
    auto& otherwise = *static_cast<bool*>(arg);
    const std::string_view id = finding->rule->id;
    otherwise = finding->severity >= RRC_RECORD_WARNING || id == "record-boolean" || id == "record-phr-dummy";
    return otherwise ? 1 : 0;
}

// What has neither error nor warning is sent as it stands: the record that its octets decode to says the same.
TEST_P(laws, silenceIsSent)
{
    const auto record = records::junk(8);
    const auto back = records::junk(9);
    records::Chance chance(GetParam());
    unsigned silent = 0;
    for (std::uint32_t seed = 1; seed <= records::shareOf(10000); ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        bool otherwise = false;
        (void)rrcCheckCellGroupCfg(record.get(), isSentOtherwise, &otherwise);
        if (otherwise)
        {
            continue;
        }
        ++silent;
        std::string octets = records::composed(record.get());
        OSCTXT context;
        CellGroupConfig tree;
        ASSERT_EQ(rtxInitContext(&context), RTX_OK);
        ASSERT_EQ(pu_setBuffer(&context, reinterpret_cast<OSOCTET*>(octets.data()), octets.size(), 0), RTX_OK);
        ASSERT_EQ(asn1PD_CellGroupConfig(&context, &tree), RTX_OK) << "cell group " << seed << ": " << octets;
        EXPECT_EQ(rrcDecomposeCellGroupCfg(&context, &tree, back.get(), nullptr, nullptr), 0);
        rtFreeContext(&context);
        ASSERT_EQ(json(*back), json(*record)) << "cell group " << seed;
    }
    EXPECT_GT(silent, records::shareOf(1000));
}

// Fills what lies behind clear bits and counts; a count itself stands beside its bit and is always somebody's.
class Scribble
{
public:
    explicit Scribble(int octet) : octet_(octet) {}

    bool operator()(const RrcRecordType& type, UINT32 /*field*/, const void* record, UINT32 /*entries*/)
    {
        for (UINT32 i = 0; i < type.fieldCount && last_ != record; ++i)
        {
            const RrcRecordField& field = type.fields[i];
            const UINT32 bound = std::max<UINT32>(field.bound, 1);
            if (field.kind != RRC_FIELD_COUNT && field.guard >= 0 && rrcRecordIsRead(&type, record, i) == 0)
            {
                fill(field, record, 0, bound);
            }
            else if (field.count >= 0)
            {
                fill(field, record, rrcRecordEntries(&type, record, i), bound);
            }
        }
        last_ = record;
        return true;
    }

private:
    void fill(const RrcRecordField& field, const void* record, UINT32 from, UINT32 to) const
    {
        std::memset(const_cast<void*>(rrcRecordPlace(&field, record, from)), octet_, size_t{field.size} * (to - from));
    }

    int octet_;
    const void* last_ = nullptr;
};

// What lies behind clear bits and counts is nobody's: the same record in other memory has the same findings.
TEST_P(laws, knowOnlyWhatIsFilled)
{
    const auto record = records::junk(1);
    records::Chance chance(GetParam());
    for (std::uint32_t seed = 1; seed <= 500; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        std::vector<std::string> lines[2];
        for (unsigned i = 0; i < 2; ++i)
        {
            Scribble scribble(i == 0 ? 0x00 : 0xA5);
            records::walk(*rrcRecordTypes[0], record.get(), scribble);
            Found found;
            rrcCheckCellGroupCfg(record.get(), collect, &found);
            lines[i] = found.lines;
        }
        ASSERT_EQ(lines[0].size(), lines[1].size()) << "cell group " << seed;
        for (size_t i = 0; i < lines[0].size(); ++i)
        {
            ASSERT_EQ(lines[0][i], lines[1][i]) << "cell group " << seed;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ranges, laws, testing::Values(Ranges::kept, Ranges::dropped));

// Memory that nobody has filled: every mask, count and number at once. The sanitizers look on.
TEST(anyMemory, isChecked)
{
    const auto record = records::junk(2);
    OSUINT32 found = 0;
    const auto tell = [](void* arg, const RrcRecordFinding* finding)
    {
        ++*static_cast<OSUINT32*>(arg);
        EXPECT_LT(std::strlen(finding->path), 511U);
        EXPECT_LT(std::strlen(finding->element), 1023U);
        EXPECT_LT(std::strlen(finding->allowed), 1023U);
        return 0;
    };
    for (std::uint32_t seed = 3; seed < 6; ++seed)
    {
        found = 0;
        EXPECT_EQ(rrcCheckCellGroupCfg(records::junk(seed).get(), tell, &found), found);
        EXPECT_GT(found, 10U);
    }
    for (const int octet : {0xFF, 0x00, 0x80, 0x01})
    {
        found = 0;
        std::memset(static_cast<void*>(record.get()), octet, sizeof *record);
        EXPECT_EQ(rrcCheckCellGroupCfg(record.get(), tell, &found), found);
        EXPECT_EQ(found == 0, octet == 0) << octet;
    }
}

TEST(sinks, endIt)
{
    const auto record = records::junk(7);
    unsigned calls = 0;
    const auto end = [](void* arg, const RrcRecordFinding*)
    {
        return ++*static_cast<unsigned*>(arg) == 3 ? 1 : 0;
    };
    EXPECT_EQ(rrcCheckCellGroupCfg(record.get(), end, &calls), 3U);
    EXPECT_EQ(calls, 3U);
    EXPECT_EQ(rrcCheckCellGroupCfg(nullptr, end, &calls), 0U);
}

// What a rule of all fields of a kind says of a slip, and that it is silent of its neighbour.
struct Case
{
    const char* id;
    void (*slip)(RrcCellGroupCfg_t& record);
    const char* line;
    const char* allowed;
    const char* advice;
    const char* element;
    void (*neighbour)(RrcCellGroupCfg_t& record);
};

RrcDrxCfg_t& drx(RrcCellGroupCfg_t& record)
{
    record.macCellGrpCfg.bitMask = RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE;
    RrcDrxCfg_t& drx = record.macCellGrpCfg.drxCfg;
    rrcInit(&drx);
    drx.bitMask = RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE;
    drx.drxLongCycleStartOffset.period = 5;
    return drx;
}

template <UINT8 value>
void inactivity(RrcCellGroupCfg_t& record)
{
    drx(record).drxInactivityTimer = value;
}

template <UINT8 symbols>
void roundTrip(RrcCellGroupCfg_t& record)
{
    drx(record).drxHarqRttTimerDl = symbols;
}

template <UINT8 bits>
void drxBits(RrcCellGroupCfg_t& record)
{
    drx(record).bitMask = bits;
}

template <BOOL skip>
void skipping(RrcCellGroupCfg_t& record)
{
    record.macCellGrpCfg.skipUpTxDynamic = skip;
}

template <UINT8 count>
void schedulingRequests(RrcCellGroupCfg_t& record)
{
    record.macCellGrpCfg.bitMask = RRC_MAC_CELL_GRP_CFG_SR_PRESENCE;
    RrcSRCfg_t& requests = record.macCellGrpCfg.srCfg;
    rrcInit(&requests);
    requests.numSrAddMod = count;
    for (unsigned i = 0; i < std::size(requests.srASddMod); ++i)
    {
        rrcInit(&requests.srASddMod[i]);
        requests.srASddMod[i].srId = static_cast<UINT8>(i);
    }
}

NrSearchSpace_t& searchSpace(RrcCellGroupCfg_t& record)
{
    PdcchCfgCommon_t& pdcch = record.spCellCfg.recfgWithSync.spCellConfigCommon.dlCfgComm.bwpDlCommon.pdcchCfgCommon;
    pdcch.numCommonSearchSpaces = 1;
    NrSearchSpace_t& space = pdcch.commonSearchSpace[0];
    rrcInit(&space);
    return space;
}

template <UINT16 symbols>
void monitoringSymbols(RrcCellGroupCfg_t& record)
{
    NrSearchSpace_t& space = searchSpace(record);
    space.bitmask = NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE;
    space.monitoringSymbolsWithinSlot = symbols;
}

template <UINT8 period>
void monitoringSlots(RrcCellGroupCfg_t& record)
{
    NrSearchSpace_t& space = searchSpace(record);
    space.bitmask = NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE;
    space.monitoringSlotPeriodicity = period;
}

template <UINT8 formats>
void commonFormats(RrcCellGroupCfg_t& record)
{
    NrSearchSpace_t& space = searchSpace(record);
    space.bitmask = NR_SEARCH_SPACE_TYPE_PRESENCE;
    space.searchSpaceType = 1;
    rrcInit(&space.common);
    space.common.bitmask = formats;
}

template <UINT16 count>
void csiRsOfSet(RrcCellGroupCfg_t& record)
{
    record.spCellCfg.spCellDedicated.csiMeasCfg.NzpCsiRsResourceSetAddMod[0].numNzpCsiRsRes = count;
}

template <UINT8 first, UINT8 second, UINT8 released>
void bearers(RrcCellGroupCfg_t& record)
{
    record.rlcBearerAddModNum = 2;
    rrcInit(&record.rlcBearerCfg[0]);
    rrcInit(&record.rlcBearerCfg[1]);
    record.rlcBearerCfg[0].lchId = first;
    record.rlcBearerCfg[1].lchId = second;
    record.rlcBearerReleaseNum = released != 0 ? 1 : 0;
    record.lchIdRelease[0] = released;
}

constexpr const char* monitored = "CellGroupConfig.spCellConfig.reconfigurationWithSync.spCellConfigCommon."
                                  "downlinkConfigCommon.initialDownlinkBWP.pdcch-ConfigCommon.setup."
                                  "commonSearchSpaceList[0].";
constexpr UINT8 dummy1 = NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE;

// Texts from TS 38.331 and the headers.
const Case cases[] = {
    {"record-range", inactivity<40>,
     "error: macCellGrpCfg.drxCfg.drxInactivityTimer: 40 is refused: not in 0 ms0 .. 22 ms2560 (record-range)",
     "0 ms0 .. 22 ms2560", "store 11 ms40, whose name has the number",
     "CellGroupConfig.mac-CellGroupConfig.drx-Config.setup.drx-InactivityTimer", inactivity<22>},
    {"record-range", roundTrip<57>,
     "error: macCellGrpCfg.drxCfg.drxHarqRttTimerDl: 57 is refused: not in 0..56 (record-range)", "0..56",
     "store 56, the nearest that is allowed",
     "CellGroupConfig.mac-CellGroupConfig.drx-Config.setup.drx-HARQ-RTT-TimerDL", roundTrip<56>},
    {"record-spare", inactivity<23>,
     "warning: macCellGrpCfg.drxCfg.drxInactivityTimer: 23 spare9 is sent, a spare value that means nothing "
     "(record-spare)",
     "0 ms0 .. 22 ms2560", "store 22 ms2560 or less",
     "CellGroupConfig.mac-CellGroupConfig.drx-Config.setup.drx-InactivityTimer", inactivity<22>},
    {"record-dropped-bits", monitoringSymbols<0x4001>,
     "warning: spCellCfg.recfgWithSync.spCellConfigCommon.dlCfgComm.bwpDlCommon.pdcchCfgCommon.commonSearchSpace[0]."
     "monitoringSymbolsWithinSlot: 0x4001 is sent as 0x1: the low 14 bits of it (record-dropped-bits)",
     "0x0..0x3FFF", "store the first bit of the string in bit 13", "monitoringSymbolsWithinSlot",
     monitoringSymbols<0x2001>},
    {"record-boolean", skipping<2>, "notice: macCellGrpCfg.skipUpTxDynamic: 2 is sent as true (record-boolean)", "0..1",
     "store 1 for true, 0 for false", "CellGroupConfig.mac-CellGroupConfig.skipUplinkTxDynamic", skipping<1>},
    {"record-no-alternative", monitoringSlots<16>,
     "error: spCellCfg.recfgWithSync.spCellConfigCommon.dlCfgComm.bwpDlCommon.pdcchCfgCommon.commonSearchSpace[0]."
     "monitoringSlotPeriodicity: 16 is refused: no alternative's number, not in 1 sl1 .. 15 sl2560 "
     "(record-no-alternative)",
     "1 sl1 .. 15 sl2560", "store the number of an alternative, or clear NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE",
     "monitoringSlotPeriodicityAndOffset", monitoringSlots<15>},
    {"record-unknown-bit", drxBits<0x25>,
     "warning: macCellGrpCfg.drxCfg.bitMask: bits 2, 5 of 0x25 switch nothing on: no field goes by them "
     "(record-unknown-bit)",
     "bits 0..1", "clear bits 2, 5; use the names of the header", "", drxBits<0x01>},
    {"record-not-sent", commonFormats<dummy1>,
     "warning: spCellCfg.recfgWithSync.spCellConfigCommon.dlCfgComm.bwpDlCommon.pdcchCfgCommon.commonSearchSpace[0]."
     "common.bitmask: NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE has no effect without "
     "NR_SEARCH_SPACE_DCI_FORMAT2_3 (record-not-sent)",
     "", "set NR_SEARCH_SPACE_DCI_FORMAT2_3 too, or clear the bit", "",
     commonFormats<dummy1 | NR_SEARCH_SPACE_DCI_FORMAT2_3>},
    {"record-count", schedulingRequests<9>,
     "error: macCellGrpCfg.srCfg.numSrAddMod: 9 is refused: not in 0..8 (record-count)", "0..8",
     "give at most 8 entries",
     "CellGroupConfig.mac-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList",
     schedulingRequests<8>},
    {"record-empty-list", csiRsOfSet<0>,
     "error: spCellCfg.spCellDedicated.csiMeasCfg.NzpCsiRsResourceSetAddMod[0].numNzpCsiRsRes: 0 is refused: the list "
     "has at least 1 entry (record-empty-list)",
     "1..64", "give it an entry",
     "CellGroupConfig.spCellConfig.spCellConfigDedicated.csi-MeasConfig.setup.nzp-CSI-RS-ResourceSetToAddModList[0]."
     "nzp-CSI-RS-Resources",
     csiRsOfSet<1>},
    {"record-same-identity", bearers<4, 4, 0>,
     "notice: rlcBearerCfg[1].lchId: 4 is the identity of rlcBearerCfg[0], too (record-same-identity)", "",
     "give each entry an identity of its own", "CellGroupConfig.rlc-BearerToAddModList[1].logicalChannelIdentity",
     bearers<4, 5, 0>},
    {"record-added-and-released", bearers<4, 5, 5>,
     "notice: lchIdRelease[0]: 5 is released, and rlcBearerCfg adds it again (record-added-and-released)", "",
     "keep this where it is to be made anew, else remove it from one of the two lists",
     "CellGroupConfig.rlc-BearerToReleaseList[0]", bearers<4, 5, 6>},
};

struct Told
{
    std::string line;
    std::string allowed;
    std::string advice;
    std::string element;
};

// The findings of rules that hold everywhere.
std::vector<Told> told(void (*fill)(RrcCellGroupCfg_t&))
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);
    fill(*record);
    std::vector<Told> all;
    const auto sink = [](void* arg, const RrcRecordFinding* finding)
    {
        if (finding->rule->region == nullptr)
        {
            char line[2048];
            (void)rrcRecordFindingFormat(finding, line, sizeof line);
            static_cast<std::vector<Told>*>(arg)->push_back(
                {line, finding->allowed, finding->advice, finding->element});
        }
        return 0;
    };
    (void)rrcCheckCellGroupCfg(record.get(), sink, &all);
    return all;
}

bool isRefused(void (*fill)(RrcCellGroupCfg_t&))
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);
    fill(*record);
    return records::composed(record.get()).compare(0, 15, "CellGroupConfig") == 0;
}

TEST(generalRules, sayWhatIsWrong)
{
    for (const Case& one : cases)
    {
        const std::vector<Told> found = told(one.slip);
        ASSERT_EQ(found.size(), 1U) << one.line;
        EXPECT_EQ(found[0].line, one.line);
        EXPECT_EQ(found[0].allowed, one.allowed);
        EXPECT_EQ(found[0].advice, one.advice);
        const bool isWhole = one.element[0] == '\0' || std::strncmp(one.element, "CellGroupConfig", 15) == 0;
        EXPECT_EQ(found[0].element, isWhole ? one.element : monitored + std::string(one.element));
        EXPECT_EQ(isRefused(one.slip), std::strncmp(one.line, "error", 5) == 0) << one.line;
        EXPECT_EQ(told(one.neighbour).size(), 0U) << one.line;
        EXPECT_FALSE(isRefused(one.neighbour)) << one.line;
    }
}

TEST(findings, areToldInC)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    rrcInit(record.get());
    EXPECT_EQ(firstSeverity(record.get()), 0);
    record->cellGroupId = 4;
    EXPECT_EQ(firstSeverity(record.get()), RRC_RECORD_ERROR);
}

// As much as there is room for, and how long it is.
TEST(findings, areFormattedIntoAnyRoom)
{
    const RrcRecordFinding finding = {
        rrcRecordRuleById("record-range"), RRC_RECORD_ERROR, "cellGroupId", "", "4", "", "is refused: not in 0..3", ""};
    const std::string line = "error: cellGroupId: 4 is refused: not in 0..3 (record-range)";
    char text[100];
    EXPECT_EQ(rrcRecordFindingFormat(&finding, text, sizeof text), line.size());
    EXPECT_EQ(text, line);
    EXPECT_EQ(rrcRecordFindingFormat(&finding, text, 6), line.size());
    EXPECT_STREQ(text, "error");
    EXPECT_EQ(rrcRecordFindingFormat(&finding, nullptr, 0), line.size());
}

TEST(generalRules, standInTheDocument)
{
    std::ifstream file("docs/record.md");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    for (OSUINT32 i = 0; i < rrcRecordRuleCount; ++i)
    {
        const RrcRecordRule& rule = *rrcRecordRules[i];
        const std::string row = "| `" + std::string(rule.id) + "` | " + rule.field + " |\n";
        EXPECT_TRUE(rule.region != nullptr || text.find(row) != std::string::npos) << row;
    }
}

TEST(generalRules, haveACaseEach)
{
    for (OSUINT32 i = 0; i < rrcRecordRuleCount; ++i)
    {
        const RrcRecordRule& rule = *rrcRecordRules[i];
        const bool has = std::any_of(std::begin(cases), std::end(cases),
                                     [&rule](const Case& one) { return std::strcmp(one.id, rule.id) == 0; });
        EXPECT_EQ(has, rule.region == nullptr) << rule.id;
    }
}

} // namespace
