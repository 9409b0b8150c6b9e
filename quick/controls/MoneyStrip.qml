// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// The sums of a payment: what is left to pay is largest. It says what becomes of change before and after,
/// and when money that was told as paid is in the sum no more.
Rectangle {
    id: strip

    /// Whose sums are shown; it has to be set.
    property ServiceState service

    /// Whom to call; empty when nobody can be called.
    property string contact: ""

    // Whom to call, in words.
    readonly property string help: contact === "" ? "" : qsTr("Help: %1").arg(contact)

    // As text, again when the way it is written changes.
    function money(value: real): string {
        return [service.currency, service.digits, service.locale] && service.moneyText(value);
    }

    // What becomes of a sum above the price, as long as it may still be avoided.
    readonly property string ruleText: service.paid || service.price <= 0 ? ""
        : ({"none": qsTr("This kiosk gives no change."), "paid": qsTr("Change is paid out."),
            "credited": qsTr("What you overpay stays on your account.")})[service.changeMode] || ""

    // What a service that is lost would do with it, nobody can promise.
    readonly property bool away: !service.available || service.stale

    // What becomes of what is paid above the price.
    readonly property string changeText: service.change <= 0 ? ""
        : qsTr("You have paid %1 too much.").arg(strip.money(service.change)) + " "
          + (({"none": qsTr("This kiosk gives no change. Please call the staff."),
               "paid": qsTr("You get your change back. If it does not come, please call the staff."),
               "credited": qsTr("It stays on your account.")})[away && service.changeMode !== "none" ? "" : service.changeMode]
             || qsTr("Please ask the staff for your change."))

    // What is missing since the service was lost.
    readonly property string lostText: service.lostSum <= 0 ? ""
        : qsTr("Before a fault you had paid %1 more. It is missing from the sum now.").arg(strip.money(service.lostSum))
          + " " + (service.lostSumRecorded ? qsTr("It is recorded. Please call the staff.")
                                           : qsTr("Please call the staff."))

    // The largest sum: what is left to pay, else what is paid.
    readonly property string figure: money(service.price > 0 && !service.paid ? service.left
                                                                                          : service.sessionSum)

    /// Where it is cut off below this height, the largest sum is whole.
    readonly property real bareHeight: sums.height + 2 * content.y

    implicitWidth: label.implicitWidth + natural.width + 4 * content.x
    implicitHeight: content.implicitHeight + 2 * content.y
    radius: KioskTheme.radius
    color: KioskTheme.panel
    border.color: KioskTheme.edge
    border.width: KioskTheme.border
    Accessible.role: Accessible.StatusBar
    Accessible.name: label.text + ": " + figure + "\n" + sum.text

    TextMetrics {
        id: natural
        font.family: rest.font.family
        font.pixelSize: KioskTheme.huge
        font.bold: true
        text: strip.figure
    }

    TextMetrics { // as wide as the label is where there is room
        id: words
        font: label.font
        text: label.text
    }

    Column {
        id: content
        x: 1.5 * KioskTheme.gap
        y: KioskTheme.gap
        width: strip.width - 2 * x
        spacing: KioskTheme.gap / 2

        Item {
            id: sums
            readonly property bool low: words.width + natural.width + 2 * KioskTheme.gap < width
            width: parent.width
            height: rest.y + rest.contentHeight

            KioskText {
                id: label
                width: parent.width
                wrapMode: parent.low ? Text.NoWrap : Text.Wrap
                y: parent.low ? rest.baselineOffset - baselineOffset : 0
                text: strip.service.price > 0 && !strip.service.paid ? qsTr("Left to pay") : qsTr("Paid")
                font.pixelSize: (KioskTheme.medium + KioskTheme.large) / 2
                Accessible.ignored: true
            }
            KioskText {
                id: rest
                objectName: "rest"
                y: parent.low ? 0 : label.height
                width: parent.width
                text: strip.figure
                font.pixelSize: KioskTheme.huge
                font.bold: true
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: KioskTheme.small
                wrapMode: Text.NoWrap
                horizontalAlignment: parent.low ? Text.AlignRight : Text.AlignLeft
                Accessible.ignored: true
            }
        }
        Rectangle {
            objectName: "bar"
            readonly property real part: Math.min(1, Math.max(0, strip.service.sessionSum) / Math.max(1, strip.service.price))
            width: parent.width
            height: KioskTheme.gap
            visible: strip.service.price > 0 && !strip.service.paid
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
            width: parent.width
            visible: strip.service.price > 0
            text: strip.service.price > 0
                  ? qsTr("Paid: %1 of %2").arg(strip.money(strip.service.sessionSum))
                                          .arg(strip.money(strip.service.price))
                  : qsTr("Paid: %1").arg(strip.figure)
            font.pixelSize: KioskTheme.medium
            Accessible.ignored: true
        }
        KioskText {
            objectName: "changeRule"
            width: parent.width
            visible: text !== ""
            leftPadding: 1.3 * KioskTheme.medium
            text: strip.ruleText
            font.pixelSize: KioskTheme.medium
            color: KioskTheme.quiet

            KioskIcon {
                y: (KioskTheme.medium - height) / 2 + parent.topPadding + KioskTheme.medium / 10
                width: KioskTheme.medium
                height: width
                kind: "info"
                color: KioskTheme.quiet
            }
        }
        Notice {
            objectName: "change"
            width: parent.width
            visible: text !== ""
            kind: "warn"
            sign: "info"
            text: strip.changeText
        }
        Notice {
            objectName: "lostSum"
            width: parent.width
            visible: text !== ""
            kind: "bad"
            text: strip.lostText
            detail: strip.help
        }
    }
}
