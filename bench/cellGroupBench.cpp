// Of messages of 30 to 8,000 octets: the whole entry from record to octets, the encoder, the decoder and the
// check of the rules alone, beside the floor (floor.h); of the typical call also what other code does to them between
// two calls. README.md says what each benchmark measures.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "disturb.h"
#include "floor.h"
#include "grown.h"
#include "heap.h"
#include "oneBearer.h"
#include "releases.h"
#include "secondaryCells.h"
#include "typicalCall.h"

// A build of an earlier commit, which is measured beside this one, lacks one or the other.
#if __has_include("rrcDecompose.h")
#include "rrcDecompose.h"
#endif
#if __has_include("rrcRecordCheck.h")
#include "rrcRecordCheck.h"
#endif
#if __has_include("rrcRecordJson.h")
#include "rrcRecordJson.h"
#endif
#if __has_include("rrcRules.h")
#include "rrcRules.h"
#endif
extern "C" [[gnu::weak]] size_t rtxMemHeapSetMemory(OSCTXT* pctxt, void* memory, size_t octets);

namespace
{

constexpr std::size_t capacity = 8192;

using Fill = std::function<void(RrcCellGroupCfg_t&)>;

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "cellGroupBench: %s\n", what);
    std::abort();
}

std::unique_ptr<RrcCellGroupCfg_t> filled(const Fill& fill)
{
    auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    fill(*record);
    return record;
}

std::size_t compose(RrcCellGroupCfg_t& record, OSOCTET* buffer)
{
    Mbuf_t out = {0, buffer};
    if (rrcComposeCellGroupCfg(&record, &out) != 0)
    {
        fail("compose");
    }
    return out.bufLen;
}

// Fills the record with an example and lets it grow until its message has so many octets.
Fill grownFrom(void (*example)(RrcCellGroupCfg_t&), std::size_t octets)
{
    return [example, octets](RrcCellGroupCfg_t& record)
    {
        example(record);
        std::vector<OSOCTET> buffer(capacity);
        while (compose(record, buffer.data()) < octets)
        {
            if (!bench::grow(record))
            {
                fail("the message cannot grow");
            }
        }
    };
}

// A message as a record, as octets, as a tree and as fields, and what is measured of it.
class Message
{
public:
    explicit Message(const Fill& fill) : record_(filled(fill)), octets_(capacity), buffer_(capacity)
    {
        octets_.resize(compose(*record_, octets_.data()));
        rtxInitContext(&context_);
        pu_setBuffer(&context_, octets_.data(), octets_.size(), 0);
        if (asn1PD_CellGroupConfig(&context_, &tree_) != 0)
        {
            fail("the message cannot be decoded");
        }
        fields_ = bench::Fields::of(nr_rrc::type_CellGroupConfig, &tree_);
        put_ = bench::fastestPut(fields_);
        if (putAll() != octets_.size() || std::memcmp(buffer_.data(), octets_.data(), octets_.size()) != 0)
        {
            fail("the floor writes another message");
        }
    }

    ~Message()
    {
        rtFreeContext(&context_);
    }

    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;

    std::size_t putAll()
    {
        return put_(fields_.data(), fields_.size(), buffer_.data());
    }

    void encode()
    {
        pu_setBuffer(&context_, buffer_.data(), buffer_.size(), 0);
        if (asn1PE_CellGroupConfig(&context_, &tree_) != 0)
        {
            fail("encode");
        }
    }

    void entry()
    {
        compose(*record_, buffer_.data());
    }

#ifdef RRCRECORDJSON_H
    std::size_t recordToJson()
    {
        std::size_t octets = 0;
        rrcRecordToJson(
            record_.get(), [](void* to, const char* text) { *static_cast<std::size_t*>(to) += std::strlen(text); },
            &octets);
        return octets;
    }
#endif

    void decode()
    {
        OSCTXT context;
        rtxInitContext(&context);
        decode(context);
    }

