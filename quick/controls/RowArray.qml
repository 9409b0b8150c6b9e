// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// The rows of a model, such as the open notes, as an array that a binding can choose from.
QtObject {
    id: array

    property var model
    property int version: 0

    readonly property var rows: version >= 0 && model ? Array.from({length: model.count}, (_, row) => model.get(row)) : []

    readonly property Connections changes: Connections {
        target: array.model
        function onRowsInserted() { ++array.version; }
        function onRowsRemoved() { ++array.version; }
        function onRowsMoved() { ++array.version; }
        function onDataChanged() { ++array.version; }
    }
}
