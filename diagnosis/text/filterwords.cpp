// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/filterwords.h"

#include "abstractfilter.h"
#include "filterfactory.h"
#include "text/diagnosis.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

int param(const AbstractFilter& filter, const char* name)
{
    return filter.property(name).toInt();
}

QString acceptRule(const AbstractFilter& filter)
{
    return filter.property("acceptAll").toBool()
        ? Diagnosis::tr("Every note may be taken as far as the accept filter is concerned.")
        : Diagnosis::tr("Every note is refused.");
}

QString noAttempts(int note)
{
    return Diagnosis::tr("No attempts at all are allowed for %1.").arg(note);
}

QString attemptsRule(const AbstractFilter& filter)
{
    const int attempts = param(filter, "attempts");
    const int note = param(filter, "denom");
    if (attempts <= 0)
        return noAttempts(note);
    return Diagnosis::tr("A note of %1 is refused once notes were rejected %n times, until a note "
                         "is stacked or the session ends.",
                         nullptr, attempts)
        .arg(note);
}

QString countRule(const AbstractFilter& filter)
{
    return Diagnosis::tr("A session takes at most %n notes of %1.", nullptr, param(filter, "count"))
        .arg(param(filter, "denom"));
}

QString sumRule(const AbstractFilter& filter)
{
    return Diagnosis::tr("A session takes at most %1 in all.").arg(param(filter, "sessionSum"));
}

void countNothing(FilterCount& /*count*/, const DeviceState& /*before*/,
                  const DeviceState& /*event*/, qint64 /*line*/)
{
}

void countRejections(FilterCount& count, const DeviceState& /*before*/, const DeviceState& event,
                     qint64 line)
{
    if (event.state == STATE_STACKED) {
        count.total = 0;
        count.lines.clear();
        count.since = line;
    } else if (event.state == STATE_REJECTED) {
        ++count.total;
        count.lines.push_back(line);
    }
}

void countAccepted(FilterCount& count, const DeviceState& /*before*/, const DeviceState& event,
                   qint64 line)
{
    if (event.state != STATE_ACCEPTED)
        return;
    if (count.newestCounts()) { // of a run the newest one counts
        --count.total;
        count.lines.pop_back();
    }
    if (event.currentNote == count.denomination) {
        ++count.total;
        count.lines.push_back(line);
    }
}

void followSum(FilterCount& count, const DeviceState& before, const DeviceState& event, qint64 line)
{
    if (event.sessionSum != before.sessionSum)
        count.since = line;
}

// The lines of those of the counted events that are enough.
QVector<qint64> enough(const RefusedSession& session)
{
    const std::deque<qint64>& counted = session.count.lines;
    return {counted.end() - qMin(session.limit, int(counted.size())), counted.end()};
}

// "lines 3 and 6", or that these are not all that there were.
QString place(const RefusedSession& session, const QVector<qint64>& found)
{
    const QString shown = lineList(found);
    return session.count.total > found.size() ? Diagnosis::tr("at last in %1").arg(shown) : shown;
}

Finding findSwitch(const RefusedSession& /*session*/)
{
    return {{}, Diagnosis::tr("All notes are switched off (acceptAll is 0).")};
}

Finding findAttempts(const RefusedSession& session)
{
    if (session.limit <= 0)
        return {{}, noAttempts(session.newest.currentNote)};
    const QString note = QString::number(session.newest.currentNote);
    const QVector<qint64> found = enough(session);
    const int count = session.count.total;
    const qint64 since = session.count.since;
    const bool isSinceStacked = since > session.count.first;
    const QString sentence = isSinceStacked
        ? Diagnosis::tr(
            "Notes were rejected %n times since the stacked note of line %4 (%1); %2 are "
            "allowed for %3. The next stacked note or session clears this.",
            nullptr, count)
        : Diagnosis::tr("Notes were rejected %n times since the session began (%1); %2 are allowed "
                        "for %3. The next stacked note or session clears this.",
                        nullptr, count);
    QString text = sentence.arg(place(session, found), QString::number(session.limit), note);
    if (isSinceStacked)
        text = text.arg(since);
    return {found, text};
}

Finding findCount(const RefusedSession& session)
{
    const int note = session.newest.currentNote;
    if (session.limit <= 0)
        return {{}, Diagnosis::tr("No notes of %1 are allowed at all.").arg(note)};
    const QVector<qint64> found = enough(session);
    const QString text =
        Diagnosis::tr("%n notes of %1 were accepted since the session began (%2); %3 are "
                      "allowed. The next session clears this.",
                      nullptr, session.count.total)
            .arg(QString::number(note), place(session, found), QString::number(session.limit));
    return {found, text};
}

