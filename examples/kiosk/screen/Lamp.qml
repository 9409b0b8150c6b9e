// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// A lamp with its label: full when lit and hollow when not, for those who do not tell colours apart.
Row {
    id: lamp

    property string label
    property bool lit
    property bool alarm

    spacing: Theme.gap / 2

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.small
        height: width
        radius: width / 2
        color: lamp.lit ? (lamp.alarm ? Theme.bad : Theme.good) : "transparent"
        border.color: lamp.lit ? color : Theme.edge
        border.width: 2
    }
    Text {
        text: lamp.label
        font.pixelSize: Theme.small
        font.bold: lamp.lit && lamp.alarm
        color: lamp.lit ? (lamp.alarm ? Theme.bad : Theme.ink) : Theme.quiet
    }
}
