// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
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

    // Nobody checks anything then: what is in a device's hand stays there.
    readonly property bool away: !service.available || service.stale

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

    Repeater {
        id: open
        model: banner.service.openNotes
        Loader {
            id: note
            required property int index
            required property var model
            active: index < banner.limit
            visible: active
            width: banner.width
            sourceComponent: Notice {
                readonly property var model: note.model
                readonly property bool inHand: !banner.away && model.outcome === ServiceState.NoteChecked
                readonly property bool isLast: note.index === Math.min(open.count, banner.limit) - 1
                // While the row goes it has no text.
                readonly property string told: model.text || ""
                objectName: "openNote"
                kind: inHand ? "info" : "bad"
                sign: inHand ? "wait" : "warn"
                text: banner.away && model.outcome === ServiceState.NoteChecked
                      ? qsTr("Your money is still in the device. Please call the staff.") : told
                detail: inHand ? ""
                      : [[model.timeText, told.includes(model.amountText) ? "" : model.amountText,
                          model.incident === "" ? "" : qsTr("No.\u00a0%1").arg(model.incident)]
                         .filter(part => part !== "").join(" · "),
                         isLast && banner.contact !== "" ? qsTr("Help: %1").arg(banner.contact) : ""]
                        .filter(line => line !== "").join("\n")
            }
        }
    }
    KioskText {
        objectName: "moreNotes"
        width: banner.width
        visible: open.count > banner.limit
        text: qsTr("and %n more", "", open.count - banner.limit)
        font.pixelSize: KioskTheme.medium
        font.bold: true
        color: KioskTheme.bad
    }
    Notice {
        readonly property int outcome: banner.service.lastNoteOutcome
        readonly property bool ended: outcome === ServiceState.NoteTaken || outcome === ServiceState.NoteRefused
                                      || outcome === ServiceState.NoteRejected || outcome === ServiceState.NoteReturned
        objectName: "lastNote"
        width: banner.width
        visible: ended && text !== "" && freshness.running // what has not ended is told above
        kind: outcome === ServiceState.NoteTaken ? "good" : "warn"
        sign: outcome === ServiceState.NoteTaken ? "good" : "back"
        text: banner.service.lastNoteText
    }
}
