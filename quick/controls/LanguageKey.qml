// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// A key for each language but the current one, named in that language. Which one is spoken, the program
/// decides: it sets current when a language was chosen.
Row {
    id: keys

    /// A list of {code, name}, such as {code: "de", name: "Deutsch"}.
    property var languages: []

    /// The code of the language that is spoken.
    property string current: ""

    signal chosen(string code)

    readonly property var others: languages.filter(language => language.code !== current)

    spacing: KioskTheme.gap / 2

    // The keys stay when the language changes, so that the focus does.
    Repeater {
        model: keys.others.length
        KioskKey {
            required property int index
            readonly property var language: keys.others[index] || {code: "", name: ""}
            objectName: "languageKey"
            text: language.name
            sign: "globe"
            onClicked: keys.chosen(language.code)
        }
    }
}
