// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// A device for the engineer, as high as its text: first what is wrong with it, then its lamps and
/// counters and what lies in it.
Rectangle {
    id: card

    /// The roles of the device's row in ServiceState.devices.
    required property var entry

    /// What the service published as the content of the device; null where it keeps no ledger, and the
    /// registry is shown instead.
    property var content: null

    /// In whose currency and language values are written.
    property ServiceState service: null

    /// Whether what the card says may be over: the service is silent.
    property bool dimmed: false

    // Whether the name tells the model.
    readonly property bool isNamed: entry.name.includes(entry.modelName)
    readonly property string statusLine: !entry.enabled ? qsTr("switched off")
        : entry.statusText + (entry.description === "" ? "" : ": " + entry.description)
    // Where nothing else is wrong with it.
    readonly property bool isStopped: isWrong && entry.wrong.length === 0
    readonly property bool isWrong: entry.severity > 0
    readonly property string kind: entry.severity < 0 ? "good" : ["info", "warn", "bad"][entry.severity]
    readonly property color front: dimmed ? ink : kind === "good" ? KioskTheme.good : kind === "warn" ? KioskTheme.warn
                                 : kind === "bad" ? KioskTheme.bad : ink
    readonly property color ink: dimmed ? KioskTheme.quiet : KioskTheme.ink

    // A line for each kind of piece that the ledger says is stuck, or on its way.
    function pieceLines(isStuck: bool): string {
        const pieces = content && content.pieces ? Array.from(content.pieces) : [];
        return pieces.filter(piece => piece && piece.stuck === isStuck).map(piece => {
            const since = new Date(piece.since);
            const time = isNaN(since.getTime()) ? "?"
                       : since.toLocaleString(table.locale, Locale.ShortFormat);
            const denomination = Number(piece.denomination);
            return (isStuck ? qsTr("Stuck: %1, since %2") : qsTr("On its way: %1, since %2"))
                   .arg(table.numberText(Number(piece.count)) + "\u00a0×\u00a0"
                        + (denomination > 0 ? table.valueText(denomination, "") : "?")).arg(time);
        }).join("\n");
    }

    implicitWidth: 100 * KioskTheme.density
    implicitHeight: column.implicitHeight + 2 * KioskTheme.gap
    radius: KioskTheme.radius
    color: dimmed ? KioskTheme.ground : KioskTheme.panel
    border.color: isWrong && !dimmed ? front : KioskTheme.edge
    border.width: (isWrong && !dimmed ? 3 : 1) * KioskTheme.border
    Accessible.role: Accessible.Grouping
    Accessible.name: entry.name

    Column {
        id: column
        x: KioskTheme.gap
        y: KioskTheme.gap
        width: card.width - 2 * KioskTheme.gap
        spacing: KioskTheme.gap / 2

        Row {
            width: column.width
            spacing: KioskTheme.gap / 2

            KioskIcon {
                id: sign
                objectName: "sign"
                y: (title.implicitHeight / title.lineCount - height) / 2
                width: title.font.pixelSize
                height: width
                kind: card.dimmed ? "wait" : card.kind
                color: card.front
            }
            KioskText {
                id: title
                width: column.width - sign.width - parent.spacing
                text: card.entry.name
                font.pixelSize: Math.round(1.2 * KioskTheme.small)
                font.bold: true
                color: card.ink
            }
        }
        KioskText {
            objectName: "lastKnown"
            width: column.width
            visible: card.dimmed
            text: qsTr("As last reported; there is no news since.")
            color: card.ink
        }
        Notice {
            objectName: "wrong"
            width: column.width
            visible: text !== ""
            kind: card.dimmed ? "info" : card.kind
            sign: card.dimmed ? "wait" : card.isWrong ? "warn" : "info"
            size: KioskTheme.small
            text: card.isStopped ? card.statusLine : Array.from(card.entry.wrong).join("\n")
        }
        Notice {
            objectName: "stuck"
            width: column.width
            visible: text !== ""
            kind: "bad"
            size: KioskTheme.small
            text: card.pieceLines(true)
        }
        KioskText {
            objectName: "status"
            width: column.width
            visible: !card.isStopped
            text: card.statusLine
            color: card.ink
        }
        Flow {
            width: column.width
            spacing: KioskTheme.gap
            Repeater {
                model: card.entry.lamps
                KioskLamp {
                    required property var model
                    room: column.width
                    label: model.label
                    lit: model.lit
                    alarm: model.alarm && !card.dimmed
                    ink: card.ink
                }
            }
        }
        KioskText {
            width: column.width
            // A device that was given no name is called after its kind and model.
            text: [card.isNamed ? "" : card.entry.kind, card.isNamed ? "" : card.entry.modelName,
                   qsTr("device %1, thread %2").arg(card.entry.deviceId).arg(card.entry.threadId),
                   card.entry.idText].filter(part => part !== "").join(" · ")
            color: KioskTheme.quiet
        }
        KioskText {
            objectName: "counters"
            width: column.width
            text: qsTr("Inserted %1, rejected %2, returned %3").arg(table.numberText(card.entry.notesInserted))
                  .arg(table.numberText(card.entry.notesRejected)).arg(table.numberText(card.entry.notesReturned))
            color: KioskTheme.quiet
        }
        CassetteTable {
            id: table
            objectName: "places"
            width: column.width
            service: card.service
            registry: card.entry.registry
            places: card.content ? card.content.places : null
            ink: card.ink
        }
        KioskText {
            objectName: "onTheirWay"
            width: column.width
            visible: text !== ""
            text: card.pieceLines(false)
            color: card.ink
        }
    }
}
