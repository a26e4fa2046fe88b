"""check_console.py <program> <project>: the console blocks of the documents are run as they stand, in their order within
a document, in a copy of docs/guide; what is printed, on both streams, has to be what the document shows."""

import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^```console\n(.*?)^```$", re.M | re.S)
DOCUMENTS = ("README.md", "docs/guide.md")


def commands(block):
    """Each line behind `$ `, with the lines that are shown for it."""
    parts = re.split(r"^\$ (.*)\n", block, flags=re.M)[1:]
    return zip(parts[::2], parts[1::2])


def main():
    program, project = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    count, failed = 0, 0
    for document in DOCUMENTS:
        blocks = BLOCK.findall((project / document).read_text(encoding="utf-8"))
        if not blocks:
            sys.exit(f"{document} has no console block")
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder) / "guide"
            shutil.copytree(project / "docs/guide", place)
            environment = {**os.environ, "PATH": f"{program.parent}:{os.environ['PATH']}", "COLUMNS": "80"}
            for command, shown in (pair for block in blocks for pair in commands(block)):
                count += 1
                done = subprocess.run(["bash", "-c", command], cwd=place, env=environment, stdout=subprocess.PIPE,
                                      stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, check=False, text=True,
                                      timeout=60)
                if done.stdout != shown:
                    failed += 1
                    print(f"{document}: $ {command}")
                    print("\n".join(difflib.unified_diff(shown.splitlines(), done.stdout.splitlines(), "document",
                                                         "printed", lineterm="")))
    print(f"{count} commands, {failed} print something else")
    sys.exit(1 if failed else 0)


main()
