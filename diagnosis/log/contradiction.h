// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/noteanswer.h"

#include <QString>
#include <QVector>

/// What of a log's money does not add up.
enum class Rule {
    NotCredited,
    CreditDiffers,
    CreditedNotTaken,
    CreditWithoutNote,
    CreditFell,
    PayoutDiffers,
    PayoutUnfinished,
    RegistryChanged,
    CounterJump
};
constexpr int ruleCount = int(Rule::CounterJump) + 1;

/// Something of a log that does not add up. Its place is where what is wrong with it began.
struct Contradiction : LogPlace
{
    Rule rule = Rule::NotCredited;
    QVector<qint64> lines; ///< that show it, in their order
    QString sentence; ///< what does not add up and what would clear it
    int note = 0; ///< the value of the note that it is about; 0 without one
    qint64 missing = 0; ///< so many pieces are not in the log
    int collections = 0; ///< of the cassette when they may have come at first

    QString ruleKey() const { return keyOf(rule); } ///< "not_credited", ...

    /// All of it in one line.
    QString text() const;

    static QString keyOf(Rule rule);

    /// What a rule is about, for a legend.
    static QString meaningOf(Rule rule);
};
