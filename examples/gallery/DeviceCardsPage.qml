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

    StateAge {
        id: age
        width: page.width
        service: page.service
    }
    DeviceCards {
        anchors.fill: parent
        anchors.topMargin: age.height + KioskTheme.gap / 2
        service: page.service
    }
}
