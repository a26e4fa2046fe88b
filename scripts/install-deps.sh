#!/usr/bin/env bash
# install-deps.sh run|test|browser: installs the Debian packages that ./run, ./test or its step browser needs and that are
# missing.
# With nothing missing it does nothing and needs no network.
set -euo pipefail

run_packages=(g++ cmake ninja-build)
test_packages=(
    "${run_packages[@]}"
    binutils clang-14 libclang-rt-14-dev clang-format clang-tidy llvm-14
    libgtest-dev libgmock-dev libbenchmark-dev
    libcli11-dev nlohmann-json3-dev libtomlplusplus-dev libpcap-dev scdoc
    tshark erlang-base erlang-asn1 python3 python3-clang-14
    lld-14 wasi-libc libc++-14-dev-wasm32 libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32
)
browser_packages=(chromium nodejs npm)

case "${1:-}" in
    run) packages=("${run_packages[@]}") ;;
    test) packages=("${test_packages[@]}") ;;
    browser) packages=("${browser_packages[@]}") ;;
    *)
        echo "usage: $0 run|test|browser" >&2
        exit 2
        ;;
esac

fail()
{
    echo "install-deps: $1" >&2
    echo "install-deps: these Debian packages are needed: ${packages[*]}" >&2
    exit 1
}

command -v dpkg-query >/dev/null || fail "this is not a Debian system, nothing can be checked or installed"

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "missing: ${missing[*]}; installing them needs root or sudo"
    as_root=(sudo)
fi
command -v apt-get >/dev/null || fail "missing: ${missing[*]}; there is no apt-get to install them with"

echo "install-deps: installing ${missing[*]}" >&2
{
    "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
} >&2 || fail "could not install ${missing[*]}"
