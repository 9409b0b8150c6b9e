// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// A picture of what may be inserted, with its word below.
Column {
    id: picture

    /// "note", "coin" or "card"
    property string kind
    property string word

    /// Whether it is accepted.
    property bool shown: true

    property real unit: 1
    property int wordSize: KioskTheme.medium
    readonly property alias wordWidth: label.implicitWidth

    readonly property color front: kind === "note" ? KioskTheme.good : kind === "coin" ? KioskTheme.warn : KioskTheme.accent
    readonly property color ground: kind === "note" ? KioskTheme.goodGround : kind === "coin" ? KioskTheme.warnGround
                                                                                           : KioskTheme.panel

    visible: shown
    spacing: KioskTheme.gap / 2
    Accessible.role: Accessible.Graphic
    Accessible.name: word

    component Disc: Rectangle {
        height: width
        radius: width / 2
        color: "transparent"
        border.color: picture.front
        border.width: 4 * picture.unit
    }

    Item {
        id: box
        width: 160 * picture.unit
        height: 96 * picture.unit
        anchors.horizontalCenter: parent.horizontalCenter

        Rectangle { // a note or a card
            visible: picture.kind !== "coin"
            anchors.fill: parent
            radius: (picture.kind === "card" ? 12 : 6) * picture.unit
            color: picture.ground
            border.color: picture.front
            border.width: 4 * picture.unit
        }
        Disc { // what is printed on the note
            visible: picture.kind === "note"
            anchors.centerIn: parent
            width: parent.height * 0.55
        }
        Repeater {
            model: picture.kind === "note" ? 2 : 0
            Disc {
                required property int index
                x: index === 0 ? 14 * picture.unit : box.width - width - 14 * picture.unit
                anchors.verticalCenter: parent.verticalCenter
                width: 10 * picture.unit
                color: picture.front
            }
        }
        Disc { // a coin
            visible: picture.kind === "coin"
            anchors.centerIn: parent
            width: box.height
            color: picture.ground

            Disc {
                anchors.fill: parent
                anchors.margins: 14 * picture.unit
                border.width: 2 * picture.unit
            }
        }
        Rectangle { // the card's stripe
            visible: picture.kind === "card"
            y: 20 * picture.unit
            width: parent.width
            height: 18 * picture.unit
            color: picture.front
        }
        Rectangle { // and its chip
            visible: picture.kind === "card"
            x: 18 * picture.unit
            y: 54 * picture.unit
            width: 30 * picture.unit
            height: 22 * picture.unit
            radius: 4 * picture.unit
            color: "transparent"
            border.color: picture.front
            border.width: 3 * picture.unit
        }
    }
    KioskText {
        id: label
        anchors.horizontalCenter: parent.horizontalCenter
        text: picture.word
        font.pixelSize: picture.wordSize
        Accessible.ignored: true
    }
}
