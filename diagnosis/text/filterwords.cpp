// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/filterwords.h"

#include "abstractfilter.h"
#include "filterfactory.h"
#include "text/diagnosis.h"
#include "text/filtermemory.h"

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
    QVector<int> events; // that are enough for it to refuse, oldest first
    QString text;
};

// An event list with the lines of its events, and what a filter has counted of it.
struct Session
{
    const FilterMemory& memory;
    const StatesList& events;
    const QVector<qint64>& lines;

    int param(const char* name) const { return ::param(memory.filter(), name); }

    const DeviceState& newest() const { return events.constLast(); }

    // Those of the counted events that are enough.
    QVector<int> enough() const
    {
        const auto count = memory.counted().size();
        return memory.counted().mid(count - qBound(0, memory.limit(), int(count)));
    }

    QVector<qint64> linesOf(const QVector<int>& found) const
    {
        QVector<qint64> places;
        for (const int event : found)
            places += lines.at(event);
        return places;
    }

    // "lines 3 and 6", or that these are not all that there were.
    QString place(const QVector<int>& found) const
    {
        const QString shown = lineList(linesOf(found));
        return memory.counted().size() > found.size() ? Diagnosis::tr("at last in %1").arg(shown)
                                                      : shown;
    }
};

Finding findSwitch(const Session& /*session*/)
{
    return {{}, Diagnosis::tr("All notes are switched off (acceptAll is 0).")};
}

Finding findAttempts(const Session& session)
{
    const QString note = QString::number(session.newest().currentNote);
    if (session.memory.limit() <= 0)
        return {{}, Diagnosis::tr("No attempts at all are allowed for %1.").arg(note)};
    const QVector<int> found = session.enough();
    const int count = int(session.memory.counted().size());
    const int since = session.memory.since();
    const QString sentence = since > 0
        ? Diagnosis::tr(
            "Notes were rejected %n times since the stacked note of line %4 (%1); %2 are "
            "allowed for %3. The next stacked note or session clears this.",
            nullptr, count)
        : Diagnosis::tr("Notes were rejected %n times since the session began (%1); %2 are allowed "
                        "for %3. The next stacked note or session clears this.",
                        nullptr, count);
    QString text =
        sentence.arg(session.place(found), QString::number(session.memory.limit()), note);
    if (since > 0)
        text = text.arg(session.lines.at(since));
    return {found, text};
}

Finding findCount(const Session& session)
{
    const int note = session.newest().currentNote;
    if (session.memory.limit() <= 0)
        return {{}, Diagnosis::tr("No notes of %1 are allowed at all.").arg(note)};
    const QVector<int> found = session.enough();
    const QString text =
        Diagnosis::tr("%n notes of %1 were accepted since the session began (%2); %3 are "
                      "allowed. The next session clears this.",
                      nullptr, int(session.memory.counted().size()))
            .arg(QString::number(note), session.place(found),
                 QString::number(session.memory.limit()));
    return {found, text};
}

Finding findSum(const Session& session)
{
    const DeviceState& newest = session.newest();
    const int since =
        session.memory.since(); // where the sum came from; the newest event has it too
    Finding finding;
    if (since < session.events.size() - 1 && newest.sessionSum != 0)
        finding.events += since;
    finding.text = Diagnosis::tr("%1 taken + note %2 > limit %3. The next session clears this.")
                       .arg(QString::number(newest.sessionSum), QString::number(newest.currentNote),
                            QString::number(session.param("sessionSum")));
    return finding;
}

struct FilterWords
{
    const char* filter;
    const char* purpose;
    QString (*rule)(const AbstractFilter& filter);
    Finding (*find)(const Session& session);
};

const FilterWords* wordsOf(const QString& name)
{
    static const FilterWords table[] = {
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
    const auto* const found =
        std::find_if(std::begin(table), std::end(table),
                     [&](const FilterWords& w) { return name == QLatin1String(w.filter); });
    return found == std::end(table) ? nullptr : found;
}

} // namespace

QString filterPurpose(const QString& name)
{
    const FilterWords* const words = wordsOf(name);
    return words ? Diagnosis::tr(words->purpose) : QString();
}

QString filterRule(const AbstractFilter& filter)
{
    return wordsOf(filterName(filter))->rule(filter);
}

Objection objectionOf(const FilterMemory& filter, const StatesList& events,
                      const QVector<qint64>& lines)
{
    const Session session{filter, events, lines};
    const QString name = filterName(filter.filter());
    const Finding finding = wordsOf(name)->find(session);
    return {name, filterParams(filter.filter()), session.linesOf(finding.events), finding.text};
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
