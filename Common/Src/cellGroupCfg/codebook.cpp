#include "codebook.h"

#include "bitStringChoice.h"

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

// CodebookConfig.codebookType.type1.subType: the highest bit wins.
INT32 rrcComposeCodebookType1_subType(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1_subType* pSubType,
                                      CodebookType1_Sub_t* pRrcSubType)
{
    if (pRrcSubType->Presence & RRC_CODE_BOOK_TYPE_SINGLE_PANEL)
    {
        (void)compose::alternative(pAsnCxt, pSubType, T_CodebookConfig_codebookType_type1_subType_typeI_SinglePanel,
                                   pSubType->u.typeI_SinglePanel, &pRrcSubType->CodeBookTypePanel_u.singlePanel,
                                   rrcComposeTypeI_SinglePanel);
    }
    if (pRrcSubType->Presence & RRC_CODE_BOOK_TYPE_MULTI_PANEL)
    {
        (void)compose::alternative(pAsnCxt, pSubType, T_CodebookConfig_codebookType_type1_subType_typeI_MultiPanel,
                                   pSubType->u.typeI_MultiPanel, &pRrcSubType->CodeBookTypePanel_u.multiPanel,
                                   rrcComposeTypeI_MultiPanel);
    }
    return VOS_OK;
}

// CodebookConfig.codebookType.type1.subType.typeI-SinglePanel
INT32 rrcComposeTypeI_SinglePanel(OSCTXT* pAsnCxt,
                                  CodebookConfig_codebookType_type1_subType_typeI_SinglePanel* pTypeI_SinglePanel,
                                  CodeBookTypeSinglePanel_t* pRrcSinglePanel)
{
    (void)rrcComposeNrOfAntennaPorts(pAsnCxt, &pTypeI_SinglePanel->nrOfAntennaPorts,
                                     &pRrcSinglePanel->SinglePanel_nrOfAntennaPorts);
    (void)uint32To8ASN1BitStr32(&pTypeI_SinglePanel->typeI_SinglePanel_ri_Restriction,
                                pRrcSinglePanel->typeI_SinglePanel_ri_Restriction);
    return VOS_OK;
}

// CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts: the highest bit wins.
INT32 rrcComposeNrOfAntennaPorts(
    OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts* pNrOfAntennaPorts,
    SinglePanel_nrOfAntennaPorts_t* pRrcNrOfAntennaPorts)
{
    if (pRrcNrOfAntennaPorts->Presence & RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pNrOfAntennaPorts,
                                   T_CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_two,
                                   pNrOfAntennaPorts->u.two, &pRrcNrOfAntennaPorts->NrOfAntennaPorts_n.two,
                                   rrcComposenrOfAntennaPorts_two);
    }
    if (pRrcNrOfAntennaPorts->Presence & RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE)
    {
        (void)compose::alternative(
            pAsnCxt, pNrOfAntennaPorts,
            T_CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo,
            pNrOfAntennaPorts->u.moreThanTwo, &pRrcNrOfAntennaPorts->NrOfAntennaPorts_n.moreThanTwo,
            rrcComposenrOfAntennaPorts_moreThanTwo);
    }
    return VOS_OK;
}

// CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.two
INT32 rrcComposenrOfAntennaPorts_two(
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_two* pTwo,
    struct nrOfAntennaPorts_two* pRrcTwo)
{
    (void)uint32To6ASN1BitStr32(&pTwo->twoTX_CodebookSubsetRestriction, pRrcTwo->twoTX_CodebookSubsetRestrict);
    return VOS_OK;
}

// CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo
INT32 rrcComposenrOfAntennaPorts_moreThanTwo(
    OSCTXT* pAsnCxt,
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo* pMoreThanTwo,
    struct nrOfAntennaPorts_moreThanTwo* pRrcMoreThanTwo)
{
    // A mandatory member: without its bit the choice stays open, which the encoder refuses.
    if (pRrcMoreThanTwo->bitMask & RRC_MORE_THAN_TWO_N1_N2_PRESENCE)
    {
        (void)rrcComposeMoreThanTwo_n1_n2(pAsnCxt, &pMoreThanTwo->n1_n2, pRrcMoreThanTwo);
    }
    if (pRrcMoreThanTwo->bitMask & RRC_SINGLE_PANEL_CODEBOOK_SUBSET_RESTRICT_I2)
    {
        pMoreThanTwo->m.typeI_SinglePanel_codebookSubsetRestriction_i2Present = 1;
        (void)uint32To16ASN1BitStr32(&pMoreThanTwo->typeI_SinglePanel_codebookSubsetRestriction_i2,
                                     pRrcMoreThanTwo->typeI_SinglePanel_CodebookSubsetRestriction_i2);
    }
    return VOS_OK;
}

