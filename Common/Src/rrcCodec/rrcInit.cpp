#include "rrcCodec/rrcInit.h"

#include "rrcInitTable.h"

#include <cstddef>
#include <cstring>

namespace
{

// What costs nothing to clear is cleared: all of a record up to the first size, in a larger one what takes up to the
// second.
constexpr UINT32 smallRecord = 512;
constexpr UINT32 smallSpan = 64;

// Out of the range of most fields, more than most arrays have, and no alternative's bits alone.
constexpr int pattern = 0xA5;

} // namespace

void rrcInitRecord(void* pRecord, UINT32 number)
{
    const RrcInitRecord& how = rrcInitRecords[number];
    auto* const begin = static_cast<unsigned char*>(pRecord);
    unsigned char* clear = begin;
    for (UINT32 i = 0; i < how.spanCount && how.size > smallRecord; ++i)
    {
        const RrcInitSpan& span = how.spans[i];
        if (span.size > smallSpan)
        {
            unsigned char* const left = begin + span.offset;
            std::memset(clear, 0, static_cast<std::size_t>(left - clear));
            clear = left + span.size;
        }
    }
    std::memset(clear, 0, static_cast<std::size_t>(begin + how.size - clear));
}

void rrcInitRecordWithPattern(void* pRecord, UINT32 number)
{
    rrcInitRecord(pRecord, number);
    const RrcInitRecord& how = rrcInitRecords[number];
    for (UINT32 i = 0; i < how.spanCount; ++i)
    {
        std::memset(static_cast<unsigned char*>(pRecord) + how.spans[i].offset, pattern, how.spans[i].size);
    }
}
