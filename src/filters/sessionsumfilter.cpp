// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "sessionsumfilter.h"

#include "wraparound_p.h"

AbstractFilter::FilterResult SessionSumFilter::validate()
{
    const DeviceState* const newest = newestEvent();
    if (!newest)
        return FILTER_REJECT;
    return wrappingSum(newest->sessionSum, newest->currentNote) > m_sessionSum ? FILTER_REJECT
                                                                               : FILTER_ACCEPT;
}

void SessionSumFilter::setSessionSum(int maximum)
{
    m_sessionSum = maximum;
}

QString SessionSumFilter::getFilterName() const
{
    return QStringLiteral("session sum filter");
}

QList<FieldDescription> SessionSumFilter::getFieldsDescription() const
{
    return {{QStringLiteral("sessionSum"), tr("Maximum session sum"), QStringLiteral("int"),
             QStringLiteral("^(\\d+)$")}};
}

QString SessionSumFilter::getFilterDescription() const
{
    return tr("Max session sum filter|Sets maximum sum for the session");
}
