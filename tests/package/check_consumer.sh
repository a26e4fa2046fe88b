#!/usr/bin/env bash
# check_consumer.sh <cmake> <build> <scratch> <cmake option>...: installs the build, then builds and runs a C and a C++
# project that find the package.
set -euo pipefail
cmake=$1 build=$2 scratch=$3
shift 3
here=$(cd "$(dirname "$0")" && pwd)

rm -rf "$scratch/installed" "$scratch/c" "$scratch/cxx"
"$cmake" --install "$build" --prefix "$scratch/installed" >"$scratch/install.log"

# The tool, where it is built.
if [ -e "$build/Tool/cellgroupcfg" ]; then
    "$scratch/installed/bin/cellgroupcfg" --version
    grep -q '^\.TH "cellgroupcfg" "1"' "$scratch/installed/share/man/man1/cellgroupcfg.1"
    bash -n "$scratch/installed/share/bash-completion/completions/cellgroupcfg"
fi

for language in c cxx; do
    "$cmake" -S "$here/consumer" -B "$scratch/$language" "-DCONSUMER_LANGUAGE=${language^^}" \
        "-DCMAKE_PREFIX_PATH=$scratch/installed" "$@"
    "$cmake" --build "$scratch/$language"
    programs="static shared own_platform rules"
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
