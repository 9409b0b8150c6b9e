#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Opens a settings list in the window, on a screen of its own, and changes and saves it by keys alone: the
# file then has the bytes that the command line gives it, and what that refuses is not written.
# Usage: check_settings_window.sh FOLDER_OF_PROGRAMS SAMPLES    (needs xvfb-run and xdotool)
set -euo pipefail
if [ -z "${CHECK_IN_XVFB:-}" ]; then
    export CHECK_IN_XVFB=1
    exec xvfb-run -a -s "-screen 0 1280x900x24" "$0" "$@"
fi
work=$(mktemp -d)
export XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb
window=
trap '[ -z "$window" ] || kill "$window" 2>/dev/null || true; rm -rf "$work"' EXIT

fail()
{
    echo "check_settings_window.sh: $*" >&2
    exit 1
}

# The keyboard goes to the window whose title has this; nobody manages windows here.
focus()
{
    local id
    for _ in $(seq 100); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1) || true
        if [ -n "$id" ]; then
            xdotool windowfocus --sync "$id"
            sleep 0.3
            return
        fi
        sleep 0.1
    done
    fail "no window \"$1\""
}

# Waits until the file is as the other one.
becomes()
{
    for _ in $(seq 100); do
        cmp -s "$1" "$2" && return
        sleep 0.1
    done
    diff "$2" "$1" >&2 || fail "the file is not what was expected"
}

list=$work/list.json
expected=$work/expected.json
cp "$2/settings.json" "$list"
"$1/velmo-settings" --lang en "$list" &
window=$!
focus list.json
xdotool key ctrl+f
xdotool type --delay 20 'maximum sum'
xdotool key Return ctrl+a
xdotool type --delay 20 20000
xdotool key ctrl+s
focus 'Save changes'
xdotool key Return
"$1/velmo" settings set "$2/settings.json" acceptor_common/maxSumm=20000 -q -o "$expected"
becomes "$list" "$expected"

# The port that another device has: refused, and put right it is written.
focus list.json
xdotool key ctrl+f
xdotool type --delay 20 'serial port device 1'
xdotool key Return ctrl+a
xdotool type --delay 20 ttyS0
xdotool key ctrl+s
sleep 1
xdotool search --onlyvisible --name 'Save changes' && fail 'offers to save what the command line refuses'
cmp "$list" "$expected"
xdotool key Return
focus list.json
xdotool key ctrl+a
xdotool type --delay 20 ttyS7
xdotool key ctrl+s
focus 'Save changes'
xdotool key Return
"$1/velmo" settings set "$expected" device1/hw_interface/portname=ttyS7 -q
becomes "$list" "$expected"
focus list.json
xdotool key ctrl+q
wait "$window" || fail "ended with $?"
window=
