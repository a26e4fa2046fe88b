#!/usr/bin/env bash
# Line and branch coverage of the libraries under all tests: a table, and build/coverage/html. No step of ./test.
set -euo pipefail
cd "$(dirname "$0")/.."

rm -rf build/coverage/profiles
scripts/build.sh coverage
ctest --preset coverage
llvm-profdata-14 merge -sparse build/coverage/profiles/*.profraw -o build/coverage/tests.profdata

objects=()
while IFS= read -r program; do
    objects+=(-object "$program")
done < <(find build/coverage/tests -type f -executable ! -name '*.so*' ! -path '*/CMakeFiles/*')
ignore='(^|/)(tests|build)/|/usr/'
llvm-cov-14 show "${objects[@]}" -instr-profile=build/coverage/tests.profdata -ignore-filename-regex="$ignore" \
    -format=html -output-dir=build/coverage/html
llvm-cov-14 report "${objects[@]}" -instr-profile=build/coverage/tests.profdata -ignore-filename-regex="$ignore"
