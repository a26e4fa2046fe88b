#include "ComposerTest.h"

#include <cstdio>
#include <cstdlib>

namespace test
{

// One line per message in the file that CELLGROUPCFG_ORACLE_FILE names; without it the test runs by hand and only encodes.
void ComposerTest::recordForOracle(const std::string& type, const std::string& hex, const std::string& json)
{
    const char* const name = std::getenv("CELLGROUPCFG_ORACLE_FILE");
    if (name == nullptr)
    {
        return;
    }
    std::FILE* const file = std::fopen(name, "a");
    ASSERT_NE(file, nullptr) << name;
    const testing::TestInfo* const info = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(file, "%s.%s\t%s\t%s\t%s\n", info->test_suite_name(), info->name(), type.c_str(), hex.c_str(), json.c_str());
    std::fclose(file);
}

} // namespace test
