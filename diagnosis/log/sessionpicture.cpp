// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/sessionpicture.h"

#include "filterfactory.h"
#include "log/sessionlook.h"
#include "log/svg.h"
#include "text/diagnosis.h"
#include "text/htmltext.h"

#include <algorithm>
#include <climits>
#include <iterator>

namespace {

// Lengths are in units of which the picture is 1000 wide.
constexpr double width = 1000;
constexpr double plotLeft = 120; // what the rows are stands left of it
constexpr double plotRight = 990;
constexpr double headHeight = 20; // where a pin says its line
constexpr double markSize = 14;
constexpr double stateHeight = 22;
constexpr double conditionHeight = 9;
constexpr double sumHeight = 60;

// The first of what is sorted by line that is on a line or behind it.
template <typename Iterator>
Iterator atLine(Iterator begin, Iterator end, qint64 line)
{
    return std::lower_bound(begin, end, line, [](const auto& e, qint64 l) { return e.line < l; });
}

bool isOverSum(const NoteAnswer& answer)
{
    return std::any_of(answer.objections.begin(), answer.objections.end(), [](const Objection& o) {
        return o.filter == QLatin1String(filters::SESSION_SUM_FILTER);
    });
}

} // namespace

SessionPicture::SessionPicture(const SessionRecord& session, std::optional<int> sumLimit)
    : m_session(session)
    , m_sumLimit(sumLimit)
    , m_hasTimes(session.hasTimes())
{
    for (const NoteAnswer& answer : session.answers) {
        for (const Objection& objection : answer.objections) {
            for (const qint64 line : objection.evidence)
                m_evidence.insert({{line, {answer.device, answer.thread}}, answer.line});
        }
    }
    for (const SessionRecord::Lane& lane : session.lanes) {
        double most = sumLimit ? double(*sumLimit) : 0;
        for (const SessionRecord::Event& event : lane.events)
            most = qMax(most, double(event.sum));
        const bool anyExceeds = std::any_of(
            session.answers.begin(), session.answers.end(),
            [&](const NoteAnswer& answer) { return lane.isOf(answer) && isOverSum(answer); });
        m_mostSum[&lane] = anyExceeds ? 1.3 * most : most;
    }
}

// A share of the width is every moment's own, so that none covers the next one; the rest goes by
// the time between them.
void SessionPicture::place(size_t first, size_t end)
{
    const auto& moments = m_session.moments;
    m_first = first;
    m_end = end;
    m_firstLine = moments.at(first).line;
    m_lastLine = moments.at(end - 1).line;
    m_firstAnswer = atLine(m_session.answers.begin(), m_session.answers.end(), m_firstLine);
    m_endAnswer = atLine(m_firstAnswer, m_session.answers.end(), m_lastLine + 1);

    const auto timeOf = [&](size_t i) { return m_hasTimes ? *moments.at(i).time.wallClock() : 0; };
    const auto count = double(end - first);
    const double whole = plotRight - plotLeft;
    const auto total = double(timeOf(end - 1) - timeOf(first));
    const double own = total > 0 ? qMin(30.0, 0.6 * whole / count) : whole / count;
    const double perUnit = total > 0 ? (whole - own * count) / total : 0;
    m_x.assign(1, plotLeft);
    for (size_t i = first + 1; i < end; ++i)
        m_x.push_back(m_x.back() + own + perUnit * double(timeOf(i) - timeOf(i - 1)));
    m_x.push_back(plotRight);
}

// Where a line of this part is, or an earlier or later one would stick out.
double SessionPicture::xOf(qint64 line) const
{
    const auto begin = m_session.moments.begin();
    const auto found = atLine(begin + qint64(m_first), begin + qint64(m_end), line);
    return m_x.at(size_t(found - begin) - m_first);
}

std::vector<SessionPicture::Segment>
SessionPicture::segmentsOf(const SessionRecord::Lane& lane) const
{
    auto event = atLine(lane.events.begin(), lane.events.end(), m_firstLine);
    if (event != lane.events.begin() && (event == lane.events.end() || event->line > m_firstLine))
        --event; // how it stood when the part begins
    std::vector<Segment> segments;
    for (; event != lane.events.end() && event->line <= m_lastLine; ++event) {
        const double begin = event->line < m_firstLine ? plotLeft : xOf(event->line);
        if (!segments.empty())
            segments.back().end = begin;
        segments.push_back({&*event, begin, plotRight});
    }
    return segments;
}

