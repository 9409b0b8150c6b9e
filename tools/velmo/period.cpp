// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "period.h"

#include "options.h"

#include <QDateTime>

namespace {

// Of a date its beginning or its end.
std::optional<qint64> momentOf(const GivenOptions& arguments, const Option& option, bool isEnd)
{
    if (!arguments.isSet(option))
        return {};
    const QString text = arguments.value(option);
    const QDate date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    if (date.isValid())
        return (isEnd ? date.endOfDay() : date.startOfDay()).toMSecsSinceEpoch();
    try {
        return LogTime(text).moment();
    } catch (const Fault&) {
        throw Fault{Velmo::tr("%1: expected an ISO 8601 time or date, as 2026-11-16T10:05:12Z")
                        .arg(option.dashedName())};
    }
}

} // namespace

Period::Period(const GivenOptions& arguments)
    : m_from(momentOf(arguments, options::from, false))
    , m_to(momentOf(arguments, options::to, true))
{
    if (m_from && m_to && *m_from > *m_to)
        throw Fault{Velmo::tr("--from is after --to")};
}

bool Period::has(const LogTime& time) const
{
    if (isAll())
        return true;
    const std::optional<qint64> moment = time.latestMoment();
    return overlaps(moment, moment);
}

bool Period::overlaps(std::optional<qint64> from, std::optional<qint64> to) const
{
    return isAll() || (to && to >= m_from && (!m_to || from <= m_to));
}

void LineTimes::place(SessionLine& line)
{
    if (!line.time().isKnown())
        return line.setTime(LogTime::unknownAfter(m_last));
    if (m_utc)
        line.setTime(line.time().utc());
    m_last = line.time();
}
