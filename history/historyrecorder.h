// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "kioskrecord.h"

#include <QString>

#include <functional>
#include <memory>

/// Writes what workers see of kiosks to the history, on a thread of its own, in batches. It never
/// waits for the database: while that is away, changes are kept until there is no room for more,
/// then the oldest are dropped and counted. Of two workers of one part one writes, the other takes
/// over when that is gone.
class HistoryRecorder
{
public:
    struct Status
    {
        QString fault; ///< why the database does not answer; empty while it does
        bool isWriter = false; ///< of its part; else another worker is
        qint64 waiting = 0; ///< changes that are not written yet
        qint64 written = 0; ///< changes so far
        qint64 lost = 0; ///< changes for which there was no room
    };

    /// @param place a file of SQLite, which is made where there is none, or "postgresql://..."
    /// @param part "2/4", of the kiosks whose records it is given
    /// @param worker its name among the workers
    /// Throws Fault for a place that cannot be a history; one that does not answer now may later.
    HistoryRecorder(const QString& place, const QString& part, const QString& worker);

    /// Writes what waits, for five seconds at most.
    ~HistoryRecorder();
    HistoryRecorder(const HistoryRecorder&) = delete;
    HistoryRecorder& operator=(const HistoryRecorder&) = delete;

    /// Of a kiosk in order. It may be called for every state: what says nothing new costs little.
    void record(KioskRecord record);

    /// The kiosk is no longer one of the fleet: its open periods end.
    void forget(const QString& kiosk, qint64 time);

    /// Forgets those kiosks of the history that are gone, as soon as this worker writes; but none
    /// that it was told of.
    /// @param isGone is asked on another thread
    void forgetGone(std::function<bool(const QString& kiosk)> isGone, qint64 time);

    Status status() const;

private:
    class Thread;
    std::shared_ptr<Thread> m_thread; // which may outlive this
};
