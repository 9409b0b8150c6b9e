# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""A broker, workers, a database and kiosks on loopback, and what the summaries are to be."""

import collections
import contextlib
import glob
import json
import os
import random
import re
import shutil
import signal
import socket
import subprocess
import threading
import time
import urllib.request

try:
    import paho.mqtt.client as mqtt
except ImportError:
    mqtt = None

PATH = os.environ["PATH"] + ":/usr/sbin:" + ":".join(sorted(glob.glob("/usr/lib/postgresql/*/bin")))
MOSQUITTO = shutil.which("mosquitto", path=PATH)
STATES = ["idling", "busy", "accepting", "stacked", "rejected", "jammed"]
started = []  # every process, to end them in the end


class Failed(Exception):
    pass


def free_port():
    """Below those that the system gives to connections, of which one would take it while a broker is away."""
    while True:
        port = random.randrange(10000, 32000)
        with socket.socket() as probe:
            if probe.connect_ex(("127.0.0.1", port)) != 0:
                return port


def wait_until(what, done, seconds=30, pause=0.05):
    end = time.monotonic() + seconds
    while not done():
        if time.monotonic() > end:
            raise Failed(f"after {seconds} s still not: {what() if callable(what) else what}")
        time.sleep(pause)


def hold(truth, *words):
    if not truth:
        raise Failed(" ".join(str(word) for word in words))


def start(*command, **more):
    process = subprocess.Popen([str(part) for part in command], **more)
    started.append(process)
    return process


def end_all():
    for process in started:
        if process.poll() is None:
            process.send_signal(signal.SIGCONT)
            process.kill()
            process.wait()


def part_of(kiosk, count):
    """Rendezvous hashing, as docs/fleet.md describes it."""
    mask, mixed = (1 << 64) - 1, 0xcbf29ce484222325
    for byte in kiosk.encode():
        mixed = (mixed ^ byte) * 0x100000001b3 & mask

    def score(part):
        score = mixed + part * 0x9e3779b97f4a7c15 & mask
        score = (score ^ score >> 30) * 0xbf58476d1ce4e5b9 & mask
        score = (score ^ score >> 27) * 0x94d049bb133111eb & mask
        return score ^ score >> 31
    return max(range(1, count + 1), key=score)


class Broker:
    def __init__(self, world, *limits):
        self.folder = world.new_folder()
        self.port = free_port()
        self.config = os.path.join(self.folder, "mosquitto.conf")
        with open(self.config, "w") as config:
            config.write(f"listener {self.port} 127.0.0.1\nallow_anonymous true\nuser root\n"
                         f"persistence true\npersistence_location {self.folder}/\n"
                         "autosave_interval 1\nmax_inflight_messages 1000\n"
                         # With 0, no limit, 2.0.11 cuts the connection of who has no right to publish.
                         "max_queued_messages 10000000\n"
                         + "".join(limit + "\n" for limit in limits))
        self.start()

    def start(self):
        with open(os.path.join(self.folder, "log"), "a") as log:
            self.process = start(MOSQUITTO, "-c", self.config, stdout=log, stderr=log)
        wait_until("the broker answers", self.answers)

    def answers(self):
        hold(self.process.poll() is None, "mosquitto ended with", self.process.returncode)
        with socket.socket() as probe:
            return probe.connect_ex(("127.0.0.1", self.port)) == 0

    def stop(self, how=signal.SIGTERM):
        self.process.send_signal(how)
        self.process.wait()


