// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// Asks for the PIN before the screens of the staff: by a pad low on the screen, or by a keyboard. The
/// digits stand nowhere as text. It is used anew each time that it becomes visible.
FocusScope {
    id: gate

    /// What says whether it is the PIN; without one nothing opens.
    property PinLock lock: null

    /// The right PIN was given; once until the gate is used anew.
    signal opened

    /// Who stood there goes away again: the program shows another page.
    signal cancelled

    // Whether a PIN can be typed at all, and not at this moment; how many digits were.
    readonly property bool isReady: lock !== null && lock.ready
    readonly property bool isWaiting: isReady && lock.waitSeconds > 0
    readonly property int count: hidden.digits.length

    QtObject {
        id: hidden
        property string digits: ""
        property bool isWrong: false
        property bool isOpen: false
    }

    /// Forgets what was typed, as it does when it becomes visible.
    function restart() {
        hidden.digits = "";
        hidden.isWrong = false;
        hidden.isOpen = false;
        if (visible) {
            forceActiveFocus();
        }
    }

    /// Types a digit, as a key of the pad does; nothing during a wait.
    function type(digit: string) {
        if (isReady && !isWaiting && !hidden.isOpen && count < 12) {
            hidden.isWrong = false;
            hidden.digits += digit;
        }
    }

    /// Takes back the last digit.
    function erase() {
        hidden.digits = hidden.digits.slice(0, -1);
    }

    /// Tries the PIN that was typed, and says opened() where it is the right one.
    function submit() {
        if (!isReady || isWaiting || hidden.isOpen || count === 0) {
            return;
        }
        hidden.isOpen = lock.check(hidden.digits);
        hidden.isWrong = !hidden.isOpen;
        hidden.digits = "";
        if (hidden.isOpen) {
            opened();
        }
    }

    /// Forgets what was typed, and says cancelled().
    function cancel() {
        hidden.digits = "";
        cancelled();
    }

    focus: true
    onVisibleChanged: restart()
    Component.onCompleted: restart()
    onIsWaitingChanged: {
        hidden.digits = "";
        // The wait is what says that the last try was wrong; after it the next one may come.
        hidden.isWrong = false;
        if (isWaiting) {
            gate.forceActiveFocus(); // the key that has it is disabled
        }
    }
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            submit();
        } else if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            erase();
        } else if (event.key === Qt.Key_Escape) {
            cancel();
        } else if (/^[0-9]$/.test(event.text)) {
            type(event.text);
        } else {
            event.accepted = false;
        }
    }

    Column {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: KioskTheme.gap
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 2 * KioskTheme.gap, 20 * KioskTheme.medium)
        spacing: KioskTheme.gap / 2

        Notice {
            objectName: "message"
            width: parent.width
            kind: !gate.isReady || hidden.isWrong || gate.isWaiting ? "bad" : "info"
            sign: "lock"
            detail: gate.isReady || !gate.lock ? "" : gate.lock.fault
            text: !gate.isReady ? qsTr("There is no PIN: the screens of the staff stay closed.")
                : gate.isWaiting ? qsTr("Wrong PIN. Wait %1 s.").arg(gate.lock.waitSeconds)
                : hidden.isWrong ? qsTr("Wrong PIN. Try again.") : qsTr("For the staff: enter the PIN.")
        }
        Item {
            objectName: "dots"
            width: parent.width
            height: 2 * dots.size
            visible: gate.isReady
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Digits entered: %1").arg(gate.count)

            Row {
                id: dots

                readonly property int size: Math.round(3 * KioskTheme.density)

                anchors.centerIn: parent
                spacing: size
                Repeater {
                    model: Math.max(4, gate.count)
                    Rectangle {
                        required property int index
                        width: dots.size
                        height: dots.size
                        radius: dots.size / 2
                        color: index < gate.count ? KioskTheme.ink : "transparent"
                        border.color: KioskTheme.ink
                        border.width: KioskTheme.border
                    }
                }
            }
        }
        Grid {
            id: pad
            objectName: "pad"
            columns: 3
            spacing: KioskTheme.gap / 2
            visible: gate.isReady
            enabled: !gate.isWaiting

            Repeater {
                model: ["1", "2", "3", "4", "5", "6", "7", "8", "9", "delete", "0", "enter"]
                KioskKey {
                    required property string modelData
                    objectName: "key-" + modelData
                    width: (pad.parent.width - 2 * pad.spacing) / 3
                    padding: KioskTheme.gap / 4
                    leftPadding: padding
                    rightPadding: padding
                    focusPolicy: Qt.TabFocus // so that Return after a click is that of the gate
                    text: modelData === "delete" ? qsTr("Delete") : modelData === "enter" ? qsTr("OK") : modelData
                    onClicked: modelData === "delete" ? gate.erase()
                             : modelData === "enter" ? gate.submit() : gate.type(modelData)
                }
            }
        }
        KioskKey {
            objectName: "cancelKey"
            width: parent.width
            focusPolicy: Qt.TabFocus
            text: qsTr("Cancel")
            onClicked: gate.cancel()
        }
    }
}
