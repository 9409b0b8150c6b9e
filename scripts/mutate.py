#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

"""Changes one operator, constant or condition at a time and tells which changes no test notices.

Usage: mutate.py [FILE...]   (default: note filters, service state, settings)

Works in a copy of the checkout below build/mutate, builds the library there for every change and runs
the test programs that look at the file. A change that does not compile is not counted. Prints the
survivors and the share that was noticed for each file; the exit code is 1 below 90 %.
"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutate"

# The test programs that look at a file, by the beginning of its path.
TESTS = {
    "src/filters/": ["tst_filters"],
    "src/acceptorstate": ["tst_acceptorstate"],
    "src/acceptorsettings": ["tst_settings"],
    "src/settingstable": ["tst_settings", "tst_formats", "tst_settingsmanager"],
    "src/settingdescription": ["tst_settings", "tst_formats"],
    "src/acceptordevicesettings": ["tst_settings"],
    "src/devicestate": ["tst_devicestate"],
    "src/": ["tst_records", "tst_catalogue", "tst_settingsmanager", "tst_devicestate"],
}

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


def run(*command, timeout=None):
    try:
        done = subprocess.run(command, cwd=WORK, timeout=timeout, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
        return done.returncode == 0
    except subprocess.TimeoutExpired:
        return False


def look_at(name):
    path = WORK / name
    original = path.read_text()
    tests = next(tests for beginning, tests in TESTS.items() if name.startswith(beginning))
    noticed, survivors = 0, []
    try:
        for number, line, text in list(changes(path)):
            path.write_text(text)
            if not run("cmake", "--build", "build/dev", "--target", "velmolib"):
                continue
            if all(run(f"build/dev/tests/{test}", timeout=60) for test in tests):
                survivors.append(f"  {name}:{number}: {line}")
            else:
                noticed += 1
    finally:
        path.write_text(original)
    total = noticed + len(survivors)
    share = 100 * noticed // total if total else 100
    print(f"{name}: {noticed} of {total} changes noticed ({share} %)", *survivors, sep="\n", flush=True)
    return noticed, total


def main():
    names = sys.argv[1:] or sorted(
        str(path.relative_to(ROOT)) for pattern in
        ("src/filters/*.cpp", "src/acceptorstate.cpp", "src/acceptorsettings.cpp",
         "src/setting*.cpp")
        for path in ROOT.glob(pattern))
    subprocess.run(["rm", "-rf", WORK], check=True)
    subprocess.run(["git", "clone", "--quiet", ROOT, WORK], check=True)
    if not (run("cmake", "--preset", "dev", "-DVELMOLIB_WARNINGS_AS_ERRORS=OFF")
            and run("cmake", "--build", "--preset", "dev")):
        sys.exit("mutate.py: the unchanged checkout does not build")
    results = [look_at(name) for name in names]
    noticed, total = (sum(column) for column in zip(*results))
    print(f"In all {noticed} of {total} changes noticed ({100 * noticed // max(total, 1)} %).")
    sys.exit(noticed * 10 < total * 9)


if __name__ == "__main__":
    main()
