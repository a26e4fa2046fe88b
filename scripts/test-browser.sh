#!/usr/bin/env bash
# Looks at the pages in a browser: Debian's chromium, driven by playwright-core from npm. Both are installed for this step alone.
# Where they cannot be had the step is skipped and says so; CELLGROUPCFG_REQUIRE_BROWSER=1 makes that a failure.
# Screenshots for a person's eye go to build/browser.
set -euo pipefail
cd "$(dirname "$0")/.."

skip()
{
    if [ "${CELLGROUPCFG_REQUIRE_BROWSER:-0}" = 1 ]; then
        echo "test-browser: $1" >&2
        exit 1
    fi
    echo "test-browser: SKIPPED, no page was looked at: $1" >&2
    exit 0
}

scripts/install-deps.sh browser || skip "there is no chromium, or no Node.js with npm"

test=tests/Page/browser
if [ "$test/node_modules/.package-lock.json" -ot "$test/package-lock.json" ]; then
    npm ci --prefix "$test" --no-audit --no-fund --loglevel=error >&2 || skip "npm cannot install playwright-core"
fi

scripts/build.sh release-test cellgroupcfg_cli
node "$test/test.js" "$PWD/build/release/Tool/cellgroupcfg" "$PWD/build/browser" "$(command -v chromium)"
