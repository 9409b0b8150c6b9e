// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashperiod.h"

bool CashDoubt::isAbout(CashPlace other, int otherChannel, int value) const
{
    const bool isThere = !place || *place == other;
    const bool isOfChannel = other != CashPlace::Channel || channel == 0 || channel == otherChannel;
    return isThere && isOfChannel && (denomination == 0 || denomination == value);
}
