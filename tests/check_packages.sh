#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks the Debian packages of a folder: unpacks them into an empty root, those for Qt 5 and for Qt 6
# side by side, and uses them from there. Then installs them in private roots.
# Usage: check_packages.sh SOURCE_DIR FOLDER
set -euo pipefail
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

fail()
{
    echo "check_packages.sh: $*" >&2
    exit 1
}

lintian --info --pedantic --display-info --fail-on error,warning,info,pedantic "$2"/*.changes
for package in $(sed -n 's/^Package: //p' "$1/debian/control"); do
    deb=$(ls "$2/${package}_"*.deb)
    dpkg-deb --field "$deb" Package Version Depends
    dpkg-deb --fsys-tarfile "$deb" | tar -t | grep -v '/$' >> "$root/files"
    dpkg-deb --extract "$deb" "$root"
done
version=$(pkg-config --modversion "$root"/usr/lib/*/pkgconfig/velmolib.pc)
[[ $(dpkg-parsechangelog -l "$1/debian/changelog" -S Version) == "$version"-* ]] \
    || fail "debian/changelog does not begin with $version"
[[ $(grep -m 1 '^## ' "$1/CHANGELOG.md") == "## $version,"* ]] \
    || fail "CHANGELOG.md does not begin with $version"
shared=$(sort "$root/files" | uniq -d)
[ -z "$shared" ] || fail "in two packages: $shared"
dpkg-deb --field "$2"/libvelmolib5_*.deb Depends | grep -q 'libqt5core5a (>= 5\.15'
dpkg-deb --field "$2"/libvelmolib-qt6-5_*.deb Depends | grep -q 'libqt6core6 (>= 6\.4'
# Debian 12 builds nothing with control flow protection. The library calls no function of which the
# compiler makes the fortified form; the tool, built with the same flags, does.
hardening-check --nocfprotection "$root"/usr/bin/velmo
hardening-check --nocfprotection --nofortify "$root"/usr/lib/*/libvelmolib*.so.5.*
! grep -rqF "$(realpath "$1")/" "$root" || fail "a package names the folder that it was built in"
for library in "$root"/usr/lib/*/libvelmolib*.so.5.*; do
    grep -qazx src/acceptors.cpp "$library" || fail "log lines do not name their file as in the tree"
done
help=$(LD_LIBRARY_PATH=$(echo "$root"/usr/lib/*-linux-gnu) LC_ALL=C.UTF-8 \
    "$root"/usr/bin/velmo-fleet --lang ru --help)
[[ $help == *терминал* ]] || fail "velmo-fleet does not find its texts"
desktop-file-validate "$root"/usr/share/applications/velmo-settings.desktop
units=$root/lib/systemd/system
manual=$(sed -n 's/^Documentation=man:\(.*\)(1)$/\1/p' "$units"/velmo-fleet.service)
zgrep -q partition "$root/usr/share/man/man1/$manual.1.gz"
# A worker, and one of a part, with a password that only root may read.
cp "$units"/velmo-fleet@.service "$units"/velmo-fleet@2-4.service
for unit in velmo-fleet.service velmo-fleet@.service; do
    install -D -m 644 -t "$root/etc/systemd/system/$unit.d" "$root"/usr/share/doc/velmo-fleet/fleet/credentials.conf
done
for unit in velmo-fleet.service velmo-fleet@2-4.service; do
    faults=$(systemd-analyze verify --root="$root" --man=no --recursive-errors=no "$unit" 2>&1) && [ -z "$faults" ] \
        || fail "$unit: $faults"
    systemd-analyze security --offline=true --threshold=20 --root="$root" "$unit" > /dev/null
done
for qt_major in 5 6; do
    "$(dirname "$0")/installed.sh" "$1" "$root/usr" $qt_major
done
"$(dirname "$0")/check_installation.py" "$2"