namespace
{

#define N1_N2_TAG(n1_n2)                                                                                               \
    T_CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo_n1_n2_##n1_n2##_TypeI_SinglePanel_Restriction

constexpr compose::BitStringRow singlePanelRestrictions[] = {
    {N1_N2_TAG(two_one), 8, uint32To8ASN1BitStr32},
    {N1_N2_TAG(two_two), 64},
    {N1_N2_TAG(four_one), 16, uint32To16ASN1BitStr32},
    {N1_N2_TAG(three_two), 96},
    {N1_N2_TAG(six_one), 24, uint32To24ASN1BitStr32},
    {N1_N2_TAG(four_two), 128},
    {N1_N2_TAG(eight_one), 32, uint32To32ASN1BitStr32},
    {N1_N2_TAG(four_three), 192},
    {N1_N2_TAG(six_two), 192},
    {N1_N2_TAG(twelve_one), 48, nullptr, uint64ToBitString48bit},
    {N1_N2_TAG(four_four), 256},
    {N1_N2_TAG(eight_two), 256},
    {N1_N2_TAG(sixteen_one), 64},
};

#undef N1_N2_TAG

} // namespace

// CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2
INT32 rrcComposeMoreThanTwo_n1_n2(
    OSCTXT* pAsnCxt,
    CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts_moreThanTwo_n1_n2* pN1_n2,
    struct nrOfAntennaPorts_moreThanTwo* pRrcMoreThanTwo)
{
    compose::chooseBitStrings(pAsnCxt, pN1_n2, pRrcMoreThanTwo->N1_N2_Presence, pRrcMoreThanTwo->MoreThanTwo_n1_n2_u,
                              singlePanelRestrictions);
    return VOS_OK;
}

// CodebookConfig.codebookType.type1.subType.typeI-MultiPanel
INT32 rrcComposeTypeI_MultiPanel(OSCTXT* pAsnCxt,
                                 CodebookConfig_codebookType_type1_subType_typeI_MultiPanel* pTypeI_MultiPanel,
                                 CodeBookTypeMultiPanel_t* pRrcMultiPanel)
{
    // A mandatory member: without its bit the choice stays open, which the encoder refuses.
    if (pRrcMultiPanel->bitMask & RRC_MULTI_PANEL_RESTRICT)
    {
        (void)rrcComposeTypeI_MultiPanel_ng_n1_n2(pAsnCxt, &pTypeI_MultiPanel->ng_n1_n2, pRrcMultiPanel);
    }
    // 8 bits where the string has 4: the encoder refuses it, and without the bit the empty string.
    if (pRrcMultiPanel->bitMask & RRC_RI_RESTRICTION)
    {
        (void)uint32To8ASN1BitStr32(&pTypeI_MultiPanel->ri_Restriction, pRrcMultiPanel->ri_Restriction);
    }
    return VOS_OK;
}

namespace
{

#define NG_N1_N2_TAG(ng_n1_n2)                                                                                         \
    T_CodebookConfig_codebookType_type1_subType_typeI_MultiPanel_ng_n1_n2_##ng_n1_n2##_TypeI_MultiPanel_Restriction

constexpr compose::BitStringRow multiPanelRestrictions[] = {
    {NG_N1_N2_TAG(two_two_one), 8, uint32To8ASN1BitStr32},
    {NG_N1_N2_TAG(two_four_one), 16, uint32To16ASN1BitStr32},
    {NG_N1_N2_TAG(four_two_one), 8, uint32To8ASN1BitStr32},
    {NG_N1_N2_TAG(two_two_two), 64},
    {NG_N1_N2_TAG(two_eight_one), 32, uint32To32ASN1BitStr32},
    {NG_N1_N2_TAG(four_four_one), 16, uint32To16ASN1BitStr32},
    {NG_N1_N2_TAG(two_four_two), 128},
    {NG_N1_N2_TAG(four_two_two), 64},
};

#undef NG_N1_N2_TAG

} // namespace

