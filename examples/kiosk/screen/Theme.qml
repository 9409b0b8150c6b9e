// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

pragma Singleton
import QtQuick 2.15

// Sizes and colours. Text on its ground has a contrast of 7 : 1 and more, so that it can be read in
// sunlight.
QtObject {
    /// Whether changes are shown with motion.
    property bool motion: true

    /// A pixel of a screen of 1024 x 768; Main.qml sets it to fit the window.
    property real unit: 1

    readonly property int duration: motion ? 250 : 0
    readonly property int touch: Math.max(48, 56 * unit) // of what is pressed
    readonly property int gap: 16 * unit
    readonly property int small: Math.max(14, 16 * unit)
    readonly property int medium: 24 * unit
    readonly property int large: 40 * unit
    readonly property int huge: 72 * unit

    readonly property color ground: "#eef2f5"
    readonly property color panel: "#ffffff"
    readonly property color edge: "#8a99a8"
    readonly property color ink: "#16212b"
    readonly property color quiet: "#3c4a57"
    readonly property color accent: "#0b4a8f"
    readonly property color good: "#0f5a2c"
    readonly property color goodGround: "#e3f3e8"
    readonly property color bad: "#8c1616"
    readonly property color badGround: "#fbe9e7"
}
