#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Installs the Debian packages of a folder in private roots, with what they depend on and nothing else.

Usage: check_installation.py FOLDER [--baseline]
Runs the tests of debian/tests, upgrades the packages of the last release below a program that was packaged with
them, and restarts and purges velmo-fleet. Needs root, for the mounts of tests/packages/root.py. --baseline packages
that program anew with the packages of FOLDER, of a release, and keeps both in tests/packages.
"""

import argparse
import contextlib
import glob
import os
import shlex
import shutil
import subprocess
import sys

from checks import run_all
from packages.root import Root, field, names

SOURCE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BASELINE = os.path.join(SOURCE, "tests/packages")
STATES = '{"device_states": [{"device_id": 1, "enabled": true, "state": "idling"}]}\n'
PACKAGING = """set -eu
cd /tmp
mkdir -p debian root/DEBIAN root/usr/bin
g++ -std=c++17 -fPIC /source/examples/screen/main.cpp -o root/usr/bin/velmolib-screen \
    $(pkg-config --cflags --libs velmolib)
printf 'Source: velmolib-screen\\n\\nPackage: velmolib-screen\\nArchitecture: any\\n' > debian/control
cat > root/DEBIAN/control << END
Package: velmolib-screen
Version: 1
Architecture: $(dpkg --print-architecture)
Maintainer: velmolib maintainers <maintainers@velmolib.invalid>
Depends: $(dpkg-shlibdeps -O root/usr/bin/velmolib-screen | sed 's/^shlibs:Depends=//')
Description: a program that was packaged with an earlier release
END
dpkg-deb --build --root-owner-group root /tmp
"""
# In place of systemctl: writes down what it is asked, and says yes.
RECORDER = '#!/bin/sh\necho "$*" >> /run/asked\n[ "$2" != is-enabled ] || echo enabled\n'


class Debs:
    """The packages of a folder by their names."""

    def __init__(self, folder):
        self.paths, self.stanzas = {}, {}
        for path in glob.glob(f"{folder}/*.deb"):
            stanza = subprocess.run(["dpkg-deb", "--field", path], check=True, capture_output=True, text=True).stdout
            self.paths[field(stanza, "Package")] = path
            self.stanzas[field(stanza, "Package")] = stanza

    def needed(self, wanted):
        """Those of ours among wanted and what they depend on, and all others that are then needed."""
        ours, others, waiting = [], [], list(wanted)
        while waiting:
            name = waiting.pop()
            if name in self.paths and name not in ours:
                ours.append(name)
                waiting += [choices[0] for choices in names(field(self.stanzas[name], "Depends"))]
            elif name not in self.paths:
                others.append(name)
        return ours, others

    def install(self, root, ours):
        for name in ours:
            shutil.copy(self.paths[name], f"{root.path}/tmp")
        return root.run("dpkg", "--install", *(f"/tmp/{os.path.basename(self.paths[name])}" for name in ours))


@contextlib.contextmanager
def root_with(debs, wanted):
    ours, others = debs.needed(wanted)
    root = Root(SOURCE)
    try:
        root.make(others)
        root.write("/usr/sbin/policy-rc.d", "#!/bin/sh\nexit 101\n", 0o755)
        debs.install(root, ours)
        yield root
    finally:
        root.end()


def hold(true, *text):
    if not true:
        raise RuntimeError(" ".join(map(str, text)))


def run_test(debs, stanza):
    wanted = [choices[0] for choices in names(field(stanza, "Depends"))]
    command = field(stanza, "Test-Command") or f"debian/tests/{field(stanza, 'Tests')}"
    with root_with(debs, wanted) as root:
        os.mkdir(f"{root.path}/tmp/test")
        root.run(*shlex.split(command), AUTOPKGTEST_TMP="/tmp/test")


def check_upgrade(debs):
    """A program that was packaged with the last release stays, and runs."""
    last = Debs(BASELINE)
    with root_with(last, ["velmolib-screen"]) as root:
        root.write("/tmp/states", STATES)
        hold("Input money\n" in root.run("sh", "-c", "velmolib-screen < /tmp/states"), "the program does not run")
        ours, _ = debs.needed(["libvelmolib5"])
        for name in ours:
            shutil.copy(debs.paths[name], f"{root.path}/tmp")
        said = root.run("apt-get", "install", "--yes", "-o", "APT::Sandbox::User=root",
                        *(f"/tmp/{os.path.basename(debs.paths[name])}" for name in ours))
        status = root.run("dpkg-query", "-W", "-f", "${db:Status-Abbrev}${Package} ${Version}\n")
        hold("ii velmolib-screen 1\n" in status.replace("  ", " "), "the upgrade removed the program:", said)
        version = field(debs.stanzas["libvelmolib5"], "Version")
        hold(f"libvelmolib5 {version}\n" in status, "the library was not upgraded:", said)
        hold("Input money\n" in root.run("sh", "-c", "velmolib-screen < /tmp/states"), "the program runs no more")


def check_service(debs):
    """Workers that are enabled are restarted with an upgrade, and a purge leaves nothing of them."""
    with root_with(debs, ["velmo-fleet"]) as root:
        root.run("getent", "passwd", "velmo-fleet")
        hold("disabled" in root.run("sh", "-c", "systemctl is-enabled velmo-fleet || true"), "enabled by itself")
        root.run("systemctl", "enable", "velmo-fleet", "velmo-fleet@2-4")
        root.write("/var/lib/velmo-fleet/history.sqlite", "")
        os.remove(f"{root.path}/usr/sbin/policy-rc.d")
        os.makedirs(f"{root.path}/run/systemd/system")
        os.remove(f"{root.path}/bin/systemctl")
        root.write("/bin/systemctl", RECORDER, 0o755)
        debs.install(root, ["velmo-fleet"])
        with open(f"{root.path}/run/asked", encoding="utf-8") as file:
            asked = file.read()
        for command in "daemon-reload", "restart velmo-fleet.service", "try-restart velmo-fleet@*.service":
            hold(command in asked, f"an upgrade does not ask for {command}, but:\n{asked}")
        root.run("dpkg", "--purge", "velmo-fleet")
        with open(f"{root.path}/run/asked", encoding="utf-8") as file:
            asked = file.read()
        for command in "stop velmo-fleet.service", "stop velmo-fleet@*.service":
            hold(command in asked, f"removing does not ask for {command}, but:\n{asked}")
        left = root.run("find", "/", "-xdev", "(", "-path", "/proc", "-o", "-path", "/source", "-o", "-path", "/tmp",
                        ")", "-prune", "-o", "-name", "*velmo-fleet*", "-print")
        hold(not left, "a purge leaves", left)


def make_baseline(debs):
    with root_with(debs, ["libvelmolib-dev", "dpkg-dev", "g++", "pkg-config"]) as root:
        root.run("sh", "-c", PACKAGING)
        for old in glob.glob(f"{BASELINE}/*.deb"):
            os.remove(old)
        for path in [*glob.glob(f"{root.path}/tmp/velmolib-screen_*.deb"), debs.paths["libvelmolib5"],
                     *(debs.paths[name] for name in ["velmolib-l10n"] if name in debs.paths)]:
            print("Keeping", shutil.copy(path, BASELINE))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--baseline", action="store_true")
    given = parser.parse_args()
    if os.environ.get("VELMOLIB_PRIVATE") != str(os.getpid()):
        command = [*(["sudo"] if os.getuid() else []), "unshare", "--mount", "sh", "-c",
                   'VELMOLIB_PRIVATE=$$ exec "$@"', "sh", sys.executable, "-B", *sys.argv]
        os.execvp(command[0], command)
    debs = Debs(given.folder)
    if given.baseline:
        make_baseline(debs)
        return 0
    with open(f"{SOURCE}/debian/tests/control", encoding="utf-8") as file:
        checks = {field(stanza, "Tests") or field(stanza, "Features").partition("=")[2]:
                  lambda debs, stanza=stanza: run_test(debs, stanza) for stanza in file.read().split("\n\n")}
    if field(Debs(BASELINE).stanzas["libvelmolib5"], "Architecture") == field(debs.stanzas["libvelmolib5"], "Architecture"):
        checks["upgrade"] = check_upgrade
    checks["service"] = check_service
    return 0 if run_all(checks, debs, at_once=4) else 1  # they wait for the disk


sys.exit(main())
