// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import Velmolib 5.0
import Velmolib.Controls 5.0

LanguageKey {
    id: page

    property ServiceState service
    property var sample

    languages: sample.languages
    current: "en"
    onChosen: code => page.current = code
}
