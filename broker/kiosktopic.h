// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Where summaries are published unless told otherwise.
constexpr char usualSummaries[] = "kiosks/%1/summary";

/// The topics of all kiosks: one level of the topic is the kiosk's name.
class KioskTopic
{
public:
    /// @param pattern a topic with "+" or "%1" for that level, for example "kiosks/+/state". Throws
    /// Fault for one that has not exactly one.
    explicit KioskTopic(const QString& pattern);

    /// What to subscribe to.
    QString filter() const { return m_before + QLatin1Char('+') + m_after; }

    QString of(const QString& kiosk) const { return m_before + kiosk + m_after; }

    /// Empty for a topic that is of no kiosk.
    QString kioskOf(const QString& topic) const;

private:
    QString m_before;
    QString m_after;
};
