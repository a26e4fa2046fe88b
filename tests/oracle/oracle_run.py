"""What the checks of this folder share: running the oracle, the messages of the tests, the seed."""

import json
import os
import pathlib
import re
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent


def run(command, lines=(), statuses=(0,)):
    """The lines that a command prints for these lines of input."""
    done = subprocess.run([str(word) for word in command], input="".join(line + "\n" for line in lines),
                          stdout=subprocess.PIPE, text=True, check=False)
    if done.returncode not in statuses:
        sys.exit(f"'{' '.join(map(str, command))}' ended with status {done.returncode}")
    return done.stdout.splitlines()


def answers(command, lines):
    """One line of output per line of input, or the check ends."""
    result = run(command, lines)
    if len(result) != len(lines):
        sys.exit(f"'{' '.join(map(str, command))}' gave {len(result)} lines for {len(lines)}")
    return result


def no_jer(line):
    """Whether asn1ct's JER back end (OTP 25) had to pass: it takes a mandatory member of an absent extension group for
    missing."""
    return re.fullmatch(r"error \{\{encode,.*\},asn1_NOVALUE\}", line) is not None


class Oracle:
    def __init__(self, folder):
        self.command = [HERE / "oracle", folder]

    def show(self, pairs):
        """The decoded values of (type, hex), or for a refused one the line that says why."""
        return [line if line.startswith("error ") else json.loads(line)
                for line in answers(self.command + ["show"], [" ".join(pair) for pair in pairs])]

    def reencode(self, pairs):
        return answers(self.command + ["reencode"], [" ".join(pair) for pair in pairs])

    def jer(self, pairs):
        """The JER of asn1ct's own back end, of (type, hex)."""
        return answers(self.command + ["jer"], [" ".join(pair) for pair in pairs])

    def read(self, cell_groups):
        """Of each cell group, in hex, its octets again and its value with numbers for enumerations."""
        return answers(self.command + ["read"], [f"CellGroupConfig {octets}" for octets in cell_groups])

    def generate(self, type_name, count, seed):
        """Lines '<type> <hex>' in which everything that the type reaches has occurred."""
        return run(self.command + ["generate", type_name, count, seed])

    def sample(self, type_name, count, seed):
        return run(self.command + ["sample", type_name, count, seed])

    def samples(self, type_names, count, seed):
        return run(self.command + ["samples", count, seed], type_names)


class Message:
    """What a test has encoded and what it meant."""

    def __init__(self, line, where):
        fields = line.rstrip("\n").split("\t")
        if len(fields) != 4:
            sys.exit(f"{where}: {len(fields)} fields, not test, type, hex, JSON")
        self.test, self.type, self.hex, text = fields
        try:
            self.meant = json.loads(text)
        except ValueError as error:
            sys.exit(f"{where}: {self.test}: {error}: {text}")


def messages(folder):
    """All messages of the files that the tests have written; none at all ends the check."""
    found = []
    for path in sorted(pathlib.Path(folder).glob("*.messages")):
        with open(path, encoding="ascii") as file:
            found += [Message(line, f"{path}:{number}") for number, line in enumerate(file, 1)]
    if not found:
        sys.exit(f"no test has left a message in {folder}")
    return found


def difference(meant, read, path="CellGroupConfig"):
    """Where two JSON values differ first."""
    if isinstance(meant, dict) and isinstance(read, dict):
        if list(meant) != list(read):
            return f"{path}: {list(meant)} meant, {list(read)} read"
        return next((d for name in meant if (d := difference(meant[name], read[name], f"{path}.{name}"))), None)
    if isinstance(meant, list) and isinstance(read, list):
        lengths = None if len(meant) == len(read) else f"{path}: {len(meant)} elements meant, {len(read)} read"
        return next((d for i, pair in enumerate(zip(meant, read)) if (d := difference(*pair, f"{path}[{i}]"))), lengths)
    # Python's 1 == True.
    return None if json.dumps(meant) == json.dumps(read) else f"{path}: {json.dumps(meant)} meant, {json.dumps(read)} read"


def seed():
    """CELLGROUPCFG_SEED, or one that is new in each run; printed, so that a run can be repeated."""
    value = os.environ.get("CELLGROUPCFG_SEED") or str(time.time_ns() // 1000 % 10**9)
    print(f"seed {value} (CELLGROUPCFG_SEED={value} repeats this run)", flush=True)
    return value


def conclude(failures, what):
    """Prints the first failures and ends the check."""
    shown = 5
    for failure in failures[:shown]:
        print(failure)
    if len(failures) > shown:
        print(f"... and {len(failures) - shown} more")
    print(f"{what}: {len(failures)} failed" if failures else f"{what}: all passed")
    sys.exit(1 if failures else 0)
