// Reads any text as a project file: refused with one line that names a place in it, or settings that there are and
// silences with a rule and a reason.
#include "findingIds.h"
#include "projectFile.h"

#include <cstdio>

#include "require.h"

using fuzz::require;

namespace
{

const std::string name = "p.toml";

// "p.toml:<line>:<column>: <reason>"
bool namesPlace(const std::string& words, std::string_view text)
{
    unsigned line = 0;
    unsigned column = 0;
    int read = 0;
    return std::sscanf(words.c_str(), "p.toml:%u:%u: %n", &line, &column, &read) == 2 && read != 0 &&
           static_cast<std::size_t>(read) < words.size() && line >= 1 && line <= text.size() + 1 && column >= 1 &&
           column <= text.size() + 1;
}

bool isOneLine(const std::string& words)
{
    return words.find('\n') == std::string::npos && words.find('\r') == std::string::npos;
}

void check(const tool::ProjectFile& file)
{
    for (const tool::Setting& one : file.context)
    {
        require(one.setting != nullptr && rrcSettingByName(one.setting->name) == one.setting, "no such setting");
        require(one.origin.starts_with(name + ":"), "a setting of no place");
    }
    for (const tool::Silence& silence : file.silences)
    {
        require(tool::wrongId(silence.rule).empty() && !silence.rule.empty(), "a silence of no rule");
        require(!silence.reason.empty() && isOneLine(silence.reason), "a silence without a reason on one line");
        require(silence.by.starts_with(name + ":"), "a silence of no place");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try
    {
        check(tool::projectFileOf(name, text));
    }
    catch (const tool::Failure& failure)
    {
        const std::string words = failure.what();
        require(namesPlace(words, text) && isOneLine(words) && failure.status() == tool::Exit::Usage, words.c_str());
    }
    return 0;
}
