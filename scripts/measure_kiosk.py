#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

"""Tells what the kiosk's screen takes: until the first picture, and while nothing happens.

measure_kiosk.py BIN SHOW on a D-Bus session; scripts/kiosk.sh --measure calls it.
"""

import os
import statistics
import subprocess
import sys
import time

TICKS = os.sysconf("SC_CLK_TCK")
STARTS = 7
IDLE = 60  # seconds


def processor_seconds(process):
    """Time of the processor that it has taken, with all its threads."""
    with open(f"/proc/{process.pid}/stat", encoding="ascii") as file:
        fields = file.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICKS


def resident(process):
    with open(f"/proc/{process.pid}/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 1e6


def start(binary):
    """The screen, and the seconds until it has drawn the first picture."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software",
                       QT_LOGGING_RULES="qt.scenegraph.time.renderloop=true")
    begin = time.monotonic()
    screen = subprocess.Popen([binary, "--price", "2510"], env=environment, stderr=subprocess.PIPE)
    for line in screen.stderr:
        if b"rendered" in line:
            return screen, time.monotonic() - begin
    sys.exit("measure_kiosk.py: the screen drew nothing")


def main():
    binaries, show = sys.argv[1:]
    service = subprocess.Popen(
        [f"{binaries}/acceptorservice", "--step", "0", "--money", "RUB:0",
         *(f"{show}/{name}.jsonl" for name in ("validator", "recycler", "coins", "terminal"))],
        stderr=subprocess.DEVNULL)
    time.sleep(1)
    subprocess.run(["dbus-send", "--session", "--print-reply", "--dest=org.velmolib.Acceptor", "/acceptor",
                    "org.velmolib.Acceptor.step"], check=True, stdout=subprocess.DEVNULL)
    times = []
    for _ in range(STARTS):
        screen, seconds = start(f"{binaries}/kioskscreen")
        times.append(seconds)
        screen.terminate()
        screen.wait()
    print(f"start: {statistics.median(times):.2f} s until the first picture, the median of {STARTS}")

    screen, _ = start(f"{binaries}/kioskscreen")
    time.sleep(5)
    before = processor_seconds(screen)
    service_before = processor_seconds(service)
    time.sleep(IDLE)
    print(f"idle: {100 * (processor_seconds(screen) - before) / IDLE:.2f} % of a core over {IDLE} s, "
          f"the service {100 * (processor_seconds(service) - service_before) / IDLE:.2f} %; "
          f"{resident(screen):.0f} MB")
    screen.terminate()
    service.terminate()


if __name__ == "__main__":
    main()
