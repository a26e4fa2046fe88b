#!/usr/bin/env bash
# Replays the corpus of every fuzzer, then lets each look for new inputs for FUZZ_SECONDS (5), one on each core, from the same
# seed each time: what looks further is scripts/fuzz-campaign.sh.
# What it finds is left in build/asan/found/<fuzzer>; a mended find belongs into fuzz/corpus/<fuzzer>. Then fuzz/build.sh
# builds a fuzzer as others do, which runs a thousand times.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh asan

fuzz()
{
    set -euo pipefail
    fuzzer=$1
    name=$(basename "$fuzzer")
    corpus=fuzz/corpus/$name
    found=build/asan/found/$name
    grown=build/asan/grown/$name
    log=build/asan/found/$name.log
    [ -n "$(ls -A "$corpus" 2>/dev/null)" ] || { echo "test-fuzz: $corpus has no input" >&2; exit 1; }
    rm -rf "$grown"
    mkdir -p "$found" "$grown"

    for job in "-runs=0 $corpus" "-max_total_time=${FUZZ_SECONDS:-5} $grown $corpus"; do
        # shellcheck disable=SC2086 # a job is several words
        "$fuzzer" -dict="fuzz/dictionaries/$name.dict" -seed=1 -timeout=10 -print_final_stats=1 -artifact_prefix="$found/" $job >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
        echo "== $name $job: $(sed -n 's/.*number_of_executed_units: *//p' "$log") inputs"
    done
}
export -f fuzz

fuzzers=$(find build/asan/fuzzers -type f -executable | LC_ALL=C sort)
[ -n "$fuzzers" ] || { echo "test-fuzz: no fuzzer was built" >&2; exit 1; }
xargs -P "$(nproc)" -I {} bash -c 'fuzz {} || exit 255' <<<"$fuzzers"

# One of them as others build it, with its corpus and dictionary as they get it.
out=$PWD/build/oss-fuzz/out
OUT=$out fuzz/build.sh compiler
rm -rf "$out/corpus"
python3 -m zipfile -e "$out/compiler_seed_corpus.zip" "$out/corpus"
inputs=$(find "$out/corpus" -type f | wc -l)
"$out/compiler" -dict="$out/compiler.dict" -runs=1000 "$out/corpus" >"$out/compiler.log" 2>&1 || { cat "$out/compiler.log" >&2; exit 1; }
echo "== fuzz/build.sh compiler: $inputs inputs of its corpus"
