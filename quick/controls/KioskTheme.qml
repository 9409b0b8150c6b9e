// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

pragma Singleton
import QtQuick 2.15

/// Sizes and colours of all controls, a singleton. Sizes are lengths on the screen, from its density; text on its
/// ground has a contrast of 7 : 1 and more.
QtObject {
    id: theme

    /// Pixels in a millimetre of the screen; the window sets it, for example to Screen.pixelDensity.
    property real density: 3.78

    /// How large what fills the window is, beside its size on a screen of 211 x 158 mm; the window sets it.
    property real scale: 1

    /// Whether the smaller texts are larger, at the cost of how much of them is seen at once.
    property bool largeText: false

    /// Whether all is black and white, with yellow for what is wrong or to be pressed.
    property bool highContrast: false

    /// Whether changes are shown with motion.
    property bool motion: true

    /// Empty for the application's own font.
    property string fontFamily: ""

    /// How long a change takes that is shown with motion, in milliseconds; 0 without motion.
    readonly property int duration: motion ? 250 : 0

    // Capital letters are 0.73 of the size of a font.
    readonly property real capital: density / 0.73

    // What stands beside large texts grows with them, but less.
    readonly property real grown: Math.max(1, Math.sqrt(scale))

    /// The size of the font of most texts, in pixels: capital letters of 4.9 mm.
    readonly property int small: Math.round(4.9 * capital * (largeText ? 1.3 : 1))

    /// The size of the font of keys and of what matters more, in pixels; from here on sizes grow with scale.
    readonly property int medium: Math.round(4.9 * Math.max(1, Math.pow(scale, 0.75)) * capital * (largeText ? 1.3 : 1))

    /// The size of the font of a heading, in pixels: capital letters of 8 mm and more.
    readonly property int large: Math.round(Math.max(8, 9 * scale) * capital)

    /// The size of the font of the sum, in pixels: capital letters of 11 mm and more.
    readonly property int huge: Math.round(Math.max(11, 14 * scale) * capital)

    /// The least height and width of what a finger meets, in pixels: 15 mm.
    readonly property int touch: Math.round(15 * density)

    /// What is left free between things, in pixels.
    readonly property int gap: Math.round(4 * grown * density)

    /// That of corners, in pixels.
    readonly property int radius: highContrast ? 0 : Math.round(2 * density)

    /// The width of a line around something, in pixels.
    readonly property int border: Math.max(1, Math.round((highContrast ? 0.8 : 0.3) * density))

    /// What everything stands on.
    readonly property color ground: highContrast ? "#000000" : "#eef2f5"

    /// What a card, a field or a key stands on.
    readonly property color panel: highContrast ? "#000000" : "#ffffff"

    /// The line around a panel.
    readonly property color edge: highContrast ? "#ffffff" : "#5b6b7a"

    /// Of a text on the ground or on a panel.
    readonly property color ink: highContrast ? "#ffffff" : "#16212b"

    /// Of a text that matters less.
    readonly property color quiet: highContrast ? "#ffffff" : "#3c4a57"

    /// Of what is to be pressed: of its text or, while it is pressed, of its ground.
    readonly property color accent: highContrast ? "#ffff00" : "#0b4a8f"

    /// Of a text on the accent.
    readonly property color accentInk: highContrast ? "#000000" : "#ffffff"

    /// Of a text on goodGround, the ground or a panel that says that all is well.
    readonly property color good: highContrast ? "#ffffff" : "#0f5a2c"

    /// What a message that all is well stands on.
    readonly property color goodGround: highContrast ? "#000000" : "#e3f3e8"

    /// Of a text on badGround, the ground or a panel that says that something is wrong.
    readonly property color bad: highContrast ? "#ffff00" : "#8c1616"

    /// What a message that something is wrong stands on.
    readonly property color badGround: highContrast ? "#000000" : "#fbe9e7"

    /// Of a text on warnGround, the ground or a panel that warns.
    readonly property color warn: highContrast ? "#ffff00" : "#5f4300"

    /// What a message that warns stands on.
    readonly property color warnGround: highContrast ? "#000000" : "#fff4d6"
}
