// One walk over what is placed, written as SVG.
#include "gather.h"

#include "rtxHeap.h"
#include "rtxType.h"
#include "whileMemory.h"

#include <cmath>
#include <cstring>

namespace rules::draw
{
namespace
{

// Colours that the colour-blind tell apart (Okabe and Ito). Where custom properties are not known, the value before
// holds.
constexpr const char* style =
    ".radio{font:11px 'DejaVu Sans',Verdana,sans-serif;"
    "--ink:#1b1f24;--soft:#59636e;--paper:#fff;--even:#f3f5f8;--line:#c3cad2;--dl:#cfe3f5;--ul:#f9dcc4;--flex:#eceff2}"
    "@media(prefers-color-scheme:dark){.radio{--ink:#e6edf3;--soft:#9aa5b1;--paper:#0f1419;--even:#1a212a;"
    "--line:#46515e;--dl:#1f4466;--ul:#6b3a1c;--flex:#2a323c}}"
    ".radio text{fill:#1b1f24;fill:var(--ink);fill-opacity:1;stroke:none}"
    ".radio .soft{fill:#59636e;fill:var(--soft)}"
    ".radio .head{font-size:15px;font-weight:bold}.radio .sub{font-weight:bold}"
    ".radio .small{font-size:9px}.radio .mid{text-anchor:middle}.radio .end{text-anchor:end}"
    ".radio .paper{fill:#fff;fill:var(--paper)}"
    ".radio .slot{fill:#fff;fill:var(--paper)}.radio .even{fill:#f3f5f8;fill:var(--even)}"
    ".radio .frame{fill:none;stroke:#c3cad2;stroke:var(--line)}"
    ".radio .grid-line{stroke:#c3cad2;stroke:var(--line);stroke-width:.4}"
    ".radio .dl{fill:#cfe3f5;fill:var(--dl)}.radio .ul{fill:#f9dcc4;fill:var(--ul)}"
    ".radio .flexible{fill:#eceff2;fill:var(--flex)}"
    ".radio .bwp{fill:#8a939d;fill-opacity:.25;stroke:#59636e;stroke:var(--soft)}"
    ".radio .coreset{fill:#0072b2;fill-opacity:.35;stroke:#0072b2}"
    ".radio .search-space{fill:#0072b2;fill-opacity:.5;stroke:#0072b2;stroke-width:.4}"
    ".radio .ssb{fill:#f0e442;fill-opacity:.8;stroke:#8f8500;stroke-width:.4}"
    ".radio .csi-rs{fill:#009e73;stroke:#009e73;stroke-width:.3}"
    ".radio .zp-csi-rs{fill:#8a939d;stroke:#59636e;stroke-width:.3;stroke-dasharray:2 1}"
    ".radio .csi-im{fill:#56b4e9;stroke:#2a7fb0;stroke-width:.3}"
    ".radio .srs{fill:#cc79a7;stroke:#a34f80;stroke-width:.3}"
    ".radio .grant{fill:#7a5195;fill-opacity:.6;stroke:#7a5195;stroke-width:.4}"
    ".radio .pucch{fill:#e69f00;fill-opacity:.25;stroke:#b37b00;stroke-width:.5;stroke-dasharray:3 1.5}"
    ".radio .csi-report{fill:#e69f00;stroke:#8a5f00;stroke-width:.5}"
    ".radio .sr{fill:#d55e00;stroke:#8f3f00;stroke-width:.5}"
    ".radio .row{fill:#59636e;fill:var(--soft)}.radio .empty{fill:#eceff2;fill:var(--flex)}"
    ".radio .idle{opacity:.25}.radio .tint{fill-opacity:.18}"
    ".radio .hatch{stroke:#c00000;stroke-width:1.6}.radio .clash{stroke:#c00000;stroke-width:1}"
    ".radio .alarm{fill:#c00000;font-weight:bold}"
    "@media(prefers-color-scheme:dark){.radio .alarm{fill:#ff8080}.radio .clash,.radio .hatch{stroke:#ff6b6b}}"
    ".radio [data-path]{cursor:pointer}";

std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text)
    {
        switch (c)
        {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += c;
            break;
        }
    }
    return result;
}

