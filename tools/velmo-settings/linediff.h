// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

/// A line of a text, or of the one that it becomes.
struct DiffLine
{
    enum Kind { Same, Removed, Added };

    Kind kind;
    int number; ///< of the line, from 1: in the new text where it was added, else in the old one
    QByteArray text; ///< with its line feed, if it has one
};

/// All lines of two texts in order: what goes before what comes in its place.
QVector<DiffLine> lineDiff(const QByteArray& before, const QByteArray& after);
