#!/usr/bin/env bash
# check_hardening.sh <nm> <readelf> <program> <host library> <library>: each binds its symbols when it is loaded, has no stack
# that can be executed and code that is never written; what reads strangers' texts checks its frames and arrays.
set -euo pipefail
nm=$1 readelf=$2 program=$3 host=$4
shift 2

fail()
{
    echo "$1" >&2
    exit 1
}

for file; do
    dynamic=$("$readelf" --dynamic --wide "$file")
    segments=$("$readelf" --program-headers --wide "$file")
    grep -qE 'BIND_NOW|FLAGS.*NOW' <<<"$dynamic" || fail "$file looks symbols up late"
    grep -q TEXTREL <<<"$dynamic" && fail "$file has code that is written"
    grep -q GNU_RELRO <<<"$segments" || fail "$file can be written where it is relocated"
    grep -E 'GNU_STACK' <<<"$segments" | grep -q 'RWE' && fail "$file has a stack that can be executed"
    grep -E '^ *LOAD' <<<"$segments" | grep -q 'RWE' && fail "$file has a segment that is written and executed"
done
"$readelf" --file-header "$program" | grep -q 'DYN' || fail "$program has a fixed address"
for file in "$program" "$host"; do
    symbols=$("$nm" --dynamic --undefined-only "$file")
    grep -q '__stack_chk_fail' <<<"$symbols" || fail "$file checks no frame"
    grep -qE '__(mem|str|sn?print|read|poll)[a-z]*_chk' <<<"$symbols" || fail "$file checks no array"
done
exit 0
