// The cell group of a typical call: from the record to the octets and back to the elements, with --json to JER, too.

#include <cstring>
#include <memory>

#include "showCellGroup.h"
#include "typicalCall.h"

int main(int argc, char** argv)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);
    return showCellGroup(*record, argc == 2 && std::strcmp(argv[1], "--json") == 0);
}
