// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"

/// Guards against fishing: once the device has rejected notes a number of times, a note of the
/// denomination is refused until a note is stacked or the session ends. Rejections count whatever
/// note they were of.
class VELMOLIB_EXPORT AttemptsFilter : public AbstractFilter
{
    Q_OBJECT
    /// The face value that is guarded; 0 until set.
    Q_PROPERTY(int denom MEMBER m_denom)
    /// The number of rejections. 0, until set, and less refuse the denomination from the second
    /// event on.
    Q_PROPERTY(qint8 attempts MEMBER m_attempts)

public:
    FilterResult validate() override;
    QString getFilterName() const override;
    QList<FieldDescription> getFieldsDescription() const override;
    QString getFilterDescription() const override;

private:
    int m_denom = 0;
    qint8 m_attempts = 0;
};
