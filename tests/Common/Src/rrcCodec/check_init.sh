#!/usr/bin/env bash
# check_init.sh <plain> <pattern>: the two builds of rrcInitOctets.
set -euo pipefail
plain=$("$1") pattern=$("$2")

# Who initialises what he switches on sees no difference.
if ! diff <(head -n -1 <<<"$plain") <(head -n -1 <<<"$pattern"); then
    exit 1
fi
[ "$(wc -l <<<"$plain")" = 6 ]
[[ $(head -n -1 <<<"$plain") =~ ^[0-9a-f$'\n']+$ ]]

# A BSR-Config whose retxBSR-Timer nobody has set: sent as what is there, or refused.
[[ $(tail -n 1 <<<"$plain") =~ ^[0-9a-f]+$ ]]
expected="CellGroupConfig.mac-CellGroupConfig.bsr-Config.retxBSR-Timer: 165 is not in 0..15"
if [ "$(tail -n 1 <<<"$pattern")" != "$expected" ]; then
    tail -n 1 <<<"$pattern"
    exit 1
fi
