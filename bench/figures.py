"""The figures of README.md and times.svg, made from figures.json.

figures.py collect <folder>  makes figures.json from what scripts/bench-figures.sh has measured, then writes both
figures.py write             writes both
figures.py check             fails when one of them is not what figures.json says"""

import glob
import json
import math
import pathlib
import sys

import measured

HERE = pathlib.Path(__file__).resolve().parent
FIGURES = HERE / "figures.json"
README = HERE / "README.md"
SVG = HERE / "times.svg"

# The messages, those of one growth first, by their octets.
GROWTH = ("one_bearer", "grown_100", "typical_call", "secondary_cells", "grown_2500", "grown_5000", "grown_8000")
MESSAGES = (*GROWTH[:2], "releases", *GROWTH[2:])
CALLS = ("encode", "entry", "decode")


def load(name):
    return json.loads(pathlib.Path(name).read_text(encoding="utf-8"))


def collect(folder):
    """<folder>/now.*.json are the benchmark's outputs and <folder>/now.lines what code_lines.py printed; likewise
    before.*, if there is an earlier build."""
    figures = {}
    for build in ("before", "now"):
        runs = [load(name) for name in sorted(glob.glob(f"{folder}/{build}.*.json"))]
        if not runs:
            continue
        context = runs[0]["context"]
        times = measured.times(*runs)
        figures[build] = {"times": {name: times[name] | {"ns": round(times[name]["ns"], 2)} for name in sorted(times)},
                          "lines": load(f"{folder}/{build}.lines")}
        figures["machine"] = f"{measured.processor()}, {context['num_cpus']} virtual processors at {context['mhz_per_cpu']} MHz"
        figures["compiler"] = context["compiler"]
        figures["date"] = context["date"][:10]
        if build == "before":
            figures["before commit"] = pathlib.Path(f"{folder}/commit").read_text(encoding="utf-8").strip()
    FIGURES.write_text(json.dumps(figures, indent=1) + "\n", encoding="utf-8")


def table(header, rows):
    yield "| " + " | ".join(header) + " |"
    yield "|" + "---|" * len(header)
    yield from ("| " + " | ".join(row) + " |" for row in rows)


def nanoseconds(times, name):
    ns = times[name]["ns"]
    return f"{ns:.0f}" if ns >= 100 else f"{ns:.1f}"


def warm_table(times):
    def row(message):
        floor = times[f"{message}/floor"]
        yield from (f"`{message}`", f"{floor['octets']:.0f}", f"{floor['fields']:.0f}",
                    nanoseconds(times, f"{message}/floor"))
        for call in CALLS:
            yield f"{nanoseconds(times, f'{message}/{call}')} ({measured.floors(times, f'{message}/{call}'):.1f})"

    return table(("Message", "Octets", "Fields", "`floor`", *(f"`{call}`" for call in CALLS)), map(row, MESSAGES))


def heap_table(times):
    calls = [call for call in ("entry", "decode", "decode_into_memory") if f"typical_call/{call}" in times]

    def row(message):
        yield f"`{message}`"
        for call in calls:
            asked = times[f"{message}/{call}"]
            yield f"{asked['mallocs']:.0f}, {asked['heap'] / 1024:.0f} KiB"

    return table(("Message", *(f"`{call}`" for call in calls)), map(row, MESSAGES))


def growth_table(times):
    def row(message):
        yield f"`{message}`"
        yield from (f"{measured.per_field(times, f'{message}/{call}'):.2f} "
                    f"({measured.growth(times, call, message):.2f})" for call in CALLS)

    return table(("Message", *(f"`{call}`, ns a field" for call in CALLS)), map(row, GROWTH))


def cold_table(times):
    def row(message):
        yield f"`{message}`"
        yield from (f"{times[f'{message}/{call}_cold']['ns'] / 1000:.1f} "
                    f"({measured.ratio(times, f'{message}/{call}_cold', 'line/driven_out'):.0f})" for call in CALLS)

    return table(("Message", *(f"`{call}_cold`, µs" for call in CALLS)), map(row, MESSAGES))


