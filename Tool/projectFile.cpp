#include "projectFile.h"

#include "findingIds.h"
#include "nearest.h"
#include "session.h"

#include <toml++/toml.h>

#include <cstdlib>
#include <filesystem>

namespace tool
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* fileName = ".cellgroupcfg.toml";
constexpr std::size_t mostOctets = std::size_t{1} << 20;

class Reader
{
public:
    explicit Reader(const std::string& name) : name_(name) {}

    ProjectFile read()
    {
        try
        {
            const toml::table all = toml::parse(Session::file(name_, mostOctets).raw, name_);
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
            fail(error.source(), std::string(error.description()));
        }
        return std::move(file_);
    }

private:
    std::string place(const toml::source_region& region) const
    {
        return name_ + ":" + std::to_string(region.begin.line) + ":" + std::to_string(region.begin.column);
    }

    [[noreturn]] void fail(const toml::source_region& region, const std::string& what) const
    {
        throw Failure(Exit::Usage, place(region) + ": " + what);
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
    ProjectFile file = Reader(name).read();
    file.name = name;
    return file;
}

} // namespace tool
