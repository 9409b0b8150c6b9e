// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

Rectangle {
    id: page

    property ServiceState service
    property var sample
    readonly property bool whole: true

    color: KioskTheme.ground

    PinGate {
        id: gate
        anchors.fill: parent
        lock: PinLock {
            file: page.sample.pin ? "" : "/etc/kiosk/pin"
            pin: page.sample.pin || ""
        }
    }
    Component.onCompleted: {
        for (const tried of sample.typed || []) {
            gate.submit();
            for (const digit of tried) {
                gate.type(digit);
            }
        }
    }
}
