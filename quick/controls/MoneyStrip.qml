// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0

/// The sums of a payment: what is left to pay is largest. It says what becomes of change before and after,
/// and when money that was told as paid is in the sum no more.
Rectangle {
    id: strip

    property ServiceState service

    /// Whom to call; empty when nobody can be called.
    property string contact: ""

    readonly property bool lost: service.lostSum > 0
    readonly property string help: contact === "" ? "" : qsTr("Help: %1").arg(contact)

    readonly property string changeText: {
        const mode = service.changeMode;
        if (service.change > 0) {
            return qsTr("You have paid %1 too much.").arg(service.moneyText(service.change)) + " "
                + (mode === "paid" ? qsTr("Your change is paid out. Please take it.")
                   : mode === "credited" ? qsTr("It stays on your account.")
                   : mode === "none" ? qsTr("This kiosk gives no change. Please call the staff.")
                                     : qsTr("Please ask the staff for your change."));
        }
        if (service.paid || service.price <= 0)
            return "";
        return mode === "none" ? qsTr("This kiosk gives no change.")
             : mode === "paid" ? qsTr("Change is paid out.")
             : mode === "credited" ? qsTr("What you pay too much stays on your account.") : "";
    }

    readonly property string lostText: !lost ? ""
        : [qsTr("Before a fault you had paid %1 more. It is missing in the sum now.").arg(service.moneyText(service.lostSum)),
           service.lostSumRecorded ? qsTr("It is recorded. Please call the staff.") : qsTr("Please call the staff."),
           help].join(" ").trim()

    implicitWidth: content.implicitWidth + 2 * content.x
    implicitHeight: content.implicitHeight + 2 * content.y
    radius: KioskTheme.radius
    color: KioskTheme.panel
    border.color: KioskTheme.edge
    border.width: KioskTheme.border
    Accessible.role: Accessible.StatusBar
    Accessible.name: [label.text + ": " + rest.text, sum.text, changeText, lostText].filter(text => text !== "").join("\n")

    ColumnLayout {
        id: content
        x: 1.5 * KioskTheme.gap
        y: KioskTheme.gap
        width: strip.width - 2 * x
        spacing: KioskTheme.gap / 2

        GridLayout {
            Layout.fillWidth: true
            columns: label.implicitWidth + rest.implicitWidth + columnSpacing > content.width ? 1 : 2
            columnSpacing: 2 * KioskTheme.gap
            rowSpacing: 0

            KioskText {
                id: label
                Layout.fillWidth: true
                text: strip.service.price > 0 && !strip.service.paid ? qsTr("Left to pay") : qsTr("Paid")
                font.pixelSize: KioskTheme.large
                Accessible.ignored: true
            }
            KioskText {
                id: rest
                objectName: "rest"
                Layout.fillWidth: true
                Layout.maximumWidth: content.width
                text: strip.service.moneyText(strip.service.price > 0 && !strip.service.paid ? strip.service.left
                                                                                             : strip.service.sessionSum)
                font.pixelSize: KioskTheme.huge
                font.bold: true
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: KioskTheme.medium
                wrapMode: Text.NoWrap
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
        }
        Rectangle {
            objectName: "bar"
            readonly property real part: Math.min(1, Math.max(0, strip.service.sessionSum) / Math.max(1, strip.service.price))
            Layout.fillWidth: true
            Layout.preferredHeight: KioskTheme.gap
            visible: strip.service.price > 0
            radius: height / 2
            color: KioskTheme.ground
            border.color: KioskTheme.edge
            border.width: KioskTheme.border

            Rectangle {
                height: parent.height
                width: Math.max(height, parent.width * parent.part)
                visible: parent.part > 0
                radius: height / 2
                color: KioskTheme.good
                Behavior on width {
                    NumberAnimation { duration: KioskTheme.duration }
                }
            }
        }
        KioskText {
            id: sum
            objectName: "sum"
            Layout.fillWidth: true
            visible: text !== ""
            text: strip.service.price > 0
                  ? qsTr("Paid: %1 of %2").arg(strip.service.moneyText(strip.service.sessionSum))
                                          .arg(strip.service.moneyText(strip.service.price))
                  : ""
            font.pixelSize: KioskTheme.medium
            Accessible.ignored: true
        }
        Repeater {
            model: [
                {name: "change", text: strip.changeText, kind: "info", color: KioskTheme.ink},
                {name: "lostSum", text: strip.lostText, kind: "warn", color: KioskTheme.bad}
            ]
            RowLayout {
                id: line
                required property var modelData
                Layout.fillWidth: true
                visible: modelData.text !== ""
                spacing: KioskTheme.gap / 2

                KioskIcon {
                    Layout.preferredWidth: KioskTheme.medium
                    Layout.preferredHeight: KioskTheme.medium
                    kind: line.modelData.kind
                    color: line.modelData.color
                }
                KioskText {
                    objectName: line.modelData.name
                    Layout.fillWidth: true
                    text: line.modelData.text
                    font.pixelSize: KioskTheme.medium
                    color: line.modelData.color
                    Accessible.ignored: true
                }
            }
        }
    }
}
