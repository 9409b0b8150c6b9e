// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Kiosk 1.0
import Velmolib.Controls 5.0
import "../kiosk/screen"

Rectangle {
    id: page

    property alias service: screen.service
    property var sample
    readonly property bool whole: true

    color: KioskTheme.ground

    CustomerScreen {
        id: screen
        anchors.fill: parent
        contact: "8 800 200-00-00"
        languages: Language.all
        language: service ? service.locale : ""
    }
}
