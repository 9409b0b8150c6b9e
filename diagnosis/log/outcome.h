// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <array>

/// What became of a note.
enum class Outcome {
    Refused, ///< by the filters
    Taken,
    Stuck, ///< in the device, which stopped while it had it: neither taken nor given back
    Rejected, ///< by the device
    Returned,
    Unknown ///< the log does not say
};
constexpr int outcomeCount = int(Outcome::Unknown) + 1;

/// How an outcome is called and drawn.
struct OutcomeWords
{
    Outcome outcome;
    const char* key; ///< in JSON and on pages
    const char* sentence; ///< of the note %1
    const char* tally; ///< of %n notes
    const char* total; ///< in a table of totals
    const char* meaning; ///< in a legend
    const char* mark; ///< what its SVG path has, 16 wide around the origin
};

/// By Outcome.
const std::array<OutcomeWords, outcomeCount>& outcomeWords();

inline const OutcomeWords& wordsOf(Outcome outcome)
{
    return outcomeWords().at(size_t(outcome));
}

/// Whether the customer has it again.
inline bool isGivenBack(Outcome outcome)
{
    return outcome == Outcome::Returned || outcome == Outcome::Rejected;
}

/// "refused", "taken", ...
QString outcomeKey(Outcome outcome);

/// Those of all.
QStringList outcomeKeys();
