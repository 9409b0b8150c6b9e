// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashcurve.h"

#include "log/svg.h"
#include "text/diagnosis.h"
#include "text/htmltext.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

// Lengths are in units of which the picture is 1000 wide.
constexpr double width = 1000;
constexpr double plotLeft = 92; // the sums stand left of it
constexpr double plotRight = 900; // what lies there in the end stands right of it
constexpr double plotTop = 30; // the collections stand above it
constexpr double plotBottom = 170;
constexpr double height = 204;

constexpr qint64 second = 1000;
constexpr qint64 minute = 60 * second;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
constexpr qint64 timeSteps[] = {second,      5 * second, 15 * second, minute,   5 * minute,
                                15 * minute, hour,       3 * hour,    6 * hour, day,
                                2 * day,     7 * day,    28 * day};

// The least of 1, 2, 5, 10, 20, ... of which so many fill a span.
qint64 roundStep(qint64 span, int most)
{
    qint64 power = 1;
    while (true) {
        for (const qint64 digit : {1, 2, 5}) {
            if (span / (digit * power) <= most)
                return digit * power;
        }
        power *= 10;
    }
}

using Content = CashPeriod::Content;

// Up to the end of the period.
std::vector<Content> courseOf(const CashPeriod& period)
{
    std::vector<Content> course = period.course;
    if (course.back().position != period.toPosition)
        course.push_back({{period.toPosition, period.to}, course.back().sum});
    return course;
}

class Curve
{
public:
    explicit Curve(const std::vector<CashPeriod>& periods)
        : m_periods(periods)
    {
        for (const CashPeriod& period : periods) {
            m_courses.push_back(courseOf(period));
            for (const Content& content : m_courses.back())
                m_most = qMax(m_most, content.sum.max.value_or(content.sum.min));
        }
        m_hasTimes = findTimes();
        if (!m_hasTimes)
            findLines();
    }

    QString draw()
    {
        drawSums();
        if (m_hasTimes)
            drawTimes();
        else
            drawLines();
        size_t first = 0;
        for (size_t i = 0; i < m_periods.size(); ++i) {
            drawCourse(m_courses.at(i), first);
            first += m_courses.at(i).size();
            const bool isLast = i + 1 == m_periods.size();
            const double next = isLast ? width : xOf(first + m_courses.at(i + 1).size() - 1) - 8;
            if (!m_periods.at(i).isOpen)
                drawCollection(m_periods.at(i), m_courses.at(i).back().sum, xOf(first - 1), next);
        }
        const PieceRange last = m_courses.back().back().sum;
        if (m_periods.back().isOpen) {
            m_body +=
                svgText(plotRight + 6, qMax(plotTop + 8, yOf(last.min) + 4), "least", last.text());
        }
        return QStringLiteral("<svg viewBox=\"0 0 %1 %2\" role=\"img\" aria-label=\"%3\">\n"
                              "<desc>%4</desc>\n%5</svg>\n")
            .arg(number(width), number(height),
                 htmlText(Diagnosis::tr("What the cassette held, from time to time")),
                 htmlText(description(last)), m_body);
    }

private:
    // A clock that is put back by an hour stands still meanwhile.
    bool findTimes()
    {
        m_keys.clear();
        for (const std::vector<Content>& course : m_courses) {
            for (const Content& content : course) {
                const std::optional<qint64> time = content.time.wallClock();
                const qint64 before = m_keys.empty() ? LLONG_MIN : m_keys.back();
                if (!time || (!m_keys.empty() && *time < before - hour))
                    return false;
                m_keys.push_back(qMax(before, *time));
            }
        }
        return m_keys.back() > m_keys.front();
    }

    // Those of several logs are told apart, but not in proportion.
    void findLines()
    {
        m_keys.clear();
        bool isOneLog = true;
        for (const std::vector<Content>& course : m_courses) {
            for (const Content& content : course) {
                const qint64 line = LogPosition::line(content.position);
                isOneLog = isOneLog
                    && LogPosition::log(content.position)
                        == LogPosition::log(m_courses.front().front().position);
                m_lines.push_back(line);
                m_keys.push_back(line);
            }
        }
        if (isOneLog)
            return;
        for (size_t i = 0; i < m_keys.size(); ++i)
            m_keys.at(i) = qint64(i);
    }

    double xOfKey(qint64 key) const
    {
        const auto span = double(qMax<qint64>(1, m_keys.back() - m_keys.front()));
        return plotLeft + double(key - m_keys.front()) * (plotRight - plotLeft) / span;
    }
    double xOf(size_t content) const { return xOfKey(m_keys.at(content)); }
    double yOf(qint64 sum) const
    {
        return plotBottom - double(sum) * (plotBottom - plotTop) / double(qMax<qint64>(1, m_most));
    }

    void drawSums()
    {
        const qint64 step = roundStep(m_most, 4);
        for (qint64 sum = 0; sum <= m_most; sum += step) {
            const double y = yOf(sum);
            m_body += svgPath(
                sum == 0 ? QStringLiteral("base") : QStringLiteral("grid"),
                QStringLiteral("M%1 %2H%3").arg(number(plotLeft), number(y), number(plotRight)));
            m_body += svgText(plotLeft - 8, y + 4, "row", QString::number(sum));
        }
    }

