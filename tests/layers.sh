#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Holds the includes of every file against the table of layers in docs/architecture.md and names each
# that runs upwards, and what only one of the two has. Then looks whether it notices one that is planted.
# Usage: layers.sh SOURCE_DIR
set -euo pipefail
cd "$1"
floors=(platform json src diagnosis broker history tools quick examples bench fuzz tests)

# Prints the faults of the tree in the current folder.
faults()
{
    local sources
    mapfile -t sources < <(find "${floors[@]}" -name '*.h' -o -name '*.cpp')
    awk '
        # The file or folder of the table that a file belongs to.
        function entry(file,    path)
        {
            path = file
            if (path in layer)
                return path
            sub(/(_p)?\.(h|cpp)$/, "", path)
            while (!(path in layer) && sub(/\/[^\/]*$/, "", path))
                ;
            return path in layer ? path : ""
        }

        FNR == 1 {
            if (FILENAME in sources) {
                used[current = entry(FILENAME)] = 1
                if (current == "")
                    print FILENAME ": docs/architecture.md has no layer for it"
            }
        }
        FILENAME == ARGV[1] && /^## / { inTable = /What may include what/ }
        FILENAME == ARGV[1] && inTable && /^\|.*`/ {
            split($0, cells, "|")
            gsub(/[` ]/, "", cells[2])
            folder = cells[2] == "" ? "" : cells[2] "/"
            rows++
            while (match(cells[3], /`[^`]+`/)) {
                layer[folder substr(cells[3], RSTART + 1, RLENGTH - 2)] = rows
                cells[3] = substr(cells[3], RSTART + RLENGTH)
            }
        }
        FILENAME != ARGV[1] && current != "" && match($0, /^ *# *include *["<][^">]+/) {
            name = substr($0, RSTART, RLENGTH)
            sub(/.*["<\/]/, "", name)
            folder = FILENAME
            sub(/[^\/]*$/, "", folder)
            header = folder name
            if (!(header in sources) || $0 ~ /</)
                header = named[name]
            other = header == "" ? current : entry(header)
            if (other != current && (other == "" || layer[other] >= layer[current]))
                print FILENAME ":" FNR ": includes \"" name "\", which does not stand in a layer below"
        }
        BEGIN {
            for (i = 2; i < ARGC; i++) {
                sources[ARGV[i]] = 1
                name = ARGV[i]
                sub(/.*\//, "", name)
                if (!(name in named)) # the lowest floor comes first
                    named[name] = ARGV[i]
            }
        }
        END {
            for (path in layer)
                if (!(path in used))
                    print "docs/architecture.md: there is no " path
        }
    ' docs/architecture.md "${sources[@]}"
}

found=$(faults)
if [ -n "$found" ]; then
    echo "$found" >&2
    exit 1
fi

planted=$(mktemp -d)
trap 'rm -rf "$planted"' EXIT
cp -r --parents docs/architecture.md "${floors[@]}" "$planted"
cd "$planted"
echo '#include <velmolib/statitem.h>' >> platform/palx/appversion.h
echo '#include "devicestateworker.h"' >> src/noteitem.cpp
echo '#include "text/fault.h"' >> src/filters/filterchain.cpp
echo '#include "options.h"' >> diagnosis/text/fault.h
echo '#include "settings/arrayfile.h"' >> diagnosis/log/replay.cpp
echo '#include "log/sessionline.h"' >> diagnosis/settings/settingslist.h
echo '#include "recordfields_p.h"' >> json/jsonreader.h
echo '#include "command.h"' >> tools/terminal/output.h
echo '#include "velmo/options.h"' >> tools/velmo-fleet/main.cpp
expected='diagnosis/log/replay.cpp "arrayfile.h"
diagnosis/settings/settingslist.h "sessionline.h"
diagnosis/text/fault.h "options.h"
json/jsonreader.h "recordfields_p.h"
platform/palx/appversion.h "statitem.h"
src/filters/filterchain.cpp "fault.h"
src/noteitem.cpp "devicestateworker.h"
tools/terminal/output.h "command.h"
tools/velmo-fleet/main.cpp "options.h"'
noticed=$(faults | sed 's/:[0-9]*: includes \("[^"]*"\).*/ \1/' | sort)
if [ "$noticed" != "$expected" ]; then
    printf 'layers.sh: of the planted includes it notices only\n%s\n' "$noticed" >&2
    exit 1
fi
