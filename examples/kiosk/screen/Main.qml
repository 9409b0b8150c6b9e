// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Window 2.15
import Kiosk 1.0
import Velmolib 5.0

// The kiosk's window: the customer's screen, and the service screen that staff open with F12 or by
// holding the upper left corner for three seconds.
Window {
    id: window

    property alias names: acceptor.names
    property real price: 0
    property bool motion: true
    property bool serviceShown: false

    width: 1024
    height: 768
    visible: true
    title: qsTr("Payment")
    color: Theme.ground

    Binding {
        target: Theme
        property: "unit"
        value: window.width < window.height ? window.width / 768
                                            : Math.min(window.width / 1024, window.height / 768)
    }
    Binding {
        target: Theme
        property: "motion"
        value: window.motion
    }

    ServiceState {
        id: acceptor
        available: ServiceLink.available
    }
    Connections {
        target: ServiceLink
        function onStateReceived(text, timestamp) {
            acceptor.take(text, timestamp);
        }
    }
    Component.onCompleted: ServiceLink.follow()

    Shortcut {
        sequence: "F12"
        onActivated: window.serviceShown = !window.serviceShown
    }
    Shortcut {
        sequence: "Escape"
        enabled: window.serviceShown
        onActivated: window.serviceShown = false
    }

    CustomerScreen {
        objectName: "customerScreen"
        anchors.fill: parent
        visible: !window.serviceShown
        enabled: visible
        service: acceptor
        price: window.price
        onServiceWanted: window.serviceShown = true
    }
    Loader {
        anchors.fill: parent
        active: window.serviceShown
        sourceComponent: ServiceScreen {
            objectName: "serviceScreen"
            service: acceptor
            onClosed: window.serviceShown = false
            onMotionWanted: wanted => window.motion = wanted
        }
    }
}
