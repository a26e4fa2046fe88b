// Looks for cell groups of at most 8192 octets whose check against the rules takes long: grows the lists of a cell
// group and changes its values, goes on with what takes longer, and writes the octets of the slowest.
//
//     slowestRules <seconds> <seed> <file> <message>...      each message is a file of octets to begin with
#include "NR-RRC-Definitions.h"
#include "rrcRules.h"
#include "rtxTree.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "leastTime.h"

namespace
{

using Octets = std::vector<OSOCTET>;

constexpr size_t mostOctets = 8192;
constexpr size_t memoryOctets = size_t{64} << 20;

[[noreturn]] void fail(const char* what)
{
    (void)std::fprintf(stderr, "slowestRules: %s\n", what);
    std::abort();
}

// A decoded message in memory of its own.
class Message
{
public:
    explicit Message(const Octets& octets) : input_(octets)
    {
        static std::vector<OSOCTET> memory(memoryOctets);
        rtxInitContext(&ctxt);
        rtxMemHeapSetMemory(&ctxt, memory.data(), memory.size());
        pu_setBuffer(&ctxt, input_.data(), input_.size(), 0);
        isDecoded = asn1PD_CellGroupConfig(&ctxt, &tree) == RTX_OK;
    }
    ~Message()
    {
        rtFreeContext(&ctxt);
    }
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;

    // Empty where it is no message.
    Octets encoded()
    {
        Octets octets(mostOctets);
        pu_setBuffer(&ctxt, octets.data(), octets.size(), 0);
        octets.resize(asn1PE_CellGroupConfig(&ctxt, &tree) == RTX_OK ? pu_getMsgLen(&ctxt) : 0);
        return octets;
    }

    OSCTXT ctxt;
    CellGroupConfig tree;
    bool isDecoded = false;

private:
    Octets input_;
};

// In ms; as all that the UE has, and each finding told.
double timeOf(const Octets& octets, int calls)
{
    Message message(octets);
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    const auto sink = [](void* arg, const RrcRuleFinding*)
    {
        ++*static_cast<int64_t*>(arg);
        return 0;
    };
    int64_t told = 0;
    return bench::leastTime(calls, [&] { (void)rrcCheckRules(&message.ctxt, &message.tree, &known, sink, &told); }) /
           1e6;
}

// Every list and every number of a tree, by its type.
class Places
{
public:
    explicit Places(CellGroupConfig& tree)
    {
        look(*asn1Type_CellGroupConfig(), &tree);
    }

    std::map<const RtxType*, std::vector<void*>> lists;
    std::map<const RtxType*, std::vector<void*>> numbers;

private:
    void look(const RtxType& type, void* value)
    {
        switch (type.kind)
        {
        case rtx::Kind::Integer:
        case rtx::Kind::Enumerated:
            numbers[&type].push_back(value);
            break;
        case rtx::Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                if (rtx::isPresent(type.members[i], value))
                {
                    look(*type.members[i].type, static_cast<OSOCTET*>(value) + type.members[i].offset);
                }
            }
            break;
        case rtx::Kind::Choice:
        {
            const auto tag = rtx::load<OSUINT32>(value);
            if (tag >= 1 && tag <= type.memberCount)
            {
                const rtx::Member& member = type.members[tag - 1];
                void* const at = static_cast<OSOCTET*>(value) + member.offset;
                look(*member.type, member.step == rtx::Step::Pointer ? rtx::load<void*>(at) : at);
            }
            break;
        }
        case rtx::Kind::List:
            lists[&type].push_back(value);
            for (OSRTDListNode* node = rtx::load<OSRTDList>(value).head; node != nullptr; node = node->next)
            {
                look(type.element(), node->data);
            }
            break;
        case rtx::Kind::Array:
            lists[&type].push_back(value);
            for (OSUINT32 i = 0; i < rtx::countOf(type, value); ++i)
            {
                look(type.element(), elementAt(type, value, i));
            }
            break;
        default:
            break;
        }
    }

public:
    static OSOCTET* elementAt(const RtxType& type, void* array, OSUINT32 index)
    {
        return static_cast<OSOCTET*>(array) + type.members->offset + size_t{index} * type.element().size;
    }
};

void store(const RtxType& type, void* at, int64_t value)
{
    const auto number = static_cast<OSUINT32>(value);
    std::memcpy(at, &number, type.kind == rtx::Kind::Enumerated ? 4 : type.width); // the least octets come first
}

class Search
{
public:
    explicit Search(uint64_t seed) : random_(seed) {}

    uint64_t below(uint64_t end)
    {
        return random_() % end;
    }

