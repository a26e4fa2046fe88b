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

using Record = std::shared_ptr<RrcCellGroupCfg_t>;

// What the next input starts from.
struct Before
{
    Record record;
    Octets octets;
};

Input inputOf(std::string name, Record record, const Before& before)
{
    Input input;
    input.name = std::move(name);
    input.record = before.record;
    input.next = std::move(record);
    input.octets = before.octets;
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

Record drawn(records::Chance& chance, unsigned seed)
{
    auto record = std::make_shared<RrcCellGroupCfg_t>();
    chance.start(seed);
    records::draw(chance, *record);
    return record;
}

// Secondary cells, and one change of each kind.
void cellGroupDeltas(RrcCellGroupCfg_t& record)
{
    secondaryCells(record);
    addBearer(record);
    changeReport(record);
    releaseSCell(record);
}

// The same with another MAC, physical layer and first bearer.
Record near(records::Chance& chance, const RrcCellGroupCfg_t& record)
{
    auto changed = std::make_shared<RrcCellGroupCfg_t>(record);
    records::draw(chance, changed->macCellGrpCfg);
    records::draw(chance, changed->phyCellGrpCfg);
    records::draw(chance, changed->rlcBearerCfg[0]);
    return changed;
}

} // namespace

void eachInput(unsigned random, const std::function<void(Input input)>& take)
{
    static constexpr struct
    {
        const char* name;
        void (*fill)(RrcCellGroupCfg_t& record);
    } examples[] = {{"oneBearer", oneBearer},
                    {"reconfigurationWithSync", reconfigurationWithSync},
                    {"typicalCall", typicalCall},
                    {"secondaryCells", secondaryCells},
                    {"releases", releases},
                    {"secondaryCells", secondaryCells},
                    {"cellGroupDeltas", cellGroupDeltas}};
    auto record = std::make_shared<RrcCellGroupCfg_t>();
    oneBearer(*record);
    Before before{record, messageOf(*record)};
    const auto next = [&](std::string name, Record made)
    {
        Input input = inputOf(std::move(name), std::move(made), before);
        before = {input.next, input.nextOctets};
        take(std::move(input));
    };
    for (const auto& example : examples)
    {
        record = std::make_shared<RrcCellGroupCfg_t>();
        example.fill(*record);
        next(example.name, record);
    }
    records::Chance kept(records::Chance::Ranges::kept);
    records::Chance dropped(records::Chance::Ranges::dropped);
    for (unsigned seed = 1; seed <= random; ++seed)
    {
        next("record " + std::to_string(seed), drawn(kept, seed));
        next("near " + std::to_string(seed), near(kept, *before.record));
        // Nothing starts from a record that may be refused.
        take(inputOf("refused " + std::to_string(seed), drawn(dropped, seed), before));
    }
}

std::vector<Input> inputs(unsigned random)
{
    std::vector<Input> all;
    eachInput(random, [&](Input input) { all.push_back(std::move(input)); });
    return all;
}

} // namespace assurance
