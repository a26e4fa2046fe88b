#!/usr/bin/env bash
# coverage.sh [--missing FOLDER... | --figures]: runs all tests with gcov's counters and fails below the floors of
# scripts/coverage.floors. --missing lists what nothing has reached, --figures prints the table in Markdown. No step of ./test.
set -euo pipefail
cd "$(dirname "$0")/.."

# Counters are not atomic, which would take the tests several times as long, so tests with threads at work beside each other
# stay out: counts that are lost make others, which gcov derives of them, less than none. What the build itself runs would
# complain about the counts of older objects.
mkdir -p build/coverage
find build/coverage -name '*.gcda' -delete
scripts/build.sh coverage >&2
find build/coverage -name '*.gcda' -delete
# What is not optimised takes more stack than is promised; the counters are statics and symbols that the libraries do not
# have otherwise, and write files when memory fails.
PYTEST_ADDOPTS='-k "not threads"' GTEST_FILTER='-Stack.*:Threads.*:*OnDifferentThreads*:*WhileOtherThreads*' \
    ctest --preset coverage --exclude-regex '^(assurance\.(statics|tool)|package\..*|docs\.(cmake|blocks))$' >&2
exec scripts/coverage.py build/coverage "$@"
