#!/usr/bin/env bash
# Fails when a source file is not as clang-format leaves it; with --fix it formats them.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=(--dry-run --Werror)
[ "${1:-}" = --fix ] && mode=(-i)

find . -path ./build -prune -o -type f \( -name '*.h' -o -name '*.c' -o -name '*.cpp' \) -print0 |
    xargs -0 clang-format-14 --style=file "${mode[@]}"
