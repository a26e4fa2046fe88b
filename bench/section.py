"""section.py <program>: writes what the program prints into its section of README.md, with the machine and the date."""

import datetime
import pathlib
import subprocess
import sys

import measured

README = pathlib.Path(__file__).resolve().parent / "README.md"


def main():
    program = pathlib.Path(sys.argv[1])
    begin, end = f"<!-- {program.name}: written by bench/section.py -->\n", f"<!-- end of {program.name} -->\n"
    text = README.read_text(encoding="utf-8")
    if begin not in text or end not in text:
        sys.exit(f"section: {README} has no section {program.name}")
    printed = subprocess.run([program], stdout=subprocess.PIPE, text=True, check=True).stdout
    compiler = subprocess.run(["g++", "-dumpfullversion"], stdout=subprocess.PIPE, text=True, check=True).stdout.strip()
    head = f"g++ {compiler}, `release-test` preset, {measured.processor()}, {datetime.date.today()}."
    before, rest = text.split(begin)
    after = rest.split(end)[1]
    README.write_text(f"{before}{begin}\n{head}\n\n{printed}\n{end}{after}", encoding="utf-8")


main()
