#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the release preset and shows a service with four devices and a payment
# screen on a D-Bus of their own, until the screen is closed. Arguments go to the screen: --lang ru
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}"
cmake --preset release
cmake --build --preset release
bin=$PWD/build/release/bin
cd examples/bus/kiosk
export QT_LOGGING_RULES='default.debug=false'
dbus-run-session -- sh -c '
    "$1/acceptorservice" --step 700 validator.jsonl recycler.jsonl coins.jsonl terminal.jsonl &
    shift
    "$0/paymentscreen" --names names.json "$@"
    kill $!' "$bin" "$bin" "$@"
