#!/usr/bin/env bash
# check_products.sh <cmake> <prefix> <scratch> <C compiler> <C flags> <linker flags> <cmake option>...: builds and runs products
# in C and C++ that find what is installed below the prefix, with CMake and with pkg-config.
set -euo pipefail
cmake=$1 installed=$2 scratch=$3 cc=$4 cflags=$5 ldflags=$6
shift 6
here=$(cd "$(dirname "$0")" && pwd)

rm -rf "$scratch/c" "$scratch/cxx" "$scratch/make"
for language in c cxx; do
    "$cmake" -S "$here/consumer" -B "$scratch/$language" "-DCONSUMER_LANGUAGE=${language^^}" \
        "-DCMAKE_PREFIX_PATH=$installed" "$@"
    "$cmake" --build "$scratch/$language"
    programs="static shared own_platform rules version"
    [ "$language" = c ] || programs+=" drawn"
    for program in $programs; do
        echo "== $language $program"
        "$scratch/$language/$program"
    done
    # Of C++ alone.
    if [ "$language" = cxx ]; then
        echo "== $language page"
        "$scratch/$language/page" >"$scratch/page.html"
        grep -q '<li>cellGroupId 0' "$scratch/page.html"
    fi
done

# A component that is none is named.
if said=$("$cmake" -S "$here/consumer" -B "$scratch/none" -DCONSUMER_LANGUAGE=C -DCONSUMER_COMPONENTS=defaults\;rulez \
    "-DCMAKE_PREFIX_PATH=$installed" "$@" 2>&1) || ! grep -q 'built without cellgroupcfg::rulez' <<<"$said"; then
    echo "the component rulez: $said"
    exit 1
fi

# Without CMake.
pkgconfig=$(dirname "$(find "$installed" -name cellgroupcfg.pc)")
cp -r "$here/consumer" "$scratch/make"
CFLAGS=$cflags LDFLAGS=$ldflags make -C "$scratch/make" "CC=$cc" "PKG_CONFIG=env PKG_CONFIG_PATH=$pkgconfig pkg-config" \
    $([ -e "$pkgconfig/cellgroupcfg-full.pc" ] || echo composed own_platform version)
for program in "$scratch"/make/{composed,own_platform,version,full}; do
    [ -x "$program" ] || continue
    echo "== make ${program##*/}"
    LD_LIBRARY_PATH=$(dirname "$pkgconfig") "$program"
done
