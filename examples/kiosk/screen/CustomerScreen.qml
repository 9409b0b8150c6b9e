// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

// What the customer sees: what to do, the sums, and what became of the money. The language keys of a
// tall kiosk are at the bottom, where everybody reaches them.
FocusScope {
    id: screen

    property ServiceState service
    property string contact // whom to call; empty for nobody
    property alias languages: keys.languages // of which there are keys, and
    property alias language: keys.current // which is spoken

    readonly property bool tall: height > width

    signal languageChosen(string code)

    onVisibleChanged: if (visible) forceActiveFocus()

    KioskPage { // moves only where large texts leave no room
        id: page
        anchors.fill: parent
        anchors.margins: KioskTheme.gap
        anchors.bottomMargin: KioskTheme.gap + (screen.tall ? screen.height - keys.y : 0)
        contentHeight: strip.place + strip.height

        PaymentPrompt {
            id: prompt
            tall: screen.tall
            width: screen.tall ? parent.width : keys.x - 2 * KioskTheme.gap
            height: Math.max(bareHeight, screen.tall ? 0 : keys.height,
                             page.height - strip.height - KioskTheme.gap
                             - (banner.height > 0 ? banner.height + KioskTheme.gap : 0))
            service: screen.service
            contact: screen.contact
        }
        NoteBanner {
            id: banner
            y: prompt.height + (height > 0 ? KioskTheme.gap : 0)
            width: parent.width
            service: screen.service
            contact: screen.contact
        }
        MoneyStrip { // what is left to pay is always seen, what it says below that gives way to what is stuck
            id: strip
            readonly property real place: banner.y + banner.height + KioskTheme.gap
            y: Math.min(place, page.contentY + page.height - bareHeight)
            width: parent.width
            service: screen.service
            contact: screen.contact
        }
    }
    Connections {
        target: screen.service
        function onNoteEvent() {
            page.contentY = 0;
        }
    }
    LanguageKey {
        id: keys
        x: screen.width - width - KioskTheme.gap
        y: screen.tall ? screen.height - height - KioskTheme.gap : KioskTheme.gap
        columns: screen.tall ? Math.max(1, Math.floor((screen.width - 2 * KioskTheme.gap + spacing) / (keyWidth + spacing))) : 1
        onChosen: code => screen.languageChosen(code)
    }
}
