#!/usr/bin/env bash
# check_headers.sh <C compiler> <C++ compiler> <include folder>: each installed header by itself is valid C11 and C++20, and
# cellgroupcfg/check.h hears of a program's macros.
set -euo pipefail
cc=$1 cxx=$2 include=$3
warnings=(-Wall -Wextra -Wpedantic -Werror -fsyntax-only "-I$include" "-I$include/cellgroupcfg")

compiles() # <lines>
{
    printf '%b' "$1" | "$cc" -std=c11 "${warnings[@]}" -x c - && printf '%b' "$1" | "$cxx" -std=c++20 "${warnings[@]}" -x c++ -
}

count=0
while read -r header; do
    compiles "#include \"$header\"\nextern int unit;\n" || { echo "$header is not valid by itself"; exit 1; }
    count=$((count + 1))
done < <(cd "$include/cellgroupcfg" && find . -name '*.h' | LC_ALL=C sort)
[ "$count" -ge 40 ] || { echo "only $count headers are installed"; exit 1; }

check='#include "cellgroupcfg/check.h"\n'
use='#include "rrcCodec/rrcCompose.h"\n#include "rrcRules.h"\n'
compiles "$check$use" || { echo "check.h finds fault with the library alone"; exit 1; }
refused() # <what> <lines>
{
    if said=$(compiles "$2" 2>&1); then
        echo "check.h lets pass: $1"
        exit 1
    fi
    grep -q 'is a macro already: cellgroupcfg/check.h' <<<"$said" || { echo "$1: $said"; exit 1; }
}
for name in BOOL UINT32 common_s SSB_POSITION_SHORT_BITMAP Mbuf_t MAX_NROF_SCellS; do
    refused "$name" "#define $name 1\n$check$use"
done
refused "a check behind the headers" "$use$check"
echo "$count headers"