class Postgres:
    """On a Unix socket; as another user where this one is root, with whom it refuses to run."""

    def __init__(self, world):
        self.folder = world.new_folder()
        os.chmod(world.folder, 0o755)
        self.user = {"user": "postgres", "group": "postgres"} if os.getuid() == 0 else {}
        if self.user:
            shutil.chown(self.folder, **self.user)
        self.place = f"postgresql://velmo@localhost:5432/postgres?host={self.folder}"
        self.run("initdb", "-D", self.folder + "/data", "-U", "velmo", "-A", "trust", "--no-sync",
                 "-E", "UTF8", "--locale=C")
        self.start()

    @staticmethod
    def is_here():
        return bool(shutil.which("initdb", path=PATH) and shutil.which("postgres", path=PATH))

    def run(self, program, *options):
        run = subprocess.run([shutil.which(program, path=PATH), *options], capture_output=True,
                             text=True, cwd=self.folder, **self.user)
        hold(run.returncode == 0, program, run.stderr)
        return run.stdout

    def start(self):
        def is_up():  # what a killed one leaves behind must end first
            if self.process.poll() is not None:
                self.launch()
            return subprocess.run([shutil.which("pg_isready", path=PATH), "-q", "-h", self.folder]
                                  ).returncode == 0
        self.launch()
        wait_until("the database answers", is_up, pause=0.2)

    def launch(self):
        with open(os.path.join(self.folder, "log"), "a") as log:
            self.process = start(shutil.which("postgres", path=PATH), "-D", self.folder + "/data",
                                 "-k", self.folder, "-c", "listen_addresses=", stdout=log,
                                 stderr=log, cwd=self.folder, **self.user)

    def stop(self, how=signal.SIGKILL):
        self.process.send_signal(how)
        self.process.wait()

    def rows(self, query):
        return [line.split("|") for line in self.run(
            "psql", "-h", self.folder, "-U", "velmo", "-At", "-c", query, "postgres").splitlines()]


class Worker:
    def __init__(self, fleet, *options, wait=True):
        self.name = f"w{fleet.world.next_number()}"
        self.metrics = free_port()
        self.log = os.path.join(fleet.world.folder, self.name + ".log")
        self.command = [os.path.join(fleet.world.bin, "velmo-fleet"), "--broker",
                        f"127.0.0.1:{fleet.broker.port}", "--name", self.name, "--lang", "en",
                        "--metrics", f"127.0.0.1:{self.metrics}", *fleet.patterns(), *options]
        self.start(wait)

    def start(self, wait=True):
        with open(self.log, "a") as log:
            self.process = start(*self.command, stderr=log)
        if wait:
            self.wait_ready()

    def wait_ready(self):
        wait_until(lambda: f"{self.name} is ready: {self.said()[-500:]}", self.is_ready)

    def is_ready(self):
        hold(self.process.poll() is None, self.name, "ended with", self.process.returncode,
             self.said()[-500:])
        with contextlib.suppress(OSError):
            return self.count("ready") == 1 and self.count("connected") == 1

    def said(self):
        with open(self.log, errors="replace") as log:
            return log.read()

    def page(self):
        with urllib.request.urlopen(f"http://127.0.0.1:{self.metrics}/metrics", timeout=10) as page:
            return page.read().decode()

    def samples(self):
        return [(family, dict(re.findall(r'(\w+)="([^"]*)"', labels)), float(value))
                for family, labels, value in
                re.findall(r"^(\w+)(?:\{(.*)\})? (\S+)$", self.page(), re.MULTILINE)]

    def count(self, family, **labels):
        return sum(value for name, told, value in self.samples()
                   if name == "velmo_fleet_" + family and labels.items() <= told.items())

    def signal(self, how):
        self.process.send_signal(how)

    def kill(self):
        self.process.kill()
        self.process.wait()

    def stop(self):
        self.process.terminate()
        code = self.process.wait(60)
        hold(code == 0, self.name, "ended with", code, self.said()[-500:])

    def of_process(self, field):
        """MiB for VmRSS, or seconds of a processor for "time"."""
        if field == "time":
            with open(f"/proc/{self.process.pid}/stat") as stat:
                fields = stat.read().rsplit(")", 1)[1].split()
            return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
        with open(f"/proc/{self.process.pid}/status") as status:
            return int(re.search(field + r":\s*(\d+)", status.read())[1]) / 1024


