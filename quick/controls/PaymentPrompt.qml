// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// What the customer is to do now: a sign with a sentence, and pictures of what is accepted or, when nothing
/// is, where to turn. Where it is lower than its implicitHeight the pictures are smaller, or there are none.
Item {
    id: prompt

    /// Whose customer is spoken to; it has to be set.
    property ServiceState service

    /// Whom to call, such as "8 800 200-00-00, day and night"; empty when nobody can be called.
    property string contact: ""

    /// After how many seconds of "Wait..." the customer is told that something is the matter.
    property int waitLimit: 45

    /// Whether it has a room that is rather high than wide: all is large and in the middle then.
    property bool tall: false

    /// "invite", "wait", "late" (it waits for too long), "paid" or "out" (of service).
    readonly property string mode: service.paid ? "paid"
                                   : !service.inService ? "out"
                                   : service.noteAccepted || service.coinAccepted || service.cardAccepted ? "invite"
                                   : limit.passed ? "late" : "wait"

    // Whom to call, in words.
    readonly property string help: contact === "" ? "" : qsTr("Help: %1").arg(contact)

    // Money of the customer's may be inside.
    readonly property bool owes: service.hasStuckMoney || service.openNotes.count > 0
                                 || service.sessionSum > 0 && !service.sumRecorded

    // Whether nobody can say any more that what is paid was heard of.
    readonly property bool unheard: owes && (!service.available || service.stale)

    // What to do where nothing is accepted, in lines.
    readonly property string advice: {
        if (mode === "paid")
            return service.hasStuckMoney || unheard ? qsTr("Please call the staff before you leave.") : "";
        if (mode !== "out" && mode !== "late")
            return "";
        return [mode === "late" ? qsTr("Please call the staff before you leave. Insert no more money.")
                : owes ? qsTr("Please call the staff before you leave.")
                : service.sessionSum > 0 ? qsTr("What you have paid is recorded. Please call the staff.")
                                         : qsTr("Please use another kiosk."), help].join("\n").trim();
    }

    /// Below this height something is cut off.
    readonly property real bareHeight: sentence + (advice === "" ? 0 : between + adviceText.height)

    // Where the sentence and the pictures are, and how large.
    readonly property real between: KioskTheme.gap * (tall ? 2 : 0.5)
    readonly property int wordSize: KioskTheme.medium * (tall ? 1.3 : 1)
    readonly property real wordRoom: Math.ceil(1.25 * wordSize) + KioskTheme.gap / 2
    readonly property real pictureRoom: height - wordRoom - (low ? 0 : sentence + between)
    readonly property real fullUnit: tall ? Math.min(KioskTheme.large / 40, (0.8 * width - 4 * KioskTheme.gap) / 480)
                                          : Math.min(KioskTheme.large / 60, (width - sign.width - 5 * KioskTheme.gap) / 480)
    readonly property bool pictured: mode === "invite" && pictureRoom >= 48 * fullUnit
    // The pictures stand beside the sentence where that leaves it one line.
    readonly property bool low: mode === "invite" && !tall && sign.width + headline.implicitWidth + pictures.natural
                                                              + 2 * KioskTheme.gap <= width
    readonly property real sentence: tall ? sign.height + KioskTheme.gap + headline.height : Math.max(sign.height, headline.height)
    readonly property real line: low && pictured ? Math.max(sentence, pictures.height) : sentence
    readonly property real used: advice !== "" ? bareHeight
                               : pictured && !low ? sentence + between + pictures.height : line
    readonly property real start: Math.max(0, (height - used) / 2)

    implicitWidth: sign.width + KioskTheme.gap + headline.implicitWidth
    implicitHeight: mode === "invite" ? sentence + between + 96 * fullUnit + wordRoom : bareHeight
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
        x: prompt.tall ? (prompt.width - width) / 2 : 0
        y: prompt.start + (prompt.tall || headline.lineCount > 1 ? 0 : (prompt.line - height) / 2)
        width: prompt.tall ? prompt.width / 4 : 1.3 * KioskTheme.large
        height: width

        KioskIcon {
            anchors.fill: parent
            visible: !ring.visible
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
        x: prompt.tall ? 0 : sign.width + KioskTheme.gap
        y: prompt.tall ? sign.y + sign.height + KioskTheme.gap : prompt.start + (prompt.line - height) / 2
        width: prompt.width - x
        horizontalAlignment: prompt.tall ? Text.AlignHCenter : Text.AlignLeft
        text: prompt.mode === "paid" ? qsTr("Paid. Thank you!")
            : prompt.mode === "late" ? qsTr("This takes longer than usual.") : prompt.service.customerText
        font.pixelSize: KioskTheme.large * (prompt.tall ? 1.25 : 1)
        font.bold: true
        Accessible.ignored: true
    }
    Flow {
        id: pictures
        objectName: "pictures"
        readonly property real unit: Math.min(prompt.fullUnit, Math.max(prompt.fullUnit / 2, prompt.pictureRoom / 96))
        // In one line.
        readonly property real natural: Math.ceil([notePicture, coinPicture, cardPicture].reduce(
            (sum, picture) => picture.shown ? sum + Math.max(160 * prompt.fullUnit, picture.wordWidth) + spacing : sum, -spacing))
        x: prompt.tall ? (prompt.width - natural) / 2 : prompt.low ? Math.min(prompt.width - natural, headline.x + headline.implicitWidth + 2 * KioskTheme.gap)
                                                                  : headline.x
        y: prompt.start + (prompt.low ? (prompt.line - height) / 2 : prompt.line + prompt.between)
        width: prompt.tall || prompt.low ? natural : prompt.width - x
        spacing: 2 * KioskTheme.gap
        visible: prompt.pictured

        MoneyPicture {
            id: notePicture
            objectName: "notePicture"
            kind: "note"
            unit: pictures.unit
            wordSize: prompt.wordSize
            word: qsTr("Notes")
            shown: prompt.service.noteAccepted
        }
        MoneyPicture {
            id: coinPicture
            objectName: "coinPicture"
            kind: "coin"
            unit: pictures.unit
            wordSize: prompt.wordSize
            word: qsTr("Coins")
            shown: prompt.service.coinAccepted
        }
        MoneyPicture {
            id: cardPicture
            objectName: "cardPicture"
            kind: "card"
            unit: pictures.unit
            wordSize: prompt.wordSize
            word: qsTr("Card")
            shown: prompt.service.cardAccepted
        }
    }
    KioskText {
        id: adviceText
        objectName: "outOfService"
        x: headline.x
        y: prompt.start + prompt.line + prompt.between
        width: prompt.width - x
        horizontalAlignment: headline.horizontalAlignment
        visible: text !== ""
        text: prompt.advice
        font.pixelSize: prompt.wordSize
        color: KioskTheme.quiet
        Accessible.ignored: true
    }
}
