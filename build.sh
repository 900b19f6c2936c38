#!/bin/sh
# Sets up a fresh Debian 12 machine and builds libkivtambro-base.
#
#   ./build.sh demo   build, then show the sample phone's storage with tambro
#   ./build.sh test   build, then run every test, also under ASan and UBSan
set -eu
cd "$(dirname "$0")"

packages="cmake ninja-build g++ binutils pkgconf qt6-base-dev qt6-tools-dev qt6-l10n-tools
          qt6-tools-dev-tools bubblewrap shared-mime-info libbenchmark-dev"

install_missing_packages() {
    missing=""
    for package in $packages; do
        dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -q "ok installed" \
            || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    echo "Installing:$missing"
    $sudo apt-get update -qq
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
}

# build DIR [CMAKE OPTIONS...]
build() {
    dir=$1
    shift
    cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir"
}

run_tests() {
    dir=$1
    ctest --test-dir "$dir" --output-on-failure --parallel "$(nproc)"
}

case "${1:-}" in
demo)
    install_missing_packages
    build build
    build/tools/kivsim/kivsim -- build/tools/tambro/tambro storage
    ;;
test)
    install_missing_packages
    build build
    run_tests build
    build build-sanitize -DKIVTAMBRO_SANITIZE=ON
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=0 \
    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        run_tests build-sanitize
    ;;
*)
    echo "usage: $0 demo|test" >&2
    exit 2
    ;;
esac
