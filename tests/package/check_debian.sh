#!/usr/bin/env bash
# check_debian.sh <nm> <symbols file> <shared library>...: the file lists what each library offers, all of it and nothing else.
set -euo pipefail
nm=$1 symbols=$2
shift 2

result=0
for library; do
    name=$(basename "$(readlink -f "$library")" | sed 's/\(\.so\.[0-9]*\).*/\1/')
    listed=$(awk -v name="$name" '/^[^ ]/ { within = $1 == name } within && /^ / { sub("@", " "); print $1 }' "$symbols" | LC_ALL=C sort)
    offered=$("$nm" -D --defined-only "$library" | awk '{ sub("@.*", "", $NF); print $NF }' | LC_ALL=C sort)
    [ -n "$listed" ] || { echo "$symbols does not have $name"; exit 1; }
    diff -u --label "$symbols" --label "$name" <(echo "$listed") <(echo "$offered") || result=1
done
exit "$result"