def typical_call(build):
    """(what, its value) of what is promised of the typical call."""
    times = build["times"]

    def ratio(name, to):
        value = measured.ratio(times, f"typical_call/{name}", to)
        return f"{value:.2f}" if value < 100 else f"{value:.0f}"

    for call in (*CALLS, "decode_into_memory"):
        if f"typical_call/{call}" in times:
            yield f"`{call}`, in floors", ratio(call, "typical_call/floor")
    after = ratio("entry_after_malloc", "typical_call/entry_after_nothing")
    yield "`entry_after_malloc`, over `entry_after_nothing`", after
    for call in ("record_check", "record_to_json"):
        if f"typical_call/{call}" in times:
            yield f"`{call}`, over `entry`", ratio(call, "typical_call/entry")
    for call in ("entry", "decode"):
        yield f"`{call}_cold`, µs", f"{times[f'typical_call/{call}_cold']['ns'] / 1000:.1f}"
        yield f"`{call}_cold`, in lines driven out", ratio(f"{call}_cold", "line/driven_out")
        yield f"`{call}_cold`, in lines walked", ratio(f"{call}_cold", "line/walked")
        yield f"`{call}_after_6MB`, in lines driven out", ratio(f"{call}_after_6MB", "line_6MB/driven_out")
    yield "calls on two threads, over one", \
        f"{measured.ratio(times, 'typical_call/entry_on_1', 'typical_call/entry_on_2'):.2f}"
    for call in CALLS:
        worst = max(measured.growth(times, call, message) for message in GROWTH)
        yield f"`{call}`, the dearest field of all sizes over its own", f"{worst:.2f}"
        yield f"`{call}`, lines of code touched", f"{build['lines'][call]}"


def typical_table(figures):
    builds = [build for build in ("before", "now") if build in figures]
    values = [dict(typical_call(figures[build])) for build in builds]
    return table(("Typical call", *builds), ((what, *(value.get(what, "") for value in values)) for what in values[-1]))


def text(figures):
    now = figures["now"]["times"]
    yield f"{figures['compiler']}, `release-test` preset, {figures['machine']}, {figures['date']}."
    yield "Times in ns; in parentheses the ratio to the floor of the same message."
    yield ""
    yield from warm_table(now)
    yield ""
    before = f" `before` is commit {figures['before commit']}, measured in turn with it." if "before" in figures else ""
    yield f"The typical call.{before}"
    yield ""
    yield from typical_table(figures)
    yield ""
    yield "What a call asks of malloc, and its peak:"
    yield ""
    yield from heap_table(now)
    yield ""
    yield "The time of a field as messages grow; in parentheses over that of the typical call's:"
    yield ""
    yield from growth_table(now)
    yield ""
    walked, driven_out = now["line/walked"]["ns"], now["line/driven_out"]["ns"]
    yield "Cold; in parentheses in lines driven out."
    yield f"One of them takes {driven_out:.0f} ns here, one that is walked {walked:.1f} ns."
    yield ""
    yield from cold_table(now)


def readme(figures):
    begin, end = "<!-- figures: written by bench/figures.py -->\n", "<!-- end of figures -->\n"
    before, _, rest = README.read_text(encoding="utf-8").partition(begin)
    _, _, after = rest.partition(end)
    return before + begin + "\n" + "\n".join(text(figures)) + "\n\n" + end + after


