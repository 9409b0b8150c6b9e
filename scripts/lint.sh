#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, looks for files that do not say their licence, and looks at the sources of
# the library and the programs with clang-tidy and qmllint. --deep looks longer: with clang's static analyzer too,
# and with clazy. .clang-tidy says what is left out and why; .reuse/dep5 names the files that cannot say
# their licence themselves.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" clang clang-tidy clazy reuse
reuse lint
git ls-files '*.qml' | xargs /usr/lib/qt5/bin/qmllint
cmake --preset tidy
checks=-clang-analyzer-*
[ "${1:-}" != --deep ] || checks=
run-clang-tidy -quiet -p build/tidy -checks="$checks" "$PWD/(src|platform|diagnosis|tools|quick|broker|fleet|examples)/"
if [ "${1:-}" = --deep ]; then
    git ls-files 'src/*.cpp' 'platform/*.cpp' 'diagnosis/*.cpp' 'tools/*.cpp' 'quick/*.cpp' 'broker/*.cpp' 'fleet/*.cpp' \
        | xargs -n 8 -P "$(nproc)" clazy-standalone -p build/tidy -checks=level1 2>&1 \
        | tee build/tidy/clazy.log
    ! grep -q 'Wclazy' build/tidy/clazy.log
fi
