// Decodes an input and tells what its values mean, with what is known besides taken from its first octets: no crash,
// the same meanings each time, each value alone as among all, and the heap as it was.
#include "context.h"

#include "rrcExplain.h"

#include <vector>

using fuzz::require;

namespace
{

struct Told
{
    std::vector<std::pair<const void*, const RtxType*>> values;
    uint64_t sum = 0; // of the lines
};

int tell(void* arg, const RrcMeaning* meaning)
{
    char line[2000];
    const size_t length = rrcMeaningFormat(meaning, line, sizeof line);
    require(length != 0 && length < sizeof line, "a meaning without a line");
    char path[1000];
    const size_t steps = rrcMeaningPathFormat(meaning, path, sizeof path);
    require(steps != 0 && steps < sizeof path, "a meaning without a path");
    require(meaning->clause != nullptr && *meaning->clause != '\0', "a meaning without a clause");
    require((meaning->inputs != 0) <= (*meaning->needs != '\0'), "inputs that nothing needs");
    auto& told = *static_cast<Told*>(arg);
    told.values.emplace_back(meaning->value, meaning->type);
    fuzz::addLine(told.sum, path, steps);
    fuzz::addLine(told.sum, line, length);
    return 0;
}

void check(OSCTXT& ctxt, const CellGroupConfig& tree, const RrcRuleContext& known)
{
    const fuzz::HeapMark mark(ctxt);
    Told first;
    const int64_t meanings = rrcExplain(&ctxt, &tree, &known, tell, &first);
    const auto told = static_cast<int64_t>(first.values.size());
    require(meanings == told || (fuzz::isRefused(ctxt, known, meanings) && told == 0), "another number of meanings");
    mark.expectGivenBack();
    Told second;
    require(rrcExplain(&ctxt, &tree, &known, tell, &second) == meanings && second.sum == first.sum,
            "other meanings the second time");
    if (told != 0)
    {
        const auto& [value, type] = first.values[static_cast<std::size_t>(first.sum % first.values.size())];
        Told one;
        require(rrcExplainValue(&ctxt, &tree, &known, value, type, tell, &one) == 1 && one.values.size() == 1 &&
                    one.values.front() == std::pair(value, type),
                "a value alone means something else");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzz::withContext(data, size, check);
    return 0;
}
