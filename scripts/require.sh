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
    wait_for_apt update
    wait_for_apt install -y --no-install-recommends "${missing[@]}"
}

# Runs apt-get; while another one is at work, for ten minutes again and again. Its own option to wait
# knows the lock of dpkg only, not those of the lists and of the archives.
wait_for_apt()
{
    local end=$((SECONDS + 600)) errors
    until errors=$($sudo env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -q "$@" 2>&1 >&3); do
        if [[ $errors != *"Could not get lock"* ]] || [ "$SECONDS" -ge "$end" ]; then
            echo "$errors" >&2
            return 1
        fi
        sleep 2
    done 3>&1
    [ -z "$errors" ] || echo "$errors" >&2
}

build_packages=(cmake g++ ninja-build qtbase5-dev libqt5serialport5-dev libqt5sql5-sqlite libqt5sql5-psql qttools5-dev
    qttools5-dev-tools zlib1g-dev dbus fonts-dejavu-core
    libmosquitto-dev prometheus-cpp-dev libcivetweb-dev mosquitto python3 python3-paho-mqtt
    qtdeclarative5-dev qtdeclarative5-dev-tools qml-module-qtquick2 qml-module-qtquick-controls2
    qml-module-qtquick-layouts qml-module-qtquick-shapes qml-module-qtquick-templates2
    qml-module-qtquick-window2 qml-module-qttest)
qt6_packages=(qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libqt6sql6-psql qt6-serialport-dev qt6-l10n-tools qt6-tools-dev
    qt6-tools-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qml6-module-qtqml
    qml6-module-qtqml-models qml6-module-qtqml-workerscript qml6-module-qtquick qml6-module-qtquick-controls
    qml6-module-qtquick-layouts qml6-module-qtquick-shapes qml6-module-qtquick-templates qml6-module-qtquick-window
    qml6-module-qttest)
install_packages=(make pkg-config qt5-qmake qmake6)
package_packages=(debhelper desktop-file-utils devscripts doxygen dpkg-dev file graphviz help2man lintian systemd)
test_packages=(postgresql)
