// Three secondary cells beside a typical call: from the record to the octets and back to the elements.

#include <memory>

#include "secondaryCells.h"
#include "showCellGroup.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    secondaryCells(*record);
    return showCellGroup(*record);
}
