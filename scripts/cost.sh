#!/usr/bin/env bash
# cost.sh [--figures]: what calls take of stack, time and heap, as tables: the largest frames of what a base station
# links, as the compiler tells them; the painted stack of each call; what hostile messages cost for each octet. With
# --figures only the tables are printed. Fails where a bound is broken.
set -euo pipefail
cd "$(dirname "$0")/.."

[ "${1:-}" = --figures ] && exec 3>/dev/null || exec 3>&2

echo "cost: building" >&3
scripts/build.sh release-test assurance.stack assurance.time >&3 2>&3

# The same objects once more, with a file of frames beside each.
frames=build/frames
cmake -S . -B "$frames" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_COMPILER=gcc -DCMAKE_CXX_COMPILER=g++ \
    -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG -fstack-usage" -DCMAKE_C_COMPILER_LAUNCHER= -DCMAKE_CXX_COMPILER_LAUNCHER= \
    -DCELLGROUPCFG_BUILD_TOOL=OFF -DCELLGROUPCFG_BUILD_TESTS=OFF -DCELLGROUPCFG_BUILD_EXAMPLES=OFF >&3 2>&3
cmake --build "$frames" --target cellgroupcfg cellgroupcfg_nrrrc cellgroupcfg_asn1rt cellgroupcfg_du cellgroupcfg_platform >&3 2>&3
python3 -B scripts/frames.py "$frames"

for test in stack time; do
    echo
    log=$(mktemp)
    status=0
    "build/release/tests/assurance/assurance.$test" >"$log" || status=$?
    cat "$log" >&3
    # A blank line between two tables.
    sed -n 's/^| *\(Message\|Call\) .*/\n&/; /|/p' "$log" | sed '1{/^$/d}'
    rm -f "$log"
    [ "$status" = 0 ] || { echo "cost: assurance.$test has failed" >&2; exit 1; }
done
