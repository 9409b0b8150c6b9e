# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""What fleets are broken with: each a small check with topics of its own."""

import contextlib
import datetime
import glob
import json
import os
import queue
import re
import shutil
import signal
import socket
import sqlite3
import subprocess
import threading
import time

import paho.mqtt.client as mqtt

from fleet.world import Broker, Fleet, PATH, Worker, hold, part_of, wait_until

LONG = "x" * 65522  # with the rest of its topic, as long as a topic can be
GARBAGE = {b"null": "unreadable", b"{": "unreadable", b"\xff\xfe{}": "unreadable",
           b'{"device_states": 1}': "unreadable", b'{"device_states": [' + b"[" * 5000: "unreadable",
           b'{"time": true, "device_states": []}': "unreadable", b"x" * (1 << 20): "too_large",
           json.dumps({"device_states": [{"device_id": 1, "thread_id": thread} for thread in
                                         range(65)]}).encode(): "too_large"}
FAMILIES = """messages_received_total messages_refused_total summaries_published_total
summaries_acknowledged_total publish_refusals_total connected ready reconnects_total
dropped_messages_total kiosks faults notes latency_seconds_bucket latency_seconds_sum
latency_seconds_count forgotten_total build_info history_connected history_writer history_waiting
history_written_total history_lost_total""".split()


def check_options(world):
    for options, fault in (("--states=", "--states: expected a value"),
                           ("--silent=-1", "--silent: expected a number"),
                           ("--forget=1d --lang=ru", "--forget: ожидается число"),
                           ("--states kiosks/state", "kiosks/state"), ("kiosks", '"kiosks"'),
                           *((f"--partition={part}", part) for part in
                             ("0/4", "5/4", "1", "1/0", "a/b", "1/4/5")),
                           ("--history mysql://host/db", "mysql://host/db"), ("--group=g", "group"),
                           ("--name=a/b", "--name"), ("--password-file /none", "/none")):
        run = subprocess.run([os.path.join(world.bin, "velmo-fleet"), "--broker", "127.0.0.1:1",
                              "--lang", "en", *options.split()],
                             capture_output=True, text=True, timeout=20)
        hold(run.returncode == 2 and fault in run.stderr and run.stderr.count("\n") == 1,
             "velmo-fleet", options, run.returncode, run.stderr)


def check_clocks(world):
    """Of what has any time or none, what arrives last counts, with two workers too."""
    fleet = Fleet(world)
    fleet.workers([], [])
    for clock in (1790000000000, 32472144000000, None, 0, 1789000000000, 1789000000000):
        state = json.loads(fleet.state())
        state["time"] = clock
        if clock is None:
            del state["time"]
        fleet.send("k", json.dumps(state))
        fleet.check(f"time {clock}")
    for _ in range(50):  # many in one second
        fleet.publish("k")
    fleet.check("many states in one second")


def check_poison(world):
    fleet = Fleet(world)
    worker = Worker(fleet)
    fleet.publish_all(["k", "other", "\u00e9" * 128])
    wait_until("the kiosks are known", lambda: len(fleet.summaries) == 3)
    expected = {"name": 0, "topic": 0, "unreadable": 0, "too_large": 0}
    for payload, reason in GARBAGE.items():
        for kiosk in ("k", "invented"):
            fleet.publish(kiosk, payload)
            expected[reason] += 1
        fleet.wait_for("k", "unknown", "unreadable")
        since = fleet.told("k")["since"]
        fleet.send("k", payload)  # again: it is unknown since the first of them
        expected[reason] += 1
        fleet.send("other")
        hold(fleet.told("k")["since"] == since, "since", since, fleet.told("k"))
        fleet.send("k")
        wait_until("the kiosk can be read again", lambda: fleet.told("k")["condition"] != "unknown")
    for name in ("x" * 129, LONG, ""):
        fleet.publish(name)
        fleet.publish(name + ("x" if name == LONG else ""), b"gone", "will")
        expected["name" if name else "topic"] += 2
    for payload in (b"", b"gone"):
        fleet.publish("never", payload, "will")
    fleet.publish("never", b"")
    with contextlib.suppress(ValueError):  # some brokers let such topics pass
        client = mqtt.Client()
        client.connect("127.0.0.1", world.broker.port)
        client.publish(f"{fleet.root}/a\x1b[31m\nb/state", fleet.state(), 1)
        client.loop_start()
        time.sleep(0.3)
        client.loop_stop()
    fleet.send("k", b"{")
    expected["unreadable"] += 1

    def refused():
        return {reason: worker.count("messages_refused_total", reason=reason) for reason in expected}
    wait_until(lambda: f"{expected} are refused: {refused()}", lambda: refused() == expected)
    hold(fleet.summaries.keys() == {"k", "other", "\u00e9" * 128}, "summaries of", [
        name[:40] for name in fleet.summaries])
    hold(worker.count("reconnects_total") == 0, "it was disconnected:", worker.said()[-500:])
    fleet.restart([worker])  # all of it is retained
    fleet.wait_for("k", "unknown", "unreadable")
    fleet.send("k")
    wait_until("the kiosk can be read again", lambda: fleet.told("k")["condition"] != "unknown")
    hold("\x1b" not in worker.said() and len(worker.said()) < 20000, "the log has", worker.said())


