# check_consumers SOURCE_DIR WORK PREFIX LIBDIR: builds a small application
# against the library installed in PREFIX (libraries in LIBDIR), through its
# CMake package and through pkg-config, and runs both with PREFIX's kivsim on
# the sample phone it installed: each must print what the phone shows and
# load the installed library and platform, not the build tree's.
check_consumers() {
    source_dir=$1 work=$2 prefix=$3 libdir=$4
    cmake -S "$source_dir/tests/install/consumer" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null &&
        cmake --build "$work/cmake" >/dev/null
    c++ -std=c++17 -fPIC "$source_dir/tests/install/consumer/main.cpp" -o "$work/pkgconfig-consumer" \
        $(PKG_CONFIG_PATH="$libdir/pkgconfig" pkg-config --cflags --libs kivtambro-listview Qt6Gui) -Wl,-rpath,"$libdir"

    expected="My Files|1|/mmc/mmca1|Pictures"
    for program in "$work/cmake/consumer" "$work/pkgconfig-consumer"; do
        got=$(QT_QPA_PLATFORM=offscreen "$prefix/bin/kivsim" -- "$program")
        [ "$got" = "$expected" ] || { echo "$program printed '$got', expected '$expected'" >&2; return 1; }
        # ldd reads the program: its folder is shown, where the sandbox hides it (/tmp).
        [ "$("$prefix/bin/kivsim" --share "${program%/*}" -- ldd "$program" | grep -c "$prefix")" -eq 2 ] ||
            { echo "$program does not use the installed copy" >&2; return 1; }
    done
}
