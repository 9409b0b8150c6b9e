#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds and shows every control of the QML module Velmolib.Controls in every state.
# --screenshots FOLDER writes pictures of all of them instead, in every language and the sizes of four screens,
# and needs no screen itself; --only WORD takes those pages alone whose name has the word. PRESET is the preset to
# build, dev-qt6 for one.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

preset=${PRESET:-release}
packages=("${build_packages[@]}")
[[ $preset != *qt6* ]] || packages+=("${qt6_packages[@]}")
run=()
if [[ " $* " == *" --screenshots"* ]]; then
    packages+=(xvfb xauth)
    run=(env QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=software xvfb-run -a -s "-screen 0 1280x1024x24")
fi
require_packages "${packages[@]}"
cmake --preset "$preset"
cmake --build --preset "$preset" --target gallery velmolib_quick velmolib_translations kiosk_translations
"${run[@]}" "build/$preset/bin/gallery" "$@"
