#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the release preset and shows a kiosk's screen with a service that plays a
# show again and again, on a D-Bus of their own, until the screen is closed. F12 opens the service screen.
# Arguments go to the screen: --lang ru, --price 2500, --no-motion, --fullscreen
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}"
cmake --preset release
cmake --build --preset release --target acceptorservice kioskscreen velmolib_quick kiosk_translations \
    velmolib_translations
bin=$PWD/build/release/bin
cd examples/kiosk/show
dbus-run-session -- sh -c '
    "$1/acceptorservice" --step 1500 --loop --filters filters.json \
        validator.jsonl recycler.jsonl coins.jsonl terminal.jsonl &
    shift
    "$0/kioskscreen" "$@"
    kill $!' "$bin" "$bin" --price 2510 "$@"
