#!/usr/bin/env bash
# clang-tidy over the hand-written sources of the libraries and programs. A file that passed is passed over until it,
# any header or the checks change.
set -euo pipefail
cd "$(dirname "$0")/.."

# Of the build, only the compile commands and the generated header are needed.
scripts/build.sh clang cellgroupcfg_pdu_sources

folders=()
for folder in Platform Asn Common Du Records Json Tool; do
    [ -d "$folder" ] && folders+=("$folder")
done
stamps=build/lint
mkdir -p "$stamps"

# The newest of what every file's result depends on.
newest=$(find "${folders[@]}" .clang-tidy scripts/test-lint.sh \( -name '*.h' -o -name '.clang-tidy' -o -name '*.sh' \) \
    -printf '%T@ %p\n' | sort -n | tail -n 1 | cut -d ' ' -f 2-)

lint()
{
    stamp=$stamps/${1//\//_}
    [ "$stamp" -nt "$1" ] && [ "$stamp" -nt "$newest" ] && return 0
    clang-tidy-14 -p build/clang --quiet "$1" && touch "$stamp"
}
export -f lint
export stamps newest

find "${folders[@]}" -name '*.cpp' ! -name 'NR-RRC-*' ! -name rrcInitTable.cpp ! -name recordTypes.cpp -print0 |
    xargs -0 -P "$(nproc)" -I '{}' bash -c 'lint "$1"' lint '{}'
