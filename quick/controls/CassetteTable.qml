// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// What lies in a device, a line for each cassette, hopper, channel and box of rejects: by the registry
/// of the device, or by the places that the service's ledger publishes. Its lines stay while what they
/// say changes. Where the columns have no room, a line is written as two.
Column {
    id: table

    /// In whose currency and language values are written.
    property ServiceState service: null

    /// The role "registry" of a device: a model.
    property var registry: null

    /// The "places" of a device's published content; takes precedence over the registry unless null.
    property var places: null

    /// The colour of texts and lines.
    property color ink: KioskTheme.ink

    // Whether it shows places, not the registry.
    readonly property bool isLedger: places !== null && places !== undefined

    /// How many lines there are besides the head; without any it is not visible.
    readonly property int count: kept.count

    // What the lines say; a binding follows whatever it is made of, the language too.
    readonly property var lines: isLedger ? Array.from(typeof places === "object" && places || []).map(placeLine)
                               : listed.rows.map(registryLine)
    readonly property var head: ({"place": qsTr("Place"), "value": qsTr("Value"), "pieces": qsTr("Pieces"),
                                  "rejected": isLedger ? "" : qsTr("Rejected")})

    // How wide each column has to be, and what is left of the width between them.
    readonly property var needs: measure(lines.concat(head), metrics.font)
    readonly property real spare: (width - needs.reduce((sum, need) => sum + need)) / (isLedger ? 2 : 3)
    readonly property bool isNarrow: spare < KioskTheme.gap

    /// What numbers are written by.
    readonly property var locale: service ? Qt.locale(service.locale) : Qt.locale()

    /// A number as people read it; "?" for what is none.
    function numberText(value: real): string {
        return isFinite(value) ? value.toLocaleString(locale, "f", 0) : "?";
    }

    /// A face value; that of another currency than the service's own is written with its code.
    function valueText(value: real, currency: string): string {
        // Read in any case: a binding follows what it has read.
        const digits = service ? service.digits : 0;
        const ours = service ? service.currency : "";
        const number = isFinite(value) ? (value / Math.pow(10, digits)).toLocaleString(locale, "f", digits) : "?";
        return isFinite(value) && service && (currency === "" || currency === ours) ? service.moneyText(value)
             : currency === "" ? number : number + "\u00a0" + currency;
    }

    // The font is that of the metrics, given for the binding to follow it.
    function measure(written, font) {
        return ["place", "value", "pieces", "rejected"].map(
            column => Math.ceil(Math.max(...written.map(line => metrics.advanceWidth(line[column])))));
    }

    // What a service publishes may be anything.
    function placeLine(place) {
        const given = place || {};
        const currency = /^\w{1,8}$/.test(given.currency) ? given.currency : "";
        const least = numberText(Number(given.min));
        return {
            "place": given.place === "cassette" ? qsTr("Cassette")
                   : given.place === "reject" ? qsTr("Rejects")
                   : qsTr("Channel %1").arg(numberText(Number(given.channel))),
            "value": valueText(Number(given.denomination), currency),
            "pieces": given.max === undefined ? qsTr("at least %1").arg(least)
                    : given.max === given.min ? least
                    : qsTr("%1 to %2").arg(least).arg(numberText(Number(given.max))),
            "rejected": ""
        };
    }

    // A row of the model has what it is to have.
    function registryLine(row) {
        return {
            "place": (row.isCoin ? qsTr("Hopper %1") : qsTr("Cassette %1")).arg(row.channel),
            "value": valueText(row.denomination, row.currency),
            "pieces": numberText(row.stock),
            "rejected": numberText(row.rejects)
        };
    }

    onLinesChanged: {
        lines.forEach((line, row) => kept.set(row, line));
        if (kept.count > lines.length) {
            kept.remove(lines.length, kept.count - lines.length);
        }
    }
    RowArray {
        id: listed
        model: table.registry
    }

    visible: count > 0
    Accessible.role: Accessible.Table
    Accessible.name: isLedger ? qsTr("Content by the log") : qsTr("Content by the device")

    ListModel {
        id: kept
    }
    FontMetrics {
        id: metrics
        font.family: sample.font.family
        font.pixelSize: KioskTheme.small
        font.bold: true
    }
    KioskText {
        id: sample
        visible: false
    }

    component Line: Item {
        id: cells

        property var owner // the table
        property var line
        property bool isHead: false

        readonly property var ends: owner.needs.map(
            (need, column) => owner.needs.slice(0, column + 1).reduce((sum, width) => sum + width) + column * owner.spare)

        width: owner.width
        implicitHeight: texts.height + KioskTheme.gap / 2
        Accessible.role: Accessible.Row
        Accessible.name: [line.place, line.value, line.pieces, line.rejected].filter(text => text !== "").join(", ")

        Item {
            id: texts
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: cells.owner.isNarrow ? narrow.implicitHeight : Math.ceil(metrics.height)

            Repeater {
                model: cells.owner.isNarrow ? [] : ["place", "value", "pieces", "rejected"]
                KioskText {
                    required property string modelData
                    required property int index
                    x: cells.ends[index] - (index > 0 ? implicitWidth : cells.ends[index])
                    visible: text !== ""
                    text: cells.line[modelData]
                    wrapMode: Text.NoWrap
                    font.bold: cells.isHead
                    color: cells.owner.ink
                    Accessible.ignored: true
                }
            }
            KioskText {
                id: narrow
                width: parent.width
                visible: cells.owner.isNarrow
                text: cells.line.place + " · " + cells.line.value + "\n" + cells.owner.head.pieces + ": " + cells.line.pieces
                      + (cells.line.rejected === "" ? ""
                         : " · " + cells.owner.head.rejected + ": " + cells.line.rejected)
                color: cells.owner.ink
                Accessible.ignored: true
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: KioskTheme.border
            color: KioskTheme.edge
            opacity: cells.isHead ? 1 : 0.4
        }
    }

    Line {
        owner: table
        visible: !table.isNarrow
        isHead: true
        line: table.head
    }
    Repeater {
        model: kept
        Line {
            required property var model
            owner: table
            line: model
        }
    }
}
