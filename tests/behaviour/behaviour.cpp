#include "behaviour.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace behaviour
{

std::string filled(std::string message, const std::string& element)
{
    return message.replace(message.find('@'), 1, element);
}

std::string pathTo(const std::string& message)
{
    struct Level
    {
        bool list;
        unsigned index;
        std::string member;
    };
    std::vector<Level> levels;
    const size_t end = message.find('@');
    for (size_t i = 0; i < end; ++i)
    {
        switch (message[i])
        {
        case '{':
        case '[':
            levels.push_back({message[i] == '[', 0, ""});
            break;
        case '}':
        case ']':
            levels.pop_back();
            break;
        case ',':
            ++levels.back().index;
            break;
        case '"':
        {
            const size_t begin = i + 1;
            i = message.find('"', begin);
            levels.back().member = message.substr(begin, i - begin);
            break;
        }
        default:
            break;
        }
    }
    std::string path = "CellGroupConfig";
    for (const Level& level : levels)
    {
        path += level.list ? "[" + std::to_string(level.index) + "]" : "." + level.member;
    }
    return path;
}

Row& Table::row(const std::string& id)
{
    const RrcRecordRule* const rule = rrcRecordRuleById(id.c_str());
    const auto isOfRule = [rule](const Row& row)
    {
        return &row.rule == rule;
    };
    if (rule == nullptr || std::any_of(rows_.begin(), rows_.end(), isOfRule))
    {
        throw std::runtime_error(id + (rule == nullptr ? " is no rule" : " has a row already"));
    }
    return rows_.emplace_back(Row{*rule});
}

std::vector<const RrcRecordRule*> rules()
{
    std::vector<const RrcRecordRule*> all;
    std::copy_if(rrcRecordRules, rrcRecordRules + rrcRecordRuleCount, std::back_inserter(all),
                 [](const RrcRecordRule* rule) { return rule->region != nullptr; });
    return all;
}

std::string markdown()
{
    std::string text = "| Record field | What goes out | What to do instead | Rule |\n|---|---|---|---|\n";
    const auto cell = [&text](const std::string& content)
    {
        text += "| " + content + " ";
    };
    std::string region;
    for (const RrcRecordRule* const rule : rules())
    {
        if (region != rule->region)
        {
            region = rule->region;
            text += "| **" + region + "** | | | |\n";
        }
        cell(rule->field);
        cell(rule->goesOut);
        cell(rule->instead);
        cell("`" + std::string(rule->id) + "`");
        text += "|\n";
    }
    return text;
}

const Table& table()
{
    static const Table all = []
    {
        Table made;
        cellGroupRows(made);
        servingCellRows(made);
        downlinkRows(made);
        uplinkRows(made);
        csiRows(made);
        return made;
    }();
    return all;
}

} // namespace behaviour
