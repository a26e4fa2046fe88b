#!/usr/bin/env bash
# checkAsncomp.sh <asncomp> <scratch folder>: the compiler's command line, run in the project's top folder.
# The checked-in files are what it makes of the schema, byte for byte.
set -uo pipefail

asncomp=$1
scratch=$2
schema=Asn/Schema/NR-RRC-Definitions.asn1
usual=Asn/Schema/usual.txt
result=0

fail()
{
    echo "$1" >&2
    result=1
}

# expect <status> <text> <argument>...: the exit status, and a text that is printed.
expect()
{
    local status=$1 text=$2 printed
    shift 2
    printed=$("$asncomp" "$@" 2>&1)
    local actual=$?
    [ "$actual" -eq "$status" ] || fail "asncomp $*: status $actual instead of $status"
    [[ "$printed" == *"$text"* ]] || fail "asncomp $*: '$text' is not in: $printed"
}

rm -rf "$scratch"
mkdir -p "$scratch/inc" "$scratch/src" "$scratch/none"

expect 0 "" --schema "$schema" --inc "$scratch/inc" --src "$scratch/src" --pdu CellGroupConfig \
    --usual "$usual"
for folder in inc src; do
    checked_in=Asn/${folder^}
    for file in "$scratch/$folder"/*; do
        cmp "$file" "$checked_in/$(basename "$file")" || fail "$checked_in: generate it again (target 'generate')"
    done
    [ "$(ls "$scratch/$folder")" = "$(cd "$checked_in" && ls NR-RRC-*)" ] || fail "$checked_in: other files are generated"
done

expect 0 "usage: asncomp" --help
expect 2 "usage: asncomp"
expect 2 "usage: asncomp" --schema
expect 2 "usage: asncomp" --schema "$schema" --inc "$scratch/none" --src "$scratch/none"
expect 2 "usage: asncomp" --shcema "$schema"
expect 2 "usage: asncomp" --schema "$schema" --inc "$scratch/none" --src "$scratch/none" --pdu all --table
expect 1 "asncomp: cannot read $scratch/missing: No such file" \
    --schema "$scratch/missing" --inc "$scratch/none" --src "$scratch/none" --pdu all
expect 1 "asncomp: cannot write $scratch/missing/NR-RRC-Definitions.h: No such file" \
    --schema "$schema" --inc "$scratch/missing" --src "$scratch/none" --pdu all

expect 1 "asncomp: cannot read $scratch/missing: No such file" \
    --schema "$schema" --inc "$scratch/none" --src "$scratch/none" --pdu all --usual "$scratch/missing"
printf 'CellGroupConfig.spCellConfig\nCellGroupConfig.spcellConfig\n' >"$scratch/usual.txt"
expect 1 "there is no member 'CellGroupConfig.spcellConfig'" \
    --schema "$schema" --inc "$scratch/none" --src "$scratch/none" --pdu all --usual "$scratch/usual.txt"

printf 'M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\nA ::= OCTET STRING\nB ::= SEQUENCE {}\nEND\n' >"$scratch/bad.asn1"
expect 1 "$scratch/bad.asn1:2:7: OCTET is not supported" \
    --schema "$scratch/bad.asn1" --inc "$scratch/none" --src "$scratch/none" --pdu all
[ -z "$(ls "$scratch/none")" ] || fail "a refused schema leaves files: $(ls "$scratch/none")"

exit "$result"
