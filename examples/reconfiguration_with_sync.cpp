// A handover to a cell of band n78, 100 MHz wide, with TDD pattern DDDSU: from the record to the octets and back to the
// elements.

#include <memory>

#include "reconfigurationWithSync.h"
#include "showCellGroup.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    reconfigurationWithSync(*record);
    return showCellGroup(*record);
}