def check_sizes(world):
    """A summary over what the broker takes is cut; no other one waits for it."""
    for limit in ("max_packet_size 20000", "message_size_limit 20000"):
        fleet = Fleet(world, Broker(world, limit))
        worker = Worker(fleet)
        devices = [{"device_id": 7, "thread_id": thread, "enabled": True, "state": "idling",
                    "error_critical": True, "error_text": "motor " * 60} for thread in range(40)]
        fleet.send("big", fleet.state(json.dumps(devices)))
        fleet.send("small")
        fleet.wait_for("big", "out_of_order", "too_large")
        hold(2000 < len(fleet.summaries["big"]) <= 20000, "bytes:", len(fleet.summaries["big"]))
        wait_until(lambda: f"the small one: {fleet.wrong()}", lambda: fleet.wrong().keys() == {"big"})
        # mosquitto cuts the connection for what is over message_size_limit, of which it says nothing before.
        for number in range(3):
            fleet.send(f"big{number}", fleet.state(json.dumps(devices)))
            fleet.wait_for(f"big{number}", "out_of_order", "too_large")
        hold(worker.count("reconnects_total") <= (limit.startswith("message")), limit, worker.said())
        fleet.send("big", b"gone", "will", retain=False)
        fleet.wait_for("big", "silent", "gone")
        fleet.restart([worker])
        time.sleep(1)
        hold(fleet.told("big")["condition"] == "silent", "a silent one that was cut:", fleet.told("big"))
        fleet.publish_all(["big", "big0", "big1", "big2"])
        fleet.check(limit)


def check_rights(world):
    """What the broker refuses is counted, said seldom, and tried until it is allowed."""
    rules = os.path.join(world.new_folder(), "acl")

    def allow(summaries):
        with open(rules, "w") as acl:
            acl.write(f"topic readwrite +/+/state\ntopic {summaries} +/+/summary\n"
                      "topic read +/+/will\ntopic readwrite velmo-fleet/+/status\ntopic readwrite +/+\n")
    allow("read")
    fleet = Fleet(world, Broker(world, f"acl_file {rules}"))
    worker = Worker(fleet)
    kiosks = [f"k{number}" for number in range(200)]
    fleet.publish_all(kiosks)
    wait_until("refused publishes are counted", lambda: worker.count(
        "publish_refusals_total", reason="not_authorized") >= 1)
    wait_until("the status says so", lambda: fleet.statuses[worker.name].get("faults"))
    hold(worker.count("summaries_acknowledged_total") == 0 and not fleet.summaries, "acknowledged:",
         worker.count("summaries_acknowledged_total"))
    lines = worker.said().count("\n")
    hold(lines < 10, lines, "lines are logged:", worker.said())
    if world.quick:
        return  # it tries again after a minute
    allow("readwrite")
    fleet.broker.process.send_signal(signal.SIGHUP)
    fleet.check("after rights were granted", seconds=90)


