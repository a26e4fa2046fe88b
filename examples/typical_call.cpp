// The cell group of a typical call: from the record to the octets and back to the elements.

#include <memory>

#include "showCellGroup.h"
#include "typicalCall.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);
    return showCellGroup(*record);
}
