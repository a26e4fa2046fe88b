// Composers of CodebookConfig. They trust their pointers.
#ifndef CODEBOOK_H
#define CODEBOOK_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiReport.h"

INT32 rrcComposeCodebookConfig(OSCTXT* pAsnCxt, CodebookConfig* pCodebookConfig, RrcCodebookCfg_t* pRrcCodebookCfg);
INT32 rrcComposeCodebookType1(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1* pType1,
                              CodeBookType1_t* pRrcCodeBookType1);
INT32 rrcComposeCodebookType2(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2* pType2,
                              CodeBookType2_t* pRrcCodeBookType2);

#endif
