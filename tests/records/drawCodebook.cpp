#include <algorithm>
#include <bit>
#include <cstring>

#include "byteOrder.h"
#include "records.h"

namespace records
{

namespace
{

// A union of bit strings: whichever its mask names, any octets are one. Those behind the string are not sent. For each
// bit of the mask `sizes` has the octets of the number that holds the string; 0: it is held as octets.
template <typename Union, std::size_t N>
void drawStrings(Chance& chance, Union& strings, unsigned mask, const unsigned char (&sizes)[N])
{
    // As many on every system: how a union is padded depends on the alignment of 64 bits.
    constexpr std::size_t word = 8;
    unsigned char octets[(sizeof strings + word - 1) / word * word];
    chance.octets(octets);
    const auto highest = static_cast<unsigned>(std::bit_width(mask & ((1U << N) - 1)));
    if (!rtx::littleEndian && highest != 0) // the same number on every system
    {
        std::reverse(octets, octets + sizes[highest - 1]);
    }
    std::memcpy(&strings, octets, sizeof strings);
}

// An enumeration of last + 1 values that is narrowed to the low bits of a field.
void drawNarrowed(Chance& chance, UINT64& field, unsigned lowBits, unsigned last, const char* file = __builtin_FILE(),
                  int line = __builtin_LINE())
{
    chance.enumeration(field, last, file, line);
    chance.above(field, lowBits, file, line);
}

void drawMoreThanTwo(Chance& chance, nrOfAntennaPorts_moreThanTwo& record)
{
    // Without the first bit the codebook is refused.
    chance.number(record.bitMask, RRC_MORE_THAN_TWO_N1_N2_PRESENCE, RRC_MORE_THAN_TWO_N1_N2_PRESENCE);
    chance.alternative(
        record.N1_N2_Presence,
        {RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, RRC_TWO_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
         RRC_FOUR_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, RRC_THREE_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
         RRC_SIX_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, RRC_FOUR_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
         RRC_EIGHT_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, RRC_FOUR_THREE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
         RRC_SIX_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, RRC_TWELVE_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
         RRC_FOUR_FOUR_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE, RRC_EIGHT_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE,
         RRC_SIXTEEN_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE});
    drawStrings(chance, record.MoreThanTwo_n1_n2_u, record.N1_N2_Presence, {1, 0, 2, 0, 4, 0, 4, 0, 0, 8, 0, 0, 0});
    if (chance.flag(record.bitMask, RRC_SINGLE_PANEL_CODEBOOK_SUBSET_RESTRICT_I2))
    {
        record.typeI_SinglePanel_CodebookSubsetRestriction_i2 = static_cast<UINT16>(chance.bitField(16));
    }
}

void drawSinglePanel(Chance& chance, CodeBookTypeSinglePanel_t& record)
{
    SinglePanel_nrOfAntennaPorts_t& ports = record.SinglePanel_nrOfAntennaPorts;
    if (chance.alternative(ports.Presence,
                           {RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE, RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE}) == 0)
    {
        ports.NrOfAntennaPorts_n.two.twoTX_CodebookSubsetRestrict = chance.bitField(6) & 0x3F;
    }
    else
    {
        drawMoreThanTwo(chance, ports.NrOfAntennaPorts_n.moreThanTwo);
    }
    record.typeI_SinglePanel_ri_Restriction = static_cast<UINT8>(chance.bitField(8));
}

void drawTypeII(Chance& chance, subType_typeII& record)
{
    // Without its bit the codebook is refused.
    chance.number(record.Restriction_Presence, RRC_TYPEII_RI_RESTRICTION_PRESENCE, RRC_TYPEII_RI_RESTRICTION_PRESENCE);
    record.TypeII_RI_Restriction = chance.bitField(2) & 3;
    chance.alternative(record.Restriction_Presence,
                       {RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE, RRC_SUB_SET_RESTRICT_TWO_TWO_PRESENCE,
                        RRC_SUB_SET_RESTRICT_FOUR_ONE_PRESENCE, RRC_SUB_SET_RESTRICT_THREE_TWO_PRESENCE,
                        RRC_SUB_SET_RESTRICT_SIX_ONE_PRESENCE, RRC_SUB_SET_RESTRICT_FOUR_TWO_PRESENCE,
                        RRC_SUB_SET_RESTRICT_EIGHT_ONE_PRESENCE, RRC_SUB_SET_RESTRICT_FOUR_THREE_PRESENCE,
                        RRC_SUB_SET_RESTRICT_SIX_TWO_PRESENCE, RRC_SUB_SET_RESTRICT_TWELVE_ONE_PRESENCE,
                        RRC_SUB_SET_RESTRICT_FOUR_FOUR_PRESENCE, RRC_SUB_SET_RESTRICT_EIGHT_TWO_PRESENCE,
                        RRC_SUB_SET_RESTRICT_SIXTEEN_ONE_PRESENCE});
    drawStrings(chance, record.SubsetRestriction_u, record.Restriction_Presence,
                {2, 8, 4, 8, 8, 0, 8, 0, 0, 0, 0, 0, 0});
}

void drawPortSelection(Chance& chance, typeII_PortSelection& record)
{
    chance.enumerationIf(record.bitMask, RRC_PORT_SELEXTION_SAMPLING_SIZE, record.portSelectionSamplingSize, 3);
    record.typeII_PortSelectionRI_Restriction = chance.bitField(2) & 3;
}

void drawType2(Chance& chance, CodeBookType2_t& record)
{
    // Without the first bit the codebook is refused.
    chance.number(record.bitMask, RRC_CODEBOOK_TYPE2_SUB, RRC_CODEBOOK_TYPE2_SUB);
    Codebooktype2_Sub_t& type = record.codebookType2_Sub;
    if (chance.alternative(type.Presence, {RRC_SUB_TYPE_TYPEII, RRC_TYPEII_PORTSELECTION}) == 0)
    {
        drawTypeII(chance, type.Type2_subType_u.subType_typeII);
    }
    else
    {
        drawPortSelection(chance, type.Type2_subType_u.typeII_PortSelection);
    }
    if (chance.flag(record.bitMask, RRC_PHASE_ALPHA_BET_SIZE))
    {
        drawNarrowed(chance, record.phaseAlphabetSize, 32, 1);
    }
    if (chance.flag(record.bitMask, RRC_SUB_BAND_AMPLITUDE))
    {
        drawNarrowed(chance, record.subBandAmplitude, 8, 1);
    }
    if (chance.flag(record.bitMask, RRC_NUM_BER_OFBEAMS))
    {
        drawNarrowed(chance, record.numberOfBeams, 32, 2);
    }
}

} // namespace

void draw(Chance& chance, RrcCodebookCfg_t& record)
{
    rrcInit(&record);
    if (chance.alternative(record.Presence, {RRC_CODE_BOOK_TYPE1_PRESENCE, RRC_CODE_BOOK_TYPE2_PRESENCE}) == 0)
    {
        CodeBookType1_t& type = record.CodeBookCfgType_u.codeBookType1;
        // The other alternative, multiPanel, can never be sent.
        chance.number(type.codebookType1_Sub.Presence, RRC_CODE_BOOK_TYPE_SINGLE_PANEL,
                      RRC_CODE_BOOK_TYPE_SINGLE_PANEL);
        drawSinglePanel(chance, type.codebookType1_Sub.CodeBookTypePanel_u.singlePanel);
        chance.number(type.CodebookMode, 1, 2);
    }
    else
    {
        drawType2(chance, record.CodeBookCfgType_u.codeBookType2);
    }
}

} // namespace records
