#include "fields.h"

#include <algorithm>
#include <span>

namespace page
{
namespace
{

bool isSame(const RtxPathStep& a, const RtxPathStep& b)
{
    return a.name == b.name && a.index == b.index;
}

} // namespace

std::string fieldPath(std::string_view root, const RtxField& field)
{
    std::string text(root);
    for (const RtxPathStep& step : std::span(field.path, field.depth))
    {
        const std::string index = std::to_string(step.index);
        text += step.group != 0        ? ".[[" + index + "]]"
                : step.name == nullptr ? "[" + index + "]"
                                       : "." + std::string(step.name);
    }
    return text;
}

std::string_view noteWords(unsigned note)
{
    switch (note)
    {
    case RTX_NOTE_NONE:
        return "";
    case RTX_NOTE_EMPTY_EXTENSION:
        return "an extension is announced and has no addition";
    case RTX_NOTE_BITMAP:
        return "the bitmap of the additions has another length than this release's";
    case RTX_NOTE_EMPTY_GROUP:
        return "an extension group without members";
    default:
        return "octets behind the content of an open type";
    }
}

std::string noteText(std::string_view root, const RtxField& field)
{
    if (field.note == RTX_NOTE_NONE)
    {
        return "";
    }
    return fieldPath(root, field) + ": " + std::string(noteWords(field.note)) + " (at bit " +
           std::to_string(field.offset) + ": octet " + std::to_string(field.offset / 8) + ", bit " +
           std::to_string(field.offset % 8) + ")";
}

void Fields::add(const RtxField& field)
{
    if (note_.empty())
    {
        note_ = noteText("CellGroupConfig", field);
    }
    std::vector<RtxPathStep> path;
    std::copy_if(field.path, field.path + field.depth, std::back_inserter(path),
                 [](const RtxPathStep& step) { return step.group == 0; });
    const auto differ = std::mismatch(path.begin(), path.end(), path_.begin(), path_.end(), isSame).first;
    const auto kept = static_cast<std::uint32_t>(differ - path.begin());
    fields_.push_back({field.kind,
                       {field.offset, field.width},
                       field.value,
                       kept,
                       static_cast<std::uint32_t>(steps_.size()),
                       static_cast<std::uint32_t>(path.size()) - kept});
    steps_.insert(steps_.end(), differ, path.end());
    path_ = std::move(path);
}

} // namespace page
