// Asn/Schema/usual.txt tells what the messages of the examples carry. Run in the project's top folder: compares it with
// what they carry; `--update` writes it.

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <set>
#include <string>

#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "oneBearer.h"
#include "reconfigurationWithSync.h"
#include "releases.h"
#include "rtxType.h"
#include "secondaryCells.h"
#include "typicalCall.h"

namespace
{

constexpr const char* path = "Asn/Schema/usual.txt";

using Names = std::set<std::string>;

// A presence bit that is set, or an alternative that is chosen.
void note(void* names, const RtxField* field)
{
    auto& found = *static_cast<Names*>(names);
    if (field->kind == RTX_FIELD_CHOICE)
    {
        found.insert(std::string(field->type->name) + "." + field->type->names[field->bits]);
    }
    if (field->kind != RTX_FIELD_PRESENCE && field->kind != RTX_FIELD_ADDITIONS)
    {
        return;
    }
    for (OSUINT32 bit = 0; bit < field->width; ++bit)
    {
        const char* const name = rtxFieldBitName(field, bit);
        if (name != nullptr && (field->bits >> (field->width - 1 - bit) & 1) != 0)
        {
            found.insert(std::string(field->type->name) + "." + name);
        }
    }
}

bool collect(void (*fill)(RrcCellGroupCfg_t&), Names& names)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    fill(*record);
    OSOCTET octets[8192];
    Mbuf_t message = {0, octets};
    if (rrcComposeCellGroupCfg(record.get(), &message) != 0)
    {
        return false;
    }
    OSCTXT context;
    CellGroupConfig tree;
    rtxInitContext(&context);
    pu_setBuffer(&context, octets, message.bufLen, 0);
    const int status = rtxTrace(&context, &nr_rrc::type_CellGroupConfig, &tree, 0, note, &names);
    rtFreeContext(&context);
    return status == RTX_OK;
}

} // namespace

int main(int argc, char** argv)
{
    Names names;
    for (const auto fill : {oneBearer, reconfigurationWithSync, typicalCall, secondaryCells, releases})
    {
        if (!collect(fill, names))
        {
            std::cerr << "an example is not composed\n";
            return 1;
        }
    }
    std::string text;
    for (const std::string& name : names)
    {
        text += name + "\n";
    }
    if (argc > 1 && std::string(argv[1]) == "--update")
    {
        return (std::ofstream(path) << text).flush() ? 0 : 1;
    }
    std::ifstream file(path);
    if (std::string{std::istreambuf_iterator<char>(file), {}} != text)
    {
        std::cerr << path << " is not what the examples carry: run Asn.usual --update, then the target 'generate'\n";
        return 1;
    }
    return 0;
}
