// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// A picture of what may be inserted, with its word below.
Column {
    id: picture

    /// "note", "coin" or "card"
    property string kind
    property string word

    spacing: Theme.gap / 2

    component Disc: Rectangle {
        height: width
        radius: width / 2
    }

    Item {
        id: box
        width: 160 * Theme.unit
        height: 96 * Theme.unit
        anchors.horizontalCenter: parent.horizontalCenter

        Rectangle { // a note
            visible: picture.kind === "note"
            anchors.fill: parent
            radius: 6 * Theme.unit
            color: Theme.goodGround
            border.color: Theme.good
            border.width: 4 * Theme.unit

            Disc {
                anchors.centerIn: parent
                width: parent.height * 0.55
                color: "transparent"
                border.color: Theme.good
                border.width: 4 * Theme.unit
            }
            Repeater {
                model: 2
                Disc {
                    required property int index
                    x: index === 0 ? 14 * Theme.unit : box.width - width - 14 * Theme.unit
                    anchors.verticalCenter: parent.verticalCenter
                    width: 10 * Theme.unit
                    color: Theme.good
                }
            }
        }
        Disc { // a coin
            visible: picture.kind === "coin"
            anchors.centerIn: parent
            width: box.height
            color: "#fdf3d8"
            border.color: "#6b4e00"
            border.width: 5 * Theme.unit

            Disc {
                anchors.fill: parent
                anchors.margins: 14 * Theme.unit
                color: "transparent"
                border.color: "#6b4e00"
                border.width: 2 * Theme.unit
            }
        }
        Rectangle { // a card
            visible: picture.kind === "card"
            anchors.centerIn: parent
            width: 150 * Theme.unit
            height: box.height
            radius: 12 * Theme.unit
            color: "#e3ecf8"
            border.color: Theme.accent
            border.width: 4 * Theme.unit

            Rectangle { // its stripe
                y: 20 * Theme.unit
                width: parent.width
                height: 18 * Theme.unit
                color: Theme.accent
            }
            Rectangle { // its chip
                x: 18 * Theme.unit
                y: 54 * Theme.unit
                width: 30 * Theme.unit
                height: 22 * Theme.unit
                radius: 4 * Theme.unit
                color: "transparent"
                border.color: Theme.accent
                border.width: 3 * Theme.unit
            }
        }
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: picture.word
        font.pixelSize: Theme.medium
        color: Theme.ink
    }
}
