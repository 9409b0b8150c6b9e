#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the Debian packages from a copy of this tree in build/package, and looks at
# them and uses them there. The packages of one tree are the same to the byte wherever and whenever they are
# built.
# Usage: package.sh [--qt5-only]   (the packages that Qt 6 has no part in, which are built and not used)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" "${qt6_packages[@]}" "${install_packages[@]}" "${package_packages[@]}"
rm -rf build/package
mkdir -p build/package/source
tar -c --exclude=./build --exclude=./.git . | tar -x -C build/package/source
unset CMAKE_CXX_COMPILER_LAUNCHER # a cache writes other paths into what debuggers read
profiles=
[ "${1:-}" != --qt5-only ] || profiles=pkg.velmolib.qt5only
(cd build/package/source \
    && DEB_BUILD_OPTIONS=terse dpkg-buildpackage --build=binary --no-sign --build-profiles="$profiles")
[ $# -gt 0 ] || tests/check_packages.sh . build/package
ls -l build/package/*.deb
