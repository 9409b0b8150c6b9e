// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// A text for customers in the middle of the room that it has, smaller where it is long.
Text {
    fontSizeMode: Text.Fit
    minimumPixelSize: Theme.small
    wrapMode: Text.WordWrap
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
}
