// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "log/sessionline.h"

#include <optional>

/// The time that --from and --to leave of logs, both included.
class Period
{
public:
    /// Throws Fault for what is no time, and for an end before the beginning.
    explicit Period(const GivenOptions& arguments);

    bool isAll() const { return !m_from && !m_to; }

    /// Whether a line belongs in it: where nothing is known of its time, only in the whole time.
    bool has(const LogTime& time) const;

    /// Whether a moment lies before or after it; one that is not known lies before all others.
    bool isAfter(std::optional<qint64> moment) const { return m_from && moment < m_from; }
    bool isBefore(std::optional<qint64> moment) const { return m_to && moment > m_to; }

    /// Whether some of what lasted from one moment to another one, in milliseconds since 1970, lies
    /// in it.
    /// @param from none where it began before the first time that is known
    bool overlaps(std::optional<qint64> from, std::optional<qint64> to) const;

private:
    std::optional<qint64> m_from;
    std::optional<qint64> m_to;
};

/// Gives the lines of a log the times by which they are selected and shown: a line without one
/// comes after the last line that has one.
class LineTimes
{
public:
    explicit LineTimes(bool utc)
        : m_utc(utc)
    {
    }

    void place(SessionLine& line);

    /// Whether a line had one.
    bool anyKnown() const { return m_last.isKnown(); }

private:
    const bool m_utc;
    LogTime m_last;
};
