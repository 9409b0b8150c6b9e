// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashperiod.h"

const char* const CashDoubt::stuck =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces got stuck on their way");
const char* const CashDoubt::onItsWay =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces are on their way");

bool CashDoubt::isAbout(CashPlace other, int otherChannel, int value) const
{
    const bool isThere = !place || *place == other;
    const bool isOfChannel = other != CashPlace::Channel || channel == 0 || channel == otherChannel;
    return isThere && isOfChannel && (denomination == 0 || denomination == value);
}
