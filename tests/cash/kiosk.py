# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Kiosks of which is known where every note and coin truly lies, and their logs."""

import json
import math
import random
from datetime import datetime, timedelta, timezone

from cash.device import COIN_ACCEPTOR, DISPENSER, HOPPER, IDLE, RECYCLER, VALIDATOR, WELL, Device

NOTE_FAULTS = ("not_credited", "credit_differs", "credited_not_taken")
CHANNEL_FAULTS = ("payout_differs", "payout_unfinished", "registry_changed")
FAULTS = (*NOTE_FAULTS, *CHANNEL_FAULTS, "credit_without_note", "credit_fell", "counter_jump")


class Kiosk:
    """Devices that take turns, and their log: the device and what it tells, or None and garbage."""

    def __init__(self, seed):
        self.rng = rng = random.Random(seed)
        self.seed = seed
        self.fault = rng.choice(FAULTS) if rng.random() < 0.4 else None
        self.calm = rng.random() < 0.4  # nothing ever fails
        self.is_published = self.fault == "counter_jump" or rng.random() < 0.5
        self.counts_late = rng.random() < 0.5
        self.has_times = rng.random() < 0.8
        loss = "" if self.fault else rng.choice(("lines", "beginning", "", ""))
        self.is_lossy = loss == "lines"
        self.is_whole = not loss
        self.tolerated = {"counter_jump"} if self.is_lossy and self.is_published else set()
        self.muted = False
        self.clock = datetime(2026, 11, 1, 8, tzinfo=timezone.utc)
        self.lines = []
        self.devices = []
        kinds = rng.sample((VALIDATOR, RECYCLER, COIN_ACCEPTOR, HOPPER, DISPENSER), rng.randint(1, 3))
        if self.fault:
            kinds[0] = RECYCLER
        for thread, kind in enumerate(dict.fromkeys(kinds), 1):
            self.devices.append(Device(self, kind, thread))
        self.begin = 0  # so many lines at the beginning are lost
        self.faulty = None
        self.play(rng.randint(10, 120))
        if loss == "beginning":
            self.lose_beginning()

    def play(self, steps):
        self.start(full=True)
        for device in self.devices:
            if device.kind.takes and self.rng.random() < 0.5:
                self.run(device, device.collect())
        plant_at = self.rng.randrange(steps)
        for step in range(steps):
            if self.fault and step == plant_at:
                self.plant()
            chance = self.rng.random()
            if chance < 0.03:
                self.finish()
                self.start()
            elif chance < 0.04 and not self.calm:
                self.finish(lambda device: device.owes)
                self.start()
            else:
                self.step(self.rng.choice(self.devices))
        self.finish(lambda device: device.owes or self.calm or self.rng.random() < 0.7)
        for device in self.devices:
            device.break_off()

    def step(self, device):
        device.script = device.script or device.action()
        fields = next(device.script, None)
        if fields is None:
            device.script = None
        else:
            self.write(device, fields)

    def run(self, device, script):
        device.script = script
        self.finish()

    def finish(self, which=lambda _device: True):
        for device in self.devices:
            while device.script and which(device):
                self.step(device)

    def start(self, full=False):
        """A session begins, with a power cut where a device is in the middle of something."""
        says_state = full or self.rng.random() < 0.5
        for device in self.devices:
            device.break_off()
            device.after_note = False
            fields = {"session_sum": 0, "dispensed_sum": 0}
            if self.rng.random() < 0.5:
                device.told.update(fields)
            if says_state or self.is_published:
                fields.update(IDLE, **WELL)
            if self.is_published:
                device.told.update(fields)
            else:
                self.write(device, device.told if full else fields, is_start=True, is_full=full)
        if self.is_published:
            self.write(device, {}, is_start=True)
        elif not says_state:
            for device in self.devices:
                self.write(device, {**IDLE, **WELL})

    def plant(self):
        """Lets one device go wrong, after all have come to rest."""
        self.finish()
        rng, fault = self.rng, self.fault
        self.faulty = device = rng.choice([each for each in self.devices if (
            each.channels if fault in CHANNEL_FAULTS else each.kind.takes)])
        if fault in NOTE_FAULTS:
            self.run(device, device.note(fault))
        elif fault == "credit_without_note":
            self.start()
            device.period.doubt += 1
            value = rng.choice(device.kind.values)
            device.content["cassette", None, value] += rng.randrange(2)
            self.write(device, {"session_sum": value})
        elif fault == "credit_fell":
            if not device.told["session_sum"]:
                self.run(device, device.note("credited"))
            if rng.random() < 0.5:
                self.write(device, {"online": False})
            self.write(device, {"session_sum": rng.randrange(device.told["session_sum"]), "online": True})
        elif fault == "registry_changed":
            self.start()
            if device.kind.takes and rng.random() < 0.5:
                self.run(device, device.note("credited"))
            if not any(device.content[place] for place in device.channels):
                self.run(device, device.fill())
            place = device.pick(1)[0]
            device.content[place] -= rng.randint(1, device.content[place])
            device.period.doubt = math.inf
            self.write(device, device.registry())
        elif fault == "counter_jump":
            inserted = device.inserted
            self.muted = True
            self.run(device, device.note())
            self.muted = False
            device.period.doubt += device.inserted - inserted
            device.counted = device.inserted
            self.write(device, {"state": "idling"})
        else:
            self.run(device, device.payout(fault))
            if device.told["state"] != "idling":
                self.start()

    def write(self, device, fields, is_start=False, is_full=False):
        changed = {key: value for key, value in fields.items() if device.told.get(key) != value or is_full}
        device.told.update(fields)
        if self.muted or not (fields or self.is_published):
            return
        rng = self.rng
        line = {"session": "start"} if is_start else {}
        if self.is_published:
            line["device_states"] = [self.published(each) for each in self.devices]
        else:
            if not changed and not is_start:
                changed = {"state": device.told["state"]}
            line.update(device.ids(), **changed)
        self.clock += timedelta(seconds=rng.randint(0, 90))
        if self.has_times:
            is_text = rng.random() < 0.5
            line["time"] = self.clock.isoformat() if is_text else int(self.clock.timestamp() * 1000)
        if self.is_lossy and not is_start and "stacker_present" not in fields and rng.random() < 0.03:
            self.lines.append((None, '{"state":"acc'))
            for each in self.devices:
                each.period.doubt = math.inf
                each.is_blind = True
        else:
            self.lines += [(device, line)] * (2 if not is_start and rng.random() < 0.02 else 1)

    def published(self, device):
        counted = device.counted if self.counts_late else device.inserted
        device.counted = device.inserted
        counters = {"notes_inserted": counted, "notes_rejected": 0, "notes_returned": 0}
        return {**device.ids(), **device.told, **counters}

    def lose_beginning(self):
        """Lets the log begin in the middle, with every cassette in its place.

        A device that tells only what changes does not say again that it is out.
        """
        self.begin = self.rng.randrange(len(self.lines) // 2)
        gaps = [(period.removed, period.begin) for device in self.devices for period in device.periods[1:]]
        for removed, begin in sorted(gaps, reverse=True):
            if removed <= self.begin < begin:
                self.begin = removed - 1
        for device in self.devices:
            device.is_blind = True
            first = next((number for number, (each, _) in enumerate(self.lines, 1)
                          if number > self.begin and (self.is_published or each is device)), math.inf)
            device.periods = [each for each in device.periods if not each.end or each.end > first]
            device.periods[0].doubt = math.inf
            device.periods[0].seen = set()

    def log(self):
        """Its lines; now and then one leaves out which device it is of where the line before tells that."""
        before = None
        for device, line in self.lines[self.begin:]:
            if device is None:
                yield line
            elif device is before and not self.is_published and self.rng.random() < 0.5:
                yield json.dumps({key: value for key, value in line.items() if key not in device.ids()})
            else:
                yield json.dumps(line)
            before = device
