// Prints the description of the records, a line for each field: TYPE FIELD OFFSET OCTETS ENTRIES BITS.
#include <cstdio>

#include "rrcCodec/rrcCodec.h"
#include "rrcRecordType.h"

// What the compiler says of these is what the lines are compared with.
RrcCellGroupCfg_t* witness;

int main()
{
    for (UINT32 t = 0; t < rrcRecordTypeCount; ++t)
    {
        const RrcRecordType& type = *rrcRecordTypes[t];
        std::printf("%s\n", type.name);
        for (UINT32 i = 0; i < type.fieldCount; ++i)
        {
            const RrcRecordField& field = type.fields[i];
            std::printf("%s %s %u %u %u %u\n", type.name, field.name, field.offset, field.size, field.bound,
                        field.bitWidth);
        }
    }
    return witness == nullptr ? 0 : 1;
}
