#!/usr/bin/env bash
# What the first hour costs, for README.md: what apt fetches on a bare Debian, what a clone downloads, and the time and disk
# of ./run and of the tool's build in it, from scratch and without a compiler cache. ./test tells its own times; with
# --test it is run and measured, too.
set -euo pipefail
cd "$(dirname "$0")/.."
unset CMAKE_C_COMPILER_LAUNCHER CMAKE_CXX_COMPILER_LAUNCHER
export CCACHE_DISABLE=1

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

megabytes()
{
    du -sm "$1" | cut -f 1
}

measured()
{
    local begin=$SECONDS name=$1
    shift
    "$@" >"$place/log" 2>&1 || { tail -n 20 "$place/log" >&2; exit 1; }
    echo "$name: $((SECONDS - begin)) s, the folder then has $(megabytes "$place/clone") MB"
}

# What apt would fetch and unpack for these packages if nothing were installed.
fetched()
{
    apt-get -o Dir::State::status="$place/none" -o Debug::NoLocking=1 --no-install-recommends --assume-no install "$@" 2>&1 |
        sed -n 's/^Need to get \(.* .B\/\)\?\(.*\) of archives\./\2,/p; s/^After this operation, \(.*\) of additional.*/\1 of disk/p' | tr "\n" " "
}

: >"$place/none"
mapfile -t bare < <(dpkg-query -Wf '${Package} ${Priority} ${Essential}\n' | awk '/ (required|important) |yes$/ {print $1}')
echo "apt, a bare Debian: $(fetched "${bare[@]}")"
for what in run test browser; do
    mapfile -t packages < <(scripts/install-deps.sh "$what" --list)
    echo "apt, with what $what needs: $(fetched "${bare[@]}" "${packages[@]}")"
done

git clone --quiet "file://$PWD" "$place/clone"
echo "clone: $(megabytes "$place/clone/.git") MB of download, $(megabytes "$place/clone") MB of disk"
cd "$place/clone"
measured ./run ./run
measured tool scripts/build.sh release-test cellgroupcfg_cli
[ "${1:-}" != --test ] || measured ./test ./test
echo "on $(nproc) processors, $(sed -n 's/^model name.*: //p' /proc/cpuinfo | head -n 1), $(date -u +%F)"
