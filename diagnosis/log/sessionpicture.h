// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/explanation.h"

#include <QString>
#include <QVector>

#include <map>
#include <optional>
#include <set>
#include <vector>

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
    };

    int log = 0; // numbers of the log on the page and of the session in the log
    int number = 0;
    std::vector<Moment> moments; // by line
    std::vector<Lane> lanes;
    std::vector<NoteAnswer> answers; // by line
    bool onlyRefusals = false; // what is told

    bool isTold(const NoteAnswer& answer) const
    {
        return !onlyRefusals || answer.outcome == Outcome::Refused;
    }

    void add(const LogDevice& device, const LogTime& time, qint64 line);

    /// Whether every moment has its time, none before another's.
    bool hasTimes() const;
};

/// The kinds of places on a page that links lead to.
enum class Anchor { Mark, Sentence, Evidence, Condition };

/// The name of a place: of a line of the log that is about a device.
QString anchorName(Anchor kind, const SessionRecord& session, qint64 line, quint32 device,
                   quint32 thread, const QString& what = {});

/// Draws sessions as SVG: a lane for each device with its notes, its states, what was the matter
/// with it and the sum that it took. Every colour and width of a line is left to the style sheet.
class SessionPicture
{
public:
    /// @param sumLimit the lowest one in force
    SessionPicture(const SessionRecord& session, std::optional<int> sumLimit);

    /// The moments with which the parts begin that a long session is drawn in, and their end.
    std::vector<size_t> parts() const;

    /// A part from one moment up to another one.
    QString draw(size_t first, size_t end);

    /// Whether the pictures have a place for it.
    bool hasAnchor(const QString& name) const { return m_anchors.count(name) > 0; }

    /// The shapes of the marks, which the pages needs once.
    static QString symbols();

    /// A line of words with the mark of an outcome.
    static QString glyph(Outcome outcome);

    /// The states' colours with their meaning, as HTML list items.
    static QString stateLegend();

private:
    struct Segment
    {
        const SessionRecord::Event* event;
        double begin;
        double end;
    };

    void place(size_t first, size_t end);
    double xOf(qint64 line) const;
    std::vector<Segment> segmentsOf(const SessionRecord::Lane& lane) const;
    void drawLane(const SessionRecord::Lane& lane);
    void drawMarks(const SessionRecord::Lane& lane);
    qint64 sentenceOf(const NoteAnswer& answer) const;
    void drawStates(const std::vector<Segment>& segments);
    void drawConditions(const SessionRecord::Lane& lane, const std::vector<Segment>& segments);
    void drawSum(const SessionRecord::Lane& lane, const std::vector<Segment>& segments);
    QString excesses(const SessionRecord::Lane& lane, const std::vector<Segment>& segments,
                     double perUnit) const;
    QString pins(double height) const;
    QString axis();
    void label(const QString& text, double y);

    const SessionRecord& m_session;
    const std::optional<int> m_sumLimit;
    const bool m_hasTimes;
    /// Lines of devices and threads, and the first note that each is evidence for.
    std::map<std::pair<qint64, std::pair<quint32, quint32>>, qint64> m_evidence;
    std::map<const SessionRecord::Lane*, double> m_mostSum; // that a lane's picture has room for
    std::set<QString> m_anchors;
    size_t m_first = 0; // of the part that is drawn
    size_t m_end = 0;
    qint64 m_firstLine = 0;
    qint64 m_lastLine = 0;
    std::vector<NoteAnswer>::const_iterator m_firstAnswer;
    std::vector<NoteAnswer>::const_iterator m_endAnswer;
    std::vector<double> m_x; // of its moments, and of its end
    double m_y = 0;
    QString m_body;
};
