// The rules of docs/behaviour.md's rows, for the checks that report them.
#ifndef RECORDRULES_H
#define RECORDRULES_H

#include "rrcRecordCheck.h"

namespace rowRules
{

#define RECORD_ROW(variable, ...) extern const RrcRecordRule variable;
#include "recordRows.h"
#undef RECORD_ROW

} // namespace rowRules

#endif
