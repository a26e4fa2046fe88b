#!/usr/bin/env bash
# The shared libraries against what abi/ says of the last release. Any difference fails; one that is meant is written down
# with --update. Where it is more than an addition, that takes another number in CELLGROUPCFG_ABI (CMakeLists.txt) first, and
# with it another SONAME, unless nothing has been released.
set -euo pipefail
cd "$(dirname "$0")/.."

update=${1:-}
[ -z "$update" ] || [ "$update" = --update ] || { echo "usage: $0 [--update]" >&2; exit 2; }

build=build/abi
echo "abi: building the shared libraries with debug information"
scripts/build.sh abi cellgroupcfg_shared cellgroupcfg_full
headers=(Platform/include Asn/Inc Common/Inc Common/Public Records/Inc Json/Inc Formulas/Inc Model/Inc Rules/Inc Explain/Inc
    Draw/Inc Page/Inc Settings/Inc "$build/include")
only_public=()
for folder in "${headers[@]}"; do
    [ ! -d "$folder" ] || only_public+=(--headers-dir "$folder")
done

soname()
{
    sed -n "s/.* soname='\([^']*\)'.*/\1/p" "$1" | head -n 1
}

result=0
for library in "$build/Common/libcellgroupcfg.so" "$build/Full/libcellgroupcfg_full.so"; do
    name=$(basename "$library" .so)
    dump=abi/$name.abi
    now=$build/$name.abi
    abidw --exported-interfaces-only --no-show-locs --no-comp-dir-path --no-corpus-path --no-parameter-names \
        --drop-private-types "${only_public[@]}" --out-file "$now" "$library"
    status=0
    if [ -e "$dump" ]; then
        echo "abi: $name against $dump"
        abidiff --no-redundant "$dump" "$now" || status=$?
    else
        status=4
    fi
    [ "$status" -eq 0 ] && continue
    # Bits of abidiff's status: 1 an error, 2 a usage error, 4 a change, 8 one that breaks programs.
    if [ $((status & 3)) -ne 0 ]; then
        exit "$status"
    fi
    if [ -z "$update" ]; then
        echo "abi: $name is another than $dump: if that is meant, scripts/test-abi.sh --update writes it down" >&2
        result=1
    elif [ -e "$dump" ] && [ "$(soname "$dump")" = "$(soname "$now")" ] && [ -n "$(git tag --list 'v*')" ] &&
        ! abidiff --no-redundant --no-added-syms "$dump" "$now" >/dev/null; then
        echo "abi: programs have to be compiled again for this $name: raise CELLGROUPCFG_ABI in CMakeLists.txt first" >&2
        result=1
    else
        mkdir -p abi
        cp "$now" "$dump"
        echo "abi: $dump is written"
    fi
done
exit "$result"
