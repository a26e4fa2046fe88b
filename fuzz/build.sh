#!/usr/bin/env bash
# build.sh [fuzzer...]: builds all fuzzers, or these, into OUT as OSS-Fuzz asks for it: static libraries inside, corpora as
# <fuzzer>_seed_corpus.zip, dictionaries as <fuzzer>.dict. CC, CXX, CFLAGS, CXXFLAGS and LIB_FUZZING_ENGINE are honoured;
# without them clang 14 and its libFuzzer with the address and undefined-behaviour sanitizers are taken. WORK is the folder
# to build in.
set -euo pipefail
cd "$(dirname "$0")/.."

sanitizers="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all"
export CC="${CC:-clang-14}" CXX="${CXX:-clang++-14}"
export CFLAGS="${CFLAGS--O1 -g1 $sanitizers}" CXXFLAGS="${CXXFLAGS--O1 -g1 $sanitizers}"
engine=${LIB_FUZZING_ENGINE:--fsanitize=fuzzer}
out=${OUT:-$PWD/build/oss-fuzz/out}
work=${WORK:-$PWD/build/oss-fuzz}/cellgroupcfg

cmake -S . -B "$work" -G Ninja -DCMAKE_BUILD_TYPE=None -DBUILD_SHARED_LIBS=OFF -DCELLGROUPCFG_BUILD_FUZZ=ON \
    -DCELLGROUPCFG_FUZZING_ENGINE="$engine" -DCELLGROUPCFG_BUILD_TESTS=OFF -DCELLGROUPCFG_BUILD_EXAMPLES=OFF \
    -DCELLGROUPCFG_BUILD_PLAYGROUND=OFF -DCELLGROUPCFG_INSTALL=OFF --log-level=NOTICE >/dev/null
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(fuzzers)
cmake --build "$work" --parallel "${JOBS:-$(nproc)}" --target "${targets[@]}"

mkdir -p "$out"
[ $# -gt 0 ] || mapfile -t targets < <(find "$work/fuzzers" -maxdepth 1 -type f -executable -printf '%f\n' | LC_ALL=C sort)
for name in "${targets[@]}"; do
    cp "$work/fuzzers/$name" "$out/$name"
    cp "fuzz/dictionaries/$name.dict" "$out/$name.dict"
    rm -f "$out/${name}_seed_corpus.zip"
    python3 -m zipfile -c "$out/${name}_seed_corpus.zip" "fuzz/corpus/$name"/*
done
echo "fuzz/build: ${#targets[@]} fuzzers in $out"
