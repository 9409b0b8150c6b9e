// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Kiosk 1.0
import Velmolib 5.0
import Velmolib.Controls 5.0

// What the engineer sees: how old the state is, what is wrong, open money, the devices, and the report.
Rectangle {
    id: screen

    property ServiceState service
    property bool reportShown: false

    signal closed

    color: KioskTheme.ground
    Keys.onEscapePressed: closed()

    Connections {
        target: ServiceLink
        function onSettleFailed(incident) {
            openMoney.refused = incident;
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: KioskTheme.gap
        spacing: KioskTheme.gap / 2

        Flow {
            Layout.fillWidth: true
            spacing: KioskTheme.gap / 2

            KioskKey {
                objectName: "closeKey"
                text: qsTr("Close")
                Component.onCompleted: forceActiveFocus()
                onClicked: screen.closed()
            }
            KioskKey {
                objectName: "reportKey"
                text: screen.reportShown ? qsTr("Devices") : qsTr("Report")
                onClicked: screen.reportShown = !screen.reportShown
            }
            KioskKey {
                text: KioskTheme.motion ? qsTr("Motion is on") : qsTr("Motion is off")
                onClicked: KioskTheme.motion = !KioskTheme.motion
            }
        }
        StateAge {
            objectName: "age"
            Layout.fillWidth: true
            service: screen.service
        }
        KioskText {
            text: qsTr("Devices: %1, with faults: %2.").arg(devices.count).arg(devices.faulty)
        }
        FaultBanner {
            Layout.fillWidth: true
            service: screen.service
        }
        OpenMoney {
            id: openMoney
            Layout.fillWidth: true
            service: screen.service
        }
        DeviceCards {
            id: devices
            objectName: "devices"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !screen.reportShown
            service: screen.service
        }
        KioskPage {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: screen.reportShown
            contentHeight: report.height

            KioskText {
                id: report
                objectName: "report"
                width: parent.width - KioskTheme.gap
                text: screen.service.report
            }
        }
    }
}
