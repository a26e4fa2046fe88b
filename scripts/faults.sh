#!/usr/bin/env bash
# faults.sh [--figures] [RECORDS [POINTS [TOOL-POINTS]]]: every request for memory fails in turn, of each public call on
# the examples and RANDOM records (200), and of the program. Of a call that only hosts make at most POINTS of a kind with
# one input (40), of a command TOOL-POINTS (0); 0: all. With --figures only the tables are printed.
set -euo pipefail
cd "$(dirname "$0")/.."

figures=
[ "${1:-}" != --figures ] || { figures=1; shift; }
records=${1:-200}
points=${2:-40}
toolPoints=${3:-0}

build=build/release
say()
{
    [ -n "$figures" ] || echo "faults: $*" >&2
}
[ -n "$figures" ] && exec 3>/dev/null || exec 3>&2
say "building"
scripts/build.sh release-test faults failingMalloc cellgroupcfg_cli >&3 2>&3
say "beside each other: the program, ${toolPoints/#0/all} points of a command"
program=$(mktemp)
trap 'rm -f "$program"' EXIT
python3 -B tests/assurance/check_tool.py "$build/Tool/cellgroupcfg" "$build/tests/assurance/libfailingMalloc.so" . "$toolPoints" \
    >"$program" &
say "what a base station links, all points of $records records"
status=0
"$build/tests/assurance/faults" "$records" 0 rrcCompose rrcEncode asn1P rtx || status=1
say "calls of hosts, at most $points points of a kind"
echo
"$build/tests/assurance/faults" "$records" "$points" -rrcCompose -rrcEncode -asn1P -rtx || status=1
echo
wait $! || status=1
cat "$program"
exit $status
