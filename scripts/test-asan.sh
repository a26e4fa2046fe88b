#!/usr/bin/env bash
# Runs all tests on clang's build with the address and undefined-behaviour sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh asan
ctest --preset asan
