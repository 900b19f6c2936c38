#!/bin/sh
# The shared library carries its SONAME and exports exactly its interface:
# the TAMBRO_ classes and the unmangled plain functions.
set -eu
library=$1

soname=$(readelf -d "$library" | sed -n 's/.*Library soname: \[\(.*\)\]/\1/p')
if [ "$soname" != "libkivtambro-base.so.1" ]; then
    echo "SONAME is '$soname', expected libkivtambro-base.so.1" >&2
    exit 1
fi

# The linker's own markers of the data segment are in every library.
symbols=$(nm -D --defined-only "$library" | awk '{print $3}' | grep -v -x -E '__bss_start|_edata|_end')
stray=$(printf '%s\n' "$symbols" | c++filt | grep -v -E \
    '^(TAMBRO_[A-Za-z0-9_]+(::|$)|(typeinfo|typeinfo name|vtable) for TAMBRO_)' || true)
if [ -n "$stray" ]; then
    echo "Symbols outside the interface are exported:" >&2
    printf '%s\n' "$stray" >&2
    exit 1
fi

for function in TAMBRO_IsDeviceMountedbyNum TAMBRO_IsDeviceMountedbyName \
                TAMBRO_GetDefaultMMCSDPartition TAMBRO_GetFixedFolderInfoByName \
                TAMBRO_GetPathByKey TAMBRO_OpenFile; do
    if ! printf '%s\n' "$symbols" | grep -qx "$function"; then
        echo "$function is not exported under its plain name" >&2
        exit 1
    fi
done
echo "exports ok: $(printf '%s\n' "$symbols" | wc -l) symbols"
