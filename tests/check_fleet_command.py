#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Runs velmo fleet with a broker of its own on loopback, which has what workers would have published.

Usage: check_fleet_command.py VELMO    (needs mosquitto and paho-mqtt; without them it ends with 77)
"""

import json
import os
import socket
import subprocess
import sys
import tempfile
import threading
import time

from fleet.world import MOSQUITTO, free_port, mqtt

if not (MOSQUITTO and mqtt):
    print("check_fleet_command.py: skipped, since mosquitto or python3-paho-mqtt is not installed")
    sys.exit(77)


def check(holds, what):
    if not holds:
        raise SystemExit(f"check_fleet_command.py: {what}")


def answers(port):
    with socket.socket() as probe:
        return probe.connect_ex(("127.0.0.1", port)) == 0


def summary(condition, faults=()):
    return json.dumps({"kiosk": "x", "time": None, "payment_text": "", "devices": [],
                       "condition": condition, "faults": list(faults), "causes": []},
                      separators=(",", ":"))


def status(part, parts, kiosks, **rest):
    return json.dumps({"worker": f"w{part}", "part": part, "parts": parts, "kiosks": kiosks,
                       "ready": True, **rest})


class Fleet:
    def __init__(self, folder):
        self.port = free_port()
        config = os.path.join(folder, "mosquitto.conf")
        self.rights = os.path.join(folder, "rights")
        self.allow("topic readwrite #")
        with open(config, "w") as file:
            file.write(f"listener {self.port} 127.0.0.1\nallow_anonymous true\nuser root\n"
                       f"max_queued_messages 100000\nacl_file {self.rights}\n")
        self.broker = subprocess.Popen([MOSQUITTO, "-c", config], stderr=subprocess.DEVNULL)
        while not answers(self.port):
            check(self.broker.poll() is None, "mosquitto ended")
            time.sleep(0.05)
        versions = [mqtt.CallbackAPIVersion.VERSION1] if hasattr(mqtt, "CallbackAPIVersion") else []
        self.client = mqtt.Client(*versions)
        self.client.connect("127.0.0.1", self.port)
        self.client.loop_start()

    def allow(self, rights):
        with open(self.rights, "w") as file:
            file.write(rights + "\n")

    def publish(self, messages):
        for topic, text in messages.items():
            self.client.publish(topic, text, 1, True).wait_for_publish()

    def run(self, *arguments):
        begin = time.monotonic()
        run = subprocess.run([sys.argv[1], "fleet", *arguments, "--broker", f"127.0.0.1:{self.port}"],
                             capture_output=True, text=True)
        return run, time.monotonic() - begin


def check_truth(fleet):
    run, _ = fleet.run()
    check(run.returncode == 2 and "No worker tells" in run.stderr, f"nobody there: {run}")
    fleet.publish({**{f"kiosks/k{i}/summary": summary("fine") for i in range(1, 3001)},
                   "kiosks/k2/summary": summary("silent", ["\x1b[2J"]),
                   "kiosks/k10/summary": summary("silent"),
                   "velmo-fleet/a/status": status(1, 2, 1500),
                   "velmo-fleet/b/status": status(2, 2, 1500)})
    run, seconds = fleet.run()
    check(run.returncode == 0 and run.stderr == "" and seconds < 0.9, f"{seconds} s: {run}")
    lines = run.stdout.splitlines()
    check([line.split()[0] for line in lines[1:3]] == ["k2", "k10"] and "\x1b" not in run.stdout
          and lines[-1] == "3000 kiosks: 2 silent, 2998 fine", f"the table: {run.stdout}")
    check(fleet.run("--exit-code")[0].returncode == 1
          and fleet.run("--exit-code", "--kiosk", "k3*")[0].returncode == 0
          and fleet.run("--exit-code", "--condition", "faulty")[0].returncode == 0
          and fleet.run("--exit-code", "--kiosk", "x3*")[0].returncode == 2, "exit code")
    for text, told in [(status(2, 2, 1503), "3 kiosks are missing"), (status(2, 2, 0, gone=True), "has part 2/2"),
                       (status(2, 2, 1500, ready=False), "not ready"), ("x", "cannot be read"),
                       (status(2, 2, 1500, faults=["It burns."]), "Worker w2: It burns.")]:
        fleet.publish({"velmo-fleet/b/status": text})
        run, _ = fleet.run()
        check(run.returncode == 2 and told in run.stderr and "k10" in run.stdout, f"{told}: {run}")


def check_forgetting(fleet):
    fleet.publish({"kiosks/k2/state": "{}", "kiosks/k2/will": "x"})
    run, _ = fleet.run("forget", "k2", "nobody")
    check(run.returncode == 2 and '"nobody"; nothing was forgotten' in run.stderr, f"{run}")
    run, _ = fleet.run("forget", "k2", "k10")
    check(run.returncode == 0 and run.stdout == "k2: forgotten (kiosks/k2/state, kiosks/k2/summary, kiosks/k2/will)\n"
          "k10: forgotten (kiosks/k10/state, kiosks/k10/summary)\n", f"forgotten: {run}")
    kept = {}
    fleet.client.on_message = lambda client, data, message: kept.update({message.topic: message.payload})
    fleet.client.subscribe("kiosks/+/+", 1)
    time.sleep(1)
    check(len(kept) == 2998 and "kiosks/k2/summary" not in kept, f"{len(kept)} are kept")

    alive = threading.Event()

    def live():
        while not alive.wait(0.1):
            fleet.publish({"kiosks/k3/state": "{}"})
    thread = threading.Thread(target=live)
    thread.start()
    run, _ = fleet.run("forget", "k3")
    alive.set()
    thread.join()
    check(run.returncode == 2 and "kiosk k3 still publishes" in run.stderr, f"{run}")
    fleet.allow("topic read #")
    fleet.broker.send_signal(1)
    time.sleep(0.5)
    run, _ = fleet.run("forget", "k4")
    check(run.returncode == 2 and "no right to write" in run.stderr and not run.stdout, f"{run}")


with tempfile.TemporaryDirectory() as place:
    started = Fleet(place)
    try:
        check_truth(started)
        check_forgetting(started)
    finally:
        started.client.loop_stop()
        started.broker.terminate()
        started.broker.wait()
print("check_fleet_command.py: velmo fleet tells what is so")
