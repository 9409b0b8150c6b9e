// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Layouts 1.15
import Kiosk 1.0
import Velmolib 5.0

// What the customer sees: what to do, what is accepted now, the sum, and what became of the last note.
Item {
    id: screen

    /// What the service tells.
    property ServiceState service

    /// What is to be paid; 0 when any sum may be.
    property real price: 0

    /// Somebody held the corner that opens the service screen.
    signal serviceWanted

    readonly property bool paid: price > 0 && service.sessionSum >= price
    readonly property bool noteInside: service.lastNoteOutcome === ServiceState.NoteChecked
                                       || service.lastNoteOutcome === ServiceState.NoteStuck
    readonly property bool takesMoney: service.inService && !paid
    readonly property var language: Qt.locale(Language.current)

    function money(sum) {
        return Number(sum).toLocaleString(language, "f", 0);
    }

    // The message about a note goes away with the time, so that the next customer does not read it.
    Connections {
        target: screen.service
        function onLastNoteOutcomeChanged() {
            freshness.restart();
        }
        function onSessionSumChanged() {
            freshness.restart();
        }
    }
    Timer {
        id: freshness
        interval: 15000
    }

    MouseArea {
        width: 2 * Theme.touch
        height: 2 * Theme.touch
        pressAndHoldInterval: 3000
        onPressAndHold: screen.serviceWanted()
    }

    onVisibleChanged: {
        if (visible)
            languageKey.forceActiveFocus();
    }
    Component.onCompleted: languageKey.forceActiveFocus()

    Key {
        id: languageKey
        objectName: "languageKey"
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: Theme.gap
        text: Language.current === "ru" ? "English" : "Русский"
        onClicked: Language.current = Language.current === "ru" ? "en" : "ru"
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 2 * Theme.gap
        anchors.topMargin: languageKey.height + 2 * Theme.gap
        spacing: screen.height > screen.width ? 3 * Theme.gap : Theme.gap

        Item {
            Layout.fillHeight: true
        }
        FittedText {
            objectName: "headline"
            Layout.fillWidth: true
            Layout.preferredHeight: 2.4 * Theme.huge
            text: screen.paid ? qsTr("Paid. Thank you!") : screen.service.customerText
            font.pixelSize: Theme.huge
            font.bold: true
            minimumPixelSize: Theme.medium
            color: Theme.ink
        }

        Item {
            Layout.fillWidth: true
            Layout.preferredHeight: 150 * Theme.unit

            Row {
                objectName: "pictures"
                anchors.centerIn: parent
                spacing: 3 * Theme.gap
                visible: screen.takesMoney

                MoneyPicture {
                    objectName: "notePicture"
                    kind: "note"
                    word: qsTr("Notes")
                    visible: screen.service.noteAccepted
                }
                MoneyPicture {
                    objectName: "coinPicture"
                    kind: "coin"
                    word: qsTr("Coins")
                    visible: screen.service.coinAccepted
                }
                MoneyPicture {
                    objectName: "cardPicture"
                    kind: "card"
                    word: qsTr("Card")
                    visible: screen.service.cardAccepted
                }
            }
            FittedText {
                objectName: "outOfService"
                anchors.fill: parent
                visible: !screen.service.inService && !screen.paid
                text: screen.service.sessionSum > 0
                      ? qsTr("What you have paid is recorded. Please call the staff.")
                      : screen.noteInside ? qsTr("Please call the staff.")
                                          : qsTr("Please use another kiosk.")
                font.pixelSize: Theme.large
                color: Theme.quiet
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: sums.implicitHeight + 2 * Theme.gap
            radius: Theme.gap
            color: Theme.panel

            ColumnLayout {
                id: sums
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                anchors.margins: 2 * Theme.gap
                spacing: Theme.gap / 2

                Text {
                    objectName: "sum"
                    Layout.alignment: Qt.AlignHCenter
                    text: screen.price > 0 ? qsTr("Paid: %1 of %2").arg(screen.money(screen.service.sessionSum))
                                                                  .arg(screen.money(screen.price))
                                           : qsTr("Paid: %1").arg(screen.money(screen.service.sessionSum))
                    font.pixelSize: Theme.large
                    font.bold: true
                    color: Theme.ink
                }
                Rectangle {
                    Layout.fillWidth: true
                    Layout.preferredHeight: 20 * Theme.unit
                    visible: screen.price > 0
                    radius: height / 2
                    color: Theme.ground
                    border.color: Theme.edge

                    Rectangle {
                        height: parent.height
                        width: parent.width * Math.min(1, screen.service.sessionSum / Math.max(1, screen.price))
                        radius: height / 2
                        color: Theme.good
                        Behavior on width {
                            NumberAnimation { duration: Theme.duration }
                        }
                    }
                }
                Text {
                    objectName: "rest"
                    Layout.alignment: Qt.AlignHCenter
                    visible: screen.price > 0 && !screen.paid
                    text: qsTr("Left to pay: %1").arg(screen.money(screen.price - screen.service.sessionSum))
                    font.pixelSize: Theme.medium
                    color: Theme.quiet
                }
            }
        }

        Rectangle {
            readonly property bool good: screen.service.lastNoteOutcome === ServiceState.NoteTaken
                                         || screen.service.lastNoteOutcome === ServiceState.NoteChecked
            Layout.fillWidth: true
            Layout.preferredHeight: 130 * Theme.unit
            radius: Theme.gap
            color: good ? Theme.goodGround : Theme.badGround
            opacity: noteText.text !== "" && freshness.running && screen.service.available ? 1 : 0
            Behavior on opacity {
                NumberAnimation { duration: Theme.duration }
            }

            FittedText {
                id: noteText
                objectName: "lastNote"
                anchors.fill: parent
                anchors.margins: Theme.gap
                text: screen.service.lastNoteText
                font.pixelSize: Theme.large
                color: parent.good ? Theme.good : Theme.bad
            }
        }
        Item {
            Layout.fillHeight: true
        }
    }
}
