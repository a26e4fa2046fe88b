// All named types of the schema with what the compiler makes for each.
#ifndef NAMEDTYPES_H
#define NAMEDTYPES_H

#include "NR-RRC-Tables.h"
#include "TestPdus.h"

namespace test
{

struct NamedType
{
    const char* name;
    const rtx::Type* type;
    int (*encode)(OSCTXT*, const void*);
    int (*decode)(OSCTXT*, void*);
    int64_t (*check)(const OSCTXT*, const void*, RtxFindingSink, void*);
    int64_t (*compare)(OSCTXT*, const OSCTXT*, const void*, const void*, RtxDifferenceSink, void*);
};

#define TYPE(asnName, cName)                                                                                           \
    {                                                                                                                  \
        asnName, &nr_rrc::type_##cName,                                                                                \
            [](OSCTXT* ctxt, const void* p) { return asn1PE_##cName(ctxt, static_cast<const cName*>(p)); },            \
            [](OSCTXT* ctxt, void* p) { return asn1PD_##cName(ctxt, static_cast<cName*>(p)); },                        \
            [](const OSCTXT* ctxt, const void* p, RtxFindingSink sink, void* arg)                                      \
        { return asn1Check_##cName(ctxt, static_cast<const cName*>(p), sink, arg); },                                  \
            [](OSCTXT* ctxtA, const OSCTXT* ctxtB, const void* a, const void* b, RtxDifferenceSink sink, void* arg)    \
        {                                                                                                              \
            return asn1Compare_##cName(ctxtA, ctxtB, static_cast<const cName*>(a), static_cast<const cName*>(b), sink, \
                                       arg);                                                                           \
        }                                                                                                              \
    }

// CellGroupConfig is the first.
inline const NamedType namedTypes[] = {
    TYPE("CellGroupConfig", CellGroupConfig),
#include "types.inc"
};

#undef TYPE

} // namespace test

#endif