class Plot:
    """Time against octets, both logarithmic."""

    LEFT, RIGHT, TOP, BOTTOM = 70, 600, 30, 430
    WIDTH, HEIGHT = 800, 490
    OCTETS, MICROSECONDS = (25, 10000), (0.05, 500)

    STYLE = """\
  text { font: 13px sans-serif; fill: #1f2328 }
  .back { fill: #ffffff }
  .grid { stroke: #d1d9e0; stroke-width: 1 }
  .line { fill: none; stroke-width: 2 }
  .cold { stroke-dasharray: 5 4 }
  .lead { stroke-width: 1; stroke-opacity: 0.6 }
  .floor { stroke: #59636e } .encode { stroke: #0072b2 } .entry { stroke: #c04a00 } .decode { stroke: #00795c }
  circle.cold { fill: #ffffff; stroke-dasharray: none }
  @media (prefers-color-scheme: dark) {
    text { fill: #f0f6fc }
    .back, circle.cold { fill: #0d1117 }
    .grid { stroke: #3d444d }
    .floor { stroke: #b7bdc8 } .encode { stroke: #56b4e9 } .entry { stroke: #f0883e } .decode { stroke: #3fd0a4 }
  }"""

    def __init__(self, times):
        self.times = times
        self.out = []
        self.labels = []

    @staticmethod
    def share(value, bounds):
        return math.log(value / bounds[0]) / math.log(bounds[1] / bounds[0])

    def x(self, octets):
        return self.LEFT + (self.RIGHT - self.LEFT) * self.share(octets, self.OCTETS)

    def y(self, microseconds):
        return self.BOTTOM - (self.BOTTOM - self.TOP) * self.share(microseconds, self.MICROSECONDS)

    def put(self, line):
        self.out.append(line)

    def grid(self):
        for octets in (30, 100, 300, 1000, 3000, 8192):
            x = self.x(octets)
            self.put(f'<line class="grid" x1="{x:.1f}" y1="{self.TOP}" x2="{x:.1f}" y2="{self.BOTTOM}"/>')
            self.put(f'<text x="{x:.1f}" y="{self.BOTTOM + 20}" text-anchor="middle">{octets}</text>')
        for microseconds in (0.1, 1, 10, 100):
            y = self.y(microseconds)
            self.put(f'<line class="grid" x1="{self.LEFT}" y1="{y:.1f}" x2="{self.RIGHT}" y2="{y:.1f}"/>')
            self.put(f'<text x="{self.LEFT - 8}" y="{y + 4:.1f}" text-anchor="end">{microseconds:g} µs</text>')
        middle = (self.LEFT + self.RIGHT) / 2
        self.put(f'<text x="{middle:.0f}" y="{self.BOTTOM + 45}" text-anchor="middle">octets of the message</text>')

    def series(self, benchmark, colour, label, kind):
        points = [(self.x(self.times[f"{message}/floor"]["octets"]),
                   self.y(self.times[f"{message}/{benchmark}"]["ns"] / 1000)) for message in GROWTH]
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        self.put(f'<polyline class="line {colour} {kind}" points="{path}"/>')
        for x, y in points:
            fill = f' fill="none" class="{colour} {kind}"' if kind == "cold" else f' class="{colour} back"'
            self.put(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3.5" stroke-width="2"{fill}/>')
        self.labels.append([points[-1], colour, label])

    def put_labels(self):
        """Beside the lines' ends, far enough from one another."""
        self.labels.sort()
        self.labels.sort(key=lambda label: label[0][1])
        gap = 16
        places = [end[1] for end, _, _ in self.labels]
        for i in range(1, len(places)):
            places[i] = max(places[i], places[i - 1] + gap)
        for (end, colour, label), place in zip(self.labels, places):
            self.put(f'<line class="lead {colour}" x1="{end[0] + 5:.1f}" y1="{end[1]:.1f}" x2="{self.RIGHT + 6}"'
                     f' y2="{place:.1f}"/>')
            self.put(f'<text x="{self.RIGHT + 10}" y="{place + 4:.1f}">{label}</text>')

    def svg(self):
        self.put(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {self.WIDTH} {self.HEIGHT}" role="img">')
        self.put("<title>Time against message size, warm and cold, beside the floor</title>")
        self.put(f"<style>\n{self.STYLE}\n</style>")
        self.put(f'<rect class="back" width="{self.WIDTH}" height="{self.HEIGHT}"/>')
        self.grid()
        self.series("floor", "floor", "floor F*", "warm")
        for call, label in (("encode", "encode"), ("entry", "compose and encode"), ("decode", "decode")):
            self.series(call, call, label, "warm")
            self.series(f"{call}_cold", call, f"{label}, cold", "cold")
        self.put_labels()
        self.put("</svg>")
        return "\n".join(self.out) + "\n"


def main():
    what, *folder = sys.argv[1:]
    if what == "collect":
        collect(*folder)
    figures = load(FIGURES)
    stale = []
    for file, content in ((README, readme(figures)), (SVG, Plot(figures["now"]["times"]).svg())):
        if what != "check":
            file.write_text(content, encoding="utf-8")
        elif not file.exists() or file.read_text(encoding="utf-8") != content:
            stale.append(file.name)
    if stale:
        sys.exit(f"figures: {' and '.join(stale)} are not what figures.json says; run bench/figures.py write")


main()
