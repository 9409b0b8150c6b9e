// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

FaultBanner {
    property var sample
}
