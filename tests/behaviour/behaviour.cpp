#include "behaviour.h"

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

std::string Table::markdown() const
{
    std::string text = "| Record field | What goes out | What to do instead |\n|---|---|---|\n";
    const std::string* region = nullptr;
    for (const Row& row : rows_)
    {
        if (region == nullptr || *region != row.region)
        {
            region = &row.region;
            text += "| **" + row.region + "** | | |\n";
        }
        text += "| " + row.field + " | " + row.goesOut + " | " + row.instead + " |\n";
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
