#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks the alert rules of docs/fleet and what they make of some fleets. Debian has promtool in the package
# of the server, which would start when it is installed: where it is missing, it is taken out of the package.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

promtool=$(command -v promtool) || promtool=build/promtool/usr/bin/promtool
if [ ! -x "$promtool" ]; then
    mkdir -p build/promtool
    (cd build/promtool && sudo=
        if ! apt-get -q download prometheus; then
            [ "$(id -u)" -eq 0 ] || sudo=sudo
            wait_for_apt update
            apt-get -q download prometheus
        fi
        dpkg-deb --fsys-tarfile prometheus_*.deb | tar -x ./usr/bin/promtool)
fi
"$promtool" check rules docs/fleet/alerts.yml
"$promtool" test rules tests/fleet_alerts.yml

# The queries of the dashboard, as rules. Both name nothing that velmo-fleet does not tell.
queries=$(mktemp)
trap 'rm "$queries"' EXIT
python3 - docs/fleet/dashboard.json > "$queries" << 'PYTHON'
import json
import sys

targets = [target for panel in json.load(open(sys.argv[1]))["panels"] for target in panel["targets"]]
rules = [{"record": f"query{number}", "expr": target["expr"]} for number, target in enumerate(targets)]
print(json.dumps({"groups": [{"name": "dashboard", "rules": rules}]}))
PYTHON
"$promtool" check rules "$queries"
grep -oh 'velmo_fleet_[a-z_]*' docs/fleet/alerts.yml docs/fleet/dashboard.json | sed 's/_bucket$//' | sort -u \
    | while read -r name; do
        grep -qF "\"$name\"" tools/velmo-fleet/*.cpp || { echo "alerts.sh: no metric $name" >&2; exit 1; }
    done