// A length without zeros at its end.
std::string num(double value)
{
    std::string text = words("%.3f", value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
    {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

// In quarters, so that nothing is lost in writing it.
double quarters(double value, double least, double most)
{
    return std::clamp(std::floor(4 * value) / 4, least, most);
}

constexpr double left = 66;      // for the numbers of resource blocks
constexpr double laneWidth = 16; // of a bandwidth part or a CORESET
constexpr double gap = 10;
constexpr double spanWidth = 1050; // of all slots, about
constexpr double lineHeight = 15;
constexpr double laneHeight = 12; // of a resource without a place in frequency
constexpr double anySymbol = 6;
constexpr size_t lineLength = 165; // characters

class Svg
{
public:
    explicit Svg(const std::vector<CellPicture>& cells) : cells_(cells)
    {
        prefix_ = words("r%08x-", hash());
    }

    std::string write()
    {
        y_ = 8;
        legend();
        for (size_t i = 0; i < cells_.size(); ++i)
        {
            cell(cells_[i], i);
        }
        if (cells_.empty())
        {
            line("sub", "No cell is configured.");
        }
        y_ += 4;
        std::string all = "<svg xmlns=\"http://www.w3.org/2000/svg\" class=\"radio\" role=\"group\" width=\"" +
                          num(width_) + "\" height=\"" + num(y_) + "\" viewBox=\"0 0 " + num(width_) + " " + num(y_) +
                          "\" data-cells=\"" + std::to_string(cells_.size()) + "\">\n";
        all += "<title>Radio resources of a cell group</title>\n<style>" + std::string(style) + "</style>\n<defs>\n";
        all += "<pattern id=\"" + prefix_ +
               "x\" width=\"5\" height=\"5\" patternUnits=\"userSpaceOnUse\"><path class=\"hatch\" d=\"M0 5L5 0\"/>"
               "</pattern>\n";
        all += patterns_ + "</defs>\n<rect class=\"paper\" width=\"" + num(width_) + "\" height=\"" + num(y_) +
               "\"/>\n" + body_ + "</svg>\n";
        return all;
    }

private:
    // Of all that is drawn, so that pictures of one page have no ids in common.
    OSUINT32 hash() const
    {
        OSUINT32 sum = 2166136261U;
        const auto add = [&](const std::string& text)
        {
            for (const char c : text)
            {
                sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
            }
        };
        for (const CellPicture& cell : cells_)
        {
            add(cell.title);
            for (const Grid& grid : cell.grids)
            {
                add(spanWords("", grid.slots));
                for (const Panel& panel : grid.panels)
                {
                    for (const Resource& resource : panel.resources)
                    {
                        add(resource.path);
                        add(resource.title + resource.detail);
                    }
                }
            }
        }
        return sum;
    }

    void put(const std::string& text)
    {
        body_ += text;
    }

    void text(double x, double y, const char* kind, const std::string& content)
    {
        put("<text x=\"" + num(x) + "\" y=\"" + num(y) + "\" class=\"" + kind + "\">" + escaped(content) + "</text>\n");
    }

    void line(const char* kind, const std::string& content)
    {
        y_ += lineHeight;
        text(left, y_ - 4, kind, content);
    }

    static std::string rect(double x, double y, double width, double height, const std::string& more)
    {
        return "<rect x=\"" + num(x) + "\" y=\"" + num(y) + "\" width=\"" + num(width) + "\" height=\"" + num(height) +
               "\"" + more + "/>";
    }

    static std::string open(const char* kind, const std::string& path, const std::string& title)
    {
        return std::string("<g class=\"") + kind + "\" data-path=\"" + escaped(path) + "\"><title>" + escaped(title) +
               "</title>";
    }

    void legend()
    {
        bool used[kindCount] = {};
        bool hasCoreset = false;
        bool hasTdd = false;
        bool hasClash = false;
        for (const CellPicture& cell : cells_)
        {
            hasClash = hasClash || !cell.clashes.empty();
            for (const Grid& grid : cell.grids)
            {
                hasTdd = hasTdd || grid.hasTdd;
                for (const Panel& panel : grid.panels)
                {
                    for (const Part& part : panel.parts)
                    {
                        hasCoreset = hasCoreset || std::strcmp(part.kind, coresetPart) == 0;
                        used[static_cast<size_t>(Kind::Ssb)] =
                            used[static_cast<size_t>(Kind::Ssb)] || std::strcmp(part.kind, nameOf(Kind::Ssb).id) == 0;
                    }
                    for (const Resource& resource : panel.resources)
                    {
                        used[static_cast<size_t>(resource.kind)] = true;
                    }
                }
            }
        }
        put("<g class=\"legend\">\n");
        double x = left;
        const auto entry = [&](const std::string& kind, const std::string& more, const std::string& name)
        {
            put("<g" + (kind.empty() ? "" : " class=\"" + kind + "\"") + ">" + rect(x, y_, 14, 10, more) + "</g>");
            text(x + 18, y_ + 9, "", name);
            x += 32 + 6.6 * static_cast<double>(name.size());
        };
        entry(bwpPart, "", "bandwidth part");
        if (hasCoreset)
        {
            entry(coresetPart, "", "CORESET");
        }
        for (size_t i = 0; i < kindCount; ++i)
        {
            if (used[i])
            {
                entry(kindNames[i].id, "", kindNames[i].words);
            }
        }
        if (hasTdd)
        {
            entry("dl", "", "downlink");
            entry("ul", "", "uplink");
            entry("flexible", "", "flexible");
        }
        if (hasClash)
        {
            entry("clash", " fill=\"url(#" + prefix_ + "x)\"", "clash");
        }
        width_ = std::max(width_, x + gap);
        put("</g>\n");
        y_ += 18;
    }

    void cell(const CellPicture& cell, size_t number)
    {
        y_ += 6;
        put("<g class=\"cell\" data-cell=\"" + std::to_string(number) + "\" data-path=\"" + escaped(cell.path) +
            "\">\n");
        y_ += lineHeight + 4;
        text(left, y_ - 4, "head", cell.title);
        put("</g>\n");
        for (const Grid& one : cell.grids)
        {
            grid(one, number);
        }
        notes("clash-note", "alarm", "Clashes", cell.clashes.size(),
              [&](size_t i)
              {
                  const Clash& clash = cell.clashes[i];
                  return Note{clash.words, clash.path, clash.other};
              });
        std::vector<std::string> reasons;
        for (const Unplaced& one : cell.unplaced)
        {
            if (std::find(reasons.begin(), reasons.end(), one.reason) == reasons.end())
            {
                reasons.push_back(one.reason);
            }
        }
        if (!reasons.empty())
        {
            line("sub", "Not placed");
        }
        for (const std::string& reason : reasons)
        {
            unplaced(cell, reason);
        }
    }

    struct Note
    {
        std::string words;
        std::string path;
        std::string other;
    };

    template <typename Get>
    void notes(const char* kind, const char* heading, const char* title, size_t count, const Get& get)
    {
        if (count != 0)
        {
            y_ += lineHeight;
            text(left, y_ - 4, heading, title);
        }
        for (size_t i = 0; i < count; ++i)
        {
            const Note note = get(i);
            put(std::string("<g class=\"") + kind + "\" data-path=\"" + escaped(note.path) + "\"" +
                (note.other.empty() ? "" : " data-other-path=\"" + escaped(note.other) + "\"") + ">\n");
            wrapped(note.words, "");
            wrapped(note.path, "soft small");
            if (!note.other.empty())
            {
                wrapped(note.other, "soft small");
            }
            put("</g>\n");
        }
    }

    // As lines that end at spaces where there are some.
    void wrapped(const std::string& content, const char* kind)
    {
        size_t begin = 0;
        while (begin < content.size())
        {
            size_t end = std::min(content.size(), begin + lineLength);
            const size_t space = content.rfind(' ', end);
            if (end < content.size() && space != std::string::npos && space > begin)
            {
                end = space;
            }
            y_ += lineHeight - 2;
            text(left + 12, y_ - 4, kind, content.substr(begin, end - begin));
            begin = end + (end < content.size() && content[end] == ' ' ? 1 : 0);
        }
    }

    // Those of one reason behind each other, each leading to its element.
    void unplaced(const CellPicture& cell, const std::string& reason)
    {
        const auto begin = [&](double x)
        {
            y_ += lineHeight - 2;
            put("<text x=\"" + num(x) + "\" y=\"" + num(y_ - 4) + "\">");
        };
        wrapped(reason + ":", "soft");
        begin(left + 24);
        size_t length = 0;
        for (const Unplaced& one : cell.unplaced)
        {
            if (one.reason != reason)
            {
                continue;
            }
            if (length != 0)
            {
                put("; ");
                if (length + one.title.size() > lineLength)
                {
                    put("</text>\n");
                    begin(left + 24);
                    length = 0;
                }
            }
            put("<tspan class=\"unplaced\" data-path=\"" + escaped(one.path) + "\">" + escaped(one.title) + "</tspan>");
            length += one.title.size() + 2;
        }
        put("</text>\n");
    }

    // Where things of a grid stand.
    struct Scale
    {
        double lanes;  // x of the first
        double any;    // x of the slot that stands for any; 0: none
        double x;      // of the first slot
        double slot;   // width
        double symbol; // width
        double end;
    };

    void grid(const Grid& grid, size_t cellNumber)
    {
        size_t lanes = 0;
        bool hasAny = false;
        for (const Panel& panel : grid.panels)
        {
            lanes = std::max(lanes, panel.parts.size());
            for (const Resource& resource : panel.resources)
            {
                hasAny = hasAny || resource.period == 0;
            }
        }
        Scale scale{};
        scale.lanes = left;
        double x = left + laneWidth * static_cast<double>(lanes) + (lanes == 0 ? 0 : gap);
        if (hasAny)
        {
            scale.any = x;
            x += anySymbol * grid.symbols() + gap;
        }
        scale.x = x;
        scale.symbol = quarters(spanWidth / (double{1} * grid.slots.size * grid.symbols()), 1, 64);
        scale.slot = scale.symbol * grid.symbols();
        scale.end = x + scale.slot * grid.slots.size;
        width_ = std::max(width_, scale.end + 14);
        const double ms = 1.0 * grid.slots.size / (1U << grid.mu);
        put("<g class=\"grid\" data-cell=\"" + std::to_string(cellNumber) + "\" data-first-slot=\"" +
            std::to_string(grid.slots.start) + "\" data-slots=\"" + std::to_string(grid.slots.size) +
            "\" data-symbols=\"" + std::to_string(grid.symbols()) + "\" data-spacing=\"" +
            std::to_string(khzOf(grid.mu)) + "\" data-x=\"" + num(scale.x) + "\" data-slot-width=\"" + num(scale.slot) +
            "\" data-symbol-width=\"" + num(scale.symbol) + "\"" +
            (hasAny ? " data-any-x=\"" + num(scale.any) + "\" data-any-symbol-width=\"" + num(anySymbol) + "\"" : "") +
            ">\n");
        line("sub", words("%u kHz%s, %s (%s ms)", khzOf(grid.mu), grid.isExtended ? ", extended cyclic prefix" : "",
                          spanWords("slot", grid.slots).c_str(), num(ms).c_str()));
        slotNumbers(grid, scale);
        if (grid.hasTdd)
        {
            tddStrip(grid, scale);
        }
        for (const Panel& one : grid.panels)
        {
            panel(grid, one, scale);
        }
        put("</g>\n");
        y_ += 6;
    }

    void slotNumbers(const Grid& grid, const Scale& scale)
    {
        OSUINT32 step = 1;
        for (const OSUINT32 next : {2U, 5U, 10U, 20U, 40U})
        {
            step = scale.slot * step < 26 ? next : step;
        }
        y_ += 12;
        for (OSUINT32 i = 0; i < grid.slots.size; ++i)
        {
            const OSUINT32 slot = grid.slots.start + i;
            if (slot % step == 0 || grid.slots.size == 1)
            {
                text(scale.x + scale.slot * (i + .5), y_ - 2, "soft small mid", std::to_string(slot));
            }
        }
        text(scale.x - 3, y_ - 2, "soft small end", "slot");
        if (scale.any != 0)
        {
            text(scale.any, y_ - 2, "soft small", "any slot");
        }
        if (grid.slots.size == 1)
        {
            y_ += 11;
            for (OSUINT32 i = 0; i < grid.symbols(); ++i)
            {
                text(scale.x + scale.symbol * (i + .5), y_ - 2, "soft small mid", std::to_string(i));
            }
            text(scale.x - 3, y_ - 2, "soft small end", "symbol");
        }
    }

    // Runs of one direction, with its letter where there is room.
    void tddStrip(const Grid& grid, const Scale& scale)
    {
        constexpr double height = 13;
        struct Direction
        {
            const char* kind;
            const char* letter;
        };
        static constexpr Direction of[] = {{"dl", "D"}, {"flexible", "F"}, {"ul", "U"}};
        put("<g class=\"tdd\" data-y=\"" + num(y_) + "\">\n");
        for (size_t i = 0; i < grid.tdd.size(); ++i)
        {
            const auto kindOf = [&](OSUINT32 symbol)
            {
                return (grid.tdd[i].downlink >> symbol & 1) != 0 ? 0 : (grid.tdd[i].uplink >> symbol & 1) != 0 ? 2 : 1;
            };
            for (OSUINT32 begin = 0; begin < NR_SYMBOLS;)
            {
                OSUINT32 end = begin + 1;
                while (end < NR_SYMBOLS && kindOf(end) == kindOf(begin))
                {
                    ++end;
                }
                const Direction& direction = of[kindOf(begin)];
                const double x = scale.x + scale.slot * static_cast<double>(i) + scale.symbol * begin;
                const double width = scale.symbol * (end - begin);
                put(rect(x, y_, width, height, std::string(" class=\"") + direction.kind + "\""));
                if (width >= 9)
                {
                    text(x + width / 2, y_ + 10, "small mid", direction.letter);
                }
                begin = end;
            }
        }
        text(scale.x - 3, y_ + 10, "soft small end", "TDD");
        put("</g>\n");
        y_ += height + 2;
    }

    struct Frame
    {
        double y; // upper edge
        double rb;
        NrSpan axis;

        double height() const
        {
            return rb * axis.size;
        }
        double top(NrSpan rbs) const
        {
            return y + rb * (static_cast<double>(axis.start) + axis.size - rbs.start - rbs.size);
        }
    };

    void panel(const Grid& grid, const Panel& panel, const Scale& scale)
    {
        y_ += 16;
        const char* const name = panel.direction == Direction::Downlink ? "Downlink"
                                 : panel.direction == Direction::Uplink ? "Uplink"
                                                                        : "Supplementary uplink";
        std::string axis = name;
        if (panel.axis.size != 0)
        {
            axis += ", " + spanWords(panel.rbWord(), panel.axis) +
                    (panel.isCommon ? "" : " from the carrier's first one, whose offset from point A is not known");
        }
        text(left, y_ - 4, "", axis);
        const double room = grid.slots.size == 1 ? 620 : 400;
        const Frame frame{y_, panel.axis.size == 0 ? 1 : quarters(room / panel.axis.size, .75, 12), panel.axis};
        put(std::string("<g class=\"panel\" data-direction=\"") +
            (panel.direction == Direction::Supplementary ? "supplementary" : rules::nameOf(panel.direction)) +
            "\" data-first-rb=\"" + std::to_string(panel.axis.start) + "\" data-rbs=\"" +
            std::to_string(panel.axis.size) + "\" data-common=\"" + (panel.isCommon ? "1" : "0") + "\" data-y=\"" +
            num(frame.y) + "\" data-rb-height=\"" + num(frame.rb) + "\">\n");
        if (panel.axis.size != 0)
        {
            background(grid, scale, frame);
            parts(panel, scale, frame);
            resources(grid, panel, scale, frame);
            put(rect(scale.x, frame.y, scale.end - scale.x, frame.height(), " class=\"frame\"") + "\n");
            marks(grid, panel, scale, frame);
        }
        y_ = frame.y + frame.height() + 2;
        lanes(grid, panel, scale);
        rows(grid, panel);
        put("</g>\n");
        y_ += 4;
    }

    void background(const Grid& grid, const Scale& scale, const Frame& frame)
    {
        for (OSUINT32 i = 0; i < grid.slots.size; ++i)
        {
            const OSUINT32 slot = grid.slots.start + i;
            put(rect(scale.x + scale.slot * i, frame.y, scale.slot, frame.height(),
                     std::string(" class=\"slot") + (slot % 2 == 0 ? " even" : "") + "\" data-slot=\"" +
                         std::to_string(slot) + "\""));
        }
        if (scale.any != 0)
        {
            put(rect(scale.any, frame.y, anySymbol * grid.symbols(), frame.height(), " class=\"frame\""));
        }
        if (grid.slots.size <= 2)
        {
            for (OSUINT32 i = 1; i < grid.slots.size * grid.symbols(); ++i)
            {
                const std::string x = num(scale.x + scale.symbol * i);
                put("<path class=\"grid-line\" d=\"M" + x + " " + num(frame.y) + "V" + num(frame.y + frame.height()) +
                    "\"/>");
            }
        }
        OSUINT32 step = 1;
        for (const OSUINT32 next : {2U, 5U, 10U, 20U, 50U, 100U})
        {
            step = frame.rb * step < 14 ? next : step;
        }
        put("\n");
        const OSUINT32 end = frame.axis.start + frame.axis.size;
        for (OSUINT32 rb = (frame.axis.start + step - 1) / step * step; rb < end; rb += step)
        {
            const double y = frame.top({rb, 1}) + frame.rb / 2;
            text(left - 6, y + 3, "soft small end", std::to_string(rb));
            put("<path class=\"grid-line\" d=\"M" + num(left - 4) + " " + num(y) + "H" + num(left - 1) + "\"/>\n");
        }
    }

    // Of what lies beyond the axis, what is on it.
    static NrSpan clipped(NrSpan rbs, NrSpan axis)
    {
        const OSUINT32 start = std::max(rbs.start, axis.start);
        const OSUINT32 end = std::min(rbs.start + rbs.size, axis.start + axis.size);
        return {start, end > start ? end - start : 0};
    }

    std::string hatched() const
    {
        return " class=\"clash\" fill=\"url(#" + prefix_ + "x)\"";
    }

    void parts(const Panel& panel, const Scale& scale, const Frame& frame)
    {
        double x = scale.lanes;
        for (const Part& part : panel.parts)
        {
            put(open(part.kind, part.path, part.title));
            for (const NrSpan& given : part.rbs)
            {
                const NrSpan rbs = clipped(given, frame.axis);
                const double y = frame.top(rbs);
                put(rect(x + 1, y, laneWidth - 2, frame.rb * rbs.size, ""));
                if (part.clashes)
                {
                    put(rect(x + 1, y, laneWidth - 2, frame.rb * rbs.size, hatched()));
                }
            }
            const std::string at = num(x + laneWidth / 2 + 3.5) + " " + num(frame.y + frame.height() - 4);
            put("<text class=\"small\" transform=\"translate(" + at + ") rotate(-90)\">" + escaped(part.name) +
                "</text></g>\n");
            x += laneWidth;
        }
    }

    // The fill of resource elements that do not take all subcarriers: made once for each kind and mask.
    std::string fill(const Resource& resource, const Rect& shape, const Frame& frame)
    {
        const bool isWhole = shape.subcarriers == allSubcarriers && shape.every <= 1;
        if (isWhole)
        {
            return "";
        }
        const OSUINT32 phase =
            shape.every <= 1 ? 0 : (frame.axis.start + frame.axis.size - shape.rbs.start) % shape.every;
        const std::string key = words("%s-%x-%u-%u-%s-%s", nameOf(resource.kind).id, unsigned{shape.subcarriers},
                                      unsigned{shape.every}, phase, num(frame.rb).c_str(), num(frame.y).c_str());
        for (const auto& known : fills_)
        {
            if (known.first == key)
            {
                return known.second;
            }
        }
        const std::string id = prefix_ + "p" + std::to_string(fills_.size());
        const OSUINT32 every = std::max<OSUINT32>(shape.every, 1);
        const double height = frame.rb * every;
        // The tile ends where a resource block with the subcarriers does; of each tile that is the last one.
        const double shift = frame.y + (phase == 0 ? 0 : frame.rb * phase);
        std::string tile = "<pattern id=\"" + id + "\" width=\"1024\" height=\"" + num(height) + "\" y=\"" +
                           num(shift) + "\" patternUnits=\"userSpaceOnUse\"><g class=\"" + nameOf(resource.kind).id +
                           "\">" + rect(0, 0, 1024, height, " class=\"tint\" stroke=\"none\"");
        for (OSUINT32 k = 0; k < 12;)
        {
            OSUINT32 end = k;
            while (end < 12 && (shape.subcarriers >> end & 1) != 0)
            {
                ++end;
            }
            if (end > k)
            {
                tile += rect(0, height - frame.rb * end / 12, 1024, frame.rb * (end - k) / 12, " stroke=\"none\"");
            }
            k = end + 1;
        }
        patterns_ += tile + "</g></pattern>\n";
        std::string use = words(" style=\"fill:url(#%s)\" data-subcarriers=\"%03x\" data-every=\"%u\"", id.c_str(),
                                unsigned{shape.subcarriers}, every);
        fills_.emplace_back(key, use);
        return use;
    }

    // In a slot whose first symbol is at x.
    std::string shapeOf(const Resource& resource, const Shape& shape, const Frame& frame, double x, double symbol)
    {
        std::string rects;
        for (const Rect& one : shape)
        {
            const NrSpan rbs = clipped(one.rbs, frame.axis);
            if (rbs.size != 0)
            {
                rects += rect(x + symbol * one.symbols.start, frame.top(rbs), symbol * one.symbols.size,
                              frame.rb * rbs.size, fill(resource, one, frame));
            }
        }
        return rects;
    }

    void resources(const Grid& grid, const Panel& panel, const Scale& scale, const Frame& frame)
    {
        for (const Resource& resource : panel.resources)
        {
            if (!resource.hasPlace() || (resource.period != 0 && resource.occasions.empty()))
            {
                continue;
            }
            put(open(nameOf(resource.kind).id, resource.path, resource.title + resource.detail));
            if (resource.period == 0)
            {
                put(shapeOf(resource, resource.shapes[0], frame, scale.any, anySymbol) + "</g>\n");
                continue;
            }
            std::vector<std::string> ids(resource.shapes.size());
            std::string uses;
            for (const Occasion& occasion : resource.occasions)
            {
                std::string& id = ids[occasion.shape];
                if (id.empty())
                {
                    id = prefix_ + std::to_string(shapes_++);
                    put("<defs><g id=\"" + id + "\">" +
                        shapeOf(resource, resource.shapes[occasion.shape], frame, 0, scale.symbol) + "</g></defs>");
                }
                uses += "<use href=\"#" + id + "\" x=\"" +
                        num(scale.x + scale.slot * (occasion.slot - grid.slots.start)) +
                        (occasion.isIdle ? "\" class=\"idle\"/>" : "\"/>");
            }
            put(uses + "</g>\n");
        }
    }

    // What clashes, hatched.
    void marks(const Grid& grid, const Panel& panel, const Scale& scale, const Frame& frame)
    {
        for (const Resource& resource : panel.resources)
        {
            for (const Occasion& occasion : resource.occasions)
            {
                if (!occasion.clashes || !resource.hasPlace())
                {
                    continue;
                }
                for (const Rect& one : resource.shapes[occasion.shape])
                {
                    const NrSpan rbs = clipped(one.rbs, frame.axis);
                    const double height = std::max(frame.rb * rbs.size, 3.0);
                    put(rect(scale.x + scale.slot * (occasion.slot - grid.slots.start) +
                                 scale.symbol * one.symbols.start,
                             frame.top(rbs), std::max(scale.symbol * one.symbols.size, 3.0), height, hatched()));
                }
                put("\n");
            }
        }
    }

    // When those occur whose resource blocks are not known.
    void lanes(const Grid& grid, const Panel& panel, const Scale& scale)
    {
        bool isFirst = true;
        for (const Resource& resource : panel.resources)
        {
            if (resource.hasPlace() || resource.shapes.empty() || resource.shapes[0].empty())
            {
                continue;
            }
            if (isFirst)
            {
                y_ += 12;
                text(left, y_ - 3, "soft small", "in time alone");
                isFirst = false;
            }
            put(open(nameOf(resource.kind).id, resource.path, resource.title + resource.detail));
            put("<text class=\"small\" x=\"" + num(left) + "\" y=\"" + num(y_ + 8) + "\">" + escaped(resource.name) +
                "</text>");
            const auto mark = [&](double x, const Shape& shape, double symbol, bool clashes)
            {
                for (const Rect& one : shape)
                {
                    put(rect(x + symbol * one.symbols.start, y_ + 1, symbol * one.symbols.size, laneHeight - 3,
                             clashes ? hatched() : ""));
                }
            };
            if (resource.period == 0)
            {
                mark(scale.any, resource.shapes[0], anySymbol, false);
            }
            for (const Occasion& occasion : resource.occasions)
            {
                mark(scale.x + scale.slot * (occasion.slot - grid.slots.start), resource.shapes[occasion.shape],
                     scale.symbol, occasion.clashes);
            }
            put("</g>\n");
            y_ += laneHeight;
        }
    }

    // Time domain allocations: the symbols of a slot, side by side.
    void rows(const Grid& grid, const Panel& panel)
    {
        if (panel.rows.empty())
        {
            return;
        }
        constexpr double symbol = 5;
        constexpr double column = 268;
        constexpr unsigned columns = 4;
        y_ += 14;
        text(left, y_ - 4, "soft",
             panel.direction == Direction::Downlink ? "PDSCH time domain allocations"
                                                    : "PUSCH time domain allocations");
        for (size_t i = 0; i < panel.rows.size(); ++i)
        {
            const Row& row = panel.rows[i];
            const double x = left + column * static_cast<double>(i % columns);
            const size_t line = i / columns;
            const double y = y_ + 14 * static_cast<double>(line);
            put(open("row", row.path, row.title) + rect(x, y, symbol * grid.symbols(), 10, " class=\"empty\"") +
                rect(x + symbol * row.symbols.start, y, symbol * row.symbols.size, 10, "") +
                "<text class=\"small\" x=\"" + num(x + symbol * grid.symbols() + 5) + "\" y=\"" + num(y + 8) + "\">" +
                escaped(row.name) + "</text></g>\n");
        }
        width_ = std::max(width_, left + column * std::min<double>(columns, static_cast<double>(panel.rows.size())));
        const size_t lines = (panel.rows.size() + columns - 1) / columns;
        y_ += 14 * static_cast<double>(lines) + 2;
    }

    const std::vector<CellPicture>& cells_;
    std::string prefix_;
    std::string body_;
    std::string patterns_;
    std::vector<std::pair<std::string, std::string>> fills_;
    OSUINT32 shapes_ = 0;
    double y_ = 0;
    double width_ = 400;
};

} // namespace
} // namespace rules::draw

std::string draw::svg(OSCTXT& ctxt, const CellGroupConfig& value, const RrcRuleContext* known,
                      const RrcDrawOptions& options)
{
    using namespace rules;
    static constexpr RrcRuleContext nothing{};
    const RrcRuleContext& context = known == nullptr ? nothing : *known;
    const rtx::HeapScope scope(ctxt);
    int status = RTX_OK;
    const CellGroupConfig* const after = stateAfter(ctxt, value, context, status);
    if (after == nullptr)
    {
        return {};
    }
    const Tree tree(ctxt);
    Memory memory(ctxt);
    Model model(memory, tree, value, *after, context);
    const rules::draw::Paths paths(model);
    rules::draw::Gather gather(model, paths, options);
    std::vector<rules::draw::CellPicture> cells;
    for (Cell& cell : model.cells())
    {
        cells.push_back(gather.picture(cell));
    }
    if (memory.failed())
    {
        (void)rtx::setError(ctxt, RTX_E_HEAP);
        return {};
    }
    return rules::draw::Svg(cells).write();
}

int rrcDraw(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, const RrcDrawOptions* options,
            RtxPrintSink sink, void* arg)
{
    if (pctxt == nullptr || pvalue == nullptr || sink == nullptr)
    {
        return RTX_E_NULL;
    }
    static constexpr RrcDrawOptions usual{};
    std::string text;
    const auto draw = [&]
    {
        text = draw::svg(*pctxt, *pvalue, known, options == nullptr ? usual : *options);
        return text.empty() ? int{pctxt->error.status} : int{RTX_OK};
    };
    const auto withoutMemory = [&]
    {
        return int{rtx::setError(*pctxt, RTX_E_HEAP)};
    };
    const int status = text::whileMemory(draw, withoutMemory);
    if (status == RTX_OK)
    {
        sink(arg, text.c_str());
    }
    return status;
}
