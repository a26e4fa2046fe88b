#!/usr/bin/env bash
# check_byte_order.sh CXX CC: what depends on the byte order is compiled for this system, and refused for a big-endian one
# with nothing but the text that says so: with the byte order of this compiler changed, and by one for s390x where there
# is one.
set -euo pipefail

cxx=$1
cc=$2
text='error: (#error )?"?cellgroupcfg is for little-endian systems'
includes=(-IAsn/Inc -IAsn/Src -ICommon/Inc -ICommon/Inc/rrcCodec -ICommon/Inc/gnbCommon -ICommon/Src -IPlatform/include)
sources=(Asn/Src/perEncoder.h Asn/Src/perEncoder.cpp Asn/Src/rtxDecode.cpp Asn/Src/NR-RRC-Tables.cpp
    Common/Src/cellGroupCfg/bitStringChoice.h Common/Src/cellGroupCfg/cellGroupCfg.cpp)
count=0

# refused COMPILER OPTION...
refused()
{
    if words=$("$@" 2>&1); then
        echo "not refused: $*" >&2
        exit 1
    fi
    errors=$(grep -c 'error:' <<<"$words")
    if [ "$errors" != 1 ] || ! grep -qE "$text" <<<"$words"; then
        printf 'refused with other words: %s\n%s\n' "$*" "$words" >&2
        exit 1
    fi
    count=$((count + 1))
}

big=(-U__BYTE_ORDER__ "-D__BYTE_ORDER__=__ORDER_BIG_ENDIAN__")
for source in "${sources[@]}"; do
    options=(-std=c++20 -fsyntax-only -x c++ "${includes[@]}")
    "$cxx" "${options[@]}" "$source"
    refused "$cxx" "${options[@]}" "${big[@]}" "$source"
    ! command -v s390x-linux-gnu-g++ >/dev/null || refused s390x-linux-gnu-g++ "${options[@]}" "$source"
done
for header in Asn/Inc/asn1Runtime.h Asn/Inc/NR-RRC-Definitions.h; do
    options=(-std=c11 -fsyntax-only -x c "${includes[@]}")
    "$cc" "${options[@]}" "$header"
    refused "$cc" "${options[@]}" "${big[@]}" "$header"
done
echo "$count times refused"
