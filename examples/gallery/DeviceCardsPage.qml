// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

Column {
    id: page

    property ServiceState service
    property var sample

    readonly property bool whole: true

    spacing: KioskTheme.gap / 2

    StateAge {
        id: age
        width: page.width
        service: page.service
    }
    DeviceCards {
        width: page.width
        height: page.height - age.height - page.spacing
        service: page.service
    }
}
