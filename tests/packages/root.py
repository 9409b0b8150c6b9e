# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""A private root: the machine's own files of some Debian packages and of what they depend on, and no others.

Nothing is fetched, and nothing of the machine changes: its files are linked into a folder, and an overlay in memory
takes what is written. It lacks what maintainer scripts of Debian's packages made outside /etc.
"""

import os
import re
import shutil
import subprocess
import tempfile

DPKG = "/var/lib/dpkg"


class Packages:
    """The packages that are installed on this machine."""

    def __init__(self):
        self.stanzas, self.providers = {}, {}
        with open(f"{DPKG}/status", encoding="utf-8") as file:
            for stanza in file.read().split("\n\n"):
                name = field(stanza, "Package")
                if not name or "\nStatus: install ok installed" not in stanza:
                    continue
                self.stanzas[name] = stanza
                for provided in names(field(stanza, "Provides")):
                    self.providers.setdefault(provided[0], name)

    def closure(self, wanted):
        """wanted, what is essential, and what these depend on, as far as it is installed here."""
        waiting = [*wanted, *(name for name, stanza in self.stanzas.items()
                              if field(stanza, "Essential") == "yes" or field(stanza, "Priority") == "required")]
        found = set()
        while waiting:
            name = waiting.pop()
            if name in found or name not in self.stanzas:
                continue
            found.add(name)
            stanza = self.stanzas[name]
            for choices in names(field(stanza, "Depends")) + names(field(stanza, "Pre-Depends")):
                here = [choice for choice in choices if choice in self.stanzas]
                here += [self.providers[choice] for choice in choices if choice in self.providers]
                waiting += here[:1]
        return sorted(found)


def field(stanza, name):
    match = re.search(rf"^{name}: *(.*(?:\n[ \t].*)*)", stanza, re.MULTILINE)
    return match.group(1).strip() if match else ""


def names(dependencies):
    """The lists of choices that a field of dependencies has, without versions and architectures."""
    return [[re.match(r"[^\s:(\[]*", choice.strip()).group() for choice in each.split("|")]
            for each in dependencies.split(",") if each.strip()]


class Root:
    """Exists in this process' own mount namespace, until end()."""

    def __init__(self, source):
        self.source = source
        self.folder = tempfile.mkdtemp(prefix="velmolib-root-", dir="/var/tmp")  # beside what is linked
        self.lower = os.path.join(self.folder, "lower")
        self.memory = os.path.join(self.folder, "memory")
        self.path = os.path.join(self.memory, "root")
        self.parents = {}

    def make(self, wanted):
        packages = Packages()
        os.mkdir(self.lower, 0o755)
        for name in os.listdir("/"):
            if os.path.islink(f"/{name}"):  # /lib, which is usr/lib
                os.makedirs(os.path.join(self.lower, os.readlink(f"/{name}").lstrip("/")), exist_ok=True)
                self.link(f"/{name}")
        shutil.copytree("/etc", f"{self.lower}/etc", symlinks=True)
        self.link_files(packages, packages.closure(wanted))
        for name, mode in ("dev", 0o755), ("proc", 0o555), ("run", 0o755), ("source", 0o755), ("tmp", 0o1777):
            os.makedirs(f"{self.lower}/{name}", exist_ok=True)
            os.chmod(f"{self.lower}/{name}", mode)
        self.mount()
        self.run("ldconfig")

    def link(self, path):
        parent, name = os.path.split(path)
        if parent not in self.parents:
            os.makedirs(self.lower + parent, exist_ok=True)
            self.parents[parent] = os.path.realpath(self.lower + parent)
            if os.path.commonpath([self.parents[parent], self.lower]) != self.lower:
                raise RuntimeError(f"{parent} leads out of the private root")
        there = os.path.join(self.parents[parent], name)
        if os.path.lexists(there):
            return
        if os.path.islink(path):
            os.symlink(os.readlink(path), there)
        elif os.path.isdir(path):
            os.mkdir(there, os.stat(path).st_mode & 0o7777)
        elif os.path.isfile(path):
            try:
                os.link(path, there)
            except OSError:  # another file system
                shutil.copy2(path, there)

    def link_files(self, packages, chosen):
        for name in chosen:
            with open(info(name, packages, "list"), encoding="utf-8") as file:
                for path in sorted(file.read().split("\n")):
                    if path not in ("", "/.") and not path.startswith("/etc/"):
                        self.link(path)
        for alternative in os.listdir(f"{DPKG}/alternatives"):
            with open(f"{DPKG}/alternatives/{alternative}", encoding="utf-8") as file:
                for line in file.read().split("\n\n")[0].split("\n")[1:]:
                    if line.startswith("/") and os.path.exists(f"{self.lower}{os.path.realpath(line)}"):
                        self.link(line)
        shutil.copytree(DPKG, self.lower + DPKG, dirs_exist_ok=True, ignore=lambda folder, entries: [
            entry for entry in entries if folder == f"{DPKG}/info" and entry != "format"
            and entry.split(":")[0].rsplit(".", 1)[0] not in chosen and entry.split(":")[0] not in chosen])
        with open(f"{self.lower}{DPKG}/status", "w", encoding="utf-8") as file:
            file.write("".join(f"{packages.stanzas[name]}\n\n" for name in chosen))

    def mount(self):
        os.mkdir(self.memory)
        mount("-t", "tmpfs", "tmpfs", self.memory)
        for name in "upper", "work", "root":
            os.mkdir(f"{self.memory}/{name}")
        mount("-t", "overlay", "overlay", "-o",
              f"lowerdir={self.lower},upperdir={self.memory}/upper,workdir={self.memory}/work", self.path)
        mount("-t", "proc", "proc", f"{self.path}/proc")
        mount("--rbind", "/dev", f"{self.path}/dev")
        mount("--bind", "-o", "ro", self.source, f"{self.path}/source")

    def write(self, path, text, mode=0o644):
        os.makedirs(os.path.dirname(self.path + path), exist_ok=True)
        with open(self.path + path, "w", encoding="utf-8") as file:
            file.write(text)
        os.chmod(self.path + path, mode)

    def run(self, *command, **more):
        environment = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/root", "LC_ALL": "C.UTF-8",
                       "DEBIAN_FRONTEND": "noninteractive", "PYTHONDONTWRITEBYTECODE": "1", **more}
        done = subprocess.run(["chroot", self.path, "sh", "-c", 'cd /source && exec "$@"', "sh", *command],
                              env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)
        if done.returncode:
            raise RuntimeError(f"{' '.join(command)} ended with {done.returncode}:\n{done.stdout}")
        return done.stdout

    def end(self):
        if os.path.ismount(self.memory):
            subprocess.run(["umount", "--recursive", "--lazy", self.memory], check=True)
        shutil.rmtree(self.folder)


def info(name, packages, kind):
    architecture = field(packages.stanzas[name], "Architecture")
    several = f"{DPKG}/info/{name}:{architecture}.{kind}"
    return several if os.path.exists(several) else f"{DPKG}/info/{name}.{kind}"


def mount(*arguments):
    subprocess.run(["mount", *arguments], check=True)
