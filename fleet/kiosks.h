// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "serviceanswer.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <chrono>
#include <limits>
#include <vector>

class Metrics;

/// A kiosk's summary, as it is published.
struct KioskSummary
{
    /// That of a state.
    KioskSummary(const QString& kiosk, const PublishedState& state, StateWriter& writer);

    /// That of a kiosk of which nothing is heard: what its last summary says of its devices, not
    /// accepting, for the reason that is given.
    static KioskSummary silent(const KioskSummary& last, const QString& kiosk,
                               const QString& reason);

    /// Reads one that was published. Throws Fault for a text that is none.
    explicit KioskSummary(const QByteArray& text);

    static constexpr qint64 noTime = std::numeric_limits<qint64>::min();

    QByteArray text; ///< JSON
    qint64 time = noTime; ///< the state's own, in milliseconds since 1970
    bool isSilent = false;
    bool isAccepting = false;
    qint64 inserted = 0; ///< notes and coins that its devices counted
    qint64 rejected = 0;
    qint64 returned = 0;

private:
    KioskSummary() = default;
};

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

    /// Tells that something was heard of the kiosk: its summary once more.
    void hear(const QString& kiosk);

    /// Null for a kiosk that is not known.
    const Kiosk* find(const QString& kiosk) const;

    /// The kiosks of which nothing was heard for so long, and that are not told of as silent.
    std::vector<QString> silentFor(std::chrono::seconds time) const;

private:
    void count(const KioskSummary& summary, int sign);

    Metrics& m_metrics;
    QHash<QString, Kiosk> m_kiosks;
};
