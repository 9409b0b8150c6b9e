// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorattemptfilteritem.h"

#include "json/variants.h"

int AcceptorAttemptFilterItem::attempts() const
{
    return m_attempts;
}

void AcceptorAttemptFilterItem::setAttempts(int attempts)
{
    m_attempts = attempts;
}

int AcceptorAttemptFilterItem::denom() const
{
    return m_denom;
}

void AcceptorAttemptFilterItem::setDenom(int denom)
{
    m_denom = denom;
}

void AcceptorAttemptFilterItem::loadFromMap(QVariantMap map)
{
    m_denom = Variants::number(Variants::toString(map.value(QStringLiteral("denom"), 1))).toInt();
    m_attempts =
        Variants::number(Variants::toString(map.value(QStringLiteral("attempts"), 1))).toInt();
}

QVariantMap AcceptorAttemptFilterItem::toMap() const
{
    return {{QStringLiteral("denom"), QString::number(m_denom)},
            {QStringLiteral("attempts"), QString::number(m_attempts)}};
}
