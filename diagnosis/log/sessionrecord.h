// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/contradiction.h"
#include "log/noteanswer.h"

#include <QString>
#include <QVector>

#include <vector>

/// What is told of a session.
enum class Told { All, Refusals, Contradictions };

/// What a picture of a session shows.
struct SessionRecord
{
    /// A line of the log on which something changed.
    struct Moment
    {
        qint64 line;
        LogTime time;
    };

    /// What a device told on a line, or how it stood when the session began.
    struct Event
    {
        qint64 line;
        State state;
        int sum;
        QVector<MachineCondition> conditions;
    };

    struct Lane
    {
        quint32 device;
        quint32 thread;
        QString name;
        std::vector<Event> events; // by line

        bool isOf(const LogPlace& place) const
        {
            return place.device == device && place.thread == thread;
        }
    };

    int log = 0; // numbers of the log on the page and of the session in the log
    int number = 0;
    std::vector<Moment> moments; // by line
    std::vector<Lane> lanes;
    std::vector<NoteAnswer> answers; // by line
    std::vector<Contradiction> contradictions; // as they came
    Told told = Told::All;

    bool isTold(const NoteAnswer& answer) const
    {
        return told == Told::All || (told == Told::Refusals && answer.outcome == Outcome::Refused);
    }
    bool isTold(const Contradiction& /*found*/) const { return told != Told::Refusals; }

    void add(const LogDevice& device, const LogTime& time, qint64 line);

    /// Whether every moment has its time, none before another's.
    bool hasTimes() const;

    /// The moments with which the parts begin that a long session is drawn in, and their end.
    std::vector<size_t> parts() const;
};

/// The kinds of places on a page that links lead to.
enum class Anchor { Mark, Sentence, Evidence, Condition, Wrong, WrongSentence };

/// The name of a place: of a line of the log that is about a device.
QString anchorName(Anchor kind, const SessionRecord& session, qint64 line, quint32 device,
                   quint32 thread, const QString& what = {});
