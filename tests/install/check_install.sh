#!/bin/sh
# Installs the library alone into a fresh prefix and checks that no simulator
# comes with it; then installs the simulated phone beside it, as a developer
# on a desktop chooses to, builds a small application against the installed
# copy through the CMake package and through pkg-config, and runs both on the
# sample phone.
set -eu
source_dir=$1
build_dir=$2

work="$build_dir/install-check"
rm -rf "$work"
prefix="$work/prefix"
cmake --install "$build_dir" --component library --prefix "$prefix" >/dev/null
if find "$prefix" | grep -i kivsim; then
    echo "installing the library installed the simulator above" >&2
    exit 1
fi
cmake --install "$build_dir" --component simulator --prefix "$prefix" >/dev/null
libdir=$(ls -d "$prefix"/lib*/ | head -n 1)
. "$source_dir/tests/install/consumers.sh"
check_consumers "$source_dir" "$work" "$prefix" "${libdir%/}"
echo "install ok"
