#!/usr/bin/env bash
# clean_root.sh <packages> <source>: in a system that has compilers and nothing of the library, and is thrown away afterwards:
# installs the packages, uses them as products and people do, and removes them.
set -euo pipefail
packages=$1 source=$2
here=$source/tests/package
scratch=$(mktemp -d)
export DEBIAN_FRONTEND=noninteractive

phase()
{
    printf 'clean_root: %3d s: %s\n' "$SECONDS" "$1"
}

fail()
{
    echo "clean_root: $1" >&2
    exit 1
}

# All there is, but what apt and dpkg keep for themselves.
listing()
{
    find / -xdev \( -path "$packages" -o -path "$source" -o -path /tmp -o -path /run -o -path /proc -o -path /var/cache \
        -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /var/log \) -prune -o -print | sort
}

listing >"$scratch/before"
phase "apt installs the packages and what they depend on"
mapfile -t files < <(find "$packages" -name '*.deb' ! -name '*-dbgsym_*' | sort)
mapfile -t names < <(for file in "${files[@]}"; do dpkg-deb -f "$file" Package; done)
apt-get install -qq -y --no-install-recommends "${files[@]}" >"$scratch/apt.log" 2>&1 || { cat "$scratch/apt.log"; fail "apt-get install"; }
dpkg --verify "${names[@]}"

cd /
phase "products in C and C++ that CMake and pkg-config lead to the library"
mkdir "$scratch/products"
"$here/check_products.sh" cmake /usr "$scratch/products" cc -O1 "" >"$scratch/products.log" 2>&1 ||
    { cat "$scratch/products.log"; fail "check_products.sh"; }

phase "a product with the sources inside, which has targets of common names"
mkdir "$scratch/inside"
"$here/check_host.sh" cmake "$source" "$scratch/inside" -G Ninja >"$scratch/inside.log" 2>&1 ||
    { cat "$scratch/inside.log"; fail "check_host.sh"; }

phase "the tool prints what the installed documents say"
documents=/usr/share/doc/cellgroupcfg-doc
cellgroupcfg --version
python3 "$source/tests/docs/check_console.py" /usr/bin/cellgroupcfg "$documents" --without tshark
python3 "$source/tests/docs/check_links.py" "$documents" --installed
grep -q '<html' /usr/share/doc/cellgroupcfg/playground.html

phase "manual and completion"
man cellgroupcfg | grep -q '^ *cellgroupcfg - ' || fail "man cellgroupcfg"
completed=$(bash -c '
    source /usr/share/bash-completion/bash_completion
    _completion_loader cellgroupcfg
    COMP_WORDS=(cellgroupcfg dec) COMP_CWORD=1
    "$(complete -p cellgroupcfg | sed "s/.*-F \([^ ]*\).*/\1/")"
    echo "${COMPREPLY[*]}"')
[ "$completed" = decode ] || fail "dec is completed to '$completed'"

phase "Python"
python3 - "$documents/docs/guide" <<'P'
import pathlib
import sys

import cellgroupcfg

folder = pathlib.Path(sys.argv[1])
call = bytes.fromhex((folder / "call.hex").read_text())
assert cellgroupcfg.encode(cellgroupcfg.decode(call)) == call
refused = cellgroupcfg.decode(bytes.fromhex((folder / "refused.hex").read_text()))
found = [finding.id for finding in cellgroupcfg.check(refused)]
assert "pdcch-ss-coreset-ref" in found, found
P

phase "purged, nothing is left"
apt-get purge -qq -y --autoremove "${names[@]}" >"$scratch/apt.log" 2>&1 || { cat "$scratch/apt.log"; fail "apt-get purge"; }
listing >"$scratch/after"
diff "$scratch/before" "$scratch/after" || fail "this is left, or gone"