class Fleet:
    """Kiosks below a topic of a broker, and a client that hears what is said of them."""

    def __init__(self, world, broker=None, silent=0, parts=0, levels=1, hears=True):
        self.world = world
        self.broker = broker or world.broker
        self.root = f"f{world.next_number()}"
        self.silent = silent  # after how many seconds a kiosk may be called so
        self.parts = parts  # so many, if a level of the states' topic tells the part
        self.levels = levels  # of the kiosks' names
        self.random = random.Random(world.seed)
        self.bodies = [self.devices() for _ in range(60)]
        self.clock = int(time.time() * 1000)
        self.summaries, self.statuses = {}, {}
        self.heard, self.pending = {}, {}  # when states of a kiosk were acknowledged
        self.accused, self.wrongly = set(), []  # who was called silent, and of whom it was not true
        filters = ["velmo-fleet/+/status"] + [
            f"{self.root}/{'+/' * (levels + bool(parts))}summary"] * hears
        self.client = mqtt.Client()
        self.client.max_inflight_messages_set(500)
        self.client.max_queued_messages_set(0)
        self.client.reconnect_delay_set(1, 1)
        self.client.on_message = self.take
        self.client.on_publish = self.acknowledge
        self.client.on_connect = lambda client, *_: client.subscribe([(each, 1) for each in filters])
        self.client.connect("127.0.0.1", self.broker.port)
        self.client.loop_start()

    def patterns(self):
        kiosk = "%part/%kiosk" if self.parts else "/".join("+" * self.levels)
        return ["--states", f"{self.root}/{kiosk}/state", "--summaries",
                f"{self.root}/{kiosk}/summary", "--wills", f"{self.root}/{kiosk}/will",
                "--silent", str(self.silent)]

    def topic(self, kiosk, kind):
        part = f"{part_of(kiosk, self.parts)}/" if self.parts else ""
        return f"{self.root}/{part}{kiosk}/{kind}"

    def kiosk_and_kind(self, topic):
        levels = topic[len(self.root) + 1:].split("/")
        return "/".join(levels[-1 - self.levels:-1]), levels[-1]

    def workers(self, *options):
        workers = [Worker(self, *of_one, wait=False) for of_one in options]
        for worker in workers:
            worker.wait_ready()
        return workers

    @staticmethod
    def restart(workers):
        for worker in workers:
            worker.stop()
            worker.start(wait=False)
        for worker in workers:
            worker.wait_ready()

    def take(self, _client, _data, message):
        name, kind = self.kiosk_and_kind(message.topic)
        if kind == "summary":
            self.summaries[name] = message.payload
            if b'"reason":"silent"' in message.payload and not message.retain:
                self.accused.add(name)
                # A state that came when it was being called silent already is left out; on a busy machine that
                # takes a while to come here.
                now, late = time.monotonic(), min(self.silent / 4, 2)
                heard = max((at for at in self.heard.get(name, []) if now - at > late), default=-1e9)
                if now - heard < self.silent * 0.8:
                    self.wrongly.append((name, round(now - heard, 2)))
            if not message.payload:
                del self.summaries[name]
        elif message.topic.startswith("velmo-fleet/"):
            self.statuses[message.topic.split("/")[1]] = \
                json.loads(message.payload) if message.payload else None

    def acknowledge(self, _client, _data, mid):
        self.heard.setdefault(self.pending.pop(mid, None), collections.deque(maxlen=8)).append(
            time.monotonic())

    def devices(self):
        return json.dumps([
            {"device_id": model, "thread_id": thread, "enabled": self.random.random() < 0.9,
             "state": self.random.choice(STATES), "online": self.random.random() < 0.95,
             "stacker_full": self.random.random() < 0.1,
             "error_critical": self.random.random() < 0.1, "error_text": "motor \u2713",
             "session_sum": self.random.randrange(5000),
             "notes_inserted": self.random.randrange(100)}
            for thread, model in enumerate([1, 7, 100])])

    def state(self, body=None):
        self.clock += 1
        return f'{{"time":{self.clock},"device_states":{body or self.random.choice(self.bodies)}}}'

    def publish(self, kiosk, payload=None, kind="state", retain=True):
        told = self.client.publish(self.topic(kiosk, kind),
                                   self.state() if payload is None else payload, 1, retain)
        if kind == "state":
            self.pending[told.mid] = kiosk
        if told.rc == mqtt.MQTT_ERR_NO_CONN:  # it is sent with the next connection
            told.rc = mqtt.MQTT_ERR_SUCCESS
        return told

    @staticmethod
    def settle(told, seconds=60):
        told.wait_for_publish(seconds)
        hold(told.is_published(), "the broker does not acknowledge what is published")

    def send(self, *what, **how):
        self.settle(self.publish(*what, **how))

    def publish_all(self, kiosks):
        for kiosk in kiosks:
            last = self.publish(kiosk)
        self.settle(last)

    @contextlib.contextmanager
    def alive(self, *kiosks):
        """The kiosks publish twice a second meanwhile."""
        ended = threading.Event()

        def live():
            while not ended.wait(0.5):
                for kiosk in kiosks:
                    self.publish(kiosk)
        thread = threading.Thread(target=live)
        thread.start()
        try:
            yield
        finally:
            ended.set()
            thread.join()

    def retained(self):
        """The states and the summaries that are at the broker."""
        found, subscribed, done = {"state": {}, "summary": {}}, threading.Event(), threading.Event()
        mark = f"{self.root}-mark/{time.monotonic_ns()}"

        def take(_client, _data, message):
            if message.topic == mark:
                done.set()
                return
            kiosk, kind = self.kiosk_and_kind(message.topic)
            if message.payload and message.retain and kind in found:
                found[kind][kiosk] = message.payload
        client = mqtt.Client()
        client.on_message = take
        client.on_subscribe = lambda *_: subscribed.set()
        client.connect("127.0.0.1", self.broker.port)
        client.loop_start()
        try:
            client.subscribe([(mark, 1), (f"{self.root}/#", 1)])
            hold(subscribed.wait(30), "the broker does not subscribe")
            client.publish(mark, "", 1)
            hold(done.wait(60), "the broker does not send what is retained")
        finally:
            client.disconnect()
            client.loop_stop()
        return found["state"], found["summary"]

    def wrong(self, silent=()):
        """Whose retained summary is not that of the retained state, with both."""
        states, summaries = self.retained()
        report = subprocess.run([os.path.join(self.world.bin, "velmo"), "report", "-", "--json",
                                 "--lang", "en"], input=b"\n".join(states.values()),
                                capture_output=True, check=True).stdout.decode().splitlines()
        wrong = {kiosk: (None, summaries[kiosk]) for kiosk in summaries.keys() - states.keys()}
        for kiosk, line in zip(states, report, strict=True):
            summary = summaries.get(kiosk, b"")
            if kiosk in silent:
                told = json.loads(summary or "{}")
                right = told.get("condition") == "silent" \
                    and told.get("time") == json.loads(line)["time"]
            else:
                right = summary.startswith(
                    f'{{"kiosk":{json.dumps(kiosk)},{line[1:-1]},"condition":"'.encode())
            if not right:
                wrong[kiosk] = (line, summary)
        return wrong

    def check(self, what, silent=(), seconds=30):
        wrong = {}

        def is_right():
            nonlocal wrong
            wrong = self.wrong(silent)
            return not wrong
        wait_until(lambda: f"{what}: {len(wrong)} summaries are wrong, one of them "
                   f"{next(iter(wrong.items()))}", is_right, seconds, 0.3)
        hold(not self.wrongly, what, "called silent while heard:", self.wrongly[:5])

    def told(self, kiosk):
        return json.loads(self.summaries.get(kiosk) or "{}")

    def reasons(self, kiosk):
        return [cause["reason"] for cause in self.told(kiosk).get("causes", [])]

    def wait_for(self, kiosk, condition, reason=None, seconds=30):
        wait_until(lambda: f"{kiosk} is {condition} ({reason}): {self.told(kiosk)}",
                   lambda: self.told(kiosk).get("condition") == condition
                   and (not reason or reason in self.reasons(kiosk)), seconds)


class World:
    def __init__(self, folder, bin_folder, quick, seed):
        self.folder, self.bin, self.quick, self.seed = folder, bin_folder, quick, seed
        self.lock, self.number = threading.Lock(), 0
        self.broker = Broker(self)

    def next_number(self):
        with self.lock:
            self.number += 1
            return self.number

    def new_folder(self):
        folder = os.path.join(self.folder, f"d{self.next_number()}")
        os.mkdir(folder)
        return folder

    def velmo(self, *arguments):
        return subprocess.run([os.path.join(self.bin, "velmo"), *arguments, "--lang", "en"],
                              capture_output=True, text=True, timeout=120)