    // Another message, or an empty one.
    Octets changed(const Octets& octets)
    {
        Message message(octets);
        if (!message.isDecoded)
        {
            return {};
        }
        const Places places(message.tree);
        if (below(3) != 0)
        {
            const auto& [type, all] = *std::next(places.lists.begin(), static_cast<long>(below(places.lists.size())));
            const bool isOne = below(3) == 0;
            const uint64_t only = below(all.size());
            const uint64_t times = uint64_t{1} << below(7);
            const bool shrinks = below(4) == 0;
            for (size_t i = 0; i < all.size(); ++i)
            {
                for (uint64_t k = 0; k < times && (!isOne || i == only); ++k)
                {
                    shrinks ? shrink(*type, all[i]) : grow(message.ctxt, *type, all[i]);
                }
            }
        }
        else
        {
            const auto& [type, all] =
                *std::next(places.numbers.begin(), static_cast<long>(below(places.numbers.size())));
            const bool isOne = below(2) == 0;
            const uint64_t only = below(all.size());
            const uint64_t how = below(4);
            const int64_t range = int64_t{type->upper} - type->lower + 1;
            const auto same = static_cast<int64_t>(below(static_cast<uint64_t>(range)));
            for (size_t i = 0; i < all.size(); ++i)
            {
                const int64_t value = how == 0   ? same
                                      : how == 1 ? static_cast<int64_t>(i) % range
                                      : how == 2 ? range - 1
                                                 : static_cast<int64_t>(below(static_cast<uint64_t>(range)));
                if (!isOne || i == only)
                {
                    store(*type, all[i], type->lower + value);
                }
            }
        }
        return message.encoded();
    }

private:
    // One more element, a copy of an earlier one with an identity of its own.
    void grow(OSCTXT& ctxt, const RtxType& type, void* list)
    {
        if (type.kind == rtx::Kind::Array)
        {
            const OSUINT32 count = rtx::countOf(type, list);
            if (type.lower != type.upper && count < static_cast<OSUINT32>(type.upper))
            {
                const RtxType& element = type.element();
                setCount(type, list, count + 1);
                const int64_t range = int64_t{element.upper} - element.lower + 1;
                const int64_t last =
                    count == 0 ? element.lower - 1 : rtx::loadNumber(element, Places::elementAt(type, list, count - 1));
                store(element, Places::elementAt(type, list, count),
                      element.lower + (last + 1 - element.lower) % range);
            }
            return;
        }
        auto& nodes = *static_cast<OSRTDList*>(list);
        if (nodes.count == 0 || nodes.count >= static_cast<OSUINT32>(type.upper))
        {
            return;
        }
        const RtxType& element = type.element();
        const OSRTDListNode* from = nodes.head;
        for (uint64_t i = below(nodes.count); i != 0; --i)
        {
            from = from->next;
        }
        auto* const node = static_cast<OSRTDListNode*>(rtxMemHeapAlloc(&ctxt, sizeof(OSRTDListNode)));
        node->data = rtxMemHeapAlloc(&ctxt, element.size);
        std::memcpy(node->data, from->data, element.size);
        if (type.identity >= 0)
        {
            const rtx::Member& id = element.members[type.identity];
            const int64_t next = id.type->lower + int64_t{nodes.count};
            store(*id.type, static_cast<OSOCTET*>(node->data) + id.offset,
                  next <= id.type->upper ? next : id.type->upper);
        }
        rtxDListAppendNode(&nodes, node);
    }

    static void shrink(const RtxType& type, void* list)
    {
        if (type.kind == rtx::Kind::Array)
        {
            const OSUINT32 count = rtx::countOf(type, list);
            if (type.lower != type.upper && count > static_cast<OSUINT32>(type.lower))
            {
                setCount(type, list, count - 1);
            }
            return;
        }
        auto& nodes = *static_cast<OSRTDList*>(list);
        if (nodes.count > static_cast<OSUINT32>(type.lower) && nodes.count > 1)
        {
            nodes.tail = nodes.tail->prev;
            nodes.tail->next = nullptr;
            --nodes.count;
        }
    }

    static void setCount(const RtxType& type, void* array, OSUINT32 count)
    {
        std::memcpy(array, &count, type.width); // the least octets come first
    }

    std::mt19937_64 random_;
};

Octets read(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return {text.begin(), text.end()};
}

struct Found
{
    Octets octets;
    double ms;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 5)
    {
        fail("<seconds> <seed> <file> <message>...");
    }
    std::vector<Found> slowest;
    for (int i = 4; i < argc; ++i)
    {
        const Octets octets = read(argv[i]);
        if (!Message(octets).isDecoded)
        {
            fail(argv[i]);
        }
        slowest.push_back({octets, timeOf(octets, 3)});
    }
    Search search(static_cast<uint64_t>(std::atoll(argv[2])));
    constexpr size_t kept = 12;
    const std::time_t end = std::time(nullptr) + std::atoll(argv[1]);
    double told = 0;
    while (std::time(nullptr) < end)
    {
        Octets octets = slowest[search.below(slowest.size())].octets;
        for (uint64_t steps = 1 + search.below(4); steps != 0 && !octets.empty(); --steps)
        {
            octets = search.changed(octets);
        }
        if (octets.empty())
        {
            continue;
        }
        const double ms = timeOf(octets, 1);
        const auto worse = [](const Found& a, const Found& b)
        {
            return a.ms > b.ms;
        };
        if (slowest.size() == kept && ms <= slowest.back().ms)
        {
            continue;
        }
        slowest.push_back({octets, timeOf(octets, 3)});
        std::sort(slowest.begin(), slowest.end(), worse);
        slowest.resize(std::min(slowest.size(), kept));
        if (slowest[0].ms > told * 1.1)
        {
            told = slowest[0].ms;
            (void)std::fprintf(stderr, "%.2f ms, %zu octets\n", told, slowest[0].octets.size());
        }
    }
    std::ofstream file(argv[3], std::ios::binary);
    file.write(reinterpret_cast<const char*>(slowest[0].octets.data()), static_cast<long>(slowest[0].octets.size()));
    std::printf("%.2f ms, %zu octets\n", slowest[0].ms, slowest[0].octets.size());
    return 0;
}
