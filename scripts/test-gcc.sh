#!/usr/bin/env bash
# All tests on the release build of g++.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release-test
ctest --preset release-test
