#!/usr/bin/env bash
# Does what ./run does, in each of its forms. The octets are all that it prints, with --tree the first and the last, and
# --json puts JER behind them.
set -euo pipefail
cd "$(dirname "$0")/.."

fail()
{
    echo "test-run: $1" >&2
    exit 1
}

octets=$(./run)
[[ $octets =~ ^([0-9]+)\ octets:$'\n'([0-9a-f\ $'\n']+)$ ]] || fail "./run prints something else than octets: $octets"
[ "$(wc -w <<<"${BASH_REMATCH[2]}")" -eq "${BASH_REMATCH[1]}" ] || fail "./run prints another number of octets"
tree=$(./run --tree)
[[ $tree == "$octets"$'\n\nCellGroupConfig'*$'\n\nthe octets again:\n'"${octets#*$'\n'}" ]] || fail "./run --tree: the octets are not first and last"
json=$(./run --json)
[[ $json == "$octets"$'\n\n{'* ]] || fail "./run --json: the octets are not first"
python3 -c 'import json, sys; json.load(sys.stdin)' <<<"${json#"$octets"}" || fail "./run --json: no JSON"
status=0
./run --other 2>/dev/null || status=$?
[ "$status" -eq 2 ] || fail "./run --other gives the status $status"
printf '%s\n' "./run: $(wc -l <<<"$octets") lines, --tree $(wc -l <<<"$tree"), --json $(wc -l <<<"$json")"
