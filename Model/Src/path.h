// Where a walk over a tree stands, and the path that it tells of it.
#ifndef MODEL_PATH_H
#define MODEL_PATH_H

#include "rrcContext.h"

#include "rtxLine.h"
#include "rtxTree.h"

#include <span>

namespace rules
{

inline RrcRuleStep named(const char* name)
{
    return {name, 0, nullptr, 0};
}

inline RrcRuleStep elementStep(const RtxType& listType, OSUINT32 index, const void* element)
{
    RrcRuleStep step = {nullptr, index, nullptr, 0};
    if (listType.identity >= 0)
    {
        step.identity = rtx::identityName(listType);
        step.id = rtx::identityOf(listType, element, index);
    }
    return step;
}

// A step and the place around it.
struct Place
{
    const Place* outer;
    RrcRuleStep step;
};

// The steps of a place, outermost first; of more than fit the innermost.
struct Path
{
    explicit Path(const Place* place)
    {
        for (const Place* p = place; p != nullptr; p = p->outer)
        {
            depth += depth < RTX_MAX_DEPTH ? 1 : 0;
        }
        OSUINT32 i = depth;
        for (const Place* p = place; p != nullptr && i != 0; p = p->outer)
        {
            steps[--i] = p->step;
        }
    }

    RrcRuleStep steps[RTX_MAX_DEPTH];
    OSUINT32 depth = 0;
};

inline void appendPath(rtx::Line& line, std::span<const RrcRuleStep> path)
{
    rtx::append(line, "CellGroupConfig");
    for (const RrcRuleStep& step : path)
    {
        if (step.name != nullptr)
        {
            rtx::append(line, ".%s", step.name);
        }
        else if (step.identity == nullptr)
        {
            rtx::append(line, "[%u]", step.index);
        }
        else
        {
            rtx::append(line, "[%u: %s %" PRId64 "]", step.index, step.identity, step.id);
        }
    }
}

// Numbers in ascending order as "0..3, 7".
inline void appendRuns(rtx::Line& line, std::span<const OSUINT32> numbers)
{
    for (size_t i = 0; i < numbers.size();)
    {
        size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] <= numbers[last] + 1)
        {
            ++last;
        }
        rtx::append(line, "%s%u", i == 0 ? "" : ", ", numbers[i]);
        if (numbers[last] != numbers[i])
        {
            rtx::append(line, "%s%u", numbers[last] == numbers[i] + 1 ? ", " : "..", numbers[last]);
        }
        i = last + 1;
    }
}

} // namespace rules

#endif
