// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// A line of text to type into, high enough for a finger.
T.TextField {
    id: field

    /// Whether the text is one that can be worked with; whoever says no says why beside it.
    property bool valid: true

    implicitWidth: 60 * KioskTheme.density
    implicitHeight: Math.max(KioskTheme.touch, contentHeight + KioskTheme.gap)
    padding: KioskTheme.gap / 2
    verticalAlignment: TextInput.AlignVCenter
    font.family: KioskTheme.fontFamily === "" ? Qt.application.font.family : KioskTheme.fontFamily
    font.pixelSize: KioskTheme.small
    color: KioskTheme.ink
    selectionColor: KioskTheme.accent
    selectedTextColor: KioskTheme.accentInk
    selectByMouse: true

    background: Rectangle {
        radius: KioskTheme.radius
        color: KioskTheme.panel
        border.color: !field.valid ? KioskTheme.bad : field.activeFocus ? KioskTheme.accent : KioskTheme.edge
        border.width: (field.activeFocus ? 3 : 1) * KioskTheme.border
    }
}
