#include "composed.h"

#include <algorithm>
#include <random>
#include <vector>

#include "rrcCodec/rrcCompose.h"
#include "vos_lib.h"

// Stands in place of the platform's: what is drawn without ranges has notices by the thousand.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    return 0;
}

namespace records
{

std::unique_ptr<RrcCellGroupCfg_t> junk(std::uint32_t seed)
{
    auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    std::mt19937 engine(seed);
    auto* const memory = reinterpret_cast<std::uint32_t*>(record.get());
    std::generate(memory, memory + sizeof *record / sizeof *memory, engine);
    return record;
}

std::string composed(RrcCellGroupCfg_t* record)
{
    static std::vector<UINT8> octets(8192);
    size_t length = 0;
    char error[512] = "";
    const int status = rrcEncodeCellGroupCfg(record, octets.data(), octets.size(), &length, error, sizeof error);
    return status == RRC_COMPOSE_OK ? std::string(octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(length))
                                    : error;
}

} // namespace records
