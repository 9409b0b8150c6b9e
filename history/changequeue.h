// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "kioskledger.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <chrono>
#include <deque>
#include <memory>
#include <mutex>

/// What is recorded until it is written, and what every kiosk said last. Any thread may use it.
class ChangeQueue
{
public:
    using Clock = std::chrono::steady_clock;

    void record(KioskRecord record);
    void forget(const QString& kiosk, qint64 time);

    /// What waits, in order, and its first number.
    struct Batch
    {
        quint64 first;
        std::vector<KioskChange> changes;
    };
    Batch waiting() const;

    /// Of those kiosks that have only other counts than were taken before: their last records.
    /// Taken are those whose counts are others since a minute.
    /// @param all or all of them
    std::vector<KioskChange> takeCounts(bool all);

    /// What every kiosk said last.
    std::vector<KioskChange> latest() const;

    /// The message of the last change of a kiosk that waits no longer; 0 for none.
    quint64 messageBefore(const QString& kiosk) const;

    /// Those before this number wait no longer.
    void drop(quint64 before);

    /// Those that came before this time wait no longer.
    void dropOlder(Clock::time_point time);

    qint64 size() const;
    qint64 lost() const;

private:
    struct Waiting
    {
        KioskChange change;
        Clock::time_point came;
    };

    struct Kiosk
    {
        std::shared_ptr<const KioskRecord> latest;
        quint64 messageBefore = 0;
        bool isCounting = false; // its counts are to be taken
    };

    struct Counting
    {
        QString kiosk;
        Clock::time_point since;
    };

    void push(KioskChange change);
    void pop();
    QString shared(QString text, int longest);

    mutable std::mutex m_mutex;
    QHash<QString, Kiosk> m_kiosks;
    std::deque<Waiting> m_waiting;
    std::deque<Counting> m_counting; // once each
    QSet<QString> m_texts; // which many records have
    quint64 m_first = 0; // the number of the first that waits
    qint64 m_lost = 0;
};
