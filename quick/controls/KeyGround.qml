// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// What a key stands on: it shows which is pressed and where the keyboard is.
Rectangle {
    property T.AbstractButton control

    radius: KioskTheme.radius
    color: control.down || control.checked ? KioskTheme.accent : KioskTheme.panel
    border.color: control.activeFocus ? KioskTheme.ink : KioskTheme.accent
    border.width: (control.activeFocus ? 3 : 1) * KioskTheme.border
}
