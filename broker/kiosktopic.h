// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// Where summaries are published unless told otherwise, and where the workers tell of themselves.
constexpr char usualSummaries[] = "kiosks/+/summary";
constexpr char usualStatus[] = "velmo-fleet/+/status";

/// The topics of all kiosks: one or two levels of the topic are the kiosk's name, and one may be
/// the number of its part.
class KioskTopic
{
public:
    /// @param pattern a topic with "+", "%1" or "%kiosk" for the levels of the name and "%part" for
    /// that of the part, for example "kiosks/%part/%kiosk/state". Throws Fault for any other.
    explicit KioskTopic(const QString& pattern);

    /// What to subscribe to.
    /// @param part 0 for all of them
    QString filter(int part = 0) const;

    /// @param kiosk a name that kioskOf() gives
    /// @param part 0 for what to subscribe to of that kiosk, whatever its part
    QString of(const QString& kiosk, int part = 0) const;

    /// The name, its two levels joined by "/"; empty for a topic that is of no kiosk.
    QString kioskOf(const QString& topic) const;

    /// The number that its level of the part has; 0 without one.
    int partOf(const QString& topic) const;

    bool hasPart() const { return m_levels.contains(QLatin1String("%part")); }

    /// How many levels the names have.
    int nameLevels() const { return int(m_levels.count(QLatin1String("+"))); }

private:
    QStringList m_levels; // "+" and "%part" where they vary
};

/// What kiosks of one place have in common: the name up to the first of "/", "-", "_" and ".".
/// Empty for a name without one.
QString regionOf(const QString& kiosk);
