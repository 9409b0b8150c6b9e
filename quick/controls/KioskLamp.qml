// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// A lamp with its label: full when lit and hollow when not; one that warns has another sign.
Row {
    id: lamp

    property string label
    property bool lit
    property bool alarm

    /// The room for it; a longer label wraps.
    property real room: Infinity

    property color ink: KioskTheme.ink

    readonly property color front: lit && alarm ? KioskTheme.bad : ink

    spacing: KioskTheme.gap / 2
    Accessible.role: Accessible.Indicator
    Accessible.name: (lit ? qsTr("%1: on") : qsTr("%1: off")).arg(label)

    KioskIcon {
        id: sign
        y: (text.implicitHeight / text.lineCount - height) / 2
        kind: !lamp.lit ? "lampOff" : lamp.alarm ? "warn" : "lampOn"
        color: lamp.front
    }
    KioskText {
        id: text
        width: Math.min(implicitWidth, lamp.room - sign.width - lamp.spacing)
        text: lamp.label
        font.bold: lamp.lit && lamp.alarm
        color: lamp.front
        Accessible.ignored: true
    }
}
