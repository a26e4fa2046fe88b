#!/usr/bin/env bash
# build.sh <preset> [target...]: configures a preset of CMakePresets.json and builds all of it, or the targets.
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -ge 1 ] || { echo "usage: $0 <preset> [target...]" >&2; exit 2; }
preset=$1
shift
targets=()
[ $# -eq 0 ] || targets=(--target "$@")

build()
{
    cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}"
}

echo "build: preset $preset, ${*:-all of it}"
cmake --preset "$preset" --log-level=NOTICE >/dev/null
# On a terminal ninja keeps to one line.
if [ -t 1 ]; then
    build
else
    build | scripts/progress.sh
fi