    void decodeIntoMemory()
    {
        OSCTXT context;
        rtxInitContext(&context);
        rtxMemHeapSetMemory(&context, memory_.data(), memory_.size());
        decode(context);
    }

#ifdef RRCRULES_H
    // The element is all that the UE has: every rule is asked, and what it finds is counted.
    void check()
    {
        RrcRuleContext known{};
        known.extent = RRC_RULE_EXTENT_FULL;
        if (rrcCheckRules(&context_, &tree_, &known, nullptr, nullptr) < 0)
        {
            fail("check");
        }
    }
#endif
#ifdef RRCRECORDCHECK_H
    // All that is wrong with the record is counted.
    OSUINT32 recordCheck() const
    {
        return rrcCheckCellGroupCfg(record_.get(), nullptr, nullptr);
    }
#endif
#ifdef RRCDECOMPOSE_H
    void decompose()
    {
        static const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
        if (rrcDecomposeCellGroupCfg(&context_, &tree_, record.get(), nullptr, nullptr) != 0)
        {
            fail("decompose");
        }
    }
#endif

    double octets() const
    {
        return static_cast<double>(octets_.size());
    }

    double fields() const
    {
        return static_cast<double>(fields_.size());
    }

private:
    void decode(OSCTXT& context)
    {
        CellGroupConfig tree;
        pu_setBuffer(&context, octets_.data(), octets_.size(), 0);
        if (asn1PD_CellGroupConfig(&context, &tree) != 0)
        {
            fail("decode");
        }
        benchmark::DoNotOptimize(tree);
        rtFreeContext(&context);
    }

    std::unique_ptr<RrcCellGroupCfg_t> record_;
    std::vector<OSOCTET> octets_;
    std::vector<OSOCTET> buffer_; // what is written
    std::vector<OSOCTET> memory_ = std::vector<OSOCTET>(std::size_t{1} << 20);
    OSCTXT context_;
    CellGroupConfig tree_;
    std::vector<bench::Field> fields_;
    bench::Put put_;
};

// One call after the other. With them, what one asks of malloc.
template <typename Call>
void runWarm(benchmark::State& state, Call call)
{
    for (auto _ : state)
    {
        call();
        benchmark::ClobberMemory();
    }
    using bench::heap;
    const bench::Heap before = heap;
    heap.peak = heap.used;
    call();
    state.counters["mallocs"] = static_cast<double>(heap.calls - before.calls);
    state.counters["heap"] = static_cast<double>(heap.peak - before.used);
}

// Each call after `disturb`, which is not measured: the median of a few calls.
template <typename Disturb, typename Call>
void runDisturbed(benchmark::State& state, Disturb& disturb, Call call, double parts = 1)
{
    std::array<double, 5> times;
    for (auto _ : state)
    {
        for (double& time : times)
        {
            disturb();
            time = bench::timeOf(call);
        }
        std::sort(times.begin(), times.end());
        state.SetIterationTime(times[times.size() / 2] / parts);
    }
}

// The least of the repetitions is what other load on the machine disturbs the least.
template <typename Run>
benchmark::internal::Benchmark* add(const std::string& name, Run run)
{
    return benchmark::RegisterBenchmark(name.c_str(), run)
        ->ComputeStatistics("min", [](const std::vector<double>& times)
                            { return *std::min_element(times.begin(), times.end()); });
}

template <typename Run>
void addDisturbed(const std::string& name, int iterations, Run run)
{
    add(name, run)->Iterations(iterations)->UseManualTime();
}

template <typename Call>
void addCold(const std::string& name, const bench::Walk& walk, Call call)
{
    addDisturbed(name, 1, [&walk, call](auto& state) { runDisturbed(state, walk, call); });
}

void addMessage(const std::string& name, Message& m, const bench::Walk& walk)
{
    add(name + "/floor",
        [&m](auto& state)
        {
            runWarm(state, [&m] { benchmark::DoNotOptimize(m.putAll()); });
            state.counters["octets"] = m.octets();
            state.counters["fields"] = m.fields();
        });
    add(name + "/encode", [&m](auto& state) { runWarm(state, [&m] { m.encode(); }); });
    add(name + "/entry", [&m](auto& state) { runWarm(state, [&m] { m.entry(); }); });
    add(name + "/decode", [&m](auto& state) { runWarm(state, [&m] { m.decode(); }); });
#ifdef RRCRULES_H
    add(name + "/check", [&m](auto& state) { runWarm(state, [&m] { m.check(); }); });
#endif
    if (rtxMemHeapSetMemory != nullptr)
    {
        add(name + "/decode_into_memory", [&m](auto& state) { runWarm(state, [&m] { m.decodeIntoMemory(); }); });
    }
#ifdef RRCDECOMPOSE_H
    add(name + "/decompose", [&m](auto& state) { runWarm(state, [&m] { m.decompose(); }); });
#endif
    addCold(name + "/encode_cold", walk, [&m] { m.encode(); });
    addCold(name + "/entry_cold", walk, [&m] { m.entry(); });
    addCold(name + "/decode_cold", walk, [&m] { m.decode(); });
}

