#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Installs what is missing, builds the Debian packages in build/package, unpacks them into an empty
# root and uses them from there.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

require_packages "${build_packages[@]}" "${install_packages[@]}" dpkg-dev file lintian
cmake --preset package
cmake --build --preset package
rm -f build/package/*.deb
(cd build/package && cpack)
tests/packages.sh . build/package
ls -l build/package/*.deb
