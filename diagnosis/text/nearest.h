// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// " (nearest known: WORD)" with the word that is spelled most like this one, the first of several;
/// an empty text when none has half of its characters.
QString nearestKnown(const QString& word, const QStringList& known);
