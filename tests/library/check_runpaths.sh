#!/bin/sh
# Every ELF file of the build and of its staging install may name only
# absolute folders or folders relative to itself ($ORIGIN) in its run path:
# an empty or relative entry is a folder relative to wherever the program is
# started, from which a planted library would be loaded.
#
#   check_runpaths.sh FOLDER...
set -u
status=0
checked=0
for file in $(find "$@" -type f \( -name '*.so*' -o -perm -u+x \) ! -name '*.sh' 2>/dev/null); do
    head -c 4 "$file" 2>/dev/null | grep -q 'ELF' || continue
    checked=$((checked + 1))
    paths=$(readelf -d "$file" 2>/dev/null | sed -nE 's/.*\((RUNPATH|RPATH)\).*\[(.*)\]$/\2/p')
    [ -n "$paths" ] || continue
    # One entry a line, with a line for an empty entry too.
    if printf '%s:\n' "$paths" | tr ':' '\n' | sed '$d' | grep -qvE '^(/|\$ORIGIN(/|$))'; then
        echo "unsafe run path in $file: [$paths]"
        status=1
    fi
done
[ "$checked" -gt 0 ] || { echo "no ELF file found in $*"; exit 1; }
echo "$checked ELF files checked"
exit $status
