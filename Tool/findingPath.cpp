#include "findingPath.h"

#include <algorithm>
#include <charconv>
#include <fnmatch.h>

namespace tool
{
namespace
{

// The index of an element: the digits in front.
std::string_view indexText(std::string_view element)
{
    return element.substr(0, element.find_first_not_of("0123456789"));
}

// What identifies it: "logicalChannelIdentity 4" of "1: logicalChannelIdentity 4".
std::string_view identityText(std::string_view element)
{
    const std::size_t colon = element.find(": ");
    return colon == std::string_view::npos ? element : element.substr(colon + 2);
}

bool isLike(std::string_view text, std::string_view pattern)
{
    return fnmatch(std::string(pattern).c_str(), std::string(text).c_str(), FNM_NOESCAPE) == 0;
}

bool isLike(const FindingStep& step, const FindingStep& pattern)
{
    if (!step.isElement)
    {
        return isLike(step.text, pattern.text);
    }
    return isLike(indexText(step.text), pattern.text) || isLike(identityText(step.text), pattern.text) ||
           isLike(step.text, pattern.text);
}

} // namespace

std::vector<FindingStep> findingSteps(std::string_view path)
{
    std::vector<FindingStep> steps;
    for (std::size_t i = 0; i < path.size();)
    {
        const bool isElement = path[i] == '[';
        i += isElement || path[i] == '.' ? 1 : 0;
        const std::size_t end = std::min(isElement ? path.find(']', i) : path.find_first_of(".[", i), path.size());
        steps.push_back({path.substr(i, end - i), isElement});
        i = end + (isElement ? 1 : 0);
    }
    return steps;
}

std::string plainPath(std::string_view path)
{
    std::string plain;
    for (const FindingStep& step : findingSteps(path))
    {
        const auto text = std::string(step.isElement ? indexText(step.text) : step.text);
        plain += step.isElement ? "[" + text + "]" : (plain.empty() ? "" : ".") + text;
    }
    return plain;
}

std::optional<std::uint32_t> memberNumber(const RtxType& type, std::string_view name)
{
    const bool hasMembers = type.kind == rtx::Kind::Sequence || type.kind == rtx::Kind::Choice;
    for (std::uint32_t i = 0; hasMembers && i < type.memberCount; ++i)
    {
        if (type.names[i] == name)
        {
            return i;
        }
    }
    return std::nullopt;
}

std::vector<std::uint32_t> placeOrder(const RtxType& root, std::string_view path)
{
    std::vector<std::uint32_t> order;
    const RtxType* type = &root;
    const std::vector<FindingStep> steps = findingSteps(path);
    for (std::size_t i = 1; i < steps.size(); ++i)
    {
        const bool hasElements = type->kind == rtx::Kind::List || type->kind == rtx::Kind::Array;
        if (steps[i].isElement != hasElements)
        {
            break;
        }
        std::uint32_t number = 0;
        if (hasElements)
        {
            const std::string_view digits = indexText(steps[i].text);
            (void)std::from_chars(digits.data(), digits.data() + digits.size(), number);
            type = &type->element();
        }
        else
        {
            const auto member = memberNumber(*type, steps[i].text);
            if (!member)
            {
                break;
            }
            number = *member;
            type = type->members[number].type;
        }
        order.push_back(number);
    }
    return order;
}

bool isNamedBy(std::string_view path, std::string_view pattern)
{
    const std::vector<FindingStep> steps = findingSteps(path);
    const std::vector<FindingStep> wanted = findingSteps(pattern);
    std::size_t at = 0;
    std::size_t next = 0;
    std::optional<std::size_t> behindAny; // the step of the pattern behind the last "**"
    std::size_t from = 0;                 // where that step is looked for
    while (next < wanted.size())
    {
        if (!wanted[next].isElement && wanted[next].text == "**")
        {
            behindAny = ++next;
            from = at;
        }
        else if (at < steps.size() && steps[at].isElement == wanted[next].isElement && isLike(steps[at], wanted[next]))
        {
            ++at;
            ++next;
        }
        else if (at < steps.size() && steps[at].isElement && !wanted[next].isElement)
        {
            ++at;
        }
        else if (behindAny && from < steps.size())
        {
            at = ++from;
            next = *behindAny;
        }
        else
        {
            return false;
        }
    }
    return true;
}

} // namespace tool
