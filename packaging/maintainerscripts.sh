#!/bin/sh
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Has debhelper write the maintainer scripts of a package with these units into debian/PACKAGE/DEBIAN of the
# current folder. Nothing is enabled or started at an installation, which cannot know the broker.
# Usage: maintainerscripts.sh PACKAGE UNIT...
set -eu
package=$1
shift
rm -rf debian
install -D -m 644 -t "debian/$package/lib/systemd/system" "$@"
cat > debian/control << END
Source: $package
Build-Depends: debhelper-compat (= 13)

Package: $package
Architecture: any
END
dh_installsystemd --no-enable
dh_installdeb
