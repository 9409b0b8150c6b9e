// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/noteanswer.h"

#include "text/devicename.h"
#include "text/diagnosis.h"

#include <algorithm>

QString LogPlace::place() const
{
    QStringList place{Diagnosis::tr("Session %1").arg(session), Diagnosis::tr("line %1").arg(line)};
    if (time.isKnown())
        place += time.clock();
    place += deviceName;
    return place.join(QStringLiteral(", "));
}

QString moneyName(quint32 device, int note)
{
    const bool isCoin = isCoinDevice(int(device));
    if (note <= 0)
        return isCoin ? Diagnosis::tr("coin of unknown value")
                      : Diagnosis::tr("note of unknown value");
    return (isCoin ? Diagnosis::tr("coin of %1") : Diagnosis::tr("note of %1")).arg(note);
}

void NoteAnswer::addConditions(const QVector<MachineCondition>& now)
{
    for (const MachineCondition& condition : now) {
        const auto same =
            std::find_if(machine.begin(), machine.end(), [&](const MachineCondition& k) {
                return k.line == condition.line && k.what == condition.what;
            });
        if (same == machine.end())
            machine += condition;
        else
            *same = condition;
    }
}

QString NoteAnswer::headline() const
{
    return QStringLiteral("%1: %2").arg(place(),
                                        Diagnosis::tr(wordsOf(outcome).sentence).arg(what()));
}

QStringList NoteAnswer::doubts() const
{
    QStringList sentences;
    for (const QString& doubt : uncertain)
        sentences += Diagnosis::tr("Uncertain: %1.").arg(doubt);
    return sentences;
}

QStringList NoteAnswer::details() const
{
    QStringList sentences;
    for (const Objection& objection : objections)
        sentences += objection.text;
    if (outcome == Outcome::Refused && isTaken())
        sentences += Diagnosis::tr("It was taken although refused (line %1).").arg(lastLine);
    if (end == Outcome::Stuck) {
        sentences +=
            (outcome == Outcome::Refused
                 ? Diagnosis::tr("It got stuck in the device (line %1).")
                 : Diagnosis::tr("It was last seen on its way through the device (line %1)."))
                .arg(lastLine);
    }
    if (creditLine && *creditLine > 0)
        sentences += Diagnosis::tr("It was credited all the same (line %1).").arg(*creditLine);
    else if (creditLine)
        sentences += Diagnosis::tr("It was not credited.");
    for (const MachineCondition& condition : machine)
        sentences += condition.text;
    if (machine.isEmpty() && (outcome == Outcome::Rejected || outcome == Outcome::Returned)) {
        sentences += isJudged ? Diagnosis::tr("By the device itself; no filter objected.")
                              : Diagnosis::tr("By the device itself.");
    }
    return sentences + doubts();
}

QString NoteAnswer::text() const
{
    return (QStringList(headline()) + details()).join(QLatin1Char(' '));
}

void Tally::add(int note)
{
    ++count;
    sum += note;
}

void Tally::add(const Tally& other)
{
    count += other.count;
    sum += other.sum;
}

void Summary::add(const NoteAnswer& answer)
{
    if (answer.hasValue())
        offered.add(answer.note);
    if (answer.hasValue() || answer.outcome == Outcome::Rejected)
        ++offeredOrRejected;
    for (const OutcomeWords& words : outcomeWords()) {
        if (answer.countsAs(words.outcome))
            outcomes.at(size_t(words.outcome)).add(answer.note);
    }
    if (answer.outcome != Outcome::Refused)
        return;
    if (answer.isTaken())
        takenAlthoughRefused.add(answer.note);
    QStringList names;
    for (const Objection& objection : answer.objections) {
        if (!names.contains(objection.filter))
            ++refusedBy[objection.filter];
        names += objection.filter;
    }
}

void Summary::add(const Summary& other)
{
    sessions += other.sessions;
    offered.add(other.offered);
    for (size_t i = 0; i < outcomes.size(); ++i)
        outcomes.at(i).add(other.outcomes.at(i));
    takenAlthoughRefused.add(other.takenAlthoughRefused);
    offeredOrRejected += other.offeredOrRejected;
    contradictions += other.contradictions;
    for (auto filter = other.refusedBy.begin(); filter != other.refusedBy.end(); ++filter)
        refusedBy[filter.key()] += filter.value();
}

QList<Summary::Row> Summary::rows() const
{
    const auto row = [this](Outcome outcome) {
        return Row{Diagnosis::tr(wordsOf(outcome).total), of(outcome)};
    };
    QList<Row> rows{{Diagnosis::tr("Offered"), offered}, row(Outcome::Taken)};
    if (takenAlthoughRefused.count > 0)
        rows += {Diagnosis::tr("taken although refused"), takenAlthoughRefused, true, true};
    rows += row(Outcome::Refused);
    for (auto filter = refusedBy.begin(); filter != refusedBy.end(); ++filter)
        rows += {filter.key(), {filter.value(), 0}, false, true};
    for (const OutcomeWords& other : outcomeWords()) {
        if (other.outcome != Outcome::Taken && other.outcome != Outcome::Refused)
            rows += row(other.outcome);
    }
    if (contradictions > 0)
        rows += {Diagnosis::tr("Does not add up"), {contradictions, 0}, false};
    return rows;
}

QString Summary::percent(Outcome outcome) const
{
    if (offeredOrRejected == 0)
        return {};
    return QString::number(100.0 * double(of(outcome).count) / double(offeredOrRejected), 'f', 1);
}
