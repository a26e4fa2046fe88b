#!/usr/bin/env bash
# Runs every benchmark shortly: it must work, its figures mean nothing here. bench/README.md says how to measure.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release-test

count=0
for benchmark in build/release/benchmarks/*; do
    [ -x "$benchmark" ] || continue
    "$benchmark" --benchmark_min_time=0.01
    count=$((count + 1))
done
[ "$count" -gt 0 ] || { echo "test-bench: no benchmark was built" >&2; exit 1; }
