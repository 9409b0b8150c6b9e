#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing and shows what scripts/test.sh does not: lint, all tests under the address,
# undefined-behaviour and thread sanitizers, ABI, documentation, packages, and a few seconds of each
# fuzzer.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

require_packages "${build_packages[@]}" "${install_packages[@]}"
scripts/lint.sh
for preset in asan tsan; do
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
scripts/abi.sh
scripts/docs.sh
scripts/package.sh
scripts/fuzz.sh 3
