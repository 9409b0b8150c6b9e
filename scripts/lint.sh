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
find . -path ./build -prune -o -name '*.qml' -print0 | xargs -0 /usr/lib/qt5/bin/qmllint
cmake --preset tidy
# The sources are read many at a time, so that Qt's headers are read once for them.
checks=-bugprone-suspicious-include
[ "${1:-}" = --deep ] || checks+=,-clang-analyzer-*
folders='(src|platform|json|diagnosis|tools|quick|broker|history|examples)'
run-clang-tidy -quiet -p build/tidy -checks="$checks" "$PWD/($folders/.*\.cpp|build/tidy/$folders/.*/Unity/.*)"
if [ "${1:-}" = --deep ]; then
    find build/tidy -path '*/Unity/*' ! -path '*/tests/*' \
        | xargs -n 1 -P "$(nproc)" clazy-standalone -p build/tidy -checks=level1 2>&1 \
        | tee build/tidy/clazy.log
    ! grep -q 'Wclazy' build/tidy/clazy.log
fi
