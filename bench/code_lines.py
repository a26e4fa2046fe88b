"""code_lines.py <oneCall>: the distinct lines of 64 octets that hold the code of one encode, entry and decode of the
typical call, as valgrind sees it run. Prints them as JSON."""

import json
import re
import subprocess
import sys
import tempfile

LINE = 64


def lines_of(profile):
    """Callgrind's format: a cost begins with the instruction's address; calls= and jump lines are followed by one more
    with the address that they are made from."""
    lines = set()
    loaded = ""
    for text in profile:
        if text.startswith("ob="):
            loaded = text
        address = re.match(r"0x[0-9a-f]+ ", text)
        if address:
            lines.add((loaded, int(address[0], 16) // LINE))
    return lines


def code_lines(program, call):
    with tempfile.NamedTemporaryFile("r") as profile:
        subprocess.run(["valgrind", "--tool=callgrind", "--dump-instr=yes", "--compress-pos=no",
                        "--compress-strings=no", "--toggle-collect=measuredCall",
                        f"--callgrind-out-file={profile.name}", program, call],
                       check=True, capture_output=True, text=True)
        with open(profile.name, encoding="utf-8") as written:
            return len(lines_of(written))


def main():
    try:
        print(json.dumps({call: code_lines(sys.argv[1], call) for call in ("encode", "entry", "decode")}))
    except FileNotFoundError:
        sys.exit("code_lines: valgrind is missing (apt-get install valgrind)")
    except subprocess.CalledProcessError as error:
        sys.exit(f"code_lines: {error}\n{error.stderr}")


main()
