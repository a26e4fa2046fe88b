// faults RANDOM POINTS [CALL|-CALL...]: every request for memory fails in turn, of the examples and of RANDOM records
// with as many near them and as many that are refused, at most POINTS of a kind for a call with an input, spread evenly
// (0: all). Calls are those whose names begin so, or all but those with -. Prints how many points there were, of how
// many; exits with 1 where a call says something else than that there is no memory, leaks, throws, or changes what a
// failure leaves alone.
#include "calls.h"
#include "memory.h"

#include "support/HeapFault.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using assurance::Call;
using assurance::Input;
using assurance::Result;

// What fails.
enum class Kind
{
    None,
    OneBlock,    // a request to malloc or operator new
    AllBlocks,   // and those behind it
    OneRequest,  // a request to a context's heap
    AllRequests, // and those behind it
    Limit        // whatever goes beyond so many octets of the context's heap
};

constexpr Kind kinds[] = {Kind::OneBlock, Kind::AllBlocks, Kind::OneRequest, Kind::AllRequests, Kind::Limit};
constexpr const char* kindNames[] = {"none", "one block", "all blocks", "one request", "all requests", "limit"};

class FaultStage : public assurance::Stage
{
public:
    FaultStage(Kind kind, std::size_t number) : kind_(kind), number_(number) {}

    void run(OSCTXT* context, const std::function<void()>& call) override
    {
        hasContext_ = context != nullptr;
        std::optional<test::HeapFault> fault;
        if (kind_ == Kind::OneRequest || kind_ == Kind::AllRequests)
        {
            fault.emplace(static_cast<unsigned>(number_ - 1),
                          kind_ == Kind::OneRequest ? test::HeapFault::Refused::One : test::HeapFault::Refused::All);
        }
        else if (kind_ == Kind::Limit && context != nullptr)
        {
            rtxMemHeapSetLimit(context, number_);
        }
        const std::size_t before = assurance::memory.asked;
        assurance::memory.hasFailed = false;
        assurance::memory.failingOn = kind_ == Kind::AllBlocks;
        assurance::memory.failing = kind_ == Kind::OneBlock || kind_ == Kind::AllBlocks ? before + number_ : 0;
        try
        {
            call();
        }
        catch (...)
        {
            hasThrown_ = true;
        }
        assurance::memory.failing = 0;
        struck_ = fault.has_value()      ? test::HeapFault::struck()
                  : kind_ == Kind::Limit ? hasContext_ && rtxMemHeapFailed(context) != 0
                                         : assurance::memory.hasFailed;
    }

    bool hasContext() const
    {
        return hasContext_;
    }
    bool struck() const
    {
        return struck_;
    }
    bool hasThrown() const
    {
        return hasThrown_;
    }

private:
    Kind kind_;
    std::size_t number_;
    bool hasContext_ = false;
    bool struck_ = false;
    bool hasThrown_ = false;
};

// One call with one input.
class Trial
{
public:
    Trial(const Call& call, const Input& input, std::size_t most) : call_(call), input_(input), most_(most)
    {
        FaultStage stage(Kind::None, 0);
        (void)resultOf(call_, input_, stage); // what the platform makes once
        alone_ = resultOf(call_, input_, stage);
        hasContext_ = stage.hasContext();
    }

    struct Points
    {
        std::size_t tried;
        std::size_t all;
    };

    Points of(Kind kind)
    {
        if (kind == Kind::Limit && !hasContext_)
        {
            return {0, 0};
        }
        constexpr std::size_t granule = 16;
        const std::size_t step = kind == Kind::Limit ? granule : 1;
        const std::size_t first = kind == Kind::Limit ? 0 : 1;
        // The first number of which nothing fails.
        std::size_t struck = 0;
        std::size_t end = 1;
        while (strikes(kind, first + (end - 1) * step))
        {
            struck = end;
            end *= 2;
        }
        while (end - struck > 1)
        {
            const std::size_t middle = (end + struck) / 2;
            (strikes(kind, first + (middle - 1) * step) ? struck : end) = middle;
        }
        // All of them, or as many as were asked for, the first and the last among them.
        const std::size_t points = most_ == 0 ? struck : std::min(struck, most_);
        for (std::size_t i = 0; i < points; ++i)
        {
            const std::size_t at = points == struck ? i : i * (struck - 1) / (points - 1);
            (void)strikes(kind, first + at * step);
        }
        return {points, struck};
    }

