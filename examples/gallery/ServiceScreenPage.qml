// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import "../kiosk/screen"

ServiceScreen {
    property var sample
    readonly property bool whole: true

    reportShown: sample.report === true
}
