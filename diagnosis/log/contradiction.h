// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/logposition.h"
#include "log/noteanswer.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// A line of a log, and when it was written.
struct LogMoment
{
    qint64 position = 0; ///< a LogPosition
    LogTime time;

    /// The lines of several logs are in the order of their times.
    bool isBefore(const LogMoment& other) const;
};

/// What of a log's money does not add up.
enum class Rule {
    NotCredited,
    CreditDiffers,
    CreditedNotTaken,
    CreditWithoutNote,
    CreditFell,
    PayoutDiffers,
    PayoutUnfinished,
    RegistryChanged,
    CounterJump
};
constexpr int ruleCount = int(Rule::CounterJump) + 1;

/// Something of a log that does not add up. Its place is where what is wrong with it began; lines
/// are LogPositions.
struct Contradiction : LogPlace
{
    Rule rule = Rule::NotCredited;
    QVector<qint64> lines; ///< that show it, in their order
    QString sentence; ///< what does not add up and what would clear it
    int note = 0; ///< the value of the note that it is about; 0 without one
    qint64 missing = 0; ///< so many pieces are not in the log
    int collections = 0; ///< of the cassette when they may have come at first

    QString ruleKey() const { return keyOf(rule); } ///< "not_credited", ...

    // What does not add up, yet without place and lines.

    /// With the credit of a note, or of an act of the device that was none.
    static std::optional<Contradiction> ofCredit(const NoteAnswer& note, qint64 credit);

    /// @param lost from the channels without being rejected, a sum
    static std::optional<Contradiction> ofPayout(bool isEnded, qint64 paid, qint64 lost);

    static Contradiction ofLoneCredit(qint64 credit);
    static Contradiction ofFall(qint64 before, qint64 sum, int collections);

    /// @param changes each for people
    static Contradiction ofRegistry(const QStringList& changes, int collections);

    /// @param counted by the device, more than the @p notes of the log
    static Contradiction ofCounter(qint64 counted, qint64 notes);

    /// "Session 1, line 8, 10:05:12, Bill validator (CCNet): It does not add up."
    QString headline() const;

    /// What does not, and the lines.
    QString details() const;

    /// All of it in one line.
    QString text() const;

    static QString keyOf(Rule rule);

    /// What a rule is about, for a legend.
    static QString meaningOf(Rule rule);
};