def check_silence(world):
    """Nobody is silent for what the broker or a worker did, and who is stays so."""
    silent, away = (2, 4) if world.quick else (6, 20)
    fleet = Fleet(world, Broker(world), silent)
    workers = fleet.workers([], [])
    fleet.publish_all(["a", "b", "mute"])
    fleet.check("before")

    def is_since():  # each worker has its own clock
        told = datetime.datetime.fromisoformat(fleet.told("mute").get("since", "2000-01-01T00:00:00Z"))
        return abs((told - datetime.datetime.fromisoformat(since)).total_seconds()) < 1

    def keeps(what, seconds):
        time.sleep(seconds)
        fleet.check(what, {"mute"})
        hold(fleet.accused == {"mute"}, what, "called silent:", fleet.accused)
        hold(is_since(), what, "not since", since, fleet.told("mute"))
    with fleet.alive("a", "b"):
        fleet.wait_for("mute", "silent", "silent")
        since = fleet.told("mute")["since"]
        fleet.broker.stop()
        time.sleep(away)
        fleet.broker.start()
    # Before the kiosks find the way back, too: silence counts from the connection on.
        keeps("the broker was away", silent + 1)
        fleet.broker.stop()
        os.remove(os.path.join(fleet.broker.folder, "mosquitto.db"))
        fleet.summaries.clear()
        fleet.broker.start()
        wait_until("the summaries come back", lambda: {"a", "b", "mute"} <= fleet.summaries.keys())
        hold(fleet.told("mute")["condition"] == "silent", "mute came back as", fleet.told("mute"))
        fleet.heard.pop("mute", None)
        wait_until("the kiosks come back", lambda: {"a", "b"} <= fleet.retained()[0].keys())
        for worker in workers:
            wait_until("the workers come back", worker.is_ready)
        hold(is_since(), "not since", since, fleet.told("mute"))
        fleet.send("mute")  # its state was lost with the store
        wait_until("it is heard", lambda: fleet.told("mute")["condition"] != "silent")
        fleet.wait_for("mute", "silent", seconds=3 * silent + 5)
        since = fleet.told("mute")["since"]
        for worker in workers:
            worker.signal(signal.SIGSTOP)
        time.sleep(2 * silent)
        for worker in workers:
            worker.signal(signal.SIGCONT)
        keeps("the workers were stopped", 1)
        for worker in workers:
            worker.kill()
        for worker in workers:
            worker.start()
        keeps("the workers were killed", silent + 1)
    fleet.wait_for("a", "silent", "silent", 3 * silent + 5)
    fleet.send("mute")
    wait_until("it is heard again", lambda: fleet.told("mute")["condition"] != "silent")
    hold(not fleet.wrongly, "called silent while heard:", fleet.wrongly)


def check_away(world):
    """Who fell silent while one of two workers was away stays so when it is back."""
    fleet = Fleet(world, Broker(world, "max_keepalive 10"), 6)
    history = os.path.join(world.new_folder(), "history.sqlite")
    stays, away = fleet.workers([], ["--history", history])
    fleet.publish_all(["mute", "later", "gone", "live"])
    fleet.check("before")
    with fleet.alive("live"):
        away.signal(signal.SIGSTOP)
        wait_until("the worker is missed", lambda: fleet.statuses[away.name].get("gone"), 40)
        fleet.publish_all(["later", "gone"])
        wait_until("they are heard", lambda: "silent" not in (
            fleet.told(kiosk)["condition"] for kiosk in ("later", "gone")))
        fleet.send("gone", b"x", "will", retain=False)
        names = ["mute", "later", "gone"]
        for kiosk in names:
            fleet.wait_for(kiosk, "silent")
        since = {kiosk: fleet.told(kiosk)["since"] for kiosk in names}
        away.signal(signal.SIGCONT)
        wait_until("the worker is back", lambda: fleet.statuses[away.name].get("ready"))
        for _ in range(20):
            hold(since == {kiosk: fleet.told(kiosk).get("since") for kiosk in names}, since,
                 [fleet.told(kiosk) for kiosk in names])
            time.sleep(0.1)
        fleet.check("after that", names)
        fleet.send("mute")
        wait_until("one is heard again", lambda: fleet.told("mute")["condition"] != "silent")
    stays.stop()


