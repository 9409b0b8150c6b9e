// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/sessionrecord.h"

#include <QString>

#include <map>
#include <optional>
#include <set>
#include <vector>

/// Draws sessions as SVG: a lane for each device with its notes, its states, what was the matter
/// with it and the sum that it took. Every colour and width of a line is left to the style sheet.
class SessionPicture
{
public:
    /// @param sumLimit the lowest one in force
    SessionPicture(const SessionRecord& session, std::optional<int> sumLimit);

    /// A part from one moment up to another one.
    QString draw(size_t first, size_t end);

    /// Whether the pictures have a place for it.
    bool hasAnchor(const QString& name) const { return m_anchors.count(name) > 0; }

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
    void drawWrong(const SessionRecord::Lane& lane);
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
