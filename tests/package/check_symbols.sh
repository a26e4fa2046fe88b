#!/usr/bin/env bash
# check_symbols.sh <nm> <readelf> <shared library> <ABI>: what the library offers, what it leaves to the program, and what
# it loads.
set -euo pipefail
nm=$1 readelf=$2 library=$3 abi=$4

expect()
{
    if [ "$2" != "$3" ]; then
        printf '%s:\n' "$1"
        diff -u --label expected --label found <(echo "$2") <(echo "$3") || true
        exit 1
    fi
}

# Each under the version of the ABI, which is a symbol by itself.
version=CELLGROUPCFG_$abi
exported=$("$nm" -D --defined-only "$library" | awk '{ print $NF }' | LC_ALL=C sort)
expect "without the version $version" "" "$(grep -v "@@$version\$" <<<"$exported" | grep -vxF "$version" || true)"
expect "exported" "$version
cellgroupcfgAbi
cellgroupcfgAbiMatches
cellgroupcfgSizeOf
cellgroupcfgVersion
rrcComposeCellGroupCfg
rrcComposeCellGroupDelta
rrcComposeCellGroupTree
rrcEncodeCellGroupCfg
rrcEncodeCellGroupCfgInMemory
rrcInitRecord
rrcInitRecordWithPattern
uint64ToBitString43bit
uint64ToBitString48bit
uint64ToBitString59bit
uint64ToBitString64bit" "${exported//@@$version/}"

# Versioned names are the C library's, names with leading underscores those of the compiler's runtime.
outside="VOS_MemCpy
VOS_MemZero
VOS_Printf
VOS_SysLog
duComposeBWP_DownlinkCommon
duComposeBWP_UplinkCommon
duComposeSCS_SpecificCarrier
duComposeTDD_UL_DL_ConfigCommon
module_print_filter
vos_info_print_filter_is_filtered"
undefined=$("$nm" -D --undefined-only "$library" | awk '$1 == "U" { print $2 }' | grep -v -e @ -e '^__')
expect "left undefined beside the platform layer and the distributed unit" "" \
    "$(grep -vxF "$outside" <<<"$undefined" || true)"
expect "taken from the platform layer" "VOS_Printf" "$(grep -xF VOS_Printf <<<"$undefined" || true)"

expect "soname" "[libcellgroupcfg.so.$abi]" "$("$readelf" -d "$library" | awk '/\(SONAME\)/ { print $NF }')"
expect "C++ runtime" "" "$("$readelf" -d "$library" | awk '/\(NEEDED\).*c\+\+/ { print $NF }')"
