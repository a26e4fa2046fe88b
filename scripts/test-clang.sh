#!/usr/bin/env bash
# All tests on the build of clang.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh clang
ctest --preset clang
