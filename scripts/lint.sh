#!/usr/bin/env bash
# Installs what is missing and looks at every source file with clang-tidy (while it builds with clang)
# and with clazy. .clang-tidy says what is left out and why.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

require_packages "${build_packages[@]}" clang clang-tidy clazy
cmake --preset tidy
cmake --build --preset tidy
clazy-standalone -p build/tidy -checks=level1 \
    $(git ls-files 'src/*.cpp' 'platform/*.cpp' 'tools/*.cpp') 2>&1 | tee build/tidy/clazy.log
! grep -q 'Wclazy' build/tidy/clazy.log