Finding findSum(const RefusedSession& session)
{
    const DeviceState& newest = session.newest;
    const qint64 since = session.count.since; // where the sum came from: the newest has it too
    Finding finding;
    if (since < session.count.newest && newest.sessionSum != 0)
        finding.lines += since;
    finding.text = Diagnosis::tr("%1 taken + note %2 > limit %3. The next session clears this.")
                       .arg(QString::number(newest.sessionSum), QString::number(newest.currentNote),
                            QString::number(param(session.filter, "sessionSum")));
    return finding;
}

// Title and explanation, as the filter has them.
QString ownWords(const AbstractFilter& filter)
{
    return filter.getFilterDescription().replace(QLatin1Char('|'), QLatin1String(": "));
}

Finding findNothing(const RefusedSession& session)
{
    return {{}, ownWords(session.filter)};
}

const FilterWords table[] = {
    {filters::ACCEPT_FILTER,
     QT_TRANSLATE_NOOP("Diagnosis", "Switches the taking of all notes and coins on or off."),
     acceptRule, nullptr, countNothing, findSwitch,
     QT_TRANSLATE_NOOP("Diagnosis", "Notes are not accepted at the moment. It comes back to you."),
     QT_TRANSLATE_NOOP("Diagnosis", "Coins are not accepted at the moment. It comes back to you."),
     ""},
    {filters::ATTEMPTS_FILTER,
     QT_TRANSLATE_NOOP("Diagnosis",
                       "Guards against fishing: once the device has rejected notes a number of "
                       "times, a note of one face value is refused until a note is stacked or "
                       "the session ends."),
     attemptsRule, "attempts", countRejections, findAttempts,
     QT_TRANSLATE_NOOP("Diagnosis",
                       "After several rejections no note of %1 is accepted. It comes back to you; "
                       "please try another value."),
     QT_TRANSLATE_NOOP("Diagnosis",
                       "After several rejections no coin of %1 is accepted. It comes back to you; "
                       "please try another value."),
     ""},
    {filters::DENOM_COUNT_FILTER,
     QT_TRANSLATE_NOOP("Diagnosis",
                       "Limits how many notes or coins of one face value a session takes."),
     countRule, "count", countAccepted, findCount,
     QT_TRANSLATE_NOOP("Diagnosis",
                       "No more notes of %1 are accepted in this payment. It comes back to you."),
     QT_TRANSLATE_NOOP("Diagnosis",
                       "No more coins of %1 are accepted in this payment. It comes back to you."),
     ""},
    {filters::SESSION_SUM_FILTER,
     QT_TRANSLATE_NOOP("Diagnosis", "Limits the sum that a session takes."), sumRule, nullptr,
     followSum, findSum,
     QT_TRANSLATE_NOOP("Diagnosis", "This note would pass the limit of %2. It comes back to you."),
     QT_TRANSLATE_NOOP("Diagnosis", "This coin would pass the limit of %2. It comes back to you."),
     "sessionSum"},
};

const char* const noFilter = nullptr;

const FilterWords noRow{
    noFilter,
    nullptr,
    ownWords,
    nullptr,
    nullptr,
    findNothing,
    QT_TRANSLATE_NOOP("Diagnosis", "This note cannot be accepted. It comes back to you."),
    QT_TRANSLATE_NOOP("Diagnosis", "This coin cannot be accepted. It comes back to you."),
    ""};

} // namespace

const FilterWords& filterWords(const QString& name)
{
    const auto* const found =
        std::find_if(std::begin(table), std::end(table),
                     [&](const FilterWords& w) { return name == QLatin1String(w.filter); });
    return found == std::end(table) ? noRow : *found;
}

QString filterPurpose(const QString& name)
{
    const char* const purpose = filterWords(name).purpose;
    return purpose ? Diagnosis::tr(purpose)
                   : FilterFactory::getFilterDesc(name).section(QLatin1Char('|'), 1);
}

QString filterRule(const AbstractFilter& filter)
{
    return filterWords(filterName(filter)).rule(filter);
}

QString lineList(const QVector<qint64>& lines)
{
    constexpr int mostShown = 8;
    QStringList shown;
    for (int i = 0; i < qMin(int(lines.size()) - 1, mostShown); ++i)
        shown += QString::number(lines.at(i));
    const QString last = lines.isEmpty() ? QString() : QString::number(lines.constLast());
    if (shown.isEmpty())
        return Diagnosis::tr("line %1").arg(last);
    if (lines.size() > mostShown + 1)
        shown.last() += QStringLiteral(", ...");
    return Diagnosis::tr("lines %1 and %2").arg(shown.join(QStringLiteral(", ")), last);
}

QString filterName(const AbstractFilter& filter)
{
    return QLatin1String(filter.metaObject()->className());
}

QJsonObject filterParams(const AbstractFilter& filter)
{
    QJsonObject params;
    const QList<FieldDescription> descriptions = filter.getFieldsDescription();
    for (const FieldDescription& description : descriptions) {
        const QVariant value = filter.property(description.name.toUtf8().constData());
        params.insert(description.name, value.toInt());
    }
    return params;
}
