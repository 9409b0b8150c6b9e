// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/logplayer.h"
#include "log/outcome.h"
#include "text/filterwords.h"
#include "text/logtime.h"

#include <QMap>
#include <QStringList>

#include <array>
#include <optional>

/// Where in a log something began.
struct LogPlace
{
    int session = 0;
    quint32 device = 0;
    quint32 thread = 0;
    QString deviceName;
    qint64 line = 0;
    LogTime time; ///< of that line

    /// "Session 1, line 8, 10:05:12, Bill validator (CCNet)"
    QString place() const;
};

/// "note of 1000", "coin of 10" or, of value 0, "note of unknown value"
QString moneyName(quint32 device, int note);

/// What happened to one note of a log, and why. Its line is that on which it was offered, or
/// rejected without having been.
struct NoteAnswer : LogPlace
{
    int note = 0; ///< face value; 0 when the log never says
    Outcome outcome = Outcome::Unknown;
    Outcome end = Outcome::Unknown; ///< the same, but of a refused note what became of it then
    qint64 lastLine = 0; ///< on which it became clear what became of it; 0 when it did not
    QVector<Objection> objections; ///< of every filter that refused it
    /// What was the matter while the device had the note, unless it took it or the filters refused
    /// it and it did not get stuck.
    QVector<MachineCondition> machine;
    /// Of a stuck note: the line on which the session's sum rose, 0 when it did not; nothing when
    /// the log does not tell the sum.
    std::optional<qint64> creditLine;
    QStringList uncertain; ///< what may make this answer wrong

    bool isJudged = false; ///< whether the filters were asked about it
    bool isSeen = false; ///< the device did something with it, or counted it

    bool isTaken() const { return end == Outcome::Taken; }
    bool hasValue() const { return note > 0; }

    /// Whether the log tells of a note at all: that a device accepts is not enough.
    bool isNote() const { return hasValue() || end != Outcome::Unknown || isSeen; }

    /// Whether it is counted under an outcome: its own, or of a refused note what became of it
    /// then, if it was taken or got stuck.
    bool countsAs(Outcome counted) const
    {
        return outcome == counted
            || (end == counted && (counted == Outcome::Taken || counted == Outcome::Stuck));
    }

    /// Adds to what was the matter what is new, and tells of the rest what is known of it last.
    void addConditions(const QVector<MachineCondition>& now);

    QString what() const { return moneyName(device, note); }

    /// "Session 1, line 8, 10:05:12, Bill validator (CCNet): note of 1000 refused."
    QString headline() const;

    /// What makes it uncertain, a sentence each.
    QStringList doubts() const;

    /// The reasons and doubts, a sentence or two each.
    QStringList details() const;

    /// All of it in one line.
    QString text() const;
};

/// Notes and their sum.
struct Tally
{
    qint64 count = 0;
    qint64 sum = 0;

    void add(int note);
    void add(const Tally& other);
};

/// The answers of a log together.
struct Summary
{
    struct Row
    {
        QString what;
        Tally tally;
        bool hasSum = true;
        bool isPart = false; ///< of the row before it that is none
    };

    int sessions = 0;
    Tally offered; ///< those of known value
    std::array<Tally, outcomeCount> outcomes; ///< by Outcome; of refused notes by what became of
                                              ///< them too, if they were taken or got stuck
    Tally takenAlthoughRefused;
    QMap<QString, qint64> refusedBy; ///< notes that a filter of that name refused
    qint64 offeredOrRejected = 0; ///< of whatever value
    qint64 contradictions = 0; ///< what does not add up
    bool isIncomplete = false; ///< the logs were not read to their end

    void add(const NoteAnswer& answer);
    void add(const Summary& other);

    /// What people read.
    QList<Row> rows() const;

    const Tally& of(Outcome outcome) const { return outcomes.at(size_t(outcome)); }

    /// How many percent of the notes that were offered or rejected had the outcome, with a digit
    /// behind the point; empty where there are none.
    QString percent(Outcome outcome) const;
};
