#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Holds velmo cash against simulated kiosks of which is known where every note and coin lies.

Usage: check_cash.py VELMO [--histories N] [--seed N] [--jobs N]
Each history has a seed of its own: the first that of --seed, those after it the next numbers. Where velmo is
wrong, the log stays in a folder that is named, and "--histories 1 --seed" with its seed runs it again.
"""

import argparse
import concurrent.futures
import functools
import json
import math
import os
import subprocess
import sys
import tempfile

from cash.kiosk import Kiosk

FLOWS = ("opening", "in", "out", "moved", "now")


def lies_in(number, told):
    return told["min"] <= number <= (math.inf if told["max"] is None else told["max"])


def is_exact(told):
    return told["min"] == told["max"]


def certainty(told):
    return "at_least" if told["max"] is None else "exact" if is_exact(told) else "range"


class Check:
    """What velmo tells of a history, and what is wrong with it."""

    def __init__(self, kiosk, objects):
        self.kiosk = kiosk
        self.objects = objects
        self.faults = []
        visible = {device for device, _ in kiosk.lines[kiosk.begin:]}
        self.devices = [device for device in kiosk.devices if kiosk.is_published or device in visible]
        self.check_contradictions()
        for device in self.devices:
            self.check_device(device)
        summaries = self.of("summary")
        numbers = {"devices": len(self.devices), "contradictions": len(self.of("contradiction"))}
        self.expect(len(summaries) == 1 and summaries[0].items() >= numbers.items(),
                    f"summary: {summaries}, not {numbers}")

    def of(self, kind, device=None):
        return [each for each in self.objects if each["kind"] == kind and (
            device is None or (each["device"], each["thread"]) == (device.kind.device, device.thread))]

    def expect(self, condition, text):
        if not condition:
            self.faults.append(text)

    def check_contradictions(self):
        told = [each for each in self.of("contradiction") if each["rule"] not in self.kiosk.tolerated]
        if self.kiosk.fault:
            faulty = self.kiosk.faulty
            self.expect(any(each["rule"] == self.kiosk.fault for each in self.of("contradiction", faulty)),
                        f"not told: {self.kiosk.fault} of device {faulty.kind.device}")
            told = [each for each in told
                    if (each["rule"], each["device"]) != (self.kiosk.fault, faulty.kind.device)]
        for each in told:
            self.expect(False, f"told without cause: {each['rule']} of device {each['device']}, "
                               f"lines {each['lines']}: {each['text']}")

    def check_device(self, device):
        begin = self.kiosk.begin
        told = self.of("period", device)
        name = f"device {device.kind.device}"
        self.expect([each["period"] for each in told] == list(range(1, len(device.periods) + 1)),
                    f"{name}: {len(told)} periods, not {len(device.periods)}")
        for number, (period, each) in enumerate(zip(device.periods, told), 1):
            where = f"{name}, period {number}"
            self.expect(each["open"] == (period.end is None), f"{where}: open is {each['open']}")
            self.expect(not period.end or each["to_line"] == period.end - begin,
                        f"{where}: ends with line {each['to_line']}, not {(period.end or 0) - begin}")
            self.expect(number == 1 or each["from_line"] == period.begin - begin,
                        f"{where}: begins with line {each['from_line']}, not {period.begin - begin}")
            self.check_places(device, number, period, where)

    def check_places(self, device, number, period, where):
        rows = {}
        for row in self.of("place", device):
            if row["period"] == number:
                place = row["place"], row["channel"], row["denomination"]
                self.expect(place not in rows, f"{where}: {place} is told twice")
                self.expect(row["bill_type"] in (None, device.kind.bill_type), f"{where}: {place}: bill_type")
                rows[place] = row
        if not device.is_blind:
            for place in period.seen:
                self.expect(place in rows or not period.now[place], f"{where}: no row of {place}")
        for place, row in rows.items():
            self.check_row(device, period, f"{where}, {place}", place, row, is_first=number == 1)

    def check_row(self, device, period, where, place, row, is_first):
        now = row["now"]
        is_cassette = place[0] == "cassette"
        self.expect(row["certainty"] == certainty(now), f"{where}: {now} is told to be {row['certainty']}")
        self.expect(lies_in(period.now[place], now), f"{where}: {now}, truly {period.now[place]}")
        self.expect(is_exact(now) or row["why"], f"{where}: does not say why it is uncertain")
        if all(is_exact(row[flow]) for flow in FLOWS):
            opening, came, went, moved, rest = (row[flow]["min"] for flow in FLOWS)
            self.expect(opening + came + moved - went == rest, f"{where}: does not add up: {row}")
        if is_cassette and not is_first:
            self.expect(row["opening"] == {"min": 0, "max": 0}, f"{where}: opening is {row['opening']}")
        if device.is_blind:
            return
        # Channels are known from their rows; of the cassette no more is uncertain than the log leaves open.
        if is_first and is_cassette:
            self.expect(now["max"] is None, f"{where}: {now} although the log began later")
        else:
            # What a channel lost stays unknown until it tells of itself again.
            before = device.periods[:device.periods.index(period) + 1]
            width = (math.inf if now["max"] is None else now["max"]) - now["min"]
            self.expect(width <= sum(each.doubt for each in before),
                        f"{where}: {now}, truly {period.now[place]}, although only {period.doubt} are doubtful")
        if not period.doubt and device is not self.kiosk.faulty:
            for flow in ("in", "out", "moved"):
                truly = period.flows[place, flow]
                self.expect(row[flow] == {"min": truly, "max": truly},
                            f"{where}: {flow} {row[flow]}, truly {truly}")
            if not is_first or not is_cassette:
                self.expect(lies_in(period.opening[place], row["opening"]),
                            f"{where}: opening {row['opening']}, truly {period.opening[place]}")


def run(velmo, folder, seed):
    """The faults of a history, whose log is kept where there are some."""
    kiosk = Kiosk(seed)
    log = os.path.join(folder, f"{seed}.jsonl")
    with open(log, "w") as file:
        file.writelines(f"{line}\n" for line in kiosk.log())
    options = ["--keep-going"] if kiosk.is_lossy else []
    told = subprocess.run([*velmo, "--lang", "en", "cash", log, "--json", *options],
                          capture_output=True, text=True)
    is_skipping = any(device is None for device, _ in kiosk.lines)
    if told.returncode != (2 if is_skipping else 0):
        return [f"ended with {told.returncode}: {told.stderr[-500:]}"]
    faults = Check(kiosk, [json.loads(line) for line in told.stdout.splitlines()]).faults
    if not faults:
        os.remove(log)
    return faults


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("velmo")
    parser.add_argument("--histories", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=1)
    options = parser.parse_args()
    folder = tempfile.mkdtemp(prefix="check_cash")
    wrong = 0
    seeds = range(options.seed, options.seed + options.histories)
    with concurrent.futures.ProcessPoolExecutor(options.jobs) as pool:
        all_faults = pool.map(functools.partial(run, options.velmo.split(), folder), seeds, chunksize=20)
        for seed, faults in zip(seeds, all_faults):
            wrong += bool(faults)
            for fault in faults[:5]:
                print(f"check_cash.py: {folder}/{seed}.jsonl, seed {seed}: {fault}")
            if wrong == 5:
                pool.shutdown(wait=False, cancel_futures=True)
                break
    if wrong:
        sys.exit(1)
    os.rmdir(folder)
    print(f"{options.histories} histories as they should be")


if __name__ == "__main__":
    main()
