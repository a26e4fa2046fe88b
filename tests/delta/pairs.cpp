// deltaPairs FILE: writes pairs of configurations with the engine's delta, one JSON object a line, as check_delta.py
// reads them: cases of each place, and random pairs.
#include "engine.h"
#include "randomPairs.h"

#include "support/Hex.h"

#include <cstdio>
#include <memory>

namespace
{

using namespace delta;

constexpr unsigned allEntries = RTX_DELTA_RECREATE_BEARERS | RTX_DELTA_RECREATE_SCELLS | RTX_DELTA_RECREATE_BWPS;
constexpr unsigned randomPairs = 1500; // of either distance
constexpr unsigned casesApart = 4;     // of the cases every so many

class Writer
{
public:
    explicit Writer(std::FILE* file) : file_(file) {}

    // And what follows where that is not all.
    void write(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags)
    {
        const Octets wanted = heap.encode(next);
        const CellGroupConfig* held = prev;
        for (;;)
        {
            const Result result = diff(heap, held, next, flags);
            const bool sent = result.status == RTX_DELTA_TO_SEND || result.status == RTX_DELTA_MORE;
            if (!sent && result.status != RTX_DELTA_NOTHING && result.status != RTX_E_DELTA)
            {
                failed_ = true;
                return;
            }
            line(held != nullptr ? heap.encode(held) : Octets(), wanted, sent ? heap.encode(result.delta) : Octets(),
                 result.status == RTX_DELTA_MORE      ? "more"
                 : result.status == RTX_DELTA_NOTHING ? "nothing"
                 : sent                               ? "sent"
                                                      : "refused");
            if (result.status != RTX_DELTA_MORE)
            {
                return;
            }
            held = apply(heap, held, result.delta).next;
        }
    }

    bool failed() const
    {
        return failed_ || std::ferror(file_) != 0;
    }

private:
    void line(const Octets& prev, const Octets& next, const Octets& delta, const char* outcome)
    {
        (void)std::fprintf(file_,
                           R"({"prev": %s, "next": %s, "delta": %s, "outcome": "%s"})"
                           "\n",
                           quoted(prev).c_str(), quoted(next).c_str(), quoted(delta).c_str(), outcome);
    }

    static std::string quoted(const Octets& octets)
    {
        return octets.empty() ? "null" : '"' + test::hexDigits(octets.data(), octets.size()) + '"';
    }

    std::FILE* file_;
    bool failed_ = false;
};

void writeAll(Writer& writer)
{
    unsigned number = 0;
    forEachMember(
        [&](const Place& place)
        {
            for (const Happening happening : allHappenings)
            {
                Heap heap;
                const auto pair = number++ % casesApart == 0 ? makePair(heap, place, happening) : std::nullopt;
                if (pair)
                {
                    writer.write(heap, pair->prev, pair->next, RTX_DELTA_TWO_STEPS | (number % 8 < 4 ? allEntries : 0));
                }
            }
        });
    for (uint64_t seed = 1; seed <= randomPairs; ++seed)
    {
        for (const Distance distance : {Distance::Near, Distance::Far})
        {
            Heap heap;
            const Pair pair = randomPair(heap, seed, distance);
            writer.write(heap, seed % 10 != 0 ? pair.prev : nullptr, pair.next, RTX_DELTA_TWO_STEPS | allEntries);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        (void)std::fprintf(stderr, "usage: deltaPairs FILE\n");
        return 2;
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(argv[1], "w"), std::fclose);
    if (file == nullptr)
    {
        std::perror(argv[1]);
        return 1;
    }
    Writer writer(file.get());
    writeAll(writer);
    return writer.failed() ? 1 : 0;
}
