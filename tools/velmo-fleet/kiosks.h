// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/kiosksummary.h"

#include <QHash>
#include <QString>

#include <chrono>
#include <mutex>
#include <vector>

class Metrics;

/// Whether a summary's time says what is newer: it has one, which is not in the future. Otherwise
/// the order of arrival counts.
bool tellsOrder(const KioskSummary& summary);

/// The newest summary of each kiosk that a worker has seen, its own and those of the other workers.
class Kiosks
{
public:
    using Clock = std::chrono::steady_clock;

    struct Kiosk
    {
        KioskSummary newest;
        Clock::time_point heardOf;
    };

    explicit Kiosks(Metrics& metrics);

    /// Takes a summary unless it is older than the one that is known.
    /// @return whether it was taken
    bool take(const QString& kiosk, const KioskSummary& summary);

    /// The kiosk is no longer one of the fleet.
    void forget(const QString& kiosk);

    /// Null for a kiosk that is not known.
    const Kiosk* find(const QString& kiosk) const;

    /// The kiosks of which nothing was heard for so long, and that are not told of as silent.
    std::vector<QString> silentFor(std::chrono::seconds time) const;

    /// What the worker knows of its connection; json() tells it.
    void setConnection(bool isConnected, const QString& fault);

    /// The table, for the page; on any thread.
    QByteArray json(bool all) const;

private:
    mutable std::mutex m_mutex; // of what follows, where it changes
    bool m_isConnected = false;
    QString m_fault;
    qint64 m_connectedAt = 0;

    void count(const KioskSummary& summary, int sign);

    Metrics& m_metrics;
    QHash<QString, Kiosk> m_kiosks;
};
