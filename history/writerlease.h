// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <chrono>

class HistoryDatabase;

/// The right to write of the kiosks of a part, for some seconds. One worker of a part has it, and
/// no worker of a fleet in another number of parts, which writes of the same kiosks.
class WriterLease
{
public:
    using Clock = std::chrono::steady_clock;

    enum Held { Mine, Anew, Others };

    WriterLease(const QString& part, const QString& worker);

    /// Whether another worker has it.
    bool isOthers(HistoryDatabase& database) const;

    /// Takes or renews it, in the transaction that writes, before anything else.
    /// @return Anew where others may have written since this worker did
    Held take(HistoryDatabase& database);

    bool isToRenew() const;

    /// It is not known whether this worker has it still.
    void lose() { m_renewed = Clock::time_point::min(); }

    void giveUp(HistoryDatabase& database) const;

private:
    bool isRenewed(HistoryDatabase& database) const;
    QString isFree(const HistoryDatabase& database) const;
    qint64 seenFor() const;
    QString otherNumbers() const;

    const QString m_part;
    const QString m_worker;
    const QString m_token;
    const Clock::time_point m_began = Clock::now();
    Clock::time_point m_renewed = Clock::time_point::min();
};
