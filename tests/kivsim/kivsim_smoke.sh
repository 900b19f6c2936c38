#!/bin/bash
# Smoke test of kivsim: runs commands on the sample phone and on odd phones
# made here, and checks what they see.
#
#   kivsim_smoke.sh KIVSIM SAMPLE_DEVICE GROUP
#
# GROUP is one of: layout, isolation, exit_status, odd_devices, journal,
# escapes, host_untouched, signals, terminal, privileges, shares, copy.

kivsim=$1
sample=$2
group=$3

. "$(dirname "$0")/../common/groups.sh"

# expect_status WANTED DESCRIPTION COMMAND...: the command's exit status.
expect_status() {
    local wanted=$1 what=$2
    shift 2
    "$@"
    local status=$?
    [ "$status" -eq "$wanted" ] || fail "$what: exit status $status, expected $wanted"
}

# on DEVICE SCRIPT: runs a shell script on the phone; stderr goes to $work/stderr.
on() {
    "$kivsim" --device "$1" -- sh -c "$2" 2>"$work/stderr"
}

# A device folder made from device.ini text and optional content.
make_device() {
    mkdir -p "$work/$1"
    printf '%s\n' "$2" >"$work/$1/device.ini"
    echo "$work/$1"
}

test_layout() {
    # The working folder is kept, so relative paths name the sample's files.
    cd "$sample" || exit 1

    on "$sample" 'cmp /etc/mtab mtab && test -f /etc/mtab && test ! -L /etc/mtab && echo x >>/etc/mtab' ||
        fail "/etc/mtab is not the device's mount table as a writable regular file"

    # Sizes as the sample's device file gives them: 32M, 64M and 8M.
    local sizes
    sizes=$(on "$sample" 'for m in /kivlocal/download/tambro /mmc/mmca1 /mmc/megasim1; do
            stat -f -c "%S*%b" "$m"; done' | while read -r product; do echo $((product)); done)
    [ "$sizes" = "$(printf '%s\n' 33554432 67108864 8388608)" ] ||
        fail "storage sizes are $(echo $sizes), expected 32M 64M 8M"

    # The storages hold exactly the device's content, hidden files included.
    on "$sample" 'diff -r phone /kivlocal/download/tambro && diff -r card /mmc/mmca1 &&
            diff -r megasim /mmc/megasim1 && diff -r data_resource /usr/data_resource &&
            diff -r tambro /usr/SYSqtapp/tambro && test -x /usr/bin/env && [ "$(stat -c %a /usr/SYSqtapp /run/kivsim | sort -u)" = 755 ]' ||
        fail "storage content or system folders differ: $(cat "$work/stderr")"

    on "$sample" '[ "$TAMBRO_DATA_PATH" = /kivlocal/download/tambro ] &&
            [ "$KIV_APP_WRITE_PATH" = /kivlocal/appdata ] &&
            [ "$KIVSIM_DEVICE" = /run/kivsim/device/device.ini ] && cmp "$KIVSIM_DEVICE" device.ini &&
            touch "$KIV_APP_WRITE_PATH/written"' || fail "environment or write folder not as expected"
    [ "$(on "$sample" pwd)" = "$(pwd)" ] || fail "working folder not kept"
    # The platform's folder first; of the caller's library path only absolute folders.
    local path
    path=$(LD_LIBRARY_PATH=::lib:/opt/x "$kivsim" --device "$sample" -- printenv LD_LIBRARY_PATH)
    case "$path" in
    *::* | *:lib:* | :*) fail "the library path $path names the working folder" ;;
    */kivtambro-platform/simulator:*:/opt/x) ;;
    *) fail "library path $path: not the platform's first and the caller's absolute folders" ;;
    esac
}

