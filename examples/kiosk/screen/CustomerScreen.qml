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

        KioskPage { // moves only where large texts leave no room
            id: page
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentHeight: Math.max(height, prompt.height + KioskTheme.gap + money.height)

            Item {
                y: (money.y - prompt.height) / 2

                PaymentPrompt {
                    id: prompt
                    width: page.width
                    service: screen.service
                    contact: screen.contact
                }
            }
            Column {
                id: money
                y: Math.floor(page.contentHeight - height)
                width: page.width
                spacing: KioskTheme.gap

                NoteBanner {
                    width: parent.width
                    service: screen.service
                    contact: screen.contact
                }
                MoneyStrip {
                    width: parent.width
                    service: screen.service
                    contact: screen.contact
                }
            }
        }
        LanguageKey {
            id: keys
            Layout.alignment: Qt.AlignRight
            languages: [{code: "en", name: "English"}, {code: "ru", name: "Русский"}]
            onChosen: code => screen.languageChosen(code)
        }
    }
}
