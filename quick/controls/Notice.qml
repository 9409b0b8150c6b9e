// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// A message in a frame: a sign, a sentence, and what there is to know beside it. It is as high as these.
Rectangle {
    id: notice

    /// "good", "warn", "bad" or "info": which colours it has, and the sign.
    property string kind: "info"

    /// The KioskIcon before the text; initially the one of its kind.
    property string sign: kind === "bad" ? "warn" : kind

    /// The sentence.
    property string text: ""

    /// What there is to know beside it, in lines below it; empty for nothing.
    property string detail: ""

    /// That of the letters of the sentence, in pixels.
    property int size: KioskTheme.medium

    // Of frame, sign and sentence.
    readonly property color front: kind === "good" ? KioskTheme.good : kind === "warn" ? KioskTheme.warn
                                 : kind === "bad" ? KioskTheme.bad : KioskTheme.ink

    implicitHeight: texts.implicitHeight + 2 * texts.y
    radius: KioskTheme.radius
    color: kind === "good" ? KioskTheme.goodGround : kind === "warn" ? KioskTheme.warnGround
         : kind === "bad" ? KioskTheme.badGround : KioskTheme.panel
    border.color: front
    border.width: (kind === "bad" ? 2 : 1) * KioskTheme.border
    Accessible.role: Accessible.AlertMessage
    Accessible.name: [text, detail].filter(part => part !== "").join("\n")

    KioskIcon {
        id: icon
        x: KioskTheme.gap
        y: texts.y
        width: 1.3 * notice.size
        height: width
        kind: notice.sign
        color: notice.front
    }
    Column {
        id: texts
        x: icon.x + icon.width + KioskTheme.gap
        y: KioskTheme.gap / 2
        width: notice.width - x - icon.x
        spacing: KioskTheme.gap / 4

        KioskText {
            id: sentence
            objectName: notice.objectName + "Text"
            width: parent.width
            text: notice.text
            font.pixelSize: notice.size
            font.bold: true
            color: notice.front
            Accessible.ignored: true
        }
        KioskText {
            id: more
            objectName: notice.objectName + "Detail"
            width: parent.width
            visible: text !== ""
            text: notice.detail
            font.pixelSize: notice.size
            Accessible.ignored: true
        }
    }
}
