// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"

/// What moves money in a device: of what a log tells, a credit or a change of the registry belongs
/// to the one that began last.
enum class MoneyAct {
    None, ///< nothing since the session began
    Unseen, ///< the log begins in the middle of it
    Piece, ///< a note or coin
    Payout,
    Float,
    Emptying
};

/// What a device does with the money that it has.
struct MoneyOperation
{
    MoneyAct act;
    State begun;
    State ended;

    /// The one that begins or ends with a state; null without.
    static const MoneyOperation* of(State state);
};

inline bool isOperation(MoneyAct act)
{
    return act >= MoneyAct::Payout;
}

/// Whether a log that begins in this state begins with money on its way.
bool isMoneyUnderWay(State state);
