// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "fleet.h"
#include "history.h"
#include "json/jsontext.h"

#include <QElapsedTimer>

#include <optional>

/// Since when kiosks are as they are: of --history where it is given, else of their summaries.
class FleetMemory
{
public:
    struct Since
    {
        qint64 began;
        int timesThisMonth; ///< 0 where it is not known
    };

    /// Reads the history; a fault of it is kept.
    /// @param place empty where there is none
    explicit FleetMemory(const QString& place);

    /// Reads it again when ten seconds have passed.
    void refresh();

    bool isThere() const { return !m_place.isEmpty(); }
    const QString& fault() const { return m_fault; } ///< empty where there is none

    std::optional<Since> since(const FleetKiosk& kiosk) const;

private:
    void read();

    const QString m_place;
    QString m_fault;
    QHash<QString, History::Now> m_now;
    QElapsedTimer m_age;
};

/// Milliseconds in words, as "3 days".
QString durationText(qint64 passed);

/// A time of the local clock, as "2026-11-26 13:05"; empty without one.
QString timeText(std::optional<qint64> time);
