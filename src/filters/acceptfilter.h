// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"

/// Switches acceptance on or off as a whole; it reads no events.
class VELMOLIB_EXPORT AcceptFilter : public AbstractFilter
{
    Q_OBJECT
    /// Whether notes and coins are accepted; false until set.
    Q_PROPERTY(bool acceptAll MEMBER m_acceptAll)

public:
    FilterResult validate() override;
    QString getFilterName() const override;
    QList<FieldDescription> getFieldsDescription() const override;
    QString getFilterDescription() const override;

private:
    bool m_acceptAll = false;
};
