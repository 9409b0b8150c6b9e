// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"
#include "velmolib_global.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The names under which FilterFactory makes filters. They are compared with case.
namespace filters {

extern VELMOLIB_EXPORT const char* const ACCEPT_FILTER; ///< "AcceptFilter"
extern VELMOLIB_EXPORT const char* const ATTEMPTS_FILTER; ///< "AttemptsFilter"
extern VELMOLIB_EXPORT const char* const DENOM_COUNT_FILTER; ///< "DenomCountFilter"
extern VELMOLIB_EXPORT const char* const SESSION_SUM_FILTER; ///< "SessionSumFilter"

} // namespace filters

/// Makes filters by name and tells which there are.
class VELMOLIB_EXPORT FilterFactory
{
public:
    /// A new filter with the given parameters (AbstractFilter::setParams), owned by the caller, or
    /// null for an unknown name.
    static AbstractFilter* createFilter(const QString& name, const QVariantMap& params);

    /// The names of all filters, in a fixed order.
    static QStringList getFilters();

    /// The parameters of a filter; empty for an unknown name.
    static QList<FieldDescription> getFieldsDesc(const QString& name);

    /// Title and explanation of a filter with one vertical bar between them; empty for an unknown
    /// name.
    static QString getFilterDesc(const QString& name);
};
