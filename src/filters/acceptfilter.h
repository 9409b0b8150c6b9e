// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"

/// Switches acceptance on or off as a whole; it reads no events.
///
/// Properties: acceptAll, off by default.
class VELMOLIB_EXPORT AcceptFilter : public AbstractFilter
{
    Q_OBJECT
    Q_PROPERTY(bool acceptAll MEMBER m_acceptAll)

public:
    FilterResult validate() override;
    QString getFilterName() const override;
    QList<FieldDescription> getFieldsDescription() const override;
    QString getFilterDescription() const override;

private:
    bool m_acceptAll = false;
};
