#include "codebook.h"

#include "codebookSubType.h"
#include "compose.h"

// CodebookConfig.codebookType: the highest bit wins.
INT32 rrcComposeCodebookConfig(OSCTXT* pAsnCxt, CodebookConfig* pCodebookConfig, RrcCodebookCfg_t* pRrcCodebookCfg)
{
    CodebookConfig_codebookType* const pCodebookType = &pCodebookConfig->codebookType;
    if (pRrcCodebookCfg->Presence & RRC_CODE_BOOK_TYPE1_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pCodebookType, T_CodebookConfig_codebookType_type1, pCodebookType->u.type1,
                                   &pRrcCodebookCfg->CodeBookCfgType_u.codeBookType1, rrcComposeCodebookType1);
    }
    if (pRrcCodebookCfg->Presence & RRC_CODE_BOOK_TYPE2_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pCodebookType, T_CodebookConfig_codebookType_type2, pCodebookType->u.type2,
                                   &pRrcCodebookCfg->CodeBookCfgType_u.codeBookType2, rrcComposeCodebookType2);
    }
    return VOS_OK;
}

// CodebookConfig.codebookType.type1
INT32 rrcComposeCodebookType1(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1* pType1,
                              CodeBookType1_t* pRrcCodeBookType1)
{
    RETURN_IF_FAILED(rrcComposeCodebookType1_subType(pAsnCxt, &pType1->subType, &pRrcCodeBookType1->codebookType1_Sub),
                     "rrcComposeCodebookType1_subType Error\r\n");
    assign(pType1->codebookMode, pRrcCodeBookType1->CodebookMode);
    return VOS_OK;
}

// CodebookConfig.codebookType.type2: members without their bits are sent as 0, a sub-type without its bit is refused
// by the encoder.
INT32 rrcComposeCodebookType2(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2* pType2,
                              CodeBookType2_t* pRrcCodeBookType2)
{
    if (pRrcCodeBookType2->bitMask & RRC_CODEBOOK_TYPE2_SUB)
    {
        RETURN_IF_FAILED(rrcComposeType2_subType(pAsnCxt, &pType2->subType, &pRrcCodeBookType2->codebookType2_Sub),
                         "rrcComposeType2_subType Error\r\n");
    }
    if (pRrcCodeBookType2->bitMask & RRC_PHASE_ALPHA_BET_SIZE)
    {
        assign(pType2->phaseAlphabetSize, pRrcCodeBookType2->phaseAlphabetSize);
    }
    if (pRrcCodeBookType2->bitMask & RRC_SUB_BAND_AMPLITUDE)
    {
        assign(pType2->subbandAmplitude, pRrcCodeBookType2->subBandAmplitude);
    }
    if (pRrcCodeBookType2->bitMask & RRC_NUM_BER_OFBEAMS)
    {
        assign(pType2->numberOfBeams, pRrcCodeBookType2->numberOfBeams);
    }
    return VOS_OK;
}
