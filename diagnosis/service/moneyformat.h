// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>

/// How amounts are written for people: the digits grouped as the locale does it, and after them the
/// currency's code, the same in every language, since symbols are not unique and no font has all.
struct MoneyFormat
{
    QString currency = {}; ///< a code of ISO 4217; empty for plain numbers
    int digits = 0; ///< of an amount, stand after the point
    QLocale locale = {};

    /// @param value in the smallest unit
    QString text(qint64 value) const;

    /// The same for another currency; for an empty one itself.
    MoneyFormat of(const QString& other) const;
};
