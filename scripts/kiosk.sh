#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the release preset and shows a kiosk's screen with a service that plays a
# show again and again, on a D-Bus of their own, until the screen is closed. F12, or holding the upper left
# corner for three seconds, asks for the PIN of the service screen: 1234, from a file in a temporary folder.
# Arguments go to the screen: --lang ru, --price 2500, --large-text, --high-contrast, --no-motion, --fullscreen
# With --measure, no screen is shown: it tells how long the screen takes to start and what it takes while nothing
# happens.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}"
cmake --preset release
cmake --build --preset release --target acceptorservice kioskscreen velmolib_quick kiosk_translations \
    velmolib_translations
bin=$PWD/build/release/bin
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
if [ "${1:-}" = --measure ]; then
    dbus-run-session -- scripts/measure_kiosk.py "$bin" examples/kiosk/show
    exit
fi
(umask 077 && echo 1234 >"$folder/pin")
echo "The PIN of the service screen is 1234."
cd examples/kiosk/show
dbus-run-session -- sh -c '
    folder=$1 bin=$2
    shift 2
    "$bin/acceptorservice" --step 1500 --loop --filters filters.json --record "$folder/log.jsonl" \
        --money RUB:0 --change none validator.jsonl recycler.jsonl coins.jsonl terminal.jsonl &
    "$bin/kioskscreen" "$@"
    kill $!' sh "$folder" "$bin" --price 2510 --pin-file "$folder/pin" --contact "8 800 200-00-00" "$@"
