#!/usr/bin/env bash
# build.sh <preset> [target...]: configures a preset of CMakePresets.json and builds all of it, or the targets.
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -ge 1 ] || { echo "usage: $0 <preset> [target...]" >&2; exit 2; }
preset=$1
shift
targets=()
[ $# -eq 0 ] || targets=(--target "$@")

cmake --preset "$preset" --log-level=NOTICE
cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}"
