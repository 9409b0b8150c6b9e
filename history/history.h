// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/kiosksummary.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

/// Reads what is remembered of a fleet. Times are in milliseconds since 1970. Every function throws
/// Fault, which names the place, when the database does not answer.
class History
{
public:
    /// A time from which to which; without an end while it lasts.
    struct Span
    {
        qint64 began;
        std::optional<qint64> ended;
    };

    struct Now
    {
        KioskSummary::Condition condition;
        qint64 since;
        int timesThisMonth; ///< so often it came into this condition, this time included
        QStringList faults;
    };

    struct ConditionSpan : Span
    {
        KioskSummary::Condition condition;
    };

    struct FaultSpan : Span
    {
        KioskFault fault;
    };

    struct Collection
    {
        int device;
        int thread;
        qint64 time; ///< when the cassette was back
        std::optional<qint64> notes; ///< inserted since the one before
    };

    /// Of one month.
    struct Availability
    {
        qint64 known; ///< milliseconds of which the condition is known
        qint64 inService; ///< of these, fine or faulty
        qint64 silent; ///< of these
    };

    /// What is to run out or to fill up.
    struct Due
    {
        enum What { Empty, Full };
        QString kiosk;
        int device;
        int thread;
        What what;
        int channel; ///< -1 for the cassette
        int denomination; ///< 0 where it is not one of one value
        QString currency;
        qint64 level; ///< pieces now
        std::optional<qint64> capacity; ///< of a cassette, as it was when it was full before
        double perDay = 0; ///< pieces, of the last two weeks
        std::optional<qint64> earliest; ///< when it is due, from
        std::optional<qint64> latest; ///< to, with nine of ten
        QString cannotSay; ///< why there are no times; empty where there are
    };

    /// Opens what a HistoryRecorder writes; nothing is made or changed. Throws Fault also when it
    /// is of a later version than this program.
    explicit History(const QString& place);
    ~History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    /// Throws Fault where no worker writes to it: what lasts may be over.
    void requireWriter() const;

    /// Of every kiosk that was not forgotten.
    /// @param now what is now, in a month of the local time
    QHash<QString, Now> now(qint64 now) const;

    /// In order. Of a kiosk that is not known they are empty.
    std::vector<ConditionSpan> conditions(const QString& kiosk) const;
    std::vector<FaultSpan> faults(const QString& kiosk) const;
    std::vector<Collection> collections(const QString& kiosk) const;

    /// Of each kiosk of which there is a condition in the month, of the local time; one that is
    /// unknown is not known.
    QHash<QString, Availability> availability(const QDate& month, qint64 now) const;

    /// Every channel that dispenses and every cassette of kiosks that were not forgotten, those due
    /// first come first.
    std::vector<Due> due(qint64 now) const;

private:
    class Database;
    std::unique_ptr<Database> m_database;
};
