#!/usr/bin/env bash
# analyze.sh [--figures]: cppcheck and clang's analyzer over the hand-written sources of the libraries and programs. What they find
# and scripts/analysis.known does not explain is a failure, and so is an explanation of what they no longer find. clang-tidy
# is the step lint of ./test, the sanitizers of integers are in the step asan. --figures prints a table in Markdown.
set -euo pipefail
cd "$(dirname "$0")/.."

for program in cppcheck clang++-14; do
    command -v "$program" >/dev/null || { echo "analyze: there is no $program: apt install cppcheck clang-14" >&2; exit 1; }
done
folder=build/analyze
mkdir -p "$folder/cppcheck"
# Of the builds, only the compile commands and the generated headers are needed: each source for cppcheck, and for clang, as
# for the step lint, those of a library in few files.
for preset in clang lint; do
    scripts/build.sh "$preset" cellgroupcfg_pdu_sources >"$folder/build.log"
done

# Of clang a line with file and options.
python3 - "$folder" "$PWD" <<'END'
import json, pathlib, re, shlex, sys

FOLDERS = ("Platform", "Asn", "Common", "Du", "Formulas", "Model", "Records", "Rules", "Explain", "Draw", "Json", "Input",
           "Settings", "Page", "Tool")
GENERATED = ("NR-RRC-", "recordFill.cpp", "recordTypes.cpp", "version.cpp", "assets.cpp")
folder, top = map(pathlib.Path, sys.argv[1:])


def entries(preset):
    """Of each source that is written by hand, once."""
    found = {}
    build = top / "build" / preset
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        inside = path.relative_to(build if build in path.parents else top)
        if inside.parts[0] in FOLDERS and path.suffix in (".cpp", ".cxx") and not path.name.startswith(GENERATED):
            if not re.search(r" -o \S*/cellgroupcfg_(nrrrc|pdus)\.dir/", entry["command"]):
                found.setdefault(entry["file"], entry)
    return found


(folder / "compile_commands.json").write_text(json.dumps(list(entries("clang").values())))
lines = []
for file, entry in entries("lint").items():
    words = shlex.split(entry["command"])
    words = words[next(i for i, word in enumerate(words) if word.endswith("clang++-14")) + 1:]
    keep = [word for before, word in zip([""] + words, words) if before != "-o" and word not in ("-o", "-c", file)]
    lines.append(f"{file}\t{shlex.join(keep)}\n")
(folder / "commands").write_text("".join(lines))
END
[ -s "$folder/commands" ] || { echo "analyze: nothing to look at" >&2; exit 1; }

analyze()
{
    set -o pipefail
    # shellcheck disable=SC2086 # the options are several words
    (cd build/lint && eval "clang++-14 --analyze --analyzer-output text -Xclang -analyzer-checker=core,cplusplus,deadcode,unix,nullability,optin.cplusplus,security.FloatLoopCounter $2 '$1'") 2>&1 |
        sed -nE "s|^$PWD/([^:]*):([0-9]+):[0-9]+: warning: (.*) \[(.*)\]$|\1:\2: \4: \3|p"
}
export -f analyze

# Macros of other systems are not looked into.
cppcheck -j "$(nproc)" --project="$folder/compile_commands.json" --cppcheck-build-dir="$folder/cppcheck" --std=c++20 --quiet \
    --enable=warning,performance,portability --inline-suppr --suppress='*:build/*' \
    --template='{file}:{line}: {id}: {message}' 2>"$folder/cppcheck.log"
{
    sed -n "s|^$PWD/||p; /^[A-Z][A-Za-z]*\//p" "$folder/cppcheck.log" | grep -v '^build/' || true
    xargs -P "$(nproc)" -d '\n' -I '{}' bash -c 'analyze "${1%%	*}" "${1#*	}"' analyze '{}' <"$folder/commands"
} | sort -u >"$folder/found"

python3 - "$folder/found" scripts/analysis.known "${1:-}" "$(grep -o '"file":' "$folder/compile_commands.json" | wc -l)" <<'END'
"""A known finding: file, checker and a part of the line of source it stands at, then the reason, each separated by " | "."""
import pathlib, re, sys

found = [re.match(r"([^:]+):(\d+): ([^:]+): (.*)", line).groups() for line in open(sys.argv[1])]
known = [tuple(line.rstrip("\n").split(" | ")) for line in open(sys.argv[2]) if line.strip() and not line.startswith("#")]
used, unexplained = set(), []
for file, line, checker, words in found:
    text = pathlib.Path(file).read_text(encoding="utf-8").splitlines()[int(line) - 1]
    reasons = [one for one in known if one[0] == file and one[1] == checker and one[2] in text]
    used.update(reasons)
    if not reasons:
        unexplained.append(f"{file}:{line}: {words} [{checker}]\n    {text.strip()}")
idle = [" | ".join(one) for one in known if one not in used]
for line in unexplained:
    print(line, file=sys.stderr)
for line in idle:
    print("no longer found: " + line, file=sys.stderr)
if sys.argv[3] == "--figures":
    print("| Sources | Findings | Explained | Not explained |\n|---|---|---|---|")
    print(f"| {sys.argv[4]} | {len(found)} | {len(found) - len(unexplained)} | {len(unexplained)} |")
else:
    print(f"analyze: {sys.argv[4]} sources, {len(found)} findings, {len(unexplained)} not explained")
sys.exit(1 if unexplained or idle else 0)
END
