#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Formats every source file; with --check only tells which are not as they should be.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages clang-format
mode=-i
[ "${1:-}" = --check ] && mode='--dry-run --Werror'
find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format $mode
