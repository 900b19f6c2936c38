#!/bin/sh
# Sets up a fresh Debian 12 machine and builds libkivtambro-base.
#
#   ./build.sh demo   build, then show the sample phone's storage, folders and usage with tambro
#   ./build.sh test   build (the README's C++ examples too) and make the API reference,
#                     then run every test, also under ASan and UBSan,
#                     then fuzz the file readers and the user's input with clang's libFuzzer
#   ./build.sh docs   make the API reference of the public headers with Doxygen
#                     into build/docs/html; any warning (an undocumented member) fails it
#   ./build.sh coverage
#                     build with gcov, run every test, and write a coverage
#                     report with a summary per folder to build-coverage/report
set -eu
cd "$(dirname "$0")"

packages="cmake ninja-build g++ binutils pkgconf qt6-base-dev qt6-tools-dev qt6-l10n-tools
          qt6-tools-dev-tools bubblewrap shared-mime-info help2man libbenchmark-dev
          clang libclang-rt-14-dev libglib2.0-dev fonts-dejavu-core xvfb xauth python3-dbusmock"

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
    quietly "Installing the packages" $sudo apt-get update
    quietly "Installing the packages" $sudo env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends $missing
}

# What the quiet steps print goes to this log, which is named when one fails.
log=build/build.log

# quietly WHAT COMMAND...: runs COMMAND with its output in the log; stops the
# script with the log's end where it fails.
quietly() {
    what=$1
    shift
    mkdir -p build
    if ! "$@" >>"$log" 2>&1; then
        tail -n 40 "$log" >&2
        echo "$what failed; the whole log is $log" >&2
        exit 1
    fi
}

# build PRESET: configures and builds one of the builds CMakePresets.json
# names: plain (in build), sanitize, fuzz or coverage (in build-PRESET).
build() {
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
}

run_tests() {
    ctest --preset "$1" --parallel "$(nproc)"
}

# Each fuzz target fuzz/CMakeLists.txt lists, for the seconds it gives it.
# Only the fuzz targets are built with clang, with the code they reach
# instrumented: the rest is covered above.
fuzz_all() {
    build fuzz
    # A fuzzer keeps one core busy: as many run at once as there are cores.
    set --
    while read -r target seconds; do
        fuzz "$target" -max_total_time="$seconds" &
        set -- "$@" $!
        [ $# -lt "$(nproc)" ] || { wait_for "$@"; set --; }
    done <build-fuzz/fuzz/targets.txt
    wait_for "$@"
}

# wait_for PID...: fails when one of them failed, after all have ended.
wait_for() {
    failed=0
    for pid; do
        wait "$pid" || failed=1
    done
    return $failed
}

# fuzz TARGET LIBFUZZER-OPTION...: fuzzes on a scratch copy of the target's
# seed corpus, so that the inputs it adds stay out of the source tree. The
# chatty output goes to a log, shown when the fuzzer finds something.
fuzz() {
    target=$1
    shift
    corpus=build-fuzz/corpus/${target%_fuzz}
    log=build-fuzz/$target.log
    rm -rf "$corpus"
    mkdir -p "$corpus" build-fuzz/findings
    cp -R "fuzz/corpus/${target%_fuzz}/." "$corpus"
    if ! UBSAN_OPTIONS=print_stacktrace=1 build-fuzz/fuzz/"$target" "$@" -timeout=10 \
            -artifact_prefix=build-fuzz/findings/ "$corpus" </dev/null >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "$target found a problem: the input is in build-fuzz/findings/, the log in $log" >&2
        return 1
    fi
    echo "$target: $(grep '^Done' "$log")"
}

# Line and branch coverage of the tests' runs: an HTML report of every file,
# and a line per folder. Exception paths and branches the compiler proved
# unreachable are not counted.
coverage_report() {
    report=build-coverage/report
    rm -rf "$report"
    mkdir -p "$report"
    gcovr --root . --object-directory build-coverage -j "$(nproc)" \
        --filter '(core|types|folders|filter|open|simplatform|tools)/' --exclude '.*_autogen/' \
        --exclude-throw-branches --exclude-unreachable-branches \
        --html-details "$report/index.html" --json-summary "$report/summary.json"
    python3 - "$report/summary.json" >"$report/folders.txt" <<'EOF'
import collections, json, sys
totals = collections.defaultdict(lambda: [0, 0, 0, 0])
for entry in json.load(open(sys.argv[1]))["files"]:
    t = totals[entry["filename"].split("/")[0]]
    for i, key in enumerate(("line_covered", "line_total", "branch_covered", "branch_total")):
        t[i] += entry[key]
percent = lambda covered, total: 100.0 * covered / total if total else 100.0
for folder, (lc, lt, bc, bt) in sorted(totals.items()):
    print(f"{folder + '/':13} lines {percent(lc, lt):5.1f}% ({lc}/{lt})"
          f"  branches {percent(bc, bt):5.1f}% ({bc}/{bt})")
EOF
    cat "$report/folders.txt"
    echo "Coverage report: $report/index.html"
}

# The API reference of the public headers, as docs/Doxyfile describes it.
# Doxygen's own output goes to a log; a warning fails the run, with the
# warnings shown and the log named.
api_reference() {
    log=build/docs/doxygen.log
    rm -rf build/docs/html
    mkdir -p build/docs
    if ! doxygen docs/Doxyfile >"$log" 2>&1; then
        grep -i -E 'warning|error' "$log" | head -n 40 >&2
        echo "The API reference has warnings: Doxygen's log is in $log" >&2
        return 1
    fi
    echo "API reference: build/docs/html/index.html"
}

# show TITLE TAMBRO-ARGUMENT...: what tambro shows of the sample phone.
show() {
    title=$1
    shift
    echo
    echo "== $title: tambro $*"
    build/bin/kivsim -- build/bin/tambro "$@"
}

# Draws the example file manager on the sample phone under an X server of its
# own, into pictures a newcomer without a display can look at.
show_file_manager() {
    pictures=$PWD/build/examples/pictures
    mkdir -p "$pictures"
    xvfb-run -a -s "-ac -screen 0 640x480x24" build/bin/kivsim --share "$pictures" -- \
        env -u XAUTHORITY QT_QPA_PLATFORM=xcb FILEMANAGER_PICTURES="$pictures" \
        build/examples/filemanager/tests/tst_filemanager pictures >/dev/null
    echo
    echo "== The example file manager, as the sample phone shows it: $pictures"
    echo "  root.png, folder-list.png, folder-grid.png, details.png"
}

case "${1:-}" in
demo)
    rm -f "$log"
    install_missing_packages
    echo "Building the library, its tools and the example file manager (log: $log)"
    quietly "The build" build plain
    show "The sample phone's storage partitions" storage
    show "Its fixed folders, key words and preloaded content" folders
    show "The phone memory's size and contents" du /kivlocal/download/tambro
    show_file_manager
    ;;
test)
    # The API reference, and the Debian packages the install test builds.
    packages="$packages doxygen debhelper lintian"
    install_missing_packages
    build plain
    api_reference
    run_tests plain
    build sanitize
    run_tests sanitize
    fuzz_all
    ;;
coverage)
    packages="$packages gcovr"
    install_missing_packages
    # From nothing: counters of objects that are no longer built would be merged in.
    rm -rf build-coverage
    build coverage
    run_tests coverage
    coverage_report
    ;;
docs)
    packages="$packages doxygen"
    install_missing_packages
    api_reference
    ;;
*)
    echo "usage: $0 demo|test|coverage|docs" >&2
    exit 2
    ;;
esac
