#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing and builds the reference of the public interface in build/docs. A public member
# of an installed header that has no comment ends it with an error and its place.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages doxygen graphviz
mkdir -p build/docs
{
    cat docs/Doxyfile
    echo INPUT = docs src platform
    echo WARN_IF_UNDOCUMENTED = YES
    echo GENERATE_HTML = NO
    echo GENERATE_XML = YES
} | doxygen -
doxygen docs/Doxyfile

echo "The start page is build/docs/html/index.html"
