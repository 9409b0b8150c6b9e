// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Window 2.15
import Kiosk 1.0
import Velmolib 5.0
import Velmolib.Controls 5.0

// The kiosk's window: the customer's screen, and the service screen, to which staff come by F12 or by
// holding the upper left corner for three seconds, and by their PIN.
Window {
    id: window

    property alias names: acceptor.names
    property alias price: acceptor.price
    property alias idleSeconds: watch.seconds
    property alias pinFile: staff.file
    property string contact: ""
    property var theme: ({}) // what KioskTheme is to have
    property string page: "customer" // or "pin" or "service"

    width: 1024
    height: 768
    visible: true
    title: qsTr("Payment")
    color: KioskTheme.ground

    Component.onCompleted: {
        KioskTheme.density = Qt.binding(() => Screen.pixelDensity);
        KioskTheme.scale = Qt.binding(() => Math.min(1.1 * width, height) / KioskTheme.density / 158);
        Object.assign(KioskTheme, theme);
        ServiceLink.follow();
    }

    ServiceState {
        id: acceptor
        available: ServiceLink.available
        locale: Language.current
        staleAfter: 15 // three heartbeats of the service
        onSettleWanted: incident => ServiceLink.settle(incident)
        onNoteEvent: if (window.page === "customer") watch.restart() // who pays is there
    }
    Connections {
        target: ServiceLink
        function onStateReceived(text, timestamp) {
            acceptor.take(text, timestamp);
        }
    }
    PinLock { id: staff }
    IdleWatch {
        id: watch
        onIdle: {
            window.page = "customer";
            Language.current = Language.first;
        }
    }
    Shortcut {
        sequence: "F12"
        onActivated: window.page = window.page === "customer" ? "pin" : "customer"
    }
    CustomerScreen {
        objectName: "customerScreen"
        anchors.fill: parent
        visible: window.page === "customer"
        service: acceptor
        contact: window.contact
        languages: Language.all
        language: Language.current
        onLanguageChosen: code => Language.current = code
    }
    MouseArea {
        objectName: "corner"
        width: 2 * KioskTheme.touch
        height: width
        enabled: window.page === "customer"
        pressAndHoldInterval: 3000
        onPressAndHold: window.page = "pin"
    }
    PinGate {
        objectName: "pinGate"
        anchors.fill: parent
        visible: window.page === "pin"
        lock: staff
        onOpened: window.page = "service"
        onCancelled: window.page = "customer"

        KioskText {
            objectName: "pinHint"
            width: parent.width
            visible: !staff.ready
            text: qsTr("To set a PIN: write 4 to 12 digits into a file and start with --pin-file FILE.")
        }
    }
    Loader {
        anchors.fill: parent
        active: window.page === "service"
        sourceComponent: ServiceScreen {
            objectName: "serviceScreen"
            service: acceptor
            refused: ServiceLink.refused
            onClosed: window.page = "customer"
        }
    }
}
