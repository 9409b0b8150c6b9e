// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

pragma Singleton
import QtQuick 2.15

/// Sizes and colours of all controls. Sizes are lengths on the screen, from its density; text on its
/// ground has a contrast of 7 : 1 and more.
QtObject {
    id: theme

    /// Pixels in a millimetre of the screen; the window sets it, for example to Screen.pixelDensity.
    property real density: 3.78

    /// How large what fills the window is, beside its size on a screen of 211 x 158 mm; the window sets it.
    property real scale: 1

    /// Whether the smaller texts are larger, at the cost of how much of them is seen at once.
    property bool largeText: false
    property bool highContrast: false

    /// Whether changes are shown with motion.
    property bool motion: true

    /// Empty for the application's own font.
    property string fontFamily: ""

    readonly property int duration: motion ? 250 : 0

    // Capital letters are 0.73 of the size of a font.
    readonly property real capital: density / 0.73
    // What stands beside large texts grows with them, but less.
    readonly property real grown: Math.max(1, Math.sqrt(scale))
    readonly property int small: Math.round(4.9 * capital * (largeText ? 1.3 : 1))
    readonly property int medium: Math.round(4.9 * Math.max(1, Math.pow(scale, 0.75)) * capital * (largeText ? 1.3 : 1))
    readonly property int large: Math.round(Math.max(8, 9 * scale) * capital)
    readonly property int huge: Math.round(Math.max(11, 14 * scale) * capital)
    readonly property int touch: Math.round(15 * density)
    readonly property int gap: Math.round(4 * grown * density)
    readonly property int radius: highContrast ? 0 : Math.round(2 * density)
    readonly property int border: Math.max(1, Math.round((highContrast ? 0.8 : 0.3) * density))

    readonly property color ground: highContrast ? "#000000" : "#eef2f5"
    readonly property color panel: highContrast ? "#000000" : "#ffffff"
    readonly property color edge: highContrast ? "#ffffff" : "#5b6b7a"
    readonly property color ink: highContrast ? "#ffffff" : "#16212b"
    readonly property color quiet: highContrast ? "#ffffff" : "#3c4a57"
    readonly property color accent: highContrast ? "#ffff00" : "#0b4a8f"
    /// Of a text on the accent.
    readonly property color accentInk: highContrast ? "#000000" : "#ffffff"
    readonly property color good: highContrast ? "#ffffff" : "#0f5a2c"
    readonly property color goodGround: highContrast ? "#000000" : "#e3f3e8"
    readonly property color bad: highContrast ? "#ffff00" : "#8c1616"
    readonly property color badGround: highContrast ? "#000000" : "#fbe9e7"
    readonly property color warn: highContrast ? "#ffff00" : "#5f4300"
    readonly property color warnGround: highContrast ? "#000000" : "#fff4d6"
}
