#!/usr/bin/env bash
# The Debian packages are built, installed in a clean Debian 12, used, and purged without a trace; lintian has nothing to say of
# them. Then they are built once more, and are the same octets. The clean system takes root and the network of apt: where it
# cannot be had, its part is skipped and the step says so; CELLGROUPCFG_REQUIRE_PACKAGE=1 makes that a failure.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=$PWD/build/package

phase()
{
    printf 'test-package: %3d s: %s\n' "$SECONDS" "$1"
}

fail()
{
    echo "test-package: $1" >&2
    exit 1
}

# Says what is not done and why; a failure where it has to be.
skip()
{
    [ "${CELLGROUPCFG_REQUIRE_PACKAGE:-0}" = 0 ] || fail "$1"
    echo "test-package: SKIPPED, nothing was $2: $1" >&2
}

scripts/install-deps.sh package || { skip "the tools that build packages are missing" built; exit 0; }
rm -rf "$folder"
mkdir -p "$folder"

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo -n)
# A namespace of its own ends with all that was mounted and started in it.
apart=("${as_root[@]}" unshare --mount --pid --fork --kill-child)
root=$(mktemp -d -p /var/tmp)
maker=
finish()
{
    [ -z "$maker" ] || wait "$maker" || true
    "${as_root[@]}" rm -rf --one-file-system "$root"
}
trap finish EXIT
chmod 755 "$root"
here=yes
"${apart[@]}" true 2>/dev/null || here=
if [ -n "$here" ]; then
    phase "a clean Debian 12 is made meanwhile"
    "${apart[@]}" mmdebstrap --quiet --variant=minbase --dpkgopt=force-unsafe-io --skip=cleanup/apt/lists \
        --include=bash-completion,cmake,g++,make,man-db,ninja-build,pkg-config,python3 bookworm "$root" \
        >"$folder/root.log" 2>&1 &
    maker=$!
fi

phase "first build"
scripts/build-deb.sh "$folder/first"
phase "lintian"
lintian --allow-root --tag-display-limit 0 --fail-on error,warning "$folder"/first/*.changes || fail "lintian has objections"

in_clean_system()
{
    [ -n "$here" ] || { skip "there is no root, or it cannot make a namespace" installed; return; }
    wait "$maker" || { maker=; tail -n 5 "$folder/root.log" >&2; skip "mmdebstrap could not make a clean Debian 12" installed; return; }
    maker=
    "${as_root[@]}" mkdir "$root/packages" "$root/source"
    "${as_root[@]}" cp "$folder"/first/*.deb "$root/packages"
    git archive HEAD | "${as_root[@]}" tar -x -C "$root/source"
    "${as_root[@]}" cp -L /etc/resolv.conf "$root/etc/resolv.conf"
    "${apart[@]}" sh -c 'mount -t proc proc "$1/proc" && exec chroot "$1" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin \
        HOME=/root TERM=dumb LC_ALL=C.UTF-8 ${2:+"http_proxy=$2"} /source/tests/package/clean_root.sh /packages /source' \
        sh "$root" "${http_proxy:-}"
    phase "installed, used and purged"
}

phase "the clean Debian 12"
in_clean_system

phase "second build, elsewhere and without a cache"
env -u CMAKE_C_COMPILER_LAUNCHER -u CMAKE_CXX_COMPILER_LAUNCHER scripts/build-deb.sh "$folder/once/more"

phase "two builds, the same octets"
count=0
for file in "$folder"/first/*.{deb,dsc,tar.xz}; do
    cmp "$file" "$folder/once/more/${file##*/}" || fail "two builds differ"
    count=$((count + 1))
done
echo "$count files are the same"