QString SessionPicture::draw(size_t first, size_t end)
{
    place(first, end);
    m_body.clear();
    m_y = headHeight;
    for (const SessionRecord::Lane& lane : m_session.lanes)
        drawLane(lane);
    const double bottom = m_y;
    const QString head = axis();
    const QString name = Diagnosis::tr("Session %1 from line %2 to line %3")
                             .arg(m_session.number)
                             .arg(m_firstLine)
                             .arg(m_lastLine);
    return QStringLiteral("<svg viewBox=\"0 0 %1 %2\" role=\"group\" aria-label=\"%3\">\n")
               .arg(number(width), number(m_y), htmlText(name))
        + head + m_body + pins(bottom) + QStringLiteral("</svg>\n");
}

// The grid and, below the lanes, its times or lines.
QString SessionPicture::axis()
{
    const double bottom = m_y + 2;
    m_y += 20;
    QString drawn;
    QString zone;
    double free = 0;
    QString last;
    for (size_t i = m_first; i < m_end; ++i) {
        const SessionRecord::Moment& moment = m_session.moments.at(i);
        const QString text =
            m_hasTimes ? moment.time.clock().left(8) : QString::number(moment.line);
        const double x = m_x.at(i - m_first);
        if (x < free || text == last || x > plotRight - textWidth(text) / 2)
            continue;
        zone = moment.time.clock().mid(8);
        drawn +=
            svgPath(QStringLiteral("grid"),
                    QStringLiteral("M%1 %2V%3").arg(number(x), number(headHeight), number(bottom)));
        drawn += svgText(x, bottom + 13, "tick", text);
        free = x + textWidth(text) + 12;
        last = text;
    }
    // Left of the first tick, which is centered below where the plot begins.
    const double tickWidth = m_hasTimes ? textWidth(QStringLiteral("00:00:00")) : 0;
    drawn += svgText(plotLeft - 10 - tickWidth / 2, bottom + 13, "row",
                     m_hasTimes ? Diagnosis::tr("time") + zone : Diagnosis::tr("line"));
    return drawn;
}

void SessionPicture::label(const QString& text, double y)
{
    m_body += svgText(plotLeft - 10, y, "row", shortened(text, plotLeft - 14));
}

void SessionPicture::drawLane(const SessionRecord::Lane& lane)
{
    const std::vector<Segment> segments = segmentsOf(lane);
    m_y += 16;
    m_body += svgText(0, m_y, "name", shortened(lane.name, 0.8 * width));
    drawMarks(lane);
    drawWrong(lane);
    drawStates(segments);
    drawConditions(lane, segments);
    drawSum(lane, segments);
    m_y += 12;
}

// The line of the note whose sentence speaks of an answer; 0 without one.
qint64 SessionPicture::sentenceOf(const NoteAnswer& answer) const
{
    if (m_session.isTold(answer))
        return answer.line;
    const auto end =
        m_evidence.upper_bound({qMax(answer.line, answer.lastLine), {UINT_MAX, UINT_MAX}});
    for (auto it = m_evidence.lower_bound({answer.line, {0, 0}}); it != end; ++it) {
        if (it->first.second == std::pair(answer.device, answer.thread))
            return it->second;
    }
    return 0;
}

void SessionPicture::drawMarks(const SessionRecord::Lane& lane)
{
    const double middle = m_y + 26;
    label(Diagnosis::tr("notes"), middle + 4);
    double free = plotLeft;
    for (auto note = m_firstAnswer; note != m_endAnswer; ++note) {
        const NoteAnswer& answer = *note;
        const qint64 toldOn = sentenceOf(answer);
        if (!lane.isOf(answer) || toldOn == 0)
            continue;
        const QString mark =
            anchorName(Anchor::Mark, m_session, answer.line, answer.device, answer.thread);
        const QString sentence =
            anchorName(Anchor::Sentence, m_session, toldOn, answer.device, answer.thread);
        m_anchors.insert(mark);
        const double x = xOf(answer.line) + markSize / 2;
        const QString outcome = outcomeKey(answer.outcome);
        const QString halo = answer.isTaken() && answer.outcome == Outcome::Refused
            ? QStringLiteral("<use href=\"#ring\" x=\"%1\" y=\"%2\"/>")
                  .arg(number(x), number(middle))
            : QString();
        m_body += markAt(x, middle, outcome, mark, sentence, answer.headline(), halo);
        const QString value = answer.hasValue() ? QString::number(answer.note) : QString();
        const double half = textWidth(value) / 2;
        if (x - half < free)
            continue;
        m_body += svgText(x, middle - markSize / 2 - 4, "value", value);
        free = x + half + 3;
    }
    m_y = middle + markSize / 2 + 5;
}

