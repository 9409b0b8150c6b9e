// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0

// What the engineer sees: a card for each device, why nothing is accepted, the age of the state, and the
// report.
Rectangle {
    id: screen

    property ServiceState service
    property bool reportShown: false

    signal closed
    signal motionWanted(bool wanted)

    color: Theme.ground

    // What lies in the devices, as far as the service tells.
    readonly property var contents: {
        try {
            return JSON.parse(screen.service.text).content || [];
        } catch (error) {
            return [];
        }
    }

    // How old the state is, in seconds; below 0 when nobody knows.
    property int age: -1
    function tellAge() {
        const published = screen.service.timestamp.getTime();
        age = isNaN(published) ? -1 : Math.max(0, Math.round((Date.now() - published) / 1000));
    }
    Connections {
        target: screen.service
        function onTimestampChanged() {
            screen.tellAge();
        }
    }
    Timer {
        interval: 1000
        repeat: true
        running: screen.visible
        triggeredOnStart: true
        onTriggered: screen.tellAge()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap
        spacing: Theme.gap

        Flow {
            Layout.fillWidth: true
            spacing: Theme.gap

            Key {
                objectName: "closeKey"
                text: qsTr("Close")
                Component.onCompleted: forceActiveFocus()
                onClicked: screen.closed()
            }
            Key {
                objectName: "devicesKey"
                text: qsTr("Devices")
                checked: !screen.reportShown
                onClicked: screen.reportShown = false
            }
            Key {
                objectName: "reportKey"
                text: qsTr("Report")
                checked: screen.reportShown
                onClicked: screen.reportShown = true
            }
            Key {
                objectName: "motionKey"
                text: Theme.motion ? qsTr("Motion is on") : qsTr("Motion is off")
                onClicked: screen.motionWanted(!Theme.motion)
            }
        }
        SmallText {
            objectName: "age"
            Layout.fillWidth: true
            text: (screen.service.available ? "" : qsTr("The acceptor service is not on the bus.") + " ")
                  + (screen.age < 0 ? qsTr("No state yet.")
                     : qsTr("State of %1, %2 s old.")
                       .arg(Qt.formatDateTime(screen.service.timestamp, "dd.MM.yyyy hh:mm:ss")).arg(screen.age))
            font.bold: !screen.service.available
            color: screen.service.available ? Theme.ink : Theme.bad
        }
        SmallText {
            objectName: "reasons"
            Layout.fillWidth: true
            visible: text !== ""
            // A validator that idles takes notes, although it is not ready for another command.
            text: screen.service.noteAccepted || screen.service.coinAccepted ? ""
                  : Array.from(screen.service.reasons).join("\n")
            color: Theme.bad
        }

        GridView {
            id: grid
            objectName: "devices"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !screen.reportShown
            clip: true
            activeFocusOnTab: true
            readonly property int columns: Math.max(1, Math.floor(width / (320 * Theme.unit)))
            cellWidth: width / columns
            cellHeight: 560 * Theme.unit
            model: screen.service.devices
            delegate: Item {
                id: cell
                required property var model
                width: grid.cellWidth
                height: grid.cellHeight
                DeviceCard {
                    anchors.fill: parent
                    anchors.margins: Theme.gap / 2
                    entry: cell.model
                    money: screen.contents.find(device => device.device_id === cell.model.deviceId
                                                && device.thread_id === cell.model.threadId) || null
                }
            }
            add: Transition {
                NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.duration }
            }
            displaced: Transition {
                NumberAnimation { properties: "x,y"; duration: Theme.duration }
            }
            ScrollBar.vertical: ScrollBar {}
        }
        ScrollView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: screen.reportShown
            clip: true
            TextArea {
                objectName: "report"
                text: screen.service.report
                textFormat: TextEdit.PlainText
                readOnly: true
                selectByMouse: true
                font.pixelSize: Theme.small
                color: Theme.ink
            }
        }
    }
}
