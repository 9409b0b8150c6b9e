#include "acceptorattemptfilteritem.h"

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
    m_denom = map.value(QStringLiteral("denom"), 1).toString().toInt();
    m_attempts = map.value(QStringLiteral("attempts"), 1).toString().toInt();
}

QVariantMap AcceptorAttemptFilterItem::toMap() const
{
    return {{QStringLiteral("denom"), QString::number(m_denom)},
            {QStringLiteral("attempts"), QString::number(m_attempts)}};
}
