// What hostile messages cost the decoder, over their sizes, as the tables of README.md.
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "Asn/hostileTree.h"
#include "leastTime.h"

namespace
{

using test::Octets;

constexpr int calls = 9;

// Calls `use` with a context that holds the decoded message.
template <typename Use>
void decode(Octets& octets, Use use)
{
    OSCTXT ctxt;
    CellGroupConfig tree;
    rtxInitContext(&ctxt);
    pu_setBuffer(&ctxt, octets.data(), octets.size(), 0);
    if (asn1PD_CellGroupConfig(&ctxt, &tree) != RTX_OK)
    {
        rtxErrPrint(&ctxt);
        std::abort();
    }
    use(ctxt, tree);
    rtFreeContext(&ctxt);
}

size_t heapOf(Octets& octets)
{
    size_t heap = 0;
    decode(octets, [&](const OSCTXT& ctxt, const CellGroupConfig&) { heap = test::handedOut(ctxt); });
    return heap;
}

void unknownAdditions(size_t total, OSUINT32 size)
{
    auto made = test::unknownAdditions(total, size);
    Octets& octets = made.first;
    const size_t content = made.second;
    const double decoding =
        bench::leastTime(calls, [&] { decode(octets, [](const OSCTXT&, const CellGroupConfig&) {}); });
    double encoding = 0;
    Octets again(octets.size());
    decode(octets,
           [&](OSCTXT& decoded, const CellGroupConfig& tree)
           {
               pu_setBuffer(&decoded, again.data(), again.size(), 0);
               encoding = bench::leastTime(calls, [&] { asn1PE_CellGroupConfig(&decoded, &tree); });
           });
    if (again != octets)
    {
        std::abort();
    }
    const size_t heap = heapOf(octets);
    std::printf("| %u | %zu | %zu | %zu | %.1f | %.1f | %.1f |\n", size, octets.size(), content, heap,
                static_cast<double>(heap) / static_cast<double>(content), decoding / static_cast<double>(octets.size()),
                encoding / static_cast<double>(octets.size()));
}

struct Message
{
    size_t octets = 0;
    size_t heap = 0;
};

// Of each length limit the message that takes the most heap.
class Dearest
{
public:
    explicit Dearest(std::vector<size_t> limits) : limits_(std::move(limits)), best_(limits_.size())
    {
        for (double price = 4096, last = price; tryAll(last, price); last = price, price *= 0.98)
        {
        }
    }

    void print() const
    {
        for (size_t i = 0; i < limits_.size(); ++i)
        {
            std::printf("| %zu | %zu | %zu | %.0f |\n", limits_[i], best_[i].octets, best_[i].heap,
                        static_cast<double>(best_[i].heap) / static_cast<double>(best_[i].octets));
        }
    }

private:
    // The messages between those of two prices: some secondary cells as the lower one makes them. False when none of
    // these is within the limits.
    bool tryAll(double higher, double lower)
    {
        bool within = false;
        const rtx::Type& cell = nr_rrc::type_SCellConfig;
        for (OSUINT32 grown = 0; grown <= 31; ++grown)
        {
            OSCTXT ctxt;
            rtxInitContext(&ctxt);
            test::DearestTree base(ctxt, higher);
            test::DearestTree more(ctxt, lower);
            CellGroupConfig tree{};
            base.fill(nr_rrc::type_CellGroupConfig, &tree);
            const OSRTDListNode* node = tree.sCellToAddModList.head;
            for (OSUINT32 i = 0; i < grown && node != nullptr; ++i, node = node->next)
            {
                std::memset(node->data, 0, cell.size);
                more.fill(cell, node->data);
            }
            Octets octets = test::encoded(ctxt, tree, size_t{1} << 20);
            const bool changes = more.cost(cell).bits > base.cost(cell).bits;
            rtFreeContext(&ctxt);
            within = enter(octets) || within;
            if (!changes || octets.size() > limits_.back())
            {
                break;
            }
        }
        return within;
    }

    bool enter(Octets& octets)
    {
        if (octets.size() > limits_.back())
        {
            return false;
        }
        const size_t heap = heapOf(octets);
        for (size_t i = 0; i < limits_.size(); ++i)
        {
            if (octets.size() <= limits_[i] && heap > best_[i].heap)
            {
                best_[i] = {octets.size(), heap};
            }
        }
        return true;
    }

    std::vector<size_t> limits_;
    std::vector<Message> best_;
};

} // namespace

int main()
{
    std::puts("| Octets of each addition | Octets | of unknown content | Heap, octets | per octet of unknown content | "
              "Decode, ns an octet | Encode, ns an octet |\n|---|---|---|---|---|---|---|");
    for (const OSUINT32 size : {1U, 16U, 200U})
    {
        for (size_t content = 1000; content <= 4096000; content *= 4)
        {
            if (content >= size * test::UnknownAdditions::places)
            {
                unknownAdditions(content, size);
            }
        }
    }
    std::puts("\n| Octets, at most | Octets | Heap, octets | per octet |\n|---|---|---|---|");
    Dearest({33, 64, 128, 256, 512, 1024, 2048, 4096, 8192}).print();
    return 0;
}
