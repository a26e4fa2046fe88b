"""What the libraries' symbols say.

  check_symbols.py calls NM LIBRARY OBJECT FILE     the shared library's functions: each is called by the object that
                                                    has the table of calls, or stands in the file with a reason
  check_symbols.py statics NM FILE LIBRARY...       nothing in the libraries can be written to but what the file lists
"""
import fnmatch
import re
import subprocess
import sys

WRITABLE = re.compile(r"^\.(data|bss|tdata|tbss)(\.(?!rel\.ro)|$)|^\*?COM")


def rows(nm, *options):
    """Name, class and section of each symbol."""
    text = subprocess.run([nm, "-f", "sysv", *options], check=True, capture_output=True, text=True).stdout
    for line in text.splitlines():
        cells = [cell.strip() for cell in line.split("|")]
        if len(cells) == 7:
            yield cells[0].split("@")[0], cells[2], cells[6]


def reasons(path):
    """Pattern and reason of each line."""
    listed = {}
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            if line.strip() and not line.startswith("#"):
                pattern, _, reason = line.strip().partition(" ")
                if not reason.strip():
                    sys.exit(f"{path}:{number}: no reason")
                listed[pattern] = reason.strip()
    return listed


def matching(listed, name):
    return [pattern for pattern in listed if fnmatch.fnmatchcase(name, pattern)]


def verdict(path, listed, used, wrong):
    wrong += [f"{path}: {pattern} is listed for nothing" for pattern in listed if pattern not in used]
    for line in wrong:
        print(line)
    return 1 if wrong else 0


def calls(nm, library, table, path):
    exported = {name for name, _, section in rows(nm, "-D", "--defined-only", library) if section != "*ABS*"}
    asked = {name for name, _, _ in rows(nm, "-u", table)}
    listed = reasons(path)
    used = set()
    wrong = []
    for name in sorted(exported):
        patterns = matching(listed, name)
        used.update(patterns)
        if name in asked and patterns:
            wrong.append(f"{path}: {name} is called after all")
        elif name not in asked and not patterns:
            wrong.append(f"{name}: no row of the table of calls calls it, and {path} has no reason")
    print(f"{len(exported)} symbols, {len(exported & asked)} of them called, {len(listed)} reasons")
    if len(exported & asked) < 50:
        wrong.append("that is no library, or no table of calls")
    return verdict(path, listed, used, wrong)


def statics(nm, path, *libraries):
    listed = reasons(path)
    used = set()
    wrong = []
    symbols = 0
    for library in libraries:
        for name, _, section in rows(nm, "--defined-only", library):
            symbols += 1
            # References to what is thrown, which the linker makes constant.
            if not WRITABLE.match(section) or name.startswith(("DW.ref.", ".")):
                continue
            plain = subprocess.run(["c++filt", name], check=True, capture_output=True, text=True).stdout.strip()
            patterns = matching(listed, plain.replace(" ", ""))
            used.update(patterns)
            if not patterns:
                wrong.append(f"{library}: {plain} in {section} can be written to, and {path} has no reason")
    print(f"{len(libraries)} libraries, {symbols} symbols, {len(listed)} reasons")
    if symbols < 1000:
        wrong.append("these are no libraries")
    return verdict(path, listed, used, wrong)


if __name__ == "__main__":
    sys.exit({"calls": calls, "statics": statics}[sys.argv[1]](*sys.argv[2:]))
