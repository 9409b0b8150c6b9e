// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// What lies in a device, a line for each cassette, hopper, channel and box of rejects: by the registry
/// of the device, or by the places that the service's ledger publishes. Its lines stay while what they
/// say changes.
Column {
    id: table

    /// In whose currency and language values are written.
    property ServiceState service: null

    /// The role "registry" of a device: a model.
    property var registry: null

    /// The "places" of a device's published content; takes precedence over the registry unless null.
    property var places: null

    property color ink: KioskTheme.ink

    readonly property bool isLedger: places !== null && places !== undefined
    readonly property int count: isLedger ? kept.count : registry ? registry.count : 0

    readonly property var locale: service ? Qt.locale(service.locale) : Qt.locale()

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

    // What a service publishes may be anything.
    function line(place) {
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
                    : qsTr("%1 to %2").arg(least).arg(numberText(Number(given.max)))
        };
    }

    function keep() {
        const lines = Array.from(typeof places === "object" && places || []).map(line);
        for (let i = 0; i < lines.length; ++i) {
            kept.set(i, lines[i]);
        }
        if (kept.count > lines.length) {
            kept.remove(lines.length, kept.count - lines.length);
        }
    }

    onPlacesChanged: keep() // before isLedger follows
    onLocaleChanged: keep()
    Connections {
        target: table.service
        function onCurrencyChanged() {
            table.keep();
        }
        function onDigitsChanged() {
            table.keep();
        }
    }

    visible: count > 0
    Accessible.role: Accessible.Table
    Accessible.name: isLedger ? qsTr("Content by the log") : qsTr("Content by the device")

    ListModel {
        id: kept
    }

    component Line: Item {
        id: cells

        property string place
        property string value
        property string pieces
        property string rejected
        property bool hasRejected: true
        property bool isHead: false
        property color ink

        readonly property real unit: (width - 3 * KioskTheme.gap / 2) / (hasRejected ? 100 : 80)

        implicitHeight: Math.max(first.implicitHeight, second.implicitHeight, third.implicitHeight,
                                 fourth.implicitHeight) + KioskTheme.gap / 2
        Accessible.role: Accessible.Row
        Accessible.name: [place, value, pieces, rejected].filter(text => text !== "").join(", ")

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: KioskTheme.gap / 2

            KioskText {
                id: first
                width: cells.unit * 30
                text: cells.place
                font.bold: cells.isHead
                color: cells.ink
                Accessible.ignored: true
            }
            KioskText {
                id: second
                width: cells.unit * 28
                horizontalAlignment: Text.AlignRight
                text: cells.value
                font.bold: cells.isHead
                color: cells.ink
                Accessible.ignored: true
            }
            KioskText {
                id: third
                width: cells.unit * 22
                horizontalAlignment: Text.AlignRight
                text: cells.pieces
                font.bold: cells.isHead
                color: cells.ink
                Accessible.ignored: true
            }
            KioskText {
                id: fourth
                width: cells.unit * 20
                visible: cells.hasRejected
                horizontalAlignment: Text.AlignRight
                text: cells.rejected
                font.bold: cells.isHead
                color: cells.ink
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
        width: table.width
        isHead: true
        hasRejected: !table.isLedger
        ink: table.ink
        place: qsTr("Place")
        value: qsTr("Value")
        pieces: qsTr("Pieces")
        rejected: hasRejected ? qsTr("Rejected") : ""
    }
    Repeater {
        model: kept
        Line {
            required property var model
            width: table.width
            hasRejected: false
            ink: table.ink
            place: model.place
            value: model.value
            pieces: model.pieces
        }
    }
    Repeater {
        model: table.isLedger ? null : table.registry
        Line {
            required property var model
            width: table.width
            ink: table.ink
            place: (model.isCoin ? qsTr("Hopper %1") : qsTr("Cassette %1")).arg(model.channel)
            value: table.valueText(model.denomination, model.currency)
            pieces: table.numberText(model.stock)
            rejected: table.numberText(model.rejects)
        }
    }
}
