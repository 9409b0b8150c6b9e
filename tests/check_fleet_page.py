#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Opens the page of a velmo-fleet worker in a browser while kiosks change, and the worker and its broker come and go.

Usage: check_fleet_page.py BIN    (BIN has velmo-fleet; needs chromium, chromedriver, mosquitto and paho-mqtt)
"""

import http.client
import json
import os
import shutil
import socket
import subprocess
import sys
import tempfile
import time

import paho.mqtt.client as mqtt

from check_page import Browser
from fleet.world import free_port

MOSQUITTO = shutil.which("mosquitto", path=os.environ["PATH"] + ":/usr/sbin")
HOSTILE = "<img src=x onerror=hit=1>"
HOSTILE_TEXT = "</script><script>hit=1</script>\u202e<b>"
SHOWN_TEXT = "</script><script>hit=1</script>\\u202e<b>"

# What a reader sees: the rows, and what says how true they are.
LOOK = """
const column = i => [...document.querySelectorAll('#rows > tr:not(.detail)')].map(row => row.children[i].innerText);
return {title: document.title, state: document.getElementById('state').textContent, old: document.body.className,
        names: column(1), conditions: column(0), faults: column(4), more: document.getElementById('more').textContent,
        counts: document.getElementById('counts').innerText.split(/\\s*\\n/), detail: (document.querySelector('.detail') || {}).innerText,
        width: document.documentElement.scrollWidth, window: innerWidth, focus: document.activeElement.innerText,
        sorted: [...document.querySelectorAll('[aria-sort]')].map(head => [head.innerText.split(/\\s/)[0], head.ariaSort]),
        outside: performance.getEntriesByType('resource').filter(each => !each.name.startsWith(location.origin)).length,
        told: document.elementFromPoint(100, document.getElementById('state').getBoundingClientRect().top + 5)?.id === 'state',
        made: document.querySelectorAll('img, b:not(#counts b), script').length, hit: typeof hit};
