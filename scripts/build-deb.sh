#!/usr/bin/env bash
# build-deb.sh [folder]: the Debian packages of the last commit, and their source, into the folder (build/deb).
# The same commit gives the same octets, whenever and wherever it is built.
set -euo pipefail
cd "$(dirname "$0")/.."
output=$(realpath -m "${1:-build/deb}")

fail()
{
    echo "build-deb: $1" >&2
    exit 1
}

scripts/install-deps.sh package
changed=$(git status --porcelain) || fail "the packages are made of a commit, and this is no git checkout"
[ -z "$changed" ] || printf 'build-deb: not in the packages, as it is not committed:\n%s\n' "$changed" >&2

# The same folder each time: a compiler's cache knows it again.
work=$output/work
rm -rf "$work"
mkdir -p "$work/source"
umask 022
git archive HEAD | tar -x -C "$work/source"
cd "$work/source"

version=$(dpkg-parsechangelog -S Version)
grep -qx " *VERSION $version" CMakeLists.txt || fail "debian/changelog says $version, CMakeLists.txt another version"

SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -S Timestamp)
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
# debhelper gives the build a home folder of its own, without the cache in it.
if [[ ${CMAKE_CXX_COMPILER_LAUNCHER:-} == *ccache ]]; then
    CCACHE_DIR=$("$CMAKE_CXX_COMPILER_LAUNCHER" --get-config cache_dir)
    export CCACHE_DIR
    # With these it gives objects whose debug information has other names of the sources.
    unset CCACHE_BASEDIR CCACHE_NOHASHDIR
fi
dpkg-buildpackage --no-sign >"$output/build.log" 2>&1 || { tail -n 50 "$output/build.log" | cut -c 1-400 >&2; fail "see $output/build.log"; }

cd "$output"
rm -f ./*.deb ./*.dsc ./*.tar.xz ./*.buildinfo ./*.changes
find work -maxdepth 1 -type f -exec mv {} . \;
rm -r work
