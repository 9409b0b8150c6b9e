// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0

/// For the staff: each piece of money whose end nobody told, and what was lost of the sum, with a key that
/// settles it once it was asked for a second time. It is 0 high when nothing is open.
Column {
    id: list

    /// Whose money is shown and settled; it has to be set.
    property ServiceState service

    /// The number of an incident that the service would not take as settled; empty for none.
    property string refused: ""

    /// How many pieces are shown at most, the oldest ones; the others are counted.
    property int limit: 4

    // What is only being checked is no matter for the staff.
    readonly property var listed: open.rows.filter(note => note.outcome !== ServiceState.NoteChecked)
                                           .map(note => note.noteId)

    spacing: KioskTheme.gap / 2

    RowArray {
        id: open
        model: list.service ? list.service.openNotes : null
    }

    component Line: RowLayout {
        id: line

        property string title
        property string text
        property bool asked: false

        signal settled

        width: list.width
        spacing: KioskTheme.gap / 2
        onVisibleChanged: asked = false

        Notice {
            Layout.fillWidth: true
            Layout.fillHeight: true
            kind: "bad"
            text: line.title
            detail: line.text
        }
        KioskKey {
            objectName: "settleKey"
            visible: !line.asked
            text: qsTr("Settled")
            onClicked: {
                line.asked = true;
                no.forceActiveFocus();
            }
        }
        KioskKey {
            objectName: "reallyKey"
            visible: line.asked
            text: qsTr("Really settled")
            onClicked: {
                line.asked = false;
                line.settled();
            }
        }
        KioskKey {
            id: no
            objectName: "noKey"
            visible: line.asked
            text: qsTr("No")
            onClicked: line.asked = false
        }
    }

    Repeater {
        model: open.model
        Loader {
            id: note
            required property var model
            active: list.listed.slice(0, list.limit).includes(model.noteId)
            visible: active
            sourceComponent: Line {
                readonly property var model: note.model
                objectName: "openMoney"
                title: [model.deviceName, model.amountText, model.timeText,
                        model.incident === "" ? "" : qsTr("No.\u00a0%1").arg(model.incident)]
                       .filter(part => part !== "").join(" · ")
                text: (model.outcome === ServiceState.NoteStuck ? qsTr("It is stuck in the device.")
                                                                : qsTr("It is not known what became of it."))
                      + (model.incident !== "" && model.incident === list.refused
                         ? " " + qsTr("The service did not take it as settled.") : "")
                onSettled: list.service.settle(model.noteId)
            }
        }
    }
    KioskText {
        objectName: "moreMoney"
        width: list.width
        visible: list.listed.length > list.limit
        text: qsTr("and %n more", "", list.listed.length - list.limit)
        font.bold: true
        color: KioskTheme.bad
    }
    Line {
        objectName: "openLoss"
        visible: list.service !== null && list.service.lostSum > 0
        title: visible ? list.service.moneyText(list.service.lostSum) : ""
        text: qsTr("The customer had paid this much before the service was lost; it is missing from the sum.")
        onSettled: list.service.settleLoss()
    }
}
