// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

/// A key for each language but the current one, named in that language: beside each other, or in so many columns.
/// Which one is spoken, the program decides: it sets current when a language was chosen.
Grid {
    id: keys

    /// A list of {code, name}, such as {code: "de", name: "Deutsch"}.
    property var languages: []

    /// The code of the language that is spoken.
    property string current: ""

    /// A key was pressed: the program is to speak the language of this code.
    signal chosen(string code)

    // Those that have a key.
    readonly property var others: languages.filter(language => language.code !== current)

    /// That of each key: as wide as the longest name needs.
    readonly property real keyWidth: Array.from(children).reduce((most, key) => Math.max(most, key.implicitWidth), 0)

    columns: Math.max(1, others.length)
    spacing: KioskTheme.gap / 2

    // The keys stay when the language changes, so that the focus does.
    Repeater {
        model: keys.others.length
        KioskKey {
            required property int index
            readonly property var language: keys.others[index] || {code: "", name: ""}
            objectName: "languageKey"
            width: keys.keyWidth
            text: language.name
            sign: "globe"
            onClicked: keys.chosen(language.code)
        }
    }
}
