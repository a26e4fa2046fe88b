// What is placed of a cell group, before it is drawn: resources in resource blocks, slots and symbols.
#ifndef DRAW_RESOURCES_H
#define DRAW_RESOURCES_H

#include "model.h"

#include <string>
#include <vector>

namespace rules::draw
{

enum class Kind : OSUINT8 // in the order in which they are drawn one over the other
{
    SearchSpace,
    Ssb,
    CsiRs,
    ZpCsiRs,
    CsiIm,
    Srs,
    Grant,
    Pucch,
    CsiReport,
    SchedulingRequest
};
constexpr size_t kindCount = 10;

struct KindName
{
    const char* id; // class in the picture
    const char* words;
};
constexpr KindName kindNames[kindCount] = {
    {"search-space", "search space"},   {"ssb", "SS/PBCH block"},    {"csi-rs", "CSI-RS"},
    {"zp-csi-rs", "zero-power CSI-RS"}, {"csi-im", "CSI-IM"},        {"srs", "SRS"},
    {"grant", "configured grant"},      {"pucch", "PUCCH resource"}, {"csi-report", "CSI report"},
    {"sr", "scheduling request"},
};
inline const KindName& nameOf(Kind kind)
{
    return kindNames[static_cast<size_t>(kind)];
}

constexpr OSUINT16 allSubcarriers = 0xFFF;

// Resource elements of a slot.
struct Rect
{
    NrSpan rbs;                            // on the panel's axis; size 0: where in frequency is not known
    NrSpan symbols;                        // of the slot
    OSUINT16 subcarriers = allSubcarriers; // bit k: subcarrier k of a resource block
    OSUINT8 every = 1;                     // 2: of every second resource block from the first one on

    bool operator==(const Rect& other) const
    {
        return rbs.start == other.rbs.start && rbs.size == other.rbs.size && symbols.start == other.symbols.start &&
               symbols.size == other.symbols.size && subcarriers == other.subcarriers && every == other.every;
    }
};
using Shape = std::vector<Rect>;

// Bit i: symbol i.
inline OSUINT32 symbolBits(const Shape& shape)
{
    OSUINT32 bits = 0;
    for (const Rect& rect : shape)
    {
        bits |= ((1U << std::min<OSUINT32>(rect.symbols.size, NR_SYMBOLS)) - 1U)
                << std::min<OSUINT32>(rect.symbols.start, NR_SYMBOLS);
    }
    return bits;
}

// By what the shapes of a resource follow each other.
enum class Turn : OSUINT8
{
    Occasion,   // each time anew, from offset on
    Repetition, // within an occasion
    Slot        // by the slot's number
};

struct Occasion
{
    OSUINT32 slot;
    OSUINT32 shape;
    bool clashes = false;
    bool isIdle = false; // of the downlink, in symbols of the uplink
};

struct Resource
{
    Kind kind;
    std::string path;
    std::string title;
    std::string detail; // what is behind the title
    std::string name;   // short, unique in its panel as far as ids are
    const Bwp* bwp;
    NrSpan own;                // resource blocks of the bandwidth part on the axis; size 0: not known
    std::vector<Shape> shapes; // at least one
    OSUINT32 period = 0;       // slots; 0: whenever it is asked for
    OSUINT32 offset = 0;
    OSUINT32 duration = 1; // slots of an occasion
    bool waits = false;    // for slots whose symbols are not of the downlink
    Turn turn = Turn::Occasion;
    std::vector<Occasion> occasions; // in the slots that are drawn

    bool hasPlace() const
    {
        return !shapes.empty() && !shapes[0].empty() && shapes[0][0].rbs.size != 0;
    }
};

constexpr const char* bwpPart = "bwp";
constexpr const char* coresetPart = "coreset";

// What lies in frequency alone: a bandwidth part, a CORESET.
struct Part
{
    const char* kind; // class in the picture
    std::string path;
    std::string title;
    std::string name;
    std::vector<NrSpan> rbs;
    bool clashes;
};

// A row of a time domain allocation list.
struct Row
{
    std::string path;
    std::string title;
    std::string name;
    NrSpan symbols;
};

// A direction of a cell at a spacing.
struct Panel
{
    Direction direction;
    bool isCommon;   // the axis counts common resource blocks, else from the carrier's first
    OSUINT32 offset; // of the carrier's first resource block on the axis
    NrSpan axis;
    std::vector<Part> parts;
    std::vector<Resource> resources;
    std::vector<Row> rows;

    const char* rbWord() const
    {
        return isCommon ? "common resource block" : "resource block";
    }
};

// The directions of a cell that have a spacing and a cyclic prefix in common.
struct Grid
{
    OSUINT32 mu;
    bool isExtended;
    NrSpan slots;
    bool hasTdd;
    std::vector<NrTddSlot> tdd; // of the slots, where hasTdd
    std::vector<Panel> panels;

    OSUINT32 symbols() const
    {
        return isExtended ? NR_SYMBOLS_EXTENDED : NR_SYMBOLS;
    }
};

struct Clash
{
    std::string words;
    std::string path;
    std::string other; // path of what it clashes with; may be empty
};

// What cannot be placed, or not as a whole.
struct Unplaced
{
    std::string path;
    std::string title;
    std::string reason;
};

struct CellPicture
{
    std::string title;
    std::string path;
    std::vector<Grid> grids;
    std::vector<Clash> clashes;
    std::vector<Unplaced> unplaced;
};

} // namespace rules::draw

#endif
