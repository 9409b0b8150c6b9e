// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "kioskrecord.h"
#include "service/kiosksummary.h"
#include "silencewatch.h"

#include <QHash>
#include <QString>

#include <vector>

class Metrics;

/// What a worker knows of a kiosk.
struct Kiosk
{
    KioskSummary summary; ///< the newest
    quint64 message = 0; ///< hash of the state that it is of; 0 while that is not known
    quint64 will = 0; ///< hash of the last word of its end; 0 for none
    quint64 atBroker = 0; ///< hash of the summary that the broker has; 0 while that is not known
    SilenceWatch::Duration heardOf{0}; ///< when it last said something
    qint64 heardAt = KioskSummary::noTime; ///< the same in milliseconds since 1970, if it was heard
    bool wasTold = false; ///< isTold() before what the broker has was read anew
    bool isStateRead = true; ///< on the present connection
    int sent = 0; ///< the last message with its summary; 0 for none since summaries are read anew
    bool isWaiting = false; ///< to be published
    bool isClockWrong = false;

    bool isTold() const { return atBroker == hash(summary.text); }
    bool isSilent() const { return summary.condition == KioskSummary::Silent; }

    /// What its history is told now.
    /// @param state the one that the summary is of; null for one of which nothing is known
    KioskRecord record(const QString& name, const PublishedState* state) const;

    /// Of a message, never 0. Not for what others could choose so that it collides.
    static quint64 hash(const QByteArray& text);
};

/// The kiosks of a worker's part, and how many there are of what kind.
class Kiosks
{
public:
    explicit Kiosks(Metrics& metrics)
        : m_metrics(metrics)
    {
    }

    /// Null for a kiosk that is not known.
    Kiosk* find(const QString& name);

    /// Gives the kiosk a summary; makes it when it is not known. What find() gave before may be
    /// somewhere else then.
    Kiosk& set(const QString& name, const KioskSummary& summary);

    /// Makes the kiosk's summary so short, with a fault that says so.
    /// @return false when that cannot be
    bool cut(const QString& name, Kiosk& kiosk, qsizetype bytes);

    void setClockWrong(Kiosk& kiosk, bool isWrong);

    /// The kiosk is no longer one of the fleet.
    void remove(const QString& name);

    int size() const { return int(m_kiosks.size()); }

    /// How many have come and left.
    int changes() const { return m_changes; }

    /// The names of those for which @p isWanted.
    template <typename Condition>
    std::vector<QString> namesOf(Condition isWanted) const
    {
        std::vector<QString> names;
        for (auto kiosk = m_kiosks.begin(); kiosk != m_kiosks.end(); ++kiosk) {
            if (isWanted(kiosk.key(), *kiosk))
                names.push_back(kiosk.key());
        }
        return names;
    }

    template <typename Change>
    void forEach(Change change)
    {
        for (auto kiosk = m_kiosks.begin(); kiosk != m_kiosks.end(); ++kiosk)
            change(kiosk.key(), *kiosk);
    }

    /// Members of a JSON object for people who look at the fleet: "counts" of all by condition and
    /// "kiosks".
    /// @param all whether those that are fine are listed too
    QByteArray json(bool all) const;

private:
    void count(const KioskSummary& summary, int sign);

    Metrics& m_metrics;
    QHash<QString, Kiosk> m_kiosks;
    int m_changes = 0;
    int m_counts[KioskSummary::Fine + 1] = {};
};
