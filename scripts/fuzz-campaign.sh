#!/usr/bin/env bash
# fuzz-campaign.sh [--figures] [CPU-MINUTES [fuzzer...]]: runs all fuzzers, or these, in equal shares of 60 minutes of
# processor time, one on each core, and says for each how often it ran, what it covered and what it found; --figures as a
# table for a document. Finds are left in build/asan/found/<fuzzer>, new inputs in build/asan/grown/<fuzzer>. Ends with 1
# where anything was found.
set -euo pipefail
cd "$(dirname "$0")/.."

figures=
[ "${1:-}" != --figures ] || { figures=yes; shift; }
minutes=${1:-60}
[ $# -eq 0 ] || shift
[[ $minutes =~ ^[1-9][0-9]*$ ]] || { echo "usage: $0 [--figures] [CPU-MINUTES [fuzzer...]]" >&2; exit 2; }

scripts/build.sh asan "${@:-fuzzers}" >&2
[ $# -gt 0 ] || mapfile -t fuzzers < <(find build/asan/fuzzers -maxdepth 1 -type f -executable -printf '%f\n' | LC_ALL=C sort)
[ $# -eq 0 ] || fuzzers=("$@")
[ ${#fuzzers[@]} -gt 0 ] || { echo "fuzz-campaign: no fuzzer was built" >&2; exit 1; }
export seconds=$((minutes * 60 / ${#fuzzers[@]}))
[ "$seconds" -gt 0 ] || { echo "fuzz-campaign: less than a second for each of ${#fuzzers[@]} fuzzers" >&2; exit 2; }

# The processor time of what this shell has waited for.
ticks()
{
    read -r _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ user system _ <"/proc/$$/stat"
    echo $((user + system))
}
export -f ticks

campaign()
{
    set -euo pipefail
    name=$1
    found=build/asan/found/$name
    grown=build/asan/grown/$name
    log=build/asan/found/$name.campaign
    rm -rf "$found"
    mkdir -p "$found" "$grown"
    begin=$(ticks)
    runs=0 cov=0 features=0 spent=0
    # What is found does not end it: the rest of the time is another start. So is what others took of the processor.
    while [ "$spent" -lt "$seconds" ]; do
        status=0
        "build/asan/fuzzers/$name" -dict="fuzz/dictionaries/$name.dict" -max_total_time=$((seconds - spent)) \
            -timeout=10 -rss_limit_mb=3000 -print_final_stats=1 -artifact_prefix="$found/" "$grown" "fuzz/corpus/$name" \
            >"$log" 2>&1 || status=$?
        last=$(grep -E '^#[0-9]+.* cov: [0-9]+ ft: [0-9]+' "$log" | tail -n 1)
        [ -n "$last" ] || { cat "$log" >&2; exit 1; }
        done=$(sed -n 's/.*number_of_executed_units: *//p' "$log")
        [ -n "$done" ] || done=$(sed -E 's/^#([0-9]+).*/\1/' <<<"$last")
        runs=$((runs + done))
        cov=$(sed -E 's/.* cov: ([0-9]+).*/\1/' <<<"$last")
        features=$(sed -E 's/.* ft: ([0-9]+).*/\1/' <<<"$last")
        spent=$((($(ticks) - begin) / $(getconf CLK_TCK)))
        [ "$status" -eq 0 ] || cp "$log" "$found/$(date +%s%N).log"
    done
    finds=$(find "$found" -type f ! -name '*.log' | wc -l)
    echo "$name $runs $cov $features $finds $spent"
}
export -f campaign

lines=$(printf '%s\n' "${fuzzers[@]}" | xargs -P "$(nproc)" -I {} bash -c 'campaign {} || exit 255' | LC_ALL=C sort)
if [ -n "$figures" ]; then
    printf '| Fuzzer | Executions | Edges | Features | Finds | Seconds |\n|---|---|---|---|---|---|\n'
    awk '{ printf "| `%s` | %d | %d | %d | %d | %d |\n", $1, $2, $3, $4, $5, $6; n += $2; f += $5; s += $6 }
        END { printf "| all | %d | | | %d | %d |\n", n, f, s }' <<<"$lines"
else
    printf '%-10s %12s %8s %9s %6s %8s\n' fuzzer executions edges features finds seconds
    awk '{ printf "%-10s %12d %8d %9d %6d %8d\n", $1, $2, $3, $4, $5, $6; n += $2; f += $5; s += $6 }
        END { printf "%-10s %12d %8s %9s %6d %8d\n", "all", n, "", "", f, s }' <<<"$lines"
fi
awk '{ finds += $5 } END { exit finds != 0 }' <<<"$lines"
