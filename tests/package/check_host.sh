#!/usr/bin/env bash
# check_host.sh <cmake> <project> <scratch> <cmake option>...: a product that has the library's sources inside is not disturbed
# by them.
set -euo pipefail
cmake=$1 project=$2 scratch=$3
shift 3
here=$(cd "$(dirname "$0")" && pwd)

rm -rf "$scratch/host" "$scratch/fetched"
"$cmake" -S "$here/host" -B "$scratch/host" "-DCELLGROUPCFG_SOURCE=$project" -DCMAKE_BUILD_TYPE=Debug "$@"
"$cmake" --build "$scratch/host" --target app generate threads uninstall
ctest --test-dir "$scratch/host" --no-tests=error
tests=$(ctest --test-dir "$scratch/host" -N | sed -n 's/^Total Tests: //p')
[ "$tests" = 1 ] || { echo "the host has $tests tests instead of its own"; exit 1; }
"$cmake" --install "$scratch/host" --prefix "$scratch/host/installed"
[ ! -e "$scratch/host/installed" ] || { echo "the host installs what it did not ask for"; exit 1; }

"$cmake" -S "$here/host" -B "$scratch/fetched" "-DCELLGROUPCFG_SOURCE=$project" -DHOST_FETCHES=ON \
    "-DFETCHCONTENT_SOURCE_DIR_CELLGROUPCFG=$project" "$@"
