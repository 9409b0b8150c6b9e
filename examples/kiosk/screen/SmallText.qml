// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// A text for engineers, as it is: what a device tells is no markup.
Text {
    textFormat: Text.PlainText
    font.pixelSize: Theme.small
    wrapMode: Text.Wrap
    color: Theme.ink
}
