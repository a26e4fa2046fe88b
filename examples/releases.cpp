// Every release list there is: from the record to the octets and back to the elements.

#include <memory>

#include "releases.h"
#include "showCellGroup.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    releases(*record);
    return showCellGroup(*record);
}
