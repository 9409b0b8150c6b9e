// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// What became of the pieces of money: each one that is stuck or lost, the newest first, which stays until its end
/// is told, and for a while what came back and what was taken last. It is as high as what it says, and 0 when there
/// is nothing to say.
Column {
    id: banner

    /// Whose notes and coins are shown; it has to be set.
    property ServiceState service

    /// Whom to call; empty when nobody can be called.
    property string contact: ""

    /// For how many seconds the end of a piece is told.
    property int freshSeconds: 15

    /// How many pieces that are stuck or lost are shown at most, the newest ones; the others are counted.
    property int limit: 3

    // Nobody checks anything then: what is in a device's hand stays there.
    readonly property bool away: !service.available || service.stale

    // What is shown: what a device checks, and what is stuck or lost.
    readonly property var inHand: open.rows.filter(note => !away && note.outcome === ServiceState.NoteChecked)
    readonly property var stuck: open.rows.filter(note => !inHand.includes(note)).reverse() // the newest first
    property real sum: 0 // that of the session

    spacing: KioskTheme.gap / 2

    RowArray {
        id: open
        model: banner.service ? banner.service.openNotes : null
    }
    Connections {
        target: banner.service
        function onNoteEvent(outcome, value, currency, device, text) {
            back.hear(outcome, device, text);
            taken.hear(outcome, device, text);
        }
        function onSessionSumChanged() {
            if (banner.service.sessionSum < banner.sum) // another customer's
                back.device = taken.device = "";
            banner.sum = banner.service.sessionSum;
        }
    }
    // The last end of some kinds, until its device tells of another piece.
    component End: Notice {
        id: end

        property var outcomes: []
        property int outcome: ServiceState.NoNote
        property string device: "" // that told it
        property string told: ""

        function hear(newOutcome, from, words) {
            if (outcomes.includes(newOutcome)) {
                outcome = newOutcome;
                device = from;
                told = words;
                fresh.restart();
            } else if (from === device) {
                device = "";
            }
        }

        width: banner.width
        visible: device !== "" && text !== ""
        // The service's text of the newest follows the language.
        text: banner.service.lastNoteOutcome === outcome ? banner.service.lastNoteText : told

        Timer {
            id: fresh
            interval: 1000 * banner.freshSeconds
            onTriggered: end.device = ""
        }
    }

    Repeater {
        model: Math.min(banner.stuck.length, banner.limit)
        Notice {
            required property int index
            readonly property var note: banner.stuck[index] || {}
            // While the row goes it has no text.
            readonly property string told: note.text || ""
            objectName: "openNote"
            width: banner.width
            kind: "bad"
            text: note.outcome === ServiceState.NoteChecked
                  ? qsTr("Your money is still in the device. Please call the staff.") : told
            detail: [[note.timeText, told.includes(note.amountText) ? "" : note.amountText,
                      note.incident ? qsTr("No.\u00a0%1").arg(note.incident) : ""].filter(part => part).join(" · "),
                     index === 0 && banner.contact !== "" ? qsTr("Help: %1").arg(banner.contact) : ""]
                    .filter(line => line !== "").join("\n")
        }
    }
    KioskText {
        objectName: "moreNotes"
        width: banner.width
        visible: banner.stuck.length > banner.limit
        text: qsTr("and %n more", "", banner.stuck.length - banner.limit)
        font.pixelSize: KioskTheme.medium
        font.bold: true
        color: KioskTheme.bad
    }
    End {
        id: back
        objectName: "lastNote"
        outcomes: [ServiceState.NoteRefused, ServiceState.NoteRejected, ServiceState.NoteReturned]
        kind: "warn"
        sign: "back"
    }
    Repeater {
        model: banner.inHand.length
        Notice {
            required property int index
            objectName: "openNote"
            width: banner.width
            sign: "wait"
            text: (banner.inHand[index] || {}).text || ""
        }
    }
    End {
        id: taken
        objectName: "lastNote"
        outcomes: [ServiceState.NoteTaken]
        kind: "good"
    }
}
