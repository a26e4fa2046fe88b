#!/usr/bin/env bash
# faults.sh [--figures] [RECORDS [POINTS [TOOL-POINTS]]]: every request for memory fails in turn, of each public call on
# the examples and RANDOM records (200), and of the program. POINTS at most of a call with one input (40) and TOOL-POINTS
# of a command (1000); 0: all. With --figures only the tables are printed.
set -euo pipefail
cd "$(dirname "$0")/.."

figures=
[ "${1:-}" != --figures ] || { figures=1; shift; }
records=${1:-200}
points=${2:-40}
toolPoints=${3:-1000}

build=build/release
say()
{
    [ -n "$figures" ] || echo "faults: $*" >&2
}
[ -n "$figures" ] && exec 3>/dev/null || exec 3>&2
say "building"
scripts/build.sh release-test faults failingMalloc cellgroupcfg_cli >&3 2>&3
say "calls with $records records, at most $points points of each kind"
"$build/tests/assurance/faults" "$records" "$points"
say "the program, at most $toolPoints points of a command"
echo
python3 -B tests/assurance/check_tool.py "$build/Tool/cellgroupcfg" "$build/tests/assurance/libfailingMalloc.so" . "$toolPoints"
