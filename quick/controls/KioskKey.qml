// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// A key that a finger meets and that shows where the keyboard is.
T.Button {
    id: key

    /// The KioskIcon before the text; "" for none.
    property string sign: ""

    activeFocusOnTab: true
    font.pixelSize: KioskTheme.medium
    padding: KioskTheme.gap / 2
    leftPadding: KioskTheme.gap
    rightPadding: KioskTheme.gap
    implicitWidth: Math.max(KioskTheme.touch, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(KioskTheme.touch, implicitContentHeight + topPadding + bottomPadding)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()

    contentItem: KeyFace {
        control: key
        sign: key.sign
    }
    background: KeyGround { control: key }
}
