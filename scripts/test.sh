#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, looks at the format of the sources, and runs all tests: of the release
# build with Qt 5, and of the debug build, which is sooner ready, with Qt 6. scripts/verify.sh is the
# rest.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" "${qt6_packages[@]}" "${install_packages[@]}" "${test_packages[@]}"
scripts/format.sh --check
for preset in release dev-qt6; do
    cmake --preset "$preset"
    cmake --build --preset "$preset"
done

# The tests mostly wait: those of both builds run at once, and are shown one after the other.
log=build/dev-qt6/Testing/tests.log
mkdir -p "${log%/*}"
ctest --preset dev-qt6 > "$log" 2>&1 &
trap 'kill $! 2>/dev/null || true' EXIT
status=0
ctest --preset release || status=1
wait $! || status=1
cat "$log"
exit $status
