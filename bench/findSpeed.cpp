// How fast rtxFind searches octets that hold no cell group, beside reading them, as the table of README.md.
#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "leastTime.h"

namespace
{

using Octets = std::vector<OSOCTET>;

constexpr int calls = 3;

// Reads a file of these octets, which lies in the system's cache.
double reading(const Octets& octets)
{
    std::FILE* const file = std::tmpfile();
    if (file == nullptr || std::fwrite(octets.data(), 1, octets.size(), file) != octets.size())
    {
        std::abort();
    }
    Octets read(octets.size());
    const double time = bench::leastTime(calls,
                                         [&]
                                         {
                                             std::rewind(file);
                                             if (std::fread(read.data(), 1, read.size(), file) != read.size())
                                             {
                                                 std::abort();
                                             }
                                         });
    (void)std::fclose(file);
    return time;
}

} // namespace

int main()
{
    Octets octets(10 * 1000 * 1000);
    std::mt19937 random(7);
    for (OSOCTET& octet : octets)
    {
        octet = static_cast<OSOCTET>(random() >> 24);
    }
    const double read = reading(octets);

    std::puts(
        "| At least so many octets | False finds | ns an octet | MB/s | times reading it |\n|---|---|---|---|---|");
    for (const OSUINT32 least : {1U, 20U, 64U, 128U})
    {
        OSCTXT ctxt;
        rtxInitContext(&ctxt);
        int64_t found = 0;
        const auto ignore = [](void*, const RtxFound*) {
        };
        const auto find = [&]
        {
            found = rtxFind(&ctxt, &nr_rrc::type_CellGroupConfig, octets.data(), octets.size(), least, ignore, nullptr,
                            nullptr);
            rtFreeContext(&ctxt);
        };
        const double time = bench::leastTime(calls, find);
        const auto size = static_cast<double>(octets.size());
        std::printf("| %u | %lld | %.0f | %.2f | %.0f |\n", least, static_cast<long long>(found), time / size,
                    1000 * size / time, time / read);
    }
    return 0;
}
