// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// A key that a finger meets and that shows where the keyboard is.
T.Button {
    id: key

    /// The KioskIcon before the text; "" for none.
    property string sign: ""

    activeFocusOnTab: true
    font.pixelSize: KioskTheme.medium
    padding: KioskTheme.gap / 2
    leftPadding: KioskTheme.gap
    rightPadding: KioskTheme.gap
    implicitWidth: Math.max(KioskTheme.touch, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(KioskTheme.touch, implicitContentHeight + topPadding + bottomPadding)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()

    readonly property color front: down || checked ? KioskTheme.accentInk : KioskTheme.accent

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight
        opacity: key.enabled ? 1 : 0.4

        Row {
            id: row
            anchors.centerIn: parent
            spacing: KioskTheme.gap / 2

            KioskIcon {
                anchors.verticalCenter: parent.verticalCenter
                visible: key.sign !== ""
                width: key.font.pixelSize
                height: width
                kind: key.sign
                color: key.front
            }
            KioskText {
                text: key.text
                font.pixelSize: key.font.pixelSize
                color: key.front
                Accessible.ignored: true
            }
        }
    }
    background: Rectangle {
        radius: KioskTheme.radius
        color: key.down || key.checked ? KioskTheme.accent : KioskTheme.panel
        border.color: key.activeFocus ? KioskTheme.ink : KioskTheme.accent
        border.width: (key.activeFocus ? 3 : 1) * KioskTheme.border
    }
}
