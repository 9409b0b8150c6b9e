// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/outcome.h"

namespace {

constexpr std::array<OutcomeWords, outcomeCount> outcomeTable{{
    {Outcome::Refused, "refused", QT_TRANSLATE_NOOP("Diagnosis", "%1 refused."),
     QT_TRANSLATE_N_NOOP("Diagnosis", "%n refused"),
     QT_TRANSLATE_NOOP("Diagnosis", "Refused by the filters"),
     QT_TRANSLATE_NOOP("Diagnosis", "refused by the filters"),
     // a crossed square
     R"(fill-rule="evenodd" d="M-7-7H7V7H-7zM-4.5-3L-1.5 0-4.5 3-3 4.5 0 1.5 3 4.5 4.5 3 1.5 0 4.5-3 3-4.5 0-1.5-3-4.5z")"},
    {Outcome::Taken, "taken", QT_TRANSLATE_NOOP("Diagnosis", "%1 taken."),
     QT_TRANSLATE_N_NOOP("Diagnosis", "%n taken"), QT_TRANSLATE_NOOP("Diagnosis", "Taken"),
     QT_TRANSLATE_NOOP("Diagnosis", "taken"),
     // a disc with a tick
     R"(fill-rule="evenodd" d="M-7 0A7 7 0 1 1 7 0A7 7 0 1 1-7 0zM-4.3.4L-1.2 3.6 4.3-2.4 3-3.6-1.2 1-3-1z")"},
    {Outcome::Stuck, "stuck",
     QT_TRANSLATE_NOOP("Diagnosis", "%1 stuck in the device, neither taken nor returned."),
     QT_TRANSLATE_N_NOOP("Diagnosis", "%n stuck"),
     QT_TRANSLATE_NOOP("Diagnosis", "Stuck in the device"),
     QT_TRANSLATE_NOOP("Diagnosis", "stuck in the device"),
     // a note in a slot
     R"(d="M-7-7H7V-2.5H3L6 7H-6L-3-2.5H-7z")"},
    {Outcome::Rejected, "rejected", QT_TRANSLATE_NOOP("Diagnosis", "%1 rejected."),
     QT_TRANSLATE_N_NOOP("Diagnosis", "%n rejected"),
     QT_TRANSLATE_NOOP("Diagnosis", "Rejected by the device"),
     QT_TRANSLATE_NOOP("Diagnosis", "rejected by the device"),
     // a triangle
     R"(d="M0-7.5L8 6.5H-8z")"},
    {Outcome::Returned, "returned", QT_TRANSLATE_NOOP("Diagnosis", "%1 returned."),
     QT_TRANSLATE_N_NOOP("Diagnosis", "%n returned"), QT_TRANSLATE_NOOP("Diagnosis", "Returned"),
     QT_TRANSLATE_NOOP("Diagnosis", "returned"),
     // a diamond
     R"(d="M0-8L8 0 0 8-8 0z")"},
    {Outcome::Unknown, "unknown",
     QT_TRANSLATE_NOOP("Diagnosis", "%1: the log does not say what became of it."),
     QT_TRANSLATE_N_NOOP("Diagnosis", "%n unknown"), QT_TRANSLATE_NOOP("Diagnosis", "Unknown"),
     QT_TRANSLATE_NOOP("Diagnosis", "unknown"),
     // a ring with a dot
     R"(fill-rule="evenodd" d="M-7 0A7 7 0 1 1 7 0A7 7 0 1 1-7 0zM-5 0A5 5 0 1 0 5 0A5 5 0 1 0-5 0zM-2 0A2 2 0 1 1 2 0A2 2 0 1 1-2 0z")"},
}};

// A row that is missing is empty, at the end.
constexpr bool isByOutcome()
{
    for (int i = 0; i < outcomeCount; ++i) {
        if (int(outcomeTable[size_t(i)].outcome) != i || !outcomeTable[size_t(i)].mark)
            return false;
    }
    return true;
}
static_assert(isByOutcome(), "a row for each Outcome, in its order");

} // namespace

const std::array<OutcomeWords, outcomeCount>& outcomeWords()
{
    return outcomeTable;
}

QString outcomeKey(Outcome outcome)
{
    return QLatin1String(wordsOf(outcome).key);
}

QStringList outcomeKeys()
{
    QStringList keys;
    for (const OutcomeWords& words : outcomeTable)
        keys += QLatin1String(words.key);
    return keys;
}
