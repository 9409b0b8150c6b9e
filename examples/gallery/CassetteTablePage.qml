// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

Column {
    id: page

    property ServiceState service
    property var sample

    Repeater {
        model: page.service.devices
        CassetteTable {
            required property var model
            width: Math.min(page.width, 190 * KioskTheme.density)
            service: page.service
            registry: model.registry
            places: page.sample.places || null
        }
    }
}
