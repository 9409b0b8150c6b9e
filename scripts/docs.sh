#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing and builds the reference of the library and of the QML modules in build/docs. A
# public member that has no comment ends it with an error that names it. Arguments are settings of Doxygen, such
# as WARN_AS_ERROR=NO.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages doxygen graphviz
rm -rf build/docs
mkdir -p build/docs/qml
types=$(grep -lE '^ +QML_(ELEMENT|ANONYMOUS)$' quick/*.h)
controls=$(sed -n '/^internal/d; s|.* \(.*\.qml\)$|quick/controls/\1|p' quick/controls/qmldir)
for file in $types $controls; do
    name=${file##*/}
    awk -f docs/qml.awk "$file" > "build/docs/qml/${name%.*}.qml"
done
(cat docs/Doxyfile; printf '%s\n' "$@") | doxygen -

echo "The start page is build/docs/html/index.html"
