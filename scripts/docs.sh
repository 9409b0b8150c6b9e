#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing and builds the reference of the public interface in build/docs.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages doxygen graphviz
mkdir -p build/docs
doxygen docs/Doxyfile

echo "The start page is build/docs/html/index.html"