class Road:
    """From a worker to the broker and back; what it sends on a connection can be held up."""

    def __init__(self, broker):
        self.broker = broker
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.port = self.listener.getsockname()[1]
        self.sent, self.connections, self.held_after, self.late_after = b"", 0, None, 0
        threading.Thread(target=self.serve, daemon=True).start()

    def serve(self):
        while True:
            self.worker = self.listener.accept()[0]
            self.end = socket.create_connection(("127.0.0.1", self.broker.port))
            self.is_free, waiting = threading.Event(), queue.Queue()
            self.is_free.set()

            def put(data, waiting=waiting):
                self.sent += data
                waiting.put(data)
            for work in ((self.carry, self.end.recv, lambda data, worker=self.worker: self.bring(worker, data)),
                         (self.carry, self.worker.recv, put), (self.send, self.end, self.is_free, waiting)):
                threading.Thread(target=work[0], args=work[1:], daemon=True).start()
            self.connections += 1

    def bring(self, worker, data):
        if self.late_after:
            self.late_after -= min(len(data), self.late_after)
            if self.late_after == 0:
                time.sleep(3)
        worker.sendall(data)

    def send(self, broker, is_free, waiting):
        with contextlib.suppress(OSError):
            while data := waiting.get():
                is_free.wait()
                if self.held_after and self.held_after in data:
                    length = data.index(self.held_after) + len(self.held_after)
                    broker.sendall(data[:length])
                    data, self.held_after = data[length:], None
                    is_free.clear()
                    is_free.wait()
                broker.sendall(data)

    def hold(self, what, act):
        """What the worker sends from now on, until it has sent that, and longer."""
        self.is_free.clear()
        before = self.sent.count(what)
        act()
        wait_until(f"it sends {what}", lambda: self.sent.count(what) > before)

    def break_off(self, *ends):
        """The worker connects again."""
        before = self.connections
        for end in ends or (self.worker, self.end):
            with contextlib.suppress(OSError):
                end.shutdown(socket.SHUT_RDWR)
        wait_until("it connects again", lambda: self.connections > before)

    @staticmethod
    def carry(receive, send):
        with contextlib.suppress(OSError):
            while data := receive(1 << 16):
                send(data)

    def options(self):
        return ["--broker", f"127.0.0.1:{self.port}"]


def mute_of_two(world, patience):
    """A fleet of one kiosk, and the road of the second of its two workers, which is so patient."""
    fleet, road = Fleet(world, silent=3), Road(world.broker)
    fleet.workers([], [*road.options(), "--silent", str(patience)])
    fleet.send("mute")
    fleet.check("before")
    return fleet, road


def stays_silent(fleet):
    for _ in range(40):
        hold(fleet.told("mute").get("condition") == "silent", fleet.told("mute"))
        time.sleep(0.1)


def check_overtaken(world):
    """What one of two said of a kiosk comes after what the other has said since, and has told the first."""
    fleet, road = mute_of_two(world, 9)
    filters = f"{fleet.root}/+/summary".encode()
    known = road.sent.count(filters)
    fleet.settle(fleet.client.publish("velmo-fleet/none/status", b"", 1))  # a worker is gone: they read what it said
    wait_until("they read", lambda: road.sent.count(filters) > known)
    time.sleep(0.3)
    road.is_free.clear()
    fleet.send("mute")
    fleet.wait_for("mute", "silent")
    time.sleep(0.5)
    road.is_free.set()
    wait_until("the late word comes", lambda: fleet.told("mute")["condition"] != "silent")
    fleet.wait_for("mute", "silent")


def check_late(world):
    """What a worker sent comes late, or never."""
    fleet, road = Fleet(world), Road(world.broker)
    worker = Worker(fleet, *road.options())
    state = fleet.state()
    fleet.send("k", state)
    fleet.send("leaves")
    fleet.check("before")
    wait_until("that is known", lambda: worker.count("summaries_acknowledged_total") == 2)
    road.hold(b'"reason":"gone"', lambda: fleet.send("k", b"gone", "will", retain=False))
    fleet.send("k", state)
    time.sleep(0.3)
    road.is_free.set()
    fleet.check("it says the same as before its end")
    road.hold(b"/k/summary", lambda: fleet.send("k"))
    before, is_free = road.end, road.is_free
    road.break_off(road.worker)
    worker.wait_ready()
    fleet.send("k")
    fleet.check("on another connection")
    is_free.set()
    before.shutdown(socket.SHUT_RDWR)
    time.sleep(0.5)
    fleet.check("after what was sent on the one before")
    road.hold(b"/leaves/summary", lambda: fleet.send("leaves", b""))
    road.end.close()
    road.break_off()
    worker.wait_ready()
    fleet.check("what took it out was lost")


