#!/bin/bash
# tambro on hostile phones and outputs: special files where configuration
# should be, writes that fail, huge tables and names that are no text.
#
#   tambro_edges.sh KIVSIM TAMBRO GROUP
#
# GROUP is one of: special_files, failed_writes, big_table, odd_names, unreadable.

kivsim=$1
tambro=$2
group=$3

. "$(dirname "$0")/../common/groups.sh"

# A phone with 1 MB of memory, mounted, and the given device.ini lines.
make_device() {
    mkdir -p "$work/device/phone/a"
    printf '[sandbox]\nphone_size = 1M\n%s\n' "$1" >"$work/device/device.ini"
    echo "/dev/m /kivlocal/download/tambro jffs2 rw 0 0" >"$work/device/mtab"
    echo "$work/device"
}

# on SCRIPT: runs a shell script on the phone (as $as_user when set), with
# $TAMBRO set; at most a minute, so that a blocked read fails instead of hangs.
on() {
    TAMBRO=$tambro timeout 60 ${as_user:-} "$kivsim" --device "$work/device" -- sh -c "$1" 2>"$work/stderr"
}

test_special_files() {
    local device
    device=$(make_device $'[icons]\ndir = icons')
    rm "$device/mtab" && mkfifo "$device/mtab"
    mkdir -p "$device/tambro" "$device/icons"
    ln -s /dev/zero "$device/tambro/kiv_tambrostruct.cfg"
    mkfifo "$device/icons/fm_folder_small.gif"
    on '"$TAMBRO" storage && "$TAMBRO" folders && "$TAMBRO" ls --png /tmp/a.png &&
        KIVSIM_DEVICE=/dev/zero "$TAMBRO" type a.mp3 && mkfifo /tmp/f && ln -s /tmp/f /tmp/l &&
        "$TAMBRO" du /tmp/f /tmp/l /dev/zero' >/dev/null || fail "special files: exit status $?: $(cat "$work/stderr")"
    for what in "mount table /etc/mtab is a FIFO" "kiv_tambrostruct.cfg: cannot read: is a device" \
        "fm_folder_small.gif is a FIFO" "/dev/zero: cannot read: is a device"; do
        grep -q "$what" "$work/stderr" || fail "special files: no warning \"$what\""
    done
}

test_failed_writes() {
    make_device '' >/dev/null
    local command
    for command in "storage" "folders --json" "ls --png /dev/full"; do
        on "\"\$TAMBRO\" $command >/dev/full"
        [ $? -eq 1 ] || fail "$command onto /dev/full: not exit status 1"
        grep -q "No space left" "$work/stderr" || fail "$command onto /dev/full: no message"
    done
    # A picture larger than the file may grow leaves nothing behind.
    on "trap '' XFSZ; ulimit -f 4; \"\$TAMBRO\" ls --png /tmp/a.png; s=\$?; test ! -e /tmp/a.png && exit \$s"
    [ $? -eq 1 ] || fail "picture over the file size limit: not exit status 1, or a file left"
}

test_big_table() {
    local device long=/$(printf 'x%.0s' $(seq 10240))
    device=$(make_device '')
    mkdir -p "$device/tambro"
    { echo "[TAMBRO_KEYWORD]"; seq 10000 | awk '{ printf "k%05d = /f%05d\n", $1, $1 }'
      echo "long = $long"; } >"$device/tambro/kiv_tambrostruct.cfg"
    on '"$TAMBRO" folders' >"$work/table" || fail "big table: $(cat "$work/stderr")"
    [ "$(wc -c <"$work/table")" -lt 4000000 ] || fail "big table: $(wc -c <"$work/table") bytes"
    grep -q '^long .*xxx…xxx' "$work/table" || fail "big table: the long path is not cut"
    on '"$TAMBRO" folders --json' | grep -q "$long\"" || fail "big table: --json lost the long path"
}

test_odd_names() {
    make_device '' >/dev/null
    on 'cd "$TAMBRO_DATA_PATH" && touch "$(printf "caf\351.mp3")" "$(printf "caf\352.mp3")" \
        "$(printf "a\nb\033[31m.txt")" "$(printf "evil\342\200\256gpj.exe")" &&
        "$TAMBRO" ls && "$TAMBRO" ls --json' >"$work/out" || fail "odd names: $(cat "$work/stderr")"
    local shown
    for shown in 'caf\xe9.mp3' 'caf\xea.mp3' 'a\nb\x1b[31m.txt' 'evil\u202egpj.exe'; do
        grep -qF "$shown" "$work/out" || fail "odd names: $shown not shown so"
    done
    tr -d ' \n' <"$work/out" | grep -qF '"nameBytes":[99,97,102,233,46,109,112,51]' ||
        fail "odd names: --json has not the name's bytes"
}

# A folder that cannot be read is said, not counted as empty; as root it can
# be read all the same, and the check has nothing to show.
test_unreadable() {
    make_device '' >/dev/null
    [ "$(id -u)" != 0 ] || { chmod 755 "$work" && as_user="setpriv --reuid=65534 --regid=65534 --clear-groups"; }
    on 'cd "$TAMBRO_DATA_PATH" && mkdir -p top/locked top/open && touch top/locked/a top/open/b &&
        chmod 000 top/locked && "$TAMBRO" du top' >"$work/out"
    [ $? = 1 ] && grep -qF "cannot read the folder 'top/locked'" "$work/stderr" && grep -q '^Files  *1 ' "$work/out" ||
        fail "unreadable: not exit status 1 and said, or the readable file not counted: $(cat "$work/stderr")"
}

run_group
