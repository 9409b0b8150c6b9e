// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// A text that is never markup, whatever it is made of, and that a screen reader reads.
Text {
    textFormat: Text.PlainText
    font.family: KioskTheme.fontFamily === "" ? Qt.application.font.family : KioskTheme.fontFamily
    font.pixelSize: KioskTheme.small
    wrapMode: Text.Wrap
    color: KioskTheme.ink
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