def check_leaving(world):
    """Who leaves at a bad moment does not come back."""
    fleet = Fleet(world, Broker(world))  # where no other worker ends, after which these would read
    road = Road(fleet.broker)
    stays = Worker(fleet)
    fleet.publish_all(["stays", "k1", "k2", "k3"])
    fleet.check("before")

    def leave(kiosk):
        fleet.send(kiosk, b"")
        wait_until("its summary is gone", lambda: kiosk not in fleet.summaries)
    road.held_after = f"{fleet.root}/+/summary\x05".encode()
    other = Worker(fleet, *road.options(), wait=False)
    wait_until("it begins to read", lambda: road.connections == 1 and not road.is_free.is_set())
    time.sleep(0.3)
    leave("k1")
    road.is_free.set()
    other.wait_ready()
    hold(other.count("kiosks") == 3, "known when one left:", other.page())
    road.hold(b"/k2/summary", lambda: fleet.send("k2"))
    other.signal(signal.SIGSTOP)
    leave("k2")
    road.is_free.set()
    wait_until("the other's word comes late", lambda: "k2" in fleet.summaries)
    other.kill()
    road.end.shutdown(socket.SHUT_RDWR)
    wait_until("it is taken out", lambda: fleet.summaries.keys() == {"stays", "k3"})
    time.sleep(3)  # until that is read
    stays.signal(signal.SIGSTOP)
    time.sleep(1.2)
    fleet.send("k3", b"")
    fleet.settle(fleet.client.publish("velmo-fleet/none/status", b"", 1))
    stays.signal(signal.SIGCONT)
    time.sleep(3)
    fleet.check("after that")
    hold(stays.count("kiosks") == 1, "known in the end:", stays.page())


def check_returning(world):
    """Who left the fleet, came back while one of two workers was away and fell silent stays so."""
    fleet, road = mute_of_two(world, 60)
    fleet.send("mute", b"")
    fleet.check("it has left")
    road.held_after = b"MQTT"
    road.break_off()
    fleet.send("mute")
    fleet.wait_for("mute", "silent")
    road.is_free.set()
    stays_silent(fleet)


def check_broken_off(world):
    """Who fell silent while one of two was away stays so where the connection breaks while that one reads."""
    fleet, road = mute_of_two(world, 60)
    road.held_after = b"MQTT"
    road.break_off()
    fleet.send("mute")
    fleet.wait_for("mute", "silent")
    road.held_after = b"\x82"  # the first subscription
    road.is_free.set()
    wait_until("it would read", lambda: road.held_after is None and not road.is_free.is_set())
    time.sleep(0.5)
    road.break_off()
    stays_silent(fleet)


def check_slow(world):
    """What the broker has comes with a pause: it has not ended before."""
    fleet, road = Fleet(world), Road(world.broker)
    worker = Worker(fleet, *road.options())
    kiosks = [f"k{number}" for number in range(1500)]  # more than are under way at once
    fleet.publish_all(kiosks)
    fleet.check("before")
    time.sleep(1.5)  # for the status
    road.late_after = sum(len(summary) for summary in fleet.summaries.values()) * 9 // 10
    road.break_off()
    wait_until("it waits", lambda: road.late_after == 0)
    time.sleep(2.5)
    hold(not worker.is_ready(), "it is ready before it has read all")
    worker.wait_ready()
    fleet.check("after that")
    hold(worker.count("forgotten_total") == 0, "forgotten:", worker.count("forgotten_total"))


