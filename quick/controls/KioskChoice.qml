// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/// One of several keys of which one is chosen. It is a type of its own because a screen reader takes every
/// KioskKey for a button, whatever that says.
T.RadioButton {
    id: key

    activeFocusOnTab: true
    font.pixelSize: KioskTheme.small
    padding: KioskTheme.gap / 2
    leftPadding: KioskTheme.gap
    rightPadding: KioskTheme.gap
    implicitWidth: Math.max(KioskTheme.touch, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(KioskTheme.touch, implicitContentHeight + topPadding + bottomPadding)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    contentItem: KeyFace {
        control: key
        sign: key.checked ? "good" : ""
    }
    background: KeyGround { control: key }
}
