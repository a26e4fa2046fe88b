#include "projectFile.h"

#include "findingIds.h"
#include "nearest.h"
#include "session.h"

// Some of its assertions are wrong of malformed files, such as "[=]", and their conditions are looked at once more
// behind them: they would end the program or, with NDEBUG and clang, be taken for granted.
#pragma push_macro("NDEBUG")
#undef NDEBUG
#define TOML_ASSERT(condition) static_assert(true)
#include <toml++/toml.h>
#pragma pop_macro("NDEBUG")

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>

namespace tool
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* fileName = ".cellgroupcfg.toml";
constexpr std::size_t mostOctets = std::size_t{1} << 20;

// Behind a string that begins at `at`, or where it is broken off: TOML's four kinds.
std::size_t behindString(std::string_view text, std::size_t at)
{
    const char quote = text[at];
    const std::string three(3, quote);
    const bool isLong = text.substr(at, 3) == three;
    const bool hasEscapes = quote == '"';
    for (at += isLong ? 3 : 1; at < text.size(); ++at)
    {
        if (hasEscapes && text[at] == '\\')
        {
            ++at;
        }
        else if (!isLong && (text[at] == quote || text[at] == '\n'))
        {
            return at + 1;
        }
        else if (isLong && text.substr(at, 3) == three)
        {
            // The last quotes of five end it.
            const std::size_t end = text.find_first_not_of(quote, at);
            return std::min({end, at + 5, text.size()});
        }
    }
    return text.size();
}

// Where TOML has nothing but ASCII, outside of strings and comments: the first other octet.
std::optional<std::size_t> findForeign(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::size_t at = text.starts_with(mark) ? mark.size() : 0;
    char before = '\n'; // but for blanks
    while (at < text.size())
    {
        const char c = text[at];
        const bool isString =
            (c == '"' || c == '\'') && std::string_view("\n=[,{.").find(before) != std::string_view::npos;
        if (static_cast<unsigned char>(c) > 0x7F)
        {
            return at;
        }
        before = c == ' ' || c == '\t' ? before : c;
        at = isString ? behindString(text, at) : c == '#' ? text.find('\n', at) : at + 1;
    }
    return std::nullopt;
}

class Reader
{
public:
    explicit Reader(const std::string& name) : name_(name) {}

    ProjectFile read(std::string_view text)
    {
        // The parser calls some of these characters unreachable.
        if (const auto foreign = findForeign(text))
        {
            const std::string_view before = text.substr(0, *foreign);
            const auto isBegin = [](char c)
            {
                return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
            };
            const std::size_t begin = before.rfind('\n') + 1;
            fail(std::to_string(std::count(before.begin(), before.end(), '\n') + 1) + ":" +
                     std::to_string(
                         std::count_if(before.begin() + static_cast<std::ptrdiff_t>(begin), before.end(), isBegin) + 1),
                 "a character that TOML has in strings and comments only");
        }
        try
        {
            const toml::table all = toml::parse(text, name_);
            for (const auto& [key, node] : all)
            {
                if (key == "context" && node.is_table())
                {
                    readContext(*node.as_table());
                }
                else if (key == "silence" && node.is_array())
                {
                    readSilences(*node.as_array());
                }
                else
                {
                    const bool isKnown = key == "context" || key == "silence";
                    fail(key.source(),
                         isKnown ? "it is written " + std::string(key == "context" ? "[context]" : "[[silence]]")
                                 : unknown(key, {"context", "silence"}));
                }
            }
        }
        catch (const toml::parse_error& error)
        {
            fail(error.source(), onOneLine(std::string(error.description())));
        }
        return std::move(file_);
    }

private:
    static std::string position(const toml::source_region& region)
    {
        return std::to_string(region.begin.line) + ":" + std::to_string(region.begin.column);
    }

    std::string place(const toml::source_region& region) const
    {
        return name_ + ":" + position(region);
    }

    [[noreturn]] void fail(const std::string& position, const std::string& what) const
    {
        throw Failure(Exit::Usage, name_ + ":" + position + ": " + what);
    }

    [[noreturn]] void fail(const toml::source_region& region, const std::string& what) const
    {
        fail(position(region), what);
    }

    static std::string unknown(const toml::key& key, const std::vector<std::string_view>& names)
    {
        const auto close = text::nearest(key.str(), names);
        return "there is no '" + std::string(key.str()) + "'" +
               (close ? "; did you mean " + std::string(*close) + "?" : "");
    }