"""


def require(condition, what):
    if not condition:
        raise SystemExit(f"check_fleet_page.py: {what}")


class Fleet:
    def __init__(self, bin_folder, folder):
        self.bin = bin_folder
        self.folder = folder
        self.port, self.page = free_port(), free_port()
        self.started = []
        with open(os.path.join(folder, "mosquitto.conf"), "w", encoding="utf-8") as config:
            config.write(f"listener {self.port} 127.0.0.1\nallow_anonymous true\nuser root\n"
                         "max_inflight_messages 1000\nmax_queued_messages 0\n")
        self.start_broker()
        self.start_worker("en")

    def start(self, *command):
        with open(os.path.join(self.folder, "log"), "a", encoding="utf-8") as log:
            process = subprocess.Popen(command, stdout=log, stderr=log)
        self.started.append(process)
        return process

    def start_broker(self):
        self.broker = self.start(MOSQUITTO, "-c", os.path.join(self.folder, "mosquitto.conf"))
        self.wait_for(self.port)

    def start_worker(self, language):
        history = os.path.join(self.folder, "history.sqlite")
        self.worker = self.start(os.path.join(self.bin, "velmo-fleet"), "--broker", f"127.0.0.1:{self.port}", "--name",
                                 "page", "--lang", language, "--history", history, "--metrics", str(self.page))
        self.wait_for(self.page)

    def wait_for(self, port):
        for _ in range(200):
            with socket.socket() as probe:
                if probe.connect_ex(("127.0.0.1", port)) == 0:
                    return
            require(self.started[-1].poll() is None, f"{self.started[-1].args[0]} ended")
            time.sleep(0.05)
        raise SystemExit("check_fleet_page.py: nobody answers")

    def publish(self, faults):
        """The state of each kiosk: a note validator with what is wrong, and a coin acceptor that works."""
        client = mqtt.Client()
        client.max_queued_messages_set(0)
        client.max_inflight_messages_set(500)
        client.connect("127.0.0.1", self.port)
        client.loop_start()
        works = {"enabled": True, "online": True, "stacker_present": True, "state": "idling"}
        for kiosk, wrong in faults.items():
            devices = [{"device_id": 7, "thread_id": 2, **works, **wrong}, {"device_id": 100, "thread_id": 9, **works}]
            state = {"time": int(time.time() * 1000), "device_states": devices}
            last = client.publish(f"kiosks/{kiosk}/state", json.dumps(state), 1, True)
        last.wait_for_publish()
        client.disconnect()
        client.loop_stop()

    def ask(self, path, method="GET"):
        connection = http.client.HTTPConnection("127.0.0.1", self.page, timeout=10)
        connection.request(method, path)
        answer = connection.getresponse()
        return answer.status, dict(answer.getheaders()), answer.read().decode()

    def end(self):
        for process in reversed(self.started):
            if process.poll() is None:
                process.kill()
            process.wait()


class Page:
    def __init__(self, browser, fleet):
        self.browser = browser
        browser.ask("/url", {"url": f"http://127.0.0.1:{fleet.page}/"})

    def look(self):
        return self.browser.run(LOOK)

    def until(self, what, is_so, seconds=20):
        end = time.monotonic() + seconds
        while True:
            seen = self.look()
            if is_so(seen):
                return seen
            require(time.monotonic() < end, f"after {seconds} s still not: {what}; it shows: "
                    f"{seen['title']}, {seen['state']}, {seen['counts']}, {seen['names'][:20]}, {seen['detail']}")
            time.sleep(0.1)

    def choose(self, name, value):
        self.browser.run(f"""
            const filter = document.getElementById('filters').elements[{json.dumps(name)}];
            if (filter.type === 'checkbox') filter.checked = {json.dumps(value)}; else filter.value = {json.dumps(value)};
            filter.dispatchEvent(new Event('input', {{bubbles: true}}));""")

    def press(self, selector, key="\ue007"):
        self.browser.run(f"document.querySelector({json.dumps(selector)}).focus();")
        keys = [{"type": kind, "value": key} for kind in ("keyDown", "keyUp")]
        self.browser.ask("/actions", {"actions": [{"type": "key", "id": "keys", "actions": keys}]})


def check_requests(fleet):
    end = time.monotonic() + 20
    while fleet.ask("/history.json")[0] != 200: # until the worker has made it
        require(time.monotonic() < end, "there is no history")
        time.sleep(0.1)
    for path, status in {"/": 200, "/kiosks.json": 200, "/kiosks.json?all=1": 200, "/metrics": 200, "/history.json": 200,
                         "/history.json?kiosk=" + "%00%ff" * 2000: 200, "/favicon.ico": 404, "/..%2f..%2fetc/passwd": 404}.items():
        got, headers, body = fleet.ask(path)
        require(got == status, f"{path}: {got}")
        require(headers["X-Content-Type-Options"] == "nosniff" and headers["Cache-Control"] == "no-store", f"{path}: {headers}")
        require("default-src 'none'" in headers["Content-Security-Policy"], f"{path}: {headers}")
        if "json" in path:
            json.loads(body)
    require("velmo_fleet_kiosks{" in fleet.ask("/metrics")[2], "no metrics")
    require(fleet.ask("/kiosks.json", "HEAD")[0::2] == (200, ""), "HEAD")
    for method in ("POST", "PUT", "DELETE", "OPTIONS"):
        require(fleet.ask("/kiosks.json", method)[0] == 405, method)


def check_table(page, fleet):
    fleet.publish({"north-k2": {"stacker_full": True}, "north-k10": {"stacker_present": False}, "south-k1": {"enabled": False, "halt": True},
                   "fine-k1": {}, HOSTILE: {"error_critical": True, "error_text": HOSTILE_TEXT}})
    seen = page.until("all are there", lambda seen: len(seen["names"]) == 4)
    require(seen["names"] == [HOSTILE, "north-k2", "north-k10", "south-k1"], f"names in natural order: {seen['names']}")
    require(SHOWN_TEXT in seen["faults"][0], seen["faults"][0])
    require("halted" in seen["faults"][3].splitlines()[0], f"the worst fault is not first: {seen['faults'][3]}")
    require((seen["made"], seen["hit"]) == (2, "undefined"), f"texts from outside were taken as HTML: {seen}")
    require("4 faulty" in seen["counts"] and "1 fine" in seen["counts"], str(seen["counts"]))
    require(seen["title"] == "(4) Kiosks" and seen["state"].startswith("As of ") and seen["old"] == "", str(seen))
    require(seen["sorted"] == [["Condition", "ascending"]], str(seen["sorted"]))

    page.press("[data-column=kiosk]")
    page.press("[data-column=kiosk]")
    seen = page.look()
    require(seen["names"] == ["south-k1", "north-k10", "north-k2", HOSTILE], f"names down: {seen['names']}")
    require(seen["sorted"] == [["Kiosk", "descending"]], str(seen["sorted"]))
    page.press("[data-column=kiosk]")

    for name, value, left in [("name", "K1", ["north-k10", "south-k1"]), ("name", "<IMG", [HOSTILE]), ("region", "north", ["north-k2", "north-k10"]),
                              ("reason", "stacker_full", ["north-k2"]), ("condition", "silent", [])]:
        page.choose(name, value)
        seen = page.look()
        require(seen["names"] == left, f"{name} {value}: {seen['names']}")
        require(left or seen["more"] == "No kiosk matches the filters.", seen["more"])
        page.choose(name, "")
    page.choose("all", True)
    page.until("the fine one is shown", lambda seen: "fine-k1" in seen["names"])
    page.choose("all", False)

    # What changes comes by itself, and whoever is on a row stays there.
    page.browser.run("document.querySelectorAll('#rows button')[2].focus();")
    fleet.publish({"fine-k1": {"enabled": False}, "north-k2": {}})
    seen = page.until("changes are shown", lambda seen: seen["names"] == [HOSTILE, "fine-k1", "north-k10", "south-k1"])
    require(seen["focus"] == "north-k10", f"the keyboard is on {seen['focus']}")


def check_history(page, fleet):
    fleet.publish({"north-k2": {"stacker_full": True}})
    page.until("it is faulty again", lambda seen: "north-k2" in seen["names"])
    page.choose("name", "north-k2")
    page.press("#rows button")
    seen = page.until("its history is shown", lambda seen: (seen["detail"] or "").count("still so") == 2)
    for text in ("Faults", "The stacker is full.", "Collections", "Conditions", "fine"):
        require(text in seen["detail"], f"{text} is not in: {seen['detail']}")
    parts = page.browser.run("return [...document.querySelectorAll('.line rect')].map(part => part.className.baseVal);")
    require(parts == ["faulty", "fine", "faulty"], f"the timeline: {parts}")
    page.until("how often", lambda seen: "2× this month" in page.browser.run("return document.querySelector('#rows').innerText;"))
    page.press("#rows button")
    require(page.look()["detail"] is None, "the history stays open")
    page.choose("name", "")


def check_many(page, fleet):
    fleet.publish({f"many-{i}": {"halt": True} for i in range(5000)})
    seen = page.until("all are counted", lambda seen: "5,005 faulty" in seen["counts"], 60)
    require(len(seen["names"]) == 300 and "4,705" in seen["more"], f"{len(seen['names'])} rows; {seen['more']}")
    took = page.browser.run("const begin = performance.now(); show(); return performance.now() - begin;")
    require(took < 1000, f"the table takes {took} ms")
    for width in (360, 1200):
        page.browser.narrow(width)
        seen = page.look()
        require(seen["width"] <= seen["window"] == width, f"at {width} the page has a width of {seen['width']}")


def check_truth(page, fleet):
    """It never goes on looking fresh."""
    page.browser.run("scrollTo(0, 3000);")
    fleet.broker.terminate()
    seen = page.until("there is no broker", lambda seen: "no connection to the broker" in seen["state"])
    require("old" in seen["old"].split() and seen["title"] == "(?) Kiosks" and seen["told"], f"it looks fresh: {seen}")
    fleet.broker.wait()
    fleet.start_broker()
    page.until("it is connected again", lambda seen: seen["old"] == "", 60)
    fleet.worker.kill()
    fleet.worker.wait()
    seen = page.until("the worker is gone", lambda seen: "The worker does not answer: what is shown is from" in seen["state"])
    require(seen["old"] == "old" and seen["title"] == "(?) Kiosks", f"it looks fresh: {seen}")
    fleet.start_worker("ru")
    page.until("it answers again", lambda seen: seen["old"] == "", 60)


def check_end(fleet):
    with socket.create_connection(("127.0.0.1", fleet.page)) as slow:
        slow.sendall(b"GET / HTTP/1.1\r\nHost: ")
        time.sleep(0.2)
        fleet.worker.terminate()
        require(fleet.worker.wait(15) == 0, f"the worker ended with {fleet.worker.returncode}")


def main():
    browser = Browser()
    with tempfile.TemporaryDirectory() as folder:
        fleet = Fleet(os.path.realpath(sys.argv[1]), folder)
        try:
            check_requests(fleet)
            page = Page(browser, fleet)
            check_table(page, fleet)
            check_history(page, fleet)
            check_many(page, fleet)
            complaints = browser.ask("/se/log", {"type": "browser"})
            require(not complaints, f"the browser complains: {complaints}")
            require(page.look()["outside"] == 0, "the page asks for something from elsewhere")
            check_truth(page, fleet)
            browser.ask("/refresh", {})
            words = browser.run("return [document.documentElement.lang, document.querySelector('h1').textContent];")
            require(words[0] == "ru" and words[1] != "Kiosks", f"not in Russian: {words}")
            fleet.start(os.path.join(fleet.bin, "velmo-fleet"), "--broker", f"127.0.0.1:{fleet.port}", "--name", "page")
            page.until("two workers have one name", lambda seen: "такое же имя" in seen["state"] and "doubtful" in seen["old"])
            check_end(fleet)
        finally:
            fleet.end()
            browser.close()
    print("The page of a fleet shows what is so, and says when it does not know.")


if __name__ == "__main__":
    main()
