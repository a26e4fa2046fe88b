#!/usr/bin/env bash
# All tests on the build with the thread sanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh tsan

# The sanitizer's fixed memory layout does not go with the address randomisation of newer kernels.
fixed_addresses=(setarch "$(uname -m)" --addr-no-randomize)
"${fixed_addresses[@]}" true 2>/dev/null || fixed_addresses=()
"${fixed_addresses[@]}" ctest --preset tsan
