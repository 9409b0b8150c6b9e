// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// How many devices there are, and a card for each, in columns, the broken ones first. What the service
/// publishes as "content" stands on them; while it is silent they are dimmed. A card is made when it comes
/// into sight.
KioskPage {
    id: page

    /// Whose devices are shown; it has to be set.
    property ServiceState service

    /// How many devices something is wrong with; it is set here.
    property int faulty: 0

    /// How many devices there are.
    readonly property int count: cells.count

    // Where the cards are.
    readonly property int columns: Math.max(1, Math.floor(width / (120 * KioskTheme.density)))
    readonly property real gap: KioskTheme.gap / 2
    readonly property real step: (width - gap) / columns

    // The published content of the devices.
    property var contents: []

    // Read a few times in a second, however fast states follow each other.
    Timer {
        id: reading
        interval: 100
        running: page.visible
        onTriggered: {
            try {
                page.contents = Array.from(JSON.parse(page.service.text).content || []);
            } catch (error) {
                page.contents = [];
            }
        }
    }
    Connections {
        target: page.visible ? page.service : null
        function onTextChanged() {
            reading.start();
        }
    }

    // Once for all that changes at a time.
    Timer {
        id: placing
        interval: 0
        onTriggered: page.place()
    }

    // Each under the shortest column.
    function place() {
        if (!visible) {
            return;
        }
        const all = Array.from({length: cells.count}, (_, row) => cells.itemAt(row)).filter(cell => cell);
        const broken = all.filter(cell => cell.isBroken);
        const ends = new Array(columns).fill(heading.height + gap);
        for (const cell of broken.concat(all.filter(cell => !cell.isBroken))) {
            const column = ends.indexOf(Math.min(...ends));
            cell.x = column * step;
            cell.y = ends[column];
            cell.active = cell.active || cell.y < contentY + height;
            ends[column] += cell.height + gap;
        }
        faulty = broken.length;
        contentHeight = Math.max(...ends);
    }

    // What a page that goes away still tells must not call anything of it.
    property bool isThere: true
    Component.onDestruction: isThere = false
    readonly property var shape: [visible, contentY, height, step, heading.height, cells.count]
    onShapeChanged: if (isThere) placing.start()
    Accessible.role: Accessible.List
    Accessible.name: heading.text

    KioskText {
        id: heading
        width: page.width
        text: qsTr("Devices: %1, with faults: %2").arg(page.count).arg(page.faulty)
        font.bold: true
        Accessible.ignored: true
    }
    Repeater {
        id: cells
        model: page.service ? page.service.devices : null
        Item {
            id: cell

            required property int index
            required property var model
            readonly property bool isBroken: model.severity > 0
            property alias active: card.active
            property alias item: card.item

            width: page.step - page.gap
            height: card.item ? card.height : 60 * KioskTheme.density
            readonly property var shape: [height, index, isBroken]
            onShapeChanged: if (page.isThere) placing.start()

            Loader {
                id: card
                width: cell.width
                active: false
                sourceComponent: DeviceCard {
                    service: page.service
                    entry: cell.model
                    dimmed: !page.service.available || page.service.stale
                    content: page.contents.find(device => device && device.device_id === cell.model.deviceId
                                                && device.thread_id === cell.model.threadId) || null
                }
            }
        }
    }
}
