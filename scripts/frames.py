"""The largest stack frames that a compiler has written beside its objects (-fstack-usage), as a table.

  frames.py FOLDER [COUNT]
"""
import pathlib
import re
import sys

# One in the libraries: a frame whose size is not known at compile time could be of any size.
FOLDERS = ("Platform", "Asn", "Common", "Du")


def frames(folder):
    """Octets, kind, file and function of each."""
    for path in sorted(folder.rglob("*.su")):
        for line in path.read_text(encoding="utf-8").splitlines():
            place, octets, kind = line.rsplit("\t", 2)
            file, number, column, function = place.split(":", 3)
            yield int(octets), kind, file, short(function) or named_at(file, int(number), int(column)) + arguments(function)


def short(function):
    """Without templates' arguments, parameters and the result."""
    function = re.sub(r" \[with .*", "", function)
    name = re.sub(r"\(anonymous namespace\)::|\{anonymous\}::", "", function).split("(")[0]
    return name.split()[-1] if re.search("[a-z]", name) else ""


def named_at(file, number, column):
    """The compiler leaves the name of some templates out, and says where it stands."""
    line = pathlib.Path(file).read_text(encoding="utf-8").splitlines()[number - 1]
    return re.match(r"\w+", line[column - 1:])[0]


def arguments(function):
    found = re.findall(r"= (?:\{anonymous\}::)?(\w+)", function)
    return f"<{', '.join(found)}>" if found else ""


def main():
    folder = pathlib.Path(sys.argv[1])
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 12
    all_frames = sorted({frame for frame in frames(folder)
                         if any(f"/{name}/" in f"/{frame[2]}" for name in FOLDERS)}, key=lambda one: (-one[0], one[1:]))
    if len(all_frames) < 500:
        sys.exit(f"frames.py: {len(all_frames)} frames: these are no libraries")
    print("| Function | file | frame, octets |\n|---|---|--:|")
    for octets, _, file, function in all_frames[:count]:
        print(f"| `{function}` | `{pathlib.Path(file).name}` | {octets} |")
    unbounded = [frame for frame in all_frames if frame[1] == "dynamic"]
    print(f"\n{len(all_frames)} functions, {len(unbounded)} with a frame of no fixed bound")
    for frame in unbounded:
        print(f"{frame[2]}: {frame[3]}: its frame has no bound", file=sys.stderr)
    return 1 if unbounded else 0


sys.exit(main())
