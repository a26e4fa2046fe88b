#!/usr/bin/env bash
# check_consumer.sh <cmake> <build> <scratch> <C compiler> <C++ compiler> <C flags> <linker flags> <cmake option>...:
# installs the build, looks at what is there, has products use it, and takes it away again.
set -euo pipefail
cmake=$1 build=$2 scratch=$3 cc=$4 cxx=$5 cflags=$6 ldflags=$7
shift 7
here=$(cd "$(dirname "$0")" && pwd)
installed=$scratch/installed

rm -rf "$installed"
"$cmake" --install "$build" --prefix "$installed" >"$scratch/install.log"
"$here/check_headers.sh" "$cc" "$cxx" "$installed/include"

# The tool, where it is built.
if [ -e "$build/Tool/cellgroupcfg" ]; then
    "$installed/bin/cellgroupcfg" --version
    grep -q '^\.TH "cellgroupcfg" "1"' "$installed/share/man/man1/cellgroupcfg.1"
    bash -n "$installed/share/bash-completion/completions/cellgroupcfg"
fi

# What lies in the build's installation of a component, and what does not.
for component in runtime development tool docs; do
    "$cmake" --install "$build" --prefix "$scratch/$component" --component "$component" >/dev/null
done
[ -z "$(find "$scratch/runtime" -name '*.a' -o -name '*.h' -o -name '*.so')" ]
[ -n "$(find "$scratch/runtime" -name 'libcellgroupcfg.so.0')" ]
[ -z "$(find "$scratch/development" -name '*.so.*')" ]
[ -n "$(find "$scratch/development" -name 'libcellgroupcfg.so')" ]
rm -rf "$scratch/runtime" "$scratch/development" "$scratch/tool" "$scratch/docs"

"$here/check_products.sh" "$cmake" "$installed" "$scratch" "$cc" "$cflags" "$ldflags" "$@"

"$cmake" "-DBINARY_DIR=$build" -P "$here/../../cmake/uninstall.cmake"
left=$(find "$installed" -type f -o -type l)
[ -z "$left" ] || { echo "left behind: $left"; exit 1; }
