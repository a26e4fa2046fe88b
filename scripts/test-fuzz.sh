#!/usr/bin/env bash
# Replays the corpus of every fuzzer, then lets each look for new inputs for FUZZ_SECONDS (10).
# What it finds is left in build/fuzz/found/<fuzzer>; a mended find belongs into fuzz/corpus/<fuzzer>.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh fuzz

count=0
for fuzzer in build/fuzz/fuzzers/*; do
    [ -x "$fuzzer" ] || continue
    name=$(basename "$fuzzer")
    corpus=fuzz/corpus/$name
    found=build/fuzz/found/$name
    [ -n "$(ls -A "$corpus" 2>/dev/null)" ] || { echo "test-fuzz: $corpus has no input" >&2; exit 1; }
    rm -rf "build/fuzz/grown/$name"
    mkdir -p "$found" "build/fuzz/grown/$name"

    for job in "-runs=0 $corpus" "-max_total_time=${FUZZ_SECONDS:-10} build/fuzz/grown/$name $corpus"; do
        echo "== $name $job"
        # shellcheck disable=SC2086 # a job is several words
        "$fuzzer" -timeout=10 -print_final_stats=1 -artifact_prefix="$found/" $job >build/fuzz/log 2>&1 ||
            { cat build/fuzz/log >&2; exit 1; }
        grep 'number_of_executed_units' build/fuzz/log
    done
    count=$((count + 1))
done
[ "$count" -gt 0 ] || { echo "test-fuzz: no fuzzer was built" >&2; exit 1; }
