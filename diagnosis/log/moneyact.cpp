// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/moneyact.h"

#include <algorithm>
#include <iterator>

const MoneyOperation* MoneyOperation::of(State state)
{
    static constexpr MoneyOperation table[] = {
        {MoneyAct::Payout, STATE_DISPENSING, STATE_DISPENSED},
        {MoneyAct::Float, STATE_FLOATING, STATE_FLOATED},
        {MoneyAct::Emptying, STATE_EMPTYING, STATE_EMPTIED},
    };
    const auto* const found =
        std::find_if(std::begin(table), std::end(table), [state](const MoneyOperation& operation) {
            return operation.begun == state || operation.ended == state;
        });
    return found == std::end(table) ? nullptr : found;
}

bool isMoneyUnderWay(State state)
{
    switch (state) {
    case STATE_IDLING:
    case STATE_ACCEPTING:
    case STATE_BUSY:
    case STATE_UPDATING:
        return false;
    default:
        return true;
    }
}
