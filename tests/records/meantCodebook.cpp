#include <bit>
#include <cstring>

#include "byteOrder.h"
#include "records.h"

namespace records
{

namespace
{

// A bit string of a union that holds many.
struct String
{
    const char* name;
    unsigned width;
    bool octets; // as they lie in memory, else a number's low bits
};

// The highest bit of the mask names the string; with none the codebook is refused.
template <std::size_t N>
std::string restriction(unsigned mask, const void* field, const String (&strings)[N])
{
    const auto highest = static_cast<unsigned>(std::bit_width(mask & ((1U << N) - 1)));
    if (highest == 0)
    {
        return null();
    }
    const String& string = strings[highest - 1];
    if (string.octets)
    {
        return choice(string.name, octetBits(field, string.width));
    }
    const unsigned size = std::bit_ceil((string.width + 7) / 8);
    std::uint64_t number = 0;
    std::memcpy(rtx::lowOctets(number, size), field, size);
    return choice(string.name, bits(number, string.width));
}

constexpr String moreThanTwoRestrictions[] = {
    {"two-one-TypeI-SinglePanel-Restriction", 8, false},    {"two-two-TypeI-SinglePanel-Restriction", 64, true},
    {"four-one-TypeI-SinglePanel-Restriction", 16, false},  {"three-two-TypeI-SinglePanel-Restriction", 96, true},
    {"six-one-TypeI-SinglePanel-Restriction", 24, false},   {"four-two-TypeI-SinglePanel-Restriction", 128, true},
    {"eight-one-TypeI-SinglePanel-Restriction", 32, false}, {"four-three-TypeI-SinglePanel-Restriction", 192, true},
    {"six-two-TypeI-SinglePanel-Restriction", 192, true},   {"twelve-one-TypeI-SinglePanel-Restriction", 48, false},
    {"four-four-TypeI-SinglePanel-Restriction", 256, true}, {"eight-two-TypeI-SinglePanel-Restriction", 256, true},
    {"sixteen-one-TypeI-SinglePanel-Restriction", 64, true}};

constexpr String typeIIRestrictions[] = {{"two-one", 16, false},    {"two-two", 43, false},    {"four-one", 32, false},
                                         {"three-two", 59, false},  {"six-one", 48, false},    {"four-two", 75, true},
                                         {"eight-one", 64, false},  {"four-three", 107, true}, {"six-two", 107, true},
                                         {"twelve-one", 96, true},  {"four-four", 139, true},  {"eight-two", 139, true},
                                         {"sixteen-one", 128, true}};

// The highest bit of each mask counts, and what the union holds is read as its alternative.
std::string antennaPorts(const SinglePanel_nrOfAntennaPorts_t& record)
{
    Members members;
    if (record.Presence & RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE)
    {
        const nrOfAntennaPorts_moreThanTwo& ports = record.NrOfAntennaPorts_n.moreThanTwo;
        members.add("n1-n2", restriction(ports.N1_N2_Presence, &ports.MoreThanTwo_n1_n2_u, moreThanTwoRestrictions));
        members.addIf(ports.bitMask & RRC_SINGLE_PANEL_CODEBOOK_SUBSET_RESTRICT_I2,
                      "typeI-SinglePanel-codebookSubsetRestriction-i2",
                      bits(ports.typeI_SinglePanel_CodebookSubsetRestriction_i2, 16));
        return choice("moreThanTwo", members.json());
    }
    members.add("twoTX-CodebookSubsetRestriction", bits(record.NrOfAntennaPorts_n.two.twoTX_CodebookSubsetRestrict, 6));
    return choice("two", members.json());
}

std::string subType(const CodebookType1_Sub_t& record)
{
    if (record.Presence & RRC_CODE_BOOK_TYPE_MULTI_PANEL)
    {
        // Its ri-Restriction has 8 bits or none where 4 are asked for.
        return choice("typeI-MultiPanel", "\"never sent\"");
    }
    const CodeBookTypeSinglePanel_t& panel = record.CodeBookTypePanel_u.singlePanel;
    Members members;
    members.add("nrOfAntennaPorts", antennaPorts(panel.SinglePanel_nrOfAntennaPorts));
    members.add("typeI-SinglePanel-ri-Restriction", bits(panel.typeI_SinglePanel_ri_Restriction, 8));
    return choice("typeI-SinglePanel", members.json());
}

std::string subType(const Codebooktype2_Sub_t& record)
{
    Members members;
    if (record.Presence & RRC_TYPEII_PORTSELECTION)
    {
        const typeII_PortSelection& selection = record.Type2_subType_u.typeII_PortSelection;
        members.addIf(selection.bitMask & RRC_PORT_SELEXTION_SAMPLING_SIZE, "portSelectionSamplingSize",
                      selection.portSelectionSamplingSize);
        members.add("typeII-PortSelectionRI-Restriction", bits(selection.typeII_PortSelectionRI_Restriction, 2));
        return choice("typeII-PortSelection", members.json());
    }
    const subType_typeII& type = record.Type2_subType_u.subType_typeII;
    members.add("n1-n2-codebookSubsetRestriction",
                restriction(type.Restriction_Presence, &type.SubsetRestriction_u, typeIIRestrictions));
    members.add("typeII-RI-Restriction", bits(type.TypeII_RI_Restriction, 2));
    return choice("typeII", members.json());
}

} // namespace

std::string meant(const RrcCodebookCfg_t& record)
{
    Members members;
    if (record.Presence & RRC_CODE_BOOK_TYPE2_PRESENCE)
    {
        // Members that are not switched on are sent as what an empty element holds.
        const CodeBookType2_t& type = record.CodeBookCfgType_u.codeBookType2;
        members.add("subType", subType(type.codebookType2_Sub));
        members.add("phaseAlphabetSize",
                    type.bitMask & RRC_PHASE_ALPHA_BET_SIZE ? static_cast<UINT32>(type.phaseAlphabetSize) : 0);
        members.add("subbandAmplitude",
                    boolean(type.bitMask & RRC_SUB_BAND_AMPLITUDE ? static_cast<UINT8>(type.subBandAmplitude) : 0));
        members.add("numberOfBeams", type.bitMask & RRC_NUM_BER_OFBEAMS ? static_cast<UINT32>(type.numberOfBeams) : 0);
        return choice("codebookType", choice("type2", members.json()));
    }
    const CodeBookType1_t& type = record.CodeBookCfgType_u.codeBookType1;
    members.add("subType", subType(type.codebookType1_Sub));
    members.add("codebookMode", type.CodebookMode);
    return choice("codebookType", choice("type1", members.json()));
}

} // namespace records