    void readContext(const toml::table& context)
    {
        for (const auto& [key, node] : context)
        {
            const RrcSetting* const found = rrcSettingByName(std::string(key.str()).c_str());
            if (found == nullptr)
            {
                std::vector<std::string_view> names;
                for (OSUINT32 i = 0; i < rrcSettingCount(); ++i)
                {
                    names.emplace_back(rrcSettingAt(i)->name);
                }
                fail(key.source(), unknown(key, names));
            }
            readSetting(*found, node);
        }
    }

    void readSetting(const RrcSetting& option, const toml::node& node)
    {
        const std::string what = option.name;
        if (*option.argument == '\0')
        {
            if (!node.is_boolean())
            {
                fail(node.source(), what + " is true or false");
            }
            if (*node.value<bool>())
            {
                add(option, node, "");
            }
        }
        else if (const toml::array* const values = node.as_array(); values != nullptr && option.isRepeatable != 0)
        {
            for (const toml::node& value : *values)
            {
                add(option, value, word(option, value));
            }
        }
        else
        {
            add(option, node, word(option, node));
        }
    }

    std::string word(const RrcSetting& option, const toml::node& node) const
    {
        if (const auto number = node.value_exact<std::int64_t>())
        {
            return std::to_string(*number);
        }
        const auto value = node.value_exact<std::string>();
        if (!value)
        {
            fail(node.source(),
                 std::string(option.name) +
                     (option.isRepeatable != 0 ? " is a string or an array of them" : " is a string or a number"));
        }
        const bool isFile = std::string_view(option.argument) == "FILE";
        return isFile ? (fs::path(name_).parent_path() / *value).string() : *value;
    }

    void add(const RrcSetting& option, const toml::node& node, const std::string& value)
    {
        file_.context.push_back({&option, value, place(node.source()) + ": " + option.name});
    }

    void readSilences(const toml::array& tables)
    {
        for (const toml::node& node : tables)
        {
            const toml::table* const table = node.as_table();
            if (table == nullptr)
            {
                fail(node.source(), "it is written [[silence]]");
            }
            Silence silence;
            silence.by = name_ + ":" + std::to_string(node.source().begin.line);
            for (const auto& [key, value] : *table)
            {
                std::string* const to = key == "rule"     ? &silence.rule
                                        : key == "path"   ? &silence.path
                                        : key == "reason" ? &silence.reason
                                                          : nullptr;
                if (to == nullptr)
                {
                    fail(key.source(), unknown(key, {"rule", "path", "reason"}));
                }
                const auto text = value.value_exact<std::string>();
                if (!text)
                {
                    fail(value.source(), std::string(key.str()) + " is a string");
                }
                *to = *text;
            }
            if (silence.rule.empty())
            {
                fail(node.source(), "a silence names its rule");
            }
            if (const std::string wrong = wrongId(silence.rule); !wrong.empty())
            {
                fail(table->get("rule")->source(), wrong);
            }
            if (silence.reason.find_first_not_of(" \t\r\n") == std::string::npos)
            {
                fail(node.source(), "a silence has a reason");
            }
            if (!silence.path.empty() && !silence.path.starts_with("CellGroupConfig") &&
                !silence.path.starts_with("**"))
            {
                fail(table->get("path")->source(), "a path begins with CellGroupConfig or **");
            }
            silence.reason = onOneLine(std::move(silence.reason));
            file_.silences.push_back(std::move(silence));
        }
    }

    const std::string& name_;
    ProjectFile file_;
};

} // namespace

std::string projectFileName()
{
    std::error_code error;
    const fs::path here = fs::current_path(error);
    const char* const variable = std::getenv("HOME");
    const fs::path home = variable == nullptr ? "" : variable;
    const auto isTop = [&](const fs::path& folder)
    {
        return fs::equivalent(folder, home, error) || fs::exists(folder / ".git", error);
    };
    std::vector<fs::path> folders;
    for (fs::path folder = here; !folder.empty(); folder = folder.parent_path())
    {
        folders.push_back(folder);
        if (isTop(folder))
        {
            break;
        }
        if (folder == folder.parent_path())
        {
            folders.resize(1); // neither a repository nor a home is around it
            break;
        }
    }
    for (const fs::path& folder : folders)
    {
        if (fs::is_regular_file(folder / fileName, error))
        {
            return (folder == here ? fs::path(fileName) : folder / fileName).string();
        }
    }
    return "";
}

ProjectFile readProjectFile(const std::string& name)
{
    return projectFileOf(name, Session::file(name, mostOctets).raw);
}

ProjectFile projectFileOf(const std::string& name, std::string_view text)
{
    ProjectFile file = Reader(name).read(text);
    file.name = name;
    return file;
}

} // namespace tool
