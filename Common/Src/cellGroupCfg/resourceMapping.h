// Composers of CSI-RS-ResourceMapping and CSI-ResourcePeriodicityAndOffset, shared by CSI-RS resources of every kind.
#ifndef RESOURCEMAPPING_H
#define RESOURCEMAPPING_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiRs.h"

INT32 rrcComposeResourceMapping(OSCTXT* pAsnCxt, CSI_RS_ResourceMapping* pResourceMapping,
                                RrcCsiRsResourceMapping_t* pRrcResourceMapping);
INT32 rrcComposefrequencyDomainAllocation(OSCTXT* pAsnCxt,
                                          CSI_RS_ResourceMapping_frequencyDomainAllocation* pFrequencyDomainAllocation,
                                          RrcCsiRsResourceMapping_t* pRrcResourceMapping);
INT32 rrcComposeperiodicityAndOffset(CSI_ResourcePeriodicityAndOffset* pPeriodicityAndOffset,
                                     RrcCsiResourcePeriodictyAndOffset_t* pRrcPeriodictityAndOffset);

#endif
