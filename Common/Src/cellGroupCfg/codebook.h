// Composers of CodebookConfig. They trust their pointers.
#ifndef CODEBOOK_H
#define CODEBOOK_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiReport.h"

INT32 rrcComposeCodebookConfig(OSCTXT* pAsnCxt, CodebookConfig* pCodebookConfig, RrcCodebookCfg_t* pRrcCodebookCfg);
INT32 rrcComposeCodebookType1(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1* pType1,
                              CodeBookType1_t* pRrcCodeBookType1);
INT32 rrcComposeCodebookType1_subType(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1_subType* pSubType,
                                      CodebookType1_Sub_t* pRrcSubType);
INT32 rrcComposeTypeI_SinglePanel(OSCTXT* pAsnCxt,
                                  CodebookConfig_codebookType_type1_subType_typeI_SinglePanel* pTypeI_SinglePanel,
                                  CodeBookTypeSinglePanel_t* pRrcSinglePanel);
INT32 rrcComposeNrOfAntennaPorts(
    OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts* pNrOfAntennaPorts,
    SinglePanel_nrOfAntennaPorts_t* pRrcNrOfAntennaPorts);
INT32 rrcComposenrOfAntennaPorts_two(
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_two* pTwo,
    struct nrOfAntennaPorts_two* pRrcTwo);
INT32 rrcComposenrOfAntennaPorts_moreThanTwo(
    OSCTXT* pAsnCxt,
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo* pMoreThanTwo,
    struct nrOfAntennaPorts_moreThanTwo* pRrcMoreThanTwo);
INT32 rrcComposeMoreThanTwo_n1_n2(
    OSCTXT* pAsnCxt,
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo_n1_n2* pN1_n2,
    struct nrOfAntennaPorts_moreThanTwo* pRrcMoreThanTwo);
INT32 rrcComposeTypeI_MultiPanel(OSCTXT* pAsnCxt,
                                 CodebookConfig_codebookType_type1_subType_typeI_MultiPanel* pTypeI_MultiPanel,
                                 CodeBookTypeMultiPanel_t* pRrcMultiPanel);
INT32 rrcComposeTypeI_MultiPanel_ng_n1_n2(
    OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1_subType_typeI_MultiPanel_ng_n1_n2* pNg_n1_n2,
    CodeBookTypeMultiPanel_t* pRrcMultiPanel);
INT32 rrcComposeCodebookType2(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2* pType2,
                              CodeBookType2_t* pRrcCodeBookType2);
INT32 rrcComposeType2_subType(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2_subType* pSubType,
                              Codebooktype2_Sub_t* pRrcSubType);
INT32 rrcComposeubType_typeII(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2_subType_typeII* pTypeII,
                              struct subType_typeII* pRrcTypeII);
INT32 rrcComposeN1_n2_codebookSubsetRestrict(
    OSCTXT* pAsnCxt,
    CodebookConfig_codebookType_type2_subType_typeII_n1_n2_codebookSubsetRestriction* pSubsetRestriction,
    struct subType_typeII* pRrcTypeII);
INT32 rrcComposeubType_typeII_PortSelection(
    CodebookConfig_codebookType_type2_subType_typeII_PortSelection* pTypeII_PortSelection,
    struct typeII_PortSelection* pRrcPortSelection);

#endif
