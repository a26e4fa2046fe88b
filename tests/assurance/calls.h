// What a program may call, one public call in each row: what runs them on threads, without memory, on a painted stack
// and against the clock shares this table.
#ifndef CALLS_H
#define CALLS_H

#include "asn1Runtime.h"
#include "rrcCodec/rrcCodec.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace assurance
{

using Octets = std::vector<OSOCTET>;

// What the rows are called with.
struct Input
{
    std::string name;
    std::shared_ptr<RrcCellGroupCfg_t> record; // what a UE has, and what it shall have
    std::shared_ptr<RrcCellGroupCfg_t> next;
    Octets octets; // a message, or what should be one
    Octets nextOctets;
    std::string jer;
    std::string flat;
    std::string json; // of a record
};

// The examples; behind them `random` records that compose, as many that are near these, and as many with values out of
// range. A record has ten megabytes: one by one, or all at once.
void eachInput(unsigned random, const std::function<void(Input input)>& take);
std::vector<Input> inputs(unsigned random);

// Runs the one public call of a row; around it the row prepares and cleans up.
class Stage
{
public:
    Stage() = default;
    virtual ~Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    // `context`: in which the call works; null where it has one of its own.
    virtual void run(OSCTXT* /*context*/, const std::function<void()>& call)
    {
        call();
    }
};

// All that a call has given, told apart from what any other would be. Takes no memory.
struct Result
{
    bool refused = false; // it says that there is no memory
    bool wrong = false;   // it broke its word: changed what a failure leaves alone
    std::uint64_t hash = 14695981039346656037U;
    std::uint64_t length = 0;
    std::uint64_t sent = 0;                // of a message that is sent, what tells it from another
    std::uint64_t lines = 0;               // on the console
    std::array<std::uint64_t, 32> first{}; // of these, what tells each from another

    void add(const void* octets, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
        {
            hash = (hash ^ static_cast<const OSOCTET*>(octets)[i]) * 1099511628211U;
        }
        length += count;
    }
    void add(const char* text);
    void addLine(const char* text);
    // Whether the console has a line that it has not for the other.
    bool tellsMoreThan(const Result& other) const;
    void add(std::int64_t number)
    {
        add(&number, sizeof number);
    }

    bool operator==(const Result&) const = default;
};

struct Call
{
    const char* name;
    // Where memory ends its message may be a shorter one, which the console tells of. Of what is replaced by something
    // behind it, it may leave out the lines.
    bool mayShorten;
    void (*run)(const Input& input, Stage& stage, Result& result);
};

std::span<const Call> calls();

Result resultOf(const Call& call, const Input& input, Stage& stage);
Result resultOf(const Call& call, const Input& input);

} // namespace assurance

#endif