// CodebookConfig.codebookType.type1.subType.typeI-MultiPanel.ng-n1-n2
INT32 rrcComposeTypeI_MultiPanel_ng_n1_n2(
    OSCTXT* pAsnCxt, CodebookConfig_codebookType_type1_subType_typeI_MultiPanel_ng_n1_n2* pNg_n1_n2,
    CodeBookTypeMultiPanel_t* pRrcMultiPanel)
{
    compose::chooseBitStrings(pAsnCxt, pNg_n1_n2, pRrcMultiPanel->MultiPanel_Presence,
                              pRrcMultiPanel->MultiPanel_Restrict_u, multiPanelRestrictions);
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

// CodebookConfig.codebookType.type2.subType: the highest bit wins.
INT32 rrcComposeType2_subType(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2_subType* pSubType,
                              Codebooktype2_Sub_t* pRrcSubType)
{
    if (pRrcSubType->Presence & RRC_SUB_TYPE_TYPEII)
    {
        (void)compose::alternative(pAsnCxt, pSubType, T_CodebookConfig_codebookType_type2_subType_typeII,
                                   pSubType->u.typeII, &pRrcSubType->Type2_subType_u.subType_typeII,
                                   rrcComposeubType_typeII);
    }
    if (pRrcSubType->Presence & RRC_TYPEII_PORTSELECTION)
    {
        (void)compose::alternative(pAsnCxt, pSubType, T_CodebookConfig_codebookType_type2_subType_typeII_PortSelection,
                                   pSubType->u.typeII_PortSelection, &pRrcSubType->Type2_subType_u.typeII_PortSelection,
                                   rrcComposeubType_typeII_PortSelection);
    }
    return VOS_OK;
}

// CodebookConfig.codebookType.type2.subType.typeII
INT32 rrcComposeubType_typeII(OSCTXT* pAsnCxt, CodebookConfig_codebookType_type2_subType_typeII* pTypeII,
                              struct subType_typeII* pRrcTypeII)
{
    (void)rrcComposeN1_n2_codebookSubsetRestrict(pAsnCxt, &pTypeII->n1_n2_codebookSubsetRestriction, pRrcTypeII);
    // A mandatory member: without its bit the string stays empty, which the encoder refuses.
    if (pRrcTypeII->Restriction_Presence & RRC_TYPEII_RI_RESTRICTION_PRESENCE)
    {
        (void)uint8To2ASN1BitStr32(&pTypeII->typeII_RI_Restriction, pRrcTypeII->TypeII_RI_Restriction);
    }
    return VOS_OK;
}

namespace
{

#define SUBSET_TAG(n1_n2) T_CodebookConfig_codebookType_type2_subType_typeII_n1_n2_codebookSubsetRestriction_##n1_n2

constexpr compose::BitStringRow subsetRestrictions[] = {
    {SUBSET_TAG(two_one), 16, uint32To16ASN1BitStr32},
    {SUBSET_TAG(two_two), 43, nullptr, uint64ToBitString43bit},
    {SUBSET_TAG(four_one), 32, uint32To32ASN1BitStr32},
    {SUBSET_TAG(three_two), 59, nullptr, uint64ToBitString59bit},
    {SUBSET_TAG(six_one), 48, nullptr, uint64ToBitString48bit},
    {SUBSET_TAG(four_two), 75},
    {SUBSET_TAG(eight_one), 64, nullptr, uint64ToBitString64bit},
    {SUBSET_TAG(four_three), 107},
    {SUBSET_TAG(six_two), 107},
    {SUBSET_TAG(twelve_one), 96},
    {SUBSET_TAG(four_four), 139},
    {SUBSET_TAG(eight_two), 139},
    {SUBSET_TAG(sixteen_one), 128},
};

#undef SUBSET_TAG

} // namespace

// CodebookConfig.codebookType.type2.subType.typeII.n1-n2-codebookSubsetRestriction
INT32 rrcComposeN1_n2_codebookSubsetRestrict(
    OSCTXT* pAsnCxt,
    CodebookConfig_codebookType_type2_subType_typeII_n1_n2_codebookSubsetRestriction* pSubsetRestriction,
    struct subType_typeII* pRrcTypeII)
{
    compose::chooseBitStrings(pAsnCxt, pSubsetRestriction, pRrcTypeII->Restriction_Presence,
                              pRrcTypeII->SubsetRestriction_u, subsetRestrictions);
    return VOS_OK;
}

// CodebookConfig.codebookType.type2.subType.typeII-PortSelection
INT32 rrcComposeubType_typeII_PortSelection(
    CodebookConfig_codebookType_type2_subType_typeII_PortSelection* pTypeII_PortSelection,
    struct typeII_PortSelection* pRrcPortSelection)
{
    COPY_IF(pRrcPortSelection->bitMask & RRC_PORT_SELEXTION_SAMPLING_SIZE, pTypeII_PortSelection,
            portSelectionSamplingSize, pRrcPortSelection->portSelectionSamplingSize);
    (void)uint8To2ASN1BitStr32(&pTypeII_PortSelection->typeII_PortSelectionRI_Restriction,
                               pRrcPortSelection->typeII_PortSelectionRI_Restriction);
    return VOS_OK;
}
