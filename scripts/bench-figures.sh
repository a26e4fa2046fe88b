#!/usr/bin/env bash
# bench-figures.sh [commit]: measures and writes the figures of bench/README.md. With a commit, that is built with the
# benchmarks as they are now and measured in turn, for before and after. Needs valgrind.
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${BENCH_ROUNDS:-6}
commit=${1:-}

command -v valgrind >/dev/null || { echo "bench-figures: valgrind is missing (apt-get install valgrind)" >&2; exit 1; }

folder=build/figures
rm -rf "$folder"
mkdir -p "$folder"

# The tree of each build.
declare -A trees=([now]=.)
builds=(now)
if [ -n "$commit" ]; then
    git rev-parse --short "$commit" >"$folder/commit"
    tree=build/before
    git worktree remove --force "$tree" 2>/dev/null || true
    git worktree add --detach "$tree" "$commit"
    rm -rf "$tree/bench"
    cp -r bench "$tree/bench"
    trees[before]=$tree
    builds=(before now)
fi

for build in "${builds[@]}"; do
    "${trees[$build]}/scripts/build.sh" release-test cellGroupBench oneCall
    python3 -B bench/code_lines.py "${trees[$build]}/build/release/bench/oneCall" >"$folder/$build.lines"
done
for round in $(seq "$rounds"); do
    for build in "${builds[@]}"; do
        echo "round $round of $rounds, $build" >&2
        "${trees[$build]}/build/release/benchmarks/cellGroupBench" --benchmark_min_time=0.01 --benchmark_repetitions=5 \
            --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true \
            --benchmark_format=json >"$folder/$build.$round.json" 2>"$folder/$build.$round.log"
    done
done
[ -z "$commit" ] || git worktree remove --force "${trees[before]}"
python3 -B bench/figures.py collect "$folder"
