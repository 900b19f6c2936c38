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

cmake -S "$source_dir/tests/install/consumer" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null &&
    cmake --build "$work/cmake" >/dev/null
c++ -std=c++17 -fPIC "$source_dir/tests/install/consumer/main.cpp" -o "$work/pkgconfig-consumer" \
    $(PKG_CONFIG_PATH="$libdir/pkgconfig" pkg-config --cflags --libs kivtambro-listview Qt6Gui) -Wl,-rpath,"$libdir"

expected="My Files|1|/mmc/mmca1|Pictures"
for program in "$work/cmake/consumer" "$work/pkgconfig-consumer"; do
    got=$(QT_QPA_PLATFORM=offscreen "$prefix/bin/kivsim" --device "$source_dir/devices/sample" -- "$program")
    [ "$got" = "$expected" ] || { echo "$program printed '$got', expected '$expected'" >&2; exit 1; }
    # It must run on the installed library and platform, not on the build tree's.
    [ "$("$prefix/bin/kivsim" -- ldd "$program" | grep -c "$prefix")" -eq 2 ] ||
        { echo "$program does not use the installed copy" >&2; exit 1; }
done
echo "install ok"
