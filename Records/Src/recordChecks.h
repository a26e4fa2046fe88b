// What the checks of single records share. A check is a function of one record that names the address of what is wrong
// with it; the walk of recordCheck.cpp calls it wherever a composition reads such a record.
#ifndef RECORDCHECKS_H
#define RECORDCHECKS_H

#include <type_traits>

#include "rrcCodec/rrcInit.h"
#include "rrcRecordCheck.h"

namespace recordCheck
{

// Where a record's checks say what they find.
class Report
{
public:
    // `at` is the address of the field, or of the entry of an array, in the record that is being checked or in one that
    // lies in it. Where a general rule has something to say of the same address that weighs no more, it is silent; bits
    // of a mask that the rule's places name are the row's, too.
    void say(const RrcRecordRule& rule, const void* at)
    {
        found(rule, rule.severity, at);
    }

    // Where a rule weighs less than its highest severity.
    void say(const RrcRecordRule& rule, RrcRecordSeverity_e severity, const void* at)
    {
        found(rule, static_cast<OSUINT8>(severity), at);
    }

    // What stands at this address is not what is sent, and no general rule holds of it.
    void notAsItStands(const void* at)
    {
        leftOut(at);
    }

protected:
    ~Report() = default;

private:
    // Not pure: what stands for a pure one in a table is of the C++ runtime.
    virtual void leftOut(const void* /*at*/) {}
    virtual void found(const RrcRecordRule& /*rule*/, OSUINT8 /*severity*/, const void* /*at*/) {}
};

// A check and the number (rrcRecords.h) of the records that it is of.
struct RowCheck
{
    UINT32 number;
    void (*run)(const void* record, Report& report);
};

template <typename Record>
constexpr UINT32 numberOf(void (* /*check*/)(const Record&, Report&))
{
    static_assert(RrcRecordNumber<Record>::isRecord, "a check takes a record that has a name of its own");
    return RrcRecordNumber<Record>::number;
}

template <typename Record>
const Record& recordOf(void (* /*check*/)(const Record&, Report&), const void* record)
{
    return *static_cast<const Record*>(record);
}

// The row of a function: `constexpr RowCheck checks[] = {row<rlcSnLength>, row<rlcBearerMask>};`. A record may have
// several.
template <auto check>
constexpr RowCheck row = {numberOf(check), [](const void* record, Report& report)
                          {
                              check(recordOf(check, record), report);
                          }};

// The checks of a file, which recordCheck.cpp lists.
struct RowChecks
{
    const RowCheck* checks;
    UINT32 count;
};
template <UINT32 count>
constexpr RowChecks rowChecks(const RowCheck (&checks)[count])
{
    return {checks, count};
}

// One for each file of rows, in the order of docs/behaviour.md. A file ends in
// `const RowChecks checksOfRlc = rowChecks(rlcChecks);`, declared here and listed in `allRowChecks` of recordCheck.cpp.
extern const RowChecks checksOfCellGroup;
extern const RowChecks checksOfServingCell;
extern const RowChecks checksOfDownlink;
extern const RowChecks checksOfUplink;
extern const RowChecks checksOfCsi;

} // namespace recordCheck

#endif
