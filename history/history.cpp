// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "history.h"

#include "text/fault.h"

class History::Database
{
};

History::History(const QString& place)
{
    throw Fault{place};
}

History::~History() = default;

QHash<QString, History::Now> History::now(qint64) const
{
    return {};
}

std::vector<History::ConditionSpan> History::conditions(const QString&) const
{
    return {};
}

std::vector<History::FaultSpan> History::faults(const QString&) const
{
    return {};
}

std::vector<History::Collection> History::collections(const QString&) const
{
    return {};
}

QHash<QString, History::Availability> History::availability(const QDate&, qint64) const
{
    return {};
}

std::vector<History::Due> History::due(qint64) const
{
    return {};
}
