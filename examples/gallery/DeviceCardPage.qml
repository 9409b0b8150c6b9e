// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

Flow {
    id: page

    property ServiceState service
    property var sample

    readonly property var content: JSON.parse(service.text || "{}").content || []

    spacing: KioskTheme.gap

    Repeater {
        model: page.service.devices
        DeviceCard {
            required property var model
            width: Math.min(page.width, 190 * KioskTheme.density)
            service: page.service
            entry: model
            content: page.content.find(device => device.device_id === model.deviceId
                                       && device.thread_id === model.threadId) || null
            dimmed: !page.service.available || page.service.stale
        }
    }
}
