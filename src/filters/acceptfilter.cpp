// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptfilter.h"

#include "log_p.h"

AbstractFilter::FilterResult AcceptFilter::validate()
{
    logDebug() << QStringLiteral("Accept filter");
    return m_acceptAll ? FILTER_ACCEPT : FILTER_REJECT;
}

QString AcceptFilter::getFilterName() const
{
    return QStringLiteral("accept filter");
}

QList<FieldDescription> AcceptFilter::getFieldsDescription() const
{
    return {{QStringLiteral("acceptAll"), tr("Accept(1) or reject(0) notes"), QStringLiteral("int"),
             QStringLiteral("^(0|1)$")}};
}

QString AcceptFilter::getFilterDescription() const
{
    return tr("Accept filter|If enabled and set to false, coin acceptors and BNVs shall reject all "
              "coins and notes");
}
