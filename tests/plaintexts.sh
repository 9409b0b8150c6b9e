#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Looks in every QML file, and in what people copy from the pages, for a text that could be taken for markup:
# one that does not say that it is plain, or has the style's own labels. Then looks whether it notices those
# that are planted.
# Usage: plaintexts.sh SOURCE_DIR
set -euo pipefail
cd "$1"

# Prints the faults of the files.
faults()
{
    awk '
        FNR == 1 { depth = 0 }
        /^ *import +QtQuick\.Controls/ {
            print FILENAME ":" FNR ": QtQuick.Controls has labels that show markup"
        }
        {
            line = $0
            gsub(/"([^"\\]|\\.)*"/, "\"\"", line)
            sub(/\/\/.*/, "", line)
            while (match(line, /[{}]|textFormat *: *[A-Za-z.]*/)) {
                before = substr(line, 1, RSTART - 1)
                token = substr(line, RSTART, RLENGTH)
                line = substr(line, RSTART + RLENGTH)
                if (token == "{") {
                    isText[++depth] = before ~ /(^|[^A-Za-z0-9_])(Text|Label|TextEdit|TextArea) *$/
                    start[depth] = FNR
                } else if (token != "}") {
                    if (token ~ /[.]PlainText$/)
                        isText[depth] = 0
                    else
                        print FILENAME ":" FNR ": a text that is not plain"
                } else if (isText[depth--]) {
                    print FILENAME ":" start[depth + 1] ": a text that does not say that it is plain"
                }
            }
        }
    ' "$@"
}

mapfile -t files < <(find quick examples tools docs/pages -name '*.qml' -o -name screens.md)
found=$(faults "${files[@]}")
if [ -n "$found" ]; then
    echo "$found" >&2
    exit 1
fi

planted=$(mktemp)
trap 'rm -f "$planted"' EXIT
cat > "$planted" << 'END'
import QtQuick.Controls 2.15
Item {
    Text { textFormat: Text.PlainText; text: "{" }
    Text {
        text: "textFormat: Text.PlainText"
        KioskText { textFormat: Text.PlainText } // its own only
    }
    component Title: QtQuick.Text { color: "red" } // textFormat: Text.PlainText
    KioskText { textFormat: Text.StyledText }
    contentItem: Label {
        property var list: [{text: "}"}]
    }
}
END
noticed=$(faults "$planted" | cut -d : -f 2 | sort -n | xargs)
if [ "$noticed" != "1 4 8 9 10" ]; then
    echo "plaintexts.sh: of the planted texts it notices only those in lines $noticed" >&2
    exit 1
fi
