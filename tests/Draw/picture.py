"""A picture read back: what its elements take, in slots, symbols, resource blocks and subcarriers, from their lengths."""

import xml.etree.ElementTree as ElementTree

SVG = "{http://www.w3.org/2000/svg}"
KINDS = {"search-space", "ssb", "csi-rs", "zp-csi-rs", "csi-im", "srs", "grant", "pucch", "csi-report", "sr"}
NEAR = 1e-6


def whole(value, what):
    """A number that has to be whole."""
    if abs(value - round(value)) > 0.01:
        raise ValueError(f"{what}: {value} is not whole")
    return round(value)


class Picture:
    def __init__(self, text):
        self.root = ElementTree.fromstring(text)
        self.ids = {element.get("id"): element for element in self.root.iter() if element.get("id")}
        self.all, self.titles, self.spans, self.tdd, self.parts = {}, {}, {}, {}, {}
        self.unplaced = [(one.get("data-path"), one.text) for one in self.root.iter(SVG + "tspan")
                         if one.get("class") == "unplaced"]
        self.clashes = [(one.get("data-path"), one.get("data-other-path"), one.find(SVG + "text").text)
                        for one in self.root.iter(SVG + "g") if one.get("class") == "clash-note"]
        self.hatched = sum(one.get("class") == "clash" for one in self.root.iter(SVG + "rect"))
        for grid in self.root.iter(SVG + "g"):
            if grid.get("class") == "grid":
                self.read_grid(grid)

    def read_grid(self, grid):
        key = int(grid.get("data-cell")), int(grid.get("data-spacing"))
        self.spans[key] = int(grid.get("data-first-slot")), int(grid.get("data-slots"))
        for strip in grid.findall(SVG + "g"):
            if strip.get("class") == "tdd":
                runs = [(float(one.get("x")), one.get("class")[0].upper(),
                         whole(float(one.get("width")) / float(grid.get("data-symbol-width")), "TDD symbols"))
                        for one in strip.findall(SVG + "rect")]
                self.tdd[key] = "".join(kind * count for _, kind, count in sorted(runs))
            if strip.get("class") == "panel":
                self.read_panel(key, grid, strip)

    def read_panel(self, key, grid, panel):
        self.numbers = {name: float(value) for element in (grid, panel) for name, value in element.attrib.items()
                        if name.startswith("data-") and name != "data-direction"}
        for group in panel.findall(SVG + "g"):
            kind, path = group.get("class"), group.get("data-path")
            if kind in ("bwp", "coreset", "row"):
                self.parts.setdefault((kind, path), []).append(group)
            if kind not in KINDS:
                continue
            self.titles[kind, path] = group.find(SVG + "title").text
            uses = group.findall(SVG + "use")
            for use in uses:
                at = float(use.get("x")) - self.numbers["data-x"]
                slot = whole(at / self.numbers["data-slot-width"], "slot") + int(self.numbers["data-first-slot"])
                for rect in self.ids[use.get("href")[1:]].findall(SVG + "rect"):
                    self.take(kind, path, slot, rect, 0, self.numbers["data-symbol-width"])
            if not uses and group.find(SVG + "text") is None:
                for rect in group.findall(SVG + "rect"):
                    self.take(kind, path, None, rect, self.numbers["data-any-x"],
                              self.numbers["data-any-symbol-width"])

    def rb_spans(self, kind, path):
        """Of a bandwidth part or a CORESET; read in the panel that was read last."""
        found = []
        for group in self.parts[kind, path]:
            for rect in group.findall(SVG + "rect"):
                found.append(self.blocks(rect))
        return found

    def blocks(self, rect):
        height = self.numbers["data-rb-height"]
        end = self.numbers["data-first-rb"] + self.numbers["data-rbs"] - \
            (float(rect.get("y")) - self.numbers["data-y"]) / height
        count = float(rect.get("height")) / height
        return whole(end - count, "first resource block"), whole(count, "resource blocks")

    def take(self, kind, path, slot, rect, x, symbol_width):
        symbol = whole((float(rect.get("x")) - x) / symbol_width, "symbol")
        symbols = whole(float(rect.get("width")) / symbol_width, "symbols")
        first, count = self.blocks(rect)
        masks = {rb: 0xFFF for rb in range(first, first + count)}
        fill = rect.get("style")
        if fill is not None:
            masks = {rb: self.mask(self.ids[fill[len("fill:url(#"):-1]], rb) for rb in masks}
        for i in range(symbol, symbol + symbols):
            at = self.all.setdefault((kind, path), {}).setdefault((slot, i), {})
            for rb, mask in masks.items():
                if mask:
                    at[rb] = at.get(rb, 0) | mask

    def mask(self, pattern, rb):
        """The subcarriers of a resource block that a pattern paints, from where its tiles lie."""
        height, tile = self.numbers["data-rb-height"], float(pattern.get("height"))
        bottom = self.numbers["data-y"] + height * (self.numbers["data-first-rb"] + self.numbers["data-rbs"] - rb)
        painted = [(float(rect.get("y")), float(rect.get("y")) + float(rect.get("height")))
                   for rect in pattern.iter(SVG + "rect") if rect.get("class") != "tint"]
        found = 0
        for k in range(12):
            y = (bottom - height * (k + 0.5) / 12 - float(pattern.get("y"))) % tile
            found |= (1 << k) if any(begin <= y < end for begin, end in painted) else 0
        return found
