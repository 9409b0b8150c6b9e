#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Runs mosquitto with docs/fleet/mosquitto.conf and acl, certificates and passwords, and tries what each
may do: kiosks write their own topics only, workers read them, viewers read summaries only; a worker and
`velmo fleet` work with just these rights.

Usage: check_fleet_broker.py BIN    (BIN has velmo and velmo-fleet; needs mosquitto, openssl, paho-mqtt)
"""

import json
import os
import re
import socket
import ssl
import subprocess
import sys
import tempfile
import time

import paho.mqtt.client as mqtt

from fleet.world import free_port

DOCS = os.path.join(os.path.dirname(__file__), "..", "docs", "fleet")
NOT_AUTHORIZED, TOO_LARGE = 0x87, 0x95
MANY = 3000  # messages, more than the broker keeps for a client unless told to


def check(what, seen, expected=True):
    if seen != expected:
        raise SystemExit(f"check_fleet_broker.py: {what}: {seen!r}, not {expected!r}")


def wait_until(what, done, seconds=20):
    end = time.monotonic() + seconds
    while not done():
        check(f"still not after {seconds} s: {what}", time.monotonic() < end)
        time.sleep(0.05)


def run(*command):
    subprocess.run(command, check=True, capture_output=True)


class Broker:
    """mosquitto, and all its files in a folder."""

    def __init__(self, folder):
        self.folder = folder
        self.kiosk_port, self.port = free_port(), free_port()
        for authority in ["site-ca", "kiosks-ca", "strangers-ca"]:
            run("openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                "-days", "2", "-subj", f"/CN={authority}", "-keyout", self.path(authority + ".key"),
                "-out", self.path(authority + ".pem"))
        self.certify("broker", "site-ca", "localhost")
        passwords = self.path("passwords")
        with open(passwords, "w") as file:
            file.write("".join(f"{user}:of-{user}\n" for user in ["worker", "viewer", "keeper"]))
        os.chmod(passwords, 0o600)
        run("mosquitto_passwd", "-U", passwords)
        with open(self.path("acl"), "w") as file:
            file.write(open(os.path.join(DOCS, "acl")).read())
        config = open(os.path.join(DOCS, "mosquitto.conf")).read()
        config = re.sub(r"/(etc|var/log|var/lib)/mosquitto/(certs/)?", folder + "/", config)
        config = config.replace("listener 8883", f"listener {self.kiosk_port} 127.0.0.1")
        config = config.replace("listener 8884", f"listener {self.port} 127.0.0.1")
        with open(self.path("mosquitto.conf"), "w") as file:
            file.write("user root\n" + config)
        self.start()

    def path(self, name):
        return os.path.join(self.folder, name)

    def certify(self, name, authority, common_name):
        run("openssl", "req", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-subj",
            "/CN=" + common_name.replace("/", "\\/"), "-addext", "subjectAltName=DNS:localhost",
            "-keyout", self.path(name + ".key"), "-out", self.path(name + ".csr"))
        run("openssl", "x509", "-req", "-days", "2", "-in", self.path(name + ".csr"), "-copy_extensions",
            "copy", "-CA", self.path(authority + ".pem"), "-CAkey", self.path(authority + ".key"),
            "-out", self.path(name + ".pem"))

    def start(self):
        self.process = subprocess.Popen(["mosquitto", "-c", self.path("mosquitto.conf")],
                                        env={**os.environ, "PATH": os.environ["PATH"] + ":/usr/sbin"})
        wait_until("the broker answers", self.answers)

    def answers(self):
        check("mosquitto ended", self.process.poll(), None)
        with socket.socket() as probe:
            return probe.connect_ex(("127.0.0.1", self.port)) == 0

    def stop(self):
        self.process.terminate()
        self.process.wait()


class Client:
    def __init__(self, broker, port, session="", user=None, password=None, certificate=None, will=None):
        self.client = mqtt.Client(session, protocol=mqtt.MQTTv5)
        files = [broker.path(certificate + end) for end in (".pem", ".key")] if certificate else []
        self.client.tls_set(broker.path("site-ca.pem"), *files)
        if user:
            self.client.username_pw_set(user, password)
        if will:
            self.client.will_set(will, "gone", 1)
        self.client.max_queued_messages_set(0)
        self.client.on_connect = self.connected
        self.client.on_message = self.take
        self.client.on_disconnect = self.disconnected
        self.answer = None
        self.messages = {}
        self.reasons = {}
        self.losses = 0
        # The library drops the reason codes of acknowledgements, and trips over 0x95.
        self.take_acknowledgement = self.client._handle_pubackcomp
        self.client._handle_pubackcomp = self.acknowledged
        self.client.connect("localhost", port)
        self.client.loop_start()

    def connected(self, client, data, flags, reason, properties):
        self.answer = reason.value

    def disconnected(self, client, data, reason, properties=None):
        self.losses += 1

    def take(self, client, data, message):
        self.messages[message.topic] = message.payload

    def acknowledged(self, command):
        packet = bytes(self.client._in_packet["packet"])
        self.reasons[int.from_bytes(packet[:2], "big")] = packet[2] if len(packet) > 2 else 0
        self.client._in_packet.update(packet=packet[:2], remaining_length=2)
        return self.take_acknowledgement(command)

    def publish(self, topic, text="{}"):
        """The reason code of the broker's acknowledgement; 16 is for nobody who listens."""
        number = self.client.publish(topic, text, 1, retain=True).mid
        wait_until(f"an answer for {topic}", lambda: number in self.reasons)
        return self.reasons[number] if self.reasons[number] != 16 else 0

    def subscribe(self, *topics):
        for topic in topics:
            self.client.subscribe(topic, 1)
        return self

    def ready(self):
        wait_until("connected", lambda: self.answer is not None)
        check("connected", self.answer, 0)
        return self

    def end(self):
        self.client.disconnect()
        self.client.loop_stop()


