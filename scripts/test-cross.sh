#!/usr/bin/env bash
# The unit tests on other systems: test-cross.sh [preset...], aarch64 and i686 if not said.
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -gt 0 ] || set -- aarch64 i686
for preset; do
    echo "cross: $preset"
    scripts/build.sh "$preset"
    ctest --preset "$preset"
done
