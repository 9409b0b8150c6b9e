// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"

/// Caps the sum of a session: refuses a note that would take the session above the maximum. The
/// sum of session and note wraps around at 32 bits.
class VELMOLIB_EXPORT SessionSumFilter : public AbstractFilter
{
    Q_OBJECT
    /// The maximum, which itself may be reached; 0 until set.
    Q_PROPERTY(int sessionSum MEMBER m_sessionSum WRITE setSessionSum)

public:
    /// Sets the property sessionSum; any number is kept.
    void setSessionSum(int maximum);

    FilterResult validate() override;
    QString getFilterName() const override;
    QList<FieldDescription> getFieldsDescription() const override;
    QString getFilterDescription() const override;

private:
    int m_sessionSum = 0;
};