test_isolation() {
    local before after
    before=$(cd "$sample" && find . -printf '%p %y %s %m %T@\n' | sort && find . -type f -exec md5sum {} + | sort)
    on "$sample" 'echo "changed" >>/etc/mtab; echo "[flex]" >>"$KIVSIM_DEVICE";
            rm -rf /kivlocal/download/tambro/* /run/kivsim/device/phone;
            touch /mmc/mmca1/new /mmc/megasim1/new "$KIV_APP_WRITE_PATH/new"' ||
        fail "writing to the phone: $(cat "$work/stderr")"
    after=$(cd "$sample" && find . -printf '%p %y %s %m %T@\n' | sort && find . -type f -exec md5sum {} + | sort)
    [ "$before" = "$after" ] || fail "a run changed the repository's device folder"

    on "$sample" 'touch /usr/data_resource/x || touch /usr/SYSqtapp/tambro/x || touch /usr/x || touch /etc/x' &&
        fail "read-only parts of the phone or host are writable"
    # A fresh run starts from the device folder again.
    on "$sample" 'test -f /kivlocal/download/tambro/documents/readme.txt && ! grep -q changed /etc/mtab' ||
        fail "a run saw the changes of an earlier one"
}

# The command's own status, or 2 for kivsim's usage errors.
test_exit_status() {
    expect_status 42 "exit 42" on "$sample" 'exit 42'
    expect_status 137 "killed by SIGKILL" on "$sample" 'kill -KILL $$'
    expect_status 127 "missing command" "$kivsim" --device "$sample" -- /kivsim-no-such-folder/command 2>/dev/null
    # Arguments after the command are the command's, even when they look like options.
    [ "$("$kivsim" --device "$sample" -- echo --device -x 'two words')" = "--device -x two words" ] ||
        fail "arguments not passed through"
    expect_status 2 "folder without device.ini" "$kivsim" --device "$work" -- true 2>"$work/stderr"
    grep -q "device.ini" "$work/stderr" || fail "no message about the missing device.ini"
    expect_status 2 "no command" "$kivsim" --device "$sample" 2>/dev/null
}

test_odd_devices() {
    # Bad values are reported with file and line; the phone runs with defaults.
    local odd
    odd=$(make_device odd $'[sandbox]\nphone_size = lots\ncard_size = 1M\n\e]0;title\a = 1')
    printf 'garbage \001 line\n/dev/mmca1 /mmc/mmca1 vfat rw 0 0 extra fields\n' >"$odd/mtab"
    on "$odd" 'test ! -e /kivlocal/download/tambro && [ $(($(stat -f -c "%S*%b" /mmc/mmca1))) = 1048576 ] &&
            cat /etc/mtab' >"$work/seen" || fail "odd device: storages wrong: $(cat "$work/stderr")"
    cmp -s "$work/seen" "$odd/mtab" || fail "odd mount table text not shown as it is"
    grep -q "$odd/device.ini:2:" "$work/stderr" || fail "no warning for device.ini line 2"
    grep -q $'\e' "$work/stderr" || ! grep -qF '\x1b]0;title\x07' "$work/stderr" && fail "a key's ESC not escaped"

    # A missing mount table gives a warning and an empty /etc/mtab.
    local bare
    bare=$(make_device bare $'[sandbox]\nmtab = tables/none')
    [ "$(on "$bare" 'wc -c </etc/mtab')" = 0 ] || fail "missing mount table: /etc/mtab not empty"
    grep -q "tables/none" "$work/stderr" || fail "missing mount table: no warning"

    # Content that does not fit its storage is a setup failure, not the command's.
    local small
    small=$(make_device small $'[sandbox]\nphone_size = 8K')
    mkdir -p "$small/phone"
    for name in a b c d; do head -c 4096 /dev/zero >"$small/phone/$name"; done
    expect_status 125 "overfull storage" on "$small" 'exit 0'
    grep -q "phone memory" "$work/stderr" || fail "overfull storage: no message naming it"
}

test_journal() {
    # Only the journal file is shared: neither its folder (here the working
    # folder) nor the rest of /tmp becomes writable.
    mkdir -p "$work/cwd" && cd "$work/cwd" || exit 1
    KIVSIM_JOURNAL=calls.jsonl on "$sample" 'echo "{\"call\":\"test\"}" >>"$KIVSIM_JOURNAL";
            touch beside "$(dirname "$KIVSIM_JOURNAL")/other"' 2>/dev/null
    [ "$(cat calls.jsonl 2>/dev/null)" = '{"call":"test"}' ] || fail "the journal did not land on the host"
    [ -z "$(ls "$work/cwd" | grep -v calls.jsonl)" ] || fail "the journal's folder is writable"
    ln -s "$work/none/journal" "$work/journal-link"
    KIVSIM_JOURNAL=$work/journal-link expect_status 125 "journal link" on "$sample" true
}

# A device folder whose entries lead to the host through symbolic links, or
# are of the wrong kind: the run stops, saying why.
test_escapes() {
    echo original >"$work/host-file"
    mkdir -p "$work/host-folder"
    local device entry why
    while IFS='|' read -r entry why; do
        device=$(make_device escape "[sandbox]
card_size = 1M
$entry")
        ln -sfn "$work/host-file" "$device/evil.mtab"
        ln -sfn "$work/host-folder" "$device/dirlink"
        ln -sfn .. "$device/up"
        mkdir "$device/folder"
        # Only an entry of its own: these would fail every run.
        [ "$entry" = card ] && ln -sfn "$work/host-folder" "$device/card"
        [ "$entry" = phone_size=1M ] && echo x >"$device/phone"
        expect_status 125 "$entry" on "$device" 'echo changed >/etc/mtab'
        grep -qF "$why" "$work/stderr" || fail "$entry: no clear message"
        rm -rf "$device"
    done <<'EOF'
mtab = evil.mtab|leads out of the device folder
mtab = dirlink/newdir/x.mtab|leads out of the device folder
mtab = up/x.mtab|leads out of the device folder
card|leads out of the device folder
mtab = folder|its mount table "folder" is not a file
phone_size=1M|"phone" is not a folder
EOF
    [ "$(cat "$work/host-file")" = original ] || fail "a host file was overwritten"
    [ -z "$(ls "$work/host-folder")" ] || fail "something was made in a host folder"

    # Links that stay inside the device folder are followed.
    device=$(make_device inside $'[sandbox]\nmtab = current.mtab')
    mkdir "$device/tables" && echo "/dev/x /mmc/mmca1 vfat rw 0 0" >"$device/tables/a.mtab"
    ln -s tables/../tables/a.mtab "$device/current.mtab"
    [ "$(on "$device" 'cat /etc/mtab')" = "/dev/x /mmc/mmca1 vfat rw 0 0" ] ||
        fail "a link inside the device folder was not followed: $(cat "$work/stderr")"
}

# kivsim makes nothing on the host but its device copy, and removes that.
test_host_untouched() {
    local value device
    for value in / /usr /etc /tmp /mmc /mmc/mmca1 /kivlocal/download/tambro/apps /run/kivsim; do
        device=$(make_device write $'[sandbox]\nwrite_path = '"$value")
        expect_status 125 "write_path $value" on "$device" true
        grep -qF "write_path \"$value\"" "$work/stderr" || fail "write_path $value: not named"
    done
    [ -e /run/kivsim ] && fail "/run/kivsim exists before the runs"
    mkdir -p "$work/tmp"
    TMPDIR=$work/tmp XDG_RUNTIME_DIR=/run "$kivsim" --device "$sample" -- \
        sh -c 'touch "$XDG_RUNTIME_DIR/made-here"' 2>/dev/null || fail "run with XDG_RUNTIME_DIR=/run"
    [ -e /run/kivsim ] && fail "/run/kivsim was made on the host"
    # A journal right in /tmp shares neither /tmp nor a runtime folder made there.
    if [ ! -e /tmp/runtime ]; then
        local journal=/tmp/kivsim-smoke-$$.jsonl
        KIVSIM_JOURNAL=$journal env -u XDG_RUNTIME_DIR "$kivsim" --device "$sample" -- true
        rm -f "$journal"
        [ -e /tmp/runtime ] && fail "/tmp/runtime was made on the host"
    fi

    # A copy holding names that are not UTF-8 and read-only folders goes too.
    device=$(make_device names $'[sandbox]\nphone_size = 1M')
    mkdir -p "$device/phone/locked" && touch "$device/phone/locked/"$'caf\xe9.mp3'
    chmod 555 "$device/phone/locked"
    TMPDIR=$work/tmp "$kivsim" --device "$device" -- sh -c 'mkdir -m 500 /run/kivsim/device/x' 2>/dev/null
    chmod 755 "$device/phone/locked"
    [ -z "$(ls -A "$work/tmp")" ] || fail "device copies left behind: $(ls -A "$work/tmp")"
}

# A signal to kivsim ends the whole sandboxed process tree.
test_signals() {
    local signal pid
    for signal in TERM INT; do
        "$kivsim" --device "$sample" -- sh -c 'sleep 86397 & sleep 86397 & wait' &
        pid=$!
        for _ in $(seq 50); do pgrep -x -f 'sleep 86397' >/dev/null && break; sleep 0.1; done
        kill -s "$signal" "$pid"
        wait "$pid"
        sleep 0.2
        pgrep -x -f 'sleep 86397' >/dev/null && fail "SIG$signal left the command's children running"
        pkill -x -f 'sleep 86397'
    done
}

# The command has no way to push input into the caller's terminal, whoever runs kivsim.
test_terminal() {
    local user seen probe="$kivsim --device $sample -- perl -e '\$c = \"x\"; print ioctl(STDIN, 0x5412, \$c) ? \"injected\" : \"refused\"'"
    for user in "" "setpriv --reuid=65534 --regid=65534 --clear-groups"; do
        [ -z "$user" ] || { [ "$(id -u)" = 0 ] && $user test -r "$sample/device.ini"; } || continue
        seen=$($user script -qec "$probe" /dev/null)
        [ "${seen%$'\r'}" = refused ] || fail "${user:-the caller}: TIOCSTI: $seen"
    done
}

# Run as root, the command can change neither the host's mounts nor its device
# nodes, yet makes the phone's folders the phone's user's.
test_privileges() {
    [ "$(id -u)" = 0 ] || { echo "SKIP: privileges: not root"; return; }
    local host mode=$(stat -c %a /dev/full)
    host=$(mktemp -d "$(dirname "$kivsim")/host-XXXXXX") && chmod 755 "$host" && echo original >"$host/file"
    on "$sample" "chmod 777 /dev/full; mount -o remount,bind,rw $host; echo x >$host/file;
        mkdir /mmc/mmca1/made && chown 2000:233 /mmc/mmca1/made && touch /mmc/mmca1/made/x"
    grep -q "cannot touch\|denied\|touch:" "$work/stderr" && fail "writing the phone's storage: $(cat "$work/stderr")"
    [ "$(stat -c %a /dev/full)" = "$mode" ] || fail "the host's /dev/full changed mode"
    [ "$(cat "$host/file")" = original ] || fail "a host file was written after a remount"
    rm -rf "$host"
}

# Shares are judged by where they lead; the device folder stays as it is.
test_shares() {
    ln -s /usr "$work/usr-link" && cp -R "$sample" "$work/device" && mkdir "$work/other"
    local share
    for share in "$work/usr-link" "$work/device" "$work/device/phone"; do
        expect_status 2 "--share $share" "$kivsim" --device "$work/device" --share "$share" -- true 2>/dev/null
    done
    "$kivsim" --device "$work/device" --share "$work" -- sh -c "touch $work/other/x; touch $work/device/x" 2>/dev/null
    [ -e "$work/other/x" ] || fail "the shared folder is not writable"
    [ -e "$work/device/x" ] && fail "the device folder was written through a share that holds it"
    [ -e /usr/SYSqtapp ] && fail "/usr was written on the host"
}

# The copy is the caller's and no one else's, whatever the device folder's mode.
test_copy() {
    cp -R "$sample" "$work/open" && chmod 777 "$work/open" && mkdir -p "$work/tmp"
    [ "$(id -u)" != 0 ] || chown -R 65534 "$work/open"
    TMPDIR=$work/tmp "$kivsim" --keep --device "$work/open" -- true 2>/dev/null
    [ "$(stat -c '%a %u' "$work"/tmp/kivsim-*/ "$work"/tmp/kivsim-*/device | sort -u)" = "700 $(id -u)" ] ||
        fail "device copy not 0700 and the caller's: $(stat -c '%n %a %u' "$work"/tmp/*/ "$work"/tmp/*/*/)"
    rm -rf "$work/tmp"/*

    # A signal during the copy stops it and removes it; so does the next kivsim after SIGKILL.
    mkdir -p "$work/big/phone" && printf '[sandbox]\nphone_size = 1G\n' >"$work/big/device.ini"
    for i in 1 2 3 4 5 6; do head -c 100M /dev/zero >"$work/big/phone/$i"; done
    local signal pid status
    for signal in TERM KILL; do
        TMPDIR=$work/tmp "$kivsim" --device "$work/big" -- true 2>/dev/null &
        pid=$!
        for _ in $(seq 100); do [ -e "$work"/tmp/kivsim-*/device ] && break; sleep 0.02; done
        kill -s "$signal" "$pid"
        wait "$pid"
        status=$?
        [ "$signal" = KILL ] || { [ $status = 143 ] && [ -z "$(ls -A "$work/tmp")" ]; } ||
            fail "SIGTERM during the copy: exit $status, left: $(ls -A "$work/tmp")"
    done
    sleep 0.2
    TMPDIR=$work/tmp "$kivsim" --device "$sample" -- true
    [ -z "$(ls -A "$work/tmp")" ] || fail "copies left behind: $(ls -A "$work/tmp")"

}

run_group
