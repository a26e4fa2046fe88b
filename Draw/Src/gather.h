// Gathering what is placed of a cell, one source file for each region of the tree.
#ifndef DRAW_GATHER_H
#define DRAW_GATHER_H

#include "modelLists.h"
#include "paths.h"
#include "resources.h"

#include "rrcDraw.h"

namespace rules::draw
{

// Text as printf makes it.
__attribute__((format(printf, 2, 3))) void append(std::string& text, const char* format, ...);
__attribute__((format(printf, 1, 2))) std::string words(const char* format, ...);

// "PRBs 0..3", "PRB 5"; "symbols 2..13".
std::string spanWords(const char* what, NrSpan span);

// "every 10 slots from slot 3 on, 2 slots each".
std::string recurrenceWords(OSUINT32 period, OSUINT32 offset, OSUINT32 duration);

// What would have to be known, "needs the carriers"; what the element lacks or breaks, where nothing would tell it.
std::string needWords(OSUINT32 inputs);

// A bandwidth part with its place in the picture.
struct Place
{
    Bwp* bwp;
    size_t grid;
    size_t panel;
    Known<NrSpan> rbs;           // on the panel's axis
    Known<OSUINT32> commonStart; // its first common resource block
};

class Gather
{
public:
    Gather(Model& modelOf, const Paths& pathsOf, const RrcDrawOptions& options)
        : model(modelOf), tree(modelOf.tree), paths(pathsOf), options_(options)
    {
    }

    Model& model;
    const Tree& tree;
    const Paths& paths;

    CellPicture picture(Cell& cell);

    template <typename T>
    std::string pathOf(const RtxType& type, const T& element) const
    {
        return paths.of(type, element);
    }

    const std::string& cellPath() const
    {
        return made_.path;
    }

    Panel& panelOf(const Place& place)
    {
        return made_.grids[place.grid].panels[place.panel];
    }

    void add(const Place& place, Resource&& resource);
    void cannot(const std::string& path, const std::string& title, const std::string& reason);
    void clash(std::string&& said, const std::string& path, const std::string& other = {})
    {
        made_.clashes.push_back({std::move(said), path, other});
    }

    // The place of a bandwidth part; null where its spacing is not known.
    const Place* placeOf(const Bwp& bwp) const;

private:
    void placeBwp(Bwp& bwp);
    static void fitAxis(Panel& panel);
    void chooseSlots(Grid& grid);
    void fillSlots(Grid& grid, Resource& resource);
    void fillWaiting(const Grid& grid, Resource& resource);
    // Whether none of a resource's symbols is of the downlink.
    bool isFree(const Grid& grid, const Resource& resource, OSUINT32 slot);

    const RrcDrawOptions& options_;
    CellPicture made_;
    std::vector<Place> places_;
    Cell* cell_ = nullptr;
    OSUINT32 occasions_ = 0;
};

// "uplink bandwidth part 1"
std::string nameOf(const Bwp& bwp);

void addPart(Gather& gather, const Place& place);
void addPdcch(Gather& gather, const Place& place);
// The SS/PBCH blocks of a cell.
void addBlocks(Gather& gather, Cell& cell);
void addCsi(Gather& gather, Cell& cell);
void addZeroPower(Gather& gather, const Place& place);
void addSrs(Gather& gather, const Place& place);
void addPucch(Gather& gather, const Place& place);
// The CSI reports of a cell, itself or another one, on the PUCCH of this one.
void addReports(Gather& gather, Cell& cell, Cell& of);
void addAllocations(Gather& gather, const Place& place);

// The directions of symbols at a spacing, the dedicated pattern over the common one; nothing where the cell has no
// patterns, or they are not known, which is said.
bool hasPattern(Gather& gather, Cell& cell, const Grid& grid);
NrTddSlot tddSlotAt(Gather& gather, Cell& cell, const Grid& grid, OSUINT32 slot);

void findClashes(Gather& gather, Grid& grid);

} // namespace rules::draw

#endif
