#!/usr/bin/env bash
# Runs the tests that start threads, on the build with the thread sanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh tsan cellgroupcfg_threads

# The sanitizer's fixed memory layout does not go with the address randomisation of newer kernels.
fixed_addresses=(setarch "$(uname -m)" --addr-no-randomize)
"${fixed_addresses[@]}" true 2>/dev/null || fixed_addresses=()
"${fixed_addresses[@]}" ctest --preset tsan -L "^threads$"
