// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QVariant>

/// An anti-fishing limit: how many rejections of one denomination a session allows.
class VELMOLIB_EXPORT AcceptorAttemptFilterItem
{
public:
    int attempts() const;
    void setAttempts(int attempts);

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
