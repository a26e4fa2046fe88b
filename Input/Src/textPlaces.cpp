#include "textPlaces.h"

#include <algorithm>

namespace tool
{
namespace
{

constexpr std::string_view sign = "cellgroupcfg:";

// What is around a path: cut at its last step. Empty at the root.
std::string_view around(std::string_view path)
{
    const std::size_t end = path.find_last_of(".[");
    return path.substr(0, end == std::string_view::npos ? 0 : end);
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const std::size_t end = text.find_last_not_of(" \t\r\n");
    return end == std::string_view::npos ? text.substr(begin, 0) : text.substr(begin, end + 1 - begin);
}

// Walks through a text and counts lines and characters.
class Cursor
{
public:
    explicit Cursor(std::string_view text) : text_(text) {}

    bool ended() const
    {
        return at_ >= text_.size();
    }
    std::string_view rest() const
    {
        return text_.substr(at_);
    }
    const Place& place() const
    {
        return place_;
    }

    std::string_view take(std::size_t count)
    {
        const std::string_view taken = rest().substr(0, count);
        for (const char c : taken)
        {
            const bool isContinuation = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
            if (c == '\n')
            {
                ++place_.line;
                place_.column = 1;
            }
            else if (!isContinuation)
            {
                ++place_.column;
            }
        }
        at_ += taken.size();
        return taken;
    }

    // What is left before one of these characters.
    std::string_view takeUntil(const char* characters)
    {
        return take(std::min(rest().find_first_of(characters), rest().size()));
    }

private:
    std::string_view text_;
    std::size_t at_ = 0;
    Place place_ = {1, 1};
};

// The length of what a text begins with: a string with its quotes, a comment with its signs.
std::size_t stringLength(std::string_view text)
{
    std::size_t i = 1;
    while (i < text.size() && text[i] != '"')
    {
        i += text[i] == '\\' ? 2 : 1;
    }
    return std::min(i + 1, text.size());
}

std::size_t commentLength(std::string_view text)
{
    const bool isLine = text.starts_with("//");
    const std::size_t end = isLine ? text.find('\n') : text.find("*/", 2);
    return end == std::string_view::npos ? text.size() : end + (isLine ? 0 : 2);
}

struct Frame
{
    bool isArray;
    std::size_t path; // the length of its path
    std::size_t count = 0;
};

} // namespace

TextPlaces::TextPlaces(const std::string& root, const Input& input, const std::set<std::string>& paths)
{
    for (const std::string& path : paths)
    {
        for (std::string_view at = path; !at.empty(); at = around(at))
        {
            places_.try_emplace(std::string(at));
        }
    }
    input.form == Form::Flat ? readFlat(root, input.text) : readJson(root, input.text);
}

bool TextPlaces::has(const std::string& path) const
{
    const auto found = places_.find(path);
    return found != places_.end() && found->second.line != 0;
}

Place TextPlaces::find(std::string path) const
{
    while (!path.empty() && !has(path))
    {
        path = around(path);
    }
    return path.empty() ? Place{} : places_.at(path);
}

void TextPlaces::note(const std::string& path, const Place& place)
{
    const auto found = places_.find(path);
    if (found != places_.end() && found->second.line == 0)
    {
        found->second = place;
    }
}

void TextPlaces::readJson(const std::string& root, std::string_view text)
{
    std::vector<Frame> frames;
    std::string path = root;
    std::size_t waiting = 0; // comments up to here have their paths
    Place last;              // of the last member or element
    bool isName = false;     // whether a string is one
    const auto attach = [&]
    {
        for (; waiting < comments_.size(); ++waiting)
        {
            comments_[waiting].path = path;
        }
    };
    // In place: a text may be nothing but brackets, and its paths as long as it is.
    const auto step = [&](const std::string& name)
    {
        path.resize(frames.back().path);
        path += name;
    };
    const auto begin = [&](const Place& place)
    {
        if (!frames.empty() && frames.back().isArray)
        {
            step("[" + std::to_string(frames.back().count++) + "]");
        }
        note(path, place);
        last = place;
        attach();
    };
    for (Cursor cursor(text); !cursor.ended();)
    {
        const char c = cursor.rest().front();
        const Place place = cursor.place();
        if (c == '/')
        {
            std::string_view words = cursor.take(commentLength(cursor.rest())).substr(2);
            words = trimmed(words.substr(0, words.size() - (words.ends_with("*/") ? 2 : 0)));
            if (words.starts_with(sign))
            {
                comments_.push_back({std::string(trimmed(words.substr(sign.size()))), place, {}});
                if (last.line == place.line)
                {
                    attach();
                }
            }
        }
        else if (c == '"' && isName)
        {
            const std::string_view name = cursor.take(stringLength(cursor.rest()));
            step("." + std::string(name.substr(1, name.size() - 2)));
            isName = false;
            last = place;
            attach();
        }
        else if (c == '{' || c == '[')
        {
            begin(place);
            frames.push_back({c == '[', path.size()});
            isName = c == '{';
            (void)cursor.take(1);
        }
        else if ((c == '}' || c == ']') && !frames.empty())
        {
            path.resize(frames.back().path);
            attach();
            frames.pop_back();
            isName = false;
            (void)cursor.take(1);
        }
        else if (c == ',')
        {
            isName = !frames.empty() && !frames.back().isArray;
            (void)cursor.take(1);
        }
        else if (std::string_view(" \t\r\n:}]").find(c) != std::string_view::npos)
        {
            (void)cursor.take(1);
        }
        else
        {
            begin(place);
            (void)(c == '"' ? cursor.take(stringLength(cursor.rest())) : cursor.takeUntil(" \t\r\n,:]}/"));
        }
    }
}

// The type's name may be left out of a path.
void TextPlaces::readFlat(const std::string& root, std::string_view text)
{
    for (Cursor cursor(text); !cursor.ended(); (void)cursor.take(1))
    {
        (void)cursor.take(std::min(cursor.rest().find_first_not_of(" \t"), cursor.rest().size()));
        const Place place = cursor.place();
        const std::string_view line = cursor.takeUntil("\n");
        std::string path(trimmed(line.substr(0, line.find('='))));
        if (path != root && !path.starts_with(root + ".") && !path.starts_with(root + "["))
        {
            path.insert(0, path.starts_with('[') ? root : root + ".");
        }
        for (std::string_view at = path; !at.empty(); at = around(at))
        {
            note(std::string(at), place);
        }
    }
}

} // namespace tool
