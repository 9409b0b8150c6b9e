// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/notewatch.h"

#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/filterwords.h"

#include <optional>

namespace {

// Said of a note and of a coin; %1 is the face value.
struct Words
{
    const char* note;
    const char* coin;

    QString of(int model) const
    {
        return Diagnosis::tr(moneyOf(model) == Money::Coin ? coin : note);
    }
};

// By NoteWatch::Outcome; of a refused note the filter has them.
constexpr Words outcomes[] = {
    {},
    {QT_TRANSLATE_NOOP("Diagnosis", "Checking a note of %1..."),
     QT_TRANSLATE_NOOP("Diagnosis", "Checking a coin of %1...")},
    {QT_TRANSLATE_NOOP("Diagnosis", "A note of %1 was accepted."),
     QT_TRANSLATE_NOOP("Diagnosis", "A coin of %1 was accepted.")},
    {},
    {QT_TRANSLATE_NOOP("Diagnosis", "Your note was not recognised. Please try another one."),
     QT_TRANSLATE_NOOP("Diagnosis", "Your coin was not recognised. Please try another one.")},
    {QT_TRANSLATE_NOOP("Diagnosis", "Your note of %1 was returned. Please take it."),
     QT_TRANSLATE_NOOP("Diagnosis", "Your coin of %1 was returned. Please take it.")},
    {QT_TRANSLATE_NOOP("Diagnosis",
                       "The device failed with your note of %1 in it. Please call the staff."),
     QT_TRANSLATE_NOOP("Diagnosis",
                       "The device failed with your coin of %1 in it. Please call the staff.")},
    {QT_TRANSLATE_NOOP("Diagnosis",
                       "It is not known what became of your note of %1. Please call the staff."),
     QT_TRANSLATE_NOOP("Diagnosis",
                       "It is not known what became of your coin of %1. Please call the staff.")},
};

// Of a piece of which nobody knows what it is worth.
Words wordsWithoutValue(NoteWatch::Outcome outcome)
{
    switch (outcome) {
    case NoteWatch::Checked:
        return {QT_TRANSLATE_NOOP("Diagnosis", "Checking your note..."),
                QT_TRANSLATE_NOOP("Diagnosis", "Checking your coin...")};
    case NoteWatch::Stuck:
        return {QT_TRANSLATE_NOOP("Diagnosis",
                                  "The device failed with your note in it. Please call the staff."),
                QT_TRANSLATE_NOOP(
                    "Diagnosis", "The device failed with your coin in it. Please call the staff.")};
    case NoteWatch::Lost:
        return {
            QT_TRANSLATE_NOOP("Diagnosis",
                              "It is not known what became of your note. Please call the staff."),
            QT_TRANSLATE_NOOP("Diagnosis",
                              "It is not known what became of your coin. Please call the staff.")};
    default:
        return outcomes[outcome];
    }
}

} // namespace

QString NoteWatch::text(const Note& note, const MoneyFormat& format)
{
    if (note.outcome == None)
        return {};
    const MoneyFormat own = format.of(note.currency);
    const QVariantMap params = note.refusal.value(QStringLiteral("params")).toMap();
    const FilterWords* filter = &filterWords(note.refusal.value(QStringLiteral("name")).toString());
    const QString parameter = QLatin1String(filter->refusalParameter);
    const std::optional<qint64> limit = wholeNumber(params.value(parameter));
    if (!parameter.isEmpty() && !limit)
        filter = &filterWords({}); // nothing can be said of the limit
    Words words = note.value == 0 ? wordsWithoutValue(note.outcome) : outcomes[note.outcome];
    if (note.outcome == Refused)
        words = {filter->noteRefused, filter->coinRefused};
    QString text = words.of(note.device);
    text.replace(QLatin1String("%1"), own.text(note.value));
    return text.replace(QLatin1String("%2"), own.text(limit.value_or(0)));
}
