// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Shapes 1.15

/// A sign that says without colour what a colour says.
Item {
    id: icon

    /// "good", "bad", "warn", "wait", "info", "back", "insert", "lock", "globe",
    /// "lampOn" or "lampOff"; nothing is drawn for others.
    property string kind: ""

    /// Of its lines.
    property color color: KioskTheme.ink

    // What each kind is drawn by, in a square of 24.
    readonly property var paths: ({
        "good": "M 4 13 L 10 19 L 20 6",
        "bad": "M 5 5 L 19 19 M 19 5 L 5 19",
        "warn": "M 12 3 L 22 21 L 2 21 Z M 12 10 L 12 15 M 12 18 L 12 18.5",
        "wait": "M 6 3 L 18 3 M 6 21 L 18 21 M 7 3 L 17 21 M 17 3 L 7 21",
        "info": "M 12 2 A 10 10 0 1 1 11.9 2 Z M 12 11 L 12 17 M 12 7 L 12 7.2",
        "back": "M 9 4 L 4 9 L 9 14 M 4 9 L 15 9 A 5 5 0 0 1 15 19 L 8 19",
        "insert": "M 12 2 L 12 15 M 6 9 L 12 15 L 18 9 M 3 20 L 21 20",
        "lock": "M 5 11 L 19 11 L 19 21 L 5 21 Z M 8 11 L 8 7 A 4 4 0 0 1 16 7 L 16 11",
        "globe": "M 12 3 A 9 9 0 1 1 11.9 3 Z M 3 12 L 21 12 M 12 3 C 6 9 6 15 12 21 M 12 3 C 18 9 18 15 12 21",
        "lampOn": "M 12 4 A 8 8 0 1 1 11.9 4 Z M 12 6 A 6 6 0 1 1 11.9 6 Z M 12 8.5 A 3.5 3.5 0 1 1 11.9 8.5 Z M 12 10.8 A 1.2 1.2 0 1 1 11.9 10.8 Z",
        "lampOff": "M 12 4 A 8 8 0 1 1 11.9 4 Z"
    })

    implicitWidth: KioskTheme.small
    implicitHeight: KioskTheme.small

    // Drawn without a graphics card, a shape that is scrolled out of its list is not cut off but seen beside
    // it; a picture of the shape is, but stays as it is when the shape changes unseen.
    Item {
        anchors.fill: parent
        layer.enabled: GraphicsInfo.api === GraphicsInfo.Software && icon.visible

        Shape {
            width: 24
            height: 24
            scale: Math.min(icon.width, icon.height) / 24
            transformOrigin: Item.TopLeft
            ShapePath {
                strokeColor: icon.color
                strokeWidth: 2.5
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                joinStyle: ShapePath.RoundJoin
                PathSvg {
                    path: icon.paths[icon.kind] || ""
                }
            }
        }
    }
}
