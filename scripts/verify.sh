#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing and shows what scripts/test.sh does not: lint, all tests under the address and
# undefined-behaviour sanitizers, those of the library and the tool under the thread sanitizer, the pages of
# logs and of a fleet in a browser, the window of settings by keys alone, a fleet of many kiosks at a broker,
# its rights there and its alert rules, the money of thousands of simulated kiosks, ABI, documentation,
# packages that are the same to the byte wherever they are built, and a few seconds of each fuzzer.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" "${install_packages[@]}" "${test_packages[@]}" clang libclang-rt-14-dev \
    chromium chromium-driver openssl xvfb xauth xdotool
scripts/lint.sh
for preset in asan tsan; do
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
tests/check_page.py build/asan/bin/velmo samples
cmake --preset release
cmake --build --preset release --target velmo velmo-fleet velmo-settings velmolib_translations
tests/check_settings_window.sh build/release/bin samples
tests/check_fleet.py build/release/bin
tests/check_fleet_broker.py build/release/bin
tests/check_fleet_page.py build/release/bin
scripts/alerts.sh
tests/check_cash.py build/release/bin/velmo --histories 10000 --jobs "$(nproc)"
scripts/abi.sh
scripts/docs.sh

again=$(mktemp -d)
second=
trap '[ -z "$second" ] || kill "$second" 2>/dev/null || true; rm -rf "$again"' EXIT
changed=$(git stash create) # nothing when all is committed
scripts/release.sh "${changed:-HEAD}"
# Half of making packages keeps one processor busy alone: the same is made twice meanwhile, the second time
# without Qt 6, which is built the same way.
(umask 077 && tar -x -C "$again" --strip-components 1 -f build/source/velmolib-*.tar.xz \
    && TZ=Asia/Tokyo exec "$again"/scripts/package.sh --qt5-only) > build/again.log 2>&1 &
second=$!
scripts/package.sh
wait "$second" || { cat build/again.log; exit 1; }
second=
for deb in "$again"/build/package/*.deb; do
    cmp "$deb" "build/package/${deb##*/}"
done

scripts/fuzz.sh 3
