#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

"""Changes one operator, constant or condition at a time and tells which changes no test notices.

Usage: mutate.py [--sample N] [FILE...]
    default: note filters, service state, settings, diagnosis, QML module, fleet
    --sample: so many changes of each file, always the same ones, instead of all

Works in a copy of the last commit below build/mutate, builds what a file's tests need for every change
and runs them, the quick ones first. A change that does not compile is not counted, nor is one that
scripts/mutate.equivalent says nobody could notice. Prints the survivors and the share that was noticed, for
each file, for the rules about money and for the rest; the exit code is 1 below 95 % of the first or 85 % of
the second.
"""

import pathlib
import random
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutate"
EQUIVALENT = set((ROOT / "scripts/mutate.equivalent").read_text().splitlines())

DEFAULT = ("src/filters/*.cpp", "src/acceptorstate.cpp", "src/acceptorsettings.cpp", "src/setting*.cpp",
           "diagnosis/**/*.cpp", "quick/**/*.cpp", "tools/velmo-fleet/*.cpp", "broker/**/*.cpp",
           "history/*.cpp")

# The files whose rules say what becomes of money.
MONEY = re.compile(r"src/filters/|.*/(acceptorstate|explanation|filtermemory|logplayer|notewatch|customeranswer)\.cpp")

# The tests that look at a file, the first row that its path begins with.
TESTS = [
    ("src/filters/", "tst_filters"),
    ("src/acceptorstate", "tst_acceptorstate"),
    ("src/acceptorsettings", "tst_settings"),
    ("src/settingstable", "tst_settings tst_formats tst_settingsmanager"),
    ("src/settingdescription", "tst_settings tst_formats"),
    ("src/acceptordevicesettings", "tst_settings"),
    ("src/devicestate", "tst_devicestate"),
    ("src/", "tst_records tst_catalogue tst_settingsmanager tst_devicestate"),
    (r"diagnosis/.*setting", "tst_formats tst_settingstool tst_explain"),
    (r"diagnosis/.*kiosksummary", "tst_fleet tst_formats fleet"),
    (r"diagnosis/(log/|text/filter)", "tst_explain tst_replay tst_compare tst_velmo tst_formats"),
    ("diagnosis/", "tst_fleet tst_formats tst_replay tst_quick tst_velmo tst_compare tst_explain tst_settingstool "
                   "tst_kiosk"),
    ("quick/", "tst_quick tst_kiosk"),
    ("history/", "tst_history"),
    (r"tools/velmo-fleet/.*(kiosks|metrics)|broker/.*(kiosktopic|brokeroptions)", "tst_fleet fleet"),
    ("", "fleet"),
]
TARGETS = {"fleet": ["velmo", "velmo-fleet"]}  # of tests that are no programs

# What is looked for, and what takes its place. Operators have blanks around them, which tells them
# from templates and pointers.
MUTATIONS = [
    (r" == ", " != "), (r" != ", " == "),
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ ", " - "), (r" - ", " + "), (r"\+\+", "--"), (r"--", "++"), (r" \+= ", " -= "),
    (r"(?<=[(\s])!(?=[a-z])", ""),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"(?<![\w.\"%])\d+U?\b(?![\w.\"])", lambda found: str(int(found.group().rstrip("U")) + 1)),
]


def changes(path):
    """Yields each changed text of a file with the line that changed."""
    lines = path.read_text().splitlines(keepends=True)
    for number, line in enumerate(lines):
        code = re.sub(r'"(\\.|[^"\\])*"|u?\'(\\.|[^\'\\])+\'', lambda s: "\0" * len(s.group()), line)
        code = code.split("//")[0]
        if code.lstrip().startswith(("#", "template", "using", "*", "/*")):
            continue
        for pattern, replacement in MUTATIONS:
            for found in re.finditer(pattern, code):
                new = replacement(found) if callable(replacement) else replacement
                changed = line[: found.start()] + new + line[found.end():]
                yield number + 1, changed.strip(), "".join(lines[:number] + [changed] + lines[number + 1:])


def run(*command):
    return subprocess.run(command, cwd=WORK, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


def build(test):
    return run("cmake", "--build", "build/dev", "--target", *TARGETS.get(test, [test]))


def passes(test, patience):
    return run("ctest", "--test-dir", "build/dev", "--no-tests=error", "--timeout", str(patience),
               "-R", f"^{test}$")


def tests_of(name):
    return next(tests.split() for pattern, tests in TESTS if re.match(pattern, name))


def how_long(test):
    """How long a test may take, when it took so long without a change."""
    start = time.monotonic()
    if not build(test) or not passes(test, 1000):
        sys.exit(f"mutate.py: {test} fails without a change")
    return 30 + 10 * int(time.monotonic() - start)


def is_noticed(tests, patience):
    """None for a change that does not compile."""
    for test in tests:
        if not build(test):
            return None
        if not passes(test, patience[test]):
            return True
    return False


def look_at(name, sample, patience):
    path = WORK / name
    original = path.read_text()
    chosen = [change for change in changes(path) if f"{name}: {change[1]}" not in EQUIVALENT]
    if sample and sample < len(chosen):
        chosen = random.Random(name).sample(chosen, sample)
    noticed, survivors = 0, []
    try:
        for number, line, text in chosen:
            path.write_text(text)
            found = is_noticed(tests_of(name), patience)
            if found is None:
                continue
            if found:
                noticed += 1
            else:
                survivors.append(f"  {name}:{number}: {line}")
    finally:
        path.write_text(original)
    total = noticed + len(survivors)
    print(f"{name}: {share(noticed, total)}", *survivors, sep="\n", flush=True)
    return noticed, total


def share(noticed, total):
    return f"{noticed} of {total} changes noticed" + (f" ({100 * noticed // total} %)" if total else "")


def main():
    names = sys.argv[1:]
    sample = 0
    if names and names[0] == "--sample":
        sample = int(names[1])
        names = names[2:]
    names = names or sorted(str(path.relative_to(ROOT)) for pattern in DEFAULT for path in ROOT.glob(pattern))
    if not WORK.exists():
        subprocess.run(["git", "clone", "--quiet", ROOT, WORK], check=True)
    subprocess.run(["git", "-C", WORK, "fetch", "--quiet", ROOT, "HEAD"], check=True)
    subprocess.run(["git", "-C", WORK, "reset", "--quiet", "--hard", "FETCH_HEAD"], check=True)
    if not (run("cmake", "--preset", "dev", "-DVELMOLIB_WARNINGS_AS_ERRORS=OFF")
            and run("cmake", "--build", "build/dev", "--target", "velmolib_translations")):
        sys.exit("mutate.py: the unchanged checkout does not build")
    patience = {test: how_long(test) for test in sorted({test for name in names for test in tests_of(name)})}
    is_enough = True
    results = [(MONEY.match(name) is not None, *look_at(name, sample, patience)) for name in names]
    for is_money, what, least in ((True, "rules about money", 95), (False, "the rest", 85)):
        noticed = sum(result[1] for result in results if result[0] == is_money)
        total = sum(result[2] for result in results if result[0] == is_money)
        print(f"In all, of {what}: {share(noticed, total)}.")
        is_enough = is_enough and 100 * noticed >= least * total
    sys.exit(not is_enough)


if __name__ == "__main__":
    main()
