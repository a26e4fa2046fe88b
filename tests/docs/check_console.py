"""The console blocks of the documents are run as they stand, in their order within a document, in a copy of docs/guide; what is
printed, on both streams, has to be what the document shows, or is written into it."""

import argparse
import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from blocks import documents

BLOCK = re.compile(r"^```console\n(.*?)^```$", re.M | re.S)


def commands(block):
    """Each line behind `$ `, with the lines that are shown for it."""
    parts = re.split(r"^\$ (.*)\n", block, flags=re.M)[1:]
    return zip(parts[::2], parts[1::2])


def printed(command, place, program):
    environment = {**os.environ, "PATH": f"{program.parent}:{os.environ['PATH']}"}
    return subprocess.run(["bash", "-c", command], cwd=place, env=environment, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, check=False, text=True, timeout=60).stdout


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("project", type=pathlib.Path)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("--without", metavar="NAME", help="a program that is not here: commands that call it are passed over")
    options = parser.parse_args()
    program, project = options.program.resolve(), options.project
    count, passed_over, failed = 0, 0, 0
    for document in documents(project):
        text = document.read_text(encoding="utf-8")
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder) / "guide"
            shutil.copytree(project / "docs/guide", place)

            def run(block):
                nonlocal count, passed_over
                lines = []
                for command, shown in commands(block[1]):
                    is_here = options.without is None or not re.search(rf"\b{re.escape(options.without)}\b", command)
                    lines.append(f"$ {command}\n{printed(command, place, program) if is_here else shown}")
                    count += is_here
                    passed_over += not is_here
                return "```console\n" + "".join(lines) + "```"

            found = BLOCK.sub(run, text)
        if options.update:
            document.write_text(found, encoding="utf-8")
        elif found != text:
            failed += 1
            print("\n".join(difflib.unified_diff(text.splitlines(), found.splitlines(), str(document), "as printed",
                                                 lineterm="")))
    left = f", {passed_over} passed over" if passed_over else ""
    print(f"{count} commands{left}, {failed} documents show something else")
    sys.exit(1 if failed or not count else 0)


main()
