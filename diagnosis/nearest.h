// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The word that is spelled most like this one; the first of several, an empty text of none.
QString nearest(const QString& word, const QStringList& known);
