# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Sourced by the other scripts: installs what is missing of the Debian packages that they name.

require_packages()
{
    local missing=() package sudo=
    for package in "$@"; do
        dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -q '^install ok installed$' \
            || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    echo "Installing ${missing[*]}"
    $sudo apt-get update -q
    $sudo env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

build_packages=(cmake g++ ninja-build qtbase5-dev libqt5serialport5-dev qttools5-dev
    qttools5-dev-tools zlib1g-dev dbus fonts-dejavu-core
    libmosquitto-dev prometheus-cpp-dev
    qtdeclarative5-dev qtdeclarative5-dev-tools qml-module-qtquick2 qml-module-qtquick-controls2
    qml-module-qtquick-layouts qml-module-qtquick-window2 qml-module-qttest)
qt6_packages=(qt6-base-dev qt6-base-dev-tools qt6-serialport-dev qt6-l10n-tools qt6-tools-dev
    qt6-tools-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qml6-module-qtqml
    qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-controls
    qml6-module-qtquick-layouts qml6-module-qtquick-templates qml6-module-qtquick-window
    qml6-module-qttest)
install_packages=(make pkg-config qt5-qmake qmake6)