// What does not add up, where it began.
void SessionPicture::drawWrong(const SessionRecord::Lane& lane)
{
    QString drawn;
    for (const Contradiction& found : m_session.contradictions) {
        if (!lane.isOf(found) || !m_session.isTold(found) || found.line < m_firstLine
            || found.line > m_lastLine)
            continue;
        const auto anchor = [&](Anchor kind) {
            return anchorName(kind, m_session, found.line, found.device, found.thread,
                              found.ruleKey());
        };
        drawn += markAt(xOf(found.line) + markSize / 2, m_y + 10, QStringLiteral("wrong"),
                        anchor(Anchor::Wrong), anchor(Anchor::WrongSentence), found.text());
    }
    if (drawn.isEmpty())
        return;
    label(Diagnosis::tr("does not add up"), m_y + 14);
    m_body += drawn;
    m_y += 24;
}

void SessionPicture::drawStates(const std::vector<Segment>& segments)
{
    label(Diagnosis::tr("state"), m_y + 15);
    const auto clockOf = [this](qint64 line) {
        const auto moment = atLine(m_session.moments.begin(), m_session.moments.end(), line);
        return moment->time.isKnown() ? QStringLiteral(", ") + moment->time.clock() : QString();
    };
    for (size_t i = 0; i < segments.size();) {
        const Segment& begin = segments.at(i);
        double end = begin.end;
        while (++i < segments.size() && segments.at(i).event->state == begin.event->state)
            end = segments.at(i).end;
        const StateLook look = lookOf(begin.event->state);
        const QString style = QLatin1String(look.style);
        const QString word = Diagnosis::tr(look.word);
        // Thin where nothing goes on.
        const double inset = style == QLatin1String("idle") ? 4 : 0;
        m_body +=
            svgPath(style, rectangle(begin.begin, m_y + inset, end, m_y + stateHeight - inset),
                    Diagnosis::tr("line %1").arg(begin.event->line) + clockOf(begin.event->line)
                        + QStringLiteral(": ") + word);
        if (end - begin.begin > textWidth(word) + 5)
            m_body += svgText(begin.begin + 3, m_y + 15,
                              qPrintable(QStringLiteral("on on-") + style), word);
    }
    m_y += stateHeight + 3;
}

void SessionPicture::drawConditions(const SessionRecord::Lane& lane,
                                    const std::vector<Segment>& segments)
{
    std::vector<QString> rows; // what was the matter, in the order in which it began
    std::vector<QString> drawn;
    for (size_t i = 0; i < segments.size(); ++i) {
        for (const MachineCondition& condition : segments.at(i).event->conditions) {
            const auto same = [&](size_t event) {
                const QVector<MachineCondition>& others = segments.at(event).event->conditions;
                return std::any_of(
                    others.begin(), others.end(), [&](const MachineCondition& other) {
                        return other.what == condition.what && other.line == condition.line;
                    });
            };
            if (i > 0 && same(i - 1))
                continue;
            size_t last = i;
            while (last + 1 < segments.size() && same(last + 1))
                ++last;
            auto row = std::find(rows.begin(), rows.end(), condition.what);
            if (row == rows.end()) {
                row = rows.insert(row, condition.what);
                label(Diagnosis::tr(condition.word), m_y + 13.0 * double(rows.size()) - 4);
            }
            const double top = m_y + 13.0 * double(row - rows.begin());
            const QString name = anchorName(Anchor::Condition, m_session, condition.line,
                                            lane.device, lane.thread, condition.what);
            const QString id =
                m_anchors.insert(name).second ? QStringLiteral(" id=\"%1\"").arg(name) : QString();
            m_body += QStringLiteral("<path%1 class=\"matter\" d=\"%2\"><title>%3</title></path>\n")
                          .arg(id,
                               rectangle(segments.at(i).begin, top + 2, segments.at(last).end,
                                         top + 2 + conditionHeight),
                               htmlText(condition.text));
        }
    }
    m_y += 13.0 * double(rows.size());
}

