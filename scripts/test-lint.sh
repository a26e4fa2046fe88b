#!/usr/bin/env bash
# Runs clang-tidy over the hand-written sources of the libraries and programs. Those of a library are in few files, as the
# build joins them: reading headers again for each source would take most of the time. What passed is passed over until
# one of its sources, any header or the checks change. With an argument, only what has it in its path.
set -euo pipefail
cd "$(dirname "$0")/.."

# Of the build, only the compile commands and the generated headers are needed.
scripts/build.sh lint cellgroupcfg_pdu_sources

stamps=build/lint/stamps
mkdir -p "$stamps"

# The newest of what every result depends on.
newest=$(find . -path ./build -prune -o \( -name '*.h' -o -name .clang-tidy -o -name test-lint.sh \) -printf '%T@ %p\n' |
    sort -n | tail -n 1 | cut -d ' ' -f 2-)

lint()
{
    local unit=$1 sources source stamp
    mapfile -t sources < <(sed -n 's/^#include "\(.*\)"$/\1/p' "$unit")
    stamp=$stamps/${unit//\//_}
    if [ "$stamp" -nt "$newest" ]; then
        for source in "$unit" "${sources[@]}"; do
            [ "$stamp" -nt "$source" ] || break
        done
        [ "$stamp" -nt "$source" ] && echo "${unit#"$PWD/"} (has passed before)" && return 0
    fi
    # The joined files include sources. Findings go to standard error, which leaves the other output to the progress;
    # how many warnings of system headers were passed over is nobody's concern.
    clang-tidy-14 -p build/lint --quiet --checks=-bugprone-suspicious-include "$unit" \
        >&2 2> >(grep -vE '^[0-9]+ warnings? generated\.$' >&2) && touch "$stamp" && echo "${unit#"$PWD/"}"
}
export -f lint
export stamps newest

units=$(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' build/lint/compile_commands.json |
    grep -vE '/(NR-RRC-[^/]*|version\.cpp|assets\.cpp|cellgroupcfg_(nrrrc|pdus)\.dir/.*)$' | grep -F -- "${1:-}" || true)
[ -n "$units" ] || { echo "test-lint: nothing to look at" >&2; exit 1; }
count=$(printf '%s\n' "$units" | wc -l)
printf '%s\n' "$units" | xargs -P "$(nproc)" -I '{}' bash -c 'lint "$1"' lint '{}' | scripts/progress.sh "$count"
