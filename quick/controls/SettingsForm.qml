// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0

/// The settings of the service or of a device as a form. What is entered goes through
/// SettingDescriptions.setValue() at once, and what the service cannot work with is said beside the field.
/// Limits and routes are shown only.
Flickable {
    id: form

    /// What is shown and changed; empty while it is null.
    property SettingDescriptions settings: null

    /// Whether labels stand beside the fields, for which a narrow form has no room.
    readonly property bool isWide: width > 150 * KioskTheme.density

    /// Moves the form so that the item in it is seen.
    function reveal(item: Item) {
        const top = item.mapToItem(rows, 0, 0).y;
        contentY = Math.max(0, Math.min(contentY, top), Math.min(top, top + item.height - height));
    }

    /// Moves the form by so many of its heights; up below 0.
    function turn(pages: real) {
        contentY = Math.max(0, Math.min(contentHeight - height, contentY + pages * height));
    }

    contentHeight: rows.implicitHeight
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
        if (event.accepted) {
            turn(event.key === Qt.Key_PageUp ? -0.8 : 0.8);
        }
    }
    Accessible.role: Accessible.Form
    Accessible.name: qsTr("Settings")

    Catalogue {
        id: catalogue
    }
    Column {
        id: rows
        width: form.width - bar.width - KioskTheme.gap / 2

        Repeater {
            model: form.settings
            Item {
                id: row

                required property string group
                required property string key
                required property string label
                required property string help
                required property string kind
                required property var minimum
                required property var maximum
                required property var choices
                required property var defaultValue
                required property string value
                required property bool valid
                required property bool isDefault

                readonly property bool isEntered: kind === "number" || kind === "text"
                readonly property bool isChosen: kind === "switch" || kind === "choice"
                // A default that the service cannot work with stands for nothing.
                readonly property bool hasDefault: defaultValue !== undefined && defaultValue !== ""
                                                   && form.settings.accepts(group, key, defaultValue)
                // What is beyond whole numbers of JavaScript is no bound that anybody meets.
                readonly property string bounds: kind !== "number" ? ""
                    : maximum > Number.MAX_SAFE_INTEGER ? qsTr("%1 or more").arg(minimum)
                    : qsTr("%1 to %2").arg(minimum.toFixed(0)).arg(maximum.toFixed(0))
                readonly property string fault: valid ? ""
                    : kind === "number" ? qsTr("Enter a whole number: %1.").arg(bounds)
                    : kind === "text" ? qsTr("Enter a text.")
                    : isChosen ? qsTr("“%1” is none of the choices. Choose one.").arg(value)
                    : qsTr("The service cannot work with this.")

                function wordOf(text: string): string {
                    return kind !== "switch" ? text : ["1", "true"].includes(text) ? qsTr("on") : qsTr("off");
                }

                function enter(text: string) {
                    form.settings.setValue(group, key, text);
                }

                objectName: group + "/" + key
                width: rows.width
                height: Math.max(about.height, answer.y + answer.height - about.y) + KioskTheme.gap

                Column {
                    id: about
                    y: KioskTheme.gap / 2
                    width: form.isWide ? (row.width - KioskTheme.gap) / 2 : row.width

                    KioskText {
                        width: about.width
                        text: row.label
                        font.bold: true
                    }
                    KioskText {
                        width: about.width
                        visible: text !== ""
                        text: row.help
                        color: KioskTheme.quiet
                    }
                }
                Column {
                    id: answer
                    x: row.width - width
                    y: form.isWide ? about.y : about.y + about.height + spacing
                    width: about.width
                    spacing: KioskTheme.gap / 4

                    Loader {
                        width: answer.width
                        sourceComponent: row.isEntered ? entry : row.isChosen ? choice : reading
                    }
                    Notice {
                        objectName: "fault"
                        width: answer.width
                        visible: row.fault !== ""
                        kind: "bad"
                        size: KioskTheme.small
                        text: row.fault
                    }
                    KioskText {
                        objectName: "bounds"
                        width: answer.width
                        visible: text !== ""
                        text: [row.bounds, row.key === "device_id" && row.valid ? catalogue.deviceName(Number(row.value)) : "",
                               !row.hasDefault ? "" : row.isDefault ? qsTr("this is the default")
                               : qsTr("default: %1").arg(row.wordOf(row.defaultValue))
                              ].filter(part => part !== "").join(" · ")
                        color: KioskTheme.quiet
                    }
                }
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: KioskTheme.border
                    color: KioskTheme.edge
                    opacity: 0.4
                }

                Component {
                    id: entry
                    KioskField {
                        readonly property string given: row.value

                        objectName: "field"
                        valid: row.valid
                        inputMethodHints: row.kind === "number" ? Qt.ImhFormattedNumbersOnly : Qt.ImhNone
                        Accessible.name: row.label
                        Accessible.description: row.help + (row.fault === "" ? "" : " " + row.fault)
                        // A binding would end with the first key.
                        onGivenChanged: if (text !== given) text = given
                        Component.onCompleted: text = given
                        onTextEdited: row.enter(text)
                        onActiveFocusChanged: if (activeFocus) form.reveal(row)
                    }
                }
                Component {
                    id: choice
                    Flow {
                        spacing: KioskTheme.gap / 2
                        Repeater {
                            model: row.kind === "switch" ? ["1", "0"] : row.choices
                            KioskChoice {
                                required property string modelData
                                objectName: "choice-" + modelData
                                text: row.wordOf(modelData)
                                checked: row.valid && row.wordOf(form.settings.readAs(row.group, row.key, row.value))
                                                      === text
                                Accessible.name: row.label + ": " + text
                                onClicked: row.enter(modelData)
                                onActiveFocusChanged: if (activeFocus) form.reveal(row)
                            }
                        }
                    }
                }
                Component {
                    id: reading
                    Column {
                        KioskText {
                            objectName: "reading"
                            width: parent.width
                            maximumLineCount: 12
                            elide: Text.ElideRight
                            text: row.value === "" ? qsTr("nothing") : row.value
                            Accessible.name: row.label + ": " + text
                        }
                        Row {
                            width: parent.width
                            spacing: KioskTheme.gap / 2

                            KioskIcon {
                                id: sign
                                kind: "lock"
                                color: KioskTheme.quiet
                            }
                            KioskText {
                                width: parent.width - sign.width - parent.spacing
                                text: qsTr("To be changed in the settings window or with “velmo settings”.")
                                color: KioskTheme.quiet
                            }
                        }
                    }
                }
            }
        }
    }

    // Where in the form this is; a finger moves the form itself.
    Rectangle {
        id: bar
        parent: form
        x: form.width - width
        y: form.visibleArea.yPosition * form.height
        width: KioskTheme.density
        height: form.visibleArea.heightRatio * form.height
        visible: form.visibleArea.heightRatio < 1
        radius: width / 2
        color: KioskTheme.edge
    }
}
