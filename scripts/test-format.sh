#!/usr/bin/env bash
# Looks whether every source file is as clang-format leaves it; with --fix it formats them.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=(--dry-run --Werror)
[ "${1:-}" = --fix ] && mode=(-i)

mapfile -d '' sources < <(find . -path ./build -prune -o -type f \( -name '*.h' -o -name '*.c' -o -name '*.cpp' \) -print0)
[ ${#sources[@]} -gt 0 ] || { echo "test-format: nothing to look at" >&2; exit 1; }
clang-format-14 --style=file "${mode[@]}" "${sources[@]}"
echo "${#sources[@]} files are as clang-format 14 leaves them"