    unsigned wrong() const
    {
        return wrong_;
    }

private:
    bool strikes(Kind kind, std::size_t number)
    {
        FaultStage stage(kind, number);
        const std::size_t live = assurance::memory.live;
        const Result result = resultOf(call_, input_, stage);
        const bool isTold =
            call_.mayShorten && (result.tellsMoreThan(alone_) || (result.sent != 0 && result.sent == alone_.sent));
        const bool isAsAlone = result == alone_;
        complain(stage.hasThrown(), "an exception leaves it", kind, number);
        complain(assurance::memory.live != live, "it leaks", kind, number);
        complain(!stage.hasThrown() && result.wrong, "it breaks its word", kind, number);
        complain(!stage.hasThrown() && !stage.struck() && !isAsAlone, "it gives something else without a failure", kind,
                 number);
        complain(!stage.hasThrown() && stage.struck() && !result.refused && !isTold && !isAsAlone,
                 "it does not say that there is no memory", kind, number);
        return stage.struck();
    }

    void complain(bool isWrong, const char* what, Kind kind, std::size_t number)
    {
        if (isWrong && ++wrong_ <= 3)
        {
            std::printf("%s, %s, %s %zu: %s\n", call_.name, input_.name.c_str(), kindNames[static_cast<int>(kind)],
                        number, what);
        }
    }

    const Call& call_;
    const Input& input_;
    std::size_t most_;
    Result alone_;
    bool hasContext_ = false;
    unsigned wrong_ = 0;
};

// The points of a call.
struct Row
{
    const Call* call;
    std::size_t points[std::size(kinds)];
    std::size_t all;
};

void print(const std::string& name, const Row& row)
{
    std::printf("| %s |", name.c_str());
    for (const std::size_t points : row.points)
    {
        std::printf(" %zu |", points);
    }
    std::printf(" %zu |\n", row.all);
}

// Whether calls of the name are wanted: the last prefix that it begins with decides.
bool isWanted(std::string_view name, std::span<char*> prefixes)
{
    bool wanted = prefixes.empty() || *prefixes.front() == '-';
    for (const std::string_view prefix : prefixes)
    {
        const bool excludes = prefix.starts_with('-');
        if (name.starts_with(prefix.substr(excludes ? 1 : 0)))
        {
            wanted = !excludes;
        }
    }
    return wanted;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
    {
        std::fputs("usage: faults RANDOM POINTS [CALL|-CALL...]\n", stderr);
        return 2;
    }
    const auto most = static_cast<std::size_t>(std::atoi(argv[2]));
    std::vector<Row> rows;
    for (const Call& call : assurance::calls())
    {
        if (isWanted(call.name, {argv + 3, argv + argc}))
        {
            rows.push_back({&call, {}, 0});
        }
    }
    unsigned wrong = 0;
    std::size_t inputs = 0;
    assurance::eachInput(static_cast<unsigned>(std::atoi(argv[1])),
                         [&](const Input& input)
                         {
                             ++inputs;
                             for (Row& row : rows)
                             {
                                 Trial trial(*row.call, input, most);
                                 for (std::size_t i = 0; i < std::size(kinds); ++i)
                                 {
                                     const Trial::Points points = trial.of(kinds[i]);
                                     row.points[i] += points.tried;
                                     row.all += points.all;
                                 }
                                 wrong += trial.wrong();
                             }
                         });
    std::printf("| Call | one block | all blocks | one request | all requests | limit | of |\n"
                "|---|--:|--:|--:|--:|--:|--:|\n");
    Row all{nullptr, {}, 0};
    for (const Row& row : rows)
    {
        print('`' + std::string(row.call->name) + '`', row);
        std::transform(row.points, std::end(row.points), all.points, all.points, std::plus<>());
        all.all += row.all;
    }
    print("all", all);
    const std::size_t sum = std::accumulate(all.points, std::end(all.points), std::size_t{0});
    std::printf("\n%zu points of %zu inputs, %u wrong\n", sum, inputs, wrong);
    return wrong == 0 && sum > 1000 ? 0 : 1;
}