def check_older_store(world):
    """Who was silent is known still where a broker that crashed had not saved him."""
    fleet = Fleet(world, Broker(world), 2)
    workers = fleet.workers([], [])
    fleet.publish_all(["saved", "leaves"])
    fleet.check("before")
    wait_until("both tell of the kiosks", lambda: all(
        (fleet.statuses.get(worker.name) or {}).get("kiosks") == 2 for worker in workers))
    time.sleep(2)
    store = os.path.join(fleet.broker.folder, "mosquitto.db")
    shutil.copy(store, store + ".old")
    fleet.send("leaves", b"")
    fleet.send("mute")
    fleet.wait_for("mute", "silent", "silent")
    time.sleep(2)  # for the status
    fleet.broker.stop(signal.SIGKILL)
    shutil.copy(store + ".old", store)
    fleet.summaries.clear()
    fleet.broker.start()
    fleet.wait_for("mute", "silent", "silent")
    for kiosk in ("saved", "leaves"):
        fleet.send(kiosk, b"")  # who leaves meanwhile is gone still
    wait_until("one has left", lambda: fleet.summaries.keys() == {"mute"})


def check_wills(world):
    fleet = Fleet(world, Broker(world))
    workers = fleet.workers([], [])
    fleet.publish_all(["k", "other"])
    fleet.check("before")
    fleet.send("k", b"gone", "will", retain=False)
    fleet.send("other", b"", "will", retain=False)
    fleet.send("unheard", b"gone", "will", retain=False)
    fleet.wait_for("k", "silent", "gone")
    for what, act in (("the workers", lambda: fleet.restart(workers)),
                      ("the broker", lambda: (fleet.broker.stop(), fleet.broker.start()))):
        act()
        for worker in workers:
            worker.wait_ready()
        fleet.check(f"{what} started again, a retained state is no sign of life", {"k"})
    hold(fleet.summaries.keys() == {"k", "other"}, "summaries of", fleet.summaries.keys())
    fleet.send("k")
    fleet.check("the kiosk came back")
    fleet.send("k", b"gone", "will", retain=False)  # late: of the connection before
    fleet.wait_for("k", "silent", "gone")
    fleet.send("k")
    fleet.check("the kiosk came back again")


def check_scrapped(world):
    fleet = Fleet(world)
    workers = fleet.workers([], [])
    fleet.publish_all(["k1", "k2", "k3"])
    fleet.check("before")
    fleet.send("k1", b"")
    run = world.velmo("fleet", "forget", "k2", "--broker", f"127.0.0.1:{world.broker.port}",
                      *fleet.patterns()[:4])
    hold(run.returncode == 0, "velmo fleet forget:", run.stderr)
    wait_until(lambda: f"two are gone: {fleet.summaries.keys()}",
               lambda: fleet.summaries.keys() == {"k3"})
    for kiosk in ("k1", "k2"):
        fleet.send(kiosk, b"gone", "will", retain=False)
    fleet.restart(workers)
    for kiosk in ("k1", "k2"):
        fleet.send(kiosk, b"gone", "will", retain=False)
    fleet.send("k3")
    fleet.check("after that")
    hold(fleet.retained()[1].keys() == fleet.summaries.keys() == {"k3"}, fleet.summaries.keys())
    wait_until("one kiosk is counted", lambda: all(worker.count("kiosks") == 1 for worker in workers))
    fleet.send("k1")
    fleet.check("a scrapped one that lives again")


def check_left(world):
    """What left while no worker ran does not go on in the history."""
    fleet = Fleet(world)
    place = os.path.join(world.new_folder(), "history.sqlite")
    parts = [["--partition", f"{part}/2", "--history", place] for part in (1, 2)]
    workers = fleet.workers(*parts)
    kiosks = [f"k{number}" for number in range(8)]
    fleet.publish_all([*kiosks, "stays1", "stays2"])

    def lasting():
        with contextlib.closing(sqlite3.connect(place, timeout=10)) as history:
            return {kiosk for kiosk, in history.execute(
                "SELECT kiosk FROM conditions WHERE ended IS NULL")}
    wait_until("all are in the history", lambda: len(lasting()) == 10)
    for worker in workers:
        worker.stop()
    for kiosk in kiosks[1:]:
        for kind in ("state", "summary"):
            fleet.send(kiosk, b"", kind)
    for worker in workers:
        worker.start(wait=False)
    kept = {"k0", "stays1", "stays2"}
    wait_until(lambda: f"those that left have ended: {lasting()}", lambda: lasting() == kept, 60)
    hold({part_of(kiosk, 2) for kiosk in kiosks[1:]} == {1, 2}, "both parts have some")
    shown = world.velmo("fleet", "history", "k1", "--history", place, "--json")
    hold(shown.returncode == 0 and '"ended":null' not in shown.stdout, "it is told of k1:", shown)
    for worker in workers:
        worker.stop()


