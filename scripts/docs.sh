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
# Doxygen does not miss it where the type has no member.
if grep -L '^/// ' $controls | sed 's/$/: error: no comment says what the type is/' | grep . >&2; then
    exit 1
fi
for file in $types; do
    name=${file##*/}
    sed -Ef docs/quick.sed "$file" > "build/docs/qml/${name%.h}.qml"
done
for file in $controls; do
    name=${file##*/}
    sed -E "s/^([A-Z]\.)?([A-Z]\w*) \{$/class ${name%.qml} : public \2 {public:/" "$file" \
        | sed -Ef docs/controls.sed > "build/docs/qml/$name"
done
(cat docs/Doxyfile; printf '%s\n' "$@") | doxygen -

echo "The start page is build/docs/html/index.html"
