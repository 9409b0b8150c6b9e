// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filterwords.h"

#include "abstractfilter.h"
#include "filterfactory.h"
#include "filterset.h"
#include "words.h"

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

QString attemptsRule(const AbstractFilter& filter)
{
    return Diagnosis::tr("A note of %1 is refused once notes were rejected %n times, until a note "
                         "is stacked or the session ends.",
                         nullptr, param(filter, "attempts"))
        .arg(param(filter, "denom"));
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

// What a filter found in a session, besides what it says of it.
struct Finding
{
    QVector<int> events; // that are enough for it to refuse, newest first
    QString text;
};

// An event list with the lines of its events.
struct Session
{
    const StatesList& events;
    const QVector<qint64>& lines;

    const DeviceState& newest() const { return events.constLast(); }

    QVector<qint64> linesOf(const QVector<int>& newestFirst) const
    {
        QVector<qint64> found;
        for (auto event = newestFirst.crbegin(); event != newestFirst.crend(); ++event)
            found += lines.at(*event);
        return found;
    }

    // "lines 3 and 6", or that these are not all that there were.
    QString place(const QVector<int>& newestFirst, int count) const
    {
        const QString shown = lineList(linesOf(newestFirst));
        return count > newestFirst.size() ? Diagnosis::tr("at last in %1").arg(shown) : shown;
    }
};

Finding findSwitch(const AbstractFilter& /*filter*/, const Session& /*session*/)
{
    return {{}, Diagnosis::tr("All notes are switched off (acceptAll is 0).")};
}

Finding findAttempts(const AbstractFilter& filter, const Session& session)
{
    const int allowed = param(filter, "attempts");
    const QString note = QString::number(session.newest().currentNote);
    Finding finding;
    int count = 0;
    int event = int(session.events.size()) - 1;
    for (; event > 0 && session.events.at(event).state != STATE_STACKED; --event) {
        if (session.events.at(event).state != STATE_REJECTED)
            continue;
        if (count++ < allowed)
            finding.events += event;
    }
    if (allowed <= 0) {
        finding.text = Diagnosis::tr("No attempts at all are allowed for %1.").arg(note);
        return finding;
    }
    const QString sentence = event > 0
        ? Diagnosis::tr(
            "Notes were rejected %n times since the stacked note of line %4 (%1); %2 are "
            "allowed for %3. The next stacked note or session clears this.",
            nullptr, count)
        : Diagnosis::tr("Notes were rejected %n times since the session began (%1); %2 are allowed "
                        "for %3. The next stacked note or session clears this.",
                        nullptr, count);
    finding.text =
        sentence.arg(session.place(finding.events, count), QString::number(allowed), note);
    if (event > 0)
        finding.text = finding.text.arg(session.lines.at(event));
    return finding;
}

Finding findCount(const AbstractFilter& filter, const Session& session)
{
    const int allowed = param(filter, "count");
    const int note = session.newest().currentNote;
    Finding finding;
    int count = 0;
    State later = STATE_BUSY;
    for (int event = int(session.events.size()) - 1; event > 0; --event) {
        const DeviceState& state = session.events.at(event);
        // Of a run of accepted events the newest one counts.
        if (state.state == STATE_ACCEPTED && later != STATE_ACCEPTED && state.currentNote == note
            && count++ < allowed)
            finding.events += event;
        later = state.state;
    }
    if (allowed <= 0) {
        finding.text = Diagnosis::tr("No notes of %1 are allowed at all.").arg(note);
        return finding;
    }
    finding.text =
        Diagnosis::tr("%n notes of %1 were accepted since the session began (%2); %3 are "
                      "allowed. The next session clears this.",
                      nullptr, count)
            .arg(QString::number(note), session.place(finding.events, count),
                 QString::number(allowed));
    return finding;
}

Finding findSum(const AbstractFilter& filter, const Session& session)
{
    const DeviceState& newest = session.newest();
    const int last = int(session.events.size()) - 1;
    int event = last;
    while (event > 0 && session.events.at(event - 1).sessionSum == newest.sessionSum)
        --event;
    Finding finding;
    if (event < last && newest.sessionSum != 0)
        finding.events += event; // where the sum came from; the newest event has it too
    finding.text = Diagnosis::tr("%1 taken + note %2 > limit %3. The next session clears this.")
                       .arg(QString::number(newest.sessionSum), QString::number(newest.currentNote),
                            QString::number(param(filter, "sessionSum")));
    return finding;
}

struct Words
{
    const char* filter;
    const char* purpose;
    QString (*rule)(const AbstractFilter& filter);
    Finding (*find)(const AbstractFilter& filter, const Session& session);
};

const Words* wordsOf(const QString& name)
{
    static const Words table[] = {
        {filters::ACCEPT_FILTER,
         QT_TRANSLATE_NOOP("Diagnosis", "Switches the taking of all notes and coins on or off."),
         acceptRule, findSwitch},
        {filters::ATTEMPTS_FILTER,
         QT_TRANSLATE_NOOP("Diagnosis",
                           "Guards against fishing: once the device has rejected notes a number of "
                           "times, a note of one face value is refused until a note is stacked or "
                           "the session ends."),
         attemptsRule, findAttempts},
        {filters::DENOM_COUNT_FILTER,
         QT_TRANSLATE_NOOP("Diagnosis",
                           "Limits how many notes or coins of one face value a session takes."),
         countRule, findCount},
        {filters::SESSION_SUM_FILTER,
         QT_TRANSLATE_NOOP("Diagnosis", "Limits the sum that a session takes."), sumRule, findSum},
    };
    const auto* const found = std::find_if(std::begin(table), std::end(table), [&](const Words& w) {
        return name == QLatin1String(w.filter);
    });
    return found == std::end(table) ? nullptr : found;
}

} // namespace

QString filterPurpose(const QString& name)
{
    const Words* const words = wordsOf(name);
    return words ? Diagnosis::tr(words->purpose) : QString();
}

QString filterRule(const AbstractFilter& filter)
{
    return wordsOf(filterName(filter))->rule(filter);
}

Objection objectionOf(const AbstractFilter& filter, const StatesList& events,
                      const QVector<qint64>& lines)
{
    const Session session{events, lines};
    const QString name = filterName(filter);
    const Finding finding = wordsOf(name)->find(filter, session);
    return {name, filterParams(filter), session.linesOf(finding.events), finding.text};
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
