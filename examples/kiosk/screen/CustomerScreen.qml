// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Kiosk 1.0
import Velmolib 5.0
import Velmolib.Controls 5.0

// What the customer sees: what to do, the sums, and what became of the money. The keys are at the bottom, where
// everybody reaches them on a tall kiosk.
FocusScope {
    id: screen

    property ServiceState service
    property string contact // whom to call; empty for nobody

    readonly property bool tall: height > width

    onVisibleChanged: {
        if (visible)
            languageKeys.forceActiveFocus();
    }
    focus: true

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
            limit: screen.tall ? 3 : 1
        }
        Item {
            Layout.fillHeight: screen.tall
        }
        LanguageKey {
            id: languageKeys
            Layout.alignment: Qt.AlignRight
            languages: [{code: "en", name: "English"}, {code: "ru", name: "Русский"}]
            current: Language.current
            onChosen: code => Language.current = code
        }
    }
}
