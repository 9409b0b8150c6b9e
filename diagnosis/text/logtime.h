// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <optional>

/// When a line of a log was written: an ISO 8601 text as it stands, or milliseconds since 1970, or
/// not known.
class LogTime
{
public:
    LogTime() = default;

    /// Throws Fault for a value that is no time.
    explicit LogTime(const QVariant& value);

    /// That of a line without one, which is not known but comes after @p before.
    static LogTime unknownAfter(const LogTime& before);

    bool isKnown() const { return m_hasMilliseconds || !m_text.isEmpty(); }

    /// The text as it stands, or the milliseconds in UTC; empty when not known.
    QString iso() const;

    /// The moment, in the zone or with the offset that the text has.
    QDateTime toDateTime() const;

    /// The same, in milliseconds since 1970; a text without a zone is of the local one. None when
    /// not known.
    std::optional<qint64> moment() const;

    /// The same, or when not known that of the time before it; none without one.
    std::optional<qint64> latestMoment() const;

    /// The same moment as UTC shows it; not known when this is not.
    LogTime utc() const;

    /// The time of day on the clock that the log was written by, as 10:05:12; that of UTC has
    /// "UTC" behind it. Empty when not known.
    QString clock() const;

    /// The same clock with its date, in milliseconds since 1970 as if it showed UTC; none when not
    /// known.
    std::optional<qint64> wallClock() const;

private:
    QString m_text;
    qint64 m_milliseconds = 0;
    bool m_hasMilliseconds = false;
    bool m_isAfter = false; // not known, but not before the milliseconds
};
