// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "question.h"

#include "options.h"

namespace {

std::optional<int> numberOf(const Arguments& arguments, const Option& option)
{
    if (!arguments.isSet(option))
        return {};
    return int(arguments.number(option));
}

std::optional<Outcome> outcomeOf(const Arguments& arguments)
{
    if (!arguments.isSet(options::outcome))
        return {};
    const QString name = arguments.value(options::outcome);
    for (const OutcomeWords& words : outcomeWords()) {
        if (name == QLatin1String(words.key))
            return words.outcome;
    }
    throw Fault{
        Velmo::tr("%1: unknown outcome \"%2\" (known: %3)")
            .arg(options::outcome.dashedName(), name, outcomeKeys().join(QStringLiteral(", ")))};
}

Told toldOf(const Arguments& arguments)
{
    const bool areRefusals = arguments.isSet(options::refusals);
    const bool areContradictions = arguments.isSet(options::contradictions);
    if (areRefusals && areContradictions)
        throw Fault{Velmo::tr("--refusals and --contradictions do not go together")};
    return areRefusals ? Told::Refusals : areContradictions ? Told::Contradictions : Told::All;
}

} // namespace

Question::Question(const Arguments& arguments)
    : session(numberOf(arguments, options::session))
    , device(numberOf(arguments, options::device))
    , note(numberOf(arguments, options::note))
    , outcome(outcomeOf(arguments))
    , period(arguments)
    , told(toldOf(arguments))
    , summaryOnly(arguments.isSet(options::summary))
{
}
