// The rows of docs/behaviour.md, each composed through the entry, and the document's table against the rules.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string_view>
#include <vector>

#include "behaviour.h"
#include "gnbCommon/duCompose.h"
#include "places.h"
#include "rrcRecordType.h"
#include "support/ComposerTest.h"

extern "C"
{
INT32 __real_duComposeSCS_SpecificCarrier(OSCTXT*, SCS_SpecificCarrier*, SpecificCarrier_t*);
INT32 __real_duComposeBWP_DownlinkCommon(OSCTXT*, BWP_DownlinkCommon*, NrBwpDownLinkCommon_t*);
INT32 __real_duComposeBWP_UplinkCommon(OSCTXT*, BWP_UplinkCommon*, InitialUlBwp_t*);
INT32 __real_duComposeTDD_UL_DL_ConfigCommon(OSCTXT*, TDD_UL_DL_ConfigCommon*, TddUlDlCfgCom_t*);

INT32 __wrap_duComposeSCS_SpecificCarrier(OSCTXT* pAsnCxt, SCS_SpecificCarrier* pCarrier, SpecificCarrier_t* pRecord)
{
    (void)__real_duComposeSCS_SpecificCarrier(pAsnCxt, pCarrier, pRecord);
    return VOS_ERROR;
}

INT32 __wrap_duComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwp, NrBwpDownLinkCommon_t* pRecord)
{
    (void)__real_duComposeBWP_DownlinkCommon(pAsnCxt, pBwp, pRecord);
    return VOS_ERROR;
}

INT32 __wrap_duComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBwp, InitialUlBwp_t* pRecord)
{
    (void)__real_duComposeBWP_UplinkCommon(pAsnCxt, pBwp, pRecord);
    return VOS_ERROR;
}

INT32 __wrap_duComposeTDD_UL_DL_ConfigCommon(OSCTXT* pAsnCxt, TDD_UL_DL_ConfigCommon* pTdd, TddUlDlCfgCom_t* pRecord)
{
    (void)__real_duComposeTDD_UL_DL_ConfigCommon(pAsnCxt, pTdd, pRecord);
    return VOS_ERROR;
}
}

