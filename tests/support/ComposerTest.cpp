#include "ComposerTest.h"

#include <cstdio>
#include <cstdlib>

namespace
{

// Standard output is captured while a test runs: GoogleTest's own printer would add its failures to what is compared.
class ReportOnStderr : public testing::EmptyTestEventListener
{
    // GoogleTest holds its lock while it tells of a failure, so it cannot be asked for the test then.
    void OnTestStart(const testing::TestInfo& info) override
    {
        info_ = &info;
    }

    void OnTestPartResult(const testing::TestPartResult& result) override
    {
        if (result.failed())
        {
            std::fprintf(stderr, "%s:%d: %s.%s\n%s\n", result.file_name() != nullptr ? result.file_name() : "",
                         result.line_number(), info_ != nullptr ? info_->test_suite_name() : "",
                         info_ != nullptr ? info_->name() : "", result.message());
        }
    }

    void OnTestEnd(const testing::TestInfo&) override
    {
        info_ = nullptr;
    }

    void OnTestProgramEnd(const testing::UnitTest& tests) override
    {
        std::fprintf(stderr, "%d tests passed, %d failed\n", tests.successful_test_count(), tests.failed_test_count());
    }

    const testing::TestInfo* info_ = nullptr;
};

[[maybe_unused]] const bool reporting = []
{
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    listeners.Append(new ReportOnStderr);
    return true;
}();

} // namespace

namespace test
{

std::string ComposerTest::printed()
{
    const std::string text = output_.take();
    const std::string red = "\033[1;31m";
    std::string result;
    size_t done = 0;
    for (size_t start = text.find(red); start != std::string::npos; start = text.find(red, start + 1))
    {
        const size_t dot = text.find_first_of(".\r\n", start);
        const size_t colon = dot == std::string::npos ? dot : text.find_first_not_of("0123456789", dot + 1);
        if (colon != std::string::npos && text[dot] == '.' && colon > dot + 1 && text[colon] == ':')
        {
            result += text.substr(done, dot - done) + ".N";
            done = colon;
        }
    }
    return result + text.substr(done);
}

// One line per message in the file that CELLGROUPCFG_ORACLE_FILE names; without it the test runs by hand and only
// encodes.
void ComposerTest::expectDecoded(const std::string& type, const std::string& octets, const std::string& json)
{
    const char* const name = std::getenv("CELLGROUPCFG_ORACLE_FILE");
    if (name == nullptr)
    {
        return;
    }
    std::FILE* const file = std::fopen(name, "a");
    ASSERT_NE(file, nullptr) << name;
    const testing::TestInfo* const info = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(file, "%s.%s\t%s\t%s\t%s\n", info->test_suite_name(), info->name(), type.c_str(), octets.c_str(),
                 json.c_str());
    std::fclose(file);
}

} // namespace test
