// What holds of the meanings in any tree: the same each time, each value alone as among all, the heap as it was.
#ifndef MEANINGS_H
#define MEANINGS_H

#include "context.h"

#include "rrcExplain.h"

#include <vector>

namespace fuzz
{

struct ToldMeanings
{
    std::vector<std::pair<const void*, const RtxType*>> values;
    uint64_t sum = 0; // of the lines
};

inline int tellMeaning(void* arg, const RrcMeaning* meaning)
{
    char line[2000];
    const size_t length = rrcMeaningFormat(meaning, line, sizeof line);
    require(length != 0 && length < sizeof line, "a meaning without a line");
    char path[1000];
    const size_t steps = rrcMeaningPathFormat(meaning, path, sizeof path);
    require(steps != 0 && steps < sizeof path, "a meaning without a path");
    require(meaning->clause != nullptr && *meaning->clause != '\0', "a meaning without a clause");
    require((meaning->inputs != 0) <= (*meaning->needs != '\0'), "inputs that nothing needs");
    auto& told = *static_cast<ToldMeanings*>(arg);
    told.values.emplace_back(meaning->value, meaning->type);
    addLine(told.sum, path, steps);
    addLine(told.sum, line, length);
    return 0;
}

inline void checkMeanings(OSCTXT& ctxt, const CellGroupConfig& tree, const RrcRuleContext& known)
{
    const HeapMark mark(ctxt);
    ToldMeanings first;
    const int64_t meanings = rrcExplain(&ctxt, &tree, &known, tellMeaning, &first);
    const auto told = static_cast<int64_t>(first.values.size());
    require(meanings == told || (isRefused(ctxt, known, meanings) && told == 0), "another number of meanings");
    mark.expectGivenBack();
    ToldMeanings second;
    require(rrcExplain(&ctxt, &tree, &known, tellMeaning, &second) == meanings && second.sum == first.sum,
            "other meanings the second time");
    if (told != 0)
    {
        const auto& [value, type] = first.values[static_cast<std::size_t>(first.sum % first.values.size())];
        ToldMeanings one;
        require(rrcExplainValue(&ctxt, &tree, &known, value, type, tellMeaning, &one) == 1 && one.values.size() == 1 &&
                    one.values.front() == std::pair(value, type),
                "a value alone means something else");
    }
}

} // namespace fuzz

#endif
