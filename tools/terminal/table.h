// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

/// Rows of text as a table with columns as wide as needed.
/// @param head the columns' headings; one that begins with ">" is of numbers and aligned right
/// @param width of a line, 0 for any; the last column goes on below itself where it is too long
QString formatTable(const QStringList& head, const QList<QStringList>& rows, int width = 0);

/// Rows of a name and what it means, the meanings side by side and broken at the width of a page.
QString formatList(const QList<QStringList>& rows);

constexpr int pageWidth = 80;

/// A text broken at a width, every line but the first one indented.
/// @param width 0 for any
QString wrapped(const QString& text, int indent = 0, int width = pageWidth);
