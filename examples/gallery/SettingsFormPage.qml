// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

SettingsForm {
    id: page

    property ServiceState service
    property var sample

    implicitHeight: sample.height ? sample.height * KioskTheme.density : contentHeight
    settings: SettingDescriptions {
        device: page.sample.device === undefined ? -1 : page.sample.device
        model: page.sample.model || 0
        interfaceType: page.sample.interfaceType || ""
        values: page.sample.values || {}
    }
}
