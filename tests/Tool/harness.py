"""What the tests of the program share: running it, comparing what it writes, messages in bits."""

import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

PROGRAM, PROJECT = str(pathlib.Path(sys.argv[1]).resolve()), pathlib.Path(sys.argv[2])
DONE, FINDINGS, USAGE, MALFORMED, NOTHING = 0, 1, 2, 3, 4

# A cell group that all rules are silent of.
WHOLE = [line.strip() for line in (PROJECT / "tests/Rules/wholeCell.flat").read_text(encoding="utf-8").splitlines()
         if line.strip() and not line.startswith("#")]

failures = []
count = 0


def run(*arguments, stdin=b"", environment=None):
    if isinstance(stdin, str):
        stdin = stdin.encode()
    done = subprocess.run([PROGRAM, *arguments], input=stdin, capture_output=True, timeout=60, check=False,
                          env={**os.environ, "NO_COLOR": "", **(environment or {})})
    return done.returncode, done.stdout, done.stderr


def differs(what, expected, found):
    if isinstance(expected, str):
        found = found.decode(errors="replace")
    if isinstance(expected, re.Pattern):
        found = found.decode(errors="replace")
        return "" if expected.search(found) else f"{what}: no {expected.pattern!r} in {found!r}"
    if expected == found:
        return ""
    if isinstance(expected, bytes):
        return f"{what}: {found!r} instead of {expected!r}"
    return f"{what}:\n" + "\n".join(difflib.unified_diff(expected.splitlines(), found.splitlines(), "expected", "found",
                                                        lineterm=""))


def expect(arguments, status, out="", err="", stdin=b"", environment=None):
    """Exit status, standard output and standard error: texts and octets are compared, patterns have to occur."""
    global count
    count += 1
    found = run(*arguments, stdin=stdin, environment=environment)
    problems = [] if found[0] == status else [f"exit status {found[0]} instead of {status}; {found[2].decode()!r}"]
    problems += [problem for problem in (differs("standard output", out, found[1]),
                                         differs("standard error", err, found[2])) if problem]
    if problems:
        failures.append("cellgroupcfg " + " ".join(arguments) + "\n" + "\n".join(problems))


def true(fact, what):
    global count
    count += 1
    if not fact:
        failures.append(what)


def octets(bits):
    """The octets of bits in any grouping, padded with zero bits."""
    bits = re.sub(r"\s", "", bits)
    bits += "0" * (-len(bits) % 8)
    return bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8))


def bits_of(data):
    return "".join(f"{octet:08b}" for octet in data)


def flat(*changes, only=""):
    """The whole cell with changes, "path = value" or "path = absent", as flat lines; `only` what begins so."""
    lines = [line for line in WHOLE if line.startswith(("cellGroupId", only))]
    for change in changes:
        path, value = change.split(" = ")
        inside = tuple(path + sign for sign in (" ", ".", "["))
        at = next((i for i, line in enumerate(lines) if line.startswith(inside)), len(lines))
        kept = [line for line in lines if not line.startswith(inside)]
        if value == "absent":
            true(len(kept) < len(lines), f"{path} is there to be taken away")
        else:
            kept.insert(at, change)
        lines = kept
    return "".join(f"CellGroupConfig.{line}\n" for line in lines)


def main(*tests):
    """Runs the tests, each with a folder that they share, and ends the program."""
    with tempfile.TemporaryDirectory() as name:
        for test in tests:
            test(pathlib.Path(name))
    print("\n\n".join(failures))
    print(f"{count} checks, {len(failures)} failed")
    sys.exit(1 if failures else 0)
