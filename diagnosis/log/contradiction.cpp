// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/contradiction.h"

#include "text/diagnosis.h"
#include "text/filterwords.h"

#include <array>
#include <climits>

namespace {

struct RuleWords
{
    Rule rule;
    const char* key;
    const char* meaning;
};

constexpr std::array<RuleWords, ruleCount> table{{
    {Rule::NotCredited, "not_credited", QT_TRANSLATE_NOOP("Diagnosis", "taken and not credited")},
    {Rule::CreditDiffers, "credit_differs",
     QT_TRANSLATE_NOOP("Diagnosis", "credited with another amount")},
    {Rule::CreditedNotTaken, "credited_not_taken",
     QT_TRANSLATE_NOOP("Diagnosis", "credited and not taken")},
    {Rule::CreditWithoutNote, "credit_without_note",
     QT_TRANSLATE_NOOP("Diagnosis", "credited without a note")},
    {Rule::CreditFell, "credit_fell",
     QT_TRANSLATE_NOOP("Diagnosis", "less credit within a session")},
    {Rule::PayoutDiffers, "payout_differs",
     QT_TRANSLATE_NOOP("Diagnosis", "paid another amount than left the channels")},
    {Rule::PayoutUnfinished, "payout_unfinished",
     QT_TRANSLATE_NOOP("Diagnosis", "a payout without an end")},
    {Rule::RegistryChanged, "registry_changed",
     QT_TRANSLATE_NOOP("Diagnosis", "a channel's content changed for no reason")},
    {Rule::CounterJump, "counter_jump",
     QT_TRANSLATE_NOOP("Diagnosis", "notes that the log does not have")},
}};

constexpr bool isByRule()
{
    for (int i = 0; i < ruleCount; ++i) {
        if (int(table[size_t(i)].rule) != i || !table[size_t(i)].meaning)
            return false;
    }
    return true;
}
static_assert(isByRule(), "a row for each Rule, in its order");

Contradiction made(Rule rule, const QString& sentence)
{
    Contradiction found;
    found.rule = rule;
    found.sentence = sentence;
    return found;
}

} // namespace

bool LogMoment::isBefore(const LogMoment& other) const
{
    if (LogPosition::log(position) == LogPosition::log(other.position))
        return position < other.position;
    return time.moment() < other.time.moment();
}

std::optional<Contradiction> Contradiction::ofCredit(const NoteAnswer& note, qint64 credit)
{
    const QString rise = QString::number(credit);
    const bool isNotTaken =
        isGivenBack(note.end) || (note.outcome == Outcome::Refused && !note.isTaken());
    std::optional<Contradiction> found;
    if (!note.isNote()) {
        if (credit > 0) {
            found = made(Rule::CreditWithoutNote,
                         Diagnosis::tr("The session's sum rose by %1 while the device accepted, "
                                       "without a note. The value of one would clear this.")
                             .arg(rise));
            found->missing = 1;
        }
    } else if (isNotTaken) {
        if (credit > 0) {
            found = made(Rule::CreditedNotTaken,
                         Diagnosis::tr("The session's sum rose by %1 for a %2 that was not taken. "
                                       "That it was stacked would clear this.")
                             .arg(rise, note.what()));
        }
    } else if (note.isTaken() && credit == 0) {
        found =
            made(Rule::NotCredited,
                 Diagnosis::tr("A %1 was taken, and the session's sum did not rise. That it "
                               "rises before the next note, payout or session would clear this.")
                     .arg(note.what()));
    } else if (note.hasValue() && credit > 0 && credit != note.note) {
        found = made(Rule::CreditDiffers,
                     Diagnosis::tr("The session's sum rose by %1 for a %2. That it rises by %3 in "
                                   "all would clear this.")
                         .arg(rise, note.what(), QString::number(note.note)));
    }
    if (found)
        found->note = note.note;
    return found;
}

std::optional<Contradiction> Contradiction::ofPayout(bool isEnded, qint64 paid, qint64 lost)
{
    if (!isEnded) {
        return made(Rule::PayoutUnfinished,
                    Diagnosis::tr("A payout began, and the log does not tell its end. "
                                  "\"dispensed\" before the next note, payout or session would "
                                  "clear this."));
    }
    if (paid == lost)
        return {};
    return made(Rule::PayoutDiffers,
                Diagnosis::tr("%1 was paid, and %2 left the channels without being rejected. That "
                              "both are the same before the next note, payout or session would "
                              "clear this.")
                    .arg(paid)
                    .arg(lost));
}

Contradiction Contradiction::ofLoneCredit(qint64 credit)
{
    Contradiction found =
        made(Rule::CreditWithoutNote,
             Diagnosis::tr("The session's sum rose by %1 without a note. A note that was offered "
                           "before, with nothing between, would clear this.")
                 .arg(credit));
    found.missing = 1;
    return found;
}

Contradiction Contradiction::ofFall(qint64 before, qint64 sum, int collections)
{
    Contradiction found =
        made(Rule::CreditFell,
             Diagnosis::tr("The session's sum fell from %1 to %2. The start of a session before "
                           "this line would clear this.")
                 .arg(before)
                 .arg(sum));
    found.collections = collections;
    return found;
}

Contradiction Contradiction::ofRegistry(const QStringList& changes, int collections)
{
    Contradiction found =
        made(Rule::RegistryChanged,
             Diagnosis::tr("The registry changed: %1. A payout, a float or an emptying that "
                           "began before, with nothing between, would clear this.")
                 .arg(changes.join(QStringLiteral(", "))));
    found.collections = collections;
    return found;
}

Contradiction Contradiction::ofCounter(qint64 counted, qint64 notes)
{
    const qint64 missing = counted - notes;
    Contradiction found =
        made(Rule::CounterJump,
             Diagnosis::tr("The device counted %1, and the log has %2 of them: %n notes are "
                           "missing from the log. Their lines would clear this.",
                           nullptr, int(qMin<qint64>(missing, INT_MAX)))
                 .arg(counted)
                 .arg(notes));
    found.missing = missing;
    return found;
}

QString Contradiction::headline() const
{
    LogPlace shown = *this;
    shown.line = LogPosition::line(line);
    return Diagnosis::tr("%1: %2.").arg(shown.place(), meaningOf(rule));
}

QString Contradiction::details() const
{
    QVector<qint64> shown;
    for (const qint64 position : lines)
        shown += LogPosition::line(position);
    return shown.size() < 2 ? sentence : QStringLiteral("%1 (%2)").arg(sentence, lineList(shown));
}

QString Contradiction::text() const
{
    return QStringLiteral("%1 %2").arg(headline(), details());
}

QString Contradiction::keyOf(Rule rule)
{
    return QLatin1String(table.at(size_t(rule)).key);
}

QString Contradiction::meaningOf(Rule rule)
{
    return Diagnosis::tr(table.at(size_t(rule)).meaning);
}