// What a line costs: the next one of a walk, and one that a walk has driven out.
void addLine(const std::string& name, const bench::Walk& walk)
{
    static const bench::Chain chain;
    addDisturbed(name + "/walked", 1,
                 [&walk](auto& state)
                 {
                     const auto nothing = [] {
                     };
                     runDisturbed(
                         state, nothing, [&walk] { walk.readData(); }, static_cast<double>(walk.lines()));
                 });
    addDisturbed(name + "/driven_out", 1,
                 [&walk](auto& state)
                 {
                     const auto disturb = [&walk]
                     {
                         chain();
                         walk();
                     };
                     runDisturbed(
                         state, disturb, [] { chain(); }, bench::Chain::lines);
                 });
}

void addTypicalCall(Message& m)
{
    static const bench::Walk walk(std::size_t{6} << 20);
    static bench::ForeignHeap foreign;
#ifdef RRCRECORDJSON_H
    add("typical_call/record_to_json",
        [&m](auto& state) { runWarm(state, [&m] { benchmark::DoNotOptimize(m.recordToJson()); }); });
#endif
#ifdef RRCRECORDCHECK_H
    add("typical_call/record_check",
        [&m](auto& state) { runWarm(state, [&m] { benchmark::DoNotOptimize(m.recordCheck()); }); });
#endif
    addCold("typical_call/entry_after_6MB", walk, [&m] { m.entry(); });
    addCold("typical_call/decode_after_6MB", walk, [&m] { m.decode(); });
    addLine("line_6MB", walk);
    addDisturbed("typical_call/entry_after_nothing", 20,
                 [&m](auto& state)
                 {
                     const auto nothing = [] {
                     };
                     runDisturbed(state, nothing, [&m] { m.entry(); });
                 });
    addDisturbed("typical_call/entry_after_malloc", 20,
                 [&m](auto& state) { runDisturbed(state, foreign, [&m] { m.entry(); }); });
    for (const int threads : {1, 2})
    {
        add("typical_call/entry_on_" + std::to_string(threads),
            [](auto& state)
            {
                const auto record = filled(typicalCall);
                std::vector<OSOCTET> buffer(capacity);
                runWarm(state, [&] { compose(*record, buffer.data()); });
            })
            ->Threads(threads)
            ->Iterations(300) // short, so that some repetition finds both processors free
            ->Repetitions(40)
            ->UseRealTime();
    }
}

// One bearer again, in a record that holds three secondary cells with all their parts and has them switched off.
void oneBearerOfMany(RrcCellGroupCfg_t& record)
{
    secondaryCells(record);
    record.sCellAddModNum = 0;
    record.bitMask &= static_cast<UINT8>(~RRC_CELLGROUPCFG_SPCELL_PRESENCE);
}

[[maybe_unused]] const bool registered = []
{
    static const struct
    {
        const char* name;
        Fill fill;
    } examples[] = {
        {"one_bearer", oneBearer},
        {"grown_100", grownFrom(oneBearer, 100)},
        {"releases", releases},
        {"typical_call", typicalCall},
        {"secondary_cells", secondaryCells},
        {"grown_2500", grownFrom(secondaryCells, 2500)},
        {"grown_5000", grownFrom(secondaryCells, 5000)},
        {"grown_8000", grownFrom(secondaryCells, 8000)},
    };
    benchmark::AddCustomContext("compiler", "g++ " __VERSION__);
    static const bench::Walk walk(std::size_t{64} << 20);
    static std::map<std::string, Message> messages;
    for (const auto& example : examples)
    {
        addMessage(example.name, messages.emplace(example.name, example.fill).first->second, walk);
    }
    addLine("line", walk);
    addTypicalCall(messages.at("typical_call"));
    static Message switchedOff(oneBearerOfMany);
    add("one_bearer/entry_of_many_switched_off", [](auto& state) { runWarm(state, [] { switchedOff.entry(); }); });
    return true;
}();

} // namespace
