# Shared by the shell tests: a scratch folder, failures counted, and one
# group of checks run by name.
#
#   . groups.sh            (after setting $group and, optionally, $groups)
#   run_group              runs test_$group, then exits 1 on any failure

set -u
work=$(mktemp -d "${TMPDIR:-/tmp}/kivtambro-test-XXXXXX") || exit 1
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

run_group() {
    if ! declare -F "test_$group" >/dev/null; then
        echo "unknown group $group"
        exit 2
    fi
    "test_$group"
    [ "$failures" -eq 0 ] || exit 1
    echo "PASS: $group"
}
