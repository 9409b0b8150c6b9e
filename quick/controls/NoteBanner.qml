// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0

/// What became of the pieces of money: each one whose end is not told, which stays until it is, and for a while
/// what became of the newest other. It is as high as what it says, and 0 when there is nothing to say.
Column {
    id: banner

    property ServiceState service

    /// Whom to call; empty when nobody can be called.
    property string contact: ""

    /// For how many seconds the end of a piece is told.
    property int freshSeconds: 15

    /// How many open pieces are shown at most; the others are counted.
    property int limit: 3

    spacing: KioskTheme.gap / 2

    Connections {
        target: banner.service
        function onNoteEvent() {
            freshness.restart();
        }
    }
    Timer {
        id: freshness
        interval: 1000 * banner.freshSeconds
    }

    component Message: Rectangle {
        id: message

        property int outcome
        property string text
        property string detail

        readonly property bool good: outcome === ServiceState.NoteTaken
        readonly property bool waits: outcome === ServiceState.NoteChecked
        readonly property bool bad: outcome === ServiceState.NoteStuck || outcome === ServiceState.NoteLost
        readonly property color front: good ? KioskTheme.good : waits ? KioskTheme.ink
                                     : bad ? KioskTheme.bad : KioskTheme.warn

        width: banner.width
        implicitHeight: row.implicitHeight + 2 * row.y
        radius: KioskTheme.radius
        color: good ? KioskTheme.goodGround : waits ? KioskTheme.panel
             : bad ? KioskTheme.badGround : KioskTheme.warnGround
        border.color: front
        border.width: (bad ? 2 : 1) * KioskTheme.border
        Accessible.role: Accessible.AlertMessage
        Accessible.name: [text, detail].filter(part => part !== "").join("\n")

        RowLayout {
            id: row
            x: KioskTheme.gap
            y: KioskTheme.gap / 2
            width: message.width - 2 * x
            spacing: KioskTheme.gap

            KioskIcon {
                Layout.preferredWidth: KioskTheme.large
                Layout.preferredHeight: KioskTheme.large
                Layout.alignment: Qt.AlignTop
                kind: message.good ? "good" : message.waits ? "wait" : message.bad ? "warn" : "bad"
                color: message.front
            }
            ColumnLayout {
                spacing: KioskTheme.gap / 4

                KioskText {
                    objectName: message.objectName + "Text"
                    Layout.fillWidth: true
                    text: message.text
                    font.pixelSize: KioskTheme.medium
                    font.bold: true
                    color: message.front
                    Accessible.ignored: true
                }
                KioskText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: message.detail
                    font.pixelSize: KioskTheme.medium
                    Accessible.ignored: true
                }
            }
        }
    }

    Repeater {
        model: banner.service.openNotes
        Message {
            required property int index
            required property var model
            objectName: "openNote"
            visible: index < banner.limit
            outcome: model.outcome
            text: model.text
            detail: waits ? "" : [model.timeText, model.amountText,
                                  model.incident === "" ? "" : qsTr("No. %1").arg(model.incident),
                                  banner.contact === "" ? "" : qsTr("Help: %1").arg(banner.contact)]
                                 .filter(part => part !== "").join(" · ")
        }
    }
    KioskText {
        width: banner.width
        visible: banner.service.openNotes.count > banner.limit
        text: qsTr("and %n more", "", banner.service.openNotes.count - banner.limit)
        font.pixelSize: KioskTheme.medium
        color: KioskTheme.bad
    }
    Message {
        objectName: "lastNote"
        // What is open is told above.
        visible: text !== "" && freshness.running && !waits && !bad
        outcome: banner.service.lastNoteOutcome
        text: banner.service.lastNoteText
    }
}
