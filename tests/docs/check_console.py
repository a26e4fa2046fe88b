"""check_console.py <program> <project> [--update]: the console blocks of the documents are run as they stand, in their order within
a document, in a copy of docs/guide; what is printed, on both streams, has to be what the document shows, or is written into it."""

import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^```console\n(.*?)^```$", re.M | re.S)
DOCUMENTS = ("README.md", "docs/guide.md", "docs/delta.md", "docs/rules.md")


def commands(block):
    """Each line behind `$ `, with the lines that are shown for it."""
    parts = re.split(r"^\$ (.*)\n", block, flags=re.M)[1:]
    return zip(parts[::2], parts[1::2])


def printed(command, place, program):
    environment = {**os.environ, "PATH": f"{program.parent}:{os.environ['PATH']}"}
    return subprocess.run(["bash", "-c", command], cwd=place, env=environment, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, check=False, text=True, timeout=60).stdout


def main():
    program, project = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    count, failed = 0, 0
    for document in DOCUMENTS:
        text = (project / document).read_text(encoding="utf-8")
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder) / "guide"
            shutil.copytree(project / "docs/guide", place)

            def run(block):
                lines = [f"$ {command}\n{printed(command, place, program)}" for command, _ in commands(block[1])]
                nonlocal count
                count += len(lines)
                return "```console\n" + "".join(lines) + "```"

            found = BLOCK.sub(run, text)
        if "--update" in sys.argv:
            (project / document).write_text(found, encoding="utf-8")
        elif found != text:
            failed += 1
            print("\n".join(difflib.unified_diff(text.splitlines(), found.splitlines(), document, "as printed",
                                                 lineterm="")))
    print(f"{count} commands, {failed} documents show something else")
    sys.exit(1 if failed or not count else 0)


main()
