// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/moneyformat.h"

#include <cmath>

QString MoneyFormat::text(qint64 value) const
{
    const QString number = locale.toString(double(value) / std::pow(10, digits), 'f', digits);
    return currency.isEmpty() ? number : number + QChar(QChar::Nbsp) + currency;
}

MoneyFormat MoneyFormat::of(const QString& other) const
{
    return {other.isEmpty() ? currency : other, digits, locale};
}
