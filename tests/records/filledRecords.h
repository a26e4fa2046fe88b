// What cppRecords writes and filledRecords runs.
#ifndef FILLEDRECORDS_H
#define FILLEDRECORDS_H

#include "rrcCodec/rrcCodec.h"

using Fill = void (*)(RrcCellGroupCfg_t* record);

// The last one is null.
extern const Fill fills[];

#endif
