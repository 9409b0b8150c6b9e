#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Opens the pages that velmo makes of logs in a browser, and looks at what they show and where.

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

# The texts of pictures that reach out of them, or that cover each other.
COVERED = """
const bad = [];
for (const picture of document.querySelectorAll('.picture svg')) {
    const frame = picture.getBoundingClientRect();
    const texts = [...picture.querySelectorAll('text')].map(text => [text.getBoundingClientRect(), text.textContent]);
    texts.forEach(([a, text], i) => {
        if (a.left < frame.left || a.right > frame.right || a.top < frame.top || a.bottom > frame.bottom)
            bad.push(text);
        for (const [b, other] of texts.slice(i + 1))
            if (a.left < b.right && b.left < a.right && a.top + 2 < b.bottom && b.top + 2 < a.bottom)
                bad.push(text + ' / ' + other);
    });
}
return bad;
"""

# Of the pictures, where a cassette was taken out; and of the bars, how long the certain part is, in hundredths.
CASH = """
const at = e => { const r = e.getBoundingClientRect(); return [r.left, r.right]; };
return {window: window.innerWidth, width: document.documentElement.scrollWidth,
        outside: performance.getEntriesByType('resource').length,
        out: [...document.querySelectorAll('.picture path.outmark')].map(e => (at(e)[0] + at(e)[1]) / 2),
        bars: [...document.querySelectorAll('details[open] .bars tr')].map(row => {
            const [bar, sure] = ['svg', 'rect'].map(tag => at(row.querySelector(tag)));
            return [row.innerText.trim().match(/\\d+$/)[0], (sure[1] - sure[0]) / (bar[1] - bar[0])];
        }),
        open: document.querySelectorAll('details[open]').length, all: document.querySelectorAll('details').length};
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
        wanted = {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        capabilities = {"capabilities": {"alwaysMatch": wanted}}
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


def money_log(periods, clock):
    """The notes of a validator whose cassette is taken out after every hour; perhaps with times."""
    lines = []

    def add(second, **members):
        time = {"time": 1767225600000 + second * 1000} if clock else {}
        lines.append(json.dumps({"device_id": 1, "thread_id": 1, **time, **members}) + "\n")

    for hour in range(periods):
        add(3600 * hour, stacker_present=True, session="start", state="idling", session_sum=0)
        for note in range(20):
            at = 3600 * hour + 150 * (note + 1)
            add(at, state="accepting", current_note=1000)
            stuck = hour + 3 == periods and 4 < note < 10
            add(at + 2, **({"state": "jammed"} if stuck else {"state": "stacked", "session_sum": 1000 * (note + 1)}))
            add(at + 4, state="idling", current_note=0)
        add(3600 * hour + 3500, stacker_present=False)
    return "".join(lines)


def check_cash(browser, velmo, folder):
    log = os.path.join(folder, "log.jsonl")
    page = os.path.join(folder, "page.html")
    for periods, clock, width in [(4, True, 1100), (4, False, 390), (60, True, 390), (60, False, 1100)]:
        with open(log, "w", encoding="utf-8") as lines:
            lines.write(money_log(periods, clock))
        subprocess.run([velmo, "--lang", "en", "cash", log, "--html", page], check=True)
        browser.narrow(width)
        browser.ask("/url", {"url": "file://" + page})
        seen = browser.run(CASH)
        require(seen["outside"] == 0, "the page loads something from elsewhere")
        require(seen["width"] <= seen["window"] == width, f"the page of {width} is {seen['width']} wide")
        broken = browser.run(BROKEN)
        require(not broken, f"numbers are broken or cut off: {broken}")
        covered = browser.run(COVERED)
        require(not covered, f"texts cover each other or are cut off: {covered}")
        require((seen["open"], seen["all"]) == (2, periods), f"{seen['open']} of {seen['all']} periods are shown")
        steps = [right - left for left, right in zip(seen["out"], seen["out"][1:])]
        require(len(steps) == periods - 1, f"{len(steps) + 1} collections are marked")
        require(max(steps) < 1.01 * min(steps) + 0.5, f"the collections are not at even distances: {steps}")
        require(seen["bars"] and all(text == "20000" for text, _ in seen["bars"]), f"the bars: {seen['bars']}")
        require(all(abs(sure - 0.95) < 0.01 for _, sure in seen["bars"]), f"the bars: {seen['bars']}")


def main():
    browser = Browser()
    try:
        with tempfile.TemporaryDirectory() as folder:
            check(browser, sys.argv[1], os.path.realpath(sys.argv[2]), folder)
            check_cash(browser, sys.argv[1], folder)
    finally:
        browser.close()
    print("The pages show notes and money where they belong.")


if __name__ == "__main__":
    main()
