// Where values stand in a text, of JSON or of flat lines.
#pragma once

#include "input.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace tool
{

// What a comment of JSON says behind "cellgroupcfg:", and the path of the member or element at which it stands: the
// last one that begins on its line before it, else the next one; behind the last one of an object the object.
struct TextComment
{
    std::string words;
    Place place;
    std::string path;
};

class TextPlaces
{
public:
    // Looks for the paths, without identities. `root` is the type's name.
    TextPlaces(const std::string& root, const Input& input, const std::set<std::string>& paths);

    // Whether the text has it.
    bool has(const std::string& path) const;
    // Of the path or, where that is not in the text, of what is around it.
    Place find(std::string path) const;

    const std::vector<TextComment>& comments() const
    {
        return comments_;
    }

private:
    void readJson(const std::string& root, std::string_view text);
    void readFlat(const std::string& root, std::string_view text);
    void note(const std::string& path, const Place& place);

    std::map<std::string, Place> places_;
    std::vector<TextComment> comments_;
};

} // namespace tool