def check_flood(world):
    """Many bad messages, each of another kiosk, cost few lines and no memory."""
    fleet = Fleet(world)
    worker = Worker(fleet)
    fleet.send("k")
    before = worker.of_process("VmRSS")
    for number in range(20000):
        last = fleet.publish(f"invented{number}", b"{bad", retain=False)
    fleet.settle(last)
    wait_until("bad messages are counted", lambda: worker.count(
        "messages_refused_total", reason="unreadable") == 20000)
    fleet.check("after the flood")
    lines, grown = worker.said().count("\n"), worker.of_process("VmRSS") - before
    hold(lines < 30, lines, "lines are logged:", worker.said()[:1000])
    with open(worker.command[0], "rb") as program:
        room = 80 if b"__asan_init" in program.read() else 8  # which keeps what is freed for a while
    hold(grown < room, grown, "MiB more")
    hold(worker.count("kiosks") == 1, "kiosks:", worker.count("kiosks"))


def check_forgetting(world):
    fleet = Fleet(world, Broker(world), 1)
    worker = Worker(fleet)
    count = 300 if world.quick else 20000
    fleet.publish_all([f"k{number}" for number in range(count)])
    fleet.wait_for(f"k{count - 1}", "silent", seconds=60)
    grown = worker.of_process("VmRSS")
    hold(grown < 40 + count * 0.006, grown, "MiB for", count, "kiosks")
    wait_until("all are silent, and heard here to be", lambda: sum(
        b'"condition":"silent"' in summary for summary in list(fleet.summaries.values())) == count, 60, 0.5)
    worker.stop()
    now = datetime.datetime.now(datetime.timezone.utc)
    for number in range(count):
        kiosk = f"k{number}"
        summary = fleet.told(kiosk)
        since = now - datetime.timedelta(days=20 if number < 3 else 40)
        summary["since"] = since.isoformat(timespec="milliseconds")[:-6] + "Z"
        fleet.publish(kiosk, json.dumps(summary, ensure_ascii=False, separators=(",", ":")), "summary")
    fleet.send("end", b"")
    kept = {"k0", "k1", "k2"}
    worker.start()
    wait_until(lambda: f"the others are forgotten: {len(fleet.summaries)} are there",
               lambda: fleet.summaries.keys() == kept, 120)
    hold(worker.count("forgotten_total") == count - 3, "forgotten:", worker.count("forgotten_total"))
    hold(worker.count("kiosks") == 3, "kiosks:", worker.count("kiosks"))
    fleet.restart([worker])
    fleet.send("k0")
    wait_until("k0 is heard", lambda: worker.count("messages_received_total", kind="state") >= 1)
    time.sleep(1)
    hold(fleet.retained()[1].keys() == kept, "they return:", len(fleet.retained()[1]))


def check_partitions(world):
    fleet = Fleet(world)
    kiosks = [f"k{number}" for number in range(400)]
    for parts in (3, 4):
        workers = fleet.workers(*([f"--partition={part}/{parts}"] for part in range(1, parts + 1)))
        fleet.publish_all(kiosks)
        fleet.check(f"{parts} parts")
        for part, worker in enumerate(workers, 1):
            own = sum(part_of(kiosk, parts) == part for kiosk in kiosks)
            wait_until(lambda: f"part {part}/{parts} has {own} kiosks: {worker.page()}",
                       lambda: worker.count("kiosks", part=f"{part}/{parts}") == own
                       and fleet.statuses[worker.name]["kiosks"] == own)
            hold(worker.count("messages_received_total", kind="state") == own * (parts - 2)
                 and worker.count("messages_received_total", kind="other_part") >= len(kiosks) - own
                 and worker.count("summaries_published_total") <= (own if parts == 3 else 2 * own),
                 f"{part}/{parts}: {own} own,", worker.page())
            status = fleet.statuses[worker.name]
            hold((status["part"], status["parts"]) == (part, parts), status)
        fleet.publish_all(kiosks)
        fleet.check(f"{parts} parts, again")
        for worker in workers:
            worker.stop()
    moved = sum(part_of(kiosk, 3) != part_of(kiosk, 4) for kiosk in kiosks)
    hold(60 < moved < 140, moved, "of 400 kiosks move")


