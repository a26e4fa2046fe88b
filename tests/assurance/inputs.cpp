#include "calls.h"

#include "asn1FromText.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordJson.h"

#include "cellGroupDeltas.h"
#include "oneBearer.h"
#include "reconfigurationWithSync.h"
#include "records.h"
#include "releases.h"
#include "secondaryCells.h"
#include "typicalCall.h"

#include <array>

namespace assurance
{
namespace
{

void append(void* to, const char* text)
{
    *static_cast<std::string*>(to) += text;
}

// Of a record that is refused: none.
Octets messageOf(const RrcCellGroupCfg_t& record)
{
    Octets octets(8192);
    size_t length = 0;
    (void)rrcEncodeCellGroupCfg(&record, octets.data(), octets.size(), &length, nullptr, 0);
    octets.resize(length);
    return octets;
}

// The texts of the first message, and of its record.
void write(Input& input)
{
    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig tree;
    (void)pu_setBuffer(&context, input.octets.data(), input.octets.size(), 0);
    (void)asn1PD_CellGroupConfig(&context, &tree);
    rtxErrReset(&context);
    (void)asn1ToJson_CellGroupConfig(&context, &tree, RTX_COMPACT, append, &input.jer);
    (void)asn1ToFlat_CellGroupConfig(&context, &tree, append, &input.flat);
    rtFreeContext(&context);
    rrcRecordToJson(input.record.get(), append, &input.json);
}

Input inputOf(std::string name, std::unique_ptr<RrcCellGroupCfg_t> record, const Input& before)
{
    Input input;
    input.name = std::move(name);
    input.record = std::make_unique<RrcCellGroupCfg_t>(*before.next);
    input.next = std::move(record);
    input.octets = before.nextOctets;
    input.nextOctets = messageOf(*input.next);
    if (input.nextOctets.empty()) // refused: a message with an octet wrong, one that ends early, texts with mistakes
    {
        input.nextOctets = input.octets;
        input.nextOctets[input.nextOctets.size() / 3] ^= 0x5A;
        std::swap(input.record, input.next);
        write(input);
        input.octets.resize(input.octets.size() * 4 / 5);
        input.jer.replace(input.jer.size() / 2, 4, "?");
        input.flat.replace(input.flat.size() / 2, 4, "?");
        input.json.replace(input.json.size() / 2, 4, "?");
        return input;
    }
    write(input);
    return input;
}

std::unique_ptr<RrcCellGroupCfg_t> drawn(records::Chance& chance, unsigned seed)
{
    auto record = std::make_unique<RrcCellGroupCfg_t>();
    chance.start(seed);
    records::draw(chance, *record);
    return record;
}

// The same with another MAC, physical layer and first bearer.
std::unique_ptr<RrcCellGroupCfg_t> near(records::Chance& chance, const RrcCellGroupCfg_t& record)
{
    auto changed = std::make_unique<RrcCellGroupCfg_t>(record);
    records::draw(chance, changed->macCellGrpCfg);
    records::draw(chance, changed->phyCellGrpCfg);
    records::draw(chance, changed->rlcBearerCfg[0]);
    return changed;
}

} // namespace

std::vector<Input> inputs(unsigned random)
{
    static constexpr struct
    {
        const char* name;
        void (*fill)(RrcCellGroupCfg_t& record);
    } examples[] = {{"oneBearer", oneBearer},
                    {"reconfigurationWithSync", reconfigurationWithSync},
                    {"typicalCall", typicalCall},
                    {"secondaryCells", secondaryCells},
                    {"releases", releases}};
    std::vector<Input> all;
    Input first;
    first.next = std::make_unique<RrcCellGroupCfg_t>();
    oneBearer(*first.next);
    first.nextOctets = messageOf(*first.next);
    for (const auto& example : examples)
    {
        auto record = std::make_unique<RrcCellGroupCfg_t>();
        example.fill(*record);
        all.push_back(inputOf(example.name, std::move(record), all.empty() ? first : all.back()));
    }
    auto record = std::make_unique<RrcCellGroupCfg_t>();
    secondaryCells(*record);
    all.push_back(inputOf("secondaryCells", std::move(record), all.back()));
    record = std::make_unique<RrcCellGroupCfg_t>(*all.back().next);
    addBearer(*record);
    changeReport(*record);
    releaseSCell(*record);
    all.push_back(inputOf("cellGroupDeltas", std::move(record), all.back()));
    records::Chance kept(records::Chance::Ranges::kept);
    records::Chance dropped(records::Chance::Ranges::dropped);
    for (unsigned seed = 1; seed <= random; ++seed)
    {
        const std::size_t before = all.size() - (seed == 1 ? 1 : 2);
        all.push_back(inputOf("record " + std::to_string(seed), drawn(kept, seed), all[before]));
        all.push_back(inputOf("near " + std::to_string(seed), near(kept, *all.back().next), all.back()));
        all.push_back(inputOf("refused " + std::to_string(seed), drawn(dropped, seed), all.back()));
    }
    return all;
}

} // namespace assurance
