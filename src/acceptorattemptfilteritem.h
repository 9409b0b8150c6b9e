// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QVariant>

/// An anti-fishing limit: after how many rejections notes of one denomination are refused, as
/// AttemptsFilter does it. Any number is kept; a new limit has 0 in both.
class VELMOLIB_EXPORT AcceptorAttemptFilterItem
{
public:
    /// The number of rejections from which on the denomination is refused.
    int attempts() const;
    void setAttempts(int attempts);

    /// The face value that is guarded, in the unit that the service uses.
    int denom() const;
    void setDenom(int denom);

    /// Reads "denom" and "attempts", numbers or texts; what is missing reads as 1, what is no
    /// number as 0.
    void loadFromMap(QVariantMap map);

    /// {"denom": text, "attempts": text}
    QVariantMap toMap() const;

private:
    qint32 m_attempts = 0;
    qint32 m_denom = 0;
};
