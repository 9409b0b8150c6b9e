#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Checks the Debian packages of a folder: unpacks them into an empty root and uses them from there.
# Usage: packages.sh SOURCE_DIR FOLDER
set -euo pipefail
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

fail()
{
    echo "packages.sh: $*" >&2
    exit 1
}

lintian --fail-on error --suppress-tags bad-distribution-in-changes-file "$2"/*.deb
for package in libvelmolib5 libvelmolib-dev velmo; do
    deb=$(ls "$2/${package}_"*.deb)
    dpkg-deb --field "$deb" Package Version Depends
    dpkg-deb --extract "$deb" "$root"
done
version=$(dpkg-deb --field "$2"/libvelmolib5_*.deb Version)
[ "$(dpkg-parsechangelog -l "$1/packaging/changelog" -S Version)" = "$version" ] \
    || fail "packaging/changelog does not begin with $version"
[ "$(grep -m 1 '^## ' "$1/CHANGELOG.md")" = "## $version" ] \
    || fail "CHANGELOG.md does not begin with $version"
dpkg-deb --field "$2"/libvelmolib5_*.deb Depends | grep -q 'libqt5core5a (>= 5\.15'
"$(dirname "$0")/installed.sh" "$1" "$root/usr"