namespace
{

using behaviour::Row;

constexpr const char* documentName = "docs/behaviour.md";
constexpr const char* tableBegin = "<!-- The table: Records/Src/recordRows.h -->\n";
constexpr const char* tableEnd = "<!-- End of the table -->\n";

std::string contents(const std::filesystem::path& name)
{
    std::ifstream file(name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return file ? text.str() : "";
}

// C without its comments.
std::string code(std::string text)
{
    for (size_t begin = text.find("/*"); begin != std::string::npos; begin = text.find("/*", begin))
    {
        text.erase(begin, text.find("*/", begin) + 2 - begin);
    }
    return std::regex_replace(text, std::regex("//[^\n]*"), "");
}

struct Document
{
    std::string before;
    std::string table;
    std::string after;
};

// The document, parted at the two marks; all of it is `before` when they are not there.
Document document()
{
    const std::string text = contents(documentName);
    const size_t begin = text.find(tableBegin);
    const size_t end = text.find(tableEnd);
    if (begin == std::string::npos || end == std::string::npos || end < begin)
    {
        return {text, "", ""};
    }
    const size_t first = begin + std::strlen(tableBegin);
    return {text.substr(0, first), text.substr(first, end - first), text.substr(end)};
}

// The one record of all runs: what those before have left in it must not matter, nor what it held at first.
RrcCellGroupCfg_t& filledBy(const std::function<void(RrcCellGroupCfg_t&)>& fill)
{
    static const std::unique_ptr<RrcCellGroupCfg_t> record = []
    {
        auto junk = std::make_unique<RrcCellGroupCfg_t>();
        std::memset(junk.get(), 0xA5, sizeof *junk);
        return junk;
    }();
    fill(*record);
    return *record;
}

class rows : public test::ComposerTest, public testing::WithParamInterface<const Row*>
{
protected:
    void expect(const behaviour::Run& run)
    {
        constexpr UINT32 untouched = 0xA5A5A5A5;
        std::vector<UINT8> octets(8192);
        Mbuf_t message = {untouched, octets.data()};
        RrcCellGroupCfg_t& record = filledBy(run.fill);
        const INT32 result = rrcComposeCellGroupCfg(&record, &message);
        const std::string lines = printed();
        if (run.message.empty())
        {
            EXPECT_EQ(result, VOS_ERROR) << run.refusal;
            EXPECT_EQ(message.bufLen, untouched) << run.refusal;
            EXPECT_EQ(lines.substr(0, lines.find("\nCELL GROUP")),
                      run.notice + "rrcComposeCellGroupCfg Error\r\n" + run.refusal);
        }
        else
        {
            ASSERT_EQ(result, VOS_OK) << run.message << "\n" << lines.substr(0, lines.find("\nCELL GROUP"));
            EXPECT_EQ(lines, "");
            expectDecoded("CellGroupConfig", test::hexDigits(octets.data(), message.bufLen), run.message);
        }
        EXPECT_TRUE(!run.holds || run.holds(record)) << "the record afterwards";
    }
};

TEST_P(rows, hold)
{
    const Row& row = *GetParam();
    SCOPED_TRACE(std::string(row.rule.id) + ": " + row.rule.field);
    EXPECT_EQ(row.runs.empty(), !row.untested.empty());
    for (const behaviour::Run& run : row.runs)
    {
        expect(run);
    }
}

// The greatest weight of the findings by each rule.
std::map<const RrcRecordRule*, int> findings(const RrcCellGroupCfg_t& record)
{
    std::map<const RrcRecordRule*, int> found;
    const auto sink = [](void* arg, const RrcRecordFinding* finding)
    {
        int& greatest = (*static_cast<std::map<const RrcRecordRule*, int>*>(arg))[finding->rule];
        greatest = std::max<int>(greatest, finding->severity);
        EXPECT_LE(finding->severity, finding->rule->severity) << finding->rule->id;
        return 0;
    };
    rrcCheckCellGroupCfg(&record, sink, &found);
    return found;
}

// A rule that reports has a run that it finds and one, or what is around a run, that it is silent of.
TEST_P(rows, areFound)
{
    const Row& row = *GetParam();
    int reached = 0;
    bool isEverSilent = row.rule.severity == 0;
    for (size_t i = 0; i < row.runs.size(); ++i)
    {
        const behaviour::Run& run = row.runs[i];
        SCOPED_TRACE(std::string(row.rule.id) + ", run " + std::to_string(i + 1));
        const std::map<const RrcRecordRule*, int> found = findings(filledBy(run.fill));
        const auto own = found.find(&row.rule);
        const int weight = own == found.end() ? 0 : own->second;
        EXPECT_EQ(weight == 0, row.rule.severity == 0 || run.isMeant);
        if (weight != 0)
        {
            EXPECT_EQ(weight == RRC_RECORD_ERROR, run.message.empty());
        }
        // No check knows how long a message is.
        const bool isTooLong = run.refusal.find("does not fit into") != std::string::npos;
        EXPECT_EQ(
            std::any_of(found.begin(), found.end(), [](const auto& each) { return each.second == RRC_RECORD_ERROR; }),
            run.message.empty() && !isTooLong);
        reached = std::max(reached, weight);
        isEverSilent = isEverSilent || run.isMeant || !findings(filledBy(run.empty)).contains(&row.rule);
    }
    EXPECT_TRUE(isEverSilent) << row.rule.id;
    EXPECT_EQ(reached, row.rule.severity) << row.rule.id;
}

TEST(findings, AreNoneOfWhatHoldsNothing)
{
    const auto expectNone = [](const auto& place)
    {
        for (const auto& [rule, weight] : findings(filledBy([&](RrcCellGroupCfg_t& record) { place.on(record); })))
        {
            ADD_FAILURE() << rule->id << " of " << place.message;
        }
    };
    expectNone(behaviour::cellGroup);
    expectNone(behaviour::spCell);
    expectNone(behaviour::sync);
    expectNone(behaviour::common);
    expectNone(behaviour::dedicated);
    expectNone(behaviour::downlink);
    expectNone(behaviour::furtherDownlink);
    expectNone(behaviour::uplink);
    expectNone(behaviour::initialUplink);
    expectNone(behaviour::pusch);
    expectNone(behaviour::slotFormats);
    expectNone(behaviour::csiMeas);
}

std::vector<const Row*> each()
{
    std::vector<const Row*> all;
    for (const Row& row : behaviour::table().rows())
    {
        all.push_back(&row);
    }
    return all;
}

std::string rowName(const testing::TestParamInfo<const Row*>& info)
{
    std::string name = info.param->rule.id;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(behaviour, rows, testing::ValuesIn(each()), rowName);

TEST(rules, HaveRows)
{
    std::vector<const RrcRecordRule*> proved;
    for (const Row& row : behaviour::table().rows())
    {
        proved.push_back(&row.rule);
    }
    const std::vector<const RrcRecordRule*> all = behaviour::rules();
    EXPECT_EQ(proved.size(), all.size());
    for (const RrcRecordRule* const rule : all)
    {
        EXPECT_EQ(std::count(proved.begin(), proved.end(), rule), 1) << rule->id;
    }
}

// A structure, a field of one as "RrcRlcCfg_t.bitMask", or a bit.
bool isDescribed(const std::string& place)
{
    const size_t dot = place.rfind('.');
    for (UINT32 i = 0; i < rrcRecordTypeCount; ++i)
    {
        const RrcRecordType& type = *rrcRecordTypes[i];
        const bool isOwner = dot != std::string::npos && place.compare(0, dot, type.name) == 0;
        if (place == type.name ||
            std::any_of(type.bits, type.bits + type.bitCount, [&](const auto& bit) { return place == bit.name; }) ||
            (isOwner && std::any_of(type.fields, type.fields + type.fieldCount,
                                    [&](const auto& field) { return place.substr(dot + 1) == field.name; })))
        {
            return true;
        }
    }
    return false;
}

TEST(rules, NamePlacesThatExist)
{
    for (const RrcRecordRule* const rule : behaviour::rules())
    {
        // Of all rows only this one's constant belongs to no record.
        const bool namesNone = std::string_view(rule->field).starts_with("no field: ") ||
                               std::string_view(rule->id) == "record-cell-group-config-size";
        EXPECT_EQ(rule->places == nullptr, namesNone) << rule->id;
        std::set<std::string> places;
        for (const char* const* place = rule->places; place != nullptr && *place != nullptr; ++place)
        {
            EXPECT_TRUE(isDescribed(*place)) << *place << " of " << rule->id;
            EXPECT_TRUE(places.insert(*place).second) << *place << " twice in " << rule->id;
        }
    }
    EXPECT_FALSE(isDescribed("RrcRlcCfg_t.bitmask"));
    EXPECT_FALSE(isDescribed("bitMask"));
}

TEST(document, HasTheRules)
{
    std::istringstream is(document().table);
    std::istringstream should(behaviour::markdown());
    std::string line;
    std::string meant;
    while (std::getline(should, meant))
    {
        std::getline(is, line);
        ASSERT_EQ(line, meant) << "behaviour.table --update brings " << documentName << " up to date";
    }
    EXPECT_FALSE(std::getline(is, line)) << line;
    EXPECT_EQ(document().table, behaviour::markdown());
}

TEST(document, NamesFieldsThatExist)
{
    std::string headers;
    for (const auto& entry : std::filesystem::recursive_directory_iterator("Common/Inc"))
    {
        headers += entry.is_regular_file() ? code(contents(entry.path())) : "";
    }
    const std::regex word("[A-Za-z_][A-Za-z0-9_]*");
    const std::set<std::string> known(std::sregex_token_iterator(headers.begin(), headers.end(), word), {});
    ASSERT_GT(known.size(), 1000U);

    // Between backquotes: names, "NAME_..." for all that begin so.
    const std::regex quoted("`([^`]*)`");
    const std::regex name("([A-Za-z_][A-Za-z0-9_]*)(\\.\\.\\.)?");
    for (const RrcRecordRule* const rule : behaviour::rules())
    {
        const std::string field = rule->field;
        EXPECT_NE(field.find('`'), field.find("no field: ")) << field; // one of them is there
        const std::string cells = rule->region + field + rule->goesOut + rule->instead;
        EXPECT_EQ(std::count(cells.begin(), cells.end(), '`') % 2, 0) << cells;
        EXPECT_EQ(cells.find('|'), std::string::npos) << cells;
        for (std::sregex_iterator quote(cells.begin(), cells.end(), quoted), none; quote != none; ++quote)
        {
            const std::string text = (*quote)[1];
            for (std::sregex_iterator found(text.begin(), text.end(), name); found != none; ++found)
            {
                const std::string wanted = (*found)[1];
                const auto at = known.lower_bound(wanted);
                EXPECT_TRUE(at != known.end() &&
                            ((*found)[2].matched ? at->compare(0, wanted.size(), wanted) == 0 : *at == wanted))
                    << "'" << wanted << "' is not in Common/Inc: " << field;
            }
        }
    }
}

// Writes the table into the document.
int update()
{
    const Document now = document();
    if (now.after.empty())
    {
        std::fprintf(stderr, "%s is not here or does not have both marks\n", documentName);
        return 1;
    }
    std::ofstream(documentName, std::ios::binary) << now.before << behaviour::markdown() << now.after;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string option = argc == 2 ? argv[1] : "";
    if (option == "--table")
    {
        std::cout << behaviour::markdown();
        return 0;
    }
    if (option == "--update")
    {
        return update();
    }
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
