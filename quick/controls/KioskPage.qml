// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// What may be higher than its room: a finger or the arrow keys move it, and a bar shows how much more there is.
Flickable {
    id: page

    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    contentWidth: width
    Keys.onUpPressed: flick(0, 4 * height)
    Keys.onDownPressed: flick(0, -4 * height)

    Rectangle {
        parent: page
        anchors.right: parent.right
        y: page.visibleArea.yPosition * page.height
        width: KioskTheme.density
        height: page.visibleArea.heightRatio * page.height
        visible: page.visibleArea.heightRatio < 1
        color: page.activeFocus ? KioskTheme.accent : KioskTheme.edge
    }
}
