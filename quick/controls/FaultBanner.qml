// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// The worst of what is wrong with the devices, and how much more there is; that all is well only while
/// the service says so.
Notice {
    id: banner

    /// Whose faults are shown; null is as silent as a service that is lost.
    property ServiceState service: null

    /// The row of ServiceState.worstFaults that is shown; without roles while there is none. It is set here.
    property var worst: ({})

    /// How many other faults there are; it is set here.
    property int others: 0

    // Whether nobody says that anything works.
    readonly property bool isSilent: !service || !service.available || service.stale
                                     || service.devices.count === 0
    readonly property bool isFaulty: worst.text !== undefined

    // Follows the model.
    function look() {
        const faults = service ? service.worstFaults : null;
        worst = faults && faults.count > 0 ? faults.get(0) : {};
        others = faults ? Math.max(0, faults.count - 1) : 0;
    }

    // What there is to say in either case.
    readonly property string reasons: service ? Array.from(service.reasons).join("\n") : ""
    readonly property string fault: isFaulty ? worst.deviceName + ": " + worst.text : ""

    kind: isSilent ? "bad" : !isFaulty ? "good" : ["info", "warn", "bad", "bad"][worst.severity] || "bad"
    text: isSilent ? reasons : isFaulty ? fault : qsTr("No device has a fault.")
    detail: [isSilent ? fault : "", others > 0 ? qsTr("Other faults: %1").arg(others) : ""]
            .filter(line => line !== "").join("\n")

    onServiceChanged: look()
    Component.onCompleted: look()
    Connections {
        target: banner.service ? banner.service.worstFaults : null
        function onCountChanged() {
            banner.look();
        }
        function onDataChanged() {
            banner.look();
        }
        function onRowsInserted() {
            banner.look();
        }
    }
}