def check_rights(broker):
    def user(name):
        return Client(broker, broker.port, user=name, password="of-" + name).ready()

    worker = user("worker").subscribe("kiosks/+/state", "kiosks/+/will")
    viewer = user("viewer").subscribe("kiosks/+/summary", "kiosks/+/state", "velmo-fleet/+/status")
    kiosk = Client(broker, broker.kiosk_port, "any", certificate="k1", will="kiosks/k1/will").ready()
    other = Client(broker, broker.kiosk_port, "any", certificate="k2", will="kiosks/k1/will").ready()
    kiosk.subscribe("#")
    check("its own state", kiosk.publish("kiosks/k1/state"), 0)
    check("as large as it may be", kiosk.publish("kiosks/k1/state", "x" * 262144), 0)
    check("larger", kiosk.publish("kiosks/k1/state", "x" * 262145), TOO_LARGE)
    check("a name of two levels", other.publish("kiosks/north/k2/state"), 0)
    for topic in ["kiosks/k2/state", "kiosks/k2/will", "kiosks/k1/summary", "kiosks/k1/x/state",
                  "velmo-fleet/w1/status"]:
        check(f"a kiosk at {topic}", kiosk.publish(topic), NOT_AUTHORIZED)
    check("a worker as a kiosk that dies", worker.publish("kiosks/k1/will"), NOT_AUTHORIZED)
    for topic in ["kiosks/k9/summary", "velmo-fleet/w1/status", "kiosks/k9/state"]:
        check(f"a worker at {topic}", worker.publish(topic, ""), 0)
        check(f"a viewer at {topic}", viewer.publish(topic, ""), NOT_AUTHORIZED)
    keeper = user("keeper")
    for topic in ["kiosks/k9/state", "kiosks/k9/will", "kiosks/k9/summary"]:
        check(f"forgetting {topic}", keeper.publish(topic, ""), 0)
    check("a keeper as worker", keeper.publish("velmo-fleet/w1/status", ""), NOT_AUTHORIZED)
    check("a worker's summary", worker.publish("kiosks/k1/summary", "of k1"), 0)
    wait_until("the viewer has it", lambda: "kiosks/k1/summary" in viewer.messages)
    wait_until("the worker has the state", lambda: len(worker.messages.get("kiosks/k1/state", "")) > 9)
    check("what a viewer reads", sorted(viewer.messages),
          ["kiosks/k1/summary", "kiosks/k9/summary", "velmo-fleet/w1/status"])
    check("what a kiosk reads", kiosk.messages, {})
    check("connections that were lost", [client.losses for client in (kiosk, other, viewer)], [0, 0, 0])
    for client in (kiosk, other):
        client.client.socket().shutdown(socket.SHUT_RDWR)  # not in order
    wait_until("the will", lambda: "kiosks/k1/will" in worker.messages)
    worker.publish("kiosks/k1/summary", "")
    for client in (worker, viewer, keeper, kiosk, other):
        client.end()


