// Statements that fill records, which filledRecords.cpp runs.
#ifndef FILLEDRECORDS_H
#define FILLEDRECORDS_H

#include "rrcCodec/rrcCodec.h"

using Fill = void (*)(RrcCellGroupCfg_t& record);

// The last one is null.
extern const Fill fills[];

#endif
