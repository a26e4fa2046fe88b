#!/usr/bin/env bash
# progress.sh [total]: passes its input on; of the lines that begin with [done/total], as ninja writes them, one for each
# tenth. With a total every line counts as one that is done, and its number is put in front of it.
set -euo pipefail

total=${1:-} count=0 last=-1
while IFS= read -r line; do
    if [ -n "$total" ]; then
        count=$((count + 1))
        line="[$count/$total] $line"
    fi
    if [[ $line =~ ^\[([0-9]+)/([0-9]+)\]\  ]]; then
        tenth=$((10 * BASH_REMATCH[1] / BASH_REMATCH[2]))
        [ "$tenth" -ne "$last" ] || continue
        last=$tenth
    fi
    printf '%s\n' "$line"
done
