#!/bin/sh
# The same library runs on every implementation of the platform: with each
# platform folder on the library path, every symbol it needs is found.
#
#   check_platforms.sh LIBRARY PLATFORM-FOLDER...
set -u
library=$1
shift
status=0
for folder in "$@"; do
    report=$(LD_LIBRARY_PATH=$folder ldd -r "$library" 2>&1)
    if ! echo "$report" | grep -q "=> $folder/libkivtambro-platform.so.1" \
        || echo "$report" | grep "undefined symbol"; then
        echo "$folder does not give $library its platform" >&2
        status=1
    fi
done
exit $status
