#!/bin/sh
# Installs the build into a fresh prefix, then builds a small application
# against the installed copy twice, through the CMake package and through
# pkg-config, and runs both on the sample phone.
set -eu
source_dir=$1
build_dir=$2
kivsim=$3

work="$build_dir/install-check"
rm -rf "$work"
prefix="$work/prefix"
cmake --install "$build_dir" --prefix "$prefix" >/dev/null
libdir=$(ls -d "$prefix"/lib*/ | head -n 1)

cmake -S "$source_dir/tests/install/consumer" -B "$work/cmake" -G Ninja \
    -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake" >/dev/null

PKG_CONFIG_PATH="$libdir/pkgconfig" pkg-config --exists --print-errors kivtambro-base
c++ -std=c++17 -fPIC "$source_dir/tests/install/consumer/main.cpp" -o "$work/pkgconfig-consumer" \
    $(PKG_CONFIG_PATH="$libdir/pkgconfig" pkg-config --cflags --libs kivtambro-base Qt6Gui) \
    -Wl,-rpath,"$libdir"

expected="My Files|1|/mmc/mmca1"
for program in "$work/cmake/consumer" "$work/pkgconfig-consumer"; do
    got=$(QT_QPA_PLATFORM=offscreen "$kivsim" -- "$program")
    if [ "$got" != "$expected" ]; then
        echo "$program printed '$got', expected '$expected'" >&2
        exit 1
    fi
    # It must run on the installed library, not on the build tree's.
    if ! ldd "$program" | grep -q "$prefix"; then
        echo "$program does not use the installed library" >&2
        exit 1
    fi
done
echo "install ok"
