"""check_round_trip.py <program> <cellGroups> COUNT: random cell groups, decoded to each text form, are encoded to the
same octets again; so are the records that they are taken back to."""

import pathlib
import re
import subprocess
import sys
import tempfile

PROGRAM, CELL_GROUPS, COUNT = sys.argv[1:]


def run(*arguments, stdin=None):
    return subprocess.run(arguments, input=stdin, capture_output=True, check=True, text=True).stdout


def main():
    messages = [line.split()[1] for line in run(CELL_GROUPS, "kept", COUNT, "1").splitlines()]
    if len(messages) != int(COUNT):
        sys.exit(f"{len(messages)} cell groups instead of {COUNT}")
    lines = "".join(message + "\n" for message in messages)

    # A message a line, in one run.
    again = run(PROGRAM, "encode", "--lines", stdin=run(PROGRAM, "decode", "--lines", "--compact", "--as", "hex",
                                                        stdin=lines))
    compare("compact JER", messages, again.split())

    # Texts of several lines, each behind its comment line, become files.
    for form in ("--json", "--flat"):
        texts = re.split(r"^# standard input:\d+\n", run(PROGRAM, "decode", "--lines", form, "--as", "hex", stdin=lines),
                         flags=re.M)[1:]
        with tempfile.TemporaryDirectory() as folder:
            files = [pathlib.Path(folder) / f"{i}.txt" for i in range(len(texts))]
            for file, text in zip(files, texts):
                file.write_text(text, encoding="ascii")
            compare(form, messages, run(PROGRAM, "encode", *map(str, files)).split())

    # A tenth of them is enough for a process each.
    records = run(PROGRAM, "record", "--lines", "--as", "hex", stdin=lines).splitlines()
    some = len(records) // 10
    compare("records", messages[:some], [run(PROGRAM, "compose", stdin=record).strip() for record in records[:some]])


def compare(form, expected, found):
    same = sum(a == b for a, b in zip(expected, found))
    print(f"{form}: {same} of {len(expected)} messages come back")
    if expected != found:
        wrong = next((a, b) for a, b in zip(expected, found + [""]) if a != b)
        sys.exit(f"{wrong[0]} became {wrong[1]}")


main()
