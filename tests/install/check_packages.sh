#!/bin/sh
# Builds the Debian packages from a copy of the source tree, checks them with
# lintian, installs them all into a throwaway root with dpkg (the machine's
# own package database copied in, so that their dependencies are checked,
# and no maintainer script or trigger is run), and uses them from there: an
# application built against libkivtambro-base-dev by CMake and by
# pkg-config, and `tambro storage` on the installed sample phone, which must
# show what the build's shows.
set -eu
source_dir=$1
build_dir=$2
work=$build_dir/package-check

for tool in dpkg-buildpackage dh lintian; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIPPED: the Debian packaging tools are missing (no $tool); ./build.sh test installs them"
        exit 77
    fi
done

rm -rf "$work"
mkdir -p "$work/source" "$work/root/var/lib"
# The files a clean clone has, as they are now: no build folder comes along.
(cd "$source_dir" && git ls-files -co --exclude-standard -z | tar --null -T - -c) | tar -x -C "$work/source"

log=$work/build.log
(cd "$work/source" && dpkg-buildpackage -us -uc -b) >"$log" 2>&1 ||
    { tail -n 40 "$log"; echo "dpkg-buildpackage failed; its log: $log" >&2; exit 1; }
lintian --fail-on error "$work"/*.changes >"$work/lintian.log" 2>&1 ||
    { cat "$work/lintian.log"; echo "lintian reports errors" >&2; exit 1; }

root=$work/root
cp -a /var/lib/dpkg "$root/var/lib/"
not_root=""
[ "$(id -u)" -eq 0 ] || not_root="--force-not-root"
# shellcheck disable=SC2046 # every package the source builds, debug symbols aside
dpkg $not_root --root="$root" --no-triggers -i $(ls "$work"/*.deb | grep -v -- -dbgsym_) >"$work/dpkg.log" 2>&1 ||
    { cat "$work/dpkg.log"; echo "the packages do not install together" >&2; exit 1; }

multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
. "$source_dir/tests/install/consumers.sh"
check_consumers "$source_dir" "$work" "$root/usr" "$root/usr/lib/$multiarch"

installed=$("$root/usr/bin/kivsim" -- "$root/usr/bin/tambro" storage --json)
built=$("$build_dir/bin/kivsim" -- "$build_dir/bin/tambro" storage --json)
[ "$installed" = "$built" ] ||
    { echo "the installed tambro storage shows $installed, the build's $built" >&2; exit 1; }
echo "packages ok: $(ls "$work"/*.deb | grep -vc -- -dbgsym_) packages built, installed and used"
