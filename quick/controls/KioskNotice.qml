// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// A sentence with the sign of what it is, as high as its text. A screen reader is told of it.
Rectangle {
    id: notice

    /// "good", "bad", "warn" or "wait", "info" or "lock" for what is neither.
    property string kind: "info"

    /// What it is about, in bold before the text; "" for nothing.
    property string title: ""

    property string text: ""

    property int size: KioskTheme.small

    readonly property color front: kind === "good" ? KioskTheme.good : kind === "bad" ? KioskTheme.bad
                                 : kind === "warn" ? KioskTheme.warn : KioskTheme.ink

    implicitHeight: Math.max(sign.height, words.implicitHeight) + KioskTheme.gap
    radius: KioskTheme.radius
    color: kind === "good" ? KioskTheme.goodGround : kind === "bad" ? KioskTheme.badGround
         : kind === "warn" ? KioskTheme.warnGround : KioskTheme.ground
    border.color: front
    border.width: KioskTheme.border
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title === "" ? text : title + ": " + text

    KioskIcon {
        id: sign
        x: KioskTheme.gap / 2
        anchors.verticalCenter: parent.verticalCenter
        width: notice.size
        height: notice.size
        kind: notice.kind
        color: notice.front
    }
    Column {
        id: words
        anchors.left: sign.right
        anchors.right: parent.right
        anchors.margins: KioskTheme.gap / 2
        anchors.verticalCenter: parent.verticalCenter

        KioskText {
            width: parent.width
            visible: notice.title !== ""
            text: notice.title
            font.pixelSize: notice.size
            font.bold: true
            color: notice.front
            Accessible.ignored: true
        }
        KioskText {
            width: parent.width
            text: notice.text
            font.pixelSize: notice.size
            color: notice.front
            Accessible.ignored: true
        }
    }
}
