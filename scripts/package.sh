#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the Debian packages in build/package, unpacks them into an empty
# root and uses them from there. The packages of one commit are the same to the byte wherever and
# whenever they are built.
# Usage: package.sh [PRESET...]   (those alone, which are built and not used)
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/require.sh

require_packages "${build_packages[@]}" "${qt6_packages[@]}" "${install_packages[@]}" debhelper desktop-file-utils devscripts dpkg-dev file help2man lintian systemd
umask 022
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}

# The library tells its build time, which follows SOURCE_DATE_EPOCH, and maps the names of its source
# files itself.
flags()
{
    DEB_BUILD_MAINT_OPTIONS='hardening=+all reproducible=-timeless,-fixfilepath' \
        dpkg-buildflags --get "$1"
}
# Nothing of an earlier build: Ninja does not notice another SOURCE_DATE_EPOCH.
rm -rf build/package build/package-qt6
presets=("$@")
[ $# -gt 0 ] || presets=(package package-qt6)
for preset in "${presets[@]}"; do
    CXXFLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS)" LDFLAGS=$(flags LDFLAGS) cmake --preset $preset
    cmake --build --preset $preset
    (cd build/$preset && cpack -B "$OLDPWD/build/package")
done
[ $# -gt 0 ] || tests/check_packages.sh . build/package
ls -l build/package/*.deb
