#include "schemaPath.h"

#include "messageTypes.h"
#include "nearest.h"

#include <charconv>

namespace tool
{
namespace
{

[[noreturn]] void noMember(const SchemaPlace& place, std::string_view name)
{
    const RtxType& type = *place.type;
    const std::string where = place.path + " has no member '" + std::string(name) + "'";
    if (!hasMembers(type))
    {
        throw PathError(where + ", as it is no SEQUENCE and no CHOICE");
    }
    const std::vector<std::string_view> names(type.names, type.names + type.memberCount);
    if (const auto close = text::nearest(name, names))
    {
        throw PathError(where + "; did you mean " + std::string(*close) + "?");
    }
    std::string all;
    for (const std::string_view known : names)
    {
        all += (all.empty() ? "" : ", ") + std::string(known);
    }
    throw PathError(where + (all.empty() ? "; it has none" : "; there are " + all));
}

void enter(std::vector<SchemaPlace>& trail, const PathStep& step)
{
    if (step.name.empty())
    {
        if (!isList(*trail.back().type))
        {
            throw PathError(trail.back().path + " has no elements, as it is no SEQUENCE OF");
        }
        trail.push_back(memberPlace(trail.back(), 0));
        return;
    }
    while (isList(*trail.back().type))
    {
        trail.push_back(memberPlace(trail.back(), 0));
    }
    const RtxType& type = *trail.back().type;
    for (unsigned i = 0; hasMembers(type) && i < type.memberCount; ++i)
    {
        if (type.names[i] == step.name)
        {
            trail.push_back(memberPlace(trail.back(), i));
            return;
        }
    }
    noMember(trail.back(), step.name);
}

void collect(const SchemaPlace& place, std::string_view name, std::vector<SchemaPlace>& found)
{
    const RtxType& type = *place.type;
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        const SchemaPlace below = memberPlace(place, i);
        if (hasMembers(type) && type.names[i] == name)
        {
            found.push_back(below);
        }
        collect(below, name, found);
    }
}

} // namespace

SchemaPlace rootPlace(const RtxType& type)
{
    return {&type, nullptr, 0, type.name};
}

SchemaPlace memberPlace(const SchemaPlace& owner, unsigned number)
{
    const std::string step = isList(*owner.type) ? "[]" : "." + std::string(owner.type->names[number]);
    return {owner.type->members[number].type, owner.type, number, owner.path + step};
}

std::vector<PathStep> splitPath(std::string_view path)
{
    const auto broken = [&](std::size_t at)
    {
        return PathError("'" + std::string(path) + "' is no path from its character " + std::to_string(at + 1) + " on");
    };
    std::vector<PathStep> steps;
    for (std::size_t i = 0; i < path.size();)
    {
        if (path[i] == '[')
        {
            const std::size_t end = path.find(']', i);
            if (end == std::string_view::npos || steps.empty())
            {
                throw broken(i);
            }
            const std::string_view digits = path.substr(i + 1, end - i - 1);
            std::uint32_t index = 0;
            const auto [rest, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
            if (!digits.empty() && (error != std::errc() || rest != digits.data() + digits.size()))
            {
                throw broken(i + 1);
            }
            steps.push_back({{}, digits.empty() ? std::nullopt : std::optional(index)});
            i = end + 1;
            continue;
        }
        if (!steps.empty())
        {
            if (path[i] != '.')
            {
                throw broken(i);
            }
            ++i;
        }
        const std::size_t end = std::min(path.find_first_of(".[", i), path.size());
        if (end == i)
        {
            throw broken(i);
        }
        steps.push_back({path.substr(i, end - i), std::nullopt});
        i = end;
    }
    if (steps.empty())
    {
        throw PathError("an empty path");
    }
    return steps;
}

std::vector<SchemaPlace> findPlaces(std::string_view path)
{
    const std::vector<PathStep> steps = splitPath(path);
    std::vector<SchemaPlace> trail = {rootPlace(*typeNamed(steps[0].name).type)};
    for (std::size_t i = 1; i < steps.size(); ++i)
    {
        enter(trail, steps[i]);
    }
    return trail;
}

std::vector<SchemaPlace> placesNamed(const RtxType& type, std::string_view name)
{
    std::vector<SchemaPlace> found;
    collect(rootPlace(type), name, found);
    return found;
}

unsigned additionOf(const RtxType& sequence, unsigned number)
{
    for (unsigned a = 0; a < sequence.additionCount; ++a)
    {
        const rtx::Addition& addition = sequence.additions[a];
        if (number >= addition.first && number < addition.first + unsigned{addition.count})
        {
            return a + 1;
        }
    }
    return 0;
}

} // namespace tool
