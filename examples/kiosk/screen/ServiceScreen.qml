// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0
import Velmolib.Controls 5.0

// What the engineer sees: how old the state is, what is wrong, open money, the devices, and the report.
Rectangle {
    id: screen

    property ServiceState service
    property alias refused: openMoney.refused // an incident that the service would not settle
    property bool reportShown: false

    signal closed

    color: KioskTheme.ground
    Keys.onEscapePressed: closed()

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
        }
        StateAge {
            Layout.fillWidth: true
            service: screen.service
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