def check_topics(world):
    """A level of the topic tells the part, or two are a kiosk's name."""
    fleet = Fleet(world, parts=2)
    workers = fleet.workers(["--partition=1/2"], ["--partition=2/2"])
    kiosks = [f"k{number}" for number in range(50)]
    fleet.publish_all(kiosks)
    fleet.check("a level for the part")
    for worker in workers:
        hold(worker.count("messages_received_total", kind="other_part") == 0, worker.page())
    fleet = Fleet(world, levels=2)
    worker = Worker(fleet)
    fleet.publish_all(["north/k1", "north/k2", "south/k1"])
    fleet.check("two levels")
    fleet.send("north/k1", b"gone", "will")
    fleet.wait_for("north/k1", "silent", "gone")
    fleet.send("north/k2", b"")
    wait_until("it is scrapped", lambda: fleet.summaries.keys() == {"north/k1", "south/k1"})
    worker.stop()


def check_status(world):
    """Workers tell of themselves, kiosks are told of people, and nobody asks for what is not told."""
    fleet = Fleet(world)
    worker = Worker(fleet, "--history", os.path.join(world.new_folder(), "history.sqlite"))
    fleet.publish_all(["k1", "k2"])
    fleet.send("k3", fleet.state('[{"device_id":1,"thread_id":0,"enabled":true,"online":false}]'))

    def status():
        return fleet.statuses.get(worker.name) or {}
    wait_until(lambda: f"the status has 3 kiosks: {status()}", lambda: status().get("kiosks") == 3)
    told = {key: status().get(key) for key in ("worker", "part", "parts", "ready", "faults")}
    hold(told == {"worker": worker.name, "part": 1, "parts": 1, "ready": True, "faults": []}
         and status().keys() >= {"version", "since"}, "the status is", status())
    fleet.check("before")
    page = worker.page()
    names = {name for name, _, _ in worker.samples() if name.startswith("velmo_fleet_")}
    missing = {"velmo_fleet_" + family for family in FAMILIES} - names
    hold(not missing, "metrics do not tell of", missing)
    hold(all(labels.get("part") == "1/1" for name, labels, _ in worker.samples()
             if name.startswith("velmo_fleet_")), "not all have the part:", page)
    for path in glob.glob(os.path.join(os.path.dirname(__file__), "../../docs/fleet/*")):
        with open(path) as text:
            asked = set(re.findall(r"\bvelmo_fleet_\w+", text.read()))
        hold(asked <= names, path, "asks for", asked - names)
    if promtool := shutil.which("promtool", path=PATH):
        run = subprocess.run([promtool, "check", "metrics"], input=page, capture_output=True, text=True)
        hold(run.returncode == 0, "promtool:", run.stdout, run.stderr)
    broker = ["--broker", f"127.0.0.1:{world.broker.port}"]
    shown = world.velmo("fleet", "--json", *broker, *fleet.patterns()[2:4])
    last = json.loads(shown.stdout.splitlines()[-1])
    hold(last["kind"] == "summary" and last["kiosks"] == 3, "velmo fleet:", shown)
    for options in (["--broker", "127.0.0.1:1"], [*broker, "--summaries", "other/+/summary"]):
        shown = world.velmo("fleet", *options)
        hold(shown.returncode == 2, "velmo fleet is content with", options, shown)
    worker.kill()
    wait_until(lambda: f"its will says that it is gone: {status()}", lambda: status().get("gone"))
    worker.start()
    wait_until("it is back", lambda: status().get("ready"))
    worker.stop()
    wait_until("its status is removed", lambda: fleet.statuses[worker.name] is None)


# Those that take longest begin first.
CHECKS = [check_silence, check_forgetting, check_rights, check_away, check_left, check_partitions, check_leaving,
          check_sizes, check_older_store, check_broken_off, check_returning, check_overtaken, check_slow,
          check_scrapped, check_status, check_poison, check_wills, check_late, check_topics, check_flood, check_clocks,
          check_options]
