#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Runs velmo-fleet with a broker of its own on loopback, and kills what can be killed.

Usage: check_fleet.py BIN [--quick | --measure]    (BIN has velmo and velmo-fleet; needs mosquitto, paho-mqtt)
--quick sends few states; where the broker or its client is missing, it says so and ends with 77.
--measure prints how many states a second one and two workers take, their latency and their memory.
"""

import json
import os
import random
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time
import urllib.request

QUICK = "--quick" in sys.argv
MOSQUITTO = shutil.which("mosquitto", path=os.environ["PATH"] + ":/usr/sbin")
try:
    import paho.mqtt.client as mqtt
except ImportError:
    mqtt = None
if QUICK and not (MOSQUITTO and mqtt):
    print("check_fleet.py: skipped, since mosquitto or python3-paho-mqtt is not installed")
    sys.exit(77)

KIOSKS = 20 if QUICK else 1000
STATES = ["idling", "busy", "accepting", "stacked", "rejected", "jammed"]


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def wait_until(what, done, seconds=60):
    end = time.monotonic() + seconds
    while not done():
        if time.monotonic() > end:
            raise SystemExit(f"check_fleet.py: after {seconds} s still not: {what}")
        time.sleep(0.05)


def begin_as(summaries, expected):
    return summaries.keys() == expected.keys() and all(
        summary.startswith(expected[kiosk]) for kiosk, summary in summaries.items())


class Broker:
    def __init__(self, folder, limits="max_inflight_messages 1000\nmax_queued_messages 0\n"):
        self.port = free_port()
        self.config = os.path.join(folder, "mosquitto.conf")
        with open(self.config, "w") as config:
            config.write(f"listener {self.port} 127.0.0.1\nallow_anonymous true\nuser root\n"
                         f"persistence true\npersistence_location {folder}/\n{limits}")
        self.log = open(os.path.join(folder, "mosquitto.log"), "a")
        self.start()

    def start(self):
        self.process = subprocess.Popen([MOSQUITTO, "-c", self.config], stdout=self.log,
                                        stderr=self.log)
        wait_until("the broker answers", self.answers)

    def answers(self):
        if self.process.poll() is not None:
            raise SystemExit(f"check_fleet.py: mosquitto ended with {self.process.returncode}")
        with socket.socket() as probe:
            return probe.connect_ex(("127.0.0.1", self.port)) == 0

    def stop(self):
        self.process.terminate()
        self.process.wait()


class Worker:
    started = []

    def __init__(self, fleet, name, *options):
        self.metrics = free_port()
        self.log = os.path.join(fleet.folder, name + ".log")
        self.command = [os.path.join(fleet.bin, "velmo-fleet"), "--broker",
                        f"127.0.0.1:{fleet.broker.port}", "--name", name, "--lang", "en",
                        "--metrics", f"127.0.0.1:{self.metrics}", *options]
        self.start()

    def start(self, *more):
        self.expect_connections()
        self.process = subprocess.Popen(self.command + list(more), stderr=open(self.log, "a"))
        Worker.started.append(self.process)

    def expect_connections(self):
        self.ready = self.connections() + 2

    def is_ready(self):
        try:
            self.counts()
            return self.connections() >= self.ready
        except OSError:
            return False

    def connections(self):
        return open(self.log).read().count("Connected") if os.path.exists(self.log) else 0

    def counts(self):
        with urllib.request.urlopen(f"http://127.0.0.1:{self.metrics}/metrics", timeout=5) as page:
            lines = page.read().decode().splitlines()
        return {line.rsplit(" ", 1)[0]: float(line.rsplit(" ", 1)[1]) for line in lines
                if not line.startswith("#")}

    def count(self, kind):
        return self.counts()[f'velmo_fleet_messages_total{{kind="{kind}"}}']

    def kill(self):
        self.process.kill()
        self.process.wait()

    def stop(self):
        self.process.terminate()
        if self.process.wait(60) != 0:
            raise SystemExit(f"check_fleet.py: {self.command[4]} ended with {self.process.returncode}")


class Fleet:
    """A broker, a client of it, and what the summaries are to be."""

    def __init__(self, folder, bin_folder):
        self.folder = folder
        self.bin = bin_folder
        self.random = random.Random(4)
        self.broker = Broker(folder)
        self.newest = {}  # the text of the newest state of each kiosk
        self.summaries = {}
        self.clock = 1790000000000
        self.client = mqtt.Client("check", clean_session=False)
        self.client.max_inflight_messages_set(500)
        self.client.max_queued_messages_set(0)
        self.client.reconnect_delay_set(1, 1)
        self.client.on_message = self.take
        self.client.on_publish = self.acknowledge
        self.client.on_connect = lambda client, *_: client.subscribe("kiosks/+/summary", 1)
        self.client.connect("127.0.0.1", self.broker.port)
        self.client.loop_start()

    def take(self, _client, _data, message):
        kiosk = message.topic.split("/")[1]
        if message.payload:
            self.summaries[kiosk] = message.payload
        else:
            self.summaries.pop(kiosk, None)

    def acknowledge(self, _client, _data, message):
        self.acknowledged = message

    def state(self, kiosk):
        self.clock += 1
        devices = [{"device_id": model, "thread_id": thread, "enabled": self.random.random() < 0.9,
                    "state": self.random.choice(STATES), "online": self.random.random() < 0.95,
                    "stacker_full": self.random.random() < 0.1,
                    "error_critical": self.random.random() < 0.1, "error_text": "motor \u2713",
                    "session_sum": self.random.randrange(5000),
                    "notes_inserted": self.random.randrange(100)}
                   for thread, model in enumerate([1, 7, 100])]
        return json.dumps({"time": self.clock, "device_states": devices})

    def publish(self, kiosk):
        self.newest[kiosk] = self.state(kiosk)
        return self.client.publish(f"kiosks/{kiosk}/state", self.newest[kiosk], 1)

    def publish_many(self, count, kiosks):
        """Publishes so many states of so many kiosks, and gives a turn after each hundredth of them."""
        for number in range(count):
            last = self.publish(f"k{number % kiosks}")
            if number % (count // 100) == 0:
                time.sleep(0.01)
                yield number * 100 // count
        # What was published without a connection is sent with the next one.
        wait_until("the broker has the states", lambda: self.acknowledged == last.mid)

    def expected(self):
        """What velmo report says of the newest states, as their summaries begin."""
        kiosks = list(self.newest)
        report = subprocess.run([os.path.join(self.bin, "velmo"), "report", "-", "--json", "--lang",
                                 "en"], input="\n".join(self.newest[kiosk] for kiosk in kiosks),
                                capture_output=True, text=True, check=True).stdout.splitlines()
        return {kiosk: f'{{"kiosk":"{kiosk}",{line[1:-1]},"condition":"'.encode()
                for kiosk, line in zip(kiosks, report, strict=True)}

    def check(self, what):
        expected = self.expected()
        wait_until(f"{what}: every summary is that of the newest state",
                   lambda: begin_as(self.summaries, expected))
        # What is retained, not only what passed by.
        retained = {}
        client = mqtt.Client("retained" + str(time.monotonic()))
        client.on_message = lambda _c, _d, message: retained.update(
            {message.topic.split("/")[1]: message.payload})
        client.connect("127.0.0.1", self.broker.port)
        client.subscribe("kiosks/+/summary", 1)
        client.loop_start()
        wait_until(f"{what}: the retained summaries are the same", lambda: begin_as(retained, expected))
        client.disconnect()
        client.loop_stop()
        print(f"{what}: {len(expected)} summaries as they should be", flush=True)

    def stop(self):
        for process in Worker.started:
            process.kill()
            process.wait()
        self.client.loop_stop()
        self.broker.stop()


def check_deaths(fleet):
    count = 500 if QUICK else 20000
    workers = [Worker(fleet, name) for name in ("w1", "w2")]
    for worker in workers:
        wait_until("the workers are there", worker.is_ready)
    for percent in fleet.publish_many(count, KIOSKS):
        if percent == 40:
            workers[0].kill()
        if percent == 60:
            workers[0].start()
    fleet.check("a worker killed and started again")
    for percent in fleet.publish_many(count, KIOSKS):
        if percent == 40:
            fleet.broker.stop()
            for worker in workers:
                worker.expect_connections()
            fleet.broker.start()
        if percent == 60:  # until then, the broker knows of no members to keep states for
            for worker in workers:
                wait_until("the workers come back", worker.is_ready)
    fleet.check("the broker restarted")
    return workers


def check_garbage(fleet, workers):
    def faults():
        return sum(worker.count("fault") for worker in workers)

    before = faults()
    garbage = [b"", b"null", b"{", b"\xff\xfe{}", b'{"device_states": 1}', b"x" * (1 << 20),
               b'{"time": true, "device_states": []}', b'{"device_states": [' + b"[" * 5000]
    for payload in garbage:
        fleet.client.publish("kiosks/k1/state", payload, 1)
    fleet.client.publish("kiosks/k1/state/more", b"{}", 1)
    fleet.client.publish("kiosks/k1", b"{}", 1)
    for _ in range(3):  # the same state again
        fleet.client.publish("kiosks/k2/state", fleet.newest["k2"], 1)
    wait_until("the garbage is counted", lambda: faults() == before + len(garbage))
    fleet.publish("k3")
    fleet.newest["k4"] = json.dumps({"device_states": [
        {"device_id": 7, "thread_id": 0, "enabled": True, "state": "dancing"}]})
    fleet.client.publish("kiosks/k4/state", fleet.newest["k4"], 1)
    fleet.check("garbage")
    if b'out_of_order","faults":["Note recycler (JCM iPRO ID003): It is not known' not in fleet.summaries["k4"]:
        raise SystemExit(f"check_fleet.py: of an unknown state: {fleet.summaries['k4'][-300:]}")
    log = "".join(open(worker.log).read() for worker in workers)
    for words in ("kiosks/k1/state: expected a JSON object", "kiosks/k1/state: expected UTF-8"):
        if words not in log:
            raise SystemExit(f"check_fleet.py: the log does not say \"{words}\"")


def check_clocks(fleet):
    """A state without a time, or with one of the future, counts as it arrives, and so do those after it."""
    for time_of_state in (32472144000000, None, "usual"):
        state = json.loads(fleet.state("k7"))
        if time_of_state is None:
            del state["time"]
        elif time_of_state != "usual":
            state["time"] = time_of_state
        fleet.newest["k7"] = json.dumps(state)
        fleet.client.publish("kiosks/k7/state", fleet.newest["k7"], 1).wait_for_publish(60)
        fleet.check(f"time {time_of_state}")


def check_silence(fleet, workers):
    fleet.client.publish("kiosks/k5/will", b"gone", 1)
    reason = '"reasons":["The kiosk is offline."]'.encode()
    wait_until("a will is told of", lambda: reason in fleet.summaries["k5"])
    fleet.publish("k5")
    fleet.check("a kiosk came back")
    # Whichever worker is dealt the will that is taken back, it is dealt a later one, too.
    gone = [f"k{number}" for number in range(6, 9)]
    for kiosk, will in [("k5", b""), *((kiosk, b"gone") for kiosk in gone)]:
        fleet.client.publish(f"kiosks/{kiosk}/will", will, 1).wait_for_publish(60)
    wait_until("the wills are told of", lambda: all(reason in fleet.summaries[kiosk] for kiosk in gone))
    for kiosk in gone:
        fleet.publish(kiosk)
    fleet.check("a will taken back")
    for worker in workers:
        worker.stop()
    watcher = Worker(fleet, "w1", "--silent", "1")
    reason = b'"reasons":["The kiosk has been silent for more than 1 s."]'
    wait_until("silence is told of",
               lambda: all(reason in summary for summary in fleet.summaries.values()))
    wait_until("silence is counted", lambda: watcher.counts()[
        'velmo_fleet_kiosks{condition="silent"}'] == len(fleet.newest))
    check_table(fleet)
    check_dashboard(watcher)
    fleet.client.publish("kiosks/k9/summary", b"", 1, retain=True)  # k9 is scrapped
    wait_until("a scrapped kiosk is forgotten", lambda: watcher.counts()[
        'velmo_fleet_kiosks{condition="silent"}'] == len(fleet.newest) - 1)
    watcher.stop()
    fleet.newest.pop("k9")


def check_options(fleet):
    for options, fault in (("--states=", "--states: expected a value"),
                           ("--silent=-1", "--silent: expected a number"),
                           ("--expire=1d --lang=ru", "--expire: ожидается число"),
                           ("kiosks", 'unknown argument "kiosks"')):
        run = subprocess.run([os.path.join(fleet.bin, "velmo-fleet"), "--lang", "en",
                              *options.split()], capture_output=True, text=True, timeout=60)
        if run.returncode != 2 or run.stderr != f"velmo-fleet: {fault}\n":
            raise SystemExit(f"check_fleet.py: velmo-fleet {options}: {run.stderr}")


def table(fleet, *options):
    return subprocess.run([os.path.join(fleet.bin, "velmo"), "fleet", "--broker",
                           f"127.0.0.1:{fleet.broker.port}", "--lang", "en", *options],
                          capture_output=True, text=True)


def check_room(fleet):
    """A broker that has no room for all summaries makes velmo fleet say that kiosks may be missing."""
    folder = os.path.join(fleet.folder, "small")
    os.mkdir(folder)
    broker = Broker(folder, "sys_interval 1\n")
    try:
        client = mqtt.Client("many")
        client.connect("127.0.0.1", broker.port)
        client.loop_start()
        for number in range(3000):
            last = client.publish(f"kiosks/k{number}/summary",
                                  fleet.summaries["k1"], 1, retain=True)
        last.wait_for_publish(60)
        told = []
        client.on_message = lambda _c, _d, message: told.append(message)
        client.subscribe("$SYS/broker/publish/messages/dropped")
        wait_until("the broker tells of itself", lambda: told)
        shown = table(fleet, "--broker", f"127.0.0.1:{broker.port}", "--json")
        client.loop_stop()
    finally:
        broker.stop()
    kiosks = json.loads(shown.stdout.splitlines()[-1])["kiosks"]
    if kiosks >= 3000 or shown.returncode != 2 or "may be missing" not in shown.stderr:
        raise SystemExit(f"check_fleet.py: of 3000 kiosks velmo fleet has {kiosks}: {shown.stderr}")
    print(f"no room: {kiosks} of 3000 kiosks, and told so", flush=True)


def check_table(fleet):
    """What people are shown of a fleet of which nothing is heard, and of what cannot be read."""
    fleet.client.publish("kiosks/odd/summary", b"\x1b[31m", 1, retain=True).wait_for_publish(60)

    def shows_silence():
        shown = table(fleet, "--json")
        lines = [json.loads(line) for line in shown.stdout.splitlines()]
        silent = [line["kiosk"] for line in lines if line.get("condition") == "silent"]
        return shown.returncode == 2 and lines[0]["kiosk"] == "odd" and silent == sorted(fleet.newest) \
            and lines[-1]["silent"] == len(silent) and lines[-1]["unknown"] == 1

    def shows_nothing_odd():
        text = table(fleet)
        return text.returncode == 0 and f"{len(fleet.newest)} silent, 0 fine" in text.stdout

    # It does not wait long for a broker, which may be slow here.
    wait_until("velmo fleet --json shows who is silent, and the odd one first", shows_silence)
    fleet.client.publish("kiosks/odd/summary", b"", 1, retain=True).wait_for_publish(60)
    wait_until("velmo fleet shows that all are silent", shows_nothing_odd)
    for options in (["--broker", "127.0.0.1:1"], ["--summaries", "other/+/summary"]):
        if table(fleet, *options).returncode != 2:
            raise SystemExit(f"check_fleet.py: velmo fleet is content with {options}")


def check_dashboard(worker):
    """The dashboard asks for nothing that a worker does not tell."""
    told = {name.split("{")[0] for name in worker.counts()}
    dashboard = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../docs/fleet/dashboard.json")
    asked = set(re.findall(r"velmo_fleet_\w+", open(dashboard).read()))
    if not asked or not asked <= told:
        raise SystemExit(f"check_fleet.py: the dashboard asks for {asked - told}")


def check_retiring(fleet):
    """What waits for a member that retires is done, and its session is gone then."""
    # The broker sends each member 1,000 at first, then the answer that there will be no more, then the rest.
    for _ in fleet.publish_many(4000, KIOSKS):
        pass
    workers = [Worker(fleet, name, "--retire") for name in ("w1", "w2")]
    for worker in workers:
        if worker.process.wait(60) != 0:
            raise SystemExit("check_fleet.py: a member did not retire")
    fleet.check("retired")
    for kiosk in ("k1", "k2", "k3", "k4"):
        fleet.client.publish(f"kiosks/{kiosk}/state", fleet.state(kiosk), 1).wait_for_publish(60)
    worker = Worker(fleet, "w1")
    wait_until("the worker is there", worker.is_ready)
    fleet.publish("k1")
    wait_until("the worker has done what waited", lambda: begin_as(
        {"k1": fleet.summaries["k1"]}, {"k1": fleet.expected()["k1"]}))
    if worker.count("state") != 1:
        raise SystemExit("check_fleet.py: the session of a retired member was kept")
    worker.stop()


def resident(worker):
    with open(f"/proc/{worker.process.pid}/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS")) // 1024


def processor_time(worker):
    with open(f"/proc/{worker.process.pid}/stat") as stat:
        fields = stat.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def drain(fleet, names, count, kiosks):
    """Lets states wait for the workers, then times how long these take."""
    workers = [Worker(fleet, name) for name in names]
    for worker in workers:
        wait_until("the workers are there", worker.is_ready)
        worker.stop()
    for _ in fleet.publish_many(count, kiosks):
        pass
    # The broker and the workers alone: nobody else wants the summaries meanwhile.
    fleet.client.unsubscribe("kiosks/+/summary")
    for worker in workers:
        worker.start()
    start = time.monotonic()
    done = lambda: sum(worker.count("state") for worker in workers)  # noqa: E731
    wait_until("the workers begin", lambda: all(worker.is_ready() for worker in workers))
    first, begin = done(), time.monotonic()
    wait_until("all states are taken", lambda: done() >= count, 120)
    rate = (count - first) / (time.monotonic() - begin)
    used = [processor_time(worker) * 1e6 / count for worker in workers]
    fleet.client.subscribe("kiosks/+/summary", 1)
    fleet.check(f"{len(names)} workers")
    memory = [resident(worker) for worker in workers]
    print(f"{len(names)} workers: {rate:.0f} states/s, {count} in {time.monotonic() - start:.1f} s, "
          f"{kiosks} kiosks, {memory} MiB, {[round(each, 1) for each in used]} us of a processor for "
          "each of all states", flush=True)
    for worker in workers:
        worker.stop()
    return rate


def latency(fleet, rate, seconds):
    """The age of the states when their summaries arrive, at so many states a second."""
    worker = Worker(fleet, "one")
    wait_until("the worker is there", worker.is_ready)
    ages = []
    sent = {}
    fleet.client.on_message = lambda _c, _d, message: ages.append(
        time.monotonic() - sent.pop(message.topic.split("/")[1], time.monotonic()))
    begin = time.monotonic()
    for number in range(int(rate * seconds)):
        kiosk = f"k{number % 10000}"
        sent[kiosk] = time.monotonic()
        fleet.client.publish(f"kiosks/{kiosk}/state", fleet.state(kiosk), 1)
        ahead = begin + number / rate - time.monotonic()
        if ahead > 0.005:
            time.sleep(ahead)
    time.sleep(1)
    ages.sort()
    print(f"{rate} states/s: latency median {1000 * ages[len(ages) // 2]:.1f} ms, "
          f"99 % {1000 * ages[len(ages) * 99 // 100]:.1f} ms", flush=True)
    worker.stop()


def main():
    fleet = None
    with tempfile.TemporaryDirectory() as folder:
        try:
            fleet = Fleet(folder, sys.argv[1])
            if "--measure" in sys.argv:
                drain(fleet, ["one"], 60000, 10000)
                drain(fleet, ["one", "two"], 60000, 10000)
                latency(fleet, 2500, 10)
            else:
                check_options(fleet)
                workers = check_deaths(fleet)
                check_garbage(fleet, workers)
                check_clocks(fleet)
                check_silence(fleet, workers)
                check_retiring(fleet)
                if not QUICK:
                    check_room(fleet)
        finally:
            if fleet:
                fleet.stop()


if __name__ == "__main__":
    main()
