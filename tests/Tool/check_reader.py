"""check_reader.py READER: what the reader lists of captures that Wireshark's programs wrote is what was given to them."""

import pathlib
import random
import subprocess
import sys
import tempfile

LINK_TYPE = 252


def run(*command):
    return subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, check=True).stdout


def write(folder, name, packets):
    """A pcapng file of packets, (seconds, nanoseconds, octets) each."""
    dump = folder / (name + ".txt")
    dump.write_text("".join(f"{seconds}.{nanoseconds:09}\n000000 {octets.hex(' ')}\n\n"
                            for seconds, nanoseconds, octets in packets), encoding="ascii")
    capture = folder / (name + ".pcapng")
    run("text2pcap", "-q", "-l", LINK_TYPE, "-t", "%s.%f", dump, capture)
    return capture


def lines(packets, precision=1, snapshot=None):
    """What the reader is to list, with times in units of `precision` nanoseconds and octets cut at `snapshot`."""
    return [f"{number} {seconds}.{nanoseconds // precision * precision:09} {LINK_TYPE} {len(octets)} "
            f"{octets[:snapshot].hex()}" for number, (seconds, nanoseconds, octets) in enumerate(packets, 1)]


def draw(count, first_second):
    """Packets of 1 to 3000 octets, one a second."""
    chance = random.Random(count)
    return [(first_second + i, chance.randrange(10**9), chance.randbytes(chance.randrange(1, 3000)))
            for i in range(count)]


def main():
    failures = 0

    def check(what, capture, expected):
        nonlocal failures
        done = subprocess.run([sys.argv[1], "list"], input=capture.read_bytes(), stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, check=False)
        found = done.stdout.decode("ascii").splitlines()
        passed = done.returncode == 0 and found == expected
        failures += not passed
        print(f"{what}: {len(expected)} packets, " + ("as given" if passed else
              f"{len(found)} listed, {done.stderr.decode('ascii')}"))

    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        packets = draw(200, 1_700_000_000)
        more = draw(50, 1_700_001_000)
        capture = write(folder, "one", packets)
        check("pcapng", capture, lines(packets))
        for form, precision in (("pcap", 1000), ("nsecpcap", 1), ("modpcap", 1000), ("pcapng", 1)):
            written = folder / ("edited." + form)
            run("editcap", "-F", form, capture, written)
            check(form, written, lines(packets, precision))
        cut = folder / "cut"
        run("editcap", "-s", 100, capture, cut)
        check("cut at 100 octets", cut, lines(packets, 1, 100))
        commented = folder / "commented"
        run("editcap", "-a", "1:a comment", "-a", "200:another one", capture, commented)
        check("with comments", commented, lines(packets))
        merged = folder / "merged"
        run("mergecap", "-I", "none", "-w", merged, capture, write(folder, "two", more))
        check("of two interfaces", merged, lines(packets + more))
        appended = folder / "appended"
        appended.write_bytes(capture.read_bytes() + (folder / "two.pcapng").read_bytes())
        check("of two sections", appended, lines(packets + more))
    sys.exit(1 if failures else 0)


main()
