#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Compares the exported ABI of the release build with the baseline in abi/: a symbol, a slot of a
# virtual table or an offset of a field that was removed or changed ends it with an error and its name.
# Additions are shown and allowed. --update takes the ABI of the release build as the baseline.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" abigail-tools xz-utils
cmake --preset release
cmake --build --preset release --target velmolib
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install build/release --prefix "$work/installed" --component development > /dev/null
# Qt's own types are not ours to guard, nor are the folders of this build.
abidw --exported-interfaces-only --drop-private-types --headers-dir "$work/installed/include" \
    --no-show-locs --no-corpus-path --no-comp-dir-path build/release/src/libvelmolib.so.5 \
    | sed "s|path='$PWD/|path='|" > "$work/now.abi"

baseline=abi/libvelmolib.so.5.abi.xz
if [ "${1:-}" = --update ]; then
    xz -9 < "$work/now.abi" > "$baseline"
    echo "$baseline is the ABI of this build."
    exit
fi
xz -dc "$baseline" > "$work/baseline.abi"
status=0
abidiff --no-show-locs --suppressions abi/suppressions.ini "$work/baseline.abi" "$work/now.abi" || status=$?
# Bit 8 tells of an incompatible change, bit 4 of any change, 1 and 2 of errors.
if (( status & (1 | 2 | 8) )); then
    echo "The ABI has changed. CONTRIBUTING.md says what a 5.x release may change and how." >&2
    exit 1
fi
echo "The ABI is that of the baseline or adds to it."
