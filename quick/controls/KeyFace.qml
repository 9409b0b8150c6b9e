// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// The sign and the text on a key.
Item {
    id: face

    property T.AbstractButton control

    /// The KioskIcon before the text; "" for none.
    property string sign: ""

    readonly property color front: control.down || control.checked ? KioskTheme.accentInk : KioskTheme.accent

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight
    opacity: control.enabled ? 1 : 0.4

    Row {
        id: row
        anchors.centerIn: parent
        spacing: KioskTheme.gap / 2

        KioskIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: face.sign !== ""
            width: face.control.font.pixelSize
            height: width
            kind: face.sign
            color: face.front
        }
        KioskText {
            text: face.control.text
            font.pixelSize: face.control.font.pixelSize
            color: face.front
            Accessible.ignored: true
        }
    }
}
