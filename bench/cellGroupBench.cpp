// Of each example: the whole entry from record to octets, its encoder and the decoder alone, beside the floor: the same
// message's fields put through a 64-bit accumulator (floor.h).
#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "floor.h"
#include "oneBearer.h"
#include "releases.h"
#include "secondaryCells.h"
#include "typicalCall.h"

namespace
{

constexpr std::size_t capacity = 8192;

using Fill = void (*)(RrcCellGroupCfg_t&);

// What the program has asked of the system's heap.
struct Heap
{
    std::size_t calls = 0;
    std::size_t used = 0;
    std::size_t peak = 0;
};
Heap heap;

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "cellGroupBench: %s\n", what);
    std::abort();
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

// An example's message as a record, as octets, as a tree and as fields.
class Message
{
public:
    explicit Message(Fill fill) : record(std::make_unique_for_overwrite<RrcCellGroupCfg_t>()), octets(capacity)
    {
        fill(*record);
        octets.resize(compose(*record, octets.data()));
        rtxInitContext(&context);
        pu_setBuffer(&context, octets.data(), octets.size(), 0);
        if (asn1PD_CellGroupConfig(&context, &tree) != 0)
        {
            fail("the message cannot be decoded");
        }
        fields = bench::Fields::of(nr_rrc::type_CellGroupConfig, &tree);

        put = bench::fastestPut(fields);
        std::vector<uint8_t> again(capacity);
        if (put(fields.data(), fields.size(), again.data()) != octets.size() ||
            std::memcmp(again.data(), octets.data(), octets.size()) != 0)
        {
            fail("the floor writes another message");
        }
    }

    std::unique_ptr<RrcCellGroupCfg_t> record;
    std::vector<OSOCTET> octets;
    OSCTXT context;
    CellGroupConfig tree;
    std::vector<bench::Field> fields;
    bench::Put put;
};

void runFloor(benchmark::State& state, const Message& m)
{
    std::vector<uint8_t> buffer(capacity);
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(m.put(m.fields.data(), m.fields.size(), buffer.data()));
        benchmark::ClobberMemory();
    }
    state.counters["octets"] = static_cast<double>(m.octets.size());
    state.counters["fields"] = static_cast<double>(m.fields.size());
}

void runEncode(benchmark::State& state, Message& m)
{
    std::vector<OSOCTET> buffer(capacity);
    for (auto _ : state)
    {
        pu_setBuffer(&m.context, buffer.data(), buffer.size(), 0);
        if (asn1PE_CellGroupConfig(&m.context, &m.tree) != 0)
        {
            fail("encode");
        }
        benchmark::DoNotOptimize(buffer.data());
        benchmark::ClobberMemory();
    }
}

void runEntry(benchmark::State& state, RrcCellGroupCfg_t& record)
{
    std::vector<OSOCTET> buffer(capacity);
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(compose(record, buffer.data()));
        benchmark::ClobberMemory();
    }
    const Heap before = heap;
    heap.peak = heap.used;
    compose(record, buffer.data());
    state.counters["mallocs"] = static_cast<double>(heap.calls - before.calls);
    state.counters["heap"] = static_cast<double>(heap.peak - before.used);
}

void runDecode(benchmark::State& state, Message& m)
{
    for (auto _ : state)
    {
        OSCTXT context;
        CellGroupConfig tree;
        rtxInitContext(&context);
        pu_setBuffer(&context, m.octets.data(), m.octets.size(), 0);
        if (asn1PD_CellGroupConfig(&context, &tree) != 0)
        {
            fail("decode");
        }
        benchmark::DoNotOptimize(tree);
        rtFreeContext(&context);
    }
}

// One bearer again, in a record that holds three secondary cells with all their parts and has them switched off.
RrcCellGroupCfg_t& oneBearerOfMany()
{
    static const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    secondaryCells(*record);
    record->sCellAddModNum = 0;
    record->bitMask &= static_cast<UINT8>(~RRC_CELLGROUPCFG_SPCELL_PRESENCE);
    return *record;
}

// The least of the repetitions is what other load on the machine disturbs the least.
template <typename Run>
void add(const std::string& name, Run run)
{
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->ComputeStatistics("min", [](const std::vector<double>& times)
                            { return *std::min_element(times.begin(), times.end()); });
}

[[maybe_unused]] const bool registered = []
{
    static const struct
    {
        const char* name;
        Fill fill;
    } examples[] = {
        {"one_bearer", oneBearer},
        {"typical_call", typicalCall},
        {"secondary_cells", secondaryCells},
        {"releases", releases},
    };
    static std::vector<std::unique_ptr<Message>> messages;
    for (const auto& example : examples)
    {
        messages.push_back(std::make_unique<Message>(example.fill));
        Message& m = *messages.back();
        const std::string name = example.name;
        add(name + "/floor", [&m](auto& state) { runFloor(state, m); });
        add(name + "/encode", [&m](auto& state) { runEncode(state, m); });
        add(name + "/entry", [&m](auto& state) { runEntry(state, *m.record); });
        add(name + "/decode", [&m](auto& state) { runDecode(state, m); });
    }
    add("one_bearer/entry_of_many_switched_off", [](auto& state) { runEntry(state, oneBearerOfMany()); });
    return true;
}();

} // namespace

extern "C" void* __real_malloc(size_t size);
extern "C" void __real_free(void* p);
extern "C" void* __wrap_malloc(size_t size);
extern "C" void __wrap_free(void* p);

extern "C" void* __wrap_malloc(size_t size)
{
    void* const p = __real_malloc(size);
    ++heap.calls;
    heap.used += malloc_usable_size(p);
    heap.peak = std::max(heap.peak, heap.used);
    return p;
}

extern "C" void __wrap_free(void* p)
{
    heap.used -= malloc_usable_size(p);
    __real_free(p);
}
