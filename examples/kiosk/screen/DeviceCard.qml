// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Controls 2.15

// A device for the engineer. Its properties are the roles of ServiceState.devices; what lies in it is told
// by the ledger, or by its registry where the service keeps no ledger.
Rectangle {
    id: card

    property var entry
    property var money: null // of the published "content"

    // "at least 3 × 1000"
    function amount(place) {
        const pieces = place.max === undefined ? qsTr("at least %1").arg(place.min)
                     : place.max === place.min ? place.min
                     : qsTr("%1 to %2").arg(place.min).arg(place.max);
        return (pieces + "\u00a0×\u00a0" + place.denomination + " " + place.currency).trim();
    }

    // A line for each cassette and channel, and for the rejects.
    function placeLines() {
        const amounts = {};
        for (const place of money ? money.places : []) {
            const name = place.place === "cassette" ? qsTr("Cassette")
                       : place.place === "reject" ? qsTr("Rejects") : qsTr("Channel %1").arg(place.channel);
            amounts[name] = (amounts[name] || []).concat(amount(place));
        }
        return Object.keys(amounts).map(name => name + ": " + amounts[name].join(", "));
    }

    function pieceLines(isStuck) {
        return (money ? money.pieces : []).filter(piece => piece.stuck === isStuck).map(
            piece => (isStuck ? qsTr("Stuck: %1, since %2") : qsTr("On its way: %1, since %2"))
                     .arg(piece.count + "\u00a0×\u00a0" + (piece.denomination || "?"))
                     .arg(Qt.formatDateTime(new Date(piece.since), "dd.MM.yyyy hh:mm")));
    }

    radius: Theme.gap / 2
    color: Theme.panel
    border.color: entry.wrong.length > 0 ? Theme.bad : Theme.edge
    border.width: entry.wrong.length > 0 ? 3 : 1

    Flickable {
        anchors.fill: parent
        anchors.margins: Theme.gap
        contentHeight: content.implicitHeight
        clip: true
        ScrollBar.vertical: ScrollBar {}

        Column {
            id: content
            width: card.width - 2 * Theme.gap
            spacing: Theme.gap / 2

            Text {
                width: content.width
                text: card.entry.name
                font.pixelSize: Theme.medium
                font.bold: true
                wrapMode: Text.Wrap
                color: Theme.ink
            }
            SmallText {
                width: content.width
                // A device that was given no name is called after its kind and model.
                text: [card.entry.name.includes(card.entry.modelName) ? "" : card.entry.kind,
                       card.entry.name.includes(card.entry.modelName) ? "" : card.entry.modelName,
                       qsTr("device %1, thread %2").arg(card.entry.deviceId).arg(card.entry.threadId),
                       card.entry.idText].filter(part => part !== "").join(" · ")
                color: Theme.quiet
            }
            SmallText {
                width: content.width
                text: card.entry.enabled
                      ? card.entry.statusText + (card.entry.description === "" ? "" : ": " + card.entry.description)
                      : qsTr("switched off")
            }
            Flow {
                width: content.width
                spacing: Theme.gap * 0.6
                Repeater {
                    model: card.entry.lamps
                    Lamp {
                        required property var modelData
                        label: modelData.label
                        lit: modelData.lit
                        alarm: modelData.alarm
                    }
                }
            }
            Repeater {
                model: card.entry.wrong
                SmallText {
                    required property string modelData
                    width: content.width
                    text: modelData
                    color: Theme.bad
                }
            }
            SmallText {
                objectName: "stuck"
                width: content.width
                visible: text !== ""
                text: card.pieceLines(true).join("\n")
                color: Theme.bad
            }
            SmallText {
                width: content.width
                text: qsTr("Inserted %1, rejected %2, returned %3").arg(card.entry.notesInserted)
                      .arg(card.entry.notesRejected).arg(card.entry.notesReturned)
                color: Theme.quiet
            }
            Repeater {
                model: card.money ? null : card.entry.registry
                SmallText {
                    required property bool isCoin
                    required property int channel
                    required property int stock
                    required property int denomination
                    required property string currency
                    required property int rejects
                    width: content.width
                    text: (isCoin ? qsTr("Hopper %1: %2 coins of %3 %4, %5 rejected")
                                  : qsTr("Cassette %1: %2 notes of %3 %4, %5 rejected"))
                          .arg(channel).arg(stock).arg(denomination).arg(currency).arg(rejects)
                }
            }
            SmallText {
                width: content.width
                visible: card.money !== null
                text: qsTr("Content by the log:")
                color: Theme.quiet
            }
            SmallText {
                objectName: "places"
                width: content.width
                visible: text !== ""
                text: card.placeLines().join("\n")
            }
            SmallText {
                objectName: "onTheirWay"
                width: content.width
                visible: text !== ""
                text: card.pieceLines(false).join("\n")
            }
        }
    }
}
