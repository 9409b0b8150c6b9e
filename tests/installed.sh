#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Uses an installed copy the way a newcomer would: builds the examples with CMake, with pkg-config
# and with qmake, outside the source tree, and runs them, velmo and a program of the QML module.
# The copy is moved first: it must work wherever it lies.
# Usage: installed.sh SOURCE_DIR PREFIX [QT_MAJOR]   (default: 5)
set -euo pipefail
source_dir=$(realpath "$1")
case ${3:-5} in
    5) package=velmolib qmake=qmake ;;
    6) package=velmolib-qt6 qmake=qmake6 ;;
esac
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cp -a "$2" "$prefix"

fail()
{
    echo "installed.sh: $*" >&2
    exit 1
}

cp -r "$source_dir"/examples/{service,screen,configuration} "$work"
lib=$(dirname "$(find "$prefix" -name "lib$package.so")")
export LD_LIBRARY_PATH=$lib PKG_CONFIG_PATH=$lib/pkgconfig
cd "$work"

cmake -S service -B service/build -DVELMOLIB=$package -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release
cmake --build service/build
g++ -std=c++17 -fPIC -Wall -Wextra -Werror screen/main.cpp -o screen/screen -MMD \
    $(pkg-config --cflags --libs $package)
(cd configuration && QT_SELECT=5 $qmake configuration.pro && make -s)

! grep -rqIF "$source_dir/" "$work" || fail "an example was built with the source tree"
for version in 4 6; do
    printf 'cmake_minimum_required(VERSION 3.16)\nproject(x)\nfind_package(%s %s CONFIG)\nif(%s_FOUND)\nmessage(FATAL_ERROR found)\nendif()\n' \
        $package $version $package > CMakeLists.txt
    cmake -S . -B "version$version" -DCMAKE_PREFIX_PATH="$prefix" > /dev/null 2>&1 \
        || fail "version $version of the library was found"
done
[ -z "$(find "$prefix" -name '*_p.h')" ] || fail "a private header is installed"

service/build/service > states
[ "$(wc -l < states)" -eq 3 ] || fail "the service published: $(cat states)"
screen/screen < states > shown
grep -qx 'Input money' shown || fail "the screen shows: $(cat shown)"
grep -qx 'Status: disabled money acceptinng or summ overflow' shown || fail "$(cat shown)"
configuration/configuration < "$source_dir/samples/settings.json" > settings
velmo=$prefix/bin/velmo
[ "$("$velmo" settings get settings device0/hw_interface/portname)" = ttyS7 ] || fail "$(cat settings)"
[ "$("$velmo" settings get settings acceptor_common/attempts_filter_settings)" = \
    '[{"attempts":"3","denom":"1000"},{"attempts":"2","denom":"5000"}]' ] || fail "$(cat settings)"

"$velmo" report - --lang ru < states > shown
grep -qx 'Внесите купюры' shown || fail "velmo shows: $(cat shown)"
for folder in "$source_dir"/translations/*/; do
    "$velmo" report - --lang "$(basename "$folder")" < states > /dev/null || fail "$folder is not installed"
done
"$velmo" --version | grep -q "^velmo $(pkg-config --modversion $package) (library built 2" \
    || fail "$("$velmo" --version)"
bash -n "$prefix"/share/bash-completion/completions/velmo
gzip -dc "$prefix"/share/man/man1/velmo.1.gz | grep -q '^\.TH VELMO 1' || fail "no manual page"
cat > tst_module.qml << 'QML'
import QtTest 1.15
import Velmolib 5.0

TestCase {
    name: "Installed"

    ServiceState {
        id: service
        text: '{"device_states": [{"device_id": 1, "enabled": true, "state": "idling"}]}'
    }
    Catalogue {
        id: catalogue
    }

    function test_moduleAnswers() {
        compare([service.paymentText, service.devices.get(0).modelName, catalogue.count].join(),
                "Input money,CCNet,13");
    }
}
QML
[ "${3:-5}" -eq 5 ] || sed -i 's/ 1\.15$//; s/ 5\.0$//' tst_module.qml # Qt 6 takes the newest
modules=$(dirname "$(dirname "$(find "$prefix" -path "*/qt${3:-5}/*" -name libvelmolibplugin.so)")")
QT_QPA_PLATFORM=offscreen /usr/lib/qt"${3:-5}"/bin/qmltestrunner -import "$modules" \
    -input tst_module.qml > shown 2>&1 || fail "the QML module: $(cat shown)"
echo "The installed copy works."
