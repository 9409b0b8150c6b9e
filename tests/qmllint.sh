#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Shows what qmllint says of QML files, without what it is wrong about before Qt 6.5: the names of a file's own
# objects in delegates, what JavaScript's lists and numbers can do, the application's font, Qt.callLater().
# Then looks whether a property is noticed that the module's type does not have.
# Usage: qmllint.sh QMLLINT MODULES [OPTION...] FILE...
set -euo pipefail
qmllint=$1
modules=$2
shift 2

# Prints its messages, each with the lines of the file that it shows.
faults()
{
    { "$qmllint" -I "$modules" --unqualified disable --deferred-property-id disable "$@" 2>&1 || true; } | awk '
        /^(Warning|Error|Info|Failed)|\.qml:[0-9]+:[0-9]+: / {
            isFault = !/^Info|is a QJSValue property|on type "(QVariantList|QQmlApplication)"|: Type is a (list|method)\. You cannot access/
        }
        isFault'
}

found=$(faults "$@")
if [ -n "$found" ]; then
    echo "$found" >&2
    exit 1
fi

planted=$(mktemp --suffix .qml)
trap 'rm -f "$planted"' EXIT
printf 'import QtQuick 2.15\nimport Velmolib 5.0\nItem { ServiceState { id: s }\nproperty string t: s.customersText }' > "$planted"
if [[ $(faults "$planted") != *customersText* ]]; then
    echo "qmllint.sh: a property that there is none of is not noticed" >&2
    exit 1
fi
