#!/usr/bin/env bash
# capture.sh TOOL CELLGROUPS MESSAGES CPP: writes messages in hex, a line each, and the C++ that the tool makes of them.
set -euo pipefail
tool=$1 cell_groups=$2 messages=$3 cpp=$4

for example in $("$tool" example | cut -d' ' -f1); do
    "$tool" example "$example" | "$tool" compose
done >"$messages"
"$cell_groups" kept 20 1 2>/dev/null | cut -d' ' -f2 >>"$messages"

{
    echo '#include "filledRecords.h"'
    "$tool" record --lines --cpp "$messages"
    echo
    echo 'const Fill fills[] = {'
    seq -f '    fill%g,' "$(wc -l <"$messages")"
    echo '    nullptr};'
} >"$cpp"
