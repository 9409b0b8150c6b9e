// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"

/// Caps how many notes or coins of one denomination a session may take.
class VELMOLIB_EXPORT DenomCountFilter : public AbstractFilter
{
    Q_OBJECT
    /// The face value that is capped; 0 until set.
    Q_PROPERTY(int denom MEMBER m_denom)
    /// The number of accepted notes from which on the denomination is refused. 0, until set, and
    /// less refuse it from the second event on.
    Q_PROPERTY(qint16 count MEMBER m_count)

public:
    FilterResult validate() override;
    QString getFilterName() const override;
    QList<FieldDescription> getFieldsDescription() const override;
    QString getFilterDescription() const override;

private:
    int m_denom = 0;
    qint16 m_count = 0;
};
