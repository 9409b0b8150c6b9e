// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// When the service published what is shown, and how long ago that is; told every second while it is seen.
KioskText {
    id: label

    /// Whose state it is; it has to be set.
    property ServiceState service

    /// How old the state is, in seconds; below 0 when nobody knows. It is set here.
    property int age: -1

    // Whether it may be over, and what it is written by.
    readonly property bool isSilent: !service.available || service.stale
    readonly property var speech: Qt.locale(service.locale)

    // Once for each second.
    function look() {
        const published = service.timestamp.getTime();
        age = isNaN(published) ? -1 : Math.max(0, Math.round((Date.now() - published) / 1000));
    }

    text: age < 0 ? qsTr("No state yet.")
                  : qsTr("State of %1, %2 s old.").arg(service.timestamp.toLocaleString(speech, Locale.ShortFormat))
                                                  .arg(age.toLocaleString(speech, "f", 0))
    font.bold: isSilent
    color: isSilent ? KioskTheme.bad : KioskTheme.ink

    Connections {
        target: label.service
        function onTimestampChanged() {
            label.look();
        }
    }
    Timer {
        interval: 1000
        repeat: true
        running: label.visible
        triggeredOnStart: true
        onTriggered: label.look()
    }
}