def check_strangers(broker):
    for user, password in [(None, None), ("worker", "wrong"), ("k1", "of-k1")]:
        client = Client(broker, broker.port, user=user, password=password)
        wait_until("an answer", lambda: client.answer is not None)
        check(f"{user} comes in", client.answer, NOT_AUTHORIZED)
        client.end()
    for certificate in (None, "stranger"):
        context = ssl.create_default_context(cafile=broker.path("site-ca.pem"))
        if certificate:
            context.load_cert_chain(broker.path(certificate + ".pem"), broker.path(certificate + ".key"))
        with socket.create_connection(("localhost", broker.kiosk_port), 20) as plain:
            try:
                with context.wrap_socket(plain, server_hostname="localhost") as link:
                    end = link.recv(1)  # nothing comes before the client has said something
            except (ssl.SSLError, ConnectionError):
                end = b""
        check(f"{certificate} comes in", end, b"")


def check_restart(broker):
    """All that is retained comes at once, also from a broker that was started again."""
    worker = Client(broker, broker.port, user="worker", password="of-worker").ready()
    for number in range(MANY):
        worker.client.publish(f"kiosks/many{number}/summary", "x" * 1500, 1, retain=True)
    wait_until("published", lambda: len(worker.reasons) == MANY)
    worker.end()
    broker.stop()
    broker.start()
    viewer = Client(broker, broker.port, user="viewer", password="of-viewer").ready()
    viewer.subscribe("kiosks/+/summary")
    wait_until("all summaries", lambda: len(viewer.messages) == MANY)
    viewer.end()
    worker = Client(broker, broker.port, user="worker", password="of-worker").ready()
    worker.subscribe("kiosks/+/state")
    wait_until("the states", lambda: set(worker.messages) == {"kiosks/k1/state"})
    for number in range(MANY):
        worker.client.publish(f"kiosks/many{number}/summary", "", 1, retain=True)
    wait_until("emptied", lambda: len(worker.reasons) == MANY)
    worker.end()


def check_programs(broker, folder):
    """A worker and the command, with the rights that they have."""
    def options(user):
        file = broker.path(user)
        with open(file, "w") as password:
            password.write(f"{user}:of-{user}\n")
        return ["--broker", f"localhost:{broker.port}", "--tls-ca", broker.path("site-ca.pem"),
                "--password-file", file]

    worker = subprocess.Popen([os.path.join(folder, "velmo-fleet"), "--name", "w1", "--lang", "en",
                               *options("worker")])
    try:
        viewer = Client(broker, broker.port, user="viewer", password="of-viewer").ready()
        viewer.subscribe("kiosks/+/summary", "velmo-fleet/+/status")
        kiosk = Client(broker, broker.kiosk_port, certificate="k1").ready()
        kiosk.publish("kiosks/k1/state", '{"device_states":[]}')

        def status():
            return json.loads(viewer.messages.get("velmo-fleet/w1/status") or "{}")

        wait_until("its summary", lambda: b"no_devices" in viewer.messages.get("kiosks/k1/summary", b""))
        wait_until("its status", lambda: status().get("ready") and status()["kiosks"] == 1)
        check("its faults", status()["faults"], [])
        command = os.path.join(folder, "velmo")
        shown = subprocess.run([command, "fleet", "--json", *options("viewer")], stdout=subprocess.PIPE,
                               check=True).stdout.decode()
        check("the kiosk is shown", '"kiosk":"k1"' in shown)
        kiosk.end()
        subprocess.run([command, "fleet", "forget", "k1", *options("keeper")], check=True)
        wait_until("forgotten", lambda: viewer.messages["kiosks/k1/summary"] == b"")
        viewer.end()
    finally:
        worker.terminate()
        check("the worker's end", worker.wait(20), 0)


def main():
    with tempfile.TemporaryDirectory() as folder:
        broker = Broker(folder)
        try:
            for name, authority, common_name in [("k1", "kiosks-ca", "k1"), ("k2", "kiosks-ca", "north/k2"),
                                                 ("stranger", "strangers-ca", "k1")]:
                broker.certify(name, authority, common_name)
            check_rights(broker)
            check_strangers(broker)
            check_restart(broker)
            check_programs(broker, sys.argv[1])
        finally:
            broker.stop()
    print("check_fleet_broker.py: the broker of docs/fleet does what it says")


if __name__ == "__main__":
    main()
