"""check_bounds.py: reads the benchmark's JSON from standard input and prints what has a bound. Fails where one is half
as much again above it: so far out no load of the machine alone brings it."""

import json
import sys

import measured

ALLOWED = 1.5


def bounds(found):
    """(what, its unit, how much of it, the bound)"""
    floor = "x floor"
    yield "typical_call/encode", floor, measured.floors(found, "typical_call/encode"), 2.1
    yield "typical_call/entry", floor, measured.floors(found, "typical_call/entry"), 3.6
    yield "typical_call/decode", floor, measured.floors(found, "typical_call/decode"), 5.5
    for message in ("one_bearer", "releases", "secondary_cells"):
        yield f"{message}/encode", floor, measured.floors(found, f"{message}/encode"), 2.1
    for what, to, bound in (("one_bearer/entry_of_many_switched_off", "one_bearer/entry", 1),
                            ("typical_call/entry_after_malloc", "typical_call/entry_after_nothing", 1.1),
                            ("typical_call/check", "typical_call/entry", 10),
                            ("typical_call/decompose", "typical_call/decode", 2),
                            ("typical_call/record_check", "typical_call/entry", 3),
                            ("typical_call/record_to_json", "typical_call/entry", 100)):
        yield what, f"x {to}", measured.ratio(found, what, to), bound
    for what in ("encode", "entry", "decode"):
        for message in ("one_bearer", "grown_8000"):
            yield f"{message}/{what}", f"x typical_call/{what} a field", measured.growth(found, what, message), 1.3


def main():
    found = measured.times(json.load(sys.stdin))
    failed = False
    for what, unit, value, bound in bounds(found):
        beyond = value > ALLOWED * bound
        failed = failed or beyond
        print(f"{what} {value:.2f} {unit}, bound {bound}{', far beyond it' if beyond else ''}")
    sys.exit(1 if failed else 0)


main()
