#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the release preset and shows a fleet: a broker on loopback, a worker for
# each half of the kiosks with a page and a history in one file, 1,000 simulated kiosks with faults, and the
# table of those that need somebody, until ctrl-C.
# Usage: fleet.sh [KIOSKS]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh
kiosks=${1:-1000}
if [ $# -gt 1 ] || ! [[ $kiosks =~ ^[1-9][0-9]{0,5}$ ]]; then
    echo "fleet.sh: expected a number of kiosks, or nothing: ${*}" >&2
    exit 2
fi

require_packages "${build_packages[@]}"
cmake --preset release
cmake --build --preset release --target velmo velmo-fleet velmolib_translations
bin=$PWD/build/release/bin
folder=$(mktemp -d)
history=$folder/history.sqlite
free_port()
{
    /usr/bin/python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'
}
port=$(free_port)
broker=127.0.0.1:$port

started=()
end()
{
    trap '' INT TERM
    [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2>/dev/null || true
    wait
    rm -rf "$folder"
}
trap end EXIT
trap 'exit 0' INT TERM

# In the background, out of the reach of ctrl-C: what is started ends in order, the broker last.
start()
{
    setsid "$@" > "$folder/log.${#started[@]}" 2>&1 &
    started=($! "${started[@]}")
}

cat > "$folder/mosquitto.conf" <<END
listener $port 127.0.0.1
allow_anonymous true
max_inflight_messages 1000
max_queued_messages 1000000
END
start mosquitto -c "$folder/mosquitto.conf"
until (exec 3<> "/dev/tcp/127.0.0.1/$port") 2>/dev/null; do
    kill -0 "${started[0]}" || { cat "$folder"/log.*; exit 1; }
    sleep 0.1
done
is_ready() # at an address of metrics
{
    exec 3<> "/dev/tcp/${1/://}" && printf 'GET /metrics HTTP/1.0\r\n\r\n' >&3 \
        && grep -q '^velmo_fleet_ready{.*} 1' <&3
}
for part in 1 2; do
    page=127.0.0.1:$(free_port)
    start "$bin/velmo-fleet" --broker "$broker" --name worker$part --partition $part/2 --silent 30 \
        --history "$history" --metrics "$page"
    until (is_ready "$page") 2>/dev/null; do
        kill -0 "${started[0]}" || { cat "$folder"/log.*; exit 1; }
        sleep 0.1
    done
    echo "The page of part $part is http://$page/, its metrics http://$page/metrics"
done
echo "The history is $history"
start /usr/bin/python3 examples/fleet/simulator.py "$broker" "$kiosks" samples/*.jsonl
"$bin/velmo" fleet --broker "$broker" --history "$history" --watch
