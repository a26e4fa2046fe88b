#!/usr/bin/env bash
# Runs every benchmark shortly: it must work, and no ratio may be far beyond its bound. bench/README.md says how to measure.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release-test

# Cold calls take long; those of the typical call are enough.
few='-(one_bearer|releases|secondary_cells|grown_.*)/.*_cold'

count=0
for benchmark in build/release/benchmarks/*; do
    [ -x "$benchmark" ] || continue
    "$benchmark" --benchmark_filter="$few" --benchmark_min_time=0.005 --benchmark_repetitions=15 \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true \
        --benchmark_format=json | python3 -B bench/check_bounds.py
    count=$((count + 1))
done
[ "$count" -gt 0 ] || { echo "test-bench: no benchmark was built" >&2; exit 1; }
