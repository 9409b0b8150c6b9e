#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Plays a fleet of kiosks at an MQTT broker until it is stopped: each replays session logs again and
again and publishes its service's state after each event, retained. Some have faults, some fall silent,
some lose their connection.

Usage: simulator.py HOST:PORT KIOSKS LOG.jsonl...
"""

import json
import random
import sys
import time

import paho.mqtt.client as mqtt

PAUSE = 4  # seconds between two events of a kiosk
REGIONS = ["north", "east", "south", "west"]
FAULTS = [{"stacker_full": True}, {"stacker_present": False}, {"online": False}, {"halt": True},
          {"state": "jammed"}, {"error_critical": True, "error_text": "motor blocked"},
          {"enabled": False}]


class Kiosk:
    def __init__(self, number, logs):
        self.name = f"{REGIONS[number % len(REGIONS)]}-{number:04}"
        self.logs = logs
        self.faults = {}  # by log; one that lasts
        self.is_silent = False
        self.events = []
        self.devices = {}
        self.text = None  # of its state

    def start_session(self):
        self.log = random.randrange(len(self.logs))
        self.events = list(self.logs[self.log])
        # A coin acceptor that always works stands beside the device of the log.
        self.devices = {"coins": {"device_id": 100, "thread_id": 9, "enabled": True, "online": True,
                                  "state": "idling"}}

    def step(self):
        """The next event."""
        if not self.events:
            self.start_session()
        event = self.events.pop(0)
        log_device = self.devices.setdefault("log", {})
        log_device.update({key: value for key, value in event.items()
                           if key not in ("time", "session")})
        chance = random.random()
        if chance < 0.001:
            self.faults = random.choice(FAULTS)
        elif chance < 0.004:
            self.faults = {}
        elif chance < 0.0042:
            self.is_silent = True
        states = [{**device, **self.faults} if name == "log" or "enabled" in self.faults else device
                  for name, device in self.devices.items()]
        self.text = json.dumps({"time": int(time.time() * 1000), "device_states": states})

    def publish(self, client):
        client.publish(f"kiosks/{self.name}/state", self.text, 1, retain=True)


def main():
    host, port = sys.argv[1].rsplit(":", 1)
    logs = [[json.loads(line) for line in open(name) if line.strip()] for name in sys.argv[3:]]
    kiosks = [Kiosk(number, logs) for number in range(1, int(sys.argv[2]) + 1)]
    for kiosk in random.sample(kiosks, len(kiosks) // 40):
        kiosk.faults = random.choice(FAULTS)
    client = mqtt.Client("simulator")
    client.max_queued_messages_set(0)
    client.max_inflight_messages_set(500)

    def republish(*_):  # the broker may have lost what it kept
        for kiosk in kiosks:
            if kiosk.text and not kiosk.is_silent:
                kiosk.publish(client)

    client.on_connect = republish
    client.connect(host, int(port))
    client.loop_start()
    for kiosk in random.sample(kiosks, 3):  # as the broker does when their connections break
        kiosk.is_silent = True
        kiosk.step()
        kiosk.publish(client)
        client.publish(f"kiosks/{kiosk.name}/will", "gone", 1)
    begin = time.monotonic()
    step = 0
    while True:
        kiosk = kiosks[step % len(kiosks)]
        if not kiosk.is_silent:
            kiosk.step()
            kiosk.publish(client)
        step += 1
        ahead = begin + step * PAUSE / len(kiosks) - time.monotonic()
        if ahead > 0.005:
            time.sleep(ahead)


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        pass
