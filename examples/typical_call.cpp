// The cell group of a typical call: from the record to the octets, with --tree back to elements, with --json to JER.

#include <cstring>
#include <memory>

#include "showCellGroup.h"
#include "typicalCall.h"

int main(int argc, char** argv)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);
    const auto given = [argc, argv](const char* option)
    {
        return argc == 2 && std::strcmp(argv[1], option) == 0;
    };
    return showCellGroup(*record, given("--tree") ? Shown::TREE : given("--json") ? Shown::JER : Shown::OCTETS);
}
