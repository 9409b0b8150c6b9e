// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashperiod.h"

#include "text/diagnosis.h"

const char* const CashDoubt::stuck =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces got stuck on their way");
const char* const CashDoubt::onItsWay =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces are on their way");

bool CashDoubt::isAbout(CashPlace other, int otherChannel, int value) const
{
    const bool isThere = !place || *place == other;
    const bool isOfChannel = other != CashPlace::Channel || channel == 0 || channel == otherChannel;
    return isThere && isOfChannel && (denomination == 0 || denomination == value);
}

QString CashRow::placeName() const
{
    switch (place) {
    case CashPlace::Cassette:
        return Diagnosis::tr("cassette");
    case CashPlace::Channel:
        return Diagnosis::tr("channel %1").arg(channel);
    case CashPlace::Reject:
        break;
    }
    return Diagnosis::tr("reject");
}

QStringList CashRow::cells() const
{
    return {placeName(),
            QString::number(kind.denomination),
            kind.currency,
            flow.opening.text(),
            flow.in.text(),
            flow.out.text(),
            flow.moved.text(),
            now.text(),
            now.times(kind.denomination).text()};
}

QStringList CashRow::columns()
{
    return {Diagnosis::tr("Place"),   Diagnosis::tr("Value"), Diagnosis::tr("Currency"),
            Diagnosis::tr("Opening"), Diagnosis::tr("In"),    Diagnosis::tr("Out"),
            Diagnosis::tr("Moved"),   Diagnosis::tr("Now"),   Diagnosis::tr("Sum now")};
}
