// Prints the description of the records, a line for each field: TYPE FIELD OFFSET OCTETS ENTRIES BITS. BITS are those
// of a bit field that leaves some of its octets out.
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
            const unsigned bits = field.bitWidth == 8 * field.size ? 0U : field.bitWidth;
            std::printf("%s %s %u %u %u %u\n", type.name, field.name, field.offset, field.size, field.bound, bits);
        }
    }
    return witness == nullptr ? 0 : 1;
}
