#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Makes the source archive of a commit, build/source/velmolib-VERSION.tar.xz, the same to the byte whenever it is
# made, and Debian's source package of it. With --alone it then builds, tests and packages what the archive has, in
# a folder of its own without git.
# Usage: release.sh [--alone] [COMMIT]   (default: HEAD)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${package_packages[@]}" git xz-utils
alone=
if [ "${1:-}" = --alone ]; then
    alone=yes
    shift
fi
commit=${1:-HEAD}
version=$(git show "$commit:CMakeLists.txt" | sed -n 's/^project(velmolib VERSION \([0-9.]*\).*/\1/p')
name=velmolib-$version
rm -rf build/source
mkdir -p build/source
git archive --prefix="$name/" "$commit" | xz -9 > "build/source/$name.tar.xz"
git archive --prefix="$name/" "$commit" . ':(exclude)debian' | xz -9 > "build/source/velmolib_$version.orig.tar.xz"
(
    cd build/source
    tar -xf "$name.tar.xz"
    dpkg-source --build "$name"
    lintian --info --pedantic --display-info --fail-on error,warning,info,pedantic ./*.dsc
    sha256sum "$name.tar.xz"
)
[ -n "$alone" ] || exit 0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tar -x -C "$work" -f "build/source/$name.tar.xz"
"$work/$name/scripts/test.sh"
"$work/$name/scripts/package.sh"
