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
    property real density: 0 // that of the screen
    property bool largeText: false
    property bool highContrast: false
    property bool motion: true

    /// "customer", "pin" or "service"
    property string page: "customer"

    width: 1024
    height: 768
    visible: true
    title: qsTr("Payment")
    color: KioskTheme.ground

    Component.onCompleted: {
        KioskTheme.density = Qt.binding(() => density > 0 ? density : Screen.pixelDensity);
        KioskTheme.scale = Qt.binding(() => Math.min(width, height) / KioskTheme.density / 158);
        KioskTheme.largeText = Qt.binding(() => largeText);
        KioskTheme.highContrast = Qt.binding(() => highContrast);
        KioskTheme.motion = motion;
        ServiceLink.follow();
    }

    ServiceState {
        id: acceptor
        available: ServiceLink.available
        locale: Language.current
        staleAfter: 15 // three heartbeats of the service
        onSettleWanted: incident => ServiceLink.settle(incident)
        onNoteEvent: {
            if (window.page === "customer") { // who pays is there
                watch.running = false;
                watch.running = true;
            }
        }
    }
    Connections {
        target: ServiceLink
        function onStateReceived(text, timestamp) {
            acceptor.take(text, timestamp);
        }
    }
    PinLock {
        id: staff
    }
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
            x: KioskTheme.gap
            y: KioskTheme.gap
            width: parent.width - 2 * x
            visible: !staff.ready
            text: qsTr("Write a PIN of 4 to 12 digits into a file that only this program may read, and start the screen with --pin-file FILE.")
        }
    }
    Loader {
        anchors.fill: parent
        active: window.page === "service"
        sourceComponent: ServiceScreen {
            objectName: "serviceScreen"
            service: acceptor
            onClosed: window.page = "customer"
        }
    }
}
