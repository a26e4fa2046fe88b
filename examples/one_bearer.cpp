// A data radio bearer with its MAC and physical cell group: from the record to the octets and back to the elements.

#include <memory>

#include "oneBearer.h"
#include "showCellGroup.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    oneBearer(*record);
    return showCellGroup(*record);
}
