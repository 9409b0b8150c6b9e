#!/usr/bin/env bash
# Installs what is missing, builds the release preset and explains a sample session in which a fished
# note is refused.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

require_packages "${build_packages[@]}"
cmake --preset release
cmake --build --preset release

echo
echo '$ velmo explain samples/fished-note.jsonl --filters samples/filters.json'
build/release/bin/velmo explain samples/fished-note.jsonl --filters samples/filters.json
