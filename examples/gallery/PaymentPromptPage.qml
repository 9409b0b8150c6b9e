// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import Velmolib.Controls 5.0

PaymentPrompt {
    property var sample

    contact: "8 800 200-00-00"
    waitLimit: sample.waitLimit === undefined ? 45 : sample.waitLimit
}
