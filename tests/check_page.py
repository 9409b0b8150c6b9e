#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Opens the page that velmo makes of sample logs in a browser, and looks at what it shows and where.

Usage: check_page.py VELMO SAMPLES    (needs chromium and chromedriver)
"""

import json
import os
import socket
import subprocess
import sys
import tempfile
import time
import urllib.request

# What a reader sees of the page: each sentence with its mark, and the pictures' places.
LOOK = """
const box = e => { const r = e.getBoundingClientRect(); return [r.left, r.top, r.right, r.bottom]; };
const answers = [...document.querySelectorAll('li.answer')].map(answer => {
    const mark = document.getElementById(answer.querySelector('a').hash.slice(1));
    return {text: answer.innerText, mark: mark && box(mark),
            picture: mark && box(mark.closest('svg')), session: box(answer.closest('details'))};
});
return {title: document.title, answers: answers, width: document.documentElement.scrollWidth,
        window: window.innerWidth, outside: performance.getEntriesByType('resource').length};
"""

# The numbers outside of the pictures that go on in a further line or outside of the window.
BROKEN = """
const broken = [];
const texts = document.createTreeWalker(document.querySelector('main'), NodeFilter.SHOW_TEXT);
while (texts.nextNode()) {
    const text = texts.currentNode;
    for (const number of text.parentElement.closest('svg') ? [] : text.data.matchAll(/\\d+/g)) {
        const range = document.createRange();
        range.setStart(text, number.index);
        range.setEnd(text, number.index + number[0].length);
        const boxes = [...range.getClientRects()];
        if (boxes.length > 1 || boxes.some(box => box.right > window.innerWidth)) broken.push(number[0]);
    }
}
return broken;
"""


class Browser:
    def __init__(self):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            self.port = free.getsockname()[1]
        self.driver = subprocess.Popen(
            ["chromedriver", f"--port={self.port}"], stdout=subprocess.DEVNULL
        )
        self.path = ""
        options = {"args": ["--headless", "--no-sandbox", "--disable-gpu", "--window-size=1000,900"]}
        capabilities = {"capabilities": {"alwaysMatch": {"goog:chromeOptions": options}}}
        for _ in range(600):
            try:
                self.path = "/session/" + self.ask("/session", capabilities)["sessionId"]
                return
            except OSError:
                time.sleep(0.2)
        raise SystemExit("check_page.py: no browser")

    def ask(self, path, body):
        request = urllib.request.Request(
            f"http://127.0.0.1:{self.port}{self.path}{path}",
            json.dumps(body).encode(),
            {"Content-Type": "application/json"},
        )
        with urllib.request.urlopen(request, timeout=300) as answer:
            return json.load(answer)["value"]

    def run(self, script):
        return self.ask("/execute/sync", {"script": script, "args": []})

    def narrow(self, width):
        metrics = {"width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False}
        command = {"cmd": "Emulation.setDeviceMetricsOverride", "params": metrics}
        self.ask("/goog/cdp/execute", command)

    def close(self):
        self.driver.terminate()
        self.driver.wait()


def require(condition, what):
    if not condition:
        raise SystemExit(f"check_page.py: {what}")


def check(browser, velmo, samples, folder):
    logs = [os.path.join(samples, name) for name in ("fished-note.jsonl", "session-sum.jsonl")]
    page = os.path.join(folder, "page.html")
    explain = [velmo, "--lang", "en", "explain", *logs, "--filters", f"{samples}/filters.json"]
    subprocess.run([*explain, "--html", page], check=True)
    notes = [json.loads(line) for line in subprocess.check_output([*explain, "--json"]).splitlines()]
    notes = [note for note in notes if note["kind"] == "note"]

    browser.ask("/url", {"url": "file://" + page})
    seen = browser.run(LOOK)
    require(seen["title"].startswith("What became of each note"), seen["title"])
    require(seen["outside"] == 0, "the page loads something from elsewhere")
    require(seen["width"] <= seen["window"], "the page is wider than its window")
    require(len(seen["answers"]) == len(notes), f"{len(seen['answers'])} sentences")
    before = None
    for note, shown in zip(notes, seen["answers"]):
        require(note["text"] in " ".join(shown["text"].split()), f"it says: {shown['text']}")
        require(shown["mark"], f"no mark for: {note['text']}")
        left, top, right, bottom = shown["mark"]
        frame = shown["picture"]
        inside = frame[0] <= left and right <= frame[2] and frame[1] <= top and bottom <= frame[3]
        require(inside and right > left, f"its mark is outside the picture: {note['text']}")
        place = (note["log"], note["session"], note["device"])
        if before and before[0] == place:
            require(left > before[1], f"its mark is not right of the one before: {note['text']}")
        before = (place, left)

    # A sentence leads to its mark, also for the keyboard.
    browser.run("document.querySelector('li.answer a').focus(); document.activeElement.click();")
    require(browser.run("return document.querySelector(':target') !== null;"), "a link leads nowhere")

    # On a telephone: a note with a lot of evidence, which is marked where only refusals are told.
    log = os.path.join(folder, "log.jsonl")
    rejected = '{"state":"accepting","current_note":1000}\n{"state":"rejected"}\n{"state":"idling"}\n'
    with open(log, "w", encoding="utf-8") as lines:
        lines.write('{"session":"start","device_id":1}\n' + 30 * rejected)
        lines.write('{"state":"accepting","current_note":1000,"session_sum":2000000000}\n')
    filters = os.path.join(folder, "filters.json")
    with open(filters, "w", encoding="utf-8") as file:
        json.dump([{"name": "AttemptsFilter", "params": {"denom": 1000, "attempts": 20}}], file)
    explain = [velmo, "--lang", "en", "explain", log, "--filters", filters, "--refusals"]
    subprocess.run([*explain, "--html", page], check=True)
    browser.narrow(390)
    browser.ask("/url", {"url": "file://" + page})
    seen = browser.run(LOOK)
    require(seen["window"] == 390, f"the window has a width of {seen['window']}")
    require(seen["width"] <= 390, f"the page is too wide for a telephone: {seen['width']}")
    broken = browser.run(BROKEN)
    require(not broken, f"numbers are broken or cut off: {broken}")
    marks = browser.run("return document.querySelectorAll('a.mark.rejected').length;")
    told = browser.run("return document.querySelectorAll('li.answer').length;")
    require((marks, told) == (20, 11), f"{marks} rejections are marked, {told} notes told")
    leading = "a => document.getElementById(a.getAttribute('href').slice(1))"
    leads = browser.run(f"return [...document.querySelectorAll('a')].every({leading});")
    require(leads, "a link leads nowhere")


def main():
    browser = Browser()
    try:
        with tempfile.TemporaryDirectory() as folder:
            check(browser, sys.argv[1], os.path.realpath(sys.argv[2]), folder)
    finally:
        browser.close()
    print("The page shows its notes where they belong.")


if __name__ == "__main__":
    main()
