#!/usr/bin/env bash
# elsewhere.sh [--figures|--update] [system...]: the unit tests and the digests of RECORDS (10,000) random cell groups of
# either kind on other processors, under qemu-user, and the digests with other compilers, standard libraries,
# optimisations and contents of memory: all the same as tests/records/digests.txt. --figures prints the table for a
# document; --update writes the digests of this system instead. Systems: aarch64 armhf i686 s390x, and those of x86-64 below.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh elsewhere
figures= update=
case "${1:-}" in
    --figures) figures=yes; shift ;;
    --update) update=yes; shift ;;
esac
records=${RECORDS:-10000}
expected=$PWD/tests/records/digests.txt
program=tests/records/recordDigest

# system; compiler; standard library; flags
systems="gcc-O0;g++;libstdc++;-O0
gcc-O3;g++;libstdc++;-O3
gcc-zero;g++;libstdc++;-O2 -ftrivial-auto-var-init=zero
gcc-pattern;g++;libstdc++;-O2 -ftrivial-auto-var-init=pattern
clang-O0;clang++-14;libstdc++;-O0
clang-O3;clang++-14;libstdc++;-O3
clang-pattern;clang++-14;libstdc++;-O2 -ftrivial-auto-var-init=pattern
libc++-O0;clang++-14;libc++;-O0
libc++-O3;clang++-14;libc++;-O3"
cross="aarch64 armhf i686 s390x"

if [ -n "$update" ]; then
    scripts/build.sh release-test recordDigest >&2
    build/release/$program "$records" junk >"$expected"
    echo "elsewhere: $(wc -l <"$expected") digests written"
    exit 0
fi

rows=
# row SYSTEM COMPILER LIBRARY FLAGS TESTS EMULATOR...: runs the program in ./build/SYSTEM with each content of memory.
row()
{
    local name=$1 compiler=$2 library=$3 flags=$4 tests=$5 fill perturb same=0
    shift 5
    for fill in 00 ff junk; do
        # glibc fills what malloc gives with the complement of this octet, and what free takes with the octet.
        perturb=90
        [ "$fill" != 00 ] || perturb=255
        [ "$fill" != ff ] || perturb=1
        MALLOC_PERTURB_=$perturb "$@" "build/elsewhere/$name/$program" "$records" "$fill" "$expected" \
            >"build/elsewhere/$name.$fill" || { cat "build/elsewhere/$name.$fill" >&2; exit 1; }
        same=$((same + 1000 * $(grep -vc 'not compared' "build/elsewhere/$name.$fill")))
    done
    rows+="$name;$compiler $($compiler -dumpfullversion -dumpversion);$library;$flags;00, FF, junk;$same;$tests"$'\n'
    echo "elsewhere: $name: the same" >&2
}

build()
{
    local name=$1
    shift
    echo "elsewhere: $name" >&2
    cmake -S . -B "build/elsewhere/$name" -G Ninja -DCELLGROUPCFG_BUILD_TOOL=OFF -DCELLGROUPCFG_BUILD_HOST=ON \
        -DCELLGROUPCFG_BUILD_EXAMPLES=OFF \
        --log-level=NOTICE "$@" >/dev/null
}

mkdir -p build/elsewhere
wanted=("$@")
isWanted()
{
    [ ${#wanted[@]} -eq 0 ] || [[ " ${wanted[*]} " == *" $1 "* ]]
}

for name in $cross; do
    isWanted "$name" || continue
    build "$name" -DCMAKE_TOOLCHAIN_FILE="cmake/$name.cmake" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS_DEBUG=-O1 \
        -DCMAKE_CXX_FLAGS_DEBUG=-O1
    # Without tests the digests alone: ELSEWHERE_TESTS=no.
    targets=() tests=-
    [ "${ELSEWHERE_TESTS:-yes}" = yes ] || targets=(--target recordDigest)
    cmake --build "build/elsewhere/$name" --parallel "${JOBS:-$(nproc)}" "${targets[@]}" | scripts/progress.sh >&2
    if [ "${ELSEWHERE_TESTS:-yes}" = yes ]; then
        ctest --test-dir "build/elsewhere/$name" --output-on-failure -j "$(nproc)" >"build/elsewhere/$name.tests" ||
            { tail -n 50 "build/elsewhere/$name.tests" >&2; exit 1; }
        tests=$(sed -n 's/^100% tests passed, 0 tests failed out of //p' "build/elsewhere/$name.tests")
    fi
    emulator=$(sed -n 's/^set(CMAKE_CROSSCOMPILING_EMULATOR \(.*\))$/\1/p' "cmake/$name.cmake")
    compiler=$(sed -n 's/^set(triplet \(.*\))$/\1-g++/p' "cmake/$name.cmake")
    # shellcheck disable=SC2086 # an emulator is several words
    row "$name" "$compiler" libstdc++ -O1 "$tests" $emulator
done

while IFS=';' read -r name compiler library flags <&3; do
    isWanted "$name" || continue
    cc=${compiler/clang++/clang}
    cc=${cc/g++/gcc}
    stdlib=
    [ "$library" = libstdc++ ] || stdlib="-stdlib=libc++"
    build "$name" -DCMAKE_BUILD_TYPE=None -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags $stdlib"
    cmake --build "build/elsewhere/$name" --parallel "${JOBS:-$(nproc)}" --target recordDigest | scripts/progress.sh >&2
    row "$name" "$compiler" "$library" "$flags" - env
done 3<<<"$systems"
[ -n "$rows" ] || { echo "usage: $0 [--figures|--update] [system...]: $cross $(cut -d ';' -f 1 <<<"$systems" | tr '\n' ' ')" >&2; exit 2; }

if [ -n "$figures" ]; then
    printf '| System | Compiler | Library | Flags | Memory filled with | Records, all the same | Tests passed |\n|---|---|---|---|---|---|---|\n'
    sed 's/;/ | /g; s/^/| /; s/$/ |/' <<<"${rows%$'\n'}"
else
    column -t -s ';' -N system,compiler,library,flags,memory,records,tests <<<"${rows%$'\n'}"
fi
