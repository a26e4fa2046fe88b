#!/usr/bin/env bash
# check_archive.sh <nm> <archive> <archive below it>...: what a static library that a product links needs from elsewhere.
# That is what the archives below it define, and a few functions of the C library: no C++ runtime, no malloc.
set -euo pipefail
nm=$1 archive=$2
shift 2

c="__popcountdi2 __stack_chk_fail memchr memcmp memcpy memmove memset snprintf strcmp strcspn strlen strncmp vsnprintf"

defined=$("$nm" --defined-only "$archive" "$@" 2>/dev/null | awk 'NF == 3 { print $3 }')
foreign=$("$nm" --undefined-only "$archive" 2>/dev/null | awk '$1 == "U" { print $2 }' | sort -u |
    grep -vxF -e _GLOBAL_OFFSET_TABLE_ -f <(printf '%s\n' "$defined") | grep -vxF "${c// /$'\n'}" || true)
if [ -n "$foreign" ]; then
    echo "$archive needs:"
    echo "$foreign"
    exit 1
fi

# No object of the library has anything to do before main.
startup=$("$nm" "$archive" 2>/dev/null | awk '$NF ~ /^_GLOBAL__sub_I|^__cxx_global_var_init/ { print $NF }')
[ -z "$startup" ] || { echo "$archive starts by itself: $startup"; exit 1; }
