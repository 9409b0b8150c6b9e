// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Velmolib 5.0
import Velmolib.Controls 5.0

// What the customer sees: what to do, the sums, and what became of the money. The language keys are at the
// bottom, where everybody reaches them on a tall kiosk.
FocusScope {
    id: screen

    property ServiceState service
    property string contact // whom to call; empty for nobody
    property alias language: keys.current

    signal languageChosen(string code)

    onVisibleChanged: if (visible) forceActiveFocus()

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: KioskTheme.gap
        spacing: KioskTheme.gap

        PaymentPrompt {
            Layout.fillWidth: true
            Layout.fillHeight: true
            service: screen.service
            contact: screen.contact
        }
        MoneyStrip {
            Layout.fillWidth: true
            service: screen.service
            contact: screen.contact
        }
        NoteBanner {
            Layout.fillWidth: true
            service: screen.service
            contact: screen.contact
            limit: screen.height > screen.width ? 3 : 1
        }
        LanguageKey {
            id: keys
            Layout.alignment: Qt.AlignRight
            languages: [{code: "en", name: "English"}, {code: "ru", name: "Русский"}]
            onChosen: code => screen.languageChosen(code)
        }
    }
}
