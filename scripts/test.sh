#!/usr/bin/env bash
# Installs what is missing, builds with g++ and clang without warnings, and runs all tests, also
# under the address, undefined-behaviour and thread sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

require_packages "${build_packages[@]}" "${install_packages[@]}" "${check_packages[@]}"
scripts/format.sh --check

cmake --preset tidy
cmake --build --preset tidy
for preset in asan tsan release; do
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
