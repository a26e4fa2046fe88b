"""Nothing is kept: memory stays constant, and threads share nothing."""

import concurrent.futures
import pathlib

import pytest

import cellgroupcfg


def resident():
    """Octets of this process in memory."""
    pages = int(pathlib.Path("/proc/self/statm").read_text(encoding="ascii").split()[1])
    return pages * 4096


def test_ten_thousand_rounds_take_no_more_memory(examples):
    octets = examples["one-bearer"]

    def rounds(count):
        for _ in range(count):
            assert cellgroupcfg.encode(cellgroupcfg.decode(octets)) == octets

    rounds(1000)
    before = resident()
    rounds(10000)
    assert resident() - before < 2 << 20


def test_failures_and_walks_take_no_more_memory(examples):
    octets = examples["one-bearer"]

    def rounds(count):
        for _ in range(count):
            with pytest.raises(cellgroupcfg.DecodeError):
                cellgroupcfg.decode(octets[:4])
            cellgroupcfg.check(octets, full=True, band="n78", carrier="30:0:273", previous=None)
            cellgroupcfg.diff(octets, {"cellGroupId": 0})
            cellgroupcfg.delta(None, octets)

    rounds(200)
    before = resident()
    rounds(2000)
    assert resident() - before < 4 << 20


def test_eight_threads(messages):
    some = messages[:40]

    def all_of(message):
        return (
            cellgroupcfg.decode(message),
            cellgroupcfg.check(message, band="n78"),
            cellgroupcfg.trace(message),
            cellgroupcfg.explain(message),
            cellgroupcfg.diff(message, some[0]),
            cellgroupcfg.record(message, partial=True),
        )

    expected = [all_of(message) for message in some]
    with concurrent.futures.ThreadPoolExecutor(8) as pool:
        for _ in range(2):
            assert list(pool.map(all_of, some)) == expected
