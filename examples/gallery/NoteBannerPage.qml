// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import Velmolib.Controls 5.0

NoteBanner {
    property var sample

    contact: "8 800 200-00-00"
}
