// What the checks of single records share. A check is a function of one record that names the address of what is wrong
// with it; the walk of recordCheck.cpp calls it wherever a composition reads such a record.
#ifndef RECORDCHECKS_H
#define RECORDCHECKS_H

#include "rrcRecordCheck.h"

namespace recordCheck
{

// Where a record's checks say what they find.
class Report
{
public:
    // `at` is the address of the field, or of the entry of an array, in the record that is being checked.
    virtual void say(const RrcRecordRule& rule, const void* at) = 0;

protected:
    ~Report() = default;
};

} // namespace recordCheck

#endif
