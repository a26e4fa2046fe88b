"""What the benchmark's JSON says: the least time of each benchmark, in ns, and its counters."""

COUNTERS = ("octets", "fields", "mallocs", "heap")


def least(*runs):
    """{"message/benchmark": {"ns": ..., counters}} of one or more outputs of one program: the least time of all."""
    found = {}
    for run in runs:
        for entry in run["benchmarks"]:
            if entry.get("aggregate_name") != "min":
                continue
            # Behind its name a benchmark says how it was run: typical_call/entry_on_2/real_time/threads:2
            name, *how = entry["run_name"].rsplit("/", entry["run_name"].count("/") - 1)
            measured = {"ns": entry["real_time" if {"real_time", "manual_time"} & set(how) else "cpu_time"]}
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
