// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0

/// What the customer is to do now: a sign with a sentence, and pictures of what is accepted or, when nothing
/// is, where to turn.
GridLayout {
    id: prompt

    property ServiceState service

    /// Whom to call, such as "8 800 200-00-00, day and night"; empty when nobody can be called.
    property string contact: ""

    /// After how many seconds of "Wait..." the customer is told that something is the matter.
    property int waitLimit: 45

    /// Whether there is room for the pictures.
    property bool pictured: true

    /// "invite", "wait", "late" (it waits for too long), "paid" or "out" (of service).
    readonly property string mode: service.paid ? "paid"
                                   : !service.inService ? "out"
                                   : service.noteAccepted || service.coinAccepted || service.cardAccepted ? "invite"
                                   : limit.passed ? "late" : "wait"

    readonly property string help: contact === "" ? "" : qsTr("Help: %1").arg(contact)

    // Money of the customer's may be inside.
    readonly property bool owes: service.hasStuckMoney || service.openNotes.count > 0
                                 || service.sessionSum > 0 && !service.sumRecorded

    readonly property string advice: {
        if (mode === "paid")
            return service.hasStuckMoney ? qsTr("Please call the staff before you leave.") : "";
        if (mode !== "out" && mode !== "late")
            return "";
        return [mode === "late" ? qsTr("Please call the staff before you leave. Insert no more money.")
                : owes ? qsTr("Please call the staff before you leave.")
                : service.sessionSum > 0 ? qsTr("What you have paid is recorded. Please call the staff.")
                                         : qsTr("Please use another kiosk."), help].join("\n").trim();
    }

    // The pictures stand beside the sentence where that leaves it one line.
    readonly property bool low: pictures.visible
                                && sign.width + headline.implicitWidth + pictures.natural + 2 * columnSpacing
                                   <= width

    columnSpacing: KioskTheme.gap
    rowSpacing: KioskTheme.gap
    Accessible.role: Accessible.AlertMessage
    Accessible.name: [headline.text, advice].join("\n").trim()

    Timer {
        id: limit
        property bool passed: false
        readonly property bool waiting: prompt.mode === "wait" || prompt.mode === "late"
        interval: 1000 * prompt.waitLimit
        running: waiting && !passed
        onTriggered: passed = true
        onWaitingChanged: passed = false
    }

    Item {
        id: sign
        Layout.row: 0
        Layout.column: 0
        Layout.alignment: headline.lineCount > 1 ? Qt.AlignTop : Qt.AlignVCenter
        implicitWidth: 1.3 * KioskTheme.large
        implicitHeight: 1.2 * KioskTheme.large

        KioskIcon {
            anchors.fill: parent
            kind: ({"invite": "insert", "late": "warn", "paid": "good", "out": "bad"})[prompt.mode] || ""
            color: ({"late": KioskTheme.warn, "paid": KioskTheme.good, "out": KioskTheme.bad})[prompt.mode]
                   || KioskTheme.accent
        }
        Item { // dots in a ring, of which the darkest goes round
            id: ring
            objectName: "motion"
            property int step: 0
            anchors.fill: parent
            visible: prompt.mode === "wait"

            Timer {
                interval: KioskTheme.motion ? 150 : 1000
                repeat: true
                running: ring.visible
                onTriggered: ring.step = (ring.step + 1) % 8
            }
            Repeater {
                model: 8
                Rectangle {
                    required property int index
                    readonly property real angle: index * Math.PI / 4
                    width: ring.width / 5
                    height: width
                    radius: width / 2
                    x: (ring.width - width) / 2 * (1 + Math.sin(angle))
                    y: (ring.height - height) / 2 * (1 - Math.cos(angle))
                    color: KioskTheme.accent
                    opacity: [1, 0.7, 0.5, 0.35][(ring.step - index + 8) % 8] || 0.2
                }
            }
        }
    }
    KioskText {
        id: headline
        objectName: "headline"
        Layout.row: 0
        Layout.column: 1
        Layout.columnSpan: prompt.low ? 1 : 2
        Layout.fillWidth: true
        text: prompt.mode === "paid" ? qsTr("Paid. Thank you!")
            : prompt.mode === "late" ? qsTr("This takes longer than usual.") : prompt.service.customerText
        font.pixelSize: KioskTheme.large
        font.bold: true
        Accessible.ignored: true
    }
    Flow {
        id: pictures
        objectName: "pictures"
        // In one line.
        readonly property real natural: [notePicture, coinPicture, cardPicture].reduce(
            (sum, picture) => picture.visible ? sum + picture.implicitWidth + spacing : sum, -spacing)
        Layout.fillWidth: !prompt.low
        Layout.preferredWidth: natural
        Layout.row: prompt.low ? 0 : 1
        Layout.column: prompt.low ? 2 : 1
        Layout.columnSpan: prompt.low ? 1 : 2
        spacing: 2 * KioskTheme.gap
        visible: prompt.mode === "invite" && prompt.pictured

        MoneyPicture {
            id: notePicture
            objectName: "notePicture"
            kind: "note"
            word: qsTr("Notes")
            visible: prompt.service.noteAccepted
        }
        MoneyPicture {
            id: coinPicture
            objectName: "coinPicture"
            kind: "coin"
            word: qsTr("Coins")
            visible: prompt.service.coinAccepted
        }
        MoneyPicture {
            id: cardPicture
            objectName: "cardPicture"
            kind: "card"
            word: qsTr("Card")
            visible: prompt.service.cardAccepted
        }
    }
    KioskText {
        objectName: "outOfService"
        Layout.row: 2
        Layout.column: 1
        Layout.columnSpan: 2
        Layout.fillWidth: true
        visible: text !== ""
        text: prompt.advice
        font.pixelSize: KioskTheme.medium
        color: KioskTheme.quiet
        Accessible.ignored: true
    }
}
