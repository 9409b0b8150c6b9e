// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/moneyformat.h"

QString MoneyFormat::text(qint64 value) const
{
    qint64 unit = 1;
    for (int digit = 0; digit < digits; ++digit)
        unit *= 10;
    QString number = locale.toString(qAbs(value) / unit);
    if (digits > 0) {
        QLocale ungrouped = locale;
        ungrouped.setNumberOptions(QLocale::OmitGroupSeparator);
        // With a one before it, so that it begins with its noughts.
        number += locale.decimalPoint() + ungrouped.toString(unit + qAbs(value) % unit).mid(1);
    }
    if (value < 0)
        number.prepend(locale.negativeSign());
    return currency.isEmpty() ? number : number + QChar(QChar::Nbsp) + currency;
}

MoneyFormat MoneyFormat::of(const QString& other) const
{
    return {other.isEmpty() ? currency : other, digits, locale};
}
