// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

Row {
    id: page

    property ServiceState service
    property var sample

    spacing: KioskTheme.gap

    KioskKey {
        text: page.sample.text
        sign: page.sample.sign || ""
        checked: page.sample.checked === true
        enabled: page.sample.enabled !== false
    }
}