    void drawTick(double x, const QString& text, const QString& below = {})
    {
        m_body += svgPath(
            QStringLiteral("grid"),
            QStringLiteral("M%1 %2V%3").arg(number(x), number(plotTop), number(plotBottom)));
        m_body += svgText(x, plotBottom + 15, "tick", text);
        if (!below.isEmpty())
            m_body += svgText(x, plotBottom + 29, "tick", below);
    }

    void drawTimes()
    {
        const qint64 first = m_keys.front();
        const qint64 span = m_keys.back() - first;
        qint64 step = *std::find_if(std::begin(timeSteps), std::end(timeSteps) - 1,
                                    [&](qint64 s) { return span / s <= 10; });
        step *= 1 + span / step / 10; // of many months
        QString date;
        for (qint64 time = (first + step - 1) / step * step; time <= m_keys.back(); time += step) {
            const QDateTime at = QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
            const QString newDate = at.toString(QStringLiteral("yyyy-MM-dd"));
            if (step >= day) {
                drawTick(xOfKey(time), newDate);
            } else {
                drawTick(xOfKey(time),
                         at.toString(step < minute ? QStringLiteral("HH:mm:ss")
                                                   : QStringLiteral("HH:mm")),
                         newDate == date ? QString() : newDate);
            }
            date = newDate;
        }
        m_body += svgText(plotLeft - 26, plotBottom + 15, "row",
                          Diagnosis::tr("time") + m_courses.front().front().time.clock().mid(8));
    }

    void drawLines()
    {
        double free = 0;
        const auto tick = [&](double x, qint64 line) {
            const QString text = QString::number(line);
            if (x < free)
                return;
            drawTick(x, text);
            free = x + textWidth(text) + 30;
        };
        for (size_t i = 0; i < m_keys.size(); ++i)
            tick(xOf(i), m_lines.at(i));
        m_body += svgText(plotLeft - 26, plotBottom + 15, "row", Diagnosis::tr("line"));
    }

    // From one content to the next one, it stays.
    void drawCourse(const std::vector<Content>& course, size_t first)
    {
        QString least;
        QString band;
        for (size_t i = 0; i < course.size(); ++i) {
            const PieceRange& sum = course.at(i).sum;
            const double x = xOf(first + i);
            least += least.isEmpty()
                ? QStringLiteral("M%1 %2").arg(number(x), number(yOf(sum.min)))
                : QStringLiteral("H%1V%2").arg(number(x), number(yOf(sum.min)));
            if (sum.max && *sum.max > sum.min && i + 1 < course.size())
                band += rectangle(x, yOf(*sum.max), xOf(first + i + 1), yOf(sum.min));
        }
        if (!band.isEmpty())
            m_body += svgPath(QStringLiteral("may"), band, Diagnosis::tr("may be"));
        m_body += svgPath(QStringLiteral("sum"), least);
        drawUnlimited(course, first);
    }

    // Marks the part without a limit, which lasts up to the end of a period.
    void drawUnlimited(const std::vector<Content>& course, size_t first)
    {
        const auto begin = std::find_if(course.begin(), course.end(),
                                        [](const Content& content) { return !content.sum.max; });
        if (begin == course.end())
            return;
        auto at = size_t(begin - course.begin());
        const double from = xOf(first + at);
        const double x = from + (xOf(first + course.size() - 1) - from) / 3;
        while (at + 1 < course.size() && xOf(first + at + 1) <= x + 4)
            ++at;
        const double y = yOf(course.at(at).sum.min) - 3;
        m_body +=
            svgPath(QStringLiteral("atleast"),
                    QStringLiteral("M%1 %2v-16m-3.5 5l3.5-5 3.5 5").arg(number(x), number(y)));
        const QString text = Diagnosis::tr("at least");
        if (from + textWidth(text) + 8 < x)
            m_body += svgText(x - 8, y - 6, "row", text);
    }

    void drawCollection(const CashPeriod& period, const PieceRange& sum, double x, double next)
    {
        const QString text = sum.text();
        const QString when = period.to.isKnown()
            ? period.to.iso().left(10) + QLatin1Char(' ') + period.to.clock()
            : Diagnosis::tr("line %1").arg(LogPosition::line(period.toPosition));
        const QString title =
            Diagnosis::tr("Period %1, %2: %3 taken out").arg(period.number).arg(when, text);
        m_body += svgPath(
            QStringLiteral("out"),
            QStringLiteral("M%1 %2V%3").arg(number(x), number(plotTop - 8), number(plotBottom)),
            title);
        m_body += svgPath(
            QStringLiteral("outmark"),
            QStringLiteral("M%1 %2h12l-6 9z").arg(number(x - 6), number(plotTop - 16)), title);
        m_collections += title;
        if (x + 10 + 1.1 * textWidth(text) < next) // bold
            m_body += svgText(x + 10, plotTop - 7, "taken-out", text);
    }

    QString description(const PieceRange& last) const
    {
        QStringList texts = m_collections;
        if (m_periods.back().isOpen)
            texts += Diagnosis::tr("In the end: %1").arg(last.text());
        return texts.join(QStringLiteral("; "));
    }

    const std::vector<CashPeriod>& m_periods;
    std::vector<std::vector<Content>> m_courses;
    std::vector<qint64> m_keys; // where on the axis each content is
    std::vector<qint64> m_lines; // of each, where there are no times
    bool m_hasTimes = false;
    qint64 m_most = 1;
    QStringList m_collections;
    QString m_body;
};

} // namespace

QString cashCurve(const std::vector<CashPeriod>& periods)
{
    return Curve(periods).draw();
}
