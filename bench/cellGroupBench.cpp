// One composition from record to octets, its encoder and the decoder alone, beside the floor: the same message's fields
// put through a 64-bit accumulator.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "fields.h"
#include "oneBearer.h"
#include "rrcCodec/rrcCodec.h"

namespace
{

constexpr std::size_t capacity = 8192;

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "cellGroupBench: %s\n", what);
    std::abort();
}

// The example's message as a record, as octets, as a tree and as fields.
class Message
{
public:
    Message() : record(std::make_unique<RrcCellGroupCfg_t>()), octets(capacity)
    {
        oneBearer(*record);
        Mbuf_t out = {0, octets.data()};
        if (rrcComposeCellGroupCfg(record.get(), &out) != 0)
        {
            fail("the message cannot be composed");
        }
        octets.resize(out.bufLen);
        rtxInitContext(&context);
        pu_setBuffer(&context, octets.data(), octets.size(), 0);
        if (asn1PD_CellGroupConfig(&context, &tree) != 0)
        {
            fail("the message cannot be decoded");
        }
        fields = bench::Fields::of(nr_rrc::type_CellGroupConfig, &tree);

        std::vector<uint8_t> again(capacity);
        if (bench::putAll(fields.data(), fields.size(), again.data()) != octets.size() ||
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
};

Message& message()
{
    static Message instance;
    return instance;
}

void label(benchmark::State& state)
{
    state.counters["octets"] = static_cast<double>(message().octets.size());
    state.counters["fields"] = static_cast<double>(message().fields.size());
}

void compose(benchmark::State& state)
{
    std::vector<OSOCTET> buffer(capacity);
    Mbuf_t out = {0, buffer.data()};
    for (auto _ : state)
    {
        if (rrcComposeCellGroupCfg(message().record.get(), &out) != 0)
        {
            fail("compose");
        }
        benchmark::DoNotOptimize(buffer.data());
        benchmark::ClobberMemory();
    }
    label(state);
}

void encode(benchmark::State& state)
{
    std::vector<OSOCTET> buffer(capacity);
    Message& m = message();
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
    label(state);
}

void floorOfEncode(benchmark::State& state)
{
    std::vector<uint8_t> buffer(capacity);
    const Message& m = message();
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(bench::putAll(m.fields.data(), m.fields.size(), buffer.data()));
        benchmark::ClobberMemory();
    }
    label(state);
}

void decode(benchmark::State& state)
{
    Message& m = message();
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
    label(state);
}

BENCHMARK(floorOfEncode);
BENCHMARK(encode);
BENCHMARK(compose);
BENCHMARK(decode);

} // namespace
