// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/piecerange.h"

#include "text/diagnosis.h"

QString PieceRange::certainty() const
{
    return isExact() ? QStringLiteral("exact")
        : max        ? QStringLiteral("range")
                     : QStringLiteral("at_least");
}

QString PieceRange::text() const
{
    if (isExact())
        return QString::number(min);
    return max ? Diagnosis::tr("%1 to %2").arg(min).arg(*max)
               : Diagnosis::tr("at least %1").arg(min);
}

PieceRange PieceRange::times(qint64 value) const
{
    return {min * value, max ? std::optional<qint64>(*max * value) : std::nullopt};
}

void PieceRange::widen(qint64 fewer, qint64 more)
{
    min -= fewer;
    if (max)
        *max += more;
}

PieceRange& PieceRange::operator+=(const PieceRange& other)
{
    min += other.min;
    max = max && other.max ? std::optional<qint64>(*max + *other.max) : std::nullopt;
    return *this;
}

PieceRange& PieceRange::operator-=(const PieceRange& other)
{
    const PieceRange old = *this;
    min -= other.max.value_or(old.min);
    max = old.max ? std::optional<qint64>(*old.max - other.min) : std::nullopt;
    return *this;
}
