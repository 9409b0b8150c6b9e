// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Controls 2.15

// A button that a finger meets and that shows where the keyboard is.
Button {
    id: key

    activeFocusOnTab: true
    font.pixelSize: Theme.medium
    padding: Theme.gap
    implicitHeight: Math.max(Theme.touch, contentItem.implicitHeight + 2 * padding)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Text {
        text: key.text
        font: key.font
        color: key.down || key.checked ? Theme.panel : Theme.accent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        implicitWidth: Theme.touch
        radius: Theme.gap / 2
        color: key.down || key.checked ? Theme.accent : Theme.panel
        border.color: key.activeFocus ? Theme.ink : Theme.accent
        border.width: key.activeFocus ? 4 : 2
    }
}
