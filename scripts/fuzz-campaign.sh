#!/usr/bin/env bash
# fuzz-campaign.sh [--figures] [--again] [CPU-MINUTES [fuzzer...]]: runs all fuzzers, or these, in equal shares of 60 minutes
# of processor time, one on each core, and says for each how often it ran, what it covered and what it found; --figures as a
# table for a document. Finds are left in build/asan/found/<fuzzer>, new inputs in build/asan/grown/<fuzzer>. --again runs
# only what the last campaign found, once it is mended. Ends with 1 where a find is still one.
set -euo pipefail
cd "$(dirname "$0")/.."

figures= again= minutes= fuzzers=()
for word; do
    case $word in
        --figures) figures=yes ;;
        --again) again=yes ;;
        *) if [ -z "$minutes" ]; then minutes=$word; else fuzzers+=("$word"); fi ;;
    esac
done
minutes=${minutes:-60}
[[ $minutes =~ ^[1-9][0-9]*$ ]] || { echo "usage: $0 [--figures] [--again] [CPU-MINUTES [fuzzer...]]" >&2; exit 2; }

scripts/build.sh asan "${fuzzers[@]:-fuzzers}" >&2
[ ${#fuzzers[@]} -gt 0 ] || mapfile -t fuzzers < <(find build/asan/fuzzers -maxdepth 1 -type f -executable -printf '%f\n' | LC_ALL=C sort)
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
    echo "$name $runs $cov $features $spent" >"build/asan/found/$name.result"
}
export -f campaign

[ -n "$again" ] || printf '%s\n' "${fuzzers[@]}" | xargs -P "$(nproc)" -I {} bash -c 'campaign {} || exit 255'

# result FUZZER: what the last campaign saw, how many inputs it found, and how many of them are finds today.
result()
{
    local name=$1 input found=0 open=0
    [ -f "build/asan/found/$name.result" ] || { echo "fuzz-campaign: $name has not run" >&2; exit 1; }
    while IFS= read -r input; do
        found=$((found + 1))
        "build/asan/fuzzers/$name" -timeout=10 -rss_limit_mb=3000 "$input" >/dev/null 2>&1 || open=$((open + 1))
    done < <(find "build/asan/found/$name" -type f ! -name '*.log')
    echo "$(cat "build/asan/found/$name.result") $found $open"
}
lines=$(for name in "${fuzzers[@]}"; do result "$name"; done)
if [ -n "$figures" ]; then
    printf '| Fuzzer | Executions | Edges | Features | Seconds | Found | Not mended |\n|---|---|---|---|---|---|---|\n'
    awk '{ printf "| `%s` | %d | %d | %d | %d | %d | %d |\n", $1, $2, $3, $4, $5, $6, $7; n += $2; s += $5; f += $6; o += $7 }
        END { printf "| all | %d | | | %d | %d | %d |\n", n, s, f, o }' <<<"$lines"
else
    printf '%-10s %12s %8s %9s %8s %6s %11s\n' fuzzer executions edges features seconds found "not mended"
    awk '{ printf "%-10s %12d %8d %9d %8d %6d %11d\n", $1, $2, $3, $4, $5, $6, $7; n += $2; s += $5; f += $6; o += $7 }
        END { printf "%-10s %12d %8s %9s %8d %6d %11d\n", "all", n, "", "", s, f, o }' <<<"$lines"
fi
awk '{ open += $7 } END { exit open != 0 }' <<<"$lines"
