// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/contradiction.h"

#include "text/diagnosis.h"
#include "text/filterwords.h"

#include <array>

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

} // namespace

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
