"""What the benchmark's JSON says: the time of each benchmark, in ns, and its counters; and the machine's name."""

import pathlib
import re

COUNTERS = ("octets", "fields", "mallocs", "heap")


def times(*runs):
    """{"message/benchmark": {"ns": ..., counters}} of one or more outputs of one program, of each benchmark the least
    of all. Of a run that is the least repetition, too, but where other code runs between the calls the median one:
    what it leaves in the caches is a matter of chance both ways."""
    found = {}
    for run in runs:
        for entry in run["benchmarks"]:
            # Behind its name a benchmark says how it was run: typical_call/entry_on_2/real_time/threads:2
            name, *how = entry["run_name"].rsplit("/", entry["run_name"].count("/") - 1)
            disturbed = "manual_time" in how
            if entry.get("aggregate_name") != ("median" if disturbed else "min"):
                continue
            measured = {"ns": entry["real_time" if disturbed or "real_time" in how else "cpu_time"]}
            measured |= {counter: entry[counter] for counter in COUNTERS if counter in entry}
            if name not in found or measured["ns"] < found[name]["ns"]:
                found[name] = measured
    return found


def ratio(found, name, to):
    return found[name]["ns"] / found[to]["ns"]


def floors(found, name):
    """A time in floors of its message."""
    return ratio(found, name, name.split("/")[0] + "/floor")


def per_field(found, name):
    return found[name]["ns"] / found[name.split("/")[0] + "/floor"]["fields"]


def growth(found, benchmark, message):
    """The time of a field, over that of the typical call's."""
    return per_field(found, f"{message}/{benchmark}") / per_field(found, f"typical_call/{benchmark}")


def processor():
    info = pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8")
    name = re.search(r"model name\s*: (.*)", info)
    return re.sub(r"\((R|TM)\)", "", name[1]) if name else "processor unknown"