// What a refused note would have led to: from the sum before it up to the one with it.
QString SessionPicture::excesses(const SessionRecord::Lane& lane,
                                 const std::vector<Segment>& segments, double perUnit) const
{
    QString drawn;
    for (auto note = m_firstAnswer; note != m_endAnswer; ++note) {
        const NoteAnswer& answer = *note;
        const auto segment = std::find_if(segments.begin(), segments.end(), [&](const Segment& s) {
            return s.event->line == answer.line;
        });
        if (!isOverSum(answer) || !lane.isOf(answer) || segment == segments.end())
            continue;
        const double x = segment->begin + markSize / 2;
        const double from = m_y + sumHeight - perUnit * double(segment->event->sum);
        const double to = qMax(m_y, from - perUnit * double(answer.note));
        drawn +=
            svgPath(QStringLiteral("excess"),
                    QStringLiteral("M%1 %2V%3M%4 %3H%5")
                        .arg(number(x), number(from), number(to), number(x - 4), number(x + 4)));
    }
    return drawn;
}

void SessionPicture::drawSum(const SessionRecord::Lane& lane, const std::vector<Segment>& segments)
{
    const double most = m_mostSum.at(&lane);
    if (segments.empty() || most <= 0)
        return;
    m_y += 16;
    const double bottom = m_y + sumHeight;
    const double perUnit = sumHeight / most;
    label(Diagnosis::tr("session sum"), bottom);
    m_body += svgPath(
        QStringLiteral("base"),
        QStringLiteral("M%1 %2H%3").arg(number(plotLeft), number(bottom), number(plotRight)));
    if (m_sumLimit) {
        const double y = bottom - perUnit * double(*m_sumLimit);
        m_body += svgPath(
            QStringLiteral("limit"),
            QStringLiteral("M%1 %2H%3").arg(number(plotLeft), number(y), number(plotRight)));
        m_body += svgText(plotRight, y - 4, "limit", Diagnosis::tr("limit %1").arg(*m_sumLimit));
    }
    m_body += excesses(lane, segments, perUnit);
    QString path;
    double free = 0;
    int sum = 0;
    for (const Segment& segment : segments) {
        const double y = bottom - perUnit * double(qMax(0, segment.event->sum));
        if (path.isEmpty())
            path = QStringLiteral("M%1 %2").arg(number(segment.begin), number(y));
        else if (segment.event->sum != sum)
            path += QStringLiteral("H%1V%2").arg(number(segment.begin), number(y));
        const QString value = QString::number(segment.event->sum);
        if (segment.event->sum != sum && segment.begin > free
            && segment.begin < plotRight - textWidth(value)) {
            m_body += svgText(segment.begin + 3, y - 4, "sum", value);
            free = segment.begin + textWidth(value) + 6;
        }
        sum = segment.event->sum;
    }
    m_body += svgPath(QStringLiteral("sum"), path + QStringLiteral("H%1").arg(number(plotRight)));
    m_y = bottom + 2;
}

// What links lead to: a line through the picture, which shows when it is the target.
QString SessionPicture::pins(double height) const
{
    QString drawn;
    for (auto it = m_evidence.lower_bound({m_firstLine, {0, 0}});
         it != m_evidence.end() && it->first.first <= m_lastLine; ++it) {
        const auto& [line, device] = it->first;
        const double x = xOf(line);
        const QString text = Diagnosis::tr("line %1").arg(line);
        const double half = textWidth(text) / 2;
        drawn +=
            QStringLiteral("<g id=\"%1\" class=\"pin\"><path d=\"M%2 %3V%4\"/>")
                .arg(anchorName(Anchor::Evidence, m_session, line, device.first, device.second),
                     number(x), number(headHeight - 4), number(height))
            + svgText(qBound(half, x, width - half), headHeight - 8, "", text)
            + QStringLiteral("</g>\n");
    }
    return drawn;
}
