#!/usr/bin/env bash
# Runs all tests on the release build of g++.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh release-test
ctest --preset release-test
