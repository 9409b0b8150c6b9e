#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Every test function of a source is one that its program runs. moc passes over what follows a raw string
# whose braces do not match, and says nothing.
# Usage: slots.sh PROGRAM...
set -euo pipefail
cd "$(dirname "$0")"
status=0
for program in "$@"; do
    name=${program##*/}
    written=$(awk '/Q_SLOTS:/ { inside = 1 } /^private:/ { inside = 0 }
        inside && /^    void [A-Za-z]+\(\)$/ && !/ (init|cleanup)(TestCase)?\(/ { print $2 }' "$name.cpp")
    run=$(QT_QPA_PLATFORM=offscreen "$program" -functions)
    if [ "$written" != "$run" ]; then
        diff <(echo "$written") <(echo "$run") | sed "s/^/$name: /"
        status=1
    fi
done
exit $status
