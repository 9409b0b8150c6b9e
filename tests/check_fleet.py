#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Runs velmo-fleet with a broker and databases of its own on loopback, and kills what can be killed.

Usage: check_fleet.py BIN [--quick | --measure] [--seed N] [--only NAME...]
BIN has velmo and velmo-fleet; mosquitto and paho-mqtt are needed. --quick sends few states; where the broker or
its client is missing, it says so and ends with 77. --measure prints how many states a second workers take beside
a loop in C that does the least, their latency and their memory. --only runs what has such a name: "chaos", or a
check of tests/fleet/broken.py without "check_".
"""

import argparse
import random
import sys
import tempfile

from checks import run_all
from fleet.world import MOSQUITTO, World, end_all, mqtt


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("bin")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--measure", action="store_true")
    parser.add_argument("--seed", type=int, default=random.randrange(1 << 30))
    parser.add_argument("--only", nargs="+")
    given = parser.parse_args()
    if not (MOSQUITTO and mqtt):
        print("check_fleet.py: mosquitto or python3-paho-mqtt is not installed")
        return 77
    from fleet.broken import CHECKS, check_forgetting
    from fleet.chaos import chaos
    from fleet.measure import measure
    print(f"seed {given.seed}", flush=True)
    named = {check.__name__.replace("check_", ""): check for check in [chaos, *CHECKS]}
    if unknown := set(given.only or []) - named.keys():
        parser.error(f"--only: {', '.join(unknown)} is none of {', '.join(named)}")
    checks = [check for name, check in named.items() if not given.only or name in given.only]
    if given.quick and not given.only:
        checks.remove(check_forgetting)  # which workers do once a minute
    with tempfile.TemporaryDirectory() as folder:
        try:
            world = World(folder, given.bin, given.quick, given.seed)
            if given.measure:
                checks = [measure]
            # They mostly wait.
            return 0 if run_all({check.__name__: check for check in checks}, world, at_once=5) else 1
        finally:
            end_all()


if __name__ == "__main__":
    sys.exit(main())
