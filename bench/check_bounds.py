"""check_bounds.py: reads the benchmark's JSON from standard input and prints each ratio to the floor of its message. Fails
where one is half as much again above its bound: so far out no load of the machine alone brings it."""

import json
import sys

BOUNDS = {"one_bearer/encode": 2, "typical_call/encode": 2, "secondary_cells/encode": 2, "releases/encode": 2,
          "typical_call/entry": 4}
ALLOWED = 1.5


def main():
    least = {run["run_name"]: run["cpu_time"] for run in json.load(sys.stdin)["benchmarks"]
             if run.get("aggregate_name") == "min"}
    failed = False
    for name, bound in BOUNDS.items():
        ratio = least[name] / least[name.split("/")[0] + "/floor"]
        failed = failed or ratio > ALLOWED * bound
        print(f"{name:24} {ratio:.2f} x floor, bound {bound}")
    sys.exit(1 if failed else 0)


main()
