#!/usr/bin/env bash
# clang-tidy over the hand-written sources of the libraries and programs.
set -euo pipefail
cd "$(dirname "$0")/.."

# Only the compile commands are needed, not the build.
cmake --preset clang --log-level=NOTICE

folders=()
for folder in Platform Asn Common Du tools; do
    [ -d "$folder" ] && folders+=("$folder")
done
find "${folders[@]}" -name '*.cpp' ! -name 'NR-RRC-*' -print0 |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 -p build/clang --quiet
