// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import Velmolib.Controls 5.0

OpenMoney {
    property var sample
}
