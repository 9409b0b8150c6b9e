#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the tool and explains a sample session in which a fished note is
# refused.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}"
cmake --preset release
cmake --build --preset release --target velmo velmolib_translations

echo
echo '$ velmo explain samples/fished-note.jsonl --filters samples/filters.json'
build/release/bin/velmo explain samples/fished-note.jsonl --filters samples/filters.json
