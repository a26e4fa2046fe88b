#!/usr/bin/env bash
# install-deps.sh run|test|browser|elsewhere|package [--list]: installs the Debian packages that ./run, ./test, its steps
# browser and package or scripts/elsewhere.sh need and that are missing, or lists those that are needed.
# With nothing missing it does nothing and needs no network. Where there is no dpkg, the programs that ./run calls are all
# that can be looked for.
set -euo pipefail

run_packages=(g++ cmake ninja-build)
test_packages=(
    "${run_packages[@]}"
    make pkg-config binutils abigail-tools clang-14 libclang-rt-14-dev clang-format clang-tidy llvm-14
    libgtest-dev libgmock-dev libbenchmark-dev
    libcli11-dev nlohmann-json3-dev libtomlplusplus-dev libpcap-dev scdoc
    lld-14 wasi-libc libc++-14-dev-wasm32 libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32
    tshark erlang-base erlang-asn1 libxml2-utils python3 python3-clang-14
    g++-aarch64-linux-gnu g++-i686-linux-gnu qemu-user googletest
    python3-pytest mypy python3-setuptools python3-wheel python3-pip
)
# Compilers and a library for scripts/elsewhere.sh beyond those of the tests.
elsewhere_packages=("${test_packages[@]}" g++-arm-linux-gnueabihf g++-s390x-linux-gnu libc++-14-dev libc++abi-14-dev)
browser_packages=(chromium fonts-dejavu-core)
# Another Node.js than Debian's is as good.
if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
    browser_packages+=(nodejs npm)
fi

# What debian/control asks for beyond those of the tests, and what looks at the packages.
package_packages=("${test_packages[@]}" debhelper dh-python dpkg-dev git lintian mmdebstrap)

case "${1:-}" in
    run) packages=("${run_packages[@]}") ;;
    test) packages=("${test_packages[@]}") ;;
    elsewhere) packages=("${elsewhere_packages[@]}") ;;
    browser) packages=("${browser_packages[@]}") ;;
    package) packages=("${package_packages[@]}") ;;
    *)
        echo "usage: $0 run|test|browser|elsewhere|package [--list]" >&2
        exit 2
        ;;
esac
[ "${2:-}" != --list ] || { printf '%s\n' "${packages[@]}"; exit 0; }

fail()
{
    echo "install-deps: $1" >&2
    echo "install-deps: these Debian packages are needed: ${packages[*]}" >&2
    exit 1
}

if ! command -v dpkg-query >/dev/null; then
    [ "$1" = run ] || fail "this is not a Debian system, nothing can be checked or installed"
    for program in g++ cmake ninja; do
        command -v "$program" >/dev/null || fail "there is no $program, and this is not a Debian system to install it on"
    done
    exit 0
fi

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
